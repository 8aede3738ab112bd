// The settings push and the settings report over a real session with tools/mgmt-peer, on the
// simulated terminal. The slots run in order on one session, as a terminal lives through them.
#include "APIManager.h"
#include "AgentHarness.h"
#include "MgmtPeer.h"
#include "PushTerminal.h"
#include "USBManager.h"

#include <QtTest>

#include <atomic>

namespace {

std::atomic<int> g_ignored{0};
QtMessageHandler g_previousHandler = nullptr;

void countIgnored(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (text.startsWith(QLatin1String("Ignored request")))
        ++g_ignored;
    if (g_previousHandler)
        g_previousHandler(type, context, text);
}

} // namespace

class tst_PushSession : public QObject {
    Q_OBJECT

    PushTerminal* m_terminal = nullptr;
    MgmtPeer m_peer;
    QJsonObject m_lastReport; // the last "setSettings" document the server received
    APIManager* api() { return APIManager::getInstance(); }

    void setManagedFlag(bool managed)
    {
        QSettings(m_terminal->sandbox.dataFile("api.ini"), QSettings::IniFormat).setValue("Enabled", managed);
    }

    // The next frame the terminal sends must be the answer to this ping: nothing else is on its way.
    void expectNothingBefore(int pingId)
    {
        m_peer.send(QJsonObject{{"action", "ping"}, {"id", pingId}});
        const QJsonObject next = m_peer.received();
        QVERIFY2(next == (QJsonObject{{"action", "pong"}, {"id", pingId}}), qPrintable(AgentHarness::text(next)));
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(MgmtPeer::available(), "python3-websockets is missing");
        g_previousHandler = qInstallMessageHandler(countIgnored);
        m_terminal = new PushTerminal;
        // The terminal's own changes reach the agent as start-up wires them.
        SettingsChange::setReporter([] { APIManager::getInstance()->updateSettings(); });
        USBManager::setUsbEnabled(false);
        // Debug logging as the log manager keeps it.
        APIManager::Services services;
        services.setDebugEnabled = [this](bool enabled) {
            QSettings(m_terminal->sandbox.dataFile("api.ini"), QSettings::IniFormat).setValue("DebugLogs", enabled);
        };
        APIManager::setServices(services);
        QVERIFY(m_peer.start());
        AgentHarness::setManaged(m_terminal->sandbox, true, m_peer.url());
        api()->setTiming({300, 200, 60000});
        api()->init(QStringLiteral("5b2c4c1e-0f7e-3a47-8a11-29a1f5e0c0de"), QStringLiteral("Linux test"));
    }
    void cleanupTestCase()
    {
        m_peer.stop();
        api()->shutdown();
        delete m_terminal;
        qInstallMessageHandler(g_previousHandler);
    }

    // Before the server's first document the terminal reports none of its changes.
    void nothingReportedBeforeTheServersDocument()
    {
        QCOMPARE(m_peer.received().value("action").toString(), QStringLiteral("auth"));
        QCOMPARE(m_peer.received(), (QJsonObject{{"action", "getConnections"}}));
        QCOMPARE(m_peer.received(), (QJsonObject{{"action", "getSettings"}}));
        USBManager::setUsbEnabled(true);
        USBManager::setUsbEnabled(false);
        expectNothingBefore(501);
    }

    // The pushed document applies; what it changed comes back once as "setSettings", and
    // "getSettings" without data reads the same document back.
    void pushAppliesAndReadsBack()
    {
        m_peer.send(R"(getSettings {"USB":{"Enabled":true},"Screens":{"Sleep":2,"TurnOff":1}})");
        const QJsonObject answer = m_peer.received();
        QCOMPARE(answer.value("action").toString(), QStringLiteral("getSettings"));
        QVERIFY2(!answer.contains("data"), qPrintable(AgentHarness::text(answer)));
        QVERIFY(USBManager::isUsbEnabled());

        const QJsonObject report = m_peer.received();
        QCOMPARE(report.value("action").toString(), QStringLiteral("setSettings"));
        const QJsonObject document = report.value("data").toObject();
        QCOMPARE(document.value("USB").toObject().value("Enabled"), QJsonValue(true));
        QCOMPARE(document.value("Screens").toObject().value("Sleep").toInt(), 2);
        QCOMPARE(document.value("Screens").toObject().value("TurnOff").toInt(), 1);
        expectNothingBefore(502);

        m_peer.send("getSettings");
        const QJsonObject readBack = m_peer.received();
        QCOMPARE(readBack.value("action").toString(), QStringLiteral("getSettings"));
        QCOMPARE(readBack.value("data").toObject(), document);
    }

    // A local change sends exactly one "setSettings"; a report with nothing changed sends none.
    void localChangeSendsOneReport()
    {
        api()->updateSettings(); // nothing changed since the last report
        USBManager::setUsbEnabled(false);
        const QJsonObject report = m_peer.received();
        QCOMPARE(report.value("action").toString(), QStringLiteral("setSettings"));
        QCOMPARE(report.value("data").toObject().value("USB").toObject().value("Enabled"), QJsonValue(false));
        m_lastReport = report.value("data").toObject();
        expectNothingBefore(503);
    }

    // A document with only "Config" changes the administrator password and debug logging, nothing else.
    void configChangesOnlyPasswordAndLogging()
    {
        m_terminal->clear();
        m_peer.send(R"(getSettings {"Config":{"AdminPassword":"n3w-admin","DebugLogs":true}})");
        QCOMPARE(m_peer.received().value("action").toString(), QStringLiteral("getSettings"));
        const QJsonObject report = m_peer.received();
        QCOMPARE(report.value("action").toString(), QStringLiteral("setSettings"));
        QJsonObject document = report.value("data").toObject();
        QCOMPARE(document.value("Config").toObject(),
                 (QJsonObject{{"AdminPassword", "n3w-admin"}, {"DebugLogs", true}}));
        document.remove("Config");
        QJsonObject before = m_lastReport;
        before.remove("Config");
        QCOMPARE(document, before);
        // Nothing was run to apply it: the commands are the report's readings only, each once.
        const QStringList commands = m_terminal->commands();
        QCOMPARE(QSet<QString>(commands.begin(), commands.end()).size(), commands.size());
        QVERIFY2(m_terminal->busMethods() == (QStringList{"GetSettings"}), qPrintable(m_terminal->busMethods().join(',')));
        expectNothingBefore(505);
    }

    // Out of management the terminal neither answers nor acts: the push changes nothing, a
    // reboot does not run, and its own changes stay home.
    void unmanagedTakesNoOrders()
    {
        api()->setManaged(0);
        QVERIFY(!m_peer.waitFor("CONNECTED").isEmpty()); // reopened; the peer greets with auth
        const int ignoredBefore = g_ignored;
        m_terminal->clear();
        m_peer.send(R"(getSettings {"USB":{"Enabled":true},"Screens":{"Sleep":4}})");
        m_peer.send("restart");
        QTRY_VERIFY_WITH_TIMEOUT(g_ignored >= ignoredBefore + 3, 20000); // auth, the push, the restart
        QVERIFY(!USBManager::isUsbEnabled());
        QVERIFY2(!m_terminal->commands().join('\n').contains("reboot"), qPrintable(m_terminal->commands().join('\n')));
        QVERIFY2(!m_terminal->commands().join('\n').contains("xautolock"), qPrintable(m_terminal->commands().join('\n')));
        USBManager::setUsbEnabled(true); // a local change, not reported
        setManagedFlag(true);
        expectNothingBefore(504);
    }
};

QTEST_MAIN(tst_PushSession)
#include "tst_push_session.moc"
