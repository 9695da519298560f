#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QWidget>

#include <functional>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QPlainTextEdit;
class QSpinBox;

/// A form of controls that show properties of an object and write back what a person changes.
///
/// Each control has a getter and a setter. refresh() shows what the getters say. When a person leaves a
/// control, or presses Return in it, with another value than the getter's, the setter is called and edited()
/// emitted; then the form is refreshed, since a setter may refuse. Undo and redo belong to the control only
/// while something is being typed into it.
class PropertyForm : public QWidget
{
    Q_OBJECT

public:
    template <typename Value>
    using Get = std::function<Value()>;
    template <typename Value>
    using Set = std::function<void(const Value &)>;

    explicit PropertyForm(QWidget *parent = nullptr);

    // Controls; \a name is what they are called aloud. The form owns them once they stand in a row.
    QLineEdit *text(const QString &name, Get<QString> get, Set<QString> set);
    QPlainTextEdit *longText(const QString &name, Get<QString> get, Set<QString> set);
    QSpinBox *number(const QString &name, Get<int> get, Set<int> set);
    QCheckBox *check(const QString &caption, Get<bool> get, Set<bool> set);
    /// A combo box of \a choices that takes any other text too.
    QComboBox *choice(const QString &name, const QList<QString> &choices, Get<QString> get, Set<QString> set);

    // Rows, from top to bottom.
    void addRow(const QString &label, QWidget *control);
    /// Two controls side by side, with a label between them.
    void addRow(const QString &label, QWidget *left, const QString &rightLabel, QWidget *right);
    void addHeading(const QString &text);

    /// Shows what the getters say.
    void refresh();
    /// Forgets what is being typed: until refresh() neither getters nor setters are called.
    void suspend() { m_suspended = true; }

Q_SIGNALS:
    /// A person changed something, and it was written.
    void edited();
    /// The focus left \a control, which has no signal of its own for that.
    void focusLeft(QObject *control);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Calls \a set unless the value is what \a get says already.
    template <typename Value>
    void write(const Value &value, const Get<Value> &get, const Set<Value> &set);

    /// Looks at the events of \a control; \a isTyping is whether it shows something else than its getter.
    void watch(QWidget *control, const std::function<bool()> &isTyping);

    QFormLayout *m_layout;
    QList<std::function<void()>> m_refreshers;
    QHash<QObject *, std::function<bool()>> m_isTyping;
    bool m_suspended = true; // There is no object to show.
    bool m_busy = false; // While the form writes or refreshes, its controls' signals mean nothing.
};
