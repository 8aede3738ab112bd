// The simulated terminal's monitors and clock, driven through the backends as the screens drive them.
#include "DisplayRevertGuard.h"
#include "ScreensBackend.h"
#include "SettingsChange.h"
#include "SimulatedDisplays.h"
#include "SimulatedTerminal.h"
#include "SimulatedTime.h"
#include "TestSandbox.h"
#include "TimeBackend.h"

#include <QtTest>

class tst_SimulatedDisplays : public QObject {
    Q_OBJECT

    std::unique_ptr<TestSandbox> m_sandbox;
    std::unique_ptr<SimulatedTerminal> m_terminal;

    QByteArray status() { return m_terminal->answer("timedatectl", {}).result.standardOutput; }

private slots:
    void init()
    {
        m_sandbox = std::make_unique<TestSandbox>();
        m_terminal = std::make_unique<SimulatedTerminal>();
        CommandRunner::setInstance(m_terminal.get());
        SimulatedDisplays::reset();
        SimulatedTime::reset();
        SettingsChange::setReporter({});
    }
    void cleanup()
    {
        CommandRunner::setInstance(nullptr);
        m_terminal.reset();
        m_sandbox.reset();
    }

    void recordedLayout()
    {
        ScreensBackend screens;
        QCOMPARE(screens.listScreens(), (QStringList{"HDMI-1", "DP-1"}));
        QCOMPARE(screens.getPrimaryScreen(), QStringLiteral("HDMI-1"));
        QCOMPARE(screens.getGeometry("DP-1"), QRect(1920, 0, 1920, 1080));
        QCOMPARE(screens.getResolutions("HDMI-1").size(), 10);
        QCOMPARE(screens.getRefreshRate("HDMI-1", "1280x1024"), (QStringList{"75.02", "60.02"}));
    }

    void appliedLayoutReadsBack_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QRect>("dp1");
        QTest::addColumn<QRect>("hdmi1");
        QTest::newRow("extend") << 0 << QRect(0, 0, 1280, 720) << QRect(1280, 0, 1024, 768);
        QTest::newRow("mirror") << 1 << QRect(0, 0, 1280, 720) << QRect(0, 0, 1024, 768);
    }
    void appliedLayoutReadsBack()
    {
        QFETCH(int, mode);
        ScreensBackend screens;
        screens.setMode(mode);
        screens.makePrimary("DP-1");
        screens.setScreenAt("DP-1", 0);
        screens.setScreenAt("HDMI-1", 1);
        screens.stageOutput("HDMI-1", 0, "1024x768", "70.07");
        screens.applySettings("DP-1", 0, "1280x720", "59.94");
        screens.updateInfo();
        QTEST(screens.getGeometry("DP-1"), "dp1");
        QTEST(screens.getGeometry("HDMI-1"), "hdmi1");
        QCOMPARE(screens.getPrimaryScreen(), QStringLiteral("DP-1"));
        QCOMPARE(screens.getCurrentRate("DP-1"), QStringLiteral("59.94"));
        QCOMPARE(screens.getCurrentRate("HDMI-1"), QStringLiteral("70.07"));

        // A second backend, as after a restart, sees the same.
        ScreensBackend restarted;
        QCOMPARE(restarted.arrangement(), (QStringList{"DP-1", "HDMI-1"}));
        QCOMPARE(restarted.getCurrentResolution("HDMI-1"), QStringLiteral("1024x768"));

        screens.reset();
        screens.updateInfo();
        QCOMPARE(screens.getGeometry("HDMI-1"), QRect(0, 0, 1920, 1080));
        QCOMPARE(screens.getGeometry("DP-1"), QRect(1920, 0, 1920, 1080));
    }

    void rotationReadsBack()
    {
        ScreensBackend screens;
        screens.setScreenAt("HDMI-1", 0);
        screens.setScreenAt("DP-1", 1);
        screens.applySettings("DP-1", 2, "1920x1080", "60.00");
        screens.updateInfo();
        QCOMPARE(screens.getOrientation("DP-1"), 2);
        QCOMPARE(screens.getGeometry("DP-1"), QRect(1920, 0, 1080, 1920));
    }

    void revertReadsBack()
    {
        ScreensBackend screens;
        DisplayRevertGuard guard(&screens);
        guard.capture();
        screens.setScreenAt("DP-1", 0);
        screens.setScreenAt("HDMI-1", 1);
        screens.applySettings("DP-1", 3, "800x600", "75.00");
        screens.updateInfo();
        QCOMPARE(screens.getGeometry("DP-1"), QRect(0, 0, 600, 800));
        guard.start();
        guard.revert();
        QCOMPARE(screens.getGeometry("HDMI-1"), QRect(0, 0, 1920, 1080));
        QCOMPARE(screens.getGeometry("DP-1"), QRect(1920, 0, 1920, 1080));
        QCOMPARE(screens.getOrientation("DP-1"), 0);
    }

    void badCommandsChangeNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("error");
        QTest::newRow("unknown mode") << QStringList{"--output", "DP-1", "--mode", "5000x5000"} << QByteArray("cannot find mode");
        QTest::newRow("rate of another mode") << QStringList{"--output", "DP-1", "--mode", "800x600", "--rate", "50.00"}
                                              << QByteArray("cannot find mode");
        QTest::newRow("disconnected output") << QStringList{"--output", "DP-2", "--mode", "800x600"} << QByteArray("not found");
        QTest::newRow("missing value") << QStringList{"--output", "DP-1", "--mode"} << QByteArray("requires an argument");
        QTest::newRow("second half wrong") << QStringList{"--output", "DP-1", "--mode", "800x600", "--output", "HDMI-1", "--rotate", "up"}
                                           << QByteArray("invalid rotation");
    }
    void badCommandsChangeNothing()
    {
        QFETCH(QStringList, arguments);
        const QByteArray before = m_terminal->answer("xrandr", {}).result.standardOutput;
        const SimulatedTerminal::Answer answer = m_terminal->answer("xrandr", arguments);
        QCOMPARE(answer.result.exitCode, 1);
        QFETCH(QByteArray, error);
        QVERIFY2(answer.result.standardError.contains(error), answer.result.standardError.constData());
        QCOMPARE(m_terminal->answer("xrandr", {}).result.standardOutput, before);
    }

    void timeZoneAndNtpReadBack()
    {
        TimeBackend time;
        time.updateLocalTimezone();
        QCOMPARE(time.getCurrentTimeZone(), QStringLiteral("Europe/Berlin"));
        time.setTimezone("(UTC+05:45) Asia/Kathmandu");
        time.apply();
        time.updateLocalTimezone();
        QCOMPARE(time.getCurrentTimeZone(), QStringLiteral("Asia/Kathmandu"));
        QVERIFY(status().contains("NTP service: inactive"));
        QVERIFY(status().contains("(+0545, +0545)"));

        // Without a server the clock can be set; the time-sync file is installed empty.
        time.setNtp("");
        time.set24(true);
        time.setDate(QDate(2031, 5, 17));
        time.setHour(9);
        time.setMinute(41);
        time.applyWithTime();
        QVERIFY2(status().contains("Local time: Sat 2031-05-17 09:41:"), status().constData());
        QCOMPARE(time.getNtp(), QString());

        // With a server, network time is switched on first and then owns the clock, as on a terminal.
        time.setNtp("pool.ntp.org");
        time.setDate(QDate(2020, 1, 1));
        time.setTimezone("(UTC-12:00) Etc/GMT-12");
        time.applyWithTime();
        QVERIFY(status().contains("NTP service: active"));
        QVERIFY(status().contains("2031-05-17"));
        QCOMPARE(time.getNtp(), QStringLiteral("pool.ntp.org"));
        time.updateLocalTimezone();
        QCOMPARE(time.getCurrentTimeZone(), QStringLiteral("Etc/GMT-12"));

        // A zone tzdata does not have is refused and the old one stays.
        time.setTimezone("(UTC-03:30) America/Newfoundland");
        time.apply();
        time.updateLocalTimezone();
        QCOMPARE(time.getCurrentTimeZone(), QStringLiteral("Etc/GMT-12"));
    }
};

QTEST_GUILESS_MAIN(tst_SimulatedDisplays)
#include "tst_simulateddisplays.moc"
