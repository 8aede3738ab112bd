#include "NetworkManager.h"

#include "AtomicFile.h"
#include "CommandRunner.h"
#include "JsonText.h"
#include "SettingsChange.h"
#include "SystemBus.h"
#include "SystemPaths.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QFileDialog>
#include <QJsonDocument>
#include <QNetworkInterface>

#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstring>

namespace {

const QString kSudo = QStringLiteral("sudo");
const QString kNmcli = QStringLiteral("nmcli");
const QString k8021x = QStringLiteral("802-1x");
const QString kService = QStringLiteral("org.freedesktop.NetworkManager");
const QString kConnectionInterface = QStringLiteral("org.freedesktop.NetworkManager.Settings.Connection");

// "sudo nmcli ARGS...", waited for; output and errors are logged under the given prefix.
CommandResult nmcli(const QStringList& arguments, const QString& logPrefix = QString())
{
    CommandResult result = CommandRunner::instance().run(kSudo, QStringList(kNmcli) + arguments);
    if (!logPrefix.isEmpty()) {
        qInfo().noquote() << logPrefix + QString::fromUtf8(result.standardOutput).trimmed();
        if (!result.standardError.isEmpty())
            qInfo().noquote() << logPrefix + QString::fromUtf8(result.standardError).trimmed();
    }
    return result;
}

void nmcliDetached(const QStringList& arguments)
{
    CommandRunner::instance().startDetached(kSudo, QStringList(kNmcli) + arguments);
}

std::optional<QVariantList> callConnection(const QString& method, const QVariantList& arguments = {})
{
    return SystemBus::instance().call(
        {kService, QLatin1String(NetworkManager::kSettingsPath), kConnectionInterface, method, arguments});
}

// The first reply argument as a profile map; empty when the call failed or answered something else.
SettingsMap settingsReply(const std::optional<QVariantList>& reply)
{
    if (!reply || reply->isEmpty() || reply->first().userType() != qMetaTypeId<SettingsMap>())
        return {};
    return reply->first().value<SettingsMap>();
}

QString textOf(const QVariant& value)
{
    if (value.type() == QVariant::ByteArray)
        return QString::fromUtf8(value.toByteArray());
    if (value.type() == QVariant::StringList)
        return value.toStringList().join(QLatin1Char(','));
    return value.toString();
}

void logInterfaceDiagnostics(const QString& iface)
{
    const int fd = ::socket(AF_INET, SOCK_DGRAM, 0);
    if (fd < 0) {
        qInfo() << "unable to open socket..";
        return;
    }
    ifreq request;
    std::memset(&request, 0, sizeof request);
    std::strncpy(request.ifr_name, iface.toLocal8Bit().constData(), IFNAMSIZ - 1);
    if (::ioctl(fd, SIOCGIFHWADDR, &request) == 0) {
        const auto* mac = reinterpret_cast<const unsigned char*>(request.ifr_hwaddr.sa_data);
        qInfo().noquote() << QString::asprintf("Mac address: %02x:%02x:%02x:%02x:%02x:%02x", mac[0], mac[1], mac[2], mac[3],
                                               mac[4], mac[5]);
    }
    if (::ioctl(fd, SIOCGIFMTU, &request) == 0)
        qInfo().noquote() << QString::asprintf("MTU: %d", request.ifr_mtu);
    ::close(fd);
}

} // namespace

NetworkManager::NetworkManager(QObject* parent) : QObject(parent) {}

// --- wired ------------------------------------------------------------------------------------

QStringList NetworkManager::listInterfaces()
{
    const CommandResult result = CommandRunner::instance().run(
        QStringLiteral("bash"), {QStringLiteral("-c"), QStringLiteral("nmcli device status | awk '{print $1}'")});
    return NetworkParsers::interfaces(result.standardOutput);
}

void NetworkManager::update(const QString& iface)
{
    qInfo().noquote() << "Detected interface " + iface;
    logInterfaceDiagnostics(iface);
    m_dnsList.clear();
    m_ip.clear();
    m_subnet.clear();
    m_gateway.clear();

    const CommandResult shown = CommandRunner::instance().run(kNmcli, {QStringLiteral("device"), QStringLiteral("show"), iface});
    const NetworkParsers::DeviceAddress address = NetworkParsers::deviceAddress(shown.standardOutput);
    m_ip = address.ip;
    m_subnet = address.subnet;
    m_gateway = address.gateway;
    m_dnsList = address.dns;

    m_wifiEnabled = NetworkParsers::radioOn(nmcli({QStringLiteral("radio"), QStringLiteral("wifi")}).standardOutput);
}

int NetworkManager::getConnectionType(const QString& iface)
{
    if (NetworkParsers::noProfiles(nmcli({QStringLiteral("con")}).standardOutput)) {
        // A terminal straight from the image: one Ethernet profile per device.
        const QStringList devices = NetworkParsers::devicesNeedingProfiles(nmcli({QStringLiteral("dev")}).standardOutput);
        for (const QString& device : devices) {
            nmcli({QStringLiteral("con"), QStringLiteral("add"), QStringLiteral("connection.interface-name"), device,
                   QStringLiteral("type"), QStringLiteral("ethernet")},
                  QStringLiteral("Profile added: "));
        }
    }
    const QString bound = NetworkParsers::profileForInterface(
        NetworkParsers::profiles(nmcli({QStringLiteral("con")}).standardOutput), iface);
    if (!bound.isEmpty())
        m_connectionName = bound;
    if (m_connectionName.isEmpty())
        return m_type;
    m_type = NetworkParsers::connectionType(nmcli({QStringLiteral("con"), QStringLiteral("show"), m_connectionName}).standardOutput);
    return m_type;
}

void NetworkManager::setConnectionType(int type)
{
    qInfo().noquote() << "Set connection type " + QString::number(type);
    m_type = type;
}

void NetworkManager::setIP(const QString& ip)
{
    qInfo().noquote() << "Set IP " + ip;
    m_ip = ip;
}

void NetworkManager::setSubnetMask(const QString& mask)
{
    qInfo().noquote() << "Set subnet mask " + mask;
    m_subnet = mask;
}

void NetworkManager::setGateway(const QString& gateway)
{
    qInfo().noquote() << "Set gateway " + gateway;
    m_gateway = gateway;
}

void NetworkManager::setDNS(const QString& dns1, const QString& dns2, const QString& dns3)
{
    qInfo().noquote() << "DNS1: " + dns1;
    qInfo().noquote() << "DNS2: " + dns2;
    qInfo().noquote() << "DNS3: " + dns3;
    m_dnsList.clear();
    for (const QString& dns : {dns1, dns2, dns3}) {
        if (!dns.isEmpty())
            m_dnsList << dns;
    }
}

void NetworkManager::apply()
{
    qInfo().noquote() << "network manager apply " + QString::number(m_type) + " for " + m_connectionName;
    if (m_connectionName.isEmpty()) {
        qWarning() << "No connection profile bound; nothing applied";
        return;
    }
    const QStringList modify{QStringLiteral("con"), QStringLiteral("mod"), m_connectionName};
    if (m_type != 0) {
        if (!NetworkParsers::isValidIPv4(m_ip) || !NetworkParsers::isValidMask(m_subnet)
            || !NetworkParsers::isValidGateway(m_gateway)) {
            qWarning().noquote() << "Static address refused: " + m_ip + " / " + m_subnet + " via " + m_gateway;
            return;
        }
        const int prefix = NetworkParsers::maskToPrefix(m_subnet);
        nmcli(modify + QStringList{QStringLiteral("ipv4.addresses"), m_ip + QLatin1Char('/') + QString::number(prefix)},
              QStringLiteral("Addresses: "));
        const QString dns = NetworkParsers::dnsValue(m_dnsList);
        qInfo().noquote() << "DNS to set " + dns;
        qInfo().noquote() << "Gateway to set " + m_gateway;
        nmcli(modify + QStringList{QStringLiteral("ipv4.gateway"), m_gateway}, QStringLiteral("Gateway: "));
        nmcli(modify + QStringList{QStringLiteral("ipv4.dns"), dns}, QStringLiteral("DNS: "));
        nmcli(modify + QStringList{QStringLiteral("ipv4.method"), QStringLiteral("manual")}, QStringLiteral("Method: "));
    } else {
        nmcli(modify + QStringList{QStringLiteral("ipv4.dns"), QString()}, QStringLiteral("DNS: "));
        nmcli(modify + QStringList{QStringLiteral("ipv4.gateway"), QString()}, QStringLiteral("Gateway: "));
        nmcli(modify + QStringList{QStringLiteral("ipv4.method"), QStringLiteral("auto"), QStringLiteral("ipv4.addresses"), QString()},
              QStringLiteral("Method: "));
    }
    nmcli({QStringLiteral("con"), QStringLiteral("up"), m_connectionName}, QStringLiteral("Conn up: "));
    SettingsChange::report();
}

QString NetworkManager::getEthernetIp()
{
    return NetworkParsers::ethernetIp(
        CommandRunner::instance().run(kNmcli, {QStringLiteral("device"), QStringLiteral("show")}).standardOutput);
}

bool NetworkManager::isConnected()
{
    const auto all = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& iface : all) {
        const auto flags = iface.flags();
        if (flags.testFlag(QNetworkInterface::IsUp) && !flags.testFlag(QNetworkInterface::IsLoopBack)
            && !iface.addressEntries().isEmpty())
            return true;
    }
    return false;
}

// --- 802.1X -----------------------------------------------------------------------------------

void NetworkManager::initDbus()
{
    m_publicData.clear();
    m_privateData.clear();
    const SettingsMap settings = settingsReply(callConnection(QStringLiteral("GetSettings")));
    if (!settings.contains(k8021x))
        return;
    m_publicData = settings.value(k8021x);
    const SettingsMap secrets = settingsReply(callConnection(QStringLiteral("GetSecrets"), {k8021x}));
    m_privateData = secrets.value(k8021x);
}

QString NetworkManager::getSetting(const QString& key) const
{
    return textOf(m_publicData.value(key));
}

QString NetworkManager::getSecret(const QString& key) const
{
    return textOf(m_privateData.value(key));
}

QString NetworkManager::getCert(const QString& key) const
{
    QString path = textOf(m_publicData.value(key));
    while (path.endsWith(QChar(0)))
        path.chop(1);
    if (path.startsWith(QLatin1String("file://")))
        path.remove(0, 7);
    return path;
}

QString NetworkManager::getEAP() const
{
    const QVariant eap = m_publicData.value(QStringLiteral("eap"));
    return eap.toStringList().value(0);
}

void NetworkManager::clearCerts()
{
    m_certs.clear();
    m_certsToStore.clear();
    m_valuesToStore.clear();
}

void NetworkManager::setEap(const QString& eap)
{
    m_eapSelected = eap;
}

void NetworkManager::setProperty(const QString& key, const QString& value)
{
    m_valuesToStore.insert(key, value);
}

void NetworkManager::markCertForStoring(const QString& key)
{
    if (!m_certsToStore.contains(key))
        m_certsToStore << key;
}

void NetworkManager::set8021xEnabled(bool enabled)
{
    m_8021xenabled = enabled;
}

QString NetworkManager::setCert(const QString& key, bool asArray)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return {};
    const QString path = QFileDialog::getOpenFileName(nullptr, tr("Browse certificate"), SystemPaths::resolve(QStringLiteral("/media")));
    if (path.isEmpty())
        return {};
    return setCert(key, asArray, path);
}

QString NetworkManager::setCert(const QString& key, bool asArray, const QString& path)
{
    m_certs.insert(key, {path, asArray});
    return path;
}

QVariantMap NetworkManager::staged8021x() const
{
    QVariantMap values = m_valuesToStore;
    values.insert(QStringLiteral("eap"), QStringList(m_eapSelected));
    for (auto it = m_certs.cbegin(); it != m_certs.cend(); ++it) {
        if (it->asArray)
            values.insert(it.key(), QByteArray("file://" + it->path.toUtf8() + '\0'));
        else
            values.insert(it.key(), it->path);
    }
    return values;
}

void NetworkManager::apply8021x()
{
    m_valuesToStore = staged8021x();
    const std::optional<QVariantList> reply = callConnection(QStringLiteral("GetSettings"));
    if (!reply) {
        // Updating with an empty map would wipe the whole profile.
        qWarning() << "802.1X not applied: the connection settings could not be read";
        return;
    }
    SettingsMap settings = settingsReply(reply);
    if (m_8021xenabled)
        settings.insert(k8021x, m_valuesToStore);
    else
        settings.remove(k8021x);
    callConnection(QStringLiteral("Update"), {QVariant::fromValue(settings)});
    callConnection(QStringLiteral("Save"));
    SettingsChange::report();
}

// --- Wi-Fi ------------------------------------------------------------------------------------

bool NetworkManager::isWifiAvailable()
{
    const CommandResult result = CommandRunner::instance().run(QStringLiteral("iw"), {QStringLiteral("dev")});
    return !QString::fromUtf8(result.standardOutput).trimmed().isEmpty();
}

bool NetworkManager::isWifiEnabled()
{
    return NetworkParsers::radioOn(nmcli({QStringLiteral("radio"), QStringLiteral("wifi")}).standardOutput);
}

void NetworkManager::setWifiEnabled(bool enabled)
{
    qInfo().noquote() << "Set wifi enabled " + QString::number(enabled);
    nmcli({QStringLiteral("radio"), QStringLiteral("wifi"), enabled ? QStringLiteral("on") : QStringLiteral("off")},
          QStringLiteral("Radio: "));
    m_wifiEnabled = enabled;
    SettingsChange::report();
}

QList<NetworkManager::AvailableNetwork> NetworkManager::listNetworks()
{
    const QList<AvailableNetwork> networks = NetworkParsers::wifiNetworks(
        nmcli({QStringLiteral("dev"), QStringLiteral("wifi"), QStringLiteral("list"), QStringLiteral("--rescan"), QStringLiteral("no")})
            .standardOutput);
    m_networks.clear();
    m_strengths.clear();
    for (const AvailableNetwork& network : networks) {
        m_networks << network.ssid;
        m_strengths << network.strength;
    }
    return networks;
}

QList<NetworkManager::StoredNetwork> NetworkManager::listStoredNetworks()
{
    const QJsonArray flags = readNetworks();
    QList<StoredNetwork> stored;
    for (const QString& name : NetworkParsers::wifiProfiles(nmcli({QStringLiteral("con")}).standardOutput)) {
        const NetworkParsers::Flags flag = NetworkParsers::flagsOf(flags, name);
        stored.append({name, flag.autoConnect, flag.show});
    }
    return stored;
}

QStringList NetworkManager::listUserNetworks()
{
    QStringList approved;
    for (const StoredNetwork& network : listStoredNetworks()) {
        if (network.showForUser)
            approved << network.ssid;
    }
    QStringList offered;
    for (const AvailableNetwork& network : listNetworks()) {
        if (approved.contains(network.ssid) && !offered.contains(network.ssid))
            offered << network.ssid;
    }
    return offered;
}

QString NetworkManager::getActiveNetworkName()
{
    return NetworkParsers::activeWifi(nmcli({QStringLiteral("con")}).standardOutput);
}

void NetworkManager::connectToWifi(const QString& ssid, const QString& password)
{
    qInfo().noquote() << "Connecting to wifi " + ssid;
    nmcliDetached({QStringLiteral("dev"), QStringLiteral("wifi"), QStringLiteral("connect"), ssid, QStringLiteral("password"), password});
    SettingsChange::report();
}

void NetworkManager::reconnectToWifi(const QString& ssid)
{
    qInfo().noquote() << "Reconnect to wifi " + ssid;
    nmcliDetached({QStringLiteral("con"), QStringLiteral("up"), ssid});
    SettingsChange::report();
}

void NetworkManager::disconnectWifi(const QString& ssid)
{
    qInfo().noquote() << "Disconnecting from " + ssid;
    nmcliDetached({QStringLiteral("con"), QStringLiteral("down"), ssid});
    SettingsChange::report();
}

void NetworkManager::deleteStoredConnection(const QString& ssid)
{
    qInfo().noquote() << "Delete wifi connection " + ssid;
    nmcli({QStringLiteral("con"), QStringLiteral("delete"), ssid}, QStringLiteral("Delete: "));
    writeNetworks(NetworkParsers::without(readNetworks(), ssid));
    SettingsChange::report();
}

void NetworkManager::setAutoConnect(const QString& ssid, bool on)
{
    qInfo().noquote() << "Set wifi autoconnect " + ssid + QLatin1Char(' ') + QString::number(on);
    writeNetworks(NetworkParsers::withAutoConnect(readNetworks(), ssid, on));
    SettingsChange::report();
}

void NetworkManager::setForUser(const QString& ssid, bool on)
{
    qInfo().noquote() << "Set for user " + ssid + QLatin1Char(' ') + QString::number(on);
    writeNetworks(NetworkParsers::withShow(readNetworks(), ssid, on));
    SettingsChange::report();
}

void NetworkManager::requestScan()
{
    qInfo() << "Requesting wifi scan";
    nmcliDetached({QStringLiteral("dev"), QStringLiteral("wifi"), QStringLiteral("rescan")});
}

void NetworkManager::autoConnect()
{
    if (!isWifiAvailable() || !isWifiEnabled())
        return;
    qInfo() << "Auto connecting to wifi";
    for (const StoredNetwork& network : listStoredNetworks()) {
        if (network.autoConnect) {
            reconnectToWifi(network.ssid);
            return;
        }
    }
}

// --- networks.json ----------------------------------------------------------------------------

QString NetworkManager::networksFile()
{
    return SystemPaths::dataFile(QStringLiteral("networks.json"));
}

QJsonArray NetworkManager::readNetworks()
{
    QFile file(networksFile());
    if (!file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning().noquote() << "Cannot read " + file.fileName() + ": " + file.errorString();
        return {};
    }
    const QByteArray content = file.readAll();
    QJsonParseError error{};
    const QJsonDocument document = JsonText::parse(content, &error);
    if (error.error == QJsonParseError::NoError && document.isArray())
        return document.array();
    const QString aside = file.fileName() + QStringLiteral(".corrupt");
    qWarning().noquote() << "Approved networks file is not a list (" + error.errorString() + "); kept as " + aside;
    AtomicFile::write(aside, content);
    return {};
}

bool NetworkManager::writeNetworks(const QJsonArray& networks)
{
    return AtomicFile::write(networksFile(), QJsonDocument(networks).toJson(QJsonDocument::Indented));
}
