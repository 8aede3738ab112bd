#include "PuttyConnector.h"

#include "CommandRunner.h"

PuttyConnector* PuttyConnector::m_connector = nullptr;

PuttyConnector* PuttyConnector::getInstance()
{
    if (!m_connector)
        m_connector = new PuttyConnector;
    return m_connector;
}

bool PuttyConnector::initConnection(const Connection& connection)
{
    const QString address = connection.getAddress();
    const QString username = connection.get(QStringLiteral("username"));
    if (address.isEmpty() || username.isEmpty())
        CommandRunner::instance().startDetached(QStringLiteral("/usr/bin/putty"), {});
    else
        CommandRunner::instance().startDetachedCommandLine(QStringLiteral("/usr/bin/putty -ssh %1@%2").arg(username, address));
    return true;
}
