#pragma once

#include <QDateTime>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>

class QThread;

// Checks, before a connection is started, that its server can be reached: the name resolves,
// something answers on the port, and for the kinds that speak TLS the handshake completes. The
// check runs on a thread of its own and never touches what the connector does afterwards.
class ConnectionCheck : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)
    Q_PROPERTY(int step READ step NOTIFY progressChanged)
    Q_PROPERTY(QString stepText READ stepText NOTIFY progressChanged)
    Q_PROPERTY(int outcome READ outcome NOTIFY resultChanged)
    Q_PROPERTY(int failedStep READ failedStep NOTIFY resultChanged)
    Q_PROPERTY(QString failedStepText READ failedStepText NOTIFY resultChanged)
    Q_PROPERTY(QString message READ message NOTIFY resultChanged)
    Q_PROPERTY(QString certificateSubject READ certificateSubject NOTIFY resultChanged)
    Q_PROPERTY(QString certificateIssuer READ certificateIssuer NOTIFY resultChanged)
    Q_PROPERTY(QString certificateExpiry READ certificateExpiry NOTIFY resultChanged)
public:
    enum Step { NoStep = 0, AddressStep, ResolveStep, ConnectStep, HandshakeStep };
    Q_ENUM(Step)
    // Warning: the server answers, but something about it deserves the user's attention.
    enum Outcome { Pending = 0, Passed, Warning, Failed, Cancelled };
    Q_ENUM(Outcome)
    enum Problem {
        NoProblem = 0,
        EmptyAddress,
        AddressHasSpaces,
        SchemeNotAllowed,
        UnsupportedScheme,
        BadPort,
        BadHost,
        BadIpv6,
        UnsupportedKind,
        NameNotFound,
        Refused,
        NoAnswer,
        NetworkError,
        HandshakeFailed,
        CertificateExpired,
        CertificateNotYetValid,
        CertificateUntrusted,
    };
    Q_ENUM(Problem)

    // What the user typed, taken apart. `problem` is NoProblem when host and port are usable.
    struct Target {
        QString host;
        quint16 port = 0;
        bool tls = false;
        Problem problem = NoProblem;
        QString detail; // the offending part, for the message
    };

    struct Certificate {
        QString subject;
        QString issuer;
        QDateTime notBefore;
        QDateTime notAfter;
        bool selfSigned = false;
        bool trusted = false;
    };

    struct Report {
        Outcome outcome = Pending;
        Step failedStep = NoStep; // the step that failed or warned
        Problem problem = NoProblem;
        Target target;
        QString detail;
        bool hasCertificate = false;
        Certificate certificate;
    };

    // Addresses of a name; empty when it cannot be found. Runs on the check's thread. Unset, the
    // system's resolver answers.
    using Resolver = std::function<QList<QHostAddress>(const QString& host)>;

    explicit ConnectionCheck(QObject* parent = nullptr);
    ~ConnectionCheck() override;

    // The port a kind's client uses when the address names none (0: the kind cannot be checked).
    static quint16 defaultPort(int connectionType);
    static bool usesTls(int connectionType);
    static Target parseAddress(int connectionType, const QString& address);
    // The plain words shown to the user for a report, and the name of a step.
    static QString message(const Report& report);
    static QString stepName(Step step, quint16 port = 0);
    static QString formatDate(const QDateTime& when);
    // The certificate's verdict at `now`: expired, not yet valid, untrusted, or fine.
    static Problem certificateProblem(const Certificate& certificate, const QDateTime& now);
    // Runs every step in the calling thread. `cancelled` is polled between short waits. An empty
    // resolver means the system's.
    static Report probe(const Target& target, const Resolver& resolver, const std::atomic_bool& cancelled,
                        int timeoutMs, const std::function<void(Step)>& progress = {});
    // Name lookup through the system, given up as soon as `cancelled` is set; names under
    // ".invalid" never resolve (and are not asked).
    static QList<QHostAddress> systemResolve(const QString& host, const std::atomic_bool* cancelled = nullptr);

    // Starts a check of `address` for a connection of that kind; false (with the result set)
    // when the address is refused before anything runs.
    Q_INVOKABLE bool start(int connectionType, const QString& address);
    // The stored connection at this index of the catalogue.
    Q_INVOKABLE bool startIndex(int index);
    Q_INVOKABLE void cancel();

    void setResolver(Resolver resolver) { m_resolver = std::move(resolver); }
    void setTimeout(int ms) { m_timeoutMs = ms; }

    bool isRunning() const { return m_running; }
    int step() const { return m_step; }
    QString stepText() const { return stepName(m_step, m_report.target.port); }
    int outcome() const { return m_report.outcome; }
    int failedStep() const { return m_report.failedStep; }
    QString failedStepText() const { return stepName(m_report.failedStep, m_report.target.port); }
    QString message() const { return m_report.outcome == Pending ? QString() : message(m_report); }
    QString certificateSubject() const { return m_report.certificate.subject; }
    QString certificateIssuer() const { return m_report.certificate.issuer; }
    QString certificateExpiry() const
    {
        return m_report.hasCertificate ? formatDate(m_report.certificate.notAfter) : QString();
    }
    Report report() const { return m_report; }

signals:
    void runningChanged();
    void progressChanged();
    void resultChanged();
    void finished();

private:
    void setReport(const Report& report);
    void setRunning(bool running);
    void reap(const std::atomic_bool* run);

    struct Run {
        QThread* thread = nullptr;
        std::shared_ptr<std::atomic_bool> cancelled;
    };
    QList<Run> m_runs;
    quint64 m_generation = 0;
    Resolver m_resolver;
    int m_timeoutMs = 10000;
    bool m_running = false;
    Step m_step = NoStep;
    Report m_report;
};
