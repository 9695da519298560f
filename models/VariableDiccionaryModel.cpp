#include "models/VariableDiccionaryModel.h"

#include "common/Constants.h"
#include "common/UtilForms.h"
#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "models/internal/Columns.h"
#include "models/internal/ExpressionMatch.h"
#include "models/internal/NameRules.h"

#include <QIcon>
#include <QPointer>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int maxTag = 9999;

enum ColumnNumber { Name, Alias, Label, Group, Tag };

/// Only a tag that is too high is cut: -20000 loses no more than its sign.
void storeTag(TDcVariable &variable, const QVariant &value)
{
    bool isNumber = false;
    const int tag = value.toInt(&isNumber);
    if (!isNumber)
        return;
    if (tag > maxTag)
        variable.setTag(maxTag);
    else
        variable.setTag(std::abs(std::max(tag, -std::numeric_limits<int>::max())));
}

constexpr Column<TDcVariable> columns[] = {
    {QT_TRANSLATE_NOOP("VariableDiccionaryModel", "Name"), valueOf<&TDcVariable::getName>,
     storeText<&TDcVariable::setName>},
    {QT_TRANSLATE_NOOP("VariableDiccionaryModel", "Alias"), valueOf<&TDcVariable::getAlias>,
     storeText<&TDcVariable::setAlias>},
    {QT_TRANSLATE_NOOP("VariableDiccionaryModel", "Label"), valueOf<&TDcVariable::getLabel>,
     storeText<&TDcVariable::setLabel>},
    {QT_TRANSLATE_NOOP("VariableDiccionaryModel", "Group"), valueOf<&TDcVariable::getGroup>,
     storeText<&TDcVariable::setGroup>},
    {QT_TRANSLATE_NOOP("VariableDiccionaryModel", "Tag"), valueOf<&TDcVariable::getTag>, storeTag},
};

constexpr auto aliasTaken =
    QT_TRANSLATE_NOOP("VariableDiccionaryModel", "The value already exists as the alias of a variable.");
constexpr auto nameTaken =
    QT_TRANSLATE_NOOP("VariableDiccionaryModel", "The value already exists as the name of a variable.");

QIcon typeIcon(const QString &type)
{
    if (type == Constants::typeString)
        return QIcon(u":/icons/res/icons/48px-Variable-string.png"_s);
    if (type == Constants::typeInteger)
        return QIcon(u":/icons/res/icons/48px-Variable-integer.png"_s);
    if (type == Constants::typeReal)
        return QIcon(u":/icons/res/icons/48px-Variable-decimal.png"_s);
    if (type == "BOOL"_L1)
        return QIcon(u":/icons/res/icons/48px-Variable-bool.png"_s);
    return QIcon(u":/icons/res/icons/48px-Project-preferences.png"_s);
}
} // namespace

VariableDiccionaryModel::VariableDiccionaryModel(QObject *parent, TDcEntity *entity, TDcEntity *rootEntity)
    : TextListDrag(parent), m_entity(entity), m_rootEntity(rootEntity),
      m_splitterCharacter(Constants::underscore)
{
    beginResetModel();
    m_rows = *m_entity->getVariables();
    endResetModel();
}

QVariant VariableDiccionaryModel::getItemData(TDcVariable *variable, int column) const
{
    return cellValue(columns, variable, column);
}

int VariableDiccionaryModel::columnCount(const QModelIndex &) const
{
    return int(std::size(columns));
}

QVariant VariableDiccionaryModel::data(const QModelIndex &index, int role) const
{
    TDcVariable *variable = itemAt(index);
    if (!variable)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return getItemData(variable, index.column());
    case Qt::TextAlignmentRole: {
        bool isNumber = false;
        (void)getItemData(variable, index.column()).toDouble(&isNumber);
        return isNumber ? int(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    }
    case Qt::DecorationRole:
        return index.column() == Name ? icon(*variable) : QVariant();
    default:
        return {};
    }
}

bool VariableDiccionaryModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    TDcVariable *variable = itemAt(index);
    if (!variable)
        return false;
    const QPointer guard(this); // Questions run an event loop, and slots may end what they hear of.
    if (role == Qt::EditRole) {
        if (!accepts(*variable, index.column(), value.toString()))
            return false;
        const bool store = index.column() != Name || confirmRename(*variable, value.toString());
        if (!guard)
            return false;
        if (store)
            storeCell(columns, *variable, index.column(), value);
    }
    Q_EMIT dataChanged(index, index);
    if (guard)
        Q_EMIT signalVariablesModified();
    return true;
}

QVariant VariableDiccionaryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const char *title = columnTitle(columns, section, orientation, role);
    return title ? tr(title) : QVariant();
}

QMimeData *VariableDiccionaryModel::mimeData(const QModelIndexList &) const
{
    return nullptr;
}

Qt::ItemFlags VariableDiccionaryModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index) | Qt::ItemIsDropEnabled;
    return index.isValid() ? flags | Qt::ItemIsEditable | Qt::ItemIsDragEnabled : flags;
}

/// What the entity uses a variable for shows on texts only; a number shows its type whatever it is used for.
QIcon VariableDiccionaryModel::icon(const TDcVariable &variable) const
{
    const MetadataVariables *metadata = variable.getMetadataVariables();
    if (metadata && metadata->getLookup())
        return QIcon(u":/icons/res/icons/48px-Project-save.png"_s);
    const QString type = variable.getVarType().trimmed().toUpper();
    if (type == Constants::typeString) {
        const QString name = variable.getName().trimmed();
        if (name == m_entity->getRefCode().trimmed())
            return QIcon(u":/icons/res/icons/48px-Entity-code.png"_s);
        if (name == m_entity->getWeightVariable().trimmed())
            return QIcon(u":/icons/res/icons/48px-Entity-weight.png"_s);
        if (name == m_entity->getRefLabel().trimmed())
            return QIcon(u":/icons/res/icons/48px-Entity-label.png"_s);
    }
    return typeIcon(type);
}

bool VariableDiccionaryModel::accepts(const TDcVariable &variable, int column, const QString &text)
{
    switch (column) {
    case Name:
        return acceptsName(variable, text);
    case Alias:
        return isFree(NameRules::firstClash(
            m_validate,
            {{otherTexts(m_dictionaryUtil.getAliasVariableByEntity(m_entity, {}), text), aliasTaken},
             {m_dictionaryUtil.getNamesVariablesByEntities(m_entity, {}), nameTaken}},
            text));
    case Group:
        return isFree(
            NameRules::firstClash(m_validate,
                                  {{m_dictionaryUtil.getNamesEntitiesDictionary(m_rootEntity, {}),
                                    QT_TR_NOOP("The value already exists as a entity name.")},
                                   {m_dictionaryUtil.getAliasVariableByEntity(m_entity, {}), aliasTaken},
                                   {m_dictionaryUtil.getNamesVariablesByEntities(m_entity, {}), nameTaken}},
                                  text));
    default:
        return true;
    }
}

bool VariableDiccionaryModel::acceptsName(const TDcVariable &variable, const QString &text)
{
    const QString name = text.trimmed();
    if (!m_validate.validateEmpty(text))
        return false;
    if (!m_validate.validateStringC(name)) {
        UtilForms::showInfoMessage(tr("Invalid string"));
        return false;
    }
    if (name == variable.getName().trimmed())
        return false;
    return isFree(NameRules::firstClash(
        m_validate,
        {{m_dictionaryUtil.getNamesEntitiesDictionary(m_rootEntity, {}),
          QT_TR_NOOP("The typed character string already exists")},
         // It speaks of an alias; users know it so.
         {otherTexts(m_dictionaryUtil.getNamesVariablesByEntities(m_entity, {}), text),
          QT_TR_NOOP("The typed character string already exists as the alias of a variable")}},
        name));
}

/// Shows \a clash, if there is one.
bool VariableDiccionaryModel::isFree(const char *clash) const
{
    if (clash)
        UtilForms::showErrorMessage(tr(clash));
    return !clash;
}

/// Of \a texts all but the first that \a typed, read as a regular expression, matches as a whole. So a text
/// that just one other variable has is not taken: only one that stands there twice is.
QList<QString> VariableDiccionaryModel::otherTexts(QList<QString> texts, const QString &typed) const
{
    if (const qsizetype match = ExpressionMatch::indexOf(texts, typed); match >= 0)
        texts.removeAt(match);
    return texts;
}

/// Asks what becomes of the entity's reference code if \a variable is that. False if nothing is to be stored.
bool VariableDiccionaryModel::confirmRename(const TDcVariable &variable, const QString &name)
{
    if (variable.getName().trimmed() != m_entity->getRefCode())
        return true;
    const QPointer guard(this);
    const int answer = UtilForms::displayYesNoCancelMessageBox(
        nullptr, tr("RefCode Variable"), tr("Variable identified as RefCode.\nKeep it as RefCode?"));
    if (!guard || answer == UtilForms::CANCELED)
        return false;
    if (answer == UtilForms::NO) {
        m_entity->setRefCode({});
        // Without a code nothing in the entity can be selected.
        preOrder(m_entity, [](TDcEntity *entity) { entity->setSelectable(false); });
    } else {
        m_entity->setRefCode(name);
    }
    return true;
}
