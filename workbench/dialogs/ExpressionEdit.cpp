#include "workbench/dialogs/ExpressionEdit.h"

#include "workbench/operations/ExpressionText.h"

#include <QMimeData>
#include <QTextBlock>

using namespace Qt::Literals::StringLiterals;

ExpressionEdit::ExpressionEdit(QWidget *parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    setFont(QFont(u"monospace"_s, font().pointSize()));
}

void ExpressionEdit::insertPiece(const QString &piece)
{
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    cursor.insertText(ExpressionText::spaced(cursor.block().text(), cursor.positionInBlock(), piece));
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

void ExpressionEdit::insertFromMimeData(const QMimeData *source)
{
    const bool item = source->hasFormat(u"application/vnd.text.list"_s)
        || source->hasFormat(u"application/x-qabstractitemmodeldatalist"_s);
    if (item)
        insertPiece(source->text());
    else
        QPlainTextEdit::insertFromMimeData(source);
}
