// The settings push on the simulated terminal: which commands, bus calls and files each group
// causes, the fixed order of the groups, and what a document the backends cannot take does.
#include "APICollectorThread.h"
#include "LanguageBackend.h"
#include "NetworkManager.h"
#include "PrintersBackend.h"
#include "PushTerminal.h"
#include "ScreensBackend.h"
#include "SettingsPush.h"
#include "WallpapersManager.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

namespace {

QByteArray image()
{
    return TestSandbox::readFile(NORBIX_TEST_DATA "/simulation/wallpaper-forest.png");
}

// Every message logged while it lives.
struct LogCapture {
    static QStringList& lines()
    {
        static QStringList list;
        return list;
    }
    QtMessageHandler previous;
    LogCapture()
    {
        lines().clear();
        previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { lines() << text; });
    }
    ~LogCapture() { qInstallMessageHandler(previous); }
    bool contains(const QString& text) const
    {
        for (const QString& line : lines())
            if (line.contains(text))
                return true;
        return false;
    }
};

const QString kTimezone = QStringLiteral("(UTC+01:00) Europe/Brussels, Copenhagen, Madrid, Paris");

} // namespace

class tst_Push : public QObject {
    Q_OBJECT

    std::unique_ptr<PushTerminal> m_terminal;
    QStringList m_targetCalls;

    SettingsPush::Targets targets()
    {
        SettingsPush::Targets targets;
        targets.setAdminPassword = [this](const QString& password) { m_targetCalls << "password " + password; };
        targets.setDebugEnabled = [this](bool on) { m_targetCalls << QString("debug %1").arg(on); };
        targets.setAutoUpdateEnabled = [this](bool on) { m_targetCalls << QString("autoUpdate %1").arg(on); };
        targets.setAdvancedEnabled = [this](bool on) { m_targetCalls << QString("advanced %1").arg(on); };
        return targets;
    }

    QStringList push(const QJsonObject& document) { return SettingsPush(targets()).apply(document); }
    static QJsonObject parse(const QByteArray& json) { return QJsonDocument::fromJson(json).object(); }

    // The top-level members whose reported value differs between two collections.
    static QStringList changed(const QJsonObject& before, const QJsonObject& after)
    {
        QStringList names;
        for (const QString& key : after.keys())
            if (after.value(key) != before.value(key))
                names << key;
        return names;
    }

private slots:
    void initTestCase() { LanguageBackend::setTranslationDirectories({QStringLiteral(NORBIX_BUILD_DIR)}); }

    void init()
    {
        m_terminal = std::make_unique<PushTerminal>();
        m_targetCalls.clear();
        // A second printer, so that choosing the default printer changes something.
        QVERIFY(PrintersBackend().addPrinter("Lab_Laser", "lab-printer.local"));
    }
    void cleanup() { m_terminal.reset(); }

    // Each group alone: exactly its commands and bus calls, and only its own settings read back changed.
    void eachGroupAlone_data()
    {
        QTest::addColumn<QJsonObject>("document");
        QTest::addColumn<QStringList>("commands");
        QTest::addColumn<QStringList>("bus");
        QTest::addColumn<QStringList>("changes");

        QTest::newRow("DateTime with NTP")
            << QJsonObject{{"DateTime", QJsonObject{{"Date", "1999-12-31"}, {"IsAmPm", false}, {"Timezone", kTimezone}, {"NTP", "pool.ntp.org"}}}}
            << QStringList{"sudo timedatectl set-ntp 0", "sudo timedatectl set-timezone Europe/Brussels"} << QStringList()
            << QStringList{"DateTime"};
        QTest::newRow("Printers")
            << QJsonObject{{"Printers", QJsonObject{{"ActivePrinter", "Lab_Laser"}}}}
            << QStringList{"sudo lpadmin -d Lab_Laser"} << QStringList() << QStringList{"Printers"};
        QTest::newRow("Sound")
            << QJsonObject{{"Sound", QJsonObject{{"ActiveSink", "Built-in Audio Analog Stereo"}, {"MicrophoneVolume", 30},
                                                 {"SoundVolume", 40}, {"Enabled", true}}}}
            << QStringList{"bash -c pacmd list-sinks", "bash -c pactl list sinks short | awk '{print $2 }'",
                           "pactl set-default-sink alsa_output.pci-0000_00_1f.3.analog-stereo",
                           "bash -c amixer -D pulse sset Capture 30%", "bash -c amixer -D pulse sset Master 40%"}
            << QStringList() << QStringList{"Sound"};
        QTest::newRow("System")
            << QJsonObject{{"System", QJsonObject{{"Language", "de"}}}} << QStringList() << QStringList() << QStringList{"System"};
        QTest::newRow("KeyboardMouse")
            << QJsonObject{{"KeyboardMouse", QJsonObject{{"DoubleClickSpeed", 400}}}}
            << QStringList{"bash -c sudo sed -i -e 's|<doubleClickTime>[0-9]\\{1,\\}</doubleClickTime>|<doubleClickTime>400</doubleClickTime>|g' /etc/X11/openbox/rc.xml",
                           "openbox --reconfigure"}
            << QStringList() << QStringList{"KeyboardMouse"};
        QTest::newRow("WiFi")
            << QJsonObject{{"WiFi", QJsonObject{{"WifiEnabled", false}}}} << QStringList{"sudo nmcli radio wifi off"}
            << QStringList() << QStringList{"WiFi"};
        QTest::newRow("8021x")
            << QJsonObject{{"8021x", QJsonObject{{"EAP", "peap"}, {"Username", "alice"}, {"Phase2Auth", "mschapv2"}}}}
            << QStringList() << QStringList{"GetSettings", "GetSettings", "Update", "Save"} << QStringList{"8021x"};
        QTest::newRow("Network")
            << QJsonObject{{"Network", QJsonObject{{"Type", "Manual"}, {"IpAddress", "10.1.2.3"}, {"Subnet", "255.255.255.0"},
                                                   {"Gateway", "10.1.2.1"}, {"DNS1", "1.1.1.1"}, {"DNS2", "8.8.8.8"}, {"DNS3", ""}}}}
            << QStringList{"bash -c nmcli device status | awk '{print $1}'", "nmcli device show enp1s0", "sudo nmcli radio wifi",
                           "sudo nmcli con", "sudo nmcli con", "sudo nmcli con show Wired connection 1",
                           "sudo nmcli con mod Wired connection 1 ipv4.addresses 10.1.2.3/24",
                           "sudo nmcli con mod Wired connection 1 ipv4.gateway 10.1.2.1",
                           "sudo nmcli con mod Wired connection 1 ipv4.dns 1.1.1.1 8.8.8.8",
                           "sudo nmcli con mod Wired connection 1 ipv4.method manual", "sudo nmcli con up Wired connection 1"}
            << QStringList() << QStringList{"Network"};
        QTest::newRow("Layouts")
            << QJsonObject{{"Layouts", QJsonArray{"us", "de"}}} << QStringList() << QStringList() << QStringList{"Layouts"};
        QTest::newRow("USB")
            << QJsonObject{{"USB", QJsonObject{{"Enabled", false}}}} << QStringList{"sudo /opt/norbix/tools/usb/usb_disable.sh"}
            << QStringList() << QStringList{"USB"};
        QTest::newRow("PreferredLayout")
            << QJsonObject{{"PreferredLayout", "de"}} << QStringList{"/opt/norbix/xkblayout-state print %s"} << QStringList()
            << QStringList{"PreferredLayout"};
        QTest::newRow("Screens")
            << QJsonObject{{"Screens", QJsonObject{{"Sleep", 2}, {"TurnOff", 3}, {"Mode", 1}}}}
            << QStringList{"killall xautolock", "& xautolock -time 30 -locker /opt/norbix/tools/suspend.sh",
                           "gsettings set org.gnome.desktop.screensaver lock-enabled false", "xset dpms 1800 1800 0 s off",
                           "xrandr --output DP-1 --mode 1920x1080 --rotate normal --rate 60.00 --output HDMI-1 --same-as DP-1 "
                           "--mode 1920x1080 --rotate normal --rate 60.00 --primary",
                           "xrandr"}
            << QStringList() << QStringList{"Screens"};
        QTest::newRow("Background")
            << QJsonObject{{"Background", QString::fromLatin1(image().toBase64())}}
            << QStringList{"feh --bg-fill /data/norbix/wallpaper/serverWallpaper.jpg", "feh --bg-fill /data/norbix/wallpaper/serverWallpaper.jpg",
                           "xrandr --output DP-1 --mode 1920x1080 --rotate normal --rate 60.00 --output HDMI-1 --left-of DP-1 "
                           "--mode 1920x1080 --rotate normal --rate 60.00 --primary",
                           "xrandr"}
            << QStringList() << QStringList{"Background"};
        QTest::newRow("Config")
            << QJsonObject{{"Config", QJsonObject{{"AdminPassword", "s3cret"}, {"DebugLogs", true}}}} << QStringList() << QStringList()
            << QStringList();
    }
    void eachGroupAlone()
    {
        QFETCH(QJsonObject, document);
        QFETCH(QStringList, commands);
        QFETCH(QStringList, bus);
        QFETCH(QStringList, changes);
        ScreensBackend::getInstance()->updateInfo(); // the display singleton outlives sandboxes
        const QJsonObject before = APICollectorThread::collect();
        m_terminal->clear();
        QCOMPARE(push(document), QStringList());
        QCOMPARE(m_terminal->commands(), commands);
        QCOMPARE(m_terminal->busMethods(), bus);
        m_terminal->clear();
        QCOMPARE(changed(before, APICollectorThread::collect()), changes);
        // The administrator password and debug logging go to their owners, nothing else does.
        QCOMPARE(m_targetCalls, document.contains("Config") ? (QStringList{"password s3cret", "debug 1"}) : QStringList());
    }

    // What each group leaves behind, read back through the report.
    void pushedValuesReadBack()
    {
        const QJsonObject document{
            {"Printers", QJsonObject{{"ActivePrinter", "Lab_Laser"}}},
            {"Sound", QJsonObject{{"MicrophoneVolume", 30}, {"SoundVolume", 40}}},
            {"KeyboardMouse", QJsonObject{{"Speed", -0.5}, {"DoubleClickSpeed", 400}, {"PrimaryButton", 1}}},
            {"Network", QJsonObject{{"Type", "Manual"}, {"IpAddress", "10.1.2.3"}, {"Subnet", "255.255.255.0"}, {"Gateway", "10.1.2.1"}}},
            {"8021x", QJsonObject{{"EAP", "peap"}, {"Username", "alice"}, {"CACert", "-----BEGIN CERTIFICATE-----\nAA==\n"}}},
            {"Layouts", QJsonArray{"us", "de"}},
            {"USB", QJsonObject{{"Enabled", false}}},
            {"PreferredLayout", "de"},
            {"Screens", QJsonObject{{"Sleep", 1}, {"TurnOff", 4}, {"Mode", 1}}},
            {"Background", QString::fromLatin1(image().toBase64())}};
        QCOMPARE(push(document), QStringList());
        const QJsonObject report = APICollectorThread::collect();
        QCOMPARE(report.value("Printers").toObject().value("ActivePrinter").toString(), QStringLiteral("Lab_Laser"));
        QCOMPARE(report.value("Sound").toObject().value("SoundVolume").toInt(), 40);
        QCOMPARE(report.value("Sound").toObject().value("MicrophoneVolume").toInt(), 30);
        QCOMPARE(report.value("KeyboardMouse").toObject(), document.value("KeyboardMouse").toObject());
        const QJsonObject network = report.value("Network").toObject();
        QCOMPARE(network.value("Type").toString(), QStringLiteral("Manual"));
        QCOMPARE(network.value("IpAddress").toString(), QStringLiteral("10.1.2.3"));
        QCOMPARE(network.value("Subnet").toString(), QStringLiteral("255.255.255.0"));
        QCOMPARE(network.value("Gateway").toString(), QStringLiteral("10.1.2.1"));
        const QJsonObject ieee = report.value("8021x").toObject();
        QCOMPARE(ieee.value("EAP").toString(), QStringLiteral("peap"));
        QCOMPARE(ieee.value("Username").toString(), QStringLiteral("alice"));
        QCOMPARE(ieee.value("CACert").toString(), QStringLiteral("-----BEGIN CERTIFICATE-----\nAA==\n"));
        QCOMPARE(TestSandbox::readFile(m_terminal->sandbox.path("/data/norbix/8021x/ca-cert")), QByteArray("-----BEGIN CERTIFICATE-----\nAA==\n"));
        QCOMPARE(report.value("Layouts").toArray(), (QJsonArray{"us", "de"}));
        QCOMPARE(report.value("USB").toObject().value("Enabled"), QJsonValue(false));
        QCOMPARE(report.value("PreferredLayout").toString(), QStringLiteral("de"));
        QCOMPARE(report.value("Screens").toObject(), document.value("Screens").toObject());
        QCOMPARE(report.value("Background").toString(), document.value("Background").toString());
        QCOMPARE(TestSandbox::readFile(m_terminal->sandbox.path("/data/norbix/wallpaper/serverWallpaper.jpg")), image());
    }

    // The whole document: the groups' first commands (and the bus calls) in the fixed order.
    void wholeDocumentInFixedOrder()
    {
        const QJsonObject document{
            {"Config", QJsonObject{{"DebugLogs", false}}},
            {"Background", QString::fromLatin1(image().toBase64())},
            {"Screens", QJsonObject{{"Sleep", 1}}},
            {"PreferredLayout", "us"},
            {"Updates", QJsonObject{{"AutoAppUpdate", true}}},
            {"USB", QJsonObject{{"Enabled", true}}},
            {"AdditionalSettingsEnabled", true},
            {"Layouts", QJsonArray{"us"}},
            {"Network", QJsonObject{{"Type", "DHCP"}}},
            {"8021x", QJsonObject{{"EAP", "tls"}}},
            {"WiFi", QJsonObject{{"WifiEnabled", false}}},
            {"KeyboardMouse", QJsonObject{{"DoubleClickSpeed", 300}}},
            {"System", QJsonObject{{"Language", "en"}}},
            {"Sound", QJsonObject{{"SoundVolume", 10}}},
            {"Printers", QJsonObject{{"ActivePrinter", "Office"}}},
            {"DateTime", QJsonObject{{"NTP", "pool.ntp.org"}}}};
        QCOMPARE(push(document), QStringList());
        QCOMPARE(m_targetCalls, (QStringList{"advanced 1", "autoUpdate 1", "debug 0"}));

        // One command that only its group runs, in the order the groups must apply.
        const QStringList markers{"sudo timedatectl set-ntp 0", "sudo lpadmin -d Office", "bash -c amixer -D pulse sset Master 10%",
                                  "openbox --reconfigure", "sudo nmcli radio wifi off", "sudo nmcli con mod Wired connection 1 ipv4.dns",
                                  "sudo /opt/norbix/tools/usb/usb_enable.sh", "/opt/norbix/xkblayout-state", "killall xautolock",
                                  "feh --bg-fill /data/norbix/wallpaper/serverWallpaper.jpg"};
        const QStringList commands = m_terminal->commands();
        int previous = -1;
        for (const QString& marker : markers) {
            int at = -1;
            for (int i = 0; i < commands.size() && at < 0; ++i)
                if (commands.at(i).startsWith(marker))
                    at = i;
            QVERIFY2(at > previous, qPrintable(marker + " out of order in:\n" + commands.join('\n')));
            previous = at;
        }
        QCOMPARE(m_terminal->busMethods(), (QStringList{"GetSettings", "GetSettings", "Update", "Save"}));
    }

    // The date the server sends is not used: the terminal keeps its own clock.
    void dateComesFromTheTerminalsClock()
    {
        LogCapture log;
        push(QJsonObject{{"DateTime", QJsonObject{{"Date", "1999-12-31"}}}});
        QVERIFY(log.contains("Set date to " + QDate::currentDate().toString(Qt::ISODate)));
        QVERIFY(!log.contains("1999"));
        // No "NTP": the time of day is the terminal's current one too.
        QVERIFY(log.contains("Set hour " + QString::number(QTime::currentTime().hour())));
    }

    // "CAPassword" is staged twice; the section written holds it once, with the pushed value.
    void caPasswordAppliedTwice()
    {
        const QJsonObject group{{"EAP", "tls"}, {"CAPassword", "ca-pw"}, {"Phase2Auth", "mschapv2"}, {"KeyPassword", "key-pw"}};
        QCOMPARE(push(QJsonObject{{"8021x", group}}), QStringList());
        NetworkManager network;
        network.initDbus();
        QCOMPARE(network.getEAP(), QStringLiteral("tls"));
        QCOMPARE(network.getSecret("ca-cert-password"), QStringLiteral("ca-pw"));
        QCOMPARE(network.getSecret("private-key-password"), QStringLiteral("key-pw"));
        QCOMPARE(network.getSetting("phase2-auth"), QStringLiteral("mschapv2"));
    }

    // Keys that cannot apply are skipped by name; everything else in the document still applies.
    void badInput_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QStringList>("skipped");
        QTest::addColumn<QString>("stillRuns"); // a command the rest of the document still causes

        QTest::newRow("wrong types") << QByteArray(R"({"Sound":{"SoundVolume":"loud","MicrophoneVolume":30,"Enabled":"yes"}})")
                                     << QStringList{"Sound/SoundVolume", "Sound/Enabled"} << "bash -c amixer -D pulse sset Capture 30%";
        QTest::newRow("fraction for an integer") << QByteArray(R"({"Sound":{"SoundVolume":12.5,"MicrophoneVolume":5}})")
                                                 << QStringList{"Sound/SoundVolume"} << "bash -c amixer -D pulse sset Capture 5%";
        QTest::newRow("unknown group") << QByteArray(R"({"Bogus":{"A":1},"USB":{"Enabled":true}})") << QStringList{"Bogus"}
                                       << "sudo /opt/norbix/tools/usb/usb_enable.sh";
        QTest::newRow("unknown key") << QByteArray(R"({"USB":{"Enabled":true,"Speed":3}})") << QStringList{"USB/Speed"}
                                     << "sudo /opt/norbix/tools/usb/usb_enable.sh";
        QTest::newRow("group not an object") << QByteArray(R"({"Screens":[1,2],"Printers":{"ActivePrinter":"Office"}})")
                                             << QStringList{"Screens"} << "sudo lpadmin -d Office";
        QTest::newRow("time zone that parses to nothing")
            << QByteArray(R"({"DateTime":{"Timezone":"Mars/Olympus","NTP":"pool.ntp.org"}})") << QStringList{"DateTime/Timezone"}
            << "sudo timedatectl set-ntp 0";
        QTest::newRow("impossible address and mask")
            << QByteArray(R"({"Network":{"Type":"Manual","IpAddress":"300.1.2.3","Subnet":"255.0.255.0","Gateway":"10.1.2.1","DNS1":"1.1.1.1.1"}})")
            << QStringList{"Network/DNS1", "Network/Subnet", "Network/IpAddress"} << "sudo nmcli con show Wired connection 1";
        QTest::newRow("sink not in the list") << QByteArray(R"({"Sound":{"ActiveSink":"Nope","SoundVolume":20}})")
                                              << QStringList{"Sound/ActiveSink"} << "bash -c amixer -D pulse sset Master 20%";
        QTest::newRow("pointer speed out of range")
            << QByteArray(R"({"KeyboardMouse":{"Speed":1.5,"DoubleClickSpeed":-3,"PrimaryButton":"left"},"USB":{"Enabled":true}})")
            << QStringList{"KeyboardMouse/Speed", "KeyboardMouse/DoubleClickSpeed", "KeyboardMouse/PrimaryButton"}
            << "sudo /opt/norbix/tools/usb/usb_enable.sh";
        QTest::newRow("layouts not strings") << QByteArray(R"({"Layouts":["us",3],"PreferredLayout":7,"USB":{"Enabled":true}})")
                                             << QStringList{"Layouts", "PreferredLayout"} << "sudo /opt/norbix/tools/usb/usb_enable.sh";
        QTest::newRow("screen timers out of the table")
            << QByteArray(R"({"Screens":{"Sleep":9,"TurnOff":-1,"Mode":2},"USB":{"Enabled":true}})")
            << QStringList{"Screens/Sleep", "Screens/TurnOff", "Screens/Mode"} << "sudo /opt/norbix/tools/usb/usb_enable.sh";
        QTest::newRow("background not Base64") << QByteArray(R"({"Background":"*** not base64 ***","USB":{"Enabled":true}})")
                                               << QStringList{"Background"} << "sudo /opt/norbix/tools/usb/usb_enable.sh";
        QTest::newRow("background not an image") << QByteArray(R"({"Background":"aGVsbG8gd29ybGQ=","USB":{"Enabled":true}})")
                                                 << QStringList{"Background"} << "sudo /opt/norbix/tools/usb/usb_enable.sh";
        QTest::newRow("unknown language") << QByteArray(R"({"System":{"Language":"xx"},"USB":{"Enabled":true}})")
                                          << QStringList{"System/Language"} << "sudo /opt/norbix/tools/usb/usb_enable.sh";
        QTest::newRow("8021x values of the wrong type")
            << QByteArray(R"({"8021x":{"EAP":"peap","CAPassword":5,"Username":"bob"}})") << QStringList{"8021x/CAPassword"} << QString();
    }
    void badInput()
    {
        QFETCH(QByteArray, document);
        QFETCH(QStringList, skipped);
        QFETCH(QString, stillRuns);
        LogCapture log;
        QCOMPARE(push(parse(document)), skipped);
        for (const QString& name : skipped)
            QVERIFY2(log.contains("skipped " + name + ":"), qPrintable(name));
        if (!stillRuns.isEmpty())
            QVERIFY2(m_terminal->commands().contains(stillRuns), qPrintable(m_terminal->commands().join('\n')));
        // Nothing half-written is left beside the data files.
        const QStringList leftovers = QDir(m_terminal->sandbox.path("/data/norbix/wallpaper")).entryList(QDir::Files);
        QCOMPARE(leftovers, QStringList());
    }

    // Every group and key of the report, with the JSON type the push reads it as.
    void reportHasEveryKey_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("type");
        const int s = QJsonValue::String, b = QJsonValue::Bool, n = QJsonValue::Double;
        const QList<QPair<QString, int>> keys{
            {"DateTime/Date", s}, {"DateTime/IsAmPm", b}, {"DateTime/Timezone", s}, {"DateTime/NTP", s},
            {"Printers/ActivePrinter", s},
            {"Sound/ActiveSink", s}, {"Sound/MicrophoneVolume", n}, {"Sound/SoundVolume", n}, {"Sound/Enabled", b},
            {"System/Language", s},
            {"KeyboardMouse/Speed", n}, {"KeyboardMouse/DoubleClickSpeed", n}, {"KeyboardMouse/PrimaryButton", n},
            {"WiFi/WifiEnabled", b}, {"WiFi/ActiveNetwork", s},
            {"8021x/EAP", s}, {"8021x/Username", s}, {"8021x/Password", s}, {"8021x/Domain", s}, {"8021x/KeyPassword", s},
            {"8021x/CAPassword", s}, {"8021x/UserPassword", s}, {"8021x/CACert", s}, {"8021x/ClientCert", s},
            {"8021x/PacFile", s}, {"8021x/Key", s}, {"8021x/AnonIdentity", s}, {"8021x/Phase1Provisioning", s},
            {"8021x/Phase2Auth", s}, {"8021x/Phase1PeapVer", s},
            {"Network/Type", s}, {"Network/DNS1", s}, {"Network/DNS2", s}, {"Network/DNS3", s}, {"Network/Gateway", s},
            {"Network/Subnet", s}, {"Network/IpAddress", s},
            {"Layouts", QJsonValue::Array}, {"AdditionalSettingsEnabled", b}, {"USB/Enabled", b}, {"Updates/AutoAppUpdate", b},
            {"PreferredLayout", s}, {"Screens/Sleep", n}, {"Screens/TurnOff", n}, {"Screens/Mode", n}, {"Background", s},
            {"Config/AdminPassword", s}, {"Config/DebugLogs", b}};
        for (const auto& key : keys)
            QTest::newRow(qPrintable(key.first)) << key.first << key.second;
    }
    void reportHasEveryKey()
    {
        QFETCH(QString, path);
        QFETCH(int, type);
        const QJsonObject report = APICollectorThread::collect();
        const QStringList parts = path.split('/');
        QJsonValue value = report.value(parts.first());
        if (parts.size() == 2) {
            QVERIFY2(value.isObject(), qPrintable(parts.first()));
            QVERIFY2(value.toObject().contains(parts.last()), qPrintable(path));
            value = value.toObject().value(parts.last());
        }
        QCOMPARE(int(value.type()), type);
        // Nothing the report does not know how to fill, and nothing the push would refuse.
        static const QStringList groups{"DateTime", "Printers", "Sound", "System", "KeyboardMouse", "WiFi", "8021x",
                                        "Network", "Layouts", "AdditionalSettingsEnabled", "USB", "Updates",
                                        "PreferredLayout", "Screens", "Background", "Config"};
        QCOMPARE(report.keys().size(), groups.size());
    }

    // The report pushed back unchanged skips nothing: both sides speak the same document.
    void reportPushedBackSkipsNothing()
    {
        const QJsonObject report = APICollectorThread::collect();
        QJsonObject document = report;
        document.remove("Background"); // the built-in background shows: there is no image to send
        QCOMPARE(report.value("Background").toString(), QString());
        const QStringList skipped = push(document);
        // The simulated zone is not one of the screen's labels, so the report leaves it empty.
        QCOMPARE(skipped, QStringList{"DateTime/Timezone"});
    }

    // The pointer speed is a number from -1 to 1; an integer is the same number.
    void pointerSpeed_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<double>("stored");
        QTest::newRow("integer") << QByteArray(R"({"KeyboardMouse":{"Speed":1}})") << 1.0;
        QTest::newRow("negative fraction") << QByteArray(R"({"KeyboardMouse":{"Speed":-0.25}})") << -0.25;
        QTest::newRow("zero as a float") << QByteArray(R"({"KeyboardMouse":{"Speed":0.0}})") << 0.0;
    }
    void pointerSpeed()
    {
        QFETCH(QByteArray, document);
        QFETCH(double, stored);
        QCOMPARE(push(parse(document)), QStringList());
        QCOMPARE(APICollectorThread::collect().value("KeyboardMouse").toObject().value("Speed").toDouble(), stored);
    }

    void decodeImage_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("decodes");
        QTest::newRow("PNG") << QString::fromLatin1(image().toBase64()) << true;
        QTest::newRow("JPEG head") << QString::fromLatin1(QByteArray("\xff\xd8\xff\xe0rest").toBase64()) << true;
        QTest::newRow("JPEG head, standard alphabet") << QStringLiteral("/9j//v8=") << true;
        QTest::newRow("JPEG head, URL-safe alphabet") << QStringLiteral("_9j__v8=") << false;
        QTest::newRow("text") << QString::fromLatin1(QByteArray("plain words").toBase64()) << false;
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("garbage") << QStringLiteral("@@@@") << false;
    }
    void decodeImage()
    {
        QFETCH(QString, text);
        QFETCH(bool, decodes);
        QCOMPARE(!SettingsPush::decodeImage(text).isEmpty(), decodes);
    }
};

QTEST_MAIN(tst_Push)
#include "tst_push.moc"
