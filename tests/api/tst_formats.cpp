#include "APIManager.h"
#include "SystemLoad.h"
#include "TestSandbox.h"

#include <QtTest>

Q_DECLARE_METATYPE(SystemLoad::CpuTimes)

// The agent's pure pieces: tunnel host, hosts file, terminal name, load figures.
class tst_Formats : public QObject {
    Q_OBJECT

private slots:
    void tunnelHost_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("host");
        QTest::newRow("host and path") << "wss://mgmt.example.org/api/v1/ws" << "mgmt.example.org";
        QTest::newRow("host, port and path") << "wss://mgmt.example.org:8443/api/v1/ws" << "mgmt.example.org";
        QTest::newRow("host and port") << "wss://mgmt.example.org:8443" << "mgmt.example.org";
        QTest::newRow("host alone") << "wss://mgmt.example.org" << "mgmt.example.org";
        QTest::newRow("address, port, path") << "ws://10.1.2.3:9000/api/v1/ws" << "10.1.2.3";
        QTest::newRow("no scheme, path") << "mgmt.example.org/api/v1/ws" << "mgmt.example.org";
        QTest::newRow("no scheme, port") << "mgmt.example.org:443/x" << "mgmt.example.org";
        QTest::newRow("empty") << "" << "";
    }
    void tunnelHost()
    {
        QFETCH(QString, url);
        QFETCH(QString, host);
        QCOMPARE(APIManager::tunnelHost(url), host);
    }

    void tunnelArguments()
    {
        QCOMPARE(APIManager::tunnelArguments("mgmt.example.org", "40001", "t0k"),
                 (QStringList{"--src", "mgmt.example.org:40001", "--dst", "127.0.0.1:5900", "--token", "t0k"}));
    }

    void hostsFile()
    {
        QCOMPARE(APIManager::hostsFileContent("norbix-4A7B12"),
                 QByteArray("127.0.0.1 view-localhost\n127.0.0.1 localhost\n127.0.1.1 norbix-4A7B12\n\n"
                            "::1 localhost ip6-localhost ip6-loopback\nff02::1 ip6-allnodes\nff02::2 ip6-allroutes\n"));
    }

    void terminalName_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("name");
        QTest::newRow("recorded terminal") << TestSandbox::readFile(NORBIX_TEST_DATA "/simulation/nmcli-device-show.txt")
                                           << "norbix-4A7B12";
        QTest::newRow("Wi-Fi only") << QByteArray("GENERAL.DEVICE:   wlp2s0\nGENERAL.TYPE:   wifi\nGENERAL.HWADDR:   7C:B2:7D:19:E4:30\n")
                                    << "norbix-";
        QTest::newRow("Wi-Fi listed first") << QByteArray("GENERAL.TYPE:  wifi\nGENERAL.HWADDR:  7C:B2:7D:19:E4:30\n\n"
                                                          "GENERAL.TYPE:  ethernet\nGENERAL.HWADDR:  52:54:00:AB:CD:EF\n")
                                            << "norbix-ABCDEF";
        QTest::newRow("two wired, first wins") << QByteArray("GENERAL.TYPE: ethernet\nGENERAL.HWADDR: 00:11:22:33:44:55\n"
                                                             "GENERAL.TYPE: ethernet\nGENERAL.HWADDR: 66:77:88:99:AA:BB\n")
                                               << "norbix-334455";
        QTest::newRow("no output") << QByteArray() << "norbix-";
        QTest::newRow("short address") << QByteArray("GENERAL.TYPE: ethernet\nGENERAL.HWADDR: 00:11\n") << "norbix-";
    }
    void terminalName()
    {
        QFETCH(QByteArray, output);
        QFETCH(QString, name);
        QCOMPARE(APIManager::parseId(output), name);
    }

    void cpuLine_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<bool>("parsed");
        QTest::addColumn<qulonglong>("idle");
        QTest::newRow("kernel 6") << QByteArray("cpu  10132153 290696 3084719 46828483 16683 0 25195 0 0 0\n") << true << qulonglong(46828483);
        QTest::newRow("too short") << QByteArray("cpu 1 2 3\n") << false << qulonglong(0);
        QTest::newRow("empty") << QByteArray() << false << qulonglong(0);
    }
    void cpuLine()
    {
        QFETCH(QByteArray, line);
        QFETCH(bool, parsed);
        QFETCH(qulonglong, idle);
        const auto times = SystemLoad::parseCpuLine(line);
        QCOMPARE(times.has_value(), parsed);
        if (parsed)
            QCOMPARE(qulonglong(times->idle), idle);
    }

    void cpuPercent_data()
    {
        using T = SystemLoad::CpuTimes;
        QTest::addColumn<T>("previous");
        QTest::addColumn<T>("current");
        QTest::addColumn<int>("percent");
        QTest::newRow("quarter busy") << T{100, 0, 100, 800} << T{110, 5, 110, 875} << 25;
        QTest::newRow("all busy") << T{0, 0, 0, 0} << T{10, 10, 10, 0} << 100;
        QTest::newRow("idle") << T{5, 5, 5, 5} << T{5, 5, 5, 105} << 0;
        QTest::newRow("truncated, not rounded") << T{0, 0, 0, 0} << T{2, 0, 0, 1} << 66;
        QTest::newRow("no time passed") << T{7, 7, 7, 7} << T{7, 7, 7, 7} << 0;
        QTest::newRow("user wrapped") << T{100, 0, 0, 0} << T{5, 0, 0, 10} << -1;
        QTest::newRow("nice wrapped") << T{0, 100, 0, 0} << T{0, 5, 0, 10} << -1;
        QTest::newRow("system wrapped") << T{0, 0, 100, 0} << T{0, 0, 5, 10} << -1;
        QTest::newRow("idle wrapped") << T{0, 0, 0, 100} << T{10, 0, 0, 5} << -1;
    }
    void cpuPercent()
    {
        QFETCH(SystemLoad::CpuTimes, previous);
        QFETCH(SystemLoad::CpuTimes, current);
        QFETCH(int, percent);
        QCOMPARE(SystemLoad::cpuPercent(previous, current), percent);
    }

    void memoryPercent_data()
    {
        QTest::addColumn<qulonglong>("total");
        QTest::addColumn<qulonglong>("free");
        QTest::addColumn<uint>("unit");
        QTest::addColumn<int>("percent");
        QTest::newRow("half") << qulonglong(4096) << qulonglong(2048) << 4096u << 50;
        QTest::newRow("truncated") << qulonglong(3) << qulonglong(1) << 1u << 66;
        QTest::newRow("8 GiB in bytes") << qulonglong(8589934592ULL) << qulonglong(2147483648ULL) << 1u << 75;
        QTest::newRow("nothing free") << qulonglong(100) << qulonglong(0) << 1u << 100;
        QTest::newRow("no memory reported") << qulonglong(0) << qulonglong(0) << 1u << 0;
    }
    void memoryPercent()
    {
        QFETCH(qulonglong, total);
        QFETCH(qulonglong, free);
        QFETCH(uint, unit);
        QFETCH(int, percent);
        QCOMPARE(SystemLoad::memoryPercent(total, free, unit), percent);
    }
};

QTEST_GUILESS_MAIN(tst_Formats)
#include "tst_formats.moc"
