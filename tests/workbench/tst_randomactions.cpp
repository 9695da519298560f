#include "documents/DictionaryCopy.h"
#include "documents/DictionaryDifference.h"
#include "documents/DictionaryEquality.h"
#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "model/TDcLookup.h"
#include "model/TDcSourceField.h"
#include "model/TDcVariable.h"
#include "models/DatasetPropertiesFieldsModel.h"
#include "models/LookupPropertiesModel.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/MainWindow.h"
#include "workbench/operations/Places.h"
#include "workbench/panels/EntityForm.h"
#include "workbench/panels/EntityTreePanel.h"
#include "workbench/panels/Inspector.h"
#include "workbench/panels/PropertyForm.h"
#include "workbench/panels/RangesPanel.h"
#include "workbench/panels/ValueLabelsPanel.h"
#include "workbench/panels/VariableTablePanel.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// Somebody who does at random what the window offers.
class RandomPerson
{
public:
    RandomPerson(MainWindow &window, quint32 seed) : m_window(window), m_random(seed) { }

    /// Does something, and answers what it was.
    QString act();
    /// The text of one of the buttons of \a box.
    [[nodiscard]] QString answer(const ShownBox &box) { return oneOf(box.buttons); }
    [[nodiscard]] int below(qsizetype bound) { return int(m_random.bounded(int(bound))); }

private:
    using Do = std::function<void()>;

    template <typename List>
    [[nodiscard]] typename List::value_type oneOf(const List &list)
    {
        return list.at(below(list.size()));
    }
    /// Few enough that they clash, and some that no rule allows.
    [[nodiscard]] QString word()
    {
        static const QStringList words{u"AGE"_s,    u"SEX"_s,   u"PERSON"_s, u"age"_s,         u"HOUSEHOLD"_s,
                                       u"A B"_s,    u"1ST"_s,   QString(),   u" X "_s,         u"ÄGE_2"_s,
                                       u"WEIGHT"_s, u"RELIG"_s, u"P03"_s,    u"(A|B"_s,        u"-7"_s,
                                       u"1"_s,      u"2.5"_s,   u"GROUP"_s,  u"MONTHLY WAGE"_s};
        return below(2) ? oneOf(words) : u"W%1"_s.arg(below(1000));
    }
    template <typename Widget>
    [[nodiscard]] Widget *the() const
    {
        return m_window.findChild<Widget *>();
    }
    void trigger(ActionId id)
    {
        if (QAction *action = (*m_window.actions())[id]; action->isEnabled())
            action->trigger();
    }
    void triggerOneOf(std::initializer_list<ActionId> ids) { trigger(oneOf(QList<ActionId>(ids))); }

    void wander();
    void arrange();
    void renameEntity();
    void addEntity();
    void changeEntities();
    void changeVariables();
    void fillIn(QWidget *panel);
    void typeIntoTable(QTableView *view);
    void changeItems(QTableView *view, ActionId add, ActionId remove, ActionId up, ActionId down);
    void typeInto(QWidget *editor, const QString &text);
    void importFields();
    void importLookups();
    void paste();
    void useDialog(ActionId id, const QString &name);

    MainWindow &m_window;
    QRandomGenerator m_random;
};

QString RandomPerson::act()
{
    if (below(3) == 0)
        wander();
    auto *inspector = the<Inspector>();
    QTableView *labels = inspector->valueLabels()->view();
    QTableView *ranges = inspector->ranges()->view();
    QTableView *variables = the<VariableTablePanel>()->view();
    const QList<std::pair<const char *, Do>> all{
        {"wander", [this] { wander(); }},
        {"arrange", [this] { arrange(); }},
        {"rename entity", [this] { renameEntity(); }},
        {"add entity", [this] { addEntity(); }},
        {"change entities", [this] { changeEntities(); }},
        {"change variables", [this] { changeVariables(); }},
        {"roles",
         [this] {
             triggerOneOf({ActionId::VariableRefCode, ActionId::VariableRefLabel, ActionId::VariableWeight});
         }},
        {"entity form", [this] { fillIn(the<EntityForm>()); }},
        {"variable form", [this, inspector] { fillIn(inspector->widget(0)); }},
        {"cell", [this, variables] { typeIntoTable(variables); }},
        {"label cell", [this, labels] { typeIntoTable(labels); }},
        {"range cell", [this, ranges] { typeIntoTable(ranges); }},
        {"labels",
         [this, labels] {
             changeItems(labels, ActionId::LabelAdd, ActionId::LabelRemove, ActionId::LabelMoveUp,
                         ActionId::LabelMoveDown);
         }},
        {"ranges",
         [this, ranges] {
             changeItems(ranges, ActionId::RangeAdd, ActionId::RangeRemove, ActionId::RangeMoveUp,
                         ActionId::RangeMoveDown);
         }},
        {"import fields", [this] { importFields(); }},
        {"import lookups", [this] { importLookups(); }},
        {"paste", [this] { paste(); }},
        {"edit together", [this] { useDialog(ActionId::VariableEditTogether, u"editTogetherDialog"_s); }},
        {"copy values", [this] { useDialog(ActionId::ValuesCopyTo, u"copyValuesDialog"_s); }},
        {"label sets", [this] { useDialog(ActionId::ValuesLabelSets, u"labelSetsDialog"_s); }},
        {"undo", [this] { trigger(ActionId::EditUndo); }},
        {"redo", [this] { trigger(ActionId::EditRedo); }},
    };
    const auto &[name, act] = all.at(below(all.size()));
    act();
    return QString::fromLatin1(name);
}

void RandomPerson::wander()
{
    QTreeView *tree = the<EntityTreePanel>()->view();
    QList<QModelIndex> indexes{tree->model()->index(0, 0)};
    for (qsizetype i = 0; i < indexes.size(); ++i) {
        for (int row = 0; row < tree->model()->rowCount(indexes.at(i)); ++row)
            indexes.append(tree->model()->index(row, 0, indexes.at(i)));
    }
    if (below(2))
        tree->setCurrentIndex(oneOf(indexes));
    if (below(4) == 0)
        tree->setExpanded(oneOf(indexes), below(2));
    QTableView *table = the<VariableTablePanel>()->view();
    const int rows = table->model()->rowCount();
    if (rows == 0)
        return;
    table->selectRow(below(rows));
    for (int more = below(4) == 0 ? 3 : 0; more > 0; --more) {
        table->selectionModel()->select(table->model()->index(below(rows), 0),
                                        QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
    }
}

void RandomPerson::arrange()
{
    auto *panel = the<VariableTablePanel>();
    panel->filterField()->setText(below(3) ? QString() : word());
    auto *inspector = the<Inspector>();
    const QList<QTableView *> views{panel->view(), inspector->valueLabels()->view(),
                                    inspector->ranges()->view()};
    oneOf(views)->sortByColumn(below(3) - 1, below(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void RandomPerson::typeInto(QWidget *editor, const QString &text)
{
    if (auto *line = qobject_cast<QLineEdit *>(editor))
        line->setText(text);
    else if (auto *whole = qobject_cast<QSpinBox *>(editor))
        whole->setValue(text.toInt());
    else if (auto *real = qobject_cast<QDoubleSpinBox *>(editor))
        real->setValue(text.toDouble());
    QTest::keyClick(editor, Qt::Key_Return);
}

void RandomPerson::renameEntity()
{
    QTreeView *tree = the<EntityTreePanel>()->view();
    tree->model()->setData(tree->currentIndex(), word(), Qt::EditRole);
}

void RandomPerson::addEntity()
{
    trigger(ActionId::EntityAdd);
    // Now and then the editor of the name stays open, whatever is done next.
    if (auto *editor = the<EntityTreePanel>()->view()->findChild<QLineEdit *>(); editor && below(3))
        QTest::keyClick(editor, below(2) ? Qt::Key_Return : Qt::Key_Escape);
}

void RandomPerson::changeEntities()
{
    QList<TDcEntity *> all;
    preOrder(m_window.document()->root(), [&all](TDcEntity *entity) { all.append(entity); });
    // The tree stays small enough to be compared often, and never loses everything.
    if (all.size() < 25)
        triggerOneOf({ActionId::EntityDuplicate, ActionId::EntityMoveUp, ActionId::EntityMoveDown});
    else
        trigger(ActionId::EntityRemove);
    if (below(8) == 0)
        trigger(ActionId::EntityRemove);
}

void RandomPerson::changeVariables()
{
    triggerOneOf({ActionId::VariableAdd, ActionId::VariableDuplicate, ActionId::VariableRemove,
                  ActionId::VariableMoveUp, ActionId::VariableMoveDown});
}

void RandomPerson::fillIn(QWidget *panel)
{
    auto *form = panel->findChild<PropertyForm *>();
    QList<QWidget *> controls;
    const QList<QWidget *> widgets = form->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    std::copy_if(widgets.cbegin(), widgets.cend(), std::back_inserter(controls), [](const QWidget *widget) {
        return widget->focusPolicy() != Qt::NoFocus && widget->isEnabled() && !widget->isHidden();
    });
    QWidget *control = oneOf(controls);
    if (auto *box = qobject_cast<QCheckBox *>(control)) {
        box->click();
    } else if (auto *choice = qobject_cast<QComboBox *>(control)) {
        choice->setEditText(below(2) ? choice->itemText(below(choice->count())) : word());
        QTest::keyClick(choice->lineEdit(), Qt::Key_Return);
    } else if (auto *longText = qobject_cast<QPlainTextEdit *>(control)) {
        longText->setFocus();
        longText->insertPlainText(word() + u'\n' + word());
        longText->clearFocus();
    } else {
        typeInto(control, word());
    }
}

void RandomPerson::typeIntoTable(QTableView *view)
{
    const QAbstractItemModel *model = view->model();
    if (model->rowCount() == 0)
        return;
    view->setFocus();
    view->setCurrentIndex(model->index(below(model->rowCount()), below(model->columnCount())));
    view->edit(view->currentIndex());
    const QList<QWidget *> editors = view->viewport()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    if (!editors.isEmpty() && below(5))
        typeInto(editors.constLast(), word());
}

void RandomPerson::changeItems(QTableView *view, ActionId add, ActionId remove, ActionId up, ActionId down)
{
    if (below(3) == 0)
        view->selectAll();
    triggerOneOf({add, add, remove, up, down});
}

void RandomPerson::importFields()
{
    OwnedList<TDcSourceField> fields;
    for (int count = 1 + below(4); count > 0; --count) {
        auto field = std::make_unique<TDcSourceField>();
        field->name = word();
        field->label = word();
        field->categories = u"1 Yes\t2 No"_s;
        field->setFieldType(below(2) ? u"INTEGER"_s : u"REAL"_s);
        field->rangeMin = u"0"_s;
        field->rangeMax = u"9"_s;
        fields.append(std::move(field));
    }
    const DatasetPropertiesFieldsModel source(nullptr, fields.get(), u"*"_s);
    QModelIndexList rows;
    for (int row = 0; row < source.rowCount(); ++row)
        rows.append(source.index(row, 0));
    const std::unique_ptr<QMimeData> payload(source.mimeData(rows));
    the<VariableTablePanel>()->importFields(payload.get());
}

void RandomPerson::importLookups()
{
    OwnedList<TDcLookup> lookups;
    auto lookup = std::make_unique<TDcLookup>();
    lookup->setId(word());
    lookup->setLabel(word());
    lookups.append(std::move(lookup));
    const LookupPropertiesModel source(nullptr, lookups.get());
    const std::unique_ptr<QMimeData> payload(source.mimeData({source.index(0, 0)}));
    the<VariableTablePanel>()->importFields(payload.get());
}

void RandomPerson::paste()
{
    auto *inspector = the<Inspector>();
    const QList<QTableView *> views{the<VariableTablePanel>()->view(), inspector->valueLabels()->view(),
                                    inspector->ranges()->view()};
    QStringList lines;
    if (below(2))
        lines.append(u"Name\tLabel\tTag"_s);
    for (int count = 1 + below(3); count > 0; --count)
        lines.append(word() + u'\t' + word() + u'\t' + word());
    QApplication::clipboard()->setText(lines.join(u'\n'));
    oneOf(views)->setFocus();
    trigger(ActionId::EditPaste);
}

void RandomPerson::useDialog(ActionId id, const QString &name)
{
    trigger(id);
    auto *dialog = m_window.findChild<QDialog *>(name);
    if (!dialog)
        return;
    const auto *end = dialog->findChild<QDialogButtonBox *>();
    for (int i = 1 + below(6); i > 0; --i) {
        const QList<QWidget *> controls = dialog->findChildren<QWidget *>();
        QWidget *control = oneOf(controls);
        auto *button = qobject_cast<QAbstractButton *>(control);
        if (button && !end->isAncestorOf(button))
            button->click();
        else if (auto *line = qobject_cast<QLineEdit *>(control); line && !line->isReadOnly())
            line->setText(word());
    }
    if (auto *view = dialog->findChild<QAbstractItemView *>(); view && view->model()->rowCount() > 0) {
        const QModelIndex index = view->model()->index(below(view->model()->rowCount()), 0);
        view->setCurrentIndex(index);
        view->model()->setData(index, Qt::Checked, Qt::CheckStateRole);
    }
    if (auto *table = dialog->findChild<QTableView *>(); table && below(2))
        typeIntoTable(table);
    // The one that writes, of whatever name.
    const QList<QAbstractButton *> ends = end->buttons();
    const auto writes = std::find_if(ends.cbegin(), ends.cend(), [end](QAbstractButton *button) {
        const auto role = end->buttonRole(button);
        return role == QDialogButtonBox::AcceptRole || role == QDialogButtonBox::ApplyRole;
    });
    QAbstractButton *ok = writes == ends.cend() ? nullptr : *writes;
    if (ok && ok->isEnabled() && below(4))
        ok->click();
    if (dialog->isVisible())
        dialog->reject();
}

/// What is wrong with what is selected; empty when nothing is.
QString wrongSelection(MainWindow &window)
{
    Selection &selection = *window.selection();
    TDcEntity *entity = selection.entity();
    if (!entity || !Places::holds(window.document()->root(), entity))
        return u"The selected entity is not in the dictionary."_s;
    const QList<TDcVariable *> selected = selection.variables();
    for (TDcVariable *variable : selected) {
        if (!entity->getVariables()->contains(variable))
            return u"A selected variable is not in the entity."_s;
    }
    if (selection.variable() && !selected.contains(selection.variable()))
        return u"The current variable is not selected."_s;
    const QModelIndex current = window.findChild<EntityTreePanel *>()->view()->currentIndex();
    if (current.internalPointer() != entity)
        return u"The tree shows another entity than the selected one."_s;
    return {};
}

/// What of a saved dictionary came back otherwise, levels of variables aside, which no document holds, and
/// lengths of layouts, which an import leaves out beside the field size.
QString lostBySaving(const TDcEntity &saved, const TDcEntity &opened)
{
    static const QStringList unkept{u"level"_s, u"length"_s};
    const QList<DictionaryChange> changes = DictionaryDifference::between(saved, opened).changes();
    QStringList lost;
    for (const DictionaryChange &change : changes) {
        // A text variable of no size is written as one of size 1.
        const bool grown = change.property == "size"_L1 && change.before == 0 && change.after == 1;
        if (change.kind != DictionaryChange::Kind::Changed || !(grown || unkept.contains(change.property)))
            lost.append(change.text());
    }
    return lost.join(u'\n');
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray differences(const TDcEntity &one, const TDcEntity &other)
{
    return DictionaryDifference::between(one, other).text().join(u'\n').toUtf8();
}
} // namespace

class TestRandomActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qApp->setQuitOnLastWindowClosed(false); }
    void undoneAndRedoneAndSaved_data();
    void undoneAndRedoneAndSaved();
};

void TestRandomActions::undoneAndRedoneAndSaved_data()
{
    // Further seeds: QUILLON_SEEDS=1000-1100 tst_randomactions
    const QString wanted = qEnvironmentVariable("QUILLON_SEEDS", u"16-23"_s);
    QTest::addColumn<quint32>("seed");
    for (uint seed = wanted.section(u'-', 0, 0).toUInt(); seed <= wanted.section(u'-', -1).toUInt(); ++seed)
        QTest::addRow("seed %u", seed) << quint32(seed);
}

void TestRandomActions::undoneAndRedoneAndSaved()
{
    QFETCH(const quint32, seed);
    const IsolatedSettings settings;
    const QTemporaryDir folder;
    MainWindow window;
    Document &document = *window.document();
    QVERIFY(document.open(QStringLiteral(QUILLON_SOURCE_DIR "/samples/household.mvdb")));
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QAbstractItemModelTester tester(window.findChild<EntityTreePanel *>()->view()->model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    RandomPerson person(window, seed);
    const MessageBoxAnswer boxes([&person](const ShownBox &box) { return person.answer(box); });
    QUndoStack *stack = document.undoStack();
    const auto start = DictionaryCopy::copy(*document.root());

    QStringList log;
    for (int i = 0; i < 80; ++i) {
        const int before = stack->count();
        log.append(person.act());
        QCoreApplication::processEvents();
        const QByteArray story = log.join(u", "_s).toUtf8();
        // An editor that stood open adds the step that it was open for.
        QVERIFY2(stack->count() <= before + 2, story);
        const QString wrong = wrongSelection(window);
        QVERIFY2(wrong.isEmpty(), wrong.toUtf8() + " After: " + story);
        // Nothing that was changed escapes the history.
        const int index = stack->index();
        document.commit();
        QVERIFY2(stack->index() == index, story);
    }

    // An open editor takes what stands in it, or not, before all is undone.
    window.setFocus();
    QCoreApplication::processEvents();
    const auto end = DictionaryCopy::copy(*document.root());
    QVERIFY2(!DictionaryEquality::equal(*start, *end), log.join(u", "_s).toUtf8());
    const int last = stack->index();
    while (stack->canUndo())
        stack->undo();
    QVERIFY2(DictionaryEquality::equal(*start, *document.root()), differences(*start, *document.root()));
    QCOMPARE(wrongSelection(window), QString());
    stack->setIndex(last);
    QVERIFY2(DictionaryEquality::equal(*end, *document.root()), differences(*end, *document.root()));
    while (stack->canRedo())
        stack->redo();
    stack->setIndex(last);
    QVERIFY2(DictionaryEquality::equal(*end, *document.root()), differences(*end, *document.root()));
    // There and back from any place in between.
    for (int i = 0; i < 10; ++i) {
        stack->setIndex(person.below(stack->count() + 1));
        QCOMPARE(wrongSelection(window), QString());
    }
    stack->setIndex(last);
    QVERIFY2(DictionaryEquality::equal(*end, *document.root()), differences(*end, *document.root()));

    const QString path = folder.filePath(u"end.mvdb"_s);
    QVERIFY2(document.save(path), document.errorText().toUtf8());
    Document again;
    QVERIFY2(again.open(path), again.errorText().toUtf8());
    const QString lost = lostBySaving(*end, *again.root());
    QVERIFY2(lost.isEmpty(), lost.toUtf8());
    const QString second = folder.filePath(u"second.mvdb"_s);
    QVERIFY2(again.save(second), again.errorText().toUtf8());
    QCOMPARE(contents(second), contents(path));
}

QTEST_MAIN(TestRandomActions)
#include "tst_randomactions.moc"
