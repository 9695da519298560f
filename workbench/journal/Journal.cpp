#include "workbench/journal/Journal.h"

#include "workbench/Document.h"
#include "workbench/journal/JournalFile.h"
#include "workbench/journal/JournalFolder.h"

#include <QFile>
#include <QLockFile>
#include <QtConcurrent>

#include <algorithm>
#include <filesystem>
#include <utility>

using namespace Qt::Literals::StringLiterals;

Journal::Journal(Document *document, QString folder, Pace pace, QObject *parent)
    : QObject(parent), m_document(document), m_folder(std::move(folder)), m_pace(pace)
{
    m_quiet.setSingleShot(true);
    m_longest.setSingleShot(true);
    connect(&m_quiet, &QTimer::timeout, this, &Journal::startWriting);
    connect(&m_longest, &QTimer::timeout, this, &Journal::startWriting);
    connect(&m_writer, &QFutureWatcherBase::finished, this, &Journal::finishWriting);
    connect(document, &Document::modifiedChanged, this, &Journal::follow);
    connect(document->undoStack(), &QUndoStack::indexChanged, this, &Journal::follow);
}

Journal::~Journal()
{
    if (m_givenUp)
        discard();
    else
        writeNow();
}

QString Journal::partPath() const
{
    return m_path + ".part"_L1;
}

void Journal::follow()
{
    m_givenUp = false;
    if (!m_document->isModified()) {
        discard();
        return;
    }
    m_behind = true;
    // Whoever works on a large dictionary shall not have a processor busy with it all the time.
    m_quiet.start(std::max(m_pace.quiet, m_lasted));
    if (!m_longest.isActive())
        m_longest.start(std::max(m_pace.longest, 5 * m_lasted));
}

void Journal::startWriting()
{
    if (m_writing) { // finishWriting() sees to it.
        m_quiet.start(m_pace.quiet);
        return;
    }
    m_quiet.stop();
    m_longest.stop();
    if (!std::exchange(m_behind, false))
        return;
    if (!m_lock) {
        JournalFolder::make(m_folder);
        m_path = JournalFolder::newJournal(m_folder);
        m_lock = JournalFolder::take(m_path);
    }
    m_writing = true;
    m_duration.start();
    m_abandoned = std::make_shared<std::atomic_bool>(false);
    m_writer.setFuture(
        QtConcurrent::run([abandoned = m_abandoned, file = std::shared_ptr(m_document->snapshot()),
                           now = QDateTime::currentDateTime(), path = partPath()] {
            QString problem = JournalFile{file->unsaved(), now}.write(path);
            if (*abandoned)
                QFile::remove(path);
            return problem;
        }));
}

void Journal::finishWriting()
{
    if (!std::exchange(m_writing, false))
        return;
    QString problem = m_writer.result();
    if (problem.isEmpty()) {
        std::error_code error;
        std::filesystem::rename(partPath().toStdU16String(), m_path.toStdU16String(), error);
        problem = QString::fromStdString(error ? error.message() : std::string());
    }
    m_lasted = std::chrono::milliseconds(m_duration.elapsed());
    if (!problem.isEmpty()) {
        m_behind = true;
        m_longest.start(m_pace.longest);
        Q_EMIT failed(problem);
    } else {
        Q_EMIT written();
    }
}

void Journal::writeNow()
{
    m_writer.waitForFinished();
    finishWriting();
    if (!m_behind)
        return;
    startWriting();
    m_writer.waitForFinished();
    finishWriting();
}

void Journal::discard()
{
    m_quiet.stop();
    m_longest.stop();
    m_behind = false;
    if (m_path.isEmpty())
        return;
    if (std::exchange(m_writing, false))
        *m_abandoned = true;
    QFile::remove(partPath());
    QFile::remove(m_path);
    m_path.clear();
    m_lock.reset();
}

void Journal::adopt(const QString &path, std::unique_ptr<QLockFile> lock)
{
    discard();
    m_path = path;
    m_lock = std::move(lock);
    follow();
}
