#include "ConnectionManager.h"
#include "CustomGraphicsScene.h"
#include "FakeCommandRunner.h"
#include "TestSandbox.h"
#include "VNCConnectDialogBackend.h"
#include "VNCConnector.h"
#include "VncInput.h"
#include "X11ShmPresenter.h"
#include "ViewDialog.h"
#include "VncClientLibrary.h"

#include <QGraphicsPixmapItem>
#include <QGraphicsView>
#include <QSignalSpy>
#include <QScreen>
#include <QWindow>
#include <QtTest>

#include <algorithm>

Q_DECLARE_METATYPE(CursorEvent)
Q_DECLARE_METATYPE(KeyEvent)

// A connector whose frames share one buffer that it repaints in place, as the VNC library does
// with the framebuffer; one colour per step, then it reports the session over.
class FrameSource : public RemoteConnectionInterface {
public:
    FrameSource(QSize size, QList<QColor> colours)
        : m_frame(size, QImage::Format_RGB32), m_bits(reinterpret_cast<quint32*>(m_frame.bits())), m_colours(std::move(colours))
    {
    }
    bool isConnected() override { return m_step < m_colours.size(); }
    void handleEvent() override
    {
        std::fill(m_bits, m_bits + m_frame.width() * m_frame.height(), m_colours.at(m_step++).rgb());
        emit imageReady(m_frame);
    }
    void cursorEvent(CursorEvent) override {}
    void sendKey(KeyEvent) override {}
    void terminate() override {}
    void resize() override {}

private:
    QImage m_frame;
    quint32* m_bits;
    QList<QColor> m_colours;
    int m_step = 0;
};

// Whether a library whose file name contains `name` is mapped into this process.
bool mapped(const char* name)
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(name);
}

class tst_Vnc : public QObject {
    Q_OBJECT

private slots:
    void keysyms_data()
    {
        QTest::addColumn<int>("qtKey");
        QTest::addColumn<uint>("keysym");
        const QList<QPair<int, uint>> rows = {
            {0x20, 0x20},         {0x2B, 0xFFAB},       {0x2D, 0xFFAD},       {0x3D, 0xFFBD},       {0xD7, 0xFFAA},
            {0xF7, 0xFFAF},       {0x01000000, 0xFF1B}, {0x01000001, 0xFF09}, {0x01000003, 0xFF08}, {0x01000004, 0xFF0D},
            {0x01000005, 0xFF8D}, {0x01000006, 0xFF63}, {0x01000007, 0xFFFF}, {0x01000008, 0xFF13}, {0x01000009, 0xFF61},
            {0x0100000B, 0xFF0B}, {0x01000010, 0xFF50}, {0x01000011, 0xFF57}, {0x01000012, 0xFF51}, {0x01000013, 0xFF52},
            {0x01000014, 0xFF53}, {0x01000015, 0xFF54}, {0x01000016, 0xFF55}, {0x01000017, 0xFF56}, {0x01000020, 0xFFE1},
            {0x01000021, 0xFFE3}, {0x01000022, 0xFFE7}, {0x01000023, 0xFFEA}, {0x01000024, 0xFFE5}, {0x01000025, 0xFF7F},
            {0x01000026, 0xFF14}, {0x01000058, 0xFF6A}, {0x01001103, 0xFFE9}, {0x0100117E, 0xFF7E},
        };
        for (const auto& row : rows)
            QTest::addRow("0x%x", row.first) << row.first << row.second;
        for (int digit = 0; digit <= 9; ++digit)
            QTest::addRow("digit %d -> keypad", digit) << 0x30 + digit << uint(0xFFB0 + digit);
        for (int letter = 0; letter < 26; ++letter)
            QTest::addRow("letter %c -> lower case", 'A' + letter) << 0x41 + letter << uint(0x61 + letter);
        for (int f = 0; f < 15; ++f)
            QTest::addRow("F%d", f + 1) << 0x01000030 + f << uint(0xFFBE + f);
        QTest::newRow("unlisted low code: itself") << 0x2F << uint(0x2F);
        QTest::newRow("unlisted latin-1: itself") << 0xE9 << uint(0xE9);
        QTest::newRow("0xFF: itself") << 0xFF << uint(0xFF);
        QTest::newRow("0x100: zero") << 0x100 << uint(0);
        QTest::newRow("unlisted special key: zero") << 0x01000002 << uint(0); // Backtab
        QTest::newRow("F16: zero") << 0x0100003F << uint(0);
    }
    void keysyms()
    {
        QFETCH(int, qtKey);
        QFETCH(uint, keysym);
        QCOMPARE(uint(VncInput::keysymForQtKey(qtKey)), keysym);
    }

    void addresses_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("host");
        QTest::addColumn<QString>("port");
        QTest::newRow("host only") << "vnc.example" << "vnc.example" << "5900";
        QTest::newRow("host and port") << "vnc.example:5901" << "vnc.example" << "5901";
        QTest::newRow("trailing colon") << "host:" << "host" << "5900";
        QTest::newRow("leading colon") << ":5900" << "5900" << "5900";
        QTest::newRow("empty") << "" << "" << "5900";
        QTest::newRow("not a port") << "host:notaport" << "host" << "notaport";
    }
    void addresses()
    {
        QFETCH(QString, address);
        QFETCH(QString, host);
        QFETCH(QString, port);
        const VncInput::HostPort target = VncInput::splitAddress(address);
        QCOMPARE(target.host, host);
        QCOMPARE(target.port, port);
    }

    void reachabilityCommand()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        runner.answer("nmap -sV -sC vnc.example -p 5901 | grep open", "5901/tcp open  vnc     VNC (protocol 3.8)\n");
        QVERIFY(VNCConnector::resolveHost("vnc.example:5901"));
        QCOMPARE(runner.calls.at(0).commandLine(), QStringList({"nmap", "-sV", "-sC", "vnc.example", "-p", "5901", "|", "grep", "open"}));
        QVERIFY(!VNCConnector::resolveHost("other.example"));
        QCOMPARE(runner.calls.at(1).arguments.at(4), QStringLiteral("5900"));
        // Nothing to scan: no command at all.
        QVERIFY(!VNCConnector::resolveHost(""));
        QCOMPARE(runner.calls.size(), 2);
        // An unreachable server: no window, false.
        QVERIFY(!VNCConnector::getInstance()->initConnection(Connection(QJsonObject{{"type", 1}, {"address", "other.example"}})));
    }

    void pixelFormats_data()
    {
        QTest::addColumn<int>("imageDepth");
        QTest::addColumn<QList<int>>("format"); // depth, bpp, shifts r/g/b, maxima r/g/b
        QTest::newRow("8 bits") << 8 << QList<int>{8, 8, 0, 3, 6, 7, 7, 3};
        QTest::newRow("16 bits") << 16 << QList<int>{16, 16, 11, 5, 0, 31, 63, 31};
        QTest::newRow("32 bits, the terminal's case") << 32 << QList<int>{32, 32, 16, 8, 0, 255, 255, 255};
        QTest::newRow("24 bits keeps its depth") << 24 << QList<int>{24, 32, 16, 8, 0, 255, 255, 255};
    }
    void pixelFormats()
    {
        QFETCH(int, imageDepth);
        QFETCH(QList<int>, format);
        const VncInput::PixelFormat f = VncInput::pixelFormatFor(imageDepth);
        QCOMPARE((QList<int>{f.depth, f.bitsPerPixel, f.redShift, f.greenShift, f.blueShift, f.redMax, f.greenMax, f.blueMax}), format);
    }

    void geometry_data()
    {
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<int>("percentage");
        QTest::addColumn<QRect>("expected");
        QTest::newRow("50% of 1920x1080") << QSize(1920, 1080) << 50 << QRect(0, 0, 960, 540);
        QTest::newRow("100%") << QSize(1280, 720) << 100 << QRect(0, 0, 1280, 720);
        QTest::newRow("33% cut toward zero") << QSize(1366, 768) << 33 << QRect(0, 0, 450, 253);
        QTest::newRow("no percentage: 0 x 0") << QSize(1920, 1080) << 0 << QRect(0, 0, 0, 0);
    }
    void geometry()
    {
        QFETCH(QSize, screen);
        QFETCH(int, percentage);
        QFETCH(QRect, expected);
        const QRect got = VncInput::windowGeometry(screen, percentage);
        QCOMPARE(got.topLeft(), expected.topLeft());
        QCOMPARE(got.size(), expected.size());
    }

    void remotePositions_data()
    {
        QTest::addColumn<QPointF>("pos");
        QTest::addColumn<QSize>("original");
        QTest::addColumn<QSize>("view");
        QTest::addColumn<QSizeF>("scene");
        QTest::addColumn<QPoint>("expected");
        QTest::newRow("same sizes") << QPointF(100.7, 50.2) << QSize(800, 600) << QSize(800, 600) << QSizeF(800, 600) << QPoint(100, 50);
        QTest::newRow("frame twice the view") << QPointF(100, 50) << QSize(1600, 1200) << QSize(800, 600) << QSizeF(800, 600)
                                              << QPoint(200, 100);
        QTest::newRow("scene wider than view") << QPointF(100, 50) << QSize(800, 600) << QSize(800, 600) << QSizeF(1000, 600)
                                               << QPoint(0, 50);
        QTest::newRow("no view yet") << QPointF(10, 10) << QSize(800, 600) << QSize(0, 0) << QSizeF(800, 600) << QPoint(0, 0);
    }
    void remotePositions()
    {
        QFETCH(QPointF, pos);
        QFETCH(QSize, original);
        QFETCH(QSize, view);
        QFETCH(QSizeF, scene);
        QFETCH(QPoint, expected);
        QCOMPARE(VncInput::remotePosition(pos, original, view, scene), expected);
    }

    // Real mouse and key events on a view of the scene: Qt's button bits as the mask, 0 while moving.
    void sceneInput()
    {
        qRegisterMetaType<CursorEvent>();
        qRegisterMetaType<KeyEvent>();
        CustomGraphicsScene scene;
        QPixmap frame(400, 300);
        frame.fill(Qt::gray);
        scene.addPixmap(frame);
        scene.setSceneRect(0, 0, 400, 300);
        scene.setViewportSize(400, 300);
        scene.setOriginalSize(400, 300);
        QGraphicsView view(&scene);
        view.setFrameShape(QFrame::NoFrame);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.resize(400, 300);
        view.setMouseTracking(true);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));

        QSignalSpy mouse(&scene, &CustomGraphicsScene::mouseStatusChanged);
        QSignalSpy keys(&scene, &CustomGraphicsScene::keyStatusChanged);
        const QPoint at = view.mapFromScene(QPointF(120, 80));
        QTest::mousePress(view.viewport(), Qt::RightButton, {}, at);
        QTest::mouseRelease(view.viewport(), Qt::RightButton, {}, at);
        QCOMPARE(mouse.count(), 2);
        const CursorEvent press = mouse.at(0).at(0).value<CursorEvent>();
        QCOMPARE(press.mask, 2);
        QVERIFY(press.pressed);
        QCOMPARE(press.pos, QPoint(120, 80));
        QVERIFY(!mouse.at(1).at(0).value<CursorEvent>().pressed);

        view.setFocus();
        QTest::keyClick(view.viewport(), Qt::Key_A, Qt::ShiftModifier);
        // QTest presses the modifier first: Shift down, A down, A up, Shift up.
        QCOMPARE(keys.count(), 4);
        QCOMPARE(keys.at(0).at(0).value<KeyEvent>().key, int(Qt::Key_Shift));
        QCOMPARE(keys.at(1).at(0).value<KeyEvent>().key, int(Qt::Key_A));
        QVERIFY(keys.at(1).at(0).value<KeyEvent>().pressed);
        QVERIFY(!keys.at(2).at(0).value<KeyEvent>().pressed);
        QCOMPARE(keys.at(3).at(0).value<KeyEvent>().key, int(Qt::Key_Shift));
    }

    // What reaches the screen: every frame, also when the connector repaints the same buffer,
    // centred on black; scaled into the view when shrinking.
    void viewShowsEveryFrame_data()
    {
        QTest::addColumn<bool>("shrink");
        QTest::addColumn<QSize>("frameSize");
        QTest::addColumn<QPoint>("inside");
        QTest::newRow("as is, centred") << false << QSize(400, 300) << QPoint(300, 200);
        QTest::newRow("shrunk to the view") << true << QSize(1200, 600) << QPoint(300, 200);
    }
    void viewShowsEveryFrame()
    {
        QFETCH(bool, shrink);
        QFETCH(QSize, frameSize);
        QFETCH(QPoint, inside);
        ViewDialog dialog;
        dialog.setShrink(shrink);
        dialog.resize(600, 400);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        FrameSource source(frameSize, {Qt::red, Qt::blue});
        dialog.connectView(&source);
        QTest::qWait(50); // the session loop would go on processing events

        const QImage shown = dialog.windowHandle()->screen()->grabWindow(dialog.winId()).toImage();
        QCOMPARE(shown.pixelColor(inside), QColor(Qt::blue));
        QCOMPARE(shown.pixelColor(2, 2), QColor(Qt::black));
        QCOMPARE(dialog.lastFrame().toImage().pixelColor(0, 0), QColor(Qt::blue));
    }

    // Without an X server frames are plain black images and the window paints them itself.
    void framesWithoutX()
    {
        X11ShmPresenter& presenter = X11ShmPresenter::instance();
        const QImage frame = presenter.allocateFrame(QSize(32, 16));
        QCOMPARE(frame.size(), QSize(32, 16));
        QCOMPARE(frame.format(), QImage::Format_RGB32);
        QCOMPARE(frame.pixel(31, 15), qRgb(0, 0, 0));
        QVERIFY(!presenter.isShared(frame));
        QVERIFY(!presenter.present(1, frame, frame.rect(), QPoint()));
        QVERIFY(presenter.allocateFrame(QSize(0, 16)).isNull());
    }

    // The library is not loaded with the program, only when asked for; a file that is missing or
    // is not the library is refused with the reason, never half used.
    void clientLibrary()
    {
        QVERIFY2(!mapped("libvncclient"), "libvncclient is loaded at start");

        QString error;
        QVERIFY(!VncClientLibrary::load("/nonexistent/libvncclient.so.1", &error));
        QVERIFY2(error.contains("/nonexistent/libvncclient.so.1"), qPrintable(error));

        error.clear();
        QVERIFY(!VncClientLibrary::load("libz.so.1", &error));
        QVERIFY2(error.startsWith("libz.so.1 lacks rfbGetClient, rfbInitClient, rfbClientCleanup,"), qPrintable(error));
        QVERIFY2(error.endsWith(", tjDestroy"), qPrintable(error));

        error.clear();
        const std::unique_ptr<VncClientLibrary> library = VncClientLibrary::load(VncClientLibrary::kFileName, &error);
        QVERIFY2(library, qPrintable(error));
        QVERIFY(error.isEmpty());
        QVERIFY(mapped("libvncclient"));
        // A client made and freed through it: the functions are the library's own.
        rfbClient* client = library->getClient(8, 3, 4);
        QVERIFY(client);
        QCOMPARE(client->format.bitsPerPixel, 32);
        library->cleanup(client);
        QVERIFY(VncClientLibrary::get());
    }

    void dialogKeysAndPercentage()
    {
        QCOMPARE(VNCConnectDialogBackend::addKeys(false), QStringList({"name", "address", "fullscreen", "percentage"}));
        QCOMPARE(VNCConnectDialogBackend::addKeys(true), QStringList({"name", "address", "fullscreen", "percentage", "password"}));
        QCOMPARE(VNCConnectDialogBackend::replaceKeys(false), QStringList({"name", "address", "fullscreen", "shrink", "percentage"}));
        QCOMPARE(VNCConnectDialogBackend::replaceKeys(true).constLast(), QStringLiteral("password"));

        TestSandbox sandbox;
        VNCConnectDialogBackend dialog;
        dialog.addConnection("Lab", "lab:5901", "pw", false, true, true, 50);
        dialog.loadConnection(0);
        QCOMPARE(dialog.getAddress(), QStringLiteral("lab:5901"));
        QCOMPARE(dialog.getPassword(), QString());
        QVERIFY(dialog.isFullscreen());
        QVERIFY(!dialog.isShrink()); // adding does not store it
        QCOMPARE(dialog.getPercentage(), 50);
        dialog.replaceConnection(0, "Lab", "lab:5901", "pw", true, false, true, 0);
        dialog.loadConnection(0);
        QVERIFY(dialog.isShrink());
        QCOMPARE(dialog.getPassword(), QStringLiteral("pw"));
        QCOMPARE(dialog.getPercentage(), 100); // 0 reads as 100
        TestSandbox::writeFile(sandbox.dataFile("connections.json"), R"([{"type":1,"name":"x"}])");
        dialog.loadConnection(0);
        QCOMPARE(dialog.getPercentage(), 100); // absent reads as 100
        QVERIFY(!ConnectionManager::getInstance()->isConnectionFull(0));
    }
};

QTEST_MAIN(tst_Vnc)
#include "tst_vnc.moc"
