#pragma once

#include "ShellProcess.h"
#include "TestSandbox.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

// The real norbix-shell in the simulated terminal, with a sandbox and a working directory of its
// own: start it, then read its log and the commands it ran (as "program arg arg ..." lines).
struct SimulatedShell {
    TestSandbox sandbox;
    QTemporaryDir workingDir;
    ShellProcess shell;

    SimulatedShell()
    {
        QFile::copy(QStringLiteral(NORBIX_BUILD_DIR "/quarnos.ttf"), workingDir.filePath(QStringLiteral("quarnos.ttf")));
        shell.workingDirectory = workingDir.path();
        shell.environment.insert(QStringLiteral("NORBIX_SIMULATE"), QStringLiteral("1"));
        shell.environment.insert(QStringLiteral("NORBIX_ROOT"), sandbox.root());
        shell.environment.insert(QStringLiteral("HOME"), sandbox.home());
        shell.environment.insert(QStringLiteral("NORBIX_COMMAND_LOG"), commandLog());
        shell.environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        shell.environment.remove(QStringLiteral("QT_QUICK_BACKEND"));
        shell.environment.remove(QStringLiteral("DISPLAY"));
    }

    // The test's own command log (NORBIX_COMMAND_LOG from ctest) gets the shell's commands too:
    // the sudoers check reads every command the suite saw.
    ~SimulatedShell()
    {
        const QString outer = qEnvironmentVariable("NORBIX_COMMAND_LOG");
        if (outer.isEmpty() || outer == commandLog())
            return;
        QFile file(outer);
        if (file.open(QIODevice::WriteOnly | QIODevice::Append))
            file.write(TestSandbox::readFile(commandLog()));
    }

    QString commandLog() const { return sandbox.home() + QStringLiteral("/commands.jsonl"); }
    QString screenshot() const { return sandbox.home() + QStringLiteral("/shot.png"); }

    // Starts the shell, waits until its main view is on screen, saves it and lets it exit.
    ShellRun start(const QStringList& extraArguments = {})
    {
        return shell.run(QStringLiteral(NORBIX_SHELL_BINARY),
                         QStringList{"--screenshot", screenshot(), "--size", "1280x720"} + extraArguments);
    }

    // Starts the shell for a session the test drives itself; it runs until the test ends it.
    void launch(QProcess& process) const
    {
        process.setProcessEnvironment(shell.environment);
        process.setWorkingDirectory(shell.workingDirectory);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(NORBIX_SHELL_BINARY), {QStringLiteral("--size"), QStringLiteral("1280x720")});
    }

    // A terminal managed by the server at `url`.
    void manageBy(const QString& url, const QString& account) const
    {
        QSettings settings(sandbox.dataFile(QStringLiteral("api.ini")), QSettings::IniFormat);
        settings.setValue(QStringLiteral("Enabled"), true);
        settings.setValue(QStringLiteral("URL"), url);
        settings.setValue(QStringLiteral("Account"), account);
    }

    // Every day's log, oldest first.
    QString log() const
    {
        const QDir logs(sandbox.home() + QStringLiteral("/logs"));
        QString text;
        for (const QFileInfo& file : logs.entryInfoList(QDir::Files, QDir::Time | QDir::Reversed))
            text += QString::fromUtf8(TestSandbox::readFile(file.filePath()));
        return text;
    }

    QStringList commands() const
    {
        QStringList lines;
        for (const QByteArray& line : TestSandbox::readFile(commandLog()).split('\n')) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            if (object.isEmpty())
                continue;
            QStringList words(object.value(QLatin1String("program")).toString());
            for (const QJsonValue& arg : object.value(QLatin1String("args")).toArray())
                words << arg.toString();
            lines << words.join(QLatin1Char(' '));
        }
        return lines;
    }
};
