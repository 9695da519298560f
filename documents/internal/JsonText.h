#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QString>
#include <QVariant>

class QJsonValue;

/// JSON as it stands in files. Only this knows how bytes become values.
namespace JsonText
{
/// How a text looks besides its value.
struct Style {
    bool byteOrderMark = false;
    bool indented = true;
};

/// The value of a text: a QVariantMap or a QVariantList; invalid for malformed text, and then `problem` says
/// what is wrong in which line and column, both counted from 1.
struct Content {
    QVariant value;
    Style style;
    QString problem;
};

/// The document that \a bytes are; null for malformed text, and then \a error says why.
[[nodiscard]] QJsonDocument parse(const QByteArray &bytes, QJsonParseError *error = nullptr);
[[nodiscard]] Content read(const QByteArray &bytes);

/// The text of \a value, an object or an array.
[[nodiscard]] QByteArray write(const QJsonValue &value, Style style);

/// Whether so much is nested in \a text, which is well-formed otherwise, that read() refuses it.
[[nodiscard]] bool isTooDeep(QByteArrayView text);
} // namespace JsonText
