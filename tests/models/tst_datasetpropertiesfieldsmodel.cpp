#include "models/DatasetPropertiesFieldsModel.h"

#include "model/OwnedList.h"
#include "tests/support/ContextTranslator.h"
#include "tests/support/Icons.h"
#include "tests/support/Payloads.h"
#include "tests/support/RowListContract.h"

#include <QHeaderView>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
QStringList &debugLines()
{
    static QStringList lines;
    return lines;
}

void keepDebugLine(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtDebugMsg)
        debugLines().append(text);
}

/// "code|label" for each category of \a field.
QStringList categoriesOf(TDcSourceField &field)
{
    QList<TDcSourceField *> fields{&field};
    const DatasetPropertiesFieldsModel model(nullptr, &fields, u"*"_s);
    QStringList lines;
    const QJsonArray categories = model.laodDataCategories(&field);
    for (const QJsonValue &category : categories) {
        const QJsonObject object = category.toObject();
        if (object.keys() != QStringList{u"codigoCategoria"_s, u"nombreCategoria"_s})
            lines += u"unexpected keys"_s;
        lines += object[u"codigoCategoria"].toString() + u'|' + object[u"nombreCategoria"].toString();
    }
    return lines;
}
} // namespace

class TestDatasetPropertiesFieldsModel : public QObject
{
    Q_OBJECT

    OwnedList<TDcSourceField> m_fields;

    /// \a count fields F1, F2, ... of the record R, without tags.
    QList<TDcSourceField *> *makeFields(int count)
    {
        m_fields.reset(nullptr);
        for (int i = 1; i <= count; ++i) {
            auto field = makeField(u"F%1"_s.arg(i), u"REAL"_s, u"1"_s, u"9"_s);
            field->label = u"Field %1"_s.arg(i);
            field->record = u"R"_s;
            field->tag = -7;
            m_fields.append(std::move(field));
        }
        return m_fields.get();
    }
    static QStringList column(const QAbstractItemModel &model, int column)
    {
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts += model.index(row, column).data().toString();
        return texts;
    }

private Q_SLOTS:
    void cleanup() { m_fields.reset(nullptr); }

    void keepsTheContract()
    {
        DatasetPropertiesFieldsModel model(nullptr, makeFields(3), u"*"_s);
        checkRowListContract(model, *m_fields.get(), 3);
    }

    void hasNoMetaObjectOfItsOwn()
    {
        const DatasetPropertiesFieldsModel model(nullptr, makeFields(0), u"*"_s);
        QCOMPARE(model.metaObject(), &QAbstractItemModel::staticMetaObject);
    }

    void belongsToItsParent()
    {
        QObject owner;
        auto *model = new DatasetPropertiesFieldsModel(&owner, makeFields(1), u"*"_s);
        QCOMPARE(static_cast<QObject *>(model)->parent(), &owner);
    }

    void copesWithMissingListsAndFields()
    {
        const DatasetPropertiesFieldsModel none(nullptr, nullptr, u"*"_s);
        QCOMPARE(none.rowCount(), 0);

        const auto field = makeField(u"F"_s);
        QList<TDcSourceField *> fields{nullptr, field.get()};
        DatasetPropertiesFieldsModel model(nullptr, &fields, u"*"_s);
        QCOMPARE(field->tag, 2);
        const QModelIndex empty = model.index(0, 0);
        QVERIFY(empty.isValid());
        QVERIFY(!model.data(empty).isValid());
        QVERIFY(!model.data(empty, Qt::DecorationRole).isValid());
        QVERIFY(!model.setData(empty, 1));
        QVERIFY(!model.getItemData(nullptr, 2).isValid());
        QVERIFY(model.laodDataCategories(nullptr).isEmpty());
        const std::unique_ptr<QMimeData> data(model.mimeData({empty}));
        QVERIFY(payloadTexts(*data).isEmpty());
        QCOMPARE(DatasetPropertiesFieldsModel(nullptr, &fields, {}).rowCount(), 1);
    }

    void padsTagsToTheWidthOfTheCount_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addRow("9 fields") << 9 << u"1"_s << u"9"_s;
        QTest::addRow("10 fields") << 10 << u"01"_s << u"10"_s;
        QTest::addRow("99 fields") << 99 << u"01"_s << u"99"_s;
        QTest::addRow("120 fields") << 120 << u"001"_s << u"120"_s;
    }
    void padsTagsToTheWidthOfTheCount()
    {
        QFETCH(const int, count);
        const DatasetPropertiesFieldsModel model(nullptr, makeFields(count), u"*"_s);
        const QStringList tags = column(model, 2);
        QCOMPARE(tags.size(), count);
        QTEST(tags.first(), "first");
        QTEST(tags.last(), "last");
    }

    void numbersAllFieldsWhateverTheRecord()
    {
        makeFields(120);
        for (int i = 6; i < 9; ++i)
            m_fields.get()->at(i)->record = u"S"_s;
        const DatasetPropertiesFieldsModel model(nullptr, m_fields.get(), u"S"_s);
        QCOMPARE(column(model, 0), (QStringList{u"F7"_s, u"F8"_s, u"F9"_s}));
        QCOMPARE(column(model, 2), (QStringList{u"007"_s, u"008"_s, u"009"_s}));
        for (int i = 0; i < 120; ++i)
            QCOMPARE(m_fields.get()->at(i)->tag, i + 1);
        QCOMPARE(m_fields.get()->size(), 120);
    }

    void keepsFieldsOfExactlyThisRecord_data()
    {
        QTest::addColumn<QString>("record");
        QTest::addColumn<int>("kept");
        QTest::addRow("every record") << u"*"_s << 4;
        QTest::addRow("one record") << u"HH"_s << 1;
        QTest::addRow("other letter case") << u"hh"_s << 1;
        QTest::addRow("blanks count") << u"HH "_s << 0;
        QTest::addRow("no record") << QString() << 1;
        QTest::addRow("no pattern") << u"H*"_s << 0;
    }
    void keepsFieldsOfExactlyThisRecord()
    {
        QFETCH(const QString, record);
        makeFields(4);
        const QStringList records{u"HH"_s, u"hh"_s, QString(), u"*x"_s};
        for (int i = 0; i < 4; ++i)
            m_fields.get()->at(i)->record = records.at(i);
        QTEST(DatasetPropertiesFieldsModel(nullptr, m_fields.get(), record).rowCount(), "kept");
    }

    void showsNameLabelAndTag()
    {
        DatasetPropertiesFieldsModel model(nullptr, makeFields(10), u"*"_s);
        QCOMPARE(model.index(1, 0).data(), QVariant(u"F2"_s));
        QCOMPARE(model.index(1, 1).data(), QVariant(u"Field 2"_s));
        QCOMPARE(model.index(1, 2).data(), QVariant(u"02"_s));
        QVERIFY(!model.index(1, 3).data().isValid());
        QVERIFY(!model.getItemData(m_fields.get()->first(), -1).isValid());
        for (const int role : {int(Qt::EditRole), int(Qt::ToolTipRole), int(Qt::CheckStateRole),
                               int(Qt::TextAlignmentRole), int(Qt::UserRole)})
            QVERIFY(!model.index(1, 0).data(role).isValid());
    }

    void showsTheTypeAsAnIcon_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("image");
        QTest::addRow("STRING") << u"STRING"_s << u"string"_s;
        QTest::addRow("REAL") << u"REAL"_s << u"realnumber"_s;
        QTest::addRow("INTEGER") << u"INTEGER"_s << u"integernumber"_s;
        QTest::addRow("lower case is unknown") << u"string"_s << u"numberplaceholder"_s;
        QTest::addRow("blanks make it unknown") << u" REAL"_s << u"numberplaceholder"_s;
        QTest::addRow("none") << QString() << u"numberplaceholder"_s;
    }
    void showsTheTypeAsAnIcon()
    {
        QFETCH(const QString, type);
        QFETCH(const QString, image);
        makeFields(1)->first()->setFieldType(type);
        DatasetPropertiesFieldsModel model(nullptr, m_fields.get(), u"*"_s);
        QCOMPARE(iconFile(model.index(0, 0).data(Qt::DecorationRole)),
                 u":/icons/res/icons/48px-%1.png"_s.arg(image));
        QVERIFY(!model.index(0, 1).data(Qt::DecorationRole).isValid());
        QVERIFY(!model.index(0, 2).data(Qt::DecorationRole).isValid());
    }

    void namesItsColumnsWithoutTranslation()
    {
        const ContextTranslator translator;
        const DatasetPropertiesFieldsModel model(nullptr, makeFields(1), u"*"_s);
        QCOMPARE(model.headerData(0, Qt::Horizontal), QVariant(u"Field"_s));
        QCOMPARE(model.headerData(1, Qt::Horizontal), QVariant(u"Label"_s));
        QCOMPARE(model.headerData(2, Qt::Horizontal), QVariant(u"Tag"_s));
        QVERIFY(!model.headerData(3, Qt::Horizontal).isValid());
        QVERIFY(!model.headerData(-1, Qt::Horizontal).isValid());
        QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
        QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
    }

    void itemsCanBeDraggedAndDroppedOnButNotEdited()
    {
        const DatasetPropertiesFieldsModel model(nullptr, makeFields(1), u"*"_s);
        QCOMPARE(model.flags(model.index(0, 0)),
                 Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
        QCOMPARE(model.flags({}), Qt::ItemFlags(Qt::ItemIsDropEnabled));
        QCOMPARE(model.mimeTypes(), QStringList{u"application/vnd.text.list"_s});
        QCOMPARE(model.supportedDropActions(), Qt::CopyAction | Qt::MoveAction);
    }

    void anEditIsAnnouncedButStoresNothing()
    {
        DatasetPropertiesFieldsModel model(nullptr, makeFields(2), u"*"_s);
        const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const QModelIndex cell = model.index(1, 0);
        QVERIFY(model.setData(cell, u"other"_s, Qt::EditRole));
        QVERIFY(model.setData(cell, u"other"_s, Qt::DisplayRole));
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed.first().at(0).toModelIndex(), cell);
        QCOMPARE(changed.first().at(1).toModelIndex(), cell);
        QVERIFY(changed.first().at(2).value<QList<int>>().isEmpty());
        QCOMPARE(cell.data(), QVariant(u"F2"_s));
    }

    void refusesEditsOutsideTheTable()
    {
        DatasetPropertiesFieldsModel model(nullptr, makeFields(1), u"*"_s);
        const QStringListModel other({u"text"_s});
        const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        QVERIFY(!model.setData({}, 1));
        QVERIFY(!model.setData(other.index(0), 1));
        QVERIFY(!model.data(other.index(0)).isValid());
        QVERIFY(changed.isEmpty());
    }

    void readsCategories_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("read");
        QTest::addRow("none") << QString() << QStringList();
        QTest::addRow("three, the last without a label")
            << u"1 Male\t2 Female\t9"_s << QStringList{u"1|Male"_s, u"2|Female"_s, u"9|"_s};
        QTest::addRow("trailing tabs add nothing") << u"1 Male\t\t"_s << QStringList{u"1|Male"_s};
        QTest::addRow("tabs alone") << u"\t\t"_s << QStringList();
        QTest::addRow("two blanks between") << u"1  Male"_s << QStringList{u"1|Male"_s};
        QTest::addRow("blanks inside are kept") << u"1 Not  at all "_s << QStringList{u"1|Not  at all"_s};
        QTest::addRow("a blank first leaves no code") << u" 1 Male"_s << QStringList{u"|1 Male"_s};
        QTest::addRow("a blank alone") << u" "_s << QStringList{u"|"_s};
        QTest::addRow("other white space is cut off the code") << u"\n1 Male\r"_s << QStringList{u"1|Male"_s};
        QTest::addRow("no blank, no label") << u"1\u00a0Male"_s << QStringList{u"1\u00a0Male|"_s};
    }
    void readsCategories()
    {
        QFETCH(const QString, text);
        TDcSourceField field;
        field.categories = text;
        QTEST(categoriesOf(field), "read");
    }

    void logsEachCategory()
    {
        TDcSourceField field;
        field.categories = u"1 Male\t9"_s;
        debugLines().clear();
        const auto before = qInstallMessageHandler(keepDebugLine);
        (void)categoriesOf(field);
        qInstallMessageHandler(before);
        QCOMPARE(debugLines(), (QStringList{u"\"1\" \"Male\""_s, u"\"9\" \"\""_s}));
    }

    void dragsEveryProperty()
    {
        TDcSourceField &field = *makeFields(3)->at(1);
        field.setFieldType(u"INTEGER"_s);
        field.setDataProviderType(u"file"_s);
        field.label = u"Años \"x\""_s;
        field.categories = u"1 Male\t2 Female"_s;
        field.relativePosition = 4;
        field.decimals = 2;
        field.size = 12;
        field.missing = u"99"_s;
        field.notApp = u"98"_s;
        DatasetPropertiesFieldsModel model(nullptr, m_fields.get(), u"*"_s);
        const std::unique_ptr<QMimeData> data(model.mimeData({model.index(1, 0)}));
        QCOMPARE(data->formats(), QStringList{u"application/vnd.text.list"_s});
        const QJsonObject male{{u"codigoCategoria"_s, u"1"_s}, {u"nombreCategoria"_s, u"Male"_s}};
        const QJsonObject female{{u"codigoCategoria"_s, u"2"_s}, {u"nombreCategoria"_s, u"Female"_s}};
        const QJsonObject expected{{u"name"_s, u"F2"_s},
                                   {u"label"_s, u"Años \"x\""_s},
                                   {u"tag"_s, 2},
                                   {u"categories"_s, QJsonArray{male, female}},
                                   {u"fieldType"_s, u"INTEGER"_s},
                                   {u"fieldRangeMin"_s, u"1"_s},
                                   {u"fieldRangeMax"_s, u"9"_s},
                                   {u"fieldRelativePosition"_s, 4},
                                   {u"fieldDecimals"_s, 2},
                                   {u"fieldSize"_s, 12},
                                   {u"fieldMissing"_s, u"99"_s},
                                   {u"fieldNotApp"_s, u"98"_s},
                                   {u"dataProviderType"_s, u"file"_s}};
        const QString text = QString::fromUtf8(QJsonDocument(expected).toJson(QJsonDocument::Indented));
        QCOMPARE(data->data(payloadType()), payloadBytes({text}));
    }

    void dragsEmptyCategoriesAsAnEmptyList()
    {
        DatasetPropertiesFieldsModel model(nullptr, makeFields(1), u"*"_s);
        const std::unique_ptr<QMimeData> data(model.mimeData({model.index(0, 0)}));
        const QJsonObject object =
            QJsonDocument::fromJson(payloadTexts(*data).constFirst().toUtf8()).object();
        QVERIFY(object[u"categories"].isArray());
        QVERIFY(object[u"categories"].toArray().isEmpty());
    }

    void dragsOneTextForEachIndexInTheirOrder()
    {
        DatasetPropertiesFieldsModel model(nullptr, makeFields(2), u"*"_s);
        const QStringListModel other({u"text"_s});
        const std::unique_ptr<QMimeData> data(
            model.mimeData({model.index(1, 0), QModelIndex(), model.index(0, 0), other.index(0),
                            model.index(0, 1), model.index(0, 2)}));
        const QStringList texts = payloadTexts(*data);
        QCOMPARE(texts.size(), 4);
        QVERIFY(texts.at(0).contains(u"F2"));
        QVERIFY(texts.at(1).contains(u"F1"));
        QCOMPARE(texts.at(2), texts.at(1)); // The same row in another column.
        QCOMPARE(texts.at(3), texts.at(1));
    }

    void dragsNothingAsAnEmptyPayload()
    {
        const DatasetPropertiesFieldsModel model(nullptr, makeFields(1), u"*"_s);
        const std::unique_ptr<QMimeData> data(model.mimeData({}));
        QVERIFY(data->hasFormat(payloadType()));
        QVERIFY(data->data(payloadType()).isEmpty());
    }

    void worksInAView()
    {
        DatasetPropertiesFieldsModel model(nullptr, makeFields(200), u"*"_s);
        QTableView view;
        view.setModel(&model);
        view.setDragEnabled(true);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.setCurrentIndex(model.index(0, 0));
        QTest::keyClick(&view, Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(view.currentIndex().row(), 199);
        QCOMPARE(view.selectionModel()->selectedIndexes().size(), 3);
        QTest::keyClick(&view, Qt::Key_F2); // No field can be edited.
        QVERIFY(!view.viewport()->findChild<QWidget *>());
        const std::unique_ptr<QMimeData> data(model.mimeData(view.selectionModel()->selectedIndexes()));
        QCOMPARE(payloadTexts(*data).size(), 3);
    }
};

QTEST_MAIN(TestDatasetPropertiesFieldsModel)
#include "tst_datasetpropertiesfieldsmodel.moc"
