#pragma once

#include "workbench/run/RunPage.h"

class EntityChoiceProxy;
class QCheckBox;
class QGroupBox;
class QLineEdit;
class QTreeView;
class TDcEntity;

/// Which entities take part, and how the records of each are treated.
class EntitiesPage : public RunPage
{
    Q_OBJECT

public:
    explicit EntitiesPage(RunDraft *draft, QWidget *parent = nullptr);

protected:
    [[nodiscard]] QString problem() const override;

private:
    [[nodiscard]] QWidget *makeTree();
    [[nodiscard]] QWidget *makeSettings();
    void chooseAll(bool takePart);
    void showSettings();
    [[nodiscard]] TDcEntity *current() const;

    EntityChoiceProxy *m_proxy;
    QTreeView *m_view;
    QGroupBox *m_settings;
    QLineEdit *m_recType;
    QCheckBox *m_checkSequence;
    QCheckBox *m_createSdc;
    QCheckBox *m_checkDelete;
};
