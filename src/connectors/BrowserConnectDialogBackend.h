#pragma once

#include "ConnectDialogBackend.h"

#include <QMap>

class BrowserConnectDialogBackend : public ConnectDialogBackend {
    Q_OBJECT
public:
    using ConnectDialogBackend::ConnectDialogBackend;

    Q_INVOKABLE bool addConnection(const QString& name, const QString& site);
    Q_INVOKABLE bool replaceConnection(int index, const QString& name, const QString& site);
    Q_INVOKABLE void setFlag(const QString& key, bool value) { m_flags.insert(key, value); }
    Q_INVOKABLE bool getFlag(const QString& key) const { return m_connection.getBool(key); }

    Connection buildRecord(const QString& name, const QString& site) const;
    static QStringList keys();

private:
    QMap<QString, bool> m_flags;
};
