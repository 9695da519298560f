#pragma once

#include "workbench/run/RunPage.h"

class QLineEdit;
class QTextBrowser;

/// What the run is, in words, and where it is saved.
class SummaryPage : public RunPage
{
    Q_OBJECT

public:
    explicit SummaryPage(RunDraft *draft, QWidget *parent = nullptr);

    /// Saves. False when the person has to go on.
    bool validatePage() override;

protected:
    void initializePage() override;
    [[nodiscard]] QString problem() const override;

private:
    /// Where to save, as an absolute path with the usual ending; empty when nothing was typed.
    [[nodiscard]] QString path() const;
    [[nodiscard]] QString proposal() const;
    [[nodiscard]] bool mayReplace(const QString &path);
    void browse();

    QTextBrowser *m_summary;
    QLineEdit *m_path;
    QString m_proposal; // What stood in m_path when the page was shown last.
};
