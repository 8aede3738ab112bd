#include "APIManager.h"
#include "AgentHarness.h"
#include "ConnectionManager.h"
#include "ConnectionStore.h"
#include "FakeCommandRunner.h"
#include "TestSandbox.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QtTest>

// The server's requests as the agent answers them, without a socket.
class tst_Requests : public QObject {
    Q_OBJECT

    FakeCommandRunner m_runner;
    TestSandbox* m_sandbox = nullptr;
    AgentHarness m_agent;
    APIManager::Services m_services;
    QStringList m_serviceCalls;

    APIManager* api() { return m_agent.api(); }
    QJsonObject answer() const { return m_agent.frames.isEmpty() ? QJsonObject() : m_agent.frame(0); }
    QJsonArray storedCatalogue() const
    {
        return QJsonDocument::fromJson(TestSandbox::readFile(m_sandbox->dataFile("connections.json"))).array();
    }

private slots:
    void initTestCase()
    {
        m_runner.answer("sudo lshw -json -quiet -class network -class processor",
                        TestSandbox::readFile(NORBIX_TEST_DATA "/simulation/lshw-network-processor.json"));
        m_runner.answer("nmcli device show", TestSandbox::readFile(NORBIX_TEST_DATA "/simulation/nmcli-device-show.txt"));
        TestSandbox sandbox;
        api()->init(QStringLiteral("0c7b1e35-6a57-3d3b-9d4e-2f0d1c3b4a59"), QStringLiteral("Linux thin 6.1.0 x86_64"));

        m_services.update = [this](const QString& type, const QString& version) { m_serviceCalls << "update " + type + " " + version; };
        m_services.updateSystem = [this](const QString& type, const QString& version) { m_serviceCalls << "updateSystem " + type + " " + version; };
        m_services.removeCertificate = [this](const QString& name) { m_serviceCalls << "remove " + name; };
        m_services.cleanCertificates = [this] { m_serviceCalls << "clean"; };
        m_services.addCertificateFromServer = [this](const QString& name, const QString& cert, const QString& pass) {
            m_serviceCalls << "add " + name + " " + cert + " " + pass;
            return name != QLatin1String("broken.crt");
        };
        APIManager::setServices(m_services);
    }

    void init()
    {
        m_sandbox = new TestSandbox;
        AgentHarness::setManaged(*m_sandbox, true);
        m_agent.frames.clear();
        m_runner.calls.clear();
        m_serviceCalls.clear();
    }
    void cleanup() { delete m_sandbox; }

    // Runs first: nothing has set the settings gate yet.
    void settingsUpdatesWaitForTheServersSettings()
    {
        QSignalSpy requested(api(), &APIManager::requestSettingsUpdate);
        api()->updateSettings();
        api()->handleRequest(R"({"action":"getSettings","id":1,"data":"not a document"})");
        api()->updateSettings();
        QCOMPARE(requested.count(), 0);
        api()->handleRequest(R"({"action":"getSettings","id":2,"data":{"Config":{"DebugLogs":true}}})");
        QCOMPARE(api()->lastSettings(), (QJsonObject{{"Config", QJsonObject{{"DebugLogs", true}}}}));
        QCOMPARE(requested.count(), 1); // what the document changed, reported once
        api()->updateSettings();
        QCOMPARE(requested.count(), 2);
        QCOMPARE(requested.last().first().toBool(), true);
        AgentHarness::setManaged(*m_sandbox, false);
        api()->updateSettings();
        QCOMPARE(requested.count(), 2);
    }

    // Every request of the server and the one frame that answers it.
    void answers_data()
    {
        QTest::addColumn<QString>("request");
        QTest::addColumn<QString>("expected");
        QTest::newRow("ping") << R"({"action":"ping","id":7})" << R"({"action":"pong","id":7})";
        QTest::newRow("ping, text id") << R"({"action":"ping","id":"a-1"})" << R"({"action":"pong","id":"a-1"})";
        QTest::newRow("shutdown") << R"({"action":"shutdown","id":2})" << R"({"action":"shutdown","data":"ok","id":2})";
        QTest::newRow("restart") << R"({"action":"restart","id":3})" << R"({"action":"restart","data":"ok","id":3})";
        QTest::newRow("helpMe") << R"({"action":"helpMe","id":4})" << R"({"action":"helpMe","data":"ok","id":4})";
        QTest::newRow("update, application") << R"({"action":"update","id":5,"data":{"type":"shell","version":"1.3.0"}})"
                                             << R"({"action":"update","id":5})";
        QTest::newRow("delCertificate") << R"({"action":"delCertificate","id":6,"data":"corp.crt"})"
                                        << R"({"action":"delCertificate","data":"ok","id":6})";
        QTest::newRow("uploadCertificate") << R"({"action":"uploadCertificate","id":8,"data":{"name":"a.crt","cert":"QUJD","pass":""}})"
                                           << R"({"action":"uploadCertificate","data":"ok","id":8})";
        QTest::newRow("uploadCertificate, refused") << R"({"action":"uploadCertificate","id":9,"data":{"name":"broken.crt","cert":"x","pass":"p"}})"
                                                    << R"({"action":"uploadCertificate","data":"error","id":9})";
        QTest::newRow("uploadCertificate, no body") << R"({"action":"uploadCertificate","id":10})"
                                                    << R"({"action":"uploadCertificate","data":"error","id":10})";
        QTest::newRow("cleanCertificates") << R"({"action":"cleanCertificates","id":11})" << R"({"action":"cleanCertificates","data":"ok","id":11})";
        QTest::newRow("getSettings with data") << R"({"action":"getSettings","id":12,"data":{"USB":{"Enabled":true}}})"
                                               << R"({"action":"getSettings","id":12})";
        QTest::newRow("remote, type 2") << R"({"action":"remote","id":13,"data":{"type":2,"port":"40001","token":"t0k"}})"
                                        << R"({"action":"remote","data":{"status":"ok"},"id":13})";
        QTest::newRow("remote without data") << R"({"action":"remote","id":14})" << R"({"action":"remote","id":14})";
        QTest::newRow("unknown action") << R"({"action":"selfDestruct","id":15,"data":{}})" << R"({"action":"selfDestruct","id":15})";
        QTest::newRow("action in other case") << R"({"action":"PING","id":16})" << R"({"action":"PING","id":16})";
        QTest::newRow("no id") << R"({"action":"helpMe"})" << R"({"action":"helpMe","data":"ok"})";
        QTest::newRow("not JSON") << "ping" << R"({"action":""})";
        QTest::newRow("JSON array") << R"([{"action":"ping","id":1}])" << R"({"action":""})";
        QTest::newRow("JSON string") << R"("ping")" << R"({"action":""})";
        QTest::newRow("empty") << "" << R"({"action":""})";
        QTest::newRow("action not a string") << R"({"action":5,"id":1})" << R"({"action":"","id":1})";
        QTest::newRow("truncated") << R"({"action":"ping","id":7)" << R"({"action":""})";
    }
    void answers()
    {
        QFETCH(QString, request);
        QFETCH(QString, expected);
        api()->handleRequest(request);
        QCOMPARE(m_agent.frames.size(), 1);
        QCOMPARE(answer(), QJsonDocument::fromJson(expected.toUtf8()).object());
    }

    void statusReportsLoadAndSystem()
    {
        api()->handleRequest(R"({"action":"status","id":1})");
        const QJsonObject data = answer().value("data").toObject();
        QCOMPARE(data.keys(), (QStringList{"cpu", "mem", "system"}));
        QVERIFY(data.value("cpu").isDouble());
        QVERIFY(data.value("cpu").toInt() >= -1 && data.value("cpu").toInt() <= 100);
        QVERIFY(data.value("mem").toInt() > 0 && data.value("mem").toInt() <= 100);
        QCOMPARE(data.value("system").toString(), QStringLiteral("Linux thin 6.1.0 x86_64"));
    }

    // auth: who the terminal is, then it asks for its catalogue and its settings, in that order.
    void authThenAsksForCatalogueAndSettings()
    {
        QSettings(m_sandbox->dataFile("api.ini"), QSettings::IniFormat).setValue("Account", "acme");
        api()->handleRequest(R"({"action":"auth","id":1})");
        QCOMPARE(m_agent.frames.size(), 3);
        const QJsonObject expected{{"serial", "0c7b1e35-6a57-3d3b-9d4e-2f0d1c3b4a59"},
                                   {"name", "norbix-4A7B12"},
                                   {"mac", "00:1e:c9:4a:7b:12"},
                                   {"version", "1.2.16"},
                                   {"account", "acme"}};
        QCOMPARE(m_agent.frame(0), (QJsonObject{{"action", "auth"}, {"id", 1}, {"data", expected}}));
        QCOMPARE(m_agent.frames.at(1), QStringLiteral(R"({"action":"getConnections"})"));
        QCOMPARE(m_agent.frames.at(2), QStringLiteral(R"({"action":"getSettings"})"));
    }

    void authUsesStoredName()
    {
        QSettings(m_sandbox->dataFile("api.ini"), QSettings::IniFormat).setValue("Id", "front-desk-2");
        api()->handleRequest(R"({"action":"auth","id":1})");
        QCOMPARE(answer().value("data").toObject().value("name").toString(), QStringLiteral("front-desk-2"));
        QCOMPARE(answer().value("data").toObject().value("account").toString(), QString());
    }

    void shutdownAndRestartRunAfterAnswering_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QStringList>("command");
        QTest::newRow("shutdown") << "shutdown" << QStringList{"sudo", "shutdown", "-h", "now"};
        QTest::newRow("restart") << "restart" << QStringList{"sudo", "reboot", "-f"};
    }
    void shutdownAndRestartRunAfterAnswering()
    {
        QFETCH(QString, action);
        QFETCH(QStringList, command);
        api()->handleRequest(QStringLiteral(R"({"action":"%1","id":1})").arg(action));
        QCOMPARE(m_agent.frames.size(), 1);
        QCOMPARE(m_runner.commandLinesOfThisThread(), QList<QStringList>{command});
        QVERIFY(m_runner.calls.first().detached);
    }

    void updateGoesToTheRightUpdater_data()
    {
        QTest::addColumn<QString>("data");
        QTest::addColumn<QString>("call");
        QTest::newRow("no system key") << R"({"type":"shell","version":"1.3"})" << "update shell 1.3";
        QTest::newRow("system false") << R"({"system":false,"type":"shell","version":"1.3"})" << "update shell 1.3";
        QTest::newRow("system true") << R"({"system":true,"type":"os","version":"12.5"})" << "updateSystem os 12.5";
        QTest::newRow("system as text") << R"({"system":"true","type":"os","version":"12.5"})" << "update os 12.5";
    }
    void updateGoesToTheRightUpdater()
    {
        QFETCH(QString, data);
        QFETCH(QString, call);
        api()->handleRequest(QStringLiteral(R"({"action":"update","id":3,"data":%1})").arg(data));
        QCOMPARE(m_serviceCalls, QStringList{call});
    }

    void certificateRequestsReachTheStore()
    {
        QSignalSpy updated(api(), &APIManager::updated);
        api()->handleRequest(R"({"action":"delCertificate","id":1,"data":"corp.crt"})");
        api()->handleRequest(R"({"action":"uploadCertificate","id":2,"data":{"name":"root.pem","cert":"LS0t","pass":"pw"}})");
        api()->handleRequest(R"({"action":"uploadCertificate","id":3,"data":{"name":"broken.crt","cert":"x","pass":""}})");
        api()->handleRequest(R"({"action":"cleanCertificates","id":4})");
        api()->handleRequest(R"({"action":"delCertificate","id":5,"data":{"name":"x"}})");
        QCOMPARE(m_serviceCalls, (QStringList{"remove corp.crt", "add root.pem LS0t pw", "add broken.crt x ", "clean"}));
        QCOMPARE(updated.count(), 3); // removal, successful upload, removal without a name
    }

    void helpMeFromServerRaisesHelpNeeded()
    {
        QSignalSpy help(api(), &APIManager::helpNeeded);
        api()->handleRequest(R"({"action":"helpMe","id":1})");
        QCOMPARE(help.count(), 1);
    }

    void needHelpSendsHelpMe()
    {
        api()->needHelp();
        QCOMPARE(m_agent.frames, QStringList{R"({"action":"helpMe","data":{}})"});
    }

    // Unmanaged: nothing leaves, whatever arrives or changes.
    void nothingIsSentWhenUnmanaged()
    {
        AgentHarness::setManaged(*m_sandbox, false);
        for (const char* request : {R"({"action":"ping","id":1})", R"({"action":"auth","id":2})", R"({"action":"status","id":3})",
                                    R"({"action":"getConnections","id":4})", R"({"action":"remote","id":5,"data":{"type":2,"port":"1","token":"t"}})",
                                    "garbage"})
            api()->handleRequest(QString::fromLatin1(request));
        api()->needHelp();
        api()->updateConnections({});
        api()->makeRequest("getSettings");
        api()->sendResponse(R"({"action":"pong"})");
        QCOMPARE(m_agent.frames, QStringList());
    }

    void remoteAskingTheUserAnswersLater_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("deny on timeout") << 0;
        QTest::newRow("accept on timeout") << 1;
    }
    void remoteAskingTheUserAnswersLater()
    {
        QFETCH(int, type);
        QSignalSpy request(api(), &APIManager::connectionRequest);
        api()->handleRequest(QStringLiteral(R"({"action":"remote","id":21,"data":{"type":%1,"port":"40001","token":"abc",)"
                                            R"("title":"Support","text":"May we look?","timeout":30}})").arg(type));
        QCOMPARE(m_agent.frames, QStringList());
        QCOMPARE(m_runner.calls.size(), 0);
        QCOMPARE(request.count(), 1);
        QCOMPARE(request.first(), (QVariantList{21, type, "Support", "May we look?", 30, "abc", "40001"}));
    }

    void remoteAutoAcceptStartsTunnel_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("source");
        QTest::newRow("host and path") << "wss://mgmt.example.org/api/v1/ws" << "mgmt.example.org:40001";
        QTest::newRow("host, port and path") << "wss://mgmt.example.org:8443/api/v1/ws" << "mgmt.example.org:40001";
        QTest::newRow("plain ws, address") << "ws://10.0.0.5:9000/api/v1/ws" << "10.0.0.5:40001";
    }
    void remoteAutoAcceptStartsTunnel()
    {
        QFETCH(QString, url);
        QFETCH(QString, source);
        AgentHarness::setManaged(*m_sandbox, true, url);
        api()->handleRequest(R"({"action":"remote","id":5,"data":{"type":2,"port":"40001","token":"s3cr3t","title":"","text":"","timeout":0}})");
        QCOMPARE(m_runner.calls.size(), 1);
        QCOMPARE(m_runner.calls.first().commandLine(),
                 (QStringList{"/opt/norbix/tools/tunnel", "--src", source, "--dst", "127.0.0.1:5900", "--token", "s3cr3t"}));
        QVERIFY(!m_runner.calls.first().detached); // watched, for the assistance indicator
    }

    void userAnswersCarryTheRequestId()
    {
        api()->rejectConnection(31);
        api()->timeoutConnection(32);
        QCOMPARE(m_runner.calls.size(), 0);
        api()->acceptConnection(33, "tok", "40002");
        QCOMPARE(m_agent.frames, (QStringList{R"({"action":"remote","data":{"status":"reject"},"id":31})",
                                              R"({"action":"remote","data":{"status":"timeout"},"id":32})",
                                              R"({"action":"remote","data":{"status":"ok"},"id":33})"}));
        QCOMPARE(m_runner.calls.size(), 1);
        QCOMPARE(m_runner.calls.first().arguments.at(1), QStringLiteral("mgmt.example.org:40002"));
    }

    // --- catalogue ---------------------------------------------------------------------------

    void getConnectionsSendsTheCatalogue()
    {
        ConnectionStore::writeArray(QJsonArray{
            QJsonObject{{"type", 3}, {"name", "Office"}, {"address", "rdp.example"}, {"username", "ann"},
                        {"password", ConnectionStore::encryptPassword("pw")}, {"auto_connect", true}},
            QJsonObject{{"type", 1}, {"name", "Lab"}, {"address", "vnc.example"}, {"enabled", false}}});
        api()->handleRequest(R"({"action":"getConnections","id":40})");
        const QJsonArray expected{
            QJsonObject{{"Type", "RDP"}, {"Name", "Office"}, {"Address", "rdp.example"}, {"AccountUsername", "ann"},
                        {"AccountPassword", "pw"}, {"AutoConnect", true}, {"Enabled", true}},
            QJsonObject{{"Type", "VNC"}, {"Name", "Lab"}, {"Address", "vnc.example"}, {"AccountPassword", ""}, {"Enabled", false}}};
        QCOMPARE(answer(), (QJsonObject{{"action", "getConnections"}, {"id", 40}, {"data", expected}}));
    }

    void pushedCatalogueReplacesTheStoredOne()
    {
        ConnectionStore::writeArray(QJsonArray{QJsonObject{{"type", 0}, {"name", "Old"}}});
        QSignalSpy changed(ConnectionManager::getInstance(), &ConnectionManager::updateConnections);
        const QJsonArray pushed{
            QJsonObject{{"Type", "PuTTY"}, {"Name", "Router"}, {"Address", "10.0.0.1"}, {"AccountUsername", "admin"}},
            QJsonObject{{"Type", "RDP"}, {"Name", "Desk"}, {"Address", "desk"}, {"AccountPassword", "s3"}, {"Multimon", true}}};
        api()->handleRequest(AgentHarness::text({{"action", "getConnections"}, {"id", 41}, {"data", pushed}}));

        QCOMPARE(changed.count(), 1);
        const QJsonArray stored = storedCatalogue();
        QCOMPARE(stored.size(), 2);
        QCOMPARE(stored.at(0).toObject().value("type").toInt(), 6);
        QCOMPARE(stored.at(0).toObject().value("username").toString(), QStringLiteral("admin"));
        const QString password = stored.at(1).toObject().value("password").toString();
        QVERIFY2(password.startsWith("e:"), qPrintable(password));
        QCOMPARE(ConnectionStore::decryptPassword(password), QStringLiteral("s3"));
        QCOMPARE(stored.at(1).toObject().value("multimon"), QJsonValue(true));
        // Answered with the list it took; not reported back as a local change.
        QCOMPARE(m_agent.frames.size(), 1);
        QCOMPARE(answer().value("data").toArray(), pushed);
    }

    void emptyPushEmptiesTheCatalogue()
    {
        ConnectionStore::writeArray(QJsonArray{QJsonObject{{"type", 0}, {"name", "Old"}}});
        api()->handleRequest(R"({"action":"getConnections","id":42,"data":[]})");
        QCOMPARE(storedCatalogue(), QJsonArray());
        QCOMPARE(answer(), (QJsonObject{{"action", "getConnections"}, {"id", 42}, {"data", QJsonArray()}}));
    }

    void pushThatIsNotAListChangesNothing_data()
    {
        QTest::addColumn<QString>("data");
        QTest::newRow("object") << R"({"Type":"RDP"})";
        QTest::newRow("string") << R"("[]")";
        QTest::newRow("null") << "null";
        QTest::newRow("number") << "3";
    }
    void pushThatIsNotAListChangesNothing()
    {
        QFETCH(QString, data);
        const QJsonArray before{QJsonObject{{"type", 0}, {"name", "Keep"}, {"password", ConnectionStore::encryptPassword("")}}};
        ConnectionStore::writeArray(before);
        api()->handleRequest(QStringLiteral(R"({"action":"getConnections","id":43,"data":%1})").arg(data));
        QCOMPARE(storedCatalogue(), before);
        QCOMPARE(answer(), (QJsonObject{{"action", "getConnections"}, {"id", 43}}));
    }

    // A local edit leaves as "setConnections" with the whole fresh list.
    void localEditIsReported()
    {
        Connection record = Connection::withFields(Browser, {{"name", "Intranet"}, {"address", "https://intra"}});
        ConnectionManager::getInstance()->saveConnection(record, {"name", "address"});
        QCOMPARE(m_agent.frames.size(), 1);
        QCOMPARE(m_agent.frame(0).value("action").toString(), QStringLiteral("setConnections"));
        QCOMPARE(m_agent.frame(0).value("data").toArray(),
                 (QJsonArray{QJsonObject{{"Type", "Browser"}, {"Name", "Intranet"}, {"Address", "https://intra"},
                                         {"AccountPassword", ""}, {"Enabled", true}}}));
        QVERIFY(!m_agent.frame(0).contains("id"));
    }

    // --- settings ----------------------------------------------------------------------------

    void getSettingsSendsTheDocument()
    {
        api()->handleRequest(R"({"action":"getSettings","id":50})");
        const QJsonObject data = answer().value("data").toObject();
        QVERIFY2(data.contains("Config") && data.contains("USB") && data.contains("AdditionalSettingsEnabled"),
                 qPrintable(AgentHarness::text(data)));
    }

    // --- configuration -----------------------------------------------------------------------

    void configCreatedOnFirstRead()
    {
        QFile::remove(m_sandbox->dataFile("api.ini"));
        QCOMPARE(api()->isEnabled(), false);
        QSettings settings(m_sandbox->dataFile("api.ini"), QSettings::IniFormat);
        QCOMPARE(settings.value("URL").toString(), APIManager::defaultUrl());
        QCOMPARE(settings.value("Enabled").toString(), QStringLiteral("false"));
        QVERIFY(APIManager::defaultUrl().startsWith("wss://"));
        QVERIFY(APIManager::defaultUrl().endsWith("/api/v1/ws"));
    }

    void settersWriteTheirKeys()
    {
        QSignalSpy restart(api(), &APIManager::restartConnection);
        api()->setManaged(1);
        api()->setManagedUrl("ws://127.0.0.1:1/api/v1/ws");
        api()->setAccount("tenant-7");
        api()->setAdvancedEnabled(true);
        QSettings settings(m_sandbox->dataFile("api.ini"), QSettings::IniFormat);
        QCOMPARE(settings.value("Enabled").toBool(), true);
        QCOMPARE(settings.value("URL").toString(), QStringLiteral("ws://127.0.0.1:1/api/v1/ws"));
        QCOMPARE(settings.value("Account").toString(), QStringLiteral("tenant-7"));
        QCOMPARE(settings.value("AdvancedEnabled").toBool(), true);
        QCOMPARE(restart.count(), 3);
        api()->setManaged(0);
        QCOMPARE(api()->isEnabled(), false);
        api()->setManaged(2); // only 1 turns it on
        QCOMPARE(api()->isEnabled(), false);
    }

    void setIdWritesHostsAndHostname()
    {
        api()->setId("front-desk-2");
        QCOMPARE(TestSandbox::readFile(m_sandbox->dataFile("hosts")), APIManager::hostsFileContent("front-desk-2"));
        QCOMPARE(TestSandbox::readFile(m_sandbox->dataFile("hostname")), QByteArray("front-desk-2"));
        QCOMPARE(m_runner.commandLinesOfThisThread(), (QList<QStringList>{{"sudo", "hostname", "front-desk-2"},
                                                              {"sudo", "cp", "-f", "/data/norbix/hosts", "/etc/hosts"},
                                                              {"sudo", "cp", "-f", "/data/norbix/hostname", "/etc/hostname"}}));
        QCOMPARE(api()->getId(), QStringLiteral("front-desk-2"));
    }

    void setIdWithoutNameUsesTheMadeOne()
    {
        api()->setId(QString());
        QCOMPARE(QSettings(m_sandbox->dataFile("api.ini"), QSettings::IniFormat).value("Id").toString(), QStringLiteral("norbix-4A7B12"));
        QCOMPARE(m_runner.commandLinesOfThisThread().first(), (QStringList{"nmcli", "device", "show"}));
    }

    void setIdRefusesWhatIsNotAHostName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("blank inside") << "front desk";
        QTest::newRow("shell characters") << "pc;reboot";
        QTest::newRow("command substitution") << "$(id)";
        QTest::newRow("leading hyphen") << "-front";
        QTest::newRow("trailing hyphen") << "front-";
        QTest::newRow("dotted") << "front.desk";
        QTest::newRow("non-ASCII") << QString::fromUtf8("empf\xc3\xa4nger");
        QTest::newRow("line feed") << "front\nevil";
        QTest::newRow("64 characters") << QString(64, QLatin1Char('a'));
    }

    void setIdRefusesWhatIsNotAHostName()
    {
        QFETCH(QString, name);
        api()->setId("front-desk-2");
        m_runner.calls.clear();
        api()->setId(name);
        QVERIFY(m_runner.commandLinesOfThisThread().isEmpty());
        QCOMPARE(TestSandbox::readFile(m_sandbox->dataFile("hostname")), QByteArray("front-desk-2"));
        QCOMPARE(api()->getId(), QStringLiteral("front-desk-2"));
    }

    void setIdTakesTheLongestLabel()
    {
        const QString name(63, QLatin1Char('b'));
        api()->setId(name);
        QCOMPARE(TestSandbox::readFile(m_sandbox->dataFile("hostname")), name.toUtf8());
    }

    void vncPasswordCommands()
    {
        api()->setVNCPassword("pa ss");
        QCOMPARE(m_runner.commandLinesOfThisThread(), (QList<QStringList>{{"sudo", "x11vnc", "-storepasswd", "pa ss", "/etc/x11vnc.pass"},
                                                              {"sudo", "systemctl", "daemon-reload"},
                                                              {"sudo", "systemctl", "restart", "x11vnc"}}));
        QVERIFY(!m_runner.calls.first().detached);
    }

    // --- bad input ---------------------------------------------------------------------------

    void hugeFrameIsAnswered()
    {
        const QString padding(8 * 1024 * 1024, QLatin1Char('x'));
        api()->handleRequest(AgentHarness::text({{"action", "ping"}, {"id", 1}, {"data", padding}}));
        QCOMPARE(m_agent.frames, QStringList{R"({"action":"pong","id":1})"});
    }

    void hugeCatalogueIsStored()
    {
        QJsonArray pushed;
        for (int i = 0; i < 5000; ++i)
            pushed.append(QJsonObject{{"Type", "RDP"}, {"Name", QString("Desk %1").arg(i)}, {"Extra", QString(500, 'e')}});
        api()->handleRequest(AgentHarness::text({{"action", "getConnections"}, {"id", 2}, {"data", pushed}}));
        QCOMPARE(storedCatalogue().size(), 5000);
    }

    void deeplyNestedJsonIsHarmless()
    {
        const int depth = 100000;
        const QString nested = QString(depth, '[') + QString(depth, ']');
        api()->handleRequest(QStringLiteral(R"({"action":"getConnections","id":3,"data":)") + nested + "}");
        api()->handleRequest(nested);
        QCOMPARE(m_agent.frames.size(), 2);
        QCOMPARE(m_agent.frame(1), (QJsonObject{{"action", ""}}));
        const QString objects = QString(depth, '{').replace("{", R"({"a":)") + "1" + QString(depth, '}');
        api()->handleRequest(objects);
        QCOMPARE(m_agent.frames.size(), 3);
    }

    // Every field of every request with a value of the wrong type: an answer or silence, and the
    // catalogue file stays an array.
    void wrongTypesEverywhere()
    {
        const QJsonValue wrong[] = {QJsonValue(), QJsonValue(true), QJsonValue(-1), QJsonValue(1e300), QJsonValue("text"),
                                    QJsonArray{1, "a"}, QJsonObject{{"x", 1}}};
        const char* actions[] = {"ping", "status", "auth", "getSettings", "getConnections", "update", "remote",
                                 "helpMe", "delCertificate", "uploadCertificate", "cleanCertificates"};
        const char* fields[] = {"type", "port", "token", "title", "text", "timeout", "system", "version", "name", "cert", "pass"};
        for (const char* action : actions) {
            for (const QJsonValue& value : wrong) {
                QJsonObject body;
                for (const char* field : fields)
                    body.insert(QLatin1String(field), value);
                for (const QJsonValue& data : {value, QJsonValue(body), QJsonValue(QJsonArray{body, value})}) {
                    m_agent.frames.clear();
                    api()->handleRequest(AgentHarness::text({{"action", action}, {"id", value}, {"data", data}}));
                    QVERIFY(m_agent.frames.size() <= (qstrcmp(action, "auth") == 0 ? 3 : 1));
                    QVERIFY(QJsonDocument::fromJson(TestSandbox::readFile(m_sandbox->dataFile("connections.json"))).isArray()
                            || !QFile::exists(m_sandbox->dataFile("connections.json")));
                }
            }
        }
        // Wire objects whose keys all carry the wrong type.
        for (const QJsonValue& value : wrong) {
            QJsonObject wire{{"Type", "RDP"}};
            for (const char* key : {"Address", "Name", "AccountUsername", "AccountPassword", "AutoConnect", "Enabled", "Percentage"})
                wire.insert(QLatin1String(key), value);
            api()->handleRequest(AgentHarness::text({{"action", "getConnections"}, {"id", 1}, {"data", QJsonArray{wire}}}));
            QCOMPARE(storedCatalogue().size(), 1);
            ConnectionManager::getInstance()->listConnections();
        }
    }
};

QTEST_GUILESS_MAIN(tst_Requests)
#include "tst_requests.moc"
