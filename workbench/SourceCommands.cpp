#include "workbench/SourceCommands.h"

#include "documents/sources/LookupFile.h"
#include "documents/sources/SourceReader.h"
#include "workbench/Actions.h"
#include "workbench/panels/SourcesPanel.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>
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

/// Shows how far reading got and lets the person cancel it. Appears only when that takes a while.
class Progress
{
public:
    explicit Progress(QWidget *window)
        : m_dialog(SourceCommands::tr("Reading the file…"), SourceCommands::tr("Cancel"), 0, 1000, window)
    {
        m_dialog.setWindowModality(Qt::WindowModal);
        m_dialog.setMinimumDuration(700);
    }

    [[nodiscard]] SourceOptions options()
    {
        SourceOptions options;
        options.progress = [this](double part) {
            m_dialog.setValue(std::clamp(int(part * 1000), 0, 999));
            return !m_dialog.wasCanceled();
        };
        return options;
    }

private:
    QProgressDialog m_dialog;
};
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
    Progress progress(m_workspace.window);
    SourceFields result = SourceReader::read(path, progress.options());
    if (!result.ok())
        return report(result.errors);
    m_panel->setDatasetFields(std::move(result.items));
    return true;
}

bool SourceCommands::openCsv(const QString &path)
{
    Progress progress(m_workspace.window);
    SourceFields result = SourceReader::read(path, progress.options());
    if (!result.ok())
        return report(result.errors);
    m_panel->setCsvFields(std::move(result.items));
    return true;
}

bool SourceCommands::openLookups(const QString &path)
{
    Progress progress(m_workspace.window);
    SourceLookups result = LookupFile::read(path, progress.options());
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
