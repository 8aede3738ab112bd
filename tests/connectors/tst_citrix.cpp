#include "CitrixConnectDialogBackend.h"
#include "CitrixConnector.h"
#include "ConnectionManager.h"
#include "FakeCommandRunner.h"
#include "TestSandbox.h"

#include <QSignalSpy>
#include <QtTest>

namespace {
const QString kStore = QStringLiteral("/opt/Citrix/ICAClient/util/storebrowse");
const QByteArray kEnumeration = "'Controller.Notepad $S1-4'\t'Note''pad'\t'\\'\t\n"
                                "'Controller.Desktop'\t'Windows 10 Desktop'\t'\\Desktops'\n"
                                "'Controller.Broken'\t'Only two fields'\n"
                                "\n";

Connection citrix(const QString& resource, const QString& user = "anna", const QString& password = "pw")
{
    return Connection(QJsonObject{{"type", 2}, {"address", "https://store.example"}, {"username", user}, {"password", password},
                                  {"resource", resource}});
}
} // namespace

class tst_Citrix : public QObject {
    Q_OBJECT

    FakeCommandRunner m_runner;
    CitrixConnector* connector() { return CitrixConnector::getInstance(); }

    // Lets the stage now running end with the canned answer.
    void finishStage() { m_runner.finishAll(); }

private slots:
    void init()
    {
        m_runner.calls.clear();
        m_runner.answer(kStore + " -U anna -P pw -a https://store.example", "https://store.example/Citrix/Store/discovery\n");
        m_runner.answer(kStore + " -U anna -P pw -E https://store.example/Citrix/Store/discovery", kEnumeration);
    }
    void cleanup() { m_runner.finishAll(); }

    void commandText_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("expected");
        QTest::newRow("both") << "u" << "p" << kStore + " -U u -P p -a srv";
        QTest::newRow("neither") << "" << "" << kStore + " -a srv";
        QTest::newRow("user only") << "u" << "" << kStore + " -U u -a srv";
        QTest::newRow("password only") << "" << "p" << kStore + " -P p -a srv";
    }
    void commandText()
    {
        QFETCH(QString, user);
        QFETCH(QString, password);
        QFETCH(QString, expected);
        QCOMPARE(CitrixConnector::command(user, password, " -a srv"), expected);
    }

    void enumerationParsing()
    {
        const CitrixConnector::Resources resources = CitrixConnector::parseResources(QString::fromLatin1(kEnumeration));
        QCOMPARE(resources.internal, QStringList({"'Controller.Notepad $S1-4'", "'Controller.Desktop'"}));
        QCOMPARE(resources.display, QStringList({"Notepad", "Windows 10 Desktop"}));
        QVERIFY(CitrixConnector::parseResources("a\tb\n\n").internal.isEmpty());
        // Empty fields do not count.
        QCOMPARE(CitrixConnector::parseResources("a\t\t\tb\tc\n").internal, QStringList({"a"}));
    }

    void threeStagesLaunchTheResource()
    {
        QSignalSpy messages(connector(), &CitrixConnector::newMessageReceived);
        QSignalSpy connected(connector(), &CitrixConnector::connected);
        QSignalSpy ended(connector(), &CitrixConnector::ended);
        QVERIFY(connector()->connect(citrix("Windows 10 Desktop")));
        QCOMPARE(m_runner.calls.size(), 1);
        QCOMPARE(m_runner.calls.at(0).commandLine(), QStringList({kStore, "-U", "anna", "-P", "pw", "-a", "https://store.example"}));
        finishStage();
        QCOMPARE(m_runner.calls.size(), 2);
        QCOMPARE(m_runner.calls.at(1).arguments.mid(4), QStringList({"-E", "https://store.example/Citrix/Store/discovery"}));
        finishStage();
        QCOMPARE(m_runner.calls.size(), 3);
        const FakeCommandRunner::Call launch = m_runner.calls.at(2);
        QCOMPARE(launch.program, QStringLiteral("bash"));
        QVERIFY(launch.detached);
        QCOMPARE(launch.arguments,
                 QStringList({"-c", kStore + " -U anna -P pw -L 'Controller.Desktop' https://store.example/Citrix/Store/discovery"}));
        QCOMPARE(connected.count(), 1);
        QCOMPARE(ended.count(), 1);
        QStringList texts;
        for (const auto& args : messages)
            texts << args.at(0).toString();
        QCOMPARE(texts, QStringList({"Starting Citrix connection. Connecting to storebrowse",
                                     "Storebrowse link acquired. Enumerating resources", "Citrix connection opened"}));
    }

    void resourceLookupIsCaseSensitive()
    {
        QSignalSpy messages(connector(), &CitrixConnector::newMessageReceived);
        connector()->connect(citrix("windows 10 desktop"));
        finishStage();
        finishStage();
        QCOMPARE(m_runner.calls.size(), 2); // no launch
        QCOMPARE(messages.constLast().at(0).toString(), QStringLiteral("Requested resource not found"));
    }

    void cancelBetweenStages()
    {
        QSignalSpy ended(connector(), &CitrixConnector::ended);
        connector()->connect(citrix("Windows 10 Desktop"));
        connector()->cancel();
        finishStage();
        QCOMPARE(m_runner.calls.size(), 1); // no enumeration, no launch
        QCOMPARE(ended.count(), 0);
        // A new request starts afresh.
        connector()->connect(citrix("Windows 10 Desktop"));
        finishStage();
        connector()->cancel();
        finishStage();
        QCOMPARE(m_runner.calls.size(), 3); // register, register, enumerate
    }

    void failures_data()
    {
        QTest::addColumn<QByteArray>("registerOut");
        QTest::addColumn<QByteArray>("registerErr");
        QTest::addColumn<QByteArray>("enumerateOut");
        QTest::addColumn<QString>("message");
        QTest::newRow("register printed an error") << QByteArray("link\n") << QByteArray("unreachable") << kEnumeration
                                                   << "Failed to connect to storebrowse";
        QTest::newRow("register printed nothing") << QByteArray() << QByteArray() << kEnumeration << "Failed to connect to storebrowse";
        QTest::newRow("webkit") << QByteArray("link\n") << QByteArray() << QByteArray("webkit error: no session\n")
                                << "Failed to iterate resources";
    }
    void failures()
    {
        QFETCH(QByteArray, registerOut);
        QFETCH(QByteArray, registerErr);
        QFETCH(QByteArray, enumerateOut);
        QFETCH(QString, message);
        m_runner.answer(kStore + " -a srv", registerOut, 0, registerErr);
        m_runner.answer(kStore + " -E link", enumerateOut);
        QSignalSpy messages(connector(), &CitrixConnector::newMessageReceived);
        QSignalSpy ended(connector(), &CitrixConnector::ended);
        connector()->connect(Connection(QJsonObject{{"type", 2}, {"address", "srv"}, {"resource", "Notepad"}}));
        finishStage();
        finishStage();
        QCOMPARE(messages.constLast().at(0).toString(), message);
        QCOMPARE(ended.count(), 1);
        for (const auto& call : m_runner.calls.snapshot())
            QVERIFY(!call.detached);
    }

    void resourceBrowser()
    {
        QSignalSpy found(connector(), &CitrixConnector::resourcesFound);
        connector()->connect(citrix("nothing")); // sets the credentials used by connectToResource
        finishStage();
        finishStage();
        m_runner.calls.clear();
        connector()->requestResources("https://store.example", "anna", "pw");
        finishStage();
        finishStage();
        QCOMPARE(found.count(), 1);
        QCOMPARE(connector()->getResourcesDisplay(), QStringList({"Notepad", "Windows 10 Desktop"}));
        QCOMPARE(connector()->getResourcesInternal().size(), 2);
        QCOMPARE(m_runner.calls.size(), 2); // nothing launched yet

        QSignalSpy messages(connector(), &CitrixConnector::newMessageReceived);
        connector()->connectToResource("Notepad");
        QCOMPARE(m_runner.calls.constLast().arguments.at(1),
                 kStore + " -U anna -P pw -L 'Controller.Notepad $S1-4' https://store.example/Citrix/Store/discovery");
        QCOMPARE(messages.constLast().at(0).toString(), QStringLiteral("Citrix connecting opened"));
    }

    void dialogKeys()
    {
        TestSandbox sandbox;
        CitrixConnectDialogBackend dialog;
        dialog.addConnection("Apps", "https://store.example", false, "anna", "pw", "Desk", "Notepad");
        dialog.loadConnection(0);
        QCOMPARE(dialog.getServer(), QStringLiteral("https://store.example"));
        QCOMPARE(dialog.getResource(), QStringLiteral("Notepad"));
        QCOMPARE(dialog.getDesktop(), QStringLiteral("Desk"));
        QCOMPARE(dialog.getUsername(), QString());
        dialog.updateConnection(0, "Apps", "https://store.example", true, "anna", "pw", "Desk", "Notepad");
        dialog.loadConnection(0);
        QCOMPARE(dialog.getPassword(), QStringLiteral("pw"));
        QCOMPARE(ConnectionManager::getInstance()->getConnectionType(0), int(Citrix));
    }
};

QTEST_GUILESS_MAIN(tst_Citrix)
#include "tst_citrix.moc"
