#include "MgmtPeer.h"
#include "SimulatedShell.h"

#include <QProcess>
#include <QtTest>

// The real shell in the simulated terminal, managed by tools/mgmt-peer: start-up hands the
// device identity to the agent, which identifies itself and runs what the server asks for.
class tst_ShellSession : public QObject {
    Q_OBJECT

private slots:
    void shellIsManaged()
    {
        if (!MgmtPeer::available())
            QSKIP("python3-websockets is not installed (scripts/test installs it)");
        SimulatedShell terminal;
        MgmtPeer peer;
        QVERIFY(peer.start());
        terminal.manageBy(peer.url(), "acme");
        QProcess shell;
        terminal.launch(shell);
        QVERIFY(shell.waitForStarted());

        QVERIFY(!peer.waitFor("CONNECTED", 60000).isEmpty());
        const QJsonObject auth = peer.received();
        const QJsonObject identity = auth.value("data").toObject();
        QCOMPARE(identity.value("name").toString(), QStringLiteral("norbix-4A7B12")); // from the recorded nmcli
        QCOMPARE(identity.value("mac").toString(), QStringLiteral("00:1e:c9:4a:7b:12"));
        QCOMPARE(identity.value("account").toString(), QStringLiteral("acme"));
        QCOMPARE(identity.value("serial").toString().size(), 36);
        QCOMPARE(identity.value("serial").toString().at(14), QLatin1Char('3')); // a version-3 UUID
        QCOMPARE(peer.received(), (QJsonObject{{"action", "getConnections"}}));
        QCOMPARE(peer.received(), (QJsonObject{{"action", "getSettings"}}));

        peer.send(R"({"action":"status","id":2})");
        QVERIFY(peer.received().value("data").toObject().value("system").toString().startsWith("Linux"));
        peer.send(R"({"action":"remote","id":3,"data":{"type":2,"port":"5999","token":"abc"}})");
        QCOMPARE(peer.received(), (QJsonObject{{"action", "remote"}, {"id", 3}, {"data", QJsonObject{{"status", "ok"}}}}));
        peer.send(R"({"action":"restart","id":4})");
        QCOMPARE(peer.received().value("data").toString(), QStringLiteral("ok"));

        shell.kill();
        shell.waitForFinished();
        const QList<QByteArray> commands = TestSandbox::readFile(terminal.commandLog()).split('\n');
        QVERIFY(commands.contains(R"({"args":["--src","127.0.0.1:5999","--dst","127.0.0.1:5900","--token","abc"],"detached":false,"program":"/opt/norbix/tools/tunnel"})"));
        QVERIFY(commands.contains(R"({"args":["reboot","-f"],"detached":true,"program":"sudo"})"));

        const QString log = terminal.log();
        QVERIFY2(log.contains("Computer name norbix-4A7B12"), qPrintable(log.right(2000)));
        QVERIFY(log.contains("Starting websocket"));
        QVERIFY(log.indexOf("Starting websocket") < log.indexOf("Computer name "));
    }
};

QTEST_GUILESS_MAIN(tst_ShellSession)
#include "tst_shell_session.moc"
