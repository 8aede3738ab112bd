#include "CommandRunner.h"
#include "FakeCommandRunner.h"
#include "ProcessRunner.h"
#include "SimulatedTerminal.h"
#include "SystemPaths.h"
#include "TestSandbox.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class tst_CommandRunner : public QObject {
    Q_OBJECT

    static QList<QJsonObject> readLog(const QString& path)
    {
        QList<QJsonObject> lines;
        for (const QByteArray& line : TestSandbox::readFile(path).split('\n')) {
            if (!line.isEmpty())
                lines << QJsonDocument::fromJson(line).object();
        }
        return lines;
    }

    static QJsonObject expectedLine(const QString& program, const QStringList& args, bool detached)
    {
        return QJsonObject{{"program", program}, {"args", QJsonArray::fromStringList(args)}, {"detached", detached}};
    }

private slots:
    void paths_data()
    {
        QTest::addColumn<QString>("root");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expected");
        QTest::newRow("no root") << "" << "/data/norbix/api.ini" << "/data/norbix/api.ini";
        QTest::newRow("root") << "/tmp/r" << "/data/norbix/api.ini" << "/tmp/r/data/norbix/api.ini";
        QTest::newRow("trailing slashes") << "/tmp/r//" << "/etc/hosts" << "/tmp/r/etc/hosts";
        QTest::newRow("root is /") << "/" << "/media" << "/media";
        QTest::newRow("relative stays") << "/tmp/r" << "quarnos.ttf" << "quarnos.ttf";
    }
    void paths()
    {
        QFETCH(QString, root);
        QFETCH(QString, path);
        QFETCH(QString, expected);
        const QByteArray old = qgetenv("NORBIX_ROOT");
        qputenv("NORBIX_ROOT", root.toUtf8());
        QCOMPARE(SystemPaths::resolve(path), expected);
        qputenv("NORBIX_ROOT", old);
    }

    // Every way of starting a command leaves the exact program and argument list in the log.
    void commandLogLinesAreExact()
    {
        QTemporaryDir dir;
        const QString log = dir.filePath(QStringLiteral("commands.jsonl"));
        const QByteArray outerLog = qgetenv("NORBIX_COMMAND_LOG");
        qputenv("NORBIX_COMMAND_LOG", log.toUtf8());
        {
            FakeCommandRunner fake;
            CommandRunner& runner = CommandRunner::instance();
            runner.run(QStringLiteral("uname"), {QStringLiteral("-a")});
            runner.runCommandLine(QStringLiteral("sudo cp -r \"/home/user/my logs\" /media/usb/"));
            runner.startDetached(QStringLiteral("bash"), {QStringLiteral("-c"), QStringLiteral("a && b \"c\"")});
            runner.startDetachedCommandLine(QStringLiteral("xdotool key super"));
            runner.start(QStringLiteral("xfreerdp"), {QStringLiteral("/v:host"), QString()});
            QCOMPARE(fake.calls.size(), 5);
            QCOMPARE(fake.calls.at(1).commandLine(),
                     QStringList({"sudo", "cp", "-r", "/home/user/my logs", "/media/usb/"}));
        }
        qputenv("NORBIX_COMMAND_LOG", outerLog);

        const QList<QJsonObject> lines = readLog(log);
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines[0], expectedLine("uname", {"-a"}, false));
        QCOMPARE(lines[1].value("args").toArray(),
                 QJsonArray({"cp", "-r", "/home/user/my logs", "/media/usb/"}));
        QCOMPARE(lines[2], expectedLine("bash", {"-c", "a && b \"c\""}, true));
        QCOMPARE(lines[3].value("program").toString(), QStringLiteral("xdotool"));
        QCOMPARE(lines[3].value("detached").toBool(), true);
        QCOMPARE(lines[4].value("args").toArray(), QJsonArray({"/v:host", ""}));
    }

    void emptyCommandLineRunsNothing()
    {
        FakeCommandRunner fake;
        QVERIFY(!CommandRunner::instance().runCommandLine(QStringLiteral("   ")).started);
        QVERIFY(!CommandRunner::instance().startDetachedCommandLine(QString()));
        QVERIFY(fake.calls.isEmpty());
    }

    void simulatedAnswersFromFixtures_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("fixture");
        QTest::newRow("uname") << "uname" << QStringList{"-a"} << "uname-a.txt";
        QTest::newRow("lshw") << "sudo" << QStringList{"lshw", "-json", "-quiet", "-class", "network", "-class", "processor"}
                              << "lshw-network-processor.json";
        QTest::newRow("nmcli") << "nmcli" << QStringList{"device", "show"} << "nmcli-device-show.txt";
        QTest::newRow("xrandr") << "xrandr" << QStringList{"--query"} << "xrandr-query.txt";
        QTest::newRow("xinput") << "xinput" << QStringList{"list"} << "xinput-list.txt";
        QTest::newRow("setxkbmap") << "setxkbmap" << QStringList{"-query"} << "setxkbmap-query.txt";
    }
    void simulatedAnswersFromFixtures()
    {
        QFETCH(QString, program);
        QFETCH(QStringList, arguments);
        QFETCH(QString, fixture);
        const SimulatedTerminal terminal;
        const SimulatedTerminal::Answer answer = terminal.answer(program, arguments);
        QVERIFY(answer.result.started);
        QCOMPARE(answer.result.exitCode, 0);
        const QByteArray expected = TestSandbox::readFile(QStringLiteral(NORBIX_TEST_DATA "/simulation/") + fixture);
        QVERIFY(!expected.isEmpty());
        QCOMPARE(answer.result.standardOutput, expected);
    }

    void simulatedUnknownCommandSucceedsSilently()
    {
        const SimulatedTerminal terminal;
        const auto answer = terminal.answer(QStringLiteral("uname"), {QStringLiteral("-r")});
        QCOMPARE(answer.result.exitCode, 0);
        QVERIFY(answer.result.standardOutput.isEmpty());
    }

    void simulatedHandlersComeFirst()
    {
        SimulatedTerminal::addHandler([](const QString& program, const QStringList&) -> std::optional<SimulatedTerminal::Answer> {
            if (program != QLatin1String("xfreerdp-probe"))
                return std::nullopt;
            SimulatedTerminal::Answer answer;
            answer.result.started = answer.result.finished = true;
            answer.result.exitCode = 131;
            answer.delayMs = 10;
            return answer;
        });
        SimulatedTerminal terminal;
        QCOMPARE(terminal.answer(QStringLiteral("xfreerdp-probe"), {}).result.exitCode, 131);

        // A started process reports its end through the signal, after the delay.
        CommandRunner::setInstance(&terminal);
        auto process = CommandRunner::instance().start(QStringLiteral("xfreerdp-probe"), {});
        CommandRunner::setInstance(nullptr);
        QSignalSpy finished(process.get(), &RunningProcess::finished);
        QVERIFY(process->isRunning());
        QVERIFY(finished.wait(2000));
        QCOMPARE(finished.at(0).at(0).toInt(), 131);
        QVERIFY(!process->isRunning());
    }

    // Creating the data directory works inside the sandbox and never outside it.
    void simulatedMkdirStaysInSandbox()
    {
        TestSandbox sandbox;
        const SimulatedTerminal terminal;
        const auto answer = terminal.answer(
            QStringLiteral("bash"),
            {QStringLiteral("-c"), QStringLiteral("sudo mkdir -p /data/norbix/sub && sudo chmod 0777 /data/norbix")});
        QCOMPARE(answer.result.exitCode, 0);
        QVERIFY(QFileInfo(sandbox.path(QStringLiteral("/data/norbix/sub"))).isDir());
        QVERIFY(QFileInfo(sandbox.path(QStringLiteral("/media/NORBIX-USB"))).isDir());
    }

    void realRunnerReportsOutputAndFailure()
    {
        // The QProcess runner, on a harmless program of the build machine.
        ProcessRunner runner;
        const CommandResult ok = runner.run(QStringLiteral("printf"), {QStringLiteral("a\\nb")});
        QVERIFY(ok.started && ok.finished);
        QCOMPARE(ok.standardOutput, QByteArray("a\nb"));
        const CommandResult missing = runner.run(QStringLiteral("/nonexistent/program"), {});
        QVERIFY(!missing.started);
        QCOMPARE(missing.exitCode, -1);
    }
};

QTEST_GUILESS_MAIN(tst_CommandRunner)
#include "tst_commandrunner.moc"
