#pragma once

#include <QWizardPage>

class QLabel;
class RunDraft;

/// A page of the run wizard: says in words why it does not let anybody go on.
class RunPage : public QWizardPage
{
    Q_OBJECT

public:
    /// \a draft outlives the page.
    explicit RunPage(RunDraft *draft, QWidget *parent = nullptr);

    [[nodiscard]] bool isComplete() const override { return problem().isEmpty(); }

protected:
    void initializePage() override { showProblem(); }

    /// What hinders going on; empty when nothing does.
    [[nodiscard]] virtual QString problem() const { return {}; }
    /// To be called when problem() may say something else than before.
    void showProblem();

    [[nodiscard]] RunDraft &draft() const { return *m_draft; }
    /// Shows the words of problem(); for the page to put next to what they are about.
    [[nodiscard]] QWidget *problemRow() const { return m_row; }

private:
    RunDraft *m_draft; // Not owned.
    QWidget *m_row;
    QLabel *m_sign;
    QLabel *m_problem;
};
