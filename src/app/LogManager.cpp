#include "LogManager.h"

#include "CommandRunner.h"
#include "Logging.h"
#include "SystemPaths.h"

#include <QDate>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QSettings>

QString LogManager::currentRun(const QString& dayLog)
{
    const int start = dayLog.lastIndexOf(QLatin1String("[WARNING] Version:"));
    return start < 0 ? dayLog : dayLog.mid(start);
}

QString LogManager::loadLogs()
{
    QFile file(Logging::logFilePath(QDate::currentDate()));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return currentRun(QString::fromUtf8(file.readAll()));
}

QString LogManager::saveLog(const QString& folder, bool all)
{
    if (folder.isEmpty())
        return {};
    CommandRunner& runner = CommandRunner::instance();
    if (all) {
        runner.runCommandLine(QStringLiteral("sudo cp -r %1 %2").arg(Logging::logDirectory(), folder + QLatin1Char('/')));
        const CommandResult result = runner.runCommandLine(QStringLiteral("sudo cp /var/log/syslog ") + folder + QStringLiteral("/syslog"));
        qInfo() << "All logs saved";
        return QString::fromLocal8Bit(result.standardOutput);
    }
    runner.run(QStringLiteral("sudo"), {QStringLiteral("rm"), folder});
    const CommandResult result = runner.run(
        QStringLiteral("sudo"), {QStringLiteral("cp"), Logging::logFilePath(QDate::currentDate()), folder + QStringLiteral("/app.log")});
    qInfo() << "Last day log saved";
    return QString::fromLocal8Bit(result.standardOutput);
}

bool LogManager::isDebug()
{
    return Logging::debugEnabled();
}

void LogManager::setDebugEnabled(bool enabled)
{
    QSettings(SystemPaths::dataFile(QStringLiteral("api.ini")), QSettings::IniFormat)
        .setValue(QStringLiteral("DebugLogs"), enabled);
}

QStringList LogManager::listFolders()
{
    QStringList folders;
    const QFileInfoList entries = QDir(SystemPaths::resolve(QStringLiteral("/media")))
                                      .entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries)
        folders << entry.absoluteFilePath();
    return folders;
}
