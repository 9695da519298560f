#include "workbench/Progress.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int patience = 700; // Milliseconds; people notice a second.
constexpr int steps = 1000;
} // namespace

Progress::Progress(const QString &text, QWidget *window)
    : m_dialog(text, QCoreApplication::translate("Progress", "Cancel"), 0, steps, window)
{
    m_dialog.setObjectName(u"progress"_s);
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setMinimumDuration(patience);
}

bool Progress::show(double part)
{
    // At its end the dialog would close, and open once more if there was more to come.
    m_dialog.setValue(std::clamp(int(part * steps), 0, steps - 1));
    return !m_dialog.wasCanceled();
}
