#include "TunnelHandshake.h"
#include "TunnelOptions.h"

#include <QtTest>

namespace {
std::vector<std::string> toStd(const QStringList& list)
{
    std::vector<std::string> result;
    for (const QString& item : list)
        result.push_back(item.toStdString());
    return result;
}
} // namespace

// The tunnel's command line and the answer line it reads, without any network.
class tst_TunnelOptions : public QObject {
    Q_OBJECT

private slots:
    void endpoints_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("host"); // empty: refused
        QTest::addColumn<int>("port");
        QTest::addColumn<QString>("why"); // part of the error when refused

        QTest::newRow("name") << "mgmt.example.org:40001" << "mgmt.example.org" << 40001 << "";
        QTest::newRow("ipv4") << "127.0.0.1:5900" << "127.0.0.1" << 5900 << "";
        QTest::newRow("highest port") << "h:65535" << "h" << 65535 << "";
        QTest::newRow("ipv6 in brackets") << "[::1]:443" << "::1" << 443 << "";
        QTest::newRow("mapped ipv6") << "[::ffff:10.0.0.1]:5900" << "::ffff:10.0.0.1" << 5900 << "";
        QTest::newRow("no port") << "127.0.0.1" << "" << 0 << "no port";
        QTest::newRow("empty port") << "127.0.0.1:" << "" << 0 << "no port";
        QTest::newRow("port 0") << "h:0" << "" << 0 << "out of range";
        QTest::newRow("port 65536") << "h:65536" << "" << 0 << "out of range";
        QTest::newRow("port with letters") << "h:59a0" << "" << 0 << "not a number";
        QTest::newRow("negative port") << "h:-1" << "" << 0 << "not a number";
        QTest::newRow("six digits") << "h:000080" << "" << 0 << "not a number";
        QTest::newRow("no host") << ":5900" << "" << 0 << "no host";
        QTest::newRow("bare ipv6") << "::1:5900" << "" << 0 << "brackets";
        QTest::newRow("unclosed bracket") << "[::1:5900" << "" << 0 << "no closing bracket";
        QTest::newRow("brackets without port") << "[::1]" << "" << 0 << "no port";
        QTest::newRow("ipv4 in brackets") << "[10.0.0.1]:80" << "" << 0 << "IPv6";
        QTest::newRow("name in brackets") << "[host:x]:80" << "" << 0 << "not an IPv6";
        QTest::newRow("url") << "wss://h:443" << "" << 0 << "brackets";
        QTest::newRow("blank in host") << "my host:80" << "" << 0 << "not a host";
        QTest::newRow("user part") << "u@h:80" << "" << 0 << "not a host";
    }
    void endpoints()
    {
        QFETCH(QString, text);
        QFETCH(QString, host);
        QFETCH(int, port);
        QFETCH(QString, why);
        std::string error;
        const std::optional<tunnel::Endpoint> endpoint = tunnel::parseEndpoint(text.toStdString(), &error);
        if (host.isEmpty()) {
            QVERIFY(!endpoint);
            QVERIFY2(QString::fromStdString(error).contains(why), error.c_str());
            return;
        }
        QVERIFY2(endpoint, error.c_str());
        QCOMPARE(QString::fromStdString(endpoint->host), host);
        QCOMPARE(int(endpoint->port), port);
    }

    void arguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("error"); // part of the error; empty when accepted
        QTest::addColumn<QString>("token");
        QTest::addColumn<int>("timeoutMs");
        QTest::addColumn<QString>("caFile");

        const QStringList good{"--src", "h:1", "--dst", "127.0.0.1:5900", "--token", "t0k"};
        QTest::newRow("as the shell starts it") << good << "" << "t0k" << 15000 << "";
        QTest::newRow("any order, = forms") << QStringList{"--token=abc", "--dst=l:2", "--src=h:1"} << "" << "abc" << 15000 << "";
        QTest::newRow("timeout in seconds") << good + QStringList{"--timeout", "0.25"} << "" << "t0k" << 250 << "";
        QTest::newRow("ca file") << good + QStringList{"--ca", "/tmp/ca.pem"} << "" << "t0k" << 15000 << "/tmp/ca.pem";
        QTest::newRow("token with punctuation") << QStringList{"--src", "h:1", "--dst", "l:2", "--token", "a-b_c.d~e=f/+"} << ""
                                                << "a-b_c.d~e=f/+" << 15000 << "";
        QTest::newRow("nothing") << QStringList{} << "missing --src" << "" << 0 << "";
        QTest::newRow("no token") << QStringList{"--src", "h:1", "--dst", "l:2"} << "missing --token" << "" << 0 << "";
        QTest::newRow("no dst") << QStringList{"--src", "h:1", "--token", "t"} << "missing --dst" << "" << 0 << "";
        QTest::newRow("value missing at the end") << QStringList{"--src", "h:1", "--dst", "l:2", "--token"} << "--token needs a value" << ""
                                                  << 0 << "";
        QTest::newRow("empty token") << QStringList{"--src", "h:1", "--dst", "l:2", "--token", ""} << "--token is empty" << "" << 0 << "";
        QTest::newRow("token with a blank") << QStringList{"--src", "h:1", "--dst", "l:2", "--token", "a b"} << "printable" << "" << 0 << "";
        QTest::newRow("token with a newline") << QStringList{"--src", "h:1", "--dst", "l:2", "--token", "a\nOK"} << "printable" << "" << 0
                                              << "";
        QTest::newRow("token too long") << QStringList{"--src", "h:1", "--dst", "l:2", "--token", QString(513, 'x')} << "longer than 512"
                                        << "" << 0 << "";
        QTest::newRow("unknown option") << good + QStringList{"--verbose"} << "unknown option --verbose" << "" << 0 << "";
        QTest::newRow("single dash") << good + QStringList{"-v"} << "unexpected argument" << "" << 0 << "";
        QTest::newRow("stray word") << good + QStringList{"extra"} << "unexpected argument" << "" << 0 << "";
        QTest::newRow("given twice") << good + QStringList{"--src", "other:2"} << "--src given twice" << "" << 0 << "";
        QTest::newRow("src without port") << QStringList{"--src", "h", "--dst", "l:2", "--token", "t"} << "--src" << "" << 0 << "";
        QTest::newRow("dst out of range") << QStringList{"--src", "h:1", "--dst", "l:70000", "--token", "t"} << "--dst" << "" << 0 << "";
        QTest::newRow("timeout zero") << good + QStringList{"--timeout", "0"} << "--timeout" << "" << 0 << "";
        QTest::newRow("timeout words") << good + QStringList{"--timeout", "5s"} << "--timeout" << "" << 0 << "";
        QTest::newRow("timeout too long") << good + QStringList{"--timeout", "601"} << "--timeout" << "" << 0 << "";
        QTest::newRow("timeout nan") << good + QStringList{"--timeout", "nan"} << "--timeout" << "" << 0 << "";
        QTest::newRow("empty ca") << good + QStringList{"--ca="} << "--ca is empty" << "" << 0 << "";
    }
    void arguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, error);
        QFETCH(QString, token);
        QFETCH(int, timeoutMs);
        QFETCH(QString, caFile);
        const tunnel::ParseResult result = tunnel::parseArguments(toStd(arguments));
        if (!error.isEmpty()) {
            QVERIFY(!result.options);
            QVERIFY2(QString::fromStdString(result.error).contains(error), result.error.c_str());
            return;
        }
        QVERIFY2(result.options, result.error.c_str());
        QVERIFY(!result.options->help);
        QCOMPARE(QString::fromStdString(result.options->token), token);
        QCOMPARE(result.options->timeoutMs, timeoutMs);
        QCOMPARE(QString::fromStdString(result.options->caFile), caFile);
    }

    void help()
    {
        QVERIFY(tunnel::parseArguments({"--src", "h:1", "--help"}).options->help);
        QVERIFY(tunnel::parseArguments({"-h"}).options->help);
    }

    void answers_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("reason");

        QTest::newRow("ok") << "OK" << int(tunnel::Answer::Accepted) << "";
        QTest::newRow("ok with CR") << "OK\r" << int(tunnel::Answer::Accepted) << "";
        QTest::newRow("refused with reason") << "REFUSED unknown token" << int(tunnel::Answer::Refused) << "unknown token";
        QTest::newRow("refused bare") << "REFUSED" << int(tunnel::Answer::Refused) << "no reason given";
        QTest::newRow("control characters in reason") << "REFUSED a\tb\x1b" << int(tunnel::Answer::Refused) << "a?b?";
        QTest::newRow("lower case ok") << "ok" << int(tunnel::Answer::Malformed) << "an unexpected line";
        QTest::newRow("ok with more") << "OK then" << int(tunnel::Answer::Malformed) << "an unexpected line";
        QTest::newRow("refusedx") << "REFUSEDX" << int(tunnel::Answer::Malformed) << "an unexpected line";
        QTest::newRow("empty") << "" << int(tunnel::Answer::Malformed) << "an empty line";
        QTest::newRow("a VNC greeting") << "RFB 003.008" << int(tunnel::Answer::Malformed) << "an unexpected line";
    }
    void answers()
    {
        QFETCH(QString, line);
        QFETCH(int, kind);
        QFETCH(QString, reason);
        const tunnel::Answer answer = tunnel::parseAnswer(line.toStdString());
        QCOMPARE(int(answer.kind), kind);
        QCOMPARE(QString::fromStdString(answer.reason), reason);
    }

    void helloLine()
    {
        QCOMPARE(QByteArray::fromStdString(tunnel::helloLine("f00d")), QByteArray("NORBIX-TUNNEL 1 f00d\n"));
    }
};

QTEST_APPLESS_MAIN(tst_TunnelOptions)
#include "tst_tunnel_options.moc"
