#include "model/OwnedList.h"
#include "model/PreOrder.h"

#include <QTest>

namespace
{
/// Counts how many of its kind live.
struct Counted {
    Counted() { ++living; }
    ~Counted() { --living; }
    Q_DISABLE_COPY_MOVE(Counted)

    static inline int living = 0;
};

struct Node {
    explicit Node(int nodeNumber = 0) : number(nodeNumber) { ++living; }
    ~Node()
    {
        deleteDescendants(*this);
        --living;
    }
    Q_DISABLE_COPY_MOVE(Node)
    [[nodiscard]] QList<Node *> *getChildren() const { return children.get(); }

    int number;
    OwnedList<Node> children;
    static inline int living = 0;
};
} // namespace

class tst_OwnedList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(Counted::living, 0); }

    void startsEmptyAndIsNeverNull()
    {
        OwnedList<Counted> list;
        QVERIFY(list.get());
        QVERIFY(list.get()->isEmpty());
    }

    void appendsToTheListReturnedEarlier()
    {
        OwnedList<Counted> list;
        const QList<Counted *> *live = list.get();
        auto *item = new Counted;
        list.append(item);
        list.append(std::make_unique<Counted>());
        QCOMPARE(live->size(), 2);
        QCOMPARE(live->first(), item);
        QCOMPARE(list.get(), live);
    }

    void deletesWhatItHolds()
    {
        {
            OwnedList<Counted> list;
            list.append(new Counted);
            list.get()->append(new Counted);
            list.append(static_cast<Counted *>(nullptr));
            QCOMPARE(Counted::living, 2);
        }
        QCOMPARE(Counted::living, 0);
    }

    void whatIsTakenOutBelongsToTheTaker()
    {
        std::unique_ptr<Counted> taken(new Counted);
        {
            OwnedList<Counted> list;
            list.append(taken.get());
            list.get()->removeOne(taken.get());
        }
        QCOMPARE(Counted::living, 1);
    }

    void resetPutsTheGivenListInPlace()
    {
        OwnedList<Counted> list;
        auto *given = new QList<Counted *>{new Counted};
        list.reset(given);
        QCOMPARE(list.get(), given);
        list.append(new Counted);
        QCOMPARE(given->size(), 2);
    }

    void resetDeletesTheListBefore()
    {
        OwnedList<Counted> list;
        list.append(new Counted);
        list.reset(new QList<Counted *>{new Counted, new Counted});
        QCOMPARE(Counted::living, 2);
        list.reset(new QList<Counted *>);
        QCOMPARE(Counted::living, 0);
    }

    void resetKeepsWhatBothListsHold()
    {
        OwnedList<Counted> list;
        auto *kept = new Counted;
        list.append(kept);
        list.append(new Counted);
        auto *copy = new QList<Counted *>(*list.get());
        copy->removeLast();
        list.reset(copy);
        QCOMPARE(Counted::living, 1);
        QCOMPARE(list.get()->constFirst(), kept);
    }

    void resetToTheSameListChangesNothing()
    {
        OwnedList<Counted> list;
        list.append(new Counted);
        list.reset(list.get());
        QCOMPARE(list.get()->size(), 1);
        list.reset(new QList<Counted *>{new Counted, new Counted});
        list.reset(list.get());
        QCOMPARE(list.get()->size(), 2);
        QCOMPARE(Counted::living, 2);
    }

    void resetToNullEmpties()
    {
        OwnedList<Counted> list;
        list.append(new Counted);
        list.reset(nullptr);
        QVERIFY(list.get());
        QVERIFY(list.get()->isEmpty());
        list.reset(new QList<Counted *>{new Counted});
        list.reset(nullptr);
        QVERIFY(list.get()->isEmpty());
    }

    void releaseGivesListAndObjectsAway_data()
    {
        QTest::addColumn<bool>("given");
        QTest::addRow("the list it began with") << false;
        QTest::addRow("a list that was handed over") << true;
    }
    void releaseGivesListAndObjectsAway()
    {
        QFETCH(bool, given);
        std::unique_ptr<QList<Counted *>> released;
        {
            OwnedList<Counted> list;
            if (given)
                list.reset(new QList<Counted *>);
            list.append(new Counted);
            released.reset(list.release());
            QVERIFY(list.get()->isEmpty());
        }
        QCOMPARE(released->size(), 1);
        qDeleteAll(*released);
    }

    void chainsDeeperThanTheStackAreDeleted()
    {
        constexpr int depth = 300'000;
        auto root = std::make_unique<Node>();
        Node *last = root.get();
        for (int i = 0; i < depth; ++i) {
            last->children.append(new Node);
            last = last->children.get()->constLast();
        }
        last->children.append(static_cast<Node *>(nullptr));
        QCOMPARE(Node::living, depth + 1);
        root.reset();
        QCOMPARE(Node::living, 0);
    }

    void preOrderVisitsANodeBeforeItsChildren()
    {
        Node root(1);
        root.children.append(new Node(2));
        root.children.append(static_cast<Node *>(nullptr));
        root.children.append(new Node(4));
        root.children.get()->constFirst()->children.append(new Node(3));
        QList<int> visited;
        preOrder(&root, [&visited](const Node *node) { visited.append(node->number); });
        QCOMPARE(visited, QList<int>({1, 2, 3, 4}));
    }

    void preOrderOfNothingVisitsNothing()
    {
        int visits = 0;
        preOrder(static_cast<Node *>(nullptr), [&visits](const Node *) { ++visits; });
        QCOMPARE(visits, 0);
    }
};

QTEST_APPLESS_MAIN(tst_OwnedList)

#include "tst_ownedlist.moc"
