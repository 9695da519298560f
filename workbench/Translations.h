#pragma once

#include <QString>

/// The translations of the workbench, of the layer and of Qt.
namespace Translations
{
/// Installs those for \a language, a code such as "es" or "de_AT", or for the system's language when it is
/// empty, in place of those that were installed before. Texts without a translation stay English.
void install(const QString &language);
} // namespace Translations
