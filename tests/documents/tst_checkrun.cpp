#include "documents/checks/CheckRun.h"
#include "documents/checks/DictionaryCheck.h"
#include "tests/support/Trees.h"

#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

class TestCheckRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsInBitsWhatIsFoundAtOnce();
    void goesOnByOneVariableAtLeast();
    void tellsWhichPartIsDone();
    void nothingIsWrongWithNothing();
};

namespace
{
/// Three entities, each with variables that have no label and share a name.
std::unique_ptr<TDcEntity> faulty()
{
    auto root = makeEntities(u"CENSUS\n    PERSON\n    DEATH");
    for (TDcEntity *entity : {root.get(), root->getChildren()->first(), root->getChildren()->last()}) {
        for (int i = 0; i < 5; ++i)
            entity->addVariables(makeVariable(u"SAME"_s));
    }
    return root;
}

QStringList lines(const QList<Finding> &findings)
{
    QStringList lines;
    std::transform(findings.cbegin(), findings.cend(), std::back_inserter(lines), [](const Finding &finding) {
        return finding.rule + u' ' + finding.place + u' ' + finding.message;
    });
    return lines;
}
} // namespace

void TestCheckRun::findsInBitsWhatIsFoundAtOnce()
{
    const auto root = faulty();
    CheckRun run(root.get());
    int bits = 1;
    for (; !run.advance(QDeadlineTimer(0)); ++bits)
        QVERIFY(bits < 1000);
    QVERIFY(bits > 15);
    QVERIFY(run.findings().size() > 15);
    QCOMPARE(lines(run.findings()), lines(DictionaryCheck::check(root.get())));
}

void TestCheckRun::goesOnByOneVariableAtLeast()
{
    const auto root = faulty();
    CheckRun run(root.get());
    while (!run.advance(QDeadlineTimer(0))) { }
    QVERIFY(run.advance(QDeadlineTimer(0)));
}

void TestCheckRun::tellsWhichPartIsDone()
{
    const auto root = faulty();
    CheckRun run(root.get());
    double before = run.part();
    QCOMPARE(before, 0.0);
    while (!run.advance(QDeadlineTimer(0))) {
        QVERIFY(run.part() >= before);
        before = run.part();
    }
    QCOMPARE(run.part(), 1.0);
}

void TestCheckRun::nothingIsWrongWithNothing()
{
    CheckRun run(nullptr);
    QVERIFY(run.advance());
    QVERIFY(run.findings().isEmpty());
    QCOMPARE(run.part(), 1.0);
}

QTEST_GUILESS_MAIN(TestCheckRun)
#include "tst_checkrun.moc"
