#include "model/Config.h"

void Config::setDataBase(ConfigDb *dataBase)
{
    if (dataBase != m_dataBase.get())
        m_dataBase.reset(dataBase);
}

void Config::setOptions(ConfigOptions *options)
{
    if (options != m_options.get())
        m_options.reset(options);
}

void ConfigEntities::setVariables(QList<QString> *variables)
{
    if (!variables)
        m_variables->clear();
    else if (variables != m_variables.get())
        m_variables.reset(variables);
}
