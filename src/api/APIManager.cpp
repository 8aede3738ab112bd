#include "APIManager.h"
#include "AssistanceTunnels.h"

#include "APICollectorThread.h"
#include "AtomicFile.h"
#include "CommandRunner.h"
#include "ConnectionManager.h"
#include "ConnectionWire.h"
#include "HardwareUtils.h"
#include "HeartbeatWorker.h"
#include "JsonText.h"
#include "NetworkParsers.h"
#include "PasswordManager.h"
#include "QmlSingleton.h"
#include "SettingsPush.h"
#include "SystemLoad.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>
#include <QSettings>
#include <QThread>
#include <QTimer>

#ifndef NORBIX_MANAGEMENT_HOST
#define NORBIX_MANAGEMENT_HOST "management.norbix.local"
#endif

APIManager* APIManager::m_manager = nullptr;

namespace {

const QString kUrl = QStringLiteral("URL");
const QString kEnabled = QStringLiteral("Enabled");
const QString kId = QStringLiteral("Id");
const QString kAdvanced = QStringLiteral("AdvancedEnabled");
const QString kAccount = QStringLiteral("Account");
const QString kAction = QStringLiteral("action");
const QString kData = QStringLiteral("data");

APIManager::Services& services()
{
    static APIManager::Services instance;
    return instance;
}

QSettings config()
{
    return QSettings(APIManager::configFile(), QSettings::IniFormat);
}

QString compact(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString compact(const QJsonArray& array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

// Text of a request field; numbers are taken too, since some servers send ports as numbers.
QString text(const QJsonValue& value)
{
    if (value.isDouble())
        return QString::number(value.toDouble(), 'f', 0);
    return value.toString();
}

void runSudo(const QStringList& arguments)
{
    CommandRunner::instance().run(QStringLiteral("sudo"), arguments);
}

} // namespace

APIManager::APIManager()
{
    // Every local change of the catalogue ends up on the server.
    ConnectionManager::setChangeReporter([this](const QList<Connection>& list) { updateConnections(list); });
}

APIManager* APIManager::getInstance()
{
    if (!m_manager)
        m_manager = new APIManager;
    return m_manager;
}

QObject* APIManager::qmlInstance(QQmlEngine*, QJSEngine*)
{
    return qmlSingleton<APIManager>();
}

void APIManager::setServices(const Services& newServices)
{
    services() = newServices;
}

QString APIManager::defaultUrl()
{
    return QStringLiteral("wss://") + QStringLiteral(NORBIX_MANAGEMENT_HOST) + QStringLiteral("/api/v1/ws");
}

QString APIManager::configFile()
{
    return SystemPaths::dataFile(QStringLiteral("api.ini"));
}

// --- configuration ----------------------------------------------------------------------------

void APIManager::ensureConfig()
{
    if (QFile::exists(configFile()))
        return;
    QSettings settings = config();
    settings.setValue(kUrl, defaultUrl());
    settings.setValue(kEnabled, false);
}

bool APIManager::isEnabled()
{
    ensureConfig();
    return config().value(kEnabled, false).toBool();
}

QString APIManager::getUrl()
{
    ensureConfig();
    return config().value(kUrl, defaultUrl()).toString();
}

void APIManager::setManaged(int managed)
{
    const bool enabled = managed == 1;
    config().setValue(kEnabled, enabled);
    qInfo().noquote() << "Set managed to " + QString::fromLatin1(enabled ? "true" : "false");
    emit restartConnection();
}

void APIManager::setManagedUrl(const QString& url)
{
    config().setValue(kUrl, url);
    qInfo().noquote() << "Set managed URL " + url;
    emit restartConnection();
}

bool APIManager::isAdvancedEnabled()
{
    return config().value(kAdvanced, false).toBool();
}

void APIManager::setAdvancedEnabled(bool enabled)
{
    config().setValue(kAdvanced, enabled);
    updateSettings();
}

QString APIManager::getAccount()
{
    return config().value(kAccount).toString();
}

void APIManager::setAccount(const QString& account)
{
    config().setValue(kAccount, account);
    emit restartConnection();
}

// --- identity ---------------------------------------------------------------------------------

QString APIManager::parseId(const QByteArray& deviceShow)
{
    QString suffix;
    bool wired = false;
    for (const QByteArray& raw : deviceShow.split('\n')) {
        const QString line = QString::fromLocal8Bit(raw);
        if (line.contains(QLatin1String("ethernet")))
            wired = true;
        if (wired && line.startsWith(QLatin1String("GENERAL.HWADDR"))) {
            const int at = line.indexOf(QLatin1String("R:"));
            suffix = line.mid(at + 2).simplified().remove(QLatin1Char(':')).mid(6);
            break;
        }
    }
    return QStringLiteral("norbix-") + suffix;
}

QString APIManager::createId()
{
    return parseId(CommandRunner::instance().run(QStringLiteral("nmcli"), {QStringLiteral("device"), QStringLiteral("show")}).standardOutput);
}

QString APIManager::getId()
{
    const QString id = config().value(kId).toString();
    return id.isEmpty() ? createId() : id;
}

QByteArray APIManager::hostsFileContent(const QString& name)
{
    return "127.0.0.1 view-localhost\n"
           "127.0.0.1 localhost\n"
           "127.0.1.1 " + name.toUtf8() + "\n"
           "\n"
           "::1 localhost ip6-localhost ip6-loopback\n"
           "ff02::1 ip6-allnodes\n"
           "ff02::2 ip6-allroutes\n";
}

void APIManager::setId(QString string)
{
    if (string.isEmpty())
        string = createId();
    // The name ends up in /etc/hosts and /etc/hostname: refuse anything that is not one host name label.
    if (!NetworkParsers::isValidHostName(string)) {
        qWarning().noquote() << "Computer name refused, not a host name: " + string;
        return;
    }
    config().setValue(kId, string);
    const CommandResult hostname = CommandRunner::instance().run(QStringLiteral("sudo"), {QStringLiteral("hostname"), string});
    AtomicFile::write(SystemPaths::dataFile(QStringLiteral("hosts")), hostsFileContent(string));
    runSudo({QStringLiteral("cp"), QStringLiteral("-f"), QStringLiteral("/data/norbix/hosts"), QStringLiteral("/etc/hosts")});
    AtomicFile::write(SystemPaths::dataFile(QStringLiteral("hostname")), string.toUtf8());
    runSudo({QStringLiteral("cp"), QStringLiteral("-f"), QStringLiteral("/data/norbix/hostname"), QStringLiteral("/etc/hostname")});
    qInfo().noquote() << "Set computer ID " + string << QString::fromUtf8(hostname.standardError).trimmed()
                      << QString::fromUtf8(hostname.standardOutput).trimmed();
}

// --- session ----------------------------------------------------------------------------------

void APIManager::init(QString uuid, QString system)
{
    m_uuid = uuid;
    m_system = system;
    m_canUpdate = false;
    m_elapsed.restart();

    if (!m_heartbeatThread) {
        m_heartbeatThread = new QThread;
        m_heartbeatWorker = new HeartbeatWorker;
        m_heartbeatWorker->moveToThread(m_heartbeatThread);
        connect(m_heartbeatThread, &QThread::started, m_heartbeatWorker, &HeartbeatWorker::run);
        m_heartbeatThread->start(QThread::InheritPriority);
    }

    connect(&m_socket, &QWebSocket::sslErrors, this, [this](const QList<QSslError>&) { m_socket.ignoreSslErrors(); },
            Qt::UniqueConnection);
    qInfo() << "Starting websocket";

    if (!m_reconnectTimer) {
        m_reconnectTimer = new QTimer(this);
        m_reconnectTimer->setSingleShot(true);
        connect(m_reconnectTimer, &QTimer::timeout, this, &APIManager::onReconnectTimeout);
    }
    m_reconnectTimer->setInterval(m_timing.reconnectMs);

    connect(this, &APIManager::restartConnection, this, &APIManager::onRestartConnection, Qt::UniqueConnection);
    connect(&m_socket, &QWebSocket::textMessageReceived, this, &APIManager::receiveMessage, Qt::UniqueConnection);
    connect(&m_socket, &QWebSocket::disconnected, this, &APIManager::onDisconnected, Qt::UniqueConnection);
    connect(&m_socket, &QWebSocket::connected, this, &APIManager::onConnected, Qt::UniqueConnection);
    connect(&m_socket, QOverload<QAbstractSocket::SocketError>::of(&QWebSocket::error), this, &APIManager::onSocketError,
            Qt::UniqueConnection);

    if (isEnabled()) {
        qInfo().noquote() << "Connecting to " + getUrl();
        m_reconnectTimer->start(1);
    }

    if (!m_watchdog) {
        m_watchdog = new QTimer(this);
        connect(m_watchdog, &QTimer::timeout, this, &APIManager::onWatchdogTick);
    }
    m_watchdog->start(m_timing.watchdogMs);

    if (!m_collectorThread) {
        m_collectorThread = new QThread;
        m_collector = new APICollectorThread;
        m_collector->moveToThread(m_collectorThread);
        connect(m_collectorThread, &QThread::started, m_collector, &APICollectorThread::start);
        connect(this, &APIManager::requestSettingsUpdate, m_collector, &APICollectorThread::run, Qt::QueuedConnection);
        connect(m_collector, &APICollectorThread::dataReady, this, &APIManager::onSettingsCollected);
        m_collectorThread->start(QThread::InheritPriority);
    }
    emit requestSettingsUpdate(true);
}

void APIManager::openSocket()
{
    m_socket.open(QUrl(getUrl()));
}

void APIManager::onReconnectTimeout()
{
    qInfo() << "Reconnect";
    // A restart may have opened the session in the meantime; do not tear it down again.
    if (m_socket.state() != QAbstractSocket::ConnectedState)
        openSocket();
    m_reconnectTimer->stop();
    m_reconnectTimer->setInterval(m_timing.reconnectMs); // the first attempt ran after 1 ms
}

void APIManager::onRestartConnection()
{
    qInfo() << "Reopen socket after change";
    m_socket.close(QWebSocketProtocol::CloseCodeNormal);
    qInfo().noquote() << "Connecting to " + getUrl();
    openSocket();
}

void APIManager::onConnected()
{
    m_failed = false;
    m_elapsed.restart();
    qInfo().noquote() << "Connected to " + getUrl();
    emit connectionStateChanged();
}

void APIManager::onDisconnected()
{
    qCritical() << "Socket disconnected";
    if (m_reconnectTimer)
        m_reconnectTimer->start(m_timing.reconnectMs);
    emit connectionStateChanged();
}

void APIManager::onSocketError(QAbstractSocket::SocketError error)
{
    qWarning().noquote() << "Socket error" << error << m_socket.errorString();
    // A refused attempt never connected, so no disconnected follows: retry on the same clock.
    if (m_socket.state() == QAbstractSocket::UnconnectedState && m_reconnectTimer && !m_reconnectTimer->isActive()) {
        m_failed = true;
        m_reconnectTimer->start(m_timing.reconnectMs);
    }
}

void APIManager::onWatchdogTick()
{
    if (!isEnabled())
        return;
    if (m_elapsed.elapsed() > m_timing.silenceMs) {
        qCritical() << "Reconnect socket due timeout";
        qInfo().noquote() << "Connecting to " + getUrl();
        openSocket();
    }
    if (!m_socket.isValid()) {
        qInfo() << "Reconnect socket";
        qInfo().noquote() << "Connecting to " + getUrl();
        openSocket();
    }
    // One active tick only; from here on the disconnected signal drives reconnection.
    m_watchdog->stop();
}

void APIManager::shutdown()
{
    if (m_heartbeatThread) {
        m_heartbeatThread->requestInterruption();
        m_heartbeatThread->wait(5000);
    }
    if (m_collectorThread) {
        m_collectorThread->quit();
        m_collectorThread->wait(5000);
    }
}

bool APIManager::isConnected() const
{
    return m_socket.isValid();
}

void APIManager::receiveMessage(const QString& message)
{
    m_elapsed.restart();
    handleRequest(message);
}

// --- sending ----------------------------------------------------------------------------------

void APIManager::transmit(const QString& text)
{
    if (m_transport)
        m_transport(text);
    else
        m_socket.sendTextMessage(text);
}

void APIManager::sendResponse(const QString& text)
{
    if (!isEnabled())
        return;
    qDebug().noquote() << "Sending response " + text;
    transmit(text);
}

// The terminal's own messages stay home too when it is not managed.
void APIManager::makeRequest(const QString& action)
{
    const QString text = compact(QJsonObject{{kAction, action}});
    qDebug().noquote() << "Make request " + text;
    if (isEnabled())
        transmit(text);
}

void APIManager::sendData(const QString& action, const QJsonObject& data)
{
    const QString text = compact(QJsonObject{{kAction, action}, {kData, data}});
    qDebug().noquote() << "Sending data " + text;
    if (isEnabled())
        transmit(text);
}

void APIManager::sendArray(const QString& action, const QJsonArray& data)
{
    const QString text = compact(QJsonObject{{kAction, action}, {kData, data}});
    qDebug().noquote() << "Sending array " + text;
    if (isEnabled())
        transmit(text);
}

void APIManager::onSettingsCollected(const QJsonObject& document)
{
    // Nothing of the terminal's own goes out before the server's first document of this run.
    if (!m_canUpdate)
        return;
    m_lastSettings = document;
    const QString text = compact(QJsonObject{{kAction, QStringLiteral("setSettings")}, {kData, document}});
    qDebug().noquote() << "set settings " + text;
    if (isEnabled())
        transmit(text);
}

void APIManager::updateConnections(const QList<Connection>& connections)
{
    sendArray(QStringLiteral("setConnections"), ConnectionWire::listToWire(connections));
}

void APIManager::updateSettings()
{
    if (!isEnabled() || !m_canUpdate || m_applyingPush)
        return;
    qDebug() << "Requesting settings update";
    emit requestSettingsUpdate(true);
}

// --- requests ---------------------------------------------------------------------------------

void APIManager::handleRequest(const QString& text)
{
    const QJsonObject request = JsonText::parse(text.toUtf8()).object();
    qDebug().noquote() << "received: " + text;
    const QString action = request.value(kAction).toString();
    // Out of management the terminal takes no orders: no reboot, tunnel or catalogue on a server's word.
    if (!isEnabled()) {
        qWarning().noquote() << "Ignored request \"" + action + "\": managed mode is off";
        return;
    }

    QJsonObject answer;
    if (request.contains(QLatin1String("id")))
        answer.insert(QStringLiteral("id"), request.value(QLatin1String("id")));
    answer.insert(kAction, action);

    const QJsonValue data = request.value(kData);
    QJsonValue body(QJsonValue::Undefined); // the answer has no "data"
    bool answerNow = true;
    const QString ok = QStringLiteral("ok");

    if (action == QLatin1String("ping")) {
        answer.insert(kAction, QStringLiteral("pong"));
    } else if (action == QLatin1String("status")) {
        body = statusData();
    } else if (action == QLatin1String("auth")) {
        body = authData();
    } else if (action == QLatin1String("shutdown") || action == QLatin1String("restart")) {
        answer.insert(kData, ok);
        sendResponse(compact(answer));
        if (action == QLatin1String("shutdown"))
            CommandRunner::instance().startDetached(QStringLiteral("sudo"), {QStringLiteral("shutdown"), QStringLiteral("-h"), QStringLiteral("now")});
        else
            CommandRunner::instance().startDetached(QStringLiteral("sudo"), {QStringLiteral("reboot"), QStringLiteral("-f")});
        return;
    } else if (action == QLatin1String("getSettings")) {
        body = handleSettings(request);
    } else if (action == QLatin1String("getConnections")) {
        body = handleConnections(request);
    } else if (action == QLatin1String("update")) {
        handleUpdate(data);
    } else if (action == QLatin1String("remote")) {
        body = handleRemote(request, &answerNow);
    } else if (action == QLatin1String("helpMe")) {
        emit helpNeeded();
        qInfo() << "Received helpMe";
        body = ok;
    } else if (action == QLatin1String("delCertificate")) {
        const QString name = data.toString();
        if (!name.isEmpty() && services().removeCertificate)
            services().removeCertificate(name);
        emit updated();
        qInfo().noquote() << "Received remove certificate " + name;
        body = ok;
    } else if (action == QLatin1String("uploadCertificate")) {
        body = handleUploadCertificate(data);
    } else if (action == QLatin1String("cleanCertificates")) {
        if (services().cleanCertificates)
            services().cleanCertificates();
        qInfo() << "Received clean ceriticate";
        body = ok;
    }

    if (!answerNow)
        return;
    if (!body.isUndefined())
        answer.insert(kData, body);
    sendResponse(compact(answer));

    if (action == QLatin1String("auth")) {
        makeRequest(QStringLiteral("getConnections"));
        makeRequest(QStringLiteral("getSettings"));
    }
}

QJsonObject APIManager::statusData() const
{
    return {{QStringLiteral("cpu"), SystemLoad::cpuLoad()},
            {QStringLiteral("mem"), SystemLoad::memoryLoad()},
            {QStringLiteral("system"), m_system}};
}

QJsonObject APIManager::authData()
{
    return {{QStringLiteral("serial"), m_uuid},
            {QStringLiteral("name"), getId()},
            {QStringLiteral("mac"), HardwareUtils::inventory().mac},
            {QStringLiteral("version"), getVersion()},
            {QStringLiteral("account"), getAccount()}};
}

QJsonValue APIManager::handleSettings(const QJsonObject& request)
{
    if (!request.contains(kData)) {
        qInfo() << "Sending config to server";
        return m_collector ? m_collector->getData() : APICollectorThread::collect();
    }
    const QJsonValue data = request.value(kData);
    if (!data.isObject()) {
        qWarning() << "Settings from server are not a document; ignored";
        return QJsonValue::Undefined;
    }
    SettingsPush::Targets targets;
    targets.setAdminPassword = [](const QString& password) { PasswordManager().setPassword(password); };
    targets.setDebugEnabled = services().setDebugEnabled;
    targets.setAutoUpdateEnabled = services().setAutoUpdateEnabled;
    targets.setAdvancedEnabled = [this](bool enabled) { setAdvancedEnabled(enabled); };
    m_applyingPush = true;
    const QStringList skipped = SettingsPush(targets).apply(data.toObject());
    m_applyingPush = false;
    if (!skipped.isEmpty())
        qWarning().noquote() << "Settings from server not applied: " + skipped.join(QStringLiteral(", "));
    m_lastSettings = data.toObject();
    emit updated();
    m_canUpdate = true;
    qInfo() << "Received config from server";
    updateSettings(); // what the push changed goes back as one report
    return QJsonValue::Undefined;
}

QJsonValue APIManager::handleConnections(const QJsonObject& request)
{
    if (!request.contains(kData)) {
        qInfo() << "Sending connections to server";
        return ConnectionWire::listToWire(ConnectionManager::getInstance()->listConnections());
    }
    const QJsonValue data = request.value(kData);
    if (!data.isArray()) {
        qWarning() << "Connections from server are not a list; ignored";
        return QJsonValue::Undefined;
    }
    qDebug().noquote() << "Received connections " + compact(data.toArray());
    const QList<Connection> list = ConnectionWire::listFromWire(data.toArray());
    ConnectionManager::getInstance()->setConnections(list);
    qInfo() << "Received connections from server";
    return ConnectionWire::listToWire(list);
}

void APIManager::handleUpdate(const QJsonValue& data)
{
    if (!data.isObject())
        return;
    const QJsonObject request = data.toObject();
    const QString type = request.value(QLatin1String("type")).toString();
    const QString version = request.value(QLatin1String("version")).toString();
    const bool system = request.value(QLatin1String("system")).toBool(false);
    qInfo().noquote() << "Update requested" << type << version << (system ? "system" : "application");
    const auto& run = system ? services().updateSystem : services().update;
    if (run)
        run(type, version);
}

QJsonValue APIManager::handleUploadCertificate(const QJsonValue& data)
{
    const QJsonObject request = data.toObject();
    const QString name = request.value(QLatin1String("name")).toString();
    const bool added = data.isObject() && services().addCertificateFromServer
        && services().addCertificateFromServer(name, request.value(QLatin1String("cert")).toString(),
                                               request.value(QLatin1String("pass")).toString());
    if (!added) {
        qWarning() << "Failed to add certificate";
        return QStringLiteral("error");
    }
    qInfo().noquote() << "Received upload certificate " + name;
    emit updated();
    return QStringLiteral("ok");
}

// --- remote assistance ------------------------------------------------------------------------

QJsonValue APIManager::handleRemote(const QJsonObject& request, bool* answerNow)
{
    const QJsonValue dataValue = request.value(kData);
    if (!dataValue.isObject())
        return QJsonValue::Undefined;
    const QJsonObject data = dataValue.toObject();
    const QString port = text(data.value(QLatin1String("port")));
    const QString token = text(data.value(QLatin1String("token")));
    const int type = data.value(QLatin1String("type")).toInt();
    const int messageId = request.value(QLatin1String("id")).toInt();
    if (type != 2) {
        *answerNow = false;
        emit connectionRequest(messageId, type, data.value(QLatin1String("title")).toString(),
                               data.value(QLatin1String("text")).toString(), data.value(QLatin1String("timeout")).toInt(),
                               token, port);
        return QJsonValue::Undefined;
    }
    qInfo() << "Auto accept remote connection";
    openTunnel(token, port);
    return QJsonObject{{QStringLiteral("status"), QStringLiteral("ok")}};
}

QString APIManager::tunnelHost(const QString& url)
{
    QString host = url;
    if (host.contains(QLatin1String("//")))
        host = host.mid(host.indexOf(QLatin1String("//")) + 2);
    if (host.contains(QLatin1Char(':')))
        host = host.left(host.indexOf(QLatin1Char(':')));
    if (host.contains(QLatin1Char('/')))
        host = host.left(host.indexOf(QLatin1Char('/')));
    return host;
}

QStringList APIManager::tunnelArguments(const QString& host, const QString& port, const QString& token)
{
    return {QStringLiteral("--src"), host + QLatin1Char(':') + port, QStringLiteral("--dst"), localVncServer(),
            QStringLiteral("--token"), token};
}

QString APIManager::localVncServer()
{
    const QString configured = qEnvironmentVariable("NORBIX_ASSIST_VNC");
    return configured.isEmpty() ? QLatin1String(kLocalVncServer) : configured;
}

void APIManager::openTunnel(const QString& token, const QString& port)
{
    const QString host = tunnelHost(getUrl());
    // Watched, so that the screens can show that assistance runs and let the user end it.
    AssistanceTunnels::getInstance()->start(QLatin1String(kTunnelProgram), tunnelArguments(host, port, token));
    qDebug().noquote() << QLatin1String(kTunnelProgram) + QStringLiteral(" --src ") + host + QLatin1Char(':') + port
            + QStringLiteral(" --dst ") + localVncServer() + QStringLiteral(" --token ") + token;
    qInfo() << "Remote connection accepted";
}

void APIManager::sendRemoteStatus(int messageId, const QString& status)
{
    // Straight to the session: the user answered a request that came over it.
    transmit(compact(QJsonObject{{QStringLiteral("id"), messageId},
                                 {kAction, QStringLiteral("remote")},
                                 {kData, QJsonObject{{QStringLiteral("status"), status}}}}));
}

void APIManager::acceptConnection(int messageId, const QString& token, const QString& port)
{
    sendRemoteStatus(messageId, QStringLiteral("ok"));
    openTunnel(token, port);
}

void APIManager::rejectConnection(int messageId)
{
    sendRemoteStatus(messageId, QStringLiteral("reject"));
    qInfo() << "Remote connection rejected";
}

void APIManager::timeoutConnection(int messageId)
{
    sendRemoteStatus(messageId, QStringLiteral("timeout"));
    qInfo() << "Remote connection timeout";
}

void APIManager::needHelp()
{
    qInfo() << "Help needed clicked";
    sendData(QStringLiteral("helpMe"), QJsonObject());
}

// --- local commands ---------------------------------------------------------------------------

void APIManager::syncTime()
{
    runSudo({QStringLiteral("systemctl"), QStringLiteral("start"), QStringLiteral("systemd-timesyncd")});
}

void APIManager::setVNCPassword(const QString& password)
{
    runSudo({QStringLiteral("x11vnc"), QStringLiteral("-storepasswd"), password, QStringLiteral("/etc/x11vnc.pass")});
    runSudo({QStringLiteral("systemctl"), QStringLiteral("daemon-reload")});
    runSudo({QStringLiteral("systemctl"), QStringLiteral("restart"), QStringLiteral("x11vnc")});
    qInfo() << "VNC password set";
}
