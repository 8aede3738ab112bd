#include "Connection.h"
#include "FreePort.h"
#include "TestSandbox.h"
#include "ViewDialog.h"
#include "VNCConnector.h"
#include "X11ShmPresenter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QGraphicsView>
#include <QMutex>
#include <QProcess>
#include <QSemaphore>
#include <QThread>
#include <QScreen>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <algorithm>
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

// The open viewer's last frame as 32-bit RGB; null while no viewer shows one.
QImage viewerFrame()
{
    const ViewDialog* viewer = openViewer();
    if (!viewer || viewer->lastFrame().isNull())
        return QImage();
    return viewer->lastFrame().toImage().convertToFormat(QImage::Format_RGB32);
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
    bool start(const QString& geometry = QStringLiteral("320x240x24"))
    {
        return run(QStringLiteral("Xvfb"), {QStringLiteral("-screen"), QStringLiteral("0"), geometry});
    }
    // TigerVNC's X server, which serves itself on 127.0.0.1:`port` without a password.
    bool startVncServer(quint16 port)
    {
        return run(QStringLiteral("Xvnc"), {QStringLiteral("-geometry"), QStringLiteral("320x240"), QStringLiteral("-depth"), QStringLiteral("24"),
                                            QStringLiteral("-rfbport"), QString::number(port), QStringLiteral("-localhost"),
                                            QStringLiteral("-SecurityTypes"), QStringLiteral("None"), QStringLiteral("-AlwaysShared")});
    }
    ~SecondDisplay()
    {
        m_process.terminate();
        m_process.waitForFinished(3000);
    }
    QString name() const { return m_name; }

private:
    bool run(const QString& program, const QStringList& arguments)
    {
        m_process.setProgram(program);
        m_process.setArguments(arguments
                               + QStringList{QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                             // what the test draws must outlive its own connection
                                             QStringLiteral("-noreset")});
        m_process.start();
        if (!m_process.waitForReadyRead(10000))
            return false;
        m_name = QStringLiteral(":") + QString::fromLatin1(m_process.readAllStandardOutput()).trimmed();
        return m_name.size() > 1;
    }

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

// The root window of `display` as its X server holds it, from the top left corner.
QImage screenOf(const QString& display, QSize size)
{
    Display* x = XOpenDisplay(display.toLatin1().constData());
    if (!x)
        return QImage();
    QImage pixels;
    if (XImage* image = XGetImage(x, DefaultRootWindow(x), 0, 0, size.width(), size.height(), AllPlanes, ZPixmap)) {
        pixels = xImage(image);
        XDestroyImage(image);
    }
    XCloseDisplay(x);
    return pixels;
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

// What the relay saw, read by the test's thread.
struct RelayRecord {
    QMutex lock;
    QList<QVector<qint32>> encodings;
    int continuousUpdatesAsked = 0; // EnableContinuousUpdates with the flag on
    int fencesAnswered = 0;
    QString error;
};

// Between the viewer and a server: passes the server's bytes on, at a limited rate when asked
// (a slow link), and reads the viewer's messages, keeping the encoding list of every SetEncodings.
class RecordingRelay : public QObject {
public:
    RecordingRelay(quint16 target, qint64 bytesPerSecond, RelayRecord* record) : m_target(target), m_rate(bytesPerSecond), m_record(record)
    {
        m_listener.listen(QHostAddress::LocalHost, 0);
        connect(&m_listener, &QTcpServer::newConnection, this, &RecordingRelay::accept);
        m_pump.setInterval(20);
        connect(&m_pump, &QTimer::timeout, this, &RecordingRelay::pump);
    }
    quint16 port() const { return m_listener.serverPort(); }

private:
    void accept()
    {
        QTcpSocket* client = m_listener.nextPendingConnection();
        if (m_client) { // the viewer's reachability check came first: only the last one counts
            m_client->deleteLater();
            m_upstream->deleteLater();
        }
        m_client = client;
        m_upstream = new QTcpSocket(this);
        m_clientStream.clear();
        m_toClient.clear();
        m_stage = 0;
        m_upstream->connectToHost(QHostAddress::LocalHost, m_target);
        connect(m_client, &QTcpSocket::readyRead, this, [this, client] {
            if (client == m_client)
                fromClient();
        });
        connect(m_upstream, &QTcpSocket::readyRead, this, [this, upstream = m_upstream] {
            if (upstream == m_upstream) {
                m_toClient += m_upstream->readAll();
                if (!m_rate)
                    pump();
            }
        });
        m_clock.start();
        m_sent = 0;
        if (m_rate)
            m_pump.start();
    }
    void pump()
    {
        if (!m_client || m_toClient.isEmpty())
            return;
        qint64 allowed = m_toClient.size();
        if (m_rate)
            allowed = std::min<qint64>(allowed, m_rate * m_clock.elapsed() / 1000 - m_sent);
        if (allowed <= 0)
            return;
        m_client->write(m_toClient.left(int(allowed)));
        m_toClient.remove(0, int(allowed));
        m_sent += allowed;
    }
    void fromClient()
    {
        const QByteArray data = m_client->readAll();
        m_upstream->write(data);
        m_clientStream += data;
        parse();
    }
    static quint32 be(const QByteArray& data, int at, int size)
    {
        quint32 value = 0;
        for (int i = 0; i < size; ++i)
            value = value << 8 | quint8(data.at(at + i));
        return value;
    }
    // The handshake (version, security type, a VNC password answer, ClientInit), then messages.
    void parse()
    {
        for (;;) {
            const int have = m_clientStream.size();
            int used = 0;
            if (m_stage == 0 && have >= 12)
                used = 12, m_stage = 1;
            else if (m_stage == 1 && have >= 1)
                used = 1, m_stage = m_clientStream.at(0) == 2 ? 2 : 3;
            else if (m_stage == 2 && have >= 16)
                used = 16, m_stage = 3;
            else if (m_stage == 3 && have >= 1)
                used = 1, m_stage = 4;
            else if (m_stage == 4 && have >= 1)
                used = messageLength();
            if (used <= 0 || used > m_clientStream.size())
                return;
            if (m_stage == 4 && m_clientStream.at(0) == 2) {
                QVector<qint32> list;
                for (int i = 0; i < int(be(m_clientStream, 2, 2)); ++i)
                    list << qint32(be(m_clientStream, 4 + 4 * i, 4));
                QMutexLocker locked(&m_record->lock);
                m_record->encodings << list;
            }
            if (m_stage == 4 && quint8(m_clientStream.at(0)) == 150 && m_clientStream.at(1) == 1) {
                QMutexLocker locked(&m_record->lock);
                ++m_record->continuousUpdatesAsked;
            }
            if (m_stage == 4 && quint8(m_clientStream.at(0)) == 248) {
                QMutexLocker locked(&m_record->lock);
                ++m_record->fencesAnswered;
            }
            m_clientStream.remove(0, used);
        }
    }
    // The length of the message at the start of the stream; 0 while its length is not known yet.
    int messageLength()
    {
        const QByteArray& s = m_clientStream;
        switch (quint8(s.at(0))) {
        case 0:
            return 20;
        case 2:
            return s.size() >= 4 ? 4 + 4 * int(be(s, 2, 2)) : 0;
        case 3:
            return 10;
        case 4:
            return 8;
        case 5:
            return 6;
        case 6:
            return s.size() >= 8 ? 8 + int(be(s, 4, 4)) : 0;
        case 150: // EnableContinuousUpdates
            return 10;
        case 248: // Fence
            return s.size() >= 9 ? 9 + quint8(s.at(8)) : 0;
        default:
            QMutexLocker locked(&m_record->lock);
            if (m_record->error.isEmpty())
                m_record->error = QStringLiteral("unknown client message %1").arg(quint8(s.at(0)));
            m_stage = 5; // nothing more can be read
            return 0;
        }
    }

    QTcpServer m_listener;
    quint16 m_target;
    qint64 m_rate;
    QTcpSocket* m_client = nullptr;
    QTcpSocket* m_upstream = nullptr;
    QByteArray m_clientStream, m_toClient;
    int m_stage = 0;
    QTimer m_pump;
    QElapsedTimer m_clock;
    qint64 m_sent = 0;
    RelayRecord* m_record;
};

// The relay runs on a thread of its own: the viewer holds the main thread, and its handshake
// blocks it.
class RelayThread : public QThread {
public:
    RelayThread(quint16 target, qint64 bytesPerSecond) : m_target(target), m_rate(bytesPerSecond) {}
    ~RelayThread() override
    {
        quit();
        wait();
    }
    quint16 begin()
    {
        start();
        m_ready.acquire();
        return m_port;
    }
    QList<QVector<qint32>> encodings()
    {
        QMutexLocker locked(&m_record.lock);
        return m_record.encodings;
    }
    QString error()
    {
        QMutexLocker locked(&m_record.lock);
        return m_record.error;
    }
    std::pair<int, int> continuousUpdatesAndFences()
    {
        QMutexLocker locked(&m_record.lock);
        return {m_record.continuousUpdatesAsked, m_record.fencesAnswered};
    }

protected:
    void run() override
    {
        RecordingRelay relay(m_target, m_rate, &m_record);
        m_port = relay.port();
        m_ready.release();
        exec();
    }

private:
    quint16 m_target;
    qint64 m_rate;
    quint16 m_port = 0;
    QSemaphore m_ready;
    RelayRecord m_record;
};

// A new picture of noise over the whole root window of `display`: costly to encode, as a
// photograph or a video is.
bool drawNoise(const QString& display, quint32 seed)
{
    Display* x = XOpenDisplay(display.toLatin1().constData());
    if (!x)
        return false;
    const int screen = DefaultScreen(x);
    const int width = DisplayWidth(x, screen), height = DisplayHeight(x, screen);
    QImage noise(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        auto* row = reinterpret_cast<quint32*>(noise.scanLine(y));
        for (int px = 0; px < width; ++px) {
            seed = seed * 1103515245u + 12345u;
            row[px] = seed >> 8;
        }
    }
    XImage* image = XCreateImage(x, DefaultVisual(x, screen), 24, ZPixmap, 0, reinterpret_cast<char*>(noise.bits()), width, height, 32,
                                 noise.bytesPerLine());
    GC gc = XCreateGC(x, RootWindow(x, screen), 0, nullptr);
    XPutImage(x, RootWindow(x, screen), gc, image, 0, 0, 0, 0, width, height);
    XSync(x, False);
    image->data = nullptr; // the QImage owns the pixels
    XDestroyImage(image);
    XFreeGC(x, gc);
    XCloseDisplay(x);
    return true;
}

// The real encodings by the numbers of the protocol: pseudo-encodings (negative) left out.
QVector<qint32> realEncodings(const QVector<qint32>& list)
{
    QVector<qint32> real;
    for (qint32 encoding : list)
        if (encoding >= 0 && encoding < 64)
            real << encoding;
    return real;
}

// The JPEG quality (0-9) a list asks for, -1 without one; the same for the compression level.
int pseudoLevel(const QVector<qint32>& list, qint32 zero)
{
    for (qint32 encoding : list)
        if (encoding >= zero && encoding <= zero + 9)
            return encoding - zero;
    return -1;
}

// x11vnc serving `display` on 127.0.0.1:`port` without a password, up once it names its port.
// Its output so far is left in `log` (the reason when it did not come up).
bool startX11vnc(QProcess& vnc, const QString& display, quint16 port, const QStringList& extra, QByteArray* log)
{
    vnc.setProcessChannelMode(QProcess::MergedChannels);
    vnc.start(QStringLiteral("x11vnc"), QStringList{QStringLiteral("-display"), display, QStringLiteral("-rfbport"), QString::number(port),
                                                    QStringLiteral("-localhost"), QStringLiteral("-nopw"), QStringLiteral("-forever"),
                                                    QStringLiteral("-shared"), QStringLiteral("-noxdamage"), QStringLiteral("-nocursor")}
                                                 + extra);
    if (!vnc.waitForStarted(5000)) {
        *log = "x11vnc is missing";
        return false;
    }
    QElapsedTimer clock;
    clock.start();
    while (!log->contains("PORT=") && clock.elapsed() < 15000) {
        vnc.waitForReadyRead(100);
        *log += vnc.readAll();
    }
    return log->contains("PORT=");
}

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

    // The viewer measures the link and asks for encodings to suit it, as the server sees them on
    // the wire: compact ones over a slow link, plain pixels tried on loopback, and a connection's
    // own choice sent once and kept.
    void encodingChoice_data()
    {
        QTest::addColumn<int>("bytesPerSecond"); // 0: as fast as loopback goes
        QTest::addColumn<QString>("ownEncodings");
        QTest::addColumn<QString>("which"); // the list checked: "last", "any" or "only" (the one sent)
        QTest::addColumn<QVector<qint32>>("expected");
        QTest::addColumn<int>("quality");
        QTest::addColumn<int>("compression");
        QTest::newRow("slow link") << 125000 << QString() << "last" << QVector<qint32>{1, 7, 16, 9, 6, 5, 4, 2, 0} << 6 << 6;
        QTest::newRow("loopback") << 0 << QString() << "any" << QVector<qint32>{1, 0, 5, 6} << -1 << 1;
        QTest::newRow("the connection's own") << 125000 << "tight hextile" << "only" << QVector<qint32>{7, 5} << 4 << 3;
    }
    void encodingChoice()
    {
        QFETCH(int, bytesPerSecond);
        QFETCH(QString, ownEncodings);
        QFETCH(QString, which);
        QFETCH(QVector<qint32>, expected);
        QFETCH(int, quality);
        QFETCH(int, compression);

        // libvncclient counts every wait for more data of one read against its time-out, progress
        // or not: a large rectangle trickling in over a slow link needs the viewer's usual limit.
        VNCConnector::setNetworkTimeout(30);
        struct Restore {
            ~Restore() { VNCConnector::setNetworkTimeout(2); }
        } restore;
        SecondDisplay display;
        QVERIFY2(display.start(QStringLiteral("640x480x24")), "Xvfb did not start");
        QVERIFY(drawNoise(display.name(), 1));
        const quint16 port = freeLocalPort();
        QProcess vnc;
        QByteArray log;
        QVERIFY2(startX11vnc(vnc, display.name(), port, {QStringLiteral("-defer"), QStringLiteral("1"), QStringLiteral("-wait"), QStringLiteral("5")}, &log),
                 log.constData());
        RelayThread relay(port, bytesPerSecond);
        const quint16 relayPort = relay.begin();
        QVERIFY(relayPort);

        auto matches = [&](const QVector<qint32>& list) {
            return realEncodings(list) == expected && pseudoLevel(list, -32) == quality && pseudoLevel(list, -256) == compression;
        };
        quint32 seed = 2;
        QElapsedTimer lastPicture;
        int pictures = 0;
        SessionScript script;
        script.add("the viewer window", [&] {
            ViewDialog* viewer = openViewer();
            return viewer && !viewer->lastFrame().isNull();
        });
        script.add("the encodings", [&] {
            // A new picture every 300 ms keeps updates coming for the viewer to measure.
            if (!lastPicture.isValid() || lastPicture.elapsed() > 300) {
                drawNoise(display.name(), seed++);
                lastPicture.start();
                ++pictures;
            }
            const QList<QVector<qint32>> lists = relay.encodings();
            if (which == QLatin1String("any"))
                return std::any_of(lists.cbegin(), lists.cend(), matches);
            if (which == QLatin1String("only"))
                return pictures > 12;
            return lists.size() >= 2 && VNCConnector::getInstance()->linkClass() == VncLinkClass::Slow;
        });
        script.start(30000);
        Connection record = vncRecord(QStringLiteral("127.0.0.1:%1").arg(relayPort), {}, 100);
        if (!ownEncodings.isEmpty()) {
            QJsonObject data = record.getData();
            data.insert(QStringLiteral("encodings"), ownEncodings);
            data.insert(QStringLiteral("compressLevel"), compression);
            data.insert(QStringLiteral("qualityLevel"), quality);
            record.setData(data);
        }
        const bool opened = VNCConnector::getInstance()->initConnection(record);
        vnc.terminate();
        vnc.waitForFinished(3000);
        QStringList sent;
        for (const QVector<qint32>& list : relay.encodings()) {
            QStringList numbers;
            for (qint32 encoding : list)
                numbers << QString::number(encoding);
            sent << numbers.join(QLatin1Char(' '));
        }
        const QString lists = QStringLiteral("\nSetEncodings sent: ") + sent.join(QStringLiteral(" | "));
        QVERIFY2(script.failure().isEmpty(), qPrintable(script.failure() + lists + QStringLiteral("\n") + relay.error()));
        QVERIFY(opened);
        QVERIFY2(relay.error().isEmpty(), qPrintable(relay.error()));
        const QList<QVector<qint32>> received = relay.encodings();
        QVERIFY(!received.isEmpty());
        if (which == QLatin1String("last"))
            QVERIFY2(matches(received.last()), qPrintable(lists));
        if (which == QLatin1String("only")) {
            QCOMPARE(received.size(), 1);
            QVERIFY2(matches(received.first()), qPrintable(lists));
        }
    }

    // TigerVNC's server offers continuous updates: the viewer asks for them once the link is measured,
    // answers the server's fences, and what changes afterwards reaches it without a request of its
    // own being answered (the server ignores incremental requests then).
    void continuousUpdates()
    {
        const quint16 port = freeLocalPort();
        SecondDisplay server;
        QVERIFY2(server.startVncServer(port), "Xvnc did not start");
        QVERIFY(drawNoise(server.name(), 1));
        RelayThread relay(port, 0);
        const quint16 relayPort = relay.begin();
        QVERIFY(relayPort);

        quint32 seed = 2;
        QImage truth;
        QString mismatch = QStringLiteral("no frame");
        SessionScript script;
        script.add("continuous updates asked for", [&] {
            if (viewerFrame().isNull())
                return false;
            drawNoise(server.name(), seed++); // updates for the link to be measured by
            return relay.continuousUpdatesAndFences().first > 0;
        });
        script.add("a new picture arrives", [&] {
            if (truth.isNull()) {
                drawNoise(server.name(), 99);
                truth = screenOf(server.name(), QSize(320, 240));
            }
            mismatch = viewerFrame() == truth ? QString() : QStringLiteral("frame differs from the server's screen");
            return mismatch.isEmpty();
        });
        script.start(20000);
        // Raw pixels over loopback: the comparison is exact, and the server is busy every frame.
        Connection record = vncRecord(QStringLiteral("127.0.0.1:%1").arg(relayPort), {}, 100);
        QJsonObject data = record.getData();
        data.insert(QStringLiteral("encodings"), QStringLiteral("raw"));
        record.setData(data);
        const bool opened = VNCConnector::getInstance()->initConnection(record);
        QVERIFY2(script.failure().isEmpty(), qPrintable(script.failure() + QStringLiteral(": ") + mismatch + QStringLiteral("\n") + relay.error()));
        QVERIFY(opened);
        QVERIFY2(relay.error().isEmpty(), qPrintable(relay.error()));
        const auto [asked, fences] = relay.continuousUpdatesAndFences();
        QCOMPARE(asked, 1);
        QVERIFY2(fences > 0, "the server's fences were not answered");
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
        XFreeGC(x, gc);
        XCloseDisplay(x); // the server keeps what was drawn (-noreset)
        const QImage truth = screenOf(display.name(), QSize(320, 240));
        QVERIFY(!truth.isNull());

        const quint16 port = freeLocalPort();
        QProcess vnc;
        QByteArray log;
        QVERIFY2(startX11vnc(vnc, display.name(), port, {}, &log), log.constData());

        QString mismatch = QStringLiteral("no frame");
        SessionScript script;
        script.add("the display's content", [&] {
            const QImage frame = viewerFrame();
            if (frame.isNull())
                return false;
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
