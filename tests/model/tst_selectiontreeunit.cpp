#include "model/SelectionTreeUnit.h"
#include "tests/support/Accessors.h"

#include <QStringListModel>

using namespace Qt::Literals::StringLiterals;

class tst_SelectionTreeUnit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void properties()
    {
        SelectionTreeUnit unit;
        CHECK_ACCESSORS(unit, Code, QString(), u"01"_s);
        CHECK_ACCESSORS(unit, Name, QString(), u"North"_s);
        CHECK_ACCESSORS(unit, Level, 1, 2);
        CHECK_ACCESSORS(unit, UnitState, Qt::Unchecked, Qt::PartiallyChecked);
        const std::pair<std::string, std::string> area{"region", "province"};
        CHECK_ACCESSORS(unit, Area, (std::pair<std::string, std::string>()), area);
        QStringListModel model({u"row"_s});
        CHECK_ACCESSORS(unit, Index, QModelIndex(), model.index(0));
    }

    void childrenAreALiveOwnedList()
    {
        SelectionTreeUnit unit;
        QVERIFY(unit.getChildren()->isEmpty());
        unit.getChildren()->append(new SelectionTreeUnit);
        auto *given = new QList<SelectionTreeUnit *>{new SelectionTreeUnit};
        unit.setChildren(given);
        QCOMPARE(unit.getChildren(), given);
    }

    void deepTreeIsDeleted()
    {
        auto root = std::make_unique<SelectionTreeUnit>();
        SelectionTreeUnit *last = root.get();
        for (int i = 0; i < 100'000; ++i) {
            last->getChildren()->append(new SelectionTreeUnit);
            last = last->getChildren()->constLast();
        }
        QVERIFY(last->getChildren()->isEmpty());
        root.reset(); // Neither overflows the stack nor leaks.
    }
};

QTEST_APPLESS_MAIN(tst_SelectionTreeUnit)

#include "tst_selectiontreeunit.moc"
