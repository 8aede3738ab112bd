#pragma once

#include "Connection.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QWebSocket>

#include <functional>

class APICollectorThread;
class HeartbeatWorker;
class QJSEngine;
class QQmlEngine;
class QThread;
class QTimer;

// The terminal's agent towards the management server: one WebSocket session, answers to the
// server's requests, and the terminal's own reports (catalogue, settings, help, remote assistance).
class APIManager : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool connected READ isConnected NOTIFY connectionStateChanged)
public:
    static constexpr const char* kVersion = "1.2.16";
    static constexpr const char* kTunnelProgram = "/opt/norbix/tools/tunnel";
    static constexpr const char* kLocalVncServer = "127.0.0.1:5900";

    // The operations of the updater and the certificate store that server requests reach. They
    // live in other subsystems; start-up plugs them in. An unset one leaves its request a no-op
    // ("uploadCertificate" then fails).
    struct Services {
        std::function<void(const QString& type, const QString& version)> update;
        std::function<void(const QString& type, const QString& version)> updateSystem;
        std::function<void(const QString& name)> removeCertificate;
        std::function<void()> cleanCertificates;
        std::function<bool(const QString& name, const QString& cert, const QString& pass)> addCertificateFromServer;
        // Settings the server pushes into subsystems above the agent (logging, updater).
        std::function<void(bool enabled)> setDebugEnabled;
        std::function<void(bool enabled)> setAutoUpdateEnabled;
    };

    // The session's clocks; tests shorten them.
    struct Timing {
        int reconnectMs = 30000;
        int watchdogMs = 10000;
        int silenceMs = 60000;
    };

    static APIManager* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    Q_INVOKABLE void receiveMessage(const QString& message);
    Q_INVOKABLE QString getId();
    Q_INVOKABLE void setId(QString string);
    Q_INVOKABLE bool isEnabled();
    Q_INVOKABLE QString getUrl();
    Q_INVOKABLE void setManaged(int managed);
    Q_INVOKABLE void setManagedUrl(const QString& url);
    Q_INVOKABLE bool isConnected() const;
    Q_INVOKABLE QString createId();
    Q_INVOKABLE void needHelp();
    Q_INVOKABLE void rejectConnection(int messageId);
    Q_INVOKABLE void timeoutConnection(int messageId);
    Q_INVOKABLE void acceptConnection(int messageId, const QString& token, const QString& port);
    Q_INVOKABLE void syncTime();
    Q_INVOKABLE void setVNCPassword(const QString& password);
    Q_INVOKABLE bool isAdvancedEnabled();
    Q_INVOKABLE void setAdvancedEnabled(bool enabled);
    Q_INVOKABLE QString getAccount();
    Q_INVOKABLE void setAccount(const QString& account);
    Q_INVOKABLE QString getVersion() const { return QLatin1String(kVersion); }

    // Called once by start-up: identity, heartbeat, session, watchdog, collector.
    void init(QString uuid, QString system);
    // Stops the heartbeat and the settings collector before the application goes away.
    void shutdown();
    void updateConnections(const QList<Connection>& connections);
    void updateSettings();
    void sendData(const QString& action, const QJsonObject& data);
    void sendArray(const QString& action, const QJsonArray& data);
    void sendResponse(const QString& text);
    void makeRequest(const QString& action);
    // One message of the server: answered (or not) per its action. Needs no socket.
    void handleRequest(const QString& text);

    static void setServices(const Services& services);
    void setTiming(const Timing& timing) { m_timing = timing; }
    // Where frames go instead of the socket (tests).
    void setTransport(std::function<void(const QString&)> transport) { m_transport = std::move(transport); }
    QJsonObject lastSettings() const { return m_lastSettings; }

    // The default "URL": "wss://" + the build's server host + "/api/v1/ws".
    static QString defaultUrl();
    static QString configFile();
    // "norbix-" + the last six hex digits of the first wired adapter in `nmcli device show`.
    static QString parseId(const QByteArray& deviceShow);
    static QByteArray hostsFileContent(const QString& name);
    // The server's host name out of the session URL: scheme, port and path dropped.
    static QString tunnelHost(const QString& url);
    static QStringList tunnelArguments(const QString& host, const QString& port, const QString& token);
    // The VNC server a tunnel carries: kLocalVncServer, or NORBIX_ASSIST_VNC=HOST:PORT (tests and
    // the simulated terminal, where port 5900 may be taken).
    static QString localVncServer();

signals:
    void requestSettingsUpdate(bool shouldEmit);
    void helpNeeded();
    void connectionRequest(int messageId, int type, QString title, QString text, int timeout, QString token, QString port);
    void restartConnection();
    void updated();
    void connectionStateChanged();

private:
    APIManager();
    void ensureConfig();
    void transmit(const QString& text);
    void openSocket();
    void onWatchdogTick();
    void onReconnectTimeout();
    void onRestartConnection();
    void onConnected();
    void onDisconnected();
    void onSocketError(QAbstractSocket::SocketError error);
    void onSettingsCollected(const QJsonObject& document);
    void sendRemoteStatus(int messageId, const QString& status);
    void openTunnel(const QString& token, const QString& port);
    // Handlers whose answer has a body; each returns what goes under "data" (undefined: none).
    QJsonValue handleRemote(const QJsonObject& request, bool* answerNow);
    QJsonValue handleConnections(const QJsonObject& request);
    QJsonValue handleSettings(const QJsonObject& request);
    QJsonValue handleUploadCertificate(const QJsonValue& data);
    void handleUpdate(const QJsonValue& data);
    QJsonObject statusData() const;
    QJsonObject authData();

    QWebSocket m_socket;
    QJsonObject m_lastSettings;
    QString m_uuid;
    QString m_system;
    static APIManager* m_manager;
    bool m_canUpdate = false;
    APICollectorThread* m_collector = nullptr;
    bool m_failed = false;
    QThread* m_heartbeatThread = nullptr;
    HeartbeatWorker* m_heartbeatWorker = nullptr;
    QElapsedTimer m_elapsed;

    QThread* m_collectorThread = nullptr;
    QTimer* m_reconnectTimer = nullptr;
    QTimer* m_watchdog = nullptr;
    Timing m_timing;
    std::function<void(const QString&)> m_transport;
    bool m_applyingPush = false; // the push's own changes are reported once, when it is done
};
