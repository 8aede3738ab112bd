#include "ConnectionManager.h"
#include "ConnectorLaunchers.h"
#include "FakeCommandRunner.h"
#include "RDPConnectDialogBackend.h"
#include "RDPConnector.h"
#include "RDPWorker.h"
#include "TestSandbox.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QThread>
#include <QtTest>

namespace {
const QString kTail = QStringLiteral(
    " /network:auto -window-drag -menu-anims +drives /cert:ignore /tls:seclevel:0 /microphone /sound /timeout:80000");
}

class tst_Rdp : public QObject {
    Q_OBJECT

    FakeCommandRunner m_runner;
    TestSandbox* m_sandbox = nullptr;

private slots:
    // Start-up hands the catalogue its launchers; so does this test.
    void initTestCase() { ConnectorLaunchers::install(); }
    void init()
    {
        m_sandbox = new TestSandbox;
        m_runner.calls.clear();
        m_runner.finishOnStart = false;
    }
    void cleanup()
    {
        m_runner.finishAll();
        delete m_sandbox;
    }

    void argumentString_data()
    {
        QTest::addColumn<QJsonObject>("record");
        QTest::addColumn<QString>("setup"); // usb-rule, printing, default-printer
        QTest::addColumn<QString>("expected");
        QTest::newRow("address only") << QJsonObject{{"address", "srv"}} << "" << "/v:srv /u: /p: +wallpaper +fonts" + kTail;
        QTest::newRow("credentials and domain")
            << QJsonObject{{"address", "srv:3390"}, {"username", "anna"}, {"password", "pw"}, {"domain", "CORP"}} << ""
            << "/v:srv:3390 /u:anna /p:pw /d:CORP +wallpaper +fonts" + kTail;
        QTest::newRow("empty domain left out") << QJsonObject{{"address", "s"}, {"domain", ""}} << ""
                                               << "/v:s /u: /p: +wallpaper +fonts" + kTail;
        QTest::newRow("full screen, multi-monitor")
            << QJsonObject{{"address", "s"}, {"fullscreen", true}, {"multimon", true}} << ""
            << "/v:s /u: /p: /f /multimon +wallpaper +fonts" + kTail;
        QTest::newRow("gateway, all parts")
            << QJsonObject{{"address", "s"}, {"gateway", "gw"}, {"gateway_user", "gu"}, {"gateway_domain", "gd"}, {"gateway_password", "gp"}}
            << "" << "/v:s /u: /p: /gateway:g:gw,u:gu,d:gd,p:gp +wallpaper +fonts" + kTail;
        QTest::newRow("gateway, password only") << QJsonObject{{"address", "s"}, {"gateway", "gw"}, {"gateway_password", "gp"}} << ""
                                                << "/v:s /u: /p: /gateway:g:gw,p:gp +wallpaper +fonts" + kTail;
        QTest::newRow("no gateway host, parts ignored")
            << QJsonObject{{"address", "s"}, {"gateway_user", "gu"}, {"gateway_password", "gp"}} << ""
            << "/v:s /u: /p: +wallpaper +fonts" + kTail;
        QTest::newRow("usb without the rule file") << QJsonObject{{"address", "s"}, {"usb", true}} << ""
                                                   << "/v:s /u: /p: +wallpaper +fonts" + kTail;
        QTest::newRow("usb with the rule file") << QJsonObject{{"address", "s"}, {"usb", true}} << "usb-rule"
                                                << "/v:s /u: /p: /usb:auto +wallpaper +fonts" + kTail;
        QTest::newRow("rule file but usb off") << QJsonObject{{"address", "s"}} << "usb-rule"
                                               << "/v:s /u: /p: +wallpaper +fonts" + kTail;
        QTest::newRow("printer, printing off") << QJsonObject{{"address", "s"}, {"printer", true}} << "default-printer"
                                               << "/v:s /u: /p: +wallpaper +fonts" + kTail;
        QTest::newRow("printer, no default") << QJsonObject{{"address", "s"}, {"printer", true}} << "printing"
                                             << "/v:s /u: /p: +wallpaper +fonts" + kTail;
        QTest::newRow("printer with default") << QJsonObject{{"address", "s"}, {"printer", true}} << "printing,default-printer"
                                              << "/v:s /u: /p: /printer:HP_LaserJet_4 +wallpaper +fonts" + kTail;
        QTest::newRow("performance 1") << QJsonObject{{"address", "s"}, {"performance", "1"}} << ""
                                       << "/v:s /u: /p: -wallpaper -aero -fonts -themes" + kTail;
        QTest::newRow("performance 3") << QJsonObject{{"address", "s"}, {"performance", "3"}} << ""
                                       << "/v:s /u: /p: -wallpaper -aero -fonts -themes" + kTail;
        QTest::newRow("performance 0") << QJsonObject{{"address", "s"}, {"performance", "0"}} << ""
                                       << "/v:s /u: /p: +wallpaper +fonts" + kTail;
        QTest::newRow("performance not a number") << QJsonObject{{"address", "s"}, {"performance", "fast"}} << ""
                                                  << "/v:s /u: /p: +wallpaper +fonts" + kTail;
        QTest::newRow("smart card keeps its trailing blank") << QJsonObject{{"address", "s"}, {"smartcard", true}} << ""
                                                             << "/v:s /u: /p: +wallpaper +fonts /smartcard-logon /sec:nla " + kTail;
        QTest::newRow("blank in a password is not quoted") << QJsonObject{{"address", "s"}, {"password", "a b"}} << ""
                                                           << "/v:s /u: /p:a b +wallpaper +fonts" + kTail;
    }
    void argumentString()
    {
        QFETCH(QJsonObject, record);
        QFETCH(QString, setup);
        QFETCH(QString, expected);
        if (setup.contains("usb-rule"))
            TestSandbox::writeFile(m_sandbox->path("/lib/udev/rules.d/99-media-automount.rules"), "rule");
        if (setup.contains("printing"))
            TestSandbox::writeFile(m_sandbox->dataFile("printers.ini"), "[General]\nEnabled=true\n");
        if (setup.contains("default-printer"))
            m_runner.answer("bash -c lpstat -d", "system default destination: HP_LaserJet_4\n");
        else
            m_runner.answer("bash -c lpstat -d", "no system default destination\n");
        QCOMPARE(RDPConnector::createConnectionString(Connection(record)), expected);
    }

    void splitAtBlanks()
    {
        QCOMPARE(RDPWorker::splitArguments("/v:s /u: /p:a b  /smartcard-logon /sec:nla  /x"),
                 QStringList({"/v:s", "/u:", "/p:a", "b", "/smartcard-logon", "/sec:nla", "/x"}));
    }

    void exitCodeMessages_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("normal end") << 0 << "";
        QTest::newRow("disconnect") << 1 << "";
        QTest::newRow("logoff") << 12 << "";
        QTest::newRow("132") << 132 << "Failed to authorize user";
        QTest::newRow("134") << 134 << "Failed to authorize user";
        QTest::newRow("140") << 140 << "Invalid IP";
        QTest::newRow("141") << 141 << "Failed to connect";
        QTest::newRow("147") << 147 << "Host not found";
        QTest::newRow("145") << 145 << "Error: 145";
        QTest::newRow("2") << 2 << "Error: 2";
    }
    void exitCodeMessages()
    {
        QFETCH(int, code);
        QFETCH(QString, message);
        QCOMPARE(RDPConnector::messageForExitCode(code), message);
    }

    // The client runs on a thread of its own; its exit code arrives on the main thread.
    void exitCodeCrossesToMainThread()
    {
        m_runner.finishOnStart = true;
        m_runner.answer(QCoreApplication::applicationDirPath() + "/xfreerdp /v:s /u: /p:", "line one\nline two\n", 147);
        QThread* receivedOn = nullptr;
        QList<int> codes;
        const auto connection = connect(RDPConnector::getInstance(), &RDPConnector::exitCode, this, [&](int code) {
            codes << code;
            receivedOn = QThread::currentThread();
        });
        QVERIFY(RDPConnector::getInstance()->initConnection("/v:s /u: /p:"));
        QVERIFY(QTest::qWaitFor([&] { return !codes.isEmpty(); }, 5000));
        disconnect(connection);
        QCOMPARE(codes, QList<int>({147}));
        QCOMPARE(receivedOn, QThread::currentThread());
        QCOMPARE(m_runner.calls.at(0).commandLine(),
                 QStringList({QCoreApplication::applicationDirPath() + "/xfreerdp", "/v:s", "/u:", "/p:"}));
        QVERIFY(!m_runner.calls.at(0).detached);
    }

    void dialogBuildsRecordAndKeys()
    {
        RDPConnectDialogBackend dialog;
        dialog.setFlag("usb", true);
        dialog.setFlag("fullscreen", false);
        dialog.addAdditional("gateway", "gw");
        dialog.addIntValue("performance", 1);
        QStringList keys;
        const Connection record = dialog.buildRecord("Desk", "srv", false, "anna", "pw", "CORP", &keys);
        QCOMPARE(keys, QStringList({"name", "address", "domain", "fullscreen", "usb", "gateway", "performance"}));
        QCOMPARE(record.getType(), RDP);
        QCOMPARE(record.get("password"), QStringLiteral("pw")); // in memory, not in the key list
        QCOMPARE(record.getData().value("usb"), QJsonValue(true));
        QCOMPARE(record.getData().value("performance"), QJsonValue("1"));
        dialog.buildRecord("Desk", "srv", true, "anna", "pw", "CORP", &keys);
        QCOMPARE(keys.mid(keys.size() - 2), QStringList({"username", "password"}));

        // Saved without credentials when they are not to be remembered.
        dialog.addConnection("Desk", "srv", false, "anna", "pw", "CORP");
        dialog.loadConnection(0);
        QCOMPARE(dialog.getConnectionName(), QStringLiteral("Desk"));
        QCOMPARE(dialog.getUsername(), QString());
        QCOMPARE(dialog.getPassword(), QString());
        QVERIFY(dialog.getForwardUsb());
        QVERIFY(!dialog.isFullscreen());
        QCOMPARE(dialog.getPerformance(), 1);
        QCOMPARE(dialog.getAdditionalString("gateway"), QStringLiteral("gw"));
        QVERIFY(!ConnectionManager::getInstance()->isConnectionFull(0));

        dialog.updateConnectionInFile(0, "Desk 2", "srv2", true, "anna", "pw", "");
        dialog.loadConnection(0);
        QCOMPARE(dialog.getPassword(), QStringLiteral("pw"));
        QCOMPARE(dialog.getAddress(), QStringLiteral("srv2"));
    }

    void loginPromptNeverChangesTheRecord()
    {
        RDPConnectDialogBackend dialog;
        dialog.addConnection("Desk", "srv", false, "", "", "");
        const QByteArray before = TestSandbox::readFile(m_sandbox->dataFile("connections.json"));
        QVERIFY(dialog.connect(0, "anna", "typed"));
        QVERIFY(QTest::qWaitFor([&] { return !m_runner.calls.isEmpty(); }, 5000));
        QCOMPARE(m_runner.calls.constLast().arguments.mid(0, 3), QStringList({"/v:srv", "/u:anna", "/p:typed"}));
        QCOMPARE(TestSandbox::readFile(m_sandbox->dataFile("connections.json")), before);
    }
};

QTEST_GUILESS_MAIN(tst_Rdp)
#include "tst_rdp.moc"
