// What every class derives from, what it overrides and whether it has a meta-object of its own.
#include "business/Business_Quillon.h"
#include "business/BusinessEntity.h"
#include "business/ProcessDictionaryBusiness.h"
#include "business/RunCreationBusiness.h"
#include "model/SelectionTreeUnit.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "models/CategoryExpressionModel.h"
#include "models/CsvPropertiesModel.h"
#include "models/DatasetPropertiesFieldsModel.h"
#include "models/DictionaryTreeModel.h"
#include "models/dictionaryTreeModelDownload.h"
#include "models/EntityExpressionModel.h"
#include "models/EntityModel.h"
#include "models/LookupPropertiesModel.h"
#include "models/SelectionBuilderTreeModel.h"
#include "models/VariableDiccionaryModel.h"
#include "models/VariableExpressionModel.h"
#include "models/VariableModel.h"
#include "models/VariableModelDownStep4.h"
#include "models/VariableModelSplitStep3.h"
#include "models/VariablesDatasetProxyModel.h"
#include "models/VariablesDictionaryProxyModel.h"
#include "models/VariablesProxyModel.h"
#include "models/VariablesProxyModelDownStep4.h"
#include "models/VarRangeDelegate.h"
#include "models/VarRangeModel.h"
#include "models/VarRangeProxyModel.h"
#include "models/VarValueLabelDiccionaryModel.h"
#include "models/VarValueLabelDiccionaryProxyModel.h"
#include "tests/support/ContextTranslator.h"

#include <QMap>
#include <QMetaMethod>
#include <QTest>

#include <cstdint>
#include <cstring>
#include <functional>
#include <type_traits>

#include <dlfcn.h>
#include <link.h>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// Slots of a virtual table, by the name of the operation. A pointer to a virtual member holds the place of
/// its slot in the table, in bytes and plus one.
using Slots = QMap<qsizetype, QString>;

template <typename Member>
qsizetype slotOf(Member member)
{
    static_assert(std::is_member_function_pointer_v<Member>);
    std::uintptr_t place = 0;
    std::memcpy(&place, &member, sizeof place);
    return place % 2 == 1 ? qsizetype((place - 1) / sizeof(void *)) : -1;
}

/// Opens the protected operations of the bases.
struct ItemModel : QAbstractItemModel {
    static Slots slotNames()
    {
        using M = QAbstractItemModel;
        using ModelParent = QModelIndex (M::*)(const QModelIndex &) const;
        return {{slotOf(&M::index), u"index"_s},
                {slotOf(ModelParent(&M::parent)), u"parent"_s},
                {slotOf(&M::sibling), u"sibling"_s},
                {slotOf(&M::rowCount), u"rowCount"_s},
                {slotOf(&M::columnCount), u"columnCount"_s},
                {slotOf(&M::hasChildren), u"hasChildren"_s},
                {slotOf(&M::data), u"data"_s},
                {slotOf(&M::setData), u"setData"_s},
                {slotOf(&M::headerData), u"headerData"_s},
                {slotOf(&M::setHeaderData), u"setHeaderData"_s},
                {slotOf(&M::itemData), u"itemData"_s},
                {slotOf(&M::mimeTypes), u"mimeTypes"_s},
                {slotOf(&M::mimeData), u"mimeData"_s},
                {slotOf(&M::canDropMimeData), u"canDropMimeData"_s},
                {slotOf(&M::dropMimeData), u"dropMimeData"_s},
                {slotOf(&M::supportedDropActions), u"supportedDropActions"_s},
                {slotOf(&M::insertRows), u"insertRows"_s},
                {slotOf(&M::removeRows), u"removeRows"_s},
                {slotOf(&M::flags), u"flags"_s},
                {slotOf(&M::sort), u"sort"_s}};
    }
};

struct Proxy : QSortFilterProxyModel {
    static Slots slotNames()
    {
        return {{slotOf(&Proxy::filterAcceptsRow), u"filterAcceptsRow"_s},
                {slotOf(&Proxy::filterAcceptsColumn), u"filterAcceptsColumn"_s},
                {slotOf(&Proxy::lessThan), u"lessThan"_s}};
    }
};

struct Delegate : QStyledItemDelegate {
    static Slots slotNames()
    {
        return {{slotOf(&Delegate::createEditor), u"createEditor"_s},
                {slotOf(&Delegate::setEditorData), u"setEditorData"_s},
                {slotOf(&Delegate::setModelData), u"setModelData"_s},
                {slotOf(&Delegate::paint), u"paint"_s}};
    }
};

/// A virtual table of Qt's: the slots of a base as it fills them itself, and how many there are.
struct BaseTable {
    const void *const *slots_ = nullptr;
    qsizetype count = 0;
};

BaseTable baseTable(const char *symbol)
{
    void *address = dlsym(RTLD_DEFAULT, symbol);
    Dl_info info{};
    const ElfW(Sym) *entry = nullptr;
    if (!address
        || !dladdr1(address, &info, reinterpret_cast<void **>(const_cast<ElfW(Sym) **>(&entry)),
                    RTLD_DL_SYMENT)
        || !entry)
        return {};
    // Two entries precede the slots: the offset to the top and the type.
    return {static_cast<const void *const *>(address) + 2, qsizetype(entry->st_size / sizeof(void *)) - 2};
}

/// The operations of which \a object has another version than its base, in the order of the table. The meta
/// object's three operations and the two destructors come first in every table and are left out.
QStringList overridden(const QObject &object, const BaseTable &base, const Slots &names)
{
    constexpr qsizetype firstOperation = 5;
    const void *const *own = nullptr;
    std::memcpy(&own, static_cast<const void *>(&object), sizeof own);
    QStringList operations;
    for (qsizetype slot = firstOperation; slot < base.count; ++slot) {
        if (own[slot] != base.slots_[slot])
            operations += names.value(slot, u"slot %1"_s.arg(slot));
    }
    return operations;
}

/// Signals, slots, properties and other methods that \a meta adds to what it inherits.
QStringList ownMembers(const QMetaObject &meta)
{
    QStringList members;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const QString kind = method.methodType() == QMetaMethod::Signal ? u"signal "_s : u"method "_s;
        members += kind + QString::fromLatin1(method.methodSignature());
    }
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        members += u"property "_s + QString::fromLatin1(meta.property(i).name());
    return members;
}

/// What the classes are built on.
struct Things {
    TDcEntity entity;
    TDcVariable variable;
    SelectionTreeUnit unit;
    QList<TDcEntity *> entities;
    QList<TDcVariable *> variables;
    QList<ValueLabelElement *> labels;
    QList<TDcSourceField *> fields;
    QList<TDcLookup *> lookups;
};

using Make = std::function<std::unique_ptr<QObject>(Things &)>;

enum Meta { Own, None };
} // namespace

Q_DECLARE_METATYPE(Make)

class TestClassTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheTables_data()
    {
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<int>("named");
        QTest::addRow("item model") << u"_ZTV18QAbstractItemModel"_s << int(ItemModel::slotNames().size());
        QTest::addRow("proxy") << u"_ZTV21QSortFilterProxyModel"_s << int(Proxy::slotNames().size());
        QTest::addRow("delegate") << u"_ZTV19QStyledItemDelegate"_s << int(Delegate::slotNames().size());
    }
    void findsTheTables()
    {
        QFETCH(QString, symbol);
        QFETCH(int, named);
        const BaseTable table = baseTable(symbol.toLatin1().constData());
        QVERIFY(table.slots_);
        QVERIFY(table.count > 5 + named);
    }

    /// The check itself: it must see what Qt's own classes override.
    void seesOverriddenOperations()
    {
        struct Overriding : QSortFilterProxyModel {
            [[nodiscard]] bool lessThan(const QModelIndex &, const QModelIndex &) const override
            {
                return false;
            }
            void sort(int, Qt::SortOrder) override { }
        };
        const BaseTable base = baseTable("_ZTV21QSortFilterProxyModel");
        QCOMPARE(overridden(QSortFilterProxyModel(), base, Proxy::slotNames()), QStringList());
        Slots names = Proxy::slotNames();
        names.insert(ItemModel::slotNames());
        QCOMPARE(overridden(Overriding(), base, names), (QStringList{u"sort"_s, u"lessThan"_s}));
        QVERIFY(!names.contains(-1));
    }

    void keepsTheTable_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("base");
        QTest::addColumn<bool>("hasMetaObject");
        QTest::addColumn<QString>("operations");
        QTest::addColumn<QStringList>("members");

        const auto row = [](const char *name, const char *base, Meta meta, const char *operations,
                            const Make &make, const QStringList &members = {}) {
            QTest::addRow("%s", name) << make << QString::fromLatin1(base) << (meta == Own)
                                      << QString::fromLatin1(operations) << members;
        };
        const char *item = "QAbstractItemModel";
        const char *proxy = "QSortFilterProxyModel";
        const char *tree = "index parent rowCount columnCount data setData headerData flags";
        const char *flat = tree; // The editors and the check lists override the same.
        const char *expression =
            "index parent rowCount columnCount data setData mimeTypes supportedDropActions "
            "insertRows removeRows flags";
        const char *dragged = "index parent rowCount columnCount data setData mimeTypes mimeData "
                              "supportedDropActions flags";
        const char *filter = "filterAcceptsRow lessThan";
        const auto itemMode = eEntityShowMode();

#define MAKE(...)                                                                                            \
    [=](Things &t) -> std::unique_ptr<QObject> {                                                             \
        Q_UNUSED(t)                                                                                          \
        return std::make_unique < __VA_ARGS__;                                                               \
    }
        row("DictionaryTreeModel", item, Own, tree, MAKE(DictionaryTreeModel > (nullptr, &t.entity)));
        row("dictionaryTreeModelDownload", item, Own, tree,
            MAKE(dictionaryTreeModelDownload > (nullptr, &t.entity)));
        row("EntityModel", item, None, tree, MAKE(EntityModel > (nullptr, &t.entity)));
        row("SelectionBuilderTreeModel", item, Own, "index parent rowCount columnCount data flags",
            MAKE(SelectionBuilderTreeModel > (nullptr, &t.unit, true, true)));
        row("CategoryExpressionModel", item, Own,
            "index parent rowCount columnCount data setData removeRows flags",
            MAKE(CategoryExpressionModel > (nullptr, &t.labels, itemMode)));
        row("EntityExpressionModel", item, Own, expression,
            MAKE(EntityExpressionModel > (nullptr, &t.entities, itemMode)));
        row("VariableExpressionModel", item, Own, expression,
            MAKE(VariableExpressionModel > (nullptr, &t.variables, itemMode)));
        row("VariableDiccionaryModel", item, Own,
            "index parent rowCount columnCount data setData headerData mimeTypes mimeData dropMimeData "
            "supportedDropActions flags",
            MAKE(VariableDiccionaryModel > (nullptr, &t.entity, &t.entity)),
            {u"signal signalVariablesModified()"_s, u"signal signalVariableDropped()"_s});
        row("VarValueLabelDiccionaryModel", item, Own, flat,
            MAKE(VarValueLabelDiccionaryModel > (nullptr, &t.variable)),
            {u"signal editedItem(ValueLabelElement*)"_s});
        row("VarRangeModel", item, None, flat, MAKE(VarRangeModel > (nullptr, &t.variable)));
        row("VariableModel", item, None, flat, MAKE(VariableModel > (nullptr, &t.entity, &t.variables)));
        row("VariableModelSplitStep3", item, None, flat,
            MAKE(VariableModelSplitStep3 > (nullptr, &t.entity, &t.variables)));
        row("VariableModelDownStep4", item, None, flat,
            MAKE(VariableModelDownStep4 > (nullptr, &t.entity, &t.variables)));
        row("CsvPropertiesModel", item, None, dragged, MAKE(CsvPropertiesModel > (nullptr, &t.fields)));
        row("LookupPropertiesModel", item, None, dragged,
            MAKE(LookupPropertiesModel > (nullptr, &t.lookups)));
        row("DatasetPropertiesFieldsModel", item, None,
            "index parent rowCount columnCount data setData headerData mimeTypes mimeData "
            "supportedDropActions "
            "flags",
            MAKE(DatasetPropertiesFieldsModel > (nullptr, &t.fields, u"*"_s)));
        row("VarRangeProxyModel", proxy, Own, filter, MAKE(VarRangeProxyModel > (nullptr)));
        row("VarValueLabelDiccionaryProxyModel", proxy, Own, filter,
            MAKE(VarValueLabelDiccionaryProxyModel > (nullptr)));
        row("VariablesProxyModel", proxy, Own, filter, MAKE(VariablesProxyModel > (nullptr)));
        row("VariablesDatasetProxyModel", proxy, Own, filter, MAKE(VariablesDatasetProxyModel > (nullptr)));
        row("VariablesDictionaryProxyModel", proxy, Own, filter,
            MAKE(VariablesDictionaryProxyModel > (nullptr)));
        row("VariablesProxyModelDownStep4", proxy, Own, filter,
            MAKE(VariablesProxyModelDownStep4 > (nullptr)));
        row("VarRangeDelegate", "QStyledItemDelegate", Own, "createEditor setEditorData setModelData",
            MAKE(VarRangeDelegate > (&t.variable, nullptr)));
#undef MAKE
    }
    void keepsTheTable()
    {
        QFETCH(Make, make);
        QFETCH(QString, base);
        QFETCH(bool, hasMetaObject);
        QFETCH(QString, operations);
        QFETCH(QStringList, members);
        const QString name = QString::fromLatin1(QTest::currentDataTag());

        Things things;
        const std::unique_ptr<QObject> object = make(things);
        const QMetaObject *meta = object->metaObject();
        QCOMPARE(QString::fromLatin1(meta->className()), hasMetaObject ? name : base);
        if (hasMetaObject) {
            QCOMPARE(QString::fromLatin1(meta->superClass()->className()), base);
            QCOMPARE(ownMembers(*meta), members);
        }

        // A class translates in its own context; one without a meta-object translates nothing, or it would be
        // in the context of its base.
        const ContextTranslator translator;
        QCOMPARE(meta->tr("text", nullptr), QString::fromLatin1(meta->className()) + u":text"_s);
        if (const auto *model = qobject_cast<QAbstractItemModel *>(object.get())) {
            for (int section = 0; section < model->columnCount(); ++section) {
                const QString title = model->headerData(section, Qt::Horizontal).toString();
                QVERIFY2(!title.contains(u':') || (hasMetaObject && title.startsWith(name + u':')),
                         qPrintable(title));
            }
        }

        const QByteArray symbol = "_ZTV" + QByteArray::number(base.size()) + base.toLatin1();
        const BaseTable table = baseTable(symbol.constData());
        QVERIFY(table.slots_);
        Slots names = base == u"QStyledItemDelegate" ? Delegate::slotNames() : ItemModel::slotNames();
        if (base == u"QSortFilterProxyModel")
            names.insert(Proxy::slotNames());
        QCOMPARE(overridden(*object, table, names).join(u' '), operations);
    }

    void leavesServicesPlain()
    {
        static_assert(!std::is_base_of_v<QObject, BusinessEntity>);
        static_assert(!std::is_base_of_v<QObject, ProcessDictionaryBusiness>);
        static_assert(!std::is_base_of_v<QObject, RunCreationBusiness>);
        static_assert(std::is_empty_v<Business_Quillon>);
        QVERIFY(!std::is_polymorphic_v<Business_Quillon>);
    }
};

QTEST_MAIN(TestClassTable)
#include "tst_classtable.moc"
