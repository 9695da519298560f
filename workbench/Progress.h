#pragma once

#include <QProgressDialog>

#include <functional>

/// Tells the person that something takes its time, and lets them cancel it. Shows nothing of what is done
/// within about a second.
class Progress
{
public:
    /// \a text says what is done; \a window is the parent of the dialog and may be null.
    Progress(const QString &text, QWidget *window);

    /// For work that is done in the person's sight: shows that \a part of it is done, from 0 to 1. False when
    /// it was cancelled. Lets the window live.
    bool show(double part);

    enum class Cancel { Possible, Impossible };
    /// Does \a work in another thread and returns when it is done. If that takes long, a dialog says \a text
    /// and the window lives on. False when the person cancelled it; then \a work goes on unseen to its end,
    /// and so must own what it uses.
    static bool run(const QString &text, QWidget *window, Cancel cancel, const std::function<void()> &work);

private:
    QProgressDialog m_dialog;
};
