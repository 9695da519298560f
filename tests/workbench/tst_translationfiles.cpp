#include "tests/workbench/TsFiles.h"

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace TsFiles;

namespace
{
/// The placeholders of a text, "%1 %2 %n".
QString placeholders(const QString &text)
{
    static const QRegularExpression pattern(u"%L?(\\d|n)"_s);
    QStringList found;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured());
    found.sort();
    return found.join(u' ');
}

/// What a text ends with, if that is punctuation or the end of a line.
QString ending(const QString &text)
{
    static const QRegularExpression pattern(u"[.:…?!\\n]+$"_s);
    return pattern.match(text).captured();
}

} // namespace

class TestTranslationFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void noMacroHidesATextFromTheCollector();
    void translationsFitTheirTexts_data();
    void translationsFitTheirTexts();
};

void TestTranslationFiles::everyTextIsTranslated_data()
{
    addTranslations();
    QTest::addRow("English plurals") << u"en"_s;
}

/// Whoever sees this fail: workbench/i18n/collect lists the new texts in the .ts files, to be translated.
void TestTranslationFiles::everyTextIsTranslated()
{
    QFETCH(const QString, language);
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"texts_%1.ts"_s.arg(language));
    QVERIFY(QFile::copy(tsFile(language), copy));
    QProcess collect;
    collect.start(QStringLiteral(QUILLON_SOURCE_DIR "/workbench/i18n/collect"), {copy});
    QVERIFY(collect.waitForFinished());
    QVERIFY2(collect.exitStatus() == QProcess::NormalExit && collect.exitCode() == 0,
             collect.readAllStandardError().constData());

    const QList<Message> current = readMessages(copy);
    const QList<Message> kept = readMessages(tsFile(language));
    QCOMPARE(current.isEmpty(), kept.isEmpty());
    QVERIFY(language == u"en"_s || current.size() > 600);
    QStringList lacking;
    for (const Message &message : current) {
        if (!message.state.isEmpty() || message.translations.contains(QString()))
            lacking.append(message.what());
    }
    QCOMPARE(lacking.join(u'\n'), QString());
    // What the sources no longer say is gone from the file too.
    QCOMPARE(kept.size(), current.size());
}

void TestTranslationFiles::noMacroHidesATextFromTheCollector()
{
    QFile collect(QStringLiteral(QUILLON_SOURCE_DIR "/workbench/i18n/collect"));
    QVERIFY(collect.open(QIODevice::ReadOnly));
    const QString known = QString::fromUtf8(collect.readAll());
    static const QRegularExpression pattern(u"#define\\s+(\\w+)\\(.*(NOOP|\\btr)\\("_s);
    QStringList hiding;
    for (const char *folder : {"workbench", "documents", "common", "business", "models", "model"}) {
        QDirIterator sources(QStringLiteral(QUILLON_SOURCE_DIR "/") + QLatin1StringView(folder),
                             {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (sources.hasNext()) {
            QFile source(sources.next());
            QVERIFY(source.open(QIODevice::ReadOnly));
            const auto macro = pattern.match(QString::fromUtf8(source.readAll()));
            if (macro.hasMatch() && !known.contains(u"+="_s + macro.captured(1)))
                hiding.append(source.fileName() + u": "_s + macro.captured(1));
        }
    }
    QCOMPARE(hiding.join(u'\n'), QString());
}

void TestTranslationFiles::translationsFitTheirTexts_data()
{
    addTranslations();
}

void TestTranslationFiles::translationsFitTheirTexts()
{
    QFETCH(const QString, language);
    QStringList wrong;
    const QList<Message> messages = readMessages(tsFile(language));
    for (const Message &message : messages) {
        for (const QString &translation : message.translations) {
            const bool fits = placeholders(translation) == placeholders(message.source)
                && ending(translation) == ending(message.source)
                && mnemonic(translation).isNull() == mnemonic(message.source).isNull()
                && translation.count(u'\n') == message.source.count(u'\n')
                && translation.trimmed().size() == translation.size();
            if (!fits)
                wrong.append(message.what() + u" -> "_s + translation);
        }
    }
    QCOMPARE(wrong.join(u'\n'), QString());
}

QTEST_MAIN(TestTranslationFiles)
#include "tst_translationfiles.moc"
