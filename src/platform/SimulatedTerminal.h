#pragma once

#include "CommandRunner.h"

#include <QJsonArray>

#include <functional>
#include <optional>

// The terminal the shell talks to under NORBIX_SIMULATE=1: nothing is run, every command is answered
// from recorded output of the real tools (the fixtures under tests/data/simulation, compiled in) or
// by a small handler where an answer needs logic. Unknown commands succeed silently.
class SimulatedTerminal : public CommandRunner {
public:
    struct Answer {
        CommandResult result;
        int delayMs = 0; // how long a started process appears to run
    };
    using Handler = std::function<std::optional<Answer>(const QString& program, const QStringList& arguments)>;

    SimulatedTerminal();

    // Handlers are asked before the fixture table, newest first.
    static void addHandler(const Handler& handler);

    // What the terminal answers to one command (public for tests and tools).
    Answer answer(const QString& program, const QStringList& arguments) const;

    // A command that ran to its end with this status and output (for the handlers of each domain).
    static Answer finished(int exitCode = 0, const QByteArray& out = {}, const QByteArray& err = {});
    // A recorded output of a real tool (tests/data/simulation, compiled in); empty when missing.
    static QByteArray fixture(const QString& name);

    // Creates the folders a terminal image has (under NORBIX_ROOT only).
    static void prepareSandbox();

    std::unique_ptr<RunningProcess> createProcess() override;

protected:
    CommandResult execute(const QString& program, const QStringList& arguments) override;
    bool executeDetached(const QString& program, const QStringList& arguments, qint64* pid) override;

private:
    std::optional<Answer> fromTable(const QString& program, const QStringList& arguments) const;
    QJsonArray m_rules;
};
