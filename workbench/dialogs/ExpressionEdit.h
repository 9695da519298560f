#pragma once

#include <QPlainTextEdit>

/// The text of an expression. What is inserted as a piece stands apart from its neighbours, and each piece is
/// one step that can be undone.
class ExpressionEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ExpressionEdit(QWidget *parent = nullptr);

    /// Puts \a piece in the place of what is selected.
    void insertPiece(const QString &piece);

protected:
    /// Text that comes from an item list is a piece; any other is inserted as it is.
    void insertFromMimeData(const QMimeData *source) override;
};
