#pragma once

#include "documents/documents_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFlags>
#include <QJsonDocument>
#include <QString>
#include <QStringList>

#include <stop_token>

/// A document in a file: what opening and saving have in common, whatever the document holds.
///
/// Opening and saving again without an edit gives an equal document; an edit changes what it edits and
/// nothing else. The file itself is replaced in one step: whatever happens while it is saved, it holds the
/// old content or the new one.
class DOCUMENTS_EXPORT DocumentFile
{
    Q_DECLARE_TR_FUNCTIONS(DocumentFile)

public:
    enum class Error {
        None,
        CannotRead,
        Malformed, ///< No JSON text; errorText() says where.
        NoRoot, ///< A dictionary without a root entity, or a document of another kind.
        SeveralRoots,
        ReadOnly,
        ChangedByOthers, ///< Needs OverwriteOthersChanges to be saved.
        LosesContent, ///< losses() says what; needs AcceptLosses to be saved.
        CannotWrite ///< Or could not be read again, because too much is nested in it.
    };

    enum SaveOption { OverwriteOthersChanges = 1, AcceptLosses = 2 };
    Q_DECLARE_FLAGS(SaveOptions, SaveOption)

    DocumentFile() = default;
    virtual ~DocumentFile() = default;
    Q_DISABLE_COPY_MOVE(DocumentFile)

    /// Reads the file at \a path. False when that fails: then error() and errorText() say why, and all else
    /// stays as it was. The same, without an error, when \a stop is requested while there is much left to do.
    [[nodiscard]] bool open(const QString &path, const std::stop_token &stop = {});

    /// What a document needs to go on where it was, though it was not saved.
    struct Unsaved {
        QByteArray content; ///< As it would be saved.
        QString path; ///< Of the file; empty when there is none yet.
        QByteArray digest; ///< As digest() was.
        QStringList losses; ///< As losses() were.
    };
    [[nodiscard]] Unsaved unsaved() const { return {content(), m_path, m_digest, m_losses}; }
    /// Goes on where \a unsaved was: belongs to its file, which may be gone or changed by others meanwhile,
    /// and has its content. False when that cannot be read or \a stop is requested, as for open(); then all
    /// stays as it was.
    [[nodiscard]] bool restore(const Unsaved &unsaved, const std::stop_token &stop = {});

    /// Overwrites the file that was opened or saved last. False when that fails or must not be done without
    /// being told to; then the file is as it was.
    [[nodiscard]] bool save(SaveOptions options = {});

    /// Writes the file at \a path, new or not, and goes on with it. The same as save() for the present path.
    [[nodiscard]] bool saveAs(const QString &path, SaveOptions options = {});

    /// Empty until a file was opened or saved.
    [[nodiscard]] QString path() const { return m_path; }

    /// Whether nobody may write the file; save() then fails and saveAs() elsewhere does not.
    [[nodiscard]] bool isReadOnly() const;

    /// Whether the content of the file is another one than when it was opened or saved last. A file that is
    /// gone has not changed.
    [[nodiscard]] bool isChangedByOthers() const;

    /// Tells what the file held when it was opened or saved last from any other content; empty until then.
    [[nodiscard]] QByteArray digest() const { return m_digest; }
    /// The JSON document that \a bytes are, as opening a file reads it; null when they are none. Unlike Qt
    /// alone this keeps a byte order mark at the beginning of a text inside.
    [[nodiscard]] static QJsonDocument parsed(const QByteArray &bytes);

    /// The digest() of the file at \a path as it is now; empty when it cannot be read.
    [[nodiscard]] static QByteArray digestOf(const QString &path);

    /// What saving cannot keep of the file as it was opened, one line for each place: keys that an object
    /// has more than once and numbers with more digits than a number has.
    [[nodiscard]] QStringList losses() const { return m_losses; }

    /// The same for any JSON text, which must be well-formed.
    [[nodiscard]] static QStringList lossesOf(const QByteArray &bytes);

    /// Why the last operation failed.
    [[nodiscard]] Error error() const { return m_error; }
    [[nodiscard]] QString errorText() const { return m_errorText; }

protected:
    /// Takes the content of a file over, or fails and changes nothing. Where \a stop is asked for, that is
    /// stopped().
    virtual bool load(const QByteArray &bytes, const std::stop_token &stop) = 0;
    /// The content to be saved.
    [[nodiscard]] virtual QByteArray content() const = 0;
    /// Whether nobody but the file's owner may read what is saved.
    [[nodiscard]] virtual bool isSecret() const { return false; }

    /// Belongs to the same file as \a other, in the same state.
    void belongAs(const DocumentFile &other);

    /// Notes why an operation fails. False, for the caller to return.
    bool fail(Error error, const QString &text);
    /// Whether \a stop is requested; then an operation ends without an error.
    bool stopped(const std::stop_token &stop);

private:
    bool overwrite(const QString &path);
    void remember(const QString &path, const QByteArray &bytes);

    QString m_path;
    QByteArray m_digest; // Empty until there is a file.
    QStringList m_losses;
    Error m_error = Error::None;
    QString m_errorText;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(DocumentFile::SaveOptions)
