#include "common/Validate.h"

#include <algorithm>

namespace
{
constexpr char32_t Underscore = U'_';

bool mayStartName(char32_t character)
{
    return QChar::isLetter(character) || character == Underscore;
}

bool mayStandInName(char32_t character)
{
    return QChar::isLetter(character) || QChar::isDigit(character) || character == Underscore;
}

/// Two texts that agree in this form count as the same name.
QString folded(const QString &text)
{
    return text.toUpper().trimmed();
}
} // namespace

bool Validate::validateEmpty(QString s)
{
    return !s.trimmed().isEmpty();
}

bool Validate::validateName(const QString &s)
{
    const QList<uint> characters = s.trimmed().toUcs4(); // Letters beyond the basic plane are one character.
    return !characters.isEmpty() && mayStartName(characters.first());
}

bool Validate::validateStringC(QString s)
{
    const QList<uint> characters = s.trimmed().toUcs4();
    return std::all_of(characters.cbegin(), characters.cend(), mayStandInName);
}

bool Validate::compare(QList<QString> list, QString s)
{
    return std::any_of(list.cbegin(), list.cend(),
                       [key = folded(s)](const QString &entry) { return folded(entry) == key; });
}
