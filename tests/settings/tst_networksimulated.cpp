// The simulated terminal's network as the screens use it: what a change does reads back changed.
#include "NetworkManager.h"
#include "PingManager.h"
#include "SimulatedNetwork.h"
#include "SimulatedTerminal.h"
#include "SystemBus.h"
#include "TestSandbox.h"

#include <QSignalSpy>
#include <QtTest>

class tst_NetworkSimulated : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestSandbox> m_sandbox;
    std::unique_ptr<SimulatedTerminal> m_terminal;
    FunctionBus m_bus{&SimulatedNetwork::busAnswer};

    static QStringList ssids(const QList<NetworkManager::AvailableNetwork>& networks)
    {
        QStringList names;
        for (const auto& network : networks)
            names << network.ssid;
        return names;
    }

private slots:
    void init()
    {
        m_sandbox = std::make_unique<TestSandbox>();
        m_terminal = std::make_unique<SimulatedTerminal>();
        SimulatedNetwork::reset();
        CommandRunner::setInstance(m_terminal.get());
        SystemBus::setInstance(&m_bus);
    }
    void cleanup()
    {
        SystemBus::setInstance(nullptr);
        CommandRunner::setInstance(nullptr);
        m_terminal.reset();
        m_sandbox.reset();
    }

    void staticAddressReadsBack_data()
    {
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QStringList>("dns");
        QTest::newRow("/22, two DNS") << "255.255.252.0" << QStringList{"9.9.9.9", "1.1.1.1"};
        QTest::newRow("/8, no DNS") << "255.0.0.0" << QStringList();
        QTest::newRow("/32, three DNS") << "255.255.255.255" << QStringList{"1.1.1.1", "8.8.8.8", "9.9.9.9"};
    }
    void staticAddressReadsBack()
    {
        QFETCH(QString, mask);
        QFETCH(QStringList, dns);
        NetworkManager manager;
        QCOMPARE(manager.listInterfaces(), (QStringList{"enp1s0", "wlp2s0"}));
        QCOMPARE(manager.getConnectionType("enp1s0"), 0);
        manager.update("enp1s0");
        QCOMPARE(manager.getIP(), QStringLiteral("192.168.10.57"));

        manager.setConnectionType(1);
        manager.setIP("10.4.0.20");
        manager.setSubnetMask(mask);
        manager.setGateway("10.4.0.1");
        manager.setDNS(dns.value(0), dns.value(1), dns.value(2));
        manager.apply();

        NetworkManager screen;
        QCOMPARE(screen.getConnectionType("enp1s0"), 1);
        screen.update("enp1s0");
        QCOMPARE(screen.getIP(), QStringLiteral("10.4.0.20"));
        QCOMPARE(screen.getSubnetMask(), mask);
        QCOMPARE(screen.getGateway(), QStringLiteral("10.4.0.1"));
        QCOMPARE(QStringList({screen.getDNS1(), screen.getDNS2(), screen.getDNS3()}).join(' ').trimmed(), dns.join(' '));

        screen.setConnectionType(0);
        screen.setDNS("", "", "");
        screen.apply();
        NetworkManager again;
        QCOMPARE(again.getConnectionType("enp1s0"), 0);
        again.update("enp1s0");
        QCOMPARE(again.getIP(), QStringLiteral("192.168.10.57"));
        QCOMPARE(again.getDNS2(), QStringLiteral("9.9.9.9"));
    }

    void radioAndNetworks()
    {
        NetworkManager manager;
        QVERIFY(manager.isWifiAvailable());
        QVERIFY(manager.isWifiEnabled());
        QCOMPARE(manager.getActiveNetworkName(), QStringLiteral("Office WiFi"));
        QCOMPARE(ssids(manager.listNetworks()),
                 (QStringList{"Office WiFi", "Corp WiFi", "Guest", "A4:2B:B0:11:22:04", QString::fromUtf8("Caf\xc3\xa9 Lounge")}));
        manager.setWifiEnabled(false);
        QVERIFY(!manager.isWifiEnabled());
        QVERIFY(manager.listNetworks().isEmpty());
        QCOMPARE(manager.getActiveNetworkName(), QString());
        manager.setWifiEnabled(true);
        QCOMPARE(manager.listNetworks().size(), 5);
    }

    void joinDisconnectForget()
    {
        NetworkManager manager;
        manager.connectToWifi("Corp WiFi", "");
        QCOMPARE(manager.getActiveNetworkName(), QStringLiteral("Office WiFi")); // a secured network needs its password
        manager.connectToWifi("Corp WiFi", "correct horse");
        QCOMPARE(manager.getActiveNetworkName(), QStringLiteral("Corp WiFi"));
        QCOMPARE(manager.listStoredNetworks().size(), 3);
        manager.setForUser("Corp WiFi", true);
        QCOMPARE(manager.listUserNetworks(), QStringList{"Corp WiFi"});
        manager.disconnectWifi("Corp WiFi");
        QCOMPARE(manager.getActiveNetworkName(), QString());
        manager.setAutoConnect("Corp WiFi", true);
        manager.autoConnect();
        QCOMPARE(manager.getActiveNetworkName(), QStringLiteral("Corp WiFi"));
        manager.deleteStoredConnection("Corp WiFi");
        QCOMPARE(manager.getActiveNetworkName(), QString());
        QCOMPARE(manager.listStoredNetworks().size(), 2);
        QVERIFY(manager.listUserNetworks().isEmpty());
    }

    void profilesAreMadeWhenNoneExist()
    {
        NetworkManager manager;
        for (const QString& name : QStringList{"Wired connection 1", "Office WiFi", "Guest"})
            manager.deleteStoredConnection(name);
        QCOMPARE(manager.getConnectionType("enp1s0"), 0);
        // A made profile is not active, so nothing binds yet; it does once brought up.
        QCOMPARE(manager.connectionName(), QString());
        NetworkManager::requestScan();
        manager.reconnectToWifi("ethernet-enp1s0");
        QCOMPARE(manager.getConnectionType("enp1s0"), 0);
        QCOMPARE(manager.connectionName(), QStringLiteral("ethernet-enp1s0"));
    }

    void dot1xSurvivesApplyAndReadBack()
    {
        NetworkManager manager;
        manager.initDbus();
        QCOMPARE(manager.getEAP(), QString());
        manager.set8021xEnabled(true);
        manager.setEap("ttls");
        manager.setProperty("identity", "alice");
        manager.setProperty("password", "s3cret pw");
        manager.setCert("ca-cert", true, "/media/NORBIX-USB/ca.pem");
        manager.apply8021x();

        NetworkManager screen;
        screen.initDbus();
        QCOMPARE(screen.getEAP(), QStringLiteral("ttls"));
        QCOMPARE(screen.getSetting("identity"), QStringLiteral("alice"));
        QCOMPARE(screen.getSetting("password"), QString());
        QCOMPARE(screen.getSecret("password"), QStringLiteral("s3cret pw"));
        QCOMPARE(screen.getCert("ca-cert"), QStringLiteral("/media/NORBIX-USB/ca.pem"));

        screen.set8021xEnabled(false);
        screen.apply8021x();
        NetworkManager off;
        off.initDbus();
        QCOMPARE(off.getEAP(), QString());
    }

    void pingWithCount()
    {
        PingManager ping;
        QSignalSpy data(&ping, &PingManager::newDataAvailable);
        QSignalSpy finished(&ping, &PingManager::finished);
        ping.start("10.0.0.1", 1, 64);
        QTRY_COMPARE(finished.count(), 1);
        QVERIFY(data.first().first().toString().contains("1 packets transmitted"));
    }
};

QTEST_GUILESS_MAIN(tst_NetworkSimulated)
#include "tst_networksimulated.moc"
