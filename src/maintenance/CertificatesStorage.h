#pragma once

#include "CertificatesModel.h"

#include <QJsonArray>
#include <QObject>
#include <QStringList>

// Extra certificate authorities of the terminal: imported files become PEM ".crt" files in the
// local CA directory and the system trust bundle is rebuilt after every change.
class CertificatesStorage : public QObject {
    Q_OBJECT
public:
    using CertificateData = CertificatesModel::CertificateData;

    static constexpr const char* kLocalDir = "/usr/local/share/ca-certificates/";
    static constexpr const char* kSystemBundle = "/etc/ssl/certs/ca-certificates.crt";
    // Where a certificate received from the management server is put down before it is installed.
    static constexpr const char* kReceivedDir = "/data/norbix/certificates/";

    using QObject::QObject;

    // A file picked on removable media; ends with certOk() or certFailed(the tool's error text).
    Q_INVOKABLE void addCertificate(const QString& path, const QString& password);
    // Files under /media that can be imported (*.crt, *.cer, *.pfx, *.der).
    Q_INVOKABLE QStringList listAvailableCertificates();
    // Whether importing the file needs a password (PKCS#12 bundles).
    Q_INVOKABLE bool needsPassword(const QString& path) const;

    // A certificate pushed by the management server: cert is the file's content (PEM text or
    // Base64 of the file). Returns "ok", or "error" when a step failed.
    static QString addCertificateFromServer(const QString& name, const QString& cert, const QString& password);
    static void removeCertificate(const QString& fileName);
    static void cleanCertificates();
    static QList<CertificateData> listCertificates(bool showAll);
    // {"File", "Title", "NotBefore", "NotAfter"} per installed file, for the management server.
    static QJsonArray getCertificatesInfo();

    // --- pure helpers -------------------------------------------------------------------------
    // "/usr/local/share/ca-certificates/" + the file's name up to its first "." + ".crt".
    static QString destinationFor(const QString& path);
    // The shell script that prints the given openssl x509 options for every certificate of a file.
    static QString readingScript(const QString& options, const QString& file);
    // The subject, start and end lines of openssl, three per certificate; a repeated subject line
    // before the dates is a second copy of the same subject.
    static QList<CertificateData> parseListing(const QString& output, const QString& fileName = QString());
    // What the screen shows of an openssl subject: its common name, else the whole subject.
    static QString displayName(const QString& subject);

signals:
    void certOk();
    void certFailed(QString text);

private:
    static QList<CertificateData> readFile(const QString& options, const QString& file, const QString& fileName);
};
