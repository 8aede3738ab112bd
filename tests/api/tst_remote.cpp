#include "APIManager.h"
#include "AgentHarness.h"
#include "FakeCommandRunner.h"
#include "RemoteAssistanceBackend.h"
#include "TestSandbox.h"

#include <QSignalSpy>
#include <QtTest>

// The remote-assistance popup's rules: countdown per type, exactly one answer per request.
class tst_Remote : public QObject {
    Q_OBJECT

    FakeCommandRunner m_runner;
    TestSandbox* m_sandbox = nullptr;
    AgentHarness m_agent;
    RemoteAssistanceBackend* m_popup = nullptr;

    QStringList statuses() const
    {
        QStringList list;
        for (int i = 0; i < m_agent.frames.size(); ++i) {
            const QJsonObject frame = m_agent.frame(i);
            list << QString::number(frame.value("id").toInt()) + " " + frame.value("data").toObject().value("status").toString();
        }
        return list;
    }
    void ticks(int count)
    {
        for (int i = 0; i < count; ++i)
            m_popup->tick();
    }

private slots:
    void init()
    {
        m_sandbox = new TestSandbox;
        AgentHarness::setManaged(*m_sandbox, true, "wss://mgmt.example.org:8443/api/v1/ws");
        m_agent.api();
        m_agent.frames.clear();
        m_runner.calls.clear();
        m_popup = new RemoteAssistanceBackend;
    }
    void cleanup()
    {
        delete m_popup;
        delete m_sandbox;
    }

    void leftAlone_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("status");
        QTest::addColumn<bool>("tunnel");
        QTest::addColumn<bool>("countdownShown");
        QTest::newRow("type 0 times out") << 0 << "timeout" << false << false;
        QTest::newRow("type 1 accepts") << 1 << "ok" << true << true;
    }
    void leftAlone()
    {
        QFETCH(int, type);
        QFETCH(QString, status);
        QFETCH(bool, tunnel);
        QFETCH(bool, countdownShown);
        m_popup->showPopup(77, type, "Support", "May we look?", 3, "tok", "40001");
        QVERIFY(m_popup->isActive());
        QCOMPARE(m_popup->countdownVisible(), countdownShown);
        QCOMPARE(m_popup->secondsLeft(), 3);
        ticks(2);
        QCOMPARE(m_popup->secondsLeft(), 1);
        QCOMPARE(m_agent.frames, QStringList());
        ticks(1);
        QVERIFY(!m_popup->isActive());
        QCOMPARE(statuses(), QStringList{"77 " + status});
        QCOMPARE(m_runner.calls.size(), tunnel ? 1 : 0);
        if (tunnel)
            QCOMPARE(m_runner.calls.first().commandLine(),
                     (QStringList{"/opt/norbix/tools/tunnel", "--src", "mgmt.example.org:40001", "--dst", "127.0.0.1:5900", "--token", "tok"}));
        ticks(5);
        m_popup->dismiss(m_popup->serial());
        QCOMPARE(m_agent.frames.size(), 1);
    }

    void buttonsAndClosing_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<QString>("status");
        QTest::newRow("accept") << "accept" << "ok";
        QTest::newRow("reject") << "reject" << "reject";
        QTest::newRow("closed otherwise") << "dismiss" << "reject";
    }
    void buttonsAndClosing()
    {
        QFETCH(QString, how);
        QFETCH(QString, status);
        for (int type : {0, 1}) {
            m_agent.frames.clear();
            m_popup->showPopup(5, type, "t", "x", 30, "tok", "40001");
            const int serial = m_popup->serial();
            if (how == "accept")
                m_popup->accept();
            else if (how == "reject")
                m_popup->reject();
            else
                m_popup->dismiss(serial);
            // Whatever follows, the request has had its one answer.
            m_popup->dismiss(serial);
            m_popup->accept();
            m_popup->reject();
            ticks(40);
            QCOMPARE(statuses(), QStringList{"5 " + status});
        }
    }

    void requestsWaitTheirTurn()
    {
        m_popup->showPopup(1, 0, "first", "", 10, "a", "1");
        const int firstSerial = m_popup->serial();
        m_popup->showPopup(2, 1, "second", "", 10, "b", "2");
        QCOMPARE(m_popup->title(), QStringLiteral("first"));
        QCOMPARE(m_popup->pending(), 1);
        QSignalSpy changed(m_popup, &RemoteAssistanceBackend::currentChanged);
        m_popup->reject();
        QVERIFY(changed.count() > 0);
        QCOMPARE(m_popup->title(), QStringLiteral("second"));
        QCOMPARE(m_popup->secondsLeft(), 10);
        QVERIFY(m_popup->countdownVisible());
        // The first popup's late close must not answer the second request.
        m_popup->dismiss(firstSerial);
        QVERIFY(m_popup->isActive());
        ticks(10);
        QCOMPARE(statuses(), (QStringList{"1 reject", "2 ok"}));
        QVERIFY(!m_popup->isActive());
    }

    void noTimeToWait_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("timeout");
        QTest::addColumn<QString>("status");
        QTest::newRow("type 0, zero") << 0 << 0 << "timeout";
        QTest::newRow("type 1, zero") << 1 << 0 << "ok";
        QTest::newRow("type 1, negative") << 1 << -5 << "ok";
    }
    void noTimeToWait()
    {
        QFETCH(int, type);
        QFETCH(int, timeout);
        QFETCH(QString, status);
        m_popup->showPopup(9, type, "", "", timeout, "t", "1");
        QCOMPARE(statuses(), QStringList{"9 " + status});
        QVERIFY(!m_popup->isActive());
    }

    // The whole way: a request from the server reaches the popup and the answer goes back.
    void fromRequestToAnswer()
    {
        connect(APIManager::getInstance(), &APIManager::connectionRequest, m_popup, &RemoteAssistanceBackend::showPopup);
        APIManager::getInstance()->handleRequest(
            R"({"action":"remote","id":12,"data":{"type":1,"port":"40009","token":"zz","title":"Help desk","text":"Hi","timeout":2}})");
        QCOMPARE(m_popup->title(), QStringLiteral("Help desk"));
        QCOMPARE(m_popup->text(), QStringLiteral("Hi"));
        QCOMPARE(m_agent.frames, QStringList());
        ticks(2);
        QCOMPARE(statuses(), QStringList{"12 ok"});
        QCOMPARE(m_runner.calls.first().arguments.at(1), QStringLiteral("mgmt.example.org:40009"));
        disconnect(APIManager::getInstance(), nullptr, m_popup, nullptr);
    }
};

QTEST_GUILESS_MAIN(tst_Remote)
#include "tst_remote.moc"
