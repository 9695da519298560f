#pragma once

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QLocale>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

#include <algorithm>
#include <numeric>

/// What a column displays, row by row.
[[nodiscard]] inline QStringList columnTexts(const QAbstractItemModel &model, int column = 0)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts += model.index(row, column).data().toString();
    return texts;
}

/// A model whose first column holds \a texts, or another one.
inline void setColumn(QStandardItemModel &model, int column, const QVariantList &values)
{
    model.setRowCount(int(values.size()));
    model.setColumnCount(std::max(model.columnCount(), 6));
    for (int row = 0; row < values.size(); ++row)
        model.setData(model.index(row, column), values.at(row), Qt::DisplayRole);
}

/// What \a proxy makes of \a values in a column when it sorts by it.
[[nodiscard]] inline QStringList sorted(QSortFilterProxyModel &proxy, int column, const QVariantList &values)
{
    QStandardItemModel source;
    setColumn(source, column, values);
    proxy.setSourceModel(&source);
    proxy.sort(column);
    QStringList texts = columnTexts(proxy, column);
    proxy.setSourceModel(nullptr);
    return texts;
}

/// Asks \a proxy itself whether \a left comes before \a right: sorting only ever compares within a column.
[[nodiscard]] inline bool comesBefore(const QSortFilterProxyModel &proxy, const QModelIndex &left,
                                      const QModelIndex &right)
{
    struct Open : QSortFilterProxyModel {
        static auto order() { return &Open::lessThan; }
    };
    return (proxy.*Open::order())(left, right);
}

/// The rows of \a source that a text search in its first columns accepts, found in the plainest way.
[[nodiscard]] inline QList<int> plainlyFiltered(const QAbstractItemModel &source, int columns,
                                                const QRegularExpression &expression)
{
    QList<int> rows;
    for (int row = 0; row < source.rowCount(); ++row) {
        for (int column = 0; column < columns; ++column) {
            const QString text = source.index(row, column).data().toString();
            if (text.toUpper().trimmed().contains(expression)) {
                rows += row;
                break;
            }
        }
    }
    return rows;
}

/// The text that counts when texts are sorted, found with the expression itself.
[[nodiscard]] inline QString plainlyCompared(const QModelIndex &index)
{
    static const QRegularExpression address(QStringLiteral("[\\w\\.]*@[\\w\\.]*"));
    const QString text = index.data().toString();
    const QRegularExpressionMatch match =
        index.column() == 1 ? address.match(text) : QRegularExpressionMatch();
    return match.hasMatch() ? match.captured() : text;
}

/// The rows of \a source in the order of their texts, found in the plainest way.
[[nodiscard]] inline QList<int> plainlySorted(const QAbstractItemModel &source, int column)
{
    QList<int> rows(source.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_sort(rows.begin(), rows.end(), [&](int left, int right) {
        return QString::localeAwareCompare(plainlyCompared(source.index(left, column)),
                                           plainlyCompared(source.index(right, column)))
            < 0;
    });
    return rows;
}

/// The source rows that \a proxy shows, in its order.
[[nodiscard]] inline QList<int> shownRows(const QSortFilterProxyModel &proxy)
{
    QList<int> rows;
    for (int row = 0; row < proxy.rowCount(); ++row)
        rows += proxy.mapToSource(proxy.index(row, 0)).row();
    return rows;
}

/// Texts of letters that change in many ways when they are put in upper case or sorted.
[[nodiscard]] inline QString randomText(QRandomGenerator &random)
{
    static const QString letters =
        QStringLiteral("abAB zZ09_.@-\\(é)ÉñßµÿİıſKŉǆσςΣ[ＡЖж ") + QChar(0xD83D) + QChar(0xDE00);
    QString text;
    for (int i = random.bounded(9); i > 0; --i)
        text += letters.at(random.bounded(letters.size()));
    if (random.bounded(4) == 0)
        text += QStringLiteral("ab.b@z_0 x@y");
    return text;
}

/// A model of random texts.
inline void fillRandomly(QStandardItemModel &model, int rows, int columns, QRandomGenerator &random)
{
    model.setRowCount(rows);
    model.setColumnCount(columns);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            model.setData(model.index(row, column), randomText(random), Qt::DisplayRole);
    }
}

/// Compares the text search of \a proxy in \a columns columns with the plainest way, with random texts and
/// expressions of every kind.
inline void checkRandomSearches(QSortFilterProxyModel &proxy, int columns)
{
    QRandomGenerator random(11);
    QStandardItemModel source;
    fillRandomly(source, 400, columns + 1, random);
    proxy.setSourceModel(&source);

    const QStringList patterns{
        QStringLiteral("A"),     QStringLiteral("a"),      QStringLiteral("."),  QStringLiteral("[AB]Z"),
        QStringLiteral("A|É"),   QStringLiteral("^B"),     QStringLiteral("Z$"), QStringLiteral("\\("),
        QStringLiteral("\\d"),   QStringLiteral("\\\\"),   QStringLiteral("SS"), QStringLiteral("ß"),
        QStringLiteral("\\É"),   QStringLiteral("\\bA"),   QStringLiteral("Σ"),  QStringLiteral("B@Z_0"),
        QStringLiteral("B\\@Z"), QStringLiteral("ʼN"),     QStringLiteral(" "),  QStringLiteral("A B"),
        QStringLiteral("\\x41"), QStringLiteral("(?i)ab"), QStringLiteral("]"),  QStringLiteral("A{1}")};
    using Option = QRegularExpression::PatternOption;
    int hits = 0;
    int misses = 0;
    const auto check = [&](const QString &pattern) {
        for (const auto options : {QRegularExpression::PatternOptions(),
                                   {Option::CaseInsensitiveOption},
                                   {Option::ExtendedPatternSyntaxOption}}) {
            const QRegularExpression expression(pattern, options);
            // An empty expression accepts every row; elsewhere it finds nothing in malformed UTF-16.
            if (pattern.isEmpty() || !expression.isValid())
                continue;
            proxy.setFilterRegularExpression(expression);
            const QList<int> expected = plainlyFiltered(source, columns, expression);
            (expected.isEmpty() ? misses : hits) += 1;
            QVERIFY2(shownRows(proxy) == expected, qPrintable(pattern));
        }
    };
    for (const QString &pattern : patterns)
        check(pattern);
    for (int i = 0; i < 200; ++i)
        check(QRegularExpression::escape(randomText(random).left(2)));
    QVERIFY2(hits > 100, "the comparison must see hits");
    QVERIFY2(misses > 20, "the comparison must see misses");
    proxy.setFilterRegularExpression(QRegularExpression());
    proxy.setSourceModel(nullptr);
}

/// Compares the text order of \a proxy with the plainest way, in several locales.
inline void checkRandomTextOrder(QSortFilterProxyModel &proxy)
{
    QRandomGenerator random(13);
    QStandardItemModel source;
    fillRandomly(source, 500, 3, random);
    const QLocale before;
    for (const QLocale &locale : {QLocale::c(), QLocale(QLocale::Spanish), QLocale(QLocale::Swedish)}) {
        QLocale::setDefault(locale);
        proxy.setSourceModel(&source);
        for (int column = 0; column < 3; ++column) {
            proxy.sort(-1); // Equal texts stay in the order that was before, so let it be the source's.
            proxy.sort(column);
            QCOMPARE(shownRows(proxy), plainlySorted(source, column));
        }
        proxy.setSourceModel(nullptr);
    }
    QLocale::setDefault(before);
}

/// What the text search promises, on a column that it searches.
inline void checkSearchContract(QSortFilterProxyModel &proxy, int columns)
{
    using Option = QRegularExpression::PatternOption;
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
    for (int column = 0; column <= columns; ++column) {
        QStandardItemModel source;
        setColumn(source, column, {QStringLiteral("Water source"), QStringLiteral(" straße "), 12});
        proxy.setSourceModel(&source);
        const auto found = [&](const char *pattern, QRegularExpression::PatternOptions options = {}) {
            proxy.setFilterRegularExpression(QRegularExpression(QString::fromUtf8(pattern), options));
            return shownRows(proxy);
        };
        const bool searched = column < columns;
        const auto row = [searched](int number) { return searched ? QList{number} : QList<int>(); };

        QCOMPARE(found(""), (QList{0, 1, 2}));
        QCOMPARE(found("WATER"), row(0));
        QCOMPARE(found("water"), QList<int>()); // Texts are in upper case, the expression is not.
        QCOMPARE(found("Water"), QList<int>());
        QCOMPARE(found("water", Option::CaseInsensitiveOption), row(0));
        QCOMPARE(found("W.T[AEIOU]R"), row(0));
        QCOMPARE(found("w.t[aeiou]r"), QList<int>());
        QCOMPARE(found("STRASSE"), row(1));
        QCOMPARE(found("^STRASSE$"), row(1)); // Without the blanks around it.
        QCOMPARE(found("12"), row(2));
        QCOMPARE(found("WATER\\ SOURCE"), row(0));
        QCOMPARE(found("WATER["), QList<int>()); // Invalid: nothing, and no warning.
        proxy.setFilterFixedString(QStringLiteral("R S"));
        QCOMPARE(shownRows(proxy), row(0));
        proxy.setFilterWildcard(QStringLiteral("*SOU?CE"));
        QCOMPARE(shownRows(proxy), row(0));
        QCOMPARE(found(""), (QList{0, 1, 2}));

        // The base's own settings for what is searched play no part.
        proxy.setFilterKeyColumn(5);
        proxy.setFilterRole(Qt::UserRole);
        QCOMPARE(found("WATER"), row(0));
        proxy.setFilterKeyColumn(0);
        proxy.setFilterRole(Qt::DisplayRole);

        // An edit is seen by the filter that stays.
        if (searched) {
            source.setData(source.index(1, column), QStringLiteral("more water"), Qt::DisplayRole);
            QCOMPARE(shownRows(proxy), (QList{0, 1}));
        }
        QCOMPARE(found(""), (QList{0, 1, 2}));
        proxy.setSourceModel(nullptr);
    }

    // Without a source there is nothing to find; a new one is searched for what is still looked for.
    proxy.setFilterRegularExpression(QStringLiteral("WATER"));
    proxy.sort(0);
    QCOMPARE(proxy.rowCount(), 0);
    QStandardItemModel other;
    setColumn(other, 0, {QStringLiteral("fire"), QStringLiteral("water")});
    proxy.setSourceModel(&other);
    QCOMPARE(shownRows(proxy), QList{1});
    proxy.setSourceModel(nullptr);
    proxy.setFilterRegularExpression(QRegularExpression());
    proxy.sort(-1);
}

/// Of a text in column 1 only the address counts; in other columns all of it.
inline void checkAddressOrder(QSortFilterProxyModel &proxy)
{
    const QVariantList texts{QStringLiteral("zeta b.c@x"), QStringLiteral("alpha d_1@x"),
                             QStringLiteral("mu a.9@x"), QStringLiteral("c without")};
    QCOMPARE(sorted(proxy, 1, texts),
             (QStringList{QStringLiteral("mu a.9@x"), QStringLiteral("zeta b.c@x"),
                          QStringLiteral("c without"), QStringLiteral("alpha d_1@x")}));
    QCOMPARE(sorted(proxy, 0, texts),
             (QStringList{QStringLiteral("alpha d_1@x"), QStringLiteral("c without"),
                          QStringLiteral("mu a.9@x"), QStringLiteral("zeta b.c@x")}));
    // Only the first address of a text counts, however it is surrounded.
    QCOMPARE(sorted(proxy, 1, {QStringLiteral("(b@)z"), QStringLiteral("a@ z@"), QStringLiteral("@")}),
             (QStringList{QStringLiteral("@"), QStringLiteral("a@ z@"), QStringLiteral("(b@)z")}));
    // Each text on its own: the other column's stays whole.
    QStandardItemModel source;
    setColumn(source, 0, {QStringLiteral("m a@x"), QStringLiteral("c a@x")});
    setColumn(source, 1, {QStringLiteral("a z@x"), QStringLiteral("x b@x")});
    proxy.setSourceModel(&source);
    QVERIFY(!comesBefore(proxy, source.index(0, 1), source.index(0, 0)));
    QVERIFY(comesBefore(proxy, source.index(0, 0), source.index(0, 1)));
    QVERIFY(comesBefore(proxy, source.index(1, 1), source.index(1, 0)));
    QVERIFY(!comesBefore(proxy, source.index(1, 0), source.index(1, 1)));
    proxy.setSourceModel(nullptr);
}

/// Date-times are ordered by time; what the right cell holds is converted. What is compared is displayed,
/// whatever the base's sort role.
inline void checkDateOrder(QSortFilterProxyModel &proxy, int column)
{
    const QDateTime early(QDate(999, 12, 31), QTime(23, 59), Qt::UTC);
    const QDateTime middle(QDate(2024, 2, 1), QTime(8, 0), Qt::UTC);
    const QDateTime late(QDate(10024, 1, 1), QTime(0, 0), Qt::UTC); // Before the others as a text.
    for (const int role : {Qt::UserRole, Qt::DisplayRole}) {
        proxy.setSortRole(role);
        QCOMPARE(sorted(proxy, column, {late, early, middle}),
                 (QStringList{QVariant(early).toString(), QVariant(middle).toString(),
                              QVariant(late).toString()}));
    }
    // A text to the right is read as a time: half past twelve here, though half past seven comes first as
    // text.
    QStandardItemModel source;
    setColumn(source, column, {middle, QStringLiteral("2024-02-01T07:30:00-05:00")});
    proxy.setSourceModel(&source);
    QVERIFY(comesBefore(proxy, source.index(0, column), source.index(1, column)));
    proxy.setSourceModel(nullptr);
}

/// Clicks the header of \a column and returns what the view then shows there.
[[nodiscard]] inline QStringList sortedByClick(QAbstractItemModel &proxy, int column)
{
    QTableView view;
    view.setModel(&proxy);
    view.setSortingEnabled(true);
    view.sortByColumn(-1, Qt::AscendingOrder);
    view.resize(900, 300);
    view.show();
    if (!QTest::qWaitForWindowExposed(&view))
        return {};
    QHeaderView *header = view.horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                             header->height() / 2));
    return columnTexts(proxy, column);
}
