#include "CertificatesStorage.h"

#include "AtomicFile.h"
#include "CommandRunner.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

const QString kPemMarker = QStringLiteral("BEGIN CERTIFICATE");

// One command of an import: an argument list, or one command-line text (the server's variant).
struct Command {
    QString program;
    QStringList arguments;
    QString line;
};

Command sudo(const QStringList& arguments)
{
    return {QStringLiteral("sudo"), arguments, {}};
}

// The steps that turn a file into dest and rebuild the bundle. The server's variant converts a
// PKCS#12 file to its client certificate only and runs the conversions without sudo, with the
// password quoted so that one with blanks stays one argument.
QList<Command> importCommands(const QString& path, const QString& dest, const QString& password, bool isPem, bool fromServer)
{
    QList<Command> commands;
    if (path.endsWith(QLatin1String(".pfx"), Qt::CaseInsensitive)) {
        if (fromServer)
            commands << Command{{}, {}, QStringLiteral("openssl pkcs12 -passin pass:\"%1\" -in %2 -clcerts -nokeys -out %3").arg(password, path, dest)};
        else
            commands << sudo({"openssl", "pkcs12", "-passin", "pass:" + password, "-in", path, "-chain", "-nokeys", "-out", dest});
    } else if (isPem) {
        commands << sudo({"cp", path, dest});
    } else if (fromServer) {
        commands << Command{{}, {}, QStringLiteral("openssl x509 -inform der -in ") + path + QStringLiteral(" -out ") + dest};
    } else {
        commands << sudo({"openssl", "x509", "-inform", "der", "-in", path, "-out", dest});
    }
    commands << sudo({"update-ca-certificates"});
    return commands;
}

// Runs the steps in order; returns the error text of the first one that failed, empty when all
// succeeded. A tool that warns on stderr but exits 0 (openssl's "-chain option ignored",
// update-ca-certificates' rehash warning) has done its work: its text is only logged.
QString runImport(const QList<Command>& commands)
{
    for (const Command& command : commands) {
        const CommandResult result = command.line.isEmpty()
            ? CommandRunner::instance().run(command.program, command.arguments)
            : CommandRunner::instance().runCommandLine(command.line);
        const QString error = QString::fromLocal8Bit(result.standardError).trimmed();
        const QString output = QString::fromLocal8Bit(result.standardOutput).trimmed();
        if (!error.isEmpty())
            qWarning().noquote() << QStringLiteral("Add certificate error: ") + error;
        if (!output.isEmpty())
            qInfo().noquote() << QStringLiteral("Add certificate output: ") + output;
        if (!result.started || !result.finished || result.exitCode != 0) {
            if (!error.isEmpty())
                return error;
            const QString name = command.line.isEmpty() ? (QStringList(command.program) + command.arguments).join(QLatin1Char(' ')) : command.line;
            return result.started ? QStringLiteral("%1 failed with exit code %2").arg(name).arg(result.exitCode)
                                  : QStringLiteral("%1 could not be started").arg(name);
        }
    }
    return {};
}

QByteArray readWhole(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList localCertificateFiles()
{
    return QDir(SystemPaths::resolve(QLatin1String(CertificatesStorage::kLocalDir)))
        .entryList({QStringLiteral("*.crt")}, QDir::Files, QDir::Name);
}

QString valueAfter(const QString& line, int keyLength)
{
    return line.mid(keyLength).trimmed();
}

} // namespace

QString CertificatesStorage::destinationFor(const QString& path)
{
    return QLatin1String(kLocalDir) + QFileInfo(path).fileName().section(QLatin1Char('.'), 0, 0) + QStringLiteral(".crt");
}

QString CertificatesStorage::readingScript(const QString& options, const QString& file)
{
    return QStringLiteral("awk -v cmd='openssl x509 -noout %1' '/BEGIN/{close(cmd)};{print | cmd}' < %2").arg(options, file);
}

QList<CertificatesStorage::CertificateData> CertificatesStorage::parseListing(const QString& output, const QString& fileName)
{
    QList<CertificateData> certificates;
    bool haveDates = true; // no certificate open yet
    const QStringList lines = output.split(QLatin1Char('\n'));
    for (QString line : lines) {
        line = line.trimmed();
        if (line.startsWith(QLatin1String("subject="))) {
            if (!haveDates && !certificates.isEmpty())
                continue; // the second copy of the open certificate's subject
            certificates.append({displayName(valueAfter(line, 8)), {}, {}, fileName});
            haveDates = false;
        } else if (certificates.isEmpty()) {
            continue;
        } else if (line.startsWith(QLatin1String("notBefore="))) {
            certificates.last().notBefore = valueAfter(line, 10);
            haveDates = true;
        } else if (line.startsWith(QLatin1String("notAfter="))) {
            certificates.last().notAfter = valueAfter(line, 9);
            haveDates = true;
        }
    }
    return certificates;
}

// openssl prints "C = GB, O = \"Example, Ltd\", CN = Root"; values with separators are quoted
// (older releases escape them with a backslash instead).
QString CertificatesStorage::displayName(const QString& subject)
{
    QStringList parts;
    QString current;
    bool quoted = false;
    for (int i = 0; i < subject.size(); ++i) {
        const QChar c = subject.at(i);
        if (c == QLatin1Char('\\') && i + 1 < subject.size()) {
            current += subject.at(++i);
        } else if (c == QLatin1Char('"')) {
            quoted = !quoted;
        } else if ((c == QLatin1Char(',') || c == QLatin1Char('/')) && !quoted) {
            parts << current;
            current.clear();
        } else {
            current += c;
        }
    }
    parts << current;
    for (const QString& part : qAsConst(parts)) {
        const int equals = part.indexOf(QLatin1Char('='));
        if (equals > 0 && part.left(equals).trimmed() == QLatin1String("CN")) {
            const QString name = part.mid(equals + 1).trimmed();
            if (!name.isEmpty())
                return name;
        }
    }
    return subject.trimmed();
}

QList<CertificatesStorage::CertificateData> CertificatesStorage::readFile(const QString& options, const QString& file, const QString& fileName)
{
    const CommandResult result = CommandRunner::instance().run(QStringLiteral("bash"), {QStringLiteral("-c"), readingScript(options, file)});
    return parseListing(QString::fromLocal8Bit(result.standardOutput), fileName);
}

QList<CertificatesStorage::CertificateData> CertificatesStorage::listCertificates(bool showAll)
{
    static const QString options = QStringLiteral("-subject -startdate -enddate");
    QList<CertificateData> certificates;
    if (showAll)
        certificates << readFile(options, QLatin1String(kSystemBundle), QString());
    for (const QString& name : localCertificateFiles())
        certificates << readFile(options, QLatin1String(kLocalDir) + name, name);
    return certificates;
}

QJsonArray CertificatesStorage::getCertificatesInfo()
{
    static const QString options = QStringLiteral("-subject -subject -startdate -enddate");
    QJsonArray info;
    for (const QString& name : localCertificateFiles()) {
        const QList<CertificateData> read = readFile(options, QLatin1String(kLocalDir) + name, name);
        if (read.isEmpty()) {
            qWarning().noquote() << "Failed to retreive certificate" << name;
            continue;
        }
        info.append(QJsonObject{{QStringLiteral("File"), name},
                                {QStringLiteral("Title"), read.first().name},
                                {QStringLiteral("NotBefore"), read.first().notBefore},
                                {QStringLiteral("NotAfter"), read.first().notAfter}});
    }
    return info;
}

void CertificatesStorage::addCertificate(const QString& path, const QString& password)
{
    qInfo().noquote() << QStringLiteral("Add certificate ") + path;
    if (QFileInfo(path).fileName().section(QLatin1Char('.'), 0, 0).isEmpty()) {
        emit certFailed(tr("The file name %1 has no name before its extension.").arg(QFileInfo(path).fileName()));
        return;
    }
    const bool isPem = readWhole(path).contains(kPemMarker.toLatin1());
    const QString error = runImport(importCommands(path, destinationFor(path), password, isPem, false));
    if (error.isEmpty())
        emit certOk();
    else
        emit certFailed(error);
}

QString CertificatesStorage::addCertificateFromServer(const QString& name, const QString& cert, const QString& password)
{
    // The name ends up in a command-line text: only characters that cannot split or quote it.
    QString fileName = QFileInfo(name).fileName();
    static const QRegularExpression unsafe(QStringLiteral("[^A-Za-z0-9._-]"));
    fileName.replace(unsafe, QStringLiteral("_"));
    if (fileName.section(QLatin1Char('.'), 0, 0).isEmpty() || cert.isEmpty()) {
        qWarning().noquote() << "Received certificate without a usable name or content" << name;
        return QStringLiteral("error");
    }
    QByteArray content = cert.toUtf8();
    if (!content.contains("-----BEGIN")) {
        const auto decoded = QByteArray::fromBase64Encoding(content, QByteArray::AbortOnBase64DecodingErrors);
        if (!decoded || decoded.decoded.isEmpty()) {
            qWarning().noquote() << "Received certificate is neither PEM nor Base64" << name;
            return QStringLiteral("error");
        }
        content = decoded.decoded;
    }
    const QString path = QLatin1String(kReceivedDir) + fileName;
    const QString localPath = SystemPaths::resolve(path);
    QDir().mkpath(QFileInfo(localPath).absolutePath());
    if (!AtomicFile::write(localPath, content))
        return QStringLiteral("error");
    qInfo().noquote() << QStringLiteral("Add certificate ") + path;
    const QString error = runImport(importCommands(path, destinationFor(path), password, content.contains(kPemMarker.toLatin1()), true));
    // The received file may hold a private key: it does not stay on the terminal.
    QFile::remove(localPath);
    return error.isEmpty() ? QStringLiteral("ok") : QStringLiteral("error");
}

void CertificatesStorage::removeCertificate(const QString& fileName)
{
    qInfo().noquote() << QStringLiteral("Removing certificate ") + fileName;
    // Only a file of the local directory itself: the name may come from the management server.
    if (fileName.isEmpty() || fileName.contains(QLatin1Char('/')) || fileName == QLatin1String("..") || fileName == QLatin1String(".")) {
        qWarning().noquote() << "Refusing to remove certificate" << fileName;
        return;
    }
    CommandRunner::instance().run(QStringLiteral("sudo"), {QStringLiteral("rm"), QLatin1String(kLocalDir) + fileName});
    CommandRunner::instance().run(QStringLiteral("sudo"), {QStringLiteral("update-ca-certificates")});
}

void CertificatesStorage::cleanCertificates()
{
    qInfo() << "Removing all certificates";
    for (const QString& name : localCertificateFiles())
        CommandRunner::instance().run(QStringLiteral("sudo"), {QStringLiteral("rm"), QLatin1String(kLocalDir) + name});
    CommandRunner::instance().run(QStringLiteral("sudo"), {QStringLiteral("update-ca-certificates")});
}

QStringList CertificatesStorage::listAvailableCertificates()
{
    QStringList files;
    QDirIterator it(SystemPaths::resolve(QStringLiteral("/media")),
                    {QStringLiteral("*.crt"), QStringLiteral("*.cer"), QStringLiteral("*.pfx"), QStringLiteral("*.der")},
                    QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    files.sort();
    return files;
}

bool CertificatesStorage::needsPassword(const QString& path) const
{
    return path.endsWith(QLatin1String(".pfx"), Qt::CaseInsensitive);
}
