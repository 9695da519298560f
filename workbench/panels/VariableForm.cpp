#include "workbench/panels/VariableForm.h"

#include "model/TDcVariable.h"
#include "models/VariableDiccionaryModel.h"
#include "workbench/Document.h"
#include "workbench/operations/VariableProperties.h"
#include "workbench/panels/PropertyForm.h"
#include "workbench/panels/Widgets.h"
#include "workbench/Selection.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

VariableForm::VariableForm(const Workspace &workspace, QWidget *parent)
    : QWidget(parent), m_workspace(workspace), m_form(new PropertyForm), m_pages(new QStackedWidget(this))
{
    build();
    auto *nothing = new QLabel(tr("Select a variable to see its properties."), this);
    nothing->setAlignment(Qt::AlignCenter);
    nothing->setWordWrap(true);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    m_pages->addWidget(nothing);
    m_pages->addWidget(Widgets::scrolled(m_form, this));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_pages);

    connect(m_form, &PropertyForm::edited, this,
            [this] { m_workspace.document->commit(m_step, m_workspace.selection->entity()); });
    connect(workspace.selection, &Selection::variablesChanged, this, &VariableForm::showVariable);
    connect(workspace.document, &Document::contentChanged, this, &VariableForm::showVariable);
    showVariable();
}

VariableForm::~VariableForm()
{
    // A control that has the focus writes when it goes, which is after this.
    m_form->suspend();
}

void VariableForm::build()
{
    m_form->addRow(tr("N&ame"), control("Name"_L1));
    m_form->addRow(tr("Al&ias"), control("Alias"_L1));
    m_form->addRow(tr("La&bel"), control("Label"_L1));
    m_form->addRow(tr("&Group"), control("Group"_L1));
    m_form->addRow(tr("T&ype"), control("Type"_L1), tr("Tag"), control("Tag"_L1));
    m_form->addRow(tr("Si&ze"), control("Size"_L1), tr("Decimals"), control("Decimals"_L1));
    m_form->addRow(tr("&Missing"), control("Missing-value code"_L1), tr("Not appl."),
                   control("Not-applicable code"_L1));
    m_form->addHeading(tr("Source record"));
    m_form->addRow(tr("Record"), control("Record"_L1));
    m_form->addRow(tr("Field"), control("Field"_L1));
    m_form->addRow(tr("Start"), control("Start"_L1), tr("Length"), control("Length"_L1));
    m_form->addRow(tr("File name"), control("File name"_L1));
    m_form->addRow({}, control("Lookup"_L1), {}, control("Local"_L1));
    m_form->addRow(tr("N&otes"), control("Documentation"_L1));
}

QWidget *VariableForm::control(QLatin1StringView name)
{
    using Kind = VariableProperty::Kind;
    const VariableProperty &property = VariableProperties::named(name);
    const QString title = property.title();
    const auto text = [this, &property] { return property.get(*m_variable).toString(); };
    const auto set = [this, &property](const auto &value) { write(property, value); };
    switch (property.kind) {
    case Kind::Text:
        return m_form->text(title, text, set);
    case Kind::LongText:
        return m_form->longText(title, text, set);
    case Kind::TypeWord:
        return m_form->choice(title, VariableProperties::typeWords(), text, set);
    case Kind::Number:
        return m_form->number(
            title, [this, &property] { return property.get(*m_variable).toInt(); }, set);
    case Kind::Flag:
        return m_form->check(
            title, [this, &property] { return property.get(*m_variable).toBool(); }, set);
    }
    Q_UNREACHABLE();
}

void VariableForm::showVariable()
{
    m_form->suspend();
    m_variable = m_workspace.selection->variable();
    m_pages->setCurrentIndex(m_variable ? 1 : 0);
    if (m_variable)
        m_form->refresh();
}

void VariableForm::write(const VariableProperty &property, const QVariant &value)
{
    m_step = property.step(*m_variable);
    if (property.column < 0)
        property.set(*m_variable, value);
    else
        setColumn(property.column, value);
}

void VariableForm::setColumn(int column, const QVariant &value)
{
    TDcEntity *entity = m_workspace.selection->entity();
    VariableDiccionaryModel model(nullptr, entity, m_workspace.document->root());
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, column);
        if (index.internalPointer() == m_variable)
            model.setData(index, value, Qt::EditRole);
    }
}
