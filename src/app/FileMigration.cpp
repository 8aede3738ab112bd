#include "FileMigration.h"

#include "CommandRunner.h"
#include "SystemPaths.h"
#include "Updater.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

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

void removeWriteLeftovers()
{
    static const QRegularExpression leftover(QStringLiteral("^(.+\\.lock(\\.rmlock)?|.+\\.[A-Za-z0-9]{6})$"));
    for (const QString& folder : {SystemPaths::dataFile(QString()), SystemPaths::dataFile(QStringLiteral("wallpaper")),
                                  SystemPaths::dataFile(QStringLiteral("8021x"))}) {
        const QDir dir(folder);
        for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden)) {
            if (!leftover.match(name).hasMatch())
                continue;
            // A temporary copy is only recognised beside the file it was meant to replace.
            const bool lock = name.endsWith(QLatin1String(".lock")) || name.endsWith(QLatin1String(".lock.rmlock"));
            if (!lock && !QFile::exists(dir.filePath(name.left(name.size() - 7))))
                continue;
            qWarning().noquote() << "Removing what an interrupted write left:" << name;
            QFile::remove(dir.filePath(name));
        }
    }
}
