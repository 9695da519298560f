#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A table that rows of text can be pasted into. Rows and columns are counted as they are displayed; columns
/// that are not displayed follow behind the others.
class PasteTarget
{
public:
    struct Column {
        QString name; ///< In the interface's language.
        QString english;
    };

    PasteTarget() = default;
    virtual ~PasteTarget() = default;
    Q_DISABLE_COPY_MOVE(PasteTarget)

    [[nodiscard]] virtual QList<Column> columns() const = 0;
    /// How many of the columns are displayed; a block without header fills these alone.
    [[nodiscard]] virtual int displayedColumns() const = 0;
    /// The columns that tell which row a record is.
    [[nodiscard]] virtual QList<int> keyColumns() const = 0;
    [[nodiscard]] virtual int rowCount() const = 0;
    /// The row that \a keys, one text for each key column, belong to; -1 when there is none. One that is not
    /// displayed gets a number behind the others.
    [[nodiscard]] virtual int find(const QStringList &keys) = 0;
    /// Adds an empty row at the end, which find() gives for \a keys if there are any. All rows are added
    /// before the first cell is stored.
    virtual void add(const QStringList &keys) = 0;
    /// Stores \a text in a cell. Returns why that was refused; empty when it was not.
    [[nodiscard]] virtual QString store(int row, int column, const QString &text) = 0;
    /// Takes back a row that was added.
    virtual void discard(int row) = 0;
    /// All cells are stored.
    virtual void finish() { }
};
