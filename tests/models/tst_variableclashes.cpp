#include "tests/support/ContextTranslator.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/VariableTable.h"

#include <QApplication>
#include <QPushButton>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// The rules of clashes as they are told: a walk and a regular expression for each variable.
class PlainImport
{
public:
    /// Adds \a added to \a existing. A variable is written as "name|alias|label|group".
    PlainImport(QStringList existing, const QStringList &added, QStringList answers)
        : texts(std::move(existing)), m_answers(std::move(answers))
    {
        for (const QString &variable : added) {
            if (!add(variable, added.size() > 1))
                break;
        }
    }

    QStringList texts;
    QStringList boxes;

private:
    /// False if the user cancels.
    bool add(QString variable, bool offerSkip)
    {
        const QString name = variable.section(u'|', 0, 0);
        if (const qsizetype twin = texts.indexOf(variable); twin >= 0) {
            boxes += name + u" already exists. Overwrite?"_s;
            const QString answer = m_answers.size() > 1 ? m_answers.takeFirst() : m_answers.first();
            if (answer == u"Cancel")
                return false;
            if (answer == u"Skip" && offerSkip)
                return true;
            if (answer == u"Overwrite") {
                texts.removeAt(twin);
                texts.append(variable);
                return true;
            }
        }
        const auto hasName = [&name](const QString &each) { return each.section(u'|', 0, 0) == name; };
        if (std::any_of(texts.cbegin(), texts.cend(), hasName))
            variable = name + u'_' + freeLetter(name) + variable.mid(name.size());
        texts.append(variable);
        return true;
    }

    [[nodiscard]] QChar freeLetter(const QString &name) const
    {
        const QRegularExpression expression(QRegularExpression::escape(name) + u"_([A-Z])$"_s);
        QString used;
        if (!expression.isValid()) // The name is malformed text: nothing matches it.
            return u'A';
        for (const QString &each : texts)
            used += expression.match(each.section(u'|', 0, 0)).captured(1);
        for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
            if (!used.contains(letter))
                return letter;
        }
        return u'Z';
    }

    QStringList m_answers;
};
} // namespace

/// Dropped variables that clash with others, and the report of names that clash.
class TestVariableClashes : public QObject, VariableTable
{
    Q_OBJECT

private Q_SLOTS:
    void init() { makeTable(); }
    void cleanup() { clearTable(); }

    void aTakenNameGetsTheFirstFreeLetter_data()
    {
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<QString>("dropped");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *name, const QStringList &existing, const QString &dropped,
                            const QString &expected) {
            QTest::addRow("%s", name) << existing << dropped << expected;
        };
        QStringList all{u"AGE"_s};
        for (char16_t letter = u'A'; letter <= u'Z'; ++letter)
            all += u"AGE_"_s + QChar(letter);
        row("free name", {u"AGE"_s}, u"SEX"_s, u"SEX"_s);
        row("free name although suffixes are used", {u"AGE_A"_s}, u"AGE"_s, u"AGE"_s);
        row("other letter case is free", {u"age"_s}, u"AGE"_s, u"AGE"_s);
        row("first", {u"AGE"_s}, u"AGE"_s, u"AGE_A"_s);
        row("second", {u"AGE"_s, u"AGE_A"_s}, u"AGE"_s, u"AGE_B"_s);
        row("gap", {u"AGE_A"_s, u"AGE_C"_s, u"AGE"_s}, u"AGE"_s, u"AGE_B"_s);
        row("last", all.first(26), u"AGE"_s, u"AGE_Z"_s);
        row("none is free: Z repeats", all, u"AGE"_s, u"AGE_Z"_s);
        row("small letters are none", {u"AGE"_s, u"AGE_a"_s}, u"AGE"_s, u"AGE_A"_s);
        row("longer suffixes are none", {u"AGE"_s, u"AGE_AB"_s}, u"AGE"_s, u"AGE_A"_s);
        row("letters beyond Z are none", {u"AGE"_s, u"AGE_Ä"_s}, u"AGE"_s, u"AGE_A"_s);
        row("only the end counts", {u"AGE"_s, u"XAGE_A"_s}, u"AGE"_s, u"AGE_B"_s);
        row("line end behind the suffix", {u"AGE"_s, u"AGE_A\n"_s}, u"AGE"_s, u"AGE_B"_s);
        row("two line ends behind it", {u"AGE"_s, u"AGE_A\n\n"_s}, u"AGE"_s, u"AGE_A"_s);
        row("line end before it", {u"AGE"_s, u"AGE\n_A"_s}, u"AGE"_s, u"AGE_A"_s);
        row("special characters are themselves", {u"A.E"_s, u"AXE_A"_s}, u"A.E"_s, u"A.E_A"_s);
        row("no name", {QString(), u"_A"_s, u"X_B"_s}, QString(), u"_C"_s);
        row("suffixed name gets another one", {u"AGE_A"_s, u"AGE_A_A"_s}, u"AGE_A"_s, u"AGE_A_B"_s);
        row("beyond the basic plane", {u"𝄞"_s, u"x𝄞_A"_s}, u"𝄞"_s, u"𝄞_B"_s);
    }
    void aTakenNameGetsTheFirstFreeLetter()
    {
        QFETCH(const QStringList, existing);
        QFETCH(const QString, dropped);
        m_model->setSplitterEnabled(false);
        qDeleteAll(std::exchange(variables(), {}));
        for (const QString &name : existing)
            m_person->addVariables(makeVariable(name));
        const MessageBoxAnswer box;
        QVERIFY(drop({fieldText(dropped, u"new"_s)}));
        QVERIFY(box.shown().isEmpty());
        QCOMPARE(names().first(existing.size()), existing);
        QTEST(names().constLast(), "name");
        QCOMPARE(variables().last()->getMetadataVariables()->getField(), dropped);
    }

    void suffixesAreMarkedWithTheSameCharacterWhateverTheSplitter()
    {
        m_model->setSplitterCharacter(u"."_s);
        QVERIFY(drop({fieldText(u"AGE.X"_s)}));
        QCOMPARE(names().constLast(), u"AGE_A"_s);
    }

    void fieldsOfOneDropClashWithEachOther()
    {
        QVERIFY(drop({fieldText(u"AGE"_s, u"1"_s), fieldText(u"AGE"_s, u"2"_s), fieldText(u"NEW"_s, u"1"_s),
                      fieldText(u"NEW"_s, u"2"_s)}));
        QCOMPARE(names(), (QStringList{u"AGE"_s, u"SEX"_s, u"AGE_A"_s, u"AGE_B"_s, u"NEW"_s, u"NEW_A"_s}));
    }

    void asksBeforeItOverwrites()
    {
        m_model->setSplitterEnabled(false);
        m_person->addVariables(makeVariable(u"<i>Q</i>"_s));
        QStringList added;
        const MessageBoxAnswer box({u"Cancel"_s});
        QTimer::singleShot(0, this, [&added] {
            // Children stand in the order in which they were added; buttons() goes by roles.
            const auto buttons = QApplication::activeModalWidget()->findChildren<QPushButton *>();
            for (const QPushButton *button : buttons)
                added += button->text().remove(u'&');
        });
        QVERIFY(drop({fieldText(u"<i>Q</i>"_s), fieldText(u"B"_s)}));
        QCOMPARE(added, (QStringList{u"Overwrite"_s, u"Rename"_s, u"Skip"_s, u"Cancel"_s}));
        QCOMPARE(box.shown().size(), 1);
        const ShownBox &shown = box.shown().first();
        QCOMPARE(shown.title, u"Overwrite variable"_s);
        QCOMPARE(shown.text, u"<i>Q</i> already exists. Overwrite?"_s);
        QCOMPARE(shown.format, Qt::PlainText);
        QVERIFY(shown.modal);
        QVERIFY(!shown.hasParent);
        const QMap<QString, QMessageBox::ButtonRole> roles{{u"Overwrite"_s, QMessageBox::AcceptRole},
                                                           {u"Rename"_s, QMessageBox::ActionRole},
                                                           {u"Skip"_s, QMessageBox::RejectRole},
                                                           {u"Cancel"_s, QMessageBox::RejectRole}};
        QMap<QString, QMessageBox::ButtonRole> found;
        for (int i = 0; i < shown.buttons.size(); ++i)
            found.insert(shown.buttons.at(i), shown.roles.at(i));
        QCOMPARE(found, roles);
    }

    void oneVariableCannotBeSkipped()
    {
        const MessageBoxAnswer box({u"Cancel"_s});
        QVERIFY(drop({fieldText(u"AGE"_s), fieldText(u"AGE"_s)}));
        QCOMPARE(box.shown().first().buttons, (QStringList{u"Overwrite"_s, u"Cancel"_s, u"Rename"_s}));
    }

    void refusedLookupsDoNotMakeASkip()
    {
        const MessageBoxAnswer box({u"OK"_s, u"Cancel"_s});
        QVERIFY(drop({lookupText(u"12"_s), fieldText(u"AGE"_s)}));
        QCOMPARE(box.shown().at(1).buttons, (QStringList{u"Overwrite"_s, u"Cancel"_s, u"Rename"_s}));
    }

    void asksOnlyWhenAllFourTextsAreEqual_data()
    {
        QTest::addColumn<QString>("alias");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("group");
        QTest::addRow("alias") << u"x"_s << QString() << QString();
        QTest::addRow("label") << QString() << u"x"_s << QString();
        QTest::addRow("group") << QString() << QString() << u"x"_s;
    }
    void asksOnlyWhenAllFourTextsAreEqual()
    {
        QFETCH(const QString, alias);
        QFETCH(const QString, label);
        QFETCH(const QString, group);
        variables().first()->setAlias(alias);
        variables().first()->setLabel(label);
        variables().first()->setGroup(group);
        const MessageBoxAnswer box;
        QVERIFY(drop({fieldText(u"AGE"_s)}));
        QVERIFY(box.shown().isEmpty());
        QCOMPARE(names().constLast(), u"AGE_A"_s);
    }

    void answersDecide_data()
    {
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<int>("modified");
        // Dropped are AGE, NEW, SEX and LAST on AGE and SEX.
        QTest::addRow("overwrite both") << QStringList{u"Overwrite"_s, u"Overwrite"_s}
                                        << QStringList{u"AGE"_s, u"NEW"_s, u"SEX"_s, u"LAST"_s} << 4;
        QTest::addRow("rename both") << QStringList{u"Rename"_s, u"Rename"_s}
                                     << QStringList{u"AGE"_s, u"SEX"_s,   u"AGE_A"_s,
                                                    u"NEW"_s, u"SEX_A"_s, u"LAST"_s}
                                     << 4;
        QTest::addRow("skip both") << QStringList{u"Skip"_s, u"Skip"_s}
                                   << QStringList{u"AGE"_s, u"SEX"_s, u"NEW"_s, u"LAST"_s} << 2;
        QTest::addRow("overwrite, then skip") << QStringList{u"Overwrite"_s, u"Skip"_s}
                                              << QStringList{u"SEX"_s, u"AGE"_s, u"NEW"_s, u"LAST"_s} << 3;
        QTest::addRow("cancel the first") << QStringList{u"Cancel"_s} << QStringList{u"AGE"_s, u"SEX"_s} << 0;
        QTest::addRow("escape is cancel") << QStringList{QString()} << QStringList{u"AGE"_s, u"SEX"_s} << 0;
        QTest::addRow("cancel keeps what was added")
            << QStringList{u"Rename"_s, u"Cancel"_s} << QStringList{u"AGE"_s, u"SEX"_s, u"AGE_A"_s, u"NEW"_s}
            << 2;
    }
    void answersDecide()
    {
        QFETCH(const QStringList, answers);
        const QSignalSpy modified(m_model.get(), &VariableDiccionaryModel::signalVariablesModified);
        const MessageBoxAnswer box(answers);
        QVERIFY(drop({fieldText(u"AGE"_s), fieldText(u"NEW"_s), fieldText(u"SEX"_s), fieldText(u"LAST"_s)}));
        QCOMPARE(box.shown().size(), answers.size());
        QTEST(names(), "names");
        QTEST(int(modified.size()), "modified");
        QCOMPARE(m_model->rowCount(), int(variables().size()));
    }

    void aBoxClosedInAnotherWaySkips()
    {
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                box->done(4711); // No button was clicked.
        });
        closer.start(0);
        QVERIFY(drop({fieldText(u"AGE"_s), fieldText(u"NEW"_s)}));
        QCOMPARE(names(), (QStringList{u"AGE"_s, u"SEX"_s, u"NEW"_s}));
    }

    void closingTheWindowCancels()
    {
        QTimer::singleShot(0, this, [] { QApplication::activeModalWidget()->close(); });
        QVERIFY(drop({fieldText(u"AGE"_s), fieldText(u"NEW"_s)}));
        QCOMPARE(names(), (QStringList{u"AGE"_s, u"SEX"_s}));
    }

    void overwritesTheFirstOfTheEqualOnes()
    {
        m_person->addVariables(makeVariable(u"AGE"_s));
        const TDcVariable *second = variables().last();
        const MessageBoxAnswer box({u"Overwrite"_s});
        QVERIFY(drop({fieldText(u"AGE"_s)}));
        QCOMPARE(names(), (QStringList{u"SEX"_s, u"AGE"_s, u"AGE"_s}));
        QCOMPARE(variables().at(1), second);
    }

    void theOverwrittenVariableStaysAliveWithItsEntity()
    {
        const TDcVariable *old = variables().first();
        const MessageBoxAnswer box({u"Overwrite"_s});
        QVERIFY(drop({fieldText(u"AGE"_s)}));
        QVERIFY(!variables().contains(old));
        QCOMPARE(old->getTag(), 7);
    }

    void overwritingTheReferenceCodeTakesItAway()
    {
        TDcEntity *visit = findEntity(m_root.get(), u"VISIT");
        m_person->setSelectable(true);
        visit->setSelectable(true);
        m_person->setRefCode(u"AGE"_s);
        const MessageBoxAnswer box({u"Overwrite"_s});
        QVERIFY(drop({fieldText(u"SEX"_s)}));
        QCOMPARE(m_person->getRefCode(), u"AGE"_s);
        QVERIFY(m_person->getSelectable());
        QVERIFY(drop({fieldText(u"AGE"_s)}));
        QCOMPARE(m_person->getRefCode(), QString());
        QVERIFY(!m_person->getSelectable());
        QVERIFY(visit->getSelectable()); // Not below, on purpose.
    }

    void renamingKeepsTheReferenceCode()
    {
        m_person->setRefCode(u"AGE"_s);
        m_person->setSelectable(true);
        const MessageBoxAnswer box({u"Rename"_s});
        QVERIFY(drop({fieldText(u"AGE"_s)}));
        QCOMPARE(m_person->getRefCode(), u"AGE"_s);
        QVERIFY(m_person->getSelectable());
    }

    void theListOfVariablesStaysTheCallers()
    {
        QList<TDcVariable *> list{makeVariable(u"AGE"_s), nullptr, makeVariable(u"NEW"_s)};
        const QList<TDcVariable *> before = list;
        const QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
        const MessageBoxAnswer box({u"Skip"_s}); // The skipped one is gone; the leak check would tell.
        m_model->updateEntityVariables(&list);
        QCOMPARE(list, before);
        QCOMPARE(variables().last(), list.last());
        QCOMPARE(variables().size(), 3);
        QVERIFY(reset.isEmpty());
        QCOMPARE(m_model->rowCount(), 2); // Rows are rebuilt by a drop only.
    }

    void noListIsAnEmptyOne()
    {
        m_model->updateEntityVariables(nullptr);
        QCOMPARE(variables().size(), 2);
    }

    // The duplicate report

    void reportsNothingWithoutDuplicates()
    {
        m_person->addVariables(nullptr);
        const MessageBoxAnswer box;
        m_model->showDuplicatedNamesWarning();
        QVERIFY(box.shown().isEmpty());
    }

    void reportsEachDuplicateAsOftenAsItOccurs()
    {
        m_person->addVariables(makeVariable(u"AGE"_s, u"second"_s));
        m_person->addVariables(makeVariable(u"age"_s, u"other"_s));
        m_person->addVariables(makeVariable(u"SEX"_s, u"<u>s</u>"_s));
        m_person->addVariables(makeVariable(u"AGE"_s, u"third"_s));
        const MessageBoxAnswer box({u"OK"_s});
        m_model->showDuplicatedNamesWarning();
        QCOMPARE(box.shown().size(), 1);
        const ShownBox &shown = box.shown().first();
        QCOMPARE(shown.title, u"Warning: Duplicated names"_s);
        QCOMPARE(shown.text,
                 u"Duplicated names:\n"
                 "Name: AGE - Alias: \n"
                 "Name: SEX - Alias: \n"
                 "Name: AGE - Alias: second\n"
                 "Name: SEX - Alias: <u>s</u>\n"
                 "Name: AGE - Alias: third\n"_s);
        QCOMPARE(shown.icon, QMessageBox::Warning);
        QCOMPARE(shown.format, Qt::PlainText);
        QCOMPARE(shown.buttons, QStringList{u"OK"_s});
        QVERIFY(!shown.hasParent);
    }

    void importsDoNotReportDuplicates()
    {
        for (char16_t letter = u'A'; letter <= u'Z'; ++letter)
            m_person->addVariables(makeVariable(u"AGE_"_s + QChar(letter)));
        const MessageBoxAnswer box;
        QVERIFY(drop({fieldText(u"AGE"_s, u"x"_s)}));
        QCOMPARE(names().count(u"AGE_Z"_s), 2);
        QVERIFY(box.shown().isEmpty());
    }

    void translatesInItsOwnContext()
    {
        const ContextTranslator translator;
        m_person->addVariables(makeVariable(u"SEX"_s));
        const MessageBoxAnswer box;
        QVERIFY(drop({lookupText(u"12"_s), fieldText(u"AGE"_s)}));
        m_model->showDuplicatedNamesWarning();
        QCOMPARE(box.shown().size(), 3);
        QCOMPARE(box.texts().at(0),
                 u"VariableDiccionaryModel:Error creating 12. "
                 "VariableDiccionaryModel:Must be selectable entity."_s);
        QCOMPARE(box.shown().at(1).title, u"VariableDiccionaryModel:Overwrite variable"_s);
        QCOMPARE(box.texts().at(1),
                 u"AGE VariableDiccionaryModel:already exists. "
                 "VariableDiccionaryModel:Overwrite?"_s);
        QVERIFY(box.shown().at(1).buttons.contains(u"VariableDiccionaryModel:Rename"_s));
        QCOMPARE(box.shown().at(2).title,
                 u"VariableDiccionaryModel:Warning: VariableDiccionaryModel:Duplicated names"_s);
        QVERIFY(box.texts().at(2).startsWith(u"Duplicated names:\nVariableDiccionaryModel:Name: SEX"_s));
    }

    void findsTheClashesThatAWalkFinds()
    {
        QRandomGenerator random(20);
        const auto text = [&random](const QStringList &texts) {
            return texts.at(random.bounded(int(texts.size())));
        };
        const QString half = QString(QChar(0xDE00)) + u'A'; // No expression finds anything in such text.
        const QStringList bases{u"A"_s,  u"AB"_s,   u"XA"_s, u"A_A"_s, u"A.B"_s,
                                u"_A"_s, QString(), u"a"_s,  half,     QChar(0xD83D) + half};
        const QStringList endings{QString(), QString(), u"_A"_s, u"_B"_s, u"_C_A"_s,
                                  u"_Z"_s,   u"_A\n"_s, u"_a"_s, u"\n"_s, u"_"_s};
        const QStringList answers{u"Overwrite"_s, u"Rename"_s, u"Rename"_s,
                                  u"Skip"_s,      u"Skip"_s,   u"Cancel"_s};
        const auto variable = [&] {
            const QStringList others{QString(), QString(), u"x"_s};
            return QStringList{text(bases) + text(endings), text(others), text(others), text(others)}.join(
                u'|');
        };
        const auto make = [](const QString &line) {
            const QStringList parts = line.split(u'|');
            return makeVariable(parts.at(0), parts.at(1), parts.at(2), parts.at(3));
        };
        qsizetype boxes = 0;
        for (int round = 0; round < 400; ++round) {
            cleanup();
            init();
            qDeleteAll(std::exchange(variables(), {}));
            QStringList existing;
            QStringList added;
            for (int i = random.bounded(40); i > 0; --i)
                existing += variable();
            for (int i = 2 + random.bounded(20); i > 0; --i)
                added += variable();
            QStringList answered;
            for (int i = 0; i < 40; ++i)
                answered += text(round % 4 ? answers.first(5) : answers);

            PlainImport expected(existing, added, answered);
            for (const QString &each : std::as_const(existing))
                m_person->addVariables(make(each));
            QList<TDcVariable *> list;
            for (const QString &each : std::as_const(added))
                list += make(each);
            const MessageBoxAnswer box(answered);
            m_model->updateEntityVariables(&list);
            QCOMPARE(box.texts(), expected.boxes);
            QStringList found;
            for (const TDcVariable *each : std::as_const(variables()))
                found +=
                    QStringList{each->getName(), each->getAlias(), each->getLabel(), each->getGroup()}.join(
                        u'|');
            QCOMPARE(found, expected.texts);
            boxes += box.shown().size();
        }
        QVERIFY(boxes > 100);
    }

    void findsTheClashesOfManyAsAWalkDoes()
    {
        QStringList existing;
        QStringList added;
        for (int i = 0; i < 300; ++i) {
            existing += u"V%1|||"_s.arg(i);
            existing += u"%1V%2_%3|||"_s.arg(i % 2 ? u"X"_s : QString()).arg(i).arg(QChar(u'A' + i % 4));
            added += u"V%1||new|"_s.arg(i % 290);
        }
        const PlainImport expected(existing, added, {u"Cancel"_s});
        qDeleteAll(std::exchange(variables(), {}));
        for (const QString &each : std::as_const(existing))
            m_person->addVariables(makeVariable(each.section(u'|', 0, 0)));
        QList<TDcVariable *> list;
        for (const QString &each : std::as_const(added))
            list += makeVariable(each.section(u'|', 0, 0), {}, u"new"_s);
        m_model->updateEntityVariables(&list);
        QStringList expectedNames;
        for (const QString &each : expected.texts)
            expectedNames += each.section(u'|', 0, 0);
        QCOMPARE(names(), expectedNames);
    }
};

QTEST_MAIN(TestVariableClashes)
#include "tst_variableclashes.moc"
