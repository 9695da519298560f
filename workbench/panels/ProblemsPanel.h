#pragma once

#include "workbench/Workspace.h"

#include <QList>
#include <QString>
#include <QWidget>

class QStandardItemModel;
class QTableView;

/// Something in the dictionary that deserves a look.
struct Problem {
    enum class Severity { Error, Warning, Note };

    Severity severity = Severity::Warning;
    QString path; ///< "ENTITY" or "ENTITY/VARIABLE", as Selection::select() takes it.
    QString message;
    QString suggestion; ///< What to do about it; may be empty.
};

/// What the checks found. Activating a row shows the place in the other panels.
class ProblemsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ProblemsPanel(const Workspace &workspace, QWidget *parent = nullptr);

    [[nodiscard]] QTableView *view() const { return m_view; }
    void setProblems(const QList<Problem> &problems);

private:
    QTableView *m_view;
    QStandardItemModel *m_model;
};
