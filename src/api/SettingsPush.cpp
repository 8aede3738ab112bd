#include "SettingsPush.h"

#include "AtomicFile.h"
#include "LanguageBackend.h"
#include "MouseSettingsBackend.h"
#include "NetworkManager.h"
#include "NetworkParsers.h"
#include "PrintersBackend.h"
#include "ScreensBackend.h"
#include "SoundSettingsBackend.h"
#include "SystemPaths.h"
#include "TimeBackend.h"
#include "TimeZoneTable.h"
#include "USBManager.h"
#include "WallpapersManager.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QJsonArray>

#include <cmath>
#include <optional>

// One group of the document: typed reads of its keys, each read key marked as known so that the
// rest can be reported as unknown.
class SettingsPush::Group {
public:
    Group(SettingsPush* push, QString name, QJsonObject object)
        : m_push(push)
        , m_name(std::move(name))
        , m_object(std::move(object))
    {
    }

    ~Group()
    {
        for (auto it = m_object.constBegin(); it != m_object.constEnd(); ++it) {
            if (!m_known.contains(it.key()))
                m_push->skip(m_name, it.key(), QStringLiteral("unknown key"));
        }
    }

    bool has(const QString& key)
    {
        m_known << key;
        return m_object.contains(key);
    }

    std::optional<bool> boolean(const QString& key)
    {
        if (!has(key))
            return std::nullopt;
        const QJsonValue value = m_object.value(key);
        if (!value.isBool())
            return refuse(key, QStringLiteral("not a boolean")), std::nullopt;
        return value.toBool();
    }

    std::optional<double> number(const QString& key)
    {
        if (!has(key))
            return std::nullopt;
        const QJsonValue value = m_object.value(key);
        if (!value.isDouble() || !std::isfinite(value.toDouble()))
            return refuse(key, QStringLiteral("not a number")), std::nullopt;
        return value.toDouble();
    }

    std::optional<int> integer(const QString& key)
    {
        const std::optional<double> value = number(key);
        if (!value)
            return std::nullopt;
        if (*value != std::floor(*value) || std::fabs(*value) > 1e9)
            return refuse(key, QStringLiteral("not an integer")), std::nullopt;
        return int(*value);
    }

    std::optional<QString> string(const QString& key)
    {
        if (!has(key))
            return std::nullopt;
        const QJsonValue value = m_object.value(key);
        if (!value.isString())
            return refuse(key, QStringLiteral("not a string")), std::nullopt;
        return value.toString();
    }

    void refuse(const QString& key, const QString& reason) { m_push->skip(m_name, key, reason); }

private:
    SettingsPush* m_push;
    QString m_name;
    QJsonObject m_object;
    QStringList m_known;
};

namespace {

const QStringList& knownMembers()
{
    static const QStringList members{
        QStringLiteral("DateTime"), QStringLiteral("Printers"), QStringLiteral("Sound"), QStringLiteral("System"),
        QStringLiteral("KeyboardMouse"), QStringLiteral("WiFi"), QStringLiteral("8021x"), QStringLiteral("Network"),
        QStringLiteral("Layouts"), QStringLiteral("AdditionalSettingsEnabled"), QStringLiteral("USB"),
        QStringLiteral("Updates"), QStringLiteral("PreferredLayout"), QStringLiteral("Screens"),
        QStringLiteral("Background"), QStringLiteral("Config")};
    return members;
}

struct CertFile {
    const char* key;
    const char* file;
    const char* property;
};

const CertFile kCertFiles[] = {{"CACert", "/data/norbix/8021x/ca-cert", "ca-cert"},
                               {"ClientCert", "/data/norbix/8021x/client-cert", "client-cert"},
                               {"PacFile", "/data/norbix/8021x/pac", "pac-file"},
                               {"Key", "/data/norbix/8021x/key", "private-key"}};

// The plain keys in the order they are staged ("CAPassword" a second time after "Phase2Auth").
const char* const kPlainOrder[] = {"Username",    "Password",      "Domain",     "KeyPassword",   "CAPassword",
                                   "UserPassword", "AnonIdentity", "Phase1Provisioning", "Phase2Auth", "CAPassword",
                                   "Phase1PeapVer"};

// The first wired device: Ethernet devices are named eth*, en* by the kernel and udev.
QString firstWiredInterface(const QStringList& interfaces)
{
    for (const QString& name : interfaces) {
        if (name.startsWith(QLatin1String("en")) || name.startsWith(QLatin1String("eth")))
            return name;
    }
    return {};
}

} // namespace

SettingsPush::SettingsPush(Targets targets)
    : m_targets(std::move(targets))
{
}

QString SettingsPush::property8021x(const QString& key)
{
    static const QHash<QString, QString> properties{
        {QStringLiteral("Username"), QStringLiteral("identity")},
        {QStringLiteral("Password"), QStringLiteral("password")},
        {QStringLiteral("Domain"), QStringLiteral("domain-suffix-match")},
        {QStringLiteral("KeyPassword"), QStringLiteral("private-key-password")},
        {QStringLiteral("CAPassword"), QStringLiteral("ca-cert-password")},
        {QStringLiteral("UserPassword"), QStringLiteral("client-cert-password")},
        {QStringLiteral("AnonIdentity"), QStringLiteral("anonymous-identity")},
        {QStringLiteral("Phase1Provisioning"), QStringLiteral("phase1-fast-provisioning")},
        {QStringLiteral("Phase2Auth"), QStringLiteral("phase2-auth")},
        {QStringLiteral("Phase1PeapVer"), QStringLiteral("phase1-peapver")}};
    return properties.value(key);
}

QByteArray SettingsPush::decodeImage(const QString& text)
{
    const QByteArray::FromBase64Result decoded =
        QByteArray::fromBase64Encoding(text.trimmed().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded || text.trimmed().isEmpty())
        return {};
    if (WallpapersManager::imageKind(*decoded).isEmpty())
        return {};
    return *decoded;
}

void SettingsPush::skip(const QString& group, const QString& key, const QString& reason)
{
    const QString name = key.isEmpty() ? group : group + QLatin1Char('/') + key;
    qWarning().noquote() << "Settings from server: skipped " + name + ": " + reason;
    if (!m_skipped.contains(name)) // "CAPassword" is read twice
        m_skipped << name;
}

QStringList SettingsPush::apply(const QJsonObject& document)
{
    m_skipped.clear();
    for (auto it = document.constBegin(); it != document.constEnd(); ++it) {
        if (!knownMembers().contains(it.key()))
            skip(it.key(), QString(), QStringLiteral("unknown group"));
    }

    // A group that is not an object is skipped whole; a missing one leaves its settings alone.
    auto withGroup = [&](const QString& name, void (SettingsPush::*applyGroup)(Group&)) {
        if (!document.contains(name))
            return;
        const QJsonValue value = document.value(name);
        if (!value.isObject()) {
            skip(name, QString(), QStringLiteral("not an object"));
            return;
        }
        Group group(this, name, value.toObject());
        (this->*applyGroup)(group);
    };

    withGroup(QStringLiteral("DateTime"), &SettingsPush::applyDateTime);
    withGroup(QStringLiteral("Printers"), &SettingsPush::applyPrinters);
    withGroup(QStringLiteral("Sound"), &SettingsPush::applySound);
    withGroup(QStringLiteral("System"), &SettingsPush::applySystem);
    withGroup(QStringLiteral("KeyboardMouse"), &SettingsPush::applyKeyboardMouse);
    withGroup(QStringLiteral("WiFi"), &SettingsPush::applyWiFi);
    withGroup(QStringLiteral("8021x"), &SettingsPush::apply8021x);
    withGroup(QStringLiteral("Network"), &SettingsPush::applyNetwork);
    if (document.contains(QLatin1String("Layouts")))
        applyLayouts(document.value(QLatin1String("Layouts")));
    if (document.contains(QLatin1String("AdditionalSettingsEnabled"))) {
        const QJsonValue value = document.value(QLatin1String("AdditionalSettingsEnabled"));
        if (!value.isBool())
            skip(QStringLiteral("AdditionalSettingsEnabled"), QString(), QStringLiteral("not a boolean"));
        else if (m_targets.setAdvancedEnabled)
            m_targets.setAdvancedEnabled(value.toBool());
    }
    withGroup(QStringLiteral("USB"), &SettingsPush::applyUsb);
    withGroup(QStringLiteral("Updates"), &SettingsPush::applyUpdates);
    if (document.contains(QLatin1String("PreferredLayout")))
        applyPreferredLayout(document.value(QLatin1String("PreferredLayout")));
    withGroup(QStringLiteral("Screens"), &SettingsPush::applyScreens);
    if (document.contains(QLatin1String("Background")))
        applyBackground(document.value(QLatin1String("Background")));
    withGroup(QStringLiteral("Config"), &SettingsPush::applyConfig);
    return m_skipped;
}

void SettingsPush::applyDateTime(Group& group)
{
    TimeBackend* time = TimeBackend::getInstance();
    // The date sent is not used: the terminal keeps its own.
    if (group.has(QStringLiteral("Date")))
        time->setDate(QDate::currentDate());
    if (const std::optional<bool> isAmPm = group.boolean(QStringLiteral("IsAmPm")))
        time->set24(*isAmPm);
    if (const std::optional<QString> label = group.string(QStringLiteral("Timezone"))) {
        if (TimeZoneTable::zoneOf(*label).isEmpty())
            group.refuse(QStringLiteral("Timezone"), QStringLiteral("no time zone in \"") + *label + QLatin1Char('"'));
        else
            time->setTimezone(*label);
    }
    const bool hasNtp = group.has(QStringLiteral("NTP"));
    const std::optional<QString> ntp = group.string(QStringLiteral("NTP"));
    if (ntp) {
        time->setNtp(*ntp);
    } else if (!hasNtp) {
        const QTime now = QTime::currentTime();
        time->setAmOrPm(now.toString(QStringLiteral("ap")).toUpper());
        time->setHour(now.hour());
        time->setMinute(now.minute());
    }
    time->apply();
}

void SettingsPush::applyPrinters(Group& group)
{
    if (const std::optional<QString> printer = group.string(QStringLiteral("ActivePrinter"))) {
        if (printer->isEmpty())
            group.refuse(QStringLiteral("ActivePrinter"), QStringLiteral("empty printer name"));
        else
            PrintersBackend().setCurrentPrinter(*printer);
    }
}

void SettingsPush::applySound(Group& group)
{
    SoundSettingsBackend* sound = SoundSettingsBackend::getInstance();
    if (const std::optional<QString> sink = group.string(QStringLiteral("ActiveSink"))) {
        const int index = sound->listSinks().indexOf(*sink);
        if (index < 0)
            group.refuse(QStringLiteral("ActiveSink"), QStringLiteral("no sink named \"") + *sink + QLatin1Char('"'));
        else
            sound->setActiveSink(index);
    }
    if (const std::optional<int> volume = group.integer(QStringLiteral("MicrophoneVolume")))
        sound->setMicrophoneVolume(*volume);
    if (const std::optional<int> volume = group.integer(QStringLiteral("SoundVolume")))
        sound->setSoundVolume(*volume);
    if (const std::optional<bool> enabled = group.boolean(QStringLiteral("Enabled")))
        sound->setSoundEnabled(*enabled);
}

void SettingsPush::applySystem(Group& group)
{
    if (const std::optional<QString> language = group.string(QStringLiteral("Language"))) {
        if (!LanguageBackend::languageCodes().contains(*language))
            group.refuse(QStringLiteral("Language"), QStringLiteral("unknown language \"") + *language + QLatin1Char('"'));
        else
            LanguageBackend::getInstance()->setCurrentLanguage(*language);
    }
}

void SettingsPush::applyKeyboardMouse(Group& group)
{
    MouseSettingsBackend mouse;
    if (const std::optional<double> speed = group.number(QStringLiteral("Speed"))) {
        if (*speed < -1.0 || *speed > 1.0)
            group.refuse(QStringLiteral("Speed"), QStringLiteral("outside -1..1"));
        else
            mouse.setMouseSensetivity(float(*speed));
    }
    if (const std::optional<int> speed = group.integer(QStringLiteral("DoubleClickSpeed"))) {
        if (*speed <= 0)
            group.refuse(QStringLiteral("DoubleClickSpeed"), QStringLiteral("not a positive time"));
        else
            mouse.setDoubleClickSpeed(*speed);
    }
    if (const std::optional<int> button = group.integer(QStringLiteral("PrimaryButton"))) {
        if (*button != 0 && *button != 1)
            group.refuse(QStringLiteral("PrimaryButton"), QStringLiteral("neither 0 nor 1"));
        else
            mouse.setPrimaryButton(*button);
    }
}

void SettingsPush::applyWiFi(Group& group)
{
    NetworkManager network;
    if (const std::optional<bool> enabled = group.boolean(QStringLiteral("WifiEnabled")))
        network.setWifiEnabled(*enabled);
    if (const std::optional<QString> name = group.string(QStringLiteral("ActiveNetwork"))) {
        bool stored = false;
        for (const NetworkManager::StoredNetwork& entry : network.listStoredNetworks())
            stored = stored || entry.ssid == *name;
        if (!stored)
            group.refuse(QStringLiteral("ActiveNetwork"), QStringLiteral("no stored network \"") + *name + QLatin1Char('"'));
        else
            network.reconnectToWifi(*name);
    }
}

void SettingsPush::apply8021x(Group& group)
{
    NetworkManager network;
    network.initDbus();
    QDir().mkpath(SystemPaths::resolve(QLatin1String(k8021xDir)));
    const std::optional<QString> eap = group.string(QStringLiteral("EAP"));
    if (eap && !eap->isEmpty())
        network.setEap(*eap);
    for (const char* key : kPlainOrder) {
        const QString name = QLatin1String(key);
        if (const std::optional<QString> value = group.string(name))
            network.setProperty(property8021x(name), *value);
    }
    for (const CertFile& cert : kCertFiles) {
        const std::optional<QString> content = group.string(QLatin1String(cert.key));
        if (!content)
            continue;
        if (!AtomicFile::write(SystemPaths::resolve(QLatin1String(cert.file)), content->toUtf8())) {
            group.refuse(QLatin1String(cert.key), QStringLiteral("cannot write ") + QLatin1String(cert.file));
            continue;
        }
        network.setCert(QLatin1String(cert.property), true, QLatin1String(cert.file));
    }
    if (eap && !eap->isEmpty())
        network.set8021xEnabled(true);
    network.apply8021x();
}

void SettingsPush::applyNetwork(Group& group)
{
    NetworkManager network;
    const QString iface = firstWiredInterface(network.listInterfaces());
    if (iface.isEmpty()) {
        qWarning() << "Settings from server: no wired interface, network settings not applied";
        return;
    }
    network.update(iface); // the values a partial document keeps
    network.getConnectionType(iface);
    if (const std::optional<QString> type = group.string(QStringLiteral("Type")))
        network.setConnectionType(*type == QLatin1String("DHCP") ? 0 : 1);

    QStringList dns{network.getDNS1(), network.getDNS2(), network.getDNS3()};
    bool dnsChanged = false;
    const QStringList dnsKeys{QStringLiteral("DNS1"), QStringLiteral("DNS2"), QStringLiteral("DNS3")};
    for (int i = 0; i < dnsKeys.size(); ++i) {
        const std::optional<QString> server = group.string(dnsKeys.at(i));
        if (!server)
            continue;
        if (!server->isEmpty() && !NetworkParsers::isValidIPv4(*server)) {
            group.refuse(dnsKeys.at(i), QStringLiteral("not an address: ") + *server);
            continue;
        }
        dns[i] = *server;
        dnsChanged = true;
    }
    if (dnsChanged)
        network.setDNS(dns.at(0), dns.at(1), dns.at(2));
    if (const std::optional<QString> gateway = group.string(QStringLiteral("Gateway"))) {
        if (!NetworkParsers::isValidGateway(*gateway))
            group.refuse(QStringLiteral("Gateway"), QStringLiteral("not a gateway: ") + *gateway);
        else
            network.setGateway(*gateway);
    }
    if (const std::optional<QString> mask = group.string(QStringLiteral("Subnet"))) {
        if (!NetworkParsers::isValidMask(*mask))
            group.refuse(QStringLiteral("Subnet"), QStringLiteral("not a mask: ") + *mask);
        else
            network.setSubnetMask(*mask);
    }
    if (const std::optional<QString> ip = group.string(QStringLiteral("IpAddress"))) {
        if (!NetworkParsers::isValidIPv4(*ip))
            group.refuse(QStringLiteral("IpAddress"), QStringLiteral("not an address: ") + *ip);
        else
            network.setIP(*ip);
    }
    network.apply();
}

void SettingsPush::applyLayouts(const QJsonValue& value)
{
    if (!value.isArray()) {
        skip(QStringLiteral("Layouts"), QString(), QStringLiteral("not a list"));
        return;
    }
    QStringList codes;
    for (const QJsonValue& entry : value.toArray()) {
        if (!entry.isString()) {
            skip(QStringLiteral("Layouts"), QString(), QStringLiteral("not a list of strings"));
            return;
        }
        codes << entry.toString();
    }
    MouseSettingsBackend::setLayouts(codes);
}

void SettingsPush::applyUsb(Group& group)
{
    if (const std::optional<bool> enabled = group.boolean(QStringLiteral("Enabled")))
        USBManager::setUsbEnabled(*enabled);
}

void SettingsPush::applyUpdates(Group& group)
{
    if (const std::optional<bool> enabled = group.boolean(QStringLiteral("AutoAppUpdate"))) {
        if (m_targets.setAutoUpdateEnabled)
            m_targets.setAutoUpdateEnabled(*enabled);
        else
            group.refuse(QStringLiteral("AutoAppUpdate"), QStringLiteral("no updater"));
    }
}

void SettingsPush::applyPreferredLayout(const QJsonValue& value)
{
    if (!value.isString()) {
        skip(QStringLiteral("PreferredLayout"), QString(), QStringLiteral("not a string"));
        return;
    }
    MouseSettingsBackend::setPreferredLayoutRaw(value.toString());
    MouseSettingsBackend::initLayouts();
}

void SettingsPush::applyScreens(Group& group)
{
    ScreensBackend* screens = ScreensBackend::getInstance();
    if (const std::optional<int> sleep = group.integer(QStringLiteral("Sleep"))) {
        if (*sleep < 0 || *sleep >= ScreensBackend::sleepMinutes().size()) {
            group.refuse(QStringLiteral("Sleep"), QStringLiteral("no such sleep time"));
        } else {
            screens->setSleepTime(*sleep);
            screens->applySleepTime();
        }
    }
    if (const std::optional<int> turnOff = group.integer(QStringLiteral("TurnOff"))) {
        if (*turnOff < 0 || *turnOff >= ScreensBackend::turnOffSeconds().size()) {
            group.refuse(QStringLiteral("TurnOff"), QStringLiteral("no such turn-off time"));
        } else {
            screens->setScreenTurnOffTime(*turnOff);
            screens->applyTurnOffTime();
        }
    }
    if (const std::optional<int> mode = group.integer(QStringLiteral("Mode"))) {
        if (*mode != 0 && *mode != 1) {
            group.refuse(QStringLiteral("Mode"), QStringLiteral("neither extend (0) nor mirror (1)"));
        } else {
            screens->saveMode(*mode);
            screens->loadInitial();
        }
    }
}

void SettingsPush::applyBackground(const QJsonValue& value)
{
    if (!value.isString()) {
        skip(QStringLiteral("Background"), QString(), QStringLiteral("not a string"));
        return;
    }
    const QByteArray image = decodeImage(value.toString());
    if (image.isEmpty()) {
        skip(QStringLiteral("Background"), QString(), QStringLiteral("not a Base64 PNG or JPEG image"));
        return;
    }
    QDir().mkpath(SystemPaths::resolve(QLatin1String(kWallpaperDir)));
    if (!AtomicFile::write(SystemPaths::resolve(QLatin1String(kServerWallpaper)), image)) {
        skip(QStringLiteral("Background"), QString(), QStringLiteral("cannot write the image"));
        return;
    }
    WallpapersManager wallpapers;
    if (!wallpapers.setWallpaper(SystemPaths::resolve(QLatin1String(kServerWallpaper)))) {
        skip(QStringLiteral("Background"), QString(), wallpapers.lastError());
        return;
    }
    WallpapersManager::setWallpaperActive(true);
    ScreensBackend::getInstance()->loadInitial();
}

void SettingsPush::applyConfig(Group& group)
{
    if (const std::optional<QString> password = group.string(QStringLiteral("AdminPassword"))) {
        if (password->isEmpty())
            group.refuse(QStringLiteral("AdminPassword"), QStringLiteral("empty password"));
        else if (m_targets.setAdminPassword)
            m_targets.setAdminPassword(*password);
    }
    if (const std::optional<bool> debug = group.boolean(QStringLiteral("DebugLogs"))) {
        if (m_targets.setDebugEnabled)
            m_targets.setDebugEnabled(*debug);
        else
            group.refuse(QStringLiteral("DebugLogs"), QStringLiteral("no log manager"));
    }
}
