#include "workbench/operations/VariableProperties.h"

#include "common/Constants.h"
#include "model/MetadataVariables.h"
#include "model/TDcVariable.h"

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
                if (!variable.getMetadataVariables())
                    variable.setMetadataVariables(new MetadataVariables);
                (variable.getMetadataVariables()->*setter)(value.value<Value>());
            }};
}

#define NAME(text) QT_TRANSLATE_NOOP("VariableProperties", text)
} // namespace

QString VariableProperty::title() const
{
    return QCoreApplication::translate("VariableProperties", name);
}

const QList<VariableProperty> &VariableProperties::all()
{
    using V = TDcVariable;
    using M = MetadataVariables;
    static const QList<VariableProperty> properties{
        own<&V::getName, &V::setName>(NAME("Name"), Kind::Text, 0),
        own<&V::getAlias, &V::setAlias>(NAME("Alias"), Kind::Text, 1),
        own<&V::getLabel, &V::setLabel>(NAME("Label"), Kind::Text, 2),
        own<&V::getGroup, &V::setGroup>(NAME("Group"), Kind::Text, 3),
        own<&V::getTag, &V::setTag>(NAME("Tag"), Kind::Number, 4),
        own<&V::getVarType, &V::setVarType>(NAME("Type"), Kind::TypeWord),
        own<&V::getSize, &V::setSize>(NAME("Size"), Kind::Number),
        own<&V::getDecimals, &V::setDecimals>(NAME("Decimals"), Kind::Number),
        own<&V::getMissing, &V::setMissing>(NAME("Missing-value code"), Kind::Number),
        own<&V::getNotappl, &V::setNotappl>(NAME("Not-applicable code"), Kind::Number),
        ofLayout<&M::getRecord, &M::setRecord>(NAME("Record"), Kind::Text),
        ofLayout<&M::getField, &M::setField>(NAME("Field"), Kind::Text),
        ofLayout<&M::getStart, &M::setStart>(NAME("Start"), Kind::Number),
        ofLayout<&M::getLength, &M::setLength>(NAME("Length"), Kind::Number),
        own<&V::getFieldSize, &V::setFieldSize>(NAME("Field size"), Kind::Number),
        own<&V::getFieldRelativePosition, &V::setFieldRelativePosition>(NAME("Field position"), Kind::Number),
        own<&V::getFileName, &V::setFileName>(NAME("File name"), Kind::Text),
        ofLayout<&M::getLookup, &M::setLookup>(NAME("Lookup"), Kind::Flag),
        own<&V::getLocal, &V::setLocal>(NAME("Local"), Kind::Flag),
        own<&V::getDocumentation, &V::setDocumentation>(NAME("Documentation"), Kind::LongText),
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
