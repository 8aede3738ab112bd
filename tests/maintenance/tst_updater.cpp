#include "FreePort.h"
#include "LocalUpdaterBackend.h"
#include "TestSandbox.h"
#include "Updater.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

namespace {

// The update service stand-in of tools/, on a port of its own.
// Only the cases that talk to the service skip without it; the parsers always run.
#define REQUIRE_SERVICE_PEER()                                                                                 \
    do {                                                                                                       \
        if (!QFile::exists(QStringLiteral("/usr/bin/python3")))                                                \
            QSKIP("/usr/bin/python3 is missing");                                                             \
    } while (false)

class ServicePeer {
public:
    explicit ServicePeer(const QString& mode)
    {
        m_process.start(QStringLiteral("/usr/bin/python3"),
                        {QStringLiteral(NORBIX_SOURCE_DIR "/tools/update-service-peer.py"), "--mode", mode, "--exit-with-stdin"});
        if (m_process.waitForStarted(10000) && m_process.waitForReadyRead(10000))
            m_port = m_process.readLine().trimmed().toUShort();
    }
    ~ServicePeer()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(5000))
            m_process.kill();
    }
    quint16 port() const { return m_port; }
    QUrl url() const { return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(m_port)); }

    // The commands it received: {"path", "body"} each.
    QJsonArray posts() const
    {
        QNetworkAccessManager network;
        QNetworkReply* reply = network.get(QNetworkRequest(url().resolved(QUrl(QStringLiteral("peer/posts")))));
        QSignalSpy done(reply, &QNetworkReply::finished);
        done.wait(5000);
        reply->deleteLater();
        return QJsonDocument::fromJson(reply->readAll()).array();
    }

private:
    QProcess m_process;
    quint16 m_port = 0;
};

// A port on which nothing listens.
QUrl deadService()
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(freeLocalPort()));
}

using Version = LocalUpdaterBackend::Version;

} // namespace

class tst_Updater : public QObject {
    Q_OBJECT

private slots:
    void parseStatus_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QString>("state");
        QTest::addColumn<int>("progress");
        QTest::addColumn<QString>("version");
        QTest::newRow("complete") << QByteArray(R"({"state":"downloading","progress":42,"version":"1.2.16","message":"m"})") << true
                                  << "downloading" << 42 << "1.2.16";
        QTest::newRow("state only") << QByteArray(R"({"state":"idle"})") << true << "idle" << 0 << "";
        QTest::newRow("nulls are absent") << QByteArray(R"({"state":"idle","progress":null,"version":null})") << true << "idle" << 0 << "";
        QTest::newRow("progress above 100") << QByteArray(R"({"state":"installing","progress":250})") << true << "installing" << 100 << "";
        QTest::newRow("negative progress") << QByteArray(R"({"state":"installing","progress":-3})") << true << "installing" << 0 << "";
        // Beyond any int: bounded before rounding (rounding first overflowed).
        QTest::newRow("huge progress") << QByteArray(R"({"state":"installing","progress":4e36})") << true << "installing" << 100 << "";
        QTest::newRow("hugely negative") << QByteArray(R"({"state":"installing","progress":-1e300})") << true << "installing" << 0 << "";
        QTest::newRow("fraction rounds") << QByteArray(R"({"state":"installing","progress":49.6})") << true << "installing" << 50 << "";
        QTest::newRow("no state") << QByteArray(R"({"progress":3})") << false << "" << 0 << "";
        QTest::newRow("empty state") << QByteArray(R"({"state":""})") << false << "" << 0 << "";
        QTest::newRow("state not text") << QByteArray(R"({"state":3})") << false << "" << 0 << "";
        QTest::newRow("progress as text") << QByteArray(R"({"state":"idle","progress":"50"})") << false << "" << 0 << "";
        QTest::newRow("version as number") << QByteArray(R"({"state":"idle","version":1.2})") << false << "" << 0 << "";
        QTest::newRow("array") << QByteArray(R"([{"state":"idle"}])") << false << "" << 0 << "";
        QTest::newRow("html") << QByteArray("<html>502</html>") << false << "" << 0 << "";
        QTest::newRow("truncated") << QByteArray(R"({"state":"idle")") << false << "" << 0 << "";
        QTest::newRow("empty") << QByteArray() << false << "" << 0 << "";
    }
    void parseStatus()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, valid);
        const auto status = LocalUpdaterBackend::parseStatus(body);
        QCOMPARE(bool(status), valid);
        if (!status)
            return;
        QTEST(status->state, "state");
        QTEST(status->progress, "progress");
        QTEST(status->version, "version");
    }

    void parseAvailable_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QStringList>("versions"); // "type version system"
        QTest::newRow("object") << QByteArray(R"({"versions":[{"type":"app","version":"1.3.0","notes":"n"},{"type":"system","version":"12.8","system":true}]})")
                                << true << QStringList{"app 1.3.0 0", "system 12.8 1"};
        QTest::newRow("bare array, type defaults to app") << QByteArray(R"([{"version":"2.0"}])") << true << QStringList{"app 2.0 0"};
        QTest::newRow("bad entries skipped")
            << QByteArray(R"({"versions":[1,"x",{"version":3},{"version":""},{"version":"1.4","system":"yes"},{"version":"1.5","notes":[]},{"version":"1.6"}]})")
            << true << QStringList{"app 1.6 0"};
        QTest::newRow("none") << QByteArray(R"({"versions":[]})") << true << QStringList();
        QTest::newRow("versions not a list") << QByteArray(R"({"versions":{}})") << false << QStringList();
        QTest::newRow("plain object") << QByteArray(R"({"state":"idle"})") << false << QStringList();
        QTest::newRow("garbage") << QByteArray("\x00\x01 not json", 12) << false << QStringList();
    }
    void parseAvailable()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, valid);
        QFETCH(QStringList, versions);
        const auto list = LocalUpdaterBackend::parseAvailable(body);
        QCOMPARE(bool(list), valid);
        if (!list)
            return;
        QStringList got;
        for (const Version& version : *list)
            got << QStringLiteral("%1 %2 %3").arg(version.type, version.version).arg(int(version.system));
        QCOMPARE(got, versions);
    }

    void parseCommandAnswer_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("readable");
        QTest::addColumn<QString>("error");
        QTest::newRow("ok") << QByteArray(R"({"status":"ok"})") << true << "";
        QTest::newRow("empty body") << QByteArray("  \n") << true << "";
        QTest::newRow("error with message") << QByteArray(R"({"status":"error","message":"disk full"})") << true << "disk full";
        QTest::newRow("error without message") << QByteArray(R"({"status":"busy"})") << true << "busy";
        QTest::newRow("status not text") << QByteArray(R"({"status":true})") << false << "";
        QTest::newRow("not json") << QByteArray("OK") << false << "";
    }
    void parseCommandAnswer()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, readable);
        const auto answer = LocalUpdaterBackend::parseCommandAnswer(body);
        QCOMPARE(bool(answer), readable);
        if (answer)
            QTEST(*answer, "error");
    }

    void pickAutoUpdate_data()
    {
        QTest::addColumn<QString>("installed");
        QTest::addColumn<QString>("picked");
        QTest::newRow("newest app above installed") << "1.2.16" << "1.10.0";
        QTest::newRow("already newest") << "1.10.0" << "";
        QTest::newRow("installed unknown") << "" << "";
        QTest::newRow("installed unreadable") << "dev" << "";
    }
    void pickAutoUpdate()
    {
        QFETCH(QString, installed);
        QFETCH(QString, picked);
        const QList<Version> offered{{"app", "1.9.0", false, {}},
                                     {"app", "1.10.0", false, {}}, // numerically, not textually, newest
                                     {"system", "99.0", true, {}},
                                     {"app", "50.0", true, {}},
                                     {"plugin", "60.0", false, {}},
                                     {"app", "not-a-version", false, {}}};
        const auto pick = Updater::pickAutoUpdate(offered, installed);
        QCOMPARE(pick ? pick->version : QString(), picked);
    }

    void backendAgainstService()
    {
        REQUIRE_SERVICE_PEER();
        ServicePeer peer(QStringLiteral("good"));
        QVERIFY(peer.port());
        LocalUpdaterBackend backend;
        backend.setBaseUrl(peer.url());

        QSignalSpy status(&backend, &LocalUpdaterBackend::statusReady);
        QSignalSpy available(&backend, &LocalUpdaterBackend::availableReady);
        QSignalSpy finished(&backend, &LocalUpdaterBackend::commandFinished);
        QSignalSpy errors(&backend, &LocalUpdaterBackend::serviceError);
        backend.requestStatus();
        backend.requestAvailable();
        QTRY_COMPARE(status.count(), 1);
        QTRY_COMPARE(available.count(), 1);
        const auto first = status.first().first().value<LocalUpdaterBackend::Status>();
        QCOMPARE(first.state, QStringLiteral("idle"));
        QCOMPARE(first.version, QStringLiteral("1.2.16"));
        QCOMPARE(available.first().first().value<QList<Version>>().size(), 3);

        backend.startUpgrade(QStringLiteral("app"), QStringLiteral("1.3.0"), false);
        backend.installFromFile(QStringLiteral("/media/USB/norbix-shell_1.3.0.deb"));
        backend.factoryReset();
        QTRY_COMPARE(finished.count(), 3);
        for (const auto& call : qAsConst(finished))
            QVERIFY(call.at(1).toBool());
        QCOMPARE(errors.count(), 0);

        QJsonArray posts = peer.posts();
        QCOMPARE(posts.size(), 3);
        QJsonObject byPath;
        for (const QJsonValue& post : qAsConst(posts))
            byPath.insert(post.toObject().value("path").toString(), post.toObject().value("body"));
        QCOMPARE(byPath.value("/upgrade/").toObject(), QJsonObject({{"type", "app"}, {"version", "1.3.0"}, {"system", false}}));
        QCOMPARE(byPath.value("/upgrade/local/").toObject(), QJsonObject({{"path", "/media/USB/norbix-shell_1.3.0.deb"}}));
        QCOMPARE(byPath.value("/factory/reset").toObject(), QJsonObject());
    }

    void backendFailures_data()
    {
        QTest::addColumn<QString>("mode"); // empty: nothing listens
        QTest::addColumn<QString>("message");
        QTest::newRow("down") << "" << "The update service is not running.";
        QTest::newRow("garbage") << "garbage" << "The update service sent an answer that cannot be read.";
    }
    void backendFailures()
    {
        REQUIRE_SERVICE_PEER();
        QFETCH(QString, mode);
        QFETCH(QString, message);
        std::unique_ptr<ServicePeer> peer;
        LocalUpdaterBackend backend;
        if (mode.isEmpty()) {
            backend.setBaseUrl(deadService());
        } else {
            peer = std::make_unique<ServicePeer>(mode);
            QVERIFY(peer->port());
            backend.setBaseUrl(peer->url());
        }
        QSignalSpy status(&backend, &LocalUpdaterBackend::statusReady);
        QSignalSpy available(&backend, &LocalUpdaterBackend::availableReady);
        QSignalSpy finished(&backend, &LocalUpdaterBackend::commandFinished);
        QSignalSpy errors(&backend, &LocalUpdaterBackend::serviceError);
        backend.requestStatus();
        backend.requestAvailable();
        backend.startUpgrade(QStringLiteral("app"), QStringLiteral("1.3.0"), false);
        QTRY_COMPARE(errors.count(), 3);
        QStringList paths;
        for (const auto& error : qAsConst(errors)) {
            paths << error.at(0).toString();
            QCOMPARE(error.at(1).toString(), message);
        }
        paths.sort();
        QCOMPARE(paths, QStringList({"upgrade/", "upgrade/available", "upgrade/status"}));
        QCOMPARE(status.count() + available.count() + finished.count(), 0);
    }

    void refusalCarriesTheServiceReason()
    {
        REQUIRE_SERVICE_PEER();
        ServicePeer peer(QStringLiteral("refuse"));
        QVERIFY(peer.port());
        LocalUpdaterBackend backend;
        backend.setBaseUrl(peer.url());
        QSignalSpy errors(&backend, &LocalUpdaterBackend::serviceError);
        backend.startUpgrade(QStringLiteral("app"), QStringLiteral("1.3.0"), false);
        QTRY_COMPARE(errors.count(), 1);
        QCOMPARE(errors.first().at(1).toString(), QStringLiteral("Another update is running."));
    }

    // The singleton as the screens and the management server use it. It is one per process, so
    // the scenarios follow each other here: down, then good with an update run, then auto-update.
    void updaterFollowsTheService()
    {
        REQUIRE_SERVICE_PEER();
        TestSandbox sandbox;
        Updater* updater = Updater::getInstance();
        updater->backend()->setBaseUrl(deadService());
        QSignalSpy changed(updater, &Updater::statusChanged);
        QTRY_COMPARE(updater->state(), QStringLiteral("unavailable"));
        QVERIFY(!updater->serviceAvailable());
        QCOMPARE(updater->message(), QStringLiteral("The update service is not running."));
        QVERIFY(updater->available().isEmpty());

        ServicePeer peer(QStringLiteral("good"));
        QVERIFY(peer.port());
        updater->backend()->setBaseUrl(peer.url());
        updater->refresh();
        QTRY_COMPARE(updater->state(), QStringLiteral("idle"));
        QVERIFY(updater->serviceAvailable());
        QCOMPARE(updater->version(), QStringLiteral("1.2.16"));
        QTRY_COMPARE(updater->available().size(), 3);
        QCOMPARE(updater->available().first().toMap().value("version").toString(), QStringLiteral("1.3.0"));

        // An accepted update is followed until the service is done with it.
        updater->updateSystem(QStringLiteral("system"), QStringLiteral("12.8"));
        QVERIFY(updater->busy());
        QTRY_COMPARE_WITH_TIMEOUT(updater->state(), QStringLiteral("done"), 20000);
        QVERIFY(!updater->busy());
        QCOMPARE(updater->version(), QStringLiteral("12.8"));
        QJsonArray posts = peer.posts();
        QCOMPARE(posts.size(), 1);
        QCOMPARE(posts.first().toObject().value("body").toObject(),
                 QJsonObject({{"type", "system"}, {"version", "12.8"}, {"system", true}}));

        // The service going away mid-way is shown as such, with nothing left of its offer.
        updater->backend()->setBaseUrl(deadService());
        updater->refresh();
        QTRY_COMPARE(updater->state(), QStringLiteral("unavailable"));
        QTRY_VERIFY(updater->available().isEmpty());
        QCOMPARE(updater->version(), QString());
    }

    void autoUpdateSwitch()
    {
        REQUIRE_SERVICE_PEER();
        TestSandbox sandbox;
        ServicePeer peer(QStringLiteral("good"));
        QVERIFY(peer.port());
        Updater* updater = Updater::getInstance();
        updater->backend()->setBaseUrl(peer.url());
        QSignalSpy switched(updater, &Updater::autoUpdateEnabledChanged);
        QVERIFY(!updater->isAutoUpdateEnabled());
        updater->setAutoUpdateEnabled(false);
        QCOMPARE(switched.count(), 0);

        updater->setAutoUpdateEnabled(true);
        QCOMPARE(switched.count(), 1);
        QCOMPARE(QSettings(sandbox.dataFile("update.ini"), QSettings::IniFormat).value("AutoAppUpdate").toBool(), true);
        // Switching it on looks at once and installs the newest shell the service offers.
        QTRY_COMPARE_WITH_TIMEOUT(peer.posts().size(), 1, 10000);
        QCOMPARE(peer.posts().first().toObject().value("body").toObject(),
                 QJsonObject({{"type", "app"}, {"version", "1.3.0"}, {"system", false}}));

        updater->setAutoUpdateEnabled(false);
        QCOMPARE(QSettings(sandbox.dataFile("update.ini"), QSettings::IniFormat).value("AutoAppUpdate").toBool(), false);
    }
};

QTEST_GUILESS_MAIN(tst_Updater)
#include "tst_updater.moc"
