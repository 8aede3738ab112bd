#include "CitrixConnector.h"

#include "CommandRunner.h"

#include <QDebug>
#include "QmlSingleton.h"

CitrixConnector* CitrixConnector::m_connection = nullptr;

CitrixConnector* CitrixConnector::getInstance()
{
    if (!m_connection)
        m_connection = new CitrixConnector;
    return m_connection;
}

QObject* CitrixConnector::qmlInstance(QQmlEngine*, QJSEngine*)
{
    return qmlSingleton<CitrixConnector>();
}

CitrixConnector::CitrixConnector() = default;

QString CitrixConnector::command(const QString& username, const QString& password, const QString& stagePart)
{
    QString text = QLatin1String(kStoreBrowser);
    if (!username.isEmpty())
        text += QStringLiteral(" -U ") + username;
    if (!password.isEmpty())
        text += QStringLiteral(" -P ") + password;
    return text + stagePart;
}

CitrixConnector::Resources CitrixConnector::parseResources(const QString& output)
{
    Resources resources;
    for (const QString& line : output.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QStringList fields = line.split(QLatin1Char('\t'), Qt::SkipEmptyParts);
        if (fields.size() <= 2)
            continue;
        resources.internal << QString(fields.at(0)).remove(QLatin1Char('\n'));
        resources.display << QString(fields.at(1)).remove(QLatin1Char('\''));
    }
    return resources;
}

void CitrixConnector::runStage(const QString& username, const QString& password, const QString& stagePart,
                               std::function<void(const QString&, const QString&)> callback)
{
    m_callback = std::move(callback);
    if (!m_process) {
        // One process for every stage; its end hands the output to the stage now running.
        m_process = CommandRunner::instance().createProcess();
        QObject::connect(m_process.get(), &RunningProcess::finished, this, [this] {
            const QString output = QString::fromLocal8Bit(m_process->readAllStandardOutput());
            const QString error = QString::fromLocal8Bit(m_process->readAllStandardError());
            // A stage's handler starts the next stage, which replaces m_callback: call a copy.
            const auto callback = m_callback;
            if (callback)
                callback(output, error);
        });
    }
    m_process->startCommandLine(command(username, password, stagePart));
}

// Register, then enumerate; what follows the enumeration is the caller's.
void CitrixConnector::beginRequest(const QString& server, const QString& username, const QString& password,
                                   std::function<void(const QString&, const QString&)> onEnumerated)
{
    m_url = server;
    m_canceled = false;
    emit started();
    emit newMessageReceived(QStringLiteral("Starting Citrix connection. Connecting to storebrowse"));
    runStage(username, password, QStringLiteral(" -a ") + server,
             [this, username, password, onEnumerated](const QString& output, const QString& error) {
                 if (!error.isEmpty() || output.isEmpty()) {
                     emit ended();
                     emit newMessageReceived(QStringLiteral("Failed to connect to storebrowse"));
                     return;
                 }
                 if (m_canceled)
                     return;
                 emit newMessageReceived(QStringLiteral("Storebrowse link acquired. Enumerating resources"));
                 m_storebrowseUrl = QString(output).remove(QLatin1Char('\n'));
                 runStage(username, password, QStringLiteral(" -E ") + m_storebrowseUrl,
                          [this, onEnumerated](const QString& enumerated, const QString& enumerationError) {
                              if (m_canceled)
                                  return;
                              if (enumerated.startsWith(QLatin1String("webkit"))) {
                                  emit newMessageReceived(QStringLiteral("Failed to iterate resources"));
                                  emit ended();
                                  return;
                              }
                              const Resources resources = parseResources(enumerated);
                              m_resourcesDisplay = resources.display;
                              m_resourcesInternal = resources.internal;
                              onEnumerated(enumerated, enumerationError);
                          });
             });
}

bool CitrixConnector::connect(const Connection& connection)
{
    m_conn = CitrixConnection(connection);
    beginRequest(m_conn.getAddress(), m_conn.getUsername(), m_conn.getPassword(), [this](const QString&, const QString&) {
        const int at = m_resourcesDisplay.indexOf(m_conn.get(QStringLiteral("resource")));
        if (at < 0) {
            emit newMessageReceived(QStringLiteral("Requested resource not found"));
            emit ended();
            return;
        }
        launch(m_resourcesInternal.at(at));
        emit connected();
        emit newMessageReceived(QStringLiteral("Citrix connection opened"));
        emit ended();
    });
    return true;
}

void CitrixConnector::requestResources(const QString& server, const QString& username, const QString& password)
{
    beginRequest(server, username, password, [this](const QString&, const QString&) { emit resourcesFound(); });
}

void CitrixConnector::connectToResource(const QString& displayName)
{
    m_canceled = false;
    const int at = m_resourcesDisplay.indexOf(displayName);
    if (at >= 0 && at < m_resourcesInternal.size())
        launch(m_resourcesInternal.at(at));
    emit newMessageReceived(QStringLiteral("Citrix connecting opened"));
    emit ended();
}

void CitrixConnector::launch(const QString& resourceId)
{
    const QString line = command(m_conn.getUsername(), m_conn.getPassword(), QStringLiteral(" -L ") + resourceId + QLatin1Char(' ') + m_storebrowseUrl);
    qInfo().noquote() << line;
    CommandRunner::instance().startDetached(QStringLiteral("bash"), {QStringLiteral("-c"), line});
}
