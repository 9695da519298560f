#pragma once

#include "model/OwnedList.h"
#include "model/TDcLookup.h"
#include "model/TDcSourceField.h"
#include "workbench/Workspace.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QMimeData;
class QTabWidget;
class SourceTab;

/// Where fields come from: a dataset, a CSV file, lookups. Their rows become variables by drag and drop, or
/// by an action.
class SourcesPanel : public QWidget
{
    Q_OBJECT

public:
    using Fields = std::unique_ptr<OwnedList<TDcSourceField>>;
    using Lookups = std::unique_ptr<OwnedList<TDcLookup>>;

    explicit SourcesPanel(const Workspace &workspace, QWidget *parent = nullptr);
    ~SourcesPanel() override;
    Q_DISABLE_COPY_MOVE(SourcesPanel)

    [[nodiscard]] SourceTab *dataset() const { return m_dataset; }
    [[nodiscard]] SourceTab *csv() const { return m_csv; }
    [[nodiscard]] SourceTab *lookups() const { return m_lookups; }

    /// Shows \a fields, with a choice among their records.
    void setDatasetFields(Fields fields);
    void setCsvFields(Fields fields);
    void setLookups(Lookups lookups);

Q_SIGNALS:
    /// The selected rows are to become variables. The payload lives until the signal returns.
    void chosen(const QMimeData *payload);

private:
    void showRecord();
    void append();
    void updateActions();
    [[nodiscard]] SourceTab *current() const;

    Workspace m_workspace;
    QTabWidget *m_tabs;
    SourceTab *m_dataset;
    SourceTab *m_csv;
    SourceTab *m_lookups;
    QComboBox *m_record;
    Fields m_datasetFields;
    Fields m_csvFields;
    Lookups m_lookupList;
};
