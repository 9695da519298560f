#include "workbench/SourceFiles.h"

#include "workbench/Progress.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
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
    QStringList lines;
    std::transform(errors.cbegin(), errors.cend(), std::back_inserter(lines),
                   [](const SourceProblem &problem) { return problem.message(); });
    QMessageBox box(QMessageBox::Critical, Texts::tr("Sources"), Texts::tr("The file cannot be read."),
                    QMessageBox::Ok, window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(lines.mid(0, 5).join(u'\n'));
    if (lines.size() > 5)
        box.setDetailedText(lines.join(u'\n'));
    box.exec();
}
