#include "common/IconPaths.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The paths as front ends name their images: written out, as a front end would find out a slip only by a
/// missing icon.
class tst_IconPaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paths_data()
    {
        QTest::addColumn<QString>("constant");
        QTest::addColumn<QString>("path");
        QTest::addRow("About") << IconPaths::about << u":/icons/res/icons/48px-About.png"_s;
        QTest::addRow("Checklist") << IconPaths::checklist << u":/icons/res/icons/48px-Checklist.png"_s;
        QTest::addRow("Code-Name") << IconPaths::codeName << u":/icons/res/icons/48px-Code-Name.png"_s;
        QTest::addRow("Contract") << IconPaths::contract << u":/icons/res/icons/48px-Contract.png"_s;
        QTest::addRow("Database-convert")
            << IconPaths::databaseConvert << u":/icons/res/icons/48px-Database-convert.png"_s;
        QTest::addRow("Delete") << IconPaths::deleteItem << u":/icons/res/icons/48px-Delete.png"_s;
        QTest::addRow("Dict-Database")
            << IconPaths::dictDatabase << u":/icons/res/icons/48px-Dict-Database.png"_s;
        QTest::addRow("Document-open")
            << IconPaths::documentOpen << u":/icons/res/icons/48px-Document-open.png"_s;
        QTest::addRow("DsdConnect") << IconPaths::dsdConnect << u":/icons/res/icons/48px-DsdConnect.png"_s;
        QTest::addRow("DsdRemove") << IconPaths::dsdRemove << u":/icons/res/icons/48px-DsdRemove.png"_s;
        QTest::addRow("DsdShow") << IconPaths::dsdShow << u":/icons/res/icons/48px-DsdShow.png"_s;
        QTest::addRow("Entity-Name") << IconPaths::entityName << u":/icons/res/icons/48px-Entity-Name.png"_s;
        QTest::addRow("Entity-code") << IconPaths::entityCode << u":/icons/res/icons/48px-Entity-code.png"_s;
        QTest::addRow("Entity-label")
            << IconPaths::entityLabel << u":/icons/res/icons/48px-Entity-label.png"_s;
        QTest::addRow("Entity-weight")
            << IconPaths::entityWeight << u":/icons/res/icons/48px-Entity-weight.png"_s;
        QTest::addRow("Expand") << IconPaths::expand << u":/icons/res/icons/48px-Expand.png"_s;
        QTest::addRow("Eye-off") << IconPaths::eyeOff << u":/icons/res/icons/48px-Eye-off.png"_s;
        QTest::addRow("Eye") << IconPaths::eye << u":/icons/res/icons/48px-Eye.png"_s;
        QTest::addRow("File-existing")
            << IconPaths::fileExisting << u":/icons/res/icons/48px-File-existing.png"_s;
        QTest::addRow("File-graphstyle")
            << IconPaths::fileGraphstyle << u":/icons/res/icons/48px-File-graphstyle.png"_s;
        QTest::addRow("File-maps") << IconPaths::fileMaps << u":/icons/res/icons/48px-File-maps.png"_s;
        QTest::addRow("File-new") << IconPaths::fileNew << u":/icons/res/icons/48px-File-new.png"_s;
        QTest::addRow("File-programs")
            << IconPaths::filePrograms << u":/icons/res/icons/48px-File-programs.png"_s;
        QTest::addRow("File-selections")
            << IconPaths::fileSelections << u":/icons/res/icons/48px-File-selections.png"_s;
        QTest::addRow("File-tablestyle")
            << IconPaths::fileTablestyle << u":/icons/res/icons/48px-File-tablestyle.png"_s;
        QTest::addRow("Filter") << IconPaths::filter << u":/icons/res/icons/48px-Filter.png"_s;
        QTest::addRow("Fx-Expressions")
            << IconPaths::fxExpressions << u":/icons/res/icons/48px-Fx-Expressions.png"_s;
        QTest::addRow("Go-bottom") << IconPaths::goBottom << u":/icons/res/icons/48px-Go-bottom.png"_s;
        QTest::addRow("Gray-Square") << IconPaths::graySquare << u":/icons/res/icons/48px-Gray-Square.png"_s;
        QTest::addRow("Help") << IconPaths::help << u":/icons/res/icons/48px-Help.png"_s;
        QTest::addRow("Node-Information")
            << IconPaths::nodeInformation << u":/icons/res/icons/48px-Node-Information.png"_s;
        QTest::addRow("Placeholder") << IconPaths::placeholder << u":/icons/res/icons/48px-Placeholder.png"_s;
        QTest::addRow("Printer") << IconPaths::printer << u":/icons/res/icons/48px-Printer.png"_s;
        QTest::addRow("Project-new") << IconPaths::projectNew << u":/icons/res/icons/48px-Project-new.png"_s;
        QTest::addRow("Project-open")
            << IconPaths::projectOpen << u":/icons/res/icons/48px-Project-open.png"_s;
        QTest::addRow("Project-preferences")
            << IconPaths::projectPreferences << u":/icons/res/icons/48px-Project-preferences.png"_s;
        QTest::addRow("Project-save")
            << IconPaths::projectSave << u":/icons/res/icons/48px-Project-save.png"_s;
        QTest::addRow("Project-save_as")
            << IconPaths::projectSaveAs << u":/icons/res/icons/48px-Project-save_as.png"_s;
        QTest::addRow("Project-show")
            << IconPaths::projectShow << u":/icons/res/icons/48px-Project-show.png"_s;
        QTest::addRow("Morvachecklist")
            << IconPaths::morvachecklist << u":/icons/res/icons/48px-Morvachecklist.png"_s;
        QTest::addRow("Selection") << IconPaths::selection << u":/icons/res/icons/48px-Selection.png"_s;
        QTest::addRow("Settings") << IconPaths::settings << u":/icons/res/icons/48px-Settings.png"_s;
        QTest::addRow("Summatory") << IconPaths::summatory << u":/icons/res/icons/48px-Summatory.png"_s;
        QTest::addRow("Variable-bool")
            << IconPaths::variableBool << u":/icons/res/icons/48px-Variable-bool.png"_s;
        QTest::addRow("Variable-decimal")
            << IconPaths::variableDecimal << u":/icons/res/icons/48px-Variable-decimal.png"_s;
        QTest::addRow("Variable-integer")
            << IconPaths::variableInteger << u":/icons/res/icons/48px-Variable-integer.png"_s;
        QTest::addRow("Variable-string")
            << IconPaths::variableString << u":/icons/res/icons/48px-Variable-string.png"_s;
        QTest::addRow("Yellow-Square")
            << IconPaths::yellowSquare << u":/icons/res/icons/48px-Yellow-Square.png"_s;
        QTest::addRow("next") << IconPaths::next << u":/icons/res/icons/48px-next.png"_s;
        QTest::addRow("previous") << IconPaths::previous << u":/icons/res/icons/48px-previous.png"_s;
        QTest::addRow("new") << IconPaths::newItem << u":/icons/res/icons/new.png"_s;
    }
    void paths()
    {
        QFETCH(QString, constant);
        QFETCH(QString, path);
        QCOMPARE(constant, path);
    }
};

QTEST_APPLESS_MAIN(tst_IconPaths)

#include "tst_iconpaths.moc"
