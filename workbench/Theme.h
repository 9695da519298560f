#pragma once

#include <QString>

/// The look of the workbench. Colours come from the application's palette alone, so that a panel fits either
/// theme without knowing it.
namespace Theme
{
/// Sets "light", "dark" or "system", the platform's own. False for any other name, which changes nothing.
bool apply(const QString &name);
} // namespace Theme
