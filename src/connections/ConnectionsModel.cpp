#include "ConnectionsModel.h"

#include "ConnectionManager.h"

ConnectionsModel::ConnectionsModel(QObject* parent)
    : QAbstractListModel(parent)
{
    fillData();
    connect(ConnectionManager::getInstance(), &ConnectionManager::updateConnections, this, &ConnectionsModel::fillData);
}

void ConnectionsModel::fillData()
{
    beginResetModel();
    m_data = ConnectionManager::getInstance()->listConnectionNames();
    endResetModel();
}

int ConnectionsModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return m_loadAll ? m_data.size() : qMin(m_data.size(), kPartialRows);
}

QVariant ConnectionsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != TitleRole || index.row() >= m_data.size())
        return {};
    return m_data.at(index.row());
}

bool ConnectionsModel::setData(const QModelIndex&, const QVariant&, int)
{
    return true;
}

QHash<int, QByteArray> ConnectionsModel::roleNames() const
{
    return {{TitleRole, "name"}};
}

void ConnectionsModel::loadAll()
{
    m_loadAll = true;
    fillData();
}

void ConnectionsModel::loadPartial()
{
    m_loadAll = false;
    fillData();
}
