#include "workbench/operations/ListEdits.h"

#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// A letter that tells when it goes.
struct Letter {
    QChar letter;
    int *gone;
    ~Letter() { ++*gone; }
};
} // namespace

class TestListEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void removes_data();
    void removes();
    void deletesNothingThatItDoesNotHold();
    void moves_data();
    void moves();

private:
    [[nodiscard]] QList<Letter *> items(const QString &letters) const;
    [[nodiscard]] QString text() const;

    QList<Letter *> m_list;
    int m_gone = 0;
};

void TestListEdits::init()
{
    m_gone = 0;
    for (const QChar letter : u"abcdef"_s)
        m_list.append(new Letter{letter, &m_gone});
}

void TestListEdits::cleanup()
{
    qDeleteAll(m_list);
    m_list.clear();
}

QList<Letter *> TestListEdits::items(const QString &letters) const
{
    QList<Letter *> items;
    for (const QChar letter : letters)
        items.append(*std::find_if(m_list.cbegin(), m_list.cend(),
                                   [letter](const Letter *item) { return item->letter == letter; }));
    return items;
}

QString TestListEdits::text() const
{
    QString letters;
    for (const Letter *item : m_list)
        letters.append(item->letter);
    return letters;
}

void TestListEdits::removes_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<QString>("left");
    QTest::addRow("none") << QString() << u"abcdef"_s;
    QTest::addRow("first") << u"a"_s << u"bcdef"_s;
    QTest::addRow("last") << u"f"_s << u"abcde"_s;
    QTest::addRow("several in any order") << u"eb"_s << u"acdf"_s;
    QTest::addRow("one twice") << u"bb"_s << u"acdef"_s;
    QTest::addRow("all") << u"abcdef"_s << QString();
}

void TestListEdits::removes()
{
    QFETCH(const QString, items);
    QFETCH(const QString, left);
    ListEdits::remove(m_list, this->items(items));
    QCOMPARE(text(), left);
    QCOMPARE(m_gone, 6 - left.size());
}

void TestListEdits::deletesNothingThatItDoesNotHold()
{
    Letter other{u'x', &m_gone};
    ListEdits::remove(m_list, {&other});
    QCOMPARE(text(), u"abcdef"_s);
    QCOMPARE(m_gone, 0);
}

void TestListEdits::moves_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<QString>("up");
    QTest::addColumn<QString>("down");
    QTest::addRow("none") << QString() << u"abcdef"_s << u"abcdef"_s;
    QTest::addRow("one") << u"c"_s << u"acbdef"_s << u"abdcef"_s;
    QTest::addRow("neighbours") << u"cd"_s << u"acdbef"_s << u"abecdf"_s;
    QTest::addRow("with one between") << u"bd"_s << u"badcef"_s << u"acbedf"_s;
    QTest::addRow("in any order") << u"db"_s << u"badcef"_s << u"acbedf"_s;
    QTest::addRow("first") << u"ac"_s << u"abcdef"_s << u"badcef"_s;
    QTest::addRow("last") << u"cf"_s << u"acbdfe"_s << u"abcdef"_s;
}

void TestListEdits::moves()
{
    QFETCH(const QString, items);
    QFETCH(const QString, up);
    QFETCH(const QString, down);
    const QList<Letter *> before = m_list;
    const QList<Letter *> moving = this->items(items);
    QCOMPARE(ListEdits::canMove(m_list, moving, true), up != "abcdef"_L1);
    ListEdits::move(m_list, moving, true);
    QCOMPARE(text(), up);
    m_list = before;
    QCOMPARE(ListEdits::canMove(m_list, moving, false), down != "abcdef"_L1);
    ListEdits::move(m_list, moving, false);
    QCOMPARE(text(), down);
}

QTEST_GUILESS_MAIN(TestListEdits)
#include "tst_listedits.moc"
