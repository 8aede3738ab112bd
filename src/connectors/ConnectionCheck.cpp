#include "ConnectionCheck.h"

#include "Connection.h"
#include "ConnectionStore.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <QHostInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSslCertificate>
#include <QSslSocket>
#include <QTcpSocket>
#include <QThread>
#include <QUrl>

Q_LOGGING_CATEGORY(lcCheck, "norbix.connectors.check")

namespace {

constexpr int kSliceMs = 50; // how long a wait runs before it looks at the cancel flag again

bool validHostName(const QString& host)
{
    if (host.isEmpty() || host.size() > 253)
        return false;
    static const QRegularExpression label(QStringLiteral("^[A-Za-z0-9_]([A-Za-z0-9_-]{0,61}[A-Za-z0-9_])?$"));
    const QStringList labels = host.endsWith(QLatin1Char('.')) ? host.chopped(1).split(QLatin1Char('.'))
                                                                 : host.split(QLatin1Char('.'));
    for (const QString& part : labels) {
        if (!label.match(part).hasMatch())
            return false;
    }
    // All digits and dots: meant as an IPv4 address, so it has to be one, in four parts (the
    // resolver would take "10.0.5" as 10.0.0.5, which nobody means).
    static const QRegularExpression numeric(QStringLiteral("^[0-9.]+$"));
    if (numeric.match(host).hasMatch())
        return labels.size() == 4 && QHostAddress(host).protocol() == QAbstractSocket::IPv4Protocol;
    return true;
}

ConnectionCheck::Target refuse(ConnectionCheck::Problem problem, const QString& detail = {})
{
    ConnectionCheck::Target target;
    target.problem = problem;
    target.detail = detail;
    return target;
}

// "host", "host:port", "[v6]", "[v6]:port" or a bare IPv6 literal (which cannot carry a port).
ConnectionCheck::Target splitHostPort(const QString& text, quint16 defaultPort)
{
    ConnectionCheck::Target target;
    QString host = text;
    QString port;
    if (text.startsWith(QLatin1Char('['))) {
        const int close = text.indexOf(QLatin1Char(']'));
        if (close < 0)
            return refuse(ConnectionCheck::BadIpv6, text);
        host = text.mid(1, close - 1);
        const QString rest = text.mid(close + 1);
        if (!rest.isEmpty()) {
            if (!rest.startsWith(QLatin1Char(':')))
                return refuse(ConnectionCheck::BadIpv6, text);
            port = rest.mid(1);
            if (port.isEmpty())
                return refuse(ConnectionCheck::BadPort, port);
        }
        if (QHostAddress(host).protocol() != QAbstractSocket::IPv6Protocol)
            return refuse(ConnectionCheck::BadIpv6, text);
    } else if (text.count(QLatin1Char(':')) > 1) {
        if (QHostAddress(text).protocol() != QAbstractSocket::IPv6Protocol)
            return refuse(ConnectionCheck::BadIpv6, text);
    } else if (text.contains(QLatin1Char(':'))) {
        host = text.section(QLatin1Char(':'), 0, 0);
        port = text.section(QLatin1Char(':'), 1);
        if (port.isEmpty())
            return refuse(ConnectionCheck::BadPort, port);
        if (!validHostName(host))
            return refuse(ConnectionCheck::BadHost, host);
    } else if (!validHostName(host)) {
        return refuse(ConnectionCheck::BadHost, host);
    }
    target.host = host;
    target.port = defaultPort;
    if (!port.isNull()) {
        static const QRegularExpression digits(QStringLiteral("^[0-9]{1,5}$"));
        const int value = digits.match(port).hasMatch() ? port.toInt() : 0;
        if (value < 1 || value > 65535)
            return refuse(ConnectionCheck::BadPort, port);
        target.port = quint16(value);
    }
    return target;
}

QString certificateText(const QStringList& parts)
{
    return parts.join(QStringLiteral(", "));
}

ConnectionCheck::Certificate describe(const QSslCertificate& cert, const QList<QSslCertificate>& chain,
                                      const QString& host)
{
    ConnectionCheck::Certificate out;
    QStringList subject = cert.subjectInfo(QSslCertificate::CommonName);
    if (subject.isEmpty())
        subject = cert.subjectInfo(QSslCertificate::Organization);
    QStringList issuer = cert.issuerInfo(QSslCertificate::CommonName);
    if (issuer.isEmpty())
        issuer = cert.issuerInfo(QSslCertificate::Organization);
    out.subject = certificateText(subject);
    out.issuer = certificateText(issuer);
    out.notBefore = cert.effectiveDate().toUTC();
    out.notAfter = cert.expiryDate().toUTC();
    out.selfSigned = cert.isSelfSigned();
    // Trust as the system sees it; a name mismatch alone does not make the issuer untrusted.
    const QList<QSslError> errors = QSslCertificate::verify(chain.isEmpty() ? QList<QSslCertificate>{cert} : chain);
    out.trusted = true;
    for (const QSslError& error : errors) {
        if (error.error() != QSslError::CertificateExpired && error.error() != QSslError::CertificateNotYetValid)
            out.trusted = false;
    }
    Q_UNUSED(host)
    return out;
}

} // namespace

ConnectionCheck::ConnectionCheck(QObject* parent) : QObject(parent) {}

ConnectionCheck::~ConnectionCheck()
{
    for (const Run& run : qAsConst(m_runs)) {
        *run.cancelled = true;
        run.thread->wait();
        delete run.thread;
    }
}

quint16 ConnectionCheck::defaultPort(int connectionType)
{
    switch (connectionType) {
    case RDP:
        return 3389;
    case VNC:
        return 5900;
    case VMWare:
    case Citrix:
        return 443;
    case Putty:
        return 22;
    default:
        return 0;
    }
}

bool ConnectionCheck::usesTls(int connectionType)
{
    return connectionType == RDP || connectionType == VMWare || connectionType == Citrix;
}

ConnectionCheck::Target ConnectionCheck::parseAddress(int connectionType, const QString& address)
{
    const quint16 port = defaultPort(connectionType);
    if (port == 0)
        return refuse(UnsupportedKind);
    QString text = address.trimmed();
    if (text.isEmpty())
        return refuse(EmptyAddress);
    if (text.contains(QRegularExpression(QStringLiteral("\\s"))))
        return refuse(AddressHasSpaces, text);
    bool tls = usesTls(connectionType);
    quint16 schemePort = port;
    const bool web = connectionType == VMWare || connectionType == Citrix;
    static const QRegularExpression scheme(QStringLiteral("^([A-Za-z][A-Za-z0-9+.-]*)://"));
    const QRegularExpressionMatch match = scheme.match(text);
    if (match.hasMatch()) {
        const QString name = match.captured(1).toLower();
        if (!web)
            return refuse(SchemeNotAllowed, match.captured(0));
        if (name == QLatin1String("http")) {
            schemePort = 80;
            tls = false;
        } else if (name != QLatin1String("https")) {
            return refuse(UnsupportedScheme, match.captured(0));
        }
        text = text.mid(match.capturedLength());
    }
    if (web) {
        // A store or server URL: the path and query do not matter for reaching the server.
        const int end = text.indexOf(QRegularExpression(QStringLiteral("[/?#]")));
        if (end >= 0)
            text = text.left(end);
    }
    if (text.contains(QLatin1Char('@')) || text.contains(QLatin1Char('/')))
        return refuse(BadHost, text);
    if (text.isEmpty())
        return refuse(EmptyAddress);
    Target target = splitHostPort(text, schemePort);
    target.tls = tls;
    return target;
}

QString ConnectionCheck::formatDate(const QDateTime& when)
{
    return QLocale().toString(when.toUTC().date(), QStringLiteral("d MMMM yyyy"));
}

QString ConnectionCheck::stepName(Step step, quint16 port)
{
    switch (step) {
    case AddressStep:
        return tr("Reading the address");
    case ResolveStep:
        return tr("Finding the server");
    case ConnectStep:
        return tr("Connecting to port %1").arg(port);
    case HandshakeStep:
        return tr("Secure handshake");
    case NoStep:
        break;
    }
    return QString();
}

ConnectionCheck::Problem ConnectionCheck::certificateProblem(const Certificate& certificate, const QDateTime& now)
{
    if (certificate.notAfter.isValid() && certificate.notAfter < now)
        return CertificateExpired;
    if (certificate.notBefore.isValid() && certificate.notBefore > now)
        return CertificateNotYetValid;
    if (!certificate.trusted)
        return CertificateUntrusted;
    return NoProblem;
}

QString ConnectionCheck::message(const Report& report)
{
    const Target& t = report.target;
    const QString port = QString::number(t.port);
    switch (report.problem) {
    case EmptyAddress:
        return tr("Enter the server's address first");
    case AddressHasSpaces:
        return tr("The address must not contain spaces");
    case SchemeNotAllowed:
        return tr("Enter the server's name or address without \"%1\" in front").arg(t.detail);
    case UnsupportedScheme:
        return tr("Only https:// and http:// addresses can be checked, not \"%1\"").arg(t.detail);
    case BadPort:
        return tr("The port must be a number from 1 to 65535");
    case BadHost:
        return tr("\"%1\" is not a valid server name or address").arg(t.detail);
    case BadIpv6:
        return tr("\"%1\" is not a valid IPv6 address; write it in brackets to add a port, like [2001:db8::1]:3389")
                .arg(t.detail);
    case UnsupportedKind:
        return tr("This kind of connection cannot be checked");
    case NameNotFound:
        return tr("The server name cannot be found");
    case Refused:
        return tr("Nothing answers on port %1").arg(port);
    case NoAnswer:
        return tr("The server does not answer on port %1").arg(port);
    case NetworkError:
        return tr("The server cannot be reached: %1").arg(report.detail);
    case HandshakeFailed:
        return tr("The server answers on port %1 but the secure handshake failed: %2").arg(port, report.detail);
    case CertificateExpired:
        return tr("The server answers but its certificate expired on %1").arg(formatDate(report.certificate.notAfter));
    case CertificateNotYetValid:
        return tr("The server answers but its certificate is only valid from %1").arg(formatDate(report.certificate.notBefore));
    case CertificateUntrusted:
        return report.certificate.selfSigned
                ? tr("The server answers but its certificate is self-signed and not trusted by this terminal")
                : tr("The server answers but its certificate is not trusted by this terminal");
    case NoProblem:
        break;
    }
    if (report.outcome == Cancelled)
        return tr("The check was cancelled");
    if (report.hasCertificate)
        return tr("The server answers and its certificate is valid until %1").arg(formatDate(report.certificate.notAfter));
    return tr("The server answers on port %1").arg(port);
}

QList<QHostAddress> ConnectionCheck::systemResolve(const QString& host, const std::atomic_bool* cancelled)
{
    if (host.endsWith(QLatin1String(".invalid"), Qt::CaseInsensitive)
        || host.endsWith(QLatin1String(".invalid."), Qt::CaseInsensitive)
        || host.compare(QLatin1String("invalid"), Qt::CaseInsensitive) == 0)
        return {};
    if (cancelled && *cancelled)
        return {};
    // Asked in the background and waited for in slices, so that a cancel (or a dialog that goes
    // away) does not have to sit out a resolver that takes its time.
    QEventLoop loop;
    QObject receiver;
    QList<QHostAddress> found;
    bool done = false;
    const int id = QHostInfo::lookupHost(host, &receiver, [&](const QHostInfo& info) {
        if (info.error() == QHostInfo::NoError)
            found = info.addresses();
        done = true;
        loop.quit();
    });
    QTimer poll;
    poll.setInterval(kSliceMs);
    QObject::connect(&poll, &QTimer::timeout, &loop, [&]() {
        if (cancelled && *cancelled)
            loop.quit();
    });
    poll.start();
    if (!done)
        loop.exec();
    if (!done)
        QHostInfo::abortHostLookup(id);
    return found;
}

namespace {

// Waits for the socket in short slices so that a cancel is seen quickly. False on cancel,
// failure or the deadline.
template <typename Wait>
bool waitSliced(Wait wait, const std::atomic_bool& cancelled, QDeadlineTimer deadline, bool* timedOut)
{
    *timedOut = false;
    while (!cancelled) {
        if (wait(int(qMin<qint64>(kSliceMs, qMax<qint64>(1, deadline.remainingTime())))))
            return true;
        if (deadline.hasExpired()) {
            *timedOut = true;
            return false;
        }
    }
    return false;
}

} // namespace

ConnectionCheck::Report ConnectionCheck::probe(const Target& target, const Resolver& resolver,
                                               const std::atomic_bool& cancelled, int timeoutMs,
                                               const std::function<void(Step)>& progress)
{
    Report report;
    report.target = target;
    auto fail = [&report](Step step, Problem problem, const QString& detail = {}) {
        report.outcome = Failed;
        report.failedStep = step;
        report.problem = problem;
        report.detail = detail;
        return report;
    };
    auto cancel = [&report]() {
        report.outcome = Cancelled;
        return report;
    };
    if (target.problem != NoProblem) {
        report.target.port = target.port;
        return fail(AddressStep, target.problem);
    }

    if (progress)
        progress(ResolveStep);
    QList<QHostAddress> addresses;
    const QHostAddress literal(target.host);
    if (!literal.isNull())
        addresses = {literal};
    else
        addresses = resolver ? resolver(target.host) : systemResolve(target.host, &cancelled);
    if (cancelled)
        return cancel();
    if (addresses.isEmpty())
        return fail(ResolveStep, NameNotFound);

    if (progress)
        progress(ConnectStep);
    // Each address in turn, as a client would; the last one's failure is the one reported.
    std::unique_ptr<QTcpSocket> socket;
    Problem lastProblem = NoProblem;
    QString lastDetail;
    for (const QHostAddress& address : qAsConst(addresses)) {
        socket.reset(target.tls ? new QSslSocket : new QTcpSocket);
        socket->connectToHost(address, target.port);
        bool timedOut = false;
        const QDeadlineTimer deadline(timeoutMs);
        QTcpSocket* s = socket.get();
        if (waitSliced([s](int ms) { return s->waitForConnected(ms) || s->state() == QAbstractSocket::UnconnectedState; },
                       cancelled, deadline, &timedOut)
            && socket->state() == QAbstractSocket::ConnectedState) {
            lastProblem = NoProblem;
            break;
        }
        if (cancelled)
            return cancel();
        if (timedOut) {
            lastProblem = NoAnswer;
        } else if (socket->error() == QAbstractSocket::ConnectionRefusedError) {
            lastProblem = Refused;
        } else {
            lastProblem = NetworkError;
            lastDetail = socket->errorString();
        }
        socket->abort();
    }
    if (lastProblem != NoProblem)
        return fail(ConnectStep, lastProblem, lastDetail);
    if (!target.tls) {
        report.outcome = Passed;
        return report;
    }

    if (progress)
        progress(HandshakeStep);
    auto* ssl = static_cast<QSslSocket*>(socket.get());
    // Look at whatever the server presents: the verdict is ours to word, not a reason to stop.
    ssl->setPeerVerifyMode(QSslSocket::QueryPeer);
    ssl->setPeerVerifyName(target.host);
    ssl->startClientEncryption();
    bool timedOut = false;
    const bool encrypted = waitSliced(
            [ssl](int ms) { return ssl->waitForEncrypted(ms) || ssl->state() == QAbstractSocket::UnconnectedState; },
            cancelled, QDeadlineTimer(timeoutMs), &timedOut);
    if (cancelled)
        return cancel();
    if (!encrypted || !ssl->isEncrypted()) {
        QString detail = timedOut ? tr("no answer") : ssl->errorString();
        return fail(HandshakeStep, HandshakeFailed, detail);
    }
    report.hasCertificate = !ssl->peerCertificate().isNull();
    if (report.hasCertificate) {
        report.certificate = describe(ssl->peerCertificate(), ssl->peerCertificateChain(), target.host);
        const Problem problem = certificateProblem(report.certificate, QDateTime::currentDateTimeUtc());
        if (problem != NoProblem) {
            report.outcome = Warning;
            report.failedStep = HandshakeStep;
            report.problem = problem;
            ssl->abort();
            return report;
        }
    }
    ssl->abort();
    report.outcome = Passed;
    return report;
}

bool ConnectionCheck::startIndex(int index)
{
    const QJsonArray records = ConnectionStore::readArray();
    if (index < 0 || index >= records.size()) {
        Report report;
        report.outcome = Failed;
        report.failedStep = AddressStep;
        report.problem = EmptyAddress;
        setReport(report);
        return false;
    }
    const Connection record(records.at(index).toObject());
    return start(record.getTypeValue(), record.getAddress());
}

bool ConnectionCheck::start(int connectionType, const QString& address)
{
    cancel();
    const Target target = parseAddress(connectionType, address);
    const quint64 generation = ++m_generation;
    if (target.problem != NoProblem) {
        std::atomic_bool never{false};
        setReport(probe(target, {}, never, 0));
        qCInfo(lcCheck) << "Connection check refused the address" << address;
        return false;
    }
    Report pending;
    pending.target = target;
    setReport(pending);
    m_step = AddressStep;
    emit progressChanged();
    setRunning(true);

    auto flag = std::make_shared<std::atomic_bool>(false);
    const Resolver resolver = m_resolver;
    const int timeoutMs = m_timeoutMs;
    QThread* thread = QThread::create([this, target, resolver, flag, timeoutMs, generation]() {
        const Report report = probe(target, resolver, *flag, timeoutMs, [this, generation](Step step) {
            QMetaObject::invokeMethod(this, [this, step, generation]() {
                if (generation != m_generation)
                    return;
                m_step = step;
                emit progressChanged();
            }, Qt::QueuedConnection);
        });
        QMetaObject::invokeMethod(this, [this, report, generation, flag]() {
            reap(flag.get());
            if (generation != m_generation)
                return;
            setReport(report);
            m_step = NoStep;
            emit progressChanged();
            setRunning(false);
            emit finished();
        }, Qt::QueuedConnection);
    });
    m_runs.append({thread, flag});
    qCInfo(lcCheck).noquote() << "Checking" << target.host << "port" << target.port << (target.tls ? "with TLS" : "");
    thread->start();
    return true;
}

void ConnectionCheck::cancel()
{
    if (!m_running)
        return;
    for (const Run& run : qAsConst(m_runs))
        *run.cancelled = true;
    // The user is answered at once; a lookup that cannot be interrupted ends in the background.
    ++m_generation;
    Report report = m_report;
    report.outcome = Cancelled;
    report.failedStep = NoStep;
    report.problem = NoProblem;
    setReport(report);
    m_step = NoStep;
    emit progressChanged();
    setRunning(false);
    emit finished();
}

void ConnectionCheck::reap(const std::atomic_bool* run)
{
    // The run has handed over its report: its thread is returning, so the wait is short.
    for (int i = m_runs.size() - 1; i >= 0; --i) {
        if (m_runs.at(i).cancelled.get() == run) {
            m_runs.at(i).thread->wait();
            delete m_runs.at(i).thread;
            m_runs.removeAt(i);
        }
    }
}

void ConnectionCheck::setReport(const Report& report)
{
    m_report = report;
    emit resultChanged();
}

void ConnectionCheck::setRunning(bool running)
{
    if (m_running == running)
        return;
    m_running = running;
    emit runningChanged();
}
