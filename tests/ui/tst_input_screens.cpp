#include "LanguageBackend.h"
#include "QmlRegistration.h"
#include "SimulatedDevices.h"
#include "SimulatedTerminal.h"
#include "TestSandbox.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QScreen>
#include <QSettings>
#include <QtTest>

// The device-settings screens in the simulated terminal, driven as a user would.
class tst_InputScreens : public QObject {
    Q_OBJECT

    struct Screen {
        TestSandbox sandbox;
        SimulatedTerminal terminal;
        QQmlApplicationEngine engine;
        ContextObjects objects;
        QScopedPointer<QQuickWindow> window;

        Screen() { CommandRunner::setInstance(&terminal); }
        ~Screen()
        {
            window.reset();
            CommandRunner::setInstance(nullptr);
        }
        // The page in a window of its own, as the settings view shows it.
        QObject* open(const QString& page)
        {
            SimulatedDevices::reset();
            engine.addImportPath(QStringLiteral("qrc:/custom"));
            objects.publish(engine.rootContext());
            QQmlComponent component(&engine);
            component.setData("import QtQuick 2.15\nimport QtQuick.Templates 2.15 as T\n"
                              "T.ApplicationWindow { width: 1280; height: 720; visible: true\n"
                              "  Loader { objectName: \"loader\"; anchors.fill: parent; source: \"qrc:/vorplex/"
                                  + page.toUtf8() + "\" } }",
                              QUrl(QStringLiteral("qrc:/vorplex/TestWindow.qml")));
            window.reset(qobject_cast<QQuickWindow*>(component.create()));
            if (!window) {
                qWarning().noquote() << component.errorString();
                return nullptr;
            }
            if (!QTest::qWaitForWindowExposed(window.data()))
                return nullptr;
            return window->findChild<QObject*>(QStringLiteral("loader"))->property("item").value<QObject*>();
        }
    };

    // NORBIX_SCREEN_DIR=DIR keeps a picture of the screen for a person to look at.
    static void keepPicture(QQuickWindow* window, const QString& name)
    {
        const QString dir = qEnvironmentVariable("NORBIX_SCREEN_DIR");
        if (!dir.isEmpty())
        {
            QImage image = window->grabWindow();
            if (image.isNull())
                image = window->screen()->grabWindow(window->winId()).toImage();
            image.save(dir + QLatin1Char('/') + name + QStringLiteral(".png"));
        }
    }

    static QVariant call(QObject* object, const char* function, const QVariant& argument = {})
    {
        QVariant result;
        if (argument.isValid())
            QMetaObject::invokeMethod(object, function, Q_RETURN_ARG(QVariant, result), Q_ARG(QVariant, argument));
        else
            QMetaObject::invokeMethod(object, function, Q_RETURN_ARG(QVariant, result));
        return result;
    }

private slots:
    void initTestCase()
    {
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
        registerQmlTypes();
    }

    // The popup waits for the catalogue ("Loading info..."), then adds what was checked.
    void addLayouts()
    {
        Screen screen;
        TestSandbox::writeFile(screen.sandbox.dataFile("keyboard.ini"), "[General]\nLayouts=\"us,de\"\nPreferredLayout=de\n");
        QObject* page = screen.open(QStringLiteral("KeyboardPage.qml"));
        QVERIFY(page);
        QCOMPARE(page->property("layouts").toList().size(), 2);
        QObject* dialog = page->findChild<QObject*>(QStringLiteral("addLayoutDialog"));
        QVERIFY(dialog);
        QVERIFY(QMetaObject::invokeMethod(dialog, "open"));
        QCOMPARE(dialog->property("loading").toBool(), true);
        QCOMPARE(dialog->property("okEnabled").toBool(), false);

        LanguageBackend::getInstance()->asyncRead();
        QTRY_COMPARE(dialog->property("loading").toBool(), false);
        QVERIFY(screen.objects.keyboardLayoutModel.rowCount() > 50);
        const QStringList codes = LanguageBackend::getInstance()->listLocalesInternal();
        screen.objects.keyboardLayoutModel.addRowChecked(codes.indexOf(QStringLiteral("fr")));
        QTRY_COMPARE(dialog->property("okEnabled").toBool(), true);
        QTest::qWait(300); // the popup's opening transition
        keepPicture(screen.window.data(), QStringLiteral("add-layouts"));
        QVERIFY(QMetaObject::invokeMethod(dialog, "ok"));
        QCOMPARE(QSettings(screen.sandbox.dataFile("keyboard.ini"), QSettings::IniFormat).value("Layouts").toString(),
                 QStringLiteral("us,de,fr"));
        QTRY_COMPARE(page->property("layouts").toList().size(), 3);
        QCOMPARE(page->property("preferred").toString(), QStringLiteral("de"));
        QTest::qWait(300); // the popup's closing transition
        keepPicture(screen.window.data(), QStringLiteral("keyboard"));
        // What the X server got: the preferred layout first.
        QVERIFY(QString::fromUtf8(CommandRunner::instance().run("setxkbmap", {"-query"}).standardOutput)
                    .contains(QStringLiteral("layout:     de,us,fr\n")));
    }

    // The printer form refuses names CUPS cannot take before anything runs.
    void printerForm_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("host");
        QTest::addColumn<bool>("added");
        QTest::newRow("valid") << "Lab" << "10.0.0.5" << true;
        QTest::newRow("blank in name") << "Lab printer" << "10.0.0.5" << false;
        QTest::newRow("hash in name") << "Lab#2" << "10.0.0.5" << false;
        QTest::newRow("host with path") << "Lab" << "10.0.0.5/ipp" << false;
    }
    void printerForm()
    {
        QFETCH(QString, name);
        QFETCH(QString, host);
        QFETCH(bool, added);
        Screen screen;
        QObject* page = screen.open(QStringLiteral("PrintersPage.qml"));
        QVERIFY(page);
        QObject* nameField = page->findChild<QObject*>(QStringLiteral("nameField"));
        QObject* hostField = page->findChild<QObject*>(QStringLiteral("hostField"));
        QVERIFY(nameField && hostField);
        nameField->setProperty("text", name);
        hostField->setProperty("text", host);
        call(page, "addNetwork");
        QCOMPARE(page->property("printerList").toStringList().contains(name), added);
        QCOMPARE(nameField->property("errorText").toString().isEmpty() && hostField->property("errorText").toString().isEmpty(), added);
    }

    // A picture from the drive becomes the background; a file that is not one changes nothing.
    void wallpaperChoice()
    {
        Screen screen;
        const QString drive = screen.sandbox.path(QStringLiteral("/media/NORBIX-USB/pictures"));
        TestSandbox::writeFile(drive + QStringLiteral("/notes.png"), "shopping list");
        QObject* page = screen.open(QStringLiteral("WallpaperPage.qml"));
        QVERIFY(page);
        QCOMPARE(page->property("images").toStringList(),
                 (QStringList{drive + "/forest.png", drive + "/notes.png", drive + "/sunset.png"}));
        QCOMPARE(page->property("active").toBool(), false);
        call(page, "choose", drive + QStringLiteral("/sunset.png"));
        QCOMPARE(page->property("active").toBool(), true);
        QCOMPARE(page->property("current").toString(),
                 QUrl::fromLocalFile(screen.sandbox.dataFile("wallpaper/sunset.png")).toString());
        call(page, "choose", drive + QStringLiteral("/notes.png"));
        QCOMPARE(page->property("current").toString(),
                 QUrl::fromLocalFile(screen.sandbox.dataFile("wallpaper/sunset.png")).toString());
        QVERIFY(!QFile::exists(screen.sandbox.dataFile("wallpaper/notes.png")));
        keepPicture(screen.window.data(), QStringLiteral("wallpaper"));
    }

    // A language change retranslates the open screens at once.
    void retranslate()
    {
        Screen screen;
        LanguageBackend::setTranslationDirectories({QStringLiteral(NORBIX_BUILD_DIR)});
        LanguageBackend::getInstance()->setEngine(&screen.engine);
        QObject* page = screen.open(QStringLiteral("PowerActionsPage.qml"));
        QVERIFY(page);
        QObject* dialog = page->findChild<QObject*>(QStringLiteral("shutdownDialog"));
        QVERIFY(dialog);
        QCOMPARE(dialog->property("cancelText").toString(), QStringLiteral("Cancel"));
        QVERIFY(LanguageBackend::getInstance()->updateLanguage(2));
        QCOMPARE(dialog->property("cancelText").toString(), QStringLiteral("Abbrechen"));
        QVERIFY(LanguageBackend::getInstance()->updateLanguage(0));
        QCOMPARE(dialog->property("cancelText").toString(), QStringLiteral("Cancel"));
        LanguageBackend::getInstance()->setEngine(nullptr);
        LanguageBackend::setTranslationDirectories({});
    }
};

QTEST_MAIN(tst_InputScreens)
#include "tst_input_screens.moc"
