#include "FreePort.h"
#include "PeerRunner.h"
#include "PrintersBackend.h"
#include "TestSandbox.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QtTest>

// Printer queues against a private CUPS scheduler with a real IPP Everywhere printer
// (ippeveprinter) on 127.0.0.1, through the real lpadmin, lpstat and lpinfo.
class tst_PrintersPeer : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QProcess m_bus;
    QProcess m_cupsd;
    QProcess m_printer;
    quint16 m_printerPort = 0;
    QHash<QByteArray, QByteArray> m_savedEnv;
    std::unique_ptr<PassThroughSudo> m_sudo;

    QString path(const QString& name) const { return m_dir.filePath(name); }

    void setEnv(const char* name, const QByteArray& value)
    {
        if (!m_savedEnv.contains(name))
            m_savedEnv.insert(name, qgetenv(name));
        if (value.isNull())
            qunsetenv(name);
        else
            qputenv(name, value);
    }

    static bool listening(quint16 port)
    {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, port);
        return socket.waitForConnected(200);
    }

    static void stop(QProcess& process)
    {
        if (process.state() == QProcess::NotRunning)
            return;
        process.terminate();
        if (!process.waitForFinished(5000))
            process.kill();
    }

    static QString lpstat(const QStringList& arguments)
    {
        QProcess process;
        process.start(QStringLiteral("lpstat"), arguments);
        process.waitForFinished(30000);
        return QString::fromUtf8(process.readAllStandardOutput());
    }

private slots:
    void initTestCase()
    {
        for (const char* tool : {"cupsd", "lpadmin", "lpstat", "lpinfo", "ippeveprinter", "dbus-daemon"}) {
            if (QStandardPaths::findExecutable(QLatin1String(tool), {"/usr/sbin", "/usr/bin", "/sbin", "/bin"}).isEmpty())
                QSKIP(qPrintable(QStringLiteral("%1 is not installed (scripts/test installs it)").arg(QLatin1String(tool))));
        }
        for (const char* dir : {"spool", "tmp", "cache", "state", "log", "printer-spool", "printer-home"})
            QVERIFY(QDir().mkpath(path(QLatin1String(dir))));
        const quint16 cupsPort = freeLocalPort();
        const QByteArray d = m_dir.path().toUtf8();
        TestSandbox::writeFile(path("cups-files.conf"),
                               "ServerRoot " + d + "\nRequestRoot " + d + "/spool\nTempDir " + d + "/tmp\nCacheDir " + d
                                   + "/cache\nStateDir " + d + "/state\nAccessLog " + d + "/log/access_log\nErrorLog " + d
                                   + "/log/error_log\nPageLog " + d + "/log/page_log\nSystemGroup root\nFileDevice No\n");
        TestSandbox::writeFile(path("cupsd.conf"),
                               "Listen 127.0.0.1:" + QByteArray::number(cupsPort) + "\nListen " + d + "/cups.sock\n"
                               "Browsing Off\nBrowseLocalProtocols none\nDefaultAuthType None\nWebInterface No\n"
                               "<Location />\n  Allow all\n</Location>\n"
                               "<Policy default>\n  <Limit All>\n    Allow all\n  </Limit>\n</Policy>\n");
        TestSandbox::writeFile(path("dbus.conf"),
                               "<busconfig><type>session</type><listen>unix:path=" + d + "/sysbus.sock</listen>"
                               "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                               "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>\n");

        m_bus.start(QStringLiteral("dbus-daemon"), {"--config-file=" + path("dbus.conf"), "--nofork"});
        QVERIFY(m_bus.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path("sysbus.sock")), 10000);

        m_cupsd.setProcessChannelMode(QProcess::ForwardedChannels);
        m_cupsd.start(QStringLiteral("/usr/sbin/cupsd"), {"-f", "-c", path("cupsd.conf"), "-s", path("cups-files.conf")});
        QVERIFY(m_cupsd.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(listening(cupsPort), 20000);

        m_printerPort = freeLocalPort();
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("HOME"), path("printer-home"));
        env.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), "unix:path=" + path("sysbus.sock"));
        m_printer.setProcessEnvironment(env);
        m_printer.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_printer.start(QStringLiteral("/usr/sbin/ippeveprinter"),
                        {"-r", "off", "-n", "localhost", "-p", QString::number(m_printerPort), "-d", path("printer-spool"),
                         "-K", path("printer-home"), "-f", "application/pdf,image/pwg-raster,image/urf,image/jpeg", "-m",
                         "Office Printer", "Office"});
        QVERIFY(m_printer.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(listening(m_printerPort), 20000);

        setEnv("CUPS_SERVER", path("cups.sock").toUtf8());
        setEnv("LPDEST", QByteArray());
        setEnv("PRINTER", QByteArray());
        // lpadmin and lpinfo live in /usr/sbin, which a test's PATH may lack.
        setEnv("PATH", qgetenv("PATH") + ":/usr/sbin:/sbin");
        m_sudo = std::make_unique<PassThroughSudo>();
    }

    void cleanupTestCase()
    {
        m_sudo.reset();
        stop(m_printer);
        stop(m_cupsd);
        stop(m_bus);
        for (auto it = m_savedEnv.begin(); it != m_savedEnv.end(); ++it) {
            if (it.value().isNull())
                qunsetenv(it.key().constData());
            else
                qputenv(it.key().constData(), it.value());
        }
    }

    void queues()
    {
        TestSandbox sandbox;
        PeerRunner runner(sandbox);
        PrintersBackend printers;
        QCOMPARE(PrintersBackend::listPrinters(), QStringList());
        QCOMPARE(PrintersBackend::getDefaultPrinter(), QString());

        const QString host = QStringLiteral("127.0.0.1:%1").arg(m_printerPort);
        QVERIFY2(printers.addPrinter(QStringLiteral("office"), host), qPrintable(printers.lastError()));
        QCOMPARE(PrintersBackend::listPrinters(), QStringList{"office"});
        QVERIFY(lpstat({QStringLiteral("-v"), QStringLiteral("office")}).contains(QStringLiteral("ipp://%1/ipp/print").arg(host)));

        // A second queue on the same printer, found through the driver list.
        QVERIFY(PrintersBackend::listUSBPrinterDrivers().contains(QStringLiteral("everywhere")));
        QVERIFY2(printers.addUSBPrinter(QStringLiteral("office-2"), QStringLiteral("ipp://%1/ipp/print").arg(host),
                                        QStringLiteral("everywhere")),
                 qPrintable(printers.lastError()));
        QCOMPARE(PrintersBackend::listPrinters(), (QStringList{"office", "office-2"}));

        printers.setCurrentPrinter(QStringLiteral("office-2"));
        QCOMPARE(PrintersBackend::getDefaultPrinter(), QStringLiteral("office-2"));
        printers.deletePrinter(QStringLiteral("office-2"));
        QCOMPARE(PrintersBackend::listPrinters(), QStringList{"office"});
        QCOMPARE(PrintersBackend::getDefaultPrinter(), QString());
        printers.deletePrinter(QStringLiteral("office"));
        QCOMPARE(PrintersBackend::listPrinters(), QStringList());
    }

    void refused()
    {
        TestSandbox sandbox;
        PeerRunner runner(sandbox);
        PrintersBackend printers;
        // Names CUPS would refuse, or the shell would not pass on, never reach lpadmin.
        for (const QString& name : {QStringLiteral("my printer"), QStringLiteral("a/b"), QStringLiteral("a#b")}) {
            QVERIFY(!printers.addPrinter(name, QStringLiteral("127.0.0.1:%1").arg(m_printerPort)));
            QVERIFY(!printers.lastError().isEmpty());
        }
        QCOMPARE(PrintersBackend::listPrinters(), QStringList());

        // A driver the scheduler does not have: lpadmin's own error reaches the screen, no queue.
        QVERIFY(!printers.addUSBPrinter(QStringLiteral("broken"), QStringLiteral("ipp://127.0.0.1:%1/ipp/print").arg(m_printerPort),
                                        QStringLiteral("drv:///no-such.drv/none.ppd")));
        QVERIFY2(printers.lastError().startsWith(QStringLiteral("lpadmin")), qPrintable(printers.lastError()));
        QCOMPARE(PrintersBackend::listPrinters(), QStringList());
    }

    void devices()
    {
        TestSandbox sandbox;
        PeerRunner runner(sandbox);
        // No USB printer on a test machine: whatever lpinfo lists as "direct" comes through as a URI.
        for (const QString& uri : PrintersBackend::listUSBPrinters())
            QVERIFY2(!uri.contains(QLatin1Char(' ')) && !uri.isEmpty(), qPrintable(uri));
        QVERIFY(PrintersBackend::listUSBPrinterDrivers().size() >= 1);
    }
};

QTEST_GUILESS_MAIN(tst_PrintersPeer)
#include "tst_printers_peer.moc"
