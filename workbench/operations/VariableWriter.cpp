#include "workbench/operations/VariableWriter.h"

#include "common/DictionaryUtil.h"
#include "common/Validate.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/operations/Numbers.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace
{
using Kind = VariableProperty::Kind;

/// Columns of the model in which it refuses what is taken.
enum Column { Name, Alias, Group = 3 };

/// \a name as Validate::compare() compares it.
QString folded(const QString &name)
{
    return name.toUpper().trimmed();
}

std::optional<bool> flag(const QString &text)
{
    const auto isOne = [word = text.trimmed()](std::initializer_list<QString> words) {
        return std::any_of(words.begin(), words.end(), [&word](const QString &candidate) {
            return word.compare(candidate, Qt::CaseInsensitive) == 0;
        });
    };
    if (isOne({u"1"_s, u"yes"_s, u"true"_s, VariableWriter::tr("yes"), VariableWriter::tr("true")}))
        return true;
    if (isOne({u"0"_s, u"no"_s, u"false"_s, VariableWriter::tr("no"), VariableWriter::tr("false")}))
        return false;
    return std::nullopt;
}
} // namespace

VariableWriter::VariableWriter(TDcEntity *root, TDcEntity *entity)
    : m_entity(entity), m_model(nullptr, entity, root)
{
    for (int row = 0; row < m_model.rowCount(); ++row)
        m_rows.insert(entity->getVariables()->at(row), row);
    DictionaryUtil names;
    QList<QString> taken = names.getNamesEntitiesDictionary(root, {});
    taken = names.getNamesVariablesByEntities(entity, taken);
    taken = names.getAliasVariableByEntity(entity, taken);
    for (const QString &name : std::as_const(taken))
        remember(name);
}

void VariableWriter::remember(const QString &name)
{
    if (!name.isEmpty()) // Any number of aliases may be.
        m_taken.insert(folded(name));
}

/// Whether the model would store \a text without a question.
bool VariableWriter::isCertain(const TDcVariable &variable, int column, const QString &text) const
{
    if (column != Name && column != Alias && column != Group)
        return false; // The model has no names to gather, and may not store it as it is.
    if (m_taken.contains(folded(text)))
        return false;
    if (column != Name)
        return true;
    const QString name = variable.getName().trimmed();
    Validate rules;
    return rules.validateEmpty(text) && rules.validateStringC(text)
        && (name.isEmpty() || name != m_entity->getRefCode());
}

QString VariableWriter::write(TDcVariable *variable, const VariableProperty &property, const QVariant &value)
{
    // What stays as it is breaks no rule, even if it would not be accepted anew.
    if (property.get(*variable) == value)
        return {};
    const auto asStored = [&] {
        const QVariant now = property.get(*variable);
        return now == value ? QString() : tr("It was stored as \"%1\".").arg(now.toString());
    };
    if (property.column < 0) {
        property.set(*variable, value);
        return asStored();
    }
    if (property.column == Group && m_refusedGroups.contains(value.toString()))
        return m_refusedGroups.value(value.toString());
    const bool certain = isCertain(*variable, property.column, value.toString());
    const bool nameless = property.column == Name && variable->getName().trimmed().isEmpty();
    const QString code = m_entity->getRefCode();
    const QModelIndex index = m_model.index(m_rows.value(variable, -1), property.column);
    if (certain)
        property.set(*variable, value);
    const bool stored = certain || m_model.setData(index, value, Qt::EditRole);
    const QStringList said = m_messages.take();
    if (nameless)
        m_entity->setRefCode(code); // The model takes two empty names for one.
    if (stored) {
        if (property.column == Name || property.column == Alias) {
            remember(property.get(*variable).toString());
            m_refusedGroups.clear(); // One of them may have got free.
        }
        return asStored();
    }
    if (property.column == Group)
        m_refusedGroups.insert(value.toString(), said.join(u' '));
    if (!said.isEmpty())
        return said.join(u' ');
    // The model says nothing about a name that is empty, or the same but for blanks around it.
    return value.toString().trimmed().isEmpty() ? tr("A variable needs a name.") : QString();
}

QString VariableWriter::writeText(TDcVariable *variable, const VariableProperty &property,
                                  const QString &text)
{
    if (property.kind == Kind::Number) {
        if (text.trimmed().isEmpty())
            return {};
        const auto number = Numbers::whole(text);
        return number ? write(variable, property, *number) : tr("This is no whole number.");
    }
    if (property.kind == Kind::Flag) {
        if (text.trimmed().isEmpty())
            return {};
        const auto value = flag(text);
        return value ? write(variable, property, *value) : tr("This is neither yes nor no.");
    }
    return write(variable, property, text);
}

QString VariableWriter::text(const TDcVariable &variable, const VariableProperty &property)
{
    const QVariant value = property.get(variable);
    return property.kind == Kind::Flag ? QString::number(int(value.toBool())) : value.toString();
}
