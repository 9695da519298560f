#include "workbench/panels/PropertyForm.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QSpinBox>

#include <limits>
#include <utility>

namespace
{
/// What was typed is entered now: from here on it is undone as every step is, not letter by letter.
void forgetTyping(QLineEdit &field)
{
    if (!field.isModified())
        return;
    const int cursor = field.cursorPosition();
    field.setText(field.text());
    field.setCursorPosition(cursor);
}
} // namespace

PropertyForm::PropertyForm(QWidget *parent) : QWidget(parent), m_layout(new QFormLayout(this))
{
    m_layout->setContentsMargins(10, 10, 10, 10);
    m_layout->setHorizontalSpacing(10);
    m_layout->setVerticalSpacing(6);
    m_layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_layout->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

template <typename Value>
void PropertyForm::write(const Value &value, const Get<Value> &get, const Set<Value> &set)
{
    if (m_busy || m_suspended || get() == value)
        return;
    {
        const QScopedValueRollback busy(m_busy, true);
        set(value);
    }
    Q_EMIT edited();
    if (!m_suspended)
        refresh();
}

void PropertyForm::refresh()
{
    const QScopedValueRollback busy(m_busy, true);
    m_suspended = false;
    for (const auto &refresher : std::as_const(m_refreshers))
        refresher();
}

QLineEdit *PropertyForm::text(const QString &name, Get<QString> get, Set<QString> set)
{
    auto *field = new QLineEdit(this);
    field->setAccessibleName(name);
    field->setMaxLength(std::numeric_limits<int>::max()); // Nothing is cut by being shown.
    connect(field, &QLineEdit::editingFinished, this, [=, this] { write(field->text(), get, set); });
    watch(field, [=] { return field->text() != get(); });
    m_refreshers.append([=] {
        if (field->text() != get()) {
            field->setText(get());
            field->setCursorPosition(0);
        }
        forgetTyping(*field);
    });
    return field;
}

QPlainTextEdit *PropertyForm::longText(const QString &name, Get<QString> get, Set<QString> set)
{
    auto *field = new QPlainTextEdit(this);
    field->setAccessibleName(name);
    field->setTabChangesFocus(true);
    field->setMinimumHeight(field->fontMetrics().lineSpacing() * 3 + 12);
    watch(field, [=] { return field->document()->isModified(); });
    connect(this, &PropertyForm::focusLeft, field, [=, this](QObject *left) {
        // Line ends and hard blanks come back otherwise than they went in; that is no edit.
        if (left == field && field->document()->isModified())
            write(field->toPlainText(), get, set);
    });
    m_refreshers.append([=] {
        if (field->toPlainText() != get())
            field->setPlainText(get());
        field->document()->setModified(false);
    });
    return field;
}

QSpinBox *PropertyForm::number(const QString &name, Get<int> get, Set<int> set)
{
    auto *field = new QSpinBox(this);
    field->setAccessibleName(name);
    // Documents may hold any number; none is changed by being shown.
    field->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance(u'0') * 6 + 24);
    field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    field->setFocusPolicy(Qt::StrongFocus);
    watch(field, [=] { return !field->hasAcceptableInput() || field->value() != get(); });
    connect(field, &QSpinBox::editingFinished, this, [=, this] { write(field->value(), get, set); });
    m_refreshers.append([=] {
        field->setValue(get());
        forgetTyping(*field->findChild<QLineEdit *>());
    });
    return field;
}

QCheckBox *PropertyForm::check(const QString &caption, Get<bool> get, Set<bool> set)
{
    auto *field = new QCheckBox(caption, this);
    field->setAccessibleName(caption);
    connect(field, &QCheckBox::clicked, this, [=, this](bool checked) { write(checked, get, set); });
    m_refreshers.append([=] { field->setChecked(get()); });
    return field;
}

QComboBox *PropertyForm::choice(const QString &name, const QList<QString> &choices, Get<QString> get,
                                Set<QString> set)
{
    auto *field = new QComboBox(this);
    field->setAccessibleName(name);
    field->view()->setAccessibleName(name);
    field->setEditable(true);
    field->setInsertPolicy(QComboBox::NoInsert);
    field->addItems(choices);
    field->setFocusPolicy(Qt::StrongFocus);
    watch(field, [=] { return field->currentText() != get(); });
    const auto take = [=, this] { write(field->currentText(), get, set); };
    connect(field->lineEdit(), &QLineEdit::editingFinished, this, take);
    connect(field, &QComboBox::activated, this, take);
    m_refreshers.append([=] {
        // The arrow keys go on from here.
        field->setCurrentIndex(field->findText(get(), Qt::MatchFixedString));
        field->setEditText(get());
    });
    return field;
}

void PropertyForm::addRow(const QString &label, QWidget *control)
{
    m_layout->addRow(label, control);
}

void PropertyForm::addRow(const QString &label, QWidget *left, const QString &rightLabel, QWidget *right)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    auto *between = new QLabel(rightLabel, this);
    between->setBuddy(right);
    row->addWidget(left, 1);
    row->addWidget(between);
    row->addWidget(right, 1);
    m_layout->addRow(label, row);
    if (auto *before = qobject_cast<QLabel *>(m_layout->labelForField(row)))
        before->setBuddy(left);
}

void PropertyForm::addHeading(const QString &text)
{
    auto *heading = new QLabel(text, this);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    heading->setContentsMargins(0, 6, 0, 0);
    m_layout->addRow(heading);
}

void PropertyForm::watch(QWidget *control, const std::function<bool()> &isTyping)
{
    control->installEventFilter(this);
    m_isTyping.insert(control, isTyping);
}

bool PropertyForm::eventFilter(QObject *watched, QEvent *event)
{
    // While nothing is being typed there is nothing of the control's own to undo.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<const QKeyEvent *>(event);
        const bool undoes = key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
        if (undoes && !m_suspended && !m_isTyping.value(watched)()) {
            event->ignore();
            return true;
        }
    }
    if (event->type() == QEvent::FocusOut)
        Q_EMIT focusLeft(watched);
    // The wheel scrolls the form; it changes a number only where the person works already.
    const auto *control = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::Wheel && control && !control->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
