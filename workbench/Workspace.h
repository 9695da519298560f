#pragma once

class Actions;
class Document;
class QWidget;
class Selection;

/// What every panel and dialog works with. All of it outlives them.
struct Workspace {
    Document *document = nullptr;
    Selection *selection = nullptr;
    Actions *actions = nullptr;
    QWidget *window = nullptr; ///< The parent of dialogs; may be null.
};
