#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1StringView>
#include <QString>

#include <array>

namespace Cli
{
/// A kind of object in a dictionary document: the keys that are known and, of these, the ones that hold
/// further objects.
struct ObjectKind {
    struct Part {
        QLatin1StringView key;
        const ObjectKind *kind;
    };
    bool named = false; ///< Whether a person tells such objects by their names.
    std::array<QLatin1StringView, 12> values = {};
    std::array<Part, 3> parts = {};

    /// The kind of the objects under \a key; null when it holds none.
    [[nodiscard]] const ObjectKind *partOf(const QString &key) const;
    [[nodiscard]] bool knows(const QString &key) const;
};

/// An object that holds the entities of a document.
extern const ObjectKind frameKind;
extern const ObjectKind entityKind;
/// A variable's metadata, the only part that is never a list.
extern const ObjectKind layoutKind;

/// The key under which \a key is written: two are read under one spelling and written under another.
[[nodiscard]] QString writtenSpelling(const QString &key);

/// Whether \a value under a known \a key says what a missing key says.
[[nodiscard]] bool saysNothing(const QString &key, const QJsonValue &value);
} // namespace Cli
