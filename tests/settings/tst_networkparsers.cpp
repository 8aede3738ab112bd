// The readers of nmcli output, fed with output recorded from nmcli itself (against a mocked
// NetworkManager) and with the edge cases the screens must survive.
#include "NetworkParsers.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace NetworkParsers;

namespace {

QByteArray recorded(const QString& name)
{
    QFile file(QStringLiteral(NORBIX_TEST_DATA "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("missing fixture %s", qPrintable(name));
    return file.readAll();
}

} // namespace


class tst_NetworkParsers : public QObject {
    Q_OBJECT

private slots:
    void interfaceList_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("recorded") << recorded("network/nmcli-device-status-awk.txt")
                                  << QStringList{"enp1s0", "wlan0", "enp2s0"};
        QTest::newRow("loopback and p2p dropped") << QByteArray("DEVICE\nwlp2s0\np2p-dev-wlp2s0\nenp1s0\nlo\nloopback0\n")
                                                  << QStringList{"wlp2s0", "enp1s0"};
        QTest::newRow("nothing") << QByteArray() << QStringList();
        QTest::newRow("blank lines") << QByteArray("\n\n  \n") << QStringList();
    }
    void interfaceList()
    {
        QFETCH(QByteArray, output);
        QFETCH(QStringList, names);
        QCOMPARE(interfaces(output), names);
    }

    void prefixAndMask_data()
    {
        QTest::addColumn<int>("prefix");
        QTest::addColumn<QString>("mask");
        QTest::newRow("0") << 0 << "0.0.0.0";
        QTest::newRow("1") << 1 << "128.0.0.0";
        QTest::newRow("8") << 8 << "255.0.0.0";
        QTest::newRow("20") << 20 << "255.255.240.0";
        QTest::newRow("24") << 24 << "255.255.255.0";
        QTest::newRow("31") << 31 << "255.255.255.254";
        QTest::newRow("32") << 32 << "255.255.255.255";
    }
    void prefixAndMask()
    {
        QFETCH(int, prefix);
        QFETCH(QString, mask);
        QCOMPARE(prefixToMask(prefix), mask);
        QCOMPARE(maskToPrefix(mask), prefix);
        QVERIFY(isValidMask(mask));
    }

    void addressForms_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("address");
        QTest::addColumn<bool>("mask");
        QTest::newRow("host") << "192.168.10.57" << true << false;
        QTest::newRow("mask") << "255.255.255.0" << true << true;
        QTest::newRow("all ones") << "255.255.255.255" << true << true;
        QTest::newRow("gap in mask") << "255.0.255.0" << true << false;
        QTest::newRow("low bit set") << "255.255.255.1" << true << false;
        QTest::newRow("three parts") << "192.168.10" << false << false;
        QTest::newRow("five parts") << "1.2.3.4.5" << false << false;
        QTest::newRow("octet too big") << "256.1.1.1" << false << false;
        QTest::newRow("negative") << "1.2.3.-4" << false << false;
        QTest::newRow("letters") << "a.b.c.d" << false << false;
        QTest::newRow("empty part") << "1..2.3" << false << false;
        QTest::newRow("blank") << "" << false << false;
        QTest::newRow("with prefix") << "10.0.0.1/24" << false << false;
    }
    void addressForms()
    {
        QFETCH(QString, text);
        QFETCH(bool, address);
        QFETCH(bool, mask);
        QCOMPARE(isValidIPv4(text), address);
        QCOMPARE(isValidMask(text), mask);
        QCOMPARE(isValidGateway(text), address || text.isEmpty());
    }

    void emptyGatewayIsAllowed()
    {
        QVERIFY(isValidGateway(QString()));
        QVERIFY(!isValidIPv4(QString()));
    }

    void dnsEntries_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("value");
        QTest::newRow("none") << QStringList() << "";
        QTest::newRow("one") << QStringList{"9.9.9.9"} << "9.9.9.9";
        QTest::newRow("two") << QStringList{"9.9.9.9", "1.1.1.1"} << "9.9.9.9 1.1.1.1";
        QTest::newRow("three") << QStringList{"a", "b", "c"} << "a b c";
        QTest::newRow("four are ignored") << QStringList{"a", "b", "c", "d"} << "";
    }
    void dnsEntries()
    {
        QFETCH(QStringList, entries);
        QFETCH(QString, value);
        QCOMPARE(dnsValue(entries), value);
    }

    void deviceShow_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("ip");
        QTest::addColumn<QString>("subnet");
        QTest::addColumn<QString>("gateway");
        QTest::addColumn<QStringList>("dns");
        const QByteArray several = recorded("simulation/nmcli-device-show.txt");
        const QByteArray wired = several.left(several.indexOf("\n\n") + 1);
        QTest::newRow("wired device") << wired << "192.168.10.57" << "255.255.255.0" << "192.168.10.1"
                                      << QStringList{"192.168.10.1", "9.9.9.9"};
        QTest::newRow("no address yet (recorded)") << recorded("network/nmcli-device-show-mock.txt") << "" << "" << ""
                                                   << QStringList();
        QTest::newRow("disconnected gateway") << QByteArray("IP4.GATEWAY:                            --\n") << "" << ""
                                              << "" << QStringList();
        QTest::newRow("prefix 8, no DNS") << QByteArray("IP4.ADDRESS[1]:   10.1.2.3/8\nIP4.GATEWAY:   10.0.0.1\n") << "10.1.2.3"
                                          << "255.0.0.0" << "10.0.0.1" << QStringList();
        QTest::newRow("prefix 32") << QByteArray("IP4.ADDRESS[1]:   10.1.2.3/32\n") << "10.1.2.3" << "255.255.255.255" << ""
                                   << QStringList();
        QTest::newRow("prefix 0") << QByteArray("IP4.ADDRESS[1]:   10.1.2.3/0\n") << "10.1.2.3" << "0.0.0.0" << ""
                                  << QStringList();
        QTest::newRow("four DNS") << QByteArray("IP4.DNS[1]: a\nIP4.DNS[2]: b\nIP4.DNS[3]: c\nIP4.DNS[4]: d\n") << "" << ""
                                  << "" << QStringList{"a", "b", "c", "d"};
        QTest::newRow("error text") << QByteArray("Error: Device 'eth9' not found.\n") << "" << "" << "" << QStringList();
        QTest::newRow("binary garbage") << QByteArray("\x01\xff:IP4\n::::\n/\n", 13) << "" << "" << "" << QStringList();
    }
    void deviceShow()
    {
        QFETCH(QByteArray, output);
        const DeviceAddress address = deviceAddress(output);
        QTEST(address.ip, "ip");
        QTEST(address.subnet, "subnet");
        QTEST(address.gateway, "gateway");
        QTEST(address.dns, "dns");
    }

    void profileTable()
    {
        const QList<Profile> list = profiles(recorded("network/nmcli-con.txt"));
        QCOMPARE(list.size(), 3);
        QCOMPARE(list.at(0).name, QStringLiteral("Corp WiFi"));
        QCOMPARE(list.at(0).type, QStringLiteral("wifi"));
        QCOMPARE(list.at(0).device, QStringLiteral("wlan0"));
        QCOMPARE(list.at(1).name, QStringLiteral("Wired connection 1"));
        QCOMPARE(list.at(1).type, QStringLiteral("ethernet"));
        QCOMPARE(list.at(1).device, QStringLiteral("enp1s0"));
        QCOMPARE(list.at(2).device, QStringLiteral("--"));
        QCOMPARE(profileForInterface(list, "enp1s0"), QStringLiteral("Wired connection 1"));
        QCOMPARE(profileForInterface(list, "enp2s0"), QString());
        QVERIFY(!noProfiles(recorded("network/nmcli-con.txt")));
    }

    void laterProfileRowWins()
    {
        const QByteArray output = "NAME     UUID                                  TYPE      DEVICE \n"
                                  "first    11111111-1111-1111-1111-111111111111  ethernet  eth0   \n"
                                  "second   22222222-2222-2222-2222-222222222222  ethernet  eth0   \n";
        QCOMPARE(profileForInterface(profiles(output), "eth0"), QStringLiteral("second"));
    }

    void withoutProfiles_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<bool>("none");
        QTest::newRow("recorded: a line feed") << recorded("network/nmcli-con-no-profiles.txt") << true;
        QTest::newRow("nothing at all") << QByteArray() << true;
        QTest::newRow("header only") << QByteArray("NAME  UUID  TYPE  DEVICE \n") << true;
        QTest::newRow("one profile") << QByteArray("NAME  UUID  TYPE  DEVICE\nx     u     wifi  --\n") << false;
        QTest::newRow("error text") << QByteArray("Error: NetworkManager is not running.\n") << false;
    }
    void withoutProfiles()
    {
        QFETCH(QByteArray, output);
        QTEST(noProfiles(output), "none");
    }

    void devicesGettingProfiles_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("devices");
        QTest::newRow("recorded") << recorded("network/nmcli-dev.txt") << QStringList{"enp1s0", "wlan0", "enp2s0"};
        QTest::newRow("loopback skipped") << QByteArray("DEVICE  TYPE      STATE      CONNECTION \n"
                                                        "eth0    ethernet  connected  --         \n"
                                                        "lo      loopback  unmanaged  --         \n")
                                          << QStringList{"eth0"};
        QTest::newRow("no header") << QByteArray("eth0 ethernet\n") << QStringList();
    }
    void devicesGettingProfiles()
    {
        QFETCH(QByteArray, output);
        QTEST(devicesNeedingProfiles(output), "devices");
    }

    void addressingMode_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<int>("type");
        QTest::newRow("recorded auto") << recorded("network/nmcli-con-show-wired.txt") << 0;
        QTest::newRow("manual") << QByteArray("connection.id: x\nipv4.method:                            manual\n") << 1;
        QTest::newRow("method line missing") << QByteArray("Error: x - no such connection profile.\n") << 1;
    }
    void addressingMode()
    {
        QFETCH(QByteArray, output);
        QTEST(connectionType(output), "type");
    }

    void wifiList()
    {
        const QList<AvailableNetwork> list = wifiNetworks(recorded("network/nmcli-dev-wifi-list.txt"));
        QCOMPARE(list.size(), 4);
        QCOMPARE(list.at(0).ssid, QStringLiteral("Corp WiFi"));
        QCOMPARE(list.at(0).strength, 82);
        QCOMPARE(list.at(0).security, true);
        QCOMPARE(list.at(1).ssid, QString::fromUtf8("Caf\xc3\xa9 \"Lounge\""));
        QCOMPARE(list.at(1).strength, 67);
        QCOMPARE(list.at(2).ssid, QStringLiteral("Guest"));
        QCOMPARE(list.at(2).security, false);
        // A hidden network goes by its BSSID.
        QCOMPARE(list.at(3).ssid, QStringLiteral("00:23:F8:7E:12:BD"));
        QCOMPARE(list.at(3).strength, 40);
        QCOMPARE(list.at(3).security, true);
    }

    void wifiListOddities_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("ssids");
        const QByteArray header = "IN-USE  BSSID              SSID              MODE   CHAN  RATE        SIGNAL  BARS  SECURITY  \n";
        QTest::newRow("radio off: header only") << header << QStringList();
        QTest::newRow("nothing") << QByteArray() << QStringList();
        QTest::newRow("error") << QByteArray("Error: Wi-Fi device not found.\n") << QStringList();
        QTest::newRow("active row and equal names kept")
            << header + "*       A4:2B:B0:11:22:01  Office WiFi       Infra  6     130 Mbit/s  78      ▂▄▆_  WPA2      \n"
                        "        A4:2B:B0:11:22:09  Office WiFi       Infra  44    270 Mbit/s  51      ▂▄__  WPA2      \n"
            << QStringList{"Office WiFi", "Office WiFi"};
        QTest::newRow("shell characters") << header + "        A4:2B:B0:11:22:02  $(reboot); `x`    Infra  1     54 Mbit/s   20      ▂___  --        \n"
                                          << QStringList{"$(reboot); `x`"};
    }
    void wifiListOddities()
    {
        QFETCH(QByteArray, output);
        QStringList ssids;
        for (const AvailableNetwork& network : wifiNetworks(output))
            ssids << network.ssid;
        QTEST(ssids, "ssids");
    }

    void storedAndActiveWifi()
    {
        const QByteArray con = recorded("network/nmcli-con.txt");
        QCOMPARE(wifiProfiles(con), (QStringList{"Corp WiFi", "Guest"}));
        QCOMPARE(activeWifi(con), QStringLiteral("Corp WiFi"));
        QCOMPARE(activeWifi(recorded("network/nmcli-con-no-profiles.txt")), QString());
        QCOMPARE(activeWifi("NAME   UUID  TYPE  DEVICE\nGuest  u     wifi  --\n"), QString());
    }

    void ethernetAddress_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("ip");
        QTest::newRow("several devices") << recorded("simulation/nmcli-device-show.txt") << "192.168.10.57";
        QTest::newRow("wired without address") << recorded("network/nmcli-device-show-mock.txt") << "";
        QTest::newRow("Wi-Fi address is not wired")
            << QByteArray("GENERAL.TYPE:  wifi\nIP4.ADDRESS[1]:  10.0.0.9/24\n\nGENERAL.TYPE:  ethernet\nIP4.ADDRESS[1]:  10.1.0.9/16\n")
            << "10.1.0.9";
        QTest::newRow("nothing") << QByteArray() << "";
    }
    void ethernetAddress()
    {
        QFETCH(QByteArray, output);
        QTEST(ethernetIp(output), "ip");
    }

    void radio_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<bool>("on");
        QTest::newRow("recorded") << recorded("network/nmcli-radio-wifi.txt") << true;
        QTest::newRow("disabled") << QByteArray("disabled\n") << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }
    void radio()
    {
        QFETCH(QByteArray, output);
        QTEST(radioOn(output), "on");
    }

    void hostNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("valid");
        QTest::newRow("made name") << "norbix-3C4D5E" << true;
        QTest::newRow("one letter") << "a" << true;
        QTest::newRow("digits") << "1234" << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("made name without MAC") << "norbix-" << false;
        QTest::newRow("underscore") << "front_desk" << false;
        QTest::newRow("blank") << "front desk" << false;
        QTest::newRow("63") << QString(63, QLatin1Char('x')) << true;
        QTest::newRow("64") << QString(64, QLatin1Char('x')) << false;
    }
    void hostNames()
    {
        QFETCH(QString, name);
        QTEST(isValidHostName(name), "valid");
    }

    void approvedFlags()
    {
        QJsonArray networks;
        networks = withAutoConnect(networks, "Corp WiFi", true);
        networks = withShow(networks, "Guest", true);
        networks = withAutoConnect(networks, "Guest", true);
        // Only one network connects by itself.
        QCOMPARE(flagsOf(networks, "Corp WiFi").autoConnect, false);
        QCOMPARE(flagsOf(networks, "Guest").autoConnect, true);
        QCOMPARE(flagsOf(networks, "Guest").show, true);
        networks = withShow(networks, "Corp WiFi", true);
        networks = withShow(networks, "Guest", false);
        QCOMPARE(flagsOf(networks, "Corp WiFi").show, true);
        QCOMPARE(flagsOf(networks, "Guest").show, false);
        QCOMPARE(flagsOf(networks, "Guest").autoConnect, true);
        QCOMPARE(networks.size(), 2);
        networks = without(networks, "Guest");
        QCOMPARE(networks.size(), 1);
        QCOMPARE(flagsOf(networks, "Guest").autoConnect, false);
        QCOMPARE(flagsOf(networks, "Unknown").show, false);
    }

    // A file edited by hand that names a network twice still lets one entry connect by itself.
    void autoConnectGoesToOneEntryOfARepeatedName()
    {
        const QJsonArray file = QJsonDocument::fromJson(R"([{"ssid":"Lab"},{"ssid":"Lab","autoConnect":true},{"ssid":"Guest","autoConnect":true}])").array();
        const QJsonArray networks = withAutoConnect(file, "Lab", true);
        int connecting = 0;
        for (const QJsonValue& entry : networks)
            connecting += entry.toObject().value("autoConnect").toBool() ? 1 : 0;
        QCOMPARE(connecting, 1);
        QCOMPARE(networks.at(0).toObject().value("autoConnect").toBool(), true);
        QCOMPARE(networks.size(), 3);
    }

    void duplicateEntriesAllGo()
    {
        const QJsonArray networks{QJsonObject{{"ssid", "A"}}, QJsonObject{{"ssid", "B"}}, QJsonObject{{"ssid", "A"}}};
        QCOMPARE(without(networks, "A"), (QJsonArray{QJsonObject{{"ssid", "B"}}}));
    }
};

QTEST_GUILESS_MAIN(tst_NetworkParsers)
#include "tst_networkparsers.moc"
