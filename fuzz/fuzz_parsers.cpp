// libFuzzer targets over every reader of tool output and of the shell's own files. One source, one
// entry per reader: a libFuzzer build makes one program per entry (NORBIX_FUZZ_ENTRY defined); a
// replay build makes one program that takes the entry from the environment variable of that name.
// Each entry checks what must hold for any input, beyond not crashing.
#include "CertificatesStorage.h"
#include "ConnectionStore.h"
#include "HardwareUtils.h"
#include "InputParsers.h"
#include "JsonText.h"
#include "LanguageBackend.h"
#include "LocalUpdaterBackend.h"
#include "MouseSettingsBackend.h"
#include "NetworkParsers.h"
#include "PrinterParsers.h"
#include "ScreensBackend.h"
#include "SoundParsers.h"
#include "SystemPaths.h"
#include "TimeZoneTable.h"
#include "UsbParsers.h"
#include "XrandrCommand.h"
#include "XrandrParser.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

#define REQUIRE(condition)                                                                                      \
    do {                                                                                                        \
        if (!(condition)) {                                                                                     \
            std::fprintf(stderr, "fuzz: %s:%d: %s\n", __FILE__, __LINE__, #condition);                          \
            std::abort();                                                                                       \
        }                                                                                                       \
    } while (false)

QString g_root;

void writeDataFile(const char* name, const QByteArray& content)
{
    QFile file(SystemPaths::dataFile(QLatin1String(name)));
    REQUIRE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
}

void nmcli(const QByteArray& text)
{
    using namespace NetworkParsers;
    interfaces(text);
    deviceAddress(text);
    radioOn(text);
    const QList<Profile> list = profiles(text);
    for (const Profile& profile : list)
        profileForInterface(list, profile.device);
    noProfiles(text);
    devicesNeedingProfiles(text);
    const int type = connectionType(text);
    REQUIRE(type == 0 || type == 1);
    for (const AvailableNetwork& network : wifiNetworks(text))
        REQUIRE(network.ssid == network.ssid.simplified());
    wifiProfiles(text);
    activeWifi(text);
    // An address read back is one the form would accept.
    const QString address = ethernetIp(text);
    REQUIRE(!address.contains(QLatin1Char('/')));
    for (const QByteArray& line : text.split('\n')) {
        const QString word = QString::fromUtf8(line).trimmed();
        if (isValidMask(word))
            REQUIRE(prefixToMask(maskToPrefix(word)) == word);
        isValidIPv4(word);
        isValidGateway(word);
        isValidHostName(word);
    }
}

void networksJson(const QByteArray& text)
{
    using namespace NetworkParsers;
    const QJsonArray networks = JsonText::parse(text).array();
    const QString ssid = networks.isEmpty() ? QStringLiteral("x")
                                            : networks.first().toObject().value(QLatin1String("ssid")).toString();
    const QJsonArray chosen = withAutoConnect(networks, ssid, true);
    int autoConnected = 0;
    for (const QJsonValue& entry : chosen)
        autoConnected += entry.toObject().value(QLatin1String("autoConnect")).toBool() ? 1 : 0;
    REQUIRE(autoConnected == 1); // at most one network connects by itself, and it is this one
    REQUIRE(flagsOf(chosen, ssid).autoConnect);
    REQUIRE(!flagsOf(without(withShow(networks, ssid, true), ssid), ssid).show);
}

void xrandr(const QByteArray& text)
{
    const QList<XrandrOutput> outputs = XrandrParser::parse(text);
    QList<XrandrOutputSetting> order;
    for (const XrandrOutput& output : outputs) {
        REQUIRE(output.orientation >= 0 && output.orientation <= 3);
        const QStringList sorted = XrandrParser::sortedByPixels(output.resolutions);
        REQUIRE(sorted.size() == output.resolutions.size());
        for (const QString& resolution : output.resolutions)
            XrandrParser::resolutionSize(resolution);
        order << XrandrOutputSetting{output.name, output.currentResolution, output.currentRate, output.orientation,
                                     output.primary};
    }
    const QString command = XrandrCommand::build(order, false);
    REQUIRE(command.isEmpty() == (order.isEmpty() || order.size() > XrandrCommand::kMaxOutputs));
    XrandrCommand::build(order, true);
}

void timedatectl(const QByteArray& text)
{
    const QString zone = TimeZoneTable::parseTimedatectlZone(text);
    REQUIRE(!zone.contains(QLatin1Char(' ')));
    TimeZoneTable::zoneOf(QString::fromUtf8(text));
}

void xinput(const QByteArray& text)
{
    using namespace InputParsers;
    for (const XinputDevice& device : parseDeviceList(text))
        REQUIRE(!device.id.isEmpty()); // lines without an id are not devices
    // Any finite number xinput prints is taken (libinput's own range is for it to keep).
    if (const std::optional<double> speed = parseAccelSpeed(text))
        REQUIRE(std::isfinite(*speed));
    parsePrimaryButton(text);
    parseDoubleClickTime(text);
    const QStringList layouts = splitLayouts(QString::fromUtf8(text));
    for (const QString& layout : layouts)
        isLayoutCode(layout);
    if (!layouts.isEmpty()) {
        const QStringList ordered = orderLayouts(layouts, layouts.last());
        REQUIRE(ordered.first() == layouts.last());
        removeLayout(layouts, 0, layouts.first(), layouts.last());
    }
    if (const std::optional<double> sensitivity = parseSensitivity(QString::fromUtf8(text)))
        REQUIRE(*sensitivity >= -1.0 && *sensitivity <= 1.0);
}

void evdev(const QByteArray& text)
{
    const LanguageBackend::LayoutCatalogue catalogue = LanguageBackend::parseLayoutCatalogue(text);
    REQUIRE(catalogue.internalNames.size() == catalogue.displayNames.size());
}

void sound(const QByteArray& text)
{
    SoundParsers::parseSinks(text);
    const int volume = SoundParsers::parseVolume(text);
    REQUIRE(volume >= 0);
    SoundParsers::parseLines(text);
}

void printers(const QByteArray& text)
{
    using namespace PrinterParsers;
    parseDirectDevices(text);
    parseDrivers(text);
    parseDefaultPrinter(text);
    const QString name = QString::fromUtf8(text.left(64));
    // A name the form lets through never carries what CUPS or a command line would choke on.
    if (nameProblem(name).isEmpty())
        REQUIRE(!name.contains(QLatin1Char(' ')) && !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('#')));
    if (hostProblem(name).isEmpty())
        REQUIRE(!networkPrinterUri(name).isEmpty());
}

void lsusb(const QByteArray& text) { UsbParsers::parseLsusb(text); }

void openssl(const QByteArray& text) { CertificatesStorage::parseListing(QString::fromUtf8(text), QStringLiteral("x.crt")); }

void lshw(const QByteArray& text)
{
    const HardwareInventory inventory = HardwareUtils::parseInventory(text);
    REQUIRE(HardwareUtils::deviceIdentity(inventory).size() == 36);
}

void updater(const QByteArray& text)
{
    if (const auto status = LocalUpdaterBackend::parseStatus(text))
        REQUIRE(status->progress >= 0 && status->progress <= 100);
    LocalUpdaterBackend::parseAvailable(text);
    LocalUpdaterBackend::parseCommandAnswer(text);
}

// The catalogue file as the shell reads it at every listing.
void catalogue(const QByteArray& text)
{
    writeDataFile("connections.json", text);
    bool unreadable = false;
    const QJsonArray records = ConnectionStore::readArray(&unreadable);
    REQUIRE(!unreadable || records.isEmpty());
    for (const QJsonValue& record : records)
        ConnectionStore::forListing(record.toObject());
}

// display.ini replayed at power-on, in the simulated terminal.
void displayIni(const QByteArray& text)
{
    writeDataFile("display.ini", text);
    ScreensBackend::getInstance()->loadInitial();
}

// keyboard.ini replayed at power-on, in the simulated terminal.
void keyboardIni(const QByteArray& text)
{
    writeDataFile("keyboard.ini", text);
    MouseSettingsBackend backend;
    backend.getMouseNames();
    backend.applyStartSettings();
    MouseSettingsBackend::listLayoutsEnabled();
}

struct Entry {
    const char* name;
    std::function<void(const QByteArray&)> run;
};

const Entry kEntries[] = {
    {"nmcli", nmcli},       {"networks_json", networksJson}, {"xrandr", xrandr},     {"timedatectl", timedatectl},
    {"xinput", xinput},     {"evdev", evdev},                {"sound", sound},       {"printers", printers},
    {"lsusb", lsusb},       {"openssl", openssl},            {"lshw", lshw},         {"updater", updater},
    {"catalogue", catalogue}, {"display_ini", displayIni},   {"keyboard_ini", keyboardIni},
};

const Entry& entry()
{
#ifdef NORBIX_FUZZ_ENTRY
    const QByteArray name(NORBIX_FUZZ_ENTRY);
#else
    const QByteArray name = qgetenv("NORBIX_FUZZ_ENTRY");
#endif
    for (const Entry& candidate : kEntries)
        if (name == candidate.name)
            return candidate;
    std::fprintf(stderr, "fuzz_parsers: unknown entry \"%s\"; entries:", name.constData());
    for (const Entry& candidate : kEntries)
        std::fprintf(stderr, " %s", candidate.name);
    std::fprintf(stderr, "\n");
    std::exit(2);
}

const Entry& setUp()
{
    static int argc = 1;
    static char name[] = "fuzz_parsers";
    static char* argv[] = {name, nullptr};
    static QCoreApplication app(argc, argv);
    static QTemporaryDir root;
    g_root = root.path();
    // Commands are answered by the simulated terminal; files stay in the temporary root.
    qputenv("NORBIX_SIMULATE", "1");
    qputenv("NORBIX_ROOT", root.path().toUtf8());
    qputenv("HOME", root.path().toUtf8());
    QDir().mkpath(root.path() + QStringLiteral("/data/norbix"));
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return entry();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const Entry& chosen = setUp();
    chosen.run(QByteArray(reinterpret_cast<const char*>(data), int(size)));
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
