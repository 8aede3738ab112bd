#include "FakeCommandRunner.h"
#include "LogManager.h"
#include "Logging.h"
#include "TestSandbox.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

namespace {

struct ProbeRun {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
    QByteArray file;
};

ProbeRun runProbe(const TestSandbox& sandbox, const QString& mode)
{
    QProcess probe;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("HOME"), sandbox.home());
    env.insert(QStringLiteral("NORBIX_ROOT"), sandbox.root());
    env.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("handle_segv=0"));
    env.insert(QStringLiteral("UBSAN_OPTIONS"), QStringLiteral("handle_segv=0"));
    probe.setProcessEnvironment(env);
    probe.start(QStringLiteral(LOG_PROBE), {mode});
    probe.waitForFinished(30000);
    ProbeRun run;
    run.exitCode = probe.exitStatus() == QProcess::NormalExit ? probe.exitCode() : -1;
    run.out = probe.readAllStandardOutput();
    run.err = probe.readAllStandardError();
    run.file = TestSandbox::readFile(Logging::logFilePath(QDate::currentDate())); // HOME is the sandbox's
    return run;
}

const QString kStamp = QStringLiteral(R"(\[\d\d\.\d\d\.\d\d \d\d:\d\d:\d\d\.\d\d\d\] )");
const QString kWhere = QStringLiteral(R"(\[void logEveryLevel\(\)@\d+\] )");
const QString kWhereMain = QStringLiteral(R"(\[int main\(int, char\*\*\)@\d+\] )");

bool matches(const QByteArray& text, const QString& pattern)
{
    return QRegularExpression(pattern, QRegularExpression::MultilineOption).match(QString::fromUtf8(text)).hasMatch();
}

} // namespace

class tst_Logging : public QObject {
    Q_OBJECT

private slots:
    void linesPerLevel_data()
    {
        QTest::addColumn<bool>("debug");
        QTest::newRow("debug logging off") << false;
        QTest::newRow("debug logging on") << true;
    }
    void linesPerLevel()
    {
        QFETCH(bool, debug);
        TestSandbox sandbox;
        if (debug)
            TestSandbox::writeFile(sandbox.dataFile(QStringLiteral("api.ini")), "[General]\nDebugLogs=true\n");

        const ProbeRun run = runProbe(sandbox, QStringLiteral("levels"));
        QCOMPARE(run.exitCode, 0);

        // Console: info and warning on standard output, critical on standard error, all ending in CR LF.
        QVERIFY2(matches(run.out, '^' + kStamp + kWhere + R"(\[INFO\] info line\r$)"), run.out.constData());
        QVERIFY2(matches(run.out, '^' + kStamp + kWhere + QString::fromUtf8(R"(\[WARNING\] warning line ü\r$)")), run.out.constData());
        QVERIFY2(matches(run.err, '^' + kStamp + kWhere + R"(\[CRITICAL\] critical line\r$)"), run.err.constData());
        QVERIFY(!run.out.contains("CRITICAL"));

        // File: the same lines with plain line ends.
        QVERIFY2(matches(run.file, '^' + kStamp + kWhere + R"(\[INFO\] info line$)"), run.file.constData());
        QVERIFY(matches(run.file, '^' + kStamp + kWhere + R"(\[CRITICAL\] critical line$)"));
        QVERIFY(!run.file.contains('\r'));

        if (debug) {
            QVERIFY2(matches(run.out, '^' + kStamp + kWhere + R"(\[DEBUG\] debug line$)"), run.out.constData());
            QVERIFY2(matches(run.file, '^' + kStamp + kWhere + R"(debug line$)"), run.file.constData()); // no level tag
            QCOMPARE(run.file.count('\n'), 4);
        } else {
            QVERIFY(!run.out.contains("debug line"));
            QVERIFY(!run.file.contains("debug line"));
            QCOMPARE(run.file.count('\n'), 3);
        }
    }

    void segfaultPrintsStackAndExitsWithOne()
    {
        TestSandbox sandbox;
        const ProbeRun run = runProbe(sandbox, QStringLiteral("segv"));
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.startsWith("Error: signal 11:\n"), run.err.constData());
        const int frames = run.err.count('\n') - 1;
        QVERIFY2(frames >= 1 && frames <= 10, run.err.constData());
    }

    void fatalMessageEndsInCrashHandler()
    {
        TestSandbox sandbox;
        const ProbeRun run = runProbe(sandbox, QStringLiteral("fatal"));
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(matches(run.err, '^' + kStamp + kWhereMain + R"(\[FATAL\] fatal line\r$)"), run.err.constData());
        QVERIFY(run.err.contains("Error: signal 11:\n"));
        QVERIFY(matches(run.file, '^' + kStamp + kWhereMain + R"(\[FATAL\] fatal line$)"));
    }

    void fileNamePerDay()
    {
        TestSandbox sandbox;
        QCOMPARE(Logging::logFilePath(QDate(2026, 11, 14)), sandbox.home() + QStringLiteral("/logs/log-14-11-2026.txt"));
        QCOMPARE(Logging::logFilePath(QDate(2027, 1, 1)), sandbox.home() + QStringLiteral("/logs/log-01-01-2027.txt"));
    }

    // A file is judged by the calendar date it was created on: 7 days old stays, 8 days old goes.
    void pruning_data()
    {
        QTest::addColumn<int>("daysLater");
        QTest::addColumn<bool>("kept");
        QTest::newRow("same day") << 0 << true;
        QTest::newRow("7 days") << 7 << true;
        QTest::newRow("8 days") << 8 << false;
        QTest::newRow("30 days") << 30 << false;
    }
    void pruning()
    {
        QFETCH(int, daysLater);
        QFETCH(bool, kept);
        TestSandbox sandbox;
        const QString logs = sandbox.home() + QStringLiteral("/logs/");
        TestSandbox::writeFile(logs + QStringLiteral("log-01-01-2026.txt"), "x");
        TestSandbox::writeFile(logs + QStringLiteral("notes.log"), "not a log of ours");
        QDir().mkpath(logs + QStringLiteral("old.txt"));

        Logging::deleteOldFiles(7, QDate::currentDate().addDays(daysLater));
        QCOMPARE(QFile::exists(logs + QStringLiteral("log-01-01-2026.txt")), kept);
        QVERIFY(QFile::exists(logs + QStringLiteral("notes.log")));
        QVERIFY(QFileInfo(logs + QStringLiteral("old.txt")).isDir());
    }

    void loadLogsReturnsCurrentRun()
    {
        TestSandbox sandbox;
        LogManager manager;
        QCOMPARE(manager.loadLogs(), QString());

        const QString today = Logging::logFilePath(QDate::currentDate());
        TestSandbox::writeFile(today, "[a] [f@1] [WARNING] migrateFiles()\n[a] [f@2] [WARNING] Version: 1.2.16\nfirst run\n"
                                      "[b] [f@1] [WARNING] Version: 1.2.16\nsecond run\n");
        QCOMPARE(manager.loadLogs(), QStringLiteral("[WARNING] Version: 1.2.16\nsecond run\n"));

        TestSandbox::writeFile(today, "no start marker\n[x] [version: lower case]\n");
        QCOMPARE(manager.loadLogs(), QStringLiteral("no start marker\n[x] [version: lower case]\n"));
    }

    void saveLogCommands()
    {
        TestSandbox sandbox;
        FakeCommandRunner fake;
        LogManager manager;
        const QString today = Logging::logFilePath(QDate::currentDate());

        QCOMPARE(manager.saveLog(QString(), true), QString());
        QVERIFY(fake.calls.isEmpty());

        fake.answer(QStringLiteral("sudo cp /var/log/syslog /media/USB/syslog"), "copied");
        QCOMPARE(manager.saveLog(QStringLiteral("/media/USB"), true), QStringLiteral("copied"));
        QCOMPARE(fake.calls.size(), 2);
        QCOMPARE(fake.calls[0].commandLine(), QStringList({"sudo", "cp", "-r", sandbox.home() + "/logs", "/media/USB/"}));
        QCOMPARE(fake.calls[1].commandLine(), QStringList({"sudo", "cp", "/var/log/syslog", "/media/USB/syslog"}));

        fake.calls.clear();
        manager.saveLog(QStringLiteral("/media/USB"), false);
        QCOMPARE(fake.calls.size(), 2);
        QCOMPARE(fake.calls[0].commandLine(), QStringList({"sudo", "rm", "/media/USB"}));
        QCOMPARE(fake.calls[1].commandLine(), QStringList({"sudo", "cp", today, "/media/USB/app.log"}));
        QVERIFY(!fake.calls[1].detached);
    }

    void debugSwitchAndFolders()
    {
        TestSandbox sandbox;
        LogManager manager;
        QVERIFY(!manager.isDebug());
        manager.setDebugEnabled(true);
        QVERIFY(manager.isDebug());
        QVERIFY(TestSandbox::readFile(sandbox.dataFile(QStringLiteral("api.ini"))).contains("DebugLogs=true"));
        manager.setDebugEnabled(false);
        QVERIFY(!Logging::debugEnabled());

        QVERIFY(manager.listFolders().isEmpty()); // no /media at all
        QDir().mkpath(sandbox.path(QStringLiteral("/media/STICK B")));
        QDir().mkpath(sandbox.path(QStringLiteral("/media/A/nested")));
        TestSandbox::writeFile(sandbox.path(QStringLiteral("/media/file.txt")), "x");
        QCOMPARE(manager.listFolders(),
                 QStringList({sandbox.path(QStringLiteral("/media/A")), sandbox.path(QStringLiteral("/media/STICK B"))}));
    }
};

QTEST_GUILESS_MAIN(tst_Logging)
#include "tst_logging.moc"
