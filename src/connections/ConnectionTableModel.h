#pragma once

#include "Connection.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QVector>

// The settings screen's table of connections: name, type, address, auto-connect, actions.
class ConnectionTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum TableRoles { TableDataRole = Qt::UserRole + 1, ConnectRole, AutoConnect, NameRole, TypeRole, AddressRole };

    explicit ConnectionTableModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    Q_INVOKABLE QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    // The row a record shows as.
    static QVector<QString> rowFor(const Connection& connection);
    // The type column's text ("PuTTY" for Putty, empty for an unknown type).
    static QString typeName(int type);

private:
    void refresh();

    QVector<QVector<QString>> m_table;
};
