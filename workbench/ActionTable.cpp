#include "workbench/ActionTable.h"

#define TEXT(text) QT_TR_NOOP(text) // lupdate is told of it.

/// One line an action. Menus and tool bar show them in this order.
QList<Actions::Row> Actions::table()
{
    using enum Row::Place;
    using enum ActionId;
    const Row::Keys noKeys;
    return {
        {FileNew, MenuId::File, ToolBar, "48px-File-new", QKeySequence::New, TEXT("&New"),
         TEXT("Start an empty dictionary")},
        {FileOpen, MenuId::File, ToolBar, "48px-Document-open", QKeySequence::Open, TEXT("&Open…"),
         TEXT("Open a dictionary file")},
        {FileSave, MenuId::File, ToolBar, "48px-Project-save", QKeySequence::Save, TEXT("&Save"),
         TEXT("Save the dictionary")},
        {FileSaveAs, MenuId::File, MenuOnly, "48px-Project-save_as", "Ctrl+Shift+S", TEXT("Save &As…"),
         TEXT("Save the dictionary under another name")},
        {FileRevert, MenuId::File, MenuOnly, "48px-Revert", noKeys, TEXT("Re&vert"),
         TEXT("Go back to the dictionary as it was saved")},
        {FileRecover, MenuId::File, MenuOnly, nullptr, noKeys, TEXT("Re&cover Unsaved Changes…"),
         TEXT("Look for changes that were not saved before the workbench ended")},
        {FileQuit, MenuId::File, GroupStart, nullptr, "Ctrl+Q", TEXT("&Quit"), TEXT("Leave the workbench")},

        {EditUndo, MenuId::Edit, ToolBarGroup, "48px-Undo", QKeySequence::Undo, TEXT("&Undo"), TEXT("Undo")},
        {EditRedo, MenuId::Edit, ToolBar, "48px-Redo", QKeySequence::Redo, TEXT("&Redo"), TEXT("Redo")},
        {EditCopy, MenuId::Edit, GroupStart, "48px-Copy", QKeySequence::Copy, TEXT("&Copy"),
         TEXT("Copy the selected rows, for a spreadsheet or another table")},
        {EditPaste, MenuId::Edit, MenuOnly, "48px-Paste", QKeySequence::Paste, TEXT("&Paste"),
         TEXT("Paste rows of a spreadsheet or of another table")},
        {EditFind, MenuId::Edit, GroupStart, "48px-Search", QKeySequence::Find, TEXT("&Find…"),
         TEXT("Find names, labels and codes in the whole dictionary")},
        {EditFindNext, MenuId::Edit, MenuOnly, nullptr, QKeySequence::FindNext, TEXT("Find &Next"),
         TEXT("Go to the next place that was found")},
        {EditFindPrevious, MenuId::Edit, MenuOnly, nullptr, QKeySequence::FindPrevious,
         TEXT("Find Pre&vious"), TEXT("Go to the place that was found before")},
        {EditFilter, MenuId::Edit, MenuOnly, "48px-Filter", "Ctrl+L", TEXT("Fi&lter Variables"),
         TEXT("Type into the filter of the variable table")},

        {EntityAdd, MenuId::Entity, ToolBarGroup, "48px-Entity-Name", "Ctrl+Shift+N", TEXT("&Add Entity"),
         TEXT("Add an entity below the current one")},
        {EntityDuplicate, MenuId::Entity, MenuOnly, "48px-Duplicate", noKeys, TEXT("&Duplicate Entity"),
         TEXT("Add a copy of the entity with everything below it")},
        {EntityRename, MenuId::Entity, MenuOnly, nullptr, noKeys, TEXT("Re&name Entity"),
         TEXT("Edit the entity's name")},
        {EntityRemove, MenuId::Entity, MenuOnly, "48px-Delete", noKeys, TEXT("&Remove Entity"),
         TEXT("Remove the entity with everything below it")},
        {EntityMoveUp, MenuId::Entity, GroupStart, "48px-Move-up", noKeys, TEXT("Move Entity &Up"),
         TEXT("Move the entity before the one above it")},
        {EntityMoveDown, MenuId::Entity, MenuOnly, "48px-Move-down", noKeys, TEXT("Move Entity Do&wn"),
         TEXT("Move the entity after the one below it")},
        {EntityMoveTo, MenuId::Entity, MenuOnly, "48px-Move-to", noKeys, TEXT("Move Entity &To…"),
         TEXT("Move the entity with everything below it to another place in the tree")},

        {VariableAdd, MenuId::Variable, ToolBar, "new", "Ctrl+I", TEXT("&Add Variable"),
         TEXT("Add a variable to the entity")},
        {VariableDuplicate, MenuId::Variable, ToolBar, "48px-Duplicate", "Ctrl+D",
         TEXT("&Duplicate Variables"), TEXT("Add copies of the selected variables")},
        {VariableRemove, MenuId::Variable, ToolBar, "48px-Delete", noKeys, TEXT("&Remove Variables"),
         TEXT("Remove the selected variables")},
        {VariableEditTogether, MenuId::Variable, MenuOnly, "48px-Edit-together", "Ctrl+E",
         TEXT("&Edit Variables Together…"), TEXT("Edit properties of all selected variables at once")},
        {VariableMoveUp, MenuId::Variable, GroupStart, "48px-Move-up", "Alt+Up", TEXT("Move Variables &Up"),
         TEXT("Move the selected variables up in the entity's order")},
        {VariableMoveDown, MenuId::Variable, MenuOnly, "48px-Move-down", "Alt+Down",
         TEXT("Move Variables Do&wn"), TEXT("Move the selected variables down in the entity's order")},
        {VariableMoveTo, MenuId::Variable, MenuOnly, "48px-Move-to", noKeys, TEXT("Move Variables &To…"),
         TEXT("Move the selected variables to another entity")},
        {VariableRefCode, MenuId::Variable, GroupStart, "48px-Entity-code", noKeys,
         TEXT("Use as Reference &Code"), TEXT("Make the variable the entity's reference code, or stop it")},
        {VariableRefLabel, MenuId::Variable, MenuOnly, "48px-Entity-label", noKeys,
         TEXT("Use as Reference &Label"), TEXT("Make the variable the entity's reference label, or stop it")},
        {VariableWeight, MenuId::Variable, MenuOnly, "48px-Entity-weight", noKeys, TEXT("Use as Wei&ght"),
         TEXT("Make the variable the entity's weight, or stop it")},
        {VariableDuplicates, MenuId::Variable, GroupStart, "48px-Checklist", noKeys,
         TEXT("Report Duplicated &Names"), TEXT("List the variables of the entity that share a name")},

        {LabelAdd, MenuId::Values, MenuOnly, "48px-Add", noKeys, TEXT("Add Value &Label"),
         TEXT("Add a value label to the variable")},
        {LabelRemove, MenuId::Values, MenuOnly, "48px-Remove", noKeys, TEXT("Remove Value Labels"),
         TEXT("Remove the selected value labels")},
        {LabelMoveUp, MenuId::Values, MenuOnly, "48px-Move-up", noKeys, TEXT("Move Value Labels Up"),
         TEXT("Move the selected value labels up")},
        {LabelMoveDown, MenuId::Values, MenuOnly, "48px-Move-down", noKeys, TEXT("Move Value Labels Down"),
         TEXT("Move the selected value labels down")},
        {RangeAdd, MenuId::Values, GroupStart, "48px-Add", noKeys, TEXT("Add &Range"),
         TEXT("Add a range of valid values to the variable")},
        {RangeRemove, MenuId::Values, MenuOnly, "48px-Remove", noKeys, TEXT("Remove Ranges"),
         TEXT("Remove the selected ranges")},
        {RangeMoveUp, MenuId::Values, MenuOnly, "48px-Move-up", noKeys, TEXT("Move Ranges Up"),
         TEXT("Move the selected ranges up")},
        {RangeMoveDown, MenuId::Values, MenuOnly, "48px-Move-down", noKeys, TEXT("Move Ranges Down"),
         TEXT("Move the selected ranges down")},

        {ValuesCopyTo, MenuId::Values, GroupStart, "48px-Duplicate", noKeys, TEXT("Copy Values &To…"),
         TEXT("Copy value labels, ranges and missing codes to other variables")},
        {ValuesLabelSets, MenuId::Values, MenuOnly, "48px-Label-sets", noKeys, TEXT("Identical Label &Sets…"),
         TEXT("Edit value labels that several variables share")},

        {SourceOpenDataset, MenuId::Sources, MenuOnly, "48px-DsdConnect", noKeys, TEXT("Open &Dataset…"),
         TEXT("List the fields of a data file")},
        {SourceOpenCsv, MenuId::Sources, MenuOnly, "48px-File-tablestyle", noKeys, TEXT("Open &CSV File…"),
         TEXT("List the fields of a CSV file")},
        {SourceOpenLookups, MenuId::Sources, MenuOnly, "48px-Placeholder", noKeys, TEXT("Open &Lookups…"),
         TEXT("List the lookup tables of a CSV file")},
        {SourceAppend, MenuId::Sources, GroupStart, "48px-Database-convert", "Ctrl+Return",
         TEXT("Add Selected Fields to &Entity"),
         TEXT("Make a variable of each selected field, as dragging them onto the table does")},

        {ToolsCheck, MenuId::Tools, GroupStart, "48px-Morvachecklist", "F7", TEXT("&Check Now"),
         TEXT("Look for what is wrong in the dictionary")},
        {ToolsNextProblem, MenuId::Tools, MenuOnly, "48px-next", "F8", TEXT("&Next Problem"),
         TEXT("Go to the place of the next problem")},
        {ToolsPreviousProblem, MenuId::Tools, MenuOnly, "48px-previous", "Shift+F8",
         TEXT("&Previous Problem"), TEXT("Go to the place of the problem before")},
        {ToolsExpression, MenuId::Tools, GroupStart, "48px-Fx-Expressions", "Ctrl+Shift+E",
         TEXT("Build &Expression…"),
         TEXT("Put an expression together from entities, variables and categories")},
        {ToolsAreas, MenuId::Tools, MenuOnly, "48px-File-selections", noKeys, TEXT("Select &Areas…"),
         TEXT("Select area units of a file")},
        {ToolsNewRun, MenuId::Tools, GroupStart, "48px-File-programs", "Ctrl+R",
         TEXT("New &Run Configuration…"), TEXT("Say which entities and variables take part in a run")},
        {ToolsOpenRun, MenuId::Tools, MenuOnly, "48px-Project-open", noKeys, TEXT("&Open Run Configuration…"),
         TEXT("Change a run configuration that was saved")},

        {ViewNextPane, MenuId::View, MenuOnly, nullptr, "F6", TEXT("&Next Pane"),
         TEXT("Go on with the keyboard in the next part of the window")},
        {ViewPreviousPane, MenuId::View, MenuOnly, nullptr, "Shift+F6", TEXT("&Previous Pane"),
         TEXT("Go back with the keyboard to the part of the window before")},

        {HelpAbout, MenuId::Help, MenuOnly, "48px-About", noKeys, TEXT("&About Quillon Workbench"),
         TEXT("Show version and licences")},
    };
}

const char *Actions::menuTitle(MenuId id)
{
    switch (id) {
    case MenuId::File:
        return TEXT("&File");
    case MenuId::Edit:
        return TEXT("&Edit");
    case MenuId::Entity:
        return TEXT("E&ntity");
    case MenuId::Variable:
        return TEXT("&Variable");
    case MenuId::Values:
        return TEXT("Va&lues");
    case MenuId::Sources:
        return TEXT("&Sources");
    case MenuId::Tools:
        return TEXT("&Tools");
    case MenuId::View:
        return TEXT("Vie&w");
    case MenuId::Help:
        return TEXT("&Help");
    }
    Q_UNREACHABLE();
}
