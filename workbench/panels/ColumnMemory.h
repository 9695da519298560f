#pragma once

#include <QByteArray>
#include <QString>

class QTableView;

/// Remembers how wide the columns of a table are and how they are ordered: while the table has no model, and
/// from one start of the program to the next. How rows are sorted lasts only as long as the program.
///
/// A member of what owns the table: it looks at the table for the last time when it goes.
class ColumnMemory
{
public:
    /// \a name is the table's in the settings. \a table is not owned.
    ColumnMemory(QTableView *table, const QString &name);
    ~ColumnMemory();
    Q_DISABLE_COPY_MOVE(ColumnMemory)

    /// Looks at the columns; to be called before the table loses its model.
    void take();
    /// Lays out the columns as they were. False when nothing is known of them, or not of these.
    bool restore();

private:
    QTableView *m_table; // Not owned.
    QString m_name;
    QByteArray m_state; // Of the header; empty when nothing is known.
    bool m_fromSettings = true; // The state is that of the last time the program ran.
};
