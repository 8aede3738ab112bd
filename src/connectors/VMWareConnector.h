#pragma once

#include "Connection.h"

#include <QObject>
#include <QStringList>

// A read-only view of a VMware Horizon record.
class VMWareConnection {
public:
    explicit VMWareConnection(const Connection& connection) : m_connection(connection) {}
    QString getDomainName() const { return m_connection.get(QStringLiteral("domain")); }
    QString getDesktopName() const { return m_connection.get(QStringLiteral("desktop")); }
    QString getUsername() const { return m_connection.get(QStringLiteral("username")); }
    QString getPassword() const { return m_connection.get(QStringLiteral("password")); }
    QString getProtocol() const { return m_connection.get(QStringLiteral("protocol")); }
    QString getAddress() const { return m_connection.getAddress(); }

private:
    Connection m_connection;
};

// Hands a Horizon record to vmware-view, started detached.
class VMWareConnector : public QObject {
    Q_OBJECT
public:
    static void connect(const Connection& connection);
    static QStringList arguments(const Connection& connection);
};
