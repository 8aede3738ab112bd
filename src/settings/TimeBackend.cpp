#include "TimeBackend.h"

#include "CommandRunner.h"
#include "QmlSingleton.h"
#include "SettingsChange.h"
#include "SystemPaths.h"
#include "TimeZoneTable.h"

#include <QDebug>
#include <QLocale>
#include <QSettings>

namespace {

const QString kTimesyncdConf = QStringLiteral("/etc/systemd/timesyncd.conf");

CommandResult sudoTimedatectl(const QStringList& arguments)
{
    return CommandRunner::instance().run(QStringLiteral("sudo"), QStringList(QStringLiteral("timedatectl")) + arguments);
}

void logNtpStep(const CommandResult& result)
{
    if (!result.standardOutput.isEmpty())
        qInfo().noquote() << "Apply NTP: " + QString::fromLocal8Bit(result.standardOutput);
    if (!result.standardError.isEmpty())
        qWarning().noquote() << "Apply NTP failed: " + QString::fromLocal8Bit(result.standardError);
}

} // namespace

TimeBackend::TimeBackend(QObject* parent)
    : QObject(parent)
{
    m_is24 = is24();
    m_dateToSet = QDate::currentDate();
}

TimeBackend* TimeBackend::getInstance()
{
    static TimeBackend* const instance = new TimeBackend;
    return instance;
}

QObject* TimeBackend::qmlInstance(QQmlEngine*, QJSEngine*)
{
    return qmlSingleton<TimeBackend>();
}

void TimeBackend::updateTimezones()
{
    m_timezones = TimeZoneTable::labels();
}

void TimeBackend::updateLocalTimezone()
{
    const CommandResult result = CommandRunner::instance().run(QStringLiteral("timedatectl"), {});
    const QString zone = TimeZoneTable::parseTimedatectlZone(result.standardOutput);
    if (zone.isEmpty()) {
        qInfo().noquote() << "No time zone in timedatectl's answer: " + QString::fromLocal8Bit(result.standardError).trimmed();
        return;
    }
    m_currentTimezone = zone;
}

bool TimeBackend::is24() const
{
    return QSettings(SystemPaths::dataFile(QStringLiteral("time.ini")), QSettings::IniFormat)
        .value(QStringLiteral("Is24"), true)
        .toBool();
}

QString TimeBackend::formatHour(int hour, bool is24)
{
    if (!is24) {
        hour %= 12;
        if (hour == 0)
            hour = 12;
    }
    return QStringLiteral("%1").arg(hour, 2, 10, QLatin1Char('0'));
}

QString TimeBackend::getHour(int hour, bool is24) const
{
    return formatHour(hour < 0 ? QTime::currentTime().hour() : hour, is24);
}

QString TimeBackend::getMinute() const
{
    return QStringLiteral("%1").arg(QTime::currentTime().minute(), 2, 10, QLatin1Char('0'));
}

QString TimeBackend::getAmOrPm(int hour) const
{
    if (hour < 0)
        hour = QTime::currentTime().hour();
    return hour < 12 ? QStringLiteral("AM") : QStringLiteral("PM");
}

void TimeBackend::setDate(const QDate& date)
{
    qInfo().noquote() << "Set date to " + date.toString(Qt::ISODate);
    m_dateToSet = date;
}

void TimeBackend::setHour(int hour)
{
    qInfo().noquote() << "Set hour " + QString::number(hour);
    m_hourToSet = hour;
}

void TimeBackend::setMinute(int minute)
{
    m_minuteToSet = minute;
}

void TimeBackend::set24(bool is24)
{
    qInfo().noquote() << "Set 24hour mode " + QString(is24 ? "true" : "false");
    m_is24 = is24;
}

void TimeBackend::setAmOrPm(const QString& amOrPm)
{
    qInfo().noquote() << "Set AM/PM " + amOrPm;
    m_amOrPm = amOrPm;
}

void TimeBackend::setNtp(const QString& server)
{
    qInfo().noquote() << "Set NTP server " + server;
    m_ntp = server.trimmed();
}

void TimeBackend::setTimezone(const QString& label)
{
    qInfo().noquote() << "Setting timzeone " + label;
    m_timezoneToSet = TimeZoneTable::zoneOf(label);
    qInfo().noquote() << "Parsed timezone " + m_timezoneToSet;
}

QString TimeBackend::getNtp() const
{
    return QSettings(SystemPaths::resolve(kTimesyncdConf), QSettings::IniFormat)
        .value(QStringLiteral("Time/NTP"))
        .toString();
}

QDateTime TimeBackend::composeDateTime(const QDate& date, int hour, int minute, bool is24, const QString& amOrPm)
{
    const QString hhmm = QStringLiteral("%1:%2").arg(hour, 2, 10, QLatin1Char('0')).arg(minute, 2, 10, QLatin1Char('0'));
    const QTime time = is24 ? QTime::fromString(hhmm, QStringLiteral("hh:mm"))
                            : QTime::fromString(hhmm + QLatin1Char(' ') + amOrPm.trimmed().toUpper(), QStringLiteral("hh:mm ap"));
    if (!date.isValid() || !time.isValid() || (!is24 && (hour < 1 || hour > 12)))
        return {};
    return QDateTime(date, time);
}

void TimeBackend::writeFormat()
{
    QSettings(SystemPaths::dataFile(QStringLiteral("time.ini")), QSettings::IniFormat).setValue(QStringLiteral("Is24"), m_is24);
}

void TimeBackend::setTimezoneNow()
{
    if (m_timezoneToSet.isEmpty()) {
        qWarning() << "No time zone chosen, time zone left as it is";
        return;
    }
    const CommandResult result = sudoTimedatectl({QStringLiteral("set-timezone"), m_timezoneToSet});
    qInfo().noquote() << "Set timezone " + QString::fromLocal8Bit(result.standardOutput + result.standardError);
}

void TimeBackend::applyWithTime()
{
    writeFormat();
    sudoTimedatectl({QStringLiteral("set-ntp"), m_ntp.isEmpty() ? QStringLiteral("false") : QStringLiteral("true")});

    const QDateTime moment = composeDateTime(m_dateToSet, m_hourToSet, m_minuteToSet, m_is24, m_amOrPm);
    if (moment.isValid()) {
        sudoTimedatectl({QStringLiteral("set-time"), moment.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"))});
    } else {
        qWarning().noquote() << QStringLiteral("Not a time, clock left as it is: %1:%2 %3")
                                    .arg(m_hourToSet).arg(m_minuteToSet).arg(m_is24 ? QString() : m_amOrPm);
    }

    {
        QSettings conf(SystemPaths::dataFile(QStringLiteral("timesyncd.conf")), QSettings::IniFormat);
        conf.setValue(QStringLiteral("Time/NTP"), m_ntp);
        conf.sync();
    }
    CommandRunner& runner = CommandRunner::instance();
    logNtpStep(runner.runCommandLine(QStringLiteral("sudo rm /etc/systemd/timesyncd.conf")));
    logNtpStep(runner.runCommandLine(QStringLiteral("sudo cp /data/norbix/timesyncd.conf /etc/systemd/timesyncd.conf")));

    setTimezoneNow();
    SettingsChange::report();
}

void TimeBackend::apply()
{
    writeFormat();
    sudoTimedatectl({QStringLiteral("set-ntp"), QStringLiteral("0")});
    setTimezoneNow();
    SettingsChange::report();
}

QString TimeBackend::format(const QDateTime& dateTime, const QString& pattern) const
{
    // Day and month names in the display language (start-up sets the default locale with it).
    return QLocale().toString(dateTime, pattern);
}
