#include "workbench/DictionaryStorage.h"

#include "business/ProcessDictionaryBusiness.h"
#include "model/OwnedList.h"
#include "model/TDcEntity.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

std::unique_ptr<TDcEntity> DictionaryStorage::read(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return {};
    }
    QJsonParseError problem;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll(), &problem).object();
    if (problem.error != QJsonParseError::NoError) {
        *error = problem.errorString();
        return {};
    }
    const bool wrapped =
        object.contains("root"_L1) || (object.contains("entities"_L1) && !object.contains("name"_L1));
    const QVariantMap map =
        wrapped ? object.toVariantMap() : QVariantMap{{u"root"_s, QVariantList{object.toVariantMap()}}};
    OwnedList<TDcEntity> entities;
    if (QList<TDcEntity *> *list =
            ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(map, 0))
        entities.reset(list);
    if (entities.get()->size() != 1) {
        *error = QCoreApplication::translate("DictionaryStorage",
                                             "The file holds no dictionary with one root entity.");
        return {};
    }
    return std::unique_ptr<TDcEntity>(entities.get()->takeFirst());
}

bool DictionaryStorage::write(TDcEntity &root, const QString &path, QString *error)
{
    QJsonObject object;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(&root, &object);
    const QByteArray bytes = QJsonDocument(object).toJson();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        *error = file.errorString();
        return false;
    }
    return true;
}
