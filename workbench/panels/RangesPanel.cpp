#include "workbench/panels/RangesPanel.h"

#include "models/VarRangeDelegate.h"
#include "models/VarRangeModel.h"
#include "models/VarRangeProxyModel.h"
#include "workbench/operations/Layouts.h"
#include "workbench/operations/ListEdits.h"
#include "workbench/proxies/TitledColumns.h"

#include <QLocale>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// Shows bounds as the spin boxes edit them: by itself a view rounds to six digits. A spin box may round too,
/// or stop at its limits; what nobody changed in it is not stored.
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

    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        VarRangeDelegate::setEditorData(editor, index);
        editor->setProperty(shownValue, editor->property(spinBoxValue));
    }

    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override
    {
        if (editor->property(spinBoxValue) != editor->property(shownValue))
            VarRangeDelegate::setModelData(editor, model, index);
    }

private:
    static constexpr auto spinBoxValue = "value";
    static constexpr auto shownValue = "shownValue"; // As the spin box showed it first.
};
} // namespace

RangesPanel::RangesPanel(const Workspace &workspace, QWidget *parent)
    : ItemsPanel(workspace, u"ranges"_s,
                 {tr("Ranges"), tr("No ranges: every value is valid."), tr("adding a range to %1"),
                  tr("removing ranges of %1"), tr("moving ranges of %1")},
                 new TitledColumns<VarRangeProxyModel>({tr("Minimum"), tr("Maximum")}),
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

QList<void *> RangesPanel::items(TDcVariable *variable) const
{
    return ListEdits::untyped(Layouts::ranges(*variable));
}

void RangesPanel::add(TDcVariable *variable)
{
    Layouts::of(*variable).addItemRange(new Range);
}

void RangesPanel::remove(TDcVariable *variable, const QList<void *> &items)
{
    ListEdits::remove(*Layouts::of(*variable).getRange(), ListEdits::typed<Range>(items));
}

void RangesPanel::move(TDcVariable *variable, const QList<void *> &items, bool up)
{
    ListEdits::move(*Layouts::of(*variable).getRange(), ListEdits::typed<Range>(items), up);
}

bool RangesPanel::canMove(TDcVariable *variable, const QList<void *> &items, bool up) const
{
    return ListEdits::canMove(Layouts::ranges(*variable), ListEdits::typed<Range>(items), up);
}
