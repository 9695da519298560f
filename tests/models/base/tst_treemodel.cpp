#include "models/base/TreeModel.h"

#include "model/OwnedList.h"
#include "tests/support/TreeContract.h"

#include <QRandomGenerator>
#include <QTest>

#include <memory>

namespace
{
/// A node that counts how often any node's children are asked for.
class Node
{
public:
    explicit Node(int level) : m_level(level) { }
    ~Node() { deleteDescendants(*this); }
    Q_DISABLE_COPY_MOVE(Node)

    [[nodiscard]] int getLevel() const { return m_level; }
    void setLevel(int level) { m_level = level; }
    [[nodiscard]] QList<Node *> *getChildren() const
    {
        ++asked;
        return m_children.get();
    }
    Node *append(int level)
    {
        m_children.append(new Node(level));
        return m_children.get()->last();
    }

    static inline qsizetype asked = 0;

private:
    int m_level;
    OwnedList<Node> m_children;
};

class Tree : public TreeModel<Node>
{
public:
    explicit Tree(Node *root) : TreeModel(nullptr, root) { }
    [[nodiscard]] QVariant data(const QModelIndex &, int) const override { return {}; }
    [[nodiscard]] QModelIndex indexOf(Node *node) const { return createIndex(0, 0, node); }
};

/// `width` children for each node of every level below `depth`; levels from 1.
std::unique_ptr<Node> makeNodes(int depth, int width)
{
    auto root = std::make_unique<Node>(1);
    QList<Node *> level{root.get()};
    for (int number = 2; number <= depth; ++number) {
        QList<Node *> next;
        for (Node *node : std::as_const(level)) {
            for (int i = 0; i < width; ++i)
                next += node->append(number);
        }
        level = next;
    }
    return root;
}

QList<Node *> allNodes(Node *root)
{
    QList<Node *> nodes{root};
    walkPlaces(root, [&nodes](Node *node, Node *, int, int) {
        if (node)
            nodes += node;
        return Walk::Into;
    });
    return nodes;
}

/// Compares also what an invalid answer holds.
void checkAnswer(const QModelIndex &answer, const FoundParent<Node> &expected)
{
    QCOMPARE(answer.row(), expected.row);
    QCOMPARE(answer.internalPointer(), static_cast<void *>(expected.parent));
}

/// Compares parent() with the plain search for each of `nodes`; false once it differs.
bool parentsAreRight(const Tree &tree, Node *root, const QList<Node *> &nodes)
{
    for (Node *node : nodes) {
        const bool top = node->getLevel() == 1;
        checkAnswer(tree.parent(tree.indexOf(node)),
                    top ? FoundParent<Node>() : searchParent(node, root, root));
        if (QTest::currentTestFailed())
            return false;
    }
    return true;
}

/// Changes a tree at random, as a front end does behind a model's back.
class Shuffler
{
public:
    explicit Shuffler(Node *root) : m_root(root) { }
    ~Shuffler() { qDeleteAll(m_apart); }
    Q_DISABLE_COPY_MOVE(Shuffler)

    /// Nodes that were taken out of the tree and live on.
    [[nodiscard]] const QList<Node *> &apart() const { return m_apart; }

    void change()
    {
        Node *node = any(allNodes(m_root));
        switch (m_random.bounded(9)) {
        case 0:
        case 1:
        case 2:
        case 3:
            insert(node, new Node(m_random.bounded(2, 6)));
            break;
        case 4:
            if (Node *taken = takeFrom(node))
                m_apart += taken;
            break;
        case 5: // The next new nodes may get the addresses.
            delete takeFrom(node);
            break;
        case 6:
            if (!m_apart.isEmpty())
                insert(node, m_apart.takeAt(m_random.bounded(int(m_apart.size()))));
            break;
        case 7: // A branch moves; what hangs on it moves along.
            if (Node *taken = takeFrom(m_root))
                insert(any(allNodes(m_root)), taken);
            break;
        default:
            node->setLevel(node == m_root ? 1 : m_random.bounded(-1, 6));
        }
    }

private:
    [[nodiscard]] Node *any(const QList<Node *> &nodes)
    {
        return nodes.at(m_random.bounded(int(nodes.size())));
    }
    void insert(Node *parent, Node *node)
    {
        auto *children = parent->getChildren();
        children->insert(m_random.bounded(int(children->size()) + 1), node);
    }
    Node *takeFrom(Node *parent)
    {
        auto *children = parent->getChildren();
        return children->isEmpty() ? nullptr : children->takeAt(m_random.bounded(int(children->size())));
    }

    Node *m_root;
    QList<Node *> m_apart;
    QRandomGenerator m_random{4711};
};
} // namespace

class TestTreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void searchAnswersToTheLetter()
    {
        const auto root = makeNodes(3, 3);
        root->getChildren()->at(1)->setLevel(-2); // A find with a negative row counts as none.
        root->getChildren()->last()->setLevel(-3); // On the last branch it is returned as it is.
        root->getChildren()->last()->getChildren()->last()->setLevel(-4);
        const Tree tree(root.get());
        Node apart(2);
        const QList<Node *> nodes = allNodes(root.get()) + QList<Node *>{&apart};
        for (Node *target : nodes) {
            for (Node *from : nodes) {
                for (Node *above : {root.get(), static_cast<Node *>(nullptr)})
                    checkAnswer(tree.recorrerStructuraArbol(target, from, above),
                                searchParent(target, from, above));
                if (QTest::currentTestFailed())
                    return;
            }
        }
        QVERIFY(!tree.recorrerStructuraArbol(nullptr, root.get(), root.get()).isValid());
        QVERIFY(!tree.recorrerStructuraArbol(root.get(), nullptr, nullptr).isValid());
    }

    void parentsAreThoseOfTheSearch_data()
    {
        QTest::addColumn<int>("rootLevel");
        QTest::addColumn<int>("level"); // of the first grandchild
        QTest::addRow("usual") << 1 << 3;
        QTest::addRow("a child of level 1 is a top row") << 1 << 1;
        QTest::addRow("level 0") << 1 << 0;
        QTest::addRow("negative level") << 1 << -3;
        QTest::addRow("root of level 0") << 0 << 3;
        QTest::addRow("root of level 2") << 2 << 3;
        QTest::addRow("root of negative level") << -1 << 3;
    }
    void parentsAreThoseOfTheSearch()
    {
        QFETCH(const int, rootLevel);
        QFETCH(const int, level);
        const auto root = makeNodes(4, 3);
        root->setLevel(rootLevel);
        root->getChildren()->first()->getChildren()->first()->setLevel(level);
        root->getChildren()->last()->getChildren()->last()->setLevel(level);
        const Tree tree(root.get());
        Node apart(2);
        for (int round = 0; round < 3; ++round) // from the search, then from memory
            parentsAreRight(tree, root.get(), allNodes(root.get()) + QList<Node *>{&apart});
    }

    void rootOfAnotherLevelIsItsOwnParent()
    {
        Node root(2);
        const Tree tree(&root);
        QCOMPARE(tree.parent(tree.index(0, 0)).internalPointer(), &root);
        QCOMPARE(tree.parent(tree.index(0, 0)).row(), 2);
    }

    void firstPlaceCountsOfANodeListedTwice()
    {
        const auto root = makeNodes(3, 2);
        Node *first = root->getChildren()->first();
        Node *last = root->getChildren()->last();
        last->getChildren()->append(first->getChildren()->last());
        last->getChildren()->append(last); // Not even a ring keeps the model from answering.
        const Tree tree(root.get());
        QCOMPARE(tree.parent(tree.indexOf(first->getChildren()->last())).internalPointer(), first);
        QCOMPARE(tree.parent(tree.indexOf(last->getChildren()->first())).internalPointer(), last);
        QCOMPARE(tree.parent(tree.indexOf(last)).internalPointer(), root.get());
        last->getChildren()->resize(2);
    }

    void nullsInTheTreeAreHarmless()
    {
        const auto root = makeNodes(3, 2);
        root->getChildren()->prepend(nullptr);
        root->getChildren()->append(nullptr);
        const Tree tree(root.get());
        parentsAreRight(tree, root.get(), allNodes(root.get()));
        QVERIFY(tree.index(0, 0, tree.index(0, 0)).isValid());
        QCOMPARE(tree.rowCount(tree.index(0, 0, tree.index(0, 0))), 0);
    }

    void parentsStayRightWhileTheTreeChanges()
    {
        const auto root = makeNodes(4, 3);
        Shuffler shuffler(root.get());
        const Tree tree(root.get());
        qsizetype questions = 0;
        for (int i = 0; i < 2000; ++i) {
            shuffler.change();
            const QList<Node *> nodes = allNodes(root.get()) + shuffler.apart();
            questions += nodes.size();
            if (!parentsAreRight(tree, root.get(), nodes))
                return;
        }
        QVERIFY2(questions > 50000, qPrintable(QString::number(questions)));
    }

    void addressesOfDeletedNodesMayComeBack()
    {
        const auto root = makeNodes(2, 20);
        const Tree tree(root.get());
        QList<Node *> *children = root->getChildren();
        parentsAreRight(tree, root.get(), *children);
        qsizetype reused = 0;
        for (int i = 0; i < 200; ++i) {
            Node *gone = children->takeAt(i % 19);
            const void *address = gone;
            delete gone;
            Node *added = children->last()->append(3); // likely where the last one was
            reused += added == address ? 1 : 0;
            parentsAreRight(tree, root.get(), allNodes(root.get()));
            children->append(new Node(2));
        }
#if !defined(__SANITIZE_ADDRESS__) // which keeps freed addresses back for a while
        QVERIFY(reused > 0);
#else
        Q_UNUSED(reused)
#endif
    }

    void askingAgainDoesNotDependOnTheSizeOfTheTree()
    {
        for (const int width : {3, 30}) {
            const auto root = makeNodes(4, width);
            const Tree tree(root.get());
            Node *last = root->getChildren()->last()->getChildren()->last()->getChildren()->last();
            QVERIFY(tree.parent(tree.indexOf(last)).isValid());
            Node::asked = 0;
            QVERIFY(tree.parent(tree.indexOf(last)).isValid());
            QCOMPARE(Node::asked, 3); // one list a level
        }
    }

    void searchingInVainCostsLittleMoreThanTheSearch_data()
    {
        QTest::addColumn<bool>("inTree");
        QTest::addRow("a node that is not in the tree") << false;
        QTest::addRow("a branch that moves before every question") << true;
    }
    void searchingInVainCostsLittleMoreThanTheSearch()
    {
        QFETCH(const bool, inTree);
        const auto root = makeNodes(4, 8);
        const Tree tree(root.get());
        Node apart(2);
        QList<Node *> *branches = root->getChildren();
        qsizetype withModel = 0;
        qsizetype searches = 0;
        for (int i = 0; i < 400; ++i) {
            branches->move(0, branches->size() - 1);
            Node *node = inTree ? branches->last()->getChildren()->last() : &apart;
            Node::asked = 0;
            const QModelIndex found = tree.parent(tree.indexOf(node));
            withModel += std::exchange(Node::asked, 0);
            QCOMPARE(tree.recorrerStructuraArbol(node, root.get(), root.get()), found);
            searches += Node::asked;
        }
        QVERIFY2(withModel <= 2 * searches,
                 qPrintable(QString::number(double(withModel) / double(searches))));
    }

    void aTreeThatGrewIsLearntAgain()
    {
        Node root(1);
        const Tree tree(&root);
        QCOMPARE(tree.parent(tree.indexOf(root.append(2))).internalPointer(), &root);
        QList<Node *> added;
        for (int i = 0; i < 2000; ++i)
            added += root.append(2);
        const auto ask = [&] {
            Node::asked = 0;
            for (Node *node : std::as_const(added))
                QCOMPARE(tree.parent(tree.indexOf(node)).internalPointer(), &root);
        };
        ask();
        ask();
        QCOMPARE(Node::asked, added.size()); // one list for each, no search
    }

    void depthIsNotBoundedByTheStack()
    {
        Node root(1);
        Node *deepest = &root;
        for (int level = 2; level <= 200000; ++level)
            deepest = deepest->append(level);
        const Tree tree(&root);
        QCOMPARE(tree.parent(tree.indexOf(deepest)).row(), 200000);
        QVERIFY(tree.recorrerStructuraArbol(deepest, &root, &root).isValid());
        Node apart(2);
        QVERIFY(!tree.parent(tree.indexOf(&apart)).isValid());
    }
};

QTEST_GUILESS_MAIN(TestTreeModel)
#include "tst_treemodel.moc"
