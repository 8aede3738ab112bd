#include "APIManager.h"
#include "AgentHarness.h"
#include "AssistanceTunnels.h"
#include "FakeCommandRunner.h"
#include "ProcessRunner.h"
#include "TestSandbox.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

void flushDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

// The assistance indicator follows the tunnels this shell started, real child processes included.
class tst_AssistanceTunnels : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { flushDeletes(); }

    void followsARealChild_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("endsByItself");
        QTest::newRow("ends by itself") << "/bin/sh" << QStringList{"-c", "sleep 0.2; exit 3"} << true;
        QTest::newRow("ended by the user") << "/bin/sleep" << QStringList{"600"} << false;
        // A tunnel that ignores the request to end is killed.
        QTest::newRow("ignores the request to end")
                << "/usr/bin/python3"
                << QStringList{"-c", "import signal, time\nsignal.signal(signal.SIGTERM, signal.SIG_IGN)\nprint('up', flush=True)\ntime.sleep(600)"}
                << false;
    }
    void followsARealChild()
    {
        QFETCH(QString, program);
        QFETCH(QStringList, arguments);
        QFETCH(bool, endsByItself);
        ProcessRunner runner;
        CommandRunner::setInstance(&runner);
        {
            AssistanceTunnels tunnels;
            QSignalSpy changes(&tunnels, &AssistanceTunnels::activeChanged);
            QVERIFY(tunnels.start(program, arguments));
            QVERIFY(tunnels.isActive());
            QCOMPARE(tunnels.count(), 1);
            QCOMPARE(changes.count(), 1);
            if (endsByItself) {
                QVERIFY(changes.wait(30000));
            } else {
                QTest::qWait(200); // let it install its handlers
                QVERIFY(tunnels.isActive());
                tunnels.endAssistance();
                if (tunnels.isActive())
                    QVERIFY(changes.wait(30000));
            }
            QVERIFY(!tunnels.isActive());
            QCOMPARE(tunnels.count(), 0);
            QCOMPARE(changes.count(), 2);
            tunnels.endAssistance(); // nothing left: no change
            QCOMPARE(changes.count(), 2);
            flushDeletes();
            QCOMPARE(tunnels.findChildren<RunningProcess*>().size(), 0);
        }
        CommandRunner::setInstance(nullptr);
    }

    void severalTunnels()
    {
        ProcessRunner runner;
        CommandRunner::setInstance(&runner);
        {
            AssistanceTunnels tunnels;
            QSignalSpy changes(&tunnels, &AssistanceTunnels::activeChanged);
            QVERIFY(tunnels.start("/bin/sleep", {"600"}));
            QVERIFY(tunnels.start("/bin/sh", {"-c", "exit 0"}));
            QTRY_COMPARE_WITH_TIMEOUT(tunnels.count(), 1, 30000);
            QVERIFY(tunnels.isActive()); // the other one still runs
            tunnels.endAssistance();
            QTRY_VERIFY_WITH_TIMEOUT(!tunnels.isActive(), 30000);
        }
        flushDeletes();
        CommandRunner::setInstance(nullptr);
    }

    void programThatCannotStart()
    {
        ProcessRunner runner;
        CommandRunner::setInstance(&runner);
        {
            TestSandbox sandbox;
            AssistanceTunnels tunnels;
            QSignalSpy changes(&tunnels, &AssistanceTunnels::activeChanged);
            QVERIFY(!tunnels.start(sandbox.path("/opt/norbix/tools/tunnel"), {"--src", "x:1"}));
            QVERIFY(!tunnels.isActive());
            flushDeletes();
            QVERIFY(!tunnels.isActive());
            QCOMPARE(tunnels.findChildren<RunningProcess*>().size(), 0);
        }
        CommandRunner::setInstance(nullptr);
    }

    // The agent's tunnel: same command line and log lines, now followed until it ends.
    void agentStartsAWatchedTunnel_data()
    {
        QTest::addColumn<bool>("askedFirst");
        QTest::newRow("accepted automatically") << false;
        QTest::newRow("accepted in the popup") << true;
    }
    void agentStartsAWatchedTunnel()
    {
        QFETCH(bool, askedFirst);
        FakeCommandRunner fake;
        TestSandbox sandbox;
        AgentHarness::setManaged(sandbox, true, "wss://mgmt.example.org:8443/api/v1/ws");
        AgentHarness agent;
        AssistanceTunnels* tunnels = AssistanceTunnels::getInstance();
        QVERIFY(!tunnels->isActive());
        QTest::ignoreMessage(QtDebugMsg,
                             "/opt/norbix/tools/tunnel --src mgmt.example.org:40001 --dst 127.0.0.1:5900 --token t0k");
        QTest::ignoreMessage(QtInfoMsg, "Remote connection accepted");
        if (askedFirst)
            agent.api()->acceptConnection(9, "t0k", "40001");
        else
            agent.api()->handleRequest(R"({"action":"remote","id":9,"data":{"type":2,"port":"40001","token":"t0k"}})");
        QCOMPARE(fake.calls.size(), 1);
        QCOMPARE(fake.calls.first().commandLine(),
                 (QStringList{"/opt/norbix/tools/tunnel", "--src", "mgmt.example.org:40001", "--dst", "127.0.0.1:5900", "--token", "t0k"}));
        QVERIFY(!fake.calls.first().detached);
        QVERIFY(tunnels->isActive());
        fake.finishAll();
        QVERIFY(!tunnels->isActive());
        flushDeletes();
    }
};

QTEST_GUILESS_MAIN(tst_AssistanceTunnels)
#include "tst_assistance_tunnels.moc"
