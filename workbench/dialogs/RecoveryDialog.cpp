#include "workbench/dialogs/RecoveryDialog.h"

#include "workbench/panels/Widgets.h"
#include "workbench/PlainMessage.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace
{
enum Column { Dictionary, Written, File };

QString describe(const LeftChanges &changes)
{
    switch (changes.state) {
    case LeftChanges::State::NeverSaved:
        return RecoveryDialog::tr("It was never saved.");
    case LeftChanges::State::AsItWas:
        return RecoveryDialog::tr("It is as it was.");
    case LeftChanges::State::ChangedSince:
        return RecoveryDialog::tr("It has been changed since.");
    case LeftChanges::State::Gone:
        return RecoveryDialog::tr("It is gone.");
    }
    Q_UNREACHABLE();
}
} // namespace

RecoveryDialog::RecoveryDialog(const QList<LeftChanges> &changes, QWidget *parent)
    : QDialog(parent), m_list(new QTreeWidget(this))
{
    setObjectName(u"recovery"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Unsaved Changes"));
    resize(660, 300);

    auto *text = new QLabel(tr("The workbench ended before these changes were saved. Recover them to see "
                               "them and to save them. The file stays as it is until then."),
                            this);
    text->setWordWrap(true);
    text->setBuddy(m_list);
    Widgets::setUpTree(m_list, tr("Unsaved changes"));
    m_list->header()->show();
    m_list->setHeaderLabels({tr("Dictionary"), tr("Changed on"), tr("The file")});
    m_list->setRootIsDecorated(false);
    m_list->setAlternatingRowColors(true);
    for (const LeftChanges &one : changes) {
        const QString name = one.path.isEmpty() ? tr("New dictionary") : QFileInfo(one.path).fileName();
        auto *item = new QTreeWidgetItem(
            m_list, {name, QLocale().toString(one.written, QLocale::ShortFormat), describe(one)});
        item->setToolTip(Dictionary, QDir::toNativeSeparators(one.path));
        item->setData(Dictionary, Qt::UserRole, one.journal);
        item->setData(File, Qt::UserRole, one.path);
    }
    m_list->header()->setStretchLastSection(true);
    m_list->setColumnWidth(Dictionary, 260);
    m_list->setColumnWidth(Written, 160);

    auto *buttons = new QDialogButtonBox(this);
    m_recover = buttons->addButton(tr("&Recover"), QDialogButtonBox::AcceptRole);
    m_delete = buttons->addButton(tr("&Delete…"), QDialogButtonBox::DestructiveRole);
    buttons->addButton(tr("&Later"), QDialogButtonBox::RejectRole);
    m_recover->setDefault(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(m_list);
    layout->addWidget(buttons);

    connect(m_recover, &QPushButton::clicked, this, &RecoveryDialog::recoverCurrent);
    connect(m_delete, &QPushButton::clicked, this, &RecoveryDialog::removeCurrent);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QTreeWidget::itemActivated, this, &RecoveryDialog::recoverCurrent);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_list->setFocus();
}

QString RecoveryDialog::current() const
{
    const QTreeWidgetItem *item = m_list->currentItem();
    return item ? item->data(Dictionary, Qt::UserRole).toString() : QString();
}

void RecoveryDialog::recoverCurrent()
{
    const QString journal = current();
    const QString path = m_list->currentItem()->data(File, Qt::UserRole).toString();
    accept();
    Q_EMIT recover(journal, path);
}

void RecoveryDialog::removeCurrent()
{
    PlainMessage box(QMessageBox::Warning, tr("Delete unsaved changes"),
                     tr("Delete the unsaved changes to “%1”?").arg(m_list->currentItem()->text(Dictionary)),
                     tr("They cannot be had again."), QMessageBox::Cancel, this);
    if (!box.isConfirmed(tr("Delete")))
        return;
    Q_EMIT remove(current());
    delete m_list->currentItem();
    if (m_list->topLevelItemCount() == 0)
        reject();
}
