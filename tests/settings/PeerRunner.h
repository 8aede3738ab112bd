#pragma once

#include "ProcessRunner.h"
#include "TestSandbox.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>

// Runs commands for real, with the terminal's own paths (the data directory, the helpers under
// /opt/norbix) taken into the test's sandbox, as if the sandbox were the terminal's root. Installs
// itself as the process-wide runner for its lifetime.
class PeerRunner : public ProcessRunner {
public:
    explicit PeerRunner(const TestSandbox& sandbox) : m_root(sandbox.root()) { CommandRunner::setInstance(this); }
    ~PeerRunner() override { CommandRunner::setInstance(nullptr); }

    // A terminal program found elsewhere here (the build's helpers).
    void mapProgram(const QString& terminalPath, const QString& localPath) { m_programs.insert(terminalPath, localPath); }

    QString local(const QString& text) const
    {
        for (const char* prefix : {"/data/norbix/", "/opt/norbix/"}) {
            if (text.startsWith(QLatin1String(prefix)))
                return m_root + text;
        }
        return text;
    }

protected:
    CommandResult execute(const QString& program, const QStringList& arguments) override
    {
        QStringList mapped;
        for (const QString& argument : arguments)
            mapped << local(argument);
        return ProcessRunner::execute(m_programs.value(program, local(program)), mapped);
    }

private:
    QString m_root;
    QHash<QString, QString> m_programs;
};

// A `sudo` that runs its arguments as they are, first on PATH while it lives: the privileged
// commands then reach the private peers.
class PassThroughSudo {
public:
    PassThroughSudo() : m_oldPath(qgetenv("PATH"))
    {
        TestSandbox::writeFile(m_dir.filePath(QStringLiteral("sudo")), "#!/bin/sh\nexec \"$@\"\n");
        QFile::setPermissions(m_dir.filePath(QStringLiteral("sudo")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", m_dir.path().toUtf8() + ':' + m_oldPath);
    }
    ~PassThroughSudo() { qputenv("PATH", m_oldPath); }

private:
    QTemporaryDir m_dir;
    QByteArray m_oldPath;
};
