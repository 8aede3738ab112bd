// The saved display arrangement is put back when the shell starts.
#include "SimulatedShell.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

class tst_StartupDisplay : public QObject {
    Q_OBJECT

    struct Run {
        QStringList commands;
        QString log;
    };

    static Run start(const QByteArray& displayIni)
    {
        SimulatedShell terminal;
        if (!displayIni.isNull())
            TestSandbox::writeFile(terminal.sandbox.dataFile(QStringLiteral("display.ini")), displayIni);
        const ShellRun run = terminal.start();
        if (run.exitCode != 0)
            qWarning() << run.err;
        return {terminal.commands(), terminal.log()};
    }

private slots:
    void replay_data()
    {
        QTest::addColumn<QByteArray>("displayIni");
        QTest::addColumn<QString>("command"); // empty: no layout command
        QTest::addColumn<QString>("logLine");
        QTest::addColumn<QStringList>("timers"); // the power-saving commands, in order
        const QStringList neverOff = {"gsettings set org.gnome.desktop.screensaver lock-enabled false", "xset -dpms s off",
                                      "killall xautolock"};
        QTest::newRow("saved order differs")
            << QByteArray("Mode=0\n[DP-1]\nResolution=1280x720\nRate=59.94\nPrimary=true\nOrientation=2\n[Order]\nScreenOrder=\"DP-1,HDMI-1\"\n")
            << "xrandr --output HDMI-1 --mode 1920x1080 --rotate normal --rate 60.00 --output DP-1 --left-of HDMI-1 "
               "--mode 1280x720 --rotate left --rate 59.94 --primary"
            << "Order not equeal to constructed" << neverOff;
        QTest::newRow("same order, mirror")
            << QByteArray("Mode=1\nTurnOffTime=2\nSleepTime=1\n[Order]\nScreenOrder=\"HDMI-1,DP-1\"\n")
            << "xrandr --output DP-1 --mode 1920x1080 --rotate normal --rate 60.00 --output HDMI-1 --same-as DP-1 "
               "--mode 1920x1080 --rotate normal --rate 60.00 --primary"
            << "Order equeal to constructed"
            << QStringList{"gsettings set org.gnome.desktop.screensaver lock-enabled false", "xset dpms 300 300 0 s off",
                           "killall xautolock", "xautolock -time 5 -locker /opt/norbix/tools/suspend.sh"};
        QTest::newRow("nothing saved") << QByteArray() << "" << "No saved display settings" << neverOff;
    }
    void replay()
    {
        QFETCH(QByteArray, displayIni);
        QFETCH(QString, command);
        QFETCH(QString, logLine);
        QFETCH(QStringList, timers);
        const Run run = start(displayIni);
        QStringList layouts;
        QStringList powerSaving;
        for (const QString& line : run.commands) {
            if (line.startsWith(QLatin1String("xrandr --output")))
                layouts << line;
            if (line.startsWith(QLatin1String("gsettings")) || line.contains(QLatin1String("xset"))
                || line.contains(QLatin1String("xautolock")))
                powerSaving << line;
        }
        QCOMPARE(layouts, command.isEmpty() ? QStringList() : QStringList(command));
        QCOMPARE(powerSaving, timers);
        QVERIFY2(run.log.contains(logLine), qPrintable(run.log));
        // Replayed after the models are published and before the agent starts.
        const int models = run.log.indexOf(QLatin1String("Models ready"));
        QVERIFY(models >= 0);
        QVERIFY(run.log.indexOf(logLine) > models);
        QVERIFY(run.log.indexOf(QLatin1String("Computer name")) > run.log.indexOf(logLine));
    }
};

QTEST_GUILESS_MAIN(tst_StartupDisplay)
#include "tst_startup_display.moc"
