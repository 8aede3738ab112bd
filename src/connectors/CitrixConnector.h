#pragma once

#include "CommandRunner.h"
#include "Connection.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class QQmlEngine;
class QJSEngine;


// A Citrix record, with its credentials at hand.
class CitrixConnection : public Connection {
public:
    CitrixConnection() = default;
    explicit CitrixConnection(const Connection& connection) : Connection(connection) {}
    QString getUsername() const { return get(QStringLiteral("username")); }
    QString getPassword() const { return get(QStringLiteral("password")); }
};

// Starts Citrix resources through the store browser in three stages (register the store, enumerate
// its resources, launch one), each started when the previous one has finished.
class CitrixConnector : public QObject {
    Q_OBJECT
public:
    static constexpr const char* kStoreBrowser = "/opt/Citrix/ICAClient/util/storebrowse";

    static CitrixConnector* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    // True once the first stage has been started.
    bool connect(const Connection& connection);
    Q_INVOKABLE void requestResources(const QString& server, const QString& username, const QString& password);
    Q_INVOKABLE QStringList getResourcesDisplay() const { return m_resourcesDisplay; }
    Q_INVOKABLE QStringList getResourcesInternal() const { return m_resourcesInternal; }
    Q_INVOKABLE void connectToResource(const QString& displayName);
    Q_INVOKABLE void cancel() { m_canceled = true; }

    // The store browser's command text for one stage.
    static QString command(const QString& username, const QString& password, const QString& stagePart);
    struct Resources {
        QStringList display;
        QStringList internal;
    };
    // Enumeration output: tab-separated fields, id first, display name second; lines with two
    // fields or fewer are not resources.
    static Resources parseResources(const QString& output);

signals:
    void started();
    void newMessageReceived(QString message);
    void ended();
    void resourcesFound();
    void connected();

private:
    CitrixConnector();
    void runStage(const QString& username, const QString& password, const QString& stagePart,
                  std::function<void(const QString&, const QString&)> callback);
    void beginRequest(const QString& server, const QString& username, const QString& password,
                      std::function<void(const QString&, const QString&)> onEnumerated);
    void launch(const QString& resourceId);

    static CitrixConnector* m_connection;
    QStringList m_resourcesDisplay;
    QStringList m_resourcesInternal;
    std::unique_ptr<RunningProcess> m_process;
    std::function<void(const QString&, const QString&)> m_callback;
    CitrixConnection m_conn;
    QString m_storebrowseUrl;
    bool m_canceled = false;
    QString m_url;
};
