#include "workbench/journal/Recovery.h"

#include "workbench/Document.h"
#include "workbench/journal/Journal.h"
#include "workbench/journal/JournalFile.h"
#include "workbench/journal/JournalFolder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLockFile>

#include <algorithm>

namespace
{
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Recovery)
};

LeftChanges::State stateOf(const DocumentFile::Unsaved &document)
{
    using enum LeftChanges::State;
    if (document.path.isEmpty())
        return NeverSaved;
    if (!QFileInfo::exists(document.path))
        return Gone;
    return DocumentFile::digestOf(document.path) == document.digest ? AsItWas : ChangedSince;
}
} // namespace

bool Recovery::any(const QString &folder)
{
    const QStringList orphans = JournalFolder::orphans(folder);
    return std::any_of(orphans.cbegin(), orphans.cend(),
                       [](const QString &path) { return JournalFile::readHeader(path).has_value(); });
}

QList<LeftChanges> Recovery::find(const QString &folder)
{
    JournalFolder::cleanUp(folder);
    QList<LeftChanges> found;
    const QStringList orphans = JournalFolder::orphans(folder);
    for (const QString &path : orphans) {
        if (const auto journal = JournalFile::readHeader(path))
            found.append({path, journal->document.path, journal->written, stateOf(journal->document)});
    }
    return found;
}

QString Recovery::recover(const QString &journalPath, Document *document, Journal *journal)
{
    auto lock = JournalFolder::take(journalPath);
    if (!lock)
        return Texts::tr("Another window has recovered these changes.");
    const auto left = JournalFile::read(journalPath);
    if (!left)
        return Texts::tr("The changes are damaged.");
    if (!document->restore(left->document))
        return document->errorText();
    journal->adopt(journalPath, std::move(lock));
    return {};
}

void Recovery::remove(const QString &journalPath)
{
    if (JournalFolder::take(journalPath))
        QFile::remove(journalPath);
}
