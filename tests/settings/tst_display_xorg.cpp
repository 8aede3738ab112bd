// The display backend against real X servers: Xorg with the dummy driver for two to four monitors,
// Xvfb for one, and a real xautolock.
#include "DisplayRevertGuard.h"
#include "ScreensBackend.h"
#include "SettingsChange.h"
#include "TestSandbox.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

namespace {

const char* const kXorgConf = R"(Section "ServerFlags"
    Option "AutoAddDevices" "false"
    Option "AutoAddGPU" "false"
    Option "DontVTSwitch" "true"
EndSection
Section "Device"
    Identifier "dummy"
    Driver "dummy"
    VideoRam 256000
    Option "Monitor-DUMMY0" "left"
    Option "Monitor-DUMMY1" "right"
EndSection
Section "Monitor"
    Identifier "left"
    HorizSync 5.0-1000.0
    VertRefresh 5.0-200.0
    Option "PreferredMode" "1920x1080"
    Option "Primary" "true"
    Option "Enable" "true"
EndSection
Section "Monitor"
    Identifier "right"
    HorizSync 5.0-1000.0
    VertRefresh 5.0-200.0
    Option "PreferredMode" "1280x1024"
    Option "Enable" "true"
    Option "RightOf" "left"
EndSection
Section "Screen"
    Identifier "screen"
    Device "dummy"
    Monitor "left"
    DefaultDepth 24
    SubSection "Display"
        Depth 24
        Virtual 4096 2160
    EndSubSection
EndSection
)";

// An X server of the test's own, on a display number it picks itself. Commands the backend runs
// reach it through DISPLAY.
class XServer {
public:
    bool startXorg()
    {
        TestSandbox::writeFile(m_dir.filePath("xorg.conf"), kXorgConf);
        return start("Xorg", {"-displayfd", "1", "-config", m_dir.filePath("xorg.conf"), "-logfile", m_dir.filePath("xorg.log"),
                              "-nolisten", "tcp", "-noreset", "-seat", "seat1", "-novtswitch"});
    }
    bool startXvfb()
    {
        return start("Xvfb", {"-displayfd", "1", "-screen", "0", "1920x1080x24", "-nolisten", "tcp", "-noreset"});
    }
    ~XServer()
    {
        if (m_server.state() != QProcess::NotRunning) {
            m_server.terminate();
            if (!m_server.waitForFinished(5000))
                m_server.kill();
            m_server.waitForFinished(5000);
        }
        qputenv("DISPLAY", m_oldDisplay);
    }

    QString display() const { return m_display; }
    QString error() const { return m_error; }

    // Runs an X client against this server and returns what it printed.
    static QByteArray run(const QString& program, const QStringList& arguments, int* exitCode = nullptr)
    {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished(30000);
        if (exitCode)
            *exitCode = process.exitCode();
        return process.readAllStandardOutput();
    }

private:
    bool start(const QString& program, const QStringList& arguments)
    {
        if (QStandardPaths::findExecutable(program).isEmpty()) {
            m_error = program + " is not installed";
            return false;
        }
        m_server.setProcessChannelMode(QProcess::SeparateChannels);
        m_server.setStandardErrorFile(m_dir.filePath("server.err"));
        m_server.start(program, arguments);
        while (m_server.waitForReadyRead(20000)) {
            m_display = QString::fromLatin1(m_server.readAllStandardOutput()).trimmed();
            if (!m_display.isEmpty())
                break;
        }
        if (m_display.isEmpty()) {
            m_error = program + " did not start: " + QString::fromLocal8Bit(TestSandbox::readFile(m_dir.filePath("server.err")));
            return false;
        }
        m_display.prepend(QLatin1Char(':'));
        qputenv("DISPLAY", m_display.toLatin1());
        return true;
    }

    QTemporaryDir m_dir;
    QProcess m_server;
    QString m_display;
    QString m_error;
    QByteArray m_oldDisplay = qgetenv("DISPLAY");
};

// What xrandr itself says about one output: "WxH+X+Y" and whether it is primary; empty geometry
// when the output shows nothing. Read independently of the backend's parser.
struct Shown {
    QString geometry;
    bool primary = false;
};
Shown shown(const QString& output)
{
    const QString text = QString::fromLocal8Bit(XServer::run("xrandr", {}));
    const QRegularExpression line(QStringLiteral("^%1 connected( primary)? ?(\\d+x\\d+\\+\\d+\\+\\d+)?").arg(output),
                                  QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = line.match(text);
    return match.hasMatch() ? Shown{match.captured(2), !match.captured(1).isEmpty()} : Shown{QStringLiteral("missing"), false};
}

bool xautolockRunning()
{
    int exitCode = 1;
    XServer::run("pgrep", {"-x", "xautolock"}, &exitCode);
    return exitCode == 0;
}

} // namespace

class tst_DisplayXorg : public QObject {
    Q_OBJECT

    std::unique_ptr<TestSandbox> m_sandbox;
    std::unique_ptr<XServer> m_server;

    QString ini() const { return m_sandbox->dataFile(QStringLiteral("display.ini")); }

    void xorg()
    {
        m_server = std::make_unique<XServer>();
        QVERIFY2(m_server->startXorg(), qPrintable(m_server->error()));
    }
    void xvfb()
    {
        m_server = std::make_unique<XServer>();
        QVERIFY2(m_server->startXvfb(), qPrintable(m_server->error()));
    }

private slots:
    void init()
    {
        m_sandbox = std::make_unique<TestSandbox>();
        SettingsChange::setReporter({});
    }
    void cleanup()
    {
        m_server.reset();
        m_sandbox.reset();
    }

    void readsTwoMonitors()
    {
        xorg();
        ScreensBackend screens;
        QCOMPARE(screens.listScreens(), (QStringList{"DUMMY0", "DUMMY1"}));
        QCOMPARE(screens.getPrimaryScreen(), QStringLiteral("DUMMY0"));
        QCOMPARE(screens.getCurrentResolution("DUMMY1"), QStringLiteral("1280x1024"));
        QCOMPARE(screens.getGeometry("DUMMY1"), QRect(1920, 0, 1280, 1024));
        const QStringList resolutions = screens.getResolutions("DUMMY0");
        QVERIFY(resolutions.size() > 10);
        QCOMPARE(resolutions.last(), QStringLiteral("2048x1536"));
        QVERIFY(screens.getRefreshRate("DUMMY0", "1024x768").contains(QStringLiteral("60.00")));
    }

    // Order, primary, mode and rate as the screen's APPLY sets them, read back from the server.
    void applyExtendAndMirror()
    {
        xorg();
        ScreensBackend screens;
        screens.setMode(0);
        screens.makePrimary("DUMMY1");
        screens.setScreenAt("DUMMY1", 0);
        screens.setScreenAt("DUMMY0", 1);
        screens.stageOutput("DUMMY0", 0, "1280x720", "59.86");
        screens.applySettings("DUMMY1", 0, "1024x768", "60.00");
        QCOMPARE(shown("DUMMY1").geometry, QStringLiteral("1024x768+0+0"));
        QVERIFY(shown("DUMMY1").primary);
        QCOMPARE(shown("DUMMY0").geometry, QStringLiteral("1280x720+1024+0"));
        QVERIFY(!shown("DUMMY0").primary);
        screens.updateInfo();
        QCOMPARE(screens.getCurrentRate("DUMMY1"), QStringLiteral("60.00"));
        QCOMPARE(screens.getRealOffsets(), (QStringList{"DUMMY1", "DUMMY0"}));

        screens.setMode(1);
        screens.setScreenAt("DUMMY0", 0);
        screens.setScreenAt("DUMMY1", 1);
        screens.applySettings("DUMMY0", 0, "1024x768", "60.00");
        QCOMPARE(shown("DUMMY0").geometry, QStringLiteral("1024x768+0+0"));
        QCOMPARE(shown("DUMMY1").geometry, QStringLiteral("1024x768+0+0"));
        QVERIFY(screens.isMirroring());
    }

    void applyFourOutputs()
    {
        xorg();
        for (const char* output : {"DUMMY2", "DUMMY3"}) {
            XServer::run("xrandr", {"--addmode", output, "800x600"});
            XServer::run("xrandr", {"--output", output, "--mode", "800x600", "--right-of", "DUMMY1"});
        }
        ScreensBackend screens;
        QCOMPARE(screens.listScreens(), (QStringList{"DUMMY0", "DUMMY1", "DUMMY2", "DUMMY3"}));
        const QStringList order{"DUMMY3", "DUMMY2", "DUMMY1", "DUMMY0"};
        for (int i = 0; i < order.size(); ++i)
            screens.setScreenAt(order.at(i), i);
        screens.makePrimary("DUMMY2");
        screens.applySettings("DUMMY0", 0, "1024x768", "60.00");
        QCOMPARE(shown("DUMMY3").geometry, QStringLiteral("800x600+0+0"));
        QCOMPARE(shown("DUMMY2").geometry, QStringLiteral("800x600+800+0"));
        QVERIFY(shown("DUMMY2").primary);
        QCOMPARE(shown("DUMMY1").geometry, QStringLiteral("1280x1024+1600+0"));
        QCOMPARE(shown("DUMMY0").geometry, QStringLiteral("1024x768+2880+0"));
    }

    void revertRestoresPreviousLayout()
    {
        xorg();
        ScreensBackend screens;
        DisplayRevertGuard guard(&screens);
        guard.setCountdownSeconds(2);
        guard.setTickInterval(10);
        QSignalSpy reverted(&guard, &DisplayRevertGuard::reverted);
        guard.capture();
        screens.makePrimary("DUMMY1");
        screens.setScreenAt("DUMMY1", 0);
        screens.setScreenAt("DUMMY0", 1);
        screens.applySettings("DUMMY1", 0, "800x600", "60.32");
        screens.updateInfo();
        guard.start();
        QCOMPARE(shown("DUMMY1").geometry, QStringLiteral("800x600+0+0"));
        QTRY_COMPARE(reverted.count(), 1);
        QCOMPARE(shown("DUMMY0").geometry, QStringLiteral("1920x1080+0+0"));
        QVERIFY(shown("DUMMY0").primary);
        QCOMPARE(shown("DUMMY1").geometry, QStringLiteral("1280x1024+1920+0"));
        QCOMPARE(screens.getCurrentRate("DUMMY1"), QStringLiteral("85.02"));
        QCOMPARE(QSettings(ini(), QSettings::IniFormat).value("Order/ScreenOrder").toString(), QStringLiteral("DUMMY0,DUMMY1"));
    }

    // Power-on: the saved arrangement comes back, including an order that differs from what the
    // server starts with, and entries that cannot apply are passed over.
    void replaySavedLayout()
    {
        xorg();
        TestSandbox::writeFile(ini(), "Mode=0\n[DUMMY1]\nResolution=1024x768\nRate=75.03\nPrimary=true\nOrientation=0\n"
                                      "[DUMMY0]\nResolution=1600x1200\nRate=60.00\nPrimary=false\nOrientation=9\n"
                                      "[VGA-9]\nResolution=640x480\nRate=60.00\n"
                                      "[Order]\nScreenOrder=\"VGA-9,DUMMY1,DUMMY0\"\n");
        ScreensBackend screens;
        screens.loadInitial();
        QCOMPARE(shown("DUMMY1").geometry, QStringLiteral("1024x768+0+0"));
        QVERIFY(shown("DUMMY1").primary);
        QCOMPARE(shown("DUMMY0").geometry, QStringLiteral("1600x1200+1024+0"));
        QCOMPARE(screens.arrangement(), (QStringList{"DUMMY1", "DUMMY0"}));
        QCOMPARE(screens.getCurrentRate("DUMMY1"), QStringLiteral("75.03"));
        QCOMPARE(screens.getOrientation("DUMMY0"), 0);
    }

    void resetToDefaultSize()
    {
        xvfb();
        XServer::run("xrandr", {"--newmode", "1280x720_60.00", "74.48", "1280", "1336", "1472", "1664", "720", "721", "724", "746",
                                "-HSync", "+Vsync"});
        XServer::run("xrandr", {"--addmode", "screen", "1280x720_60.00"});
        ScreensBackend screens;
        QCOMPARE(screens.listScreens(), QStringList("screen"));
        QCOMPARE(screens.getPrimaryScreen(), QString());
        QCOMPARE(screens.getResolutions("screen"), (QStringList{"1280x720_60.00", "1920x1080"}));
        screens.setScreenAt("screen", 0);
        screens.applySettings("screen", 0, "1280x720_60.00", "60.00");
        QCOMPARE(shown("screen").geometry, QStringLiteral("1280x720+0+0"));
        screens.updateInfo();
        QCOMPARE(screens.getCurrentResolution("screen"), QStringLiteral("1280x720_60.00"));
        screens.reset();
        QCOMPARE(shown("screen").geometry, QStringLiteral("1920x1080+0+0"));
    }

    // The X server is gone: what was read stays.
    void serverGone()
    {
        xvfb();
        ScreensBackend screens;
        QCOMPARE(screens.listScreens(), QStringList("screen"));
        m_server.reset();
        qputenv("DISPLAY", ":65000");
        screens.updateInfo();
        QCOMPARE(screens.listScreens(), QStringList("screen"));
        QCOMPARE(screens.getCurrentResolution("screen"), QStringLiteral("1920x1080"));
    }

    void sleepStartsAndStopsXautolock()
    {
        xvfb();
        ScreensBackend screens;
        XServer::run("killall", {"xautolock"});
        screens.setSleepTime(1);
        screens.applySleepTime();
        QTRY_VERIFY(xautolockRunning());
        screens.setSleepTime(0);
        screens.applySleepTime();
        QTRY_VERIFY(!xautolockRunning());
    }

    // No X server here has DPMS, and xset stops at the dpms option then: only "No turn off" can be
    // read back (the argument lists of the others are checked without a server).
    void turnOffSwitchesScreenSaverOff()
    {
        xvfb();
        ScreensBackend screens;
        XServer::run("xset", {"s", "600"});
        QVERIFY(XServer::run("xset", {"q"}).contains("timeout:  600"));
        screens.setScreenTurnOffTime(0);
        screens.applyTurnOffTime();
        QVERIFY(XServer::run("xset", {"q"}).contains("timeout:  0"));
    }
};

QTEST_GUILESS_MAIN(tst_DisplayXorg)
#include "tst_display_xorg.moc"
