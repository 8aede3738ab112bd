#include "MouseSettingsBackend.h"
#include "PeerRunner.h"
#include "TestSandbox.h"
#include "WallpapersManager.h"

#include <QImage>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

// Layouts, pointers and the background against a real X server (the test runs under its own
// Xvfb), with setxkbmap, xinput, openbox, feh and the layout tool.
class tst_InputX11 : public QObject {
    Q_OBJECT

    Display* m_display = nullptr;
    QProcess m_openbox;

    static QString run(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished(30000);
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    static void storeKeyboard(const TestSandbox& sandbox, const QVariantMap& values)
    {
        QSettings settings(sandbox.dataFile(QStringLiteral("keyboard.ini")), QSettings::IniFormat);
        for (auto it = values.begin(); it != values.end(); ++it)
            settings.setValue(it.key(), it.value());
    }

    QRgb rootPixel(int x, int y) const
    {
        XImage* image = XGetImage(m_display, DefaultRootWindow(m_display), x, y, 1, 1, AllPlanes, ZPixmap);
        if (!image)
            return 0;
        const unsigned long pixel = XGetPixel(image, 0, 0);
        XDestroyImage(image);
        return qRgb(int((pixel >> 16) & 0xff), int((pixel >> 8) & 0xff), int(pixel & 0xff));
    }

private slots:
    void initTestCase()
    {
        for (const char* tool : {"setxkbmap", "xinput", "openbox", "feh"}) {
            if (QStandardPaths::findExecutable(QLatin1String(tool)).isEmpty())
                QSKIP(qPrintable(QStringLiteral("%1 is not installed (scripts/test installs it)").arg(QLatin1String(tool))));
        }
        m_display = XOpenDisplay(nullptr);
        QVERIFY2(m_display, "no X server (run under tests/with-xvfb)");
        m_openbox.start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")});
        QVERIFY(m_openbox.waitForStarted());
    }

    void cleanupTestCase()
    {
        if (m_openbox.state() != QProcess::NotRunning) {
            m_openbox.terminate();
            m_openbox.waitForFinished(5000);
        }
        if (m_display)
            XCloseDisplay(m_display);
    }

    void layouts_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("preferred");
        QTest::addColumn<QString>("applied");
        QTest::newRow("preferred first") << "us,de,fr" << "de" << "de,us,fr";
        QTest::newRow("single") << "fr" << "fr" << "fr";
        QTest::newRow("no preferred") << "ru,us" << "" << "ru,us";
    }
    void layouts()
    {
        QFETCH(QString, stored);
        QFETCH(QString, preferred);
        QFETCH(QString, applied);
        TestSandbox sandbox;
        PeerRunner runner(sandbox);
        runner.mapProgram(QStringLiteral("/opt/norbix/xkblayout-state"), QStringLiteral(XKBLAYOUT_STATE));
        storeKeyboard(sandbox, {{"Layouts", stored}, {"PreferredLayout", preferred}});
        QVERIFY(MouseSettingsBackend::initLayouts());
        const QString query = run(QStringLiteral("setxkbmap"), {QStringLiteral("-query")});
        QVERIFY2(query.contains(QStringLiteral("layout:     ") + applied + QLatin1Char('\n')), qPrintable(query));
        QVERIFY2(query.contains(QStringLiteral("grp:alt_shift_toggle")), qPrintable(query));
        QCOMPARE(m_openbox.state(), QProcess::Running); // reconfigured, not stopped

        // The layout tool names the active group: the first after setxkbmap, then each in turn.
        const QStringList codes = applied.split(QLatin1Char(','));
        QCOMPARE(MouseSettingsBackend::getKeyboardLayout(), codes.first());
        QCOMPARE(QSettings(sandbox.dataFile("keyboard.ini"), QSettings::IniFormat).value("CurrentLayout").toString(), codes.first());
        for (int group = 0; group < codes.size(); ++group) {
            QVERIFY(XkbLockGroup(m_display, XkbUseCoreKbd, unsigned(group)));
            XSync(m_display, False);
            QCOMPARE(MouseSettingsBackend::getKeyboardLayout(), codes.at(group));
        }
        XkbLockGroup(m_display, XkbUseCoreKbd, 0);
        XSync(m_display, False);
        QCOMPARE(run(QStringLiteral(XKBLAYOUT_STATE), {QStringLiteral("print"), QStringLiteral("[%s|%c|%%]")}),
                 QStringLiteral("[%1|0|%]").arg(codes.first()));
    }

    void layoutRejectedByServer()
    {
        TestSandbox sandbox;
        PeerRunner runner(sandbox);
        runner.mapProgram(QStringLiteral("/opt/norbix/xkblayout-state"), QStringLiteral(XKBLAYOUT_STATE));
        storeKeyboard(sandbox, {{"Layouts", "us"}});
        QVERIFY(MouseSettingsBackend::initLayouts());
        // A code X does not know: setxkbmap fails, the layouts in force stay.
        storeKeyboard(sandbox, {{"Layouts", "zz,us"}, {"PreferredLayout", "zz"}});
        QVERIFY(!MouseSettingsBackend::initLayouts());
        QVERIFY(run(QStringLiteral("setxkbmap"), {QStringLiteral("-query")}).contains(QStringLiteral("layout:     us\n")));
    }

    // Xvfb's pointers take no libinput acceleration: nothing is stored, speed changes run nothing.
    void pointers()
    {
        TestSandbox sandbox;
        PeerRunner runner(sandbox);
        MouseSettingsBackend mouse;
        mouse.getMouseNames();
        QSettings stored(sandbox.dataFile(QStringLiteral("keyboard.ini")), QSettings::IniFormat);
        QCOMPARE(stored.value("Ids").toString(), QString());
        QCOMPARE(stored.value("Mouse").toString(), QString());
        QVERIFY(!mouse.hasPointers());
        mouse.setMouseSensetivity(0.4f);
        QCOMPARE(mouse.getMouseSensetivity(), 0.0f);

        // The button map goes to the real device when its id is stored.
        const QString list = run(QStringLiteral("xinput"), {QStringLiteral("--list"), QStringLiteral("--short")});
        const QRegularExpressionMatch xvfbMouse = QRegularExpression(QStringLiteral("Xvfb mouse\\s*\\tid=(\\d+)")).match(list);
        QVERIFY2(xvfbMouse.hasMatch(), qPrintable(list));
        storeKeyboard(sandbox, {{"Ids", xvfbMouse.captured(1)}});
        mouse.setPrimaryButton(1);
        QCOMPARE(mouse.getPrimaryButton(), 1);
        QVERIFY(run(QStringLiteral("xinput"), {QStringLiteral("get-button-map"), xvfbMouse.captured(1)}).startsWith(QStringLiteral("3 2 1")));
        mouse.setPrimaryButton(0);
        QCOMPARE(mouse.getPrimaryButton(), 0);
        // An id that no longer exists: xinput refuses, nothing breaks.
        storeKeyboard(sandbox, {{"Ids", "250"}});
        mouse.setPrimaryButton(1);
        QCOMPARE(mouse.getPrimaryButton(), 0);
    }

    void background()
    {
        TestSandbox sandbox;
        PeerRunner runner(sandbox);
        QImage red(64, 48, QImage::Format_RGB32);
        red.fill(qRgb(220, 20, 30));
        QVERIFY(QDir().mkpath(sandbox.path("/media/USB")));
        QVERIFY(red.save(sandbox.path("/media/USB/red.png")));
        WallpapersManager wallpapers;
        QVERIFY(wallpapers.setWallpaper(sandbox.path("/media/USB/red.png")));
        QTRY_COMPARE(rootPixel(10, 10), qRgb(220, 20, 30));

        // Switched off: the built-in background (dark at the top).
        WallpapersManager::setWallpaperActive(false);
        QTRY_VERIFY(qRed(rootPixel(10, 10)) < 60);
        QFile builtIn(QStringLiteral(":/images/default_background.png"));
        QVERIFY(builtIn.open(QIODevice::ReadOnly));
        const QImage expected = QImage::fromData(builtIn.readAll());
        QVERIFY(!expected.isNull());
        // feh scales the picture to the screen: allow for the filter's rounding.
        const QRgb shown = rootPixel(10, 10);
        const QRgb top = expected.pixel(0, 0);
        QVERIFY2(qAbs(qRed(shown) - qRed(top)) <= 3 && qAbs(qGreen(shown) - qGreen(top)) <= 3 && qAbs(qBlue(shown) - qBlue(top)) <= 3,
                 qPrintable(QString::number(shown, 16) + QLatin1String(" vs ") + QString::number(top, 16)));

        // Switched on again: the stored picture.
        WallpapersManager::setWallpaperActive(true);
        QTRY_COMPARE(rootPixel(10, 10), qRgb(220, 20, 30));
    }
};

QTEST_GUILESS_MAIN(tst_InputX11)
#include "tst_input_x11.moc"
