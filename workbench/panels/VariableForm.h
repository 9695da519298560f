#pragma once

#include "workbench/Workspace.h"

#include <QWidget>

class MetadataVariables;
class PropertyForm;
class QStackedWidget;
class TDcVariable;

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
    void buildLayout();
    void showVariable();
    /// Writes through the variable table's model, with its checks and questions.
    void setColumn(int column, const QString &text);
    /// The variable's layout, made when there is none yet.
    [[nodiscard]] MetadataVariables &layout();

    /// A getter of a property of the variable, or of its layout; empty or zero without one.
    template <auto Getter>
    [[nodiscard]] auto get() const;
    template <auto Getter>
    [[nodiscard]] auto getLayout() const;
    template <auto Setter, typename Value>
    [[nodiscard]] auto set();
    template <auto Setter, typename Value>
    [[nodiscard]] auto setLayout();

    Workspace m_workspace;
    TDcVariable *m_variable = nullptr; // Not owned.
    PropertyForm *m_form;
    QStackedWidget *m_pages;
};
