#include "workbench/SourceFiles.h"

#include "workbench/PlainMessage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SourceFiles)
};

QString folderKey()
{
    return u"sourceFolder"_s;
}

/// The first of \a problems are seen at once, all of them in the details.
void list(const QList<SourceProblem> &problems, QMessageBox &box)
{
    constexpr qsizetype most = 5;
    QStringList lines;
    std::transform(problems.cbegin(), problems.cend(), std::back_inserter(lines),
                   [](const SourceProblem &problem) { return problem.message(); });
    box.setInformativeText(lines.mid(0, most).join(u'\n'));
    if (lines.size() > most)
        box.setDetailedText(lines.join(u'\n'));
}
} // namespace

QStringList SourceFiles::textSuffixes()
{
    return {u"csv"_s, u"tsv"_s, u"tab"_s, u"txt"_s};
}

QString SourceFiles::choose(QWidget *window, const QString &title, const QStringList &suffixes)
{
    const QString filter =
        Texts::tr("Data files (*.%1)").arg(suffixes.join(u" *."_s)) + u";;"_s + Texts::tr("All files (*)");
    const QString folder = QSettings().value(folderKey(), QDir::homePath()).toString();
    QString path = QFileDialog::getOpenFileName(window, title, folder, filter);
    if (!path.isEmpty())
        QSettings().setValue(folderKey(), QFileInfo(path).absolutePath());
    return path;
}

QString SourceFiles::progressText()
{
    return Texts::tr("Reading the file…");
}

SourceOptions SourceFiles::options(Progress &progress)
{
    SourceOptions options;
    options.progress = [&progress](double part) { return progress.show(part); };
    return options;
}

void SourceFiles::report(QWidget *window, const QList<SourceProblem> &errors)
{
    if (errors.isEmpty())
        return;
    PlainMessage box(QMessageBox::Critical, Texts::tr("Sources"), Texts::tr("The file cannot be read."), {},
                     QMessageBox::Ok, window);
    list(errors, box);
    box.exec();
}

void SourceFiles::showNotes(QWidget *window, const QList<SourceProblem> &notes)
{
    auto *box = new PlainMessage(QMessageBox::Information, Texts::tr("Sources"),
                                 Texts::tr("The file was read, but not everything as it stands there."), {},
                                 QMessageBox::Ok, window);
    box->setObjectName(u"sourceNotes"_s);
    box->setAttribute(Qt::WA_DeleteOnClose);
    list(notes, *box);
    box->open();
}
