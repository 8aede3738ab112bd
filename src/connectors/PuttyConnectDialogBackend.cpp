#include "PuttyConnectDialogBackend.h"

#include "ConnectionManager.h"

#include <QDebug>

QStringList PuttyConnectDialogBackend::keys()
{
    return {QStringLiteral("name"), QStringLiteral("address"), QStringLiteral("username")};
}

Connection PuttyConnectDialogBackend::buildRecord(const QString& name, const QString& site, const QString& username)
{
    return Connection::withFields(Putty, {{"name", name}, {"address", site}, {"username", username}});
}

bool PuttyConnectDialogBackend::addConnection(const QString& name, const QString& site, const QString& username)
{
    ConnectionManager::getInstance()->saveConnection(buildRecord(name, site, username), keys());
    qInfo().noquote() << QStringLiteral("PuTTY connection ") + name + QStringLiteral(" added");
    return true;
}

bool PuttyConnectDialogBackend::replaceConnection(int index, const QString& name, const QString& site, const QString& username)
{
    ConnectionManager::getInstance()->replaceConnection(index, buildRecord(name, site, username), keys());
    qInfo().noquote() << QStringLiteral("PuTTY connection ") + name + QStringLiteral(" changed");
    return true;
}
