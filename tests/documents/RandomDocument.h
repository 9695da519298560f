#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QString>

/// Dictionary documents from a seed in which anything may stand anywhere: keys nobody knows, values of the
/// wrong type, nulls, lists as objects and objects as lists. They have one root.
class RandomDocument
{
public:
    explicit RandomDocument(quint32 seed) : m_random(seed) { }

    [[nodiscard]] QJsonDocument document()
    {
        const QJsonObject root = entity(3);
        switch (upTo(4)) {
        case 0:
            return QJsonDocument(root);
        case 1:
            return QJsonDocument(QJsonArray{root});
        case 2:
            return QJsonDocument(
                QJsonObject{{QStringLiteral("root"), root}, {QStringLiteral("format"), anything(2)}});
        case 3:
            return QJsonDocument(QJsonObject{{QStringLiteral("entities"), QJsonArray{root}},
                                             {QStringLiteral("root"), anything(1)}});
        default:
            return QJsonDocument(QJsonObject{{QStringLiteral("root"), QJsonArray{root}}});
        }
    }

    /// A run configuration of the same kind.
    [[nodiscard]] QJsonDocument configuration()
    {
        QJsonObject object;
        put(object, "database", [&] {
            return part({"name", "folder", "sourceFile", "label", "author", "password", "filter",
                         "selectFilter", "fileFilter", "XXXproject"});
        });
        put(object, "options", [&] { return part({"createNotAppMissingInRange", "createNoRanges"}); });
        put(object, "entities", [&] {
            return list([&] {
                QJsonObject entity = part({"name", "recType", "createSDC", "allVariables", "checkSequence",
                                           "delete", "selectable"});
                put(entity, "variables", [&] { return list([&] { return anything(1); }); });
                return entity;
            });
        });
        put(object, "type", [&] { return QJsonValue(QStringLiteral("config")); });
        unknown(object);
        return QJsonDocument(object);
    }

private:
    int upTo(int limit) { return int(m_random.bounded(limit + 1)); }
    bool chance(int percent) { return upTo(99) < percent; }

    QString text()
    {
        static const QStringList texts{QString(),
                                       QStringLiteral("AGE"),
                                       QStringLiteral("A"),
                                       QStringLiteral("7"),
                                       QStringLiteral("007"),
                                       QStringLiteral("1.50"),
                                       QStringLiteral("nan"),
                                       QStringLiteral("false"),
                                       QStringLiteral("C:\\data\\x"),
                                       QStringLiteral("niño\n\t\"q\""),
                                       QString(QChar(0xFEFF)) + QStringLiteral("mark"),
                                       QString(QChar(0xD83D)) + QChar(0xDE00)};
        return texts.at(upTo(int(texts.size()) - 1));
    }

    QJsonValue number()
    {
        static const QList<QJsonValue> numbers{0,
                                               1,
                                               -1,
                                               2,
                                               7,
                                               12,
                                               99,
                                               1.5,
                                               -0.25,
                                               1e22,
                                               3000000000.,
                                               1e-7,
                                               12.0,
                                               4294967297LL,
                                               9223372036854775807LL,
                                               9007199254740993LL,
                                               2147483648LL};
        return numbers.at(upTo(int(numbers.size()) - 1));
    }

    QJsonValue anything(int depth)
    {
        switch (upTo(depth > 0 ? 7 : 4)) {
        case 0:
            return text();
        case 1:
            return number();
        case 2:
            return chance(50);
        case 3:
            return QJsonValue::Null;
        case 4:
            return upTo(3);
        case 5: {
            QJsonArray array;
            for (int i = upTo(2); i > 0; --i)
                array.append(anything(depth - 1));
            return array;
        }
        case 6:
            return QJsonObject();
        default:
            return QJsonObject{{text(), anything(depth - 1)}, {QStringLiteral("value"), anything(depth - 1)}};
        }
    }

    /// A value that is as expected most of the time.
    template <typename Make>
    void put(QJsonObject &object, const char *key, Make make)
    {
        if (chance(70))
            object.insert(QLatin1StringView(key), chance(85) ? QJsonValue(make()) : anything(2));
    }

    void unknown(QJsonObject &object)
    {
        static const QStringList names{QStringLiteral("Name"),
                                       QStringLiteral("id"),
                                       QStringLiteral("zzz"),
                                       QStringLiteral("aaa"),
                                       QString(),
                                       QStringLiteral("recordé"),
                                       QStringLiteral("project")};
        for (int i = chance(40) ? upTo(3) : 0; i > 0; --i)
            object.insert(names.at(upTo(int(names.size()) - 1)), anything(2));
    }

    QJsonValue plain()
    {
        return chance(50) ? QJsonValue(text()) : chance(50) ? number() : QJsonValue(chance(50));
    }

    QJsonObject part(std::initializer_list<const char *> keys)
    {
        QJsonObject object;
        for (const char *key : keys)
            put(object, key, [&] { return plain(); });
        unknown(object);
        return object;
    }

    template <typename Make>
    QJsonValue list(Make make)
    {
        if (chance(15))
            return QJsonValue(make());
        QJsonArray array;
        for (int i = upTo(3); i > 0; --i)
            array.append(chance(90) ? QJsonValue(make()) : anything(2));
        return array;
    }

    QJsonObject variable()
    {
        QJsonObject object = part({"name", "label", "alias", "group", "documentation", "fileName", "local"});
        static const QStringList types{QStringLiteral("integer"), QStringLiteral("real"),
                                       QStringLiteral("string"), QStringLiteral("INTEGER"), QString()};
        put(object, "type", [&] { return QJsonValue(types.at(upTo(4))); });
        for (const char *key : {"size", "tag", "notapp", "missing"})
            put(object, key, [&] { return number(); });
        put(object, "metadata", [&] {
            QJsonObject layout = part({"record", "field", "lookup"});
            for (const char *key : {"start", "length", "decimals"})
                put(layout, key, [&] { return number(); });
            put(layout, "range", [&] {
                return list([&] {
                    QJsonObject range;
                    put(range, "min", [&] { return number(); });
                    put(range, "max", [&] { return number(); });
                    unknown(range);
                    return range;
                });
            });
            return layout;
        });
        put(object, "valueLabels", [&] {
            return list([&] {
                QJsonObject element = part({"label"});
                put(element, "value", [&] { return plain(); });
                return element;
            });
        });
        return object;
    }

    QJsonObject entity(int depth)
    {
        QJsonObject object =
            part({"name", "alias", "label", "weightVar", "documentation", "codeVar", "labelVar"});
        if (chance(20))
            object.insert(QStringLiteral("weigthVar"), plain());
        object.insert(QStringLiteral("virtual"), anything(1)); // By which an entity is told from a frame.
        put(object, "selectable", [&] { return QJsonValue(chance(50)); });
        put(object, "variables", [&] { return list([&] { return variable(); }); });
        for (const char *key : {"entities", "root"}) {
            if (depth > 0 && chance(40))
                put(object, key, [&] { return list([&] { return entity(depth - 1); }); });
        }
        return object;
    }

    QRandomGenerator m_random;
};
