#include "workbench/dialogs/LabelSetsDialog.h"
#include "workbench/Document.h"
#include "workbench/operations/ListEdits.h"
#include "workbench/operations/NewCodes.h"
#include "workbench/panels/Widgets.h"
#include "workbench/PlainMessage.h"

#include <QTableView>

#include <utility>

// What the dialog does when a button asks for it.

void LabelSetsDialog::addLabel()
{
    Widgets::finishEditing(this);
    auto *element = new ValueLabelElement;
    element->setValue(NewCodes::next(m_draft));
    m_draft.addValueLabelElement(element);
    showLabels(int(m_draft.getValueLabelElementList()->size()) - 1);
    m_view->setFocus();
    m_view->edit(m_view->currentIndex());
}

void LabelSetsDialog::removeLabels()
{
    Widgets::finishEditing(this);
    const int row = m_view->currentIndex().row();
    const QList<ValueLabelElement *> gone = selected();
    m_view->setModel(nullptr);
    delete std::exchange(m_model, nullptr);
    for (const ValueLabelElement *element : gone)
        m_origins.remove(element);
    ListEdits::remove(*m_draft.getValueLabelElementList(), gone);
    showLabels(row);
}

void LabelSetsDialog::move(bool up)
{
    Widgets::finishEditing(this);
    const QList<ValueLabelElement *> rows = selected();
    ListEdits::move(*m_draft.getValueLabelElementList(), rows, up);
    showLabels(int(m_draft.getValueLabelElementList()->indexOf(rows.constFirst())));
}

void LabelSetsDialog::takeBack()
{
    Widgets::finishEditing(this);
    showSet(m_set);
}

void LabelSetsDialog::apply()
{
    Widgets::finishEditing(this);
    const LabelSets::Set set = m_sets.at(m_set);
    LabelSets::change(set, edited());
    m_workspace.document->commit(tr("value labels of %L1 variables").arg(set.members.size()));
    // It may stand elsewhere now, be one with another or, without labels, be gone.
    list(m_set, set.members.constFirst().variable);
}

void LabelSetsDialog::reject()
{
    Widgets::finishEditing(this);
    if (isChanged()) {
        PlainMessage box(QMessageBox::Warning, windowTitle(),
                         tr("Change the labels in all variables that have the set?"),
                         tr("Otherwise what you have edited is lost."),
                         QMessageBox::Apply | QMessageBox::Discard | QMessageBox::Cancel, this);
        box.setDefaultButton(QMessageBox::Apply);
        const int answer = box.exec();
        if (answer == QMessageBox::Apply)
            apply();
        else if (answer != QMessageBox::Discard)
            return;
    }
    QDialog::reject();
}
