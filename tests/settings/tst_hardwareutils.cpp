#include "HardwareUtils.h"
#include "LanguageBackend.h"
#include "TestSandbox.h"

#include <QUuid>
#include <QtTest>

class tst_HardwareUtils : public QObject {
    Q_OBJECT

    static QByteArray fixture(const char* name)
    {
        return TestSandbox::readFile(QStringLiteral(NORBIX_TEST_DATA "/") + QLatin1String(name));
    }

private slots:
    void inventory_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("mac");
        QTest::addColumn<QString>("cpu");
        QTest::newRow("terminal: wired wins over Wi-Fi listed first")
            << fixture("simulation/lshw-network-processor.json") << "00:1e:c9:4a:7b:12"
            << "Intel(R) Celeron(R) J4125 CPU @ 2.00GHz";
        QTest::newRow("virtual machine: controller without serial skipped")
            << fixture("lshw-virtio-vm.json") << "02:fc:00:00:00:01" << "AMD EPYC";
        QTest::newRow("single object, nested children")
            << QByteArray(R"({"class":"system","children":[{"class":"processor","version":"6.1.2"},
                 {"class":"network","logicalname":"eth1","serial":"AA:BB:CC:DD:EE:02"},
                 {"class":"network","logicalname":"eth0","serial":"AA:BB:CC:DD:EE:01"}]})")
            << "aa:bb:cc:dd:ee:01" << "6.1.2";
        QTest::newRow("Wi-Fi only") << QByteArray(R"([{"class":"network","description":"Wireless interface","serial":"7c:b2:7d:19:e4:30"}])")
                                    << "7c:b2:7d:19:e4:30" << "";
        QTest::newRow("no adapter") << QByteArray(R"([{"class":"processor","product":"ARM Cortex-A72"}])") << ""
                                    << "ARM Cortex-A72";
        QTest::newRow("lshw missing") << QByteArray() << "" << "";
        QTest::newRow("garbage") << QByteArray("sudo: lshw: command not found") << "" << "";
    }
    void inventory()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, mac);
        QFETCH(QString, cpu);
        const HardwareInventory inventory = HardwareUtils::parseInventory(json);
        QCOMPARE(inventory.mac, mac);
        QCOMPARE(inventory.cpu, cpu);
    }

    void identity()
    {
        HardwareInventory terminal;
        terminal.mac = QStringLiteral("00:1e:c9:4a:7b:12");
        terminal.cpu = QStringLiteral("Intel(R) Celeron(R) J4125 CPU @ 2.00GHz");
        const QString id = HardwareUtils::deviceIdentity(terminal);
        QCOMPARE(id.size(), 36);
        QCOMPARE(id, id.toLower());
        QCOMPARE(QUuid(id).version(), QUuid::Md5);
        QCOMPARE(id, QUuid::createUuidV3(QUuid(), terminal.mac + terminal.cpu).toString(QUuid::WithoutBraces));
        QCOMPARE(HardwareUtils::deviceIdentity(terminal), id); // stable

        HardwareInventory noAdapter;
        noAdapter.cpu = terminal.cpu;
        QCOMPARE(HardwareUtils::deviceIdentity(noAdapter),
                 QUuid::createUuidV3(QUuid(), QStringLiteral("00000000") + terminal.cpu).toString(QUuid::WithoutBraces));
        // Computed independently (Python uuid.uuid3 over the null name space).
        QCOMPARE(HardwareUtils::deviceIdentity(noAdapter), QStringLiteral("6fe25039-0c01-3c86-b29d-23b71b3b3740"));
    }

    void layoutCatalogue()
    {
        const auto catalogue = LanguageBackend::parseLayoutCatalogue(fixture("simulation/evdev.lst"));
        QVERIFY(catalogue.internalNames.size() > 50);
        QCOMPARE(catalogue.internalNames.size(), catalogue.displayNames.size());
        QCOMPARE(catalogue.internalNames.first(), QStringLiteral("us"));
        QCOMPARE(catalogue.displayNames.first(), QStringLiteral("English (US)"));
        QVERIFY(catalogue.internalNames.contains(QStringLiteral("de")));
        QVERIFY(!catalogue.internalNames.contains(QStringLiteral("pc105"))); // models are not layouts
        QVERIFY(!catalogue.internalNames.contains(QStringLiteral("chr")));   // variants are not layouts

        const auto small = LanguageBackend::parseLayoutCatalogue("! model\n  pc105  Generic\n\n! layout\n  us   English (US)\n"
                                                                 "  de              German\n\n! variant\n  chr us: Cherokee\n");
        QCOMPARE(small.internalNames, QStringList({"us", "de"}));
        QCOMPARE(small.displayNames, QStringList({"English (US)", "German"}));
        QVERIFY(LanguageBackend::parseLayoutCatalogue(QByteArray()).internalNames.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_HardwareUtils)
#include "tst_hardwareutils.moc"
