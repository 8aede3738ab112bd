#include "FakeCommandRunner.h"
#include "InfoBackend.h"
#include "SystemInfoModel.h"
#include "SystemInfoParsers.h"
#include "TestSandbox.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QtTest>

using namespace SystemInfoParsers;
using Fact = SystemInfoModel::Fact;
using State = SystemInfoModel::State;

namespace {

QByteArray fixture(const QString& name)
{
    return TestSandbox::readFile(QStringLiteral(NORBIX_TEST_DATA "/simulation/") + name);
}

const QString kDpkgFormat = QStringLiteral("-f=${Package}\\t${db:Status-Abbrev}\\t${Version}\\n");

// Answers the information commands the way a terminal with the given recordings would.
void answerTerminal(FakeCommandRunner& runner, const QByteArray& dpkg, const QByteArray& df, const QByteArray& ip)
{
    runner.answer(QStringLiteral("lscpu"), fixture(QStringLiteral("lscpu.txt")));
    runner.answer(QStringLiteral("cat /proc/meminfo"), fixture(QStringLiteral("proc-meminfo.txt")));
    runner.answer(QStringLiteral("df -P -B1 -x tmpfs -x devtmpfs -x squashfs -x overlay"), df);
    runner.answer(QStringLiteral("ip -j addr show"), ip);
    runner.answer(QStringLiteral("xrandr --query"), fixture(QStringLiteral("xrandr-query.txt")));
    runner.answer(QStringLiteral("cat /proc/sys/kernel/osrelease"), "6.1.0-27-amd64\n");
    runner.answer(QStringLiteral("cat /etc/os-release"), fixture(QStringLiteral("os-release.txt")));
    runner.answer((QStringList{QStringLiteral("dpkg-query"), QStringLiteral("-W"), kDpkgFormat} + clientPackages()).join(QLatin1Char(' ')), dpkg);
}

// Test JSON written with single quotes for readability.
QByteArray json(const char* text)
{
    return QByteArray(text).replace('\'', '"');
}

QList<Fact> factsOfKind(const QList<Fact>& facts, const QString& kind)
{
    QList<Fact> result;
    for (const Fact& f : facts)
        if (f.kind == kind)
            result << f;
    return result;
}

Fact client(const QList<Fact>& facts, const QString& name)
{
    for (const Fact& f : factsOfKind(facts, QStringLiteral("client")))
        if (f.subject == name)
            return f;
    return {};
}

// A terminal where none of the tools exists: nothing starts.
class NothingStarts : public FakeCommandRunner {
protected:
    CommandResult execute(const QString& program, const QStringList& arguments) override
    {
        record(program, arguments, false);
        return {};
    }
};

} // namespace

class tst_SystemInfo : public QObject {
    Q_OBJECT

private slots:
    void processor_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("count");
        QTest::newRow("recorded") << fixture(QStringLiteral("lscpu.txt")) << "Intel(R) Xeon(R) Processor" << 2;
        QTest::newRow("NUMA lines do not count as CPU(s)")
            << QByteArray("CPU(s):   4\nModel name:   AMD GX-420GI SOC with Radeon(TM) R7E Graphics\nNUMA node0 CPU(s): 0-3\n")
            << "AMD GX-420GI SOC with Radeon(TM) R7E Graphics" << 4;
        QTest::newRow("colon in the model name") << QByteArray("Model name: Cortex-A72 r0p3: rev 3\n")
                                                 << "Cortex-A72 r0p3: rev 3" << 0;
        QTest::newRow("nothing") << QByteArray() << "" << 0;
    }
    void processor()
    {
        QFETCH(QByteArray, output);
        QFETCH(QString, model);
        QFETCH(int, count);
        const Processor cpu = SystemInfoParsers::processor(output);
        QCOMPARE(cpu.model, model);
        QCOMPARE(cpu.count, count);
    }

    void memoryTotal_data()
    {
        QTest::addColumn<QByteArray>("meminfo");
        QTest::addColumn<qint64>("bytes");
        QTest::newRow("recorded") << fixture(QStringLiteral("proc-meminfo.txt"))
                                  << qint64(-2); // read from the file below
        QTest::newRow("4 GiB terminal") << QByteArray("MemTotal:        4039296 kB\nMemFree: 12 kB\n") << qint64(4039296) * 1024;
        QTest::newRow("MemTotal not first") << QByteArray("MemFree: 1 kB\nMemTotal: 2 kB\n") << qint64(2048);
        QTest::newRow("unknown unit") << QByteArray("MemTotal: 2 MB\n") << qint64(-1);
        QTest::newRow("not a number") << QByteArray("MemTotal: lots kB\n") << qint64(-1);
        QTest::newRow("missing") << QByteArray("MemFree: 1 kB\n") << qint64(-1);
    }
    void memoryTotal()
    {
        QFETCH(QByteArray, meminfo);
        QFETCH(qint64, bytes);
        if (bytes == -2) {
            // The recorded file: the first line's number of kB, read independently.
            const QList<QByteArray> words = meminfo.split('\n').first().simplified().split(' ');
            QCOMPARE(words.value(0), QByteArray("MemTotal:"));
            bytes = words.value(1).toLongLong() * 1024;
            QVERIFY(bytes > 0);
        }
        QCOMPARE(SystemInfoParsers::memoryTotal(meminfo), bytes);
    }

    void disks_data()
    {
        QTest::addColumn<QByteArray>("df");
        QTest::addColumn<QStringList>("mounts");
        QTest::addColumn<QStringList>("devices");
        QTest::addColumn<qint64>("firstSize");
        QTest::addColumn<qint64>("firstAvailable");
        QTest::newRow("several file systems") << fixture(QStringLiteral("df-several-disks.txt"))
            << QStringList{"/dev", "/dev/shm", "/", "/sys/fs/cgroup"} << QStringList{"devtmpfs", "tmpfs", "/dev/vda", "tmpfs"}
            << qint64(12630487040) << qint64(12630487040);
        QTest::newRow("terminal with a USB drive") << fixture(QStringLiteral("df-terminal.txt"))
            << QStringList{"/", "/boot/efi", "/media/NORBIX-USB"} << QStringList{"/dev/sda2", "/dev/sda1", "/dev/sdb1"}
            << qint64(15549267968) << qint64(10602307584);
        QTest::newRow("mount point with blanks")
            << QByteArray("Filesystem 1-blocks Used Available Capacity Mounted on\n/dev/sdc1 1000 400 600 40% /media/My Stick\n")
            << QStringList{"/media/My Stick"} << QStringList{"/dev/sdc1"} << qint64(1000) << qint64(600);
        QTest::newRow("lines that are not file systems are left out")
            << QByteArray("Filesystem 1-blocks Used Available Capacity Mounted on\ndf: /mnt/x: Stale file handle\n"
                          "/dev/sda2 10 5 5 50% /\n\n/dev/sda3 ten 5 5 50% /data\n")
            << QStringList{"/"} << QStringList{"/dev/sda2"} << qint64(10) << qint64(5);
        QTest::newRow("header only") << QByteArray("Filesystem 1-blocks Used Available Capacity Mounted on\n")
                                     << QStringList{} << QStringList{} << qint64(-1) << qint64(-1);
        QTest::newRow("nothing") << QByteArray() << QStringList{} << QStringList{} << qint64(-1) << qint64(-1);
    }
    void disks()
    {
        QFETCH(QByteArray, df);
        QFETCH(QStringList, mounts);
        QFETCH(QStringList, devices);
        QFETCH(qint64, firstSize);
        QFETCH(qint64, firstAvailable);
        const QList<Disk> list = SystemInfoParsers::disks(df);
        QStringList gotMounts;
        QStringList gotDevices;
        for (const Disk& disk : list) {
            gotMounts << disk.mountPoint;
            gotDevices << disk.device;
        }
        QCOMPARE(gotMounts, mounts);
        QCOMPARE(gotDevices, devices);
        QCOMPARE(list.isEmpty() ? qint64(-1) : list.first().size, firstSize);
        QCOMPARE(list.isEmpty() ? qint64(-1) : list.first().available, firstAvailable);
    }

    void adapters_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("macs");
        QTest::addColumn<QStringList>("firstAddresses");
        QTest::newRow("terminal: wired with addresses, Wi-Fi down") << fixture(QStringLiteral("ip-addr-show.json"))
            << QStringList{"enp1s0", "wlp2s0"} << QStringList{"00:1e:c9:4a:7b:12", "7c:b2:7d:19:e4:30"}
            << QStringList{"192.168.10.57/24", "fe80::21e:c9ff:fe4a:7b12/64"};
        QTest::newRow("no Wi-Fi adapter") << fixture(QStringLiteral("ip-addr-show-host.json"))
            << QStringList{"ifb0", "ifb1", "eth0"} << QStringList{"7a:b1:db:75:03:b4", "06:64:7d:cb:f2:df", "02:fc:00:00:00:01"}
            << QStringList{};
        QTest::newRow("IPv4 listed before IPv6 whatever ip's order")
            << json("[{'ifname':'eth1','link_type':'ether','address':'AA:BB:CC:DD:EE:FF','addr_info':["
                    "{'family':'inet6','local':'fe80::1','prefixlen':64},{'family':'inet','local':'10.1.2.3','prefixlen':16}]}]")
            << QStringList{"eth1"} << QStringList{"aa:bb:cc:dd:ee:ff"} << QStringList{"10.1.2.3/16", "fe80::1/64"};
        QTest::newRow("only loopback") << QByteArray(json("[{'ifname':'lo','link_type':'loopback','address':'00:00:00:00:00:00'}]"))
                                       << QStringList{} << QStringList{} << QStringList{};
        QTest::newRow("not JSON") << QByteArray("Object \"addr\" is unknown, try \"ip help\".\n") << QStringList{}
                                  << QStringList{} << QStringList{};
    }
    void adapters()
    {
        QFETCH(QByteArray, json);
        QFETCH(QStringList, names);
        QFETCH(QStringList, macs);
        QFETCH(QStringList, firstAddresses);
        const QList<Adapter> list = SystemInfoParsers::adapters(json);
        QStringList gotNames;
        QStringList gotMacs;
        for (const Adapter& adapter : list) {
            gotNames << adapter.name;
            gotMacs << adapter.mac;
        }
        QCOMPARE(gotNames, names);
        QCOMPARE(gotMacs, macs);
        QCOMPARE(list.isEmpty() ? QStringList{} : list.first().addresses, firstAddresses);
    }

    void osRelease_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("release");
        QTest::newRow("recorded Debian") << fixture(QStringLiteral("os-release.txt")) << "Debian GNU/Linux 12 (bookworm)";
        QTest::newRow("no pretty name") << QByteArray("NAME=\"Norbix OS\"\nVERSION=\"3.1 (thin)\"\n") << "Norbix OS 3.1 (thin)";
        QTest::newRow("single quotes, comment") << QByteArray("# built 2024\nPRETTY_NAME='Norbix 3'\n") << "Norbix 3";
        QTest::newRow("unquoted") << QByteArray("PRETTY_NAME=Norbix\n") << "Norbix";
        QTest::newRow("escaped quote") << QByteArray("PRETTY_NAME=\"Norbix \\\"LTS\\\"\"\n") << "Norbix \"LTS\"";
        QTest::newRow("empty") << QByteArray() << "";
    }
    void osRelease()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, release);
        QCOMPARE(SystemInfoParsers::osRelease(text), release);
    }

    void installedPackages_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("packages"); // "name=version", sorted
        QTest::newRow("recorded: one client, firefox known but not installed") << fixture(QStringLiteral("dpkg-query-host.txt"))
            << QStringList{"freerdp2-x11=2.11.7+dfsg1-6~deb12u1"};
        QTest::newRow("terminal: removed chromium is not installed") << fixture(QStringLiteral("dpkg-query-terminal.txt"))
            << QStringList{"firefox-esr=115.12.0esr-1~deb12u1", "freerdp2-x11=2.11.7+dfsg1-6~deb12u1", "icaclient=24.2.0.65",
                           "putty=0.78-2+deb12u1"};
        QTest::newRow("architecture qualifier") << QByteArray("putty:amd64\tii \t0.78-2\n") << QStringList{"putty=0.78-2"};
        QTest::newRow("half-installed") << QByteArray("putty\tiF \t0.78-2\n") << QStringList{};
        QTest::newRow("short lines") << QByteArray("putty\tii\nnothing\n") << QStringList{};
        QTest::newRow("nothing") << QByteArray() << QStringList{};
    }
    void installedPackages()
    {
        QFETCH(QByteArray, output);
        QFETCH(QStringList, packages);
        const QHash<QString, QString> got = SystemInfoParsers::installedPackages(output);
        QStringList flat;
        for (auto it = got.begin(); it != got.end(); ++it)
            flat << it.key() + QLatin1Char('=') + it.value();
        flat.sort();
        QCOMPARE(flat, packages);
    }

    void collectOnATerminal()
    {
        FakeCommandRunner runner;
        answerTerminal(runner, fixture(QStringLiteral("dpkg-query-terminal.txt")), fixture(QStringLiteral("df-terminal.txt")),
                       fixture(QStringLiteral("ip-addr-show.json")));
        const QList<Fact> facts = SystemInfoModel::collect();

        QCOMPARE(factsOfKind(facts, "disk").size(), 3);
        QCOMPARE(SystemInfoModel::displayValue(factsOfKind(facts, "disk").at(2)),
                 QStringLiteral("/dev/sdb1: %1, %2 free").arg(SystemInfoModel::formatBytes(31000166400), SystemInfoModel::formatBytes(28854779904)));
        QCOMPARE(factsOfKind(facts, "adapter").size(), 2);
        QVERIFY(factsOfKind(facts, "adapter").at(0).value.contains("192.168.10.57/24"));
        QVERIFY(factsOfKind(facts, "adapter").at(1).value.contains("7c:b2:7d:19:e4:30"));
        QVERIFY(!factsOfKind(facts, "display").isEmpty());
        for (const Fact& display : factsOfKind(facts, "display"))
            QVERIFY2(display.state == State::Known && !display.value.isEmpty(), qPrintable(display.subject));
        QCOMPARE(factsOfKind(facts, "kernel").value(0).value, QStringLiteral("6.1.0-27-amd64"));
        QCOMPARE(factsOfKind(facts, "os").value(0).value, QStringLiteral("Debian GNU/Linux 12 (bookworm)"));
        QCOMPARE(factsOfKind(facts, "shell").value(0).value, QStringLiteral("1.2.16"));

        QCOMPARE(client(facts, "FreeRDP").value, QStringLiteral("2.11.7+dfsg1-6~deb12u1"));
        QCOMPARE(client(facts, "Firefox").value, QStringLiteral("115.12.0esr-1~deb12u1"));
        QCOMPARE(client(facts, "Citrix Workspace").value, QStringLiteral("24.2.0.65"));
        QCOMPARE(client(facts, "VMware Horizon").state, State::NotInstalled);
        QCOMPARE(client(facts, "Chromium").state, State::NotInstalled);
        QCOMPARE(SystemInfoModel::displayValue(client(facts, "VMware Horizon")), QStringLiteral("not installed"));

        // The package query names every client package, in the table's order.
        bool queried = false;
        for (const QStringList& line : runner.commandLines()) {
            if (line.value(0) == QLatin1String("dpkg-query")) {
                QCOMPARE(line.mid(3), QStringList({"freerdp2-x11", "freerdp3-x11", "icaclient", "vmware-horizon-client", "firefox-esr",
                                                   "firefox", "chromium", "chromium-browser", "putty"}));
                queried = true;
            }
        }
        QVERIFY(queried);
    }

    // Each missing tool leaves its own facts "unknown"; the page is never empty.
    void collectWithoutTools()
    {
        NothingStarts runner;
        const QList<Fact> facts = SystemInfoModel::collect();
        for (const QString& kind : QStringList{"cpu", "memory", "disk", "adapter", "display", "kernel", "os"}) {
            const QList<Fact> ofKind = factsOfKind(facts, kind);
            QCOMPARE(ofKind.size(), 1);
            QCOMPARE(ofKind.first().state, State::Unknown);
            QCOMPARE(SystemInfoModel::displayValue(ofKind.first()), QStringLiteral("unknown"));
            QVERIFY(!SystemInfoModel::label(ofKind.first()).isEmpty());
        }
        QCOMPARE(factsOfKind(facts, "shell").value(0).state, State::Known);
        // Without the package database a client is not known to be missing.
        const QList<Fact> clients = factsOfKind(facts, "client");
        QCOMPARE(clients.size(), SystemInfoParsers::clients().size());
        for (const Fact& f : clients)
            QCOMPARE(f.state, State::Unknown);
    }

    void modelReadsOffTheGuiThread()
    {
        FakeCommandRunner runner;
        answerTerminal(runner, fixture(QStringLiteral("dpkg-query-host.txt")), fixture(QStringLiteral("df-several-disks.txt")),
                       fixture(QStringLiteral("ip-addr-show-host.json")));
        SystemInfoModel model(nullptr);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy ready(&model, &SystemInfoModel::readyChanged);
        QCOMPARE(model.rowCount(), 0);
        model.asyncRead();
        QVERIFY(ready.wait(10000));
        QVERIFY(model.isReady());
        QCOMPARE(model.rowCount(), model.facts().size());
        QCOMPARE(model.roleNames().value(SystemInfoModel::SectionRole), QByteArray("section"));
        QCOMPARE(int(SystemInfoModel::SectionRole), 257);

        int disks = 0;
        QString putty;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row);
            QVERIFY(!index.data(SystemInfoModel::ValueRole).toString().isEmpty());
            if (index.data(SystemInfoModel::KindRole).toString() == QLatin1String("disk"))
                ++disks;
            if (index.data(SystemInfoModel::LabelRole).toString() == QLatin1String("PuTTY"))
                putty = index.data(SystemInfoModel::ValueRole).toString();
        }
        QCOMPARE(disks, 4);
        QCOMPARE(putty, QStringLiteral("not installed"));

        const QString text = model.asText();
        QVERIFY(text.contains(QStringLiteral("\nHardware\n")));
        QVERIFY(text.contains(QStringLiteral("\nSoftware\n")));
        QVERIFY(text.contains(QStringLiteral("Shell version: 1.2.16\n")));
        QVERIFY(text.contains(QStringLiteral("FreeRDP: 2.11.7+dfsg1-6~deb12u1\n")));
        QCOMPARE(text.count(QLatin1Char('\n')), model.rowCount() + 5); // title, blank + title per section
    }

    void formatBytes_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("unknown") << qint64(-1) << "";
        QTest::newRow("bytes") << qint64(512) << "512 bytes";
        QTest::newRow("GiB") << qint64(4039296) * 1024 << "3.9 GiB";
        QTest::newRow("TiB") << qint64(270553174016) << "252.0 GiB";
    }
    void formatBytes()
    {
        QFETCH(qint64, bytes);
        QFETCH(QString, text);
        QCOMPARE(SystemInfoModel::formatBytes(bytes), text);
    }

    void saveToDrive()
    {
        TestSandbox sandbox;
        QVERIFY(QDir().mkpath(sandbox.path("/media/SUPPORT")));
        InfoBackend backend;
        const QStringList drives = backend.listDrives();
        QCOMPARE(drives, QStringList{sandbox.path("/media/SUPPORT")});
        QCOMPARE(backend.driveLabel(drives.first()), QStringLiteral("SUPPORT"));
        const QString path = backend.saveToDrive(QStringLiteral("Kernel: 6.1\n"), drives.first());
        QVERIFY(path.startsWith(sandbox.path("/media/SUPPORT/system-info-")));
        QVERIFY(path.endsWith(QLatin1String(".txt")));
        QCOMPARE(TestSandbox::readFile(path), QByteArray("Kernel: 6.1\n"));

        // A drive that is not offered is refused: nothing written anywhere.
        QVERIFY(backend.saveToDrive(QStringLiteral("x"), sandbox.path("/etc")).isEmpty());
        QVERIFY(backend.saveToDrive(QStringLiteral("x"), sandbox.path("/media/SUPPORT/../..")).isEmpty());
        QCOMPARE(QDir(sandbox.path("/media/SUPPORT")).entryList(QDir::Files).size(), 1);
        // A drive pulled out after the list was shown.
        QVERIFY(QDir(sandbox.path("/media/SUPPORT")).removeRecursively());
        QVERIFY(backend.saveToDrive(QStringLiteral("x"), drives.first()).isEmpty());
    }

    void copyToSystemClipboard()
    {
        InfoBackend backend;
        backend.copyToClipboard(QStringLiteral("Processor: 2 \u00d7 test\n"));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Processor: 2 \u00d7 test\n"));
    }
};

QTEST_MAIN(tst_SystemInfo)
#include "tst_systeminfo.moc"
