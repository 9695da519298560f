#include "workbench/dialogs/ReferenceList.h"

#include "workbench/panels/Widgets.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

ReferenceProxy::ReferenceProxy(Reference reference, QObject *parent)
    : QSortFilterProxyModel(parent), m_reference(std::move(reference))
{
    setFilterCaseSensitivity(Qt::CaseInsensitive);
}

const void *ReferenceProxy::item(const QModelIndex &index) const
{
    return mapToSource(index).internalPointer();
}

QString ReferenceProxy::reference(const QModelIndex &index) const
{
    const void *object = item(index);
    return object ? m_reference(object) : QString();
}

QMimeData *ReferenceProxy::mimeData(const QModelIndexList &indexes) const
{
    QMimeData *data = QSortFilterProxyModel::mimeData(indexes);
    if (data && !indexes.isEmpty())
        data->setText(reference(indexes.first()));
    return data;
}

ReferenceList::ReferenceList(const Texts &texts, ReferenceProxy::Reference reference, QWidget *parent)
    : QWidget(parent), m_proxy(new ReferenceProxy(std::move(reference), this)),
      m_view(new EmptyText<QListView>(this)), m_caption(new QHBoxLayout), m_empty(texts.empty)
{
    m_view->setModel(m_proxy);
    Widgets::setUpList(m_view, QString(texts.title).remove(u'&'));
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setDragDropMode(QAbstractItemView::DragOnly);
    m_view->setDefaultDropAction(Qt::CopyAction);

    auto *label = new QLabel(texts.title, this);
    label->setBuddy(m_view);
    m_filter = Widgets::filterField(tr("Filter %1").arg(m_view->accessibleName()), tr("Filter"), this);
    m_button = new QPushButton(texts.insert, this);
    m_button->setAutoDefault(false);
    connect(m_button, &QPushButton::clicked, this, &ReferenceList::choose);
    setTabOrder(m_filter, m_view);
    setTabOrder(m_view, m_button);

    m_caption->addWidget(label, 1);
    // As high as with modes, so that lists beside each other begin at one height.
    m_caption->addStrut(QComboBox().sizeHint().height());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(m_caption);
    layout->addWidget(m_filter);
    layout->addWidget(m_view);
    layout->addWidget(m_button);

    auto *insert = new QAction(texts.insert, this);
    Widgets::bindKey(m_view, Qt::Key_Return, insert);
    Widgets::bindKey(m_view, Qt::Key_Enter, insert);
    connect(insert, &QAction::triggered, this, &ReferenceList::choose);
    connect(m_view, &QAbstractItemView::doubleClicked, this, &ReferenceList::choose);
    connect(m_filter, &QLineEdit::textChanged, m_proxy, [this](const QString &text) {
        Widgets::filterBy(m_proxy, text);
        if (!m_view->currentIndex().isValid())
            m_view->setCurrentIndex(m_proxy->index(0, 0));
    });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ReferenceList::currentChanged);
    connect(this, &ReferenceList::currentChanged, m_button,
            [this] { m_button->setEnabled(m_view->currentIndex().isValid()); });
}

void ReferenceList::addModes()
{
    m_modes = new QComboBox(this);
    m_modes->addItem(tr("Names"), ShowName);
    m_modes->addItem(tr("Labels"), ShowLabel);
    m_modes->addItem(tr("Names and labels"), ShowNameAndLabel);
    m_modes->setCurrentIndex(m_modes->findData(ShowNameAndLabel));
    m_modes->setAccessibleName(tr("What to show of %1").arg(m_view->accessibleName()));
    m_modes->view()->setAccessibleName(m_modes->accessibleName());
    m_modes->setToolTip(m_modes->accessibleName());
    m_caption->addWidget(m_modes);
    connect(m_modes, &QComboBox::currentIndexChanged, this, &ReferenceList::modeChanged);
    setTabOrder(m_modes, m_filter);
    setTabOrder(m_filter, m_view);
    setTabOrder(m_view, m_button);
}

eEntityShowMode ReferenceList::mode() const
{
    return m_modes ? eEntityShowMode(m_modes->currentData().toInt()) : ShowNameAndLabel;
}

void ReferenceList::setModel(QAbstractItemModel *model, const void *current)
{
    model->setParent(this);
    m_proxy->setSourceModel(model);
    delete m_model;
    m_model = model;
    m_view->setEmptyText(m_model->rowCount() > 0 ? tr("Nothing matches the filter.") : m_empty);
    setCurrent(current);
    // A reset announces no other current item.
    Q_EMIT currentChanged();
}

const void *ReferenceList::current() const
{
    return m_proxy->item(m_view->currentIndex());
}

void ReferenceList::setCurrent(const void *item)
{
    int row = 0;
    for (int candidate = 0; item && candidate < m_proxy->rowCount(); ++candidate) {
        if (m_proxy->item(m_proxy->index(candidate, 0)) == item)
            row = candidate;
    }
    m_view->setCurrentIndex(m_proxy->index(row, 0));
}

void ReferenceList::choose()
{
    if (m_view->currentIndex().isValid())
        Q_EMIT chosen(m_proxy->reference(m_view->currentIndex()));
}
