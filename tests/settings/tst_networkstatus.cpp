// The network shown at a glance: nmcli's device table read, and the simulated terminal's states.
#include "CommandRunner.h"
#include "FakeCommandRunner.h"
#include "NetworkStatus.h"
#include "SimulatedNetwork.h"
#include "SimulatedTerminal.h"
#include "TestSandbox.h"

#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(NetworkStatus::Kind)

class tst_NetworkStatus : public QObject {
    Q_OBJECT

private slots:
    void parseDeviceStatus_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<NetworkStatus::Kind>("kind");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("known");
        QTest::newRow("recorded: wired and wi-fi") << TestSandbox::readFile(NORBIX_TEST_DATA "/network/nmcli-dev.txt")
                                                   << NetworkStatus::Wired << "" << true;
        QTest::newRow("wi-fi only, name with blanks")
                << QByteArray("DEVICE  TYPE      STATE         CONNECTION         \n"
                              "enp1s0  ethernet  unavailable   --                 \n"
                              "wlan0   wifi      connected     Corp WiFi 5 GHz    \n")
                << NetworkStatus::WiFi << "Corp WiFi 5 GHz" << true;
        QTest::newRow("wi-fi listed first, wired wins")
                << QByteArray("DEVICE  TYPE      STATE      CONNECTION \n"
                              "wlan0   wifi      connected  Home       \n"
                              "eth0    ethernet  connected  Office     \n")
                << NetworkStatus::Wired << "" << true;
        QTest::newRow("connected externally")
                << QByteArray("DEVICE  TYPE      STATE                   CONNECTION \n"
                              "eth0    ethernet  connected (externally)  eth0       \n")
                << NetworkStatus::Wired << "" << true;
        QTest::newRow("still connecting")
                << QByteArray("DEVICE  TYPE      STATE                                  CONNECTION \n"
                              "eth0    ethernet  connecting (getting IP configuration)  Wired 1    \n"
                              "wlan0   wifi      disconnected                           --         \n")
                << NetworkStatus::NoNetwork << "" << true;
        QTest::newRow("only loopback up")
                << QByteArray("DEVICE  TYPE      STATE                   CONNECTION \n"
                              "lo      loopback  connected (externally)  lo         \n"
                              "eth0    ethernet  unavailable             --         \n")
                << NetworkStatus::NoNetwork << "" << true;
        QTest::newRow("radio off")
                << QByteArray("DEVICE  TYPE  STATE        CONNECTION \nwlan0   wifi  unavailable  --         \n")
                << NetworkStatus::NoNetwork << "" << true;
        QTest::newRow("wi-fi without a profile name")
                << QByteArray("DEVICE  TYPE  STATE      CONNECTION \nwlan0   wifi  connected  --         \n")
                << NetworkStatus::WiFi << "" << true;
        QTest::newRow("two wi-fi devices, first counts")
                << QByteArray("DEVICE  TYPE  STATE      CONNECTION \nwlan0   wifi  connected  Alpha      \nwlan1   wifi  connected  Beta       \n")
                << NetworkStatus::WiFi << "Alpha" << true;
        QTest::newRow("short line") << QByteArray("DEVICE  TYPE      STATE      CONNECTION \neth0\n") << NetworkStatus::NoNetwork << "" << true;
        QTest::newRow("empty") << QByteArray() << NetworkStatus::NoNetwork << "" << false;
        QTest::newRow("error text") << QByteArray("Error: NetworkManager is not running.\n") << NetworkStatus::NoNetwork << "" << false;
        QTest::newRow("columns out of order")
                << QByteArray("DEVICE  STATE      TYPE      CONNECTION \neth0    connected  ethernet  x          \n")
                << NetworkStatus::NoNetwork << "" << false;
    }
    void parseDeviceStatus()
    {
        QFETCH(QByteArray, output);
        QFETCH(NetworkStatus::Kind, kind);
        QFETCH(QString, name);
        QFETCH(bool, known);
        const NetworkStatus::State state = NetworkStatus::parseDeviceStatus(output);
        QCOMPARE(state.kind, kind);
        QCOMPARE(state.name, name);
        QCOMPARE(state.known, known);
    }

    void describe()
    {
        QCOMPARE(NetworkStatus::describe({NetworkStatus::WiFi, "Office WiFi"}).contains("Office WiFi"), true);
        const QSet<QString> texts{NetworkStatus::describe({NetworkStatus::NoNetwork, {}, true}),
                                  NetworkStatus::describe({NetworkStatus::NoNetwork, {}, false}),
                                  NetworkStatus::describe({NetworkStatus::Wired, {}, true}),
                                  NetworkStatus::describe({NetworkStatus::WiFi, {}, true}),
                                  NetworkStatus::describe({NetworkStatus::WiFi, "x", true})};
        QCOMPARE(texts.size(), 5);
    }

    // What the simulated terminal's nmcli changes, the status reads back; signals on real change only.
    void followsTheSimulatedTerminal()
    {
        TestSandbox sandbox;
        SimulatedTerminal terminal;
        SimulatedNetwork::reset();
        CommandRunner::setInstance(&terminal);
        {
            NetworkStatus status(false, nullptr);
            QSignalSpy changed(&status, &NetworkStatus::changed);
            auto nmcli = [](const QStringList& args) {
                return CommandRunner::instance().run("sudo", QStringList("nmcli") + args).exitCode;
            };
            struct Expect {
                QStringList command;
                NetworkStatus::Kind kind;
                QString name;
                bool change;
            };
            const QList<Expect> steps{
                    {{}, NetworkStatus::Wired, "", true},
                    {{}, NetworkStatus::Wired, "", false},
                    {{"con", "down", "Wired connection 1"}, NetworkStatus::WiFi, "Office WiFi", true},
                    {{"con", "up", "Guest"}, NetworkStatus::WiFi, "Guest", true},
                    {{"radio", "wifi", "off"}, NetworkStatus::NoNetwork, "", true},
                    {{"radio", "wifi", "on"}, NetworkStatus::NoNetwork, "", false},
                    {{"con", "up", "Wired connection 1"}, NetworkStatus::Wired, "", true},
            };
            for (const Expect& step : steps) {
                if (!step.command.isEmpty())
                    QCOMPARE(nmcli(step.command), 0);
                const int before = changed.count();
                QSignalSpy refreshed(&status, &NetworkStatus::refreshed);
                status.refresh();
                QVERIFY(refreshed.wait());
                QCOMPARE(status.kind(), int(step.kind));
                QCOMPARE(status.networkName(), step.name);
                QCOMPARE(status.isOnline(), step.kind != NetworkStatus::NoNetwork);
                QCOMPARE(status.isOffline(), step.kind == NetworkStatus::NoNetwork);
                QCOMPARE(changed.count() - before, step.change ? 1 : 0);
            }
        }
        CommandRunner::setInstance(nullptr);
        SimulatedNetwork::reset();
    }

    void nmcliFailsMeansNoNetwork()
    {
        FakeCommandRunner fake;
        fake.answer("nmcli device status", "", 8, "Error: NetworkManager is not running.\n");
        fake.finishOnStart = true;
        NetworkStatus status(false, nullptr);
        QSignalSpy refreshed(&status, &NetworkStatus::refreshed);
        status.refresh();
        QVERIFY(refreshed.wait());
        QCOMPARE(fake.commandLines(), (QList<QStringList>{{"nmcli", "device", "status"}}));
        QVERIFY(!status.isOnline());
        // Nothing is known: starting a connection is not held back on a guess.
        QVERIFY(!status.isOffline());
        QCOMPARE(status.text(), NetworkStatus::describe({}));
    }

    // An nmcli that never answers holds nothing up: the next refresh gives it up and claims nothing.
    void stuckNmcliIsGivenUp()
    {
        FakeCommandRunner fake;
        fake.answer("nmcli device status", "DEVICE  TYPE      STATE      CONNECTION\neth0    ethernet  connected  Wired\n");
        NetworkStatus status(false, nullptr);
        QSignalSpy refreshed(&status, &NetworkStatus::refreshed);
        status.refresh();
        QCOMPARE(refreshed.count(), 0);
        status.refresh();
        QCOMPARE(refreshed.count(), 1);
        QVERIFY(!status.isOnline() && !status.isOffline());
        QCOMPARE(fake.commandLines().size(), 2);
        fake.finishAll();
        QCOMPARE(refreshed.count(), 2);
        QCOMPARE(status.kind(), int(NetworkStatus::Wired));
    }
};

QTEST_GUILESS_MAIN(tst_NetworkStatus)
#include "tst_networkstatus.moc"
