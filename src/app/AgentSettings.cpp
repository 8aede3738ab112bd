#include "AgentSettings.h"

#include "APIManager.h"
#include "SystemPaths.h"

#include <QSettings>

namespace AgentSettings {

QString terminalId()
{
    return APIManager::getInstance()->getId();
}

void clearTerminalId()
{
    QSettings settings(SystemPaths::dataFile(QLatin1String(kFile)), QSettings::IniFormat);
    settings.setValue(QLatin1String(kIdKey), QString());
    settings.sync();
}

} // namespace AgentSettings
