#include "workbench/journal/Recovery.h"

#include "workbench/journal/Journal.h"
#include "workbench/journal/JournalFile.h"
#include "workbench/journal/JournalFolder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QLockFile>

#include <algorithm>

namespace
{
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Recovery)
};

/// What became of the file of \a document. \a digests holds what files were found to be: several journals
/// may belong to one, and files may be large.
LeftChanges::State stateOf(const DocumentFile::Unsaved &document, QHash<QString, QByteArray> &digests)
{
    using enum LeftChanges::State;
    if (document.path.isEmpty())
        return NeverSaved;
    if (!QFileInfo::exists(document.path))
        return Gone;
    auto digest = digests.find(document.path);
    if (digest == digests.end())
        digest = digests.insert(document.path, DocumentFile::digestOf(document.path));
    return *digest == document.digest ? AsItWas : ChangedSince;
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
    QHash<QString, QByteArray> digests;
    const QStringList orphans = JournalFolder::orphans(folder);
    for (const QString &path : orphans) {
        if (const auto journal = JournalFile::readHeader(path))
            found.append(
                {path, journal->document.path, journal->written, stateOf(journal->document, digests)});
    }
    return found;
}

QString Recovery::recover(const QString &journalPath, Document *document, Journal *journal,
                          Document::Access access)
{
    auto lock = JournalFolder::take(journalPath);
    if (!lock)
        return Texts::tr("Another window has recovered these changes.");
    const auto left = JournalFile::read(journalPath);
    if (!left)
        return Texts::tr("The changes are damaged.");
    if (!document->restore(left->document, access))
        return document->errorText();
    journal->adopt(journalPath, std::move(lock));
    return {};
}

void Recovery::remove(const QString &journalPath)
{
    if (JournalFolder::take(journalPath))
        QFile::remove(journalPath);
}
