#pragma once

#include "ConnectDialogBackend.h"

class CitrixConnectDialogBackend : public ConnectDialogBackend {
    Q_OBJECT
public:
    using ConnectDialogBackend::ConnectDialogBackend;

    Q_INVOKABLE bool addConnection(const QString& name, const QString& server, bool remember, const QString& username,
                                   const QString& password, const QString& desktop, const QString& resource);
    Q_INVOKABLE bool updateConnection(int index, const QString& name, const QString& server, bool remember,
                                      const QString& username, const QString& password, const QString& desktop,
                                      const QString& resource);
    Q_INVOKABLE QString getServer() const { return getAddress(); }
    Q_INVOKABLE QString getResource() const { return m_connection.get(QStringLiteral("resource")); }

    static Connection buildRecord(const QString& name, const QString& server, bool remember, const QString& username,
                                  const QString& password, const QString& desktop, const QString& resource, QStringList* keys);
};
