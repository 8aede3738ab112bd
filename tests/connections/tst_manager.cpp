#include "CitrixConnector.h"
#include "ConnectionManager.h"
#include "ConnectorLaunchers.h"
#include "FakeCommandRunner.h"
#include "RDPConnector.h"
#include "TestSandbox.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QtTest>

// Starting records: which launcher each kind goes to, what counts as complete, auto-connect.
class tst_Manager : public QObject {
    Q_OBJECT

    FakeCommandRunner m_runner; // one for the whole run: singletons keep the processes they make
    TestSandbox* m_sandbox = nullptr;
    ConnectionManager* manager() { return ConnectionManager::getInstance(); }

    void writeCatalogue(const QJsonArray& records)
    {
        TestSandbox::writeFile(m_sandbox->dataFile("connections.json"), QJsonDocument(records).toJson());
    }

    // Waits until the runner has seen `count` commands (RDP sessions start on their own thread).
    bool waitForCalls(int count)
    {
        return QTest::qWaitFor([&] { return m_runner.calls.size() >= count; }, 5000);
    }

private slots:
    // Start-up hands the catalogue its launchers; so does this test.
    void initTestCase() { ConnectorLaunchers::install(); }
    void init()
    {
        m_sandbox = new TestSandbox;
        m_runner.calls.clear();
    }
    void cleanup()
    {
        m_runner.finishAll();
        delete m_sandbox;
    }

    void dispatchPerType_data()
    {
        QTest::addColumn<QJsonObject>("record");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QStringList>("command");
        QTest::addColumn<bool>("detached");
        const QString rdpClient = QCoreApplication::applicationDirPath() + "/xfreerdp";
        QTest::newRow("VMWare") << QJsonObject{{"type", 0}, {"address", "h.example"}, {"protocol", "BLAST"}} << true
                                << QStringList{"vmware-view", "--serverURL=h.example", "--protocol=BLAST", "--allmonitors",
                                               "--nonInteractive", "--usbAutoConnectOnInsert=TRUE",
                                               "--usbAutoConnectAtStartUp=TRUE", "--enableMMR"}
                                << true;
        QTest::newRow("VNC, server not answering") << QJsonObject{{"type", 1}, {"address", "h"}} << false
                                                   << QStringList{"nmap", "-sV", "-sC", "h", "-p", "5900", "|", "grep", "open"} << false;
        QTest::newRow("Citrix") << QJsonObject{{"type", 2}, {"address", "https://store.example"}} << true
                                << QStringList{"/opt/Citrix/ICAClient/util/storebrowse", "-a", "https://store.example"} << false;
        QTest::newRow("RDP") << QJsonObject{{"type", 3}, {"address", "rdp.example"}, {"username", "u"}, {"password", "p"}} << true
                             << (QStringList{rdpClient, "/v:rdp.example", "/u:u", "/p:p", "+wallpaper", "+fonts", "/network:auto",
                                             "-window-drag", "-menu-anims", "+drives", "/cert:ignore", "/tls:seclevel:0",
                                             "/microphone", "/sound", "/timeout:80000"})
                             << false;
        QTest::newRow("Browser") << QJsonObject{{"type", 4}, {"address", "intranet"}} << true
                                 << QStringList{"chromium-browser", "", "http://intranet", ""} << true;
        QTest::newRow("Teams ignores the record") << QJsonObject{{"type", 5}, {"address", "ignored"}} << true
                                                  << QStringList{"teams-for-linux"} << true;
        QTest::newRow("PuTTY") << QJsonObject{{"type", 6}, {"address", "srv"}, {"username", "root"}} << true
                               << QStringList{"/usr/bin/putty", "-ssh", "root@srv"} << true;
        QTest::newRow("unknown type") << QJsonObject{{"type", 9}, {"address", "x"}} << false << QStringList() << false;
    }
    void dispatchPerType()
    {
        QFETCH(QJsonObject, record);
        QFETCH(bool, result);
        QFETCH(QStringList, command);
        QFETCH(bool, detached);
        writeCatalogue({QJsonObject{{"type", 4}, {"name", "first"}}, record});
        QCOMPARE(manager()->connectToIndex(1), result);
        if (command.isEmpty()) {
            QTest::qWait(50);
            QVERIFY(m_runner.calls.isEmpty());
            return;
        }
        QVERIFY(waitForCalls(1));
        // The browser's singleton clean-up comes first; the session client is the last command.
        const FakeCommandRunner::Call call = m_runner.calls.constLast();
        QCOMPARE(call.commandLine(), command);
        QCOMPARE(call.detached, detached);
    }

    void completeness_data()
    {
        QTest::addColumn<QJsonObject>("record");
        QTest::addColumn<bool>("full");
        QTest::newRow("VNC with password") << QJsonObject{{"type", 1}, {"password", "p"}} << true;
        QTest::newRow("VNC without") << QJsonObject{{"type", 1}} << false;
        QTest::newRow("RDP with both") << QJsonObject{{"type", 3}, {"username", "u"}, {"password", "p"}} << true;
        QTest::newRow("RDP without password") << QJsonObject{{"type", 3}, {"username", "u"}} << false;
        QTest::newRow("RDP without user") << QJsonObject{{"type", 3}, {"password", "p"}} << false;
        for (int type : {0, 2, 4, 5, 6})
            QTest::addRow("type %d always", type) << QJsonObject{{"type", type}} << true;
        QTest::newRow("unknown type never") << QJsonObject{{"type", 12}} << false;
    }
    void completeness()
    {
        QFETCH(QJsonObject, record);
        QFETCH(bool, full);
        writeCatalogue({record});
        QCOMPARE(manager()->isConnectionFull(0), full);
    }

    // Every auto-connect entry starts once, in catalogue order; an incomplete one asks instead.
    void autoconnect()
    {
        writeCatalogue({QJsonObject{{"type", 6}, {"name", "ssh"}, {"address", "a"}, {"username", "u"}, {"auto_connect", true}},
                        QJsonObject{{"type", 4}, {"name", "web"}, {"address", "b"}},
                        QJsonObject{{"type", 3}, {"name", "rdp"}, {"address", "c"}, {"username", "u"}, {"auto_connect", true}},
                        QJsonObject{{"type", 0}, {"name", "vm"}, {"address", "d"}, {"auto_connect", true}}});
        QSignalSpy popup(manager(), &ConnectionManager::openPasswordPopup);
        manager()->performAutoconnect();
        QCOMPARE(popup.count(), 1);
        QCOMPARE(popup.at(0).at(0).toInt(), 2);
        QCOMPARE(m_runner.calls.size(), 2);
        QCOMPARE(m_runner.calls.at(0).program, QStringLiteral("/usr/bin/putty"));
        QCOMPARE(m_runner.calls.at(1).program, QStringLiteral("vmware-view"));
    }

    void autoconnectWithoutCatalogueDoesNothing()
    {
        QSignalSpy popup(manager(), &ConnectionManager::openPasswordPopup);
        manager()->performAutoconnect();
        TestSandbox::writeFile(m_sandbox->dataFile("connections.json"), "garbage");
        manager()->performAutoconnect();
        QVERIFY(m_runner.calls.isEmpty());
        QCOMPARE(popup.count(), 0);
    }

    void teamsOnlyOnce()
    {
        writeCatalogue({QJsonObject{{"type", 3}, {"name", "rdp"}}});
        QVERIFY(manager()->addTeamsConnection());
        QVERIFY(!manager()->addTeamsConnection());
        QCOMPARE(manager()->listConnectionNames(), QStringList({"rdp", "Microsoft Teams"}));
        const Connection teams = manager()->getConnection(1);
        QCOMPARE(teams.getType(), Teams);
        QVERIFY(teams.getBool("enabled"));
        const QJsonObject stored = QJsonDocument::fromJson(TestSandbox::readFile(m_sandbox->dataFile("connections.json"))).array().at(1).toObject();
        QVERIFY(stored.value("password").toString().startsWith("e:"));
    }
};

QTEST_GUILESS_MAIN(tst_Manager)
#include "tst_manager.moc"
