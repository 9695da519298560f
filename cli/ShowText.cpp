#include "cli/ShowText.h"

#include "cli/Table.h"
#include "cli/Text.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <QHash>

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;
using Cli::Table;
using Cli::Text::counted;
using Cli::Text::printable;

namespace
{
// Columns of the terminal that a text may take before it goes on in the next line.
constexpr int labelWidth = 36;
constexpr int groupWidth = 20;
constexpr int valuesWidth = 44;
constexpr int documentationWidth = 100;

QString named(const QString &name)
{
    return name.isEmpty() ? u"(no name)"_s : printable(name);
}

Table::Cell cell(const QString &text)
{
    return {printable(text)};
}

// The tree

/// The lines that lead to \a shown in a drawing of the tree, and those that lead on to its children.
struct Branch {
    QString own;
    QString below;
};

Branch branch(const Cli::ShownEntity &shown, const QString &above)
{
    const bool last = shown.parent->getChildren()->last() == shown.entity;
    return {above + (last ? u"└─ "_s : u"├─ "_s), above + (last ? u"   "_s : u"│  "_s)};
}

QString marks(const TDcEntity &entity)
{
    QStringList marks;
    if (entity.getSelectable())
        marks.append(u"selectable"_s);
    if (entity.getIsvirtual())
        marks.append(u"virtual"_s);
    return marks.join(u", "_s);
}

void printTree(const QList<Cli::ShownEntity> &entities, Cli::Output &output)
{
    Table table({{u"Entity"_s},
                 {u"Label"_s, Table::Left, labelWidth},
                 {u"Level"_s, Table::Right},
                 {u"Reference code"_s},
                 {u"Reference label"_s},
                 {u"Weight"_s},
                 {u"Marks"_s},
                 {u"Variables"_s, Table::Right}});
    QHash<const TDcEntity *, QString> below;
    for (const Cli::ShownEntity &shown : entities) {
        const TDcEntity &entity = *shown.entity;
        // An entity that was asked for stands without those above it, and so without a branch.
        const bool hangs = below.contains(shown.parent);
        const Branch lines = hangs ? branch(shown, below.value(shown.parent)) : Branch();
        below.insert(&entity, lines.below);
        table.addRow({{Table::Line(lines.own, named(entity.getName()))},
                      cell(entity.getLabel()),
                      {QString::number(entity.getLevel())},
                      cell(entity.getRefCode()),
                      cell(entity.getRefLabel()),
                      cell(entity.getWeightVariable()),
                      {marks(entity)},
                      {QString::number(entity.getVariables()->size())}});
    }
    table.print(output);
}

// The variables

QString role(const TDcEntity &entity, const TDcVariable &variable)
{
    const QString name = variable.getName();
    QStringList roles;
    if (name.isEmpty())
        return {};
    if (name == entity.getRefCode())
        roles.append(u"code"_s);
    if (name == entity.getRefLabel())
        roles.append(u"label"_s);
    if (name == entity.getWeightVariable())
        roles.append(u"weight"_s);
    return roles.join(u", "_s);
}

/// The width of a value, and its decimals after a point: "8.2". Texts have a size, numbers a field in a
/// record.
QString size(const TDcVariable &variable)
{
    const int width = variable.getSize() != 0 ? variable.getSize() : variable.getFieldSize();
    const QString decimals = variable.getDecimals() != 0 ? u".%1"_s.arg(variable.getDecimals()) : QString();
    return width == 0 ? decimals : QString::number(width) + decimals;
}

Table::Cell ranges(const TDcVariable &variable)
{
    Table::Cell lines;
    if (const MetadataVariables *metadata = variable.getMetadataVariables()) {
        for (const Range *range : std::as_const(*metadata->getRange()))
            lines.append(u"%1 to %2"_s.arg(Cli::Text::number(range->getRangeMin()),
                                           Cli::Text::number(range->getRangeMax())));
    }
    return lines;
}

int codeWidth(const TDcVariable &variable)
{
    const QList<ValueLabelElement *> &elements = *variable.getValueLabelElementList();
    return std::accumulate(elements.cbegin(), elements.cend(), 0, [](int width, const auto *element) {
        return std::max(width, Cli::Text::width(printable(element->getValue())));
    });
}

/// A line for each category.
Table::Cell valueLabels(const TDcVariable &variable)
{
    const int width = codeWidth(variable);
    Table::Cell lines;
    for (const ValueLabelElement *element : std::as_const(*variable.getValueLabelElementList())) {
        const QString code = printable(element->getValue());
        const QString blanks(width - Cli::Text::width(code), u' ');
        lines.append(Table::Line(blanks + code + u"  "_s, printable(element->getLabel())));
    }
    return lines;
}

void printVariables(const TDcEntity &entity, Cli::Output &output)
{
    if (entity.getVariables()->isEmpty()) {
        output.line(u"No variables."_s);
        return;
    }
    Table table({{u"Variable"_s},
                 {u"Role"_s},
                 {u"Group"_s, Table::Left, groupWidth},
                 {u"Label"_s, Table::Left, labelWidth},
                 {u"Type"_s},
                 {u"Size"_s, Table::Right},
                 {u"Range"_s},
                 {u"Missing"_s, Table::Right},
                 {u"Not appl."_s, Table::Right},
                 {u"Values"_s, Table::Left, valuesWidth}});
    for (const TDcVariable *variable : std::as_const(*entity.getVariables())) {
        table.addRow({{named(variable->getName())},
                      {role(entity, *variable)},
                      cell(variable->getGroup()),
                      cell(variable->getLabel()),
                      cell(variable->getVarType()),
                      {size(*variable)},
                      ranges(*variable),
                      {QString::number(variable->getMissing())},
                      {QString::number(variable->getNotappl())},
                      valueLabels(*variable)});
    }
    table.print(output);
}
} // namespace

void Cli::showAsText(const QString &path, const QList<ShownEntity> &entities, Output &output)
{
    const qsizetype variables = std::accumulate(
        entities.cbegin(), entities.cend(), qsizetype(0),
        [](qsizetype sum, const ShownEntity &shown) { return sum + shown.entity->getVariables()->size(); });
    output.line(u"%1: %2, %3"_s.arg(output.strong(printable(path)),
                                    counted(entities.size(), u"entity"_s, u"entities"_s),
                                    counted(variables, u"variable"_s, u"variables"_s)));
    if (entities.isEmpty())
        return;

    output.line();
    printTree(entities, output);
    for (const auto &[entity, parent] : entities) {
        output.line();
        const QString label = printable(entity->getLabel());
        output.line(output.strong(named(entity->getName()))
                    + (label.isEmpty() ? QString() : u"  "_s + label));
        if (const QString documentation = printable(entity->getDocumentationEntity());
            !documentation.isEmpty()) {
            const int columns = output.columns() > 0 ? output.columns() : documentationWidth;
            for (const QString &line :
                 Cli::Text::wrapped(documentation, std::min(columns, documentationWidth)))
                output.line(line);
        }
        printVariables(*entity, output);
    }
}
