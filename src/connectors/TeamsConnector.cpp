#include "TeamsConnector.h"

#include "CommandRunner.h"

#include <QThread>

namespace {
QByteArray processList(const QString& name)
{
    return CommandRunner::instance()
        .run(QStringLiteral("bash"), {QStringLiteral("-c"), QStringLiteral("ps ax | grep %1").arg(name)})
        .standardOutput;
}
} // namespace

bool TeamsConnector::processListed(const QByteArray& psOutput, const QString& name)
{
    for (const QByteArray& line : psOutput.split('\n')) {
        const QString text = QString::fromLocal8Bit(line);
        if (text.contains(name) && !text.contains(QLatin1String("grep")))
            return true;
    }
    return false;
}

void TeamsConnector::connect()
{
    CommandRunner::instance().startDetached(QStringLiteral("teams-for-linux"), {});
}

bool TeamsConnector::isTeamsRunning()
{
    return processListed(
        CommandRunner::instance().run(QStringLiteral("bash"), {QStringLiteral("-c"), QStringLiteral("ps ax | grep teams")}).standardOutput,
        QStringLiteral("teams-for-linux"));
}

void TeamsConnector::teamsToFront()
{
    CommandRunner& runner = CommandRunner::instance();
    const QByteArray windows =
        runner.run(QStringLiteral("xdotool"), {QStringLiteral("search"), QStringLiteral("--class"), QStringLiteral("teams-for-linux")})
            .standardOutput;
    // The second matching window is the main one; the identifier goes on as read, line end included.
    QList<QByteArray> lines;
    int start = 0;
    while (start < windows.size()) {
        const int end = windows.indexOf('\n', start);
        const int next = end < 0 ? windows.size() : end + 1;
        lines << windows.mid(start, next - start);
        start = next;
    }
    if (lines.size() < 2)
        return;
    const QString window = QString::fromLocal8Bit(lines.at(1));
    for (const char* action : {"windowmap", "windowraise", "windowfocus"})
        runner.run(QStringLiteral("xdotool"), {QLatin1String(action), window});
}

bool TeamsThread::isAppRunning(const QString& name)
{
    return TeamsConnector::processListed(processList(name), name);
}

void TeamsThread::check()
{
    CommandRunner& runner = CommandRunner::instance();
    if (isAppRunning(QStringLiteral("teams-for-linux"))) {
        m_state = Running;
        if (!isAppRunning(QStringLiteral("polybar")))
            runner.startDetached(QStringLiteral("/usr/bin/polybar"), {QStringLiteral("norbix")});
    } else {
        m_state = Stopped;
        if (isAppRunning(QStringLiteral("polybar")))
            runner.startDetachedCommandLine(QStringLiteral("killall polybar"));
    }
}

void TeamsThread::run()
{
    for (;;) {
        check();
        QThread::msleep(1000);
    }
}
