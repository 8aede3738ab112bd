#pragma once

#include "CommandRunner.h"

#include <QHash>
#include <QList>
#include <QMutex>
#include <QThread>

// Records every command and answers from canned results; installs itself as the process-wide
// runner for its lifetime.
class FakeCommandRunner : public CommandRunner {
public:
    struct Call {
        QString program;
        QStringList arguments;
        bool detached = false;
        QThread* thread = nullptr; // the thread that ran it
        QStringList commandLine() const { return QStringList(program) + arguments; }
    };

    FakeCommandRunner();
    ~FakeCommandRunner() override;

    // The answer to "program arg1 arg2 ..." (joined by blanks); unknown commands exit 0 silently.
    void answer(const QString& commandLine, const QByteArray& standardOutput, int exitCode = 0,
                const QByteArray& standardError = {});

    // Ends every started process that is still running, emitting finished().
    void finishAll();
    QList<QStringList> commandLines() const;
    // Only those run on the calling thread: what a test did itself, without the commands of
    // background workers (the settings collector, session threads) that may run meanwhile.
    QList<QStringList> commandLinesOfThisThread() const;

    QList<Call> calls;
    QList<RunningProcess*> running;
    bool finishOnStart = false; // started processes end by themselves, through their thread's event loop

    CommandResult record(const QString& program, const QStringList& arguments, bool detached);
    std::unique_ptr<RunningProcess> createProcess() override;

protected:
    CommandResult execute(const QString& program, const QStringList& arguments) override;
    bool executeDetached(const QString& program, const QStringList& arguments, qint64* pid) override;

private:
    CommandResult lookup(const QString& program, const QStringList& arguments) const;
    QHash<QString, CommandResult> m_answers;
    QMutex m_mutex; // session workers run commands from their own threads
};
