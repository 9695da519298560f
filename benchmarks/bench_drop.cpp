// Drop import: what it costs to drop twice the fields onto twice the variables.
#include "benchmarks/InTurn.h"
#include "model/TDcEntity.h"
#include "models/VariableDiccionaryModel.h"

#include <QDataStream>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>

#include <cstdlib>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int small = 10'000;
constexpr int large = 2 * small;
constexpr double doublingGoal = 2.5;
constexpr int runs = 15;

/// The label keeps all four texts from being equal, so that nobody is asked.
QString fieldText(int number, const QString &prefix)
{
    const QJsonObject category{{u"codigoCategoria"_s, u"1"_s}, {u"nombreCategoria"_s, u"Yes"_s}};
    const QJsonObject field{{u"name"_s, prefix + QString::number(number)},
                            {u"label"_s, u"Dropped field %1"_s.arg(number)},
                            {u"tag"_s, number},
                            {u"categories"_s, QJsonArray{category}},
                            {u"fieldType"_s, u"INTEGER"_s},
                            {u"fieldRangeMin"_s, u"1"_s},
                            {u"fieldRangeMax"_s, u"9"_s},
                            {u"fieldSize"_s, 4}};
    return QString::fromUtf8(QJsonDocument(field).toJson());
}

/// \a count fields, each dragged in three columns.
std::unique_ptr<QMimeData> makeDrag(int count, const QString &prefix)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (int number = 0; number < count; ++number) {
        const QString text = fieldText(number, prefix);
        stream << text << text << text;
    }
    auto data = std::make_unique<QMimeData>();
    data->setData(u"application/vnd.text.list"_s, bytes);
    return data;
}

/// \a count variables V0, V1, ...
std::unique_ptr<TDcEntity> makeEntity(int count)
{
    auto entity = std::make_unique<TDcEntity>();
    for (int number = 0; number < count; ++number) {
        auto *variable = new TDcVariable;
        variable->setName(u"V%1"_s.arg(number));
        variable->setTag(number);
        entity->addVariables(variable);
    }
    return entity;
}

/// Equal imports, made ready before they are measured: each run takes one.
class Imports
{
public:
    Imports(int existing, int dropped, const QString &prefix) : m_drag(makeDrag(dropped, prefix))
    {
        std::generate_n(std::back_inserter(m_entities), runs, [existing] { return makeEntity(existing); });
    }
    std::unique_ptr<TDcEntity> run()
    {
        std::unique_ptr<TDcEntity> entity = std::move(m_entities.back());
        m_entities.pop_back();
        VariableDiccionaryModel model(nullptr, entity.get(), entity.get());
        if (!model.dropMimeData(m_drag.get(), Qt::CopyAction, -1, -1, {}))
            std::abort();
        return entity;
    }

private:
    const std::unique_ptr<QMimeData> m_drag;
    std::vector<std::unique_ptr<TDcEntity>> m_entities;
};

void doubling(benchmark::State &state, const QString &prefix)
{
    Imports measured(large, large, prefix);
    Imports reference(small, small, prefix);
    runInTurn(
        state, doublingGoal, [&measured] { return measured.run(); },
        [&reference] { return reference.run(); });
}

void dropWithoutClashes(benchmark::State &state)
{
    doubling(state, u"W"_s);
}
BENCHMARK(dropWithoutClashes)->UseManualTime()->Iterations(runs)->Unit(benchmark::kMillisecond);

/// All names are taken, so that a suffix is looked for each time.
void dropWithClashes(benchmark::State &state)
{
    doubling(state, u"V"_s);
}
BENCHMARK(dropWithClashes)->UseManualTime()->Iterations(runs)->Unit(benchmark::kMillisecond);
} // namespace

BENCHMARK_MAIN();
