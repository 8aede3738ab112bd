#include "VNCPasswordBackend.h"

#include "ConnectionManager.h"

#include <QDebug>

bool VNCPasswordBackend::needsPrompt(const Connection& record)
{
    return record.getTypeValue() == VNC && record.get(QStringLiteral("password")).isEmpty();
}

bool VNCPasswordBackend::needsPrompt(int index)
{
    return needsPrompt(ConnectionManager::getInstance()->getConnection(index));
}

Connection VNCPasswordBackend::withPassword(Connection record, const QString& password)
{
    record.add(QStringLiteral("password"), password);
    return record;
}

bool VNCPasswordBackend::connect(int index, const QString& password)
{
    const Connection record = ConnectionManager::getInstance()->getConnection(index);
    if (record.getTypeValue() != VNC || password.isEmpty())
        return false;
    qInfo().noquote() << "Starting VNC connection with a typed password:" << record.getConnectionName();
    return ConnectionManager::launch(withPassword(record, password));
}
