#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

/// Keeps the settings and journals of a test in a folder of its own, which goes with it.
class IsolatedSettings
{
public:
    IsolatedSettings()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Quillon"));
        QCoreApplication::setApplicationName(QStringLiteral("test"));
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.path()));
    }

private:
    QTemporaryDir m_folder;
};
