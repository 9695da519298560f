#include "model/OwnedList.h"
#include "model/ValueLabelElement.h"
#include "models/CsvPropertiesModel.h"
#include "models/DatasetPropertiesFieldsModel.h"
#include "models/LookupPropertiesModel.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/VariableTable.h"

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

/// Drops as a whole: which are taken, what is announced, and drops through a view.
class TestVariableDrop : public QObject, VariableTable
{
    Q_OBJECT

    QStringList m_announced;

private Q_SLOTS:
    void init() { makeTable(); }
    void cleanup() { clearTable(); }

    // Which drops are taken

    void ignoresTheIgnoreAction()
    {
        const QSignalSpy dropped(m_model.get(), &VariableDiccionaryModel::signalVariableDropped);
        const auto data = makePayload({fieldText(u"NEW"_s)});
        QVERIFY(m_model->dropMimeData(data.get(), Qt::IgnoreAction, -1, -1, {}));
        QVERIFY(m_model->dropMimeData(nullptr, Qt::IgnoreAction, -1, 3, {}));
        QCOMPARE(names(), (QStringList{u"AGE"_s, u"SEX"_s}));
        QVERIFY(dropped.isEmpty());
    }

    void refusesOtherFormats()
    {
        QMimeData text;
        text.setText(fieldText(u"NEW"_s));
        QVERIFY(!m_model->dropMimeData(&text, Qt::CopyAction, -1, -1, {}));
        QVERIFY(!m_model->dropMimeData(nullptr, Qt::CopyAction, -1, -1, {}));
        QCOMPARE(variables().size(), 2);
    }

    void refusesColumnsBesideTheFirst()
    {
        const QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
        const auto data = makePayload({fieldText(u"NEW"_s)});
        for (const int column : {1, 2, 4, 99})
            QVERIFY(!m_model->dropMimeData(data.get(), Qt::CopyAction, -1, column, {}));
        QCOMPARE(variables().size(), 2);
        QVERIFY(reset.isEmpty());
    }

    void takesEveryPlaceButAppends_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<bool>("onACell");
        QTest::addColumn<int>("action");
        QTest::addRow("empty area") << -1 << -1 << false << int(Qt::CopyAction);
        QTest::addRow("above the first row") << 0 << 0 << false << int(Qt::MoveAction);
        QTest::addRow("on a cell") << -1 << -1 << true << int(Qt::CopyAction);
        QTest::addRow("linked") << 1 << 0 << false << int(Qt::LinkAction);
    }
    void takesEveryPlaceButAppends()
    {
        QFETCH(const int, row);
        QFETCH(const int, column);
        QFETCH(const bool, onACell);
        QFETCH(const int, action);
        const auto data = makePayload({fieldText(u"NEW"_s)});
        const QModelIndex parent = onACell ? m_model->index(0, 3) : QModelIndex();
        QVERIFY(m_model->dropMimeData(data.get(), Qt::DropAction(action), row, column, parent));
        QCOMPARE(names(), (QStringList{u"AGE"_s, u"SEX"_s, u"NEW"_s}));
    }

    void announcesDropsEditsAndTheReset()
    {
        m_announced.clear();
        connect(m_model.get(), &VariableDiccionaryModel::signalVariableDropped, this,
                [this] { m_announced += u"dropped"_s; });
        connect(m_model.get(), &VariableDiccionaryModel::signalVariablesModified, this,
                [this] { m_announced += u"modified %1"_s.arg(names().constLast()); });
        connect(m_model.get(), &QAbstractItemModel::modelAboutToBeReset, this,
                [this] { m_announced += u"%1 rows"_s.arg(m_model->rowCount()); });
        connect(m_model.get(), &QAbstractItemModel::modelReset, this,
                [this] { m_announced += u"%1 rows"_s.arg(m_model->rowCount()); });
        QVERIFY(drop({fieldText(u"A"_s), fieldText(u"B"_s), fieldText(u"A"_s)}));
        QCOMPARE(m_announced,
                 (QStringList{u"dropped"_s, u"dropped"_s, u"modified A"_s, u"modified B"_s, u"2 rows"_s,
                              u"4 rows"_s}));
        QCOMPARE(m_model->index(3, 0).internalPointer(), variables().at(3));
    }

    void anEmptyPayloadOnlyResets()
    {
        const QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
        const QSignalSpy modified(m_model.get(), &VariableDiccionaryModel::signalVariablesModified);
        QVERIFY(drop({}));
        QCOMPARE(reset.size(), 1);
        QVERIFY(modified.isEmpty());
        QCOMPARE(variables().size(), 2);
    }

    void equalTextsMakeOneVariable()
    {
        const MessageBoxAnswer box; // For boxes that ought not to open.
        QVERIFY(drop({fieldText(u"A"_s), fieldText(u"A"_s), fieldText(u"B"_s), fieldText(u"A"_s)}));
        QCOMPARE(names(), (QStringList{u"AGE"_s, u"SEX"_s, u"A"_s, u"B"_s}));
        QCOMPARE(tags(), (QList<int>{7, 0, 8, 9})); // Dropped texts take no number.
    }

    void corruptPayloadsMakeOneNamelessVariable()
    {
        QByteArray bytes = payloadBytes({fieldText(u"NEW"_s)});
        bytes += QByteArray::fromHex("00000007 7ffffffe ffff");
        const auto data = makePayload(bytes);
        QVERIFY(m_model->dropMimeData(data.get(), Qt::CopyAction, -1, -1, {}));
        QCOMPARE(names(), (QStringList{u"AGE"_s, u"SEX"_s, u"NEW"_s, QString()}));
    }

    // Lookups

    void refusesLookupsOfAnEntityThatIsNotSelectable()
    {
        const MessageBoxAnswer box({u"OK"_s});
        const QSignalSpy dropped(m_model.get(), &VariableDiccionaryModel::signalVariableDropped);
        QVERIFY(
            drop({fieldText(u"A"_s), lookupText(u"<b>12</b>"_s), fieldText(u"B"_s), lookupText(u"13"_s)}));
        QCOMPARE(names(), (QStringList{u"AGE"_s, u"SEX"_s, u"A"_s, u"B"_s}));
        QCOMPARE(tags(), (QList<int>{7, 0, 8, 10})); // The refused one leaves its number unused.
        QCOMPARE(dropped.size(), 4);
        QCOMPARE(box.texts(),
                 (QStringList{u"Error creating <b>12</b>. Must be selectable entity."_s,
                              u"Error creating 13. Must be selectable entity."_s}));
        const ShownBox &shown = box.shown().first();
        QCOMPARE(shown.format, Qt::PlainText); // A name is no markup.
        QCOMPARE(shown.buttons, QStringList{u"OK"_s});
        QVERIFY(shown.modal);
        QVERIFY(!shown.hasParent);
    }

    void takesLookupsOfASelectableEntity()
    {
        m_person->setSelectable(true);
        const MessageBoxAnswer box;
        QVERIFY(drop({lookupText(u"12"_s)}));
        QCOMPARE(names().constLast(), u"12"_s);
        QVERIFY(box.shown().isEmpty());
    }

    // Slots and event loops that change things meanwhile

    void seesVariablesThatSlotsAdd()
    {
        connect(m_model.get(), &VariableDiccionaryModel::signalVariablesModified, this, [this] {
            if (names().constLast() == u"A")
                m_person->addVariables(makeVariable(u"B"_s));
        });
        QVERIFY(drop({fieldText(u"A"_s, u"x"_s), fieldText(u"B"_s, u"x"_s)}));
        QCOMPARE(names(), (QStringList{u"AGE"_s, u"SEX"_s, u"A"_s, u"B"_s, u"B_A"_s}));
    }

    void seesNamesThatSlotsGiveNewVariables()
    {
        connect(m_model.get(), &VariableDiccionaryModel::signalVariablesModified, this,
                [this] { variables().last()->setName(names().constLast().toUpper()); });
        const MessageBoxAnswer box({u"Rename"_s});
        QVERIFY(drop({fieldText(u"b"_s), fieldText(u"B"_s), fieldText(u"b"_s, u"x"_s)}));
        QCOMPARE(box.texts(), QStringList{u"B already exists. Overwrite?"_s});
        QCOMPARE(names(), (QStringList{u"AGE"_s, u"SEX"_s, u"B"_s, u"B_A"_s, u"B"_s}));
    }

    void seesVariablesThatSlotsTakeAway()
    {
        connect(m_model.get(), &VariableDiccionaryModel::signalVariablesModified, this, [this] {
            if (names().constFirst() == u"AGE")
                delete variables().takeFirst();
        });
        const MessageBoxAnswer box;
        QVERIFY(drop({fieldText(u"A"_s), fieldText(u"AGE"_s)}));
        QVERIFY(box.shown().isEmpty());
        QCOMPARE(names(), (QStringList{u"SEX"_s, u"A"_s, u"AGE"_s}));
    }

    void countsTagsAfreshWhenSlotsAddVariables()
    {
        connect(m_model.get(), &VariableDiccionaryModel::signalVariableDropped, this, [this] {
            if (variables().size() == 2)
                return m_person->addVariables(makeVariable(u"X"_s));
            m_person->addVariables(makeVariable(u"Y"_s));
            variables().last()->setTag(100);
        });
        QVERIFY(drop({fieldText(u"A"_s), fieldText(u"B"_s)}));
        QCOMPARE(tags(), (QList<int>{7, 0, 0, 100, 8, 102}));
    }

    void survivesTheLossOfTheVariableToOverwrite()
    {
        const MessageBoxAnswer box({u"Overwrite"_s});
        QTimer::singleShot(0, this, [this] { delete variables().takeFirst(); });
        QVERIFY(drop({fieldText(u"AGE"_s), fieldText(u"AGE"_s, u"x"_s)}));
        QCOMPARE(names(), (QStringList{u"SEX"_s, u"AGE"_s, u"AGE_A"_s}));
    }

    void survivesTheEndOfTheModel_data()
    {
        QTest::addColumn<QString>("when");
        for (const QString &when : {u"dropped"_s, u"modified"_s, u"box"_s, u"refusal"_s})
            QTest::addRow("%s", qPrintable(when)) << when;
    }
    void survivesTheEndOfTheModel()
    {
        QFETCH(const QString, when);
        const auto end = [this] { m_model.reset(); };
        if (when == u"dropped")
            connect(m_model.get(), &VariableDiccionaryModel::signalVariableDropped, this, end);
        else if (when == u"modified")
            connect(m_model.get(), &VariableDiccionaryModel::signalVariablesModified, this, end);
        else
            QTimer::singleShot(0, this, end);
        const MessageBoxAnswer box({when == u"box" ? u"Overwrite"_s : u"OK"_s});
        QStringList texts{fieldText(u"NEW"_s), fieldText(when == u"box" ? u"AGE"_s : u"B"_s)};
        if (when == u"refusal")
            texts.prepend(lookupText(u"12"_s));
        QVERIFY(drop(texts));
        const bool added = when == u"modified" || when == u"box"; // NEW, before it ended.
        QCOMPARE(names(),
                 (QStringList{u"AGE"_s, u"SEX"_s} + (added ? QStringList{u"NEW"_s} : QStringList())));
        QVERIFY(!m_model);
    }

    // Through a view

    void takesDropsThroughAView_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("imported");
        QTest::addRow("dataset") << u"dataset"_s
                                 << QStringList{u"HH|AGE|Age of head|INTEGER|8|0|10|3|1=Young,2=Old"_s,
                                                u"SEX_A||Sex|STRING|9|0|0|0|"_s};
        QTest::addRow("text file") << u"csv"_s << QStringList{u"HH|AGE|||8|2|1|0|"_s, u"SEX_A||||9|2|1|0|"_s};
        QTest::addRow("lookups") << u"lookup"_s
                                 << QStringList{u"12||Regions|STRING|8|0|0|64|"_s,
                                                u"13|||STRING|9|0|0|64|"_s};
    }
    void takesDropsThroughAView()
    {
        QFETCH(const QString, source);
        QFETCH(const QStringList, imported);
        OwnedList<TDcSourceField> fields;
        fields.append(makeField(u"HH_AGE"_s, u"INTEGER"_s, u"1"_s, u"9"_s));
        fields.get()->first()->label = u"Age of head"_s;
        fields.get()->first()->size = 3;
        fields.get()->first()->categories = u"1 Young\t2 Old"_s;
        fields.append(makeField(u"SEX"_s, u"STRING"_s));
        fields.get()->last()->label = u"Sex"_s;
        OwnedList<TDcLookup> lookups;
        for (const QString &id : {u"12"_s, u"13"_s}) {
            lookups.append(new TDcLookup);
            lookups.get()->last()->setId(id);
        }
        lookups.get()->first()->setLabel(u"Regions"_s);
        m_person->setSelectable(true);
        std::unique_ptr<QAbstractItemModel> from;
        if (source == u"dataset")
            from = std::make_unique<DatasetPropertiesFieldsModel>(nullptr, fields.get(), u"*"_s);
        else if (source == u"csv")
            from = std::make_unique<CsvPropertiesModel>(nullptr, fields.get());
        else
            from = std::make_unique<LookupPropertiesModel>(nullptr, lookups.get());

        QTableView sourceView;
        sourceView.setModel(from.get());
        sourceView.setSelectionBehavior(QAbstractItemView::SelectRows);
        sourceView.selectAll(); // Whole rows: each field is dragged once for every column.
        const std::unique_ptr<QMimeData> data(from->mimeData(sourceView.selectionModel()->selectedIndexes()));

        QTableView view;
        view.setModel(m_model.get());
        view.setAcceptDrops(true);
        view.setDragDropMode(QAbstractItemView::DropOnly);
        view.resize(600, 400);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QPoint emptyArea = view.viewport()->rect().center() + QPoint(0, 100);
        QVERIFY(!view.indexAt(emptyArea).isValid());
        // SEX is equal in all four texts only when it comes from a text file, without a label.
        const MessageBoxAnswer box({u"Rename"_s});
        sendDrop(view, emptyArea, *data);
        QCOMPARE(box.shown().size(), source == u"csv" ? 1 : 0);

        QCOMPARE(view.model()->rowCount(), 4);
        QStringList lines;
        for (const TDcVariable *variable : variables().sliced(2)) {
            QStringList categories;
            for (const ValueLabelElement *element : std::as_const(*variable->getValueLabelElementList()))
                categories += element->getValue() + u'=' + element->getLabel();
            lines += QStringList{variable->getName(),
                                 variable->getAlias(),
                                 variable->getLabel(),
                                 variable->getVarType(),
                                 QString::number(variable->getTag()),
                                 QString::number(variable->getNotappl()),
                                 QString::number(variable->getMissing()),
                                 QString::number(variable->getSize()),
                                 categories.join(u',')}
                         .join(u'|');
        }
        QCOMPARE(lines, imported);
    }

    void dropsOnACellAreTakenThroughAView()
    {
        QTableView view;
        view.setModel(m_model.get());
        view.setAcceptDrops(true);
        view.setDragDropMode(QAbstractItemView::DropOnly);
        view.resize(600, 400);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const auto data = makePayload({fieldText(u"NEW"_s)});
        sendDrop(view, view.visualRect(m_model->index(0, 2)).center(), *data);
        QCOMPARE(names(), (QStringList{u"AGE"_s, u"SEX"_s, u"NEW"_s}));
    }

    void otherDragsAreNotTakenThroughAView()
    {
        QTableView view;
        view.setModel(m_model.get());
        view.setAcceptDrops(true);
        view.setDragDropMode(QAbstractItemView::DropOnly);
        view.show();
        QMimeData text;
        text.setText(u"text"_s);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &enter);
        QVERIFY(!enter.isAccepted());
    }

private:
    static void sendDrop(QAbstractItemView &view, QPoint place, QMimeData &data)
    {
        QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDragMoveEvent move(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &move);
        QVERIFY(move.isAccepted());
        QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &drop);
        QVERIFY(drop.isAccepted());
    }
};

QTEST_MAIN(TestVariableDrop)
#include "tst_variabledrop.moc"
