#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

// What a waited-for command left behind. Callers rarely check exitCode: most shell commands are
// fire-and-check-later, but tests and the simulated terminal use it.
struct CommandResult {
    bool started = false;
    bool finished = false;
    int exitCode = -1;
    QByteArray standardOutput;
    QByteArray standardError;
};

// A process the caller drives itself: long-lived session clients, staged helpers. One object may
// run several programs in turn (start again once the last one has finished).
class RunningProcess : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    // Logs the command (NORBIX_COMMAND_LOG) and starts it.
    void start(const QString& program, const QStringList& arguments);
    void startCommandLine(const QString& commandLine);

    virtual bool waitForStarted(int msecs) = 0;
    virtual bool waitForFinished(int msecs) = 0; // -1 waits for ever
    virtual bool isRunning() const = 0;
    virtual int exitCode() const = 0;
    virtual QByteArray readAllStandardOutput() = 0;
    virtual QByteArray readAllStandardError() = 0;
    virtual void terminate() = 0;
    virtual void kill() = 0;

signals:
    void readyReadStandardOutput();
    void finished(int exitCode);

protected:
    virtual void doStart(const QString& program, const QStringList& arguments) = 0;
};

// The one way the shell starts external programs. The active runner is a QProcess runner on a real
// terminal, the simulated terminal under NORBIX_SIMULATE=1, or a fake injected by a test.
// With NORBIX_COMMAND_LOG set, every command is appended to that file as one JSON line.
class CommandRunner {
public:
    static constexpr int kStartTimeoutMs = 30000;
    static constexpr int kFinishTimeoutMs = 30000;

    virtual ~CommandRunner() = default;

    // Starts the program and waits up to 30 s to start and 30 s to finish.
    CommandResult run(const QString& program, const QStringList& arguments);
    // One command-line text, split the way QProcess splits it, then run().
    CommandResult runCommandLine(const QString& commandLine);
    // Starts a program that outlives the shell's interest in it.
    bool startDetached(const QString& program, const QStringList& arguments, qint64* pid = nullptr);
    bool startDetachedCommandLine(const QString& commandLine);
    // A process object to start programs with (never null).
    virtual std::unique_ptr<RunningProcess> createProcess() = 0;
    // createProcess() and start() in one (check waitForStarted).
    std::unique_ptr<RunningProcess> start(const QString& program, const QStringList& arguments);

    // The process-wide runner, made on first use from the environment.
    static CommandRunner& instance();
    // Replaces the process-wide runner (tests). Ownership stays with the caller; nullptr restores
    // the environment's choice.
    static void setInstance(CommandRunner* runner);
    static bool simulating();

    // Splits a command line into program and arguments as QProcess does.
    static QStringList split(const QString& commandLine);

protected:
    virtual CommandResult execute(const QString& program, const QStringList& arguments) = 0;
    virtual bool executeDetached(const QString& program, const QStringList& arguments, qint64* pid) = 0;
};
