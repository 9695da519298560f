#pragma once

#include "workbench/Workspace.h"

#include <QDialog>

class ExpressionEdit;
class QHBoxLayout;
class QLabel;
class QPlainTextEdit;
class ReferenceList;
class TDcEntity;
class TDcVariable;

/// Builds an expression of entities, variables and categories of the dictionary.
class ExpressionDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ExpressionDialog(const Workspace &workspace, QWidget *parent = nullptr);

    /// Lets the action of the workspace open the dialog. If the person was writing notes then, the expression
    /// can be inserted there.
    static void addTo(const Workspace &workspace);

    /// Offers to insert the expression into \a notes. Null withdraws that.
    void setTarget(QPlainTextEdit *notes);

    [[nodiscard]] ReferenceList *entities() const { return m_entities; }
    [[nodiscard]] ReferenceList *variables() const { return m_variables; }
    [[nodiscard]] ReferenceList *categories() const { return m_categories; }
    [[nodiscard]] ExpressionEdit *editor() const { return m_editor; }

    void done(int result) override;

Q_SIGNALS:
    /// The person wants to use \a expression; the dialog closes then.
    void used(const QString &expression);

private:
    void addLists();
    void addOperators(QHBoxLayout *row);
    QWidget *addButtons();
    void showEntities();
    void showVariables();
    void showCategories();
    void check();
    [[nodiscard]] TDcEntity *entity() const;
    [[nodiscard]] TDcVariable *variable() const;

    Workspace m_workspace;
    ReferenceList *m_entities;
    ReferenceList *m_variables;
    ReferenceList *m_categories;
    ExpressionEdit *m_editor;
    QLabel *m_status;
    QWidget *m_insert = nullptr;
};
