#include "documents/checks/internal/TypeWord.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace
{
struct Known {
    QLatin1StringView word;
    TypeWord::Kind kind;
    TypeWord::Spelling spelling;
};

constexpr Known known[] = {
    {""_L1, TypeWord::Kind::None, TypeWord::Spelling::Neither},
    {"INTEGER"_L1, TypeWord::Kind::Integer, TypeWord::Spelling::Model},
    {"REAL"_L1, TypeWord::Kind::Real, TypeWord::Spelling::Model},
    {"STRING"_L1, TypeWord::Kind::String, TypeWord::Spelling::Model},
    {"BOOL"_L1, TypeWord::Kind::Bool, TypeWord::Spelling::Model},
    {"LOOKUP"_L1, TypeWord::Kind::Lookup, TypeWord::Spelling::Model},
    {"integer"_L1, TypeWord::Kind::Integer, TypeWord::Spelling::Document},
    {"real"_L1, TypeWord::Kind::Real, TypeWord::Spelling::Document},
    {"string"_L1, TypeWord::Kind::String, TypeWord::Spelling::Document},
};
} // namespace

TypeWord::TypeWord(const QString &word)
{
    const auto *found = std::find_if(std::begin(known), std::end(known),
                                     [&word](const Known &entry) { return entry.word == word; });
    if (found != std::end(known)) {
        m_kind = found->kind;
        m_spelling = found->spelling;
    }
}

QString TypeWord::likely(const QString &word)
{
    const QString plain = word.trimmed();
    const auto *found = std::find_if(std::begin(known), std::end(known), [&plain](const Known &entry) {
        return plain.compare(entry.word, Qt::CaseInsensitive) == 0;
    });
    return found == std::end(known) ? QString() : QString(found->word);
}
