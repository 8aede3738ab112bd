#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// Certificates made with the openssl tool for one test run: a CA the tunnel is told to trust, a
// second CA it is not, and server certificates issued by them.
class TestPki {
public:
    QString path(const QString& name) const { return m_dir.path() + QLatin1Char('/') + name; }

    // "ca" and "rogue-ca"; "server" (IP 127.0.0.1, by ca), "named" (DNS mgmt.example.org, by ca),
    // "rogue" (IP 127.0.0.1, by rogue-ca): NAME.pem and NAME.key each.
    bool make()
    {
        return authority(QStringLiteral("ca")) && authority(QStringLiteral("rogue-ca"))
            && issue(QStringLiteral("server"), QStringLiteral("IP:127.0.0.1"), QStringLiteral("ca"))
            && issue(QStringLiteral("named"), QStringLiteral("DNS:mgmt.example.org"), QStringLiteral("ca"))
            && issue(QStringLiteral("rogue"), QStringLiteral("IP:127.0.0.1"), QStringLiteral("rogue-ca"));
    }

private:
    bool openssl(const QStringList& arguments) const
    {
        QProcess process;
        process.setWorkingDirectory(m_dir.path());
        process.start(QStringLiteral("openssl"), arguments);
        if (!process.waitForFinished(30000) || process.exitCode() != 0) {
            qWarning().noquote() << "openssl" << arguments.join(QLatin1Char(' ')) << process.readAllStandardError();
            return false;
        }
        return true;
    }
    bool authority(const QString& name) const
    {
        return openssl({"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-days", "2",
                        "-subj", "/CN=Norbix test " + name, "-keyout", name + ".key", "-out", name + ".pem"});
    }
    bool issue(const QString& name, const QString& altName, const QString& ca) const
    {
        QFile extensions(path(name + ".ext"));
        if (!extensions.open(QIODevice::WriteOnly))
            return false;
        extensions.write("subjectAltName=" + altName.toUtf8() + "\n");
        extensions.close();
        return openssl({"req", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-subj", "/CN=" + name,
                        "-keyout", name + ".key", "-out", name + ".csr"})
            && openssl({"x509", "-req", "-in", name + ".csr", "-CA", ca + ".pem", "-CAkey", ca + ".key", "-CAcreateserial",
                        "-days", "2", "-extfile", name + ".ext", "-out", name + ".pem"});
    }

    QTemporaryDir m_dir;
};

struct TunnelRun {
    int exitCode = -1;
    QString err;
};

// Runs the built tunnel program to its end; the environment may be extended or cleared of names.
inline TunnelRun runTunnel(const QStringList& arguments, const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
                           int timeoutMs = 30000)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(NORBIX_TUNNEL_BINARY), arguments);
    TunnelRun run;
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
        run.err = QStringLiteral("(did not end)");
        return run;
    }
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}
