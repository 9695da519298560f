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
    /// A field for the property of the database that \a Get and \a Set stand for.
    template <auto Get, auto Set>
    [[nodiscard]] QLineEdit *makeText();
    template <auto Get, auto Set>
    QLineEdit *addText(QFormLayout *form, const QString &label);
    template <auto Get, auto Set>
    void addOption(QFormLayout *form, const QString &caption);
    /// A field with a button beside it that lets choose a folder or a file.
    template <auto Get, auto Set>
    void addPath(QFormLayout *form, const QString &label, const QString &title, bool folder);
};
