#include "FakeCommandRunner.h"

#include <QMutexLocker>
#include <QTimer>

#include <utility>

namespace {

// Finishes when waited for, or when the test calls finishAll().
class FakeProcess : public RunningProcess {
public:
    explicit FakeProcess(FakeCommandRunner& runner) : m_runner(runner) {}
    void doStart(const QString& program, const QStringList& arguments) override
    {
        m_result = m_runner.record(program, arguments, false);
        m_running = m_result.started;
        m_runner.setRunning(this, true);
        if (m_running && m_runner.finishOnStart)
            QTimer::singleShot(0, this, [this] { finish(); });
    }
    bool waitForStarted(int) override { return m_result.started; }
    bool waitForFinished(int) override
    {
        const bool wasRunning = m_running;
        finish();
        return wasRunning;
    }
    bool isRunning() const override { return m_running; }
    int exitCode() const override { return m_result.exitCode; }
    QByteArray readAllStandardOutput() override { return std::exchange(m_result.standardOutput, {}); }
    QByteArray readAllStandardError() override { return std::exchange(m_result.standardError, {}); }
    void terminate() override { finish(); }
    void kill() override { finish(); }
    ~FakeProcess() override { m_runner.setRunning(this, false); }

    void finish()
    {
        if (!m_running)
            return;
        m_running = false;
        m_runner.setRunning(this, false);
        if (!m_result.standardOutput.isEmpty())
            emit readyReadStandardOutput();
        emit finished(m_result.exitCode);
    }

private:
    FakeCommandRunner& m_runner;
    CommandResult m_result;
    bool m_running = false;
};

} // namespace

void FakeCallLog::append(const FakeCommandCall& call)
{
    QMutexLocker locker(&m_mutex);
    m_calls.append(call);
}

void FakeCallLog::clear()
{
    QMutexLocker locker(&m_mutex);
    m_calls.clear();
}

int FakeCallLog::size() const
{
    QMutexLocker locker(&m_mutex);
    return m_calls.size();
}

FakeCommandCall FakeCallLog::at(int index) const
{
    QMutexLocker locker(&m_mutex);
    return m_calls.at(index);
}

FakeCommandCall FakeCallLog::last() const
{
    QMutexLocker locker(&m_mutex);
    return m_calls.last();
}

QList<FakeCommandCall> FakeCallLog::snapshot() const
{
    QMutexLocker locker(&m_mutex);
    return m_calls;
}

FakeCommandRunner::FakeCommandRunner()
{
    CommandRunner::setInstance(this);
}

FakeCommandRunner::~FakeCommandRunner()
{
    CommandRunner::setInstance(nullptr);
}

void FakeCommandRunner::answer(const QString& commandLine, const QByteArray& standardOutput, int exitCode,
                               const QByteArray& standardError)
{
    CommandResult result;
    result.started = true;
    result.finished = true;
    result.exitCode = exitCode;
    result.standardOutput = standardOutput;
    result.standardError = standardError;
    QMutexLocker locker(&m_mutex);
    m_answers.insert(commandLine, result);
}

CommandResult FakeCommandRunner::lookup(const QString& program, const QStringList& arguments) const
{
    const QString key = (QStringList(program) + arguments).join(QLatin1Char(' '));
    if (m_answers.contains(key))
        return m_answers.value(key);
    CommandResult result;
    result.started = result.finished = true;
    result.exitCode = 0;
    return result;
}

CommandResult FakeCommandRunner::record(const QString& program, const QStringList& arguments, bool detached)
{
    calls.append({program, arguments, detached, QThread::currentThread()});
    QMutexLocker locker(&m_mutex);
    return lookup(program, arguments);
}

CommandResult FakeCommandRunner::execute(const QString& program, const QStringList& arguments)
{
    return record(program, arguments, false);
}

bool FakeCommandRunner::executeDetached(const QString& program, const QStringList& arguments, qint64* pid)
{
    if (pid)
        *pid = 4242;
    return record(program, arguments, true).started;
}

std::unique_ptr<RunningProcess> FakeCommandRunner::createProcess()
{
    return std::make_unique<FakeProcess>(*this);
}

void FakeCommandRunner::setRunning(RunningProcess* process, bool running)
{
    QMutexLocker locker(&m_mutex);
    m_running.removeAll(process);
    if (running)
        m_running.append(process);
}

void FakeCommandRunner::finishAll()
{
    QList<RunningProcess*> list;
    {
        QMutexLocker locker(&m_mutex);
        list = m_running;
    }
    for (RunningProcess* process : list)
        static_cast<FakeProcess*>(process)->finish();
}

QList<QStringList> FakeCommandRunner::commandLines() const
{
    QList<QStringList> lines;
    const QList<Call> all = calls.snapshot();
    for (const Call& call : all)
        lines << call.commandLine();
    return lines;
}

QList<QStringList> FakeCommandRunner::commandLinesOfThisThread() const
{
    QList<QStringList> lines;
    const QList<Call> all = calls.snapshot();
    for (const Call& call : all)
        if (call.thread == QThread::currentThread())
            lines << call.commandLine();
    return lines;
}
