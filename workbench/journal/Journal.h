#pragma once

#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QObject>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <memory>

class Document;
class QLockFile;

/// Keeps the unsaved changes of a document in a journal, so that they outlive the program.
///
/// The journal holds the dictionary as it was after one of its steps, never in between. It is written in
/// another thread from a copy. It goes when the changes are saved, reverted or given up; what is left when
/// the program ends is offered at its next start.
class Journal : public QObject
{
    Q_OBJECT

public:
    /// When it is written: after `quiet` without a change, and `longest` after the first one at the latest.
    /// Dictionaries that take long to write are written less often.
    struct Pace {
        std::chrono::milliseconds quiet = std::chrono::seconds(3);
        std::chrono::milliseconds longest = std::chrono::seconds(30);
    };

    /// \a document is not owned and must outlive the journal.
    Journal(Document *document, QString folder, Pace pace, QObject *parent = nullptr);
    /// Writes what is not written yet, unless that was given up.
    ~Journal() override;
    Q_DISABLE_COPY_MOVE(Journal)

    [[nodiscard]] const QString &folder() const { return m_folder; }
    /// Writes what is not written yet, and returns when that is done.
    void writeNow();
    /// Removes the journal; the next change makes a new one.
    void discard();
    /// Whether the person gave the unsaved changes up, so that the journal goes together with this object.
    /// Any further change takes that back.
    void setGivenUp(bool givenUp) { m_givenUp = givenUp; }
    /// Goes on with the journal at \a path, which \a lock holds: what is in it was just restored.
    void adopt(const QString &path, std::unique_ptr<QLockFile> lock);

Q_SIGNALS:
    /// The journal is there, with all changes up to when writing it began.
    void written();
    /// The journal cannot be written, for the reason that \a text gives.
    void failed(const QString &text);

private:
    void follow();
    void startWriting();
    void finishWriting();
    [[nodiscard]] QString partPath() const;

    Document *m_document; // Not owned.
    QString m_folder;
    Pace m_pace;
    QString m_path; // Of the journal; empty until there is one.
    std::unique_ptr<QLockFile> m_lock;
    QTimer m_quiet;
    QTimer m_longest;
    bool m_behind = false; // There are changes that nobody has begun to write.
    bool m_writing = false;
    bool m_givenUp = false;
    QElapsedTimer m_duration;
    std::chrono::milliseconds m_lasted{0}; // Writing it the last time.
    std::shared_ptr<std::atomic_bool> m_abandoned; // Set to let what is being written go.
    QFutureWatcher<QString> m_writer;
};
