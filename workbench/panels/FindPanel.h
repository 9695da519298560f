#pragma once

#include "workbench/operations/Find.h"
#include "workbench/panels/ColumnMemory.h"
#include "workbench/panels/EmptyText.h"
#include "workbench/Workspace.h"

#include <QList>
#include <QTableView>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <utility>

class QBoxLayout;
class QCheckBox;
class QLabel;
class QLineEdit;
class QStandardItemModel;

/// Finds text in the whole dictionary and lists where, while a person types. Going to a hit selects it in the
/// other panels.
class FindPanel : public QWidget
{
    Q_OBJECT

public:
    /// As many hits are listed; a sentence says so when there are more.
    static constexpr qsizetype mostHits = 1000;

    explicit FindPanel(const Workspace &workspace, QWidget *parent = nullptr);

    [[nodiscard]] QLineEdit *field() const { return m_field; }
    [[nodiscard]] QTableView *view() const { return m_view; }
    [[nodiscard]] QLabel *summary() const { return m_summary; }

    /// Puts the cursor into the field, which is what Find in the menu does.
    void start();
    /// Goes to the next hit, or to the one before, around the ends.
    void step(bool forward);

Q_SIGNALS:
    /// A value label was gone to; its variable is selected already.
    void itemChosen(void *item);

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *createBar();
    void addOption(QBoxLayout *bar, const QString &text, Find::Parts parts);
    /// Lets Tab go as people read.
    void chainControls();
    void forget();
    void ask();
    void search();
    void searchNow();
    void list(const Find &found);
    void go(int row);
    [[nodiscard]] Find::Query query() const;

    Workspace m_workspace;
    QLineEdit *m_field;
    QLabel *m_summary;
    EmptyText<QTableView> *m_view;
    QStandardItemModel *m_model;
    QCheckBox *m_matchCase;
    QCheckBox *m_wholeWords;
    QList<std::pair<QCheckBox *, Find::Parts>> m_parts;
    QList<Find::Hit> m_hits; // By row. Empty while the structure changes.
    int m_row = -1; // The hit that was gone to last; -1 before the first.
    bool m_stale = false; // What is shown was searched for before the last change.
    QTimer m_quiet;
    std::unique_ptr<ColumnMemory> m_columns;
};
