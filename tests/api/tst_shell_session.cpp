#include "MgmtPeer.h"
#include "TestSandbox.h"

#include <QDir>
#include <QProcess>
#include <QSettings>
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
        TestSandbox sandbox;
        MgmtPeer peer;
        QVERIFY(peer.start());
        {
            QSettings settings(sandbox.dataFile("api.ini"), QSettings::IniFormat);
            settings.setValue("Enabled", true);
            settings.setValue("URL", peer.url());
            settings.setValue("Account", "acme");
        }
        const QString commandLog = sandbox.home() + "/commands.jsonl";
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("NORBIX_SIMULATE", "1");
        environment.insert("NORBIX_ROOT", sandbox.root());
        environment.insert("HOME", sandbox.home());
        environment.insert("NORBIX_COMMAND_LOG", commandLog);
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.remove("QT_QUICK_BACKEND");
        shell.setProcessEnvironment(environment);
        shell.setWorkingDirectory(QStringLiteral(NORBIX_BUILD_DIR));
        shell.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        shell.start(QStringLiteral(NORBIX_SHELL_BINARY), {"--size", "1280x720"});
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
        const QList<QByteArray> commands = TestSandbox::readFile(commandLog).split('\n');
        QVERIFY(commands.contains(R"({"args":["--src","127.0.0.1:5999","--dst","127.0.0.1:5900","--token","abc"],"detached":false,"program":"/opt/norbix/tools/tunnel"})"));
        QVERIFY(commands.contains(R"({"args":["reboot","-f"],"detached":true,"program":"sudo"})"));

        QString log;
        for (const QString& file : QDir(sandbox.home() + "/logs").entryList(QDir::Files))
            log += QString::fromUtf8(TestSandbox::readFile(sandbox.home() + "/logs/" + file));
        QVERIFY2(log.contains("Computer name norbix-4A7B12"), qPrintable(log.right(2000)));
        QVERIFY(log.contains("Starting websocket"));
        QVERIFY(log.indexOf("Starting websocket") < log.indexOf("Computer name "));
    }
};

QTEST_GUILESS_MAIN(tst_ShellSession)
#include "tst_shell_session.moc"
