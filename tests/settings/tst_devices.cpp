#include "FakeCommandRunner.h"
#include "PowerBackend.h"
#include "PrinterParsers.h"
#include "PrintersBackend.h"
#include "SettingsChange.h"
#include "SoundParsers.h"
#include "SoundSettingsBackend.h"
#include "TestSandbox.h"
#include "USBManager.h"
#include "UsbParsers.h"
#include "WallpapersManager.h"

#include <QSettings>
#include <QtTest>

namespace {

QByteArray fixture(const QString& name)
{
    return TestSandbox::readFile(QStringLiteral(NORBIX_TEST_DATA "/simulation/") + name);
}

QStringList bash(const QString& script)
{
    return {QStringLiteral("bash"), QStringLiteral("-c"), script};
}

const QByteArray kPng("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
const QByteArray kJpeg("\xff\xd8\xff\xe0\0\x10JFIF", 10);

} // namespace

class tst_Devices : public QObject {
    Q_OBJECT

    int m_reports = 0;

private slots:
    void initTestCase()
    {
        SettingsChange::setReporter([this] { ++m_reports; });
    }

    void sinks_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<int>("active");
        QTest::newRow("terminal: second sink active") << fixture(QStringLiteral("pacmd-list-sinks.txt"))
            << QStringList{"Built-in Audio Analog Stereo", "Logitech USB Headset Analog Stereo"} << 1;
        QTest::newRow("first active, null sinks")
            << QByteArray("2 sink(s) available.\n  * index: 0\n\tname: <speakers>\n\tproperties:\n\t\tdevice.description = \"Speakers\"\n"
                          "    index: 1\n\tname: <headset>\n\tproperties:\n\t\tdevice.description = \"Headset\"\n")
            << QStringList{"Speakers", "Headset"} << 0;
        QTest::newRow("no marker") << QByteArray("    index: 3\n\t\tdevice.description = \"HDMI\"\n") << QStringList{"HDMI"} << -1;
        QTest::newRow("port descriptions are not sinks")
            << QByteArray("  * index: 0\n\t\tdevice.description = \"A\"\n\tports:\n\t\t\tdevice.description = \"port\"\n")
            << QStringList{"A"} << 0;
        QTest::newRow("daemon not running") << QByteArray("No PulseAudio daemon running, or not running as session daemon.\n")
                                            << QStringList{} << -1;
    }
    void sinks()
    {
        QFETCH(QByteArray, output);
        const SoundParsers::SinkList sinks = SoundParsers::parseSinks(output);
        QTEST(sinks.names, "names");
        QTEST(sinks.active, "active");
    }

    void volume_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<int>("percent");
        QTest::newRow("pipeline output") << QByteArray("75%\n") << 75;
        QTest::newRow("full") << QByteArray("100%\n") << 100;
        QTest::newRow("silent") << QByteArray("0%\n") << 0;
        QTest::newRow("nothing printed") << QByteArray() << 0;
        QTest::newRow("error text") << QByteArray("amixer: Unable to find simple control 'Capture',0\n") << 0;
        QTest::newRow("two channels, first wins") << QByteArray("40%\n60%\n") << 40;
    }
    void volume()
    {
        QFETCH(QByteArray, output);
        QTEST(SoundParsers::parseVolume(output), "percent");
    }

    void soundCommands()
    {
        FakeCommandRunner runner;
        SoundSettingsBackend* sound = SoundSettingsBackend::getInstance();
        runner.answer(bash("amixer -D pulse sget Master | grep -m 1 '%' | awk -F'[][]' '{ print $2 }'").join(' '), "64%\n");
        runner.answer(bash("amixer -D pulse sget Capture | grep -m 1 '%' | awk -F'[][]' '{ print $2 }'").join(' '), "");
        runner.answer(bash("pacmd list-sinks").join(' '), fixture(QStringLiteral("pacmd-list-sinks.txt")));
        runner.answer(bash("pactl list sinks short | awk '{print $2 }'").join(' '),
                      "alsa_output.pci-0000_00_1f.3.analog-stereo\nalsa_output.usb-Logitech_USB_Headset-00.analog-stereo\n");
        QCOMPARE(sound->getSoundVolume(), 64);
        QCOMPARE(sound->getMicrophoneVolume(), 0);
        QCOMPARE(sound->listSinks().size(), 2);
        QCOMPARE(sound->getActiveSink(), 1);
        runner.calls.clear();
        const int reportsBefore = m_reports;
        sound->setSoundVolume(30);
        sound->setMicrophoneVolume(120); // clamped
        sound->setActiveSink(0);
        sound->setActiveSink(2); // no such sink: nothing set
        sound->setSoundEnabled(false); // logs only
        QCOMPARE(runner.commandLines(),
                 (QList<QStringList>{bash("amixer -D pulse sset Master 30%"), bash("amixer -D pulse sset Capture 100%"),
                                     bash("pactl list sinks short | awk '{print $2 }'"),
                                     {"pactl", "set-default-sink", "alsa_output.pci-0000_00_1f.3.analog-stereo"},
                                     bash("pactl list sinks short | awk '{print $2 }'")}));
        QCOMPARE(m_reports - reportsBefore, 3);
        runner.calls.clear();
        sound->testSound();
        sound->testMicrophone();
        QCOMPARE(runner.commandLines(),
                 (QList<QStringList>{{"speaker-test", "-D", "pulse", "-t", "wav", "-c", "2", "-P", "2", "-l", "1"},
                                     bash(" arecord -D pulse -d 3 test-mic.wav"),
                                     {"aplay", "-D", "pulse", "test-mic.wav"}}));
    }

    void usbLines_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("descriptors");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("terminal") << fixture(QStringLiteral("lsusb.txt"))
            << QStringList{"1d6b:0003", "03f0:c511", "0781:5581", "413c:2113", "046d:c077", "06cb:00bd", "1d6b:0002"}
            << QStringList{"Linux Foundation 3.0 root hub", "HP, Inc LaserJet Pro M404-M405", "SanDisk Corp. Ultra",
                           "Dell Computer Corp. KB216 Wired Keyboard", "Logitech, Inc. M105 Optical Mouse", "",
                           "Linux Foundation 2.0 root hub"};
        QTest::newRow("upper-case ids") << QByteArray("Bus 003 Device 002: ID 0BDA:8153 Realtek USB 10/100/1000 LAN\n")
                                        << QStringList{"0bda:8153"} << QStringList{"Realtek USB 10/100/1000 LAN"};
        QTest::newRow("not lsusb") << QByteArray("unable to initialize libusb: -99\n") << QStringList{} << QStringList{};
    }
    void usbLines()
    {
        QFETCH(QByteArray, output);
        QStringList descriptors, names;
        for (const UsbParsers::UsbDevice& device : UsbParsers::parseLsusb(output)) {
            descriptors << device.descriptor;
            names << device.name;
        }
        QTEST(descriptors, "descriptors");
        QTEST(names, "names");
        FakeCommandRunner runner;
        runner.answer(QStringLiteral("lsusb"), output);
        QTEST(USBManager::listUsbDescriptors(), "descriptors");
        QTEST(USBManager::listUsbNames(), "names");
    }

    void usbStorage()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        const QString rule = sandbox.path("/lib/udev/rules.d/99-media-automount.rules");
        QVERIFY(!USBManager::isUsbEnabled());
        TestSandbox::writeFile(rule, "KERNEL==\"sd*\"\n");
        QVERIFY(USBManager::isUsbEnabled());
        USBManager::setUsbEnabled(false);
        // The script has not removed the rule (the fake runs nothing): still on.
        QVERIFY(USBManager::isUsbEnabled());
        QFile::remove(rule);
        QVERIFY(!USBManager::isUsbEnabled());
        USBManager::setUsbEnabled(true);
        QCOMPARE(runner.commandLines(), (QList<QStringList>{{"sudo", "/opt/norbix/tools/usb/usb_disable.sh"},
                                                            {"sudo", "/opt/norbix/tools/usb/usb_enable.sh"}}));
    }

    void printerLists()
    {
        QCOMPARE(PrinterParsers::parseDirectDevices(fixture(QStringLiteral("lpinfo-v.txt"))),
                 (QStringList{"usb://HP/LaserJet%20Pro%20M404-M405?serial=PHBLM12345", "hp",
                              "usb://Brother/HL-L2350DW%20series?serial=E78123A9N654321"}));
        QCOMPARE(PrinterParsers::parseDrivers(fixture(QStringLiteral("lpinfo-m.txt"))),
                 (QStringList{"everywhere", "drv:///sample.drv/generic.ppd", "drv:///sample.drv/generpcl.ppd",
                              "drv:///hpcups.drv/hp-laserjet_pro_m404-m405.ppd", "drv:///brlaser.drv/br2350d.ppd",
                              "lsb/usr/cupsfilters/textonly.ppd"}));
        QCOMPARE(PrinterParsers::parseDirectDevices("lpinfo: Unauthorized\n"), QStringList());
        FakeCommandRunner runner;
        runner.answer(QStringLiteral("sudo lpinfo -v"), fixture(QStringLiteral("lpinfo-v.txt")));
        runner.answer(bash("lpstat -l -e | awk '{print $1}'").join(' '), "Office\nLabel_Printer\n\n");
        QCOMPARE(PrintersBackend::listUSBPrinters().size(), 3);
        QCOMPARE(PrintersBackend::listPrinters(), (QStringList{"Office", "Label_Printer"}));
    }

    void defaultPrinter_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("name");
        QTest::newRow("set") << QByteArray("system default destination: Office\n") << "Office";
        QTest::newRow("none") << QByteArray("no system default destination\n") << "";
        QTest::newRow("scheduler down") << QByteArray() << "";
    }
    void defaultPrinter()
    {
        QFETCH(QByteArray, output);
        FakeCommandRunner runner;
        runner.answer(QStringLiteral("bash -c lpstat -d"), output);
        QTEST(PrintersBackend::getDefaultPrinter(), "name");
    }

    void printerNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("valid");
        QTest::newRow("plain") << "Office" << true;
        QTest::newRow("underscore, dot, dash") << "HP_M404.floor-2" << true;
        QTest::newRow("blank") << "Office printer" << false;
        QTest::newRow("slash") << "office/2" << false;
        QTest::newRow("hash") << "office#2" << false;
        QTest::newRow("semicolon") << "x;reboot" << false;
        QTest::newRow("quote") << "o'hara" << false;
        QTest::newRow("dollar") << "$(reboot)" << false;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("too long") << QString(128, 'p') << false;
        QTest::newRow("longest") << QString(127, 'p') << true;
    }
    void printerNames()
    {
        QFETCH(QString, name);
        QFETCH(bool, valid);
        QCOMPARE(PrinterParsers::nameProblem(name).isEmpty(), valid);
        FakeCommandRunner runner;
        PrintersBackend printers;
        QCOMPARE(printers.addPrinter(name, QStringLiteral("192.168.1.20")), valid);
        QCOMPARE(printers.addUSBPrinter(name, QStringLiteral("usb://HP/M404"), QStringLiteral("everywhere")), valid);
        QCOMPARE(runner.calls.size(), valid ? 2 : 0);
        if (!valid)
            QVERIFY(!printers.lastError().isEmpty());
    }

    void printerHosts_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<bool>("valid");
        QTest::newRow("address") << "192.168.1.20" << true;
        QTest::newRow("name with port") << "printer.office.local:631" << true;
        QTest::newRow("ipv6") << "[fe80::1]" << true;
        QTest::newRow("url") << "http://printer" << false;
        QTest::newRow("path") << "printer/ipp" << false;
        QTest::newRow("blank") << "print er" << false;
        QTest::newRow("empty") << "" << false;
    }
    void printerHosts()
    {
        QFETCH(QString, host);
        QFETCH(bool, valid);
        QCOMPARE(PrinterParsers::hostProblem(host).isEmpty(), valid);
    }

    void printerCommands()
    {
        FakeCommandRunner runner;
        PrintersBackend printers;
        QSignalSpy changed(&printers, &PrintersBackend::printersChanged);
        QVERIFY(printers.addPrinter(QStringLiteral("Office"), QStringLiteral("10.0.0.7")));
        QVERIFY(printers.addUSBPrinter(QStringLiteral("HP"), QStringLiteral("usb://HP/LaserJet%20Pro?serial=1"),
                                       QStringLiteral("drv:///hpcups.drv/hp-laserjet_pro_m404-m405.ppd")));
        printers.setCurrentPrinter(QStringLiteral("HP"));
        printers.deletePrinter(QStringLiteral("Office"));
        printers.deletePrinter(QStringLiteral("Office; reboot"));
        QCOMPARE(runner.commandLines(),
                 (QList<QStringList>{{"sudo", "lpadmin", "-p", "Office", "-E", "-v", "ipp://10.0.0.7/ipp/print", "-m", "everywhere"},
                                     {"sudo", "lpadmin", "-p", "HP", "-E", "-v", "usb://HP/LaserJet%20Pro?serial=1", "-m",
                                      "drv:///hpcups.drv/hp-laserjet_pro_m404-m405.ppd"},
                                     {"sudo", "lpadmin", "-d", "HP"},
                                     {"sudo", "lpadmin", "-x", "Office"}}));
        QCOMPARE(changed.count(), 4);

        // lpadmin's own complaint reaches the screen.
        runner.answer(QStringLiteral("sudo lpadmin -p Lab -E -v ipp://lab.invalid/ipp/print -m everywhere"), {}, 1,
                      "lpadmin: Unable to query printer: Name or service not known\n");
        QVERIFY(!printers.addPrinter(QStringLiteral("Lab"), QStringLiteral("lab.invalid")));
        QCOMPARE(printers.lastError(), QStringLiteral("lpadmin: Unable to query printer: Name or service not known"));
        QVERIFY(!printers.addUSBPrinter(QStringLiteral("Lab"), QString(), QStringLiteral("everywhere")));
        QVERIFY(!printers.addUSBPrinter(QStringLiteral("Lab"), QStringLiteral("usb://x"), QString()));
        QCOMPARE(changed.count(), 4);
    }

    void printingSwitch()
    {
        TestSandbox sandbox;
        QVERIFY(!PrintersBackend::isPrinterEnabled());
        PrintersBackend::setPrinterEnabled(true);
        QVERIFY(PrintersBackend::isPrinterEnabled());
        QCOMPARE(QSettings(sandbox.dataFile("printers.ini"), QSettings::IniFormat).value("Enabled").toBool(), true);
        PrintersBackend::setPrinterEnabled(false);
        QVERIFY(!PrintersBackend::isPrinterEnabled());
    }

    void power()
    {
        FakeCommandRunner runner;
        PowerBackend::shutdown();
        PowerBackend::reboot();
        QCOMPARE(runner.commandLines(),
                 (QList<QStringList>{{"sudo", "shutdown", "-h", "now"}, {"sudo", "reboot", "-f"}}));
    }

    void imageKind_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::addColumn<QString>("kind");
        QTest::newRow("png") << kPng << "png";
        QTest::newRow("jpeg") << kJpeg << "jpeg";
        QTest::newRow("text named .png") << QByteArray("hello") << "";
        QTest::newRow("truncated png signature") << QByteArray("\x89PNG") << "";
        QTest::newRow("empty") << QByteArray() << "";
    }
    void imageKind()
    {
        QFETCH(QByteArray, head);
        QTEST(WallpapersManager::imageKind(head), "kind");
    }

    void wallpaperCopy()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        const QString source = sandbox.path("/media/USB/photos/beach.png");
        TestSandbox::writeFile(source, kPng + QByteArray(4096, 'x'));
        TestSandbox::writeFile(sandbox.path("/media/USB/notes.txt"), "x");
        TestSandbox::writeFile(sandbox.path("/media/USB/fake.jpg"), "not an image");
        TestSandbox::writeFile(sandbox.path("/media/DRIVE/a.jpeg"), kJpeg);
        QCOMPARE(WallpapersManager::listAvaiableImages(),
                 (QStringList{sandbox.path("/media/DRIVE/a.jpeg"), sandbox.path("/media/USB/fake.jpg"), source}));

        WallpapersManager wallpapers;
        QVERIFY(wallpapers.setWallpaper(QUrl::fromLocalFile(source).toString()));
        const QString copy = sandbox.dataFile("wallpaper/beach.png");
        QCOMPARE(TestSandbox::readFile(copy), TestSandbox::readFile(source));
        QSettings display(sandbox.dataFile("display.ini"), QSettings::IniFormat);
        QCOMPARE(display.value("Wallpaper").toString(), QStringLiteral("/data/norbix/wallpaper/beach.png"));
        QCOMPARE(WallpapersManager::getWallpaper(), QUrl::fromLocalFile(copy).toString());
        QVERIFY(WallpapersManager::getWallpaper().startsWith("file:///"));
        QCOMPARE(runner.commandLines(), (QList<QStringList>{{"feh", "--bg-fill", "/data/norbix/wallpaper/beach.png"}}));

        // Not an image: refused, nothing copied, the stored one stays.
        runner.calls.clear();
        QVERIFY(!wallpapers.setWallpaper(sandbox.path("/media/USB/fake.jpg")));
        QVERIFY(wallpapers.lastError().contains("fake.jpg"));
        QVERIFY(!QFile::exists(sandbox.dataFile("wallpaper/fake.jpg")));
        QVERIFY(!wallpapers.setWallpaper(sandbox.path("/media/USB/gone.png")));
        QVERIFY(runner.calls.isEmpty());
        QCOMPARE(QSettings(sandbox.dataFile("display.ini"), QSettings::IniFormat).value("Wallpaper").toString(),
                 QStringLiteral("/data/norbix/wallpaper/beach.png"));
    }

    void wallpaperDefault()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        QSettings(sandbox.dataFile("display.ini"), QSettings::IniFormat).setValue("Wallpaper", "/data/norbix/wallpaper/beach.png");
        WallpapersManager::setWallpaperActive(false);
        QVERIFY(!WallpapersManager::isWallpaperActive());
        QFile resource(":/images/default_background.png");
        QVERIFY(resource.open(QIODevice::ReadOnly));
        const QByteArray builtIn = resource.readAll();
        QCOMPARE(WallpapersManager::imageKind(builtIn), QStringLiteral("png"));
        QCOMPARE(TestSandbox::readFile(sandbox.dataFile("wallpaper/default.png")), builtIn);
        WallpapersManager::setWallpaperActive(true);
        QVERIFY(WallpapersManager::isWallpaperActive());
        QCOMPARE(runner.commandLines(), (QList<QStringList>{{"feh", "--bg-fill", "/data/norbix/wallpaper/default.png"},
                                                            {"feh", "--bg-fill", "/data/norbix/wallpaper/beach.png"}}));
    }
};

QTEST_GUILESS_MAIN(tst_Devices)
#include "tst_devices.moc"
