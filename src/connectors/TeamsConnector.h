#pragma once

#include <QObject>
#include <QStringList>

// Microsoft Teams (teams-for-linux): start it, tell whether it runs, bring its window forward.
class TeamsConnector : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    static void connect();
    Q_INVOKABLE bool isTeamsRunning();
    Q_INVOKABLE void teamsToFront();
    // The task-bar watcher is not started by this build.
    static void runThread() {}

    // True when a line of `ps ax | grep NAME` output names the program and is not the grep itself.
    static bool processListed(const QByteArray& psOutput, const QString& name);
};

// Keeps the task bar running while Teams runs.
class TeamsThread : public QObject {
    Q_OBJECT
public:
    enum TeamsState { Running = 0, Stopped = 1 };
    using QObject::QObject;

    bool isAppRunning(const QString& name);
    // One round of the watcher (run() repeats it every second).
    void check();

public slots:
    void run();

private:
    TeamsState m_state = Stopped;
};
