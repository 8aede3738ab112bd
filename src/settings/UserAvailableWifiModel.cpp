#include "UserAvailableWifiModel.h"

#include "NetworkManager.h"

int UserAvailableWifiModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_networks.size();
}

QVariant UserAvailableWifiModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const QString& name = m_networks.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case DisplayTextRole:
    case NameRole:
        return name;
    case ActiveRole:
        return !m_active.isEmpty() && name == m_active;
    default:
        return {};
    }
}

QHash<int, QByteArray> UserAvailableWifiModel::roleNames() const
{
    return {{DisplayTextRole, "display"}, {NameRole, "name"}, {ActiveRole, "active"}};
}

QString UserAvailableWifiModel::getNetworkName(int row) const
{
    return m_networks.value(row);
}

void UserAvailableWifiModel::updateData()
{
    NetworkManager manager;
    const QStringList networks = manager.listUserNetworks();
    const QString active = manager.getActiveNetworkName();
    beginResetModel();
    m_networks = networks;
    m_active = active;
    endResetModel();
}
