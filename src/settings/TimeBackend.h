#pragma once

#include <QDate>
#include <QDateTime>
#include <QObject>
#include <QStringList>

class QQmlEngine;
class QJSEngine;

// Date, time, time zone and network time of the terminal, through timedatectl and timesyncd.
class TimeBackend : public QObject {
    Q_OBJECT
public:
    explicit TimeBackend(QObject* parent = nullptr);

    static TimeBackend* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    Q_INVOKABLE void updateTimezones();
    Q_INVOKABLE QStringList listTimezones() const { return m_timezones; }
    Q_INVOKABLE void updateLocalTimezone();
    Q_INVOKABLE QString getCurrentTimeZone() const { return m_currentTimezone; }
    Q_INVOKABLE QDate getCurrentDate() const { return QDate::currentDate(); }
    Q_INVOKABLE bool is24() const;
    // hour -1: the current hour. Two digits, 00-23 or 01-12.
    Q_INVOKABLE QString getHour(int hour, bool is24) const;
    Q_INVOKABLE QString getMinute() const;
    // hour -1: the current hour.
    Q_INVOKABLE QString getAmOrPm(int hour) const;
    Q_INVOKABLE void setDate(const QDate& date);
    Q_INVOKABLE void setHour(int hour);
    Q_INVOKABLE void setMinute(int minute);
    Q_INVOKABLE void set24(bool is24);
    Q_INVOKABLE void setAmOrPm(const QString& amOrPm);
    Q_INVOKABLE void setNtp(const QString& server);
    Q_INVOKABLE void setTimezone(const QString& label);
    Q_INVOKABLE QString getNtp() const;
    Q_INVOKABLE void apply();
    Q_INVOKABLE void applyWithTime();
    Q_INVOKABLE QString format(const QDateTime& dateTime, const QString& pattern) const;

    QString timezoneToSet() const { return m_timezoneToSet; }

    // The moment the staged values name; invalid when the hour or minute cannot be a time
    // (13 in 12-hour entry, 60 minutes, ...). 12 AM is midnight, 12 PM noon.
    static QDateTime composeDateTime(const QDate& date, int hour, int minute, bool is24, const QString& amOrPm);
    // An hour 0-23 as shown: two digits, 12-hour form 12, 01..11.
    static QString formatHour(int hour, bool is24);

private:
    void writeFormat();
    void setTimezoneNow();

    QStringList m_timezones;
    QString m_currentTimezone;
    QDate m_dateToSet;
    int m_hourToSet = 0;
    int m_minuteToSet = 0;
    bool m_is24 = true;
    QString m_amOrPm = QStringLiteral("AM");
    QString m_timezoneToSet;
    QString m_ntp;
};
