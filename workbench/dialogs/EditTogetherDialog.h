#pragma once

#include "workbench/operations/CommonEdits.h"
#include "workbench/Workspace.h"

#include <QDialog>

#include <functional>
#include <optional>
#include <vector>

class QCheckBox;
class QFormLayout;
class QPushButton;

/// Edits properties of all selected variables at once. Each property has a box that says whether it is
/// written; it is ticked when the person touches the property. What differs is shown as several values, which
/// cannot be written.
class EditTogetherDialog : public QDialog
{
    Q_OBJECT

public:
    /// Lets the action open it.
    static void addTo(const Workspace &workspace);

    /// For the variables that are selected in \a workspace.
    explicit EditTogetherDialog(const Workspace &workspace);

    /// The box that says whether the property called \a name, in English, is written.
    [[nodiscard]] QCheckBox *box(QLatin1StringView name) const;
    /// The control that holds its value.
    [[nodiscard]] QWidget *control(QLatin1StringView name) const;

    void accept() override;

private:
    struct Row {
        const VariableProperty *property;
        QCheckBox *box;
        QWidget *control;
        /// What to write, as VariableWriter::writeText() takes it; nothing for several values.
        std::function<std::optional<QString>()> text;
    };

    void addRow(QFormLayout *form, const VariableProperty &property);
    [[nodiscard]] Row createRow(const VariableProperty &property, const QVariant &shared, QCheckBox *box);
    void updateButtons();

    Workspace m_workspace;
    QList<TDcVariable *> m_variables; // Not owned.
    std::vector<Row> m_rows;
    QPushButton *m_ok;
};
