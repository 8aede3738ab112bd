#include "SimulatedDevices.h"

#include "SystemPaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QMutex>
#include <QMutexLocker>
#include <QRegularExpression>

namespace {

struct Pointer {
    QString id;
    QString fixture; // property list as recorded
    double speed = 0;
    bool leftHanded = false;
    bool accel = true;
};

struct Sink {
    QString name;
    QString description;
};

struct Model {
    QList<Pointer> pointers;
    QStringList layouts{QStringLiteral("us"), QStringLiteral("de")}; // as the recorded setxkbmap -query
    int doubleClickMs = 500;
    QList<Sink> sinks;
    int activeSink = 0;
    int master = 75;
    int capture = 60;
    QMap<QString, QString> printers; // name -> device URI
    QString defaultPrinter;
    QString wallpaper;
};

QMutex g_mutex;

Model factory()
{
    Model model;
    model.pointers = {{QStringLiteral("4"), QStringLiteral("xinput-list-props-xtest.txt"), 0, false, false},
                      {QStringLiteral("9"), QStringLiteral("xinput-list-props-mouse.txt"), 0, false, true},
                      {QStringLiteral("11"), QStringLiteral("xinput-list-props-touchpad.txt"), -0.4, false, true}};
    model.sinks = {{QStringLiteral("alsa_output.pci-0000_00_1f.3.analog-stereo"), QStringLiteral("Built-in Audio Analog Stereo")},
                   {QStringLiteral("alsa_output.usb-Logitech_USB_Headset-00.analog-stereo"),
                    QStringLiteral("Logitech USB Headset Analog Stereo")}};
    model.printers.insert(QStringLiteral("Office"), QStringLiteral("ipp://printer.office.local/ipp/print"));
    model.defaultPrinter = QStringLiteral("Office");
    return model;
}

Model& model()
{
    static Model instance = factory();
    return instance;
}

Pointer* pointer(const QString& id)
{
    for (Pointer& p : model().pointers) {
        if (p.id == id)
            return &p;
    }
    return nullptr;
}

SimulatedTerminal::Answer noDevice(const QString& id)
{
    return SimulatedTerminal::finished(1, {}, "unable to find device " + id.toUtf8() + '\n');
}

std::optional<SimulatedTerminal::Answer> xinput(const QStringList& a)
{
    if (a == QStringList{QStringLiteral("--list"), QStringLiteral("--short")})
        return SimulatedTerminal::finished(0, SimulatedTerminal::fixture(QStringLiteral("xinput-list-short.txt")));
    if (a.size() == 2 && a.at(0) == QLatin1String("--list-props")) {
        Pointer* p = pointer(a.at(1));
        if (!p) {
            // The masters and the keyboards: listed, but nothing to accelerate.
            const bool listed = SimulatedTerminal::fixture(QStringLiteral("xinput-list-short.txt")).contains("\tid=" + a.at(1).toUtf8() + '\t');
            return listed ? SimulatedTerminal::finished(0, "Device '" + a.at(1).toUtf8() + "':\n\tDevice Enabled (183):\t1\n") : noDevice(a.at(1));
        }
        QString props = QString::fromUtf8(SimulatedTerminal::fixture(p->fixture));
        static const QRegularExpression speed(QStringLiteral("(libinput Accel Speed \\(\\d+\\):\\t)\\S+"));
        props.replace(speed, QStringLiteral("\\1") + QString::number(p->speed, 'f', 6));
        return SimulatedTerminal::finished(0, props.toUtf8());
    }
    if (a.size() == 4 && a.at(0) == QLatin1String("--set-prop") && a.at(2) == QLatin1String("libinput Accel Speed")) {
        Pointer* p = pointer(a.at(1));
        if (!p)
            return noDevice(a.at(1));
        if (!p->accel)
            return SimulatedTerminal::finished(1, {}, "property 'libinput Accel Speed' doesn't exist, you need to specify its type and format\n");
        p->speed = a.at(3).toDouble();
        return SimulatedTerminal::finished();
    }
    if (a.size() == 2 && a.at(0) == QLatin1String("get-button-map")) {
        Pointer* p = pointer(a.at(1));
        if (!p)
            return noDevice(a.at(1));
        return SimulatedTerminal::finished(0, p->leftHanded ? "3 2 1 4 5 6 7 8 9 10 11 12 \n" : "1 2 3 4 5 6 7 8 9 10 11 12 \n");
    }
    if (a.size() >= 2 && a.at(0) == QLatin1String("set-button-map")) {
        Pointer* p = pointer(a.at(1));
        if (!p)
            return noDevice(a.at(1));
        p->leftHanded = a.value(2) == QLatin1String("3");
        return SimulatedTerminal::finished();
    }
    return std::nullopt;
}

std::optional<SimulatedTerminal::Answer> bashScript(const QString& script)
{
    static const QRegularExpression setLayouts(QStringLiteral("^setxkbmap -layout (\\S+) -option grp:alt_shift_toggle$"));
    static const QRegularExpression sedClick(QStringLiteral("<doubleClickTime>(\\d+)</doubleClickTime>\\|g'"));
    static const QRegularExpression setVolume(QStringLiteral("^amixer -D pulse sset (Master|Capture) (\\d+)%$"));
    Model& m = model();
    QRegularExpressionMatch match = setLayouts.match(script);
    if (match.hasMatch()) {
        m.layouts = match.captured(1).split(QLatin1Char(','));
        return SimulatedTerminal::finished();
    }
    if (script.startsWith(QLatin1String("grep -oP '(?<=<doubleClickTime>)")))
        return SimulatedTerminal::finished(0, QByteArray::number(m.doubleClickMs) + '\n');
    match = sedClick.match(script);
    if (script.startsWith(QLatin1String("sudo sed -i")) && match.hasMatch()) {
        m.doubleClickMs = match.captured(1).toInt();
        return SimulatedTerminal::finished();
    }
    match = setVolume.match(script);
    if (match.hasMatch()) {
        (match.captured(1) == QLatin1String("Master") ? m.master : m.capture) = qBound(0, match.captured(2).toInt(), 100);
        return SimulatedTerminal::finished();
    }
    if (script.startsWith(QLatin1String("amixer -D pulse sget Master")))
        return SimulatedTerminal::finished(0, QByteArray::number(m.master) + "%\n");
    if (script.startsWith(QLatin1String("amixer -D pulse sget Capture")))
        return SimulatedTerminal::finished(0, QByteArray::number(m.capture) + "%\n");
    if (script == QLatin1String("pacmd list-sinks")) {
        QString text = QStringLiteral("%1 sink(s) available.\n").arg(m.sinks.size());
        for (int i = 0; i < m.sinks.size(); ++i) {
            text += (i == m.activeSink ? QStringLiteral("  * index: %1\n") : QStringLiteral("    index: %1\n")).arg(i);
            text += QStringLiteral("\tname: <%1>\n\tstate: IDLE\n\tproperties:\n\t\tdevice.class = \"sound\"\n"
                                   "\t\tdevice.description = \"%2\"\n")
                        .arg(m.sinks.at(i).name, m.sinks.at(i).description);
        }
        return SimulatedTerminal::finished(0, text.toUtf8());
    }
    if (script.startsWith(QLatin1String("pactl list sinks short"))) {
        QByteArray out;
        for (const Sink& sink : m.sinks)
            out += sink.name.toUtf8() + '\n';
        return SimulatedTerminal::finished(0, out);
    }
    if (script == QLatin1String("lpstat -d")) {
        return SimulatedTerminal::finished(0, m.defaultPrinter.isEmpty() ? QByteArray("no system default destination\n")
                                                    : "system default destination: " + m.defaultPrinter.toUtf8() + '\n');
    }
    if (script.startsWith(QLatin1String("lpstat -l -e"))) {
        QByteArray out;
        for (const QString& name : m.printers.keys())
            out += name.toUtf8() + '\n';
        return SimulatedTerminal::finished(0, out);
    }
    if (script.trimmed().startsWith(QLatin1String("arecord ")))
        return SimulatedTerminal::finished(0, {}, "Recording WAVE 'test-mic.wav' : Signed 16 bit Little Endian, Rate 8000 Hz, Mono\n");
    return std::nullopt;
}

std::optional<SimulatedTerminal::Answer> lpadmin(const QStringList& a)
{
    Model& m = model();
    if (a.size() == 2 && a.at(0) == QLatin1String("-d")) {
        if (!m.printers.contains(a.at(1)))
            return SimulatedTerminal::finished(1, {}, "lpadmin: The printer or class does not exist.\n");
        m.defaultPrinter = a.at(1);
        return SimulatedTerminal::finished();
    }
    if (a.size() == 2 && a.at(0) == QLatin1String("-x")) {
        if (!m.printers.remove(a.at(1)))
            return SimulatedTerminal::finished(1, {}, "lpadmin: The printer or class does not exist.\n");
        if (m.defaultPrinter == a.at(1))
            m.defaultPrinter.clear();
        return SimulatedTerminal::finished();
    }
    const int p = a.indexOf(QStringLiteral("-p"));
    const int v = a.indexOf(QStringLiteral("-v"));
    if (p >= 0 && v >= 0 && p + 1 < a.size() && v + 1 < a.size()) {
        // The scheduler knows the drivers lpinfo lists; CUPS adds a queue for any address.
        const QString driver = a.value(a.indexOf(QStringLiteral("-m")) + 1);
        bool known = false;
        for (const QByteArray& line : SimulatedTerminal::fixture(QStringLiteral("lpinfo-m.txt")).split('\n'))
            known |= !driver.isEmpty() && line.startsWith(driver.toUtf8() + ' ');
        if (!known)
            return SimulatedTerminal::finished(1, {}, "lpadmin: cups-driverd failed to get PPD file - see error_log for details.\n");
        m.printers.insert(a.at(p + 1), a.at(v + 1));
        return SimulatedTerminal::finished();
    }
    return std::nullopt;
}

std::optional<SimulatedTerminal::Answer> usbScript(const QString& script)
{
    const QString rule = SystemPaths::resolve(QStringLiteral("/lib/udev/rules.d/99-media-automount.rules"));
    if (script == QLatin1String("/opt/norbix/tools/usb/usb_enable.sh")) {
        QDir().mkpath(QFileInfo(rule).absolutePath());
        QFile file(rule);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.write("KERNEL==\"sd[a-z][0-9]\", SUBSYSTEMS==\"usb\", ACTION==\"add\", RUN+=\"/opt/norbix/tools/usb/mount.sh %k\"\n");
        return SimulatedTerminal::finished();
    }
    if (script == QLatin1String("/opt/norbix/tools/usb/usb_disable.sh")) {
        QFile::remove(rule);
        return SimulatedTerminal::finished();
    }
    return std::nullopt;
}

} // namespace

void SimulatedDevices::seedSandbox()
{
    const QString pictures = SystemPaths::resolve(QStringLiteral("/media/NORBIX-USB/pictures"));
    QDir().mkpath(pictures);
    for (const QString& name : {QStringLiteral("wallpaper-sunset.png"), QStringLiteral("wallpaper-forest.png")}) {
        const QString target = pictures + QLatin1Char('/') + name.mid(10);
        if (!QFile::exists(target))
            QFile::copy(QStringLiteral(":/simulation/") + name, target);
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    }
    const QString rules = SystemPaths::resolve(QStringLiteral("/lib/udev/rules.d"));
    if (!QFileInfo::exists(rules))
        usbScript(QStringLiteral("/opt/norbix/tools/usb/usb_enable.sh"));
}

void SimulatedDevices::reset()
{
    QMutexLocker locker(&g_mutex);
    model() = factory();
}

std::optional<SimulatedTerminal::Answer> SimulatedDevices::answer(const QString& program, const QStringList& arguments)
{
    QMutexLocker locker(&g_mutex);
    if (program == QLatin1String("xinput"))
        return xinput(arguments);
    if (program == QLatin1String("bash") && arguments.size() == 2 && arguments.at(0) == QLatin1String("-c"))
        return bashScript(arguments.at(1));
    if (program == QLatin1String("setxkbmap") && arguments == QStringList{QStringLiteral("-query")}) {
        const QString commas(model().layouts.size() - 1, QLatin1Char(','));
        return SimulatedTerminal::finished(0, QStringLiteral("rules:      evdev\nmodel:      pc105\nlayout:     %1\nvariant:    %2\noptions:    grp:alt_shift_toggle\n")
                             .arg(model().layouts.join(QLatin1Char(',')), commas)
                             .toUtf8());
    }
    if (program == QLatin1String("/opt/norbix/xkblayout-state") && arguments.value(0) == QLatin1String("print"))
        return SimulatedTerminal::finished(0, QString(arguments.value(1)).replace(QStringLiteral("%s"), model().layouts.value(0)).toUtf8());
    if (program == QLatin1String("pactl") && arguments.size() == 2 && arguments.at(0) == QLatin1String("set-default-sink")) {
        for (int i = 0; i < model().sinks.size(); ++i) {
            if (model().sinks.at(i).name == arguments.at(1)) {
                model().activeSink = i;
                return SimulatedTerminal::finished();
            }
        }
        return SimulatedTerminal::finished(1, {}, "Failure: No such entity\n");
    }
    if (program == QLatin1String("lsusb"))
        return SimulatedTerminal::finished(0, SimulatedTerminal::fixture(QStringLiteral("lsusb.txt")));
    if (program == QLatin1String("feh") && arguments.size() == 2 && arguments.at(0) == QLatin1String("--bg-fill")) {
        model().wallpaper = arguments.at(1);
        return SimulatedTerminal::finished();
    }
    if (program == QLatin1String("sudo") && !arguments.isEmpty()) {
        const QStringList rest = arguments.mid(1);
        if (arguments.at(0) == QLatin1String("lpadmin"))
            return lpadmin(rest);
        if (arguments == QStringList{QStringLiteral("lpinfo"), QStringLiteral("-v")})
            return SimulatedTerminal::finished(0, SimulatedTerminal::fixture(QStringLiteral("lpinfo-v.txt")));
        if (arguments == QStringList{QStringLiteral("lpinfo"), QStringLiteral("-m")})
            return SimulatedTerminal::finished(0, SimulatedTerminal::fixture(QStringLiteral("lpinfo-m.txt")));
        if (arguments.size() == 1)
            return usbScript(arguments.at(0));
    }
    return std::nullopt;
}
