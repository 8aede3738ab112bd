#include "SimulatedShell.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QtTest>

// The shell's start in the simulated terminal replays the stored pointer settings and layouts.
class tst_InputStartup : public QObject {
    Q_OBJECT

    struct Terminal : SimulatedShell {
        Terminal()
        {
            TestSandbox::writeFile(sandbox.dataFile(QStringLiteral("api.ini")), "[General]\nDebugLogs=true\n"); // "prepare" lines
        }
        void storeKeyboard(const QByteArray& ini) { TestSandbox::writeFile(sandbox.dataFile(QStringLiteral("keyboard.ini")), ini); }
    };

    // Each of `expected` appears in `lines`, in this order.
    static void verifyInOrder(const QStringList& lines, const QStringList& expected)
    {
        int at = 0;
        for (const QString& line : expected) {
            const int found = lines.indexOf(line, at);
            QVERIFY2(found >= 0, qPrintable(QStringLiteral("missing or out of order: ") + line + QLatin1Char('\n') + lines.join('\n')));
            at = found + 1;
        }
    }

private slots:
    void replay_data()
    {
        QTest::addColumn<QByteArray>("keyboardIni");
        QTest::addColumn<QStringList>("expected");   // commands, in order
        QTest::addColumn<QStringList>("forbidden");  // commands that must not run
        QTest::addColumn<QString>("logLine");
        const QString setLayouts = QStringLiteral("bash -c setxkbmap -layout fr,us,de -option grp:alt_shift_toggle");
        QTest::newRow("stored settings")
            << QByteArray("[General]\nLayouts=\"us,de,fr\"\nPreferredLayout=fr\nSensetivity=0.6\nPrimary=1\n")
            << QStringList{setLayouts, "openbox --reconfigure", "/opt/norbix/xkblayout-state print %s", "xinput --list --short",
                           "xinput --list-props 9", "xinput --list-props 11", "xinput --set-prop 9 libinput Accel Speed 0.6",
                           "xinput --set-prop 11 libinput Accel Speed 0.6", "xinput set-button-map 9 3 2 1",
                           "xinput set-button-map 11 3 2 1", setLayouts}
            << QStringList{} << "init layouts to fr,us,de";
        QTest::newRow("speed not a number, no layouts")
            << QByteArray("[General]\nLayouts=\nSensetivity=quick\nPrimary=0\n")
            << QStringList{"xinput --list --short", "xinput set-button-map 9 1 2 3", "xinput set-button-map 11 1 2 3"}
            << QStringList{"xinput --set-prop 9 libinput Accel Speed quick"} << "Ignoring stored Sensetivity";
        QTest::newRow("no keyboard.ini") << QByteArray() << QStringList{"xinput --list --short"}
                                         << QStringList{"xinput set-button-map 9 1 2 3"} << "Apply start mouse settings";
    }
    void replay()
    {
        QFETCH(QByteArray, keyboardIni);
        QFETCH(QStringList, expected);
        QFETCH(QStringList, forbidden);
        QFETCH(QString, logLine);
        Terminal terminal;
        if (!keyboardIni.isEmpty())
            terminal.storeKeyboard(keyboardIni);
        const ShellRun run = terminal.start();
        QVERIFY2(run.exitCode == 0, run.err.constData());
        const QStringList commands = terminal.commands();
        verifyInOrder(commands, expected);
        for (const QString& command : forbidden)
            QVERIFY2(!commands.contains(command), qPrintable(command));
        for (const QString& command : commands)
            QVERIFY2(!command.startsWith(QLatin1String("bash -c setxkbmap -layout  ")), qPrintable(command));
        const QString log = terminal.log();
        QVERIFY2(log.contains(logLine), qPrintable(log));
        // The model is published in its place among the context properties.
        verifyInOrder(log.split('\n').replaceInStrings(QRegularExpression(QStringLiteral("^.*\\] ")), QString()),
                      {"prepare connectionsModel", "prepare keyboardLayoutModel", "Models ready", "Apply start mouse settings "});
        QCOMPARE(QSettings(terminal.sandbox.dataFile("keyboard.ini"), QSettings::IniFormat).value("Ids").toString(), QStringLiteral("9,11"));
    }
};

QTEST_GUILESS_MAIN(tst_InputStartup)
#include "tst_input_startup.moc"
