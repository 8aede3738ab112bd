// Which prompt a record without credentials gets, and what the VNC prompt starts.
#include "ConnectionManager.h"
#include "ConnectionStore.h"
#include "ConnectorLaunchers.h"
#include "FakeCommandRunner.h"
#include "TestSandbox.h"
#include "VNCPasswordBackend.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QtTest>

class tst_VncPassword : public QObject {
    Q_OBJECT

    static void store(const QJsonArray& records) { ConnectionStore::writeArray(records); }
    static QJsonObject record(int type, const QString& name, const QString& address, const QString& password,
                              bool autoConnect = false)
    {
        QJsonObject r{{"type", type}, {"name", name}, {"address", address}, {"auto_connect", autoConnect}};
        if (!password.isNull())
            r.insert("password", ConnectionStore::encryptPassword(password));
        return r;
    }

private slots:
    void initTestCase() { ConnectorLaunchers::install(); }

    void needsPrompt_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("password");
        QTest::addColumn<bool>("prompt");
        QTest::newRow("vnc, no password key") << int(VNC) << QString() << true;
        QTest::newRow("vnc, empty password") << int(VNC) << "" << true;
        QTest::newRow("vnc, stored password") << int(VNC) << "s3cret" << false;
        QTest::newRow("rdp without credentials") << int(RDP) << QString() << false;
        QTest::newRow("citrix") << int(Citrix) << QString() << false;
    }
    void needsPrompt()
    {
        QFETCH(int, type);
        QFETCH(QString, password);
        QFETCH(bool, prompt);
        TestSandbox sandbox;
        store({record(type, "one", "desk:5901", password)});
        ConnectionManager::getInstance()->reload();
        QCOMPARE(VNCPasswordBackend::needsPrompt(0), prompt);
        QCOMPARE(VNCPasswordBackend::needsPrompt(5), false); // no such record
    }

    // Auto-connect asks for the missing password; the VNC record gets its own prompt, RDP keeps its sign-in.
    void autoConnectAsks()
    {
        TestSandbox sandbox;
        FakeCommandRunner fake;
        store({record(RDP, "rdp", "ts", QString(), true), record(VNC, "vnc", "desk:5901", QString(), true),
               record(VNC, "off", "desk", QString(), false)});
        ConnectionManager::getInstance()->reload();
        QSignalSpy asked(ConnectionManager::getInstance(), &ConnectionManager::openPasswordPopup);
        ConnectionManager::getInstance()->performAutoconnect();
        QCOMPARE(asked.count(), 2);
        QList<bool> vncPrompt;
        for (const QList<QVariant>& call : asked)
            vncPrompt << VNCPasswordBackend::needsPrompt(call.at(0).toInt());
        QCOMPARE(vncPrompt, (QList<bool>{false, true}));
        QCOMPARE(fake.calls.size(), 0);
    }

    void connect_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("password");
        QTest::addColumn<bool>("launched");
        QTest::newRow("vnc with a password") << 1 << "typed" << true;
        QTest::newRow("vnc, nothing typed") << 1 << "" << false;
        QTest::newRow("not a vnc record") << 0 << "typed" << false;
        QTest::newRow("no such record") << 9 << "typed" << false;
    }
    void connect()
    {
        QFETCH(int, index);
        QFETCH(QString, password);
        QFETCH(bool, launched);
        TestSandbox sandbox;
        FakeCommandRunner fake; // the server is not reachable: the viewer stops after the probe
        store({record(RDP, "rdp", "ts", QString()), record(VNC, "vnc", "desk.lan:5901", QString())});
        ConnectionManager::getInstance()->reload();
        const QByteArray before = TestSandbox::readFile(ConnectionStore::filePath());
        VNCPasswordBackend backend;
        QVERIFY(!backend.connect(index, password));
        if (launched)
            QCOMPARE(fake.commandLines(), (QList<QStringList>{{"nmap", "-sV", "-sC", "desk.lan", "-p", "5901", "|", "grep", "open"}}));
        else
            QCOMPARE(fake.calls.size(), 0);
        // What was typed is never stored.
        QCOMPARE(TestSandbox::readFile(ConnectionStore::filePath()), before);
        QCOMPARE(VNCPasswordBackend::withPassword(Connection(), "x").get("password"), QStringLiteral("x"));
    }
};

QTEST_GUILESS_MAIN(tst_VncPassword)
#include "tst_vncpassword.moc"
