#include "USBManager.h"

#include "SystemPaths.h"

#include <QFile>

bool USBManager::isUsbEnabled()
{
    return QFile::exists(SystemPaths::resolve(QStringLiteral("/lib/udev/rules.d/99-media-automount.rules")));
}
