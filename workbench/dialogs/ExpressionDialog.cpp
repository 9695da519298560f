#include "workbench/dialogs/ExpressionDialog.h"

#include "common/IconPaths.h"
#include "model/PreOrder.h"
#include "models/CategoryExpressionModel.h"
#include "models/EntityExpressionModel.h"
#include "models/VariableExpressionModel.h"
#include "workbench/Actions.h"
#include "workbench/dialogs/ExpressionEdit.h"
#include "workbench/dialogs/ReferenceList.h"
#include "workbench/Document.h"
#include "workbench/operations/ExpressionCheck.h"
#include "workbench/operations/ExpressionText.h"
#include "workbench/Selection.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace
{
template <typename Item>
const Item &as(const void *item)
{
    return *static_cast<const Item *>(item);
}

QString textKey()
{
    return u"expression/text"_s;
}
} // namespace

void ExpressionDialog::addTo(const Workspace &workspace)
{
    connect((*workspace.actions)[ActionId::ToolsExpression], &QAction::triggered, workspace.window,
            [workspace] {
                auto *dialog = new ExpressionDialog(workspace, workspace.window);
                dialog->setAttribute(Qt::WA_DeleteOnClose);
                dialog->setTarget(qobject_cast<QPlainTextEdit *>(QApplication::focusWidget()));
                dialog->open();
            });
}

ExpressionDialog::ExpressionDialog(const Workspace &workspace, QWidget *parent)
    : QDialog(parent), m_workspace(workspace), m_editor(new ExpressionEdit(this)), m_status(new QLabel(this))
{
    setObjectName(u"expressionDialog"_s);
    setWindowTitle(tr("Build Expression"));
    resize(860, 600);

    addLists();
    auto *lists = new QSplitter(this);
    lists->setChildrenCollapsible(false);
    lists->addWidget(m_entities);
    lists->addWidget(m_variables);
    lists->addWidget(m_categories);

    auto *label = new QLabel(tr("E&xpression"), this);
    label->setBuddy(m_editor);
    m_editor->setAccessibleName(tr("Expression"));
    m_editor->setPlaceholderText(
        tr("Drag items here or type, for instance PERSON.AGE >= 15 AND PERSON.SEX = 1"));
    m_status->setObjectName(u"expressionStatus"_s);
    m_status->setWordWrap(true);
    m_status->setTextFormat(Qt::PlainText);
    m_status->setMinimumHeight(m_status->fontMetrics().lineSpacing() * 2);
    m_status->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto *operators = new QHBoxLayout;
    addOperators(operators);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lists, 3);
    layout->addWidget(label);
    layout->addLayout(operators);
    layout->addWidget(m_editor, 1);
    layout->addWidget(m_status);
    layout->addWidget(addButtons());

    connect(m_editor, &QPlainTextEdit::textChanged, this, &ExpressionDialog::check);
    // The lists point into the dictionary.
    connect(workspace.document, &Document::structureAboutToChange, this, &QDialog::close);
    showEntities();
    check();
    // What was written last is not lost with the dialog.
    m_editor->setPlainText(QSettings().value(textKey()).toString());
    m_editor->moveCursor(QTextCursor::End); // What is inserted is added to it.
    m_editor->setFocus();
}

void ExpressionDialog::done(int result)
{
    QSettings().setValue(textKey(), m_editor->toPlainText());
    QDialog::done(result);
}

void ExpressionDialog::addLists()
{
    m_entities = new ReferenceList(
        {tr("&Entities"), tr("The dictionary has no entities."), tr("Insert Entity")},
        [](const void *item) { return ExpressionText::reference(as<TDcEntity>(item)); }, this);
    m_variables = new ReferenceList(
        {tr("&Variables"), tr("The entity has no variables."), tr("Insert Variable")},
        [this](const void *item) { return ExpressionText::reference(*entity(), as<TDcVariable>(item)); },
        this);
    m_categories = new ReferenceList(
        {tr("&Categories"), tr("The variable has no value labels."), tr("Insert Category")},
        [this](const void *item) {
            return ExpressionText::reference(*variable(), as<ValueLabelElement>(item));
        },
        this);
    // Categories look the same in every mode.
    m_entities->addModes();
    m_variables->addModes();
    connect(m_entities, &ReferenceList::modeChanged, this, &ExpressionDialog::showEntities);
    connect(m_entities, &ReferenceList::currentChanged, this, &ExpressionDialog::showVariables);
    connect(m_variables, &ReferenceList::modeChanged, this, &ExpressionDialog::showVariables);
    connect(m_variables, &ReferenceList::currentChanged, this, &ExpressionDialog::showCategories);
    for (const ReferenceList *list : {m_entities, m_variables, m_categories})
        connect(list, &ReferenceList::chosen, m_editor, &ExpressionEdit::insertPiece);
}

void ExpressionDialog::addOperators(QHBoxLayout *row)
{
    const auto add = [this, row](const QString &piece, const QString &name) {
        auto *button = new QToolButton(this);
        button->setText(piece);
        button->setToolTip(name);
        button->setAccessibleName(name);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QToolButton::clicked, m_editor, [this, piece] { m_editor->insertPiece(piece); });
        row->addWidget(button);
    };
    add(u"="_s, tr("equal"));
    add(u"<>"_s, tr("not equal"));
    add(u"<"_s, tr("less than"));
    add(u"<="_s, tr("less than or equal"));
    add(u">"_s, tr("greater than"));
    add(u">="_s, tr("greater than or equal"));
    row->addSpacing(8);
    add(u"AND"_s, tr("both conditions hold"));
    add(u"OR"_s, tr("one of the conditions holds"));
    add(u"NOT"_s, tr("the condition does not hold"));
    row->addSpacing(8);
    add(u"("_s, tr("opening parenthesis"));
    add(u")"_s, tr("closing parenthesis"));
    row->addStretch();

    const auto addStep = [this, row](const QString &text, const QString &icon,
                                     void (QPlainTextEdit::*step)()) {
        auto *button = new QToolButton(this);
        button->setIcon(QIcon(icon));
        button->setToolTip(text);
        button->setAccessibleName(text);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setEnabled(false);
        connect(button, &QToolButton::clicked, m_editor, step);
        row->addWidget(button);
        return button;
    };
    auto *undo = addStep(tr("Undo"), IconPaths::icon48("Undo"_L1), &QPlainTextEdit::undo);
    auto *redo = addStep(tr("Redo"), IconPaths::icon48("Redo"_L1), &QPlainTextEdit::redo);
    connect(m_editor, &QPlainTextEdit::undoAvailable, undo, &QWidget::setEnabled);
    connect(m_editor, &QPlainTextEdit::redoAvailable, redo, &QWidget::setEnabled);
}

QWidget *ExpressionDialog::addButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton *copy = buttons->addButton(tr("C&opy to Clipboard"), QDialogButtonBox::ActionRole);
    QPushButton *insert = buttons->addButton(tr("&Insert into Notes"), QDialogButtonBox::AcceptRole);
    for (QAbstractButton *button : buttons->buttons())
        qobject_cast<QPushButton *>(button)->setAutoDefault(false);
    m_insert = insert;
    const auto update = [this, copy, insert] {
        const bool written = !m_editor->toPlainText().trimmed().isEmpty();
        copy->setEnabled(written);
        insert->setEnabled(written);
    };
    connect(m_editor, &QPlainTextEdit::textChanged, this, update);
    update();
    connect(copy, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(m_editor->toPlainText().trimmed()); });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        Q_EMIT used(m_editor->toPlainText().trimmed());
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setTarget(nullptr);
    return buttons;
}

void ExpressionDialog::setTarget(QPlainTextEdit *notes)
{
    m_insert->setVisible(notes);
    if (!notes)
        return;
    m_insert->setToolTip(tr("Insert the expression into “%1”").arg(notes->accessibleName()));
    connect(this, &ExpressionDialog::used, notes, [notes](const QString &expression) {
        notes->insertPlainText(expression);
        notes->setFocus(); // Notes are kept when the focus leaves them.
    });
}

TDcEntity *ExpressionDialog::entity() const
{
    return const_cast<TDcEntity *>(static_cast<const TDcEntity *>(m_entities->current()));
}

TDcVariable *ExpressionDialog::variable() const
{
    return const_cast<TDcVariable *>(static_cast<const TDcVariable *>(m_variables->current()));
}

void ExpressionDialog::showEntities()
{
    const void *current = m_entities->current();
    QList<TDcEntity *> all;
    preOrder(m_workspace.document->root(), [&all](TDcEntity *entity) { all.append(entity); });
    m_entities->setModel(new EntityExpressionModel(this, &all, m_entities->mode()),
                         current ? current : m_workspace.selection->entity());
}

void ExpressionDialog::showVariables()
{
    const void *current = m_variables->current();
    QList<TDcVariable *> none;
    QList<TDcVariable *> *all = entity() ? entity()->getVariables() : &none;
    m_variables->setModel(new VariableExpressionModel(this, all, m_variables->mode()),
                          current ? current : m_workspace.selection->variable());
}

void ExpressionDialog::showCategories()
{
    QList<ValueLabelElement *> none;
    QList<ValueLabelElement *> *all = variable() ? variable()->getValueLabelElementList() : &none;
    m_categories->setModel(new CategoryExpressionModel(this, all, m_categories->mode()));
}

void ExpressionDialog::check()
{
    const QString text = m_editor->toPlainText();
    const QList<ExpressionCheck::Fault> faults = ExpressionCheck::check(m_workspace.document->root(), text);
    QList<QTextEdit::ExtraSelection> marks;
    for (const ExpressionCheck::Fault &fault : faults) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = m_editor->textCursor();
        mark.cursor.setPosition(int(fault.start));
        mark.cursor.setPosition(int(fault.start + fault.length), QTextCursor::KeepAnchor);
        mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        mark.format.setUnderlineColor(Qt::red);
        marks.append(mark);
    }
    m_editor->setExtraSelections(marks);
    if (text.trimmed().isEmpty())
        m_status->setText(tr("The expression is empty."));
    else
        m_status->setText(faults.isEmpty() ? tr("The expression is complete.") : faults.first().message);
    m_editor->setAccessibleDescription(m_status->text());
}
