#pragma once

#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;
class QMenu;

/// Every action of the workbench. The table in ActionTable.cpp says what each is called and where it stands.
enum class ActionId {
    FileNew,
    FileOpen,
    FileSave,
    FileSaveAs,
    FileRevert,
    FileRecover,
    FileQuit,
    EditUndo,
    EditRedo,
    EditCopy,
    EditPaste,
    EditFind,
    EditFindNext,
    EditFindPrevious,
    EditFilter,
    EntityAdd,
    EntityDuplicate,
    EntityRemove,
    EntityMoveUp,
    EntityMoveDown,
    EntityMoveTo,
    EntityRename,
    VariableAdd,
    VariableDuplicate,
    VariableRemove,
    VariableEditTogether,
    VariableMoveUp,
    VariableMoveDown,
    VariableMoveTo,
    VariableRefCode,
    VariableRefLabel,
    VariableWeight,
    VariableDuplicates,
    RangeAdd,
    RangeRemove,
    RangeMoveUp,
    RangeMoveDown,
    LabelAdd,
    LabelRemove,
    LabelMoveUp,
    LabelMoveDown,
    ValuesCopyTo,
    ValuesLabelSets,
    SourceOpenDataset,
    SourceOpenCsv,
    SourceOpenLookups,
    SourceAppend,
    ToolsCheck,
    ToolsNextProblem,
    ToolsPreviousProblem,
    ToolsExpression,
    ToolsAreas,
    ToolsNewRun,
    ToolsOpenRun,
    ViewNextPane,
    ViewPreviousPane,
    HelpAbout,
};

/// The menus of the menu bar, in its order.
enum class MenuId { File, Edit, Entity, Variable, Values, Sources, Tools, View, Help };

/// Makes the actions of the table and puts them into menus and tool bar. Whoever performs an action connects
/// to it and keeps its enabled state.
class Actions : public QObject
{
    Q_OBJECT

public:
    explicit Actions(QObject *parent = nullptr);

    [[nodiscard]] QAction *operator[](ActionId id) const { return m_actions.value(id); }
    /// The text of an action without mnemonic.
    [[nodiscard]] QString text(ActionId id) const;
    /// All actions, in the order of the table.
    [[nodiscard]] QList<QAction *> all() const;

    /// Fills menu bar and tool bar of \a window. A menu without an action is hidden.
    void place(QMainWindow *window);
    /// The menu, once place() was called; null before.
    [[nodiscard]] QMenu *menu(MenuId id) const { return m_menus.value(id); }

private:
    // Members, so that lupdate finds their texts in this context.
    struct Row;
    [[nodiscard]] static QList<Row> table();
    [[nodiscard]] static const char *menuTitle(MenuId id);

    QHash<ActionId, QAction *> m_actions;
    QHash<MenuId, QMenu *> m_menus;
};
