#include "USBManager.h"

#include "CommandRunner.h"
#include "SettingsChange.h"
#include "SystemPaths.h"
#include "UsbParsers.h"

#include <QDebug>
#include <QFile>

bool USBManager::isUsbEnabled()
{
    return QFile::exists(SystemPaths::resolve(QStringLiteral("/lib/udev/rules.d/99-media-automount.rules")));
}

void USBManager::setUsbEnabled(bool enabled)
{
    qInfo().nospace().noquote() << "Set USB enabled " << enabled;
    const QString script = enabled ? QStringLiteral("/opt/norbix/tools/usb/usb_enable.sh")
                                   : QStringLiteral("/opt/norbix/tools/usb/usb_disable.sh");
    const CommandResult result = CommandRunner::instance().run(QStringLiteral("sudo"), {script});
    if (!result.finished || result.exitCode != 0)
        qWarning() << script << "failed:" << result.exitCode << result.standardError.trimmed();
    SettingsChange::report();
}

QStringList USBManager::listUsbNames()
{
    QStringList names;
    for (const UsbParsers::UsbDevice& device : UsbParsers::parseLsusb(CommandRunner::instance().run(QStringLiteral("lsusb"), {}).standardOutput))
        names << device.name;
    return names;
}

QStringList USBManager::listUsbDescriptors()
{
    QStringList descriptors;
    for (const UsbParsers::UsbDevice& device : UsbParsers::parseLsusb(CommandRunner::instance().run(QStringLiteral("lsusb"), {}).standardOutput))
        descriptors << device.descriptor;
    return descriptors;
}
