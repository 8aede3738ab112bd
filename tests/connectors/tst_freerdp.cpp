#include "FreePort.h"
#include "RDPConnector.h"
#include "TestSandbox.h"

#include <QDir>
#include <QMutex>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QtTest>

// The RDP path with the real FreeRDP client (through the launcher beside the executable), under
// the X server this test runs in.
namespace {
QMutex g_linesMutex;
QStringList g_lines; // what the session workers logged of the client's output (from their threads)
QtMessageHandler g_previous = nullptr;
void collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtDebugMsg) {
        QMutexLocker locker(&g_linesMutex);
        g_lines << message;
    }
    g_previous(type, context, message);
}
QString clientOutput()
{
    QMutexLocker locker(&g_linesMutex);
    return g_lines.join(QLatin1Char('\n'));
}
void clearClientOutput()
{
    QMutexLocker locker(&g_linesMutex);
    g_lines.clear();
}
} // namespace

class tst_FreeRdp : public QObject {
    Q_OBJECT

    // Starts a session and waits for its exit code on the main thread.
    static int sessionExitCode(const Connection& record, int timeoutMs)
    {
        QSignalSpy codes(RDPConnector::getInstance(), &RDPConnector::exitCode);
        RDPConnector::getInstance()->initConnection(RDPConnector::createConnectionString(record));
        if (!codes.wait(timeoutMs))
            return -1;
        return codes.at(0).at(0).toInt();
    }

private slots:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable("xfreerdp").isEmpty() || qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs FreeRDP (freerdp2-x11) and an X server (run through ctest)");
        QVERIFY(QFile::exists(QCoreApplication::applicationDirPath() + "/xfreerdp"));
        g_previous = qInstallMessageHandler(collect);
    }

    void unresolvableAddressIsInvalidIp()
    {
        TestSandbox sandbox;
        const int code = sessionExitCode(Connection(QJsonObject{{"type", 3}, {"address", "no-such-host.invalid"}}), 90000);
        QCOMPARE(code, 140);
        QCOMPARE(RDPConnector::messageForExitCode(code), QStringLiteral("Invalid IP"));
    }

    void closedPortIsHostNotFound()
    {
        TestSandbox sandbox;
        const QString address = QStringLiteral("127.0.0.1:%1").arg(freeLocalPort());
        const int code = sessionExitCode(Connection(QJsonObject{{"type", 3}, {"address", address}}), 90000);
        QCOMPARE(code, 147);
        QCOMPARE(RDPConnector::messageForExitCode(code), QStringLiteral("Host not found"));
    }

    // A real RDP server (FreeRDP's shadow server on this X display) with a user of its own.
    void rightCredentialsOpenASession()
    {
        if (QStandardPaths::findExecutable("freerdp-shadow-cli").isEmpty() || QStandardPaths::findExecutable("winpr-hash").isEmpty())
            QSKIP("needs freerdp2-shadow-x11 and winpr-utils");
        TestSandbox sandbox;
        QProcess hash;
        hash.start("winpr-hash", {"-u", "tester", "-p", "Secret123"});
        QVERIFY(hash.waitForFinished());
        const QString sam = sandbox.home() + "/sam";
        TestSandbox::writeFile(sam, "tester:::" + hash.readAllStandardOutput().trimmed() + ":::\n");

        // The shadow server sometimes gives up at start on a loaded machine (it reports why);
        // a second or third start on a fresh port is a fair retry, a server that never listens is not.
        quint16 port = 0;
        QProcess server;
        server.setProcessChannelMode(QProcess::MergedChannels);
        QByteArray serverOutput;
        bool listening = false;
        for (int attempt = 0; attempt < 3 && !listening; ++attempt) {
            port = freeLocalPort();
            server.start("freerdp-shadow-cli", {QStringLiteral("/port:%1").arg(port), "/bind-address:127.0.0.1", "/sam-file:" + sam, "/sec:nla"});
            QVERIFY(server.waitForStarted());
            listening = QTest::qWaitFor([&] {
                if (server.state() != QProcess::Running)
                    return true;
                QTcpSocket probe;
                probe.connectToHost(QHostAddress::LocalHost, port);
                return probe.waitForConnected(200);
            }, 30000) && server.state() == QProcess::Running;
            if (!listening) {
                server.kill();
                server.waitForFinished();
                serverOutput += server.readAll();
            }
        }
        QVERIFY2(listening, serverOutput.constData());

        const QString address = QStringLiteral("127.0.0.1:%1").arg(port);
        auto record = [&](const char* password) {
            return Connection(QJsonObject{{"type", 3}, {"address", address}, {"username", "tester"}, {"password", password}});
        };

        // Wrong password: refused at logon, before any remote screen exists.
        clearClientOutput();
        const int refused = sessionExitCode(record("wrong"), 60000);
        QVERIFY2(refused != 0 && refused != -1, qPrintable(QString::number(refused)));
        QVERIFY(!RDPConnector::messageForExitCode(refused).isEmpty());
        QVERIFY(!clientOutput().contains("Remote framebuffer format"));

        // Right password: the client logs on and sets up the remote screen. (FreeRDP's shadow server
        // then drops the session because it has no microphone channel, which every session of ours
        // asks for; that ends it with an error code.)
        clearClientOutput();
        const int ended = sessionExitCode(record("Secret123"), 60000);
        QVERIFY2(clientOutput().contains("Remote framebuffer format"), qPrintable(clientOutput()));
        QVERIFY(ended != -1);
        server.kill();
        server.waitForFinished();
    }
};

QTEST_GUILESS_MAIN(tst_FreeRdp)
#include "tst_freerdp.moc"
