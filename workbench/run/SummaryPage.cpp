#include "workbench/run/SummaryPage.h"

#include "common/Constants.h"
#include "model/ConfigDb.h"
#include "workbench/FileDialogs.h"
#include "workbench/run/RunDraft.h"
#include "workbench/run/RunWords.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBrowser>

using namespace Qt::Literals::StringLiterals;

SummaryPage::SummaryPage(RunDraft *draft, QWidget *parent)
    : RunPage(draft, parent), m_summary(new QTextBrowser(this)), m_path(new QLineEdit(this))
{
    setObjectName(u"runSummaryPage"_s);
    setTitle(tr("Summary"));
    setSubTitle(tr("This is what the run configuration says. Save it, or go back and change it."));
    m_summary->setObjectName(u"summary"_s);
    m_summary->setAccessibleName(tr("Summary"));
    m_path->setObjectName(u"path"_s);
    auto *caption = new QLabel(tr("Save &as"));
    caption->setBuddy(m_path);
    auto *button = new QPushButton(tr("B&rowse…"));
    connect(button, &QPushButton::clicked, this, &SummaryPage::browse);
    connect(m_path, &QLineEdit::textChanged, this, &SummaryPage::showProblem);

    auto *row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(m_path);
    row->addWidget(button);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_summary);
    column->addLayout(row);
    column->addWidget(problemRow());
}

void SummaryPage::initializePage()
{
    m_summary->setHtml(RunWords::summary(draft()));
    // Follows the run's name until the person says otherwise.
    if (m_path->text() == m_proposal)
        m_path->setText(proposal());
    m_proposal = proposal();
    RunPage::initializePage();
}

QString SummaryPage::proposal() const
{
    QString path = draft().file().path();
    if (path.isEmpty()) {
        const QString name = draft().dataBase().getName().trimmed().replace(u'/', u'_');
        path = QDir(FileDialogs::lastFolder()).filePath(name + Constants::configExtension);
    }
    return QDir::toNativeSeparators(path);
}

QString SummaryPage::problem() const
{
    return m_path->text().trimmed().isEmpty() ? tr("Say where the run configuration is to be saved.")
                                              : QString();
}

QString SummaryPage::path() const
{
    const QString typed = QDir::fromNativeSeparators(m_path->text().trimmed());
    if (typed.isEmpty())
        return {};
    QString path = QDir::cleanPath(QDir(FileDialogs::lastFolder()).absoluteFilePath(typed));
    // A file that was opened under another ending keeps it.
    if (path == draft().file().path() || path.endsWith(Constants::configExtension, Qt::CaseInsensitive))
        return path;
    if (path.endsWith(Constants::jsonExtension, Qt::CaseInsensitive))
        path.chop(Constants::jsonExtension.size());
    return path + Constants::configExtension;
}

bool SummaryPage::mayReplace(const QString &path)
{
    if (path == draft().file().path() || !QFileInfo::exists(path))
        return true;
    QMessageBox box(QMessageBox::Warning, tr("Save"),
                    tr("“%1” exists already.").arg(QDir::toNativeSeparators(path)), QMessageBox::Cancel,
                    this);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("Its content will be lost."));
    const QAbstractButton *yes = box.addButton(tr("Replace"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == yes;
}

bool SummaryPage::validatePage()
{
    const QString path = this->path();
    if (!mayReplace(path))
        return false;
    const auto attempt = [&](DocumentFile::SaveOptions options) {
        return draft().save(path, options) ? std::nullopt
                                           : std::optional(FileDialogs::problemOf(draft().file()));
    };
    if (!FileDialogs::save(this, QFileInfo(path).fileName(), attempt))
        return false;
    FileDialogs::rememberFolder(path);
    return true;
}

void SummaryPage::browse()
{
    // Whether a file is replaced is asked when it is saved, wherever the path came from.
    const QString chosen = QFileDialog::getSaveFileName(this, tr("Save Run Configuration"), path(),
                                                        Constants::configFilter + tr("All files (*)"),
                                                        nullptr, QFileDialog::DontConfirmOverwrite);
    if (!chosen.isEmpty())
        m_path->setText(QDir::toNativeSeparators(chosen));
}
