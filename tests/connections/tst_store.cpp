#include "ConnectionManager.h"
#include "ConnectorLaunchers.h"
#include "ConnectionStore.h"
#include "FakeCommandRunner.h"
#include "PasswordCipher.h"
#include "TestSandbox.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QtTest>

namespace {

Connection record(ConnectionType type, const QString& name, const QJsonObject& extra = {})
{
    QJsonObject data = extra;
    data.insert(QStringLiteral("type"), int(type));
    data.insert(QStringLiteral("name"), name);
    return Connection(data);
}

} // namespace

// The catalogue file: what is stored, in which form, and what survives which change.
class tst_Store : public QObject {
    Q_OBJECT

    TestSandbox* m_sandbox = nullptr;
    FakeCommandRunner* m_runner = nullptr;
    ConnectionManager* manager() { return ConnectionManager::getInstance(); }

    QJsonArray stored() const
    {
        return QJsonDocument::fromJson(TestSandbox::readFile(m_sandbox->dataFile(QStringLiteral("connections.json")))).array();
    }
    void writeCatalogue(const QByteArray& json) { TestSandbox::writeFile(m_sandbox->dataFile(QStringLiteral("connections.json")), json); }

private slots:
    // Start-up hands the catalogue its launchers; so does this test.
    void initTestCase() { ConnectorLaunchers::install(); }
    void init()
    {
        m_sandbox = new TestSandbox;
        m_runner = new FakeCommandRunner;
        ConnectionManager::setChangeReporter({});
    }
    void cleanup()
    {
        delete m_runner;
        delete m_sandbox;
    }

    void saveKeepsOnlyListedKeys()
    {
        QSignalSpy changed(manager(), &ConnectionManager::updateConnections);
        manager()->saveConnection(record(RDP, "Desk", {{"address", "rdp.example"}, {"secret_note", "x"}, {"domain", "CORP"}}),
                                  {"name", "address"});
        QCOMPARE(changed.count(), 1);
        const QJsonObject saved = stored().at(0).toObject();
        QStringList keys = saved.keys();
        keys.sort();
        QCOMPARE(keys, QStringList({"address", "enabled", "name", "password", "type"}));
        QCOMPARE(saved.value("type").toInt(), int(RDP));
        QCOMPARE(saved.value("enabled").toBool(), true);
        // No password given: still stored, marked and enciphered, and lists as empty text.
        QVERIFY(saved.value("password").toString().startsWith("e:"));
        QCOMPARE(manager()->listConnections().at(0).get("password"), QString());
    }

    void passwordsStoredEnciphered()
    {
        manager()->saveConnection(record(RDP, "Desk", {{"password", "S3cret pass"}}), {"name", "password"});
        const QString storedPassword = stored().at(0).toObject().value("password").toString();
        QCOMPARE(storedPassword, QStringLiteral("e:") + QString::fromLatin1(PasswordCipher::encipher("S3cret pass")));
        QVERIFY(!TestSandbox::readFile(m_sandbox->dataFile("connections.json")).contains("S3cret"));
        QCOMPARE(manager()->listConnections().at(0).get("password"), QStringLiteral("S3cret pass"));
        QCOMPARE(ConnectionStore::decryptPassword(ConnectionStore::encryptPassword("äöü €")), QStringLiteral("äöü €"));
    }

    // Older records: plain password, no "enabled". Read as they are; encrypted only when rewritten.
    void legacyRecords()
    {
        writeCatalogue(R"([{"type":3,"name":"Old","address":"a","password":"plain"},{"type":6,"name":"Ssh"}])");
        const QList<Connection> list = manager()->listConnections();
        QCOMPARE(list.at(0).get("password"), QStringLiteral("plain"));
        QCOMPARE(list.at(0).getBool("enabled"), true);
        QVERIFY(manager()->isEnabled(1));

        manager()->saveConnection(record(Putty, "New"), {"name"});
        QCOMPARE(stored().at(0).toObject().value("password").toString(), QStringLiteral("plain"));
        QVERIFY(!stored().at(0).toObject().contains("enabled"));

        manager()->replaceConnection(0, record(RDP, "Old", {{"password", "plain"}}), {"name", "password"});
        QVERIFY(stored().at(0).toObject().value("password").toString().startsWith("e:"));
        QCOMPARE(manager()->listConnections().at(0).get("password"), QStringLiteral("plain"));
    }

    void replaceDropsAutoConnect()
    {
        manager()->saveConnection(record(RDP, "A"), {"name"});
        manager()->setAutoconnect(0, true);
        QVERIFY(manager()->shouldAutoConnect(0));
        manager()->replaceConnection(0, record(RDP, "A2"), {"name"});
        QVERIFY(!manager()->shouldAutoConnect(0));
        QVERIFY(!stored().at(0).toObject().contains("enabled")); // replace does not add it
        QVERIFY(manager()->isEnabled(0));                          // but it reads as enabled
        QCOMPARE(manager()->getConnection(0).getConnectionName(), QStringLiteral("A2"));
    }

    void removeShiftsIndices()
    {
        for (const char* name : {"A", "B", "C"})
            manager()->saveConnection(record(RDP, name), {"name"});
        manager()->remove(0);
        QCOMPARE(manager()->listConnectionNames(), QStringList({"B", "C"}));
        QCOMPARE(manager()->getConnection(1).getConnectionName(), QStringLiteral("C"));
    }

    void outOfRangeIndicesChangeNothing_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("negative") << -1;
        QTest::newRow("past the end") << 2;
    }
    void outOfRangeIndicesChangeNothing()
    {
        QFETCH(int, index);
        manager()->saveConnection(record(RDP, "A"), {"name"});
        manager()->saveConnection(record(VMWare, "B"), {"name"});
        const QJsonArray before = stored();
        QSignalSpy changed(manager(), &ConnectionManager::updateConnections);
        manager()->remove(index);
        manager()->replaceConnection(index, record(RDP, "X"), {"name"});
        manager()->setAutoconnect(index, true);
        QCOMPARE(changed.count(), 3); // still announced
        QCOMPARE(stored(), before);
        QCOMPARE(manager()->getConnection(index).getConnectionName(), QString());
        QVERIFY(!manager()->connectToIndex(index));
    }

    void autoConnectFlagsPerRecord()
    {
        for (const char* name : {"A", "B", "C"})
            manager()->saveConnection(record(RDP, name), {"name"});
        manager()->setAutoconnect(0, true);
        manager()->setAutoconnect(2, true);
        QCOMPARE(manager()->shouldAutoConnect(0), true);
        QCOMPARE(manager()->shouldAutoConnect(1), false);
        QCOMPARE(manager()->shouldAutoConnect(2), true);
        manager()->setAutoconnect(0, false);
        QCOMPARE(stored().at(0).toObject().value("auto_connect"), QJsonValue(false));
    }

    // Whatever is in the file, the catalogue opens; an unreadable file is kept before it is replaced.
    void badFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("listed");
        QTest::addColumn<bool>("keptAsBad");
        QTest::newRow("empty file") << QByteArray() << 0 << false;
        QTest::newRow("not JSON") << QByteArray("{{{ oops") << 0 << true;
        QTest::newRow("object, not array") << QByteArray(R"({"type":3,"name":"x"})") << 0 << true;
        QTest::newRow("unknown type and wrong value types")
            << QByteArray(R"([{"type":42,"name":"Future"},{"type":"3","name":7,"password":5},17])") << 3 << false;
    }
    void badFiles()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, listed);
        QFETCH(bool, keptAsBad);
        writeCatalogue(content);
        QCOMPARE(manager()->listConnections().size(), listed);
        manager()->saveConnection(record(Putty, "New"), {"name"});
        QCOMPARE(manager()->listConnections().size(), listed + 1);
        QCOMPARE(manager()->listConnectionNames().constLast(), QStringLiteral("New"));
        QCOMPARE(QFile::exists(m_sandbox->dataFile("connections.json.bad")), keptAsBad);
        if (keptAsBad)
            QCOMPARE(TestSandbox::readFile(m_sandbox->dataFile("connections.json.bad")), content);
        if (listed == 3) {
            // The odd records are copied back exactly as they were.
            QCOMPARE(stored().at(0).toObject().value("type").toInt(), 42);
            QCOMPARE(stored().at(1).toObject().value("name"), QJsonValue(7));
            QCOMPARE(stored().at(2), QJsonValue(17));
            QVERIFY(!manager()->connectToIndex(0)); // unknown kind starts nothing
            QVERIFY(m_runner->calls.isEmpty());
        }
    }

    void catalogueFromServer()
    {
        manager()->saveConnection(record(RDP, "Local"), {"name"});
        int reports = 0;
        ConnectionManager::setChangeReporter([&](const QList<Connection>&) { ++reports; });
        QSignalSpy changed(manager(), &ConnectionManager::updateConnections);
        manager()->setConnections({record(VNC, "V", {{"password", "pw"}, {"percentage", 50}}), record(Teams, "T")});
        QCOMPARE(changed.count(), 1);
        QCOMPARE(reports, 0); // not sent back
        QCOMPARE(manager()->listConnectionNames(), QStringList({"V", "T"}));
        QVERIFY(stored().at(0).toObject().value("password").toString().startsWith("e:"));
        QCOMPARE(stored().at(0).toObject().value("percentage").toInt(), 50);
        QVERIFY(stored().at(1).toObject().value("password").toString().startsWith("e:"));
    }

    void everyLocalChangeIsReported()
    {
        QList<QStringList> reports;
        ConnectionManager::setChangeReporter([&](const QList<Connection>& list) {
            QStringList names;
            for (const Connection& c : list)
                names << c.getConnectionName() + ":" + c.get("password");
            reports << names;
        });
        manager()->saveConnection(record(RDP, "A", {{"password", "p"}}), {"name", "password"});
        manager()->saveConnection(record(RDP, "B"), {"name"});
        manager()->setAutoconnect(1, true);
        manager()->replaceConnection(0, record(RDP, "A2"), {"name"});
        manager()->remove(1);
        QVERIFY(manager()->addTeamsConnection());
        QCOMPARE(reports.size(), 6);
        QCOMPARE(reports.at(0), QStringList({"A:p"})); // fresh list, passwords in clear
        QCOMPARE(reports.at(4), QStringList({"A2:"}));
        QCOMPARE(reports.at(5), QStringList({"A2:", "Microsoft Teams:"}));
        ConnectionManager::setChangeReporter({});
    }

    // connections.ini has a numbering of its own, unlike the record types.
    void typeSwitches_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("key");
        const char* keys[] = {"VNCEnabled", "RDPEnabled", "BrowserEnabled", "CitrixEnabled", "VMWareEnabled", "TeamsEnabled", "PuttyEnabled"};
        for (int id = 0; id < 7; ++id)
            QTest::addRow("%d", id) << id << QString::fromLatin1(keys[id]);
    }
    void typeSwitches()
    {
        QFETCH(int, id);
        QFETCH(QString, key);
        QVERIFY(manager()->isConnectionTypeEnabled(id)); // default on
        manager()->setConnectionTypeEnabled(id, false);
        QVERIFY(!manager()->isConnectionTypeEnabled(id));
        const QByteArray ini = TestSandbox::readFile(m_sandbox->dataFile("connections.ini"));
        QVERIFY2(ini.contains(key.toLatin1() + "=false"), ini.constData());
        QCOMPARE(ini.count('='), 1);
        QVERIFY(!manager()->isConnectionTypeEnabled(7));
        QVERIFY(!manager()->isConnectionTypeEnabled(-1));
    }
};

QTEST_GUILESS_MAIN(tst_Store)
#include "tst_store.moc"
