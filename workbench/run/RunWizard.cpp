#include "workbench/run/RunWizard.h"

#include "workbench/run/DescriptionPage.h"
#include "workbench/run/EntitiesPage.h"
#include "workbench/run/RunDraft.h"
#include "workbench/run/SummaryPage.h"
#include "workbench/run/VariablesPage.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

RunWizard::RunWizard(std::unique_ptr<RunDraft> draft, QWidget *parent)
    : QWizard(parent), m_draft(std::move(draft))
{
    setObjectName(u"runWizard"_s);
    const QString path = m_draft->file().path();
    setWindowTitle(path.isEmpty() ? tr("New Run Configuration")
                                  : tr("Run Configuration %1").arg(QFileInfo(path).fileName()));
    setWizardStyle(ModernStyle);
    setOption(NoBackButtonOnStartPage);
    setButtonText(FinishButton, tr("&Save"));
    RunDraft *choices = m_draft.get();
    addPage(new DescriptionPage(choices));
    addPage(new EntitiesPage(choices));
    addPage(new VariablesPage(choices, VariablesPage::Step::Choose));
    addPage(new VariablesPage(choices, VariablesPage::Step::Split));
    addPage(new VariablesPage(choices, VariablesPage::Step::Down));
    addPage(new SummaryPage(choices));
    resize(860, 640);
}

RunWizard::~RunWizard()
{
    // The pages look at the draft, which would go before them.
    const QList<int> ids = pageIds();
    for (int id : ids)
        delete page(id);
}

void RunWizard::reject()
{
    if (m_draft->isModified()) {
        QMessageBox box(QMessageBox::Warning, windowTitle(),
                        tr("Leave without saving the run configuration?"),
                        QMessageBox::Discard | QMessageBox::Cancel, this);
        box.setTextFormat(Qt::PlainText);
        box.setInformativeText(tr("What you chose here is lost."));
        box.setDefaultButton(QMessageBox::Cancel);
        if (box.exec() != QMessageBox::Discard)
            return;
    }
    QWizard::reject();
}
