#pragma once

#include "workbench/clipboard/TabText.h"

#include <QCoreApplication>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

class PasteTarget;

/// Puts tables of text into a PasteTarget.
///
/// If the first of several rows looks like a header, columns are found by its names, in English or in the
/// interface's language and without regard to case. Where the header names the key columns, each record goes
/// to the row with the same keys, or to a new one. Otherwise the block fills rows from the current one down,
/// and without header columns from the current one to the right; what is beyond the last row is added.
class Paste
{
    Q_DECLARE_TR_FUNCTIONS(Paste)

public:
    /// Something that was not pasted as it stands.
    struct Refusal {
        int line = 0; ///< Of the text, from 1.
        QString what; ///< A column, and the text in it if there is one.
        QString why;
    };
    /// Told how many of how many rows are done; false ends the work there.
    using Progress = std::function<bool(int done, int all)>;

    QList<Refusal> refusals; ///< In the order of lines.
    QString error; ///< Why nothing at all could be pasted.

    /// Pastes \a table from \a row and \a column on, each -1 for the first.
    [[nodiscard]] static Paste into(PasteTarget &target, const TabText &table, int row, int column,
                                    const Progress &progress = {});

    /// Whether the first row of \a table names columns.
    [[nodiscard]] static bool hasHeader(const PasteTarget &target, const TabText &table);

    /// The rows of the target that took at least one value, or had it already.
    [[nodiscard]] const QSet<int> &rows() const { return m_pasted; }
    /// Everything that was refused, one line each, for the person.
    [[nodiscard]] QStringList report() const;

private:
    struct Record;
    void takeHeader(const PasteTarget &target, const TabText::Row &header);
    [[nodiscard]] QList<Record> place(PasteTarget &target, const QList<TabText::Row> &rows, int firstRow);
    void store(PasteTarget &target, const Record &record);
    void refuse(int line, const QString &what, const QString &why);

    QList<int> m_columns; // Of the target, for each cell of a row; -1 for none.
    QSet<int> m_added;
    QSet<int> m_pasted;
};
