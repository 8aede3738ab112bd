#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

#include <optional>

class QNetworkAccessManager;
class QNetworkReply;

// Client of the terminal's local update service (HTTP on 127.0.0.1:12547). Every answer is
// checked before use: a service that is down, slow or sends something else than the expected
// JSON ends in serviceError(), never in a half-filled result.
class LocalUpdaterBackend : public QObject {
    Q_OBJECT
public:
    struct Status {
        QString state;   // "idle", "checking", "downloading", "installing", "done", "failed"
        int progress = 0; // 0..100
        QString version; // installed shell version
        QString message;
    };
    struct Version {
        QString type;
        QString version;
        bool system = false;
        QString notes;
        QVariantMap toMap() const;
    };

    static constexpr const char* kServiceUrl = "http://127.0.0.1:12547/";
    static constexpr int kTimeoutMs = 5000;

    explicit LocalUpdaterBackend(QObject* parent = nullptr);

    void setBaseUrl(const QUrl& url) { m_baseUrl = url; }
    QUrl baseUrl() const { return m_baseUrl; }

    void requestStatus();
    void requestAvailable();
    void startUpgrade(const QString& type, const QString& version, bool system);
    // Update packages (*.deb) on removable media.
    Q_INVOKABLE QStringList listPackages() const;
    Q_INVOKABLE void installFromFile(const QString& path);
    Q_INVOKABLE void factoryReset();

    // --- the service's answers, checked -------------------------------------------------------
    static std::optional<Status> parseStatus(const QByteArray& body);
    static std::optional<QList<Version>> parseAvailable(const QByteArray& body);
    // An answer to a command: nullopt when unreadable, else the error text (empty when accepted).
    static std::optional<QString> parseCommandAnswer(const QByteArray& body);

signals:
    void statusReady(const LocalUpdaterBackend::Status& status);
    void availableReady(const QList<LocalUpdaterBackend::Version>& versions);
    // path is the service path ("upgrade/", "upgrade/local/", "factory/reset").
    void commandFinished(QString path, bool ok, QString message);
    // path failed: the service is down, timed out, or answered something unreadable.
    void serviceError(QString path, QString message);

private:
    QNetworkReply* get(const QString& path);
    void post(const QString& path, const QVariantMap& body);
    // The reply's body, or nullopt after serviceError() was emitted.
    std::optional<QByteArray> bodyOf(QNetworkReply* reply, const QString& path);
    QNetworkAccessManager* network();

    QUrl m_baseUrl;
    QNetworkAccessManager* m_network = nullptr;
};

Q_DECLARE_METATYPE(LocalUpdaterBackend::Status)
Q_DECLARE_METATYPE(LocalUpdaterBackend::Version)
