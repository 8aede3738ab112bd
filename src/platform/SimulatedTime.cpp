#include "SimulatedTime.h"

#include "SystemPaths.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QTimeZone>

namespace {

const QString kTimesyncd = QStringLiteral("/etc/systemd/timesyncd.conf");

QMutex g_mutex;
QString g_zone = QStringLiteral("Europe/Berlin");
bool g_ntp = true;
qint64 g_offsetMs = 0; // the set time minus the workstation's clock

// As systemd 252 prints it.
QByteArray status()
{
    const QDateTime utc = QDateTime::currentDateTimeUtc().addMSecs(g_offsetMs);
    const QTimeZone zone(g_zone.toUtf8());
    const QDateTime local = utc.toTimeZone(zone);
    const QString offset = local.timeZone().displayName(local, QTimeZone::OffsetName).remove(QStringLiteral("UTC")).remove(QLatin1Char(':'));
    const QString abbreviation = local.timeZoneAbbreviation();
    QString text;
    text += QStringLiteral("               Local time: %1 %2\n").arg(QLocale::c().toString(local, QStringLiteral("ddd yyyy-MM-dd HH:mm:ss")), abbreviation);
    text += QStringLiteral("           Universal time: %1 UTC\n").arg(QLocale::c().toString(utc, QStringLiteral("ddd yyyy-MM-dd HH:mm:ss")));
    text += QStringLiteral("                 RTC time: %1\n").arg(QLocale::c().toString(utc, QStringLiteral("ddd yyyy-MM-dd HH:mm:ss")));
    text += QStringLiteral("                Time zone: %1 (%2, %3)\n").arg(g_zone, abbreviation, offset.isEmpty() ? QStringLiteral("+0000") : offset);
    text += QStringLiteral("System clock synchronized: %1\n").arg(g_ntp ? QStringLiteral("yes") : QStringLiteral("no"));
    text += QStringLiteral("              NTP service: %1\n").arg(g_ntp ? QStringLiteral("active") : QStringLiteral("inactive"));
    text += QStringLiteral("          RTC in local TZ: no\n");
    return text.toUtf8();
}

SimulatedTerminal::Answer timedatectl(const QStringList& arguments)
{
    if (arguments.isEmpty() || arguments == QStringList(QStringLiteral("status")))
        return SimulatedTerminal::finished(0, status());
    const QString verb = arguments.first();
    if (verb == QLatin1String("set-ntp") && arguments.size() == 2) {
        const QString value = arguments.at(1);
        if (QStringList{"1", "true", "yes", "on"}.contains(value))
            g_ntp = true;
        else if (QStringList{"0", "false", "no", "off"}.contains(value))
            g_ntp = false;
        else
            return SimulatedTerminal::finished(1, {}, "Failed to parse NTP setting '" + value.toUtf8() + "': Invalid argument\n");
        return SimulatedTerminal::finished(0);
    }
    if (verb == QLatin1String("set-timezone") && arguments.size() == 2) {
        if (!QFileInfo::exists(QStringLiteral("/usr/share/zoneinfo/") + arguments.at(1))
            && !QTimeZone(arguments.at(1).toUtf8()).isValid())
            return SimulatedTerminal::finished(1, {}, "Failed to set time zone: Invalid or not installed time zone '" + arguments.at(1).toUtf8() + "'\n");
        g_zone = arguments.at(1);
        return SimulatedTerminal::finished(0);
    }
    if (verb == QLatin1String("set-time") && arguments.size() == 2) {
        if (g_ntp)
            return SimulatedTerminal::finished(1, {}, "Failed to set time: Automatic time synchronization is enabled\n");
        QDateTime wanted = QDateTime::fromString(arguments.at(1), QStringLiteral("yyyy-MM-dd hh:mm:ss"));
        if (!wanted.isValid())
            return SimulatedTerminal::finished(1, {}, "Failed to parse time specification '" + arguments.at(1).toUtf8() + "': Invalid argument\n");
        wanted.setTimeZone(QTimeZone(g_zone.toUtf8()));
        g_offsetMs = QDateTime::currentDateTimeUtc().msecsTo(wanted.toUTC());
        return SimulatedTerminal::finished(0);
    }
    return SimulatedTerminal::finished(1, {}, "Unknown command verb " + verb.toUtf8() + ".\n");
}

} // namespace

std::optional<SimulatedTerminal::Answer> SimulatedTime::answer(const QString& program, const QStringList& arguments)
{
    QMutexLocker locker(&g_mutex);
    if (program == QLatin1String("timedatectl"))
        return timedatectl(arguments);
    if (program != QLatin1String("sudo") || arguments.isEmpty())
        return std::nullopt;
    if (arguments.first() == QLatin1String("timedatectl"))
        return timedatectl(arguments.mid(1));
    if (SystemPaths::root().isEmpty())
        return std::nullopt;
    if (arguments == QStringList{QStringLiteral("rm"), kTimesyncd}) {
        if (!QFile::remove(SystemPaths::resolve(kTimesyncd)))
            return SimulatedTerminal::finished(1, {}, "rm: cannot remove '/etc/systemd/timesyncd.conf': No such file or directory\n");
        return SimulatedTerminal::finished(0);
    }
    if (arguments.size() == 3 && arguments.at(0) == QLatin1String("cp") && arguments.at(2) == kTimesyncd) {
        const QString target = SystemPaths::resolve(kTimesyncd);
        QDir().mkpath(QFileInfo(target).absolutePath());
        QFile::remove(target);
        if (!QFile::copy(SystemPaths::resolve(arguments.at(1)), target))
            return SimulatedTerminal::finished(1, {}, "cp: cannot stat '" + arguments.at(1).toUtf8() + "': No such file or directory\n");
        return SimulatedTerminal::finished(0);
    }
    return std::nullopt;
}

void SimulatedTime::reset()
{
    QMutexLocker locker(&g_mutex);
    g_zone = QStringLiteral("Europe/Berlin");
    g_ntp = true;
    g_offsetMs = 0;
}
