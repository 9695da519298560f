#include "workbench/CommandLine.h"
#include "workbench/DisplayServer.h"
#include "workbench/MainWindow.h"
#include "workbench/RecoveryCommands.h"
#include "workbench/SessionEnd.h"
#include "workbench/Theme.h"
#include "workbench/Tour.h"
#include "workbench/Translations.h"

#include <QApplication>
#include <QIcon>
#include <QLoggingCategory>
#include <QPixmap>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{
int fail(const QString &message)
{
    std::fprintf(stderr, "quillon-workbench: %s\n", qUtf8Printable(message));
    return 2;
}

/// Draws \a window as it is shown once all layouts have settled.
int screenshot(MainWindow &window, const CommandLine &line)
{
    const QString why = line.file.isEmpty() ? QString() : window.openUnasked(line.file);
    if (!why.isEmpty())
        return fail(line.file + u": "_s + why);
    if (!line.selection.isEmpty() && !window.selection()->select(line.selection))
        return fail(QApplication::translate("main", "There is no %1 in the dictionary.").arg(line.selection));
    QApplication::processEvents();
    QApplication::processEvents();
    // A run configuration opens in front of the window.
    QWidget *front = QApplication::activeModalWidget();
    if (!(front ? front : &window)->grab().save(line.screenshot))
        return fail(
            QApplication::translate("main", "The picture cannot be written to %1.").arg(line.screenshot));
    return 0;
}

int tour(MainWindow &window, const CommandLine &line)
{
    Tour tour(&window, line.tour);
    const bool done = tour.go(line.file);
    window.journal()->discard(); // What the tour did not save nobody wants back.
    return done ? 0 : fail(tour.errorText());
}

int work(MainWindow &window, const CommandLine &line)
{
    if (!line.file.isEmpty())
        window.open(line.file);
    if (!line.selection.isEmpty() && !window.selection()->select(line.selection))
        return fail(QApplication::translate("main", "There is no %1 in the dictionary.").arg(line.selection));
    window.sessionEnd()->followSignals();
    window.recovery()->offer();
    return QApplication::exec();
}
} // namespace

int main(int argc, char *argv[])
{
    const bool display = DisplayServer::find(argc, argv);
    QApplication application(argc, argv);
    QApplication::setOrganizationName(u"Quillon"_s);
    QApplication::setApplicationName(u"quillon-workbench"_s);
    QApplication::setApplicationVersion(QString::fromLatin1(QUILLON_VERSION));
    // The layer tells its developers what it does; people who edit a dictionary need not read that.
    QLoggingCategory::setFilterRules(u"default.debug=false"_s);
    QApplication::setDesktopFileName(u"quillon-workbench"_s);
    QApplication::setWindowIcon(QIcon(u":/icons/quillon-workbench.png"_s));

    Translations::install({}); // For what is said about the arguments.
    const CommandLine line = CommandLine::parse(QApplication::arguments());
    if (!line.error.isEmpty())
        return fail(line.error);
    Theme::apply(line.theme);
    Translations::install(line.language);
    if (!display && !line.isForPictures())
        return fail(QApplication::translate(
            "main", "There is no display. Without one, --screenshot and --tour draw pictures."));

    // Pictures show nothing of a person's settings and unsaved work, and leave nothing there.
    const QTemporaryDir home;
    if (line.isForPictures()) {
        for (const char *place : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"})
            qputenv(place, home.path().toLocal8Bit());
    }
    MainWindow window;
    if (line.isForPictures())
        window.setPlainLayout(); // A picture shows the layout that everybody starts with.
    if (!line.size.isEmpty())
        window.resize(line.size);
    window.show();
    if (!line.tour.isEmpty())
        return tour(window, line);
    if (!line.screenshot.isEmpty())
        return screenshot(window, line);
    return work(window, line);
}
