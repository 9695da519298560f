#pragma once

#include "workbench/journal/Recovery.h"

#include <QDialog>

class QPushButton;
class QTreeWidget;

/// Offers the unsaved changes that the workbench found at its start: to recover one dictionary, to delete the
/// changes after a second question, or to leave all as it is until another time.
class RecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RecoveryDialog(const QList<LeftChanges> &changes, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The changes in \a journal, of the dictionary at \a path, which is empty if it was never saved.
    void recover(const QString &journal, const QString &path);
    void remove(const QString &journal);

private:
    void recoverCurrent();
    void removeCurrent();
    [[nodiscard]] QString current() const;

    QTreeWidget *m_list;
    QPushButton *m_recover;
    QPushButton *m_delete;
};
