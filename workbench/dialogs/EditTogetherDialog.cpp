#include "workbench/dialogs/EditTogetherDialog.h"

#include "model/TDcVariable.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/panels/Widgets.h"
#include "workbench/PlainMessage.h"
#include "workbench/Selection.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// Lets \a field say what it means that it is empty.
template <typename Field>
void explainEmptiness(Field *field, const QCheckBox *box, bool mixed)
{
    const auto explain = [field, box, mixed] {
        field->setPlaceholderText(box->isChecked() ? EditTogetherDialog::tr("will be emptied")
                                      : mixed      ? EditTogetherDialog::tr("several values")
                                                   : QString());
    };
    QObject::connect(box, &QCheckBox::toggled, field, explain);
    explain();
}
} // namespace

void EditTogetherDialog::addTo(const Workspace &workspace)
{
    QAction *action = (*workspace.actions)[ActionId::VariableEditTogether];
    connect(action, &QAction::triggered, workspace.window, [workspace] {
        auto *dialog = new EditTogetherDialog(workspace);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
    const auto update = [workspace, action] {
        action->setEnabled(workspace.selection->variables().size() > 1);
    };
    connect(workspace.selection, &Selection::variablesChanged, action, update);
    update();
}

EditTogetherDialog::EditTogetherDialog(const Workspace &workspace)
    : QDialog(workspace.window), m_workspace(workspace), m_variables(workspace.selection->variables())
{
    setObjectName(u"editTogetherDialog"_s);
    setWindowTitle(tr("Edit Variables Together"));
    resize(560, 680);

    auto *explanation = new QLabel(
        tr("%L1 variables are selected. What is ticked is written to all of them; the rest stays as it is.")
            .arg(m_variables.size()),
        this);
    explanation->setWordWrap(true);
    auto *fields = new QWidget(this);
    auto *form = new QFormLayout(fields);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (const VariableProperty &property : VariableProperties::all()) {
        if (property.isShared())
            addRow(form, property);
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setText(tr("&Write to All"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(explanation);
    layout->addWidget(Widgets::scrolled(fields, this));
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // The variables may go with the change.
    connect(workspace.document, &Document::structureAboutToChange, this, &QDialog::reject);
    updateButtons();
}

void EditTogetherDialog::addRow(QFormLayout *form, const VariableProperty &property)
{
    auto *box = new QCheckBox(property.title(), this);
    box->setAccessibleName(tr("Write %1").arg(property.title()));
    Row row = createRow(property, CommonEdits::shared(m_variables, property), box);
    row.control->setAccessibleName(property.title());
    connect(box, &QCheckBox::toggled, this, [this, box, control = row.control, text = row.text](bool on) {
        if (on && !text()) {
            // There is nothing to write yet.
            box->setChecked(false);
            control->setFocus();
        }
        updateButtons();
    });
    form->addRow(box, row.control);
    m_rows.push_back(std::move(row));
}

EditTogetherDialog::Row EditTogetherDialog::createRow(const VariableProperty &property,
                                                      const QVariant &shared, QCheckBox *box)
{
    using Kind = VariableProperty::Kind;
    const bool mixed = !shared.isValid();
    // Mixed values that are typed over and deleted again stay as they are.
    const auto touch = [box, mixed](const QString &text) { box->setChecked(!mixed || !text.isEmpty()); };
    switch (property.kind) {
    case Kind::Flag: {
        auto *control = new QCheckBox(tr("Yes"), this);
        control->setTristate(mixed);
        control->setCheckState(mixed ? Qt::PartiallyChecked : shared.toBool() ? Qt::Checked : Qt::Unchecked);
        control->setToolTip(mixed ? tr("several values") : QString());
        connect(control, &QCheckBox::clicked, box, [control, box] {
            control->setTristate(false);
            box->setChecked(true);
        });
        return {&property, box, control, [control] {
                    return control->checkState() == Qt::PartiallyChecked
                        ? std::nullopt
                        : std::optional(QString::number(int(control->isChecked())));
                }};
    }
    case Kind::LongText: {
        auto *control = new QPlainTextEdit(shared.toString(), this);
        control->setTabChangesFocus(true);
        control->setMaximumHeight(control->fontMetrics().lineSpacing() * 4 + 12);
        explainEmptiness(control, box, mixed);
        connect(control, &QPlainTextEdit::textChanged, box,
                [control, touch] { touch(control->toPlainText()); });
        return {&property, box, control, [control] { return control->toPlainText(); }};
    }
    case Kind::TypeWord: {
        auto *control = new QComboBox(this);
        control->setEditable(true);
        control->addItems(VariableProperties::typeWords());
        control->view()->setAccessibleName(property.title());
        control->setEditText(shared.toString());
        explainEmptiness(control->lineEdit(), box, mixed);
        connect(control, &QComboBox::editTextChanged, box, touch);
        return {&property, box, control, [control] { return control->currentText(); }};
    }
    case Kind::Number: {
        auto *control = new QLineEdit(shared.toString(), this);
        control->setPlaceholderText(mixed ? tr("several values") : QString());
        control->setValidator(new QIntValidator(control));
        // A number that is deleted is none to write.
        connect(control, &QLineEdit::textEdited, box,
                [box](const QString &text) { box->setChecked(!text.isEmpty()); });
        return {&property, box, control, [control] {
                    return control->text().isEmpty() ? std::nullopt : std::optional(control->text());
                }};
    }
    case Kind::Text:
        break;
    }
    auto *control = new QLineEdit(shared.toString(), this);
    explainEmptiness(control, box, mixed);
    connect(control, &QLineEdit::textEdited, box, touch);
    return {&property, box, control, [control] { return control->text(); }};
}

QCheckBox *EditTogetherDialog::box(QLatin1StringView name) const
{
    const auto row = std::find_if(m_rows.cbegin(), m_rows.cend(), [name](const Row &each) {
        return QLatin1StringView(each.property->name) == name;
    });
    return row == m_rows.cend() ? nullptr : row->box;
}

QWidget *EditTogetherDialog::control(QLatin1StringView name) const
{
    const auto row = std::find_if(m_rows.cbegin(), m_rows.cend(), [name](const Row &each) {
        return QLatin1StringView(each.property->name) == name;
    });
    return row == m_rows.cend() ? nullptr : row->control;
}

void EditTogetherDialog::updateButtons()
{
    m_ok->setEnabled(
        std::any_of(m_rows.cbegin(), m_rows.cend(), [](const Row &row) { return row.box->isChecked(); }));
}

void EditTogetherDialog::accept()
{
    QList<CommonEdits::Change> changes;
    for (const Row &row : m_rows) {
        if (row.box->isChecked())
            changes.append({row.property, row.text().value_or(QString())});
    }
    Document *document = m_workspace.document;
    TDcEntity *entity = m_workspace.selection->entity();
    const QStringList refused = CommonEdits::apply(document->root(), entity, m_variables, changes);
    document->commit(tr("edit of %L1 variables").arg(m_variables.size()), entity);
    QDialog::accept();
    if (refused.isEmpty())
        return;
    auto *report = new PlainMessage(QMessageBox::Warning, tr("Edit Variables Together"),
                                    tr("Not everything could be written:"), refused.join(u'\n'),
                                    QMessageBox::Ok, m_workspace.window);
    report->setObjectName(u"editTogetherReport"_s);
    report->setAttribute(Qt::WA_DeleteOnClose);
    report->open();
}
