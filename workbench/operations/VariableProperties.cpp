#include "workbench/operations/VariableProperties.h"

#include "common/Constants.h"
#include "workbench/operations/Layouts.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
using Kind = VariableProperty::Kind;

template <auto getter, auto setter>
constexpr VariableProperty own(const char *name, Kind kind, int column = -1)
{
    using Value = decltype((std::declval<const TDcVariable &>().*getter)());
    return {name, kind, column, [](const TDcVariable &variable) { return QVariant((variable.*getter)()); },
            [](TDcVariable &variable, const QVariant &value) { (variable.*setter)(value.value<Value>()); }};
}

template <auto getter, auto setter>
constexpr VariableProperty ofLayout(const char *name, Kind kind)
{
    using Value = decltype((std::declval<const MetadataVariables &>().*getter)());
    return {name, kind, -1,
            [](const TDcVariable &variable) {
                const MetadataVariables *layout = variable.getMetadataVariables();
                return QVariant(layout ? (layout->*getter)() : Value());
            },
            [](TDcVariable &variable, const QVariant &value) {
                (Layouts::of(variable).*setter)(value.value<Value>());
            }};
}

/// Where the values begin in their record. The layout keeps it as it is read, where 0 is the first place, and
/// the variable as it is written.
QVariant start(const TDcVariable &variable)
{
    const MetadataVariables *layout = variable.getMetadataVariables();
    const int kept = layout ? layout->getStart() : 0;
    return kept > 0 ? kept : variable.getFieldRelativePosition();
}

void setStart(TDcVariable &variable, const QVariant &value)
{
    const int place = std::max(1, value.toInt());
    Layouts::of(variable).setStart(place > 1 ? place : 0);
    variable.setFieldRelativePosition(place);
}

/// How many places the values take there. It is read into both, and written from the variable.
QVariant length(const TDcVariable &variable)
{
    return variable.getFieldSize();
}

void setLength(TDcVariable &variable, const QVariant &value)
{
    Layouts::of(variable).setLength(value.toInt());
    variable.setFieldSize(value.toInt());
}
} // namespace

QString VariableProperty::title() const
{
    return QCoreApplication::translate("VariableProperties", name);
}

QString VariableProperty::step(const TDcVariable &variable) const
{
    return stepName ? QCoreApplication::translate("VariableProperties", stepName).arg(variable.getName())
                    : QString();
}

const QList<VariableProperty> &VariableProperties::all()
{
    using V = TDcVariable;
    using M = MetadataVariables;
    static const QList<VariableProperty> properties{
        own<&V::getName, &V::setName>(QT_TRANSLATE_NOOP("VariableProperties", "Name"), Kind::Text, 0),
        own<&V::getAlias, &V::setAlias>(QT_TRANSLATE_NOOP("VariableProperties", "Alias"), Kind::Text, 1),
        own<&V::getLabel, &V::setLabel>(QT_TRANSLATE_NOOP("VariableProperties", "Label"), Kind::Text, 2),
        own<&V::getGroup, &V::setGroup>(QT_TRANSLATE_NOOP("VariableProperties", "Group"), Kind::Text, 3),
        own<&V::getTag, &V::setTag>(QT_TRANSLATE_NOOP("VariableProperties", "Tag"), Kind::Number, 4),
        own<&V::getVarType, &V::setVarType>(QT_TRANSLATE_NOOP("VariableProperties", "Type"), Kind::TypeWord),
        own<&V::getSize, &V::setSize>(QT_TRANSLATE_NOOP("VariableProperties", "Size"), Kind::Number),
        own<&V::getDecimals, &V::setDecimals>(QT_TRANSLATE_NOOP("VariableProperties", "Decimals"),
                                              Kind::Number),
        own<&V::getMissing, &V::setMissing>(QT_TRANSLATE_NOOP("VariableProperties", "Missing-value code"),
                                            Kind::Number),
        own<&V::getNotappl, &V::setNotappl>(QT_TRANSLATE_NOOP("VariableProperties", "Not-applicable code"),
                                            Kind::Number),
        ofLayout<&M::getRecord, &M::setRecord>(QT_TRANSLATE_NOOP("VariableProperties", "Record"), Kind::Text),
        ofLayout<&M::getField, &M::setField>(QT_TRANSLATE_NOOP("VariableProperties", "Field"), Kind::Text),
        {QT_TRANSLATE_NOOP("VariableProperties", "Start"), Kind::Number, -1, start, setStart,
         QT_TRANSLATE_NOOP("VariableProperties", "start of %1")},
        {QT_TRANSLATE_NOOP("VariableProperties", "Length"), Kind::Number, -1, length, setLength,
         QT_TRANSLATE_NOOP("VariableProperties", "length of %1")},
        own<&V::getFileName, &V::setFileName>(QT_TRANSLATE_NOOP("VariableProperties", "File name"),
                                              Kind::Text),
        ofLayout<&M::getLookup, &M::setLookup>(QT_TRANSLATE_NOOP("VariableProperties", "Lookup"), Kind::Flag),
        own<&V::getLocal, &V::setLocal>(QT_TRANSLATE_NOOP("VariableProperties", "Local"), Kind::Flag),
        own<&V::getDocumentation, &V::setDocumentation>(
            QT_TRANSLATE_NOOP("VariableProperties", "Documentation"), Kind::LongText),
    };
    return properties;
}

const VariableProperty &VariableProperties::named(QLatin1StringView name)
{
    const auto found = std::find_if(all().cbegin(), all().cend(), [name](const VariableProperty &property) {
        return QLatin1StringView(property.name) == name;
    });
    Q_ASSERT(found != all().cend());
    return *found;
}

QStringList VariableProperties::typeWords()
{
    return {Constants::typeInteger, Constants::typeReal, Constants::typeString, u"BOOL"_s};
}
