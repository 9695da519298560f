#pragma once

#include "cli/DocumentReader.h"

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

namespace Cli
{
/// A value that reading and writing a document changed, or dropped.
struct Difference {
    /// The entity or variable that it belongs to, such as `entities[0]/variables[3] "AGE"`; empty for the
    /// document itself.
    QString place;
    QString key; ///< Within that entity or variable, such as `metadata/start`.
    QJsonValue before; ///< Undefined when the value was added.
    QJsonValue after; ///< Undefined when the value was dropped.

    [[nodiscard]] QString toString() const;
};

/// Every key of \a before whose value is another or missing in \a after.
///
/// What says the same to a reader counts as the same: an object and a list of just this object, the
/// children under "root" and under "entities", the weight variable under either spelling, and a known key
/// left out because its value is empty. Keys that only \a after has are defaults spelt out, no difference.
[[nodiscard]] QList<Difference> differences(const QJsonValue &before, const QJsonValue &after);

/// A document after it was read and written once, and what that cost.
struct RoundTrip {
    QByteArray written;
    QList<Difference> losses;
    QStringList unkept; ///< What was lost when the document was read, see DictionaryDocument.

    [[nodiscard]] qsizetype lost() const { return losses.size() + unkept.size(); }
};

/// Reads \a document through the layer and writes it again. Throws Failure when the result could not be read.
[[nodiscard]] RoundTrip roundTrip(const DictionaryDocument &document);
} // namespace Cli
