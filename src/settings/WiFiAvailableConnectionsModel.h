#pragma once

#include "NetworkManager.h"

#include <QAbstractTableModel>

// Wi-Fi networks in range, as the last scan left them (each refresh asks for a new scan).
class WiFiAvailableConnectionsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Roles { NameRole = Qt::UserRole + 2, StrengthRole, SecurityRole };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE bool isSecured(int row) const;
    Q_INVOKABLE QString getName(int row) const;
    Q_INVOKABLE void updateData();

private:
    QList<NetworkManager::AvailableNetwork> m_networks;
};
