#include "documents/codebook/internal/CodebookContent.h"

#include "documents/checks/internal/TypeWord.h"
#include "documents/codebook/Codebook.h"
#include "documents/internal/Values.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
void add(QList<CodebookContent::Fact> &facts, const QString &name, const QString &value)
{
    if (!value.trimmed().isEmpty())
        facts.append({name, value});
}

QString rangesText(const TDcVariable &variable)
{
    QStringList texts;
    const QList<Range *> ranges = Values::ranges(variable);
    for (const Range *range : ranges)
        texts.append(Values::number(range->getRangeMin()) + u" – "_s + Values::number(range->getRangeMax()));
    return texts.join(u", "_s);
}

template <typename Item>
QList<const Item *> withoutNulls(const QList<Item *> &items)
{
    QList<const Item *> found;
    std::copy_if(items.cbegin(), items.cend(), std::back_inserter(found),
                 [](const Item *item) { return item; });
    return found;
}
} // namespace

CodebookContent::CodebookContent(const TDcEntity *root, const CodebookOptions &options)
{
    std::vector<Chapter> pending;
    if (root)
        pending.push_back({root, nullptr, 0, {}});
    while (!pending.empty()) {
        Chapter chapter = pending.back();
        pending.pop_back();
        const auto children = withoutNulls(*chapter.entity->getChildren());
        std::for_each(children.crbegin(), children.crend(), [&](const TDcEntity *child) {
            pending.push_back({child, chapter.entity, chapter.depth + 1, {}});
        });
        chapter.variables = withoutNulls(*chapter.entity->getVariables());
        m_variables += chapter.variables.size();
        m_chapters.push_back(std::move(chapter));
    }
    m_title = options.title;
    if (m_title.trimmed().isEmpty())
        m_title = root ? heading(*root) : tr("Codebook");
}

QString CodebookContent::extent() const
{
    return tr("Entities: %1. Variables: %2.").arg(m_chapters.size()).arg(m_variables);
}

QString CodebookContent::heading(const TDcEntity &entity)
{
    return entity.getLabel().trimmed().isEmpty() ? entity.getName() : entity.getLabel();
}

QString CodebookContent::nameBesideHeading(const TDcEntity &entity)
{
    return heading(entity) == entity.getName() ? QString() : entity.getName();
}

QList<CodebookContent::Fact> CodebookContent::facts(const Chapter &chapter)
{
    const TDcEntity &entity = *chapter.entity;
    QList<Fact> facts;
    add(facts, tr("Alias"), entity.getAlias());
    add(facts, tr("Belongs to"), chapter.parent ? heading(*chapter.parent) : QString());
    add(facts, tr("Record code"), entity.getRefCode());
    add(facts, tr("Record label"), entity.getRefLabel());
    add(facts, tr("Weight"), entity.getWeightVariable());
    add(facts, tr("Selectable"), entity.getSelectable() ? tr("yes") : QString());
    add(facts, tr("Virtual"), entity.getIsvirtual() ? tr("yes") : QString());
    return facts;
}

QString CodebookContent::typeName(const TDcVariable &variable)
{
    switch (TypeWord(variable.getVarType()).kind()) {
    case TypeWord::Kind::Integer:
    case TypeWord::Kind::None: // documents call it so
        return tr("Whole number");
    case TypeWord::Kind::Real:
        return tr("Decimal number");
    case TypeWord::Kind::String:
        return tr("Text");
    case TypeWord::Kind::Bool:
        return tr("Yes or no");
    case TypeWord::Kind::Lookup:
        return tr("Lookup");
    case TypeWord::Kind::Unknown:
        break;
    }
    return variable.getVarType();
}

QString CodebookContent::position(const TDcVariable &variable)
{
    const int start = Values::start(variable);
    const int length = variable.getFieldSize();
    if (length <= 0 || start <= 0)
        return {};
    return length == 1 ? QString::number(start) : u"%1–%2"_s.arg(start).arg(qint64(start) + length - 1);
}

QString CodebookContent::role(const TDcEntity &entity, const TDcVariable &variable)
{
    const QString name = variable.getName().trimmed();
    if (name.isEmpty())
        return {};
    QStringList roles;
    if (name == entity.getRefCode().trimmed())
        roles.append(tr("record code"));
    if (name == entity.getRefLabel().trimmed())
        roles.append(tr("record label"));
    if (name == entity.getWeightVariable().trimmed())
        roles.append(tr("weight"));
    return roles.join(u", "_s);
}

QList<CodebookContent::Fact> CodebookContent::facts(const TDcVariable &variable)
{
    const MetadataVariables *metadata = variable.getMetadataVariables();
    QList<Fact> facts;
    QString type = typeName(variable);
    if (metadata && metadata->getLookup())
        type += u", "_s + tr("from a lookup table");
    add(facts, tr("Type"), type);
    const TypeWord word(variable.getVarType());
    if (word.isText() && variable.getSize() > 0)
        add(facts, tr("Length"), QString::number(variable.getSize()));
    if (variable.getDecimals() > 0)
        add(facts, tr("Decimals"), QString::number(variable.getDecimals()));
    add(facts, tr("Valid range"), rangesText(variable));
    if (Values::codesAreChosen(variable)) {
        add(facts, tr("Missing"), QString::number(variable.getMissing()));
        add(facts, tr("Not applicable"), QString::number(variable.getNotappl()));
    }
    add(facts, tr("Group"), variable.getGroup());
    add(facts, tr("Alias"), variable.getAlias());
    const QString record = metadata ? metadata->getRecord() : QString();
    const QString columns = position(variable);
    add(facts, tr("Position"),
        record.isEmpty() || columns.isEmpty() ? columns : tr("%1 of record %2").arg(columns, record));
    if (metadata && metadata->getField() != variable.getName())
        add(facts, tr("Source field"), metadata->getField());
    return facts;
}

QList<const ValueLabelElement *> CodebookContent::categories(const TDcVariable &variable)
{
    return withoutNulls(*variable.getValueLabelElementList());
}
