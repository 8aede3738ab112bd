#include "ConnectionManager.h"

#include "ConnectionStore.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QJsonArray>
#include "QmlSingleton.h"
#include <QSettings>

ConnectionManager* ConnectionManager::m_instance = nullptr;

namespace {
QHash<int, ConnectionManager::Launcher>& launchers()
{
    static QHash<int, ConnectionManager::Launcher> table;
    return table;
}

ConnectionManager::ChangeReporter& reporter()
{
    static ConnectionManager::ChangeReporter instance;
    return instance;
}

QJsonObject whitelisted(const Connection& connection, QStringList keys)
{
    keys << QStringLiteral("type");
    const QJsonObject data = connection.getData();
    QJsonObject record;
    for (auto it = data.begin(); it != data.end(); ++it) {
        if (keys.contains(it.key()))
            record.insert(it.key(), it.value());
    }
    return record;
}
} // namespace

ConnectionManager* ConnectionManager::getInstance()
{
    if (!m_instance)
        m_instance = new ConnectionManager;
    return m_instance;
}

QObject* ConnectionManager::qmlInstance(QQmlEngine*, QJSEngine*)
{
    return qmlSingleton<ConnectionManager>();
}

void ConnectionManager::setChangeReporter(ChangeReporter changeReporter)
{
    reporter() = std::move(changeReporter);
}

QString ConnectionManager::typeSwitchKey(int id)
{
    static const char* const keys[] = {"VNCEnabled",    "RDPEnabled",   "BrowserEnabled", "CitrixEnabled",
                                       "VMWareEnabled", "TeamsEnabled", "PuttyEnabled"};
    return id >= 0 && id < 7 ? QString::fromLatin1(keys[id]) : QString();
}

// --- store ------------------------------------------------------------------------------------

QList<Connection> ConnectionManager::listConnections()
{
    QList<Connection> list;
    const QJsonArray records = ConnectionStore::readArray();
    list.reserve(records.size());
    for (const QJsonValue& value : records)
        list << Connection(ConnectionStore::forListing(value.toObject()));
    return list;
}

Connection ConnectionManager::recordAt(int index)
{
    const QList<Connection> list = listConnections();
    if (index < 0 || index >= list.size()) {
        qWarning() << "No connection at index" << index;
        return {};
    }
    return list.at(index);
}

void ConnectionManager::changed(const QString& logLine)
{
    emit updateConnections();
    qInfo().noquote() << logLine;
    // The one place the catalogue's changes leave for the management server.
    if (reporter())
        reporter()(listConnections());
}

void ConnectionManager::saveConnection(const Connection& connection, QStringList keys)
{
    QJsonObject record = whitelisted(connection, keys);
    record.insert(QStringLiteral("enabled"), true);
    QJsonArray records = ConnectionStore::readArray();
    records.append(ConnectionStore::forStoring(record));
    ConnectionStore::writeArray(records);
    changed(QStringLiteral("Connection ") + connection.getConnectionName() + QStringLiteral(" saved"));
}

void ConnectionManager::replaceConnection(int index, const Connection& connection, QStringList keys)
{
    const QJsonObject record = whitelisted(connection, keys);
    QJsonArray records = ConnectionStore::readArray();
    if (index >= 0 && index < records.size())
        records.replace(index, ConnectionStore::forStoring(record));
    ConnectionStore::writeArray(records);
    changed(QStringLiteral("Connection ") + connection.getConnectionName() + QStringLiteral(" replaced"));
}

void ConnectionManager::remove(int index)
{
    QJsonArray records = ConnectionStore::readArray();
    if (index >= 0 && index < records.size())
        records.removeAt(index);
    ConnectionStore::writeArray(records);
    changed(QStringLiteral("Connection ") + QString::number(index) + QStringLiteral(" removed"));
}

void ConnectionManager::setAutoconnect(int connection, bool checked)
{
    QJsonArray records = ConnectionStore::readArray();
    if (connection >= 0 && connection < records.size()) {
        QJsonObject record = records.at(connection).toObject();
        record.insert(QStringLiteral("auto_connect"), checked);
        records.replace(connection, record);
    }
    ConnectionStore::writeArray(records);
    changed(QStringLiteral("Set autoconnect %1 to %2").arg(connection).arg(checked ? QStringLiteral("true") : QStringLiteral("false")));
}

void ConnectionManager::setConnections(const QList<Connection>& connections)
{
    QJsonArray records;
    for (const Connection& connection : connections)
        records.append(ConnectionStore::forStoring(connection.getData()));
    ConnectionStore::writeArray(records);
    emit updateConnections();
}

Connection ConnectionManager::getConnection(int index)
{
    return recordAt(index);
}

int ConnectionManager::getConnectionType(int index)
{
    return recordAt(index).getInt(QStringLiteral("type"));
}

QStringList ConnectionManager::listConnectionNames()
{
    QStringList names;
    for (const QJsonValue& value : ConnectionStore::readArray())
        names << value.toObject().value(QStringLiteral("name")).toString();
    return names;
}

bool ConnectionManager::isEnabled(int index)
{
    return recordAt(index).getBool(QStringLiteral("enabled"));
}

bool ConnectionManager::shouldAutoConnect(int index)
{
    return recordAt(index).autoConnect();
}

bool ConnectionManager::isConnectionTypeEnabled(int id)
{
    const QString key = typeSwitchKey(id);
    if (key.isEmpty())
        return false;
    return QSettings(SystemPaths::dataFile(QStringLiteral("connections.ini")), QSettings::IniFormat).value(key, true).toBool();
}

void ConnectionManager::setConnectionTypeEnabled(int id, bool enabled)
{
    const QString key = typeSwitchKey(id);
    if (!key.isEmpty())
        QSettings(SystemPaths::dataFile(QStringLiteral("connections.ini")), QSettings::IniFormat).setValue(key, enabled);
}

void ConnectionManager::reload()
{
    emit updateConnections();
}

// --- launching --------------------------------------------------------------------------------

bool ConnectionManager::launch(const Connection& connection)
{
    const int type = connection.getInt(QStringLiteral("type"));
    const Launcher launcher = launchers().value(type);
    if (!launcher) {
        qWarning() << "No launcher for connection type" << type;
        return false;
    }
    return launcher(connection);
}

void ConnectionManager::setLaunchers(const QHash<int, Launcher>& table)
{
    launchers() = table;
}

bool ConnectionManager::connectToIndex(int index)
{
    qInfo() << "Connecting to index" << index;
    const QList<Connection> list = listConnections();
    if (index < 0 || index >= list.size()) {
        qWarning() << "No connection at index" << index;
        return false;
    }
    return launch(list.at(index));
}

bool ConnectionManager::isConnectionFull(int index)
{
    const Connection connection = recordAt(index);
    switch (connection.getInt(QStringLiteral("type"))) {
    case VNC:
        return !connection.get(QStringLiteral("password")).isEmpty();
    case RDP:
        return !connection.get(QStringLiteral("username")).isEmpty() && !connection.get(QStringLiteral("password")).isEmpty();
    case VMWare:
    case Citrix:
    case Browser:
    case Teams:
    case Putty:
        return true;
    default:
        return false;
    }
}

void ConnectionManager::performAutoconnect()
{
    const QJsonArray records = ConnectionStore::readArray();
    for (int i = 0; i < records.size(); ++i) {
        const QJsonObject record = records.at(i).toObject();
        if (!record.value(QStringLiteral("auto_connect")).toBool())
            continue;
        qInfo().noquote() << QStringLiteral("Autoconnect ") + record.value(QStringLiteral("name")).toString();
        if (isConnectionFull(i))
            connectToIndex(i);
        else
            emit openPasswordPopup(i);
    }
}

bool ConnectionManager::addTeamsConnection()
{
    for (const Connection& connection : listConnections()) {
        if (connection.getInt(QStringLiteral("type")) == Teams)
            return false;
    }
    saveConnection(Connection::withFields(Teams, {{"name", QStringLiteral("Microsoft Teams")}}), {QStringLiteral("type"), QStringLiteral("name")});
    qInfo() << "Teams added";
    return true;
}
