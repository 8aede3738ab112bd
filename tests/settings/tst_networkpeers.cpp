// The network backend against real tools: NetworkManager's own nmcli talking to python-dbusmock's
// NetworkManager on a private system bus (sudo is a pass-through on PATH), the 802.1X calls against
// a settings connection on that bus, and ping against 127.0.0.1.
#include "NetworkManager.h"
#include "NetworkParsers.h"
#include "PingManager.h"
#include "TestSandbox.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// nm_peer.py: answers one line per command on its standard input.
class NmPeer {
public:
    bool start(const QStringList& arguments = {})
    {
        m_process.setProgram(QStringLiteral("/usr/bin/python3"));
        m_process.setArguments(QStringList(QStringLiteral(NORBIX_SOURCE_DIR "/tests/settings/nm_peer.py")) + arguments);
        m_process.setProcessChannelMode(QProcess::SeparateChannels);
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start();
        const QString line = reply(QStringLiteral("BUS "));
        m_address = line.mid(4);
        return !m_address.isEmpty();
    }
    ~NmPeer()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.write("quit\n");
        if (!m_process.waitForFinished(10000)) {
            m_process.kill();
            m_process.waitForFinished(5000);
        }
    }
    QString address() const { return m_address; }
    QString command(const QString& text, const QString& prefix)
    {
        m_process.write(text.toUtf8() + '\n');
        return reply(prefix).mid(prefix.size());
    }
    QJsonValue json(const QString& text, const QString& prefix)
    {
        return QJsonDocument::fromJson(("[" + command(text, prefix) + "]").toUtf8()).array().at(0);
    }
    static bool available() { return QFile::exists(QStringLiteral("/usr/bin/python3")) && !QStandardPaths::findExecutable("nmcli").isEmpty(); }

private:
    QString reply(const QString& prefix)
    {
        for (int waited = 0; waited < 60; ++waited) {
            while (m_process.canReadLine()) {
                const QString line = QString::fromUtf8(m_process.readLine()).trimmed();
                if (line.startsWith(prefix))
                    return line;
            }
            if (m_process.state() == QProcess::NotRunning || !m_process.waitForReadyRead(1000)) {
                if (m_process.state() == QProcess::NotRunning)
                    return {};
            }
        }
        return {};
    }

    QProcess m_process;
    QString m_address;
};

} // namespace

class tst_NetworkPeers : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_bin;
    std::unique_ptr<TestSandbox> m_sandbox;
    NmPeer m_peer;

private slots:
    void initTestCase()
    {
        if (!NmPeer::available())
            QSKIP("needs nmcli (network-manager) and python3-dbusmock");
        // The backend runs "sudo nmcli ...": here sudo only passes the command on.
        QFile sudo(m_bin.path() + "/sudo");
        QVERIFY(sudo.open(QIODevice::WriteOnly));
        sudo.write("#!/bin/sh\nexec \"$@\"\n");
        sudo.close();
        sudo.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        qputenv("PATH", (m_bin.path() + ":" + qEnvironmentVariable("PATH")).toUtf8());
        qunsetenv("NORBIX_SIMULATE");
        QVERIFY2(m_peer.start(), "the NetworkManager mock did not start");
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_peer.address().toUtf8());
        m_sandbox = std::make_unique<TestSandbox>();
    }

    void cleanupTestCase() { m_sandbox.reset(); }

    void wiredInterfaceAndProfile()
    {
        NetworkManager manager;
        QCOMPARE(manager.listInterfaces(), (QStringList{"enp1s0", "wlan0", "enp2s0"}));
        QCOMPARE(manager.getConnectionType("enp1s0"), 0);
        QCOMPARE(manager.connectionName(), QStringLiteral("Wired connection 1"));
        manager.update("enp1s0");
        QVERIFY(manager.isLocalWifiEnabled());
        // The mock gives its devices no address: the fields stay empty, not "--".
        QCOMPARE(manager.getGateway(), QString());
        QCOMPARE(manager.getIP(), QString());
    }

    void refusedChangeLeavesTheFieldsAsRead()
    {
        // This NetworkManager refuses "con mod" (no Update2): nothing may break or change.
        NetworkManager manager;
        QCOMPARE(manager.getConnectionType("enp1s0"), 0);
        manager.setConnectionType(1);
        manager.setIP("10.4.0.20");
        manager.setSubnetMask("255.255.255.0");
        manager.setGateway("10.4.0.1");
        manager.setDNS("9.9.9.9", "", "");
        manager.apply();
        manager.update("enp1s0");
        QCOMPARE(manager.getIP(), QString());
        QCOMPARE(manager.getConnectionType("enp1s0"), 0);
    }

    void wifiLists()
    {
        TestSandbox::writeFile(m_sandbox->dataFile("networks.json"),
                               R"([{"ssid": "Guest", "show": true, "autoConnect": true}, {"ssid": "Corp WiFi", "show": true}])");
        NetworkManager manager;
        QVERIFY(manager.isWifiEnabled());
        const QList<NetworkManager::AvailableNetwork> networks = manager.listNetworks();
        QStringList names;
        for (const auto& network : networks)
            names << network.ssid + (network.security ? " (secured) " : " ") + QString::number(network.strength);
        QCOMPARE(names, (QStringList{"Corp WiFi (secured) 82", QString::fromUtf8("Caf\xc3\xa9 \"Lounge\" (secured) 67"), "Guest 55",
                                     "00:23:F8:7E:12:BD (secured) 40"}));
        const QList<NetworkManager::StoredNetwork> stored = manager.listStoredNetworks();
        QCOMPARE(stored.size(), 2);
        QCOMPARE(stored.at(0).ssid, QStringLiteral("Corp WiFi"));
        QCOMPARE(stored.at(1).ssid, QStringLiteral("Guest"));
        QCOMPARE(stored.at(1).autoConnect, true);
        QCOMPARE(manager.getActiveNetworkName(), QStringLiteral("Corp WiFi"));
        QCOMPARE(manager.listUserNetworks(), (QStringList{"Corp WiFi", "Guest"}));
    }

    void readsTheWiredSection()
    {
        NetworkManager manager;
        manager.initDbus();
        QCOMPARE(manager.getEAP(), QStringLiteral("peap"));
        QCOMPARE(manager.getSetting("identity"), QStringLiteral("alice"));
        QCOMPARE(manager.getSetting("anonymous-identity"), QStringLiteral("anon"));
        QCOMPARE(manager.getSecret("password"), QStringLiteral("p@ss word"));
        QCOMPARE(manager.getSetting("password"), QString());
        QCOMPARE(manager.getCert("ca-cert"), QStringLiteral("/media/NORBIX-USB/ca.pem"));
    }

    void writesTheWholeMap()
    {
        QCOMPARE(m_peer.command("reset", "RESET"), QString());
        NetworkManager manager;
        manager.clearCerts();
        manager.set8021xEnabled(true);
        manager.setEap("tls");
        manager.setProperty("identity", QString::fromUtf8("J\xc3\xbcrgen"));
        manager.setProperty("private-key-password", "k'ey \"pw\"");
        manager.markCertForStoring("ca-cert");
        manager.setCert("ca-cert", true, "/media/NORBIX-USB/ca root.pem");
        manager.markCertForStoring("client-cert");
        manager.setCert("client-cert", true, "/media/NORBIX-USB/me.pem");
        manager.apply8021x();

        const QJsonObject dump = m_peer.json("dump", "DUMP ").toObject();
        const QJsonObject settings = dump.value("settings").toObject();
        QCOMPARE(settings.value("802-1x").toObject(),
                 (QJsonObject{{"eap", QJsonArray{"tls"}},
                              {"identity", QString::fromUtf8("J\xc3\xbcrgen")},
                              {"private-key-password", "k'ey \"pw\""},
                              {"ca-cert", QString::fromUtf8("file:///media/NORBIX-USB/ca root.pem\0", 37)},
                              {"client-cert", QString::fromUtf8("file:///media/NORBIX-USB/me.pem\0", 32)}}));
        // The rest of the profile went back unchanged, with its bus types.
        QCOMPARE(settings.value("connection").toObject().value("id").toString(), QStringLiteral("Wired connection 1"));
        QCOMPARE(settings.value("ipv4").toObject().value("addresses").toArray(), (QJsonArray{QJsonArray{16820416, 24, 0}}));
        const QJsonObject signatures = dump.value("signatures").toObject();
        QCOMPARE(signatures.value("ipv4.addresses").toString(), QStringLiteral("aau"));
        QCOMPARE(signatures.value("802-1x.eap").toString(), QStringLiteral("as"));
        QCOMPARE(signatures.value("802-1x.ca-cert").toString(), QStringLiteral("ay"));
        QCOMPARE(m_peer.json("calls", "CALLS ").toArray(), (QJsonArray{"GetSettings", "Update", "Save"}));

        // Read back as the screen does next.
        NetworkManager again;
        again.initDbus();
        QCOMPARE(again.getEAP(), QStringLiteral("tls"));
        QCOMPARE(again.getCert("client-cert"), QStringLiteral("/media/NORBIX-USB/me.pem"));
        QCOMPARE(again.getSecret("private-key-password"), QStringLiteral("k'ey \"pw\""));
    }

    void switchingOffRemovesTheSection()
    {
        NetworkManager manager;
        manager.set8021xEnabled(false);
        manager.setEap("peap");
        manager.apply8021x();
        const QJsonObject settings = m_peer.json("dump", "DUMP ").toObject().value("settings").toObject();
        QVERIFY(!settings.contains("802-1x"));
        QVERIFY(settings.contains("connection"));
        NetworkManager again;
        again.initDbus();
        QCOMPARE(again.getEAP(), QString());
    }

    void terminalWithoutProfiles()
    {
        NmPeer bare;
        QVERIFY(bare.start({"--no-profiles"}));
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", bare.address().toUtf8());
        NetworkManager manager;
        manager.getConnectionType("enp1s0");
        QProcess nmcli;
        nmcli.start("nmcli", {"con"});
        QVERIFY(nmcli.waitForFinished(30000));
        QStringList created;
        for (const NetworkParsers::Profile& profile : NetworkParsers::profiles(nmcli.readAllStandardOutput()))
            created << profile.name + "/" + profile.type;
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_peer.address().toUtf8());
        created.sort();
        QCOMPARE(created, (QStringList{"ethernet-enp1s0/ethernet", "ethernet-enp2s0/ethernet", "ethernet-wlan0/ethernet"}));
    }

    void pingCounts()
    {
        PingManager ping;
        QSignalSpy finished(&ping, &PingManager::finished);
        QString output;
        connect(&ping, &PingManager::newDataAvailable, this, [&output](const QString& data) { output += data; });
        ping.start("127.0.0.1", 2, 16);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
        QVERIFY2(output.contains("2 packets transmitted, 2 received"), qPrintable(output));
        QVERIFY2(output.contains("16(44) bytes of data"), qPrintable(output));
        QVERIFY(!ping.isRunning());
    }

    void pingUntilStopped()
    {
        PingManager ping;
        QSignalSpy finished(&ping, &PingManager::finished);
        QString output;
        connect(&ping, &PingManager::newDataAvailable, this, [&output](const QString& data) { output += data; });
        ping.start("127.0.0.1", -1, 64);
        QTRY_VERIFY_WITH_TIMEOUT(output.contains("icmp_seq=2"), 30000);
        QVERIFY(ping.isRunning());
        ping.stop();
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
        QVERIFY(!ping.isRunning());
    }

    // Next to last: the settings connection refuses to answer.
    void refusingConnectionGivesAnEmptyState()
    {
        QCOMPARE(m_peer.command("refuse", "REFUSING"), QString());
        QCOMPARE(m_peer.command("reset", "RESET"), QString());
        NetworkManager manager;
        manager.initDbus();
        QCOMPARE(manager.getEAP(), QString());
        manager.set8021xEnabled(true);
        manager.setEap("md5");
        manager.setProperty("identity", "x");
        manager.apply8021x();
        // Nothing read, nothing written over the profile.
        QCOMPARE(m_peer.json("calls", "CALLS ").toArray(), QJsonArray());
        QVERIFY(m_peer.json("dump", "DUMP ").toObject().value("settings").toObject().contains("connection"));
    }

    // Last: the settings connection leaves the bus.
    void absentConnectionGivesAnEmptyState()
    {
        QCOMPARE(m_peer.command("remove", "REMOVED"), QString());
        NetworkManager manager;
        manager.initDbus();
        QCOMPARE(manager.getEAP(), QString());
        QCOMPARE(manager.getSetting("identity"), QString());
        manager.set8021xEnabled(true);
        manager.setEap("md5");
        manager.apply8021x();
        QCOMPARE(manager.getEAP(), QString());
    }
};

QTEST_GUILESS_MAIN(tst_NetworkPeers)
#include "tst_networkpeers.moc"
