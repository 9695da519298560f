#pragma once

#include <QWizard>

#include <memory>

class RunDraft;

/// Makes or changes a run configuration of the open dictionary, page by page, and saves it at the end.
class RunWizard : public QWizard
{
    Q_OBJECT

public:
    explicit RunWizard(std::unique_ptr<RunDraft> draft, QWidget *parent = nullptr);
    ~RunWizard() override;
    Q_DISABLE_COPY_MOVE(RunWizard)

    [[nodiscard]] RunDraft &draft() const { return *m_draft; }

    /// Asks before choices are lost.
    void reject() override;

private:
    std::unique_ptr<RunDraft> m_draft; // The pages look at it.
};
