#include "FakeCommandRunner.h"

#include <utility>

namespace {

class FakeProcess : public RunningProcess {
public:
    explicit FakeProcess(CommandResult result) : m_result(std::move(result)) {}
    bool waitForStarted(int) override { return m_result.started; }
    bool waitForFinished(int) override
    {
        if (!m_done && m_result.started) {
            m_done = true;
            emit finished(m_result.exitCode);
        }
        return m_result.started;
    }
    bool isRunning() const override { return m_result.started && !m_done; }
    int exitCode() const override { return m_result.exitCode; }
    QByteArray readAllStandardOutput() override { return std::exchange(m_result.standardOutput, {}); }
    QByteArray readAllStandardError() override { return std::exchange(m_result.standardError, {}); }
    void terminate() override { kill(); }
    void kill() override { waitForFinished(0); }

private:
    CommandResult m_result;
    bool m_done = false;
};

} // namespace

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

CommandResult FakeCommandRunner::execute(const QString& program, const QStringList& arguments)
{
    calls.append({program, arguments, false});
    return lookup(program, arguments);
}

bool FakeCommandRunner::executeDetached(const QString& program, const QStringList& arguments, qint64* pid)
{
    calls.append({program, arguments, true});
    if (pid)
        *pid = 4242;
    return lookup(program, arguments).started;
}

std::unique_ptr<RunningProcess> FakeCommandRunner::executeProcess(const QString& program, const QStringList& arguments)
{
    calls.append({program, arguments, false});
    return std::make_unique<FakeProcess>(lookup(program, arguments));
}
