#pragma once

#include <QList>
#include <QObject>

class Document;
class TDcEntity;
class TDcVariable;

/// What the person works on: one entity always, and one or more of its variables or none.
///
/// Panels show it and change it, so that they need not know each other. It never points at anything that the
/// dictionary no longer holds: between Document::structureAboutToChange() and structureChanged() it is empty,
/// and then what is left of it comes back, or what has the same names, or what stands nearest.
class Selection : public QObject
{
    Q_OBJECT

public:
    explicit Selection(Document *document, QObject *parent = nullptr);

    /// Null only while the structure changes.
    [[nodiscard]] TDcEntity *entity() const { return m_entity; }
    /// The variable that the inspector shows; null when there is none.
    [[nodiscard]] TDcVariable *variable() const { return m_variables.isEmpty() ? nullptr : m_current; }
    /// All selected variables, in the order of the entity.
    [[nodiscard]] QList<TDcVariable *> variables() const { return m_variables; }
    /// Whether somebody asked for these variables. Otherwise they are the first one of an entity, or what is
    /// left after a change of structure.
    [[nodiscard]] bool isChosen() const { return m_chosen; }

    /// Makes \a entity the current one, and its first variable too.
    void setEntity(TDcEntity *entity);
    /// Selects \a variables of the current entity; \a current is one of them.
    void setVariables(const QList<TDcVariable *> &variables, TDcVariable *current);
    /// Selects one variable alone, and the entity that it belongs to.
    void select(TDcEntity *entity, TDcVariable *variable);
    /// Selects by names, "ENTITY" or "ENTITY/VARIABLE". False when there is no such thing.
    bool select(const QString &path);

Q_SIGNALS:
    void entityChanged(TDcEntity *entity);
    /// The selected variables or the current one changed.
    void variablesChanged();

private:
    void change(const QList<TDcVariable *> &variables, TDcVariable *current);
    void change(TDcEntity *entity, TDcVariable *variable);
    void remember();
    void restore();

    Document *m_document; // Not owned.
    TDcEntity *m_entity = nullptr; // Not owned.
    TDcVariable *m_current = nullptr; // Not owned.
    QList<TDcVariable *> m_variables; // Not owned.
    bool m_chosen = false;

    // What was selected before a change of structure. Addresses are compared, never followed.
    struct Memory {
        QList<TDcEntity *> path; ///< From the root down to the entity.
        QList<QString> names; ///< Of the entities in `path`.
        QList<TDcVariable *> variables;
        QList<QString> variableNames;
        TDcVariable *current = nullptr;
        QString currentName;
        qsizetype row = 0;
    };
    [[nodiscard]] TDcEntity *findEntity() const;
    [[nodiscard]] QList<TDcVariable *> findVariables() const;

    Memory m_before;
};
