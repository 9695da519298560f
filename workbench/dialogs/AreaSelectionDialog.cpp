#include "workbench/dialogs/AreaSelectionDialog.h"

#include "documents/sources/AreaUnitFile.h"
#include "models/SelectionBuilderTreeModel.h"
#include "workbench/Actions.h"
#include "workbench/FileDialogs.h"
#include "workbench/operations/Areas.h"
#include "workbench/panels/Widgets.h"
#include "workbench/PlainMessage.h"
#include "workbench/Progress.h"
#include "workbench/proxies/AreaTreeProxy.h"
#include "workbench/SourceFiles.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

void AreaSelectionDialog::addTo(const Workspace &workspace)
{
    connect((*workspace.actions)[ActionId::ToolsAreas], &QAction::triggered, workspace.window,
            [window = workspace.window] {
                auto *dialog = new AreaSelectionDialog(window);
                dialog->setAttribute(Qt::WA_DeleteOnClose);
                dialog->open();
            });
}

AreaSelectionDialog::AreaSelectionDialog(QWidget *parent)
    : QDialog(parent), m_tree(new AreaTreeProxy(this)), m_filtered(new QSortFilterProxyModel(this))
{
    setObjectName(u"areaSelectionDialog"_s);
    setWindowTitle(tr("Select Areas"));
    resize(620, 620);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(addBar());
    addTree();
    layout->addWidget(m_view);
    m_count = new QLabel(this);
    m_count->setObjectName(u"areaCount"_s);
    m_count->setToolTip(tr("Areas that have no others below them are counted"));
    layout->addWidget(m_count);
    layout->addWidget(addButtons());

    connect(m_tree, &AreaTreeProxy::selectionChanged, this, &AreaSelectionDialog::refresh);
    refresh();
}

AreaSelectionDialog::~AreaSelectionDialog()
{
    // The view must not ask for units that are gone.
    m_filtered->setSourceModel(nullptr);
    m_tree->setSourceModel(nullptr);
}

QLayout *AreaSelectionDialog::addBar()
{
    auto *open = new QPushButton(tr("&Open File…"), this);
    open->setAutoDefault(false);
    connect(open, &QPushButton::clicked, this, &AreaSelectionDialog::chooseAndLoad);
    m_filter = Widgets::filterField(tr("Filter areas by code or name"), tr("Filter"), this);
    auto *label = new QLabel(tr("&Filter:"), this);
    label->setBuddy(m_filter);
    connect(m_filter, &QLineEdit::textChanged, this, &AreaSelectionDialog::applyFilter);
    m_codes = new QCheckBox(tr("Show co&des"), this);
    m_codes->setToolTip(tr("Show the code of an area in place of its first text"));
    m_names = new QCheckBox(tr("Show &names"), this);
    m_names->setToolTip(tr("Show the name of an area before its texts"));
    for (const QCheckBox *box : {m_codes, m_names})
        connect(box, &QCheckBox::toggled, this, [this] { showUnits(std::move(m_root)); });
    m_needUnits.append({label, m_filter, m_codes, m_names});

    auto *bar = new QHBoxLayout;
    for (QWidget *widget : std::initializer_list<QWidget *>{open, label, m_filter, m_codes, m_names})
        bar->addWidget(widget);
    return bar;
}

void AreaSelectionDialog::addTree()
{
    m_filtered->setRecursiveFilteringEnabled(true);
    m_filtered->setAutoAcceptChildRows(true); // Of a district found, its towns stay in sight.
    m_filtered->setFilterRole(AreaTreeProxy::FilterRole);
    m_filtered->setSourceModel(m_tree);
    m_view = new EmptyText<QTreeView>(this);
    m_view->setModel(m_filtered);
    Widgets::setUpTree(m_view, tr("Areas"));
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
}

QWidget *AreaSelectionDialog::addButtons()
{
    auto *bar = new QWidget(this);
    auto *layout = new QVBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *tree = new QHBoxLayout;
    const auto add = [this, tree](const QString &text, const auto &action) {
        auto *button = new QPushButton(text, this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, action);
        tree->addWidget(button);
        return button;
    };
    m_needUnits.append(add(tr("&Expand All"), [this] { m_view->expandAll(); }));
    m_needUnits.append(add(tr("Co&llapse All"), [this] { m_view->collapseAll(); }));
    m_needSelection.append(add(tr("Selec&t None"), [this] { m_tree->selectNone(); }));
    tree->addStretch();
    layout->addLayout(tree);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton *copy = buttons->addButton(tr("Co&py Codes"), QDialogButtonBox::ActionRole);
    copy->setToolTip(tr("Copy the codes of the selected areas; an area stands for all below it"));
    QPushButton *save = buttons->addButton(tr("&Save as CSV…"), QDialogButtonBox::ActionRole);
    save->setToolTip(tr("Write the selected areas to a file; an area stands for all below it"));
    m_needSelection.append({copy, save});
    const QList<QAbstractButton *> all = buttons->buttons();
    for (QAbstractButton *button : all)
        qobject_cast<QPushButton *>(button)->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, [this] { QApplication::clipboard()->setText(text()); });
    connect(save, &QPushButton::clicked, this, &AreaSelectionDialog::chooseAndSave);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    return bar;
}

void AreaSelectionDialog::showUnits(std::unique_ptr<SelectionTreeUnit> root)
{
    m_tree->setSourceModel(nullptr);
    m_root = std::move(root);
    m_tree->setRoot(m_root.get());
    m_model.reset();
    if (m_root) {
        m_model = std::make_unique<SelectionBuilderTreeModel>(nullptr, m_root.get(), m_codes->isChecked(),
                                                              m_names->isChecked());
        m_tree->setSourceModel(m_model.get());
    }
    applyFilter(m_filter->text());
    refresh();
}

void AreaSelectionDialog::applyFilter(const QString &text)
{
    Widgets::filterBy(m_filtered, text);
    // What was found lies anywhere; without a filter the first level is enough to start from.
    if (text.trimmed().isEmpty())
        m_view->expandToDepth(0);
    else
        m_view->expandAll();
    if (!m_view->currentIndex().isValid())
        m_view->setCurrentIndex(m_filtered->index(0, 0));
    m_view->scrollTo(m_view->currentIndex());
}

void AreaSelectionDialog::refresh()
{
    const Areas::Count count = Areas::count(m_root.get());
    m_view->setEmptyText(
        m_root ? tr("No area matches the filter.")
               : tr("Open a CSV file with the columns “code”, “parent” and “name” to select areas of it."));
    m_count->setText(tr("Areas selected: %L1 of %L2").arg(count.selected).arg(count.all));
    for (QWidget *widget : std::as_const(m_needUnits))
        widget->setEnabled(m_root != nullptr);
    for (QWidget *widget : std::as_const(m_needSelection))
        widget->setEnabled(count.selected > 0);
}

bool AreaSelectionDialog::load(const QString &path)
{
    const SourceAreaUnits result = SourceFiles::read(path, AreaUnitFile::read, this);
    if (!result.ok()) {
        SourceFiles::report(this, result.errors);
        return false;
    }
    showUnits(Areas::joined(*result.list(), tr("All areas")));
    m_view->setFocus();
    return true;
}

QString AreaSelectionDialog::text() const
{
    return m_root ? Areas::toText(Areas::selected(m_root.get())) : QString();
}

bool AreaSelectionDialog::save(const QString &path)
{
    const QByteArray bytes = m_root ? Areas::toCsv(Areas::selected(m_root.get())).toUtf8() : QByteArray();
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    PlainMessage(QMessageBox::Critical, windowTitle(),
                 tr("“%1” cannot be written.").arg(QDir::toNativeSeparators(path)), file.errorString(),
                 QMessageBox::Ok, this)
        .exec();
    return false;
}

void AreaSelectionDialog::chooseAndLoad()
{
    const QString path = SourceFiles::choose(this, tr("Open Area Units"), SourceFiles::textSuffixes());
    if (!path.isEmpty())
        load(path);
}

void AreaSelectionDialog::chooseAndSave()
{
    QFileDialog dialog(this, tr("Save Selected Areas"), FileDialogs::lastFolder(), tr("CSV files (*.csv)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"csv"_s);
    if (dialog.exec() != QDialog::Accepted)
        return;
    FileDialogs::rememberFolder(dialog.selectedFiles().constFirst());
    save(dialog.selectedFiles().constFirst());
}
