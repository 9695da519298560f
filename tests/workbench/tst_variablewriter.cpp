#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "tests/documents/RandomDictionary.h"
#include "tests/support/Growth.h"
#include "tests/support/Trees.h"
#include "workbench/operations/Places.h"
#include "workbench/operations/VariableWriter.h"

#include <QTest>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace
{
const QList<QString> words{
    u"AGE"_s, u"age"_s,    u" Age "_s,  u"AGE\t"_s,  u"SEX"_s,     u"A.*"_s, u"A(G"_s,  u"[AS].*"_s,
    u"A B"_s, u"9"_s,      u"_x"_s,     u"straße"_s, u"STRASSE"_s, u"ı"_s,   u"I"_s,    u"ſ"_s,
    u"S"_s,   u"PERSON"_s, u"person"_s, u"HOUSE"_s,  u""_s,        u" "_s,   u"P03"_s,  u"Год"_s,
    u"ГОД"_s, u"N1"_s,     u"N2"_s,     u"N3"_s,     u"ß"_s,       u"ẞ"_s,   u"日本"_s, u"a^b"_s};

/// A household with persons whose names are \a random words, some twice.
std::unique_ptr<TDcEntity> makeDictionary(RandomDictionary &random)
{
    std::unique_ptr<TDcEntity> root = makeEntities(u"CENSUS\n"
                                                   "    HOUSE\n"
                                                   "        PERSON\n"
                                                   "        AGE\n");
    TDcEntity *person = findEntity(root.get(), u"PERSON");
    for (int i = random.upTo(5); i >= 0; --i) {
        person->addVariables(makeVariable(random.oneOf(words),
                                          random.chance(40) ? random.oneOf(words) : QString(), {},
                                          random.chance(40) ? random.oneOf(words) : QString()));
    }
    person->setRefCode(random.oneOf(words));
    person->setSelectable(random.chance(50));
    return root;
}

/// What the model says of each edit when it is asked about all of them.
class ModelWriter
{
public:
    ModelWriter(TDcEntity *root, TDcEntity *entity) : m_entity(entity), m_model(nullptr, entity, root) { }

    [[nodiscard]] QString write(int row, const VariableProperty &property, const QString &text)
    {
        TDcVariable &variable = *m_entity->getVariables()->at(row);
        if (property.get(variable) == text)
            return {};
        const bool nameless = property.column == 0 && variable.getName().trimmed().isEmpty();
        const QString code = m_entity->getRefCode();
        const bool stored = m_model.setData(m_model.index(row, property.column), text, Qt::EditRole);
        if (nameless)
            m_entity->setRefCode(code);
        const QStringList said = m_messages.take();
        if (stored)
            return {};
        if (!said.isEmpty())
            return said.join(u' ');
        return text.trimmed().isEmpty() ? u"A variable needs a name."_s : QString();
    }

private:
    TDcEntity *m_entity;
    VariableDiccionaryModel m_model;
    CollectedMessages m_messages;
};
} // namespace

class TestVariableWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersAsTheModelDoes();
    void makesNoReferenceCodeOfAVariableWithoutAName_data();
    void makesNoReferenceCodeOfAVariableWithoutAName();
    void asksTheModelWhereAnAnswerIsNotCertain_data();
    void asksTheModelWhereAnAnswerIsNotCertain();
    void asksAgainAboutAGroupThatMayHaveGotFree();
    void saysWhatWasStoredOtherwise();
    void clearsManyAliasesInProportion();
    void asksOnceAboutAGroupThatIsRefused();
};

void TestVariableWriter::answersAsTheModelDoes()
{
    struct Step {
        int row;
        int property;
        QString text;
        QString why;
        std::unique_ptr<TDcEntity> result;
    };
    const QList<VariableProperty> &properties = VariableProperties::all();
    int refused = 0;
    int written = 0;
    for (quint32 seed = 0; seed < 150; ++seed) {
        RandomDictionary random(seed);
        const std::unique_ptr<TDcEntity> root = makeDictionary(random);
        const std::unique_ptr<TDcEntity> asked = DictionaryCopy::copy(*root);
        std::vector<Step> steps(12);
        {
            TDcEntity *entity = findEntity(root.get(), u"PERSON");
            VariableWriter writer(root.get(), entity);
            for (Step &step : steps) {
                step.row = random.upTo(int(entity->getVariables()->size()) - 1);
                step.property = random.upTo(3);
                step.text = random.oneOf(words);
                step.why = writer.write(entity->getVariables()->at(step.row), properties.at(step.property),
                                        step.text);
                step.result = DictionaryCopy::copy(*root);
                ++(step.why.isEmpty() ? written : refused);
            }
        }
        // One after the other: whoever came last would hear the boxes of both.
        ModelWriter model(asked.get(), findEntity(asked.get(), u"PERSON"));
        for (const Step &step : steps) {
            const QString why = model.write(step.row, properties.at(step.property), step.text);
            const QString place = u"seed %1: property %2 of row %3 is to be “%4”: "_s.arg(seed)
                                      .arg(step.property)
                                      .arg(step.row)
                                      .arg(step.text);
            QVERIFY2(why == step.why, qPrintable(place + why + u" / "_s + step.why));
            QVERIFY2(DictionaryEquality::equal(*step.result, *asked), qPrintable(place));
        }
    }
    // Both happen often enough to mean something.
    QVERIFY2(refused > 200 && written > 200, qPrintable(u"%1, %2"_s.arg(refused).arg(written)));
}

void TestVariableWriter::makesNoReferenceCodeOfAVariableWithoutAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addRow("certain") << u"NEW"_s;
    QTest::addRow("asked, for another variable has it") << u"SEX"_s;
}

void TestVariableWriter::makesNoReferenceCodeOfAVariableWithoutAName()
{
    QFETCH(const QString, name);
    const std::unique_ptr<TDcEntity> root = makeEntities(u"CENSUS\n");
    root->addVariables(makeVariable(u"SEX"_s));
    root->addVariables(makeVariable(QString()));
    VariableWriter writer(root.get(), root.get());
    TDcVariable *added = root->getVariables()->last();
    QCOMPARE(writer.writeText(added, VariableProperties::all().first(), name), QString());
    QCOMPARE(added->getName(), name);
    QCOMPARE(root->getRefCode(), QString());
}

void TestVariableWriter::asksTheModelWhereAnAnswerIsNotCertain_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<QString>("text");
    QTest::addRow("name of an entity") << 0 << u"census"_s;
    QTest::addRow("name with a blank") << 0 << u"A B"_s;
    QTest::addRow("no name") << 0 << u" "_s;
    QTest::addRow("name given before") << 0 << u"first"_s;
    QTest::addRow("alias that is a name given before") << 1 << u"First"_s;
    QTest::addRow("group that is an alias given before") << 3 << u"second"_s;
}

void TestVariableWriter::asksTheModelWhereAnAnswerIsNotCertain()
{
    QFETCH(const int, property);
    QFETCH(const QString, text);
    const QList<VariableProperty> &properties = VariableProperties::all();
    const std::unique_ptr<TDcEntity> root = makeEntities(u"CENSUS\n");
    root->addVariables(makeVariable(u"SEX"_s));
    root->addVariables(makeVariable(u"AGE"_s));
    VariableWriter writer(root.get(), root.get());
    TDcVariable *sex = root->getVariables()->first();
    QCOMPARE(writer.writeText(sex, properties.at(0), u"FIRST"_s), QString());
    QCOMPARE(writer.writeText(sex, properties.at(1), u"SECOND"_s), QString());
    QVERIFY(!writer.writeText(root->getVariables()->last(), properties.at(property), text).isEmpty());
}

void TestVariableWriter::asksAgainAboutAGroupThatMayHaveGotFree()
{
    const QList<VariableProperty> &properties = VariableProperties::all();
    const std::unique_ptr<TDcEntity> root = makeEntities(u"CENSUS\n");
    root->addVariables(makeVariable(u"SEX"_s, u"P1"_s));
    root->addVariables(makeVariable(u"AGE"_s));
    VariableWriter writer(root.get(), root.get());
    TDcVariable *sex = root->getVariables()->first();
    TDcVariable *age = root->getVariables()->last();
    const QString refused = writer.write(age, properties.at(3), u"P1"_s);
    QVERIFY(!refused.isEmpty());
    QCOMPARE(writer.write(sex, properties.at(3), u"P1"_s), refused);
    QCOMPARE(writer.write(sex, properties.at(1), u"P2"_s), QString());
    QCOMPARE(writer.write(age, properties.at(3), u"P1"_s), QString());
}

void TestVariableWriter::saysWhatWasStoredOtherwise()
{
    const QList<VariableProperty> &properties = VariableProperties::all();
    const auto start =
        std::find_if(properties.cbegin(), properties.cend(), [](const VariableProperty &property) {
            return QLatin1StringView(property.name) == "Start"_L1;
        });
    QVERIFY(start != properties.cend());
    const std::unique_ptr<TDcEntity> root = makeEntities(u"CENSUS\n");
    root->addVariables(makeVariable(u"SEX"_s));
    VariableWriter writer(root.get(), root.get());
    TDcVariable *sex = root->getVariables()->first();
    QCOMPARE(writer.writeText(sex, *start, u"7"_s), QString());
    QCOMPARE(writer.writeText(sex, *start, u"0"_s), u"It was stored as \"1\"."_s);
    QCOMPARE(start->get(*sex).toInt(), 1);
}

void TestVariableWriter::clearsManyAliasesInProportion()
{
    const auto clear = [](int count) {
        const std::unique_ptr<TDcEntity> root = makeEntities(u"CENSUS\n");
        for (int i = 0; i < count; ++i)
            root->addVariables(makeVariable(u"V%1"_s.arg(i), u"A%1"_s.arg(i)));
        VariableWriter writer(root.get(), root.get());
        for (TDcVariable *variable : std::as_const(*root->getVariables()))
            (void)writer.write(variable, VariableProperties::all().at(1), QString());
    };
    const double ratio = growth(clear, 500, 4'000);
    QVERIFY2(ratio < 24, qPrintable(QString::number(ratio))); // 8 in proportion, 64 by the square.
}

void TestVariableWriter::asksOnceAboutAGroupThatIsRefused()
{
    const std::unique_ptr<TDcEntity> root = makeEntities(u"CENSUS\n");
    for (int i = 0; i < 2'000; ++i)
        root->addVariables(makeVariable(u"V%1"_s.arg(i)));
    const auto write = [&root](int count) {
        VariableWriter writer(root.get(), root.get());
        for (int i = 0; i < count; ++i)
            (void)writer.write(root->getVariables()->at(i), VariableProperties::all().at(3), u"CENSUS"_s);
    };
    const double ratio = growth(write, 20, 1'000);
    QVERIFY2(ratio < 10, qPrintable(QString::number(ratio))); // 50 if it asked each time.
}

QTEST_MAIN(TestVariableWriter)
#include "tst_variablewriter.moc"
