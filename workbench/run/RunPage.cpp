#include "workbench/run/RunPage.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

RunPage::RunPage(RunDraft *draft, QWidget *parent)
    : QWizardPage(parent), m_draft(draft), m_problem(new QLabel(this))
{
    m_problem->setObjectName(u"problem"_s);
    m_problem->setAccessibleName(tr("What is missing"));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    // Nothing jumps when the words come and go.
    m_problem->setMinimumHeight(m_problem->fontMetrics().height());
}

void RunPage::showProblem()
{
    m_problem->setText(problem());
    Q_EMIT completeChanged();
}
