#include "CertificatesModel.h"
#include "CertificatesStorage.h"
#include "SimulatedTerminal.h"
#include "TestSandbox.h"

#include <QDir>
#include <QSignalSpy>
#include <QtTest>

// The certificates screen's round trip in the simulated terminal: the demo drive's files import,
// list and remove as they would on a terminal.
class tst_SimulatedCertificates : public QObject {
    Q_OBJECT

    TestSandbox* m_sandbox = nullptr;
    SimulatedTerminal* m_terminal = nullptr;

    QString demoFile(const QString& name) const { return m_sandbox->path(QStringLiteral("/media/NORBIX-USB/certificates/") + name); }
    QStringList installed() const
    {
        return QDir(m_sandbox->path(QStringLiteral("/usr/local/share/ca-certificates"))).entryList(QDir::Files, QDir::Name);
    }
    static QStringList names(const QList<CertificatesModel::CertificateData>& list)
    {
        QStringList result;
        for (const auto& certificate : list)
            result << certificate.name + QLatin1Char('|') + certificate.fileName;
        return result;
    }

private slots:
    void init()
    {
        m_sandbox = new TestSandbox;
        m_terminal = new SimulatedTerminal; // prepares the sandbox like a terminal image
        CommandRunner::setInstance(m_terminal);
    }
    void cleanup()
    {
        CommandRunner::setInstance(nullptr);
        delete m_terminal;
        delete m_sandbox;
    }

    void imports_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QStringList>("added");
        QTest::newRow("PEM bundle") << "corp.root.cer" << "" << QStringList{"Example Corp Root|corp.crt", "Example Corp Issuing CA 2|corp.crt"};
        QTest::newRow("DER") << "branch-office.der" << "" << QStringList{"Example Corp Root|branch-office.crt"};
        QTest::newRow("PKCS#12 with chain") << "client.pfx" << "s3cret"
                                            << QStringList{"thinclient-07.example.org|client.crt", "Norbix Demo Root CA|client.crt"};
    }
    void imports()
    {
        QFETCH(QString, file);
        QFETCH(QString, password);
        QFETCH(QStringList, added);
        const QStringList before = names(CertificatesStorage::listCertificates(false));
        QCOMPARE(before, QStringList({"Norbix Demo Root CA|norbix-demo-root.crt"}));

        CertificatesStorage storage;
        QVERIFY(storage.listAvailableCertificates().contains(demoFile(file)));
        QSignalSpy ok(&storage, &CertificatesStorage::certOk);
        storage.addCertificate(demoFile(file), password);
        QCOMPARE(ok.count(), 1);
        QCOMPARE(names(CertificatesStorage::listCertificates(false)), added + before);
    }

    void wrongPasswordShowsOpensslText()
    {
        CertificatesStorage storage;
        QSignalSpy failed(&storage, &CertificatesStorage::certFailed);
        storage.addCertificate(demoFile(QStringLiteral("client.pfx")), QStringLiteral("guess"));
        QCOMPARE(failed.count(), 1);
        QCOMPARE(failed.first().first().toString(), QStringLiteral("Mac verify error: invalid password?"));
        QCOMPARE(installed(), QStringList({"norbix-demo-root.crt"}));
    }

    void removeAndSystemBundle()
    {
        CertificatesModel model;
        model.update(true);
        QVERIFY(model.rowCount() > 100);
        QCOMPARE(model.data(model.index(model.rowCount() - 1, 0), CertificatesModel::DeleteRole).toString(),
                 QStringLiteral("norbix-demo-root.crt"));
        model.removeCertificate(QStringLiteral("norbix-demo-root.crt"), false);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(installed().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_SimulatedCertificates)
#include "tst_simulatedcertificates.moc"
