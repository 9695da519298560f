#include "business/ProcessDictionaryBusiness.h"
#include "tests/business/PlainReader.h"
#include "tests/support/JsonCompare.h"
#include "tests/support/ModelDump.h"

#include <QRandomGenerator>

#include <functional>

using namespace ModelDump;
using namespace Qt::Literals::StringLiterals;

namespace
{
QList<TDcEntity *> *readEntities(const QVariantMap &document)
{
    return ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(document, 0);
}

QVariantMap sample()
{
    QFile file(QStringLiteral(QUILLON_SOURCE_DIR "/tests/data/dictionary.mvdb"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no sample document");
    return QJsonDocument::fromJson(file.readAll()).object().toVariantMap();
}

/// Values of every type that JSON has, and of some that only programs make.
QVariantList oddValues()
{
    return {QVariant(),
            QVariant::fromValue(nullptr),
            true,
            0,
            -7,
            2147483648.0,
            1e300,
            qQNaN(),
            4294967297LL,
            1.9,
            u""_s,
            u"12"_s,
            u" 12 "_s,
            u"1.9"_s,
            u"text"_s,
            "bytes"_ba,
            QVariantList(),
            QVariantList{1, u"x"_s, QVariant()},
            QVariantList{QVariantList{QVariantMap{{u"name"_s, 1}}}},
            QVariantMap(),
            QVariantMap{{u"name"_s, 1}, {u"min"_s, 1.9}, {u"value"_s, 2}},
            QVariantHash{{u"name"_s, 1}},
            QStringList{u"a"_s, u"b"_s},
            QDate(2024, 1, 2),
            QJsonValue(5),
            QJsonArray{QJsonObject{{u"name"_s, u"x"_s}}},
            QJsonObject{{u"name"_s, u"x"_s}}};
}

/// Puts \a odd in the place of each value of \a value in turn, at every depth, and calls `visit(changed)`.
void replaceEach(const QVariant &value, const QVariant &odd,
                 const std::function<void(const QVariant &)> &visit)
{
    visit(odd);
    if (value.typeId() == QMetaType::QVariantMap) {
        QVariantMap map = value.toMap();
        const QStringList keys = map.keys();
        for (const QString &key : keys) {
            const QVariant before = map.value(key);
            replaceEach(before, odd, [&](const QVariant &changed) {
                map[key] = changed;
                visit(map);
            });
            map[key] = before;
        }
    } else if (value.typeId() == QMetaType::QVariantList) {
        QVariantList list = value.toList();
        for (qsizetype i = 0; i < list.size(); ++i) {
            const QVariant before = list.at(i);
            replaceEach(before, odd, [&](const QVariant &changed) {
                list[i] = changed;
                visit(list);
            });
            list[i] = before;
        }
    }
}

/// \a value with some of its parts replaced, left out, doubled, wrapped or under another key.
QVariant mutated(const QVariant &value, QRandomGenerator &random)
{
    static const QVariantList odd = oddValues();
    static const QStringList keys{u"entities"_s, u"root"_s,        u"variables"_s, u"name"_s,
                                  u"metadata"_s, u"range"_s,       u"min"_s,       u"max"_s,
                                  u"value"_s,    u"valueLabels"_s, u"weightVar"_s, u"weigthVar"_s,
                                  u"start"_s,    u"length"_s,      u"type"_s};
    switch (random.bounded(24)) {
    case 0:
        return odd.at(random.bounded(int(odd.size())));
    case 1:
        return QVariantList{value};
    case 2:
        return QVariantList{value, value};
    case 3:
        return QVariantMap{{keys.at(random.bounded(int(keys.size()))), value}};
    default:
        break;
    }
    if (value.typeId() == QMetaType::QVariantList) {
        QVariantList list;
        const QVariantList elements = value.toList();
        for (const QVariant &element : elements) {
            if (random.bounded(10) != 0)
                list.append(mutated(element, random));
        }
        return random.bounded(12) == 0 && !list.isEmpty() ? list.constFirst() : QVariant(list);
    }
    if (value.typeId() == QMetaType::QVariantMap) {
        QVariantMap map;
        const QVariantMap entries = value.toMap();
        for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
            const QString key =
                random.bounded(10) == 0 ? keys.at(random.bounded(int(keys.size()))) : entry.key();
            map.insert(key, mutated(entry.value(), random));
        }
        return map;
    }
    return value;
}

/// Entities nested \a depth deep, each under all of \a keys, as an element or as a single object.
QVariantMap nested(int depth, const QStringList &keys, bool single)
{
    QVariantMap node{{u"name"_s, u"leaf"_s}};
    for (int i = 0; i < depth; ++i) {
        QVariantMap outer;
        for (const QString &key : keys)
            outer.insert(key, single ? QVariant(node) : QVariantList{node});
        node = outer;
    }
    return node;
}
} // namespace

class tst_ProcessDictionaryBusiness_Input : public QObject
{
    Q_OBJECT

private:
    /// Both readers must make the same of it.
    static void compareWithPlainReader(const QVariantMap &document)
    {
        COMPARE_JSON(dumpAndFree(readEntities(document)),
                     dumpAndFree(PlainReader::readEntities(document, 0)));
    }

private Q_SLOTS:
    void sampleRoundTrip()
    {
        const QVariantMap document = sample();
        const std::unique_ptr<QList<TDcEntity *>> entities(readEntities(document));
        QCOMPARE(entities->size(), 1);
        const std::unique_ptr<TDcEntity> root(entities->takeFirst());
        QJsonObject again;
        ProcessDictionaryBusiness().getStructuraTreeRootToJson(root.get(), &again);
        COMPARE_JSON(again, QJsonObject::fromVariantMap(document)[u"root"_s][0]);
    }

    /// What the writer makes can stand under "root" or "entities", alone or in a list. Alone, the root's
    /// weight is lost.
    void asymmetry1_rootReadAloneLosesItsWeight()
    {
        const QVariant root = sample().value(u"root"_s).toList().constFirst();
        for (const auto &key : {u"root"_s, u"entities"_s}) {
            const QJsonValue inList = dumpAndFree(readEntities({{key, QVariantList{root}}}));
            const QJsonValue alone = dumpAndFree(readEntities({{key, root}}));
            QCOMPARE(jsonDifferences(alone, inList),
                     QStringList({u"/0/weightVariable: nothing instead of \"WEIGHT\""_s}));
        }
    }

    void oddValueAtEveryKey_data()
    {
        QTest::addColumn<QVariant>("odd");
        const QVariantList values = oddValues();
        for (qsizetype i = 0; i < values.size(); ++i)
            QTest::addRow("%d %s", int(i), values.at(i).typeName()) << values.at(i);
    }
    void oddValueAtEveryKey()
    {
        QFETCH(QVariant, odd);
        int documents = 0;
        replaceEach(sample(), odd, [&documents](const QVariant &changed) {
            ++documents;
            compareWithPlainReader(changed.toMap());
        });
        QVERIFY(documents > 70);
    }

    void mutatedDocuments()
    {
        QRandomGenerator random(20240607);
        int read = 0;
        for (int i = 0; i < 4'000 && !QTest::currentTestFailed(); ++i) {
            QVariant document = sample();
            for (int times = random.bounded(3); times >= 0; --times)
                document = mutated(document, random);
            compareWithPlainReader(document.toMap());
            read += document.toMap().contains(u"root"_s) ? 1 : 0;
        }
        QVERIFY(read > 1'000);
    }

    void deepNesting_data()
    {
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<bool>("single");
        for (const bool single : {false, true}) {
            const char *form = single ? "objects" : "lists";
            QTest::addRow("entities in %s", form) << QStringList{u"entities"_s} << single;
            QTest::addRow("root in %s", form) << QStringList{u"root"_s} << single;
            QTest::addRow("both keys in %s", form) << QStringList{u"entities"_s, u"root"_s} << single;
        }
    }
    void deepNesting()
    {
        QFETCH(QStringList, keys);
        QFETCH(bool, single);
        constexpr int depth = 1'000;
        const std::unique_ptr<QList<TDcEntity *>> entities(readEntities(nested(depth, keys, single)));
        QCOMPARE(entities->size(), 1);
        const std::unique_ptr<TDcEntity> root(entities->takeFirst());
        const TDcEntity *last = root.get();
        while (!last->getChildren()->isEmpty()) {
            QCOMPARE(last->getChildren()->size(), 1);
            last = last->getChildren()->constFirst();
        }
        QCOMPARE(last->getLevel(), depth);
        QCOMPARE(last->getName(), u"leaf"_s);
    }

    /// Both keys ask for the same children: reading them twice would take 2^60 steps here.
    void bothKeysAtEveryLevelCostNoMoreThanOne()
    {
        QJsonValue both = dumpAndFree(readEntities(nested(60, {u"entities"_s, u"root"_s}, false)));
        COMPARE_JSON(both, dumpAndFree(readEntities(nested(60, {u"entities"_s}, false))));
    }

    void bothKeysGiveWhatTwoReadingsGive()
    {
        for (const bool single : {false, true})
            compareWithPlainReader(nested(10, {u"entities"_s, u"root"_s}, single));
    }
};

QTEST_APPLESS_MAIN(tst_ProcessDictionaryBusiness_Input)

#include "tst_processdictionarybusiness_input.moc"
