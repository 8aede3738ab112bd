#include "AssistanceTunnels.h"
#include "CommandRunner.h"
#include "LanguageBackend.h"
#include "QmlRegistration.h"
#include "SimulatedNetwork.h"
#include "TestSandbox.h"

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScopeGuard>
#include <QScreen>
#include <QRegularExpression>
#include <QtTest>

// Every screen, dialog and wizard step of the shell, in every language at both terminal sizes:
// no QML warning, no text cut off or running out of its box, no control outside the window, and
// every control that takes keyboard focus reachable with Tab, every dialog left with Escape. A screenshot of each is kept under
// <build>/screens/<language>-<size>/.
namespace {

QStringList g_warnings;
QtMessageHandler g_previous = nullptr;

void collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool fromQml = QString::fromLatin1(context.file ? context.file : "").startsWith(QLatin1String("qrc:/"))
                         || message.contains(QLatin1String("qrc:/"));
    if (type != QtDebugMsg && type != QtInfoMsg && fromQml)
        g_warnings << message;
    g_previous(type, context, message);
}

QStringList pages()
{
    QStringList list{"main", "settings", "lock", "add/rdp", "add/citrix", "add/vmware", "add/browser", "add/putty", "add/vnc",
                     "rdp-login", "citrix-progress", "remote-request", "connection-check", "connection-error", "vnc-password",
                     "help-answered"};
    // Every settings section the catalogue names.
    QFile catalog(QStringLiteral(":/vorplex/SectionCatalog.qml"));
    if (catalog.open(QIODevice::ReadOnly)) {
        static const QRegularExpression section(QStringLiteral("\\{ id: \"([a-z0-9-]+)\""));
        auto it = section.globalMatch(QString::fromUtf8(catalog.readAll()));
        while (it.hasNext())
            list << QStringLiteral("settings/") + it.next().captured(1);
    }
    for (const char* step : {"language", "keyboard", "network", "time", "management"})
        list << QStringLiteral("wizard/") + QLatin1String(step);
    return list;
}

bool inherits(const QQuickItem* item, const char* className)
{
    return item->inherits(className);
}

bool insideFlickable(const QQuickItem* item)
{
    for (const QQuickItem* p = item->parentItem(); p; p = p->parentItem())
        if (inherits(p, "QQuickFlickable"))
            return true;
    return false;
}

QString describe(const QQuickItem* item)
{
    QString text = QString::fromLatin1(item->metaObject()->className());
    const QVariant label = item->property("text");
    if (label.isValid() && !label.toString().isEmpty())
        text += QStringLiteral(" \"%1\"").arg(label.toString().left(60));
    if (!item->objectName().isEmpty())
        text += QStringLiteral(" (%1)").arg(item->objectName());
    return text;
}

void visibleItems(QQuickItem* item, QList<QQuickItem*>& out)
{
    if (!item->isVisible() || item->opacity() == 0.0)
        return;
    out << item;
    for (QQuickItem* child : item->childItems())
        visibleItems(child, out);
}

// What is wrong with the screen as it is shown now.
QStringList inspect(QQuickWindow* window)
{
    QStringList problems;
    QQuickItem* root = window->contentItem();
    // With a modal popup open only the popup can be used: look at the top layer then.
    QQuickItem* overlay = nullptr;
    for (QQuickItem* child : root->childItems())
        if (inherits(child, "QQuickOverlay"))
            overlay = child;
    QQuickItem* popup = nullptr; // the top-most open popup
    if (overlay && overlay->isVisible()) {
        for (QQuickItem* child : overlay->childItems())
            if (child->isVisible() && inherits(child, "QQuickPopupItem"))
                popup = child;
    }
    QQuickItem* layer = popup ? popup : root;
    QList<QQuickItem*> items;
    visibleItems(layer, items);

    const QRectF windowRect(0, 0, window->width(), window->height());
    for (QQuickItem* item : items) {
        const QRectF rect = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
        if (inherits(item, "QQuickText")) {
            const int elide = item->property("elide").toInt();
            const int wrap = item->property("wrapMode").toInt();
            const qreal needed = item->implicitWidth();
            if (item->width() > 0 && needed > item->width() + 1 && elide == Qt::ElideNone && wrap == 0 && !item->clip())
                problems << QStringLiteral("text runs out of its box (%1 of %2 px): %3").arg(needed).arg(item->width()).arg(describe(item));
            if (item->property("truncated").toBool() && elide == Qt::ElideNone)
                problems << QStringLiteral("text cut off: %1").arg(describe(item));
            if (!item->property("text").toString().isEmpty() && item->width() > 0
                && (rect.right() > windowRect.right() + 1 || rect.left() < -1))
                problems << QStringLiteral("text outside the window: %1").arg(describe(item));
        }
        if (inherits(item, "QQuickControl") && item->isEnabled() && item->width() > 0 && item->height() > 0) {
            const bool horizontallyOut = rect.left() < -1 || rect.right() > windowRect.right() + 1;
            const bool verticallyOut = !insideFlickable(item) && (rect.top() < -1 || rect.bottom() > windowRect.bottom() + 1);
            if (horizontallyOut || verticallyOut)
                problems << QStringLiteral("control outside the window at %1,%2 %3x%4: %5")
                                .arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height()).arg(describe(item));
        }
    }

    // Tab visits every enabled control that takes focus.
    QSet<QQuickItem*> chain;
    QQuickItem* start = layer->nextItemInFocusChain(true);
    for (QQuickItem* it = start; it && !chain.contains(it) && chain.size() < 5000; it = it->nextItemInFocusChain(true))
        chain << it;
    for (QQuickItem* item : items) {
        if (item->activeFocusOnTab() && item->isEnabled() && item->width() > 0 && item->height() > 0 && !chain.contains(item))
            problems << QStringLiteral("not reachable with Tab: %1").arg(describe(item));
    }
    return problems;
}

// Keeps a screenshot of what the window shows and notes every problem seen on it.
void look(QQuickWindow* window, const QString& shots, const QString& name, QStringList& failures)
{
    QImage image = window->grabWindow();
    // The software renderer cannot always read back its own frame; the platform still has it.
    if (image.isNull() && window->screen())
        image = window->screen()->grabWindow(window->winId()).toImage();
    QString file = name;
    file.replace(QLatin1Char('/'), QLatin1Char('_'));
    if (image.isNull() || !image.save(shots + QLatin1Char('/') + file + QStringLiteral(".png")))
        failures << name + QStringLiteral(": no screenshot");
    for (const QString& problem : inspect(window) + g_warnings)
        failures << name + QStringLiteral(": ") + problem;
    g_warnings.clear();
}

// Asks the main view's network badge to read the network again; true once it shows `kind`.
bool refreshNetworkStatus(QQuickWindow* window, int kind)
{
    QObject* status = nullptr;
    for (QObject* object : window->findChildren<QObject*>())
        if (object->inherits("NetworkStatus"))
            status = object;
    if (!status || !QMetaObject::invokeMethod(status, "refresh"))
        return false;
    return QTest::qWaitFor([&] { return status->property("kind").toInt() == kind; }, 3000);
}

// The items of the window's popups (each one's parent is its popup), bottom first.
QList<QQuickItem*> popupItems(QQuickWindow* window)
{
    QList<QQuickItem*> items;
    for (QQuickItem* child : window->contentItem()->childItems())
        if (inherits(child, "QQuickOverlay"))
            for (QQuickItem* item : child->childItems())
                if (inherits(item, "QQuickPopupItem") && item->parent())
                    items << item;
    return items;
}

// The top-most open popup that takes the keyboard (toasts do not), or none.
QQuickItem* openDialog(QQuickWindow* window)
{
    QQuickItem* top = nullptr;
    for (QQuickItem* item : popupItems(window))
        if (item->isVisible() && item->parent()->property("focus").toBool())
            top = item;
    return top;
}

// Escape leaves an open dialog: it cancels, or closes a dialog that only informs.
QStringList escapeProblems(QQuickWindow* window)
{
    QQuickItem* dialog = openDialog(window);
    if (!dialog)
        return {};
    QTest::keyClick(window, Qt::Key_Escape);
    if (QTest::qWaitFor([&] { return !dialog->isVisible(); }, 1000))
        return {};
    const QString name = QString::fromLatin1(dialog->parent()->metaObject()->className()).section(QLatin1String("_QML"), 0, 0);
    return {QStringLiteral("Escape does not leave the dialog: %1").arg(name)};
}

// The menu button of the first connection tile that has one.
QQuickItem* tileMenuButton(QQuickItem* item)
{
    if (item->isVisible() && inherits(item, "QQuickAbstractButton")
        && item->property("iconName").toString() == QLatin1String("chevron-down"))
        return item;
    for (QQuickItem* child : item->childItems())
        if (QQuickItem* found = child->isVisible() ? tileMenuButton(child) : nullptr)
            return found;
    return nullptr;
}

// The open drop-down menu, or none.
QQuickItem* openMenu(QQuickWindow* window)
{
    for (QQuickItem* item : popupItems(window))
        if (item->isVisible() && item->parent()->inherits("QQuickMenu"))
            return item;
    return nullptr;
}

// Closes whatever popups a page left open, so the next page is seen on its own.
void closePopups(QQuickWindow* window)
{
    for (QQuickItem* item : popupItems(window))
        QMetaObject::invokeMethod(item->parent(), "close");
}

} // namespace

class tst_AllScreens : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
        registerQmlTypes();
        QFontDatabase::addApplicationFont(QStringLiteral(NORBIX_BUILD_DIR "/quarnos.ttf"));
        LanguageBackend::setTranslationDirectories({QStringLiteral(NORBIX_BUILD_DIR)});
        g_previous = qInstallMessageHandler(collect);
    }

    void screens_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QSize>("size");
        const QStringList codes = LanguageBackend::languageCodes();
        for (int language = 0; language < codes.size(); ++language)
            for (const QSize& size : {QSize(1280, 720), QSize(1920, 1080)})
                QTest::addRow("%s %dx%d", qPrintable(codes.at(language)), size.width(), size.height()) << language << size;
    }
    void screens()
    {
        QFETCH(int, language);
        QFETCH(QSize, size);
        TestSandbox sandbox;
        QFile::copy(QStringLiteral(NORBIX_TEST_DATA "/simulation/sample-connections.json"), sandbox.dataFile("connections.json"));
        const QString code = LanguageBackend::languageCode(language);
        const QString shots = QStringLiteral(NORBIX_BUILD_DIR "/screens/%1-%2x%3").arg(code).arg(size.width()).arg(size.height());
        QVERIFY(QDir().mkpath(shots));

        QQmlApplicationEngine engine;
        engine.addImportPath(QStringLiteral("qrc:/custom"));
        LanguageBackend::getInstance()->setEngine(&engine);
        const auto forgetEngine = qScopeGuard([] { LanguageBackend::getInstance()->setEngine(nullptr); });
        QVERIFY2(LanguageBackend::getInstance()->updateLanguage(language), qPrintable(code));
        // The wizard's course depends on what is configured; a chosen language is not part of that here.
        QFile::remove(sandbox.dataFile("language.ini"));
        ContextObjects objects;
        objects.publish(engine.rootContext());
        g_warnings.clear();
        engine.load(QUrl(QStringLiteral("qrc:/vorplex/Main.qml")));
        QVERIFY(!engine.rootObjects().isEmpty());
        auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().first());
        QVERIFY(window);
        window->resize(size);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));

        // This run names the on-screen keyboard as input method without switching the keyboard on,
        // which the shell never does: the keyboard then opens a window of its own that takes the
        // focus. Escape is checked in the keyboard run (ui-all-screens-keyboard) instead.
        const bool onScreenKeyboard = qgetenv("QT_IM_MODULE") == "qtvirtualkeyboard";
        QStringList failures;
        for (const QString& page : pages()) {
            g_warnings.clear();
            QVERIFY(QMetaObject::invokeMethod(window, "openPage", Q_ARG(QVariant, page)));
            QTest::qWait(150);
            QCoreApplication::processEvents();
            look(window, shots, page, failures);
            if (!onScreenKeyboard) {
                const bool dialog = openDialog(window) != nullptr;
                for (const QString& problem : escapeProblems(window))
                    failures << page + QStringLiteral(": ") + problem;
                // Without a dialog, Escape in a settings section goes back to the main view.
                if (!dialog && page.startsWith(QLatin1String("settings/"))) {
                    QTest::keyClick(window, Qt::Key_Escape);
                    if (!QTest::qWaitFor([&] { return window->property("currentView").toString() == QLatin1String("main"); }, 1000))
                        failures << page + QStringLiteral(": Escape does not leave the settings");
                }
            }
            closePopups(window);
            QTest::qWait(50);
        }
        // The main view's states that the pages above do not show: a tile's menu (made on its first
        // opening), the network badge on Wi-Fi and without a network, and the banner of a running
        // assistance tunnel.
        QVERIFY(QMetaObject::invokeMethod(window, "openPage", Q_ARG(QVariant, QStringLiteral("main"))));
        QQuickItem* menuButton = tileMenuButton(window->contentItem());
        QVERIFY2(menuButton, "no tile with a menu on the main view");
        QTest::mouseClick(window, Qt::LeftButton, {}, menuButton->mapToScene(QPointF(menuButton->width() / 2, menuButton->height() / 2)).toPoint());
        QVERIFY2(QTest::qWaitFor([&] { return openMenu(window) != nullptr; }, 2000), "the tile's menu does not open");
        QTest::qWait(300); // the menu fades in
        look(window, shots, QStringLiteral("tile-menu"), failures);
        if (onScreenKeyboard) {
            closePopups(window);
        } else {
            QTest::keyClick(window, Qt::Key_Escape);
            QVERIFY2(QTest::qWaitFor([&] { return openMenu(window) == nullptr; }, 2000), "Escape does not close the tile's menu");
        }
        const auto restoreNetwork = qScopeGuard([] { SimulatedNetwork::reset(); });
        auto nmcli = [](const QStringList& args) { return CommandRunner::instance().run("sudo", QStringList("nmcli") + args).exitCode; };
        QCOMPARE(nmcli({"con", "down", "Wired connection 1"}), 0);
        QVERIFY(refreshNetworkStatus(window, 2));
        look(window, shots, QStringLiteral("main-wifi"), failures);
        QCOMPARE(nmcli({"radio", "wifi", "off"}), 0);
        QVERIFY(refreshNetworkStatus(window, 0));
        look(window, shots, QStringLiteral("main-no-network"), failures);
        // The simulated terminal's tunnel runs until it is ended.
        QVERIFY(AssistanceTunnels::getInstance()->start(
                "/opt/norbix/tools/tunnel", {"--src", "mgmt.example:4443", "--dst", "127.0.0.1:5900", "--token", "t"}));
        QTest::qWait(50);
        QVERIFY(AssistanceTunnels::getInstance()->isActive());
        look(window, shots, QStringLiteral("main-assistance"), failures);
        AssistanceTunnels::getInstance()->endAssistance();
        QVERIFY(!AssistanceTunnels::getInstance()->isActive());
        // Popups opened by a page stay until the next page; close everything before the engine goes.
        QVERIFY(QMetaObject::invokeMethod(window, "openPage", Q_ARG(QVariant, QStringLiteral("main"))));
        QCoreApplication::processEvents();
        failures.removeDuplicates();
        QVERIFY2(failures.isEmpty(), qPrintable(failures.join(QLatin1Char('\n'))));
    }

    void cleanupTestCase()
    {
        // Back to the source language for whatever runs after.
        LanguageBackend::getInstance()->updateLanguage(0);
        LanguageBackend::getInstance()->setEngine(nullptr);
    }
};

QTEST_MAIN(tst_AllScreens)
#include "tst_allscreens.moc"
