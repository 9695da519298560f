#include "business/ProcessDictionaryBusiness.h"
#include "tests/support/DebugLines.h"
#include "tests/support/JsonCompare.h"
#include "tests/support/ModelDump.h"
#include "tests/support/Throwing.h"
#include "tests/support/Trees.h"

#include <cstdlib>
#include <new>

using namespace ModelDump;
using namespace Qt::Literals::StringLiterals;

// The model raises nothing but std::bad_alloc, so writing is interrupted by letting an allocation fail. Qt's
// containers allocate their elements with malloc() and are not concerned; its JSON containers use operator
// new.
namespace
{
thread_local int allocationsLeft = -1; // Negative: any number.

void *allocate(std::size_t size)
{
    if (allocationsLeft == 0)
        throw std::bad_alloc();
    if (allocationsLeft > 0)
        --allocationsLeft;
    if (void *memory = std::malloc(size > 0 ? size : 1)) // NOLINT(cppcoreguidelines-no-malloc)
        return memory;
    throw std::bad_alloc();
}
} // namespace

void *operator new(std::size_t size)
{
    return allocate(size);
}
void *operator new[](std::size_t size)
{
    return allocate(size);
}
void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return std::malloc(size > 0 ? size : 1); // NOLINT(cppcoreguidelines-no-malloc)
}
void *operator new[](std::size_t size, const std::nothrow_t &) noexcept
{
    return std::malloc(size > 0 ? size : 1); // NOLINT(cppcoreguidelines-no-malloc)
}
void operator delete(void *memory) noexcept
{
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}
void operator delete[](void *memory) noexcept
{
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}
void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}
void operator delete[](void *memory, std::size_t) noexcept
{
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}

namespace
{
const QString message = QString::fromLatin1(Throwing::what);

QVariantMap entityOf(const QString &name)
{
    return {{u"name"_s, name}};
}

QJsonValue entities(const QVariantMap &document)
{
    return dumpAndFree(ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(document, 0));
}

/// The keys of a written entity, its children's in brackets.
QString keysOf(const QJsonObject &entity)
{
    QStringList children;
    const QJsonArray entities = entity.value(u"entities"_s).toArray();
    for (const auto &child : entities)
        children.append(u'(' + keysOf(child.toObject()) + u')');
    return entity.keys().join(u' ') + children.join(QString());
}
} // namespace

class tst_ProcessDictionaryBusiness_Exceptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entityReaderAbandonsItsList_data()
    {
        QTest::addColumn<QVariantMap>("document");
        const QVariantMap good = entityOf(u"A"_s);
        QTest::addRow("the list itself") << QVariantMap{{u"root"_s, throwing()}};
        QTest::addRow("an element") << QVariantMap{{u"root"_s, QVariantList{good, throwing()}}};
        for (const auto &key : {u"name"_s, u"alias"_s, u"label"_s, u"codeVar"_s, u"labelVar"_s,
                                u"weightVar"_s, u"documentation"_s, u"virtual"_s, u"selectable"_s})
            QTest::addRow("element's %s", qPrintable(key))
                << QVariantMap{{u"root"_s, QVariantList{good, QVariantMap{{key, throwing()}}, good}}};
        QTest::addRow("single object's weight")
            << QVariantMap{{u"root"_s, QVariantMap{{u"weigthVar"_s, throwing()}}}};
    }
    void entityReaderAbandonsItsList()
    {
        QFETCH(QVariantMap, document);
        DebugLines log;
        COMPARE_JSON(entities(document), QJsonValue::Null);
        QCOMPARE(log.lines, QStringList({message}));
    }

    /// The key that counts only in the other form is not even looked at.
    void ignoredKeysDoNotThrow()
    {
        DebugLines log;
        COMPARE_JSON(entities({{u"root"_s, QVariantMap{{u"weightVar"_s, throwing()}}}}), json(u"[{}]"_s));
        COMPARE_JSON(entities({{u"root"_s, QVariantList{QVariantMap{{u"weigthVar"_s, throwing()}}}},
                               {u"zzz"_s, throwing()}}),
                     json(u"[{}]"_s));
        QVERIFY(log.lines.isEmpty());
    }

    void entityWhoseChildrenCannotBeReadHasNone()
    {
        DebugLines log;
        const QVariantMap parent{{u"name"_s, u"A"_s},
                                 {u"entities"_s, QVariantList{entityOf(u"B"_s), throwing()}}};
        COMPARE_JSON(entities({{u"root"_s, QVariantList{parent, entityOf(u"C"_s)}}}),
                     json(u"[{'name': 'A'}, {'name': 'C'}]"_s));
        QCOMPARE(log.lines, QStringList({message}));
    }

    void entityKeepsTheVariablesReadSoFar()
    {
        DebugLines log;
        const QVariantList variables{entityOf(u"X"_s), throwing(), entityOf(u"Y"_s)};
        COMPARE_JSON(entities({{u"root"_s, QVariantList{QVariantMap{{u"variables"_s, variables}}}}}),
                     json(u"[{'variables': [{'name': 'X'}]}]"_s));
        QCOMPARE(log.lines, QStringList({message}));
    }

    void variableReaderReturnsTheListSoFar()
    {
        DebugLines log;
        ProcessDictionaryBusiness business;
        COMPARE_JSON(dumpAndFree(business.recorrerVariablesNodosJson(throwing())), json(u"[]"_s));
        COMPARE_JSON(
            dumpAndFree(business.recorrerVariablesNodosJson(QVariantList{entityOf(u"X"_s), throwing()})),
            json(u"[{'name': 'X'}]"_s));
        QCOMPARE(log.lines, QStringList({message, message}));
    }

    void variableLosesTheKeyThatCannotBeRead_data()
    {
        QTest::addColumn<QString>("key");
        for (const auto &key :
             {u"name"_s, u"label"_s, u"group"_s, u"type"_s, u"fileName"_s, u"local"_s, u"metadata"_s,
              u"valueLabels"_s, u"size"_s, u"notapp"_s, u"missing"_s, u"tag"_s})
            QTest::addRow("%s", qPrintable(key)) << key;
    }
    void variableLosesTheKeyThatCannotBeRead()
    {
        QFETCH(QString, key);
        ProcessDictionaryBusiness business;
        const QVariantMap object{{u"alias"_s, u"a"_s}, {key, throwing()}};
        {
            DebugLines log;
            COMPARE_JSON(dumpAndFree(business.recorrerVariablesNodosJson(QVariantList{object, object})),
                         json(u"[{'alias': 'a'}, {'alias': 'a'}]"_s));
            QCOMPARE(log.lines, QStringList({message, message}));
        }
        DebugLines log;
        TDcVariable variable;
        business.loadItemFromVariables(key, &variable, object);
        COMPARE_JSON(dump(variable), json(u"{}"_s));
        QCOMPARE(log.lines, QStringList({message}));
    }

    /// Keys are applied in ascending order; the metadata are attached only when all of them are read.
    void variableIsLeftAsFarAsItsMetadataWereRead()
    {
        DebugLines log;
        const QVariantMap metadata{
            {u"decimals"_s, 2}, {u"length"_s, 8}, {u"record"_s, throwing()}, {u"start"_s, 5}};
        TDcVariable variable;
        variable.setFieldRelativePosition(7);
        ProcessDictionaryBusiness().loadItemFromVariables(u"metadata"_s, &variable,
                                                          {{u"metadata"_s, metadata}});
        COMPARE_JSON(dump(variable), json(u"{'decimals': 2, 'fieldSize': 8, 'fieldRelativePosition': 7}"_s));
        QCOMPARE(log.lines, QStringList({message}));
    }

    void rangeReaderReturnsTheListSoFar()
    {
        DebugLines log;
        ProcessDictionaryBusiness business;
        const QVariantMap range{{u"min"_s, 1}, {u"max"_s, 2}};
        const QVariantMap half{{u"max"_s, 2}, {u"min"_s, throwing()}};
        COMPARE_JSON(dumpAndFree(business.itemVariableSubitemRange(QVariantList{range, half, range})),
                     json(u"[[1, 2]]"_s));
        COMPARE_JSON(dumpAndFree(business.itemVariableSubitemRange(half)), json(u"[]"_s));
        COMPARE_JSON(dumpAndFree(business.itemVariableSubitemRange(throwing())), json(u"[]"_s));
        QCOMPARE(log.lines, QStringList({message, message, message}));
    }

    void metadataKeepTheRangesReadSoFar()
    {
        DebugLines log;
        const QVariantMap metadata{{u"range"_s, QVariantList{QVariantMap{{u"min"_s, 1}}, throwing()}},
                                   {u"start"_s, 5}};
        COMPARE_JSON(dumpAndFree(ProcessDictionaryBusiness().recorrerVariablesNodosJson(
                         QVariantMap{{u"metadata"_s, metadata}})),
                     json(u"[{'metadata': {'range': [[1, 0]], 'start': 5}}]"_s));
        QCOMPARE(log.lines, QStringList({message}));
    }

    void sourceChoiceIsLeftAsFarAsItWasFilled()
    {
        DebugLines log;
        VarWipChoice choice;
        const QVariantMap object{{u"dataProvider"_s, u"D"_s}, {u"field"_s, throwing()}, {u"start"_s, 5}};
        ProcessDictionaryBusiness business;
        business.loadItemVariableSubitemVarWipChoice(&choice, {{u"choice"_s, object}}, u"choice"_s);
        business.loadItemVariableSubitemVarWipChoice(&choice, {{u"choice"_s, throwing()}}, u"choice"_s);
        COMPARE_JSON(dump(choice), json(u"{'dataProvider': 'D'}"_s));
        QCOMPARE(log.lines, QStringList({message, message}));
    }

    void valueLabelReadersReturnTheListSoFar()
    {
        DebugLines log;
        ProcessDictionaryBusiness business;
        const QVariantMap good{{u"value"_s, 1}};
        const QVariantMap half{{u"label"_s, u"L"_s}, {u"value"_s, throwing()}};
        const QJsonValue one = json(u"[{'value': '1'}]"_s);
        COMPARE_JSON(
            dumpAndFree(business.recorrerValoresPorVariablesNodosJson(QVariantList{good, half, good})), one);
        COMPARE_JSON(dumpAndFree(business.recorrerValoresPorVariablesNodosJson(throwing())), json(u"[]"_s));
        const auto vector = [](const QVariant &value) {
            return QVariantMap{{u"valueLabelElement"_s, value}};
        };
        // The inner reader returns what it has, and the outer one goes on.
        COMPARE_JSON(dumpAndFree(business.recorrerVectorValoresPorVariablesNodosJson(
                         QVariantList{vector(QVariantList{good, half}), vector(good)})),
                     json(u"[{'value': '1'}, {'value': '1'}]"_s));
        COMPARE_JSON(dumpAndFree(business.recorrerVectorValoresPorVariablesNodosJson(
                         QVariantList{vector(good), throwing(), vector(good)})),
                     one);
        QCOMPARE(log.lines, QStringList({message, message, message, message}));
    }

    /// Wherever the memory runs out, writing returns and says so, and what is there is a part of the whole.
    void writerLeavesTheObjectAsFarAsItWasFilled()
    {
        const auto root = makeEntities(u"A/a\n    B/b\n    C/c\n");
        for (const auto &name : {u"A"_s, u"B"_s, u"C"_s}) {
            TDcVariable *variable = makeVariable(u"V"_s);
            findEntity(root.get(), name)->addVariables(variable);
            variable->setMetadataVariables(new MetadataVariables);
        }
        const QString leaf = u"alias name selectable variables virtual"_s;
        const QString whole = u"alias entities name selectable variables virtual(%1)(%1)"_s.arg(leaf);
        QSet<QString> seen;
        bool complete = false;
        for (int allocations = 0; !complete; ++allocations) {
            DebugLines log;
            QJsonObject out;
            allocationsLeft = allocations;
            ProcessDictionaryBusiness().getStructuraTreeRootToJson(root.get(), &out);
            complete = allocationsLeft >= 0 && log.lines.isEmpty();
            allocationsLeft = -1;
            seen.insert(keysOf(out));
            QVERIFY(allocations < 1'000);
            QVERIFY(complete || log.lines.contains(u"std::bad_alloc"_s));
        }
        QVERIFY(seen.contains(QString())); // Nothing at all could be written.
        QVERIFY(
            seen.contains(u"alias name selectable virtual"_s)); // The root's own keys, without its variables.
        QVERIFY(seen.contains(u"alias name selectable variables virtual"_s)); // Without its children.
        QVERIFY(seen.contains(whole));
        for (const QString &keys : std::as_const(seen))
            QVERIFY2(whole.contains(keys) || keys.contains(u'(')
                         || u"alias name selectable virtual"_s.contains(keys),
                     qPrintable(keys));
    }
};

QTEST_APPLESS_MAIN(tst_ProcessDictionaryBusiness_Exceptions)

#include "tst_processdictionarybusiness_exceptions.moc"
