#include "WiFiAvailableConnectionsModel.h"

int WiFiAvailableConnectionsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_networks.size();
}

int WiFiAvailableConnectionsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 3;
}

QVariant WiFiAvailableConnectionsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const NetworkManager::AvailableNetwork& network = m_networks.at(index.row());
    if (role == Qt::DisplayRole)
        role = NameRole + index.column();
    switch (role) {
    case NameRole:
        return network.ssid;
    case StrengthRole:
        return network.strength;
    case SecurityRole:
        return network.security;
    default:
        return {};
    }
}

QHash<int, QByteArray> WiFiAvailableConnectionsModel::roleNames() const
{
    return {{NameRole, "name"}, {StrengthRole, "strength"}, {SecurityRole, "security"}};
}

bool WiFiAvailableConnectionsModel::isSecured(int row) const
{
    return row >= 0 && row < m_networks.size() && m_networks.at(row).security;
}

QString WiFiAvailableConnectionsModel::getName(int row) const
{
    return row >= 0 && row < m_networks.size() ? m_networks.at(row).ssid : QString();
}

void WiFiAvailableConnectionsModel::updateData()
{
    NetworkManager manager;
    NetworkManager::requestScan();
    const QList<NetworkManager::AvailableNetwork> networks = manager.listNetworks();
    beginResetModel();
    m_networks = networks;
    endResetModel();
}
