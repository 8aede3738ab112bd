#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonArray>
#include <QList>
#include <QString>
#include <QStringList>

// Pure readers of nmcli's output and the small formats of the network settings: text in, values out.
namespace NetworkParsers {

// Column layout of an nmcli table, taken from its header line: a field runs from the start of
// its heading to the start of the next heading found in the header, or to the end of the row.
class Columns {
public:
    Columns(const QString& header, const QStringList& headings);
    bool has(const QString& heading) const { return m_starts.value(heading, -1) >= 0; }
    // The field under heading in row, simplified; empty when the heading was not in the header.
    QString field(const QString& row, const QString& heading) const;

private:
    QHash<QString, int> m_starts;
    QList<int> m_sorted;
};

// "nmcli device status | awk '{print $1}'": device names without loopback, p2p and the header.
QStringList interfaces(const QByteArray& output);

struct DeviceAddress {
    QString ip;
    QString subnet;
    QString gateway;
    QStringList dns;
};
// "nmcli device show <iface>": the first IPv4 address with its mask, the gateway, every DNS entry.
DeviceAddress deviceAddress(const QByteArray& output);

// 24 -> "255.255.255.0"; out-of-range lengths are clamped to 0..32.
QString prefixToMask(int prefix);
// "255.255.255.0" -> 24 (the set bits of the four numbers).
int maskToPrefix(const QString& mask);
// A dotted quad of four numbers 0-255.
bool isValidIPv4(const QString& address);
// A mask whose ones are contiguous from the top (0.0.0.0 to 255.255.255.255).
bool isValidMask(const QString& mask);
// An empty gateway is allowed (no default route); otherwise a valid address.
bool isValidGateway(const QString& gateway);

// ipv4.dns value: 1 entry as it is, 2-3 joined by one blank, none or more than 3 give "".
QString dnsValue(const QStringList& entries);

// "nmcli radio wifi": on when the text says "enabled" or "on".
bool radioOn(const QByteArray& output);

struct Profile {
    QString name;
    QString type;
    QString device;
};
// "nmcli con": one entry per row (NAME, TYPE, DEVICE cut by the header's columns).
QList<Profile> profiles(const QByteArray& output);
// True when "nmcli con" listed no profile (empty output, or a header without rows).
bool noProfiles(const QByteArray& output);
// "nmcli dev": the devices that get an Ethernet profile on a terminal without any (all but lo).
QStringList devicesNeedingProfiles(const QByteArray& output);
// The profile bound to iface (the last matching row wins), empty when none.
QString profileForInterface(const QList<Profile>& profiles, const QString& iface);
// "nmcli con show <name>": 0 when ipv4.method is auto, else 1.
int connectionType(const QByteArray& output);

struct AvailableNetwork {
    QString ssid;
    int strength = 0;
    bool security = false;
};
// "nmcli dev wifi list": rows in nmcli's order; a hidden network ("--") is named by its BSSID.
QList<AvailableNetwork> wifiNetworks(const QByteArray& output);
// "nmcli con": names of the rows that mention "wifi".
QStringList wifiProfiles(const QByteArray& output);
// "nmcli con": the first Wi-Fi row bound to a device, empty when none.
QString activeWifi(const QByteArray& output);
// "nmcli device show": the address (without prefix) of the first Ethernet device's IPv4 address.
QString ethernetIp(const QByteArray& output);

// A host name label: 1-63 letters, digits and hyphens, not starting or ending with a hyphen.
bool isValidHostName(const QString& name);

// Approved-network flags (networks.json): an array of {"ssid", "autoConnect"?, "show"?}.
// autoConnect on one entry clears it on every other; an unknown SSID is appended.
QJsonArray withAutoConnect(QJsonArray networks, const QString& ssid, bool on);
QJsonArray withShow(QJsonArray networks, const QString& ssid, bool on);
QJsonArray without(QJsonArray networks, const QString& ssid);
struct Flags {
    bool autoConnect = false;
    bool show = false;
};
Flags flagsOf(const QJsonArray& networks, const QString& ssid);

} // namespace NetworkParsers
