// Checks and codebooks: in proportion to the dictionary, and not much dearer than opening it.
#include "benchmarks/GeneratedDictionary.h"
#include "benchmarks/InTurn.h"
#include "business/ProcessDictionaryBusiness.h"
#include "documents/checks/DictionaryCheck.h"
#include "documents/codebook/Codebook.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{
constexpr double Goal = 3;

QByteArray documentOf(TDcEntity *root)
{
    QJsonObject object;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(root, &object);
    return QJsonDocument(QJsonObject{{QStringLiteral("root"), QJsonArray{object}}})
        .toJson(QJsonDocument::Compact);
}

/// Opens a document as the layer does: parse, turn into a map, read.
std::unique_ptr<OwnedList<TDcEntity>> opened(const QByteArray &bytes)
{
    auto entities = std::make_unique<OwnedList<TDcEntity>>();
    entities->reset(ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(
        QJsonDocument::fromJson(bytes).object().toVariantMap(), 0));
    return entities;
}

/// Compares \a work on a dictionary, whose variables have ten value labels each, with opening it.
template <typename Work>
void againstOpening(benchmark::State &state, Work work)
{
    const auto root =
        GeneratedDictionary::make(int(state.range(0)), GeneratedDictionary::variablesPerEntity, 10);
    const QByteArray bytes = documentOf(root.get());
    runInTurn(
        state, Goal, [&] { return work(root.get()); }, [&] { return opened(bytes); });
    state.SetComplexityN(state.range(0));
}

void sizes(benchmark::internal::Benchmark *work)
{
    work->Arg(3'125)->Arg(12'500)->Arg(50'000)->Iterations(5)->Complexity();
    work->UseManualTime()->Unit(benchmark::kMillisecond);
}

void checkAgainstOpening(benchmark::State &state)
{
    againstOpening(state, [](TDcEntity *root) { return DictionaryCheck::check(root); });
}
BENCHMARK(checkAgainstOpening)->Apply(sizes);

void codebookAgainstOpening(benchmark::State &state)
{
    againstOpening(state, [](const TDcEntity *root) { return Codebook::html(root); });
}
BENCHMARK(codebookAgainstOpening)->Apply(sizes);

} // namespace

BENCHMARK_MAIN();
