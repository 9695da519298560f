#include "workbench/panels/SourcesPanel.h"

#include "models/CsvPropertiesModel.h"
#include "models/DatasetPropertiesFieldsModel.h"
#include "models/LookupPropertiesModel.h"
#include "models/VariablesDatasetProxyModel.h"
#include "workbench/Actions.h"
#include "workbench/panels/SourceTab.h"
#include "workbench/proxies/TitledColumns.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QMimeData>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// What the dataset model takes for all records.
QString allRecords()
{
    return u"*"_s;
}
} // namespace

SourcesPanel::SourcesPanel(const Workspace &workspace, QWidget *parent)
    : QWidget(parent), m_workspace(workspace), m_tabs(new QTabWidget(this)), m_record(new QComboBox(this))
{
    const Actions &actions = *workspace.actions;
    QAction *append = actions[ActionId::SourceAppend];
    m_dataset =
        new SourceTab(u"dataset"_s, tr("Dataset fields"),
                      new TitledColumns<VariablesDatasetProxyModel>({tr("Field"), tr("Label"), tr("Tag")}),
                      {actions[ActionId::SourceOpenDataset], append}, this);
    m_csv = new SourceTab(u"csv"_s, tr("CSV fields"), new TitledColumns<QSortFilterProxyModel>({tr("Field")}),
                          {actions[ActionId::SourceOpenCsv], append}, this);
    m_lookups =
        new SourceTab(u"lookups"_s, tr("Lookups"), new TitledColumns<QSortFilterProxyModel>({tr("Lookup")}),
                      {actions[ActionId::SourceOpenLookups], append}, this);
    m_dataset->addControl(m_record);
    m_record->setAccessibleName(tr("Record"));
    m_record->view()->setAccessibleName(tr("Record"));
    m_record->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_record->hide();
    m_tabs->setDocumentMode(true);
    m_tabs->setAccessibleName(tr("Sources"));
    m_tabs->addTab(m_dataset, tr("Dataset"));
    m_tabs->addTab(m_csv, tr("CSV"));
    m_tabs->addTab(m_lookups, tr("Lookups"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);

    connect(append, &QAction::triggered, this, &SourcesPanel::append);
    connect(m_record, &QComboBox::activated, this, &SourcesPanel::showRecord);
    connect(m_tabs, &QTabWidget::currentChanged, this, &SourcesPanel::updateActions);
    for (SourceTab *tab : {m_dataset, m_csv, m_lookups}) {
        connect(tab, &SourceTab::activated, this, &SourcesPanel::append);
        connect(tab, &SourceTab::selectionChanged, this, &SourcesPanel::updateActions);
    }
    updateActions();
}

SourcesPanel::~SourcesPanel()
{
    // The models look at the lists.
    for (SourceTab *tab : {m_dataset, m_csv, m_lookups}) {
        tab->disconnect(this);
        tab->setModel(nullptr);
    }
}

SourceTab *SourcesPanel::current() const
{
    return static_cast<SourceTab *>(m_tabs->currentWidget());
}

void SourcesPanel::setDatasetFields(Fields fields)
{
    m_dataset->setModel(nullptr);
    m_datasetFields = std::move(fields);
    QStringList records;
    for (const TDcSourceField *field : std::as_const(*m_datasetFields->get())) {
        if (!records.contains(field->record))
            records.append(field->record);
    }
    m_record->clear();
    m_record->addItem(tr("All records"), allRecords());
    for (const QString &record : std::as_const(records))
        m_record->addItem(record, record);
    m_record->setVisible(records.size() > 1);
    m_tabs->setCurrentWidget(m_dataset);
    showRecord();
}

void SourcesPanel::showRecord()
{
    m_dataset->setModel(new DatasetPropertiesFieldsModel(nullptr, m_datasetFields->get(),
                                                         m_record->currentData().toString()));
}

void SourcesPanel::setCsvFields(Fields fields)
{
    m_csv->setModel(nullptr);
    m_csvFields = std::move(fields);
    m_csv->setModel(new CsvPropertiesModel(nullptr, m_csvFields->get()));
    m_tabs->setCurrentWidget(m_csv);
}

void SourcesPanel::setLookups(Lookups lookups)
{
    m_lookups->setModel(nullptr);
    m_lookupList = std::move(lookups);
    m_lookups->setModel(new LookupPropertiesModel(nullptr, m_lookupList->get()));
    m_tabs->setCurrentWidget(m_lookups);
}

void SourcesPanel::append()
{
    const std::unique_ptr<QMimeData> payload(current()->payload());
    if (payload)
        Q_EMIT chosen(payload.get());
}

void SourcesPanel::updateActions()
{
    (*m_workspace.actions)[ActionId::SourceAppend]->setEnabled(
        current()->view()->selectionModel()->hasSelection());
}
