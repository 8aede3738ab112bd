#include "NetworkStatus.h"

#include "CommandRunner.h"

#include <QList>
#include <QStringList>

NetworkStatus::NetworkStatus(bool autoRefresh, QObject* parent) : QObject(parent)
{
    if (!autoRefresh)
        return;
    m_timer.setInterval(kRefreshMs);
    connect(&m_timer, &QTimer::timeout, this, &NetworkStatus::refresh);
    m_timer.start();
    refresh();
}

NetworkStatus::~NetworkStatus()
{
    if (m_process) {
        disconnect(m_process.get(), nullptr, this, nullptr);
        if (m_process->isRunning())
            m_process->kill();
    }
}

NetworkStatus::State NetworkStatus::parseDeviceStatus(const QByteArray& output)
{
    const QStringList lines = QString::fromUtf8(output).split(QLatin1Char('\n'));
    int header = -1;
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).startsWith(QLatin1String("DEVICE"))) {
            header = i;
            break;
        }
    }
    State state;
    if (header < 0)
        return state;
    const QString& head = lines.at(header);
    const int typeAt = head.indexOf(QLatin1String("TYPE"));
    const int stateAt = head.indexOf(QLatin1String("STATE"));
    const int connectionAt = head.indexOf(QLatin1String("CONNECTION"));
    if (typeAt < 0 || stateAt < typeAt || connectionAt < stateAt)
        return state;
    state.known = true;
    QString wifiName;
    bool wifi = false;
    for (int i = header + 1; i < lines.size(); ++i) {
        const QString line = lines.at(i);
        if (line.trimmed().isEmpty() || line.size() <= stateAt)
            continue;
        const QString type = line.mid(typeAt, stateAt - typeAt).trimmed();
        const QString status = line.mid(stateAt, connectionAt - stateAt).trimmed();
        // "connected (externally)" counts; "connecting (getting IP configuration)" does not yet.
        if (status != QLatin1String("connected") && !status.startsWith(QLatin1String("connected ")))
            continue;
        if (type == QLatin1String("ethernet")) {
            state.kind = Wired;
            state.name.clear();
            return state;
        }
        if (type == QLatin1String("wifi") && !wifi) {
            wifi = true;
            const QString name = line.mid(connectionAt).trimmed();
            wifiName = name == QLatin1String("--") ? QString() : name;
        }
    }
    if (wifi) {
        state.kind = WiFi;
        state.name = wifiName;
    }
    return state;
}

QString NetworkStatus::describe(const State& state)
{
    switch (state.kind) {
    case Wired:
        return tr("Wired network");
    case WiFi:
        return state.name.isEmpty() ? tr("Wi-Fi") : tr("Wi-Fi: %1").arg(state.name);
    case NoNetwork:
        break;
    }
    return state.known ? tr("No network") : tr("Network state unknown");
}

void NetworkStatus::refresh()
{
    if (m_process && m_process->isRunning()) {
        // Ten seconds without an answer: NetworkManager is stuck, which says nothing either way.
        disconnect(m_process.get(), nullptr, this, nullptr);
        m_process->kill();
        take({});
    }
    m_process = CommandRunner::instance().createProcess();
    RunningProcess* process = m_process.get();
    connect(process, &RunningProcess::finished, this, [this, process](int) {
        if (process == m_process.get())
            take(process->readAllStandardOutput());
    });
    process->start(QStringLiteral("nmcli"), {QStringLiteral("device"), QStringLiteral("status")});
    if (!process->waitForStarted(CommandRunner::kStartTimeoutMs) && !process->isRunning()) {
        disconnect(process, nullptr, this, nullptr);
        take({});
    }
}

void NetworkStatus::take(const QByteArray& output)
{
    const State state = parseDeviceStatus(output);
    const bool change = state != m_state;
    m_state = state;
    if (change)
        emit changed();
    emit refreshed();
}
