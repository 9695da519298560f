#include "models/internal/FieldPayload.h"

#include "tests/support/Payloads.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// Reads as plainly as one can.
QStringList readPlainly(const QByteArray &bytes)
{
    QStringList texts;
    QDataStream stream(bytes);
    while (!stream.atEnd()) {
        QString text;
        stream >> text;
        if (!texts.contains(text))
            texts.append(text);
    }
    return texts;
}

QByteArray sizeOf(quint32 size)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << size;
    return bytes;
}

/// The most address space that this process ever had, in KiB.
qint64 peakAddressSpace()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmPeak:"))
            return line.mid(7).trimmed().split(' ').first().toLongLong();
    }
    return -1;
}
} // namespace

class TestFieldPayload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatItWrote()
    {
        int first = 1;
        int second = 2;
        const QList<int *> items{&first, &second, &first};
        const auto describe = [](int number) { return QJsonObject{{"n"_L1, number}, {"a"_L1, u"é\n\"𝄞"_s}}; };
        const std::unique_ptr<QMimeData> data(FieldPayload::write(items, describe));
        const QStringList texts = FieldPayload::read(data->data(payloadType()));
        QCOMPARE(payloadTexts(*data).size(), 3);
        QCOMPARE(texts.size(), 2); // Repeated ones are dropped.
        QCOMPARE(FieldPayload::fromText(texts.at(0)), describe(1));
        QCOMPARE(FieldPayload::fromText(texts.at(1)), describe(2));
        QCOMPARE(texts.at(0), u"{\n    \"a\": \"é\\n\\\"𝄞\",\n    \"n\": 1\n}\n"_s);
    }

    void keepsTheFirstOfEqualTextsInTheirOrder()
    {
        const QStringList texts{u"b"_s, u"a"_s, u"b"_s, u"B"_s, u"a "_s, u"a"_s, QString(), u""_s};
        QCOMPARE(FieldPayload::read(payloadBytes(texts)),
                 (QStringList{u"b"_s, u"a"_s, u"B"_s, u"a "_s, QString()}));
    }

    void nothingHoldsNoText() { QVERIFY(FieldPayload::read({}).isEmpty()); }

    void whatIsNoObjectReadsAsAnEmptyOne_data()
    {
        QTest::addColumn<QString>("text");
        for (const QString &text :
             {u""_s, u"AGE"_s, u"{\"name\": "_s, u"[1]"_s, u"7"_s, u"null"_s, u"{} {}"_s})
            QTest::addRow("%s", qPrintable(text)) << text;
    }
    void whatIsNoObjectReadsAsAnEmptyOne()
    {
        QFETCH(const QString, text);
        QVERIFY(FieldPayload::fromText(text).isEmpty());
    }

    void readsCorruptPayloadsToTheirEnd_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("texts");
        const QByteArray age = payloadBytes({u"AGE"_s});
        QTest::addRow("stray byte") << QByteArray(1, 'x') << QStringList{QString()};
        QTest::addRow("stray bytes behind a text") << age + "xyz" << QStringList{u"AGE"_s, QString()};
        QTest::addRow("odd length, then a text") << sizeOf(7) + age << QStringList{QString(), u"AGE"_s};
        QTest::addRow("two bad ones count once")
            << sizeOf(7) + age + sizeOf(9) << QStringList{QString(), u"AGE"_s};
        QTest::addRow("bad one and empty one count once")
            << payloadBytes({QString()}) + sizeOf(7) << QStringList{QString()};
        QTest::addRow("null text") << sizeOf(0xffffffff) << QStringList{QString()};
        for (const quint32 length : {0x7ffffffeU, 0x80000000U, 0xfffffffcU, 0xfffffffeU, 0xfffffffdU})
            QTest::addRow("length %x", length) << age + sizeOf(length) << QStringList{u"AGE"_s, QString()};
        QTest::addRow("longer than there is")
            << sizeOf(1000) + QByteArray(998, 'A') << QStringList{QString()};
        QTest::addRow("64 bit length")
            << sizeOf(0xfffffffe) + sizeOf(0x7fffffff) + sizeOf(0xfffffffe) << QStringList{QString()};
    }
    void readsCorruptPayloadsToTheirEnd()
    {
        QFETCH(const QByteArray, bytes);
        QTEST(FieldPayload::read(bytes), "texts");
    }

    void readsTruncationsOfEveryLength()
    {
        const QStringList texts{u"{\"name\": \"AGE\"}"_s, u"{\"name\": \"SEX\"}"_s, u"ñ𝄞"_s};
        const QByteArray whole = payloadBytes(texts);
        QCOMPARE(FieldPayload::read(whole), texts);
        qsizetype end = 0; // Of the last whole text.
        qsizetype count = 0;
        for (qsizetype length = 0; length < whole.size(); ++length) {
            if (count < texts.size() && length == end + 4 + 2 * texts.at(count).size()) {
                end = length;
                ++count;
            }
            QStringList expected = texts.first(count);
            if (length > end)
                expected.append(QString()); // What is cut off counts as one empty text.
            QCOMPARE(FieldPayload::read(whole.first(length)), expected);
        }
    }

    void readsAMebibyteOfZerosAsOneEmptyText()
    {
        QCOMPARE(FieldPayload::read(QByteArray(1024 * 1024, '\0')), QStringList{QString()});
    }

    void readsOddLengthsAllTheWay()
    {
        QByteArray bytes;
        for (int i = 0; i < 100'000; ++i)
            bytes += sizeOf(1);
        QCOMPARE(FieldPayload::read(bytes + payloadBytes({u"END"_s})), (QStringList{QString(), u"END"_s}));
    }

    void keepsAHundredThousandDifferentTexts()
    {
        QStringList texts;
        for (int i = 0; i < 100'000; ++i)
            texts.append(QString::number(i));
        QCOMPARE(FieldPayload::read(payloadBytes(texts + texts)), texts);
    }

    void aForgedLengthTakesNoMemory()
    {
        const qint64 before = peakAddressSpace();
        if (before < 0)
            return; // This platform does not tell.
        for (const quint32 length : {0x7ffffffeU, 0xfffffffcU, 0xfffffffeU})
            (void)FieldPayload::read(sizeOf(length) + QByteArray(64, 'A'));
        QVERIFY(peakAddressSpace() - before < 256 * 1024);
    }

    void readsAnyBytesAsThePlainReaderDoes()
    {
        QRandomGenerator random(4711);
        const QByteArray sound =
            payloadBytes({u"{\"name\": \"AGE\"}"_s, u"{}"_s, QString(), u"{}"_s, u"{\"name\": \"SEX\"}"_s});
        for (int round = 0; round < 3000; ++round) {
            QByteArray bytes = sound;
            for (int change = random.bounded(6); change >= 0; --change) {
                const auto place = qsizetype(random.bounded(int(bytes.size())));
                const auto length = qsizetype(random.bounded(9));
                switch (random.bounded(3)) {
                case 0:
                    bytes[place] = char(random.bounded(256));
                    break;
                case 1:
                    bytes.remove(place, length);
                    break;
                default:
                    bytes.insert(place, sound.mid(random.bounded(int(sound.size())), length));
                }
                if (bytes.isEmpty())
                    bytes = QByteArray(3, '\xff');
            }
            QCOMPARE(FieldPayload::read(bytes), readPlainly(bytes));
        }
    }
};

QTEST_GUILESS_MAIN(TestFieldPayload)
#include "tst_fieldpayload.moc"
