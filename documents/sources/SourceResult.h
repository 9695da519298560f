#pragma once

#include "documents/documents_export.h"
#include "model/OwnedList.h"
#include "model/TDcSourceField.h"

#include <QList>
#include <QString>

#include <memory>
#include <utility>

/// What is wrong with a source, and where.
struct DOCUMENTS_EXPORT SourceProblem {
    QString file;
    QString place; ///< A line, a byte, a resource; empty when it is the file as a whole.
    QString text;

    /// All of it in one line, translated.
    [[nodiscard]] QString message() const;
};

/// What a reader of sources found. Owns the items; `list()->clear()` or `items->release()` hands them over.
///
/// A source is read wholly or not at all: where there are errors there are no items.
template <typename Item>
struct SourceResult {
    std::unique_ptr<OwnedList<Item>> items = std::make_unique<OwnedList<Item>>(); ///< Never null.
    QList<SourceProblem> errors;
    QList<SourceProblem> notes; ///< What was read, but not as the file has it.
    bool cancelled = false; ///< Asked for through SourceOptions::progress; no error.

    /// The live list of the items. Never null.
    [[nodiscard]] QList<Item *> *list() const { return items->get(); }
    [[nodiscard]] bool ok() const { return errors.isEmpty() && !cancelled; }

    /// A result without items.
    [[nodiscard]] static SourceResult refused(SourceProblem problem)
    {
        SourceResult result;
        result.errors.append(std::move(problem));
        return result;
    }
};

using SourceFields = SourceResult<TDcSourceField>;
