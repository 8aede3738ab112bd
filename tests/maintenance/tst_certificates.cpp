#include "CertificatesModel.h"
#include "CertificatesStorage.h"
#include "FakeCommandRunner.h"
#include "TestSandbox.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QtTest>

namespace {

const QString kCerts = QStringLiteral(NORBIX_TEST_DATA "/certificates/");
const QString kLocal = QStringLiteral("/usr/local/share/ca-certificates/");

QByteArray fixture(const QString& path)
{
    return TestSandbox::readFile(QStringLiteral(NORBIX_TEST_DATA "/") + path);
}

QString readingCommand(const QString& options, const QString& file)
{
    return QStringLiteral("bash -c ") + CertificatesStorage::readingScript(options, file);
}

const QString kListOptions = QStringLiteral("-subject -startdate -enddate");

} // namespace

class tst_Certificates : public QObject {
    Q_OBJECT

    TestSandbox* m_sandbox = nullptr;
    FakeCommandRunner* m_runner = nullptr;

    // A certificate file as the user finds it on a drive (name and content may disagree).
    QString onDrive(const QString& name, const QString& fixtureName)
    {
        const QString path = m_sandbox->path(QStringLiteral("/media/USB/") + name);
        TestSandbox::writeFile(path, TestSandbox::readFile(kCerts + fixtureName));
        return path;
    }

    void installLocal(const QString& name, const QString& fixtureName)
    {
        TestSandbox::writeFile(m_sandbox->path(kLocal + name), TestSandbox::readFile(kCerts + fixtureName));
    }

private slots:
    void init()
    {
        m_sandbox = new TestSandbox;
        m_runner = new FakeCommandRunner;
    }
    void cleanup()
    {
        delete m_runner;
        delete m_sandbox;
    }

    void destination_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("dest");
        QTest::newRow("bundle with dots") << "/media/USB/corp.root.pem" << kLocal + "corp.crt";
        QTest::newRow("pfx") << "/media/USB/client.pfx" << kLocal + "client.crt";
        QTest::newRow("crt keeps name") << "/media/USB/ca.crt" << kLocal + "ca.crt";
        QTest::newRow("dots in folder ignored") << "/media/my.drive/root-ca.v2.der" << kLocal + "root-ca.crt";
        QTest::newRow("no extension") << "/media/USB/rootca" << kLocal + "rootca.crt";
    }
    void destination()
    {
        QFETCH(QString, path);
        QFETCH(QString, dest);
        QCOMPARE(CertificatesStorage::destinationFor(path), dest);
    }

    // The command per file type is chosen by extension (PKCS#12) or by content (PEM or DER).
    void importCommands_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("fixtureName");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QStringList>("convert"); // with %1 for the file's path

        QTest::newRow("crt, PEM") << "ca.crt" << "norbix-demo-root.crt" << ""
                                  << QStringList{"sudo", "cp", "%1", kLocal + "ca.crt"};
        QTest::newRow("cer, PEM") << "ca.cer" << "norbix-demo-root.crt" << ""
                                  << QStringList{"sudo", "cp", "%1", kLocal + "ca.crt"};
        QTest::newRow("cer, DER") << "branch.cer" << "branch-office.der" << ""
                                  << QStringList{"sudo", "openssl", "x509", "-inform", "der", "-in", "%1", "-out", kLocal + "branch.crt"};
        QTest::newRow("der") << "branch-office.der" << "branch-office.der" << ""
                             << QStringList{"sudo", "openssl", "x509", "-inform", "der", "-in", "%1", "-out", kLocal + "branch-office.crt"};
        QTest::newRow("PEM bundle copied whole") << "corp.root.pem" << "corp.root.pem" << ""
                                                 << QStringList{"sudo", "cp", "%1", kLocal + "corp.crt"};
        QTest::newRow("pfx with its chain") << "client.pfx" << "client.pfx" << "s3cret"
                                            << QStringList{"sudo", "openssl", "pkcs12", "-passin", "pass:s3cret", "-in", "%1",
                                                           "-chain", "-nokeys", "-out", kLocal + "client.crt"};
        QTest::newRow("pfx password with blank stays one argument")
            << "client.PFX" << "client.pfx" << "two words"
            << QStringList{"sudo", "openssl", "pkcs12", "-passin", "pass:two words", "-in", "%1", "-chain", "-nokeys", "-out", kLocal + "client.crt"};
    }
    void importCommands()
    {
        QFETCH(QString, name);
        QFETCH(QString, fixtureName);
        QFETCH(QString, password);
        QFETCH(QStringList, convert);
        const QString path = onDrive(name, fixtureName);
        convert.replaceInStrings(QStringLiteral("%1"), path);

        CertificatesStorage storage;
        QSignalSpy ok(&storage, &CertificatesStorage::certOk);
        QSignalSpy failed(&storage, &CertificatesStorage::certFailed);
        storage.addCertificate(path, password);

        QCOMPARE(m_runner->commandLines(), QList<QStringList>({convert, {"sudo", "update-ca-certificates"}}));
        QCOMPARE(ok.count(), 1);
        QCOMPARE(failed.count(), 0);
    }

    // openssl's own words reach the screen, and nothing after the failed step runs.
    void failingImportShowsToolText_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("fixtureName");
        QTest::addColumn<QString>("stderrFixture");
        QTest::newRow("wrong pfx password") << "client.pfx" << "client.pfx" << "simulation/openssl-pkcs12-bad-password.txt";
        QTest::newRow("not a certificate") << "notes.der" << "openssl-x509-corp.root.txt" << "simulation/openssl-x509-der-error.txt";
    }
    void failingImportShowsToolText()
    {
        QFETCH(QString, name);
        QFETCH(QString, fixtureName);
        QFETCH(QString, stderrFixture);
        const QString path = onDrive(name, fixtureName);
        const QString dest = CertificatesStorage::destinationFor(path);
        const QByteArray error = fixture(stderrFixture);
        const QString command = name.endsWith(QLatin1String(".pfx"))
            ? QStringLiteral("sudo openssl pkcs12 -passin pass:wrong -in %1 -chain -nokeys -out %2").arg(path, dest)
            : QStringLiteral("sudo openssl x509 -inform der -in %1 -out %2").arg(path, dest);
        m_runner->answer(command, {}, 1, error);

        CertificatesStorage storage;
        QSignalSpy ok(&storage, &CertificatesStorage::certOk);
        QSignalSpy failed(&storage, &CertificatesStorage::certFailed);
        storage.addCertificate(path, QStringLiteral("wrong"));

        QCOMPARE(ok.count(), 0);
        QCOMPARE(failed.count(), 1);
        QCOMPARE(failed.first().first().toString(), QString::fromLocal8Bit(error).trimmed());
        QCOMPARE(m_runner->calls.size(), 1);
    }

    // Debian's openssl 3 and update-ca-certificates warn on stderr while succeeding.
    void warningsOfSucceedingToolsAreNotFailures()
    {
        const QString path = onDrive(QStringLiteral("client.pfx"), QStringLiteral("client.pfx"));
        m_runner->answer(QStringLiteral("sudo openssl pkcs12 -passin pass:s3cret -in %1 -chain -nokeys -out %2")
                             .arg(path, CertificatesStorage::destinationFor(path)),
                         {}, 0, fixture("simulation/openssl-pkcs12-chain-warning.txt"));
        m_runner->answer(QStringLiteral("sudo update-ca-certificates"), fixture("simulation/update-ca-certificates.txt"), 0,
                         fixture("simulation/update-ca-certificates-stderr.txt"));
        CertificatesStorage storage;
        QSignalSpy ok(&storage, &CertificatesStorage::certOk);
        QSignalSpy failed(&storage, &CertificatesStorage::certFailed);
        storage.addCertificate(path, QStringLiteral("s3cret"));
        QCOMPARE(ok.count(), 1);
        QCOMPARE(failed.count(), 0);
    }

    void failingRebuildFails()
    {
        const QString path = onDrive(QStringLiteral("ca.crt"), QStringLiteral("norbix-demo-root.crt"));
        m_runner->answer(QStringLiteral("sudo update-ca-certificates"), {}, 1, "update-ca-certificates: permission denied\n");
        CertificatesStorage storage;
        QSignalSpy failed(&storage, &CertificatesStorage::certFailed);
        storage.addCertificate(path, QString());
        QCOMPARE(failed.count(), 1);
        QCOMPARE(failed.first().first().toString(), QStringLiteral("update-ca-certificates: permission denied"));
    }

    // The server's variant: client certificate only, no sudo for the conversion, quoted password.
    void fromServer_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("cert");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QStringList>("convert");
        const QString received = QStringLiteral("/data/norbix/certificates/");
        const QByteArray pem = TestSandbox::readFile(kCerts + "corp.root.pem");
        QTest::newRow("pfx as base64") << "client.pfx" << TestSandbox::readFile(kCerts + "client.pfx").toBase64() << "two words"
                                       << QStringList{"openssl", "pkcs12", "-passin", "pass:two words", "-in", received + "client.pfx",
                                                      "-clcerts", "-nokeys", "-out", kLocal + "client.crt"};
        QTest::newRow("der as base64") << "branch.der" << TestSandbox::readFile(kCerts + "branch-office.der").toBase64() << ""
                                       << QStringList{"openssl", "x509", "-inform", "der", "-in", received + "branch.der", "-out",
                                                      kLocal + "branch.crt"};
        QTest::newRow("pem as text") << "corp.root.pem" << pem << ""
                                     << QStringList{"sudo", "cp", received + "corp.root.pem", kLocal + "corp.crt"};
        QTest::newRow("pem as base64") << "corp.root.pem" << pem.toBase64() << ""
                                       << QStringList{"sudo", "cp", received + "corp.root.pem", kLocal + "corp.crt"};
        QTest::newRow("blanks and quotes cannot split the command")
            << "my \"corp\" ca.der" << TestSandbox::readFile(kCerts + "branch-office.der").toBase64() << ""
            << QStringList{"openssl", "x509", "-inform", "der", "-in", received + "my__corp__ca.der", "-out", kLocal + "my__corp__ca.crt"};
        QTest::newRow("a path is only a name") << "../../etc/corp.pem" << pem << ""
                                               << QStringList{"sudo", "cp", received + "corp.pem", kLocal + "corp.crt"};
    }
    void fromServer()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, cert);
        QFETCH(QString, password);
        QFETCH(QStringList, convert);
        QCOMPARE(CertificatesStorage::addCertificateFromServer(name, QString::fromLatin1(cert), password), QStringLiteral("ok"));
        QCOMPARE(m_runner->commandLines(), QList<QStringList>({convert, {"sudo", "update-ca-certificates"}}));
        // The received file (perhaps with a private key) is gone again.
        QVERIFY(QDir(m_sandbox->path(QStringLiteral("/data/norbix/certificates"))).isEmpty());
    }

    void fromServerFailures_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("cert");
        QTest::addColumn<int>("commands");
        QTest::newRow("no name") << "" << "LS0t" << 0;
        QTest::newRow("no content") << "a.pem" << "" << 0;
        QTest::newRow("neither pem nor base64") << "a.der" << "@@not base64@@" << 0;
        QTest::newRow("wrong password") << "client.pfx" << QString::fromLatin1(TestSandbox::readFile(kCerts + "client.pfx").toBase64()) << 1;
    }
    void fromServerFailures()
    {
        QFETCH(QString, name);
        QFETCH(QString, cert);
        QFETCH(int, commands);
        m_runner->answer(QStringLiteral("openssl pkcs12 -passin pass:bad -in /data/norbix/certificates/client.pfx -clcerts -nokeys -out ") + kLocal
                             + QStringLiteral("client.crt"),
                         {}, 1, fixture("simulation/openssl-pkcs12-bad-password.txt"));
        QCOMPARE(CertificatesStorage::addCertificateFromServer(name, cert, QStringLiteral("bad")), QStringLiteral("error"));
        QCOMPARE(m_runner->calls.size(), commands);
    }

    void parseListing_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("ends");
        QTest::newRow("bundle of two, quoted comma")
            << QString::fromUtf8(fixture("certificates/openssl-x509-corp.root.txt"))
            << QStringList{"Example Corp Root", "Example Corp Issuing CA 2"}
            << QStringList{"Nov 22 12:29:11 2031 GMT", "Nov 22 12:29:12 2031 GMT"};
        QTest::newRow("subject printed twice")
            << "subject=CN = A\nsubject=CN = A\nnotBefore=Jan  1 00:00:00 2024 GMT\nnotAfter=Jan  1 00:00:00 2034 GMT\n"
               "subject=CN = B\nsubject=CN = B\nnotBefore=Feb  1 00:00:00 2024 GMT\nnotAfter=Feb  1 00:00:00 2034 GMT\n"
            << QStringList{"A", "B"} << QStringList{"Jan  1 00:00:00 2034 GMT", "Feb  1 00:00:00 2034 GMT"};
        QTest::newRow("no common name: whole subject")
            << "subject=C = ES, O = FNMT-RCM, OU = AC RAIZ FNMT-RCM\nnotBefore=x\nnotAfter=y\n"
            << QStringList{"C = ES, O = FNMT-RCM, OU = AC RAIZ FNMT-RCM"} << QStringList{"y"};
        QTest::newRow("openssl noise and a certificate without dates")
            << "Could not read certificate from <stdin>\nnotAfter=orphan\nsubject=CN = Lone\nsubject=CN = Next\nnotAfter=z\n"
            << QStringList{"Lone"} << QStringList{"z"};
        QTest::newRow("empty") << "" << QStringList() << QStringList();
        QTest::newRow("CRLF lines") << "subject=CN = W\r\nnotBefore=a\r\nnotAfter=b\r\n" << QStringList{"W"} << QStringList{"b"};
    }
    void parseListing()
    {
        QFETCH(QString, output);
        QFETCH(QStringList, names);
        QFETCH(QStringList, ends);
        const auto certificates = CertificatesStorage::parseListing(output, QStringLiteral("f.crt"));
        QStringList gotNames, gotEnds;
        for (const auto& certificate : certificates) {
            gotNames << certificate.name;
            gotEnds << certificate.notAfter;
            QCOMPARE(certificate.fileName, QStringLiteral("f.crt"));
        }
        QCOMPARE(gotNames, names);
        QCOMPARE(gotEnds, ends);
    }

    // The reading script as the real shell and openssl run it, one openssl per certificate.
    void readingScriptWithRealOpenssl()
    {
        delete m_runner;
        m_runner = nullptr;
        if (QStandardPaths::findExecutable(QStringLiteral("openssl")).isEmpty())
            QSKIP("openssl is not installed");
        const CommandResult result =
            CommandRunner::instance().run(QStringLiteral("bash"), {QStringLiteral("-c"), CertificatesStorage::readingScript(kListOptions, kCerts + "corp.root.pem")});
        const auto certificates = CertificatesStorage::parseListing(QString::fromUtf8(result.standardOutput));
        QCOMPARE(certificates.size(), 2);
        QCOMPARE(certificates.at(0).name, QStringLiteral("Example Corp Root"));
        QCOMPARE(certificates.at(1).name, QStringLiteral("Example Corp Issuing CA 2"));
        QVERIFY(certificates.at(1).notAfter.endsWith(QLatin1String(" GMT")));
    }

    void systemBundleFixtureParsesWhole()
    {
        const QByteArray output = fixture("simulation/openssl-x509-system-bundle.txt");
        const auto certificates = CertificatesStorage::parseListing(QString::fromUtf8(output));
        QCOMPARE(certificates.size(), output.count("subject="));
        for (const auto& certificate : certificates) {
            QVERIFY2(!certificate.name.isEmpty() && !certificate.notBefore.isEmpty() && !certificate.notAfter.isEmpty(),
                     qPrintable(certificate.name));
        }
    }

    void displayName_data()
    {
        QTest::addColumn<QString>("subject");
        QTest::addColumn<QString>("name");
        QTest::newRow("openssl 3") << "C = DE, O = Norbix Demo, CN = Norbix Demo Root CA" << "Norbix Demo Root CA";
        QTest::newRow("CN first") << "CN = ACCVRAIZ1, OU = PKIACCV, O = ACCV, C = ES" << "ACCVRAIZ1";
        QTest::newRow("quoted comma in CN") << "O = X, CN = \"Corp, Inc. Root\"" << "Corp, Inc. Root";
        QTest::newRow("escaped comma") << "O = X, CN = Corp\\, Inc" << "Corp, Inc";
        QTest::newRow("legacy slashes") << "/C=US/O=Org/CN=Old Style" << "Old Style";
        QTest::newRow("no CN") << "O = Only Org" << "O = Only Org";
    }
    void displayName()
    {
        QFETCH(QString, subject);
        QFETCH(QString, name);
        QCOMPARE(CertificatesStorage::displayName(subject), name);
    }

    void listingWithAndWithoutSystemBundle()
    {
        installLocal(QStringLiteral("corp.crt"), QStringLiteral("corp.root.pem"));
        installLocal(QStringLiteral("demo.crt"), QStringLiteral("norbix-demo-root.crt"));
        installLocal(QStringLiteral("ignored.pem"), QStringLiteral("norbix-demo-root.crt"));
        m_runner->answer(readingCommand(kListOptions, QStringLiteral("/etc/ssl/certs/ca-certificates.crt")),
                         fixture("simulation/openssl-x509-system-bundle.txt"));
        m_runner->answer(readingCommand(kListOptions, kLocal + "corp.crt"), fixture("certificates/openssl-x509-corp.root.txt"));
        m_runner->answer(readingCommand(kListOptions, kLocal + "demo.crt"), fixture("certificates/openssl-x509-norbix-demo-root.txt"));

        const auto local = CertificatesStorage::listCertificates(false);
        QCOMPARE(local.size(), 3);
        QCOMPARE(local.at(0).fileName, QStringLiteral("corp.crt"));
        QCOMPARE(local.at(1).fileName, QStringLiteral("corp.crt"));
        QCOMPARE(local.at(2).name, QStringLiteral("Norbix Demo Root CA"));
        QCOMPARE(local.at(2).fileName, QStringLiteral("demo.crt"));

        const auto all = CertificatesStorage::listCertificates(true);
        const int bundle = fixture("simulation/openssl-x509-system-bundle.txt").count("subject=");
        QCOMPARE(all.size(), bundle + 3);
        QVERIFY(all.first().fileName.isEmpty()); // system rows first, not removable
        QCOMPARE(all.mid(bundle), local);
    }

    void model()
    {
        installLocal(QStringLiteral("demo.crt"), QStringLiteral("norbix-demo-root.crt"));
        m_runner->answer(readingCommand(kListOptions, QStringLiteral("/etc/ssl/certs/ca-certificates.crt")),
                         "subject=CN = System One\nnotBefore=a\nnotAfter=b\n");
        m_runner->answer(readingCommand(kListOptions, kLocal + "demo.crt"), fixture("certificates/openssl-x509-norbix-demo-root.txt"));

        CertificatesModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.columnCount(), 4);
        QStringList headers;
        for (int column = 0; column < 4; ++column)
            headers << model.headerData(column, Qt::Horizontal).toString();
        QCOMPARE(headers, QStringList({"Name", "Not before", "Not after", "Manage"}));
        QVERIFY(!model.headerData(4, Qt::Horizontal).isValid());

        const QHash<int, QByteArray> roles = model.roleNames();
        QCOMPARE(roles.value(257), QByteArray("display"));
        QCOMPARE(roles.value(258), QByteArray("name"));
        QCOMPARE(roles.value(259), QByteArray("notBefore"));
        QCOMPARE(roles.value(260), QByteArray("notAfter"));
        QCOMPARE(roles.value(261), QByteArray("fileName"));

        model.update(true);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.data(model.index(0, 0), 258).toString(), QStringLiteral("System One"));
        QCOMPARE(model.data(model.index(0, 0), 261).toString(), QString());
        const QModelIndex demo = model.index(1, 0);
        QCOMPARE(model.data(demo, 258).toString(), QStringLiteral("Norbix Demo Root CA"));
        QCOMPARE(model.data(demo, 259).toString(), QStringLiteral("Nov 23 12:29:11 2026 GMT"));
        QCOMPARE(model.data(demo, 260).toString(), QStringLiteral("Nov 20 12:29:11 2036 GMT"));
        QCOMPARE(model.data(demo, 261).toString(), QStringLiteral("demo.crt"));
        QStringList display;
        for (int column = 0; column < 4; ++column)
            display << model.data(model.index(1, column), 257).toString();
        QCOMPARE(display, QStringList({"Norbix Demo Root CA", "Nov 23 12:29:11 2026 GMT", "Nov 20 12:29:11 2036 GMT", "demo.crt"}));

        model.update(false);
        QCOMPARE(model.rowCount(), 1);

        // Removal runs the commands and reloads with the same choice.
        m_runner->calls.clear();
        model.removeCertificate(QStringLiteral("demo.crt"), true);
        QCOMPARE(m_runner->commandLines().mid(0, 2),
                 QList<QStringList>({{"sudo", "rm", kLocal + "demo.crt"}, {"sudo", "update-ca-certificates"}}));
        QCOMPARE(m_runner->commandLines().at(2).at(0), QStringLiteral("bash"));
        QVERIFY(m_runner->commandLines().at(2).at(2).endsWith(QLatin1String("/etc/ssl/certs/ca-certificates.crt")));
    }

    void removeRefusesPaths_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<bool>("runs");
        QTest::newRow("plain") << "corp.crt" << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("parent") << ".." << false;
        QTest::newRow("traversal") << "../../../etc/passwd" << false;
        QTest::newRow("absolute") << "/etc/ssl/certs/ca-certificates.crt" << false;
    }
    void removeRefusesPaths()
    {
        QFETCH(QString, fileName);
        QFETCH(bool, runs);
        CertificatesStorage::removeCertificate(fileName);
        QCOMPARE(m_runner->calls.isEmpty(), !runs);
    }

    void cleanRemovesEveryLocalFile()
    {
        installLocal(QStringLiteral("a.crt"), QStringLiteral("norbix-demo-root.crt"));
        installLocal(QStringLiteral("b.crt"), QStringLiteral("norbix-demo-root.crt"));
        CertificatesStorage::cleanCertificates();
        QCOMPARE(m_runner->commandLines(), QList<QStringList>({{"sudo", "rm", kLocal + "a.crt"},
                                                                {"sudo", "rm", kLocal + "b.crt"},
                                                                {"sudo", "update-ca-certificates"}}));
    }

    void certificatesInfo()
    {
        installLocal(QStringLiteral("corp.crt"), QStringLiteral("corp.root.pem"));
        installLocal(QStringLiteral("broken.crt"), QStringLiteral("norbix-demo-root.crt"));
        const QString options = QStringLiteral("-subject -subject -startdate -enddate");
        m_runner->answer(readingCommand(options, kLocal + "corp.crt"), fixture("certificates/openssl-x509-corp.root.txt"));
        m_runner->answer(readingCommand(options, kLocal + "broken.crt"), {}, 1, "unable to load certificate\n");
        const QJsonArray info = CertificatesStorage::getCertificatesInfo();
        QCOMPARE(info.size(), 1);
        QCOMPARE(info.first().toObject(), QJsonObject({{"File", "corp.crt"},
                                                       {"Title", "Example Corp Root"},
                                                       {"NotBefore", "Nov 23 12:29:11 2026 GMT"},
                                                       {"NotAfter", "Nov 22 12:29:11 2031 GMT"}}));
    }

    void availableFilesOnMedia()
    {
        QStringList expected{onDrive(QStringLiteral("a.crt"), QStringLiteral("norbix-demo-root.crt")),
                                   onDrive(QStringLiteral("deep/b.DER"), QStringLiteral("branch-office.der")),
                                   onDrive(QStringLiteral("c.pfx"), QStringLiteral("client.pfx")),
                                   onDrive(QStringLiteral("d.cer"), QStringLiteral("norbix-demo-root.crt"))};
        onDrive(QStringLiteral("notes.txt"), QStringLiteral("corp.root.pem"));
        onDrive(QStringLiteral("corp.root.pem"), QStringLiteral("corp.root.pem"));
        expected.sort();
        CertificatesStorage storage;
        QCOMPARE(storage.listAvailableCertificates(), expected);
        QVERIFY(storage.needsPassword(expected.at(1)));
        QVERIFY(!storage.needsPassword(expected.at(0)));
    }
};

QTEST_GUILESS_MAIN(tst_Certificates)
#include "tst_certificates.moc"
