#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QSet>
#include <QStringList>
#include <QTest>
#include <QVariant>

#include <algorithm>

/// The JSON value that \a text spells, in double or, for easier reading, single quotes. Fails the test when
/// it is none.
[[nodiscard]] inline QJsonValue json(QString text)
{
    text.replace(u'\'', u'"');
    QJsonParseError error;
    // In a list, as documents cannot be bare values.
    const auto document = QJsonDocument::fromJson(u"[%1]"_qs.arg(text).toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        QTest::qFail(qPrintable(error.errorString() + u": "_qs + text), __FILE__, __LINE__);
    return document.array().at(0);
}

/// What a reader gets to see of the JSON value that \a text spells.
[[nodiscard]] inline QVariant variant(const QString &text)
{
    return json(text).toVariant();
}

/// The JSON value in one line.
[[nodiscard]] inline QString compact(const QJsonValue &value)
{
    const QByteArray line = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return value.isUndefined() ? u"nothing"_qs : QString::fromUtf8(line.mid(1, line.size() - 2));
}

/// Where two JSON values differ, a line for each place; empty when they are equal.
[[nodiscard]] inline QStringList jsonDifferences(const QJsonValue &actual, const QJsonValue &expected,
                                                 const QString &path = {})
{
    QStringList differences;
    if (actual.isObject() && expected.isObject()) {
        QStringList keys = actual.toObject().keys() + expected.toObject().keys();
        keys.removeDuplicates();
        keys.sort();
        for (const QString &key : std::as_const(keys))
            differences += jsonDifferences(actual[key], expected[key], path + u'/' + key);
    } else if (actual.isArray() && expected.isArray()) {
        const QJsonArray left = actual.toArray();
        const QJsonArray right = expected.toArray();
        for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i) {
            const auto at = [i](const QJsonArray &array) {
                return i < array.size() ? array.at(i) : QJsonValue(QJsonValue::Undefined);
            };
            differences += jsonDifferences(at(left), at(right), path + u'/' + QString::number(i));
        }
    } else if (actual != expected && !(qIsNaN(actual.toDouble()) && qIsNaN(expected.toDouble()))) {
        differences += u"%1: %2 instead of %3"_qs.arg(path.isEmpty() ? u"/"_qs : path, compact(actual),
                                                      compact(expected));
    }
    return differences;
}

/// Fails the test with the differences of two JSON values.
#define COMPARE_JSON(actual, expected)                                                                       \
    do {                                                                                                     \
        const QStringList differences = jsonDifferences(actual, expected);                                   \
        QVERIFY2(differences.isEmpty(), qPrintable(differences.join(u'\n')));                                \
    } while (false)
