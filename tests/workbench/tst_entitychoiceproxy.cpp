#include "models/dictionaryTreeModelDownload.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/Trees.h"
#include "workbench/run/EntityChoiceProxy.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestEntityChoiceProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isAWellBehavedModel();
    void offersABoxForEveryEntity();
    void switchesOneEntity();
    void announcesWhatGoesWithIt();
    void takesNothingElse();

private:
    std::unique_ptr<TDcEntity> m_root;
    std::unique_ptr<dictionaryTreeModelDownload> m_model;
    std::unique_ptr<EntityChoiceProxy> m_proxy;
};

void TestEntityChoiceProxy::init()
{
    m_proxy.reset();
    m_root = makeEntities(u"CENSUS\n    HOUSEHOLD\n        PERSON\n        DEATH\n");
    m_model = std::make_unique<dictionaryTreeModelDownload>(nullptr, m_root.get());
    m_proxy = std::make_unique<EntityChoiceProxy>();
    m_proxy->setSourceModel(m_model.get());
}

void TestEntityChoiceProxy::isAWellBehavedModel()
{
    const QAbstractItemModelTester tester(m_proxy.get(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QModelIndex person = m_proxy->indexOf(findEntity(m_root.get(), u"PERSON"));
    QVERIFY(m_proxy->setData(person, Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(person.parent().row(), 0);
}

void TestEntityChoiceProxy::offersABoxForEveryEntity()
{
    const QModelIndex death = m_proxy->indexOf(findEntity(m_root.get(), u"DEATH"));
    QVERIFY(!m_model->flags(m_proxy->mapToSource(death)).testFlag(Qt::ItemIsUserCheckable));
    QVERIFY(death.flags().testFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable));
    QVERIFY(!death.flags().testFlag(Qt::ItemIsEditable));
    QCOMPARE(m_proxy->flags({}) & Qt::ItemIsUserCheckable, Qt::ItemFlags());
}

void TestEntityChoiceProxy::switchesOneEntity()
{
    TDcEntity *household = findEntity(m_root.get(), u"HOUSEHOLD");
    const QModelIndex index = m_proxy->indexOf(household);
    QVERIFY(m_proxy->setData(index, Qt::Checked, Qt::CheckStateRole));
    QVERIFY(household->getSelectable());
    QVERIFY(!m_root->getSelectable());
    QVERIFY(!findEntity(m_root.get(), u"PERSON")->getSelectable());
    QVERIFY(m_proxy->setData(index, Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(!household->getSelectable());
}

void TestEntityChoiceProxy::announcesWhatGoesWithIt()
{
    for (auto name : {u"HOUSEHOLD", u"PERSON"})
        findEntity(m_root.get(), name)->setSelectable(true);
    QStringList announced;
    connect(m_proxy.get(), &QAbstractItemModel::dataChanged, this,
            [&announced](const QModelIndex &first, const QModelIndex &last) {
                for (int row = first.row(); row <= last.row(); ++row)
                    announced.append(first.siblingAtRow(row).data().toString());
            });
    const QSignalSpy once(m_proxy.get(), &EntityChoiceProxy::marksChanged);
    const MessageBoxAnswer box({u"Yes"_s});
    m_proxy->setData(m_proxy->indexOf(findEntity(m_root.get(), u"HOUSEHOLD")), Qt::Unchecked,
                     Qt::CheckStateRole);
    QCOMPARE(box.shown().size(), 1);
    QVERIFY(!findEntity(m_root.get(), u"PERSON")->getSelectable());
    announced.sort();
    QCOMPARE(once.size(), 1);
    QCOMPARE(announced, QStringList({u"DEATH"_s, u"HOUSEHOLD"_s, u"PERSON"_s}));
}

void TestEntityChoiceProxy::takesNothingElse()
{
    const QModelIndex index = m_proxy->index(0, 0);
    QVERIFY(!m_proxy->setData(index, u"RENAMED"_s, Qt::EditRole));
    QVERIFY(!m_proxy->setData({}, Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(m_root->getName(), u"CENSUS"_s);
    QVERIFY(!m_root->getSelectable());
}

QTEST_MAIN(TestEntityChoiceProxy)
#include "tst_entitychoiceproxy.moc"
