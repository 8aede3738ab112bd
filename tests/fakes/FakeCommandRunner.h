#pragma once

#include "CommandRunner.h"

#include <QHash>
#include <QList>
#include <QMutex>
#include <QThread>

struct FakeCommandCall {
    QString program;
    QStringList arguments;
    bool detached = false;
    QThread* thread = nullptr; // the thread that ran it
    QStringList commandLine() const { return QStringList(program) + arguments; }
};

// The commands run so far. Background workers (the settings collector, session threads) append
// while a test reads or clears, so every access takes the lock and hands out copies; iterate
// over snapshot().
class FakeCallLog {
public:
    void append(const FakeCommandCall& call);
    void clear();
    int size() const;
    bool isEmpty() const { return size() == 0; }
    FakeCommandCall at(int index) const;
    FakeCommandCall operator[](int index) const { return at(index); }
    FakeCommandCall first() const { return at(0); }
    FakeCommandCall last() const;
    FakeCommandCall constLast() const { return last(); }
    QList<FakeCommandCall> snapshot() const;

private:
    mutable QMutex m_mutex;
    QList<FakeCommandCall> m_calls;
};

// Records every command and answers from canned results; installs itself as the process-wide
// runner for its lifetime.
class FakeCommandRunner : public CommandRunner {
public:
    using Call = FakeCommandCall;

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

    FakeCallLog calls;
    bool finishOnStart = false; // started processes end by themselves, through their thread's event loop

    CommandResult record(const QString& program, const QStringList& arguments, bool detached);
    // Kept by the fake processes: started and not yet finished (finishAll() ends them).
    void setRunning(RunningProcess* process, bool running);
    std::unique_ptr<RunningProcess> createProcess() override;

protected:
    CommandResult execute(const QString& program, const QStringList& arguments) override;
    bool executeDetached(const QString& program, const QStringList& arguments, qint64* pid) override;

private:
    CommandResult lookup(const QString& program, const QStringList& arguments) const;
    QHash<QString, CommandResult> m_answers;
    QList<RunningProcess*> m_running;
    mutable QMutex m_mutex; // session workers run commands from their own threads
};
