// Dictionary documents: reading and writing against Qt's own work on the same bytes, gathering over a
// dictionary, nesting, and what reading leaves in memory.
#include "benchmarks/GeneratedDictionary.h"
#include "benchmarks/InTurn.h"
#include "business/ProcessDictionaryBusiness.h"
#include "common/DictionaryUtil.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVariantMap>

#include <malloc.h>

namespace
{
using Entities = std::unique_ptr<QList<TDcEntity *>, void (*)(QList<TDcEntity *> *)>;

Entities owned(QList<TDcEntity *> *entities)
{
    return {entities, [](QList<TDcEntity *> *list) {
                qDeleteAll(*list);
                delete list;
            }};
}

Entities readEntities(const QVariantMap &document)
{
    return owned(ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(document, 0));
}

QJsonObject written(TDcEntity *root)
{
    QJsonObject object;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(root, &object);
    return object;
}

QByteArray toBytes(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// The bytes of a generated dictionary's document.
QByteArray documentOf(int variables)
{
    const auto root = GeneratedDictionary::make(variables);
    return toBytes({{QStringLiteral("root"), QJsonArray{written(root.get())}}});
}

/// What a front end does before it can call the reader.
struct Parsed {
    explicit Parsed(const QByteArray &bytes)
        : document(QJsonDocument::fromJson(bytes)), map(document.object().toVariantMap())
    {
    }
    QJsonDocument document;
    QVariantMap map;
};

/// Ends the benchmark where the machine cannot hold what it makes, at \a bytesEach for each variable.
bool lacksMemory(benchmark::State &state, qint64 bytesEach)
{
    QFile info(QStringLiteral("/proc/meminfo"));
    if (!info.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = info.readAll();
    const qsizetype line = text.indexOf("MemAvailable:");
    const qint64 available = text.mid(line + 13, text.indexOf('\n', line) - line - 15).trimmed().toLongLong();
    if (available == 0 || available * 1024 > bytesEach * state.range(0))
        return false;
    state.SkipWithError("not enough memory available");
    return true;
}

/// One iteration takes long enough for a figure; those of small sizes are repeated for the median.
void sizes(benchmark::internal::Benchmark *conversion)
{
    conversion->Arg(1'000)->Arg(10'000)->Arg(100'000)->Iterations(5)->Complexity();
    conversion->UseManualTime()->Unit(benchmark::kMillisecond);
}

void largest(benchmark::internal::Benchmark *conversion)
{
    conversion->Arg(1'000'000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
}

void readAgainstParsing(benchmark::State &state)
{
    if (lacksMemory(state, 21'000))
        return;
    const QByteArray bytes = documentOf(int(state.range(0)));
    Ratio ratio(state);
    for ([[maybe_unused]] auto iteration : state) {
        const auto parsed = timed([&bytes] { return std::make_unique<Parsed>(bytes); });
        const auto read = timed([&parsed] { return readEntities(parsed.result->map); });
        ratio.add(read.seconds, parsed.seconds);
    }
    ratio.report(state.range(0) == 100'000 ? 0.35 : 0);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(readAgainstParsing)->Apply(sizes);
BENCHMARK(readAgainstParsing)->Apply(largest);

void writeAgainstToJson(benchmark::State &state)
{
    if (lacksMemory(state, 6'000))
        return;
    const auto root = GeneratedDictionary::make(int(state.range(0)));
    Ratio ratio(state);
    for ([[maybe_unused]] auto iteration : state) {
        const auto object = timed([&root] { return written(root.get()); });
        const auto bytes = timed([&object] { return toBytes(object.result); });
        ratio.add(object.seconds, bytes.seconds);
    }
    ratio.report(1.7);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(writeAgainstToJson)->Apply(sizes);
BENCHMARK(writeAgainstToJson)->Apply(largest);

/// One of DictionaryUtil's walks over a tree of entities with a variable in a group of its own each.
template <typename Gather>
void gather(benchmark::State &state, Gather gatherFrom)
{
    const auto root = GeneratedDictionary::makeEntity(0);
    const auto entities = GeneratedDictionary::addEntities(*root, int(state.range(0)) - 1);
    for (TDcEntity *entity : entities) {
        entity->addVariables(new TDcVariable);
        entity->getVariables()->constFirst()->setGroup(QStringLiteral("Group of ") + entity->getName());
    }
    DictionaryUtil util;
    for ([[maybe_unused]] auto iteration : state)
        state.SetIterationTime(timed([&] { return gatherFrom(util, root.get()); }).seconds);
    state.SetComplexityN(state.range(0));
}

void gatherEntityNames(benchmark::State &state)
{
    gather(state, [](auto &util, auto *root) { return util.getNamesEntitiesDictionary(root, {}).size(); });
}

void gatherAliases(benchmark::State &state)
{
    gather(state, [](auto &util, auto *root) { return util.getAliasEntitiesDictionary(root, {}).size(); });
}

void gatherGroups(benchmark::State &state)
{
    gather(state, [](auto &util, auto *root) { return util.getGroupEntitiesDictionary(root, {}).size(); });
}

void gatherSelectable(benchmark::State &state)
{
    gather(state, [](auto &util, auto *root) {
        QList<TDcEntity *> found;
        return util.getChildEntitiesChecked(root, &found)->size();
    });
}

void linear(benchmark::internal::Benchmark *gatherer)
{
    // Sizes beyond the processor's caches, whose effect would pass for more than linear.
    gatherer->Arg(20'000)->Arg(60'000)->Arg(200'000)->Iterations(20)->Complexity();
    gatherer->UseManualTime()->Unit(benchmark::kMillisecond);
}
BENCHMARK(gatherEntityNames)->Apply(linear);
BENCHMARK(gatherAliases)->Apply(linear);
BENCHMARK(gatherGroups)->Apply(linear);
BENCHMARK(gatherSelectable)->Apply(linear);

/// A chain of entities that hold the next one under each of \a keys.
QVariantMap nested(int depth, const QStringList &keys)
{
    QVariantMap node;
    for (int level = 0; level < depth; ++level) {
        QVariantMap outer{{QStringLiteral("name"), QString::number(level)}};
        for (const QString &key : keys)
            outer.insert(key, QVariantList{node});
        node = outer;
    }
    return node;
}

void bothKeysAgainstOne(benchmark::State &state)
{
    const QVariantMap one = nested(int(state.range(0)), {QStringLiteral("entities")});
    const QVariantMap both =
        nested(int(state.range(0)), {QStringLiteral("entities"), QStringLiteral("root")});
    runInTurn(
        state, 3, [&both] { return readEntities(both); }, [&one] { return readEntities(one); });
    state.SetComplexityN(state.range(0));
}
BENCHMARK(bothKeysAgainstOne)->RangeMultiplier(4)->Range(16, 1'024)->UseManualTime()->Complexity();

/// The same texts with nothing shared and nothing spare.
QString copied(const QString &text)
{
    return QString(text.constData(), text.size());
}

/// A variable as it would be made by hand from nothing but its values.
TDcVariable *copied(const TDcVariable &from)
{
    auto *variable = new TDcVariable;
    variable->setName(copied(from.getName()));
    variable->setAlias(copied(from.getAlias()));
    variable->setLabel(copied(from.getLabel()));
    variable->setGroup(copied(from.getGroup()));
    variable->setVarType(copied(from.getVarType()));
    auto *metadata = new MetadataVariables;
    metadata->setField(copied(from.getMetadataVariables()->getField()));
    for (const Range *range : std::as_const(*from.getMetadataVariables()->getRange()))
        metadata->addItemRange(new Range(*range));
    variable->setMetadataVariables(metadata);
    for (const ValueLabelElement *label : std::as_const(*from.getValueLabelElementList())) {
        auto *element = new ValueLabelElement;
        element->setValue(copied(label->getValue()));
        element->setLabel(copied(label->getLabel()));
        variable->addValueLabelElement(element);
    }
    return variable;
}

void copyBelow(const TDcEntity &from, TDcEntity &to)
{
    to.setName(copied(from.getName()));
    to.setAlias(copied(from.getAlias()));
    to.setLabel(copied(from.getLabel()));
    for (const TDcVariable *variable : std::as_const(*from.getVariables()))
        to.addVariables(copied(*variable));
    for (const TDcEntity *child : std::as_const(*from.getChildren())) {
        auto *entity = new TDcEntity;
        to.getChildren()->append(entity);
        copyBelow(*child, *entity);
    }
}

double bytesInUse()
{
    const auto info = mallinfo2();
    return double(info.uordblks + info.hblkhd);
}

/// What is in use after reading, the document freed, against the same objects made by hand.
void memoryAfterReading(benchmark::State &state)
{
    double read = 0;
    double made = 0;
    for ([[maybe_unused]] auto iteration : state) {
        const QByteArray bytes = documentOf(int(state.range(0)));
        const double before = bytesInUse();
        const Entities entities = readEntities(Parsed(bytes).map);
        read = bytesInUse() - before;
        const auto root = std::make_unique<TDcEntity>();
        copyBelow(*entities->constFirst(), *root);
        made = bytesInUse() - before - read;
    }
    state.counters["bytes_each"] = read / double(state.range(0));
    state.counters["ratio"] = read / made;
    state.counters["goal"] = 1.02;
    state.SetLabel(read <= made * 1.02 ? "goal reached" : "GOAL MISSED");
}
BENCHMARK(memoryAfterReading)->Arg(100'000)->Iterations(1)->Unit(benchmark::kMillisecond);
} // namespace

BENCHMARK_MAIN();
