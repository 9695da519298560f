#include "workbench/panels/VariableForm.h"

#include "model/MetadataVariables.h"
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

namespace
{
// Columns of VariableDiccionaryModel.
enum Column { Name, Alias, Label, Group, Tag };
} // namespace

VariableForm::VariableForm(const Workspace &workspace, QWidget *parent)
    : QWidget(parent), m_workspace(workspace), m_form(new PropertyForm), m_pages(new QStackedWidget(this))
{
    build();
    buildLayout();
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
            [this] { m_workspace.document->commit({}, m_workspace.selection->entity()); });
    connect(workspace.selection, &Selection::variablesChanged, this, &VariableForm::showVariable);
    connect(workspace.document, &Document::contentChanged, this, &VariableForm::showVariable);
    showVariable();
}

VariableForm::~VariableForm()
{
    // A control that has the focus writes when it goes, which is after this.
    m_form->suspend();
}

template <auto Getter>
auto VariableForm::get() const
{
    return [this] { return (m_variable->*Getter)(); };
}

template <auto Getter>
auto VariableForm::getLayout() const
{
    return [this] {
        using Value = decltype((std::declval<const MetadataVariables &>().*Getter)());
        const MetadataVariables *metadata = m_variable->getMetadataVariables();
        return metadata ? (metadata->*Getter)() : Value();
    };
}

template <auto Setter, typename Value>
auto VariableForm::set()
{
    return [this](const Value &value) { (m_variable->*Setter)(value); };
}

template <auto Setter, typename Value>
auto VariableForm::setLayout()
{
    return [this](const Value &value) { (layout().*Setter)(value); };
}

MetadataVariables &VariableForm::layout()
{
    if (!m_variable->getMetadataVariables())
        m_variable->setMetadataVariables(new MetadataVariables);
    return *m_variable->getMetadataVariables();
}

void VariableForm::build()
{
    using V = TDcVariable;
    const auto column = [this](Column number) {
        return [this, number](const QString &text) { setColumn(number, text); };
    };
    m_form->addRow(tr("N&ame"), m_form->text(tr("Name"), get<&V::getName>(), column(Name)));
    m_form->addRow(tr("Al&ias"), m_form->text(tr("Alias"), get<&V::getAlias>(), column(Alias)));
    m_form->addRow(tr("La&bel"), m_form->text(tr("Label"), get<&V::getLabel>(), column(Label)));
    m_form->addRow(tr("&Group"), m_form->text(tr("Group"), get<&V::getGroup>(), column(Group)));
    m_form->addRow(tr("T&ype"),
                   m_form->choice(tr("Type"), VariableProperties::typeWords(), get<&V::getVarType>(),
                                  set<&V::setVarType, QString>()),
                   tr("Tag"), m_form->number(tr("Tag"), get<&V::getTag>(), [this](int tag) {
                       setColumn(Tag, QString::number(tag));
                   }));
    m_form->addRow(tr("Si&ze"), m_form->number(tr("Size"), get<&V::getSize>(), set<&V::setSize, int>()),
                   tr("Decimals"),
                   m_form->number(tr("Decimals"), get<&V::getDecimals>(), set<&V::setDecimals, int>()));
    m_form->addRow(
        tr("&Missing"),
        m_form->number(tr("Missing-value code"), get<&V::getMissing>(), set<&V::setMissing, int>()),
        tr("Not appl."),
        m_form->number(tr("Not-applicable code"), get<&V::getNotappl>(), set<&V::setNotappl, int>()));
}

void VariableForm::buildLayout()
{
    using V = TDcVariable;
    using M = MetadataVariables;
    m_form->addHeading(tr("Source record"));
    m_form->addRow(
        tr("Record"),
        m_form->text(tr("Record"), getLayout<&M::getRecord>(), setLayout<&M::setRecord, QString>()));
    m_form->addRow(tr("Field"),
                   m_form->text(tr("Field"), getLayout<&M::getField>(), setLayout<&M::setField, QString>()));
    m_form->addRow(tr("Start"),
                   m_form->number(tr("Start"), getLayout<&M::getStart>(), setLayout<&M::setStart, int>()),
                   tr("Length"),
                   m_form->number(tr("Length"), getLayout<&M::getLength>(), setLayout<&M::setLength, int>()));
    m_form->addRow(tr("Field size"),
                   m_form->number(tr("Field size"), get<&V::getFieldSize>(), set<&V::setFieldSize, int>()),
                   tr("Position"),
                   m_form->number(tr("Field position"), get<&V::getFieldRelativePosition>(),
                                  set<&V::setFieldRelativePosition, int>()));
    m_form->addRow(tr("File name"),
                   m_form->text(tr("File name"), get<&V::getFileName>(), set<&V::setFileName, QString>()));
    m_form->addRow({},
                   m_form->check(tr("Lookup"), getLayout<&M::getLookup>(), setLayout<&M::setLookup, bool>()),
                   {}, m_form->check(tr("Local"), get<&V::getLocal>(), set<&V::setLocal, bool>()));
    m_form->addRow(tr("N&otes"),
                   m_form->longText(tr("Documentation"), get<&V::getDocumentation>(),
                                    set<&V::setDocumentation, QString>()));
}

void VariableForm::showVariable()
{
    m_form->suspend();
    m_variable = m_workspace.selection->variable();
    m_pages->setCurrentIndex(m_variable ? 1 : 0);
    if (m_variable)
        m_form->refresh();
}

void VariableForm::setColumn(int column, const QString &text)
{
    TDcEntity *entity = m_workspace.selection->entity();
    VariableDiccionaryModel model(nullptr, entity, m_workspace.document->root());
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, column);
        if (index.internalPointer() == m_variable)
            model.setData(index, text, Qt::EditRole);
    }
}
