#include "FreePort.h"
#include "MgmtPeer.h"
#include "TunnelKit.h"

#include <QRandomGenerator>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

#include <poll.h>
#include <sys/socket.h>
#include <netinet/in.h>
#include <unistd.h>

// The tunnel program against tools/mgmt-peer's assistance port and plain local servers.
class tst_Tunnel : public QObject {
    Q_OBJECT

    enum Exit { Relayed = 0, Usage = 2, Unreachable = 3, TlsFailed = 4, Refused = 5, LocalGone = 6, TimedOut = 7 };

    // A peer serving assistance with one of the certificates; its assistance and VNC ports.
    bool startPeer(MgmtPeer& peer, const QString& certificate, quint16* assistPort, quint16* vncPort = nullptr)
    {
        if (!peer.start(0, {"--assist-port", "0", "--vnc-port", "0", "--assist-cert", m_pki.path(certificate + ".pem"),
                            "--assist-key", m_pki.path(certificate + ".key")}))
            return false;
        *assistPort = peer.linesStartingWith("ASSIST-LISTENING ").value(0).section(' ', 1).toUShort();
        if (vncPort)
            *vncPort = peer.linesStartingWith("VNC-LISTENING ").value(0).section(' ', 1).toUShort();
        return *assistPort != 0;
    }
    // Makes the peer expect a token, as its own "remote" request does.
    static bool expectToken(MgmtPeer& peer, const QString& token)
    {
        peer.send(QStringLiteral("remote {\"type\":2,\"port\":\"1\",\"token\":\"%1\"}").arg(token));
        return peer.waitFor("EXPECT-TOKEN ") == "EXPECT-TOKEN " + token;
    }
    QStringList toPeer(quint16 assistPort, const QString& token, quint16 localPort) const
    {
        return {"--src", QStringLiteral("127.0.0.1:%1").arg(assistPort), "--dst", QStringLiteral("127.0.0.1:%1").arg(localPort),
                "--token", token, "--ca", m_pki.path("ca.pem"), "--timeout", "5"};
    }

private slots:
    void initTestCase()
    {
        if (!MgmtPeer::available())
            QSKIP("python3-websockets is not installed (scripts/test installs it)");
        QVERIFY(m_pki.make());
        QVERIFY(m_listener.listen(QHostAddress::LocalHost, 0));
    }

    // Bad command lines end with the usage text and status 2 before anything is connected.
    void usageErrors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        const QString at = QStringLiteral("127.0.0.1:%1").arg(m_listener.serverPort());
        QTest::newRow("nothing") << QStringList{};
        QTest::newRow("no token") << QStringList{"--src", at, "--dst", at};
        QTest::newRow("empty token") << QStringList{"--src", at, "--dst", at, "--token", ""};
        QTest::newRow("no port") << QStringList{"--src", "127.0.0.1", "--dst", at, "--token", "t"};
        QTest::newRow("port out of range") << QStringList{"--src", at, "--dst", "127.0.0.1:99999", "--token", "t"};
        QTest::newRow("unknown option") << QStringList{"--src", at, "--dst", at, "--token", "t", "--insecure"};
        QTest::newRow("bare ipv6") << QStringList{"--src", "::1:443", "--dst", at, "--token", "t"};
        QTest::newRow("bad timeout") << QStringList{"--src", at, "--dst", at, "--token", "t", "--timeout", "-1"};
        QTest::newRow("unreadable ca file") << QStringList{"--src", at, "--dst", at, "--token", "t", "--ca", "/nonexistent/ca.pem"};
    }
    void usageErrors()
    {
        QFETCH(QStringList, arguments);
        const TunnelRun run = runTunnel(arguments);
        QCOMPARE(run.exitCode, int(Usage));
        if (!arguments.contains("--ca"))
            QVERIFY2(run.err.contains("Usage: tunnel --src HOST:PORT"), qPrintable(run.err));
        QVERIFY2(run.err.startsWith("tunnel: "), qPrintable(run.err));
        QVERIFY(!m_listener.waitForNewConnection(100));
        QVERIFY(!m_listener.hasPendingConnections());
    }

    void tokenIsCheckedAndTakenOnce()
    {
        MgmtPeer peer;
        quint16 assistPort = 0;
        QVERIFY(startPeer(peer, "server", &assistPort));
        QTcpServer vnc;
        QVERIFY(vnc.listen(QHostAddress::LocalHost, 0));

        TunnelRun run = runTunnel(toPeer(assistPort, "never-sent", vnc.serverPort()));
        QCOMPARE(run.exitCode, int(Refused));
        QVERIFY2(run.err.contains("refused the token: unknown token"), qPrintable(run.err));
        QVERIFY(!peer.waitFor("TUNNEL-REFUSED unknown token").isEmpty());
        QVERIFY(!vnc.hasPendingConnections()); // nothing of the terminal is opened for a refused tunnel

        QVERIFY(expectToken(peer, "once"));
        QProcess first;
        first.start(QStringLiteral(NORBIX_TUNNEL_BINARY), toPeer(assistPort, "once", vnc.serverPort()));
        QVERIFY(!peer.waitFor("TUNNEL-ACCEPTED once").isEmpty());
        QVERIFY(vnc.waitForNewConnection(10000)); // accepted: the local VNC server is reached
        first.terminate();
        QVERIFY(first.waitForFinished(10000));
        QCOMPARE(first.exitCode(), int(Relayed));

        run = runTunnel(toPeer(assistPort, "once", vnc.serverPort()));
        QCOMPARE(run.exitCode, int(Refused));
    }

    // Servers that are not there or never answer end the tunnel with their own status, in time.
    void silentServers_data()
    {
        QTest::addColumn<QString>("server");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("said");
        QTest::newRow("nothing listening") << "none" << int(Unreachable) << "cannot reach server";
        QTest::newRow("connection never accepted") << "backlog" << int(TimedOut) << "did not answer";
        QTest::newRow("no TLS handshake") << "tcp" << int(TimedOut) << "did not finish the TLS handshake";
        QTest::newRow("TLS, then no answer to the token") << "tls" << int(TimedOut) << "did not answer the token";
    }
    void silentServers()
    {
        QFETCH(QString, server);
        QFETCH(int, exitCode);
        QFETCH(QString, said);
        QString address = QStringLiteral("127.0.0.1:%1").arg(freeLocalPort());
        QTcpServer tcp;
        QProcess tls;
        int queueFull = -1;
        int queued = -1;
        if (server == "tcp") {
            QVERIFY(tcp.listen(QHostAddress::LocalHost, 0));
            address = QStringLiteral("127.0.0.1:%1").arg(tcp.serverPort());
        } else if (server == "backlog") {
            // A listening socket whose one-place queue is taken: further connections stay unanswered.
            queueFull = ::socket(AF_INET, SOCK_STREAM, 0);
            sockaddr_in bound{};
            bound.sin_family = AF_INET;
            bound.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
            socklen_t length = sizeof bound;
            QCOMPARE(::bind(queueFull, reinterpret_cast<sockaddr*>(&bound), sizeof bound), 0);
            QCOMPARE(::listen(queueFull, 0), 0);
            QCOMPARE(::getsockname(queueFull, reinterpret_cast<sockaddr*>(&bound), &length), 0);
            queued = ::socket(AF_INET, SOCK_STREAM, 0);
            QCOMPARE(::connect(queued, reinterpret_cast<sockaddr*>(&bound), sizeof bound), 0);
            address = QStringLiteral("127.0.0.1:%1").arg(ntohs(bound.sin_port));
        } else if (server == "tls") {
            const quint16 port = freeLocalPort();
            tls.start("openssl", {"s_server", "-4", "-accept", QString::number(port), "-cert", m_pki.path("server.pem"), "-key",
                                  m_pki.path("server.key"), "-naccept", "1"});
            QVERIFY(tls.waitForStarted());
            QByteArray said;
            QVERIFY(QTest::qWaitFor([&] { return (said += tls.readAllStandardOutput()).contains("ACCEPT"); }, 10000));
            address = QStringLiteral("127.0.0.1:%1").arg(port);
        }
        const TunnelRun run = runTunnel({"--src", address, "--dst", "127.0.0.1:1", "--token", "t", "--ca", m_pki.path("ca.pem"),
                                         "--timeout", "0.5"});
        if (queueFull >= 0) {
            ::close(queued);
            ::close(queueFull);
        }
        tls.kill();
        tls.waitForFinished();
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY2(run.err.contains(said), qPrintable(run.err));
    }

    // The server is checked against the CA given, or the system store (SSL_CERT_FILE here).
    void serverCertificates_data()
    {
        QTest::addColumn<QString>("certificate");
        QTest::addColumn<QString>("caOption");
        QTest::addColumn<QString>("certFileVariable");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("said");
        QTest::newRow("trusted by --ca") << "server" << "ca" << "" << int(Refused) << "TLS to 127.0.0.1";
        QTest::newRow("trusted through SSL_CERT_FILE") << "server" << "" << "ca" << int(Refused) << "TLS to 127.0.0.1";
        QTest::newRow("issued by another CA") << "rogue" << "ca" << "" << int(TlsFailed) << "not trusted";
        QTest::newRow("another CA, system store") << "rogue" << "" << "ca" << int(TlsFailed) << "not trusted";
        QTest::newRow("self-made CA unknown to the system") << "server" << "" << "" << int(TlsFailed) << "not trusted";
        QTest::newRow("issued for another name") << "named" << "ca" << "" << int(TlsFailed) << "not trusted";
    }
    void serverCertificates()
    {
        QFETCH(QString, certificate);
        QFETCH(QString, caOption);
        QFETCH(QString, certFileVariable);
        QFETCH(int, exitCode);
        QFETCH(QString, said);
        MgmtPeer peer;
        quint16 assistPort = 0;
        QVERIFY(startPeer(peer, certificate, &assistPort));
        QStringList arguments{"--src", QStringLiteral("127.0.0.1:%1").arg(assistPort), "--dst", "127.0.0.1:1", "--token", "unknown"};
        if (!caOption.isEmpty())
            arguments << "--ca" << m_pki.path(caOption + ".pem");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("SSL_CERT_FILE");
        environment.remove("SSL_CERT_DIR");
        if (!certFileVariable.isEmpty())
            environment.insert("SSL_CERT_FILE", m_pki.path(certFileVariable + ".pem"));
        const TunnelRun run = runTunnel(arguments, environment);
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY2(run.err.contains(said), qPrintable(run.err));
    }

    void localVncServerGone()
    {
        MgmtPeer peer;
        quint16 assistPort = 0;
        QVERIFY(startPeer(peer, "server", &assistPort));
        QVERIFY(expectToken(peer, "gone"));
        const TunnelRun run = runTunnel(toPeer(assistPort, "gone", freeLocalPort()));
        QCOMPARE(run.exitCode, int(LocalGone));
        QVERIFY2(run.err.contains("cannot reach the local VNC server 127.0.0.1:"), qPrintable(run.err));
    }

    // Megabytes both ways, each side ending with a half-close: every byte arrives, in order, also
    // when the server's side has ended long before the terminal's.
    void largeTransferBothWays_data()
    {
        QTest::addColumn<bool>("screenAfterInput");
        QTest::newRow("both at once") << false;
        QTest::newRow("viewer ends first") << true;
    }
    void largeTransferBothWays()
    {
        QFETCH(bool, screenAfterInput);
        MgmtPeer peer;
        quint16 assistPort = 0;
        quint16 vncPort = 0;
        QVERIFY(startPeer(peer, "server", &assistPort, &vncPort));
        // The terminal's VNC server on a plain socket: QTcpSocket cannot go on writing once it has
        // read the other side's end, and that is one of the cases here.
        const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        QCOMPARE(::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        QCOMPARE(::listen(listener, 1), 0);
        QCOMPARE(::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length), 0);
        QVERIFY(expectToken(peer, "bulk"));
        QProcess tunnel;
        tunnel.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        tunnel.start(QStringLiteral(NORBIX_TUNNEL_BINARY), toPeer(assistPort, "bulk", ntohs(address.sin_port)));
        pollfd waiting{listener, POLLIN, 0};
        QCOMPARE(::poll(&waiting, 1, 20000), 1);
        const int terminalSide = ::accept4(listener, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
        ::close(listener);
        QVERIFY(terminalSide >= 0);
        QTcpSocket viewer;
        viewer.connectToHost(QHostAddress::LocalHost, vncPort);
        QVERIFY(viewer.waitForConnected(10000));

        const auto randomBytes = [](int size) {
            QByteArray bytes(size, Qt::Uninitialized);
            QRandomGenerator::global()->fillRange(reinterpret_cast<quint32*>(bytes.data()), size / 4);
            return bytes;
        };
        const QByteArray screen = randomBytes(5 * 1024 * 1024); // terminal -> viewer
        const QByteArray input = randomBytes(3 * 1024 * 1024);  // viewer -> terminal
        viewer.write(input);
        QByteArray atViewer, atTerminal;
        int screenSent = 0;
        bool terminalEnded = false, terminalShut = false, viewerShut = false;
        const bool done = QTest::qWaitFor([&] {
            atViewer += viewer.readAll();
            char buffer[65536];
            ssize_t n = 0;
            while (!terminalEnded && (n = ::recv(terminalSide, buffer, sizeof buffer, 0)) != -1) {
                atTerminal.append(buffer, int(n));
                terminalEnded = n == 0;
            }
            // Either at once, or only once the viewer's input and its end have all arrived.
            if ((!screenAfterInput || terminalEnded) && screenSent < screen.size()) {
                n = ::send(terminalSide, screen.constData() + screenSent, size_t(screen.size() - screenSent), MSG_NOSIGNAL);
                screenSent += n > 0 ? int(n) : 0;
            }
            if (screenSent == screen.size() && !terminalShut)
                terminalShut = ::shutdown(terminalSide, SHUT_WR) == 0;
            if (!viewerShut && viewer.bytesToWrite() == 0)
                viewerShut = ::shutdown(int(viewer.socketDescriptor()), SHUT_WR) == 0;
            return tunnel.state() == QProcess::NotRunning && viewer.state() == QAbstractSocket::UnconnectedState && terminalEnded;
        }, 60000);
        atViewer += viewer.readAll();
        ::close(terminalSide);
        QVERIFY2(done, qPrintable(QStringLiteral("viewer has %1 of %2, terminal %3 of %4")
                                      .arg(atViewer.size()).arg(screen.size()).arg(atTerminal.size()).arg(input.size())));
        QCOMPARE(tunnel.exitCode(), int(Relayed));
        QCOMPARE(atViewer.size(), screen.size());
        QVERIFY(atViewer == screen);
        QCOMPARE(atTerminal.size(), input.size());
        QVERIFY(atTerminal == input);
        QCOMPARE(peer.waitFor("SPLICE-ENDED"),
                 QStringLiteral("SPLICE-ENDED to-terminal=%1 from-terminal=%2").arg(input.size()).arg(screen.size()));
    }

private:
    TestPki m_pki;
    QTcpServer m_listener; // must never see a connection from a tunnel with a bad command line
};

QTEST_GUILESS_MAIN(tst_Tunnel)
#include "tst_tunnel.moc"
