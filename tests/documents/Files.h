#pragma once

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

/// A file with a folder of its own, both gone with this.
class TemporaryFile
{
public:
    explicit TemporaryFile(const QByteArray &bytes = {}) { set(bytes); }

    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("document")); }
    [[nodiscard]] QString folder() const { return m_folder.path(); }

    void set(const QByteArray &bytes) const
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    [[nodiscard]] QByteArray bytes() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    [[nodiscard]] QJsonDocument json() const { return QJsonDocument::fromJson(bytes()); }

private:
    QTemporaryDir m_folder;
};
