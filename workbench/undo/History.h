#pragma once

#include "documents/DictionaryDifference.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <functional>
#include <memory>

class QUndoStack;
class TDcEntity;

/// What the undo stack knows of the dictionary, and the steps between.
///
/// The history keeps a copy of the dictionary as it was after the last step, the shadow. Whatever the objects
/// themselves look like now is compared with it, so that no edit can escape. A step holds the difference, and
/// undoing changes the objects in place: those that stay are the same objects afterwards.
class History
{
    Q_DECLARE_TR_FUNCTIONS(History)

public:
    /// Which objects a step touches.
    enum class Extent {
        Content, ///< Properties, ranges and value labels of objects that stay where they are.
        Structure ///< Entities or variables come, go or move.
    };
    /// Calls the function that it is given, which changes the dictionary, and tells everybody around it.
    using Announce = std::function<void(Extent, const std::function<void(TDcEntity &root)> &)>;

    /// \a stack is not owned.
    History(QUndoStack *stack, Announce announce);
    ~History();
    Q_DISABLE_COPY_MOVE(History)

    /// Forgets everything and starts from \a root.
    void start(const TDcEntity &root);
    /// The dictionary as it was after the last step, without what is being done to it right now.
    [[nodiscard]] const TDcEntity &committed() const { return *m_shadow; }
    /// Pushes one step from the shadow to \a root, called \a text, or after what changed if \a text is empty.
    /// If \a entity is not null, only its properties and variables are looked at, and which entities below it
    /// are selectable. False, and no step, if nothing changed.
    bool record(TDcEntity &root, const QString &text, TDcEntity *entity = nullptr);

private:
    class Step;
    friend class Step;

    /// Where an entity stands: rows from the root down.
    using Rows = QList<qsizetype>;

    void go(const DictionaryDifference &difference, const Rows &rows, Extent extent);
    [[nodiscard]] static QString describe(const QList<DictionaryChange> &changes);

    QUndoStack *m_stack; // Not owned.
    Announce m_announce;
    std::unique_ptr<TDcEntity> m_shadow;
};
