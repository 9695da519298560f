#include "models/VariableDiccionaryModel.h"

#include "model/OwnedList.h"
#include "model/TDcEntity.h"
#include "model/ValueLabelElement.h"
#include "models/internal/FieldImport.h"
#include "models/internal/FieldPayload.h"
#include "models/internal/VariableClashes.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <algorithm>
#include <limits>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace
{
void showPlain(QMessageBox &box)
{
    box.setTextFormat(Qt::PlainText); // Names are the user's and no markup.
    box.exec();
}
} // namespace

/// The highest tag among a list's variables, counted again only when the list has changed.
class VariableDiccionaryModel::HighestTag
{
public:
    [[nodiscard]] int of(const QList<TDcVariable *> &variables)
    {
        const ListState state(variables);
        if (m_state != state) {
            m_state = state;
            std::optional<int> highest;
            for (const TDcVariable *variable : variables) {
                if (variable)
                    highest = std::max(highest.value_or(variable->getTag()), variable->getTag());
            }
            m_tag = highest.value_or(0);
        }
        return m_tag;
    }

private:
    std::optional<ListState> m_state;
    int m_tag = 0;
};

bool VariableDiccionaryModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int, int column,
                                           const QModelIndex &)
{
    if (action == Qt::IgnoreAction)
        return true;
    if (!data || !data->hasFormat(TextList::mimeType) || column > 0)
        return false;

    const QPointer guard(this); // Slots and message boxes run code that may close what is shown.
    OwnedList<TDcVariable> accepted;
    HighestTag tags;
    const QStringList fields = FieldPayload::read(data->data(TextList::mimeType));
    for (qsizetype i = 0; i < fields.size(); ++i) {
        auto variable = readField(fields.at(i), int(i), tags);
        if (variable && variable->getMetadataVariables()->getLookup() && !m_entity->getSelectable()) {
            QMessageBox box;
            box.setText(tr("Error creating") + u' ' + variable->getName() + u". "_s
                        + tr("Must be selectable entity."));
            showPlain(box);
            variable.reset();
        }
        if (!guard)
            return true;
        if (variable)
            accepted.append(std::move(variable));
    }

    const std::unique_ptr<QList<TDcVariable *>> variables(accepted.release());
    updateEntityVariables(variables.get());
    if (!guard)
        return true;
    beginResetModel();
    m_rows = *m_entity->getVariables();
    endResetModel();
    return true;
}

TDcVariable *VariableDiccionaryModel::getVariableFromJsonDrop(QString json, int position)
{
    HighestTag tags;
    return readField(json, position, tags).release();
}

/// Null if a slot has deleted the model.
std::unique_ptr<TDcVariable> VariableDiccionaryModel::readField(const QString &json, int position,
                                                                HighestTag &tags)
{
    const QPointer guard(this);
    Q_EMIT signalVariableDropped();
    if (!guard)
        return nullptr;

    auto variable = std::make_unique<TDcVariable>();
    FieldImport::read(*variable, FieldPayload::fromText(json),
                      m_splitterEnabled ? m_splitterCharacter : QString());
    const qint64 tag = qint64(tags.of(*m_entity->getVariables())) + position + 1;
    variable->setTag(int(std::min<qint64>(tag, std::numeric_limits<int>::max())));
    return variable;
}

QList<ValueLabelElement *> *VariableDiccionaryModel::loadCategories(QVariant categories)
{
    OwnedList<ValueLabelElement> elements;
    FieldImport::readCategories(categories, elements);
    return elements.release();
}

void VariableDiccionaryModel::updateEntityVariables(QList<TDcVariable *> *variables)
{
    if (!variables)
        return;
    const QPointer guard(this); // See dropMimeData().
    const bool offerSkip = variables->size() > 1;
    OwnedList<TDcVariable> pending; // What is left in it when this ends is destroyed.
    QList<TDcVariable *> &rest = *pending.get();
    rest = *variables;
    rest.removeAll(nullptr);

    const auto recount = [this, &rest] { return VariableClashes(*m_entity->getVariables(), rest); };
    VariableClashes clashes = recount();
    while (guard && !rest.isEmpty()) {
        TDcVariable *variable = rest.constFirst();
        if (!clashes.describes(*m_entity->getVariables()))
            clashes = recount();
        Overwrite answer = Overwrite::Rename;
        if (TDcVariable *twin = clashes.twinOf(*variable)) {
            answer = askOverwrite(*variable, offerSkip);
            if (!guard || answer == Overwrite::Cancel)
                return;
            if (answer == Overwrite::Yes)
                retire(twin);
            clashes = recount(); // Anything may have happened while the user was asked.
        }
        if (answer == Overwrite::Skip) {
            delete rest.takeFirst();
            continue;
        }
        if (answer == Overwrite::Rename)
            variable->setName(clashes.freeName(variable->getName()));
        m_entity->addVariables(rest.takeFirst());
        clashes.append(variable);
        Q_EMIT signalVariablesModified();
    }
}

VariableDiccionaryModel::Overwrite VariableDiccionaryModel::askOverwrite(const TDcVariable &variable,
                                                                         bool offerSkip) const
{
    QMessageBox box;
    box.setWindowTitle(tr("Overwrite variable"));
    box.setText(variable.getName() + u' ' + tr("already exists.") + u' ' + tr("Overwrite?"));
    const QAbstractButton *overwrite = box.addButton(tr("Overwrite"), QMessageBox::AcceptRole);
    const QAbstractButton *rename = box.addButton(tr("Rename"), QMessageBox::ActionRole);
    if (offerSkip)
        box.addButton(tr("Skip"), QMessageBox::RejectRole);
    const QAbstractButton *cancel = box.addButton(QMessageBox::Cancel);
    showPlain(box);
    const QAbstractButton *clicked = box.clickedButton();
    if (clicked == overwrite)
        return Overwrite::Yes;
    if (clicked == rename)
        return Overwrite::Rename;
    return clicked == cancel ? Overwrite::Cancel : Overwrite::Skip;
}

/// Takes \a variable out of the entity, and the entity's reference code with it if it is that.
void VariableDiccionaryModel::retire(TDcVariable *variable)
{
    if (!m_entity->getVariables()->contains(variable))
        return; // It went while the user was asked.
    if (variable->getName() == m_entity->getRefCode()) {
        m_entity->setRefCode({});
        m_entity->setSelectable(false); // Unlike a rename, this leaves the entities below as they are.
    }
    m_entity->retireVariable(variable);
}

void VariableDiccionaryModel::showDuplicatedNamesWarning()
{
    QList<TDcVariable *> variables = *m_entity->getVariables();
    variables.removeAll(nullptr);
    QHash<QString, int> counts;
    for (const TDcVariable *variable : std::as_const(variables))
        ++counts[variable->getName()];

    QString entries;
    for (const TDcVariable *variable : std::as_const(variables)) {
        if (counts.value(variable->getName()) > 1)
            entries +=
                tr("Name") + u": "_s + variable->getName() + u" - Alias: "_s + variable->getAlias() + u'\n';
    }
    if (entries.isEmpty())
        return;
    QMessageBox box(QMessageBox::Warning, tr("Warning") + u": "_s + tr("Duplicated names"),
                    u"Duplicated names:\n"_s + entries, QMessageBox::Ok);
    showPlain(box);
}
