#include "cli/TextConverter.h"

#include "cli/DocumentReader.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "cli/Text.h"
#include "documents/DocumentFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// A value alone, as JSON has it.
QString spelt(const QJsonValue &value)
{
    return QString::fromUtf8(
        QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).chopped(1).sliced(1));
}

/// What an element of a list is told by: its name, its code, or its place.
QString nameOf(const QJsonValue &element, qsizetype index)
{
    for (const auto key : {"name"_L1, "value"_L1}) {
        QString name = element[key].toVariant().toString();
        if (!name.isEmpty())
            return name;
    }
    return u"[%1]"_s.arg(index);
}

void print(const QString &place, const QJsonValue &value, Cli::Output &output)
{
    const auto below = [&place](const QString &name) { return place.isEmpty() ? name : place + u'/' + name; };
    if (const QJsonObject object = value.toObject(); !object.isEmpty()) {
        // What is in an entity comes after the entity's own values.
        for (const bool lists : {false, true}) {
            for (auto member = object.begin(); member != object.end(); ++member) {
                if (lists == (member.value().isArray() || member.value().isObject()))
                    print(below(member.key()), member.value(), output);
            }
        }
    } else if (const QJsonArray list = value.toArray(); !list.isEmpty()) {
        for (qsizetype i = 0; i < list.size(); ++i)
            print(below(nameOf(list.at(i), i)), list.at(i), output);
    } else {
        output.line(Cli::Text::printable(place + u": "_s + spelt(value)));
    }
}
} // namespace

void Cli::convertToText(const QString &path, Output &output)
{
    const QByteArray bytes = Input::readAll(path);
    if (const QJsonDocument document = DocumentFile::parsed(bytes); !document.isNull())
        print({}, valueOf(document), output);
    else
        output.raw(bytes);
}
