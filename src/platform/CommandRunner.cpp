#include "CommandRunner.h"

#include "CommandLog.h"
#include "ProcessRunner.h"
#include "SimulatedTerminal.h"

#include <QProcess>

#include <atomic>

namespace {
std::atomic<CommandRunner*> g_override{nullptr};
}

CommandResult CommandRunner::run(const QString& program, const QStringList& arguments)
{
    CommandLog::record(program, arguments, false);
    return execute(program, arguments);
}

CommandResult CommandRunner::runCommandLine(const QString& commandLine)
{
    QStringList parts = split(commandLine);
    if (parts.isEmpty())
        return {};
    const QString program = parts.takeFirst();
    return run(program, parts);
}

bool CommandRunner::startDetached(const QString& program, const QStringList& arguments, qint64* pid)
{
    CommandLog::record(program, arguments, true);
    return executeDetached(program, arguments, pid);
}

bool CommandRunner::startDetachedCommandLine(const QString& commandLine)
{
    QStringList parts = split(commandLine);
    if (parts.isEmpty())
        return false;
    const QString program = parts.takeFirst();
    return startDetached(program, parts);
}

std::unique_ptr<RunningProcess> CommandRunner::start(const QString& program, const QStringList& arguments)
{
    std::unique_ptr<RunningProcess> process = createProcess();
    process->start(program, arguments);
    return process;
}

void RunningProcess::start(const QString& program, const QStringList& arguments)
{
    CommandLog::record(program, arguments, false);
    doStart(program, arguments);
}

void RunningProcess::startCommandLine(const QString& commandLine)
{
    QStringList parts = CommandRunner::split(commandLine);
    const QString program = parts.isEmpty() ? QString() : parts.takeFirst();
    start(program, parts);
}

QStringList CommandRunner::split(const QString& commandLine)
{
    return QProcess::splitCommand(commandLine);
}

bool CommandRunner::simulating()
{
    return qEnvironmentVariable("NORBIX_SIMULATE") == QLatin1String("1");
}

CommandRunner& CommandRunner::instance()
{
    if (CommandRunner* injected = g_override.load())
        return *injected;
    // Chosen once: switching between real and simulated commands mid-run would be a lie.
    static CommandRunner* const fromEnvironment = simulating()
        ? static_cast<CommandRunner*>(new SimulatedTerminal)
        : static_cast<CommandRunner*>(new ProcessRunner);
    return *fromEnvironment;
}

void CommandRunner::setInstance(CommandRunner* runner)
{
    g_override.store(runner);
}
