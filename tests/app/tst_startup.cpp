#include "SimulatedShell.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

// Starts the real shell in the simulated terminal and reads what it leaves behind.
class tst_Startup : public QObject {
    Q_OBJECT

    using Terminal = SimulatedShell;

private slots:
    void initTestCase()
    {
        QVERIFY(QFile::exists(QStringLiteral(NORBIX_SHELL_BINARY)));
    }

    void startupOrderMigrationAndIdentity()
    {
        Terminal terminal;
        const QString cwd = terminal.workingDir.path();
        TestSandbox::writeFile(cwd + QStringLiteral("/connections.json"), "[{\"type\":3,\"name\":\"legacy\"}]");
        TestSandbox::writeFile(cwd + QStringLiteral("/api.ini"), "[General]\nDebugLogs=true\n");
        TestSandbox::writeFile(terminal.sandbox.dataFile(QStringLiteral("api.ini")), "[General]\nDebugLogs=false\n");
        TestSandbox::writeFile(terminal.sandbox.path(QStringLiteral("/opt/norbix/tools/suspend.sh")), "#!/bin/sh\nrm -rf /\n");

        const ShellRun first = terminal.start();
        QVERIFY2(first.exitCode == 0, first.err.constData());

        // Start-up steps in their order, as the log file shows them.
        const QString log = terminal.log();
        const QStringList steps = {"Message handler set", "Set signal hanlder", "Signal handler set", "migrateFiles()",
                                   "migrateFiles() end", "Version: 1.2.16", "[INFO] Roboto", "[INFO] Models ready"};
        int at = 0;
        for (const QString& step : steps) {
            const int found = log.indexOf(step, at);
            QVERIFY2(found >= 0, qPrintable(QStringLiteral("missing or out of order: ") + step + QLatin1Char('\n') + log));
            at = found + step.size();
        }
        QVERIFY(!log.contains(QStringLiteral("Install message handled"))); // logged before the handler exists

        // Legacy files moved; the data directory's own copy wins.
        QVERIFY(!QFile::exists(cwd + QStringLiteral("/connections.json")));
        QVERIFY(!QFile::exists(cwd + QStringLiteral("/api.ini")));
        QCOMPARE(TestSandbox::readFile(terminal.sandbox.dataFile(QStringLiteral("connections.json"))),
                 QByteArray("[{\"type\":3,\"name\":\"legacy\"}]"));
        QVERIFY(TestSandbox::readFile(terminal.sandbox.dataFile(QStringLiteral("api.ini"))).contains("DebugLogs=false"));
        QCOMPARE(TestSandbox::readFile(terminal.sandbox.path(QStringLiteral("/opt/norbix/tools/suspend.sh"))),
                 QByteArray("sudo systemctl suspend"));

        const QStringList commands = terminal.commands();
        QVERIFY(commands.size() >= 4);
        QCOMPARE(commands.at(0), QStringLiteral("bash -c sudo mkdir -p /data/norbix && sudo chmod 0777 /data/norbix && sudo chown -R $USER /data/norbix"));
        QCOMPARE(commands.at(1), QStringLiteral("chmod +x /opt/norbix/tools/suspend.sh"));
        QVERIFY(commands.contains(QStringLiteral("uname -a")));
        QVERIFY(commands.contains(QStringLiteral("sudo lshw -json -quiet -class network -class processor")));

        QImage shot(terminal.screenshot());
        QCOMPARE(shot.size(), QSize(1280, 720));

        // A second start finds nothing to move and appends a second run to the same day's log.
        TestSandbox::writeFile(cwd + QStringLiteral("/keyboard.ini"), "[General]\nLayouts=us\n");
        const ShellRun second = terminal.start();
        QVERIFY2(second.exitCode == 0, second.err.constData());
        QVERIFY(!QFile::exists(cwd + QStringLiteral("/keyboard.ini")));
        QVERIFY(QFile::exists(terminal.sandbox.dataFile(QStringLiteral("keyboard.ini"))));
        QCOMPARE(terminal.log().count(QStringLiteral("[WARNING] Version: 1.2.16")), 2);
    }

    // Whatever is wrong with the terminal's files, the shell comes up.
    void startsAnyway_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::newRow("corrupt language.ini") << "language";
        QTest::newRow("translation missing") << "translation";
        QTest::newRow("font missing") << "font";
        QTest::newRow("data directory is a file") << "datafile";
        QTest::newRow("log directory is a file") << "logs";
        QTest::newRow("writes cut short by a power loss") << "leftovers";
    }
    void startsAnyway()
    {
        QFETCH(QString, damage);
        Terminal terminal;
        if (damage == QLatin1String("language"))
            TestSandbox::writeFile(terminal.sandbox.dataFile(QStringLiteral("language.ini")), QByteArray("\x00\xff[[[=\n\x01", 8));
        if (damage == QLatin1String("translation"))
            TestSandbox::writeFile(terminal.sandbox.dataFile(QStringLiteral("language.ini")), "[General]\nLanguage=xx\n");
        if (damage == QLatin1String("font"))
            QFile::remove(terminal.workingDir.filePath(QStringLiteral("quarnos.ttf")));
        if (damage == QLatin1String("datafile")) {
            QDir(terminal.sandbox.path(QStringLiteral("/data/norbix"))).removeRecursively();
            TestSandbox::writeFile(terminal.sandbox.path(QStringLiteral("/data/norbix")), "not a directory");
        }
        if (damage == QLatin1String("logs"))
            TestSandbox::writeFile(terminal.sandbox.home() + QStringLiteral("/logs"), "not a directory");
        // The lock of a writer that held this very process number (only its age would free it) and
        // the temporary copy of a whole-file write that was not renamed into place.
        const QString lock = terminal.sandbox.dataFile(QStringLiteral("api.ini.lock"));
        const QString copy = terminal.sandbox.dataFile(QStringLiteral("hosts.Ab3dEf"));
        const QString lockRemoval = terminal.sandbox.dataFile(QStringLiteral("display.ini.lock.rmlock"));
        const QString unrelated = terminal.sandbox.dataFile(QStringLiteral("notes.Ab3dEf"));
        if (damage == QLatin1String("leftovers")) {
            TestSandbox::writeFile(lock, "1\nnorbix-shell\n\n");
            TestSandbox::writeFile(terminal.sandbox.dataFile(QStringLiteral("hosts")), "127.0.0.1 localhost\n");
            TestSandbox::writeFile(copy, "127.0.0.1 local");
            TestSandbox::writeFile(lockRemoval, "");
            TestSandbox::writeFile(unrelated, "kept: nothing of ours is called notes");
        }

        const ShellRun run = terminal.start();
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(QImage(terminal.screenshot()).size(), QSize(1280, 720));
        if (damage == QLatin1String("font"))
            QVERIFY(run.out.contains("Cannot load the font quarnos.ttf"));
        if (damage == QLatin1String("leftovers")) {
            QVERIFY(!QFile::exists(lock));
            QVERIFY(!QFile::exists(copy));
            QVERIFY(!QFile::exists(lockRemoval));
            QVERIFY(QFile::exists(unrelated));
            QVERIFY(terminal.log().contains(QStringLiteral("Removing what an interrupted write left: hosts.Ab3dEf")));
        }
    }
};

QTEST_GUILESS_MAIN(tst_Startup)
#include "tst_startup.moc"
