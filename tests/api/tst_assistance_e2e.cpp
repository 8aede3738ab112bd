#include "FreePort.h"
#include "MgmtPeer.h"
#include "SimulatedShell.h"
#include "TunnelKit.h"

#include <QImage>
#include <QPainter>
#include <QStandardPaths>
#include <QtTest>

// Remote assistance from end to end: the real shell in the simulated terminal, managed by
// tools/mgmt-peer, is asked for assistance of type 2 and starts the real tunnel program; the
// tunnel carries a real x11vnc showing this X server, and a VNC client at the peer's local port
// must see the picture on the screen.
class tst_AssistanceE2e : public QObject {
    Q_OBJECT

    // Four coloured quarters and a white bar: a wrong offset, size or channel order shows.
    static QImage picture(const QSize& size)
    {
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        const int w = size.width() / 2, h = size.height() / 2;
        painter.fillRect(0, 0, w, h, QColor(200, 30, 30));
        painter.fillRect(w, 0, w, h, QColor(30, 160, 60));
        painter.fillRect(0, h, w, h, QColor(40, 60, 200));
        painter.fillRect(w, h, w, h, QColor(20, 20, 20));
        painter.fillRect(size.width() / 8, size.height() / 8, size.width() / 4, 16, Qt::white);
        return image;
    }

private slots:
    void viewerSeesTheTerminalsScreen()
    {
        if (!MgmtPeer::available())
            QSKIP("python3-websockets is not installed (scripts/test installs it)");
        for (const char* tool : {"x11vnc", "feh", "openssl"})
            if (QStandardPaths::findExecutable(tool).isEmpty())
                QSKIP(qPrintable(QStringLiteral("%1 is not installed (scripts/test installs it)").arg(tool)));
        QVERIFY2(!qEnvironmentVariableIsEmpty("DISPLAY"), "runs under tests/with-xvfb");

        SimulatedShell terminal;
        const TestSandbox& sandbox = terminal.sandbox;
        TestPki pki;
        QVERIFY(pki.make());

        // The terminal's screen: a known picture as the root window, served by x11vnc.
        const QSize screenSize(640, 480);
        const QImage shown = picture(screenSize);
        const QString picturePath = sandbox.home() + "/picture.png";
        QVERIFY(shown.save(picturePath));
        QCOMPARE(QProcess::execute("feh", {"--no-fehbg", "--bg-fill", picturePath}), 0);
        const quint16 vncServerPort = freeLocalPort();
        QProcess x11vnc;
        x11vnc.setProcessChannelMode(QProcess::MergedChannels);
        x11vnc.start("x11vnc", {"-display", qEnvironmentVariable("DISPLAY"), "-localhost", "-rfbport", QString::number(vncServerPort),
                                "-nopw", "-forever", "-shared", "-noxdamage", "-nocursor"});
        QByteArray x11vncSaid;
        QVERIFY2(QTest::qWaitFor([&] { return (x11vncSaid += x11vnc.readAll()).contains("PORT=" + QByteArray::number(vncServerPort)); },
                                 30000),
                 x11vncSaid.right(2000).constData());

        MgmtPeer peer;
        QVERIFY(peer.start(0, {"--assist-port", "0", "--vnc-port", "0", "--assist-cert", pki.path("server.pem"), "--assist-key",
                               pki.path("server.key")}));
        const quint16 viewerPort = peer.linesStartingWith("VNC-LISTENING ").value(0).section(' ', 1).toUShort();
        QVERIFY(viewerPort != 0);
        terminal.manageBy(peer.url(), "acme");
        // The build of the tunnel where the terminal has it; the simulated terminal runs it for real.
        const QString tunnelPath = sandbox.path("/opt/norbix/tools/tunnel");
        QVERIFY(QDir().mkpath(QFileInfo(tunnelPath).path()));
        QVERIFY(QFile::copy(QStringLiteral(NORBIX_TUNNEL_BINARY), tunnelPath));
        QVERIFY(QFile::setPermissions(tunnelPath, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));

        QProcessEnvironment& environment = terminal.shell.environment;
        environment.insert("NORBIX_ASSIST_VNC", QStringLiteral("127.0.0.1:%1").arg(vncServerPort));
        environment.insert("SSL_CERT_FILE", pki.path("ca.pem")); // the terminal's trust store
        environment.remove("SSL_CERT_DIR");
        QProcess shell;
        terminal.launch(shell);
        QVERIFY(shell.waitForStarted());

        QVERIFY(!peer.waitFor("CONNECTED", 60000).isEmpty());
        // The session is up once the terminal has identified itself and asked for its settings.
        QVERIFY(!peer.waitFor("RECV {\"action\":\"getSettings\"", 60000).isEmpty());
        peer.send("assist");
        const QString request = peer.waitFor("SENT {\"action\": \"remote\"");
        QVERIFY(!request.isEmpty());
        const QString token = QJsonDocument::fromJson(request.mid(5).toUtf8()).object().value("data").toObject().value("token").toString();
        QCOMPARE(token.size(), 32);
        QJsonObject answer;
        QVERIFY2(QTest::qWaitFor([&] { answer = peer.received(1000); return answer.value("action") == "remote"; }, 30000),
                 qPrintable(terminal.log().right(3000)));
        QCOMPARE(answer.value("data").toObject().value("status").toString(), QStringLiteral("ok"));
        QVERIFY2(peer.waitFor("TUNNEL-ACCEPTED ", 30000) == "TUNNEL-ACCEPTED " + token, qPrintable(terminal.log().right(3000)));

        // A VNC client at the peer's local port.
        const QString framePath = sandbox.home() + "/seen.ppm";
        QProcess viewer;
        viewer.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        viewer.start("/usr/bin/python3", {QStringLiteral(NORBIX_SOURCE_DIR "/tests/api/rfb_probe.py"), "127.0.0.1",
                                          QString::number(viewerPort), framePath});
        QVERIFY(viewer.waitForFinished(60000));
        const QByteArray viewerSaid = viewer.readAllStandardOutput();
        QCOMPARE(viewer.exitCode(), 0);
        QVERIFY2(viewerSaid.contains(QByteArray("SERVER 640x480")), viewerSaid.constData());

        QImage seen(framePath);
        QCOMPARE(seen.size(), screenSize);
        seen = seen.convertToFormat(QImage::Format_RGB32);
        int wrong = 0;
        QPoint firstWrong;
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                if (seen.pixel(x, y) != shown.pixel(x, y) && wrong++ == 0)
                    firstWrong = QPoint(x, y);
        QVERIFY2(wrong == 0, qPrintable(QStringLiteral("%1 pixels differ, the first at %2,%3: %4 instead of %5")
                                            .arg(wrong).arg(firstWrong.x()).arg(firstWrong.y())
                                            .arg(seen.pixel(firstWrong), 0, 16).arg(shown.pixel(firstWrong), 0, 16)));

        // The viewer left: the session ends on both sides and the tunnel with it, as an ordinary end.
        QVERIFY2(!peer.waitFor("SPLICE-ENDED", 30000).isEmpty(), qPrintable(peer.linesStartingWith("SPLICE").join('\n')));
        QString log;
        QVERIFY2(QTest::qWaitFor([&] { return (log = terminal.log()).contains("Remote assistance tunnel ended with exit code"); }, 30000),
                 qPrintable(log.right(3000)));
        QVERIFY2(log.contains("Remote assistance tunnel ended with exit code 0"), qPrintable(log.right(3000)));
        QVERIFY2(log.contains("tunnel: relay ended"), qPrintable(log.right(3000)));

        shell.kill();
        shell.waitForFinished();
        x11vnc.kill();
        x11vnc.waitForFinished();
        const QByteArray expectedCall = "{\"args\":[\"--src\",\"127.0.0.1:" + peer.linesStartingWith("ASSIST-LISTENING ").value(0).section(' ', 1).toUtf8()
            + "\",\"--dst\",\"127.0.0.1:" + QByteArray::number(vncServerPort) + "\",\"--token\",\"" + token.toUtf8()
            + "\"],\"detached\":false,\"program\":\"/opt/norbix/tools/tunnel\"}";
        QVERIFY(TestSandbox::readFile(terminal.commandLog()).split('\n').contains(expectedCall));
    }
};

QTEST_GUILESS_MAIN(tst_AssistanceE2e)
#include "tst_assistance_e2e.moc"
