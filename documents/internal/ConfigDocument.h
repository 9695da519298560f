#pragma once

#include <QVariantMap>

class Config;
class QJsonObject;

/// What a file keeps of a run configuration beside what the layer reads and writes of it.
namespace ConfigDocument
{
/// Puts back what the layer's reader dropped when it read \a config from \a map, and attaches to its parts
/// what they cannot hold.
void remember(Config &config, const QVariantMap &map);

/// Turns \a json, which the layer wrote for \a config, into what the file shall hold.
void restore(const Config &config, QJsonObject &json);
} // namespace ConfigDocument
