#pragma once

#include <QString>

#include <functional>
#include <memory>

class QUndoStack;
class TDcEntity;

/// What the undo stack knows of the dictionary, and the steps between.
///
/// The history keeps a copy of the dictionary as it was after the last step, the shadow. Whatever the objects
/// themselves look like now is compared with it, so that no edit can escape.
class History
{
public:
    /// Puts a dictionary, which the callee takes over, in place of the present one.
    using Replace = std::function<void(std::unique_ptr<TDcEntity>)>;

    /// \a stack is not owned.
    History(QUndoStack *stack, Replace replace);
    ~History();
    Q_DISABLE_COPY_MOVE(History)

    /// Forgets everything and starts from \a root.
    void start(const TDcEntity &root);
    /// Pushes one step from the shadow to \a root, called \a text. False, and no step, if nothing changed.
    bool record(const TDcEntity &root, const QString &text);

private:
    class Step;
    using Snapshot = std::shared_ptr<const TDcEntity>;

    void go(const Snapshot &snapshot);

    QUndoStack *m_stack; // Not owned.
    Replace m_replace;
    Snapshot m_shadow;
};
