#include "workbench/panels/EntityForm.h"

#include "common/DictionaryUtil.h"
#include "model/TDcEntity.h"
#include "models/DictionaryTreeModel.h"
#include "workbench/Document.h"
#include "workbench/operations/EntityEdits.h"
#include "workbench/operations/VariableEdits.h"
#include "workbench/panels/PropertyForm.h"
#include "workbench/panels/Widgets.h"
#include "workbench/proxies/RealRowProxy.h"
#include "workbench/Selection.h"

#include <QCheckBox>
#include <QCompleter>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringListModel>
#include <QVBoxLayout>

EntityForm::EntityForm(const Workspace &workspace, QWidget *parent)
    : QWidget(parent), m_workspace(workspace), m_form(new PropertyForm), m_names(new QStringListModel(this))
{
    build();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(Widgets::scrolled(m_form, this));

    connect(m_form, &PropertyForm::edited, this, [this] { m_workspace.document->commit({}, m_entity); });
    connect(workspace.selection, &Selection::entityChanged, this, &EntityForm::showEntity);
    connect(workspace.document, &Document::contentChanged, this, &EntityForm::showEntity);
    showEntity();
}

EntityForm::~EntityForm()
{
    // A control that has the focus writes when it goes, which is after this.
    m_form->suspend();
}

template <auto Getter>
auto EntityForm::get() const
{
    return [this] { return (m_entity->*Getter)(); };
}

template <auto Setter, typename Value>
auto EntityForm::set()
{
    return [this](const Value &value) { (m_entity->*Setter)(value); };
}

void EntityForm::build()
{
    using E = TDcEntity;
    m_form->addRow(
        tr("Name"),
        m_form->text(tr("Entity name"), get<&E::getName>(), [this](const QString &name) { rename(name); }));
    m_form->addRow(tr("Label"),
                   m_form->text(tr("Entity label"), get<&E::getLabel>(), set<&E::setLabel, QString>()));
    m_form->addRow(tr("Alias"),
                   m_form->text(tr("Entity alias"), get<&E::getAlias>(), set<&E::setAlias, QString>()));
    const auto setRole = [this](VariableEdits::Role role) {
        return [this, role](const QString &name) { VariableEdits::setRole(*m_entity, role, name); };
    };
    using enum VariableEdits::Role;
    m_form->addRow(
        tr("Code"),
        offerVariables(m_form->text(tr("Reference code variable"), get<&E::getRefCode>(), setRole(RefCode))));
    m_form->addRow(tr("Text"),
                   offerVariables(m_form->text(tr("Reference label variable"), get<&E::getRefLabel>(),
                                               setRole(RefLabel))));
    m_form->addRow(
        tr("Weight"),
        offerVariables(m_form->text(tr("Weight variable"), get<&E::getWeightVariable>(), setRole(Weight))));
    m_form->addRow(
        {},
        m_form->check(tr("Selectable"), get<&E::getSelectable>(),
                      [this](bool selectable) { EntityEdits::setSelectable(m_entity, selectable); }),
        {}, m_form->check(tr("Virtual"), get<&E::getIsvirtual>(), set<&E::setIsvirtual, bool>()));
    m_form->addRow(tr("Notes"),
                   m_form->longText(tr("Entity documentation"), get<&E::getDocumentationEntity>(),
                                    set<&E::setDocumentationEntity, QString>()));
}

QLineEdit *EntityForm::offerVariables(QLineEdit *field)
{
    auto *completer = new QCompleter(m_names, field);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    field->setCompleter(completer);
    field->setPlaceholderText(tr("None"));
    return field;
}

void EntityForm::showEntity()
{
    m_form->suspend();
    m_entity = m_workspace.selection->entity();
    setEnabled(m_entity);
    m_names->setStringList(DictionaryUtil().getNamesVariablesByEntities(m_entity, {}));
    if (m_entity)
        m_form->refresh();
}

void EntityForm::rename(const QString &name)
{
    DictionaryTreeModel model(nullptr, m_workspace.document->root());
    RealRowProxy tree;
    tree.setSourceModel(&model);
    tree.setData(tree.indexOf(m_entity), name, Qt::EditRole);
}
