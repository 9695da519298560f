#include "workbench/SourceCommands.h"

#include "documents/sources/LookupFile.h"
#include "documents/sources/SourceReader.h"
#include "workbench/Actions.h"
#include "workbench/panels/SourcesPanel.h"
#include "workbench/Progress.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSettings>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
QStringList textSuffixes()
{
    return {u"csv"_s, u"tsv"_s, u"tab"_s, u"txt"_s};
}

QString folderKey()
{
    return u"sourceFolder"_s;
}

/// Options that show \a progress.
SourceOptions optionsFor(Progress &progress)
{
    SourceOptions options;
    options.progress = [&progress](double part) { return progress.show(part); };
    return options;
}
} // namespace

SourceCommands::SourceCommands(const Workspace &workspace, SourcesPanel *panel, QObject *parent)
    : QObject(parent), m_workspace(workspace), m_panel(panel)
{
    const Actions &actions = *workspace.actions;
    connect(actions[ActionId::SourceOpenDataset], &QAction::triggered, this,
            [this] { choose(tr("Open Dataset"), SourceReader::suffixes(), &SourceCommands::openDataset); });
    connect(actions[ActionId::SourceOpenCsv], &QAction::triggered, this,
            [this] { choose(tr("Open CSV File"), textSuffixes(), &SourceCommands::openCsv); });
    connect(actions[ActionId::SourceOpenLookups], &QAction::triggered, this,
            [this] { choose(tr("Open Lookups"), textSuffixes(), &SourceCommands::openLookups); });
}

void SourceCommands::choose(const QString &title, const QStringList &suffixes,
                            bool (SourceCommands::*open)(const QString &))
{
    const QString filter =
        tr("Data files (*.%1)").arg(suffixes.join(u" *."_s)) + u";;"_s + tr("All files (*)");
    const QString folder = QSettings().value(folderKey(), QDir::homePath()).toString();
    const QString path = QFileDialog::getOpenFileName(m_workspace.window, title, folder, filter);
    if (path.isEmpty())
        return;
    QSettings().setValue(folderKey(), QFileInfo(path).absolutePath());
    (this->*open)(path);
}

bool SourceCommands::openDataset(const QString &path)
{
    Progress progress(tr("Reading the file…"), m_workspace.window);
    SourceFields result = SourceReader::read(path, optionsFor(progress));
    if (!result.ok())
        return report(result.errors);
    m_panel->setDatasetFields(std::move(result.items));
    return true;
}

bool SourceCommands::openCsv(const QString &path)
{
    Progress progress(tr("Reading the file…"), m_workspace.window);
    SourceFields result = SourceReader::read(path, optionsFor(progress));
    if (!result.ok())
        return report(result.errors);
    m_panel->setCsvFields(std::move(result.items));
    return true;
}

bool SourceCommands::openLookups(const QString &path)
{
    Progress progress(tr("Reading the file…"), m_workspace.window);
    SourceLookups result = LookupFile::read(path, optionsFor(progress));
    if (!result.ok())
        return report(result.errors);
    m_panel->setLookups(std::move(result.items));
    return true;
}

bool SourceCommands::report(const QList<SourceProblem> &errors)
{
    if (errors.isEmpty()) // Cancelled: the person knows.
        return false;
    QStringList lines;
    std::transform(errors.cbegin(), errors.cend(), std::back_inserter(lines),
                   [](const SourceProblem &problem) { return problem.message(); });
    QMessageBox box(QMessageBox::Critical, tr("Sources"), tr("The file cannot be read."), QMessageBox::Ok,
                    m_workspace.window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(lines.mid(0, 5).join(u'\n'));
    if (lines.size() > 5)
        box.setDetailedText(lines.join(u'\n'));
    box.exec();
    return false;
}
