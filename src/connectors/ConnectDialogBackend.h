#pragma once

#include "Connection.h"

#include <QObject>

// What every add/edit dialog backend shares: the record loaded for editing and its common fields.
class ConnectDialogBackend : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    Q_INVOKABLE void loadConnection(int index);
    Q_INVOKABLE QString getConnectionName() const { return m_connection.getConnectionName(); }
    Q_INVOKABLE QString getAddress() const { return m_connection.getAddress(); }
    Q_INVOKABLE QString getUsername() const { return m_connection.get(QStringLiteral("username")); }
    Q_INVOKABLE QString getPassword() const { return m_connection.get(QStringLiteral("password")); }
    Q_INVOKABLE QString getDomain() const { return m_connection.get(QStringLiteral("domain")); }
    Q_INVOKABLE QString getDesktop() const { return m_connection.get(QStringLiteral("desktop")); }

protected:
    Connection m_connection;
};
