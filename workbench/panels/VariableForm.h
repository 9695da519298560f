#pragma once

#include "workbench/Workspace.h"

#include <QWidget>

class PropertyForm;
class QStackedWidget;
class TDcVariable;
struct VariableProperty;

/// All properties of the current variable in a form, ranges and value labels aside.
class VariableForm : public QWidget
{
    Q_OBJECT

public:
    explicit VariableForm(const Workspace &workspace, QWidget *parent = nullptr);
    ~VariableForm() override;
    Q_DISABLE_COPY_MOVE(VariableForm)

private:
    void build();
    /// A control of the property called \a name in English.
    [[nodiscard]] QWidget *control(QLatin1StringView name);
    void showVariable();
    void write(const VariableProperty &property, const QVariant &value);
    /// Writes through the variable table's model, with its checks and questions.
    void setColumn(int column, const QVariant &value);

    Workspace m_workspace;
    TDcVariable *m_variable = nullptr; // Not owned.
    QString m_step; // What the edit under way is called; empty to let the document find words.
    PropertyForm *m_form;
    QStackedWidget *m_pages;
};
