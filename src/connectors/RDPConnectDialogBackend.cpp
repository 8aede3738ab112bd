#include "RDPConnectDialogBackend.h"

#include "ConnectionManager.h"
#include "RDPConnector.h"

#include <QDebug>

Connection RDPConnectDialogBackend::buildRecord(const QString& name, const QString& serverAddress, bool remember,
                                                const QString& username, const QString& password, const QString& domain,
                                                QStringList* keys) const
{
    Connection record = Connection::withFields(RDP, {{"name", name}, {"address", serverAddress}, {"username", username},
                                                     {"password", password}, {"domain", domain}});
    *keys = QStringList{QStringLiteral("name"), QStringLiteral("address"), QStringLiteral("domain")};

    QJsonObject data = record.getData();
    for (auto it = m_additionals.begin(); it != m_additionals.end(); ++it) {
        data.insert(it.key(), it.value());
        *keys << it.key();
    }
    for (auto it = m_additionalStrings.begin(); it != m_additionalStrings.end(); ++it) {
        data.insert(it.key(), it.value());
        *keys << it.key();
    }
    record.setData(data);
    if (remember)
        *keys << QStringLiteral("username") << QStringLiteral("password");
    return record;
}

bool RDPConnectDialogBackend::addConnection(const QString& name, const QString& serverAddress, bool remember,
                                            const QString& username, const QString& password, const QString& domain)
{
    QStringList keys;
    const Connection record = buildRecord(name, serverAddress, remember, username, password, domain, &keys);
    ConnectionManager::getInstance()->saveConnection(record, keys);
    qInfo().noquote() << QStringLiteral("RDP connection ") + name + QStringLiteral(" added");
    return true;
}

bool RDPConnectDialogBackend::updateConnectionInFile(int id, const QString& name, const QString& serverAddress, bool remember,
                                                     const QString& username, const QString& password, const QString& domain)
{
    QStringList keys;
    const Connection record = buildRecord(name, serverAddress, remember, username, password, domain, &keys);
    qInfo().noquote() << QStringLiteral("RDP connection ") + name + QStringLiteral(" changed");
    ConnectionManager::getInstance()->replaceConnection(id, record, keys);
    return true;
}

bool RDPConnectDialogBackend::connect(const QString& name, const QString& serverAddress, bool remember,
                                      const QString& username, const QString& password, const QString& domain)
{
    QStringList keys;
    const Connection record = buildRecord(name, serverAddress, remember, username, password, domain, &keys);
    return ConnectionManager::launch(record);
}

bool RDPConnectDialogBackend::connect(int id, const QString& username, const QString& password)
{
    Connection record = ConnectionManager::getInstance()->getConnection(id);
    record.add(QStringLiteral("username"), username);
    record.add(QStringLiteral("password"), password);
    return ConnectionManager::launch(record);
}
