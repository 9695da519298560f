#pragma once

#include "model/DocumentOrigin.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>
#include <QVariant>

#include <utility>

/// What is kept of the JSON value that an object was read from: just what writing the object would not give.
struct Kept {
    /// Values that the writer gives otherwise or not at all; an invalid one for a key that it adds.
    QVariantMap values = {};
    /// The keys of lists whose only element stood there without a list around it.
    QStringList single = {};
    /// The element of a list, or the part, that the object was read from, when it was no object.
    QVariant element = {};
    /// The children stood under "root".
    bool childrenUnderRoot = false;
    /// The layout's "start" and "length", for telling an edit of the layout from one of its variable.
    int start = 0;
    int length = 0;

    [[nodiscard]] bool changesWriting() const
    {
        return !values.isEmpty() || !single.isEmpty() || element.isValid() || childrenUnderRoot;
    }
};

/// An origin as the document files make it; they make no other.
class Origin final : public DocumentOrigin
{
public:
    explicit Origin(Kept kept) : m_kept(std::move(kept)) { }

    /// What \a object carries along; empty when it carries nothing.
    [[nodiscard]] static const Kept &of(const FromDocument &object)
    {
        static const Kept none;
        const auto *origin = static_cast<const Origin *>(object.origin().data());
        return origin ? origin->m_kept : none;
    }

    static void attach(FromDocument &object, Kept kept)
    {
        if (kept.changesWriting() || kept.start != 0 || kept.length != 0)
            object.setOrigin(FromDocument::OriginPointer(new Origin(std::move(kept))));
    }

private:
    Kept m_kept;
};
