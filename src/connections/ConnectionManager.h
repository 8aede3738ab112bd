#pragma once

#include "Connection.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

#include <functional>

class QQmlEngine;
class QJSEngine;

// The catalogue: reads and writes connections.json and connections.ini, starts records through
// their kind's launcher, and runs the auto-connect entries once at start. It knows no connector:
// start-up hands it one launcher per ConnectionType.
class ConnectionManager : public QObject {
    Q_OBJECT
public:
    static ConnectionManager* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    // Launching
    Q_INVOKABLE bool connectToIndex(int index);
    Q_INVOKABLE QStringList listConnectionNames();
    Q_INVOKABLE void remove(int index);
    Q_INVOKABLE int getConnectionType(int index);
    Q_INVOKABLE Connection getConnection(int index);
    Q_INVOKABLE bool isConnectionFull(int index);
    Q_INVOKABLE bool isEnabled(int index);
    Q_INVOKABLE bool addTeamsConnection();
    Q_INVOKABLE void setAutoconnect(int connection, bool checked);
    Q_INVOKABLE bool isConnectionTypeEnabled(int id);
    Q_INVOKABLE void setConnectionTypeEnabled(int id, bool enabled);
    Q_INVOKABLE void reload();

    void performAutoconnect();

    // Store
    QList<Connection> listConnections();
    void saveConnection(const Connection& connection, QStringList keys);
    void replaceConnection(int index, const Connection& connection, QStringList keys);
    void setConnections(const QList<Connection>& connections);
    bool shouldAutoConnect(int index);

    // Starts one record by its kind; false when the kind's launcher refuses or the kind has none.
    static bool launch(const Connection& connection);

    // Starts one record of a kind (its connector); by ConnectionType.
    using Launcher = std::function<bool(const Connection&)>;
    static void setLaunchers(const QHash<int, Launcher>& launchers);

    // Where every local change of the catalogue is reported (the management-server client).
    using ChangeReporter = std::function<void(const QList<Connection>&)>;
    static void setChangeReporter(ChangeReporter reporter);

    // The connections.ini key of an application-list id (0 "VNCEnabled" ... 6 "PuttyEnabled").
    static QString typeSwitchKey(int id);

signals:
    void updateConnections();
    void openPasswordPopup(int index);

private:
    ConnectionManager() = default;
    // The record at index, or an empty one when the index is outside the catalogue.
    Connection recordAt(int index);
    void changed(const QString& logLine);

    static ConnectionManager* m_instance;
};
