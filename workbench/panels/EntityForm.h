#pragma once

#include "workbench/Workspace.h"

#include <QWidget>

class PropertyForm;
class QLineEdit;
class QStringListModel;
class TDcEntity;

/// All properties of the current entity in a form.
class EntityForm : public QWidget
{
    Q_OBJECT

public:
    explicit EntityForm(const Workspace &workspace, QWidget *parent = nullptr);
    ~EntityForm() override;
    Q_DISABLE_COPY_MOVE(EntityForm)

private:
    void build();
    void showEntity();
    void rename(const QString &name);
    /// Offers the names of the entity's variables while a person types.
    QLineEdit *offerVariables(QLineEdit *field);

    template <auto Getter>
    [[nodiscard]] auto get() const;
    template <auto Setter, typename Value>
    [[nodiscard]] auto set();

    Workspace m_workspace;
    TDcEntity *m_entity = nullptr; // Not owned.
    PropertyForm *m_form;
    QStringListModel *m_names;
};
