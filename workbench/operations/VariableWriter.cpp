#include "workbench/operations/VariableWriter.h"

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/operations/Numbers.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace
{
using Kind = VariableProperty::Kind;

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

VariableWriter::VariableWriter(TDcEntity *root, TDcEntity *entity) : m_model(nullptr, entity, root)
{
    for (int row = 0; row < m_model.rowCount(); ++row)
        m_rows.insert(entity->getVariables()->at(row), row);
}

QString VariableWriter::write(TDcVariable *variable, const VariableProperty &property, const QVariant &value)
{
    // What stays as it is breaks no rule, even if it would not be accepted anew.
    if (property.get(*variable) == value)
        return {};
    if (property.column < 0) {
        property.set(*variable, value);
        return {};
    }
    const QModelIndex index = m_model.index(m_rows.value(variable, -1), property.column);
    const bool stored = m_model.setData(index, value, Qt::EditRole);
    const QStringList said = m_messages.take();
    if (stored) {
        const QVariant now = property.get(*variable);
        return now == value ? QString() : tr("It was stored as \"%1\".").arg(now.toString());
    }
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
