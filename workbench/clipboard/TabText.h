#pragma once

#include <QCoreApplication>
#include <QList>
#include <QStringList>

/// Tables as spreadsheets put them on the clipboard: cells separated by tabs, rows by line ends.
///
/// A cell that begins with a quotation mark may hold tabs and line ends up to the closing one, and quotation
/// marks as two of them; inside other cells they are letters like any other. Line ends are told in all three
/// manners, and one after the last row adds none.
class TabText
{
    Q_DECLARE_TR_FUNCTIONS(TabText)

public:
    struct Row {
        int line = 0; ///< Where the row begins, counted from 1.
        QStringList cells; ///< None for an empty line.
    };

    QList<Row> rows;
    QString error; ///< Why the text is no table, in words; then there are no rows.

    [[nodiscard]] static TabText parse(const QString &text);
    [[nodiscard]] static QString write(const QList<QStringList> &rows);
};
