#include "workbench/run/RunPage.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

RunPage::RunPage(RunDraft *draft, QWidget *parent)
    : QWizardPage(parent), m_draft(draft), m_row(new QWidget(this)), m_sign(new QLabel(m_row)),
      m_problem(new QLabel(m_row))
{
    m_problem->setObjectName(u"problem"_s);
    m_problem->setAccessibleDescription(tr("What is missing"));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_sign->setPixmap(QIcon(u":/icons/res/icons/48px-Warning.png"_s).pixmap(16, 16));
    auto *row = new QHBoxLayout(m_row);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_sign);
    row->addWidget(m_problem, 1);
    // Nothing jumps when the words come and go.
    m_row->setMinimumHeight(m_problem->fontMetrics().height() + 4);
}

void RunPage::showProblem()
{
    m_problem->setText(problem());
    m_sign->setVisible(!isComplete());
    Q_EMIT completeChanged();
}
