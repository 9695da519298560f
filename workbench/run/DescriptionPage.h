#pragma once

#include "workbench/run/RunPage.h"

class QCheckBox;
class QFormLayout;
class QLineEdit;

/// What the run is called, who makes it, where it comes from, and its options.
class DescriptionPage : public RunPage
{
    Q_OBJECT

public:
    explicit DescriptionPage(RunDraft *draft, QWidget *parent = nullptr);

protected:
    [[nodiscard]] QString problem() const override;

private:
    void addUnknown(QFormLayout *form);
    template <auto Get, auto Set>
    QLineEdit *addText(QFormLayout *form, const QString &label);
    template <auto Get, auto Set>
    void addOption(QFormLayout *form, const QString &caption);
    /// Puts a button beside \a field that lets choose a folder or a file.
    void addBrowse(QFormLayout *form, QLineEdit *field, const QString &title, bool folder);
};
