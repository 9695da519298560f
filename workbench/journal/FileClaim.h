#pragma once

#include <QString>

#include <memory>

class QLockFile;

/// Tells other instances that a file is open in this one.
class FileClaim
{
public:
    /// Claims are kept in \a folder, which all instances share.
    explicit FileClaim(QString folder);
    ~FileClaim();
    Q_DISABLE_COPY_MOVE(FileClaim)

    /// Claims the file at \a path, however it is written, and lets go of the one before. False when another
    /// instance has it open, and then nothing is claimed. An empty path lets go only.
    bool claim(const QString &path);
    /// Whether another instance has the file at \a path open.
    [[nodiscard]] bool isOpenElsewhere(const QString &path) const;

private:
    [[nodiscard]] QString markOf(const QString &path) const;

    QString m_folder;
    QString m_mark; // Empty while nothing is claimed.
    std::unique_ptr<QLockFile> m_lock;
};
