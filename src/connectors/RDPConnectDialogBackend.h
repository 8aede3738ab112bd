#pragma once

#include "ConnectDialogBackend.h"

#include <QMap>
#include <QStringList>

// The RDP add/edit dialog and the RDP login prompt.
class RDPConnectDialogBackend : public ConnectDialogBackend {
    Q_OBJECT
public:
    using ConnectDialogBackend::ConnectDialogBackend;

    Q_INVOKABLE bool addConnection(const QString& name, const QString& serverAddress, bool remember,
                                   const QString& username, const QString& password, const QString& domain);
    Q_INVOKABLE bool connect(const QString& name, const QString& serverAddress, bool remember,
                             const QString& username, const QString& password, const QString& domain);
    Q_INVOKABLE bool connect(int id, const QString& username, const QString& password);
    Q_INVOKABLE bool updateConnectionInFile(int id, const QString& name, const QString& serverAddress, bool remember,
                                            const QString& username, const QString& password, const QString& domain);

    Q_INVOKABLE void setFlag(const QString& key, bool value) { m_additionals.insert(key, value); }
    Q_INVOKABLE void addAdditional(const QString& key, const QString& value) { m_additionalStrings.insert(key, value); }
    Q_INVOKABLE void addIntValue(const QString& key, int value) { m_additionalStrings.insert(key, QString::number(value)); }

    Q_INVOKABLE bool getFullscreen() const { return flag("fullscreen"); }
    Q_INVOKABLE bool isFullscreen() const { return flag("fullscreen"); }
    Q_INVOKABLE bool getMultiscreen() const { return flag("multimon"); }
    Q_INVOKABLE bool isMultiScreen() const { return flag("multimon"); }
    Q_INVOKABLE bool getForwardUsb() const { return flag("usb"); }
    Q_INVOKABLE bool usePrinter() const { return flag("printer"); }
    Q_INVOKABLE bool useSmartCard() const { return flag("smartcard"); }
    Q_INVOKABLE int getPerformance() const { return m_connection.get(QStringLiteral("performance")).toInt(); }
    Q_INVOKABLE QString getAdditionalString(const QString& key) const { return m_connection.get(key); }

    // The record the form describes and the keys of it that are to be stored.
    Connection buildRecord(const QString& name, const QString& serverAddress, bool remember, const QString& username,
                           const QString& password, const QString& domain, QStringList* keys) const;

private:
    bool flag(const char* key) const { return m_connection.getBool(QLatin1String(key)); }

    QMap<QString, bool> m_additionals;
    QMap<QString, QString> m_additionalStrings;
};
