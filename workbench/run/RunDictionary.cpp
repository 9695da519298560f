#include "workbench/run/RunDictionary.h"

#include "documents/RunConfigurationFile.h"
#include "model/Config.h"
#include "model/ConfigDb.h"
#include "workbench/FileCommands.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

QString RunDictionary::pathOf(const RunConfigurationFile &run)
{
    // It may come from a system that separates folders differently.
    const QString source = run.config()->getDataBase()->getSourceFile().trimmed().replace(u'\\', u'/');
    if (!FileCommands::isDictionary(source))
        return {};
    const QDir folder = QFileInfo(run.path()).absoluteDir();
    const bool foreign = source.startsWith("//"_L1) || source.mid(1, 2) == ":/"_L1;
    const QString path = foreign ? source : QDir::cleanPath(folder.absoluteFilePath(source));
    const QString beside = folder.absoluteFilePath(source.section(u'/', -1));
    return !QFileInfo::exists(path) && QFileInfo::exists(beside) ? beside : path;
}
