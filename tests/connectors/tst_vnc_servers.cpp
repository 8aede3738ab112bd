#include "Connection.h"
#include "FreePort.h"
#include "TestSandbox.h"
#include "ViewDialog.h"
#include "VNCConnector.h"
#include "X11ShmPresenter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QGraphicsView>
#include <QProcess>
#include <QScreen>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <functional>

// The viewer against real servers on 127.0.0.1, under the X server this test runs in: the project's
// own test server (known pattern, password, records input) and x11vnc serving a second X server.
namespace {

// The test server, talked to through its standard input and output.
class TestServer {
public:
    bool start(const QStringList& arguments)
    {
        m_process.setProgram(QStringLiteral(VNC_TEST_SERVER));
        m_process.setArguments(arguments);
        m_process.start();
        if (!waitFor(QStringLiteral("port "), 10000))
            return false;
        return true;
    }
    ~TestServer()
    {
        if (m_process.state() == QProcess::Running) {
            send("quit");
            if (!m_process.waitForFinished(3000))
                m_process.kill();
        }
    }
    void send(const QByteArray& command) { m_process.write(command + '\n'); }
    // Everything printed so far, read without blocking (usable while the viewer holds the main thread).
    QStringList lines()
    {
        m_output += QString::fromUtf8(m_process.readAllStandardOutput());
        return m_output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    bool waitFor(const QString& prefix, int timeoutMs)
    {
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < timeoutMs) {
            for (const QString& line : lines())
                if (line.startsWith(prefix))
                    return true;
            m_process.waitForReadyRead(50);
        }
        return false;
    }

private:
    QProcess m_process;
    QString m_output;
};

// Steps run while initConnection holds the main thread inside the viewer's session loop. A step
// returns true when it is done; the script closes every viewer when it ends or runs out of time.
class SessionScript : public QObject {
public:
    void add(const QString& name, std::function<bool()> step) { m_steps.append({name, std::move(step)}); }
    void start(int timeoutMs)
    {
        m_clock.start();
        m_timeoutMs = timeoutMs;
        m_timer.setInterval(20);
        connect(&m_timer, &QTimer::timeout, this, &SessionScript::tick);
        m_timer.start();
    }
    QString failure() const { return m_failure; }
    int done() const { return m_next; }

private:
    void tick()
    {
        if (m_next < m_steps.size() && m_clock.elapsed() > m_timeoutMs)
            m_failure = QStringLiteral("timed out waiting for: ") + m_steps.at(m_next).first;
        else if (m_next < m_steps.size() && m_steps.at(m_next).second())
            ++m_next;
        if (m_next == m_steps.size() || !m_failure.isEmpty()) {
            m_timer.stop();
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (qobject_cast<ViewDialog*>(widget) && widget->isVisible())
                    widget->close();
        }
    }

    QVector<QPair<QString, std::function<bool()>>> m_steps;
    QTimer m_timer;
    QElapsedTimer m_clock;
    int m_timeoutMs = 0;
    int m_next = 0;
    QString m_failure;
};

ViewDialog* openViewer()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* dialog = qobject_cast<ViewDialog*>(widget); dialog && dialog->isVisible())
            return dialog;
    return nullptr;
}

int viewerCount()
{
    int count = 0;
    for (QWidget* widget : QApplication::topLevelWidgets())
        count += qobject_cast<ViewDialog*>(widget) != nullptr;
    return count;
}

// The test server's pattern: red, green / white, blue quadrants, or their inverse.
QRgb patternAt(int x, int y, QSize size, bool inverted)
{
    const bool right = x >= size.width() / 2, bottom = y >= size.height() / 2;
    QRgb colour = !bottom ? (right ? qRgb(0, 255, 0) : qRgb(255, 0, 0)) : (right ? qRgb(0, 0, 255) : qRgb(255, 255, 255));
    return inverted ? qRgb(255 - qRed(colour), 255 - qGreen(colour), 255 - qBlue(colour)) : colour;
}

// Where the frame differs from the pattern, as text for the failure message; empty when it matches.
QString patternMismatch(const QImage& frame, QSize size, bool inverted)
{
    if (frame.size() != size)
        return QStringLiteral("frame is %1x%2").arg(frame.width()).arg(frame.height());
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            if ((frame.pixel(x, y) & 0xFFFFFF) != (patternAt(x, y, size, inverted) & 0xFFFFFF))
                return QStringLiteral("pixel %1,%2 is %3").arg(x).arg(y).arg(frame.pixel(x, y), 0, 16);
    return QString();
}

Connection vncRecord(const QString& address, const QString& password, int percentage)
{
    Connection record = Connection::withFields(VNC, {{"name", QStringLiteral("Lab")}, {"address", address}, {"password", password}});
    QJsonObject data = record.getData();
    data.insert(QStringLiteral("percentage"), percentage);
    record.setData(data);
    return record;
}

// An X server of its own for x11vnc to serve; it tells its display number through a pipe.
class SecondDisplay {
public:
    bool start()
    {
        m_process.setProgram(QStringLiteral("Xvfb"));
        m_process.setArguments({QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                                QStringLiteral("320x240x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                // what the test draws must outlive its own connection
                                QStringLiteral("-noreset")});
        m_process.start();
        if (!m_process.waitForReadyRead(10000))
            return false;
        m_name = QStringLiteral(":") + QString::fromLatin1(m_process.readAllStandardOutput()).trimmed();
        return m_name.size() > 1;
    }
    ~SecondDisplay()
    {
        m_process.terminate();
        m_process.waitForFinished(3000);
    }
    QString name() const { return m_name; }

private:
    QProcess m_process;
    QString m_name;
};

QImage xImage(XImage* image)
{
    QImage frame(image->width, image->height, QImage::Format_RGB32);
    for (int y = 0; y < image->height; ++y)
        for (int x = 0; x < image->width; ++x)
            frame.setPixel(x, y, 0xFF000000 | XGetPixel(image, x, y));
    return frame;
}

// What the X server shows in the viewer's window where the frame is (not what the toolkit would
// paint there now): a frame that reached the screen without a repaint is seen too.
class ScreenReader {
public:
    ScreenReader() : m_display(XOpenDisplay(nullptr))
    {
        XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
        if (!m_display)
            qWarning() << "cannot open the display" << qgetenv("DISPLAY");
    }
    ~ScreenReader()
    {
        if (m_display)
            XCloseDisplay(m_display);
    }
    QImage frameArea(ViewDialog* viewer, QSize size) const
    {
        const QPoint at = viewer->view()->viewport()->mapTo(viewer, viewer->view()->mapFromScene(0, 0));
        return area(viewer->winId(), QRect(at, size));
    }
    QImage area(WId window, QRect rect) const
    {
        if (!m_display)
            return QImage();
        XImage* image = XGetImage(m_display, window, rect.x(), rect.y(), rect.width(), rect.height(), AllPlanes, ZPixmap);
        if (!image)
            return QImage();
        const QImage pixels = xImage(image);
        XDestroyImage(image);
        return pixels;
    }

private:
    Display* m_display;
};

} // namespace

class tst_VncServers : public QObject {
    Q_OBJECT

    TestSandbox* m_sandbox = nullptr;

private slots:
    void initTestCase()
    {
        QVERIFY2(qEnvironmentVariable("NORBIX_SIMULATE") == QLatin1String("1"), "the port scan must be the simulated one");
        QVERIFY2(QFile::exists(QStringLiteral(VNC_TEST_SERVER)), VNC_TEST_SERVER);
        m_sandbox = new TestSandbox;
        VNCConnector::setNetworkTimeout(2);
    }
    void cleanupTestCase()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the closed viewers
        delete m_sandbox;
    }

    // Addresses that cannot name a server: refused at once, no window. Nothing in this suite listens
    // on 5900, the port an address without one is checked on.
    void malformedAddresses_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("empty") << "";
        QTest::newRow("trailing colon") << "127.0.0.1:";
        QTest::newRow("leading colon") << ":5900";
        QTest::newRow("not a port") << "127.0.0.1:notaport";
        QTest::newRow("closed port") << QStringLiteral("127.0.0.1:%1").arg(freeLocalPort());
    }
    void malformedAddresses()
    {
        QFETCH(QString, address);
        const int before = viewerCount();
        QVERIFY(!VNCConnector::getInstance()->initConnection(vncRecord(address, QString(), 100)));
        QCOMPARE(viewerCount(), before);
    }

    void wrongPassword()
    {
        TestServer server;
        const quint16 port = freeLocalPort();
        QVERIFY(server.start({QStringLiteral("--password"), QStringLiteral("secret"), QStringLiteral("--port"), QString::number(port)}));
        const int before = viewerCount();
        QVERIFY(!VNCConnector::getInstance()->initConnection(vncRecord(QStringLiteral("127.0.0.1:%1").arg(port), "wrong", 100)));
        QCOMPARE(viewerCount(), before);
        // The library got far enough to be refused, not stopped by the scan.
        QVERIFY(server.waitFor(QStringLiteral("client connected"), 3000));
    }

    // A server that accepts the connection and never says a word: the handshake gives up.
    void silentServer()
    {
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost, 0));
        QList<QTcpSocket*> accepted;
        connect(&silent, &QTcpServer::newConnection, this, [&] { accepted << silent.nextPendingConnection(); });
        const int before = viewerCount();
        QVERIFY(!VNCConnector::getInstance()->initConnection(vncRecord(QStringLiteral("127.0.0.1:%1").arg(silent.serverPort()), {}, 100)));
        QCOMPARE(viewerCount(), before);
    }

    // One whole session: pattern shown, input sent as the key table says, Escape kept back, frames
    // followed through a change and a resize, and the last frame kept when the server goes away.
    // Frames reach the window straight from shared memory, or through the toolkit's painting when
    // that is not available; the screen must show the same either way.
    void session_data()
    {
        QTest::addColumn<bool>("sharedMemory");
        QTest::newRow("shared memory") << true;
        QTest::newRow("toolkit painting") << false;
    }
    void session()
    {
        QFETCH(bool, sharedMemory);
        X11ShmPresenter::setEnabled(sharedMemory);
        struct Restore {
            ~Restore() { X11ShmPresenter::setEnabled(true); }
        } restore;
        ScreenReader screenReader;
        TestServer server;
        const quint16 port = freeLocalPort();
        QVERIFY(server.start({QStringLiteral("--password"), QStringLiteral("secret"), QStringLiteral("--port"), QString::number(port)}));

        ViewDialog* viewer = nullptr;
        QString firstFrame, shown, inverted, resized, invertedBack, afterClose;
        bool sharedFrames = false;
        QRect geometry;
        QStringList input;
        QPixmap frameBeforeClose;
        bool stillOpenAfterClose = false;
        int closeWait = 0;
        auto frame = [&] { return viewer ? viewer->lastFrame().toImage() : QImage(); };

        SessionScript script;
        script.add("the viewer window", [&] {
            viewer = openViewer();
            return viewer && !viewer->lastFrame().isNull();
        });
        script.add("the pattern", [&] {
            firstFrame = patternMismatch(frame(), QSize(640, 480), false);
            if (!firstFrame.isEmpty())
                return false;
            geometry = viewer->geometry();
            // What the window shows: the view centres the frame when it is smaller than the window.
            const QImage screen = viewer->view()->viewport()->grab(QRect(viewer->view()->mapFromScene(0, 0), QSize(640, 480))).toImage();
            shown = patternMismatch(screen, QSize(640, 480), false);
            if (shown.isEmpty()) // and the first frame is on screen without any further update
                shown = QStringLiteral("on screen: ") + patternMismatch(screenReader.frameArea(viewer, QSize(640, 480)), QSize(640, 480), false);
            return shown == QLatin1String("on screen: "); // the frame reaches the scene a moment after it is received
        });
        script.add("key and pointer events", [&] {
            QWidget* surface = viewer->view()->viewport();
            viewer->activateWindow();
            viewer->view()->setFocus();
            QTest::keyClick(surface, Qt::Key_1);
            QTest::keyClick(surface, Qt::Key_A, Qt::ShiftModifier);
            QTest::keyClick(surface, Qt::Key_Escape);
            QTest::keyClick(surface, Qt::Key_Z);
            QTest::mouseClick(surface, Qt::LeftButton, {}, viewer->view()->mapFromScene(QPointF(100, 50)));
            return true;
        });
        script.add("the events at the server", [&] {
            const QStringList lines = server.lines();
            if (!lines.contains(QStringLiteral("pointer 100 50 1")) || !lines.contains(QStringLiteral("key 0 0x7a")))
                return false;
            for (const QString& line : lines)
                if (line.startsWith(QLatin1String("key ")))
                    input << line;
            return true;
        });
        // A server command, sent the first time its step runs.
        auto sendOnce = [&](QString& state, const QByteArray& command) {
            if (state.isNull()) {
                server.send(command);
                state = QStringLiteral("sent");
            }
        };
        // Empty when the frame and the screen both show the pattern; otherwise where they differ.
        auto mismatchShown = [&](QSize size, bool inverse) {
            if (const QString inFrame = patternMismatch(frame(), size, inverse); !inFrame.isEmpty())
                return inFrame;
            const QString onScreen = patternMismatch(screenReader.frameArea(viewer, size), size, inverse);
            return onScreen.isEmpty() ? QString() : QStringLiteral("on screen: ") + onScreen;
        };
        script.add("the inverted pattern", [&] {
            sendOnce(inverted, "invert");
            inverted = mismatchShown(QSize(640, 480), true);
            sharedFrames = X11ShmPresenter::instance().isShared(frame());
            return inverted.isEmpty();
        });
        script.add("the new size", [&] {
            sendOnce(resized, "resize 800 600");
            resized = patternMismatch(frame(), QSize(800, 600), true);
            return resized.isEmpty();
        });
        // Smaller than the window, the frame is centred: the changed part goes to the same place.
        script.add("the pattern back at the new size", [&] {
            sendOnce(invertedBack, "invert");
            invertedBack = mismatchShown(QSize(800, 600), false);
            return invertedBack.isEmpty();
        });
        script.add("the server gone", [&] {
            if (frameBeforeClose.isNull()) {
                frameBeforeClose = viewer->lastFrame();
                server.send("close");
            }
            return server.lines().contains(QStringLiteral("client gone"));
        });
        script.add("a while after", [&] { return ++closeWait > 10; });
        script.add("the window as it was", [&] {
            stillOpenAfterClose = viewer->isVisible();
            afterClose = patternMismatch(frame(), QSize(800, 600), false);
            return true;
        });

        script.start(20000);
        const bool opened = VNCConnector::getInstance()->initConnection(
            vncRecord(QStringLiteral("127.0.0.1:%1").arg(port), QStringLiteral("secret"), 100));
        QVERIFY2(script.failure().isEmpty(),
                 qPrintable(script.failure() + QStringLiteral("\nframe: ") + firstFrame + QStringLiteral(", shown: ") + shown
                            + QStringLiteral(", inverted: ") + inverted + QStringLiteral(", back: ") + invertedBack
                            + QStringLiteral("\nserver: ") + server.lines().join(QStringLiteral(", "))));
        QCOMPARE(sharedFrames, sharedMemory);
        QVERIFY(opened);

        QCOMPARE(viewer->windowTitle(), QStringLiteral("Connection"));
        QCOMPARE(geometry.size(), QGuiApplication::primaryScreen()->size());
        // "1" goes out as keypad 1, Shift+A as left Shift then a lower-case a; Escape never leaves.
        const QStringList expected{"key 1 0xffb1", "key 0 0xffb1", "key 1 0xffe1", "key 1 0x61", "key 0 0x61",
                                   "key 0 0xffe1", "key 1 0x7a", "key 0 0x7a"};
        QCOMPARE(input, expected);
        QVERIFY(stillOpenAfterClose);
        QVERIFY2(afterClose.isEmpty(), qPrintable(afterClose));
        QVERIFY(!viewer->isVisible());
    }

    // The presenter on its own: the part of a shared frame asked for lands where asked and nowhere
    // else; frames it did not allocate and windows that read pixels differently are declined.
    void presenter()
    {
        X11ShmPresenter& presenter = X11ShmPresenter::instance();
        QImage frame = presenter.allocateFrame(QSize(64, 48));
        QVERIFY(presenter.isShared(frame));
        QCOMPARE(frame.pixel(10, 10) & 0xFFFFFF, 0u);
        frame.fill(qRgb(10, 200, 30));
        QVERIFY(!presenter.isShared(frame.copy()));

        QWidget window;
        window.setAutoFillBackground(true);
        window.setPalette(QPalette(Qt::white));
        window.setGeometry(0, 0, 200, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::qWait(50);
        QVERIFY(presenter.present(window.winId(), frame, QRect(8, 4, 16, 8), QPoint(50, 20)));
        ScreenReader screen;
        const QImage shown = screen.area(window.winId(), QRect(0, 0, 200, 100));
        QCOMPARE(shown.size(), QSize(200, 100));
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 200; ++x) {
                const QRgb expected = QRect(50, 20, 16, 8).contains(x, y) ? qRgb(10, 200, 30) : qRgb(255, 255, 255);
                QVERIFY2((shown.pixel(x, y) & 0xFFFFFF) == (expected & 0xFFFFFF), qPrintable(QStringLiteral("pixel %1,%2").arg(x).arg(y)));
            }
        // Only the part inside the frame is put; nothing of it is visible is still a success.
        QVERIFY(presenter.present(window.winId(), frame, QRect(60, 40, 20, 20), QPoint(0, 0)));
        QVERIFY(presenter.present(window.winId(), frame, QRect(100, 100, 5, 5), QPoint(0, 0)));

        QImage plain(64, 48, QImage::Format_RGB32);
        QVERIFY(!presenter.isShared(plain));
        QVERIFY(!presenter.present(window.winId(), plain, plain.rect(), QPoint()));

        // A window with an alpha channel would take the unused top byte as opacity.
        QWidget translucent;
        translucent.setAttribute(Qt::WA_TranslucentBackground);
        translucent.setGeometry(0, 0, 100, 100);
        translucent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&translucent));
        XWindowAttributes attributes{};
        Display* x = XOpenDisplay(nullptr);
        XGetWindowAttributes(x, translucent.winId(), &attributes);
        XCloseDisplay(x);
        QCOMPARE(attributes.depth, 32);
        QVERIFY(!presenter.present(translucent.winId(), frame, frame.rect(), QPoint()));

        // A window that went away after it was last used.
        WId gone = 0;
        {
            QWidget shortLived;
            shortLived.show();
            QVERIFY(QTest::qWaitForWindowExposed(&shortLived));
            gone = shortLived.winId();
            QVERIFY(presenter.present(gone, frame, frame.rect(), QPoint()));
        }
        QTest::qWait(50); // the toolkit's own connection sends the destruction
        QVERIFY(!presenter.present(gone, frame, frame.rect(), QPoint()));
        QVERIFY(presenter.present(window.winId(), frame, frame.rect(), QPoint()));
    }

    // x11vnc serving another X server: the viewer's frame is that display's content, pixel for pixel.
    void x11vnc()
    {
        SecondDisplay display;
        QVERIFY2(display.start(), "Xvfb did not start");
        Display* x = XOpenDisplay(display.name().toLatin1().constData());
        QVERIFY(x);
        const Window root = DefaultRootWindow(x);
        GC gc = XCreateGC(x, root, 0, nullptr);
        const unsigned long colours[] = {0x336699, 0xCC3300, 0x00AA55, 0xF0E68C};
        for (int i = 0; i < 4; ++i) {
            XSetForeground(x, gc, colours[i]);
            XFillRectangle(x, root, gc, i * 80, 0, 80, 240);
        }
        XSetForeground(x, gc, 0xFFFFFF);
        XFillRectangle(x, root, gc, 10, 100, 300, 20);
        XSync(x, False);
        XImage* image = XGetImage(x, root, 0, 0, 320, 240, AllPlanes, ZPixmap);
        QVERIFY(image);
        const QImage truth = xImage(image);
        XDestroyImage(image);
        XFreeGC(x, gc);
        XCloseDisplay(x);

        const quint16 port = freeLocalPort();
        QProcess vnc;
        vnc.setProcessChannelMode(QProcess::MergedChannels);
        vnc.start(QStringLiteral("x11vnc"), {QStringLiteral("-display"), display.name(), QStringLiteral("-rfbport"), QString::number(port),
                                             QStringLiteral("-localhost"), QStringLiteral("-nopw"), QStringLiteral("-forever"),
                                             QStringLiteral("-shared"), QStringLiteral("-noxdamage"),
                                             QStringLiteral("-nocursor")});
        QVERIFY2(vnc.waitForStarted(5000), "x11vnc is missing");
        QElapsedTimer clock;
        clock.start();
        QByteArray log;
        while (!log.contains("PORT=") && clock.elapsed() < 15000) {
            vnc.waitForReadyRead(100);
            log += vnc.readAll();
        }
        QVERIFY2(log.contains("PORT="), log.constData());

        QString mismatch = QStringLiteral("no frame");
        SessionScript script;
        script.add("the display's content", [&] {
            ViewDialog* viewer = openViewer();
            if (!viewer || viewer->lastFrame().isNull())
                return false;
            const QImage frame = viewer->lastFrame().toImage().convertToFormat(QImage::Format_RGB32);
            mismatch = frame == truth ? QString() : QStringLiteral("frame %1x%2 differs").arg(frame.width()).arg(frame.height());
            return mismatch.isEmpty();
        });
        script.start(20000);
        const bool opened = VNCConnector::getInstance()->initConnection(vncRecord(QStringLiteral("127.0.0.1:%1").arg(port), {}, 100));
        vnc.terminate();
        vnc.waitForFinished(3000);
        log += vnc.readAll();
        QVERIFY2(script.failure().isEmpty(), qPrintable(script.failure() + QStringLiteral(": ") + mismatch + QStringLiteral("\n") + log));
        QVERIFY(opened);
    }
};

QTEST_MAIN(tst_VncServers)
#include "tst_vnc_servers.moc"
