#include "cli/FieldDrop.h"

#include "cli/Failure.h"
#include "cli/Text.h"
#include "model/OwnedList.h"
#include "model/TDcEntity.h"

#include <QDataStream>
#include <QHash>
#include <QMimeData>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto payloadType = "application/vnd.text.list"_L1;

/// What makes a drop take a variable for one that is there; new variables have no group.
using Identity = QStringList;

Identity identity(const TDcVariable &variable)
{
    return {variable.getName(), variable.getAlias(), variable.getLabel()};
}
} // namespace

namespace Cli
{
FieldDrop::FieldDrop(TDcEntity &entity, QList<TDcSourceField *> &fields, const QString &record)
    : m_entity(entity), m_source(nullptr, &fields, record), m_target(nullptr, &entity, &entity)
{
}

// The two halves of a drop, reading and adding, with a look at what was read between them.
QStringList FieldDrop::run()
{
    const QStringList texts = payload();
    OwnedList<TDcVariable> made;
    for (qsizetype i = 0; i < texts.size(); ++i)
        made.append(std::unique_ptr<TDcVariable>(m_target.getVariableFromJsonDrop(texts.at(i), int(i))));
    refuseTwins(*made.get());

    QStringList names;
    for (const TDcVariable *variable : std::as_const(*made.get()))
        names.append(variable->getName());
    const std::unique_ptr<QList<TDcVariable *>> variables(made.release());
    m_target.updateEntityVariables(variables.get());

    QStringList messages;
    QHash<QString, int> uses;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const TDcVariable &variable = *m_entity.getVariables()->at(i);
        const QString name = variable.getName();
        ++uses[name];
        if (name != names.at(i))
            messages.append(
                u"field \"%1\": its variable is called \"%2\", since there is a \"%3\" already"_s.arg(
                    variable.getMetadataVariables()->getField(), name, names.at(i)));
    }
    QStringList repeated = uses.keys();
    repeated.removeIf([&uses](const QString &name) { return uses.value(name) == 1; });
    repeated.sort();
    for (const QString &name : std::as_const(repeated))
        messages.append(u"%1 variables are called \"%2\"%3"_s.arg(uses.value(name)).arg(name, hint()));
    return messages;
}

/// The texts that are dragged when all fields are.
QStringList FieldDrop::payload() const
{
    QModelIndexList indexes;
    for (int row = 0; row < m_source.rowCount(); ++row)
        indexes.append(m_source.index(row, 0));
    const std::unique_ptr<QMimeData> data(m_source.mimeData(indexes));
    QDataStream stream(data->data(payloadType));
    QStringList texts;
    while (!stream.atEnd())
        stream >> texts.emplaceBack();
    return texts;
}

QString FieldDrop::hint() const
{
    return m_target.getSplitterEnabled() ? u" (--no-split keeps the fields' names whole)"_s : QString();
}

/// Refuses variables that a drop would ask about. One with the name of another gets a letter, and may then be
/// like a third one that has this name from the start.
void FieldDrop::refuseTwins(const QList<TDcVariable *> &variables) const
{
    QHash<QString, int> uses;
    for (const TDcVariable *variable : variables)
        ++uses[variable->getName()];

    QHash<Identity, QString> fields;
    const auto refuse = [this](const QString &first, const QString &second) {
        throw Failure(u"the fields \"%1\" and \"%2\" make the same variable%3"_s.arg(
            first, second, first == second ? QString() : hint()));
    };
    for (const TDcVariable *variable : variables) {
        const QString field = variable->getMetadataVariables()->getField();
        if (const auto twin = fields.constFind(identity(*variable)); twin != fields.cend())
            refuse(*twin, field);
        fields.insert(identity(*variable), field);
    }
    for (const TDcVariable *variable : variables) {
        if (uses.value(variable->getName()) == 1)
            continue;
        for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
            Identity lettered = identity(*variable);
            lettered.first() += u'_' + QString(QChar(letter));
            if (const auto twin = fields.constFind(lettered); twin != fields.cend())
                refuse(variable->getMetadataVariables()->getField(), *twin);
        }
    }
}
} // namespace Cli
