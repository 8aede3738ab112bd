#include "LanguageBackend.h"
#include "MouseSettingsBackend.h"
#include "PrintersBackend.h"
#include "SimulatedDevices.h"
#include "SimulatedTerminal.h"
#include "SoundSettingsBackend.h"
#include "TestSandbox.h"
#include "USBManager.h"
#include "WallpapersManager.h"

#include <QSettings>
#include <QtTest>

// The screens' round trips in the simulated terminal: what a backend sets reads back changed.
class tst_SimulatedDevices : public QObject {
    Q_OBJECT

    TestSandbox* m_sandbox = nullptr;
    SimulatedTerminal* m_terminal = nullptr;

    static QString query()
    {
        return QString::fromUtf8(CommandRunner::instance().run(QStringLiteral("setxkbmap"), {QStringLiteral("-query")}).standardOutput);
    }

private slots:
    void init()
    {
        m_sandbox = new TestSandbox;
        m_terminal = new SimulatedTerminal;
        CommandRunner::setInstance(m_terminal);
        SimulatedDevices::reset();
    }
    void cleanup()
    {
        CommandRunner::setInstance(nullptr);
        delete m_terminal;
        delete m_sandbox;
    }

    void pointers()
    {
        MouseSettingsBackend mouse;
        mouse.getMouseNames();
        QCOMPARE(QSettings(m_sandbox->dataFile("keyboard.ini"), QSettings::IniFormat).value("Ids").toString(), QStringLiteral("9,11"));
        QCOMPARE(mouse.getMouseSensetivity(), 0.0f);
        mouse.setMouseSensetivity(-0.6f);
        QCOMPARE(mouse.getMouseSensetivity(), -0.6f);
        QCOMPARE(mouse.getPrimaryButton(), 0);
        mouse.setPrimaryButton(1);
        QCOMPARE(mouse.getPrimaryButton(), 1);
        QCOMPARE(mouse.getDoubleClickSpeed(), 500);
        mouse.setDoubleClickSpeed(800);
        QCOMPARE(mouse.getDoubleClickSpeed(), 800);
        // A pointer unplugged since the ids were stored: skipped, the others still answer.
        QSettings(m_sandbox->dataFile("keyboard.ini"), QSettings::IniFormat).setValue("Ids", "42,11");
        QCOMPARE(mouse.getMouseSensetivity(), 0.0f);
        mouse.setMouseSensetivity(0.2f);
        QSettings(m_sandbox->dataFile("keyboard.ini"), QSettings::IniFormat).setValue("Ids", "11");
        QCOMPARE(mouse.getMouseSensetivity(), 0.2f);
    }

    void layouts()
    {
        MouseSettingsBackend::setLayouts({"us", "de", "fr"});
        MouseSettingsBackend::setPreferredLayoutRaw("de");
        QVERIFY(MouseSettingsBackend::initLayouts());
        QVERIFY(query().contains("layout:     de,us,fr\n"));
        QCOMPARE(MouseSettingsBackend::getKeyboardLayout(), QStringLiteral("de"));
        LanguageBackend language;
        language.removeLanguage(1); // "de", the preferred one
        QVERIFY(query().contains("layout:     us,fr\n"));
        QCOMPARE(MouseSettingsBackend::getPreferredLayoutRaw(), QStringLiteral("us"));
    }

    void sound()
    {
        SoundSettingsBackend* sound = SoundSettingsBackend::getInstance();
        QCOMPARE(sound->listSinks().size(), 2);
        QCOMPARE(sound->getActiveSink(), 0);
        sound->setActiveSink(1);
        QCOMPARE(sound->getActiveSink(), 1);
        sound->setSoundVolume(35);
        sound->setMicrophoneVolume(80);
        QCOMPARE(sound->getSoundVolume(), 35);
        QCOMPARE(sound->getMicrophoneVolume(), 80);
    }

    void printers()
    {
        PrintersBackend printers;
        QCOMPARE(PrintersBackend::listPrinters(), QStringList{"Office"});
        QVERIFY(printers.addPrinter("Lab", "10.1.2.3"));
        QVERIFY(printers.addUSBPrinter("HP", PrintersBackend::listUSBPrinters().first(), PrintersBackend::listUSBPrinterDrivers().first()));
        QCOMPARE(PrintersBackend::listPrinters(), (QStringList{"HP", "Lab", "Office"}));
        printers.setCurrentPrinter("Lab");
        QCOMPARE(PrintersBackend::getDefaultPrinter(), QStringLiteral("Lab"));
        printers.deletePrinter("Lab");
        QCOMPARE(PrintersBackend::listPrinters(), (QStringList{"HP", "Office"}));
        QCOMPARE(PrintersBackend::getDefaultPrinter(), QString());
        QVERIFY(!printers.addUSBPrinter("Lab", "usb://HP/x", "drv:///none.drv/x.ppd"));
        QVERIFY(printers.lastError().contains("failed to get PPD file"));
    }

    void usb()
    {
        QVERIFY(USBManager::isUsbEnabled()); // the image ships with USB storage on
        USBManager::setUsbEnabled(false);
        QVERIFY(!USBManager::isUsbEnabled());
        USBManager::setUsbEnabled(true);
        QVERIFY(USBManager::isUsbEnabled());
        QVERIFY(USBManager::listUsbNames().contains("SanDisk Corp. Ultra"));
    }

    void wallpaper()
    {
        const QStringList images = WallpapersManager::listAvaiableImages();
        QCOMPARE(images.size(), 2);
        WallpapersManager wallpapers;
        QVERIFY(wallpapers.setWallpaper(images.first()));
        QVERIFY(QFile::exists(m_sandbox->dataFile("wallpaper/" + QFileInfo(images.first()).fileName())));
    }
};

QTEST_GUILESS_MAIN(tst_SimulatedDevices)
#include "tst_simulateddevices.moc"
