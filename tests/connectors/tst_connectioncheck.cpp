#include "ConnectionCheck.h"
#include "Connection.h"
#include "FreePort.h"
#include "TestSandbox.h"

#include <QProcess>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(ConnectionCheck::Problem)
Q_DECLARE_METATYPE(ConnectionCheck::Outcome)
Q_DECLARE_METATYPE(ConnectionCheck::Step)

namespace {

bool runOpenssl(const QStringList& args, const QString& dir)
{
    QProcess p;
    p.setWorkingDirectory(dir);
    p.setProcessChannelMode(QProcess::MergedChannels);
    p.start(QStringLiteral("openssl"), args);
    if (!p.waitForFinished(60000) || p.exitCode() != 0) {
        qWarning().noquote() << "openssl" << args.join(' ') << p.readAll();
        return false;
    }
    return true;
}

// A TLS server of openssl's own on 127.0.0.1, serving one certificate.
class TlsPeer {
public:
    bool start(const QString& cert, const QString& key)
    {
        m_port = freeLocalPort();
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(QStringLiteral("openssl"),
                        {"s_server", "-accept", QStringLiteral("127.0.0.1:%1").arg(m_port), "-cert", cert, "-key", key,
                         "-quiet"});
        if (!m_process.waitForStarted())
            return false;
        for (int i = 0; i < 200; ++i) {
            QTcpSocket probe;
            probe.connectToHost(QHostAddress::LocalHost, m_port);
            if (probe.waitForConnected(100))
                return true;
            if (m_process.state() == QProcess::NotRunning)
                return false;
            QTest::qWait(25);
        }
        return false;
    }
    ~TlsPeer()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    quint16 port() const { return m_port; }

private:
    QProcess m_process;
    quint16 m_port = 0;
};

// Answers as the test's own resolver: only the names it was given exist.
ConnectionCheck::Resolver mapResolver(const QHash<QString, QString>& names)
{
    return [names](const QString& host) -> QList<QHostAddress> {
        if (!names.contains(host))
            return {};
        return {QHostAddress(names.value(host))};
    };
}

ConnectionCheck::Report waitForReport(ConnectionCheck& check)
{
    if (check.isRunning()) {
        QSignalSpy done(&check, &ConnectionCheck::finished);
        if (!done.wait(30000))
            qWarning() << "the check did not finish";
    }
    return check.report();
}

} // namespace

class tst_ConnectionCheck : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_selfSignedCert, m_selfSignedKey, m_expiredCert, m_expiredKey;

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        const QString d = m_dir.path();
        m_selfSignedCert = d + "/self.pem";
        m_selfSignedKey = d + "/self.key";
        QVERIFY(runOpenssl({"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", m_selfSignedKey, "-out",
                            m_selfSignedCert, "-days", "400", "-subj", "/CN=selfsigned.test/O=Norbix Test"},
                           d));
        // An expired one needs explicit dates, which only the CA command takes.
        QFile conf(d + "/ca.cnf");
        QVERIFY(conf.open(QIODevice::WriteOnly));
        conf.write("[ca]\ndefault_ca = d\n[d]\ndatabase = index.txt\nnew_certs_dir = .\nserial = serial\n"
                   "default_md = sha256\npolicy = p\n[p]\ncommonName = supplied\n");
        conf.close();
        TestSandbox::writeFile(d + "/index.txt", "");
        TestSandbox::writeFile(d + "/serial", "01\n");
        m_expiredKey = d + "/expired.key";
        m_expiredCert = d + "/expired.pem";
        QVERIFY(runOpenssl({"req", "-new", "-newkey", "rsa:2048", "-nodes", "-keyout", m_expiredKey, "-subj",
                            "/CN=expired.test", "-out", "expired.csr"},
                           d));
        QVERIFY(runOpenssl({"ca", "-batch", "-config", "ca.cnf", "-selfsign", "-keyfile", m_expiredKey, "-in",
                            "expired.csr", "-startdate", "20200101000000Z", "-enddate", "20200201120000Z", "-out",
                            m_expiredCert},
                           d));
    }

    void parseAddress_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("address");
        QTest::addColumn<ConnectionCheck::Problem>("problem");
        QTest::addColumn<QString>("host");
        QTest::addColumn<int>("port");
        QTest::addColumn<bool>("tls");
        using C = ConnectionCheck;
        QTest::newRow("rdp name") << int(RDP) << "ts.corp.lan" << C::NoProblem << "ts.corp.lan" << 3389 << true;
        QTest::newRow("rdp name, blanks around") << int(RDP) << "  ts.corp.lan \t" << C::NoProblem << "ts.corp.lan" << 3389 << true;
        QTest::newRow("rdp own port") << int(RDP) << "ts.corp.lan:3390" << C::NoProblem << "ts.corp.lan" << 3390 << true;
        QTest::newRow("rdp ipv4") << int(RDP) << "10.0.0.5" << C::NoProblem << "10.0.0.5" << 3389 << true;
        QTest::newRow("vnc default") << int(VNC) << "desk-12" << C::NoProblem << "desk-12" << 5900 << false;
        QTest::newRow("vnc port") << int(VNC) << "desk-12:5901" << C::NoProblem << "desk-12" << 5901 << false;
        QTest::newRow("ssh") << int(Putty) << "jump.corp.lan" << C::NoProblem << "jump.corp.lan" << 22 << false;
        QTest::newRow("horizon url") << int(VMWare) << "https://view.corp.lan/portal" << C::NoProblem << "view.corp.lan" << 443 << true;
        QTest::newRow("horizon bare") << int(VMWare) << "view.corp.lan" << C::NoProblem << "view.corp.lan" << 443 << true;
        QTest::newRow("citrix store url with port") << int(Citrix) << "https://store.corp.lan:8443/Citrix/Store/discovery"
                                                    << C::NoProblem << "store.corp.lan" << 8443 << true;
        QTest::newRow("citrix http") << int(Citrix) << "HTTP://store.corp.lan/Citrix" << C::NoProblem << "store.corp.lan" << 80 << false;
        QTest::newRow("citrix path without scheme") << int(Citrix) << "store.corp.lan/Citrix?x=1" << C::NoProblem << "store.corp.lan" << 443 << true;
        QTest::newRow("ipv6 bare") << int(RDP) << "2001:db8::5" << C::NoProblem << "2001:db8::5" << 3389 << true;
        QTest::newRow("ipv6 bracketed") << int(RDP) << "[2001:db8::5]" << C::NoProblem << "2001:db8::5" << 3389 << true;
        QTest::newRow("ipv6 bracketed port") << int(VNC) << "[::1]:5901" << C::NoProblem << "::1" << 5901 << false;
        QTest::newRow("ipv6 in url") << int(VMWare) << "https://[2001:db8::7]:8443/" << C::NoProblem << "2001:db8::7" << 8443 << true;

        QTest::newRow("empty") << int(RDP) << "   " << C::EmptyAddress << "" << 0 << false;
        QTest::newRow("scheme only") << int(VMWare) << "https://" << C::EmptyAddress << "" << 0 << false;
        QTest::newRow("space inside") << int(RDP) << "ts corp.lan" << C::AddressHasSpaces << "" << 0 << false;
        QTest::newRow("tab inside") << int(VNC) << "desk\t12" << C::AddressHasSpaces << "" << 0 << false;
        QTest::newRow("rdp scheme") << int(RDP) << "rdp://ts.corp.lan" << C::SchemeNotAllowed << "" << 0 << false;
        QTest::newRow("vnc scheme") << int(VNC) << "vnc://desk:5900" << C::SchemeNotAllowed << "" << 0 << false;
        QTest::newRow("ftp store") << int(Citrix) << "ftp://store.corp.lan" << C::UnsupportedScheme << "" << 0 << false;
        QTest::newRow("port zero") << int(RDP) << "ts:0" << C::BadPort << "" << 0 << false;
        QTest::newRow("port too big") << int(RDP) << "ts:65536" << C::BadPort << "" << 0 << false;
        QTest::newRow("port huge") << int(RDP) << "ts:99999999999" << C::BadPort << "" << 0 << false;
        QTest::newRow("port negative") << int(VNC) << "ts:-1" << C::BadPort << "" << 0 << false;
        QTest::newRow("port not a number") << int(VNC) << "ts:vnc" << C::BadPort << "" << 0 << false;
        QTest::newRow("port empty") << int(RDP) << "ts:" << C::BadPort << "" << 0 << false;
        QTest::newRow("bracketed port empty") << int(RDP) << "[::1]:" << C::BadPort << "" << 0 << false;
        QTest::newRow("port highest") << int(RDP) << "ts:65535" << C::NoProblem << "ts" << 65535 << true;
        QTest::newRow("two colons, not ipv6") << int(RDP) << "ts:33:89" << C::BadIpv6 << "" << 0 << false;
        QTest::newRow("ipv6 with port unbracketed") << int(RDP) << "2001:db8::5:3389x" << C::BadIpv6 << "" << 0 << false;
        QTest::newRow("bracket not closed") << int(RDP) << "[2001:db8::5" << C::BadIpv6 << "" << 0 << false;
        QTest::newRow("brackets around ipv4") << int(RDP) << "[10.0.0.5]" << C::BadIpv6 << "" << 0 << false;
        QTest::newRow("junk after bracket") << int(RDP) << "[::1]x" << C::BadIpv6 << "" << 0 << false;
        QTest::newRow("user at host") << int(Putty) << "root@jump" << C::BadHost << "" << 0 << false;
        QTest::newRow("path on rdp") << int(RDP) << "ts/path" << C::BadHost << "" << 0 << false;
        QTest::newRow("bad characters") << int(RDP) << "ts!.corp" << C::BadHost << "" << 0 << false;
        QTest::newRow("empty label") << int(RDP) << "ts..corp" << C::BadHost << "" << 0 << false;
        QTest::newRow("hyphen at edge") << int(RDP) << "-ts.corp" << C::BadHost << "" << 0 << false;
        QTest::newRow("ipv4 out of range") << int(RDP) << "10.0.0.300" << C::BadHost << "" << 0 << false;
        QTest::newRow("ipv4 short") << int(RDP) << "10.0.5" << C::BadHost << "" << 0 << false;
        QTest::newRow("browser") << int(Browser) << "https://intranet" << C::UnsupportedKind << "" << 0 << false;
        QTest::newRow("teams") << int(Teams) << "" << C::UnsupportedKind << "" << 0 << false;
    }
    void parseAddress()
    {
        QFETCH(int, type);
        QFETCH(QString, address);
        QFETCH(ConnectionCheck::Problem, problem);
        QFETCH(QString, host);
        QFETCH(int, port);
        QFETCH(bool, tls);
        const ConnectionCheck::Target target = ConnectionCheck::parseAddress(type, address);
        QCOMPARE(target.problem, problem);
        if (problem == ConnectionCheck::NoProblem) {
            QCOMPARE(target.host, host);
            QCOMPARE(int(target.port), port);
            QCOMPARE(target.tls, tls);
        }
    }

    // A refused address runs nothing: no thread, no lookup, and the message names the fault.
    void refusedAddressStartsNothing_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("words");
        QTest::newRow("spaces") << int(RDP) << "my server" << "spaces";
        QTest::newRow("scheme") << int(RDP) << "rdp://ts" << "\"rdp://\"";
        QTest::newRow("port") << int(VNC) << "desk:70000" << "1 to 65535";
        QTest::newRow("ipv6") << int(RDP) << "fe80::1::2" << "\"fe80::1::2\" is not a valid IPv6 address";
        QTest::newRow("host") << int(RDP) << "a_b$" << "\"a_b$\" is not a valid server name";
        QTest::newRow("kind") << int(Teams) << "teams" << "cannot be checked";
    }
    void refusedAddressStartsNothing()
    {
        QFETCH(int, type);
        QFETCH(QString, address);
        QFETCH(QString, words);
        ConnectionCheck check;
        int lookups = 0;
        check.setResolver([&lookups](const QString&) {
            ++lookups;
            return QList<QHostAddress>{QHostAddress::LocalHost};
        });
        QSignalSpy running(&check, &ConnectionCheck::runningChanged);
        QVERIFY(!check.start(type, address));
        QVERIFY(!check.isRunning());
        QCOMPARE(running.count(), 0);
        QCOMPARE(lookups, 0);
        QCOMPARE(check.outcome(), int(ConnectionCheck::Failed));
        QCOMPARE(check.failedStep(), int(ConnectionCheck::AddressStep));
        QVERIFY2(check.message().contains(words), qPrintable(check.message()));
    }

    // Every problem has words of its own, carrying the values the user needs.
    void messages()
    {
        const QMetaEnum problems = QMetaEnum::fromType<ConnectionCheck::Problem>();
        QSet<QString> seen;
        for (int i = 0; i < problems.keyCount(); ++i) {
            ConnectionCheck::Report report;
            report.outcome = ConnectionCheck::Failed;
            report.problem = ConnectionCheck::Problem(problems.value(i));
            report.target.port = 4711;
            report.target.detail = "xyz://";
            report.detail = "Remote host closed the connection";
            report.certificate.notAfter = QDateTime(QDate(2025, 3, 14), QTime(23, 0), Qt::UTC);
            report.certificate.notBefore = QDateTime(QDate(2031, 7, 2), QTime(1, 0), Qt::UTC);
            report.certificate.selfSigned = true;
            if (report.problem == ConnectionCheck::NoProblem)
                report.outcome = ConnectionCheck::Passed;
            const QString text = ConnectionCheck::message(report);
            QVERIFY2(!text.isEmpty(), problems.key(i));
            QVERIFY2(!seen.contains(text), qPrintable(text));
            seen.insert(text);
            switch (report.problem) {
            case ConnectionCheck::Refused:
            case ConnectionCheck::NoAnswer:
                QVERIFY2(text.contains("4711"), qPrintable(text));
                break;
            case ConnectionCheck::CertificateExpired:
                QVERIFY2(text.contains(ConnectionCheck::formatDate(report.certificate.notAfter)), qPrintable(text));
                QVERIFY(text.contains("2025"));
                break;
            case ConnectionCheck::CertificateNotYetValid:
                QVERIFY2(text.contains("2031"), qPrintable(text));
                break;
            case ConnectionCheck::HandshakeFailed:
            case ConnectionCheck::NetworkError:
                QVERIFY2(text.contains(report.detail), qPrintable(text));
                break;
            case ConnectionCheck::SchemeNotAllowed:
            case ConnectionCheck::UnsupportedScheme:
                QVERIFY2(text.contains("xyz://"), qPrintable(text));
                break;
            default:
                break;
            }
        }
        ConnectionCheck::Report cancelled;
        cancelled.outcome = ConnectionCheck::Cancelled;
        QVERIFY(!seen.contains(ConnectionCheck::message(cancelled)));
    }

    void certificateVerdict_data()
    {
        QTest::addColumn<QDateTime>("notBefore");
        QTest::addColumn<QDateTime>("notAfter");
        QTest::addColumn<bool>("trusted");
        QTest::addColumn<ConnectionCheck::Problem>("problem");
        const QDateTime now(QDate(2026, 6, 1), QTime(12, 0), Qt::UTC);
        QTest::newRow("fine") << now.addDays(-10) << now.addDays(10) << true << ConnectionCheck::NoProblem;
        QTest::newRow("expired a second ago") << now.addDays(-10) << now.addSecs(-1) << true << ConnectionCheck::CertificateExpired;
        QTest::newRow("expired and untrusted") << now.addDays(-10) << now.addDays(-1) << false << ConnectionCheck::CertificateExpired;
        QTest::newRow("not yet valid") << now.addSecs(60) << now.addDays(10) << true << ConnectionCheck::CertificateNotYetValid;
        QTest::newRow("untrusted") << now.addDays(-1) << now.addDays(1) << false << ConnectionCheck::CertificateUntrusted;
    }
    void certificateVerdict()
    {
        QFETCH(QDateTime, notBefore);
        QFETCH(QDateTime, notAfter);
        QFETCH(bool, trusted);
        QFETCH(ConnectionCheck::Problem, problem);
        ConnectionCheck::Certificate cert;
        cert.notBefore = notBefore;
        cert.notAfter = notAfter;
        cert.trusted = trusted;
        QCOMPARE(ConnectionCheck::certificateProblem(cert, QDateTime(QDate(2026, 6, 1), QTime(12, 0), Qt::UTC)), problem);
    }

    void invalidNamesAreNeverLookedUp()
    {
        QVERIFY(ConnectionCheck::systemResolve("nowhere.invalid").isEmpty());
        QVERIFY(ConnectionCheck::systemResolve("deep.NOWHERE.INVALID.").isEmpty());
        // A lookup already given up asks nobody.
        std::atomic_bool cancelled{true};
        QVERIFY(ConnectionCheck::systemResolve("localhost", &cancelled).isEmpty());
    }

    // The system's resolver from the check's own thread: "localhost" comes from the hosts file.
    void systemResolverOnTheCheckThread()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        ConnectionCheck check; // no resolver set: the system's
        QVERIFY(check.start(VNC, "localhost:" + QString::number(server.serverPort())));
        const ConnectionCheck::Report report = waitForReport(check);
        QCOMPARE(report.outcome, ConnectionCheck::Passed);
    }

    // Real peers on 127.0.0.1; names come from the test's own resolver only.
    void againstPeers_data()
    {
        QTest::addColumn<QString>("peer");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("host");
        QTest::addColumn<ConnectionCheck::Outcome>("outcome");
        QTest::addColumn<ConnectionCheck::Step>("step");
        QTest::addColumn<ConnectionCheck::Problem>("problem");
        using C = ConnectionCheck;
        QTest::newRow("unknown name") << "plain" << int(VNC) << "nowhere.test.invalid" << C::Failed << C::ResolveStep << C::NameNotFound;
        QTest::newRow("closed port") << "closed" << int(VNC) << "peer.test.invalid" << C::Failed << C::ConnectStep << C::Refused;
        QTest::newRow("closed port, rdp") << "closed" << int(RDP) << "127.0.0.1" << C::Failed << C::ConnectStep << C::Refused;
        QTest::newRow("plain tcp, vnc") << "plain" << int(VNC) << "peer.test.invalid" << C::Passed << C::NoStep << C::NoProblem;
        QTest::newRow("plain tcp, ssh by ip") << "plain" << int(Putty) << "127.0.0.1" << C::Passed << C::NoStep << C::NoProblem;
        QTest::newRow("plain tcp closing, rdp") << "closing" << int(RDP) << "peer.test.invalid" << C::Failed << C::HandshakeStep << C::HandshakeFailed;
        QTest::newRow("self-signed, rdp") << "self" << int(RDP) << "peer.test.invalid" << C::Warning << C::HandshakeStep << C::CertificateUntrusted;
        QTest::newRow("self-signed, horizon url") << "self" << int(VMWare) << "https://peer.test.invalid:%1/broker" << C::Warning << C::HandshakeStep << C::CertificateUntrusted;
        QTest::newRow("expired, citrix") << "expired" << int(Citrix) << "peer.test.invalid" << C::Warning << C::HandshakeStep << C::CertificateExpired;
        QTest::newRow("tls peer, vnc only connects") << "self" << int(VNC) << "peer.test.invalid" << C::Passed << C::NoStep << C::NoProblem;
    }
    void againstPeers()
    {
        QFETCH(QString, peer);
        QFETCH(int, type);
        QFETCH(QString, host);
        QFETCH(ConnectionCheck::Outcome, outcome);
        QFETCH(ConnectionCheck::Step, step);
        QFETCH(ConnectionCheck::Problem, problem);

        QTcpServer plain;
        TlsPeer tls;
        quint16 port = 0;
        if (peer == "closed") {
            port = freeLocalPort();
        } else if (peer == "plain" || peer == "closing") {
            QVERIFY(plain.listen(QHostAddress::LocalHost));
            port = plain.serverPort();
            if (peer == "closing")
                connect(&plain, &QTcpServer::newConnection, &plain, [&plain]() {
                    while (QTcpSocket* s = plain.nextPendingConnection())
                        s->close();
                });
        } else {
            QVERIFY(tls.start(peer == "self" ? m_selfSignedCert : m_expiredCert, peer == "self" ? m_selfSignedKey : m_expiredKey));
            port = tls.port();
        }

        ConnectionCheck check;
        check.setResolver(mapResolver({{"peer.test.invalid", "127.0.0.1"}}));
        QStringList steps;
        connect(&check, &ConnectionCheck::progressChanged, &check, [&]() {
            if (check.step() != ConnectionCheck::NoStep)
                steps << QMetaEnum::fromType<ConnectionCheck::Step>().valueToKey(check.step());
        });
        const QString address = host.contains("%1") ? host.arg(port) : host + ':' + QString::number(port);
        QVERIFY(check.start(type, address));
        QVERIFY(check.isRunning());
        const ConnectionCheck::Report report = waitForReport(check);
        QVERIFY(!check.isRunning());
        QCOMPARE(report.outcome, outcome);
        QCOMPARE(report.failedStep, step);
        QCOMPARE(report.problem, problem);
        QVERIFY(!check.message().isEmpty());
        QCOMPARE(steps.first(), QStringLiteral("AddressStep"));
        // Steps come in order and stop at the one that failed.
        const QStringList order{"AddressStep", "ResolveStep", "ConnectStep", "HandshakeStep"};
        for (int i = 1; i < steps.size(); ++i)
            QVERIFY(order.indexOf(steps.at(i)) == order.indexOf(steps.at(i - 1)) + 1);
        if (step != ConnectionCheck::NoStep)
            QCOMPARE(steps.last(), QString(QMetaEnum::fromType<ConnectionCheck::Step>().valueToKey(step)));

        if (peer == "self" && ConnectionCheck::usesTls(type)) {
            QCOMPARE(check.certificateSubject(), QStringLiteral("selfsigned.test"));
            QCOMPARE(check.certificateIssuer(), QStringLiteral("selfsigned.test"));
            QVERIFY(report.certificate.selfSigned);
            QCOMPARE(report.certificate.notAfter.date(), QDateTime::currentDateTimeUtc().addDays(400).date());
            QVERIFY2(check.message().contains("self-signed"), qPrintable(check.message()));
        }
        if (peer == "expired") {
            QCOMPARE(check.certificateSubject(), QStringLiteral("expired.test"));
            QCOMPARE(report.certificate.notAfter, QDateTime(QDate(2020, 2, 1), QTime(12, 0), Qt::UTC));
            QCOMPARE(check.certificateExpiry(), ConnectionCheck::formatDate(report.certificate.notAfter));
            QVERIFY2(check.message().contains("2020"), qPrintable(check.message()));
        }
        if (problem == ConnectionCheck::Refused)
            QVERIFY2(check.message().contains(QString::number(port)), qPrintable(check.message()));
    }

    // A lookup that hangs: the user is answered at once, the late result changes nothing.
    void cancelDuringLookup()
    {
        QSemaphore entered, release;
        ConnectionCheck check;
        check.setResolver([&](const QString&) {
            entered.release();
            release.acquire();
            return QList<QHostAddress>{QHostAddress::LocalHost};
        });
        QVERIFY(check.start(VNC, "slow.test.invalid:1"));
        QVERIFY(entered.tryAcquire(1, 30000));
        QSignalSpy finished(&check, &ConnectionCheck::finished);
        check.cancel();
        QVERIFY(!check.isRunning());
        QCOMPARE(finished.count(), 1);
        QCOMPARE(check.outcome(), int(ConnectionCheck::Cancelled));
        QCOMPARE(check.message(), ConnectionCheck::message(check.report()));
        release.release();
        // A new check while the old lookup ends in the background reports only its own result.
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        check.setResolver(mapResolver({}));
        QVERIFY(check.start(VNC, "127.0.0.1:" + QString::number(server.serverPort())));
        QVERIFY(finished.wait(30000));
        QCOMPARE(check.outcome(), int(ConnectionCheck::Passed));
        QTRY_COMPARE(finished.count(), 2);
    }

    // A server that accepts but never speaks TLS: the handshake waits until cancelled.
    void cancelDuringHandshake()
    {
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        auto check = std::make_unique<ConnectionCheck>();
        check->setTimeout(600000);
        QSignalSpy progress(check.get(), &ConnectionCheck::progressChanged);
        QVERIFY(check->start(RDP, "127.0.0.1:" + QString::number(silent.serverPort())));
        QTRY_COMPARE_WITH_TIMEOUT(check->step(), int(ConnectionCheck::HandshakeStep), 30000);
        check->cancel();
        QCOMPARE(check->outcome(), int(ConnectionCheck::Cancelled));
        // Its thread sees the flag and ends: destroying the check does not hang.
        check.reset();
    }

    void startIndexUsesTheStoredAddress()
    {
        TestSandbox sandbox;
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        TestSandbox::writeFile(sandbox.dataFile("connections.json"),
                               QStringLiteral("[{\"type\": 4, \"name\": \"web\", \"address\": \"https://x\"},"
                                              " {\"type\": 1, \"name\": \"desk\", \"address\": \"127.0.0.1:%1\"}]")
                                       .arg(server.serverPort())
                                       .toUtf8());
        ConnectionCheck check;
        QVERIFY(!check.startIndex(0));
        QCOMPARE(check.report().problem, ConnectionCheck::UnsupportedKind);
        QVERIFY(!check.startIndex(7));
        QVERIFY(check.startIndex(1));
        QCOMPARE(waitForReport(check).outcome, ConnectionCheck::Passed);
        QCOMPARE(int(check.report().target.port), int(server.serverPort()));
    }
};

QTEST_GUILESS_MAIN(tst_ConnectionCheck)
#include "tst_connectioncheck.moc"
