#pragma once

#include "ConnectDialogBackend.h"

class PuttyConnectDialogBackend : public ConnectDialogBackend {
    Q_OBJECT
public:
    using ConnectDialogBackend::ConnectDialogBackend;

    Q_INVOKABLE bool addConnection(const QString& name, const QString& site, const QString& username);
    Q_INVOKABLE bool replaceConnection(int index, const QString& name, const QString& site, const QString& username);

    static Connection buildRecord(const QString& name, const QString& site, const QString& username);
    static QStringList keys();
};
