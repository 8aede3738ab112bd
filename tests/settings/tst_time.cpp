#include "FakeCommandRunner.h"
#include "TestSandbox.h"
#include "TimeBackend.h"
#include "TimeZoneTable.h"

#include <QFileInfo>
#include <QSettings>
#include <QtTest>

namespace {

QByteArray fixture(const QString& name)
{
    return TestSandbox::readFile(QStringLiteral(NORBIX_TEST_DATA "/") + name);
}

} // namespace

class tst_Time : public QObject {
    Q_OBJECT

    std::unique_ptr<TestSandbox> m_sandbox;
    std::unique_ptr<FakeCommandRunner> m_runner;

private slots:
    void init()
    {
        m_sandbox = std::make_unique<TestSandbox>();
        m_runner = std::make_unique<FakeCommandRunner>();
    }
    void cleanup()
    {
        m_runner.reset();
        m_sandbox.reset();
    }

    void table()
    {
        const QStringList& labels = TimeZoneTable::labels();
        QCOMPARE(labels.size(), 102);
        QCOMPARE(labels.first(), QStringLiteral("(UTC-12:00) Etc/GMT-12"));
        QCOMPARE(labels.last(), QStringLiteral("(UTC+14:00) Pacific/Kiritimati"));
        QVERIFY(labels.contains(QStringLiteral("(UTC-08:00) America/Los_Angeles,  California")));
        QVERIFY(labels.contains(QStringLiteral("(UTC+01:00) Europe/Warsaw, Sarajevo, Skopje,  Zagreb")));
        QVERIFY(labels.contains(QStringLiteral("(UTC+12:00) Etc/GMT+12")));
        QCOMPARE(QStringList(labels).removeDuplicates(), 0);
        // Offsets never decrease from top to bottom.
        int previous = -24 * 60;
        for (const QString& label : labels) {
            const QRegularExpressionMatch m = QRegularExpression(QStringLiteral("^\\(UTC(?:([+-])(\\d\\d):(\\d\\d))?\\) ")).match(label);
            QVERIFY2(m.hasMatch(), qPrintable(label));
            const int minutes = m.captured(1).isEmpty() ? 0
                : (m.captured(1) == QLatin1String("-") ? -1 : 1) * (m.captured(2).toInt() * 60 + m.captured(3).toInt());
            QVERIFY2(minutes >= previous, qPrintable(label));
            previous = minutes;
        }
    }

    // Every label names a zone the system knows, but for the one the table has always carried
    // although tzdata has no such zone.
    void labelsParse_data()
    {
        QTest::addColumn<QString>("label");
        for (const QString& label : TimeZoneTable::labels())
            QTest::newRow(qPrintable(label)) << label;
    }
    void labelsParse()
    {
        QFETCH(QString, label);
        const QString zone = TimeZoneTable::zoneOf(label);
        QVERIFY(!zone.isEmpty());
        QVERIFY2(!zone.contains(QLatin1Char(' ')) && !zone.contains(QLatin1Char(',')) && !zone.contains(QLatin1Char(')')),
                 qPrintable(zone));
        QVERIFY2(label.contains(QStringLiteral(") ") + zone), qPrintable(zone));
        static const QStringList notInTzdata{QStringLiteral("America/Newfoundland")};
        const bool known = QFileInfo::exists(QStringLiteral("/usr/share/zoneinfo/") + zone);
        QCOMPARE(known, !notInTzdata.contains(zone));
    }

    void zoneOf_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("zone");
        QTest::newRow("no comma") << "(UTC+14:00) Pacific/Kiritimati" << "Pacific/Kiritimati";
        QTest::newRow("place names") << "(UTC-05:00) America/New_York, Toronto, Eastern Time (US & Canada)" << "America/New_York";
        QTest::newRow("double space") << "(UTC-08:00) America/Los_Angeles,  California" << "America/Los_Angeles";
        QTest::newRow("zero offset") << "(UTC) Europe/London, Coordinated Universal Time" << "Europe/London";
        QTest::newRow("parenthesis after the comma") << "(UTC+02:00) Europe/Kaliningrad, (RTZ 1)" << "Europe/Kaliningrad";
        QTest::newRow("Etc sign kept") << "(UTC-12:00) Etc/GMT-12" << "Etc/GMT-12";
        QTest::newRow("not a label") << "Europe/Berlin" << "";
        QTest::newRow("empty") << "" << "";
    }
    void zoneOf()
    {
        QFETCH(QString, label);
        QTEST(TimeZoneTable::zoneOf(label), "zone");
    }

    void timedatectl_data()
    {
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<QString>("zone");
        QTest::newRow("Berlin") << fixture("timedatectl/timedatectl-status.txt") << "Europe/Berlin";
        QTest::newRow("Etc, no RTC") << fixture("timedatectl/timedatectl-status-etc.txt") << "Etc/GMT+12";
        QTest::newRow("no systemd") << QByteArray() << "";
        QTest::newRow("zone missing") << QByteArray("Time zone: \n") << "";
    }
    void timedatectl()
    {
        QFETCH(QByteArray, status);
        QTEST(TimeZoneTable::parseTimedatectlZone(status), "zone");
    }

    void updateLocalTimezone()
    {
        TimeBackend time;
        m_runner->answer("timedatectl", fixture("timedatectl/timedatectl-status.txt"));
        time.updateLocalTimezone();
        QCOMPARE(time.getCurrentTimeZone(), QStringLiteral("Europe/Berlin"));
        m_runner->answer("timedatectl", {}, 1, "System has not been booted with systemd as init system (PID 1). Can't operate.\n");
        time.updateLocalTimezone();
        QCOMPARE(time.getCurrentTimeZone(), QStringLiteral("Europe/Berlin"));
        QCOMPARE(m_runner->commandLines().last(), QStringList("timedatectl"));
    }

    void compose_data()
    {
        QTest::addColumn<int>("hour");
        QTest::addColumn<int>("minute");
        QTest::addColumn<bool>("is24");
        QTest::addColumn<QString>("amPm");
        QTest::addColumn<QString>("expected"); // empty: not a time
        QTest::newRow("12:30 PM is noon") << 12 << 30 << false << "PM" << "2026-03-01 12:30:00";
        QTest::newRow("12:30 AM is after midnight") << 12 << 30 << false << "AM" << "2026-03-01 00:30:00";
        QTest::newRow("1 PM") << 1 << 5 << false << "PM" << "2026-03-01 13:05:00";
        QTest::newRow("11 PM, lower case") << 11 << 59 << false << "pm" << "2026-03-01 23:59:00";
        QTest::newRow("11 AM") << 11 << 0 << false << "AM" << "2026-03-01 11:00:00";
        QTest::newRow("24-hour midnight") << 0 << 0 << true << "PM" << "2026-03-01 00:00:00";
        QTest::newRow("24-hour evening") << 23 << 7 << true << "" << "2026-03-01 23:07:00";
        QTest::newRow("13 in 12-hour entry") << 13 << 0 << false << "PM" << "";
        QTest::newRow("0 in 12-hour entry") << 0 << 10 << false << "AM" << "";
        QTest::newRow("24 in 24-hour entry") << 24 << 0 << true << "" << "";
        QTest::newRow("minute 60") << 10 << 60 << true << "" << "";
        QTest::newRow("no AM or PM") << 10 << 0 << false << "" << "";
    }
    void compose()
    {
        QFETCH(int, hour);
        QFETCH(int, minute);
        QFETCH(bool, is24);
        QFETCH(QString, amPm);
        const QDateTime moment = TimeBackend::composeDateTime(QDate(2026, 3, 1), hour, minute, is24, amPm);
        QTEST(moment.isValid() ? moment.toString("yyyy-MM-dd hh:mm:ss") : QString(), "expected");
    }

    void hours_data()
    {
        QTest::addColumn<int>("hour");
        QTest::addColumn<QString>("h24");
        QTest::addColumn<QString>("h12");
        QTest::addColumn<QString>("amPm");
        QTest::newRow("midnight") << 0 << "00" << "12" << "AM";
        QTest::newRow("morning") << 9 << "09" << "09" << "AM";
        QTest::newRow("noon") << 12 << "12" << "12" << "PM";
        QTest::newRow("afternoon") << 13 << "13" << "01" << "PM";
        QTest::newRow("last hour") << 23 << "23" << "11" << "PM";
    }
    void hours()
    {
        QFETCH(int, hour);
        TimeBackend time;
        QTEST(time.getHour(hour, true), "h24");
        QTEST(time.getHour(hour, false), "h12");
        QTEST(time.getAmOrPm(hour), "amPm");
    }

    void applyWithTime_data()
    {
        QTest::addColumn<QString>("ntp");
        QTest::addColumn<bool>("is24");
        QTest::addColumn<int>("hour");
        QTest::addColumn<QString>("amPm");
        QTest::addColumn<QList<QStringList>>("commands");
        const QList<QStringList> copy{{"sudo", "rm", "/etc/systemd/timesyncd.conf"},
                                      {"sudo", "cp", "/data/norbix/timesyncd.conf", "/etc/systemd/timesyncd.conf"}};
        QTest::newRow("with a server, 24-hour")
            << "pool.ntp.org" << true << 18 << "AM"
            << (QList<QStringList>{{"sudo", "timedatectl", "set-ntp", "true"},
                                   {"sudo", "timedatectl", "set-time", "2026-11-23 18:45:00"}}
                + copy + QList<QStringList>{{"sudo", "timedatectl", "set-timezone", "America/New_York"}});
        QTest::newRow("without a server, 12-hour")
            << "" << false << 12 << "AM"
            << (QList<QStringList>{{"sudo", "timedatectl", "set-ntp", "false"},
                                   {"sudo", "timedatectl", "set-time", "2026-11-23 00:45:00"}}
                + copy + QList<QStringList>{{"sudo", "timedatectl", "set-timezone", "America/New_York"}});
        QTest::newRow("impossible hour leaves the clock")
            << " ntp.example.com " << false << 14 << "PM"
            << (QList<QStringList>{{"sudo", "timedatectl", "set-ntp", "true"}}
                + copy + QList<QStringList>{{"sudo", "timedatectl", "set-timezone", "America/New_York"}});
    }
    void applyWithTime()
    {
        QFETCH(QString, ntp);
        QFETCH(bool, is24);
        QFETCH(int, hour);
        QFETCH(QString, amPm);
        TimeBackend time;
        time.setDate(QDate(2026, 11, 23));
        time.set24(is24);
        time.setTimezone("(UTC-05:00) America/New_York, Toronto, Eastern Time (US & Canada)");
        time.setHour(hour);
        time.setMinute(45);
        time.setAmOrPm(amPm);
        time.setNtp(ntp);
        m_runner->calls.clear();
        time.applyWithTime();
        QTEST(m_runner->commandLines(), "commands");
        QCOMPARE(QSettings(m_sandbox->dataFile("time.ini"), QSettings::IniFormat).value("Is24").toBool(), is24);
        QCOMPARE(time.is24(), is24);
        QCOMPARE(QSettings(m_sandbox->dataFile("timesyncd.conf"), QSettings::IniFormat).value("Time/NTP").toString(),
                 ntp.trimmed());
        QVERIFY(TestSandbox::readFile(m_sandbox->dataFile("timesyncd.conf")).startsWith("[Time]\nNTP="));
    }

    void applyFormatAndZone()
    {
        TimeBackend time;
        time.set24(false);
        time.setTimezone("(UTC+05:45) Asia/Kathmandu");
        m_runner->calls.clear();
        time.apply();
        QCOMPARE(m_runner->commandLines(), (QList<QStringList>{{"sudo", "timedatectl", "set-ntp", "0"},
                                                               {"sudo", "timedatectl", "set-timezone", "Asia/Kathmandu"}}));
        QCOMPARE(time.is24(), false);

        // Nothing chosen: the zone is not touched.
        TimeBackend fresh;
        m_runner->calls.clear();
        fresh.apply();
        QCOMPARE(m_runner->commandLines(), (QList<QStringList>{{"sudo", "timedatectl", "set-ntp", "0"}}));
    }

    void ntpReadBack()
    {
        TimeBackend time;
        QCOMPARE(time.getNtp(), QString());
        TestSandbox::writeFile(m_sandbox->path("/etc/systemd/timesyncd.conf"), "[Time]\nNTP=time.example.com\n");
        QCOMPARE(time.getNtp(), QStringLiteral("time.example.com"));
        // The same file the shell installs reads back.
        time.setNtp("pool.ntp.org");
        time.applyWithTime();
        QVERIFY(QFile::remove(m_sandbox->path("/etc/systemd/timesyncd.conf")));
        QVERIFY(QFile::copy(m_sandbox->dataFile("timesyncd.conf"), m_sandbox->path("/etc/systemd/timesyncd.conf")));
        QCOMPARE(time.getNtp(), QStringLiteral("pool.ntp.org"));
    }
};

QTEST_GUILESS_MAIN(tst_Time)
#include "tst_time.moc"
