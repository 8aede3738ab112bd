#include "AgentHarness.h"
#include "FakeCommandRunner.h"
#include "FreePort.h"

#include <QtTest>

// The session watchdog acts on one tick only: the first one at which managed mode is on.
namespace {
QStringList g_reconnects;
QtMessageHandler g_previous = nullptr;
void collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.startsWith(QLatin1String("Reconnect socket")))
        g_reconnects << message;
    g_previous(type, context, message);
}
} // namespace

class tst_Watchdog : public QObject {
    Q_OBJECT

private slots:
    void actsOnTheFirstManagedTickOnly()
    {
        FakeCommandRunner runner;
        TestSandbox sandbox;
        const quint16 closedPort = freeLocalPort();
        AgentHarness::setManaged(sandbox, false, QStringLiteral("ws://127.0.0.1:%1/api/v1/ws").arg(closedPort));
        g_previous = qInstallMessageHandler(collect);

        APIManager* api = APIManager::getInstance();
        // Ticks every 50 ms; the reconnect timer is kept out of the way.
        api->setTiming({600000, 50, 60000});
        api->init(QStringLiteral("uuid"), QStringLiteral("Linux test"));

        QTest::qWait(500); // ticks while unmanaged do nothing, and keep the watchdog alive
        QCOMPARE(g_reconnects, QStringList());

        // Managed mode turned on behind the agent's back (as an imported api.ini would): the next
        // tick finds no session and opens one, once.
        AgentHarness::setManaged(sandbox, true, QStringLiteral("ws://127.0.0.1:%1/api/v1/ws").arg(closedPort));
        QTRY_COMPARE_WITH_TIMEOUT(g_reconnects.size(), 1, 20000);
        QCOMPARE(g_reconnects.first(), QStringLiteral("Reconnect socket"));
        QTest::qWait(1000); // many more periods: the watchdog has stopped for good
        QCOMPARE(g_reconnects.size(), 1);

        api->shutdown();
        qInstallMessageHandler(g_previous);
    }
};

QTEST_MAIN(tst_Watchdog)
#include "tst_watchdog.moc"
