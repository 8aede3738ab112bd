#pragma once

#include <QAbstractListModel>
#include <QStringList>

// What a plain user may join: approved networks that are in range, the active one marked.
class UserAvailableWifiModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Roles { DisplayTextRole = Qt::UserRole + 1, NameRole, ActiveRole };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE QString getNetworkName(int row) const;
    Q_INVOKABLE void updateData();

private:
    QStringList m_networks;
    QString m_active;
};
