#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/MetadataVariables.h"
#include "tests/support/Growth.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/Bench.h"
#include "workbench/clipboard/ItemTargets.h"
#include "workbench/clipboard/Paste.h"
#include "workbench/clipboard/VariableTarget.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestPaste : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void updatesByNameAndAdds();
    void fillsFromTheCurrentCell();
    void fillsRowsFromTheCurrentOneWithoutNames();
    void takesHeadersInAnyCase_data();
    void takesHeadersInAnyCase();
    void storesEveryProperty();
    void refuses_data();
    void refuses();
    void keepsTheRestOfWhatIsRefused();
    void readsRaggedRows();
    void namesUnknownColumns();
    void reportsAMillionUnknownColumnsBriefly();
    void findsNamesWithoutRegardToCase();
    void takesANewNameOnce();
    void letsTheReferenceCodeFollow();
    void namesWhatHasNoName();
    void canBeStopped();
    void addsLabelsByCode();
    void addsRangesOnce();
    void refusesBoundsThatAreNoNumbers();
    void takesRefusedRowsBackInProportion();
    void readsNumbersOfTheLanguage();
    void saysWhenThereIsNothing();

private:
    Paste paste(const QString &text, int row = 0, int column = 0, const Paste::Progress &progress = {});
    [[nodiscard]] QStringList lines();
    [[nodiscard]] TDcEntity *person() { return m_bench->entity(u"PERSON"_s); }
    [[nodiscard]] TDcVariable *find(const QString &name) { return Places::findVariable(person(), name); }

    std::unique_ptr<Bench> m_bench;
    std::unique_ptr<MessageBoxAnswer> m_boxes;
};

void TestPaste::init()
{
    m_bench = std::make_unique<Bench>();
    m_boxes = std::make_unique<MessageBoxAnswer>();
}

void TestPaste::cleanup()
{
    // Whatever is refused, no box opens.
    QCOMPARE(m_boxes->texts(), QStringList());
    m_boxes.reset();
    m_bench.reset();
    QLocale::setDefault(QLocale::c());
}

/// Pastes into the variables of PERSON as they stand.
Paste TestPaste::paste(const QString &text, int row, int column, const Paste::Progress &progress)
{
    VariableTarget target(m_bench->document.root(), person(), *person()->getVariables(), {0, 1, 2, 3, 4});
    return Paste::into(target, TabText::parse(text), row, column, progress);
}

QStringList TestPaste::lines()
{
    QStringList lines;
    for (const TDcVariable *variable : std::as_const(*person()->getVariables()))
        lines.append(QStringList({variable->getName(), variable->getAlias(), variable->getLabel(),
                                  variable->getGroup()})
                         .join(u'|'));
    return lines;
}

void TestPaste::updatesByNameAndAdds()
{
    const Paste done = paste(u"Label\tName\tGroup\nYears\tAGE\tBASIC\nIncome\tINCOME\tWORK\n"_s);
    QCOMPARE(done.report(), QStringList());
    QCOMPARE(done.rows(), QSet<int>({1, 3}));
    QCOMPARE(lines(),
             QStringList({u"SEX||Sex|"_s, u"AGE|P03|Years|BASIC"_s, u"WAGE||Monthly wage|"_s,
                          u"INCOME||Income|WORK"_s}));
    QCOMPARE(find(u"INCOME"_s)->getVarType(), u"INTEGER"_s);
    QCOMPARE(find(u"INCOME"_s)->getTag(), 1);
}

void TestPaste::fillsFromTheCurrentCell()
{
    const Paste done = paste(u"X1\tYears\n\tPay\nX3\tThird\n"_s, 1, 1);
    QCOMPARE(done.report(), QStringList());
    QCOMPARE(lines(),
             QStringList({u"SEX||Sex|"_s, u"AGE|X1|Years|"_s, u"WAGE||Pay|"_s, u"VARIABLE|X3|Third|"_s}));
}

void TestPaste::fillsRowsFromTheCurrentOneWithoutNames()
{
    QCOMPARE(paste(u"Label\tSize\nYears\t3\nPay\t8\n"_s, 1, 0).report(), QStringList());
    QCOMPARE(find(u"AGE"_s)->getLabel(), u"Years"_s);
    QCOMPARE(find(u"WAGE"_s)->getSize(), 8);
}

void TestPaste::takesHeadersInAnyCase_data()
{
    QTest::addColumn<QString>("header");
    QTest::addRow("as shown") << u"Name\tMissing-value code"_s;
    QTest::addRow("small") << u"name\tmissing-value code"_s;
    QTest::addRow("blanks") << u" NAME \t Missing-Value Code"_s;
}

void TestPaste::takesHeadersInAnyCase()
{
    QFETCH(const QString, header);
    QCOMPARE(paste(header + u"\nAGE\t99"_s).report(), QStringList());
    QCOMPARE(find(u"AGE"_s)->getMissing(), 99);
}

void TestPaste::storesEveryProperty()
{
    // What is copied of one variable makes another one like it.
    TDcVariable &age = *find(u"AGE"_s);
    age.setLevel(person()->getLevel());
    QStringList header;
    QStringList cells;
    int number = 10;
    for (const VariableProperty &property : VariableProperties::all()) {
        using Kind = VariableProperty::Kind;
        if (property.kind == Kind::Number)
            property.set(age, ++number);
        else if (property.kind == Kind::Flag)
            property.set(age, true);
        else
            property.set(age, u"T%1"_s.arg(++number));
        header.append(property.title());
        cells.append(VariableWriter::text(age, property));
    }
    cells[0] = u"COPY"_s;
    cells[1] = u"ALIAS"_s;
    QCOMPARE(paste(TabText::write({header, cells})).report(), QStringList());
    const auto copy = DictionaryCopy::copy(age);
    copy->setName(u"COPY"_s);
    copy->setAlias(u"ALIAS"_s);
    QVERIFY(DictionaryEquality::equal(*copy, *find(u"COPY"_s)));
}

void TestPaste::refuses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("report");
    QTest::addRow("a bad name") << u"Name\tLabel\nA B\tx"_s << u"Line 2: Name \"A B\". Invalid string"_s;
    QTest::addRow("an entity's name")
        << u"Name\tLabel\nDEATH\tx"_s
        << u"Line 2: Name \"DEATH\". The typed character string already exists"_s;
    QTest::addRow("a taken group")
        << u"Name\tGroup\nAGE\tPERSON"_s
        << u"Line 2: Group \"PERSON\". The value already exists as a entity name."_s;
    QTest::addRow("an alias that is a name")
        << u"Name\tAlias\nAGE\tSEX"_s
        << u"Line 2: Alias \"SEX\". The value already exists as the name of a variable."_s;
    QTest::addRow("a tag of letters")
        << u"Name\tTag\nAGE\tx"_s << u"Line 2: Tag \"x\". This is no whole number."_s;
    QTest::addRow("a size with a fraction")
        << u"Name\tSize\nAGE\t1.5"_s << u"Line 2: Size \"1.5\". This is no whole number."_s;
    QTest::addRow("a size beyond all bounds")
        << u"Name\tSize\nAGE\t99999999999"_s << u"Line 2: Size \"99999999999\". This is no whole number."_s;
    QTest::addRow("a flag of letters")
        << u"Name\tLocal\nAGE\tperhaps"_s << u"Line 2: Local \"perhaps\". This is neither yes nor no."_s;
    QTest::addRow("a rename to nothing") << u"\t\n"_s << u"Line 1: Name \"\". A variable needs a name."_s;
}

void TestPaste::refuses()
{
    QFETCH(const QString, text);
    QFETCH(const QString, report);
    const auto before = DictionaryCopy::copy(*m_bench->document.root());
    QCOMPARE(paste(text).report(), QStringList({report}));
    QVERIFY(DictionaryEquality::equal(*m_bench->document.root(), *before));
}

void TestPaste::keepsTheRestOfWhatIsRefused()
{
    const Paste done = paste(u"Name\tLabel\tTag\nAGE\tYears\t20000\nA B\tlost\t2\nNEW\tNew\t-5\n"_s);
    QCOMPARE(done.report(),
             QStringList({u"Line 2: Tag \"20000\". It was stored as \"9999\"."_s,
                          u"Line 3: Name \"A B\". Invalid string"_s,
                          u"Line 4: Tag \"-5\". It was stored as \"5\"."_s}));
    QCOMPARE(lines(),
             QStringList({u"SEX||Sex|"_s, u"AGE|P03|Years|"_s, u"WAGE||Monthly wage|"_s, u"NEW||New|"_s}));
    QCOMPARE(find(u"AGE"_s)->getTag(), 9999);
}

void TestPaste::readsRaggedRows()
{
    const Paste done = paste(u"Name\tLabel\tGroup\nAGE\nWAGE\tPay\tWORK\ttoo\tmuch\n\n   \nSEX\tGender\n"_s);
    QCOMPARE(done.report(),
             QStringList({u"Line 3: Cells after the first 3. There is no column for them."_s}));
    QCOMPARE(lines(), QStringList({u"SEX||Gender|"_s, u"AGE|P03|Age|"_s, u"WAGE||Pay|WORK"_s}));
}

void TestPaste::namesUnknownColumns()
{
    const Paste one = paste(u"Name\tUniverse\nAGE\tall"_s);
    QCOMPARE(one.report(),
             QStringList({u"Line 1: Universe. There is no such column, so it was left out."_s}));
    QCOMPARE(one.rows(), QSet<int>({1}));
    const Paste two = paste(u"Universe\tName\tSource\nall\tAGE\tform\n"_s);
    QCOMPARE(two.report(),
             QStringList({u"Line 1: Universe, Source. There are no such columns, so they were left out."_s}));
}

void TestPaste::reportsAMillionUnknownColumnsBriefly()
{
    QStringList header{u"Name"_s};
    for (int i = 0; i < 1000000; ++i)
        header.append(u"column%1"_s.arg(i));
    const Paste done = paste(header.join(u'\t') + u"\nAGE\tx\n"_s);
    QCOMPARE(done.report().size(), 1);
    QVERIFY2(done.report().first().contains(u"column9 and 999,990 more"_s)
                 || done.report().first().contains(u"column9 and 999990 more"_s),
             qPrintable(done.report().first()));
}

void TestPaste::findsNamesWithoutRegardToCase()
{
    QCOMPARE(paste(u"Name\tLabel\nage\tYears"_s).report(), QStringList());
    QCOMPARE(lines().at(1), u"AGE|P03|Years|"_s);
    QCOMPARE(lines().size(), 3);
}

void TestPaste::takesANewNameOnce()
{
    QCOMPARE(paste(u"Name\tLabel\nNEW\tfirst\nnew\tsecond"_s).report(), QStringList());
    QCOMPARE(lines().size(), 4);
    QCOMPARE(lines().last(), u"NEW||second|"_s);
    // A name that is refused once is refused again.
    const Paste done = paste(u"Name\tLabel\nA B\tfirst\nA B\tsecond"_s);
    QCOMPARE(done.report().size(), 2);
    QCOMPARE(lines().size(), 4);
}

void TestPaste::letsTheReferenceCodeFollow()
{
    person()->setRefCode(u"SEX"_s);
    person()->setSelectable(true);
    QCOMPARE(paste(u"GENDER"_s).report(), QStringList());
    QCOMPARE(person()->getRefCode(), u"GENDER"_s);
    QVERIFY(person()->getSelectable());
}

void TestPaste::namesWhatHasNoName()
{
    QCOMPARE(paste(u"Name\tLabel\n\tfirst\n\tsecond"_s).report(), QStringList());
    QCOMPARE(lines().mid(3), QStringList({u"VARIABLE||first|"_s, u"VARIABLE_2||second|"_s}));
}

void TestPaste::canBeStopped()
{
    const Paste done = paste(u"Name\tLabel\nA\t1\nB\t2\nC\t3\nAGE\t4"_s, 0, 0, [](int rows, int all) {
        Q_ASSERT(all == 4);
        return rows < 2;
    });
    QCOMPARE(done.report(), QStringList({u"Line 4: This line and those below. Pasting was stopped."_s}));
    QCOMPARE(m_bench->entity(u"PERSON"_s)->getVariables()->size(), 5);
    QCOMPARE(lines().mid(3), QStringList({u"A||1|"_s, u"B||2|"_s}));
    QCOMPARE(find(u"AGE"_s)->getLabel(), u"Age"_s);
}

void TestPaste::addsLabelsByCode()
{
    TDcVariable &sex = *find(u"SEX"_s);
    const auto paste = [&sex](const QString &text, int row = 0, int column = 0) {
        ValueLabelTarget target(&sex, *sex.getValueLabelElementList(), {0, 1});
        return Paste::into(target, TabText::parse(text), row, column).report();
    };
    const auto labels = [&sex] {
        QStringList lines;
        for (const ValueLabelElement *element : std::as_const(*sex.getValueLabelElementList()))
            lines.append(element->getValue() + u'=' + element->getLabel());
        return lines.join(u' ');
    };
    QCOMPARE(paste(u"1\tMan\n2\tWoman\n"_s), QStringList());
    QCOMPARE(labels(), u"1=Man 2=Woman"_s);
    QCOMPARE(paste(u"label\tCODE\nMale\t1\nOther\t3"_s), QStringList());
    QCOMPARE(labels(), u"1=Male 2=Woman 3=Other"_s);
    QCOMPARE(paste(u"Female\nNeither"_s, 1, 1), QStringList());
    QCOMPARE(labels(), u"1=Male 2=Female 3=Neither"_s);
}

void TestPaste::addsRangesOnce()
{
    TDcVariable &age = *find(u"AGE"_s);
    age.setVarType(u"INTEGER"_s);
    const auto paste = [&age](const QString &text) {
        RangeTarget target(
            &age, age.getMetadataVariables() ? *age.getMetadataVariables()->getRange() : QList<Range *>(),
            {0, 1});
        return Paste::into(target, TabText::parse(text), -1, -1).report();
    };
    QCOMPARE(paste(u"Minimum\tMaximum\n0\t120\n999\t999\n0\t120\n"_s), QStringList());
    QCOMPARE(age.getMetadataVariables()->getRange()->size(), 2);
    QCOMPARE(age.getMetadataVariables()->getRange()->at(1)->getRangeMin(), 999.0);
    QCOMPARE(paste(u"5\t6"_s), QStringList());
    QCOMPARE(age.getMetadataVariables()->getRange()->first()->getRangeMax(), 6.0);
}

void TestPaste::refusesBoundsThatAreNoNumbers()
{
    TDcVariable &age = *find(u"AGE"_s);
    age.setVarType(u"INTEGER"_s);
    RangeTarget target(&age, {}, {0, 1});
    const Paste done =
        Paste::into(target, TabText::parse(u"Minimum\tMaximum\n0\tlots\nnan\t1\n1.5\t2\n1\t2\n"_s), 0, 0);
    QCOMPARE(done.report(),
             QStringList({u"Line 2: Maximum \"lots\". This is no whole number."_s,
                          u"Line 3: Minimum \"nan\". This is no whole number."_s,
                          u"Line 4: Minimum \"1.5\". This is no whole number."_s}));
    QCOMPARE(age.getMetadataVariables()->getRange()->size(), 1);
}

void TestPaste::takesRefusedRowsBackInProportion()
{
    const auto refuse = [](int count) {
        const std::unique_ptr<TDcVariable> variable(makeVariable(u"V"_s));
        RangeTarget target(variable.get(), {}, {0, 1});
        const QString text = u"low\thigh\n"_s.repeated(count);
        const Paste done = Paste::into(target, TabText::parse(text), 0, 0);
        QCOMPARE(done.report().isEmpty(), false);
        QCOMPARE(variable->getMetadataVariables()->getRange()->size(), 0);
    };
    const double ratio = growth(refuse, 1'000, 8'000);
    QVERIFY2(ratio < 24, qPrintable(QString::number(ratio))); // 8 in proportion, 64 by the square.
}

void TestPaste::readsNumbersOfTheLanguage()
{
    TDcVariable &wage = *find(u"WAGE"_s);
    wage.setVarType(u"REAL"_s);
    QLocale::setDefault(QLocale(QLocale::German));
    RangeTarget target(&wage, {}, {0, 1});
    QCOMPARE(Paste::into(target, TabText::parse(u"1,5\t2.5\n1.000\t1000000,25"_s), 0, 0).report(),
             QStringList());
    const QList<Range *> &ranges = *wage.getMetadataVariables()->getRange();
    QCOMPARE(ranges.at(0)->getRangeMin(), 1.5);
    QCOMPARE(ranges.at(0)->getRangeMax(), 2.5);
    QCOMPARE(ranges.at(1)->getRangeMin(), 1000.0);
    QCOMPARE(ranges.at(1)->getRangeMax(), 1000000.25);
}

void TestPaste::saysWhenThereIsNothing()
{
    QCOMPARE(paste(QString()).error, u"There is no text on the clipboard."_s);
    QCOMPARE(paste(u"\"open"_s).error,
             u"The quotation mark that a cell of line 1 begins with is never closed."_s);
    QCOMPARE(lines().size(), 3);
}

QTEST_MAIN(TestPaste)
#include "tst_paste.moc"
