#include "workbench/RecentFiles.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

using namespace Qt::Literals::StringLiterals;

namespace
{
QString key()
{
    return u"recentFiles"_s;
}
} // namespace

QStringList RecentFiles::paths()
{
    return QSettings().value(key()).toStringList();
}

void RecentFiles::add(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList list = paths();
    list.removeAll(absolute);
    list.prepend(absolute);
    QSettings().setValue(key(), QStringList(list.mid(0, most)));
}

void RecentFiles::remove(const QString &path)
{
    QStringList list = paths();
    list.removeAll(path);
    QSettings().setValue(key(), list);
}

void RecentFiles::clear()
{
    QSettings().remove(key());
}

QMenu *RecentFiles::createMenu(QWidget *parent)
{
    auto *menu = new QMenu(tr("Open &Recent"), parent);
    const auto fill = [this, menu] {
        menu->clear();
        const QStringList list = paths();
        for (qsizetype i = 0; i < list.size(); ++i) {
            const QString shown = QDir::toNativeSeparators(list.at(i)).replace(u'&', u"&&"_s);
            QAction *action = menu->addAction(u"&%1  %2"_s.arg((i + 1) % 10).arg(shown));
            connect(action, &QAction::triggered, this, [this, path = list.at(i)] { Q_EMIT chosen(path); });
        }
        if (list.isEmpty()) {
            menu->addAction(tr("No files yet"))->setEnabled(false);
            return;
        }
        menu->addSeparator();
        connect(menu->addAction(tr("&Clear List")), &QAction::triggered, this, &RecentFiles::clear);
    };
    connect(menu, &QMenu::aboutToShow, this, fill);
    fill();
    return menu;
}
