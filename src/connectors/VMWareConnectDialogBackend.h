#pragma once

#include "ConnectDialogBackend.h"

class VMWareConnectDialogBackend : public ConnectDialogBackend {
    Q_OBJECT
public:
    using ConnectDialogBackend::ConnectDialogBackend;

    Q_INVOKABLE bool addConnection(const QString& name, const QString& serverAddress, const QString& protocol, bool remember,
                                   const QString& username, const QString& password, const QString& domain,
                                   const QString& desktop);
    Q_INVOKABLE bool replaceConnection(int index, const QString& name, const QString& serverAddress, const QString& protocol,
                                       bool remember, const QString& username, const QString& password,
                                       const QString& domain, const QString& desktop);
    Q_INVOKABLE QString getProtocol() const { return m_connection.get(QStringLiteral("protocol")); }

    static Connection buildRecord(const QString& name, const QString& serverAddress, const QString& protocol, bool remember,
                                  const QString& username, const QString& password, const QString& domain,
                                  const QString& desktop, QStringList* keys);
};
