#include "SimulatedCertificates.h"

#include "SystemPaths.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSslCertificate>
#include <QSslKey>

namespace {

// Paths in command lines are terminal paths; files picked on the USB drive are already local.
QString local(const QString& path)
{
    const QString root = SystemPaths::root();
    return !root.isEmpty() && path.startsWith(root + QLatin1Char('/')) ? path : SystemPaths::resolve(path);
}

QByteArray readLocal(const QString& path)
{
    QFile file(local(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeLocal(const QString& path, const QByteArray& content)
{
    QFile file(local(path));
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size();
}

QString argumentAfter(const QStringList& arguments, const QString& flag)
{
    const int at = arguments.indexOf(flag);
    return at >= 0 && at + 1 < arguments.size() ? arguments.at(at + 1) : QString();
}

// openssl's one-line subject: "C = GB, O = \"Example, Ltd\", CN = Root".
QString subjectLine(const QSslCertificate& certificate)
{
    static const char* const order[] = {"C", "ST", "L", "O", "OU", "CN", "emailAddress"};
    QStringList parts;
    for (const char* attribute : order) {
        for (QString value : certificate.subjectInfo(QByteArray(attribute))) {
            if (value.contains(QLatin1Char(',')))
                value = QLatin1Char('"') + value + QLatin1Char('"');
            parts << QStringLiteral("%1 = %2").arg(QLatin1String(attribute), value);
        }
    }
    return parts.join(QStringLiteral(", "));
}

QString opensslDate(const QDateTime& when)
{
    const QDateTime utc = when.toUTC();
    return QLocale::c().toString(utc, QStringLiteral("MMM ")) + QStringLiteral("%1").arg(utc.date().day(), 2)
        + QLocale::c().toString(utc, QStringLiteral(" hh:mm:ss yyyy")) + QStringLiteral(" GMT");
}

// "awk -v cmd='openssl x509 -noout OPTIONS' ... < FILE": one block of lines per certificate.
std::optional<SimulatedTerminal::Answer> readingScript(const QString& script)
{
    static const QRegularExpression pattern(QStringLiteral("^awk -v cmd='openssl x509 -noout ([^']*)' .* < (\\S+)$"));
    const QRegularExpressionMatch match = pattern.match(script);
    if (!match.hasMatch())
        return std::nullopt;
    const QStringList options = match.captured(1).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QByteArray out;
    for (const QSslCertificate& certificate : QSslCertificate::fromData(readLocal(match.captured(2)), QSsl::Pem)) {
        // openssl prints a repeated option once.
        if (options.contains(QLatin1String("-subject")))
            out += "subject=" + subjectLine(certificate).toUtf8() + '\n';
        if (options.contains(QLatin1String("-startdate")))
            out += "notBefore=" + opensslDate(certificate.effectiveDate()).toUtf8() + '\n';
        if (options.contains(QLatin1String("-enddate")))
            out += "notAfter=" + opensslDate(certificate.expiryDate()).toUtf8() + '\n';
    }
    return SimulatedTerminal::finished(0, out);
}

QByteArray toPem(const QList<QSslCertificate>& certificates)
{
    QByteArray pem;
    for (const QSslCertificate& certificate : certificates)
        pem += certificate.toPem();
    return pem;
}

SimulatedTerminal::Answer openssl(const QStringList& arguments)
{
    const QString in = argumentAfter(arguments, QStringLiteral("-in"));
    const QString out = argumentAfter(arguments, QStringLiteral("-out"));
    if (arguments.value(0) == QLatin1String("x509")) {
        const QSslCertificate certificate(readLocal(in), QSsl::Der);
        if (certificate.isNull())
            return SimulatedTerminal::finished(1, {}, SimulatedTerminal::fixture(QStringLiteral("openssl-x509-der-error.txt")).replace("%1", in.toUtf8()));
        writeLocal(out, certificate.toPem());
        return SimulatedTerminal::finished(0);
    }
    if (arguments.value(0) == QLatin1String("pkcs12")) {
        QString password = argumentAfter(arguments, QStringLiteral("-passin"));
        password.remove(0, 5); // "pass:"
        QFile file(local(in));
        QSslKey key;
        QSslCertificate certificate;
        QList<QSslCertificate> chain;
        if (!file.open(QIODevice::ReadOnly) || !QSslCertificate::importPkcs12(&file, &key, &certificate, &chain, password.toUtf8()))
            return SimulatedTerminal::finished(1, {}, SimulatedTerminal::fixture(QStringLiteral("openssl-pkcs12-bad-password.txt")));
        const bool withChain = arguments.contains(QLatin1String("-chain"));
        writeLocal(out, toPem(QList<QSslCertificate>{certificate} + (withChain ? chain : QList<QSslCertificate>())));
        return SimulatedTerminal::finished(0, {}, withChain ? SimulatedTerminal::fixture(QStringLiteral("openssl-pkcs12-chain-warning.txt")) : QByteArray());
    }
    return SimulatedTerminal::finished(0);
}

} // namespace

namespace SimulatedCertificates {

std::optional<SimulatedTerminal::Answer> answer(const QString& program, const QStringList& arguments)
{
    if (program == QLatin1String("bash") && arguments.size() == 2 && arguments.at(0) == QLatin1String("-c")) {
        // The system bundle comes from the recorded fixture (a table rule).
        if (arguments.at(1).endsWith(QLatin1String(" < /etc/ssl/certs/ca-certificates.crt")))
            return std::nullopt;
        return readingScript(arguments.at(1));
    }
    if (program == QLatin1String("openssl"))
        return openssl(arguments);
    if (program != QLatin1String("sudo") || arguments.isEmpty())
        return std::nullopt;
    const QString tool = arguments.at(0);
    if (tool == QLatin1String("openssl"))
        return openssl(arguments.mid(1));
    if (tool == QLatin1String("update-ca-certificates"))
        return SimulatedTerminal::finished(0, SimulatedTerminal::fixture(QStringLiteral("update-ca-certificates.txt")), SimulatedTerminal::fixture(QStringLiteral("update-ca-certificates-stderr.txt")));
    const bool certificateFile = arguments.size() >= 2 && arguments.last().startsWith(QLatin1String("/usr/local/share/ca-certificates/"));
    if (tool == QLatin1String("cp") && arguments.size() == 3 && certificateFile) {
        QFile::remove(local(arguments.at(2)));
        return QFile::copy(local(arguments.at(1)), local(arguments.at(2))) ? SimulatedTerminal::finished(0)
            : SimulatedTerminal::finished(1, {}, QStringLiteral("cp: cannot stat '%1': No such file or directory\n").arg(arguments.at(1)).toUtf8());
    }
    if (tool == QLatin1String("rm") && arguments.size() == 2 && certificateFile) {
        return QFile::remove(local(arguments.at(1))) ? SimulatedTerminal::finished(0)
            : SimulatedTerminal::finished(1, {}, QStringLiteral("rm: cannot remove '%1': No such file or directory\n").arg(arguments.at(1)).toUtf8());
    }
    return std::nullopt;
}

void seedSandbox()
{
    const QString localDir = SystemPaths::resolve(QStringLiteral("/usr/local/share/ca-certificates"));
    if (QDir(localDir).isEmpty())
        QFile::copy(QStringLiteral(":/simulation/certificates/norbix-demo-root.crt"), localDir + QStringLiteral("/norbix-demo-root.crt"));
    const QString drive = SystemPaths::resolve(QStringLiteral("/media/NORBIX-USB/certificates"));
    if (QFileInfo::exists(drive))
        return;
    QDir().mkpath(drive);
    // A PEM bundle under a .cer name, a DER file and a PKCS#12 file (password "s3cret").
    const std::pair<const char*, const char*> files[] = {
        {"corp.root.pem", "corp.root.cer"}, {"branch-office.der", "branch-office.der"}, {"client.pfx", "client.pfx"}};
    for (const auto& [fixtureName, name] : files)
        QFile::copy(QStringLiteral(":/simulation/certificates/") + QLatin1String(fixtureName), drive + QLatin1Char('/') + QLatin1String(name));
    for (const QString& file : QDir(drive).entryList(QDir::Files))
        QFile(drive + QLatin1Char('/') + file).setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
}

} // namespace SimulatedCertificates
