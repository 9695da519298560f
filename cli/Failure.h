#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace Cli
{
/// Why a verb could not do its work. The message is for a person and names the file it is about.
class Failure : public std::exception
{
public:
    explicit Failure(const QString &message) : m_message(message.toUtf8()) { }

    [[nodiscard]] const char *what() const noexcept override { return m_message.constData(); }
    [[nodiscard]] QString message() const { return QString::fromUtf8(m_message); }

private:
    QByteArray m_message;
};
} // namespace Cli
