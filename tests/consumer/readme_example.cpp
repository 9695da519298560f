// The example of README.md; check.sh compares the two.
// [example]
#include "business/ProcessDictionaryBusiness.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"

#include <QJsonDocument>
#include <QJsonObject>

QByteArray renameFirstVariable(const QByteArray &text, const QString &name)
{
    const QVariantMap document = QJsonDocument::fromJson(text).object().toVariantMap();
    QList<TDcEntity *> *entities =
        ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(document, 0);
    entities->first()->getVariables()->first()->setName(name);
    QJsonObject written;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(entities->first(), &written);
    qDeleteAll(*entities);
    delete entities;
    return QJsonDocument(written).toJson();
}
// [example]

#include <QTextStream>

/// Converts a document both ways; the exit status says whether what comes out is what must.
int main()
{
    const QByteArray text =
        R"({"entities": [{"name": "PERSON", "variables": [{"name": "AGE", "type": "integer"}]}]})";
    const QByteArray written = renameFirstVariable(text, QStringLiteral("YEARS"));
    const QJsonObject entity = QJsonDocument::fromJson(written).object();
    const QJsonValue variable = entity[QLatin1String("variables")][0];
    const bool right = entity[QLatin1String("name")] == QLatin1String("PERSON")
        && variable[QLatin1String("name")] == QLatin1String("YEARS")
        && variable[QLatin1String("type")] == QLatin1String("integer");
    QTextStream(stdout) << written;
    return right ? 0 : 1;
}
