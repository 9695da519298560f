#pragma once

#include "documents/DictionaryFile.h"
#include "workbench/undo/History.h"

#include <QObject>
#include <QString>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <stop_token>

class TDcEntity;

/// The open dictionary: its objects, its file and its history.
///
/// Objects are edited in place, through the layer's models or directly. Then commit() finds out what changed
/// and makes one step of it that can be undone. What adds, removes or moves objects goes through edit(),
/// which tells everybody to let go of the objects first.
class Document : public QObject
{
    Q_OBJECT

public:
    /// ReadOnly leaves the file alone, whatever its permissions; the dictionary can be saved elsewhere.
    enum class Access { ReadWrite, ReadOnly };

    /// Does what may take long and returns when it is done; \a text says what it is. False when the person
    /// did not want to wait, which they may only if \a mayCancel; then the work is done unseen.
    using Wait = std::function<bool(const QString &text, bool mayCancel, const std::function<void()> &work)>;

    explicit Document(QObject *parent = nullptr);
    ~Document() override;
    Q_DISABLE_COPY_MOVE(Document)

    /// The root entity. Never null; another one after each opening.
    [[nodiscard]] TDcEntity *root() const { return m_file->root(); }
    /// The absolute path; empty for a dictionary that was never saved.
    [[nodiscard]] QString path() const { return m_file->path(); }
    /// The file's name, or a word for a new dictionary.
    [[nodiscard]] QString title() const;
    /// Whether there are changes that are not saved.
    [[nodiscard]] bool isModified() const { return !m_undoStack.isClean(); }
    [[nodiscard]] QUndoStack *undoStack() { return &m_undoStack; }

    /// Lets files be read and written through \a wait, in another thread if it likes. Without it they are at
    /// once.
    void setWait(Wait wait) { m_wait = std::move(wait); }

    /// Starts an empty dictionary.
    void clear();
    /// Replaces the dictionary by the one in the file at \a path. If that fails or is cancelled, nothing
    /// changes, and errorText() says why; it is empty when it was cancelled.
    [[nodiscard]] bool open(const QString &path, Access access = Access::ReadWrite);
    /// Replaces the dictionary by changes that were never saved. If that fails or is cancelled, the same
    /// holds as for open().
    [[nodiscard]] bool restore(const DocumentFile::Unsaved &unsaved, Access access = Access::ReadWrite);
    /// A copy of the dictionary as it was after the last step, with its file. Nobody else looks at it.
    [[nodiscard]] std::unique_ptr<DictionaryFile> snapshot() const;
    /// Saves to \a path, which the dictionary then belongs to. The history stays.
    [[nodiscard]] bool save(const QString &path, DocumentFile::SaveOptions options = {});
    /// Whether the file at \a path is the one that the dictionary belongs to, by whatever name. A file that
    /// is not there has only one.
    [[nodiscard]] bool isAt(const QString &path) const;
    [[nodiscard]] Access access() const { return m_access; }
    /// Whether the file must not be written: it may not, or it was opened for reading only.
    [[nodiscard]] bool isReadOnly() const { return m_access == Access::ReadOnly || m_file->isReadOnly(); }
    /// What saving cannot keep of the file as it was opened, one line for each place.
    [[nodiscard]] QStringList losses() const { return m_file->losses(); }
    /// Why the last open() or save() failed.
    [[nodiscard]] DocumentFile::Error error() const { return m_error; }
    /// The same in words for the person.
    [[nodiscard]] QString errorText() const { return m_errorText; }

    /// Makes one step of all that was changed since the last one, if anything was. \a text completes "Undo"
    /// in the menu; when it is empty, the step is described by what changed. If only properties, variables,
    /// ranges or value labels of one entity changed, \a entity spares the search through the others. The
    /// selectable marks of those below it may have changed with them. False if nothing changed.
    bool commit(const QString &text = {}, TDcEntity *entity = nullptr);
    /// Runs \a change, which may add, remove and move objects, and makes one step of it.
    void edit(const QString &text, const std::function<void()> &change);

Q_SIGNALS:
    /// Objects will come, go or move. Let go of all of them now.
    void structureAboutToChange();
    void structureChanged();
    /// Properties of objects changed in place; the objects are the same as before.
    void contentChanged();
    void modifiedChanged(bool modified);
    void pathChanged(const QString &path);

private:
    /// Fills \a file, or stops without an error when that is requested.
    using Read = std::function<bool(DictionaryFile &file, const std::stop_token &stop)>;

    [[nodiscard]] static QString titleOf(const QString &path);
    [[nodiscard]] std::unique_ptr<DictionaryFile> newFile() const;
    /// Starts what \a read reads; \a text says what it is.
    bool read(const QString &text, Access access, const Read &read);
    void announce(History::Extent extent, const std::function<void(TDcEntity &root)> &change);
    void start(std::unique_ptr<DictionaryFile> file, Access access);
    bool succeed(bool done, const DictionaryFile &file);

    std::unique_ptr<DictionaryFile> m_file; // Never null.
    Wait m_wait = [](const QString &, bool, const std::function<void()> &work) {
        work();
        return true;
    };
    DocumentFile::Error m_error = DocumentFile::Error::None;
    QString m_errorText;
    Access m_access = Access::ReadWrite;
    bool m_changing = false; // The objects are not in a state to look at.
    QUndoStack m_undoStack;
    History m_history;
};
