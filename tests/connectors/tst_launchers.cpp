#include "BrowserConnectDialogBackend.h"
#include "BrowserConnector.h"
#include "FakeCommandRunner.h"
#include "PuttyConnectDialogBackend.h"
#include "PuttyConnector.h"
#include "TeamsConnector.h"
#include "TestSandbox.h"
#include "VMWareConnectDialogBackend.h"
#include "VMWareConnector.h"

#include <QtTest>

namespace {
const QStringList kHorizonFixed = {"--allmonitors", "--nonInteractive", "--usbAutoConnectOnInsert=TRUE",
                                   "--usbAutoConnectAtStartUp=TRUE", "--enableMMR"};
}

// VMware Horizon, browser, PuTTY and Teams: exact command lines.
class tst_Launchers : public QObject {
    Q_OBJECT

    TestSandbox* m_sandbox = nullptr;
    FakeCommandRunner* m_runner = nullptr;

private slots:
    void init()
    {
        m_sandbox = new TestSandbox;
        m_runner = new FakeCommandRunner;
    }
    void cleanup()
    {
        delete m_runner;
        delete m_sandbox;
    }

    void horizon_data()
    {
        QTest::addColumn<QJsonObject>("record");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("address and protocol only") << QJsonObject{{"address", "view.example"}, {"protocol", "BLAST"}}
                                                   << QStringList{"--serverURL=view.example", "--protocol=BLAST"} + kHorizonFixed;
        QTest::newRow("empty record") << QJsonObject{} << QStringList{"--serverURL=", "--protocol="} + kHorizonFixed;
        QTest::newRow("everything, values with blanks kept whole")
            << QJsonObject{{"address", "https://view.example"}, {"protocol", "PCOIP"}, {"username", "anna"}, {"password", "p w"},
                           {"desktop", "Win 11 Pool"}, {"domain", "CORP"}}
            << QStringList{"--serverURL=https://view.example", "--protocol=PCOIP", "--userName=anna", "--password=p w",
                           "--desktopName=Win 11 Pool", "--domainName=CORP"} + kHorizonFixed;
    }
    void horizon()
    {
        QFETCH(QJsonObject, record);
        QFETCH(QStringList, arguments);
        VMWareConnector::connect(Connection(record));
        QCOMPARE(m_runner->calls.size(), 1);
        QCOMPARE(m_runner->calls.at(0).program, QStringLiteral("vmware-view"));
        QCOMPARE(m_runner->calls.at(0).arguments, arguments);
        QVERIFY(m_runner->calls.at(0).detached);
    }

    void horizonDialogLeavesCredentialsOutUnlessRemembered()
    {
        QStringList keys;
        const Connection record = VMWareConnectDialogBackend::buildRecord("H", "srv", "RDP", false, "u", "p", "D", "Pool", &keys);
        QCOMPARE(keys, QStringList({"name", "address", "protocol", "domain", "desktop"}));
        QCOMPARE(record.get("username"), QStringLiteral("u"));
        VMWareConnectDialogBackend dialog;
        dialog.addConnection("H", "srv", "RDP", false, "u", "p", "D", "Pool");
        dialog.loadConnection(0);
        QCOMPARE(dialog.getProtocol(), QStringLiteral("RDP"));
        QCOMPARE(dialog.getUsername(), QString());
        dialog.replaceConnection(0, "H", "srv", "BLAST", true, "u", "p", "D", "Pool");
        dialog.loadConnection(0);
        QCOMPARE(dialog.getProtocol(), QStringLiteral("BLAST"));
        QCOMPARE(dialog.getPassword(), QStringLiteral("p"));
    }

    void siteAddress_data()
    {
        QTest::addColumn<QString>("site");
        QTest::addColumn<QString>("expected");
        QTest::newRow("no scheme") << "intranet.example" << "http://intranet.example";
        QTest::newRow("secure scheme kept") << "https://intranet.example" << "https://intranet.example";
        QTest::newRow("capital scheme gets the prefix") << "HTTPS://intranet.example" << "http://HTTPS://intranet.example";
        QTest::newRow("empty") << "" << "http://";
    }
    void siteAddress()
    {
        QFETCH(QString, site);
        QFETCH(QString, expected);
        QCOMPARE(BrowserConnector::siteAddress(site), expected);
    }

    void browser_data()
    {
        QTest::addColumn<bool>("firefox");
        QTest::addColumn<bool>("kiosk");
        QTest::addColumn<bool>("clearCache");
        QTest::addColumn<QList<QStringList>>("commands");
        const QStringList rm{"rm", "/home/norbix/snap/chromium/common/chromium/Singleton*"};
        QTest::newRow("firefox, plain") << true << false << false << QList<QStringList>{{"firefox", "http://site"}};
        QTest::newRow("firefox, kiosk and private")
            << true << true << true << QList<QStringList>{{"firefox", "http://site", "--private-window", "--kiosk"}};
        QTest::newRow("chromium, plain keeps empty arguments")
            << false << false << false << QList<QStringList>{rm, {"chromium-browser", "", "http://site", ""}};
        QTest::newRow("chromium, kiosk and private")
            << false << true << true << QList<QStringList>{rm, {"chromium-browser", "-incognito", "http://site", "--kiosk"}};
    }
    void browser()
    {
        QFETCH(bool, firefox);
        QFETCH(bool, kiosk);
        QFETCH(bool, clearCache);
        QFETCH(QList<QStringList>, commands);
        if (firefox)
            TestSandbox::writeFile(m_sandbox->path("/opt/firefox/firefox"), "#!/bin/sh\n");
        BrowserConnector::connect(Connection(QJsonObject{{"type", 4}, {"address", "site"}, {"kiosk", kiosk}, {"clearCache", clearCache}}));
        QCOMPARE(m_runner->commandLines(), commands);
        for (const auto& call : m_runner->calls.snapshot())
            QVERIFY(call.detached);
    }

    void browserDialogStoresFlags()
    {
        BrowserConnectDialogBackend dialog;
        dialog.setFlag("kiosk", true);
        dialog.setFlag("clearCache", false);
        dialog.setFlag("somethingElse", true);
        dialog.addConnection("Web", "intranet");
        dialog.loadConnection(0);
        QVERIFY(dialog.getFlag("kiosk"));
        QVERIFY(!dialog.getFlag("clearCache"));
        QVERIFY(!dialog.getFlag("somethingElse")); // not in the key list
        QCOMPARE(dialog.getAddress(), QStringLiteral("intranet"));
    }

    void putty_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("user");
        QTest::addColumn<QStringList>("command");
        QTest::newRow("host and user") << "srv.example" << "root" << QStringList{"/usr/bin/putty", "-ssh", "root@srv.example"};
        QTest::newRow("no user: PuTTY's own dialog") << "srv.example" << "" << QStringList{"/usr/bin/putty"};
        QTest::newRow("no host") << "" << "root" << QStringList{"/usr/bin/putty"};
    }
    void putty()
    {
        QFETCH(QString, address);
        QFETCH(QString, user);
        QFETCH(QStringList, command);
        QVERIFY(PuttyConnector::getInstance()->initConnection(Connection(QJsonObject{{"address", address}, {"username", user}})));
        QCOMPARE(m_runner->commandLines(), QList<QStringList>{command});
        QVERIFY(m_runner->calls.at(0).detached);
    }

    void puttyDialog()
    {
        PuttyConnectDialogBackend dialog;
        dialog.addConnection("Ssh", "srv", "root");
        dialog.replaceConnection(0, "Ssh 2", "srv2", "admin");
        dialog.loadConnection(0);
        QCOMPARE(dialog.getConnectionName(), QStringLiteral("Ssh 2"));
        QCOMPARE(dialog.getAddress(), QStringLiteral("srv2"));
        QCOMPARE(dialog.getUsername(), QStringLiteral("admin"));
    }

    void teamsRunning_data()
    {
        QTest::addColumn<QByteArray>("ps");
        QTest::addColumn<bool>("running");
        QTest::newRow("running") << QByteArray("  812 ?  Sl  0:42 /opt/teams-for-linux/teams-for-linux --no-sandbox\n"
                                               " 9001 pts/0 S+ 0:00 grep teams\n")
                                 << true;
        QTest::newRow("only the grep") << QByteArray(" 9001 pts/0 S+ 0:00 grep teams-for-linux\n") << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }
    void teamsRunning()
    {
        QFETCH(QByteArray, ps);
        QFETCH(bool, running);
        m_runner->answer("bash -c ps ax | grep teams", ps);
        TeamsConnector teams;
        QCOMPARE(teams.isTeamsRunning(), running);
        QCOMPARE(m_runner->calls.at(0).commandLine(), QStringList({"bash", "-c", "ps ax | grep teams"}));
        QVERIFY(!m_runner->calls.at(0).detached);
    }

    void teamsToFront_data()
    {
        QTest::addColumn<QByteArray>("windows");
        QTest::addColumn<QString>("raised");
        QTest::newRow("second window raised, line end kept") << QByteArray("4194305\n4194311\n4194320\n") << "4194311\n";
        QTest::newRow("second window without line end") << QByteArray("4194305\n4194311") << "4194311";
        QTest::newRow("one window: nothing") << QByteArray("4194305\n") << "";
        QTest::newRow("none") << QByteArray() << "";
    }
    void teamsToFront()
    {
        QFETCH(QByteArray, windows);
        QFETCH(QString, raised);
        m_runner->answer("xdotool search --class teams-for-linux", windows);
        TeamsConnector().teamsToFront();
        QList<QStringList> expected{{"xdotool", "search", "--class", "teams-for-linux"}};
        if (!raised.isEmpty()) {
            for (const char* action : {"windowmap", "windowraise", "windowfocus"})
                expected << QStringList{"xdotool", action, raised};
        }
        QCOMPARE(m_runner->commandLines(), expected);
    }

    void teamsStart()
    {
        TeamsConnector::connect();
        QCOMPARE(m_runner->commandLines(), QList<QStringList>{{"teams-for-linux"}});
        QVERIFY(m_runner->calls.at(0).detached);
    }

    void taskBarWatcher_data()
    {
        QTest::addColumn<bool>("teams");
        QTest::addColumn<bool>("polybar");
        QTest::addColumn<QStringList>("started");
        QTest::newRow("teams without bar: bar started") << true << false << QStringList{"/usr/bin/polybar", "norbix"};
        QTest::newRow("teams with bar: nothing") << true << true << QStringList{};
        QTest::newRow("bar without teams: bar killed") << false << true << QStringList{"killall", "polybar"};
        QTest::newRow("neither: nothing") << false << false << QStringList{};
    }
    void taskBarWatcher()
    {
        QFETCH(bool, teams);
        QFETCH(bool, polybar);
        QFETCH(QStringList, started);
        m_runner->answer("bash -c ps ax | grep teams-for-linux", teams ? "1 ? S 0:00 teams-for-linux\n" : "9 ? S 0:00 grep teams-for-linux\n");
        m_runner->answer("bash -c ps ax | grep polybar", polybar ? "2 ? S 0:00 /usr/bin/polybar norbix\n" : "");
        TeamsThread watcher;
        watcher.check();
        QStringList detached;
        for (const auto& call : m_runner->calls.snapshot()) {
            if (call.detached)
                detached = call.commandLine();
        }
        QCOMPARE(detached, started);
    }
};

QTEST_GUILESS_MAIN(tst_Launchers)
#include "tst_launchers.moc"
