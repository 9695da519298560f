#include "documents/internal/DifferenceData.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
using namespace Difference;
using Kind = DictionaryChange::Kind;
using What = DictionaryChange::What;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(DictionaryDifference)
};

QString below(const QString &path, const QString &name)
{
    return path + u'/' + name;
}

/// A range or a value label of the variable at \a path.
QString partOf(const QString &path, const QString &name)
{
    return u"%1 [%2]"_s.arg(path, name);
}

/// Gathers changes; what moves is known once both of its places are.
class Report
{
public:
    explicit Report(const DictionaryDifference::Data &data) : m_data(data) { }

    QList<DictionaryChange> changes()
    {
        for (const EntityChange &change : m_data.entities)
            noteTaken(change);
        for (const EntityChange &change : m_data.entities)
            addEntity(change);
        for (const VariableChange &change : m_data.variables)
            addVariable(change);
        return m_changes;
    }

private:
    struct From {
        QString path;
        int index;
        QString list;
    };

    void add(Kind kind, What what, const QString &path, const QString &property = {},
             const QVariant &before = {}, const QVariant &after = {})
    {
        m_changes.append({kind, what, path, property, before, after});
    }

    template <typename Object>
    void addProperties(What what, const QString &path, const PropertyChanges &changes)
    {
        const auto &properties = Properties::of(Object());
        for (const PropertyChange &change : changes) {
            const QLatin1StringView name = properties[change.property].name;
            const bool isNamed = what == What::Entity || what == What::Variable;
            const Kind kind = isNamed && name == "name"_L1 ? Kind::Renamed : Kind::Changed;
            add(kind, what, path, name, change.before, change.after);
        }
    }

    void noteTaken(const EntityChange &change)
    {
        const QString &path = change.before.names;
        for (const Place &place : change.variables.taken)
            m_variablesFrom.insert(
                place.item, {below(path, m_data.variableItems.at(place.item).name), place.index, path});
        for (const Place &place : change.children.taken)
            m_entitiesFrom.insert(place.item,
                                  {below(path, m_data.entityItems.at(place.item).name), place.index, path});
    }

    void addEntity(const EntityChange &change)
    {
        addProperties<TDcEntity>(What::Entity, change.before.names, change.properties);
        addItems(What::Entity, change, change.children, m_data.entityItems, m_entitiesFrom);
        addItems(What::Variable, change, change.variables, m_data.variableItems, m_variablesFrom);
    }

    template <typename Object>
    void addItems(What what, const EntityChange &change, const ListChange &list,
                  const QList<Item<Object>> &items, const QHash<int, From> &origins)
    {
        const bool wasThere = change.before.item < 0;
        const bool isThere = change.after.item < 0;
        for (const Place &place : list.taken) {
            if (!items.at(place.item).after && isThere)
                add(Kind::Removed, what, below(change.before.names, items.at(place.item).name));
        }
        for (const Place &place : list.placed) {
            const Item<Object> &item = items.at(place.item);
            const QString path = below(change.after.names, item.name);
            if (!item.before) {
                if (wasThere)
                    add(Kind::Added, what, path);
                continue;
            }
            const From from = origins.value(place.item);
            if (wasThere && from.list == change.before.names) // In its list.
                add(Kind::Moved, what, from.path, {}, from.index + 1, place.index + 1);
            else
                add(Kind::Moved, what, from.path, {}, from.path, path);
        }
    }

    void addVariable(const VariableChange &change)
    {
        const QString &entity = change.before.entity.names;
        const QString path = entity.isEmpty() ? change.before.name : below(entity, change.before.name);
        const VariableContent &content = change.content;
        addProperties<TDcVariable>(What::Variable, path, content.properties);
        if (content.layoutBefore != content.layoutAfter)
            add(content.layoutAfter ? Kind::Added : Kind::Removed, What::Layout, path);
        addProperties<MetadataVariables>(What::Layout, path, content.layoutProperties);
        addParts(What::Range, path, content.ranges);
        addParts(What::ValueLabel, path, content.labels);
    }

    template <typename Object>
    void addParts(What what, const QString &path, const PartsChange<Object> &parts)
    {
        QHash<int, int> origins;
        for (const auto &edit : parts.edits)
            addProperties<Object>(what, partOf(path, edit.name), edit.properties);
        for (const Place &place : parts.list.taken) {
            origins.insert(place.item, place.index);
            if (!parts.items.at(place.item).after)
                add(Kind::Removed, what, partOf(path, parts.items.at(place.item).name));
        }
        for (const Place &place : parts.list.placed) {
            const Item<Object> &item = parts.items.at(place.item);
            if (item.before)
                add(Kind::Moved, what, partOf(path, item.name), {}, origins.value(place.item) + 1,
                    place.index + 1);
            else
                add(Kind::Added, what, partOf(path, item.name));
        }
    }

    const DictionaryDifference::Data &m_data;
    QList<DictionaryChange> m_changes;
    QHash<int, From> m_entitiesFrom;
    QHash<int, From> m_variablesFrom;
};

QString shown(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return u"\"%1\""_s.arg(value.toString());
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? Texts::tr("yes") : Texts::tr("no");
    return value.toString();
}

QString nameOf(What what)
{
    switch (what) {
    case What::Entity:
        return Texts::tr("Entity");
    case What::Variable:
        return Texts::tr("Variable");
    case What::Layout:
        return Texts::tr("Layout");
    case What::Range:
        return Texts::tr("Range");
    case What::ValueLabel:
        return Texts::tr("Value label");
    }
    return {};
}
} // namespace

QString DictionaryChange::propertyText() const
{
    return Texts::tr(property.toLatin1().constData());
}

QString DictionaryChange::text() const
{
    const QString subject = u"%1 %2"_s.arg(nameOf(what), path);
    switch (kind) {
    case Kind::Added:
        return Texts::tr("%1 added").arg(subject);
    case Kind::Removed:
        return Texts::tr("%1 removed").arg(subject);
    case Kind::Moved:
        return before.typeId() == QMetaType::Int
            ? Texts::tr("%1 moved from position %2 to %3").arg(subject, before.toString(), after.toString())
            : Texts::tr("%1 moved to %2").arg(subject, after.toString());
    case Kind::Renamed:
        return Texts::tr("%1 renamed to %2").arg(subject, shown(after));
    case Kind::Changed:
        return Texts::tr("%1: %2 changed from %3 to %4")
            .arg(subject, propertyText(), shown(before), shown(after));
    }
    return {};
}

QList<DictionaryChange> DictionaryDifference::changes() const
{
    return Report(*m_data).changes();
}

QStringList DictionaryDifference::text() const
{
    const QList<DictionaryChange> list = changes();
    QStringList lines;
    std::transform(list.cbegin(), list.cend(), std::back_inserter(lines),
                   [](const DictionaryChange &change) { return change.text(); });
    return lines.isEmpty() ? QStringList{Texts::tr("No differences.")} : lines;
}
