#include "documents/DocumentFile.h"

#include "documents/internal/InputFile.h"
#include "documents/internal/JsonLosses.h"
#include "documents/internal/JsonText.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto anyoneMayWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

/// The same tomorrow and in another process: unsaved changes are told apart by it.
QByteArray digestOfBytes(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_256);
}

/// Where the content lies: a link to a file stays a link.
QString resolved(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? path : canonical;
}
} // namespace

bool DocumentFile::fail(Error error, const QString &text)
{
    m_error = error;
    m_errorText = text;
    return false;
}

bool DocumentFile::stopped(const std::stop_token &stop)
{
    const bool isStopped = stop.stop_requested();
    if (isStopped)
        fail(Error::None, {});
    return isStopped;
}

void DocumentFile::remember(const QString &path, const QByteArray &bytes)
{
    m_path = path;
    m_digest = digestOfBytes(bytes);
    m_error = Error::None;
    m_errorText.clear();
}

bool DocumentFile::open(const QString &path, const std::stop_token &stop)
{
    if (stopped(stop))
        return false;
    QString problem;
    const QByteArray bytes = InputFile::read(path, &problem);
    if (bytes.isNull())
        return fail(Error::CannotRead,
                    tr("%1 cannot be read: %2").arg(QDir::toNativeSeparators(path), problem));
    if (!load(bytes, stop)) {
        if (m_error != Error::None)
            m_errorText.prepend(QDir::toNativeSeparators(path) + u": "_s); // load() said what, not where.
        return false;
    }
    m_losses = lossesOf(bytes);
    remember(path, bytes);
    return true;
}

QJsonDocument DocumentFile::parsed(const QByteArray &bytes)
{
    return JsonText::parse(bytes);
}

QStringList DocumentFile::lossesOf(const QByteArray &bytes)
{
    return JsonLosses::of(bytes);
}

bool DocumentFile::restore(const Unsaved &unsaved, const std::stop_token &stop)
{
    if (!load(unsaved.content, stop))
        return false;
    m_path = unsaved.path;
    m_digest = unsaved.digest;
    m_losses = unsaved.losses;
    m_error = Error::None;
    m_errorText.clear();
    return true;
}

void DocumentFile::belongAs(const DocumentFile &other)
{
    m_path = other.m_path;
    m_digest = other.m_digest;
    m_losses = other.m_losses;
}

QByteArray DocumentFile::digestOf(const QString &path)
{
    QString problem;
    const QByteArray bytes = InputFile::read(path, &problem);
    return bytes.isNull() ? QByteArray() : digestOfBytes(bytes);
}

bool DocumentFile::isReadOnly() const
{
    // Some users may write whatever they like; what a file says about itself counts for them as well.
    const QFileInfo info(m_path);
    return info.exists() && (!info.isWritable() || !(info.permissions() & anyoneMayWrite));
}

bool DocumentFile::isChangedByOthers() const
{
    QString problem;
    const QByteArray bytes =
        !m_digest.isEmpty() && QFileInfo::exists(m_path) ? InputFile::read(m_path, &problem) : QByteArray();
    // A file that cannot be read any more has been changed as well.
    return !problem.isEmpty() || (!bytes.isNull() && digestOfBytes(bytes) != m_digest);
}

bool DocumentFile::save(SaveOptions options)
{
    const QString native = QDir::toNativeSeparators(m_path);
    if (m_path.isEmpty())
        return fail(Error::CannotWrite, tr("There is no file yet to be saved to."));
    if (isReadOnly())
        return fail(Error::ReadOnly, tr("%1 is read-only.").arg(native));
    if (!options.testFlag(OverwriteOthersChanges) && isChangedByOthers())
        return fail(Error::ChangedByOthers, tr("%1 has been changed since it was opened.").arg(native));
    if (!options.testFlag(AcceptLosses) && !m_losses.isEmpty())
        return fail(Error::LosesContent,
                    tr("%1 holds what cannot be kept:").arg(native) + u'\n' + m_losses.join(u'\n'));
    return overwrite(m_path);
}

bool DocumentFile::saveAs(const QString &path, SaveOptions options)
{
    if (!m_path.isEmpty() && resolved(path) == resolved(m_path))
        return save(options);
    return overwrite(path);
}

bool DocumentFile::overwrite(const QString &path)
{
    const QByteArray bytes = content();
    if (JsonText::isTooDeep(bytes)) {
        return fail(Error::CannotWrite,
                    tr("%1 is not written: it could not be read again, because more is nested in it than a "
                       "file may have.")
                        .arg(QDir::toNativeSeparators(path)));
    }
    QSaveFile file(resolved(path)); // Takes over the permissions of the file that it replaces.
    bool done = file.open(QIODevice::WriteOnly);
    // Before there is anything to be read.
    if (done && isSecret())
        done = file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    done = done && file.write(bytes) == bytes.size() && file.commit();
    if (!done) {
        return fail(Error::CannotWrite,
                    tr("%1 cannot be written: %2").arg(QDir::toNativeSeparators(path), file.errorString()));
    }
    remember(path, bytes);
    m_losses.clear();
    return true;
}
