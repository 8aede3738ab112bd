#include "VMWareConnectDialogBackend.h"

#include "ConnectionManager.h"

#include <QDebug>

Connection VMWareConnectDialogBackend::buildRecord(const QString& name, const QString& serverAddress, const QString& protocol,
                                                   bool remember, const QString& username, const QString& password,
                                                   const QString& domain, const QString& desktop, QStringList* keys)
{
    const Connection record = Connection::withFields(VMWare, {{"name", name}, {"address", serverAddress}, {"protocol", protocol},
                                                              {"username", username}, {"password", password},
                                                              {"domain", domain}, {"desktop", desktop}});
    *keys = QStringList{QStringLiteral("name"), QStringLiteral("address"), QStringLiteral("protocol"), QStringLiteral("domain"),
                        QStringLiteral("desktop")};
    if (remember)
        *keys << QStringLiteral("username") << QStringLiteral("password");
    return record;
}

bool VMWareConnectDialogBackend::addConnection(const QString& name, const QString& serverAddress, const QString& protocol,
                                               bool remember, const QString& username, const QString& password,
                                               const QString& domain, const QString& desktop)
{
    QStringList keys;
    const Connection record = buildRecord(name, serverAddress, protocol, remember, username, password, domain, desktop, &keys);
    ConnectionManager::getInstance()->saveConnection(record, keys);
    qInfo().noquote() << QStringLiteral("VMware connection ") + name + QStringLiteral(" added");
    return true;
}

bool VMWareConnectDialogBackend::replaceConnection(int index, const QString& name, const QString& serverAddress,
                                                   const QString& protocol, bool remember, const QString& username,
                                                   const QString& password, const QString& domain, const QString& desktop)
{
    QStringList keys;
    const Connection record = buildRecord(name, serverAddress, protocol, remember, username, password, domain, desktop, &keys);
    ConnectionManager::getInstance()->replaceConnection(index, record, keys);
    qInfo().noquote() << QStringLiteral("VMware connection ") + name + QStringLiteral(" changed");
    return true;
}
