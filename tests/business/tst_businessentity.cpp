#include "business/BusinessEntity.h"

#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/Trees.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <type_traits>

using namespace Qt::Literals::StringLiterals;

class TestBusinessEntity : public QObject
{
    Q_OBJECT

    std::unique_ptr<TDcEntity> m_root;

    [[nodiscard]] TDcEntity *entity(QStringView name) const { return findEntity(m_root.get(), name); }

    /// The names of what verifyChildrenSelectCheck() returns.
    [[nodiscard]] QStringList toDeselect(TDcEntity *asked) const
    {
        BusinessEntity business;
        const std::unique_ptr<QList<TDcEntity *>> list(business.verifyChildrenSelectCheck(asked));
        return list ? names(*list) : QStringList{u"no list"_s};
    }
    [[nodiscard]] static QStringList names(const QList<TDcEntity *> &entities)
    {
        QStringList texts;
        for (const TDcEntity *listed : entities)
            texts += listed->getName();
        return texts;
    }

private Q_SLOTS:
    /// DISTRICT, PERSON and TRIP are selectable.
    void init()
    {
        m_root = makeEntities(uR"(
COUNTRY
    DISTRICT
        BLOCK
    HOUSEHOLD
        PERSON
            TRIP
        DWELLING
)");
        for (const QStringView name : {u"DISTRICT", u"PERSON", u"TRIP"})
            entity(name)->setSelectable(true);
    }
    void cleanup() { m_root.reset(); }

    void gathersSelectableDescendantsInPreOrder()
    {
        BusinessEntity business;
        QList<TDcEntity *> result;
        business.selectableChildren(m_root.get(), result);
        QCOMPARE(names(result), QStringList({u"DISTRICT"_s, u"PERSON"_s, u"TRIP"_s}));
    }

    void appendsAndNeverTheEntityItself()
    {
        BusinessEntity business;
        QList<TDcEntity *> result{m_root.get()};
        business.selectableChildren(entity(u"PERSON"), result);
        QCOMPARE(names(result), QStringList({u"COUNTRY"_s, u"TRIP"_s}));
        business.selectableChildren(entity(u"TRIP"), result); // a leaf
        QCOMPARE(result.size(), 2);
    }

    void passesNullsOver()
    {
        BusinessEntity business;
        QList<TDcEntity *> result;
        business.selectableChildren(nullptr, result);
        QVERIFY(result.isEmpty());
        m_root->getChildren()->prepend(nullptr);
        business.selectableChildren(m_root.get(), result);
        QCOMPARE(result.size(), 3);
        QCOMPARE(toDeselect(nullptr), QStringList());
    }

    void asksNothingWithoutSelectableDescendants()
    {
        const MessageBoxAnswer box({u"Yes"_s});
        for (const bool selectable : {true, false}) {
            entity(u"DWELLING")->setSelectable(selectable);
            QCOMPARE(toDeselect(entity(u"DWELLING")), QStringList());
            QCOMPARE(entity(u"DWELLING")->getSelectable(), selectable);
        }
        QVERIFY(box.shown().isEmpty());
    }

    void asksNothingWhileTheEntityIsSelectable()
    {
        const MessageBoxAnswer box({u"Yes"_s});
        QCOMPARE(toDeselect(entity(u"PERSON")), QStringList{u"TRIP"_s});
        QVERIFY(entity(u"PERSON")->getSelectable());
        QVERIFY(box.shown().isEmpty());
    }

    void asksInItsOwnWords()
    {
        const MessageBoxAnswer box({u"No"_s});
        (void)toDeselect(m_root.get());
        QCOMPARE(box.shown().size(), 1);
        const ShownBox &shown = box.shown().first();
        QCOMPARE(shown.title, QString());
        QCOMPARE(shown.text,
                 u"You have child entities that are selectable, and they are as follows:\n"
                 u"DISTRICT\nPERSON\nTRIP\n\n"
                 u"Are you sure you want to deselect this entity and its child entities?.\n"_s);
        QCOMPARE(shown.icon, QMessageBox::Question);
        QCOMPARE(shown.buttons, QStringList({u"Yes"_s, u"No"_s}));
        QCOMPARE(shown.defaultButton, u"No"_s);
        QVERIFY(shown.modal);
        QVERIFY(!shown.hasParent);
    }

    void answerDecides_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("selectable");
        QTest::addColumn<QStringList>("names");
        QTest::addRow("yes") << u"Yes"_s << false << QStringList({u"DISTRICT"_s, u"PERSON"_s, u"TRIP"_s});
        QTest::addRow("no") << u"No"_s << true << QStringList();
        QTest::addRow("closed") << QString() << true << QStringList();
    }
    void answerDecides()
    {
        QFETCH(const QString, answer);
        const MessageBoxAnswer box({answer});
        QTEST(toDeselect(m_root.get()), "names");
        QTEST(m_root->getSelectable(), "selectable");
        QVERIFY(entity(u"PERSON")->getSelectable()); // Deselecting those is the caller's.
        QCOMPARE(box.shown().size(), 1);
    }

    void closingTheWindowIsNo()
    {
        QTimer::singleShot(0, this, [] { QApplication::activeModalWidget()->close(); });
        QCOMPARE(toDeselect(m_root.get()), QStringList());
        QVERIFY(m_root->getSelectable());
    }

    void namesAreNoPlaceholders()
    {
        entity(u"TRIP")->setName(u"%1 %2"_s);
        const MessageBoxAnswer box({u"No"_s});
        (void)toDeselect(m_root.get());
        QVERIFY(box.texts().first().contains(u"PERSON\n%1 %2\n\nAre you"_s));
    }

    void isAssignedByValue()
    {
        static_assert(std::is_copy_assignable_v<BusinessEntity> && std::is_move_assignable_v<BusinessEntity>);
        QList<TDcEntity *> result;
        BusinessEntity copy;
        {
            const BusinessEntity business;
            copy = business;
        }
        copy = BusinessEntity();
        copy.selectableChildren(m_root.get(), result);
        QCOMPARE(result.size(), 3);
    }
};

QTEST_MAIN(TestBusinessEntity)
#include "tst_businessentity.moc"
