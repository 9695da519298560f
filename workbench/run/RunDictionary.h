#pragma once

#include <QString>

class RunConfigurationFile;

/// The dictionary that a run configuration was made for.
namespace RunDictionary
{
/// Where the dictionary of \a run, which was opened, is; empty when its source file is no dictionary, but
/// data or nothing. A relative path counts from the run's folder. A dictionary that is not where it was but
/// beside the run is taken there: they were moved together.
[[nodiscard]] QString pathOf(const RunConfigurationFile &run);
} // namespace RunDictionary
