#pragma once

#include "documents/internal/Keys.h"
#include "model/Config.h"

/// The keys of run configurations as files keep them.
namespace Keys
{
/// A folder or file: the layer writes it with "/" only.
template <auto get>
constexpr Key<ConfigDb> path(QLatin1StringView name)
{
    Key<ConfigDb> key = text<get>(name);
    key.usual = [](const ConfigDb &, const QVariant &value) {
        return !value.isValid() || (isFilledText(value) && !value.toString().contains(u'\\'));
    };
    return key;
}

inline constexpr Key<ConfigDb> dataBaseKeys[] = {
    textNotWritten<&ConfigDb::getProject>("XXXproject"_L1),
    text<&ConfigDb::getAuthor>("author"_L1),
    textNotWritten<&ConfigDb::getFileFilter>("fileFilter"_L1),
    textNotWritten<&ConfigDb::getFilter>("filter"_L1),
    path<&ConfigDb::getFolder>("folder"_L1),
    text<&ConfigDb::getLabel>("label"_L1),
    text<&ConfigDb::getName>("name"_L1),
    text<&ConfigDb::getPassword>("password"_L1),
    textNotWritten<&ConfigDb::getSelectFilter>("selectFilter"_L1),
    path<&ConfigDb::getSourceFile>("sourceFile"_L1),
};

inline constexpr Key<ConfigOptions> optionKeys[] = {
    flag<&ConfigOptions::getCreateNoRanges>("createNoRanges"_L1),
    flag<&ConfigOptions::getCreateNotAppMissingInRange>("createNotAppMissingInRange"_L1),
};

inline constexpr Key<ConfigEntities> configEntityKeys[] = {
    flag<&ConfigEntities::getAllVariables>("allVariables"_L1),
    flagUnless<&ConfigEntities::getCheckSequence, true>("checkSequence"_L1),
    flagUnless<&ConfigEntities::getCreateSDC>("createSDC"_L1),
    flagNotWritten<&ConfigEntities::getCheckDelete>("delete"_L1),
    text<&ConfigEntities::getName>("name"_L1),
    text<&ConfigEntities::getRecType>("recType"_L1),
    flagNotWritten<&ConfigEntities::getCheckSelectable>("selectable"_L1),
    {.name = "variables"_L1},
};

inline constexpr Key<Config> configKeys[] = {
    {.name = "database"_L1},
    {.name = "entities"_L1},
    {.name = "options"_L1},
    // A constant that no object holds.
    {.name = "type"_L1,
     .usual = [](const Config &,
                 const QVariant &value) { return isText(value) && value.toString() == "config"_L1; },
     .holds = [](const Config &, const QVariant &) { return true; }},
};

static_assert(ascends(dataBaseKeys) && ascends(optionKeys) && ascends(configEntityKeys)
              && ascends(configKeys));
} // namespace Keys
