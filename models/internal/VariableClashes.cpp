#include "models/internal/VariableClashes.h"

#include "model/TDcVariable.h"

#include <algorithm>

namespace
{
constexpr auto firstSuffix = u'A';
constexpr auto lastSuffix = u'Z';
constexpr auto suffixMark = u'_';

/// \a name without "_" and a letter at its end, and the letter; a null letter if it does not end so.
std::pair<QStringView, char16_t> splitSuffix(QStringView name)
{
    if (name.endsWith(u'\n')) // As the end of a line counts, too.
        name.chop(1);
    if (name.size() < 2 || name.at(name.size() - 2) != suffixMark)
        return {};
    const char16_t letter = name.back().unicode();
    if (letter < firstSuffix || letter > lastSuffix)
        return {};
    return {name.chopped(2), letter};
}
} // namespace

VariableClashes::Texts::Texts(const TDcVariable &variable)
    : name(variable.getName()), alias(variable.getAlias()), label(variable.getLabel()),
      group(variable.getGroup())
{
}

VariableClashes::VariableClashes(const QList<TDcVariable *> &existing, const QList<TDcVariable *> &added)
    : m_state(existing), m_lastTexts(lastTexts(existing))
{
    m_names.reserve(added.size());
    for (const TDcVariable *variable : added) {
        m_names.append(variable->getName());
        m_uses.insert(m_names.constLast(), {});
        m_lengths.append(m_names.constLast().size());
    }
    std::sort(m_lengths.begin(), m_lengths.end());
    m_lengths.resize(std::unique(m_lengths.begin(), m_lengths.end()) - m_lengths.begin());
    for (TDcVariable *variable : existing)
        remember(variable);
}

bool VariableClashes::describes(const QList<TDcVariable *> &existing) const
{
    return m_state == ListState(existing) && m_lastTexts == lastTexts(existing);
}

TDcVariable *VariableClashes::twinOf(const TDcVariable &variable) const
{
    return m_twins.value(Texts(variable));
}

QString VariableClashes::freeName(const QString &name) const
{
    Uses uses = m_uses.value(name);
    if (!uses.taken)
        return name;
    if (!name.isValidUtf16())
        uses.letters = 0; // See remember().
    char16_t suffix = firstSuffix;
    while (suffix < lastSuffix && (uses.letters >> (suffix - firstSuffix) & 1U))
        ++suffix; // Past Y it is Z, used or not: the name is repeated then.
    return name + suffixMark + QChar(suffix);
}

void VariableClashes::append(TDcVariable *variable)
{
    remember(variable);
    ++m_state.size;
    m_state.last = variable;
    m_lastTexts = Texts(*variable);
}

VariableClashes::Texts VariableClashes::lastTexts(const QList<TDcVariable *> &variables)
{
    const TDcVariable *last = variables.isEmpty() ? nullptr : variables.constLast();
    return last ? Texts(*last) : Texts();
}

void VariableClashes::remember(TDcVariable *variable)
{
    if (!variable)
        return;
    const QString name = variable->getName();
    if (const auto same = m_uses.find(name); same != m_uses.end()) {
        same->taken = true;
        const Texts texts(*variable);
        if (!m_twins.contains(texts))
            m_twins.insert(texts, variable);
    }
    const auto [base, letter] = splitSuffix(name);
    if (!letter || !name.isValidUtf16()) // A pattern finds no suffix in malformed text.
        return;
    // XAGE_A uses up the letter A of AGE as well: only where the name ends is looked at.
    for (const qsizetype length : std::as_const(m_lengths)) {
        if (length > base.size())
            break;
        if (const auto ending = m_uses.find(base.last(length)); ending != m_uses.end())
            ending->letters |= 1U << (letter - firstSuffix);
    }
}
