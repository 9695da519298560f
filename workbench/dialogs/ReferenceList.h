#pragma once

#include "models/eEntityShowMode.h"
#include "workbench/panels/EmptyText.h"

#include <QListView>
#include <QSortFilterProxyModel>
#include <QWidget>

#include <functional>

class QComboBox;
class QHBoxLayout;
class QLineEdit;
class QPushButton;

/// Filters an expression list and says what its items are called in an expression.
///
/// What is dragged carries the layer's payload and, for whatever takes text, the reference.
class ReferenceProxy : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// The reference to the object that an index of the source carries.
    using Reference = std::function<QString(const void *item)>;

    ReferenceProxy(Reference reference, QObject *parent);

    [[nodiscard]] const void *item(const QModelIndex &index) const;
    [[nodiscard]] QString reference(const QModelIndex &index) const;

    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    /// Only copies: the layer's models would give away what is moved.
    [[nodiscard]] Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

private:
    Reference m_reference;
};

/// A list of items that an expression may refer to, with a filter. An item is chosen by dragging it out, by a
/// double click, by Enter or with the button below.
class ReferenceList : public QWidget
{
    Q_OBJECT

public:
    struct Texts {
        QString title; ///< With a mnemonic.
        QString empty; ///< Shown while there are no items.
        QString insert; ///< On the button.
    };

    ReferenceList(const Texts &texts, ReferenceProxy::Reference reference, QWidget *parent = nullptr);

    /// Offers the choice between the names and labels of items. After modeChanged() the list wants a model in
    /// the other mode.
    void addModes();
    [[nodiscard]] eEntityShowMode mode() const;

    /// Shows \a model, which now belongs to the list, and makes \a current its current item, or else the
    /// first.
    void setModel(QAbstractItemModel *model, const void *current = nullptr);
    /// The current item; null when there is none.
    [[nodiscard]] const void *current() const;
    void setCurrent(const void *item);

    [[nodiscard]] QListView *view() const { return m_view; }

Q_SIGNALS:
    void modeChanged();
    void currentChanged();
    void chosen(const QString &reference);

private:
    void choose();

    ReferenceProxy *m_proxy;
    EmptyText<QListView> *m_view;
    QLineEdit *m_filter;
    QPushButton *m_button;
    QHBoxLayout *m_caption;
    QString m_empty;
    QComboBox *m_modes = nullptr;
    QAbstractItemModel *m_model = nullptr;
};
