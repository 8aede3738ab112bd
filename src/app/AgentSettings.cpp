#include "AgentSettings.h"

#include "SystemPaths.h"

#include <QSettings>
#include <QSysInfo>

namespace AgentSettings {

QString terminalId()
{
    const QString id = QSettings(SystemPaths::dataFile(QLatin1String(kFile)), QSettings::IniFormat)
                           .value(QLatin1String(kIdKey))
                           .toString();
    return id.isEmpty() ? QSysInfo::machineHostName() : id;
}

void clearTerminalId()
{
    QSettings settings(SystemPaths::dataFile(QLatin1String(kFile)), QSettings::IniFormat);
    settings.setValue(QLatin1String(kIdKey), QString());
    settings.sync();
}

} // namespace AgentSettings
