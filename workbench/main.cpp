#include "workbench/CommandLine.h"
#include "workbench/MainWindow.h"
#include "workbench/Theme.h"
#include "workbench/Translations.h"

#include <QApplication>
#include <QIcon>
#include <QPixmap>

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
int screenshot(MainWindow &window, const QString &path)
{
    QApplication::processEvents();
    QApplication::processEvents();
    if (!window.grab().save(path))
        return fail(QApplication::translate("main", "The picture cannot be written to %1.").arg(path));
    return 0;
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(u"Quillon"_s);
    QApplication::setApplicationName(u"quillon-workbench"_s);
    QApplication::setApplicationVersion(QString::fromLatin1(QUILLON_VERSION));
    QApplication::setDesktopFileName(u"quillon-workbench"_s);
    QApplication::setWindowIcon(QIcon(u":/icons/res/icons/quillon-workbench.png"_s));

    const CommandLine line = CommandLine::parse(QApplication::arguments());
    if (!line.error.isEmpty())
        return fail(line.error);
    Theme::apply(line.theme);
    Translations::install(line.language);

    MainWindow window;
    if (!line.screenshot.isEmpty()) {
        // A picture shows the layout that everybody starts with, and asks nobody anything.
        window.setPlainLayout();
        if (!line.file.isEmpty() && !window.document()->open(line.file))
            return fail(line.file + u": "_s + window.document()->errorText());
    }
    if (!line.size.isEmpty())
        window.resize(line.size);
    window.show();
    if (line.screenshot.isEmpty() && !line.file.isEmpty())
        window.open(line.file);
    if (!line.selection.isEmpty() && !window.selection()->select(line.selection))
        return fail(QApplication::translate("main", "There is no %1 in the dictionary.").arg(line.selection));
    return line.screenshot.isEmpty() ? QApplication::exec() : screenshot(window, line.screenshot);
}
