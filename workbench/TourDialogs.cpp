#include "workbench/Tour.h"

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/dialogs/AreaSelectionDialog.h"
#include "workbench/dialogs/EditTogetherDialog.h"
#include "workbench/dialogs/ExpressionDialog.h"
#include "workbench/dialogs/ExpressionEdit.h"
#include "workbench/dialogs/RecoveryDialog.h"
#include "workbench/panels/VariableTablePanel.h"
#include "workbench/Progress.h"
#include "workbench/run/RunWizard.h"

#include <QCheckBox>
#include <QDateTime>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QSemaphore>
#include <QTableView>
#include <QTimer>

#include <memory>

using namespace Qt::Literals::StringLiterals;

// What the tour does in dialogs.

bool Tour::editTogether()
{
    m_window->findChild<VariableTablePanel *>()->view()->selectAll();
    settle();
    auto *dialog = show<EditTogetherDialog>(ActionId::VariableEditTogether);
    if (!dialog)
        return true;
    if (!picture(dialog))
        return false;
    // A group may not be called as an entity is.
    qobject_cast<QLineEdit *>(dialog->control("Group"_L1))
        ->setText(m_window->selection()->entity()->getName());
    dialog->box("Group"_L1)->setChecked(true);
    dialog->accept();
    return dismiss(m_window->findChild<QMessageBox *>(u"editTogetherReport"_s));
}

bool Tour::buildExpression()
{
    auto *dialog = show<ExpressionDialog>(ActionId::ToolsExpression);
    if (!dialog)
        return false;
    const TDcEntity *entity = m_window->selection()->entity();
    if (const TDcVariable *variable = m_window->selection()->variable())
        dialog->editor()->setPlainText(entity->getName() + u'.' + variable->getName() + u" > 3 AND ("_s);
    return dismiss(dialog);
}

bool Tour::selectAreas()
{
    auto *dialog = show<AreaSelectionDialog>(ActionId::ToolsAreas);
    if (!dialog || (!m_areas.isEmpty() && !dialog->load(m_areas)))
        return false;
    QAbstractItemModel *model = dialog->view()->model();
    const QModelIndex root = model->index(0, 0);
    for (int row : {1, 3}) {
        const QModelIndex unit = model->index(row, 0, root);
        if (unit.isValid() && !model->setData(unit, Qt::Checked, Qt::CheckStateRole))
            return false;
    }
    return dismiss(dialog);
}

bool Tour::makeRun()
{
    auto *wizard = show<RunWizard>(ActionId::ToolsNewRun);
    if (!wizard)
        return false;
    // It starts with everything chosen; only a name is wanted.
    const QList<QLineEdit *> fields = wizard->currentPage()->findChildren<QLineEdit *>(u"name"_s);
    for (QLineEdit *field : fields)
        field->setText(tr("First run"));
    for (int page = -1; wizard->nextId() >= 0 && wizard->currentId() != page; wizard->next()) {
        page = wizard->currentId();
        if (!picture(wizard))
            return false;
    }
    return dismiss(wizard);
}

bool Tour::showProgress()
{
    bool drawn = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, m_window, [this, &drawn] {
        auto *dialog = m_window->findChild<QProgressDialog *>(u"progress"_s);
        drawn = dialog && picture(dialog);
        if (dialog)
            dialog->close(); // Which cancels; cancel() would tell nobody.
    });
    look.start(0);
    const QString text =
        QCoreApplication::translate("Document", "Opening “%1”…").arg(m_window->document()->title());
    const auto seen = std::make_shared<QSemaphore>();
    const bool finished =
        Progress::run(text, m_window, Progress::Cancel::Possible, [seen] { seen->acquire(); });
    seen->release();
    return drawn && !finished;
}

bool Tour::offerRecovery()
{
    const QDateTime written = QFileInfo(m_copy).lastModified();
    auto *dialog = new RecoveryDialog(
        {{.journal = {}, .path = m_copy, .written = written, .state = LeftChanges::State::AsItWas},
         {.journal = {}, .path = {}, .written = written, .state = LeftChanges::State::NeverSaved}},
        m_window);
    dialog->open();
    return dismiss(dialog);
}

bool Tour::showAbout()
{
    return answer({}, [this] { trigger(ActionId::HelpAbout); });
}
