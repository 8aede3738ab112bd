#pragma once

#include "ConnectDialogBackend.h"

class VNCConnectDialogBackend : public ConnectDialogBackend {
    Q_OBJECT
public:
    using ConnectDialogBackend::ConnectDialogBackend;

    Q_INVOKABLE bool addConnection(const QString& name, const QString& host, const QString& password, bool save,
                                   bool fullscreen, bool shrink, int percentage);
    Q_INVOKABLE bool replaceConnection(int index, const QString& name, const QString& host, const QString& password,
                                       bool save, bool fullscreen, bool shrink, int percentage);
    Q_INVOKABLE bool isFullscreen() const { return m_connection.getBool(QStringLiteral("fullscreen")); }
    Q_INVOKABLE bool isShrink() const { return m_connection.getBool(QStringLiteral("shrink")); }
    // 100 when the record has none (or 0).
    Q_INVOKABLE int getPercentage() const;

    static Connection buildRecord(const QString& name, const QString& host, const QString& password, bool fullscreen,
                                  bool shrink, int percentage);
    // The stored keys differ on purpose: adding leaves "shrink" out, replacing keeps it.
    static QStringList addKeys(bool save);
    static QStringList replaceKeys(bool save);
};
