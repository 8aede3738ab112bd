#include "APIManager.h"
#include "AgentHarness.h"
#include "ConnectionManager.h"
#include "ConnectionStore.h"
#include "FakeCommandRunner.h"
#include "MgmtPeer.h"
#include "TestSandbox.h"

#include <QJsonArray>
#include <QtTest>

// The agent against tools/mgmt-peer over a real socket on 127.0.0.1. The slots run in order on
// one session, as a terminal lives through them.
class tst_Session : public QObject {
    Q_OBJECT

    FakeCommandRunner m_runner; // the tunnel and reboots must not run for real
    TestSandbox* m_sandbox = nullptr;
    QByteArray m_outerCommandLog;
    MgmtPeer m_peer;
    APIManager* api() { return APIManager::getInstance(); }

    void setManagedFlag(bool managed)
    {
        QSettings(m_sandbox->dataFile("api.ini"), QSettings::IniFormat).setValue("Enabled", managed);
    }

    // After auth the terminal answers, then asks for its catalogue and its settings.
    void expectHandshake()
    {
        const QJsonObject auth = m_peer.received();
        QCOMPARE(auth.value("action").toString(), QStringLiteral("auth"));
        QCOMPARE(auth.value("data").toObject().value("serial").toString(), QStringLiteral("5b2c4c1e-0f7e-3a47-8a11-29a1f5e0c0de"));
        QCOMPARE(auth.value("data").toObject().value("version").toString(), QStringLiteral("1.2.16"));
        QCOMPARE(m_peer.received(), (QJsonObject{{"action", "getConnections"}}));
        QCOMPARE(m_peer.received(), (QJsonObject{{"action", "getSettings"}}));
    }

private slots:
    void initTestCase()
    {
        if (!MgmtPeer::available())
            QSKIP("python3-websockets is not installed (scripts/test installs it)");
        m_sandbox = new TestSandbox;
        m_outerCommandLog = qgetenv("NORBIX_COMMAND_LOG");
        qputenv("NORBIX_COMMAND_LOG", m_sandbox->dataFile("commands.jsonl").toUtf8());
        QVERIFY(m_peer.start());
        AgentHarness::setManaged(*m_sandbox, false, m_peer.url());
        api()->setTiming({300, 200, 60000});
        api()->init(QStringLiteral("5b2c4c1e-0f7e-3a47-8a11-29a1f5e0c0de"), QStringLiteral("Linux test"));
    }
    void cleanupTestCase()
    {
        m_peer.stop();
        // The suite's log (ctest's NORBIX_COMMAND_LOG) gets this test's commands too.
        qunsetenv("NORBIX_COMMAND_LOG");
        if (!m_outerCommandLog.isEmpty()) {
            QFile outer(QString::fromLocal8Bit(m_outerCommandLog));
            if (outer.open(QIODevice::WriteOnly | QIODevice::Append))
                outer.write(TestSandbox::readFile(m_sandbox->dataFile("commands.jsonl")));
            qputenv("NORBIX_COMMAND_LOG", m_outerCommandLog);
        }
        delete m_sandbox;
    }

    // Unmanaged from the start: no session at all; turning managed mode on opens it.
    void unmanagedStaysAway()
    {
        QTest::qWait(1000); // several watchdog ticks and reconnect periods
        QCOMPARE(m_peer.linesStartingWith("CONNECTED"), QStringList());
        api()->setManaged(1);
        QVERIFY(!m_peer.waitFor("CONNECTED").isEmpty());
        expectHandshake();
        QTRY_VERIFY_WITH_TIMEOUT(api()->isConnected(), 20000);
    }

    void pingPong()
    {
        m_peer.send(R"({"action":"ping","id":7})");
        QCOMPARE(m_peer.received(), (QJsonObject{{"action", "pong"}, {"id", 7}}));
    }

    void pushedCatalogueIsStoredAndLocalEditReported()
    {
        const QJsonArray pushed{QJsonObject{{"Type", "RDP"}, {"Name", "Desk"}, {"Address", "desk.example"},
                                            {"AccountUsername", "ann"}, {"AccountPassword", "Secret1"}},
                                QJsonObject{{"Type", "Browser"}, {"Name", "Intranet"}, {"Address", "https://intra"}, {"Kiosk", true}}};
        m_peer.send(QJsonObject{{"action", "getConnections"}, {"id", 30}, {"data", pushed}});
        const QJsonObject answer = m_peer.received();
        QCOMPARE(answer.value("id").toInt(), 30);
        QCOMPARE(answer.value("data").toArray(), pushed);

        const QJsonArray stored = QJsonDocument::fromJson(TestSandbox::readFile(m_sandbox->dataFile("connections.json"))).array();
        QCOMPARE(stored.size(), 2);
        const QJsonObject desk = stored.at(0).toObject();
        QCOMPARE(desk.value("type").toInt(), 3);
        QCOMPARE(desk.value("username").toString(), QStringLiteral("ann"));
        QVERIFY(desk.value("password").toString().startsWith("e:"));
        QVERIFY(!TestSandbox::readFile(m_sandbox->dataFile("connections.json")).contains("Secret1"));
        QCOMPARE(ConnectionManager::getInstance()->getConnection(0).get("password"), QStringLiteral("Secret1"));

        ConnectionManager::getInstance()->setAutoconnect(1, true);
        const QJsonObject report = m_peer.received();
        QCOMPARE(report.value("action").toString(), QStringLiteral("setConnections"));
        QVERIFY(!report.contains("id"));
        const QJsonArray reported = report.value("data").toArray();
        QCOMPARE(reported.size(), 2);
        QCOMPARE(reported.at(1).toObject().value("AutoConnect"), QJsonValue(true));
        QCOMPARE(reported.at(0).toObject().value("AccountPassword").toString(), QStringLiteral("Secret1"));
    }

    void autoAcceptedRemoteStartsTunnel()
    {
        m_runner.calls.clear();
        m_peer.send(R"({"action":"remote","id":44,"data":{"type":2,"port":"41234","token":"f00d","title":"","text":"","timeout":0}})");
        QCOMPARE(m_peer.received(), (QJsonObject{{"action", "remote"}, {"id", 44}, {"data", QJsonObject{{"status", "ok"}}}}));
        const QList<QByteArray> log = TestSandbox::readFile(m_sandbox->dataFile("commands.jsonl")).split('\n');
        QVERIFY(log.contains(R"({"args":["--src","127.0.0.1:41234","--dst","127.0.0.1:5900","--token","f00d"],"detached":false,"program":"/opt/norbix/tools/tunnel"})"));
    }

    void helpBothWays()
    {
        QSignalSpy help(api(), &APIManager::helpNeeded);
        m_peer.send("helpMe");
        QCOMPARE(m_peer.received().value("data").toString(), QStringLiteral("ok"));
        QCOMPARE(help.count(), 1);
        api()->needHelp();
        QCOMPARE(m_peer.received(), (QJsonObject{{"action", "helpMe"}, {"data", QJsonObject()}}));
    }

    void malformedFramesAreAnsweredEmpty()
    {
        m_peer.send("raw this is not json");
        QCOMPARE(m_peer.received(), (QJsonObject{{"action", ""}}));
        m_peer.send(R"(raw [1,2,3])");
        QCOMPARE(m_peer.received(), (QJsonObject{{"action", ""}}));
        m_peer.send(R"({"action":"ping","id":8})");
        QCOMPARE(m_peer.received(), (QJsonObject{{"action", "pong"}, {"id", 8}}));
    }

    void reconnectsAfterTheServerClosed()
    {
        m_peer.send("close");
        QVERIFY(!m_peer.waitFor("DISCONNECTED").isEmpty());
        QVERIFY(!m_peer.waitFor("CONNECTED").isEmpty());
        expectHandshake();
    }

    void reconnectsWhenTheServerComesBack()
    {
        const quint16 port = m_peer.port();
        m_peer.stop();
        QTRY_VERIFY_WITH_TIMEOUT(!api()->isConnected(), 20000);
        QTest::qWait(700); // a few refused attempts
        QVERIFY(m_peer.start(port));
        QVERIFY(!m_peer.waitFor("CONNECTED").isEmpty());
        expectHandshake();
        m_peer.send(R"({"action":"ping","id":9})");
        QCOMPARE(m_peer.received(), (QJsonObject{{"action", "pong"}, {"id", 9}}));
    }

    // Managed mode off on a live session: the session is reopened, but nothing leaves any more and
    // no request is acted on.
    void unmanagedSendsNothing()
    {
        int ignored = 0;
        static int* counter = nullptr;
        counter = &ignored;
        const QtMessageHandler previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            if (text.startsWith(QLatin1String("Ignored request")))
                ++*counter;
        });
        api()->setManaged(0);
        QVERIFY(!m_peer.waitFor("CONNECTED").isEmpty()); // reopened; the peer greets with auth
        m_runner.calls.clear();
        m_peer.send(R"({"action":"ping","id":98})");
        m_peer.send(R"({"action":"status","id":97})");
        m_peer.send(R"({"action":"remote","id":96,"data":{"type":2,"port":"1","token":"t"}})");
        ConnectionManager::getInstance()->remove(0);
        api()->needHelp();
        // Frames are handled in order: auth and the three requests, each ignored.
        QTRY_VERIFY_WITH_TIMEOUT(ignored >= 4, 20000);
        qInstallMessageHandler(previous);
        for (const FakeCommandRunner::Call& call : m_runner.calls.snapshot())
            QVERIFY2(call.program != QLatin1String("/opt/norbix/tools/tunnel"), "a tunnel was opened while unmanaged");
        // Then the marker: its answer must be the first frame the peer gets.
        setManagedFlag(true);
        m_peer.send(R"({"action":"ping","id":99})");
        const QJsonObject marker = m_peer.received();
        QVERIFY2(marker == (QJsonObject{{"action", "pong"}, {"id", 99}}), qPrintable(AgentHarness::text(marker)));
    }

    // A server with a certificate nobody vouches for is still reached.
    void untrustedCertificateIsAccepted()
    {
        const QString cert = m_sandbox->home() + "/peer.crt";
        const QString key = m_sandbox->home() + "/peer.key";
        QCOMPARE(QProcess::execute("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", key, "-out", cert,
                                               "-days", "1", "-subj", "/CN=mgmt.invalid"}),
                 0);
        MgmtPeer secure;
        QVERIFY(secure.start(0, {"--cert", cert, "--key", key}));
        api()->setManaged(1);
        api()->setManagedUrl(QStringLiteral("wss://127.0.0.1:%1/api/v1/ws").arg(secure.port()));
        QVERIFY(!secure.waitFor("CONNECTED").isEmpty());
        const QJsonObject auth = secure.received();
        QCOMPARE(auth.value("action").toString(), QStringLiteral("auth"));
        QCOMPARE(secure.received(), (QJsonObject{{"action", "getConnections"}}));
    }
};

QTEST_GUILESS_MAIN(tst_Session)
#include "tst_session.moc"
