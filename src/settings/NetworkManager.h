#pragma once

#include "NetworkParsers.h"

#include <QJsonArray>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

// The wired, 802.1X and Wi-Fi settings of the terminal, through NetworkManager: nmcli (under sudo)
// for almost everything, the system bus for the 802.1X section of the first settings connection.
// Short-lived: every screen and every model call makes its own.
class NetworkManager : public QObject {
    Q_OBJECT
public:
    struct Cert {
        QString path;
        bool asArray = false;
    };
    using AvailableNetwork = NetworkParsers::AvailableNetwork;
    struct StoredNetwork {
        QString ssid;
        bool autoConnect = false;
        bool showForUser = false;
    };

    explicit NetworkManager(QObject* parent = nullptr);

    Q_INVOKABLE QStringList listInterfaces();
    Q_INVOKABLE void update(const QString& iface);
    Q_INVOKABLE int getConnectionType(const QString& iface);

    Q_INVOKABLE void setConnectionType(int type);
    Q_INVOKABLE void setIP(const QString& ip);
    Q_INVOKABLE void setSubnetMask(const QString& mask);
    Q_INVOKABLE void setGateway(const QString& gateway);
    Q_INVOKABLE void setDNS(const QString& dns1, const QString& dns2, const QString& dns3);
    Q_INVOKABLE void setDHCPMode() { m_type = 0; }
    Q_INVOKABLE void setManualMode() { m_type = 1; }
    Q_INVOKABLE bool isManualMode() const { return m_type != 0; }
    Q_INVOKABLE QString getIP() const { return m_ip; }
    Q_INVOKABLE QString getSubnetMask() const { return m_subnet; }
    Q_INVOKABLE QString getGateway() const { return m_gateway; }
    Q_INVOKABLE QString getDNS1() const { return m_dnsList.value(0); }
    Q_INVOKABLE QString getDNS2() const { return m_dnsList.value(1); }
    Q_INVOKABLE QString getDNS3() const { return m_dnsList.value(2); }
    Q_INVOKABLE void apply();
    Q_INVOKABLE QString getEthernetIp();
    Q_INVOKABLE bool isConnected();

    // Form checks for the screens (the same rules apply() relies on).
    Q_INVOKABLE static bool isValidAddress(const QString& address) { return NetworkParsers::isValidIPv4(address); }
    Q_INVOKABLE static bool isValidMask(const QString& mask) { return NetworkParsers::isValidMask(mask); }
    Q_INVOKABLE static bool isValidGateway(const QString& gateway) { return NetworkParsers::isValidGateway(gateway); }
    Q_INVOKABLE static bool isValidHostName(const QString& name) { return NetworkParsers::isValidHostName(name); }

    // 802.1X
    Q_INVOKABLE void initDbus();
    Q_INVOKABLE QString getSetting(const QString& key) const;
    Q_INVOKABLE QString getSecret(const QString& key) const;
    Q_INVOKABLE QString getCert(const QString& key) const;
    Q_INVOKABLE QString getEAP() const;
    Q_INVOKABLE void clearCerts();
    Q_INVOKABLE void setEap(const QString& eap);
    Q_INVOKABLE void setProperty(const QString& key, const QString& value);
    Q_INVOKABLE void markCertForStoring(const QString& key);
    Q_INVOKABLE void set8021xEnabled(bool enabled);
    Q_INVOKABLE QString setCert(const QString& key, bool asArray);
    Q_INVOKABLE QString setCert(const QString& key, bool asArray, const QString& path);
    Q_INVOKABLE void apply8021x();
    // The "802-1x" section apply8021x() would write (after GetSettings), for tests and the log.
    QVariantMap staged8021x() const;

    // Wi-Fi
    Q_INVOKABLE bool isWifiAvailable();
    Q_INVOKABLE bool isWifiEnabled();
    Q_INVOKABLE bool isLocalWifiEnabled() const { return m_wifiEnabled; }
    Q_INVOKABLE void setWifiEnabled(bool enabled);
    QList<AvailableNetwork> listNetworks();
    QList<StoredNetwork> listStoredNetworks();
    Q_INVOKABLE QStringList listUserNetworks();
    Q_INVOKABLE QString getActiveNetworkName();
    Q_INVOKABLE void connectToWifi(const QString& ssid, const QString& password);
    Q_INVOKABLE void reconnectToWifi(const QString& ssid);
    Q_INVOKABLE void disconnectWifi(const QString& ssid);
    Q_INVOKABLE void deleteStoredConnection(const QString& ssid);
    Q_INVOKABLE void setAutoConnect(const QString& ssid, bool on);
    Q_INVOKABLE void setForUser(const QString& ssid, bool on);
    Q_INVOKABLE static void requestScan();
    Q_INVOKABLE void autoConnect();

    QString connectionName() const { return m_connectionName; }

    // networks.json: a missing file reads as empty; an unreadable one too, after it has been kept
    // aside as networks.json.corrupt so that the next write does not lose it unnoticed.
    static QString networksFile();
    static QJsonArray readNetworks();
    static bool writeNetworks(const QJsonArray& networks);

    // The settings connection whose 802.1X section the screens edit.
    static constexpr const char* kSettingsPath = "/org/freedesktop/NetworkManager/Settings/1";

private:
    int m_type = 0;
    QString m_ip;
    QString m_subnet;
    QString m_gateway;
    QStringList m_dnsList;
    QVariantMap m_publicData;
    QVariantMap m_privateData;
    QString m_eapSelected;
    QMap<QString, Cert> m_certs;
    QVariantMap m_valuesToStore;
    QStringList m_certsToStore;
    bool m_8021xenabled = false;
    QStringList m_networks;
    QList<int> m_strengths;
    QString m_connectionName;
    bool m_wifiEnabled = false;
};
