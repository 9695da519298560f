#include "model/ValueLabelElement.h"
#include "tests/support/Trees.h"
#include "workbench/operations/ExpressionCheck.h"
#include "workbench/operations/ExpressionText.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestExpressions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void writesNames_data();
    void writesNames();
    void writesCategoriesAsValues_data();
    void writesCategoriesAsValues();
    void keepsPiecesApart_data();
    void keepsPiecesApart();
    void findsNothingWrong_data();
    void findsNothingWrong();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void pointsAtTheFault();
    void reportsEveryFaultFromLeftToRight();
    void takesTheSecondOfTwoEntitiesWithOneName();

private:
    std::unique_ptr<TDcEntity> m_root;
};

void TestExpressions::init()
{
    m_root = makeEntities(u"CENSUS\n    PERSON\n    THE HOUSE\n    NOT");
    TDcEntity *person = findEntity(m_root.get(), u"PERSON");
    person->addVariables(makeVariable(u"AGE"_s));
    person->addVariables(makeVariable(u"MY VAR"_s));
}

void TestExpressions::writesNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("written");
    QTest::addRow("word") << u"P03_a"_s << u"P03_a"_s;
    QTest::addRow("letters of any alphabet") << u"AÑO"_s << u"AÑO"_s;
    QTest::addRow("blank") << u"MY VAR"_s << u"[MY VAR]"_s;
    QTest::addRow("digit first") << u"2ND"_s << u"[2ND]"_s;
    QTest::addRow("keyword") << u"And"_s << u"[And]"_s;
    QTest::addRow("nothing") << QString() << u"[]"_s;
}

void TestExpressions::writesNames()
{
    QFETCH(const QString, name);
    QFETCH(const QString, written);
    TDcEntity entity;
    entity.setName(name);
    QCOMPARE(ExpressionText::reference(entity), written);
    const std::unique_ptr<TDcVariable> variable(makeVariable(u"AGE"_s));
    QCOMPARE(ExpressionText::reference(entity, *variable), written + u".AGE"_s);
}

void TestExpressions::writesCategoriesAsValues_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("written");
    QTest::addRow("number") << u"INTEGER"_s << u"1"_s << u"1"_s;
    QTest::addRow("number with leading zeros") << u"integer"_s << u"007"_s << u"007"_s;
    QTest::addRow("number of a text") << u"STRING"_s << u"1"_s << u"\"1\""_s;
    QTest::addRow("as documents spell it") << u"string"_s << u"1"_s << u"\"1\""_s;
    QTest::addRow("text of a number") << u"INTEGER"_s << u"A"_s << u"\"A\""_s;
    QTest::addRow("no finite number") << u"REAL"_s << u"nan"_s << u"\"nan\""_s;
    QTest::addRow("quotation mark") << u"STRING"_s << u"6\""_s << u"\"6\"\"\""_s;
    QTest::addRow("no code") << u"INTEGER"_s << QString() << u"\"\""_s;
}

void TestExpressions::writesCategoriesAsValues()
{
    QFETCH(const QString, type);
    QFETCH(const QString, code);
    const std::unique_ptr<TDcVariable> variable(makeVariable(u"SEX"_s));
    variable->setVarType(type);
    ValueLabelElement category;
    category.setValue(code);
    category.setLabel(u"Male"_s);
    const QString written = ExpressionText::reference(*variable, category);
    QTEST(written, "written");
    QCOMPARE(ExpressionCheck::check(m_root.get(), u"PERSON.AGE = "_s + written).size(), 0);
}

void TestExpressions::keepsPiecesApart_data()
{
    QTest::addColumn<QString>("text"); // The piece goes where the bar stands.
    QTest::addColumn<QString>("piece");
    QTest::addColumn<QString>("result");
    QTest::addRow("empty") << u"|"_s << u"A"_s << u"A"_s;
    QTest::addRow("at the end") << u"A|"_s << u"="_s << u"A ="_s;
    QTest::addRow("after a blank") << u"A |"_s << u"="_s << u"A ="_s;
    QTest::addRow("in between") << u"A|B"_s << u"="_s << u"A = B"_s;
    QTest::addRow("inside parentheses") << u"(|)"_s << u"A"_s << u"(A)"_s;
    QTest::addRow("opening") << u"NOT|A"_s << u"("_s << u"NOT (A"_s;
    QTest::addRow("closing") << u"(A|AND"_s << u")"_s << u"(A) AND"_s;
}

void TestExpressions::keepsPiecesApart()
{
    QFETCH(QString, text);
    QFETCH(const QString, piece);
    const qsizetype position = text.indexOf(u'|');
    text.remove(position, 1);
    const QString spaced = ExpressionText::spaced(text, position, piece);
    QTEST(text.insert(position, spaced), "result");
}

void TestExpressions::findsNothingWrong_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"", "  \n ", "PERSON", "PERSON.AGE >= 15",
          "PERSON.AGE<>-1 and not (PERSON.AGE = 2 OR PERSON.AGE=3)", "PERSON.[MY VAR] = \"it is\"",
          "[THE HOUSE] = 'a ) AND ('", "[NOT] = 1", "- 1 + 2 * 3 / PERSON.AGE - 4.5 < 2",
          "PERSON.AGE = \"say \"\"no\"\"\"", "((1 = 1))"})
        QTest::addRow("%s", text) << QString::fromLatin1(text);
}

void TestExpressions::findsNothingWrong()
{
    QFETCH(const QString, text);
    const auto faults = ExpressionCheck::check(m_root.get(), text);
    QCOMPARE(faults.isEmpty() ? QString() : faults.first().message, QString());
}

void TestExpressions::saysWhatIsWrong_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::addRow("never closed") << u"(1 = 1"_s << u"This parenthesis is never closed."_s;
    QTest::addRow("never opened") << u"1 = 1)"_s << u"This parenthesis was never opened."_s;
    QTest::addRow("empty parentheses") << u"()"_s << u"A value or a variable is missing before “)”."_s;
    QTest::addRow("no left side") << u"= 1"_s << u"A value or a variable is missing before “=”."_s;
    QTest::addRow("two operators") << u"1 = AND"_s << u"A value or a variable is missing before “AND”."_s;
    QTest::addRow("ends too early") << u"1 ="_s << u"A value or a variable is missing at the end."_s;
    QTest::addRow("NOT alone") << u"NOT"_s << u"A value or a variable is missing at the end."_s;
    QTest::addRow("two values") << u"1 2"_s << u"An operator is missing before “2”."_s;
    QTest::addRow("NOT between") << u"1 NOT 2"_s << u"An operator is missing before “NOT”."_s;
    QTest::addRow("parentheses side by side") << u"(1)(2)"_s << u"An operator is missing before “(”."_s;
    QTest::addRow("unknown entity") << u"FARM.AGE"_s << u"There is no entity “FARM”."_s;
    QTest::addRow("unknown variable") << u"PERSON.X"_s << u"The entity “PERSON” has no variable “X”."_s;
    QTest::addRow("case matters") << u"PERSON.age"_s << u"The entity “PERSON” has no variable “age”."_s;
    QTest::addRow("variable alone") << u"AGE = 1"_s << u"A variable needs its entity: “PERSON.AGE”."_s;
    QTest::addRow("bracketed variable alone")
        << u"[MY VAR]"_s << u"A variable needs its entity: “PERSON.[MY VAR]”."_s;
    QTest::addRow("unknown name") << u"X"_s << u"There is neither an entity nor a variable “X”."_s;
    QTest::addRow("dot and nothing") << u"PERSON."_s
                                     << u"The name of a variable is missing after “PERSON.”."_s;
    QTest::addRow("open text") << u"1 = \"a"_s << u"“\"” has no end."_s;
    QTest::addRow("open bracket") << u"PERSON.[MY"_s << u"“P” has no end."_s;
    QTest::addRow("strange character") << u"1 = 1 ; 2"_s << u"“;” means nothing here."_s;
    QTest::addRow("beyond 16 bits") << u"😀"_s << u"“😀” means nothing here."_s;
}

void TestExpressions::saysWhatIsWrong()
{
    QFETCH(const QString, text);
    const auto faults = ExpressionCheck::check(m_root.get(), text);
    QVERIFY(!faults.isEmpty());
    QTEST(faults.first().message, "message");
}

void TestExpressions::pointsAtTheFault()
{
    const QString text = u"PERSON.AGE = 1 AND FARM.AGE = 2"_s;
    const auto faults = ExpressionCheck::check(m_root.get(), text);
    QCOMPARE(faults.size(), 1);
    QCOMPARE(text.mid(faults.first().start, faults.first().length), u"FARM.AGE"_s);
}

void TestExpressions::reportsEveryFaultFromLeftToRight()
{
    QStringList messages;
    const auto faults = ExpressionCheck::check(m_root.get(), u"(X = ; Y"_s);
    for (const auto &fault : faults)
        messages.append(fault.message);
    QCOMPARE(messages,
             QStringList({u"This parenthesis is never closed."_s,
                          u"There is neither an entity nor a variable “X”."_s, u"“;” means nothing here."_s,
                          u"There is neither an entity nor a variable “Y”."_s}));
}

void TestExpressions::takesTheSecondOfTwoEntitiesWithOneName()
{
    const auto root = makeEntities(u"CENSUS\n    PERSON\n    AREA\n        PERSON");
    root->getChildren()->last()->getChildren()->first()->addVariables(makeVariable(u"AGE"_s));
    QVERIFY(ExpressionCheck::check(root.get(), u"PERSON.AGE = 1"_s).isEmpty());
}

QTEST_MAIN(TestExpressions)
#include "tst_expressions.moc"
