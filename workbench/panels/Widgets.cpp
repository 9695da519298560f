#include "workbench/panels/Widgets.h"

#include "common/IconPaths.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QHash>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QToolButton>
#include <QTreeView>

namespace
{
/// Draws the icons of selected rows in the colour of their text. In their own colours some of them would
/// vanish in the highlight.
class LegibleIcons : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!option->state.testFlag(QStyle::State_Selected) || option->icon.isNull())
            return;
        const qreal ratio = option->widget ? option->widget->devicePixelRatioF() : 1.0;
        QPixmap pixmap = option->icon.pixmap(option->decorationSize, ratio);
        QPainter painter(&pixmap);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(pixmap.rect(), option->palette.color(QPalette::HighlightedText));
        painter.end();
        QIcon icon(pixmap);
        icon.addPixmap(pixmap, QIcon::Selected); // Or the style would tint it once more.
        option->icon = icon;
    }
};

/// Gives the rows of a list or a tree the height that rows of tables have.
class RoomyRows : public LegibleIcons
{
public:
    using LegibleIcons::LegibleIcons;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 6);
    }
};

/// Aligns titles as the cells below them, and leaves them there when none are shown.
class AlignedHeader : public QHeaderView
{
public:
    using QHeaderView::QHeaderView;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int section) const override
    {
        QHeaderView::initStyleOptionForIndex(option, section);
        if (const QModelIndex cell = model()->index(0, section); cell.isValid()) {
            // A text that happens to be a number says nothing of the others.
            const bool isText = cell.data().typeId() == QMetaType::QString;
            const QVariant alignment = cell.data(Qt::TextAlignmentRole);
            m_alignments.insert(section,
                                isText || !alignment.isValid() ? option->textAlignment
                                                               : Qt::Alignment(alignment.toInt()));
        }
        option->textAlignment = m_alignments.value(section, option->textAlignment);
    }

private:
    mutable QHash<int, Qt::Alignment> m_alignments; // By section, as seen last.
};

/// Scrolls up and down only, and so is never narrower than what it shows: texts are longer in one language
/// than in another.
class UpDownArea : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    [[nodiscard]] QSize minimumSizeHint() const override
    {
        const int bar = verticalScrollBar()->sizeHint().width();
        return {widget()->minimumSizeHint().width() + bar, QScrollArea::minimumSizeHint().height()};
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }
};
} // namespace

QToolButton *Widgets::button(QAction *action, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setIconSize(QSize(16, 16));
    button->setAccessibleName(action->toolTip());
    return button;
}

QLineEdit *Widgets::filterField(const QString &name, const QString &placeholder, QWidget *parent)
{
    auto *field = new QLineEdit(parent);
    field->setAccessibleName(name);
    field->setPlaceholderText(placeholder);
    field->setClearButtonEnabled(true);
    field->addAction(QIcon(IconPaths::filter), QLineEdit::LeadingPosition);
    return field;
}

void Widgets::filterBy(QSortFilterProxyModel *proxy, const QString &text)
{
    proxy->setFilterRegularExpression(QRegularExpression(QRegularExpression::escape(text.trimmed()),
                                                         QRegularExpression::CaseInsensitiveOption));
}

QWidget *Widgets::scrolled(QWidget *form, QWidget *parent)
{
    auto *area = new UpDownArea(parent);
    area->setWidget(form);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

void Widgets::setUpTable(QTableView *table, const QString &name)
{
    table->setAccessibleName(name);
    auto *header = new AlignedHeader(Qt::Horizontal, table);
    header->setSectionsClickable(true);
    table->setHorizontalHeader(header);
    table->setItemDelegate(new LegibleIcons(table));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                           | QAbstractItemView::AnyKeyPressed);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setIconSize(QSize(16, 16));
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setSortIndicatorClearable(true);
    table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    table->setSortingEnabled(true);
}

void Widgets::setUpTree(QTreeView *tree, const QString &name)
{
    tree->setAccessibleName(name);
    tree->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    tree->setExpandsOnDoubleClick(false);
    tree->setUniformRowHeights(true);
    tree->setItemDelegate(new RoomyRows(tree));
    tree->setIndentation(16);
    tree->header()->hide();
}

void Widgets::setUpList(QListView *list, const QString &name)
{
    list->setAccessibleName(name);
    list->setItemDelegate(new RoomyRows(list));
    list->setIconSize(QSize(16, 16));
    list->setUniformItemSizes(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideRight);
}

void Widgets::finishEditing(const QWidget *window)
{
    QWidget *focus = QApplication::focusWidget();
    if (!window || !focus || !window->isAncestorOf(focus))
        return;
    focus->clearFocus();
    // The editor of a cell is closed now, and its table goes on.
    while (!focus->isVisible() && focus->parentWidget())
        focus = focus->parentWidget();
    focus->setFocus();
}

void Widgets::bindKey(QAbstractItemView *view, const QKeySequence &key, QAction *action)
{
    auto *shortcut = new QShortcut(key, view);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, action, &QAction::trigger);
}
