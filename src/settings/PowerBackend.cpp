#include "PowerBackend.h"

#include "CommandRunner.h"

#include <QDebug>

void PowerBackend::shutdown()
{
    qInfo() << "Shutdown system";
    CommandRunner::instance().runCommandLine(QStringLiteral("sudo shutdown -h now"));
}

void PowerBackend::reboot()
{
    qInfo() << "Reboot system";
    CommandRunner::instance().runCommandLine(QStringLiteral("sudo reboot -f"));
}
