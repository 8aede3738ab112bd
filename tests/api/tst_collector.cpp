#include "APICollectorThread.h"
#include "FakeCommandRunner.h"
#include "TestSandbox.h"

#include <QSettings>
#include <QSignalSpy>
#include <QThread>
#include <QtTest>

// The settings document: what it holds, and that it is reported only when it changed.
class tst_Collector : public QObject {
    Q_OBJECT

    FakeCommandRunner m_runner;

private slots:
    void documentFromTheBackends()
    {
        TestSandbox sandbox;
        m_runner.answer("bash -c lpstat -d", "system default destination: Office_Laser\n");
        QSettings(sandbox.dataFile("api.ini"), QSettings::IniFormat).setValue("DebugLogs", true);
        QSettings(sandbox.dataFile("api.ini"), QSettings::IniFormat).setValue("AdvancedEnabled", true);
        QSettings(sandbox.dataFile("language.ini"), QSettings::IniFormat).setValue("Language", "de");
        const QJsonObject document = APICollectorThread::collect();
        QCOMPARE(document.value("Config").toObject().value("DebugLogs"), QJsonValue(true));
        QCOMPARE(document.value("Config").toObject().value("AdminPassword").toString(), QStringLiteral("kelvra"));
        QCOMPARE(document.value("AdditionalSettingsEnabled"), QJsonValue(true));
        QCOMPARE(document.value("USB").toObject().value("Enabled"), QJsonValue(false));
        QCOMPARE(document.value("Printers").toObject().value("ActivePrinter").toString(), QStringLiteral("Office_Laser"));
        QCOMPARE(document.value("System").toObject().value("Language").toString(), QStringLiteral("de"));
    }

    void reportsOnlyChanges()
    {
        TestSandbox sandbox;
        APICollectorThread collector;
        QSignalSpy ready(&collector, &APICollectorThread::dataReady);
        collector.start();
        QCOMPARE(ready.count(), 0);
        QCOMPARE(collector.getData().value("USB").toObject().value("Enabled"), QJsonValue(false));

        collector.run(true); // the first report
        collector.run(true);
        QCOMPARE(ready.count(), 1);

        TestSandbox::writeFile(sandbox.path("/lib/udev/rules.d/99-media-automount.rules"), "ACTION==\"add\"\n");
        collector.run(false); // gathered, not reported
        QCOMPARE(ready.count(), 1);
        QCOMPARE(collector.getData().value("USB").toObject().value("Enabled"), QJsonValue(true));
        collector.run(true);
        QCOMPARE(ready.count(), 2);
        QCOMPARE(ready.last().first().toJsonObject().value("USB").toObject().value("Enabled"), QJsonValue(true));
        collector.run(true);
        QCOMPARE(ready.count(), 2);
    }

    // Start-up asks for a run at once: the thread's start gathers nothing of its own, and a
    // document asked for before the first run is gathered then.
    void startGathersNothing()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        APICollectorThread collector;
        collector.start();
        QVERIFY(runner.calls.isEmpty());
        QVERIFY(!collector.getData().isEmpty());
        QVERIFY(!runner.calls.isEmpty());
    }

    // On its own thread, driven by queued calls as the agent drives it.
    void runsOnItsThread()
    {
        TestSandbox sandbox;
        QThread thread;
        auto* collector = new APICollectorThread;
        collector->moveToThread(&thread);
        connect(&thread, &QThread::started, collector, &APICollectorThread::start);
        connect(&thread, &QThread::finished, collector, &QObject::deleteLater);
        QSignalSpy ready(collector, &APICollectorThread::dataReady);
        thread.start();
        QMetaObject::invokeMethod(collector, "run", Qt::QueuedConnection, Q_ARG(bool, true));
        QVERIFY(ready.wait(10000));
        QCOMPARE(ready.count(), 1);
        QVERIFY(!collector->getData().isEmpty());
        thread.quit();
        thread.wait();
    }
};

QTEST_GUILESS_MAIN(tst_Collector)
#include "tst_collector.moc"
