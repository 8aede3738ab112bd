#include "BrowserConnectDialogBackend.h"

#include "ConnectionManager.h"

#include <QDebug>

QStringList BrowserConnectDialogBackend::keys()
{
    return {QStringLiteral("name"), QStringLiteral("address"), QStringLiteral("kiosk"), QStringLiteral("clearCache")};
}

Connection BrowserConnectDialogBackend::buildRecord(const QString& name, const QString& site) const
{
    Connection record = Connection::withFields(Browser, {{"name", name}, {"address", site}});
    QJsonObject data = record.getData();
    for (auto it = m_flags.begin(); it != m_flags.end(); ++it)
        data.insert(it.key(), it.value());
    record.setData(data);
    return record;
}

bool BrowserConnectDialogBackend::addConnection(const QString& name, const QString& site)
{
    ConnectionManager::getInstance()->saveConnection(buildRecord(name, site), keys());
    qInfo().noquote() << QStringLiteral("Browser connection ") + name + QStringLiteral(" added");
    return true;
}

bool BrowserConnectDialogBackend::replaceConnection(int index, const QString& name, const QString& site)
{
    ConnectionManager::getInstance()->replaceConnection(index, buildRecord(name, site), keys());
    qInfo().noquote() << QStringLiteral("Browser connection ") + name + QStringLiteral(" changed");
    return true;
}
