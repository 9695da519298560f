#include "workbench/Tour.h"

#include "workbench/MainWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// The first file in \a folder that \a pattern fits; empty when there is none.
QString firstFile(const QDir &folder, const QString &pattern)
{
    const QStringList names = folder.entryList({pattern}, QDir::Files, QDir::Name);
    return names.isEmpty() ? QString() : folder.filePath(names.first());
}
} // namespace

Tour::Tour(MainWindow *window, QString folder) : m_window(window), m_folder(std::move(folder)) { }

bool Tour::go(const QString &path)
{
    const QFileInfo original(path);
    if (!QDir().mkpath(m_folder)) {
        m_error = tr("The folder %1 cannot be made.").arg(m_folder);
        return false;
    }
    m_copy = QDir(m_folder).filePath(original.fileName());
    // It may be anybody's, even the dictionary itself.
    if (QFileInfo::exists(m_copy)) {
        m_error = tr("There is a file %1 already. Choose an empty folder.").arg(m_copy);
        return false;
    }
    if (!QFile::copy(path, m_copy)) {
        m_error = tr("%1 cannot be copied to %2.").arg(path, m_folder);
        return false;
    }
    QFile::setPermissions(m_copy, QFile::permissions(m_copy) | QFile::WriteOwner);
    m_dataFile = firstFile(original.dir(), u"*.sav"_s);
    m_areas = firstFile(original.dir(), u"areas.csv"_s);

    QTextStream out(stdout);
    const QList<Stop> all = stops();
    for (const Stop &stop : all) {
        m_name = QLatin1StringView(stop.name);
        out << tr(stop.caption) << Qt::endl;
        if (!stop.visit()) {
            if (m_error.isEmpty())
                m_error = tr("The tour ended early, at “%1”.").arg(m_name);
            return false;
        }
    }
    out << tr("%n picture(s) in %1", nullptr, m_pictures).arg(QDir::toNativeSeparators(m_folder)) << Qt::endl;
    return true;
}

void Tour::settle()
{
    // Layouts ask for others, which ask for a third round.
    for (int round = 0; round < 3; ++round)
        QApplication::processEvents();
}

bool Tour::picture(QWidget *widget)
{
    settle();
    ++m_pictures;
    const QString name = u"%1-%2.png"_s.arg(m_pictures, 2, 10, QLatin1Char('0')).arg(m_name);
    if (widget->grab().save(QDir(m_folder).filePath(name)))
        return true;
    m_error = tr("The picture cannot be written to %1.").arg(QDir(m_folder).filePath(name));
    return false;
}

void Tour::trigger(ActionId id)
{
    (*m_window->actions())[id]->trigger();
    settle();
}

bool Tour::answer(const QString &button, const std::function<void()> &change)
{
    bool done = true;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, m_window, [this, &button, &done] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        done = done && picture(box);
        const QList<QAbstractButton *> buttons = box->buttons();
        const auto found =
            std::find_if(buttons.cbegin(), buttons.cend(), [&button](const QAbstractButton *other) {
                return other->text().remove(u'&') == button;
            });
        if (found == buttons.cend())
            box->reject();
        else
            (*found)->click();
    });
    look.start(0);
    change();
    return done;
}

bool Tour::dismiss(QDialog *dialog)
{
    if (!dialog)
        return true; // There is nothing to do here, and the action says so.
    const bool drawn = picture(dialog);
    delete dialog; // Closing might ask.
    return drawn;
}
