#include "FileMigration.h"

#include "CommandRunner.h"
#include "SystemPaths.h"
#include "Updater.h"

#include <QDebug>
#include <QDir>
#include <QFile>

namespace {

const char* const kLegacyFiles[] = {"api.ini",      "language.ini", "connections.ini", "keyboard.ini",    "printers.ini",
                                    "display.ini", "time.ini",     "wizard_lock",     "connections.json"};

void writeSuspendScript()
{
    QFile script(SystemPaths::resolve(QStringLiteral("/opt/norbix/tools/suspend.sh")));
    if (script.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        script.write("sudo systemctl suspend");
        script.close();
    } else {
        qWarning() << "Cannot write" << script.fileName() << script.errorString();
    }
    CommandRunner::instance().runCommandLine(QStringLiteral("chmod +x /opt/norbix/tools/suspend.sh"));
}

} // namespace

void migrateFiles()
{
    const CommandResult mkdir = CommandRunner::instance().run(
        QStringLiteral("bash"),
        {QStringLiteral("-c"),
         QStringLiteral("sudo mkdir -p /data/norbix && sudo chmod 0777 /data/norbix && sudo chown -R $USER /data/norbix")});
    qDebug().noquote() << QString::fromLocal8Bit(mkdir.standardError);
    qDebug().noquote() << QString::fromLocal8Bit(mkdir.standardOutput);

    Updater::getInstance();

    // The file already in the data directory wins: the working-directory copy goes either way.
    for (const char* name : kLegacyFiles) {
        const QString legacy = QString::fromLatin1(name);
        if (!QFile::exists(legacy))
            continue;
        QFile::copy(legacy, SystemPaths::dataFile(legacy));
        QFile::remove(legacy);
    }

    writeSuspendScript();
}

void removeStaleLocks()
{
    const QDir data(SystemPaths::dataFile(QString()));
    for (const QString& name : data.entryList({QStringLiteral("*.lock")}, QDir::Files | QDir::Hidden)) {
        qWarning().noquote() << "Removing stale lock" << name;
        QFile::remove(data.filePath(name));
    }
}
