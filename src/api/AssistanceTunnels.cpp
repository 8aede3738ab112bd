#include "AssistanceTunnels.h"

#include "CommandRunner.h"

#include <QDebug>
#include <QQmlEngine>

AssistanceTunnels::~AssistanceTunnels()
{
    // Tunnels outlive nothing but the shell: leave them to the process objects' own cleanup.
    for (RunningProcess* process : qAsConst(m_running))
        disconnect(process, nullptr, this, nullptr);
}

AssistanceTunnels* AssistanceTunnels::getInstance()
{
    static AssistanceTunnels* instance = new AssistanceTunnels;
    return instance;
}

QObject* AssistanceTunnels::qmlInstance(QQmlEngine*, QJSEngine*)
{
    AssistanceTunnels* instance = getInstance();
    QQmlEngine::setObjectOwnership(instance, QQmlEngine::CppOwnership);
    return instance;
}

bool AssistanceTunnels::start(const QString& program, const QStringList& arguments)
{
    RunningProcess* process = CommandRunner::instance().createProcess().release();
    process->setParent(this);
    // Nobody reads what a tunnel prints; do not let it pile up.
    connect(process, &RunningProcess::readyReadStandardOutput, process, [process]() { process->readAllStandardOutput(); });
    connect(process, &RunningProcess::finished, this, [this, process](int exitCode) { onFinished(process, exitCode); });
    m_running.append(process);
    process->start(program, arguments);
    if (!process->waitForStarted(CommandRunner::kStartTimeoutMs) && !process->isRunning()) {
        qWarning().noquote() << "Remote assistance tunnel did not start:" << program;
        if (m_running.removeOne(process)) {
            process->deleteLater();
            emit activeChanged();
        }
        return false;
    }
    if (m_running.contains(process))
        emit activeChanged();
    return true;
}

void AssistanceTunnels::onFinished(RunningProcess* process, int exitCode)
{
    if (!m_running.removeOne(process))
        return;
    // What the tunnel said about its end (server refused, unreachable, ...) goes to the log.
    const QByteArray said = process->readAllStandardError().trimmed();
    if (!said.isEmpty())
        qInfo().noquote() << "Remote assistance tunnel:" << QString::fromUtf8(said.right(4000));
    qInfo().noquote() << "Remote assistance tunnel ended with exit code" << exitCode;
    // Deleted later: this runs inside the process object's own signal.
    process->deleteLater();
    emit activeChanged();
}

void AssistanceTunnels::endAssistance()
{
    if (m_running.isEmpty())
        return;
    qInfo() << "Remote assistance ended by the user";
    const QList<RunningProcess*> running = m_running;
    for (RunningProcess* process : running)
        process->terminate();
    for (RunningProcess* process : running) {
        if (m_running.contains(process) && !process->waitForFinished(kStopGraceMs)) {
            process->kill();
            process->waitForFinished(kStopGraceMs);
        }
    }
}
