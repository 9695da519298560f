#include "cli/ObjectKind.h"
#include "documents/internal/DictionaryKeys.h"
#include "tests/cli/Program.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Cli;

namespace
{
template <typename Object, std::size_t Size>
QStringList namesOf(const Keys::Key<Object> (&keys)[Size])
{
    QStringList names;
    for (const Keys::Key<Object> &key : keys)
        names.append(key.name);
    return names;
}

/// All keys that \a kind knows, in ascending order.
QStringList namesOf(const ObjectKind &kind)
{
    QStringList names;
    for (const QLatin1StringView value : kind.values)
        names.append(value);
    for (const ObjectKind::Part &part : kind.parts)
        names.append(part.key);
    names.removeAll(QString());
    names.sort();
    return names;
}
} // namespace

class TestObjectKind : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheKeysThatFilesKeep()
    {
        QCOMPARE(namesOf(entityKind), namesOf(Keys::entityKeys));
        const ObjectKind *variable = entityKind.partOf(u"variables"_s);
        QVERIFY(variable);
        QCOMPARE(namesOf(*variable), namesOf(Keys::variableKeys));
        QCOMPARE(variable->partOf(u"metadata"_s), &layoutKind);
        QCOMPARE(namesOf(layoutKind), namesOf(Keys::layoutKeys));
        QVERIFY(layoutKind.partOf(u"range"_s));
        QCOMPARE(namesOf(*layoutKind.partOf(u"range"_s)), namesOf(Keys::rangeKeys));
        QVERIFY(variable->partOf(u"valueLabels"_s));
        QCOMPARE(namesOf(*variable->partOf(u"valueLabels"_s)), namesOf(Keys::valueLabelKeys));
    }

    void aKeyIsKnownWhereItBelongs()
    {
        QVERIFY(entityKind.knows(u"variables"_s) && entityKind.knows(u"weigthVar"_s));
        QVERIFY(!entityKind.knows(u"missing"_s) && !entityKind.knows(QString()));
        QVERIFY(!layoutKind.knows(u"label"_s) && !frameKind.knows(u"name"_s));
        QCOMPARE(entityKind.partOf(u"root"_s), &entityKind);
        QCOMPARE(frameKind.partOf(u"entities"_s), &entityKind);
        QVERIFY(!entityKind.partOf(u"label"_s) && !entityKind.partOf(QString()));
    }

    void twoKeysAreWrittenUnderAnotherSpelling()
    {
        QCOMPARE(writtenSpelling(u"root"_s), u"entities"_s);
        QCOMPARE(writtenSpelling(u"weigthVar"_s), u"weightVar"_s);
        QCOMPARE(writtenSpelling(u"label"_s), u"label"_s);
    }

    void tellsWhatSaysNothing_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<bool>("nothing");
        const auto row = [](const char *name, const QString &key, const QJsonValue &value, bool nothing) {
            QTest::newRow(name) << key << value << nothing;
        };
        row("no key", u"label"_s, QJsonValue::Undefined, true);
        row("null", u"label"_s, QJsonValue::Null, true);
        row("empty text", u"label"_s, QString(), true);
        row("text", u"label"_s, u" "_s, false);
        row("zero", u"tag"_s, 0, true);
        row("number", u"tag"_s, 0.5, false);
        row("no", u"local"_s, false, true);
        row("yes", u"local"_s, true, false);
        row("empty list", u"range"_s, QJsonArray(), true);
        row("list", u"range"_s, QJsonArray{0}, false);
        row("empty object", u"metadata"_s, QJsonObject(), true);
        row("object", u"metadata"_s, QJsonObject{{u"x"_s, 0}}, false);
        row("the first position", u"start"_s, 1, true);
        row("another position", u"start"_s, 2, false);
        row("another one", u"tag"_s, 1, false);
    }
    void tellsWhatSaysNothing()
    {
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        QTEST(saysNothing(key, value), "nothing");
    }
};

QTEST_APPLESS_MAIN(TestObjectKind)
#include "tst_objectkind.moc"
