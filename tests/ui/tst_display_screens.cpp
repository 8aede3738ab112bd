// The displays, power saving and date and time screens driven as a user would, against the
// simulated terminal.
#include "CommandRunner.h"
#include "QmlRegistration.h"
#include "ScreensBackend.h"
#include "TestSandbox.h"

#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QSettings>
#include <QtTest>

namespace {

QQuickWindow* host(QQmlEngine& engine, const QString& page)
{
    QQmlComponent component(&engine);
    component.setData(QStringLiteral("import QtQuick 2.15\nimport QtQuick.Templates 2.15 as T\n"
                                     "T.ApplicationWindow { width: 1280; height: 720; visible: true\n"
                                     "  Loader { objectName: \"loader\"; anchors.fill: parent; source: \"qrc:/vorplex/%1\" } }")
                          .arg(page)
                          .toUtf8(),
                      QUrl(QStringLiteral("qrc:/vorplex/Host.qml")));
    auto* window = qobject_cast<QQuickWindow*>(component.create());
    if (!window)
        qWarning().noquote() << component.errorString();
    return window;
}

QObject* pageOf(QQuickWindow* window)
{
    return window->findChild<QObject*>(QStringLiteral("loader"))->property("item").value<QObject*>();
}

QObject* child(QObject* page, const char* name)
{
    return page->findChild<QObject*>(QLatin1String(name));
}

// Picks an entry of a drop-down as the user does: the index changes, then "activated".
void choose(QObject* box, const QString& text)
{
    const QStringList entries = box->property("model").toStringList();
    const int index = entries.indexOf(text);
    QVERIFY2(index >= 0, qPrintable(text + QStringLiteral(" not in ") + entries.join(QLatin1Char(','))));
    box->setProperty("currentIndex", index);
    QMetaObject::invokeMethod(box, "activated", Q_ARG(int, index));
}

QByteArray timedatectl()
{
    return CommandRunner::instance().run(QStringLiteral("timedatectl"), {}).standardOutput;
}

} // namespace

class tst_DisplayScreens : public QObject {
    Q_OBJECT

    std::unique_ptr<TestSandbox> m_sandbox;
    std::unique_ptr<ContextObjects> m_objects;
    std::unique_ptr<QQmlApplicationEngine> m_engine;

private slots:
    void initTestCase()
    {
        QVERIFY(CommandRunner::simulating());
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
        m_sandbox = std::make_unique<TestSandbox>();
        registerQmlTypes();
        m_engine = std::make_unique<QQmlApplicationEngine>();
        m_engine->addImportPath(QStringLiteral("qrc:/custom"));
        m_objects = std::make_unique<ContextObjects>();
        m_objects->publish(m_engine->rootContext());
    }
    void cleanupTestCase()
    {
        m_engine.reset();
        m_objects.reset();
        m_sandbox.reset();
    }

    // APPLY asks to keep the settings; Escape brings the old layout back, Enter keeps the new one.
    void displaysKeepOrRevertByKeyboard_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("resolutionAfter");
        QTest::newRow("Escape reverts") << int(Qt::Key_Escape) << "1920x1080";
        QTest::newRow("Enter keeps") << int(Qt::Key_Return) << "1280x720";
    }
    void displaysKeepOrRevertByKeyboard()
    {
        QFETCH(int, key);
        ScreensBackend* screens = ScreensBackend::getInstance();
        screens->reset();
        screens->updateInfo();
        QScopedPointer<QQuickWindow> window(host(*m_engine, QStringLiteral("DisplaysPage.qml")));
        QVERIFY(window);
        QVERIFY(QTest::qWaitForWindowExposed(window.data()));
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window.data()));
        QObject* page = pageOf(window.data());
        QVERIFY(page);

        m_objects->screenModel.setActive(QStringLiteral("DP-1"));
        QCOMPARE(page->property("selected").toString(), QStringLiteral("DP-1"));
        choose(child(page, "resolutionBox"), QStringLiteral("1280x720"));
        QCOMPARE(child(page, "rateBox")->property("model").toStringList(), (QStringList{"60.00", "59.94"}));
        choose(child(page, "rateBox"), QStringLiteral("59.94"));
        QVERIFY(QMetaObject::invokeMethod(page, "apply"));

        QObject* dialog = child(page, "confirmDialog");
        QObject* guard = child(page, "revertGuard");
        QTRY_VERIFY(dialog->property("opened").toBool());
        QVERIFY(guard->property("pending").toBool());
        QCOMPARE(guard->property("secondsLeft").toInt(), 15);
        QCOMPARE(screens->getCurrentResolution("DP-1"), QStringLiteral("1280x720"));
        QCOMPARE(screens->getCurrentRate("DP-1"), QStringLiteral("59.94"));

        QTest::keyClick(window.data(), Qt::Key(key));
        QTRY_VERIFY(!dialog->property("visible").toBool());
        QVERIFY(!guard->property("pending").toBool());
        QFETCH(QString, resolutionAfter);
        screens->updateInfo();
        QCOMPARE(screens->getCurrentResolution("DP-1"), resolutionAfter);
        QCOMPARE(child(page, "resolutionBox")->property("currentText").toString(), resolutionAfter);
    }

    void displaysOrderAndMirror()
    {
        ScreensBackend* screens = ScreensBackend::getInstance();
        screens->reset();
        screens->updateInfo();
        QScopedPointer<QQuickWindow> window(host(*m_engine, QStringLiteral("DisplaysPage.qml")));
        QVERIFY(window);
        QObject* page = pageOf(window.data());
        m_objects->screenModel.setActive(QStringLiteral("DP-1"));
        m_objects->screenModel.move(1, 0);
        QCOMPARE(page->property("selectedRow").toInt(), 0);
        child(page, "modeControl")->setProperty("currentIndex", 1);
        QVERIFY(QMetaObject::invokeMethod(page, "apply"));
        QMetaObject::invokeMethod(child(page, "revertGuard"), "confirm");
        QCOMPARE(screens->arrangement(), (QStringList{"DP-1", "HDMI-1"}));
        QVERIFY(screens->isMirroring());
        QCOMPARE(screens->getGeometry("HDMI-1").topLeft(), screens->getGeometry("DP-1").topLeft());
        QCOMPARE(m_objects->screenModel.data(m_objects->screenModel.index(0), ScreenListModel::DisplayRole).toString(),
                 QStringLiteral("Display 1"));
        QCOMPARE(m_objects->screenModel.getName(0), QStringLiteral("DP-1"));
    }

    // One window per monitor, in the middle of it, numbered as the arrangement numbers it.
    void identify()
    {
        ScreensBackend* screens = ScreensBackend::getInstance();
        screens->reset();
        screens->updateInfo();
        QScopedPointer<QQuickWindow> window(host(*m_engine, QStringLiteral("DisplaysPage.qml")));
        QVERIFY(window);
        QObject* page = pageOf(window.data());
        QObject* windows = child(page, "identifyWindows");
        QCOMPARE(windows->property("count").toInt(), 0);
        page->setProperty("identifying", true);
        QCOMPARE(windows->property("count").toInt(), 2);
        for (int i = 0; i < 2; ++i) {
            QObject* shown = nullptr;
            QMetaObject::invokeMethod(windows, "objectAt", Q_RETURN_ARG(QObject*, shown), Q_ARG(int, i));
            auto* identifyWindow = qobject_cast<QWindow*>(shown);
            QVERIFY(identifyWindow);
            const QRect area = screens->getGeometry(m_objects->screenModel.getName(i));
            QVERIFY(area.contains(identifyWindow->geometry()));
            QCOMPARE(identifyWindow->geometry().center().x(), area.center().x());
        }
        page->setProperty("identifying", false);
        QCOMPARE(windows->property("count").toInt(), 0);
    }

    void powerSaving()
    {
        QScopedPointer<QQuickWindow> window(host(*m_engine, QStringLiteral("PowerPage.qml")));
        QVERIFY(window);
        QObject* page = pageOf(window.data());
        child(page, "turnOffBox")->setProperty("currentIndex", 3);
        child(page, "sleepBox")->setProperty("currentIndex", 4);
        QVERIFY(QMetaObject::invokeMethod(page, "apply"));
        QSettings saved(m_sandbox->dataFile(QStringLiteral("display.ini")), QSettings::IniFormat);
        QCOMPARE(saved.value("TurnOffTime").toInt(), 3);
        QCOMPARE(saved.value("SleepTime").toInt(), 4);

        QScopedPointer<QQuickWindow> again(host(*m_engine, QStringLiteral("PowerPage.qml")));
        QCOMPARE(child(pageOf(again.data()), "turnOffBox")->property("currentText").toString(), QStringLiteral("30 minutes"));
        QCOMPARE(child(pageOf(again.data()), "sleepBox")->property("currentText").toString(), QStringLiteral("6 hours"));
    }

    void dateAndTime()
    {
        QScopedPointer<QQuickWindow> window(host(*m_engine, QStringLiteral("DateTimePage.qml")));
        QVERIFY(window);
        QObject* page = pageOf(window.data());
        // The simulated terminal is in Europe/Berlin, which the list names under Amsterdam.
        QCOMPARE(child(page, "zoneBox")->property("currentText").toString(),
                 QStringLiteral("(UTC+01:00) Europe/Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna"));

        page->setProperty("chosenDate", QDate(2030, 2, 3));
        child(page, "hourBox")->setProperty("currentIndex", 7);
        child(page, "minuteBox")->setProperty("currentIndex", 30);
        child(page, "ntpField")->setProperty("text", "");
        QVERIFY(QMetaObject::invokeMethod(page, "apply"));
        QByteArray status = timedatectl();
        QVERIFY2(status.contains("Time zone: Europe/Amsterdam"), status.constData());
        QVERIFY2(status.contains("Local time: Sun 2030-02-03 07:30:"), status.constData());
        QVERIFY(status.contains("NTP service: inactive"));

        // A bad server name is refused before anything runs.
        child(page, "ntpField")->setProperty("text", "time server");
        QVERIFY(QMetaObject::invokeMethod(page, "apply"));
        QVERIFY(!child(page, "ntpField")->property("errorText").toString().isEmpty());
        QVERIFY(timedatectl().contains("NTP service: inactive"));

        child(page, "ntpField")->setProperty("text", "pool.ntp.org");
        QVERIFY(QMetaObject::invokeMethod(page, "apply"));
        QVERIFY(timedatectl().contains("NTP service: active"));
        QCOMPARE(child(page, "ntpField")->property("text").toString(), QStringLiteral("pool.ntp.org")); // read back
    }
};

QTEST_MAIN(tst_DisplayScreens)
#include "tst_display_screens.moc"
