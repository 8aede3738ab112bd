// NetworkManager's command lines, files and bus maps, with a fake command runner and a fake bus.
#include "FakeCommandRunner.h"
#include "NetworkManager.h"
#include "PingManager.h"
#include "SettingsChange.h"
#include "SystemBus.h"
#include "TestSandbox.h"
#include "UserAvailableWifiModel.h"
#include "WiFiAvailableConnectionsModel.h"
#include "WiFiSavedConnectionsModel.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QtTest>

namespace {

QByteArray recorded(const QString& name)
{
    QFile file(QStringLiteral(NORBIX_TEST_DATA "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("missing fixture %s", qPrintable(name));
    return file.readAll();
}

QStringList sudoNmcli(const QStringList& arguments)
{
    return QStringList{"sudo", "nmcli"} + arguments;
}

// Settings connection 1 as a test sees it: what GetSettings answers and what Update received.
struct FakeConnection {
    SettingsMap settings;
    SettingsMap secrets;
    bool reachable = true;
    QList<BusCall> calls;
    FunctionBus bus{[this](const BusCall& call) -> std::optional<QVariantList> {
        calls << call;
        if (!reachable)
            return std::nullopt;
        if (call.method == "GetSettings")
            return QVariantList{QVariant::fromValue(settings)};
        if (call.method == "GetSecrets")
            return QVariantList{QVariant::fromValue(secrets)};
        if (call.method == "Update")
            settings = call.arguments.value(0).value<SettingsMap>();
        return QVariantList{};
    }};
    FakeConnection() { SystemBus::setInstance(&bus); }
    ~FakeConnection() { SystemBus::setInstance(nullptr); }
    QStringList methods() const
    {
        QStringList names;
        for (const BusCall& call : calls)
            names << call.method;
        return names;
    }
};

} // namespace

class tst_NetworkManager : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestSandbox> m_sandbox;
    std::unique_ptr<FakeCommandRunner> m_runner;
    int m_reports = 0;

    // A manager bound to "Wired connection 1" on enp1s0, as the wired screen leaves it.
    void bind(NetworkManager& manager)
    {
        m_runner->answer("sudo nmcli con", recorded("network/nmcli-con.txt"));
        m_runner->answer("sudo nmcli con show Wired connection 1", recorded("network/nmcli-con-show-wired.txt"));
        QCOMPARE(manager.getConnectionType("enp1s0"), 0);
        QCOMPARE(manager.connectionName(), QStringLiteral("Wired connection 1"));
        m_runner->calls.clear();
    }

    QJsonArray storedFlags() const
    {
        return QJsonDocument::fromJson(TestSandbox::readFile(m_sandbox->dataFile("networks.json"))).array();
    }

private slots:
    void init()
    {
        m_sandbox = std::make_unique<TestSandbox>();
        m_runner = std::make_unique<FakeCommandRunner>();
        m_reports = 0;
        SettingsChange::setReporter([this] { ++m_reports; });
    }
    void cleanup()
    {
        SettingsChange::setReporter(nullptr);
        m_runner.reset();
        m_sandbox.reset();
    }

    // --- wired ----------------------------------------------------------------------------------

    void interfacesComeFromThePipeline()
    {
        m_runner->answer("bash -c nmcli device status | awk '{print $1}'", recorded("network/nmcli-device-status-awk.txt"));
        NetworkManager manager;
        QCOMPARE(manager.listInterfaces(), (QStringList{"enp1s0", "wlan0", "enp2s0"}));
        QCOMPARE(m_runner->commandLines(),
                 (QList<QStringList>{{"bash", "-c", "nmcli device status | awk '{print $1}'"}}));
    }

    void updateReadsTheInterface()
    {
        const QByteArray several = recorded("simulation/nmcli-device-show.txt");
        m_runner->answer("nmcli device show enp1s0", several.left(several.indexOf("\n\n") + 1));
        m_runner->answer("sudo nmcli radio wifi", "enabled\n");
        NetworkManager manager;
        manager.update("enp1s0");
        QCOMPARE(manager.getIP(), QStringLiteral("192.168.10.57"));
        QCOMPARE(manager.getSubnetMask(), QStringLiteral("255.255.255.0"));
        QCOMPARE(manager.getGateway(), QStringLiteral("192.168.10.1"));
        QCOMPARE(manager.getDNS1(), QStringLiteral("192.168.10.1"));
        QCOMPARE(manager.getDNS2(), QStringLiteral("9.9.9.9"));
        QCOMPARE(manager.getDNS3(), QString());
        QVERIFY(manager.isLocalWifiEnabled());
        QCOMPARE(m_runner->commandLines(), (QList<QStringList>{{"nmcli", "device", "show", "enp1s0"}, sudoNmcli({"radio", "wifi"})}));
    }

    void updateSurvivesBrokenOutput_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("nothing") << QByteArray() << 0;
        QTest::newRow("garbage") << QByteArray("\xff\xfe IP4.ADDRESS\n::\n", 16) << 0;
        QTest::newRow("error") << QByteArray("Error: Device 'enp1s0' not found.\n") << 10;
    }
    void updateSurvivesBrokenOutput()
    {
        QFETCH(QByteArray, output);
        QFETCH(int, exitCode);
        m_runner->answer("nmcli device show enp1s0", output, exitCode);
        NetworkManager manager;
        manager.setIP("10.0.0.1");
        manager.update("enp1s0");
        QCOMPARE(manager.getIP(), QString());
        QCOMPARE(manager.getDNS1(), QString());
        QVERIFY(!manager.isLocalWifiEnabled());
    }

    void terminalWithoutProfilesGetsOnePerDevice()
    {
        m_runner->answer("sudo nmcli con", recorded("network/nmcli-con-no-profiles.txt"));
        m_runner->answer("sudo nmcli dev", "DEVICE  TYPE      STATE         CONNECTION \n"
                                           "enp1s0  ethernet  disconnected  --         \n"
                                           "wlp2s0  wifi      disconnected  --         \n"
                                           "lo      loopback  unmanaged     --         \n");
        NetworkManager manager;
        manager.getConnectionType("enp1s0");
        QCOMPARE(m_runner->commandLines(),
                 (QList<QStringList>{sudoNmcli({"con"}), sudoNmcli({"dev"}),
                                     sudoNmcli({"con", "add", "connection.interface-name", "enp1s0", "type", "ethernet"}),
                                     sudoNmcli({"con", "add", "connection.interface-name", "wlp2s0", "type", "ethernet"}),
                                     sudoNmcli({"con"})}));
    }

    void modeFollowsTheProfile()
    {
        NetworkManager manager;
        bind(manager);
        m_runner->answer("sudo nmcli con show Wired connection 1", "ipv4.method:                            manual\n");
        QCOMPARE(manager.getConnectionType("enp1s0"), 1);
        QCOMPARE(m_runner->commandLines().last(), sudoNmcli({"con", "show", "Wired connection 1"}));
    }

    void applyCommandLines_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("dns");
        QTest::addColumn<QList<QStringList>>("commands");
        const QStringList mod{"sudo", "nmcli", "con", "mod", "Wired connection 1"};
        const QStringList up = sudoNmcli({"con", "up", "Wired connection 1"});
        QTest::newRow("static, two DNS") << 1 << QStringList{"9.9.9.9", "1.1.1.1"}
                                         << QList<QStringList>{mod + QStringList{"ipv4.addresses", "10.4.0.20/22"},
                                                               mod + QStringList{"ipv4.gateway", "10.4.0.1"},
                                                               mod + QStringList{"ipv4.dns", "9.9.9.9 1.1.1.1"},
                                                               mod + QStringList{"ipv4.method", "manual"}, up};
        QTest::newRow("static, one DNS") << 1 << QStringList{"", "", "9.9.9.9"}
                                         << QList<QStringList>{mod + QStringList{"ipv4.addresses", "10.4.0.20/22"},
                                                               mod + QStringList{"ipv4.gateway", "10.4.0.1"},
                                                               mod + QStringList{"ipv4.dns", "9.9.9.9"},
                                                               mod + QStringList{"ipv4.method", "manual"}, up};
        QTest::newRow("static, no DNS") << 1 << QStringList()
                                        << QList<QStringList>{mod + QStringList{"ipv4.addresses", "10.4.0.20/22"},
                                                              mod + QStringList{"ipv4.gateway", "10.4.0.1"},
                                                              mod + QStringList{"ipv4.dns", ""},
                                                              mod + QStringList{"ipv4.method", "manual"}, up};
        QTest::newRow("DHCP clears first") << 0 << QStringList{"9.9.9.9"}
                                           << QList<QStringList>{mod + QStringList{"ipv4.dns", ""},
                                                                 mod + QStringList{"ipv4.gateway", ""},
                                                                 mod + QStringList{"ipv4.method", "auto", "ipv4.addresses", ""}, up};
    }
    void applyCommandLines()
    {
        QFETCH(int, type);
        QFETCH(QStringList, dns);
        QFETCH(QList<QStringList>, commands);
        NetworkManager manager;
        bind(manager);
        manager.setConnectionType(type);
        manager.setIP("10.4.0.20");
        manager.setSubnetMask("255.255.252.0");
        manager.setGateway("10.4.0.1");
        manager.setDNS(dns.value(0), dns.value(1), dns.value(2));
        manager.apply();
        QCOMPARE(m_runner->commandLines(), commands);
        const auto calls = m_runner->calls.snapshot();
        QVERIFY(std::none_of(calls.cbegin(), calls.cend(), [](const auto& call) { return call.detached; }));
        QCOMPARE(m_reports, 1);
    }

    void staticApplyKeepsOnlyThreeDns()
    {
        // Entries beyond the three of the screen make the whole value empty.
        NetworkManager manager;
        bind(manager);
        manager.setConnectionType(1);
        manager.setIP("10.4.0.20");
        manager.setSubnetMask("255.255.255.0");
        manager.setDNS("a", "b", "c");
        QCOMPARE(manager.getDNS3(), QStringLiteral("c"));
        manager.apply();
        QVERIFY(m_runner->commandLines().contains(QStringList{"sudo", "nmcli", "con", "mod", "Wired connection 1", "ipv4.dns", "a b c"}));
        QVERIFY(m_runner->commandLines().contains(QStringList{"sudo", "nmcli", "con", "mod", "Wired connection 1", "ipv4.gateway", ""}));
    }

    void invalidStaticFormIsNotApplied_data()
    {
        QTest::addColumn<QString>("ip");
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("gateway");
        QTest::newRow("address") << "10.4.0.256" << "255.255.255.0" << "10.4.0.1";
        QTest::newRow("gap in the mask") << "10.4.0.20" << "255.255.0.255" << "10.4.0.1";
        QTest::newRow("gateway") << "10.4.0.20" << "255.255.255.0" << "10.4.0";
        QTest::newRow("empty address") << "" << "255.255.255.0" << "";
    }
    void invalidStaticFormIsNotApplied()
    {
        QFETCH(QString, ip);
        QFETCH(QString, mask);
        QFETCH(QString, gateway);
        NetworkManager manager;
        bind(manager);
        manager.setConnectionType(1);
        manager.setIP(ip);
        manager.setSubnetMask(mask);
        manager.setGateway(gateway);
        manager.apply();
        QVERIFY(m_runner->calls.isEmpty());
        QCOMPARE(m_reports, 0);
    }

    void applyWithoutProfileRunsNothing()
    {
        NetworkManager manager;
        manager.setConnectionType(0);
        manager.apply();
        QVERIFY(m_runner->calls.isEmpty());
    }

    void ethernetAddressForTheWizard()
    {
        m_runner->answer("nmcli device show", recorded("simulation/nmcli-device-show.txt"));
        QCOMPARE(NetworkManager().getEthernetIp(), QStringLiteral("192.168.10.57"));
    }

    // --- Wi-Fi ----------------------------------------------------------------------------------

    void wifiActionsPassNamesAsSingleArguments_data()
    {
        QTest::addColumn<QString>("ssid");
        QTest::addColumn<QString>("password");
        QTest::newRow("blanks") << "Corp WiFi" << "correct horse battery";
        QTest::newRow("quotes") << "Bob's \"Net\"" << "it's \"quoted\"";
        QTest::newRow("shell") << "$(reboot);`id`|x" << "a&&b||c>d";
        QTest::newRow("non-ASCII") << QString::fromUtf8("Caf\xc3\xa9 \xe2\x98\x95") << QString::fromUtf8("p\xc3\xa4ss");
        QTest::newRow("open network") << "Guest" << "";
    }
    void wifiActionsPassNamesAsSingleArguments()
    {
        QFETCH(QString, ssid);
        QFETCH(QString, password);
        NetworkManager manager;
        manager.connectToWifi(ssid, password);
        manager.reconnectToWifi(ssid);
        manager.disconnectWifi(ssid);
        manager.deleteStoredConnection(ssid);
        QCOMPARE(m_runner->commandLines(), (QList<QStringList>{sudoNmcli({"dev", "wifi", "connect", ssid, "password", password}),
                                                               sudoNmcli({"con", "up", ssid}), sudoNmcli({"con", "down", ssid}),
                                                               sudoNmcli({"con", "delete", ssid})}));
        QCOMPARE(m_runner->calls.at(0).detached, true);
        QCOMPARE(m_runner->calls.at(1).detached, true);
        QCOMPARE(m_runner->calls.at(2).detached, true);
        QCOMPARE(m_runner->calls.at(3).detached, false);
        QCOMPARE(m_reports, 4);
    }

    void radioSwitch_data()
    {
        QTest::addColumn<bool>("on");
        QTest::addColumn<QString>("word");
        QTest::newRow("on") << true << "on";
        QTest::newRow("off") << false << "off";
    }
    void radioSwitch()
    {
        QFETCH(bool, on);
        QFETCH(QString, word);
        NetworkManager manager;
        manager.setWifiEnabled(on);
        QCOMPARE(m_runner->commandLines(), (QList<QStringList>{sudoNmcli({"radio", "wifi", word})}));
        QCOMPARE(manager.isLocalWifiEnabled(), on);
    }

    void wifiHardware_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<bool>("available");
        QTest::newRow("adapter") << recorded("network/iw-dev-wifi.txt") << true;
        QTest::newRow("none") << recorded("network/iw-dev-none.txt") << false;
    }
    void wifiHardware()
    {
        QFETCH(QByteArray, output);
        m_runner->answer("iw dev", output, output.isEmpty() ? 1 : 0, output.isEmpty() ? "nl80211 not found.\n" : "");
        QTEST(NetworkManager().isWifiAvailable(), "available");
    }

    void scanIsDetached()
    {
        NetworkManager::requestScan();
        QCOMPARE(m_runner->commandLines(), (QList<QStringList>{sudoNmcli({"dev", "wifi", "rescan"})}));
        QVERIFY(m_runner->calls.first().detached);
    }

    void approvedNetworksFile()
    {
        NetworkManager manager;
        QVERIFY(!QFile::exists(m_sandbox->dataFile("networks.json")));
        manager.setAutoConnect("Corp WiFi", true);
        manager.setForUser("Guest", true);
        manager.setAutoConnect("Guest", true);
        const QJsonArray flags = storedFlags();
        QCOMPARE(flags.size(), 2);
        QCOMPARE(flags.at(0).toObject(), (QJsonObject{{"ssid", "Corp WiFi"}, {"autoConnect", false}}));
        QCOMPARE(flags.at(1).toObject(), (QJsonObject{{"ssid", "Guest"}, {"show", true}, {"autoConnect", true}}));
        manager.deleteStoredConnection("Guest");
        QCOMPARE(storedFlags().size(), 1);
        QCOMPARE(m_reports, 4);
    }

    void unreadableFileIsKeptAside_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("truncated") << QByteArray("[{\"ssid\": \"Corp");
        QTest::newRow("object, not a list") << QByteArray("{\"ssid\": \"Corp WiFi\"}");
        QTest::newRow("binary") << QByteArray("\x00\x01\x02", 3);
    }
    void unreadableFileIsKeptAside()
    {
        QFETCH(QByteArray, content);
        TestSandbox::writeFile(m_sandbox->dataFile("networks.json"), content);
        QCOMPARE(NetworkManager::readNetworks(), QJsonArray());
        NetworkManager().setForUser("Guest", true);
        QCOMPARE(TestSandbox::readFile(m_sandbox->dataFile("networks.json.corrupt")), content);
        QCOMPARE(storedFlags(), (QJsonArray{QJsonObject{{"ssid", "Guest"}, {"show", true}}}));
    }

    void storedNetworksCarryTheirFlags()
    {
        m_runner->answer("sudo nmcli con", recorded("network/nmcli-con.txt"));
        m_runner->answer("sudo nmcli dev wifi list --rescan no", recorded("network/nmcli-dev-wifi-list.txt"));
        TestSandbox::writeFile(m_sandbox->dataFile("networks.json"),
                               R"([{"ssid": "Guest", "show": true, "autoConnect": true}, {"ssid": "Corp WiFi", "show": true},
                                   {"ssid": "Elsewhere", "show": true}])");
        NetworkManager manager;
        const QList<NetworkManager::StoredNetwork> stored = manager.listStoredNetworks();
        QCOMPARE(stored.size(), 2);
        QCOMPARE(stored.at(0).ssid, QStringLiteral("Corp WiFi"));
        QCOMPARE(stored.at(0).autoConnect, false);
        QCOMPARE(stored.at(0).showForUser, true);
        QCOMPARE(stored.at(1).autoConnect, true);
        // Approved, stored and in range; "Elsewhere" is approved but not stored.
        QCOMPARE(manager.listUserNetworks(), (QStringList{"Corp WiFi", "Guest"}));
        QCOMPARE(manager.getActiveNetworkName(), QStringLiteral("Corp WiFi"));
    }

    void autoConnectAtStart_data()
    {
        QTest::addColumn<QByteArray>("iw");
        QTest::addColumn<QByteArray>("radio");
        QTest::addColumn<QList<QStringList>>("reconnects");
        const QByteArray adapter = recorded("network/iw-dev-wifi.txt");
        QTest::newRow("first marked network") << adapter << QByteArray("enabled\n")
                                              << QList<QStringList>{sudoNmcli({"con", "up", "Guest"})};
        QTest::newRow("no adapter") << QByteArray() << QByteArray("enabled\n") << QList<QStringList>();
        QTest::newRow("radio off") << adapter << QByteArray("disabled\n") << QList<QStringList>();
    }
    void autoConnectAtStart()
    {
        QFETCH(QByteArray, iw);
        QFETCH(QByteArray, radio);
        QFETCH(QList<QStringList>, reconnects);
        m_runner->answer("iw dev", iw);
        m_runner->answer("sudo nmcli radio wifi", radio);
        m_runner->answer("sudo nmcli con", recorded("network/nmcli-con.txt"));
        TestSandbox::writeFile(m_sandbox->dataFile("networks.json"), R"([{"ssid": "Guest", "autoConnect": true}])");
        NetworkManager().autoConnect();
        QList<QStringList> detached;
        for (const FakeCommandRunner::Call& call : m_runner->calls.snapshot()) {
            if (call.detached)
                detached << call.commandLine();
        }
        QCOMPARE(detached, reconnects);
    }

    // --- models ---------------------------------------------------------------------------------

    void availableModel()
    {
        m_runner->answer("sudo nmcli dev wifi list --rescan no", recorded("network/nmcli-dev-wifi-list.txt"));
        WiFiAvailableConnectionsModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.updateData();
        QCOMPARE(m_runner->commandLines().first(), sudoNmcli({"dev", "wifi", "rescan"}));
        QCOMPARE(model.rowCount(), 4);
        QCOMPARE(model.roleNames().value(258), QByteArray("name"));
        QCOMPARE(model.roleNames().value(259), QByteArray("strength"));
        QCOMPARE(model.roleNames().value(260), QByteArray("security"));
        QCOMPARE(model.data(model.index(3, 0), 258).toString(), QStringLiteral("00:23:F8:7E:12:BD"));
        QCOMPARE(model.data(model.index(0, 0), 259).toInt(), 82);
        QCOMPARE(model.isSecured(2), false);
        QCOMPARE(model.isSecured(7), false);
        QCOMPARE(model.getName(0), QStringLiteral("Corp WiFi"));
        m_runner->answer("sudo nmcli dev wifi list --rescan no", "");
        model.updateData();
        QCOMPARE(model.rowCount(), 0);
    }

    void savedModel()
    {
        m_runner->answer("sudo nmcli con", recorded("network/nmcli-con.txt"));
        WiFiSavedConnectionsModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.updateData();
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.columnCount(), 4);
        QCOMPARE(model.roleNames().value(261), QByteArray("delete"));
        model.setAutoConnect("Guest", true);
        QCOMPARE(model.data(model.index(1, 0), 259).toBool(), true);
        model.setForUser("Corp WiFi", true);
        QCOMPARE(model.data(model.index(0, 0), 260).toBool(), true);
        QCOMPARE(model.data(model.index(1, 0), 259).toBool(), true);
        model.deleteConnection("Guest");
        QVERIFY(m_runner->commandLines().contains(sudoNmcli({"con", "delete", "Guest"})));
        QCOMPARE(storedFlags(), (QJsonArray{QJsonObject{{"ssid", "Corp WiFi"}, {"show", true}}}));
    }

    void userModel()
    {
        m_runner->answer("sudo nmcli con", recorded("network/nmcli-con.txt"));
        m_runner->answer("sudo nmcli dev wifi list --rescan no", recorded("network/nmcli-dev-wifi-list.txt"));
        TestSandbox::writeFile(m_sandbox->dataFile("networks.json"), R"([{"ssid": "Guest", "show": true}, {"ssid": "Corp WiFi", "show": true}])");
        UserAvailableWifiModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.updateData();
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.roleNames(), (QHash<int, QByteArray>{{257, "display"}, {258, "name"}, {259, "active"}}));
        QCOMPARE(model.getNetworkName(0), QStringLiteral("Corp WiFi"));
        QCOMPARE(model.data(model.index(0), 259).toBool(), true);
        QCOMPARE(model.data(model.index(1), 259).toBool(), false);
        QCOMPARE(model.data(model.index(1), 257).toString(), QStringLiteral("Guest"));
    }

    // --- 802.1X ---------------------------------------------------------------------------------

    void readsTheSectionAndSecrets()
    {
        FakeConnection connection;
        connection.settings = {{"connection", {{"id", "Wired connection 1"}}},
                               {"802-1x", {{"eap", QStringList{"ttls"}}, {"identity", "alice"},
                                           {"ca-cert", QByteArray("file:///media/USB/ca.pem\0", 25)}}}};
        connection.secrets = {{"802-1x", {{"password", "s3 cr\"et"}}}};
        NetworkManager manager;
        manager.initDbus();
        QCOMPARE(manager.getEAP(), QStringLiteral("ttls"));
        QCOMPARE(manager.getSetting("identity"), QStringLiteral("alice"));
        QCOMPARE(manager.getSecret("password"), QStringLiteral("s3 cr\"et"));
        QCOMPARE(manager.getCert("ca-cert"), QStringLiteral("/media/USB/ca.pem"));
        QCOMPARE(manager.getSetting("missing"), QString());
        QCOMPARE(connection.methods(), (QStringList{"GetSettings", "GetSecrets"}));
        QCOMPARE(connection.calls.at(1).arguments, QVariantList{"802-1x"});
        QCOMPARE(connection.calls.first().path, QStringLiteral("/org/freedesktop/NetworkManager/Settings/1"));
        QCOMPARE(connection.calls.first().interface, QStringLiteral("org.freedesktop.NetworkManager.Settings.Connection"));
    }

    void noSectionMeansOff()
    {
        FakeConnection connection;
        connection.settings = {{"connection", {{"id", "Wired connection 1"}}}};
        NetworkManager manager;
        manager.initDbus();
        QCOMPARE(manager.getEAP(), QString());
        QCOMPARE(connection.methods(), QStringList{"GetSettings"});
    }

    void absentBusLeavesItOff()
    {
        FakeConnection connection;
        connection.reachable = false;
        NetworkManager manager;
        manager.initDbus();
        QCOMPARE(manager.getEAP(), QString());
        manager.set8021xEnabled(true);
        manager.setEap("md5");
        manager.apply8021x();
        // Nothing was read, so nothing is written over the profile.
        QCOMPARE(connection.methods(), (QStringList{"GetSettings", "GetSettings"}));
    }

    void sectionPerMethod_data()
    {
        QTest::addColumn<QString>("eap");
        QTest::addColumn<QVariantMap>("properties");
        QTest::addColumn<QVariantMap>("certs"); // key -> [path, asArray]
        QTest::addColumn<QVariantMap>("section");
        const QByteArray caBlob("file:///media/NORBIX-USB/ca root.pem\0", 37);
        QTest::newRow("md5") << "md5" << QVariantMap{{"identity", "alice"}, {"password", "pw"}} << QVariantMap()
                             << QVariantMap{{"eap", QStringList{"md5"}}, {"identity", "alice"}, {"password", "pw"}};
        QTest::newRow("pwd") << "pwd" << QVariantMap{{"identity", "bob"}} << QVariantMap()
                             << QVariantMap{{"eap", QStringList{"pwd"}}, {"identity", "bob"}};
        QTest::newRow("tls")
            << "tls" << QVariantMap{{"identity", "alice"}, {"domain-suffix-match", "corp.example"}, {"private-key-password", "k"}}
            << QVariantMap{{"ca-cert", QVariantList{"/media/NORBIX-USB/ca root.pem", true}},
                           {"client-cert", QVariantList{"/media/NORBIX-USB/me.pem", true}},
                           {"private-key", QVariantList{"/media/NORBIX-USB/me.key", true}}}
            << QVariantMap{{"eap", QStringList{"tls"}}, {"identity", "alice"}, {"domain-suffix-match", "corp.example"},
                           {"private-key-password", "k"}, {"ca-cert", caBlob},
                           {"client-cert", QByteArray("file:///media/NORBIX-USB/me.pem\0", 32)},
                           {"private-key", QByteArray("file:///media/NORBIX-USB/me.key\0", 32)}};
        QTest::newRow("fast")
            << "fast" << QVariantMap{{"anonymous-identity", "anon"}, {"phase1-fast-provisioning", "0"}, {"phase2-auth", "gtc"}}
            << QVariantMap{{"pac-file", QVariantList{"/media/NORBIX-USB/pac", false}}}
            << QVariantMap{{"eap", QStringList{"fast"}}, {"anonymous-identity", "anon"}, {"phase1-fast-provisioning", "0"},
                           {"phase2-auth", "gtc"}, {"pac-file", "/media/NORBIX-USB/pac"}};
        QTest::newRow("ttls") << "ttls" << QVariantMap{{"phase2-auth", "phase2-autheap"}, {"identity", "i"}}
                              << QVariantMap{{"ca-cert", QVariantList{"/media/NORBIX-USB/ca root.pem", true}}}
                              << QVariantMap{{"eap", QStringList{"ttls"}}, {"phase2-auth", "phase2-autheap"}, {"identity", "i"},
                                             {"ca-cert", caBlob}};
        QTest::newRow("peap, non-ASCII") << "peap" << QVariantMap{{"phase1-peapver", "1"}, {"identity", QString::fromUtf8("J\xc3\xbcrgen")}}
                                         << QVariantMap()
                                         << QVariantMap{{"eap", QStringList{"peap"}}, {"phase1-peapver", "1"},
                                                        {"identity", QString::fromUtf8("J\xc3\xbcrgen")}};
    }
    void sectionPerMethod()
    {
        QFETCH(QString, eap);
        QFETCH(QVariantMap, properties);
        QFETCH(QVariantMap, certs);
        QFETCH(QVariantMap, section);
        FakeConnection connection;
        const QVariantMap ipv4{{"method", "auto"}};
        connection.settings = {{"connection", {{"id", "Wired connection 1"}}}, {"ipv4", ipv4},
                               {"802-1x", {{"eap", QStringList{"md5"}}, {"identity", "old"}, {"password", "old"}}}};
        NetworkManager manager;
        manager.clearCerts();
        manager.set8021xEnabled(true);
        manager.setEap(eap);
        for (auto it = properties.cbegin(); it != properties.cend(); ++it)
            manager.setProperty(it.key(), it.value().toString());
        for (auto it = certs.cbegin(); it != certs.cend(); ++it) {
            manager.markCertForStoring(it.key());
            QCOMPARE(manager.setCert(it.key(), it.value().toList().at(1).toBool(), it.value().toList().at(0).toString()),
                     it.value().toList().at(0).toString());
        }
        manager.apply8021x();
        QCOMPARE(connection.methods(), (QStringList{"GetSettings", "Update", "Save"}));
        // The whole map goes back, with the section replaced (nothing of the old one is left).
        QCOMPARE(connection.settings.keys(), (QStringList{"802-1x", "connection", "ipv4"}));
        QCOMPARE(connection.settings.value("ipv4"), ipv4);
        QCOMPARE(connection.settings.value("802-1x"), section);
        QCOMPARE(m_reports, 1);
    }

    void switchingOffRemovesTheSection()
    {
        FakeConnection connection;
        connection.settings = {{"connection", {{"id", "Wired connection 1"}}}, {"802-1x", {{"eap", QStringList{"md5"}}}}};
        NetworkManager manager;
        manager.set8021xEnabled(false);
        manager.setEap("peap");
        manager.apply8021x();
        QCOMPARE(connection.settings.keys(), QStringList{"connection"});
        QCOMPARE(connection.methods(), (QStringList{"GetSettings", "Update", "Save"}));
    }

    void clearCertsForgetsStagedValues()
    {
        FakeConnection connection;
        NetworkManager manager;
        manager.setProperty("identity", "x");
        manager.setCert("ca-cert", true, "/media/a.pem");
        manager.clearCerts();
        manager.setEap("md5");
        QCOMPARE(manager.staged8021x(), (QVariantMap{{"eap", QStringList{"md5"}}}));
    }

    void busCallsAreLogged()
    {
        const QString log = m_sandbox->home() + "/commands.jsonl";
        const QByteArray outerLog = qgetenv("NORBIX_COMMAND_LOG");
        qputenv("NORBIX_COMMAND_LOG", log.toUtf8());
        FakeConnection connection;
        NetworkManager manager;
        manager.set8021xEnabled(true);
        manager.setEap("tls");
        manager.setCert("ca-cert", true, "/media/ca.pem");
        manager.apply8021x();
        qputenv("NORBIX_COMMAND_LOG", outerLog);
        const QList<QByteArray> lines = TestSandbox::readFile(log).trimmed().split('\n');
        QCOMPARE(lines.size(), 3);
        const QJsonObject update = QJsonDocument::fromJson(lines.at(1)).object();
        QCOMPARE(update.value("service").toString(), QStringLiteral("org.freedesktop.NetworkManager"));
        QCOMPARE(update.value("path").toString(), QStringLiteral("/org/freedesktop/NetworkManager/Settings/1"));
        QCOMPARE(update.value("interface").toString(), QStringLiteral("org.freedesktop.NetworkManager.Settings.Connection"));
        QCOMPARE(update.value("method").toString(), QStringLiteral("Update"));
        const QJsonObject section = update.value("args").toArray().at(0).toObject().value("802-1x").toObject();
        QCOMPARE(section.value("eap").toArray(), QJsonArray{"tls"});
        QCOMPARE(section.value("ca-cert").toString(), QString::fromUtf8("file:///media/ca.pem\0", 21));
        QCOMPARE(QJsonDocument::fromJson(lines.at(2)).object().value("args").toArray(), QJsonArray());
    }

    // --- ping -----------------------------------------------------------------------------------

    void pingArguments_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("size");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("three") << 3 << 64 << QStringList{"-s", "64", "-c3", "host.example"};
        QTest::newRow("one, big") << 1 << 1400 << QStringList{"-s", "1400", "-c1", "host.example"};
        QTest::newRow("until stopped") << -1 << 64 << QStringList{"-s", "64", "host.example"};
        QTest::newRow("zero is until stopped") << 0 << 56 << QStringList{"-s", "56", "host.example"};
    }
    void pingArguments()
    {
        QFETCH(int, count);
        QFETCH(int, size);
        QFETCH(QStringList, arguments);
        PingManager ping;
        ping.start("host.example", count, size);
        QCOMPARE(m_runner->commandLines(), (QList<QStringList>{QStringList("ping") + arguments}));
        QVERIFY(ping.isRunning());
        QSignalSpy finished(&ping, &PingManager::finished);
        ping.stop();
        QCOMPARE(finished.count(), 1);
    }

    void restartedPingReportsOnlyTheNewRun()
    {
        m_runner->answer("ping -s 64 old.example", "from the old run\n");
        PingManager ping;
        QSignalSpy data(&ping, &PingManager::newDataAvailable);
        QSignalSpy finished(&ping, &PingManager::finished);
        ping.start("old.example", -1, 64);
        ping.start("new.example", -1, 64);
        QCOMPARE(finished.count(), 0);
        QCOMPARE(data.count(), 0);
        QVERIFY(ping.isRunning());
        ping.stop();
        QCOMPARE(finished.count(), 1);
        QCOMPARE(m_runner->commandLines().last(), (QStringList{"ping", "-s", "64", "new.example"}));
    }

    void pingOutputIsHandedOn()
    {
        m_runner->answer("ping -s 64 -c2 127.0.0.1", "PING 127.0.0.1 (127.0.0.1) 64(92) bytes of data.\n");
        PingManager ping;
        QSignalSpy data(&ping, &PingManager::newDataAvailable);
        ping.start("127.0.0.1", 2, 64);
        m_runner->finishAll();
        QCOMPARE(data.count(), 1);
        QCOMPARE(data.first().first().toString(), QStringLiteral("PING 127.0.0.1 (127.0.0.1) 64(92) bytes of data.\n"));
    }
};

QTEST_GUILESS_MAIN(tst_NetworkManager)
#include "tst_networkmanager.moc"
