// The variable table of the workbench with 50,000 variables, against a plain view, proxy and
// QStandardItemModel that hold the same texts and icons: typing into the filter, scrolling, sorting.
#include "benchmarks/GeneratedDictionary.h"
#include "benchmarks/InTurn.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/panels/VariableTablePanel.h"
#include "workbench/panels/Widgets.h"
#include "workbench/Selection.h"
#include "workbench/Workspace.h"

#include <QApplication>
#include <QIcon>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int rows = 50'000;
constexpr QSize size(700, 500);

/// The panel as the main window has it.
class Panel
{
public:
    Panel()
    {
        m_document.edit(u"filling"_s, [this] {
            for (int number = 0; number < rows; ++number)
                m_document.root()->addVariables(GeneratedDictionary::makeVariable(number, 0).release());
        });
        m_selection.setEntity(m_document.root());
        m_panel.resize(size);
        m_panel.show();
        QApplication::processEvents();
    }

    [[nodiscard]] QTableView *view() { return m_panel.view(); }
    void filter(const QString &text) { m_panel.filterField()->setText(text); }

private:
    Document m_document;
    Selection m_selection{&m_document};
    Actions m_actions;
    VariableTablePanel m_panel{Workspace{&m_document, &m_selection, &m_actions, nullptr}};
};

/// What anybody would build for a table of texts.
class Plain
{
public:
    Plain(const QAbstractItemModel &texts) : m_model(texts.rowCount(), texts.columnCount())
    {
        for (int row = 0; row < texts.rowCount(); ++row) {
            for (int column = 0; column < texts.columnCount(); ++column) {
                const QModelIndex cell = texts.index(row, column);
                m_model.setItem(
                    row, column,
                    new QStandardItem(cell.data(Qt::DecorationRole).value<QIcon>(), cell.data().toString()));
            }
        }
        m_proxy.setSourceModel(&m_model);
        m_proxy.setFilterKeyColumn(-1);
        m_view.setModel(&m_proxy);
        Widgets::setUpTable(&m_view, u"plain"_s);
        m_view.resize(size);
        m_view.show();
        QApplication::processEvents();
    }

    [[nodiscard]] QTableView *view() { return &m_view; }
    void filter(const QString &text)
    {
        m_proxy.setFilterRegularExpression(
            QRegularExpression(QRegularExpression::escape(text), QRegularExpression::CaseInsensitiveOption));
    }

private:
    QStandardItemModel m_model;
    QSortFilterProxyModel m_proxy;
    QTableView m_view;
};

struct Both {
    Panel panel;
    Plain plain{*panel.view()->model()};
};

Both &both()
{
    static Both sides; // Filling them takes longer than all that is measured.
    return sides;
}

/// Letter by letter, what is shown painted after each, and empty again.
template <typename Side>
int type(Side &side)
{
    int shown = 0;
    for (const auto &text : {u"2"_s, u"27"_s, u"271"_s, u"2718"_s, QString()}) {
        side.filter(text);
        QApplication::processEvents();
        shown += side.view()->model()->rowCount();
    }
    return shown;
}

template <typename Side>
int scroll(Side &side)
{
    QScrollBar *bar = side.view()->verticalScrollBar();
    constexpr int steps = 40;
    for (int step = 0; step <= steps; ++step) {
        bar->setValue(bar->maximum() / steps * step);
        QApplication::processEvents();
    }
    bar->setValue(0);
    QApplication::processEvents();
    return bar->maximum();
}

/// By the label, up and down, and back to the order of the entity.
template <typename Side>
int sort(Side &side)
{
    for (const int column : {2, 2, -1}) {
        static bool down = false;
        down = !down;
        side.view()->sortByColumn(column, down ? Qt::DescendingOrder : Qt::AscendingOrder);
        QApplication::processEvents();
    }
    return side.view()->model()->rowCount();
}

constexpr double goal = 1.3;

void typeIntoFilter(benchmark::State &state)
{
    runInTurn(
        state, goal, [] { return type(both().panel); }, [] { return type(both().plain); });
}

void scrollThrough(benchmark::State &state)
{
    runInTurn(
        state, goal, [] { return scroll(both().panel); }, [] { return scroll(both().plain); });
}

void sortByLabel(benchmark::State &state)
{
    runInTurn(
        state, goal, [] { return sort(both().panel); }, [] { return sort(both().plain); });
}

BENCHMARK(typeIntoFilter)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollThrough)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);
BENCHMARK(sortByLabel)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
