#pragma once

#include <QChar>
#include <QFile>
#include <QKeySequence>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QXmlStreamReader>

/// The files with translations, as tests look at them.
namespace TsFiles
{
using namespace Qt::Literals::StringLiterals;

/// The rows of a test of each language that there are translations to.
inline void addTranslations()
{
    QTest::addColumn<QString>("language");
    QTest::addRow("German") << u"de"_s;
    QTest::addRow("Spanish") << u"es"_s;
}

struct Message {
    QString context;
    QString source;
    QStringList translations; ///< More than one for plural forms.
    QString state; ///< Empty when it is finished.

    [[nodiscard]] QString what() const { return context + u": "_s + source; }
};

inline Message readMessage(QXmlStreamReader &xml, const QString &context)
{
    Message message{.context = context, .source = {}, .translations = {}, .state = {}};
    while (xml.readNextStartElement()) {
        if (xml.name() == "source"_L1) {
            message.source = xml.readElementText();
        } else if (xml.name() == "numerusform"_L1) {
            message.translations.append(xml.readElementText());
        } else if (xml.name() == "translation"_L1) {
            message.state = xml.attributes().value("type"_L1).toString();
            QString text;
            while (!xml.atEnd()
                   && !(xml.readNext() == QXmlStreamReader::EndElement && xml.name() == "translation"_L1)) {
                if (xml.isStartElement())
                    message.translations.append(xml.readElementText());
                else
                    text += xml.text();
            }
            if (message.translations.isEmpty())
                message.translations.append(text);
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

inline QList<Message> readMessages(const QString &path)
{
    QList<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name"_L1)
            context = xml.readElementText();
        else if (xml.name() == "message"_L1)
            messages.append(readMessage(xml, context));
    }
    return xml.hasError() ? QList<Message>() : messages;
}

/// The file of a language in the sources.
inline QString tsFile(const QString &language)
{
    return QStringLiteral(QUILLON_SOURCE_DIR "/workbench/i18n/quillon_%1.ts").arg(language);
}

/// The letter that Alt goes with, in lower case; null for none.
inline QChar mnemonic(const QString &text)
{
    const QKeySequence key = QKeySequence::mnemonic(text);
    return key.isEmpty() ? QChar() : key.toString().back().toLower();
}

} // namespace TsFiles
