// Edits in a large variable table, against an edit that builds every list of names and searches them with the
// typed text as an expression.
#include "benchmarks/InTurn.h"
#include "common/DictionaryUtil.h"
#include "common/Validate.h"
#include "model/TDcEntity.h"
#include "models/VariableDiccionaryModel.h"

#include <QRegularExpression>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int variableCount = 100'000;
constexpr int runs = 15;
constexpr double nameGoal = 0.6;
constexpr double labelGoal = 0.01;

class Table
{
public:
    Table()
    {
        for (int number = 0; number < variableCount; ++number) {
            auto *variable = new TDcVariable;
            variable->setName(u"VARIABLE%1"_s.arg(number));
            variable->setAlias(u"alias%1"_s.arg(number));
            m_entity.addVariables(variable);
        }
        m_model = std::make_unique<VariableDiccionaryModel>(nullptr, &m_entity, &m_entity);
    }

    bool edit(int column) { return m_model->setData(m_model->index(0, column), nextText()); }

    bool editPlainly()
    {
        const QString text = nextText();
        DictionaryUtil util;
        Validate validate;
        const QList<QString> entities = util.getNamesEntitiesDictionary(&m_entity, {});
        const QList<QString> entityAliases = util.getAliasEntitiesDictionary(&m_entity, {});
        QStringList names = util.getNamesVariablesByEntities(&m_entity, {});
        const QList<QString> aliases = util.getAliasVariableByEntity(&m_entity, {});
        if (const auto match = names.indexOf(QRegularExpression(text)); match >= 0)
            names.removeAt(match);
        return !validate.compare(entities, text) && !validate.compare(names, text);
    }

private:
    QString nextText() { return u"NEW%1"_s.arg(++m_edits); }

    int m_edits = 0;
    TDcEntity m_entity;
    std::unique_ptr<VariableDiccionaryModel> m_model;
};

void editAgainstPlainEdit(benchmark::State &state, int column, double goal)
{
    Table table;
    runInTurn(
        state, goal, [&] { return table.edit(column); }, [&] { return table.editPlainly(); });
}

void nameEdit(benchmark::State &state)
{
    editAgainstPlainEdit(state, 0, nameGoal);
}
BENCHMARK(nameEdit)->UseManualTime()->Iterations(runs)->Unit(benchmark::kMillisecond);

/// Labels are not checked, so that the number of variables does not count.
void labelEdit(benchmark::State &state)
{
    editAgainstPlainEdit(state, 2, labelGoal);
}
BENCHMARK(labelEdit)->UseManualTime()->Iterations(runs)->Unit(benchmark::kMillisecond);
} // namespace

BENCHMARK_MAIN();
