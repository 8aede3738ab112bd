#pragma once

#include "CommandRunner.h"

// Runs commands for real through QProcess.
class ProcessRunner : public CommandRunner {
public:
    std::unique_ptr<RunningProcess> createProcess() override;

protected:
    CommandResult execute(const QString& program, const QStringList& arguments) override;
    bool executeDetached(const QString& program, const QStringList& arguments, qint64* pid) override;
};
