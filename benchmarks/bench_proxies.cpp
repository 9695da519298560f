// Filtering and sorting 100,000 variables through VariablesDictionaryProxyModel and VariablesProxyModel,
// against a plain QSortFilterProxyModel on the same model.
#include "benchmarks/InTurn.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "models/VariableDiccionaryModel.h"
#include "models/VariablesDictionaryProxyModel.h"
#include "models/VariablesProxyModel.h"

#include <QApplication>
#include <QLocale>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int rows = 100'000;

/// Variables in random order, with words as people use them; every eighth alias holds an address.
std::unique_ptr<TDcEntity> makeEntity()
{
    const QStringList words{u"Household"_s, u"income"_s, u"Água potable"_s, u"niño"_s, u"Dwelling"_s,
                            u"age"_s,       u"Sex of"_s, u"éducation"_s,    u"year"_s};
    QRandomGenerator random(7);
    const auto word = [&] { return words.at(random.bounded(words.size())); };

    auto entity = std::make_unique<TDcEntity>();
    for (int i = 0; i < rows; ++i) {
        auto *variable = new TDcVariable;
        const QString number = QString::number(random.bounded(rows));
        variable->setName(u"VAR_%1_%2"_s.arg(word().first(3), number));
        variable->setAlias(i % 8 == 0 ? u"%1 v.%2@survey"_s.arg(word(), number)
                                      : u"%1_alias_%2"_s.arg(word(), number));
        variable->setLabel(u"%1 %2 %3"_s.arg(word(), word(), number));
        variable->setGroup(u"%1 group"_s.arg(word()));
        variable->setTag(random.bounded(10'000));
        entity->addVariables(variable);
    }
    return entity;
}

VariableDiccionaryModel &source()
{
    static const std::unique_ptr<TDcEntity> entity = makeEntity();
    static VariableDiccionaryModel model(nullptr, entity.get(), entity.get());
    return model;
}

/// Filters all rows of the source at once. A proxy that shows rows already would spend most of its time on
/// announcing those that go, which is not what is compared here.
int filtered(QSortFilterProxyModel &proxy, const QRegularExpression &expression)
{
    proxy.setSourceModel(nullptr);
    proxy.setFilterRegularExpression(expression);
    proxy.setSourceModel(&source());
    return proxy.rowCount();
}

void filter(benchmark::State &state, const QString &pattern, QRegularExpression::PatternOptions options)
{
    VariablesDictionaryProxyModel ours;
    QSortFilterProxyModel plain;
    plain.setFilterKeyColumn(-1);

    const QRegularExpression expression(pattern, options);
    const QRegularExpression plainExpression(pattern, QRegularExpression::CaseInsensitiveOption);
    runInTurn(
        state, 1.0, [&] { return filtered(ours, expression); },
        [&] { return filtered(plain, plainExpression); });
}

/// Sorts by \a column, starting from the source's order every time.
int sorted(QSortFilterProxyModel &proxy, int column)
{
    proxy.sort(-1);
    proxy.sort(column);
    return proxy.mapToSource(proxy.index(0, 0)).row();
}

template <typename Proxy>
void sort(benchmark::State &state, int column)
{
    Proxy ours;
    ours.setSourceModel(&source());
    QSortFilterProxyModel plain;
    plain.setSourceModel(&source());
    plain.setSortLocaleAware(true);
    runInTurn(
        state, 1.1, [&] { return sorted(ours, column); }, [&] { return sorted(plain, column); });
}

template <typename... Arguments>
void add(const char *name, void (*run)(benchmark::State &, Arguments...),
         std::type_identity_t<Arguments>... arguments)
{
    benchmark::RegisterBenchmark(name, [=](benchmark::State &state) { run(state, arguments...); })
        ->UseManualTime()
        ->Iterations(9)
        ->Unit(benchmark::kMillisecond);
}
} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));

    using Option = QRegularExpression::PatternOption;
    add("filter/empty", filter, QString(), Option::NoPatternOption);
    add("filter/literal", filter, u"HOUSEHOLD"_s, Option::NoPatternOption);
    add("filter/literal_without_hit", filter, u"ZEBRA"_s, Option::NoPatternOption);
    add("filter/literal_without_case", filter, u"household"_s, Option::CaseInsensitiveOption);
    add("filter/lower_case_literal", filter, u"household"_s, Option::NoPatternOption);
    add("filter/expression", filter, u"HOUSE[HX]OLD"_s, Option::NoPatternOption);
    add("filter/expression_without_hit", filter, u"Z[EX]BRA"_s, Option::NoPatternOption);
    add("filter/invalid_expression", filter, u"HOUSE["_s, Option::NoPatternOption);

    add("sort/dictionary/name", sort<VariablesDictionaryProxyModel>, 0);
    add("sort/dictionary/alias", sort<VariablesDictionaryProxyModel>, 1);
    add("sort/dictionary/label", sort<VariablesDictionaryProxyModel>, 2);
    add("sort/dictionary/tag", sort<VariablesDictionaryProxyModel>, 4);
    add("sort/variables/name", sort<VariablesProxyModel>, 0);
    add("sort/variables/tag", sort<VariablesProxyModel>, 4);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
