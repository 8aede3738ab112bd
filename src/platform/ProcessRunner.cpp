#include "ProcessRunner.h"

#include <QProcess>

namespace {

class QProcessHandle : public RunningProcess {
public:
    QProcessHandle()
    {
        connect(&m_process, &QProcess::readyReadStandardOutput, this, &RunningProcess::readyReadStandardOutput);
        connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
                [this](int code, QProcess::ExitStatus) { emit finished(code); });
    }
    void doStart(const QString& program, const QStringList& arguments) override { m_process.start(program, arguments); }
    bool waitForStarted(int msecs) override { return m_process.waitForStarted(msecs); }
    bool waitForFinished(int msecs) override { return m_process.waitForFinished(msecs); }
    bool isRunning() const override { return m_process.state() != QProcess::NotRunning; }
    int exitCode() const override { return m_process.exitCode(); }
    QByteArray readAllStandardOutput() override { return m_process.readAllStandardOutput(); }
    QByteArray readAllStandardError() override { return m_process.readAllStandardError(); }
    void terminate() override { m_process.terminate(); }
    void kill() override { m_process.kill(); }

private:
    QProcess m_process;
};

} // namespace

CommandResult ProcessRunner::execute(const QString& program, const QStringList& arguments)
{
    CommandResult result;
    QProcess process;
    process.start(program, arguments);
    result.started = process.waitForStarted(kStartTimeoutMs);
    if (result.started)
        result.finished = process.waitForFinished(kFinishTimeoutMs);
    result.exitCode = result.finished && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.standardOutput = process.readAllStandardOutput();
    result.standardError = process.readAllStandardError();
    return result;
}

bool ProcessRunner::executeDetached(const QString& program, const QStringList& arguments, qint64* pid)
{
    return QProcess::startDetached(program, arguments, QString(), pid);
}

std::unique_ptr<RunningProcess> ProcessRunner::createProcess()
{
    return std::make_unique<QProcessHandle>();
}
