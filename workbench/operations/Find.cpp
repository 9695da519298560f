#include "workbench/operations/Find.h"

#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <QStringMatcher>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
bool isWordLetter(QChar character)
{
    return character.isLetterOrNumber() || character == u'_';
}

class Matcher
{
public:
    explicit Matcher(const Find::Query &query)
        : m_matcher(query.text, query.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive),
          m_wholeWords(query.wholeWords)
    {
    }

    [[nodiscard]] bool matches(const QString &text) const
    {
        const qsizetype length = m_matcher.pattern().size();
        for (qsizetype at = m_matcher.indexIn(text); at >= 0; at = m_matcher.indexIn(text, at + 1)) {
            const bool begins = at == 0 || !isWordLetter(text.at(at - 1));
            const bool ends = at + length == text.size() || !isWordLetter(text.at(at + length));
            if (!m_wholeWords || (begins && ends))
                return true;
        }
        return false;
    }

private:
    QStringMatcher m_matcher;
    bool m_wholeWords;
};
} // namespace

Find::Find(TDcEntity *root, const Query &query, qsizetype most)
{
    if (query.text.trimmed().isEmpty())
        return;
    const Matcher matcher(query);
    const auto look = [&](Part part, const QString &text, const Hit &where) {
        if (!isComplete || !query.parts.testFlag(part) || !matcher.matches(text))
            return;
        isComplete = hits.size() < most;
        if (!isComplete)
            return;
        hits.append(where);
        hits.last().part = part;
        hits.last().text = text;
    };
    const auto lookInVariable = [&](TDcEntity *entity, TDcVariable *variable) {
        const Hit here{Names, entity, variable, nullptr, {}};
        look(Names, variable->getName(), here);
        look(Aliases, variable->getAlias(), here);
        look(Labels, variable->getLabel(), here);
        look(Groups, variable->getGroup(), here);
        if (!query.parts.testAnyFlags(Codes | ValueLabels))
            return;
        for (ValueLabelElement *element : std::as_const(*variable->getValueLabelElementList())) {
            const Hit there{Codes, entity, variable, element, {}};
            look(Codes, element->getValue(), there);
            look(ValueLabels, element->getLabel(), there);
        }
    };
    preOrder(root, [&](TDcEntity *entity) {
        if (!isComplete)
            return;
        const Hit here{Names, entity, nullptr, nullptr, {}};
        look(Names, entity->getName(), here);
        look(Aliases, entity->getAlias(), here);
        look(Labels, entity->getLabel(), here);
        for (TDcVariable *variable : std::as_const(*entity->getVariables())) {
            if (!isComplete)
                return;
            lookInVariable(entity, variable);
        }
    });
}

QString Find::Hit::place() const
{
    if (!variable)
        return entity->getName();
    const QString path = entity->getName() + u'/' + variable->getName();
    return valueLabel ? tr("%1, code %2", "a variable and one of its codes").arg(path, valueLabel->getValue())
                      : path;
}

QString Find::title(Part part)
{
    switch (part) {
    case Names:
        return tr("Name");
    case Aliases:
        return tr("Alias");
    case Labels:
        return tr("Label");
    case Groups:
        return tr("Group");
    case Codes:
        return tr("Code");
    case ValueLabels:
        return tr("Value label");
    case Everything:
        break;
    }
    Q_UNREACHABLE();
}
