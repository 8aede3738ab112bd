#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

// Runs the real norbix-shell executable in a sandbox, for start-up and screen tests.
struct ShellRun {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

struct ShellProcess {
    QString workingDirectory;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();

    // Runs the program (norbix-shell by default) with the arguments, waiting up to `timeoutMs`.
    ShellRun run(const QString& program, const QStringList& arguments, int timeoutMs = 60000) const;
};
