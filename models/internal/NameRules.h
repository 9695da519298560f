#pragma once

#include "common/Validate.h"

#include <QList>
#include <QString>

#include <algorithm>
#include <initializer_list>

/// Which names a new one must not repeat: an ordered list of (taken names, message).
namespace NameRules
{
struct Taken {
    QList<QString> names;
    const char *message; ///< Not translated; the class that shows it marks it with QT_TR_NOOP.
};

/// The message of the first of \a rules whose names hold \a text as Validate::compare() sees it; null when
/// none does.
[[nodiscard]] inline const char *firstClash(Validate &validate, std::initializer_list<Taken> rules,
                                            const QString &text)
{
    const auto clash = std::find_if(rules.begin(), rules.end(), [&validate, &text](const Taken &rule) {
        return validate.compare(rule.names, text);
    });
    return clash == rules.end() ? nullptr : clash->message;
}
} // namespace NameRules
