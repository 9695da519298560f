#pragma once

#include "workbench/Workspace.h"

#include <QSplitter>

class RangesPanel;
class ValueLabelsPanel;
class VariableForm;

/// All there is to the current variable: its properties, its value labels and its ranges.
class Inspector : public QSplitter
{
    Q_OBJECT

public:
    explicit Inspector(const Workspace &workspace, QWidget *parent = nullptr);
    ~Inspector() override;
    Q_DISABLE_COPY_MOVE(Inspector)

    [[nodiscard]] VariableForm *form() const { return m_form; }
    [[nodiscard]] ValueLabelsPanel *valueLabels() const { return m_valueLabels; }
    [[nodiscard]] RangesPanel *ranges() const { return m_ranges; }

    /// Makes the value label or range at \a item current, if the variable has it. The address is only
    /// compared.
    void showItem(void *item);

private:
    VariableForm *m_form;
    ValueLabelsPanel *m_valueLabels;
    RangesPanel *m_ranges;
};
