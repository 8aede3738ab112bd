#include "NetworkParsers.h"

#include <QJsonObject>

#include <algorithm>

namespace NetworkParsers {

namespace {

QStringList lines(const QByteArray& output)
{
    return QString::fromUtf8(output).split(QLatin1Char('\n'));
}

// The text after the first ':' of a "KEY:   value" line, simplified.
QString valueOf(const QString& line)
{
    const int colon = line.indexOf(QLatin1Char(':'));
    return colon < 0 ? QString() : line.mid(colon + 1).simplified();
}

// The header line of an nmcli table and the rows below it.
bool splitTable(const QByteArray& output, const QString& headerStart, QString* header, QStringList* rows)
{
    const QStringList all = lines(output);
    int at = 0;
    while (at < all.size() && !all.at(at).trimmed().startsWith(headerStart))
        ++at;
    if (at == all.size())
        return false;
    *header = all.at(at);
    for (int i = at + 1; i < all.size(); ++i) {
        if (!all.at(i).trimmed().isEmpty())
            rows->append(all.at(i));
    }
    return true;
}

int octetsToWord(const QString& dotted, bool* ok)
{
    const QStringList parts = dotted.trimmed().split(QLatin1Char('.'));
    *ok = parts.size() == 4;
    quint32 word = 0;
    for (const QString& part : parts) {
        bool numeric = false;
        const int value = part.toInt(&numeric);
        if (!numeric || value < 0 || value > 255 || part.isEmpty() || part.size() > 3)
            *ok = false;
        word = (word << 8) | quint32(value & 0xff);
    }
    return int(word);
}

} // namespace

Columns::Columns(const QString& header, const QStringList& headings)
{
    for (const QString& heading : headings) {
        const int start = header.indexOf(heading);
        m_starts.insert(heading, start);
        if (start >= 0)
            m_sorted.append(start);
    }
    std::sort(m_sorted.begin(), m_sorted.end());
}

QString Columns::field(const QString& row, const QString& heading) const
{
    const int start = m_starts.value(heading, -1);
    if (start < 0)
        return {};
    const auto next = std::upper_bound(m_sorted.cbegin(), m_sorted.cend(), start);
    const int length = next == m_sorted.cend() ? -1 : *next - start;
    return row.mid(start, length).simplified();
}

QStringList interfaces(const QByteArray& output)
{
    QStringList names;
    for (const QString& line : lines(output)) {
        const QString word = line.simplified().section(QLatin1Char(' '), 0, 0);
        if (word.isEmpty() || word.startsWith(QLatin1String("lo")) || word.startsWith(QLatin1String("p2p"))
            || word.startsWith(QLatin1String("DEVICE")))
            continue;
        names << word;
    }
    return names;
}

DeviceAddress deviceAddress(const QByteArray& output)
{
    DeviceAddress address;
    for (const QString& line : lines(output)) {
        if (line.startsWith(QLatin1String("IP4.ADDRESS"))) {
            const QString value = valueOf(line);
            address.ip = value.section(QLatin1Char('/'), 0, 0);
            bool numeric = false;
            const int prefix = value.section(QLatin1Char('/'), 1, 1).toInt(&numeric);
            address.subnet = numeric ? prefixToMask(prefix) : QString();
        } else if (line.startsWith(QLatin1String("IP4.GATEWAY"))) {
            // nmcli prints "--" for an empty value.
            const QString gateway = valueOf(line);
            address.gateway = gateway == QLatin1String("--") ? QString() : gateway;
        } else if (line.startsWith(QLatin1String("IP4.DNS"))) {
            address.dns << valueOf(line);
        }
    }
    return address;
}

QString prefixToMask(int prefix)
{
    prefix = std::clamp(prefix, 0, 32);
    const quint32 mask = prefix == 0 ? 0 : ~quint32(0) << (32 - prefix);
    return QStringLiteral("%1.%2.%3.%4").arg(mask >> 24).arg((mask >> 16) & 0xff).arg((mask >> 8) & 0xff).arg(mask & 0xff);
}

int maskToPrefix(const QString& mask)
{
    bool ok = false;
    const quint32 word = quint32(octetsToWord(mask, &ok));
    return ok ? __builtin_popcount(word) : 0;
}

bool isValidIPv4(const QString& address)
{
    bool ok = false;
    octetsToWord(address, &ok);
    return ok;
}

bool isValidMask(const QString& mask)
{
    bool ok = false;
    const quint32 word = quint32(octetsToWord(mask, &ok));
    // Contiguous ones from the top: the inverted mask plus one is a power of two (or zero).
    const quint32 inverted = ~word;
    return ok && (inverted & (inverted + 1)) == 0;
}

bool isValidGateway(const QString& gateway)
{
    return gateway.isEmpty() || isValidIPv4(gateway);
}

QString dnsValue(const QStringList& entries)
{
    if (entries.isEmpty() || entries.size() > 3)
        return {};
    return entries.join(QLatin1Char(' '));
}

bool radioOn(const QByteArray& output)
{
    const QString text = QString::fromUtf8(output);
    return text.contains(QLatin1String("ena")) || text.contains(QLatin1String("on"));
}

QList<Profile> profiles(const QByteArray& output)
{
    QString header;
    QStringList rows;
    QList<Profile> list;
    if (!splitTable(output, QStringLiteral("NAME"), &header, &rows))
        return list;
    const Columns columns(header, {QStringLiteral("NAME"), QStringLiteral("UUID"), QStringLiteral("TYPE"), QStringLiteral("DEVICE")});
    if (!columns.has(QStringLiteral("UUID")) || !columns.has(QStringLiteral("DEVICE")))
        return list;
    for (const QString& row : rows)
        list.append({columns.field(row, QStringLiteral("NAME")), columns.field(row, QStringLiteral("TYPE")),
                     columns.field(row, QStringLiteral("DEVICE"))});
    return list;
}

bool noProfiles(const QByteArray& output)
{
    QString header;
    QStringList rows;
    if (!splitTable(output, QStringLiteral("NAME"), &header, &rows))
        return QString::fromUtf8(output).trimmed().isEmpty();
    return rows.isEmpty();
}

QStringList devicesNeedingProfiles(const QByteArray& output)
{
    QString header;
    QStringList rows;
    QStringList devices;
    if (!splitTable(output, QStringLiteral("DEVICE"), &header, &rows))
        return devices;
    const Columns columns(header, {QStringLiteral("DEVICE"), QStringLiteral("TYPE"), QStringLiteral("STATE")});
    for (const QString& row : rows) {
        const QString device = columns.field(row, QStringLiteral("DEVICE"));
        if (!device.isEmpty() && device != QLatin1String("lo"))
            devices << device;
    }
    return devices;
}

QString profileForInterface(const QList<Profile>& profiles, const QString& iface)
{
    QString name;
    for (const Profile& profile : profiles) {
        if (profile.device == iface)
            name = profile.name;
    }
    return name;
}

int connectionType(const QByteArray& output)
{
    for (const QString& line : lines(output)) {
        if (line.contains(QLatin1String("ipv4.method")))
            return valueOf(line).contains(QLatin1String("auto")) ? 0 : 1;
    }
    return 1;
}

QList<AvailableNetwork> wifiNetworks(const QByteArray& output)
{
    QString header;
    QStringList rows;
    QList<AvailableNetwork> list;
    if (!splitTable(output, QStringLiteral("IN-USE"), &header, &rows))
        return list;
    const QString ssidHeading = QStringLiteral(" SSID");
    const Columns columns(header, {ssidHeading, QStringLiteral("MODE"), QStringLiteral("CHAN"), QStringLiteral("RATE"),
                                   QStringLiteral("SIGNAL"), QStringLiteral("BARS"), QStringLiteral("BSSID"),
                                   QStringLiteral("SECURITY")});
    if (!columns.has(ssidHeading) || !columns.has(QStringLiteral("SIGNAL")) || !columns.has(QStringLiteral("SECURITY")))
        return list;
    for (const QString& row : rows) {
        AvailableNetwork network;
        network.ssid = columns.field(row, ssidHeading);
        if (network.ssid == QLatin1String("--"))
            network.ssid = columns.field(row, QStringLiteral("BSSID"));
        network.strength = columns.field(row, QStringLiteral("SIGNAL")).toInt();
        network.security = columns.field(row, QStringLiteral("SECURITY")) != QLatin1String("--");
        list.append(network);
    }
    return list;
}

QStringList wifiProfiles(const QByteArray& output)
{
    QString header;
    QStringList rows;
    QStringList names;
    if (!splitTable(output, QStringLiteral("NAME"), &header, &rows))
        return names;
    const Columns columns(header, {QStringLiteral("NAME"), QStringLiteral("UUID"), QStringLiteral("TYPE"), QStringLiteral("DEVICE")});
    for (const QString& row : rows) {
        if (row.contains(QLatin1String("wifi")))
            names << columns.field(row, QStringLiteral("NAME"));
    }
    return names;
}

QString activeWifi(const QByteArray& output)
{
    QString header;
    QStringList rows;
    if (!splitTable(output, QStringLiteral("NAME"), &header, &rows))
        return {};
    const Columns columns(header, {QStringLiteral("NAME"), QStringLiteral("UUID"), QStringLiteral("TYPE"), QStringLiteral("DEVICE")});
    for (const QString& row : rows) {
        const QString device = columns.field(row, QStringLiteral("DEVICE"));
        if (row.contains(QLatin1String("wifi")) && !device.isEmpty() && device != QLatin1String("--"))
            return columns.field(row, QStringLiteral("NAME"));
    }
    return {};
}

QString ethernetIp(const QByteArray& output)
{
    bool wired = false;
    for (const QString& line : lines(output)) {
        if (line.startsWith(QLatin1String("GENERAL.TYPE")))
            wired = line.contains(QLatin1String("ethernet"));
        else if (wired && line.startsWith(QLatin1String("IP4.ADDRESS")))
            return valueOf(line).section(QLatin1Char('/'), 0, 0);
    }
    return {};
}

bool isValidHostName(const QString& name)
{
    if (name.isEmpty() || name.size() > 63 || name.startsWith(QLatin1Char('-')) || name.endsWith(QLatin1Char('-')))
        return false;
    return std::all_of(name.cbegin(), name.cend(), [](QChar c) {
        return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
            || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('-');
    });
}

namespace {

QJsonArray withFlag(QJsonArray networks, const QString& ssid, const QString& key, bool on, bool exclusive)
{
    bool found = false;
    for (int i = 0; i < networks.size(); ++i) {
        QJsonObject entry = networks.at(i).toObject();
        // An exclusive flag goes to the first entry of that name only: a file edited by hand may
        // name a network twice, and still only one network may connect by itself.
        if (entry.value(QLatin1String("ssid")).toString() == ssid && !(exclusive && found)) {
            entry.insert(key, on);
            found = true;
        } else if (exclusive) {
            entry.insert(key, false);
        } else {
            continue;
        }
        networks.replace(i, entry);
    }
    if (!found)
        networks.append(QJsonObject{{QStringLiteral("ssid"), ssid}, {key, on}});
    return networks;
}

} // namespace

QJsonArray withAutoConnect(QJsonArray networks, const QString& ssid, bool on)
{
    return withFlag(std::move(networks), ssid, QStringLiteral("autoConnect"), on, true);
}

QJsonArray withShow(QJsonArray networks, const QString& ssid, bool on)
{
    return withFlag(std::move(networks), ssid, QStringLiteral("show"), on, false);
}

QJsonArray without(QJsonArray networks, const QString& ssid)
{
    for (int i = networks.size() - 1; i >= 0; --i) {
        if (networks.at(i).toObject().value(QLatin1String("ssid")).toString() == ssid)
            networks.removeAt(i);
    }
    return networks;
}

Flags flagsOf(const QJsonArray& networks, const QString& ssid)
{
    for (const QJsonValue& value : networks) {
        const QJsonObject entry = value.toObject();
        if (entry.value(QLatin1String("ssid")).toString() == ssid)
            return {entry.value(QLatin1String("autoConnect")).toBool(), entry.value(QLatin1String("show")).toBool()};
    }
    return {};
}

} // namespace NetworkParsers
