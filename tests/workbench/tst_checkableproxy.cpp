#include "models/VariableModel.h"
#include "models/VariableModelSplitStep3.h"
#include "tests/support/Trees.h"
#include "workbench/proxies/CheckableProxy.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestCheckableProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersABoxWhereTheModelDoesNot();
    void offersNoneWhereNoneIsShown();
    void passesTheSwitchOn();
    void alignsNumbersToTheRight();
};

void TestCheckableProxy::offersABoxWhereTheModelDoesNot()
{
    TDcEntity entity;
    entity.addVariables(makeVariable(u"AGE"_s));
    VariableModelSplitStep3 model(nullptr, &entity, entity.getVariables());
    CheckableProxy proxy;
    proxy.setSourceModel(&model);
    QVERIFY(!model.flags(model.index(0, 0)).testFlag(Qt::ItemIsUserCheckable));
    QVERIFY(proxy.flags(proxy.index(0, 0)).testFlag(Qt::ItemIsUserCheckable));
    QVERIFY(!proxy.flags(proxy.index(0, 1)).testFlag(Qt::ItemIsUserCheckable));
    QCOMPARE(proxy.flags({}) & Qt::ItemIsUserCheckable, Qt::ItemFlags());
}

void TestCheckableProxy::offersNoneWhereNoneIsShown()
{
    TDcEntity entity;
    entity.addVariables(makeVariable(u"AGE"_s));
    entity.getVariables()->first()->setLevel(2);
    VariableModel model(nullptr, &entity, entity.getVariables());
    CheckableProxy proxy;
    proxy.setSourceModel(&model);
    QVERIFY(model.flags(model.index(0, 0)).testFlag(Qt::ItemIsUserCheckable));
    QVERIFY(!proxy.flags(proxy.index(0, 0)).testFlag(Qt::ItemIsUserCheckable));
}

void TestCheckableProxy::passesTheSwitchOn()
{
    TDcEntity entity;
    entity.addVariables(makeVariable(u"AGE"_s));
    VariableModelSplitStep3 model(nullptr, &entity, entity.getVariables());
    CheckableProxy proxy;
    proxy.setSourceModel(&model);
    QVERIFY(proxy.setData(proxy.index(0, 0), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(entity.getVariables()->first()->getChecked(), 1);
}

void TestCheckableProxy::alignsNumbersToTheRight()
{
    TDcEntity entity;
    entity.addVariables(makeVariable(u"AGE"_s));
    VariableModel model(nullptr, &entity, entity.getVariables());
    CheckableProxy proxy;
    proxy.setSourceModel(&model);
    const auto alignment = [&proxy](int column) {
        return proxy.index(0, column).data(Qt::TextAlignmentRole);
    };
    QCOMPARE(alignment(0), QVariant());
    QCOMPARE(alignment(4), QVariant(int(Qt::AlignRight | Qt::AlignVCenter)));
}

QTEST_APPLESS_MAIN(TestCheckableProxy)
#include "tst_checkableproxy.moc"
