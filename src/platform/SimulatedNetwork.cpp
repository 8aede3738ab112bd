#include "SimulatedNetwork.h"

#include <QMutex>
#include <QMutexLocker>
#include <QRegularExpression>

namespace {

struct Profile {
    QString name;
    QString uuid;
    QString type; // "ethernet" or "wifi"
    QString interfaceName;
    QString method = QStringLiteral("auto");
    QString addresses; // "a.b.c.d/n"
    QString gateway;
    QString dns; // blank-separated
};

Profile newProfile(const QString& name, const QString& uuid, const QString& type, const QString& interfaceName)
{
    Profile profile;
    profile.name = name;
    profile.uuid = uuid;
    profile.type = type;
    profile.interfaceName = interfaceName;
    return profile;
}

struct AccessPoint {
    QString ssid; // empty: hidden
    QString bssid;
    int channel;
    int signal;
    QString security; // "--" when open
};

struct Device {
    QString name;
    QString type;
    QString mac;
    QString activeProfile; // empty when disconnected
};

struct Network {
    bool radio = true;
    QList<Device> devices;
    QList<Profile> profiles;
    QList<AccessPoint> accessPoints;
    SettingsMap dot1x; // Settings/1
    int nextUuid = 10;
};

const QString kSecretKeys[] = {QStringLiteral("password"), QStringLiteral("private-key-password"),
                               QStringLiteral("ca-cert-password"), QStringLiteral("client-cert-password")};

QString uuidFor(int n)
{
    return QStringLiteral("5f2b%1-7c1d-4e0a-9b3f-a1c2d3e4f5%2").arg(n, 4, 10, QLatin1Char('0')).arg(n % 100, 2, 10, QLatin1Char('0'));
}

Network initialNetwork()
{
    Network net;
    net.devices = {{QStringLiteral("enp1s0"), QStringLiteral("ethernet"), QStringLiteral("00:1E:C9:4A:7B:12"), QStringLiteral("Wired connection 1")},
                   {QStringLiteral("wlp2s0"), QStringLiteral("wifi"), QStringLiteral("7C:B2:7D:19:E4:30"), QStringLiteral("Office WiFi")},
                   {QStringLiteral("lo"), QStringLiteral("loopback"), QStringLiteral("00:00:00:00:00:00"), QString()}};
    const Profile wired = newProfile(QStringLiteral("Wired connection 1"), uuidFor(1), QStringLiteral("ethernet"), QStringLiteral("enp1s0"));
    const Profile office = newProfile(QStringLiteral("Office WiFi"), uuidFor(2), QStringLiteral("wifi"), QStringLiteral("wlp2s0"));
    const Profile guest = newProfile(QStringLiteral("Guest"), uuidFor(3), QStringLiteral("wifi"), QStringLiteral("wlp2s0"));
    net.profiles = {wired, office, guest};
    net.accessPoints = {{QStringLiteral("Office WiFi"), QStringLiteral("A4:2B:B0:11:22:01"), 6, 78, QStringLiteral("WPA2")},
                        {QStringLiteral("Corp WiFi"), QStringLiteral("A4:2B:B0:11:22:02"), 11, 64, QStringLiteral("WPA1 WPA2")},
                        {QStringLiteral("Guest"), QStringLiteral("A4:2B:B0:11:22:03"), 1, 52, QStringLiteral("--")},
                        {QString(), QStringLiteral("A4:2B:B0:11:22:04"), 36, 40, QStringLiteral("WPA2")},
                        {QStringLiteral("Café Lounge"), QStringLiteral("A4:2B:B0:11:22:05"), 44, 31, QStringLiteral("WPA2")}};
    net.dot1x.insert(QStringLiteral("connection"), {{QStringLiteral("id"), QStringLiteral("Wired connection 1")},
                                                     {QStringLiteral("type"), QStringLiteral("802-3-ethernet")},
                                                     {QStringLiteral("uuid"), uuidFor(1)}});
    net.dot1x.insert(QStringLiteral("ipv4"), {{QStringLiteral("method"), QStringLiteral("auto")}});
    return net;
}

QMutex g_mutex;
Network& network()
{
    static Network net = initialNetwork();
    return net;
}

SimulatedTerminal::Answer output(const QString& text, int exitCode = 0, const QString& errors = QString())
{
    return SimulatedTerminal::finished(exitCode, text.toUtf8(), errors.toUtf8());
}

// nmcli pads every column to its widest cell plus two blanks.
QString table(const QStringList& header, const QList<QStringList>& rows)
{
    QList<int> widths;
    for (const QString& heading : header)
        widths << heading.size();
    for (const QStringList& row : rows) {
        for (int i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], int(row.at(i).size()));
    }
    QString text;
    auto line = [&](const QStringList& cells) {
        for (int i = 0; i < cells.size(); ++i)
            text += cells.at(i).leftJustified(widths.at(i) + 2);
        text += QLatin1Char('\n');
    };
    line(header);
    for (const QStringList& row : rows)
        line(row);
    return text;
}

Profile* profileNamed(Network& net, const QString& name)
{
    for (Profile& profile : net.profiles) {
        if (profile.name == name || profile.uuid == name)
            return &profile;
    }
    return nullptr;
}

QString deviceOf(const Network& net, const QString& profile)
{
    for (const Device& device : net.devices) {
        if (!profile.isEmpty() && device.activeProfile == profile)
            return device.name;
    }
    return QStringLiteral("--");
}

const char* stateOf(const Device& device)
{
    if (device.type == QLatin1String("loopback"))
        return "unmanaged";
    return device.activeProfile.isEmpty() ? "disconnected" : "connected";
}

QString deviceTable(const Network& net)
{
    QList<QStringList> rows;
    for (const Device& device : net.devices) {
        if (device.type == QLatin1String("wifi") && !net.radio)
            rows << QStringList{device.name, device.type, QStringLiteral("unavailable"), QStringLiteral("--")};
        else
            rows << QStringList{device.name, device.type, QLatin1String(stateOf(device)),
                                device.activeProfile.isEmpty() ? QStringLiteral("--") : device.activeProfile};
    }
    return table({QStringLiteral("DEVICE"), QStringLiteral("TYPE"), QStringLiteral("STATE"), QStringLiteral("CONNECTION")}, rows);
}

QString connectionTable(const Network& net)
{
    if (net.profiles.isEmpty())
        return QStringLiteral("\n");
    QList<QStringList> rows;
    for (const Profile& profile : net.profiles)
        rows << QStringList{profile.name, profile.uuid, profile.type, deviceOf(net, profile.name)};
    return table({QStringLiteral("NAME"), QStringLiteral("UUID"), QStringLiteral("TYPE"), QStringLiteral("DEVICE")}, rows);
}

QString wifiTable(const Network& net)
{
    QString active;
    for (const Device& device : net.devices) {
        if (device.type == QLatin1String("wifi"))
            active = device.activeProfile;
    }
    QList<QStringList> rows;
    if (net.radio) {
        for (const AccessPoint& ap : net.accessPoints) {
            const int bars = (ap.signal + 12) / 25;
            const QString barText = QString::fromUtf8("▂▄▆█").left(bars) + QString(4 - bars, QLatin1Char('_'));
            rows << QStringList{!active.isEmpty() && ap.ssid == active ? QStringLiteral("*") : QString(), ap.bssid,
                                ap.ssid.isEmpty() ? QStringLiteral("--") : ap.ssid, QStringLiteral("Infra"),
                                QString::number(ap.channel), QStringLiteral("130 Mbit/s"), QString::number(ap.signal), barText,
                                ap.security};
        }
    }
    return table({QStringLiteral("IN-USE"), QStringLiteral("BSSID"), QStringLiteral("SSID"), QStringLiteral("MODE"),
                   QStringLiteral("CHAN"), QStringLiteral("RATE"), QStringLiteral("SIGNAL"), QStringLiteral("BARS"),
                   QStringLiteral("SECURITY")},
                  rows);
}

QString field(const QString& key, const QString& value)
{
    return (key + QLatin1Char(':')).leftJustified(40) + value + QLatin1Char('\n');
}

QString deviceBlock(const Network& net, const Device& device)
{
    QString text = field(QStringLiteral("GENERAL.DEVICE"), device.name) + field(QStringLiteral("GENERAL.TYPE"), device.type)
        + field(QStringLiteral("GENERAL.HWADDR"), device.mac)
        + field(QStringLiteral("GENERAL.MTU"), device.type == QLatin1String("loopback") ? QStringLiteral("65536") : QStringLiteral("1500"))
        + field(QStringLiteral("GENERAL.STATE"), device.activeProfile.isEmpty() ? QStringLiteral("30 (disconnected)") : QStringLiteral("100 (connected)"))
        + field(QStringLiteral("GENERAL.CONNECTION"), device.activeProfile.isEmpty() ? QStringLiteral("--") : device.activeProfile);
    if (device.type == QLatin1String("loopback"))
        return text + field(QStringLiteral("IP4.ADDRESS[1]"), QStringLiteral("127.0.0.1/8")) + field(QStringLiteral("IP4.GATEWAY"), QStringLiteral("--"));
    const Profile* profile = nullptr;
    for (const Profile& candidate : net.profiles) {
        if (candidate.name == device.activeProfile)
            profile = &candidate;
    }
    if (!profile)
        return text + field(QStringLiteral("IP4.GATEWAY"), QStringLiteral("--"));
    const bool wired = device.type == QLatin1String("ethernet");
    QString address = wired ? QStringLiteral("192.168.10.57/24") : QStringLiteral("10.20.0.112/22");
    QString gateway = wired ? QStringLiteral("192.168.10.1") : QStringLiteral("10.20.0.1");
    QStringList dns = wired ? QStringList{QStringLiteral("192.168.10.1"), QStringLiteral("9.9.9.9")} : QStringList{QStringLiteral("10.20.0.1")};
    if (profile->method == QLatin1String("manual")) {
        address = profile->addresses;
        gateway = profile->gateway.isEmpty() ? QStringLiteral("--") : profile->gateway;
        dns = profile->dns.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    } else if (!profile->dns.isEmpty()) {
        dns = profile->dns.split(QLatin1Char(' '), Qt::SkipEmptyParts) + dns;
    }
    if (!address.isEmpty())
        text += field(QStringLiteral("IP4.ADDRESS[1]"), address);
    text += field(QStringLiteral("IP4.GATEWAY"), gateway);
    for (int i = 0; i < dns.size(); ++i)
        text += field(QStringLiteral("IP4.DNS[%1]").arg(i + 1), dns.at(i));
    return text;
}

QString profileShow(const Profile& profile, const Network& net)
{
    return field(QStringLiteral("connection.id"), profile.name) + field(QStringLiteral("connection.uuid"), profile.uuid)
        + field(QStringLiteral("connection.type"), profile.type == QLatin1String("wifi") ? QStringLiteral("802-11-wireless") : QStringLiteral("802-3-ethernet"))
        + field(QStringLiteral("connection.interface-name"), profile.interfaceName.isEmpty() ? QStringLiteral("--") : profile.interfaceName)
        + field(QStringLiteral("ipv4.method"), profile.method)
        + field(QStringLiteral("ipv4.dns"), profile.dns.isEmpty() ? QStringLiteral("--") : QString(profile.dns).replace(QLatin1Char(' '), QLatin1Char(',')))
        + field(QStringLiteral("ipv4.addresses"), profile.addresses.isEmpty() ? QStringLiteral("--") : profile.addresses)
        + field(QStringLiteral("ipv4.gateway"), profile.gateway.isEmpty() ? QStringLiteral("--") : profile.gateway)
        + field(QStringLiteral("GENERAL.DEVICES"), deviceOf(net, profile.name));
}

SimulatedTerminal::Answer unknownProfile(const QString& name)
{
    return output(QString(), 10, QStringLiteral("Error: unknown connection '%1'.\n").arg(name));
}

std::optional<SimulatedTerminal::Answer> modify(Network& net, const QStringList& args)
{
    Profile* profile = profileNamed(net, args.value(2));
    if (!profile)
        return unknownProfile(args.value(2));
    if (args.size() < 5 || (args.size() - 3) % 2 != 0)
        return output(QString(), 2, QStringLiteral("Error: value for '%1' is missing.\n").arg(args.last()));
    Profile changed = *profile;
    for (int i = 3; i + 1 < args.size(); i += 2) {
        const QString& key = args.at(i);
        const QString& value = args.at(i + 1);
        if (key == QLatin1String("ipv4.method") && (value == QLatin1String("auto") || value == QLatin1String("manual")))
            changed.method = value;
        else if (key == QLatin1String("ipv4.addresses"))
            changed.addresses = value;
        else if (key == QLatin1String("ipv4.gateway"))
            changed.gateway = value;
        else if (key == QLatin1String("ipv4.dns"))
            changed.dns = value;
        else
            return output(QString(), 2, QStringLiteral("Error: invalid property '%1'.\n").arg(key));
    }
    if (changed.method == QLatin1String("manual") && changed.addresses.isEmpty())
        return output(QString(), 4, QStringLiteral("Error: Failed to modify connection '%1': ipv4.addresses: this property cannot be empty for 'method=manual'\n").arg(profile->name));
    *profile = changed;
    return output(QString());
}

std::optional<SimulatedTerminal::Answer> bringUp(Network& net, const QString& name)
{
    Profile* profile = profileNamed(net, name);
    if (!profile)
        return unknownProfile(name);
    for (Device& device : net.devices) {
        const bool fits = profile->type == device.type && (profile->interfaceName.isEmpty() || profile->interfaceName == device.name);
        if (!fits)
            continue;
        if (device.type == QLatin1String("wifi") && !net.radio)
            return output(QString(), 4, QStringLiteral("Error: Connection activation failed: No suitable device found for this connection.\n"));
        device.activeProfile = profile->name;
        return output(QStringLiteral("Connection successfully activated (D-Bus active path: /org/freedesktop/NetworkManager/ActiveConnection/%1)\n")
                          .arg(net.nextUuid++));
    }
    return output(QString(), 4, QStringLiteral("Error: Connection activation failed: No suitable device found for this connection.\n"));
}

std::optional<SimulatedTerminal::Answer> connectWifi(Network& net, const QString& ssid, const QString& password)
{
    const AccessPoint* found = nullptr;
    for (const AccessPoint& ap : net.accessPoints) {
        if ((!ap.ssid.isEmpty() && ap.ssid == ssid) || ap.bssid == ssid)
            found = &ap;
    }
    if (!net.radio || !found)
        return output(QString(), 10, QStringLiteral("Error: No network with SSID '%1' found.\n").arg(ssid));
    if (found->security != QLatin1String("--") && password.size() < 8)
        return output(QString(), 4, QStringLiteral("Error: Connection activation failed: Secrets were required, but not provided.\n"));
    if (!profileNamed(net, ssid))
        net.profiles.append(newProfile(ssid, uuidFor(net.nextUuid++), QStringLiteral("wifi"), QString()));
    return bringUp(net, ssid);
}

std::optional<SimulatedTerminal::Answer> nmcli(Network& net, const QStringList& args)
{
    const QString joined = args.join(QLatin1Char(' '));
    if (args == QStringList{QStringLiteral("radio"), QStringLiteral("wifi")})
        return output(net.radio ? QStringLiteral("enabled\n") : QStringLiteral("disabled\n"));
    if (args.size() == 3 && args.at(0) == QLatin1String("radio") && args.at(1) == QLatin1String("wifi")) {
        net.radio = args.at(2) == QLatin1String("on");
        if (!net.radio) {
            for (Device& device : net.devices) {
                if (device.type == QLatin1String("wifi"))
                    device.activeProfile.clear();
            }
        }
        return output(QString());
    }
    if (joined == QLatin1String("con") || joined == QLatin1String("connection"))
        return output(connectionTable(net));
    if (joined == QLatin1String("dev") || joined == QLatin1String("device") || joined == QLatin1String("device status"))
        return output(deviceTable(net));
    // The whole listing stays the recorded one (the device identity and the computer name are made
    // from it); one device's view follows the model.
    if (args.size() == 3 && args.at(0) == QLatin1String("device") && args.at(1) == QLatin1String("show")) {
        QStringList blocks;
        for (const Device& device : net.devices) {
            if (args.at(2) == device.name)
                blocks << deviceBlock(net, device);
        }
        if (blocks.isEmpty())
            return output(QString(), 10, QStringLiteral("Error: Device '%1' not found.\n").arg(args.value(2)));
        return output(blocks.join(QLatin1Char('\n')));
    }
    if (joined == QLatin1String("dev wifi list --rescan no"))
        return output(wifiTable(net));
    if (joined == QLatin1String("dev wifi rescan"))
        return net.radio ? output(QString()) : output(QString(), 1, QStringLiteral("Error: Scanning not allowed while unavailable.\n"));
    if (args.size() == 6 && joined.startsWith(QLatin1String("dev wifi connect ")) && args.at(4) == QLatin1String("password"))
        return connectWifi(net, args.at(3), args.at(5));
    if (args.size() == 6 && args.at(0) == QLatin1String("con") && args.at(1) == QLatin1String("add")
        && args.at(2) == QLatin1String("connection.interface-name") && args.at(4) == QLatin1String("type")) {
        QString name = args.at(5) + QLatin1Char('-') + args.at(3);
        for (int n = 1; profileNamed(net, name); ++n)
            name = args.at(5) + QLatin1Char('-') + args.at(3) + QLatin1Char('-') + QString::number(n);
        const QString uuid = uuidFor(net.nextUuid++);
        net.profiles.append(newProfile(name, uuid, args.at(5), args.at(3)));
        return output(QStringLiteral("Connection '%1' (%2) successfully added.\n").arg(name, uuid));
    }
    if (args.size() == 3 && args.at(0) == QLatin1String("con") && args.at(1) == QLatin1String("show")) {
        const Profile* profile = profileNamed(net, args.at(2));
        return profile ? output(profileShow(*profile, net)) : output(QString(), 10, QStringLiteral("Error: %1 - no such connection profile.\n").arg(args.at(2)));
    }
    if (args.size() >= 3 && args.at(0) == QLatin1String("con") && args.at(1) == QLatin1String("mod"))
        return modify(net, args);
    if (args.size() == 3 && args.at(0) == QLatin1String("con") && args.at(1) == QLatin1String("up"))
        return bringUp(net, args.at(2));
    if (args.size() == 3 && args.at(0) == QLatin1String("con") && args.at(1) == QLatin1String("down")) {
        if (!profileNamed(net, args.at(2)))
            return unknownProfile(args.at(2));
        bool active = false;
        for (Device& device : net.devices) {
            if (device.activeProfile == args.at(2)) {
                device.activeProfile.clear();
                active = true;
            }
        }
        return active ? output(QStringLiteral("Connection '%1' successfully deactivated.\n").arg(args.at(2)))
                      : output(QString(), 10, QStringLiteral("Error: '%1' is not an active connection.\n").arg(args.at(2)));
    }
    if (args.size() == 3 && args.at(0) == QLatin1String("con") && args.at(1) == QLatin1String("delete")) {
        for (int i = 0; i < net.profiles.size(); ++i) {
            if (net.profiles.at(i).name != args.at(2))
                continue;
            for (Device& device : net.devices) {
                if (device.activeProfile == args.at(2))
                    device.activeProfile.clear();
            }
            const Profile removed = net.profiles.takeAt(i);
            return output(QStringLiteral("Connection '%1' (%2) successfully deleted.\n").arg(removed.name, removed.uuid));
        }
        return unknownProfile(args.at(2));
    }
    return std::nullopt;
}

// ping prints its replies and, with a count, a summary; without one it runs until stopped.
SimulatedTerminal::Answer ping(const QStringList& args)
{
    const QString host = args.value(args.size() - 1);
    const int sizeAt = args.indexOf(QStringLiteral("-s"));
    const int size = sizeAt >= 0 ? args.value(sizeAt + 1).toInt() : 56;
    int count = 0;
    for (const QString& arg : args) {
        if (arg.startsWith(QLatin1String("-c")))
            count = arg.mid(2).toInt();
    }
    static const QRegularExpression address(QStringLiteral("^\\d+\\.\\d+\\.\\d+\\.\\d+$"));
    const QString ip = address.match(host).hasMatch() ? host : QStringLiteral("192.168.10.20");
    if (host.contains(QLatin1String("invalid")) || host.contains(QLatin1Char(' ')) || host.isEmpty())
        return output(QString(), 2, QStringLiteral("ping: %1: Name or service not known\n").arg(host));
    QString text = QStringLiteral("PING %1 (%2) %3(%4) bytes of data.\n").arg(host, ip).arg(size).arg(size + 28);
    // A process here shows its output when it ends, so a ping without a count sends five packets.
    const int shown = count > 0 ? count : 5;
    for (int i = 1; i <= shown; ++i)
        text += QStringLiteral("%1 bytes from %2: icmp_seq=%3 ttl=64 time=0.%4 ms\n").arg(size + 8).arg(ip).arg(i).arg(300 + 17 * i);
    SimulatedTerminal::Answer answer = output(QString());
    text += QStringLiteral("\n--- %1 ping statistics ---\n%2 packets transmitted, %2 received, 0% packet loss, time %3ms\n")
                .arg(host).arg(shown).arg((shown - 1) * 1000);
    answer.delayMs = (shown - 1) * 1000;
    answer.result.standardOutput = text.toUtf8();
    return answer;
}

} // namespace

namespace SimulatedNetwork {

std::optional<SimulatedTerminal::Answer> answer(const QString& program, const QStringList& arguments)
{
    QMutexLocker locker(&g_mutex);
    Network& net = network();
    if (program == QLatin1String("nmcli"))
        return nmcli(net, arguments);
    if (program == QLatin1String("sudo") && arguments.value(0) == QLatin1String("nmcli"))
        return nmcli(net, arguments.mid(1));
    if (program == QLatin1String("bash") && arguments.size() == 2 && arguments.at(1).startsWith(QLatin1String("nmcli device status")))
        return output(QStringLiteral("DEVICE\n") + [&] {
            QString names;
            for (const Device& device : net.devices)
                names += device.name + QLatin1Char('\n');
            return names;
        }());
    if (program == QLatin1String("iw") && arguments == QStringList{QStringLiteral("dev")}) {
        QString text;
        for (const Device& device : net.devices) {
            if (device.type == QLatin1String("wifi"))
                text += QStringLiteral("phy#0\n\tInterface %1\n\t\tifindex 3\n\t\twdev 0x1\n\t\taddr %2\n\t\ttype managed\n\t\ttxpower 22.00 dBm\n")
                            .arg(device.name, device.mac.toLower());
        }
        return output(text);
    }
    if (program == QLatin1String("ping"))
        return ping(arguments);
    return std::nullopt;
}

std::optional<QVariantList> busAnswer(const BusCall& call)
{
    if (call.service != QLatin1String("org.freedesktop.NetworkManager")
        || call.path != QLatin1String("/org/freedesktop/NetworkManager/Settings/1")
        || call.interface != QLatin1String("org.freedesktop.NetworkManager.Settings.Connection"))
        return std::nullopt;
    QMutexLocker locker(&g_mutex);
    Network& net = network();
    if (call.method == QLatin1String("GetSettings")) {
        SettingsMap shown = net.dot1x;
        for (QVariantMap& section : shown) {
            for (const QString& key : kSecretKeys)
                section.remove(key);
        }
        return QVariantList{QVariant::fromValue(shown)};
    }
    if (call.method == QLatin1String("GetSecrets") && call.arguments.size() == 1) {
        const QString name = call.arguments.first().toString();
        QVariantMap secrets;
        for (const QString& key : kSecretKeys) {
            if (net.dot1x.value(name).contains(key))
                secrets.insert(key, net.dot1x.value(name).value(key));
        }
        return QVariantList{QVariant::fromValue(SettingsMap{{name, secrets}})};
    }
    if (call.method == QLatin1String("Update") && call.arguments.size() == 1
        && call.arguments.first().userType() == qMetaTypeId<SettingsMap>()) {
        net.dot1x = call.arguments.first().value<SettingsMap>();
        return QVariantList{};
    }
    if (call.method == QLatin1String("Save"))
        return QVariantList{};
    return std::nullopt;
}

void reset()
{
    QMutexLocker locker(&g_mutex);
    network() = initialNetwork();
}

} // namespace SimulatedNetwork
