#include "documents/RunConfigurationFile.h"

#include "business/RunCreationBusiness.h"
#include "documents/internal/ConfigDocument.h"
#include "documents/internal/DictionaryShape.h"
#include "documents/internal/JsonText.h"
#include "model/Config.h"

#include <QJsonObject>
#include <QJsonValue>

RunConfigurationFile::RunConfigurationFile() : m_config(std::make_unique<Config>()) { }

RunConfigurationFile::~RunConfigurationFile() = default;

void RunConfigurationFile::setConfig(std::unique_ptr<Config> config)
{
    m_config = std::move(config);
}

bool RunConfigurationFile::load(const QByteArray &bytes, const std::stop_token &stop)
{
    if (stopped(stop))
        return false;
    const JsonText::Content text = JsonText::read(bytes);
    if (!text.value.isValid())
        return fail(Error::Malformed, text.problem);
    if (text.value.typeId() != QMetaType::QVariantMap)
        return fail(Error::NoRoot, tr("There is no run configuration."));
    if (stopped(stop))
        return false;
    const QVariantMap map = text.value.toMap();
    if (DictionaryShape::isNoRunConfiguration(map))
        return fail(Error::NoRoot, tr("This is a dictionary, not a run configuration."));
    m_config.reset(RunCreationBusiness().recorrerNodosEntitiesJsonYCargaEstructuraConfig(map));
    ConfigDocument::remember(*m_config, map);
    m_byteOrderMark = text.style.byteOrderMark;
    m_indented = text.style.indented;
    return true;
}

QByteArray RunConfigurationFile::content() const
{
    QJsonObject json = RunCreationBusiness().exportConfigToJson(m_config.get()).object();
    ConfigDocument::restore(*m_config, json);
    return JsonText::write(json, {.byteOrderMark = m_byteOrderMark, .indented = m_indented});
}

bool RunConfigurationFile::isSecret() const
{
    return !m_config->getDataBase()->getPassword().isEmpty();
}
