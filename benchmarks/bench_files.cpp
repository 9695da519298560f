// Dictionary files: opening and saving against what the layer alone takes for the same bytes, and what copies
// and differences take.
#include "benchmarks/GeneratedDictionary.h"
#include "benchmarks/InTurn.h"
#include "business/ProcessDictionaryBusiness.h"
#include "documents/DictionaryCopy.h"
#include "documents/DictionaryDifference.h"
#include "documents/DictionaryEquality.h"
#include "documents/DictionaryFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QVariantMap>

namespace
{
using Entities = std::unique_ptr<QList<TDcEntity *>, void (*)(QList<TDcEntity *> *)>;

/// Variables with ten value labels each.
std::unique_ptr<TDcEntity> dictionaryOf(int variables)
{
    return GeneratedDictionary::make(variables, GeneratedDictionary::variablesPerEntity, 10);
}

QByteArray writtenByTheLayer(TDcEntity *root)
{
    QJsonObject object;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(root, &object);
    return QJsonDocument(QJsonObject{{QStringLiteral("root"), QJsonArray{object}}})
        .toJson(QJsonDocument::Compact);
}

Entities readByTheLayer(const QByteArray &bytes)
{
    const QVariantMap map = QJsonDocument::fromJson(bytes).object().toVariantMap();
    return {ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(map, 0),
            [](QList<TDcEntity *> *list) {
                qDeleteAll(*list);
                delete list;
            }};
}

QByteArray bytesIn(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A file with a generated dictionary.
class GeneratedFile
{
public:
    explicit GeneratedFile(int variables)
    {
        QFile file(path());
        if (file.open(QIODevice::WriteOnly))
            file.write(writtenByTheLayer(dictionaryOf(variables).get()));
    }
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("generated.mvdb")); }

private:
    QTemporaryDir m_folder;
};

/// fromJson(), toVariantMap() and the reader read the same file.
void openFile(benchmark::State &state)
{
    const GeneratedFile file(int(state.range(0)));
    runInTurn(
        state, 1.3,
        [&file] {
            auto opened = std::make_unique<DictionaryFile>();
            if (!opened->open(file.path()))
                std::abort();
            return opened;
        },
        [&file] { return readByTheLayer(bytesIn(file.path())); });
}
BENCHMARK(openFile)->Arg(1000)->Arg(50000)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The writer and toJson() write the same bytes into a file.
void saveFile(benchmark::State &state)
{
    const GeneratedFile file(int(state.range(0)));
    const QTemporaryDir folder;
    DictionaryFile opened;
    if (!opened.open(file.path()))
        std::abort();
    runInTurn(
        state, 1.3, [&opened] { return opened.save(); },
        [&] {
            QFile plain(folder.filePath(QStringLiteral("plain.mvdb")));
            return plain.open(QIODevice::WriteOnly) && plain.write(writtenByTheLayer(opened.root())) > 0;
        });
}
BENCHMARK(saveFile)->Arg(1000)->Arg(50000)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Every variable has a record and a key that nobody knows.
void saveFileWithExtras(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("extras.mvdb"));
    {
        QByteArray text = writtenByTheLayer(dictionaryOf(int(state.range(0))).get());
        text.replace("\"metadata\":{", "\"id\":7,\"metadata\":{\"record\":\"R\",");
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(text);
    }
    DictionaryFile opened;
    if (!opened.open(path))
        std::abort();
    runInTurn(
        state, 1.6, [&opened] { return opened.save(); },
        [&] {
            QFile plain(folder.filePath(QStringLiteral("plain.mvdb")));
            return plain.open(QIODevice::WriteOnly) && plain.write(writtenByTheLayer(opened.root())) > 0;
        });
}
BENCHMARK(saveFileWithExtras)->Arg(50000)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

void copyDictionary(benchmark::State &state)
{
    const auto root = dictionaryOf(int(state.range(0)));
    const QByteArray bytes = writtenByTheLayer(root.get());
    runInTurn(
        state, 0.3, [&root] { return DictionaryCopy::copy(*root); },
        [&bytes] { return readByTheLayer(bytes); });
}
BENCHMARK(copyDictionary)->Arg(50000)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A variable in a hundred has another label.
void compareDictionaries(benchmark::State &state)
{
    const auto before = dictionaryOf(int(state.range(0)));
    const auto after = DictionaryCopy::copy(*before);
    QList<TDcEntity *> entities{after.get()};
    for (qsizetype i = 0; i < entities.size(); ++i) {
        if (!entities.at(i)->getVariables()->isEmpty())
            entities.at(i)->getVariables()->constFirst()->setLabel(QStringLiteral("Another"));
        entities += *entities.at(i)->getChildren();
    }
    const QByteArray bytes = writtenByTheLayer(before.get());
    runInTurn(
        state, 3, [&] { return DictionaryDifference::between(*before, *after); },
        [&bytes] { return readByTheLayer(bytes); });
    state.SetComplexityN(state.range(0));
}
BENCHMARK(compareDictionaries)
    ->RangeMultiplier(4)
    ->Range(1024, 65536)
    ->Iterations(9)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

/// Undoing the edit of one variable, whatever the size of the dictionary around it.
void undoOneEdit(benchmark::State &state)
{
    const auto root = dictionaryOf(int(state.range(0)));
    TDcVariable &variable = *root->getVariables()->constFirst();
    for ([[maybe_unused]] auto iteration : state) {
        const double start = threadSeconds();
        const auto before = DictionaryCopy::copy(variable);
        variable.setLabel(QStringLiteral("Another"));
        const auto difference = DictionaryDifference::between(*before, variable);
        benchmark::DoNotOptimize(difference.inverted().apply(variable));
        state.SetIterationTime(threadSeconds() - start);
    }
}
BENCHMARK(undoOneEdit)->Arg(1000)->Arg(50000)->UseManualTime()->Unit(benchmark::kMicrosecond);
} // namespace

BENCHMARK_MAIN();
