#include "ConnectionTableModel.h"

#include "ConnectionManager.h"

#include <QDebug>

ConnectionTableModel::ConnectionTableModel(QObject* parent)
    : QAbstractTableModel(parent)
{
    for (const Connection& connection : ConnectionManager::getInstance()->listConnections())
        m_table << rowFor(connection);
    connect(ConnectionManager::getInstance(), &ConnectionManager::updateConnections, this, &ConnectionTableModel::refresh);
}

QString ConnectionTableModel::typeName(int type)
{
    switch (type) {
    case VMWare: return QStringLiteral("VMWare");
    case VNC: return QStringLiteral("VNC");
    case Citrix: return QStringLiteral("Citrix");
    case RDP: return QStringLiteral("RDP");
    case Browser: return tr("Browser");
    case Teams: return QStringLiteral("Teams");
    case Putty: return QStringLiteral("PuTTY");
    default: return {};
    }
}

QVector<QString> ConnectionTableModel::rowFor(const Connection& connection)
{
    return {connection.getConnectionName(), typeName(connection.getInt(QStringLiteral("type"))), connection.getAddress(),
            connection.autoConnect() ? QStringLiteral("true") : QStringLiteral("false"), QString()};
}

void ConnectionTableModel::refresh()
{
    qDebug() << "updating connections in connection table model";
    QVector<QVector<QString>> table;
    for (const Connection& connection : ConnectionManager::getInstance()->listConnections())
        table << rowFor(connection);
    // Announced as one inserted row whatever changed: the screens rebind to see the whole table.
    const int oldCount = m_table.size();
    beginInsertRows(QModelIndex(), oldCount, oldCount);
    m_table = table;
    endInsertRows();
    qInfo() << "Connections count" << m_table.size();
}

int ConnectionTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_table.size();
}

int ConnectionTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 5;
}

QVariant ConnectionTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_table.size() || index.column() >= 5)
        return {};
    const QString& cell = m_table.at(index.row()).at(index.column());
    switch (role) {
    case TableDataRole:
    case NameRole:
    case TypeRole:
    case AddressRole:
        return cell;
    case ConnectRole:
        qDebug() << "Connect role";
        return {};
    case AutoConnect:
        return cell == QLatin1String("true");
    default:
        return {};
    }
}

QHash<int, QByteArray> ConnectionTableModel::roleNames() const
{
    return {{TableDataRole, "display"}, {ConnectRole, "connect"}, {AutoConnect, "auto"},
            {NameRole, "name"},         {TypeRole, "type"},       {AddressRole, "address"}};
}

QVariant ConnectionTableModel::headerData(int section, Qt::Orientation orientation, int) const
{
    if (orientation != Qt::Horizontal)
        return {};
    switch (section) {
    case 0: return tr("Name");
    case 1: return tr("Type");
    case 2: return tr("Server Address");
    case 3: return tr("Auto Connect");
    case 4: return tr("Action");
    default: return {};
    }
}
