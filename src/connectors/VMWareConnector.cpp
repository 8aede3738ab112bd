#include "VMWareConnector.h"

#include "CommandRunner.h"

QStringList VMWareConnector::arguments(const Connection& connection)
{
    const VMWareConnection horizon(connection);
    QStringList args{QStringLiteral("--serverURL=") + horizon.getAddress(), QStringLiteral("--protocol=") + horizon.getProtocol()};
    if (!horizon.getUsername().isEmpty())
        args << QStringLiteral("--userName=") + horizon.getUsername();
    if (!horizon.getPassword().isEmpty())
        args << QStringLiteral("--password=") + horizon.getPassword();
    if (!horizon.getDesktopName().isEmpty())
        args << QStringLiteral("--desktopName=") + horizon.getDesktopName();
    if (!horizon.getDomainName().isEmpty())
        args << QStringLiteral("--domainName=") + horizon.getDomainName();
    args << QStringLiteral("--allmonitors") << QStringLiteral("--nonInteractive") << QStringLiteral("--usbAutoConnectOnInsert=TRUE")
         << QStringLiteral("--usbAutoConnectAtStartUp=TRUE") << QStringLiteral("--enableMMR");
    return args;
}

void VMWareConnector::connect(const Connection& connection)
{
    CommandRunner::instance().startDetached(QStringLiteral("vmware-view"), arguments(connection));
}
