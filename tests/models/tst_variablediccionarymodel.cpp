#include "models/VariableDiccionaryModel.h"

#include "tests/support/ContextTranslator.h"
#include "tests/support/Icons.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/RowListContract.h"
#include "tests/support/Trees.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStringListModel>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <climits>

using namespace Qt::Literals::StringLiterals;

namespace
{
enum Column { Name, Alias, Label, Group, Tag };
}

/// The variables of PERSON, in a dictionary with more entities above and below.
class TestVariableDiccionaryModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<TDcEntity> m_root;
    std::unique_ptr<VariableDiccionaryModel> m_model;
    TDcEntity *m_person = nullptr;
    QStringList m_announced;

    [[nodiscard]] QModelIndex cell(int row, int column) const { return m_model->index(row, column); }
    [[nodiscard]] TDcVariable *variable(int row) const { return m_person->getVariables()->at(row); }

    /// All that an edit could change, for comparison.
    [[nodiscard]] QStringList state() const
    {
        QStringList lines{m_person->getRefCode()};
        for (const TDcVariable *each : std::as_const(*m_person->getVariables()))
            lines += QStringList{each->getName(), each->getAlias(), each->getLabel(), each->getGroup(),
                                 QString::number(each->getTag())}
                         .join(u'|');
        return lines;
    }

    /// Shows PERSON in a model whose announcements are written down in their order.
    void show()
    {
        m_model = std::make_unique<VariableDiccionaryModel>(nullptr, m_person, m_root.get());
        connect(m_model.get(), &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex &from, const QModelIndex &to, const QList<int> &roles) {
                    m_announced += u"changed %1,%2 to %3,%4, %5 roles"_s.arg(from.row())
                                       .arg(from.column())
                                       .arg(to.row())
                                       .arg(to.column())
                                       .arg(roles.size());
                });
        connect(m_model.get(), &VariableDiccionaryModel::signalVariablesModified, this,
                [this] { m_announced += u"modified"_s; });
        connect(m_model.get(), &VariableDiccionaryModel::signalVariableDropped, this,
                [this] { m_announced += u"dropped"_s; });
        m_announced.clear();
    }

    [[nodiscard]] static QStringList announcement(int row, int column)
    {
        return {u"changed %1,%2 to %1,%2, 0 roles"_s.arg(row).arg(column), u"modified"_s};
    }

private Q_SLOTS:
    void init()
    {
        m_root = makeEntities(uR"(
COUNTRY/nation
    PERSON/member
        VISIT
            STEP
    DWELLING
)");
        m_person = findEntity(m_root.get(), u"PERSON");
        m_person->addVariables(makeVariable(u"AGE"_s, u"years"_s, u"Age"_s, u"basic"_s));
        m_person->addVariables(makeVariable(u"SEX"_s, u"sx"_s, u"Sex"_s, u"basic"_s));
        m_person->addVariables(makeVariable(u"INCOME"_s, u"inc"_s));
        m_person->addVariables(makeVariable(u"TWIN"_s, u"tw"_s));
        m_person->addVariables(makeVariable(u"TWIN"_s, u"tw"_s));
        m_root->addVariables(makeVariable(u"AREA"_s, u"size"_s, {}, u"land"_s));
        variable(0)->setTag(7);
        show();
    }
    void cleanup()
    {
        m_model.reset();
        m_root.reset();
    }

    void keepsTheContract() { checkRowListContract(*m_model, *m_person->getVariables(), 5); }

    void columnsAreNotLookedAt()
    {
        QCOMPARE(m_model->index(0, 17).column(), 17);
        QVERIFY(!m_model->index(0, 17).data().isValid());
    }

    void belongsToItsParent()
    {
        QObject owner;
        auto *model = new VariableDiccionaryModel(&owner, m_person, m_root.get());
        QCOMPARE(static_cast<QObject *>(model)->parent(), &owner);
    }

    void hasAMetaObjectOfItsOwn()
    {
        const QMetaObject *meta = m_model->metaObject();
        QCOMPARE(meta->className(), "VariableDiccionaryModel");
        QCOMPARE(meta->superClass(), &QAbstractItemModel::staticMetaObject);
        QCOMPARE(meta->methodCount() - meta->methodOffset(), 2);
        QCOMPARE(meta->method(meta->methodOffset()).methodSignature(), "signalVariablesModified()");
        QCOMPARE(meta->method(meta->methodOffset() + 1).methodSignature(), "signalVariableDropped()");
        QCOMPARE(meta->propertyCount(), QAbstractItemModel::staticMetaObject.propertyCount());
    }

    void keepsItsConfiguration()
    {
        QVERIFY(m_model->getSplitterEnabled());
        QCOMPARE(m_model->getSplitterCharacter(), u"_"_s);
        m_model->setSplitterEnabled(false);
        m_model->setSplitterCharacter(u"--"_s);
        m_model->setZerosTagPlaceholder(3);
        QVERIFY(!m_model->getSplitterEnabled());
        QCOMPARE(m_model->getSplitterCharacter(), u"--"_s);
    }

    void showsTheVariable()
    {
        const QVariantList shown{u"AGE"_s, u"years"_s, u"Age"_s, u"basic"_s, 7};
        for (int column = 0; column < 5; ++column) {
            QCOMPARE(cell(0, column).data(), shown.at(column));
            QCOMPARE(cell(0, column).data(Qt::EditRole), shown.at(column));
            QCOMPARE(m_model->getItemData(variable(0), column), shown.at(column));
            for (const int role : {int(Qt::ToolTipRole), int(Qt::CheckStateRole), int(Qt::UserRole)})
                QVERIFY(!cell(0, column).data(role).isValid());
        }
        QVERIFY(!m_model->getItemData(variable(0), 5).isValid());
        QVERIFY(!m_model->getItemData(variable(0), -1).isValid());
        QVERIFY(!m_model->getItemData(nullptr, 0).isValid());
        QCOMPARE(cell(0, Tag).data().typeId(), int(QMetaType::Int));
    }

    void namesItsColumns()
    {
        const QStringList titles{u"Name"_s, u"Alias"_s, u"Label"_s, u"Group"_s, u"Tag"_s};
        for (int section = 0; section < 5; ++section) {
            QCOMPARE(m_model->headerData(section, Qt::Horizontal), QVariant(titles.at(section)));
            QVERIFY(!m_model->headerData(section, Qt::Vertical).isValid());
            QVERIFY(!m_model->headerData(section, Qt::Horizontal, Qt::EditRole).isValid());
        }
        QVERIFY(!m_model->headerData(5, Qt::Horizontal).isValid());
        QVERIFY(!m_model->headerData(-1, Qt::Horizontal).isValid());
    }

    void translatesInItsOwnContext()
    {
        const ContextTranslator translator;
        QCOMPARE(m_model->headerData(4, Qt::Horizontal), QVariant(u"VariableDiccionaryModel:Tag"_s));
        const MessageBoxAnswer box;
        QVERIFY(!m_model->setData(cell(0, Name), u"a b"_s));
        QVERIFY(!m_model->setData(cell(0, Name), u"PERSON"_s));
        QVERIFY(!m_model->setData(cell(0, Group), u"sx"_s));
        QCOMPARE(
            box.texts(),
            (QStringList{u"VariableDiccionaryModel:Invalid string"_s,
                         u"VariableDiccionaryModel:The typed character string already exists"_s,
                         u"VariableDiccionaryModel:The value already exists as the alias of a variable."_s}));
    }

    void cellsCanBeEditedDraggedAndDroppedOn()
    {
        QCOMPARE(m_model->flags(cell(0, 0)),
                 Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable | Qt::ItemIsDragEnabled
                     | Qt::ItemIsDropEnabled);
    }
    void theEmptyAreaTakesDrops() { QCOMPARE(m_model->flags({}), Qt::ItemFlags(Qt::ItemIsDropEnabled)); }
    void takesFieldsByCopyAndMove()
    {
        QCOMPARE(m_model->mimeTypes(), QStringList{u"application/vnd.text.list"_s});
        QCOMPARE(m_model->supportedDropActions(), Qt::CopyAction | Qt::MoveAction);
    }
    void variablesAreNotDraggedOut() { QCOMPARE(m_model->mimeData({cell(0, 0)}), nullptr); }

    void alignsNumbersToTheRight_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("right");
        QTest::addRow("digits") << u"12"_s << true;
        QTest::addRow("decimals") << u"-1.5e3"_s << true;
        QTest::addRow("blanks around") << u" 12 "_s << true;
        QTest::addRow("a word") << u"Age"_s << false;
        QTest::addRow("digits and more") << u"12a"_s << false;
        QTest::addRow("none") << QString() << false;
    }
    void alignsNumbersToTheRight()
    {
        QFETCH(const QString, label);
        QFETCH(const bool, right);
        variable(0)->setLabel(label);
        QCOMPARE(cell(0, Label).data(Qt::TextAlignmentRole), right ? QVariant(130) : QVariant());
        QCOMPARE(cell(0, Tag).data(Qt::TextAlignmentRole), QVariant(130));
        QVERIFY(!cell(0, 5).data(Qt::TextAlignmentRole).isValid());
    }

    void showsRoleOrTypeAsAnIcon_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("lookup");
        QTest::addColumn<QString>("image");
        QTest::addRow("text") << u"V"_s << u"STRING"_s << false << u"Variable-string"_s;
        QTest::addRow("type is trimmed and upper-cased")
            << u"V"_s << u" string "_s << false << u"Variable-string"_s;
        QTest::addRow("integer") << u"V"_s << u"integer"_s << false << u"Variable-integer"_s;
        QTest::addRow("real") << u"V"_s << u"REAL"_s << false << u"Variable-decimal"_s;
        QTest::addRow("bool") << u"V"_s << u"Bool\t"_s << false << u"Variable-bool"_s;
        QTest::addRow("another type") << u"V"_s << u"DATE"_s << false << u"Project-preferences"_s;
        QTest::addRow("no type") << u"V"_s << QString() << false << u"Project-preferences"_s;
        QTest::addRow("LOOKUP is no type of its own")
            << u"V"_s << u"LOOKUP"_s << false << u"Project-preferences"_s;
        QTest::addRow("lookup") << u"V"_s << u"STRING"_s << true << u"Project-save"_s;
        QTest::addRow("lookup whatever the type") << u"V"_s << u"REAL"_s << true << u"Project-save"_s;
        QTest::addRow("lookup that is the code") << u"CODE"_s << u"STRING"_s << true << u"Project-save"_s;
        QTest::addRow("code") << u"CODE"_s << u"STRING"_s << false << u"Entity-code"_s;
        QTest::addRow("code with blanks") << u" CODE "_s << u"string"_s << false << u"Entity-code"_s;
        QTest::addRow("other letter case is no code")
            << u"code"_s << u"STRING"_s << false << u"Variable-string"_s;
        QTest::addRow("number that is the code shows its type")
            << u"CODE"_s << u"REAL"_s << false << u"Variable-decimal"_s;
        QTest::addRow("weight") << u"WEIGHT"_s << u"STRING"_s << false << u"Entity-weight"_s;
        QTest::addRow("label") << u"LABEL"_s << u"STRING"_s << false << u"Entity-label"_s;
    }
    void showsRoleOrTypeAsAnIcon()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, type);
        QFETCH(const bool, lookup);
        QFETCH(const QString, image);
        m_person->setRefCode(u"CODE "_s);
        m_person->setWeightVariable(u" WEIGHT"_s);
        m_person->setRefLabel(u"LABEL"_s);
        variable(0)->setName(name);
        variable(0)->setVarType(type);
        for (const bool withMetadata : {true, false}) {
            if (lookup && !withMetadata)
                break;
            variable(0)->setMetadataVariables(withMetadata ? new MetadataVariables : nullptr);
            if (withMetadata)
                variable(0)->getMetadataVariables()->setLookup(lookup);
            QCOMPARE(iconFile(cell(0, Name).data(Qt::DecorationRole)),
                     u":/icons/res/icons/48px-%1.png"_s.arg(image));
        }
        for (const int column : {int(Alias), int(Label), int(Group), int(Tag), 5})
            QVERIFY(!cell(0, column).data(Qt::DecorationRole).isValid());
    }

    void theFirstRoleOfAVariableShows()
    {
        variable(0)->setVarType(u"STRING"_s);
        m_person->setRefLabel(u"AGE"_s);
        m_person->setWeightVariable(u"AGE"_s);
        QCOMPARE(iconFile(cell(0, Name).data(Qt::DecorationRole)),
                 u":/icons/res/icons/48px-Entity-weight.png"_s);
        m_person->setRefCode(u"AGE"_s);
        QCOMPARE(iconFile(cell(0, Name).data(Qt::DecorationRole)),
                 u":/icons/res/icons/48px-Entity-code.png"_s);
    }

    void answersNothingForWhatIsNoCell()
    {
        const QStringListModel other({u"text"_s});
        m_person->addVariables(nullptr);
        show();
        for (const QModelIndex &index : {QModelIndex(), other.index(0), cell(5, Name)}) {
            for (const int role : {int(Qt::DisplayRole), int(Qt::TextAlignmentRole), int(Qt::DecorationRole)})
                QVERIFY(!m_model->data(index, role).isValid());
            QVERIFY(!m_model->setData(index, u"X"_s));
            QVERIFY(!m_model->setData(index, u"X"_s, Qt::DisplayRole));
        }
        QVERIFY(m_announced.isEmpty());
    }

    void storesWhatIsTyped_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QVariant>("typed");
        QTest::addColumn<QVariant>("stored");
        const auto row = [](const char *name, int column, const QVariant &typed, const QVariant &stored) {
            QTest::addRow("%s", name) << column << typed << stored;
        };
        row("name", Name, u"BIRTH"_s, u"BIRTH"_s);
        row("name keeps its blanks", Name, u" BIRTH "_s, u" BIRTH "_s);
        row("name may be an alias", Name, u"sx"_s, u"sx"_s);
        row("name may be another variable's, once there", Name, u"SEX"_s, u"SEX"_s);
        row("alias", Alias, u"old"_s, u"old"_s);
        row("alias may be another variable's, once there", Alias, u"sx"_s, u"sx"_s);
        row("alias may be found by a pattern", Alias, u"s."_s, u"s."_s);
        row("alias that is an invalid pattern", Alias, u"A["_s, u"A["_s);
        row("alias that is valid alone but not wrapped", Alias, u"(?x)sx #"_s, u"(?x)sx #"_s);
        row("alias that is an expensive pattern", Alias, u"(A|AA)+$"_s, u"(A|AA)+$"_s);
        row("alias that is an entity's name", Alias, u"PERSON"_s, u"PERSON"_s);
        row("alias taken away", Alias, QString(), QString());
        row("label", Label, u"Anything: AGE, PERSON, sx"_s, u"Anything: AGE, PERSON, sx"_s);
        row("label that is a name", Label, u"TWIN"_s, u"TWIN"_s);
        row("group", Group, u"g 1"_s, u"g 1"_s);
        row("group of others", Group, u"basic"_s, u"basic"_s);
        row("group that is an entity's alias", Group, u"member"_s, u"member"_s);
        row("tag", Tag, u"12"_s, 12);
        row("tag as a number", Tag, 12, 12);
        row("tag loses its sign", Tag, u"-5"_s, 5);
        row("highest tag", Tag, u"9999"_s, 9999);
        row("tag too high is cut", Tag, u"10000"_s, 9999);
        row("tag too low is not cut", Tag, u"-20000"_s, 20000);
        row("lowest number", Tag, u"-2147483648"_s, INT_MAX);
        row("next to the lowest", Tag, u"-2147483647"_s, INT_MAX);
        row("word for a tag stores nothing", Tag, u"abc"_s, 7);
        row("empty text for a tag stores nothing", Tag, QString(), 7);
        row("fraction as text stores nothing", Tag, u"1.5"_s, 7);
        row("number beyond an int, as it wraps around", Tag, u"99999999999"_s, 9999);
    }
    void storesWhatIsTyped()
    {
        QFETCH(const int, column);
        QFETCH(const QVariant, typed);
        QFETCH(const QVariant, stored);
        const MessageBoxAnswer box;
        QVERIFY(m_model->setData(cell(0, column), typed));
        QCOMPARE(cell(0, column).data(), stored);
        QCOMPARE(m_announced, announcement(0, column));
        QVERIFY(box.shown().isEmpty());
    }

    void refuses_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        const QString taken = u"The typed character string already exists"_s;
        const QString takenName = u"The typed character string already exists as the alias of a variable"_s;
        const QString alias = u"The value already exists as the alias of a variable."_s;
        const QString name = u"The value already exists as the name of a variable."_s;
        const QString entity = u"The value already exists as a entity name."_s;
        QTest::addRow("no name") << int(Name) << QString() << QString();
        QTest::addRow("blanks for a name") << int(Name) << u"  "_s << QString();
        QTest::addRow("its own name") << int(Name) << u"AGE"_s << QString();
        QTest::addRow("its own name with blanks") << int(Name) << u" AGE\t"_s << QString();
        QTest::addRow("name with a blank") << int(Name) << u"A B"_s << u"Invalid string"_s;
        QTest::addRow("name with a sign") << int(Name) << u"A.B"_s << u"Invalid string"_s;
        QTest::addRow("name that is a pattern") << int(Name) << u".*"_s << u"Invalid string"_s;
        QTest::addRow("name that is an invalid pattern") << int(Name) << u"A["_s << u"Invalid string"_s;
        QTest::addRow("name of its entity") << int(Name) << u"PERSON"_s << taken;
        QTest::addRow("name of the root entity") << int(Name) << u"COUNTRY"_s << taken;
        QTest::addRow("name of an entity far away") << int(Name) << u" step "_s << taken;
        QTest::addRow("its own name in other letter case") << int(Name) << u"age"_s << takenName;
        QTest::addRow("name that two others have") << int(Name) << u"TWIN"_s << takenName;
        QTest::addRow("name of another in other letter case") << int(Name) << u"sex"_s << takenName;
        QTest::addRow("name of another with blanks") << int(Name) << u" SEX"_s << takenName;
        QTest::addRow("alias that two others have") << int(Alias) << u"tw"_s << alias;
        QTest::addRow("alias in other letter case") << int(Alias) << u"SX"_s << alias;
        QTest::addRow("alias with blanks") << int(Alias) << u" sx "_s << alias;
        QTest::addRow("alias that is a name") << int(Alias) << u"sex"_s << name;
        QTest::addRow("alias that is its own name") << int(Alias) << u"AGE"_s << name;
        QTest::addRow("group that is an entity") << int(Group) << u"dwelling"_s << entity;
        QTest::addRow("group that is an alias") << int(Group) << u"sx"_s << alias;
        QTest::addRow("group that is a pattern takes no alias out") << int(Group) << u"inc"_s << alias;
        QTest::addRow("group that is a name") << int(Group) << u"Sex "_s << name;
    }
    void refuses()
    {
        QFETCH(const int, column);
        QFETCH(const QString, typed);
        QFETCH(const QString, message);
        const QStringList before = state();
        const MessageBoxAnswer box;
        QVERIFY(!m_model->setData(cell(0, column), typed));
        QCOMPARE(state(), before);
        QCOMPARE(m_announced, QStringList());
        QCOMPARE(box.texts(), message.isEmpty() ? QStringList() : QStringList{message});
        if (!message.isEmpty()) {
            QCOMPARE(box.shown().first().icon,
                     message == u"Invalid string" ? QMessageBox::Information : QMessageBox::Critical);
            QCOMPARE(box.shown().first().format, Qt::PlainText);
            QVERIFY(box.shown().first().modal);
            QVERIFY(!box.shown().first().hasParent);
        }
    }

    void theFirstClashIsTheOneThatIsTold_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("message");
        QTest::addRow("name") << int(Name) << u"The typed character string already exists"_s;
        QTest::addRow("alias") << int(Alias) << u"The value already exists as the alias of a variable."_s;
        QTest::addRow("group") << int(Group) << u"The value already exists as a entity name."_s;
    }
    void theFirstClashIsTheOneThatIsTold()
    {
        QFETCH(const int, column);
        for (int row = 1; row < 4; ++row) {
            variable(row)->setName(u"VISIT"_s);
            variable(row)->setAlias(u"VISIT"_s);
        }
        const MessageBoxAnswer box;
        QVERIFY(!m_model->setData(cell(0, column), u"visit"_s));
        QCOMPARE(box.shown().size(), 1);
        QTEST(box.texts().constFirst(), "message");
    }

    void anAliasIsReadAsAPatternBeforeItIsCompared()
    {
        const MessageBoxAnswer box;
        variable(1)->setAlias(u"sx."_s);
        QVERIFY(m_model->setData(cell(0, Alias), u"sx."_s)); // It matches itself, so it is no clash.
        variable(2)->setAlias(u"in+c"_s);
        QVERIFY(!m_model->setData(cell(0, Alias), u"in+c"_s)); // It does not, so it is one.
        QCOMPARE(box.texts(), QStringList{u"The value already exists as the alias of a variable."_s});
    }

    void onlyTheFirstMatchOfAPatternIsTakenOut()
    {
        variable(1)->setAlias(u"xs"_s);
        variable(2)->setAlias(u"x."_s);
        const MessageBoxAnswer box;
        QVERIFY(!m_model->setData(cell(0, Alias), u"x."_s)); // It took "xs" out, not "x.".
        QCOMPARE(box.shown().size(), 1);
    }

    void otherRolesChangeNothingButAreAnnounced()
    {
        const QStringList before = state();
        const MessageBoxAnswer box;
        for (const int role : {int(Qt::DisplayRole), int(Qt::CheckStateRole), int(Qt::UserRole)}) {
            m_announced.clear();
            QVERIFY(m_model->setData(cell(0, Name), u"PERSON"_s, role));
            QCOMPARE(m_announced, announcement(0, Name));
        }
        QCOMPARE(state(), before);
        QVERIFY(box.shown().isEmpty());
    }

    void anUnknownColumnStoresNothingButIsAnnounced()
    {
        const QStringList before = state();
        QVERIFY(m_model->setData(cell(0, 9), u"X"_s));
        QCOMPARE(state(), before);
        QCOMPARE(m_announced, announcement(0, 9));
    }

    void asksWhatBecomesOfTheReferenceCode_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("refCode");
        QTest::addColumn<bool>("selectable");
        QTest::addRow("yes: the code follows") << u"Yes"_s << u" ID "_s << u" ID "_s << true;
        QTest::addRow("no: it goes, and with it every selection below")
            << u"No"_s << u" ID "_s << QString() << false;
        QTest::addRow("cancel: nothing is stored") << u"Cancel"_s << u" AGE"_s << u"AGE"_s << true;
        QTest::addRow("escape is cancel") << QString() << u" AGE"_s << u"AGE"_s << true;
    }
    void asksWhatBecomesOfTheReferenceCode()
    {
        QFETCH(const QString, answer);
        QFETCH(const bool, selectable);
        variable(0)->setName(u" AGE"_s);
        m_person->setRefCode(u"AGE"_s);
        const QStringList names{u"COUNTRY"_s, u"PERSON"_s, u"VISIT"_s, u"STEP"_s, u"DWELLING"_s};
        for (const QString &name : names)
            findEntity(m_root.get(), name)->setSelectable(true);

        const MessageBoxAnswer box({answer});
        QVERIFY(m_model->setData(cell(0, Name), u" ID "_s));
        QCOMPARE(box.shown().size(), 1);
        const ShownBox &shown = box.shown().first();
        QCOMPARE(shown.title, u"RefCode Variable"_s);
        QCOMPARE(shown.text, u"Variable identified as RefCode.\nKeep it as RefCode?"_s);
        QCOMPARE(shown.buttons.size(), 3);
        QVERIFY(!shown.hasParent);

        QTEST(variable(0)->getName(), "name");
        QTEST(m_person->getRefCode(), "refCode");
        QCOMPARE(m_person->getSelectable(), selectable);
        QCOMPARE(findEntity(m_root.get(), u"VISIT")->getSelectable(), selectable);
        QCOMPARE(findEntity(m_root.get(), u"STEP")->getSelectable(), selectable);
        QVERIFY(m_root->getSelectable()); // Those beside and above are left alone.
        QVERIFY(findEntity(m_root.get(), u"DWELLING")->getSelectable());
        QCOMPARE(m_announced, announcement(0, Name)); // Cancelled or not.
    }

    void theReferenceCodeIsComparedAsItIs()
    {
        m_person->setRefCode(u"AGE "_s); // The variable's name is trimmed, the code is not.
        const MessageBoxAnswer box;
        QVERIFY(m_model->setData(cell(0, Name), u"ID"_s));
        QVERIFY(box.shown().isEmpty());
        QCOMPARE(m_person->getRefCode(), u"AGE "_s);
    }

    void aNamelessVariableIsTheCodeOfAnEntityWithoutOne()
    {
        variable(0)->setName(u" "_s);
        const MessageBoxAnswer box({u"Yes"_s});
        QVERIFY(m_model->setData(cell(0, Name), u"ID"_s));
        QCOMPARE(box.shown().size(), 1);
        QCOMPARE(m_person->getRefCode(), u"ID"_s);
    }

    void otherColumnsDoNotAskAboutTheCode()
    {
        m_person->setRefCode(u"AGE"_s);
        const MessageBoxAnswer box;
        for (const int column : {int(Alias), int(Label), int(Group)})
            QVERIFY(m_model->setData(cell(0, column), u"text %1"_s.arg(column)));
        QVERIFY(m_model->setData(cell(0, Name), u"ID"_s, Qt::DisplayRole));
        QVERIFY(box.shown().isEmpty());
    }

    void aRefusedNameDoesNotAskAboutTheCode()
    {
        m_person->setRefCode(u"AGE"_s);
        const MessageBoxAnswer box;
        QVERIFY(!m_model->setData(cell(0, Name), u"PERSON"_s));
        QCOMPARE(box.texts(), QStringList{u"The typed character string already exists"_s});
    }

    void survivesItsEndWhileItAsks()
    {
        m_person->setRefCode(u"AGE"_s);
        const MessageBoxAnswer box({u"Yes"_s});
        QTimer::singleShot(0, this, [this] { m_model.reset(); });
        QVERIFY(!m_model->setData(cell(0, Name), u"ID"_s));
        QCOMPARE(variable(0)->getName(), u"AGE"_s);
        QCOMPARE(m_person->getRefCode(), u"AGE"_s);
    }

    void survivesItsEndInASlot()
    {
        connect(m_model.get(), &QAbstractItemModel::dataChanged, this, [this] { m_model.reset(); });
        QVERIFY(m_model->setData(cell(0, Label), u"Years"_s));
        QCOMPARE(variable(0)->getLabel(), u"Years"_s);
        QCOMPARE(m_announced.size(), 1); // Who is gone has nothing more to say.
    }

    void looksAtTheNamesAfreshEachTime()
    {
        const MessageBoxAnswer box;
        QVERIFY(m_model->setData(cell(0, Group), u"LATER"_s));
        findEntity(m_root.get(), u"STEP")->setName(u"LATER"_s);
        QVERIFY(!m_model->setData(cell(1, Group), u"LATER"_s));
    }

    void rowsStayAsTheyWereBuilt()
    {
        m_person->addVariables(makeVariable(u"LATE"_s));
        QCOMPARE(m_model->rowCount(), 5);
    }

    void isEditedWithKeysInAView()
    {
        QTableView view;
        view.setModel(m_model.get());
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const auto type = [&view](const QModelIndex &index, const QString &text) {
            view.setCurrentIndex(index);
            QTest::keyClick(&view, Qt::Key_F2);
            auto *editor = view.viewport()->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
            QVERIFY(editor);
            if (auto *line = qobject_cast<QLineEdit *>(editor))
                line->selectAll();
            else if (auto *number = qobject_cast<QSpinBox *>(editor))
                number->selectAll();
            QTest::keyClicks(editor, text);
            QTest::keyClick(editor, Qt::Key_Return);
            QTRY_VERIFY(!view.viewport()->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
        };
        type(cell(2, Name), u"BIRTH"_s);
        type(cell(2, Alias), u"born"_s);
        type(cell(2, Label), u"Year of birth"_s);
        type(cell(2, Group), u"dates"_s);
        type(cell(2, Tag), u"44"_s);
        QCOMPARE(state().at(3), u"BIRTH|born|Year of birth|dates|44"_s);

        const MessageBoxAnswer box({u"OK"_s});
        view.setCurrentIndex(cell(2, Name));
        QTest::keyClick(&view, Qt::Key_F2);
        auto *editor = view.viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        editor->selectAll();
        QTest::keyClicks(editor, u"PERSON"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(box.texts().value(0), u"The typed character string already exists"_s);
        QCOMPARE(state().at(3), u"BIRTH|born|Year of birth|dates|44"_s);
    }
};

QTEST_MAIN(TestVariableDiccionaryModel)
#include "tst_variablediccionarymodel.moc"
