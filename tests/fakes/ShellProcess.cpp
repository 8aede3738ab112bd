#include "ShellProcess.h"

#include <QProcess>

ShellRun ShellProcess::run(const QString& program, const QStringList& arguments, int timeoutMs) const
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(workingDirectory);
    process.start(program, arguments);
    ShellRun result;
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
    }
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.out = process.readAllStandardOutput();
    result.err = process.readAllStandardError();
    return result;
}
