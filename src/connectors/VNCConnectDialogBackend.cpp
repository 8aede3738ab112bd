#include "VNCConnectDialogBackend.h"

#include "ConnectionManager.h"

#include <QDebug>

Connection VNCConnectDialogBackend::buildRecord(const QString& name, const QString& host, const QString& password,
                                                bool fullscreen, bool shrink, int percentage)
{
    Connection record = Connection::withFields(VNC, {{"name", name}, {"address", host}, {"password", password}});
    QJsonObject data = record.getData();
    data.insert(QStringLiteral("fullscreen"), fullscreen);
    data.insert(QStringLiteral("shrink"), shrink);
    data.insert(QStringLiteral("percentage"), percentage);
    record.setData(data);
    return record;
}

QStringList VNCConnectDialogBackend::addKeys(bool save)
{
    QStringList keys{QStringLiteral("name"), QStringLiteral("address"), QStringLiteral("fullscreen"), QStringLiteral("percentage")};
    if (save)
        keys << QStringLiteral("password");
    return keys;
}

QStringList VNCConnectDialogBackend::replaceKeys(bool save)
{
    QStringList keys{QStringLiteral("name"), QStringLiteral("address"), QStringLiteral("fullscreen"), QStringLiteral("shrink"),
                     QStringLiteral("percentage")};
    if (save)
        keys << QStringLiteral("password");
    return keys;
}

bool VNCConnectDialogBackend::addConnection(const QString& name, const QString& host, const QString& password, bool save,
                                            bool fullscreen, bool shrink, int percentage)
{
    ConnectionManager::getInstance()->saveConnection(buildRecord(name, host, password, fullscreen, shrink, percentage), addKeys(save));
    qInfo().noquote() << QStringLiteral("VNC connection ") + name + QStringLiteral(" added");
    return true;
}

bool VNCConnectDialogBackend::replaceConnection(int index, const QString& name, const QString& host, const QString& password,
                                                bool save, bool fullscreen, bool shrink, int percentage)
{
    ConnectionManager::getInstance()->replaceConnection(index, buildRecord(name, host, password, fullscreen, shrink, percentage),
                                                        replaceKeys(save));
    qInfo().noquote() << QStringLiteral("VNC connection ") + name + QStringLiteral(" changed");
    return true;
}

int VNCConnectDialogBackend::getPercentage() const
{
    const int percentage = m_connection.getInt(QStringLiteral("percentage"));
    return percentage == 0 ? 100 : percentage;
}
