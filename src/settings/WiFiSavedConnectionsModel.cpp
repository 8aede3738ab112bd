#include "WiFiSavedConnectionsModel.h"

int WiFiSavedConnectionsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_networks.size();
}

int WiFiSavedConnectionsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 4;
}

QVariant WiFiSavedConnectionsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const NetworkManager::StoredNetwork& network = m_networks.at(index.row());
    if (role == Qt::DisplayRole)
        role = NameRole + index.column();
    switch (role) {
    case NameRole:
    case DeleteRole:
        return network.ssid;
    case AutoConnectRole:
        return network.autoConnect;
    case ShowForUserRole:
        return network.showForUser;
    default:
        return {};
    }
}

QHash<int, QByteArray> WiFiSavedConnectionsModel::roleNames() const
{
    return {{NameRole, "name"}, {AutoConnectRole, "autoConnect"}, {ShowForUserRole, "showForUser"}, {DeleteRole, "delete"}};
}

QString WiFiSavedConnectionsModel::getName(int row) const
{
    return row >= 0 && row < m_networks.size() ? m_networks.at(row).ssid : QString();
}

void WiFiSavedConnectionsModel::setAutoConnect(const QString& ssid, bool on)
{
    NetworkManager().setAutoConnect(ssid, on);
    updateData();
}

void WiFiSavedConnectionsModel::setForUser(const QString& ssid, bool on)
{
    NetworkManager().setForUser(ssid, on);
    updateData();
}

void WiFiSavedConnectionsModel::deleteConnection(const QString& ssid)
{
    NetworkManager().deleteStoredConnection(ssid);
    updateData();
}

void WiFiSavedConnectionsModel::updateData()
{
    const QList<NetworkManager::StoredNetwork> networks = NetworkManager().listStoredNetworks();
    beginResetModel();
    m_networks = networks;
    endResetModel();
}
