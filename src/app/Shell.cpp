#include "Shell.h"

#include "APICollectorThread.h"
#include "APIManager.h"
#include "AccessibilityBackend.h"
#include "CertificatesStorage.h"
#include "CommandRunner.h"
#include "ConnectionManager.h"
#include "ConnectorLaunchers.h"
#include "CrashHandler.h"
#include "FileMigration.h"
#include "HardwareUtils.h"
#include "LanguageBackend.h"
#include "LogManager.h"
#include "Logging.h"
#include "MouseSettingsBackend.h"
#include "NetworkManager.h"
#include "QmlRegistration.h"
#include "RawImageProvider.h"
#include "RenderingSetup.h"
#include "ScreensBackend.h"
#include "SettingsChange.h"
#include "SettingsManager.h"
#include "ShellOptions.h"
#include "SystemPaths.h"
#include "TeamsConnector.h"
#include "TrayIcon.h"
#include "Updater.h"
#include "WindowPresenter.h"

#include <QApplication>
#include <QDebug>
#include <QFontDatabase>
#include <QLocale>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQmlContext>
#include <QSettings>

#include <cstdio>
#include <malloc.h>

namespace {

constexpr const char* kVersion = "1.2.16";

void loadFont()
{
    const int id = QFontDatabase::addApplicationFont(QStringLiteral("quarnos.ttf"));
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty()) {
        qWarning() << "Cannot load the font quarnos.ttf";
        return;
    }
    qInfo().noquote() << families.first();
}

void loadTranslation(QApplication& app)
{
    const QString code = QSettings(SystemPaths::dataFile(QStringLiteral("language.ini")), QSettings::IniFormat)
                             .value(QStringLiteral("Language"), QStringLiteral("en"))
                             .toString();
    QTranslator* translator = LanguageBackend::getInstance()->translator();
    if (translator->load(QStringLiteral("norbix_") + code + QStringLiteral(".qm"))) {
        app.installTranslator(translator);
        QLocale::setDefault(QLocale(code)); // dates and numbers in the language of the texts
    }
}

QString kernelDescription()
{
    QString text = QString::fromLocal8Bit(
        CommandRunner::instance().run(QStringLiteral("uname"), {QStringLiteral("-a")}).standardOutput);
    text.remove(QLatin1Char('\n'));
    text.remove(QLatin1Char('\\'));
    return text;
}

// What the management server may ask of the updater and the certificate store, and the settings
// report after an import.
void connectAgent()
{
    APIManager::Services services;
    services.update = [](const QString& type, const QString& version) { Updater::getInstance()->update(type, version); };
    services.updateSystem = [](const QString& type, const QString& version) {
        Updater::getInstance()->updateSystem(type, version);
    };
    services.removeCertificate = [](const QString& name) { CertificatesStorage::removeCertificate(name); };
    services.cleanCertificates = [] { CertificatesStorage::cleanCertificates(); };
    services.addCertificateFromServer = [](const QString& name, const QString& cert, const QString& pass) {
        return CertificatesStorage::addCertificateFromServer(name, cert, pass) == QLatin1String("ok");
    };
    services.setDebugEnabled = [](bool enabled) { LogManager().setDebugEnabled(enabled); };
    services.setAutoUpdateEnabled = [](bool enabled) { Updater::getInstance()->setAutoUpdateEnabled(enabled); };
    APIManager::setServices(services);
    APICollectorThread::Sources sources;
    sources.autoUpdateEnabled = [] { return Updater::getInstance()->isAutoUpdateEnabled(); };
    APICollectorThread::setSources(sources);
    SettingsChange::setReporter([] { APIManager::getInstance()->updateSettings(); });
}

} // namespace

int runShell(int argc, char* argv[])
{
    const ShellOptions options = ShellOptions::parse(argc, argv);
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "norbix-shell: %s\n", qPrintable(options.error));
        return 2;
    }

    qWarning("Install message handled");
    qInstallMessageHandler(customMessageOutput);
    qWarning("Message handler set");

    qWarning("Set signal hanlder");
    installCrashHandler();
    qWarning("Signal handler set");

    qWarning("migrateFiles()");
    migrateFiles();
    qWarning("migrateFiles() end");
    removeWriteLeftovers();

    qWarning("Version: %s", kVersion);

    QCoreApplication::setAttribute(Qt::AA_UseOpenGLES, true);
    AccessibilityBackend::prepareInputMethod();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("norbix-shell"));
    QApplication::setApplicationVersion(QString::fromLatin1(kVersion));
    // Made before the renderer check starts: the engine starts threads, and a new thread waits
    // while the check loads the GL driver.
    QQmlApplicationEngine engine;
    SceneGraphBackendProbe renderer;
    renderer.start();

    loadFont();
    loadTranslation(app);

    engine.addImportPath(QStringLiteral("qrc:/custom"));
    LanguageBackend::getInstance()->setEngine(&engine);
    LanguageBackend::getInstance()->asyncRead();

    ConnectorLaunchers::install(); // before any screen or auto-connect starts a record
    registerQmlTypes();
    engine.addImageProvider(QStringLiteral("received"), new RawImageProvider);

    ContextObjects contextObjects;
    contextObjects.publish(engine.rootContext());
    // The saved display arrangement is put back on every start, and so are the power-saving timers:
    // the X server forgets them when it restarts.
    ScreensBackend::getInstance()->loadInitial();
    ScreensBackend::getInstance()->applyTurnOffTime();
    ScreensBackend::getInstance()->applySleepTime();

    // Network start-up: the stored Wi-Fi network marked for auto-connect is brought up.
    NetworkManager networkManager;
    networkManager.autoConnect();

    MouseSettingsBackend mouseSettings;
    MouseSettingsBackend::initLayouts();
    mouseSettings.startTimer();
    mouseSettings.getMouseNames();
    mouseSettings.applyStartSettings();

    const QString identity = HardwareUtils::deviceIdentity(HardwareUtils::inventory());
    const QString kernel = kernelDescription();
    APIManager* api = APIManager::getInstance();
    connectAgent();
    api->init(identity, kernel);
    qInfo().noquote() << "Computer name " + api->getId();
    engine.rootContext()->setContextProperty(QStringLiteral("apiInstance"), api);

    // The screens' types load while the renderer check runs; the window is made after it.
    const QUrl mainScreen(QStringLiteral("qrc:/vorplex/Main.qml"));
    const QQmlComponent preloaded(&engine, mainScreen);
    renderer.finish();
    engine.load(mainScreen);
    // The root screen is on screen before any session starts: an auto-connected viewer that does
    // not cover the whole screen has the home screen around it, not an empty display.
    std::unique_ptr<WindowPresenter> presenter;
    if (!engine.rootObjects().isEmpty())
        presenter = std::make_unique<WindowPresenter>(engine.rootObjects().constFirst(), options);
    else if (!options.screenshotFile.isEmpty())
        return 3; // nothing to grab
    TeamsConnector::runThread();
    ConnectionManager::getInstance()->performAutoconnect();
    // What the first frame does not need waits until the user sees the screen: the tray icon (it
    // asks the desktop over D-Bus), and handing back to the system what start-up freed.
    std::unique_ptr<TrayIcon> trayIcon;
    const auto afterFirstFrame = [&trayIcon] {
        trayIcon = std::make_unique<TrayIcon>();
        malloc_trim(0);
    };
    if (presenter)
        QObject::connect(presenter.get(), &WindowPresenter::firstFrameShown, &app, afterFirstFrame);
    else
        afterFirstFrame();

    const int status = app.exec();
    api->shutdown();
    return status;
}
