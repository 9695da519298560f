#include "workbench/operations/CommonEdits.h"

#include "model/TDcVariable.h"
#include "workbench/operations/VariableWriter.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr qsizetype mostNamed = 5; // Variables that a line names before it only counts.
}

QVariant CommonEdits::shared(const QList<TDcVariable *> &variables, const VariableProperty &property)
{
    if (variables.isEmpty())
        return {};
    const QVariant first = property.get(*variables.constFirst());
    const bool same = std::all_of(variables.cbegin(), variables.cend(), [&](const TDcVariable *variable) {
        return property.get(*variable) == first;
    });
    return same ? first : QVariant();
}

QStringList CommonEdits::apply(TDcEntity *root, TDcEntity *entity, const QList<TDcVariable *> &variables,
                               const QList<Change> &changes)
{
    VariableWriter writer(root, entity);
    QStringList lines;
    for (const Change &change : changes) {
        QStringList whys; // In the order in which they came up.
        QHash<QString, QStringList> names;
        for (TDcVariable *variable : variables) {
            const QString why = writer.writeText(variable, *change.property, change.text);
            if (why.isEmpty())
                continue;
            if (!names.contains(why))
                whys.append(why);
            names[why].append(variable->getName());
        }
        for (const QString &why : std::as_const(whys)) {
            const QStringList &whose = names[why];
            const QString some = whose.first(std::min(whose.size(), mostNamed)).join(u", "_s);
            const QString all = whose.size() > mostNamed
                ? tr("%1 and %L2 more").arg(some, QLocale().toString(whose.size() - mostNamed))
                : some;
            lines.append(tr("%1 of %2: %3", "a property, variables, why it was refused")
                             .arg(change.property->title(), all, why));
        }
    }
    return lines;
}
