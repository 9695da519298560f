// A workbench that other processes can watch and kill: what tst_recovery needs of another instance.
//
//   journal_editor edit FOLDER        makes one step after another, each of which changes the whole
//                                     dictionary, with a quick journal in FOLDER, until it is killed
//   journal_editor open FILE [LABEL]  a window with FILE open; with LABEL as the root's label, unsaved
//   journal_editor save FILE LABEL    the same, and saved
//
// It says "ready" when it is.
#include "tests/support/Trees.h"
#include "workbench/FileCommands.h"
#include "workbench/journal/Journal.h"
#include "workbench/MainWindow.h"
#include "workbench/SessionEnd.h"

#include <QAction>
#include <QApplication>
#include <QTimer>

#include <cstdio>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace
{
void sayReady()
{
    std::puts("ready");
    std::fflush(stdout);
}

void makeStep(Document &document, int step)
{
    const QString number = QString::number(step);
    document.edit(number, [&] {
        TDcEntity *root = document.root();
        root->setLabel(number);
        for (TDcVariable *variable : std::as_const(*root->getVariables()))
            variable->setLabel(number);
        root->addVariables(makeVariable(u'V' + number, {}, number));
        if (root->getVariables()->size() > 200)
            delete root->getVariables()->takeFirst();
    });
}

int edit(const QString &folder)
{
    Document document;
    Journal journal(&document, folder, {.quiet = 2ms, .longest = 10ms});
    QObject::connect(&journal, &Journal::written, [] { sayReady(); });
    QTimer timer;
    int step = 0;
    QObject::connect(&timer, &QTimer::timeout, [&] { makeStep(document, ++step); });
    timer.start(1);
    return QCoreApplication::exec();
}

int openWindow(const QStringList &arguments)
{
    MainWindow window;
    window.show();
    window.sessionEnd()->followSignals();
    if (!window.files()->open(arguments.at(2)))
        return 2;
    if (arguments.size() > 3) {
        window.document()->root()->setLabel(arguments.at(3));
        window.document()->commit();
    }
    if (arguments.at(1) == "save"_L1)
        (*window.actions())[ActionId::FileSave]->trigger();
    sayReady();
    return QCoreApplication::exec();
}
} // namespace

int main(int argc, char *argv[])
{
    // Without a window it starts in no time.
    const bool windowless = argc > 1 && qstrcmp(argv[1], "edit") == 0;
    const std::unique_ptr<QCoreApplication> application(windowless ? new QCoreApplication(argc, argv)
                                                                   : new QApplication(argc, argv));
    QCoreApplication::setOrganizationName(u"Quillon"_s);
    QCoreApplication::setApplicationName(u"test"_s);
    const QStringList arguments = QCoreApplication::arguments();
    return windowless ? edit(arguments.at(2)) : openWindow(arguments);
}
