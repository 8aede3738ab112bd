#include "APICollectorThread.h"

#include "CommandRunner.h"
#include "MouseSettingsBackend.h"
#include "NetworkManager.h"
#include "NetworkParsers.h"
#include "PasswordManager.h"
#include "PrintersBackend.h"
#include "SoundSettingsBackend.h"
#include "SystemPaths.h"
#include "TimeBackend.h"
#include "TimeZoneTable.h"
#include "USBManager.h"
#include "WallpapersManager.h"

#include <QDate>
#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QMutexLocker>
#include <QSettings>
#include <QUrl>

namespace {

APICollectorThread::Sources& sources()
{
    static APICollectorThread::Sources instance;
    return instance;
}

QVariant iniValue(const QString& file, const QString& key, const QVariant& fallback)
{
    return QSettings(SystemPaths::dataFile(file), QSettings::IniFormat).value(key, fallback);
}

QByteArray sudoNmcli(const QStringList& arguments)
{
    return CommandRunner::instance().run(QStringLiteral("sudo"), QStringList(QStringLiteral("nmcli")) + arguments).standardOutput;
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return path.isEmpty() || !file.open(QIODevice::ReadOnly) ? QByteArray() : file.readAll();
}

// The label of the date and time screen for a zone id, the form the settings push takes back.
QString zoneLabel(const QString& zone)
{
    if (zone.isEmpty())
        return {};
    for (const QString& label : TimeZoneTable::labels()) {
        if (TimeZoneTable::zoneOf(label) == zone)
            return label;
    }
    return {};
}

QJsonObject dateTime()
{
    TimeBackend time;
    time.updateLocalTimezone();
    return {{QStringLiteral("Date"), QDate::currentDate().toString(Qt::ISODate)},
            {QStringLiteral("IsAmPm"), time.is24()},
            {QStringLiteral("Timezone"), zoneLabel(time.getCurrentTimeZone())},
            {QStringLiteral("NTP"), time.getNtp()}};
}

QJsonObject sound()
{
    // The class-wide readers: the singleton itself belongs to the screens' thread.
    return {{QStringLiteral("ActiveSink"), SoundSettingsBackend::getActiveSinkName()},
            {QStringLiteral("MicrophoneVolume"), SoundSettingsBackend::getMicrophoneVolume()},
            {QStringLiteral("SoundVolume"), SoundSettingsBackend::getSoundVolume()},
            // The sound page offers no mute: sound is always on.
            {QStringLiteral("Enabled"), true}};
}

QJsonObject keyboardMouse()
{
    MouseSettingsBackend mouse;
    const QString ini = QStringLiteral("keyboard.ini");
    return {{QStringLiteral("Speed"), iniValue(ini, QStringLiteral("Sensetivity"), 0.0).toDouble()},
            {QStringLiteral("DoubleClickSpeed"), mouse.getDoubleClickSpeed()},
            {QStringLiteral("PrimaryButton"), iniValue(ini, QStringLiteral("Primary"), 0).toInt()}};
}

// Wi-Fi and the wired interface from one listing of each nmcli view.
void network(QJsonObject& document)
{
    const QByteArray profilesOutput = sudoNmcli({QStringLiteral("con")});
    const bool wifiOn = NetworkParsers::radioOn(sudoNmcli({QStringLiteral("radio"), QStringLiteral("wifi")}));
    document.insert(QStringLiteral("WiFi"), QJsonObject{{QStringLiteral("WifiEnabled"), wifiOn},
                                                         {QStringLiteral("ActiveNetwork"), NetworkParsers::activeWifi(profilesOutput)}});

    QString iface;
    for (const QString& name : NetworkManager().listInterfaces()) {
        if (name.startsWith(QLatin1String("en")) || name.startsWith(QLatin1String("eth"))) {
            iface = name;
            break;
        }
    }
    QJsonObject wired{{QStringLiteral("Type"), QStringLiteral("DHCP")},
                      {QStringLiteral("DNS1"), QString()}, {QStringLiteral("DNS2"), QString()}, {QStringLiteral("DNS3"), QString()},
                      {QStringLiteral("Gateway"), QString()}, {QStringLiteral("Subnet"), QString()},
                      {QStringLiteral("IpAddress"), QString()}};
    if (!iface.isEmpty()) {
        const QString profile = NetworkParsers::profileForInterface(NetworkParsers::profiles(profilesOutput), iface);
        if (!profile.isEmpty()
            && NetworkParsers::connectionType(sudoNmcli({QStringLiteral("con"), QStringLiteral("show"), profile})) != 0)
            wired.insert(QStringLiteral("Type"), QStringLiteral("Manual"));
        const NetworkParsers::DeviceAddress address =
            NetworkParsers::deviceAddress(sudoNmcli({QStringLiteral("device"), QStringLiteral("show"), iface}));
        wired.insert(QStringLiteral("DNS1"), address.dns.value(0));
        wired.insert(QStringLiteral("DNS2"), address.dns.value(1));
        wired.insert(QStringLiteral("DNS3"), address.dns.value(2));
        wired.insert(QStringLiteral("Gateway"), address.gateway);
        wired.insert(QStringLiteral("Subnet"), address.subnet);
        wired.insert(QStringLiteral("IpAddress"), address.ip);
    }
    document.insert(QStringLiteral("Network"), wired);
}

// The 802.1X section of settings connection 1, certificates by their content.
QJsonObject ieee8021x()
{
    NetworkManager network;
    network.initDbus();
    QJsonObject group{{QStringLiteral("EAP"), network.getEAP()},
                      {QStringLiteral("Username"), network.getSetting(QStringLiteral("identity"))},
                      {QStringLiteral("Password"), network.getSecret(QStringLiteral("password"))},
                      {QStringLiteral("Domain"), network.getSetting(QStringLiteral("domain-suffix-match"))},
                      {QStringLiteral("KeyPassword"), network.getSecret(QStringLiteral("private-key-password"))},
                      {QStringLiteral("CAPassword"), network.getSecret(QStringLiteral("ca-cert-password"))},
                      {QStringLiteral("UserPassword"), network.getSecret(QStringLiteral("client-cert-password"))},
                      {QStringLiteral("AnonIdentity"), network.getSetting(QStringLiteral("anonymous-identity"))},
                      {QStringLiteral("Phase1Provisioning"), network.getSetting(QStringLiteral("phase1-fast-provisioning"))},
                      {QStringLiteral("Phase2Auth"), network.getSetting(QStringLiteral("phase2-auth"))},
                      {QStringLiteral("Phase1PeapVer"), network.getSetting(QStringLiteral("phase1-peapver"))}};
    const QList<QPair<QString, QString>> certs{{QStringLiteral("CACert"), QStringLiteral("ca-cert")},
                                               {QStringLiteral("ClientCert"), QStringLiteral("client-cert")},
                                               {QStringLiteral("PacFile"), QStringLiteral("pac-file")},
                                               {QStringLiteral("Key"), QStringLiteral("private-key")}};
    for (const auto& cert : certs) {
        const QString path = network.getCert(cert.second);
        group.insert(cert.first, QString::fromUtf8(readAll(path.isEmpty() ? QString() : SystemPaths::resolve(path))));
    }
    return group;
}

QJsonObject screens()
{
    QSettings display(SystemPaths::dataFile(QStringLiteral("display.ini")), QSettings::IniFormat);
    return {{QStringLiteral("Sleep"), display.value(QStringLiteral("SleepTime"), 0).toInt()},
            {QStringLiteral("TurnOff"), display.value(QStringLiteral("TurnOffTime"), 0).toInt()},
            {QStringLiteral("Mode"), display.value(QStringLiteral("Mode"), 0).toInt()}};
}

// The active wallpaper's bytes in standard Base64, the form the settings push takes; empty when
// the built-in background shows.
QString background()
{
    if (!WallpapersManager::isWallpaperActive())
        return {};
    return QString::fromLatin1(readAll(QUrl(WallpapersManager::getWallpaper()).toLocalFile()).toBase64());
}

} // namespace

void APICollectorThread::setSources(const Sources& newSources)
{
    sources() = newSources;
}

QJsonObject APICollectorThread::collect()
{
    const QString api = QStringLiteral("api.ini");
    QJsonObject document;
    document.insert(QStringLiteral("DateTime"), dateTime());
    document.insert(QStringLiteral("Printers"), QJsonObject{{QStringLiteral("ActivePrinter"), PrintersBackend::getDefaultPrinter()}});
    document.insert(QStringLiteral("Sound"), sound());
    document.insert(QStringLiteral("System"),
                    QJsonObject{{QStringLiteral("Language"),
                                 iniValue(QStringLiteral("language.ini"), QStringLiteral("Language"), QStringLiteral("en")).toString()}});
    document.insert(QStringLiteral("KeyboardMouse"), keyboardMouse());
    network(document);
    document.insert(QStringLiteral("8021x"), ieee8021x());
    document.insert(QStringLiteral("Layouts"), QJsonArray::fromStringList(MouseSettingsBackend::listLayoutsEnabled()));
    document.insert(QStringLiteral("AdditionalSettingsEnabled"), iniValue(api, QStringLiteral("AdvancedEnabled"), false).toBool());
    document.insert(QStringLiteral("USB"), QJsonObject{{QStringLiteral("Enabled"), USBManager::isUsbEnabled()}});
    document.insert(QStringLiteral("Updates"),
                    QJsonObject{{QStringLiteral("AutoAppUpdate"), sources().autoUpdateEnabled && sources().autoUpdateEnabled()}});
    document.insert(QStringLiteral("PreferredLayout"), MouseSettingsBackend::getPreferredLayoutRaw());
    document.insert(QStringLiteral("Screens"), screens());
    document.insert(QStringLiteral("Background"), background());
    document.insert(QStringLiteral("Config"),
                    QJsonObject{{QStringLiteral("AdminPassword"), PasswordManager().getPassword()},
                                {QStringLiteral("DebugLogs"), iniValue(api, QStringLiteral("DebugLogs"), false).toBool()}});
    return document;
}

QJsonObject APICollectorThread::getData() const
{
    {
        QMutexLocker locker(&m_mutex);
        if (!m_data.isEmpty())
            return m_data;
    }
    // Asked before the first collection has finished: the document as it is now.
    return collect();
}

void APICollectorThread::start()
{
    // The first document comes from the run() that start-up asks for right after: collecting here
    // too would run every command twice while the shell starts.
    qInfo() << "Settings collector started";
}

void APICollectorThread::run(bool shouldEmit)
{
    const QJsonObject document = collect();
    {
        QMutexLocker locker(&m_mutex);
        m_data = document;
    }
    if (!shouldEmit || document == m_lastReported)
        return;
    m_lastReported = document;
    emit dataReady(document);
}
