#pragma once

#include "NetworkManager.h"

#include <QAbstractTableModel>

// Wi-Fi profiles stored on the terminal with their approval flags from networks.json.
class WiFiSavedConnectionsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Roles { NameRole = Qt::UserRole + 2, AutoConnectRole, ShowForUserRole, DeleteRole };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE QString getName(int row) const;
    Q_INVOKABLE void setAutoConnect(const QString& ssid, bool on);
    Q_INVOKABLE void setForUser(const QString& ssid, bool on);
    Q_INVOKABLE void deleteConnection(const QString& ssid);
    Q_INVOKABLE void updateData();

private:
    QList<NetworkManager::StoredNetwork> m_networks;
};
