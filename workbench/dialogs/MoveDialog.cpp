#include "workbench/dialogs/MoveDialog.h"

#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "models/EntityModel.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/operations/EntityEdits.h"
#include "workbench/operations/VariableMoves.h"
#include "workbench/panels/Widgets.h"
#include "workbench/proxies/RealRowProxy.h"
#include "workbench/Selection.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr qsizetype mostLines = 6; // The preview says so many changes before it only counts.

/// Lets only some entities be chosen.
class TargetProxy : public RealRowProxy
{
public:
    TargetProxy(const QSet<TDcEntity *> &targets, QObject *parent) : RealRowProxy(parent), m_targets(targets)
    {
    }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return m_targets.contains(static_cast<TDcEntity *>(index.internalPointer()))
            ? RealRowProxy::flags(index)
            : Qt::NoItemFlags;
    }
    /// Nothing is renamed here.
    bool setData(const QModelIndex &, const QVariant &, int) override { return false; }

private:
    QSet<TDcEntity *> m_targets; // Not owned.
};
} // namespace

void MoveDialog::addTo(const Workspace &workspace)
{
    const auto add = [&workspace](ActionId id, What what) {
        QAction *action = (*workspace.actions)[id];
        connect(action, &QAction::triggered, workspace.window, [workspace, what] {
            auto *dialog = new MoveDialog(workspace, what);
            dialog->setAttribute(Qt::WA_DeleteOnClose);
            dialog->open();
        });
        const auto update = [workspace, action, what] {
            action->setEnabled(!targets(workspace, what).isEmpty());
        };
        connect(workspace.selection, &Selection::entityChanged, action, update);
        connect(workspace.selection, &Selection::variablesChanged, action, update);
        update();
    };
    add(ActionId::EntityMoveTo, What::Entity);
    add(ActionId::VariableMoveTo, What::Variables);
}

QSet<TDcEntity *> MoveDialog::targets(const Workspace &workspace, What what)
{
    TDcEntity *root = workspace.document->root();
    TDcEntity *entity = workspace.selection->entity();
    if (!entity)
        return {};
    if (what == What::Entity)
        return EntityEdits::targets(root, entity);
    if (workspace.selection->variables().isEmpty())
        return {};
    QSet<TDcEntity *> targets;
    preOrder(root, [&targets](TDcEntity *node) { targets.insert(node); });
    targets.remove(entity);
    return targets;
}

MoveDialog::MoveDialog(const Workspace &workspace, What what)
    : QDialog(workspace.window), m_workspace(workspace), m_what(what),
      m_entity(workspace.selection->entity()), m_variables(workspace.selection->variables()),
      m_targets(targets(workspace, what)), m_proxy(new TargetProxy(m_targets, this)),
      m_view(new QTreeView(this)), m_preview(new QLabel(this))
{
    setObjectName(what == What::Entity ? u"moveEntityDialog"_s : u"moveVariablesDialog"_s);
    if (what == What::Entity)
        setWindowTitle(tr("Move %1").arg(m_entity->getName()));
    else if (m_variables.size() == 1)
        setWindowTitle(tr("Move %1").arg(m_variables.constFirst()->getName()));
    else
        setWindowTitle(tr("Move %L1 Variables").arg(m_variables.size()));
    resize(420, 460);

    auto *layout = new QVBoxLayout(this);
    addTree();
    m_preview->setObjectName(u"movePreview"_s);
    m_preview->setAccessibleDescription(tr("What will change"));
    m_preview->setTextFormat(Qt::PlainText);
    m_preview->setWordWrap(true);
    layout->addWidget(m_preview);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setText(tr("&Move"));
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &MoveDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_view, &QAbstractItemView::doubleClicked, m_ok, &QAbstractButton::click);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &MoveDialog::refresh);
    // What is shown here may go with the change.
    connect(workspace.document, &Document::structureAboutToChange, this, &QDialog::reject);
    refresh();
}

void MoveDialog::addTree()
{
    auto *caption = new QLabel(m_what == What::Entity ? tr("Put it &below:") : tr("Put &into:"), this);
    caption->setBuddy(m_view);
    Widgets::setUpTree(m_view, tr("Entities"));
    m_proxy->setSourceModel(new EntityModel(this, m_workspace.document->root()));
    m_view->setModel(m_proxy);
    m_view->expandAll();
    layout()->addWidget(caption);
    layout()->addWidget(m_view);
    // The first that can be chosen; arrow keys pass over those that cannot.
    QModelIndex first = m_proxy->index(0, 0);
    while (first.isValid() && !first.flags().testFlag(Qt::ItemIsEnabled))
        first = m_view->indexBelow(first);
    m_view->setCurrentIndex(first);
    m_view->setFocus();
}

TDcEntity *MoveDialog::target() const
{
    auto *entity = static_cast<TDcEntity *>(m_view->currentIndex().internalPointer());
    return m_targets.contains(entity) ? entity : nullptr;
}

QString MoveDialog::preview() const
{
    TDcEntity *to = target();
    if (!to)
        return tr("Choose an entity.");
    if (m_what == What::Entity)
        return tr("%1 will stand below %2, after what is there.").arg(m_entity->getName(), to->getName());
    const VariableMoves moves(m_workspace.document->root(), m_entity, m_variables, to);
    QStringList lines = moves.consequences();
    const qsizetype more = lines.size() - mostLines;
    lines = lines.first(std::min(lines.size(), mostLines));
    if (more > 0)
        lines.append(tr("There are %L1 more changes.").arg(more));
    lines.prepend(tr("Variables that will stand at the end of %2: %L1", "%1 is their number")
                      .arg(m_variables.size())
                      .arg(to->getName()));
    return lines.join(u'\n');
}

void MoveDialog::refresh()
{
    m_preview->setText(preview());
    m_view->setAccessibleDescription(m_preview->text());
    m_ok->setEnabled(target());
}

QString MoveDialog::stepText() const
{
    const QString to = target()->getName();
    if (m_what == What::Entity)
        return tr("moving %1 to %2").arg(m_entity->getName(), to);
    if (m_variables.size() == 1)
        return tr("moving %1 to %2").arg(m_variables.constFirst()->getName(), to);
    return tr("moving %L1 variables to %2").arg(m_variables.size()).arg(to);
}

void MoveDialog::accept()
{
    TDcEntity *to = target();
    if (!to)
        return;
    const QString text = stepText();
    Document &document = *m_workspace.document;
    document.disconnect(this);
    m_proxy->setSourceModel(nullptr);
    document.edit(text, [&] {
        if (m_what == What::Entity)
            EntityEdits::moveTo(document.root(), m_entity, to);
        else
            VariableMoves(document.root(), m_entity, m_variables, to).apply();
    });
    if (m_what == What::Variables) {
        m_workspace.selection->setEntity(to);
        m_workspace.selection->setVariables(m_variables, m_variables.constFirst());
    }
    QDialog::accept();
}
