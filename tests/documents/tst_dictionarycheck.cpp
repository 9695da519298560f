#include "documents/checks/DictionaryCheck.h"
#include "documents/DictionaryFile.h"
#include "SampleDictionary.h"

#include <QTest>

#include <functional>

using namespace Qt::Literals::StringLiterals;
using namespace SampleDictionary;

namespace
{
/// The sample, its parts at hand for breaking them.
struct Sample {
    std::unique_ptr<TDcEntity> house = make();
    TDcEntity *person = house->getChildren()->first();
    TDcVariable *houseId = house->getVariables()->at(0);
    TDcVariable *weight = house->getVariables()->at(1);
    TDcVariable *persId = person->getVariables()->at(0);
    TDcVariable *sex = person->getVariables()->at(1);
    TDcVariable *income = person->getVariables()->at(2);
    TDcVariable *name = person->getVariables()->at(3);

    [[nodiscard]] static Range *range(TDcVariable *variable, int i = 0)
    {
        return variable->getMetadataVariables()->getRange()->at(i);
    }
    [[nodiscard]] ValueLabelElement *label(int i) const { return sex->getValueLabelElementList()->at(i); }
    /// A child of the house that needs nothing more.
    TDcEntity *addEntity(const QString &entityName) const
    {
        auto *entity = new TDcEntity;
        entity->setName(entityName);
        entity->setLabel(u"More"_s);
        entity->setLevel(2);
        house->getChildren()->append(entity);
        addVariable(*entity, u"ANY"_s, u"Any"_s, u"STRING"_s, 1, 1);
        return entity;
    }
};

using Breakage = void (*)(Sample &sample);

struct Case {
    const char *rule;
    const char *title;
    const char *place;
    Breakage breakIt;
};

const Case cases[] = {
    {"entity-name-duplicate", "letter case does not count", "HOUSE/person",
     [](Sample &s) { s.addEntity(u"person"_s); }},
    {"entity-alias-duplicate", "", "HOUSE/PERSON", [](Sample &s) { s.person->setAlias(u"HH "_s); }},
    {"entity-alias-is-name", "", "HOUSE", [](Sample &s) { s.house->setAlias(u"Person"_s); }},
    {"entity-name-is-group", "", "HOUSE", [](Sample &s) { s.income->setGroup(u"House"_s); }},
    {"type-spelling-mixed", "", "HOUSE", [](Sample &s) { s.name->setVarType(u"string"_s); }},
    {"group-near-duplicate", "told once", "HOUSE",
     [](Sample &s) {
         s.income->setGroup(u"demography"_s);
         s.name->setGroup(u"demography"_s);
     }},
    {"entity-name-missing", "", "HOUSE/ ", [](Sample &s) { s.person->setName(u" "_s); }},
    {"entity-name-invalid", "character", "HOUSE/PER SON", [](Sample &s) { s.person->setName(u"PER SON"_s); }},
    {"entity-name-invalid", "start", "HOUSE/1PERSON", [](Sample &s) { s.person->setName(u"1PERSON"_s); }},
    {"entity-name-long", "", nullptr, [](Sample &s) { s.person->setName(QString(51, u'P')); }},
    {"entity-name-blanks", "", "HOUSE/PERSON ", [](Sample &s) { s.person->setName(u"PERSON "_s); }},
    {"entity-label-missing", "", "HOUSE/PERSON", [](Sample &s) { s.person->setLabel(u" "_s); }},
    {"entity-empty", "", "HOUSE/MORE", [](Sample &s) { s.addEntity(u"MORE"_s)->setVariables(nullptr); }},
    {"entity-level", "child", "HOUSE/PERSON", [](Sample &s) { s.person->setLevel(3); }},
    {"entity-level", "root", "HOUSE",
     [](Sample &s) {
         s.house->setLevel(0);
         s.person->setLevel(1);
     }},
    {"reference-code-unknown", "", "HOUSE/PERSON", [](Sample &s) { s.person->setRefCode(u"PERSID"_s); }},
    {"reference-code-unknown", "letter case counts", "HOUSE/PERSON",
     [](Sample &s) { s.person->setRefCode(u"pers_id"_s); }},
    {"reference-label-unknown", "", "HOUSE/PERSON", [](Sample &s) { s.person->setRefLabel(u"HOUSE_ID"_s); }},
    {"weight-unknown", "", "HOUSE", [](Sample &s) { s.house->setWeightVariable(u"W"_s); }},
    {"weight-text", "", "HOUSE/HOUSE_ID", [](Sample &s) { s.house->setWeightVariable(u"HOUSE_ID"_s); }},
    {"selectable-without-code", "", "HOUSE/PERSON", [](Sample &s) { s.person->setRefCode(u" "_s); }},
    {"selectable-below-unselectable", "", "HOUSE/PERSON", [](Sample &s) { s.house->setSelectable(false); }},
    {"variable-name-duplicate", "letter case and blanks do not count", "HOUSE/PERSON/income",
     [](Sample &s) { s.name->setName(u"income"_s); }},
    {"variable-name-near-duplicate", "", "HOUSE/PERSON/PERS1D",
     [](Sample &s) { s.name->setName(u"PERS1D"_s); }},
    {"variable-alias-duplicate", "", "HOUSE/PERSON/NAME", [](Sample &s) { s.name->setAlias(u"Gender"_s); }},
    {"variable-alias-is-name", "", "HOUSE/PERSON/NAME", [](Sample &s) { s.name->setAlias(u"income"_s); }},
    {"variable-name-is-entity", "of another entity", "HOUSE/PERSON/house",
     [](Sample &s) { s.name->setName(u"house"_s); }},
    {"group-is-variable", "told once", "HOUSE/PERSON/INCOME",
     [](Sample &s) {
         s.income->setGroup(u"Sex"_s);
         s.name->setGroup(u"Sex"_s);
     }},
    {"group-is-variable", "alias", "HOUSE/PERSON/NAME", [](Sample &s) { s.name->setGroup(u"GENDER"_s); }},
    {"tag-duplicate", "", "HOUSE/PERSON/NAME", [](Sample &s) { s.name->setTag(2); }},
    {"layout-overlap", "with the next", "HOUSE/PERSON/INCOME", [](Sample &s) { s.sex->setFieldSize(2); }},
    {"layout-overlap", "by the variable's position", "HOUSE/PERSON/NAME",
     [](Sample &s) {
         s.name->getMetadataVariables()->setStart(0);
         s.name->setFieldRelativePosition(9);
     }},
    {"variable-name-missing", "", "HOUSE/PERSON/", [](Sample &s) { s.name->setName({}); }},
    {"variable-name-invalid", "", "HOUSE/PERSON/NA-ME", [](Sample &s) { s.name->setName(u"NA-ME"_s); }},
    {"variable-name-digit", "", "HOUSE/PERSON/1NAME", [](Sample &s) { s.name->setName(u"1NAME"_s); }},
    {"variable-name-blanks", "", "HOUSE/PERSON/ NAME", [](Sample &s) { s.name->setName(u" NAME"_s); }},
    {"variable-label-missing", "", "HOUSE/PERSON/NAME", [](Sample &s) { s.name->setLabel({}); }},
    {"type-missing", "", "HOUSE/PERSON/NAME", [](Sample &s) { s.name->setVarType({}); }},
    {"type-unknown", "", "HOUSE/PERSON/NAME", [](Sample &s) { s.name->setVarType(u"TEXT"_s); }},
    {"type-unknown", "letter case counts", "HOUSE/PERSON/NAME",
     [](Sample &s) { s.name->setVarType(u"String"_s); }},
    {"size-missing", "", "HOUSE/PERSON/NAME", [](Sample &s) { s.name->setSize(0); }},
    {"decimals-without-real", "", "HOUSE/PERSON/INCOME", [](Sample &s) { s.income->setDecimals(2); }},
    {"decimals-do-not-fit", "too many", "HOUSE/WGT", [](Sample &s) { s.weight->setDecimals(9); }},
    {"decimals-do-not-fit", "negative", "HOUSE/WGT", [](Sample &s) { s.weight->setDecimals(-1); }},
    {"tag-out-of-bounds", "above", "HOUSE/PERSON/NAME", [](Sample &s) { s.name->setTag(10000); }},
    {"tag-out-of-bounds", "below", "HOUSE/PERSON/NAME", [](Sample &s) { s.name->setTag(-1); }},
    {"lookup-not-selectable", "", "HOUSE/PERSON/NAME",
     [](Sample &s) {
         s.person->setSelectable(false);
         s.name->getMetadataVariables()->setLookup(true);
     }},
    {"layout-without-length", "", "HOUSE/PERSON/NAME", [](Sample &s) { s.name->setFieldSize(0); }},
    {"range-reversed", "", "HOUSE/PERSON/INCOME",
     [](Sample &s) {
         Sample::range(s.income, 1)->setRangeMin(900000);
         Sample::range(s.income, 1)->setRangeMax(10001);
     }},
    {"range-overlap", "a shared bound", "HOUSE/PERSON/INCOME",
     [](Sample &s) { Sample::range(s.income, 1)->setRangeMin(10000); }},
    {"range-overlap", "inside an earlier one", "HOUSE/PERSON/INCOME",
     [](Sample &s) { addRange(*s.income, 20000, 30000); }},
    {"range-of-text", "", "HOUSE/PERSON/NAME", [](Sample &s) { addRange(*s.name, 1, 2); }},
    {"range-fraction", "", "HOUSE/PERSON/INCOME",
     [](Sample &s) { Sample::range(s.income)->setRangeMax(9.5); }},
    {"range-too-wide", "", "HOUSE/PERSON/INCOME",
     [](Sample &s) {
         Sample::range(s.income, 1)->setRangeMin(1000000), Sample::range(s.income, 1)->setRangeMax(2e6);
     }},
    {"missing-in-range", "", "HOUSE/PERSON/INCOME", [](Sample &s) { s.income->setMissing(500); }},
    {"not-applicable-in-range", "", "HOUSE/PERSON/INCOME", [](Sample &s) { s.income->setNotappl(0); }},
    {"missing-not-chosen", "", "HOUSE/PERSON/INCOME",
     [](Sample &s) {
         s.income->setMissing(0);
         s.income->setNotappl(0);
     }},
    {"missing-is-not-applicable", "", "HOUSE/PERSON/INCOME", [](Sample &s) { s.income->setNotappl(999999); }},
    {"label-outside-ranges", "", "HOUSE/PERSON/SEX", [](Sample &s) { s.label(1)->setValue(u"3"_s); }},
    {"code-duplicate", "numbers", "HOUSE/PERSON/SEX",
     [](Sample &s) {
         s.sex->setFieldSize(0);
         s.sex->getMetadataVariables()->setStart(0);
         s.label(1)->setValue(u" 01"_s);
     }},
    {"code-duplicate", "texts", "HOUSE/PERSON/NAME",
     [](Sample &s) {
         addLabel(*s.name, u"A"_s, u"Ana"_s);
         addLabel(*s.name, u"A"_s, u"Eva"_s);
     }},
    {"code-not-numeric", "text", "HOUSE/PERSON/SEX", [](Sample &s) { s.label(1)->setValue(u"F"_s); }},
    {"code-not-numeric", "fraction", "HOUSE/PERSON/INCOME",
     [](Sample &s) { addLabel(*s.income, u"0.5"_s, u"Half"_s); }},
    {"code-missing", "", "HOUSE/PERSON/SEX", [](Sample &s) { s.label(1)->setValue({}); }},
    {"code-too-wide", "", "HOUSE/PERSON/SEX", [](Sample &s) { s.label(1)->setValue(u"02"_s); }},
    {"label-missing", "", "HOUSE/PERSON/SEX", [](Sample &s) { s.label(1)->setLabel({}); }},
    {"label-duplicate", "", "HOUSE/PERSON/SEX", [](Sample &s) { s.label(1)->setLabel(u"male"_s); }},
};

QString lines(const QList<Finding> &findings)
{
    QStringList lines;
    for (const Finding &finding : findings)
        lines.append(finding.rule + u" at "_s + finding.place + u": "_s + finding.message);
    return lines.join(u'\n');
}
} // namespace

class tst_DictionaryCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsWrongWithTheSample();
    void nothingIsWrongWithTheSampleFiles_data();
    void nothingIsWrongWithTheSampleFiles();
    void findsEachBreakageOnce_data();
    void findsEachBreakageOnce();
    void everyRuleHasABreakage();
    void ruleIdsAndTitlesAreAllDifferent();
    void bothSpellingsOfTypesAreChecked();
    void findingsLeadToTheirObjects();
    void twoZeroCodesOutsideTheRangesAreNoProblem();
    void aRangeLeftInALookupHasNoMeaning();
    void labelledMissingCodesMayLieOutside();
    void fieldsOfDifferentRecordsDoNotOverlap();
    void namesOfDifferentEntitiesMayRepeat();
    void suggestsTheKnownSpelling();
    void saysInWordsThatNothingWasFound();
    void countsBySeverity();
    void nullsAreNoTrouble();
    void aDeepChainIsNoTrouble();
};

void tst_DictionaryCheck::nothingIsWrongWithTheSample()
{
    const Sample sample;
    QCOMPARE(lines(DictionaryCheck::check(sample.house.get())), QString());
}

void tst_DictionaryCheck::nothingIsWrongWithTheSampleFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addRow("household") << u"household.mvdb"_s;
    QTest::addRow("farms") << u"farms.mvdb"_s;
}

void tst_DictionaryCheck::nothingIsWrongWithTheSampleFiles()
{
    QFETCH(QString, file);
    DictionaryFile document; // The layer alone would leave out records, positions and documentation.
    QVERIFY2(document.open(QString::fromUtf8(QUILLON_SOURCE_DIR "/samples/") + file),
             qPrintable(document.errorText()));
    QVERIFY(!document.root()->getVariables()->isEmpty());
    const QString found = lines(DictionaryCheck::check(document.root()));
    QVERIFY2(found.isEmpty(), qPrintable(found));
}

void tst_DictionaryCheck::findsEachBreakageOnce_data()
{
    QTest::addColumn<int>("number");
    int number = 0;
    for (const Case &breakage : cases)
        QTest::addRow("%s %s", breakage.rule, breakage.title) << number++;
}

void tst_DictionaryCheck::findsEachBreakageOnce()
{
    QFETCH(int, number);
    const Case &breakage = cases[number];
    Sample sample;
    breakage.breakIt(sample);
    const QList<Finding> findings = DictionaryCheck::check(sample.house.get());
    QVERIFY2(findings.size() == 1, qPrintable(lines(findings)));
    const Finding &finding = findings.first();
    QCOMPARE(finding.rule, QLatin1StringView(breakage.rule));
    if (breakage.place)
        QCOMPARE(finding.place, QString::fromLatin1(breakage.place));
    QVERIFY(!finding.message.isEmpty() && !finding.message.contains(u'%'));
    QVERIFY(!finding.suggestion.isEmpty() && !finding.suggestion.contains(u'%'));
}

void tst_DictionaryCheck::everyRuleHasABreakage()
{
    QSet<QLatin1StringView> broken;
    for (const Case &breakage : cases)
        broken.insert(QLatin1StringView(breakage.rule));
    const QList<CheckRule> rules = DictionaryCheck::rules();
    for (const CheckRule &rule : rules)
        QVERIFY2(broken.contains(rule.id), rule.id.data());
    QCOMPARE(broken.size(), rules.size());
}

void tst_DictionaryCheck::ruleIdsAndTitlesAreAllDifferent()
{
    QSet<QString> ids;
    QSet<QString> titles;
    const QList<CheckRule> rules = DictionaryCheck::rules();
    for (const CheckRule &rule : rules) {
        ids.insert(rule.id);
        titles.insert(rule.title);
    }
    QCOMPARE(ids.size(), rules.size());
    QCOMPARE(titles.size(), rules.size());
}

void tst_DictionaryCheck::bothSpellingsOfTypesAreChecked()
{
    Sample sample;
    for (TDcVariable *variable :
         {sample.houseId, sample.weight, sample.persId, sample.sex, sample.income, sample.name})
        variable->setVarType(variable->getVarType().toLower());
    QCOMPARE(lines(DictionaryCheck::check(sample.house.get())), QString());
    sample.label(0)->setValue(u"F"_s);
    sample.name->setSize(0);
    const QList<Finding> findings = DictionaryCheck::check(sample.house.get());
    QCOMPARE(findings.size(), 2);
    QCOMPARE(findings.at(0).rule, "code-not-numeric"_L1);
    QCOMPARE(findings.at(1).rule, "size-missing"_L1);
}

void tst_DictionaryCheck::findingsLeadToTheirObjects()
{
    Sample sample;
    sample.label(1)->setValue(u"F"_s);
    Sample::range(sample.income)->setRangeMax(9.5);
    sample.person->setLabel({});
    const QList<Finding> findings = DictionaryCheck::check(sample.house.get());
    QVERIFY2(findings.size() == 3, qPrintable(lines(findings)));
    QCOMPARE(findings.at(0).entity, sample.person);
    QCOMPARE(findings.at(0).variable, nullptr);
    QCOMPARE(findings.at(0).severity, Severity::Note);
    QCOMPARE(findings.at(1).entity, sample.person);
    QCOMPARE(findings.at(1).variable, sample.sex);
    QCOMPARE(findings.at(1).valueLabel, sample.label(1));
    QCOMPARE(findings.at(1).range, nullptr);
    QCOMPARE(findings.at(1).severity, Severity::Error);
    QCOMPARE(findings.at(2).variable, sample.income);
    QCOMPARE(findings.at(2).range, Sample::range(sample.income));
    QCOMPARE(findings.at(2).severity, Severity::Warning);
}

void tst_DictionaryCheck::twoZeroCodesOutsideTheRangesAreNoProblem()
{
    const Sample sample;
    sample.income->setMissing(0);
    sample.income->setNotappl(0);
    Sample::range(sample.income)->setRangeMin(1);
    QCOMPARE(lines(DictionaryCheck::check(sample.house.get())), QString());
}

void tst_DictionaryCheck::aRangeLeftInALookupHasNoMeaning()
{
    const Sample sample;
    addRange(*sample.name, 0, 0);
    sample.name->getMetadataVariables()->setLookup(true);
    QCOMPARE(lines(DictionaryCheck::check(sample.house.get())), QString());
}

void tst_DictionaryCheck::labelledMissingCodesMayLieOutside()
{
    const Sample sample;
    addLabel(*sample.income, u"999999"_s, u"No answer"_s);
    addLabel(*sample.income, u"999998"_s, u"Not asked"_s);
    QCOMPARE(lines(DictionaryCheck::check(sample.house.get())), QString());
}

void tst_DictionaryCheck::fieldsOfDifferentRecordsDoNotOverlap()
{
    const Sample sample;
    sample.sex->setFieldSize(3);
    sample.sex->getMetadataVariables()->setRecord(u"OTHER"_s);
    QCOMPARE(lines(DictionaryCheck::check(sample.house.get())), QString());
}

void tst_DictionaryCheck::namesOfDifferentEntitiesMayRepeat()
{
    const Sample sample;
    sample.name->setName(u"WGT"_s);
    QCOMPARE(lines(DictionaryCheck::check(sample.house.get())), QString());
}

void tst_DictionaryCheck::suggestsTheKnownSpelling()
{
    const Sample sample;
    sample.name->setVarType(u" String"_s);
    sample.person->setRefCode(u"pers_id"_s);
    const QList<Finding> findings = DictionaryCheck::check(sample.house.get());
    QCOMPARE(findings.size(), 2);
    QCOMPARE(findings.at(0).suggestion, u"Perhaps \"PERS_ID\" is meant."_s);
    QCOMPARE(findings.at(1).suggestion, u"Write it \"STRING\": types are compared letter by letter."_s);
}

void tst_DictionaryCheck::saysInWordsThatNothingWasFound()
{
    QCOMPARE(DictionaryCheck::summary({}), u"No problems found."_s);
}

void tst_DictionaryCheck::countsBySeverity()
{
    Finding error;
    error.severity = Severity::Error;
    Finding warning;
    warning.severity = Severity::Warning;
    QCOMPARE(DictionaryCheck::summary({error, Finding(), error, warning}),
             u"Errors: 2, warnings: 1, notes: 1."_s);
    QLocale::setDefault(QLocale(QLocale::English));
    QCOMPARE(DictionaryCheck::summary(QList<Finding>(40'002, error)),
             u"Errors: 40,002, warnings: 0, notes: 0."_s);
    QLocale::setDefault(QLocale::c());
    QCOMPARE(DictionaryCheck::severityName(Severity::Error), u"Error"_s);
    QCOMPARE(DictionaryCheck::severityName(Severity::Warning), u"Warning"_s);
    QCOMPARE(DictionaryCheck::severityName(Severity::Note), u"Note"_s);
}

void tst_DictionaryCheck::nullsAreNoTrouble()
{
    QVERIFY(DictionaryCheck::check(nullptr).isEmpty());
    const Sample sample;
    sample.house->getChildren()->append(nullptr);
    sample.house->getVariables()->prepend(nullptr);
    sample.sex->getValueLabelElementList()->append(nullptr);
    sample.sex->getMetadataVariables()->addItemRange(nullptr);
    sample.name->setMetadataVariables(nullptr);
    QCOMPARE(lines(DictionaryCheck::check(sample.house.get())), QString());
}

void tst_DictionaryCheck::aDeepChainIsNoTrouble()
{
    const auto root = std::make_unique<TDcEntity>();
    TDcEntity *last = root.get();
    for (int level = 2; level <= 2000; ++level) {
        auto *child = new TDcEntity;
        child->setLevel(level);
        last->getChildren()->append(child);
        last = child;
    }
    // Each lacks a name and a label; the last holds nothing besides.
    QCOMPARE(DictionaryCheck::check(root.get()).size(), 2 * 2000 + 1);
}

QTEST_GUILESS_MAIN(tst_DictionaryCheck)
#include "tst_dictionarycheck.moc"
