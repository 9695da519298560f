#include "workbench/panels/RangesPanel.h"

#include "model/MetadataVariables.h"
#include "model/TDcVariable.h"
#include "models/VarRangeDelegate.h"
#include "models/VarRangeModel.h"
#include "models/VarRangeProxyModel.h"
#include "workbench/operations/ListEdits.h"

#include <QLocale>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace
{
QList<Range *> *rangesOf(TDcVariable *variable)
{
    const MetadataVariables *metadata = variable->getMetadataVariables();
    return metadata ? metadata->getRange() : nullptr;
}

/// Shows bounds as the spin boxes edit them. By itself a view rounds to six digits.
class BoundDelegate : public VarRangeDelegate
{
public:
    using VarRangeDelegate::VarRangeDelegate;

    [[nodiscard]] QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        QLocale plain = locale;
        plain.setNumberOptions(QLocale::OmitGroupSeparator);
        return plain.toString(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    }
};
} // namespace

RangesPanel::RangesPanel(const Workspace &workspace, QWidget *parent)
    : ItemsPanel(workspace, u"ranges"_s, tr("Ranges"), new VarRangeProxyModel(nullptr),
                 {ActionId::RangeAdd, ActionId::RangeRemove, ActionId::RangeMoveUp, ActionId::RangeMoveDown},
                 parent)
{
    start();
}

QAbstractItemModel *RangesPanel::createModel(TDcVariable *variable)
{
    // The delegate knows its variable, so each variable has its own.
    delete m_view->itemDelegate();
    m_view->setItemDelegate(new BoundDelegate(variable, m_view));
    return new VarRangeModel(this, variable);
}

QString RangesPanel::emptyText() const
{
    return tr("No ranges: every value is valid.");
}

QList<void *> RangesPanel::items(TDcVariable *variable) const
{
    const QList<Range *> *ranges = rangesOf(variable);
    return ranges ? ListEdits::untyped(*ranges) : QList<void *>();
}

void RangesPanel::add(TDcVariable *variable)
{
    if (!variable->getMetadataVariables())
        variable->setMetadataVariables(new MetadataVariables);
    variable->getMetadataVariables()->addItemRange(new Range);
}

void RangesPanel::remove(TDcVariable *variable, const QList<void *> &items)
{
    ListEdits::remove(*rangesOf(variable), ListEdits::typed<Range>(items));
}

void RangesPanel::move(TDcVariable *variable, const QList<void *> &items, bool up)
{
    ListEdits::move(*rangesOf(variable), ListEdits::typed<Range>(items), up);
}

bool RangesPanel::canMove(TDcVariable *variable, const QList<void *> &items, bool up) const
{
    const QList<Range *> *ranges = rangesOf(variable);
    return ranges && ListEdits::canMove(*ranges, ListEdits::typed<Range>(items), up);
}
