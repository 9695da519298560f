#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "documents/DictionaryFile.h"
#include "tests/documents/Files.h"
#include "tests/documents/RandomDictionary.h"
#include "tests/documents/RandomDocument.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_DictionaryFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomDocumentsAreSavedEqual()
    {
        for (quint32 seed = 0; seed < 1000; ++seed) {
            const QJsonDocument document = RandomDocument(seed).document();
            const TemporaryFile file(document.toJson());
            DictionaryFile dictionary;
            QVERIFY2(dictionary.open(file.path()), qPrintable(dictionary.errorText()));
            QCOMPARE(dictionary.losses(), QStringList());
            if (seed % 20 == 0) // Waiting for the disk takes most of the time.
                QVERIFY2(dictionary.save(), qPrintable(dictionary.errorText()));
            const QByteArray saved = seed % 20 == 0 ? file.bytes() : dictionary.content();
            QVERIFY2(QJsonDocument::fromJson(saved) == document,
                     qPrintable(u"seed %1:\n%2"_s.arg(seed).arg(QString::fromUtf8(saved))));
        }
    }
};

QTEST_GUILESS_MAIN(tst_DictionaryFile)
#include "tst_dictionaryfile.moc"
