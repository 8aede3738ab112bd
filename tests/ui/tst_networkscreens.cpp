// The network screens' forms: what they refuse before anything runs, and what they hand on.
#include "FakeCommandRunner.h"
#include "QmlRegistration.h"
#include "SystemBus.h"
#include "TestSandbox.h"

#include <QFile>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QtTest>

namespace {

QByteArray recorded(const QString& name)
{
    QFile file(QStringLiteral(NORBIX_TEST_DATA "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("missing fixture %s", qPrintable(name));
    return file.readAll();
}

bool ran(const FakeCommandRunner& runner, const QStringList& prefix)
{
    for (const QStringList& line : runner.commandLines()) {
        if (line.mid(0, prefix.size()) == prefix)
            return true;
    }
    return false;
}

} // namespace

class tst_NetworkScreens : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestSandbox> m_sandbox;
    std::unique_ptr<FakeCommandRunner> m_runner;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    SettingsMap m_settings;
    QList<BusCall> m_busCalls;
    FunctionBus m_bus{[this](const BusCall& call) -> std::optional<QVariantList> {
        m_busCalls << call;
        if (call.method == "GetSettings" || call.method == "GetSecrets")
            return QVariantList{QVariant::fromValue(call.method == "GetSettings" ? m_settings : SettingsMap{})};
        if (call.method == "Update")
            m_settings = call.arguments.value(0).value<SettingsMap>();
        return QVariantList{};
    }};

    QObject* open(const QString& page)
    {
        QQmlComponent component(m_engine.get(), QUrl(QStringLiteral("qrc:/vorplex/") + page));
        QObject* object = component.create();
        if (!object)
            qWarning().noquote() << component.errorString();
        return object;
    }
    static void set(QObject* page, const char* name, const char* property, const QVariant& value)
    {
        QObject* field = page->findChild<QObject*>(QLatin1String(name));
        QVERIFY2(field, name);
        field->setProperty(property, value);
    }
    static QString errorOf(QObject* page, const char* name)
    {
        return page->findChild<QObject*>(QLatin1String(name))->property("errorText").toString();
    }

private slots:
    void initTestCase()
    {
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
        registerQmlTypes();
    }
    void init()
    {
        m_sandbox = std::make_unique<TestSandbox>();
        m_runner = std::make_unique<FakeCommandRunner>();
        m_runner->answer("bash -c nmcli device status | awk '{print $1}'", "DEVICE\nenp1s0\nlo\n");
        m_runner->answer("sudo nmcli con", recorded("network/nmcli-con.txt"));
        m_runner->answer("sudo nmcli con show Wired connection 1", recorded("network/nmcli-con-show-wired.txt"));
        m_settings = {{"connection", {{"id", "Wired connection 1"}}}};
        m_busCalls.clear();
        SystemBus::setInstance(&m_bus);
        m_engine = std::make_unique<QQmlApplicationEngine>();
        m_engine->addImportPath(QStringLiteral("qrc:/custom"));
    }
    void cleanup()
    {
        m_engine.reset();
        SystemBus::setInstance(nullptr);
        m_runner.reset();
        m_sandbox.reset();
    }

    void wiredForm_data()
    {
        QTest::addColumn<QString>("ip");
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("gateway");
        QTest::addColumn<QString>("dns");
        QTest::addColumn<QString>("wrongField"); // empty: accepted
        QTest::newRow("valid") << "10.4.0.20" << "255.255.252.0" << "10.4.0.1" << "9.9.9.9" << "";
        QTest::newRow("no gateway, no DNS") << "10.4.0.20" << "255.255.255.0" << "" << "" << "";
        QTest::newRow("address out of range") << "10.4.0.300" << "255.255.255.0" << "10.4.0.1" << "" << "ipField";
        QTest::newRow("address with prefix") << "10.4.0.20/24" << "255.255.255.0" << "10.4.0.1" << "" << "ipField";
        QTest::newRow("mask with a gap") << "10.4.0.20" << "255.255.0.255" << "10.4.0.1" << "" << "maskField";
        QTest::newRow("mask as prefix") << "10.4.0.20" << "24" << "10.4.0.1" << "" << "maskField";
        QTest::newRow("gateway cut short") << "10.4.0.20" << "255.255.255.0" << "10.4.0" << "" << "gatewayField";
        QTest::newRow("DNS name") << "10.4.0.20" << "255.255.255.0" << "10.4.0.1" << "dns.example" << "dns1Field";
    }
    void wiredForm()
    {
        QFETCH(QString, ip);
        QFETCH(QString, mask);
        QFETCH(QString, gateway);
        QFETCH(QString, dns);
        QFETCH(QString, wrongField);
        QScopedPointer<QObject> page(open("WiredNetworkPage.qml"));
        QVERIFY(page);
        QCOMPARE(page->property("currentInterface").toString(), QStringLiteral("enp1s0"));
        page->setProperty("manual", true);
        set(page.data(), "ipField", "text", ip);
        set(page.data(), "maskField", "text", mask);
        set(page.data(), "gatewayField", "text", gateway);
        set(page.data(), "dns1Field", "text", dns);
        m_runner->calls.clear();
        QVERIFY(QMetaObject::invokeMethod(page.data(), "apply"));
        if (wrongField.isEmpty()) {
            QTRY_VERIFY(ran(*m_runner, {"sudo", "nmcli", "con", "up"}));
            QVERIFY(ran(*m_runner, {"sudo", "nmcli", "con", "mod", "Wired connection 1", "ipv4.gateway", gateway}));
            QVERIFY(ran(*m_runner, {"sudo", "nmcli", "con", "mod", "Wired connection 1", "ipv4.dns", dns}));
            // Read back after the change.
            QCOMPARE(m_runner->commandLines().last(), (QStringList{"sudo", "nmcli", "con", "show", "Wired connection 1"}));
        } else {
            QVERIFY(!errorOf(page.data(), qPrintable(wrongField)).isEmpty());
            QTest::qWait(200);
            QVERIFY(m_runner->calls.isEmpty());
        }
    }

    void computerName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("valid") << "front-desk-2" << true;
        QTest::newRow("blank inside") << "front desk" << false;
        QTest::newRow("shell characters") << "a;reboot" << false;
        QTest::newRow("trailing hyphen") << "front-" << false;
    }
    void computerName()
    {
        QFETCH(QString, name);
        QFETCH(bool, accepted);
        QScopedPointer<QObject> page(open("HostnamePage.qml"));
        QVERIFY(page);
        set(page.data(), "nameField", "text", name);
        m_runner->calls.clear();
        QVERIFY(QMetaObject::invokeMethod(page.data(), "apply"));
        if (accepted) {
            QTRY_VERIFY(ran(*m_runner, {"sudo", "hostname", name}));
            QCOMPARE(TestSandbox::readFile(m_sandbox->dataFile("hostname")), name.toUtf8());
        } else {
            QVERIFY(!errorOf(page.data(), "nameField").isEmpty());
            QTest::qWait(200);
            QVERIFY(m_runner->calls.isEmpty());
        }
    }

    void dot1xForm_data()
    {
        QTest::addColumn<int>("method");
        QTest::addColumn<QVariantMap>("entered");
        QTest::addColumn<QVariantMap>("section");
        QTest::newRow("md5") << 0 << QVariantMap{{"identity", "alice"}, {"password", "p w"}}
                             << QVariantMap{{"eap", QStringList{"md5"}}, {"identity", "alice"}, {"password", "p w"}};
        QTest::newRow("tls, certificates as blobs")
            << 1 << QVariantMap{{"identity", "alice"}, {"private-key", "/media/USB/me.key"}}
            << QVariantMap{{"eap", QStringList{"tls"}}, {"identity", "alice"},
                           {"private-key", QByteArray("file:///media/USB/me.key\0", 25)}};
        QTest::newRow("fast: menus as shown, PAC file as a path")
            << 3 << QVariantMap{{"pac-file", "/media/USB/a.pac"}}
            << QVariantMap{{"eap", QStringList{"fast"}}, {"phase1-fast-provisioning", "0"}, {"phase2-auth", "gtc"},
                           {"pac-file", "/media/USB/a.pac"}};
        QTest::newRow("ttls: the odd inner method as it stands")
            << 4 << QVariantMap{{"phase2-auth", "phase2-autheap"}, {"identity", "i"}}
            << QVariantMap{{"eap", QStringList{"ttls"}}, {"phase2-auth", "phase2-autheap"}, {"identity", "i"}};
        QTest::newRow("peap: automatic version stages nothing")
            << 5 << QVariantMap{{"identity", "i"}}
            << QVariantMap{{"eap", QStringList{"peap"}}, {"phase2-auth", "mschapv2"}, {"identity", "i"}};
        QTest::newRow("peap version 1") << 5 << QVariantMap{{"phase1-peapver", "1"}, {"phase2-auth", "md5"}}
                                        << QVariantMap{{"eap", QStringList{"peap"}}, {"phase1-peapver", "1"}, {"phase2-auth", "md5"}};
    }
    void dot1xForm()
    {
        QFETCH(int, method);
        QFETCH(QVariantMap, entered);
        QFETCH(QVariantMap, section);
        QScopedPointer<QObject> page(open("Dot1xPage.qml"));
        QVERIFY(page);
        set(page.data(), "enabledRow", "checked", true);
        page->setProperty("methodIndex", method);
        QVERIFY(QMetaObject::invokeMethod(page.data(), "fillFromSettings"));
        for (auto it = entered.cbegin(); it != entered.cend(); ++it)
            QVERIFY(QMetaObject::invokeMethod(page.data(), "setValue", Q_ARG(QVariant, it.key()), Q_ARG(QVariant, it.value())));
        QVERIFY(QMetaObject::invokeMethod(page.data(), "apply"));
        QTRY_VERIFY(m_settings.contains("802-1x"));
        QCOMPARE(m_settings.value("802-1x"), section);
        // The screen reads the result back.
        QTRY_COMPARE(m_busCalls.last().method, QStringLiteral("GetSecrets"));
    }

    void dot1xOff()
    {
        m_settings.insert("802-1x", {{"eap", QStringList{"md5"}}, {"identity", "alice"}});
        QScopedPointer<QObject> page(open("Dot1xPage.qml"));
        QVERIFY(page);
        QCOMPARE(page->findChild<QObject*>("enabledRow")->property("checked").toBool(), true);
        set(page.data(), "enabledRow", "checked", false);
        QVERIFY(QMetaObject::invokeMethod(page.data(), "apply"));
        QTRY_VERIFY(!m_settings.contains("802-1x"));
        QCOMPARE(m_settings.keys(), QStringList{"connection"});
    }

    void pingForm_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("count");
        QTest::addColumn<QString>("size");
        QTest::addColumn<QStringList>("command"); // empty: refused
        QTest::newRow("defaults, until stopped") << "10.0.0.1" << 0 << "3" << "64" << QStringList{"ping", "-s", "64", "10.0.0.1"};
        QTest::newRow("three") << "host.example" << 1 << "3" << "64" << QStringList{"ping", "-s", "64", "-c3", "host.example"};
        QTest::newRow("no host") << " " << 0 << "3" << "64" << QStringList();
        QTest::newRow("host with blank") << "a b" << 0 << "3" << "64" << QStringList();
        QTest::newRow("zero packages") << "h" << 1 << "0" << "64" << QStringList();
        QTest::newRow("length too big") << "h" << 0 << "3" << "70000" << QStringList();
    }
    void pingForm()
    {
        QFETCH(QString, host);
        QFETCH(int, mode);
        QFETCH(QString, count);
        QFETCH(QString, size);
        QFETCH(QStringList, command);
        QScopedPointer<QObject> page(open("DiagnosisPage.qml"));
        QVERIFY(page);
        set(page.data(), "hostField", "text", host);
        set(page.data(), "modeControl", "currentIndex", mode);
        set(page.data(), "countField", "text", count);
        set(page.data(), "sizeField", "text", size);
        QVERIFY(QMetaObject::invokeMethod(page.data(), "start"));
        if (command.isEmpty())
            QVERIFY(m_runner->calls.isEmpty());
        else
            QCOMPARE(m_runner->commandLines(), QList<QStringList>{command});
        QCOMPARE(page->property("running").toBool(), !command.isEmpty());
    }
};

QTEST_MAIN(tst_NetworkScreens)
#include "tst_networkscreens.moc"
