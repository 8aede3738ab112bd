#include "CitrixConnectDialogBackend.h"

#include "ConnectionManager.h"

#include <QDebug>

Connection CitrixConnectDialogBackend::buildRecord(const QString& name, const QString& server, bool remember,
                                                   const QString& username, const QString& password, const QString& desktop,
                                                   const QString& resource, QStringList* keys)
{
    const Connection record = Connection::withFields(Citrix, {{"name", name}, {"address", server}, {"username", username},
                                                              {"password", password}, {"desktop", desktop}, {"resource", resource}});
    *keys = QStringList{QStringLiteral("name"), QStringLiteral("address"), QStringLiteral("desktop"),
                        QStringLiteral("resource"), QStringLiteral("protocol"), QStringLiteral("domain")};
    // Credentials reach the file only when the user asked to remember them.
    if (remember)
        *keys << QStringLiteral("username") << QStringLiteral("password");
    return record;
}

bool CitrixConnectDialogBackend::addConnection(const QString& name, const QString& server, bool remember,
                                               const QString& username, const QString& password, const QString& desktop,
                                               const QString& resource)
{
    QStringList keys;
    const Connection record = buildRecord(name, server, remember, username, password, desktop, resource, &keys);
    ConnectionManager::getInstance()->saveConnection(record, keys);
    qInfo().noquote() << QStringLiteral("Citrix connection ") + name + QStringLiteral(" added");
    return true;
}

bool CitrixConnectDialogBackend::updateConnection(int index, const QString& name, const QString& server, bool remember,
                                                  const QString& username, const QString& password,
                                                  const QString& desktop, const QString& resource)
{
    QStringList keys;
    const Connection record = buildRecord(name, server, remember, username, password, desktop, resource, &keys);
    ConnectionManager::getInstance()->replaceConnection(index, record, keys);
    qInfo().noquote() << QStringLiteral("Citrix connection ") + name + QStringLiteral(" changed");
    return true;
}
