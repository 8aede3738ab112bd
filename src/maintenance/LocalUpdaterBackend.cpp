#include "LocalUpdaterBackend.h"

#include "JsonText.h"
#include "SystemPaths.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace {

std::optional<QJsonDocument> jsonOf(const QByteArray& body)
{
    QJsonParseError error{};
    const QJsonDocument document = JsonText::parse(body, &error);
    if (error.error != QJsonParseError::NoError)
        return std::nullopt;
    return document;
}

// A string member, or nullopt when it is there with another type.
std::optional<QString> optionalString(const QJsonObject& object, const char* key)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (value.isUndefined() || value.isNull())
        return QString();
    if (!value.isString())
        return std::nullopt;
    return value.toString();
}

} // namespace

QVariantMap LocalUpdaterBackend::Version::toMap() const
{
    return {{QStringLiteral("type"), type}, {QStringLiteral("version"), version}, {QStringLiteral("system"), system}, {QStringLiteral("notes"), notes}};
}

LocalUpdaterBackend::LocalUpdaterBackend(QObject* parent) : QObject(parent), m_baseUrl(QString::fromLatin1(kServiceUrl))
{
    qRegisterMetaType<LocalUpdaterBackend::Status>();
    qRegisterMetaType<QList<LocalUpdaterBackend::Version>>();
}

std::optional<LocalUpdaterBackend::Status> LocalUpdaterBackend::parseStatus(const QByteArray& body)
{
    const auto document = jsonOf(body);
    if (!document || !document->isObject())
        return std::nullopt;
    const QJsonObject object = document->object();
    const QJsonValue state = object.value(QLatin1String("state"));
    if (!state.isString() || state.toString().isEmpty())
        return std::nullopt;
    Status status;
    status.state = state.toString();
    const QJsonValue progress = object.value(QLatin1String("progress"));
    if (progress.isDouble())
        status.progress = qRound(qBound(0.0, progress.toDouble(), 100.0)); // bounded first: huge numbers fit no int
    else if (!progress.isUndefined() && !progress.isNull())
        return std::nullopt;
    const auto version = optionalString(object, "version");
    const auto message = optionalString(object, "message");
    if (!version || !message)
        return std::nullopt;
    status.version = *version;
    status.message = *message;
    return status;
}

std::optional<QList<LocalUpdaterBackend::Version>> LocalUpdaterBackend::parseAvailable(const QByteArray& body)
{
    const auto document = jsonOf(body);
    if (!document)
        return std::nullopt;
    QJsonArray entries;
    if (document->isArray())
        entries = document->array();
    else if (document->isObject() && document->object().value(QLatin1String("versions")).isArray())
        entries = document->object().value(QLatin1String("versions")).toArray();
    else
        return std::nullopt;

    QList<Version> versions;
    for (const QJsonValue& entry : qAsConst(entries)) {
        const QJsonObject object = entry.toObject();
        const QJsonValue version = object.value(QLatin1String("version"));
        const auto type = optionalString(object, "type");
        const auto notes = optionalString(object, "notes");
        const QJsonValue system = object.value(QLatin1String("system"));
        // One bad entry spoils only itself: the others can still be installed.
        if (!version.isString() || version.toString().isEmpty() || !type || !notes
            || !(system.isUndefined() || system.isNull() || system.isBool()))
            continue;
        versions.append({type->isEmpty() ? QStringLiteral("app") : *type, version.toString(), system.toBool(false), *notes});
    }
    return versions;
}

std::optional<QString> LocalUpdaterBackend::parseCommandAnswer(const QByteArray& body)
{
    if (body.trimmed().isEmpty())
        return QString(); // accepted without a body
    const auto document = jsonOf(body);
    if (!document || !document->isObject())
        return std::nullopt;
    const QJsonObject object = document->object();
    const QJsonValue status = object.value(QLatin1String("status"));
    if (!status.isString())
        return std::nullopt;
    if (status.toString() == QLatin1String("ok"))
        return QString();
    const QString message = object.value(QLatin1String("message")).toString();
    return message.isEmpty() ? status.toString() : message;
}

QNetworkAccessManager* LocalUpdaterBackend::network()
{
    // Made on first use: the updater exists before the application object does.
    if (!m_network)
        m_network = new QNetworkAccessManager(this);
    return m_network;
}

QNetworkReply* LocalUpdaterBackend::get(const QString& path)
{
    QNetworkRequest request(m_baseUrl.resolved(QUrl(path)));
    request.setTransferTimeout(kTimeoutMs);
    return network()->get(request);
}

void LocalUpdaterBackend::post(const QString& path, const QVariantMap& body)
{
    QNetworkRequest request(m_baseUrl.resolved(QUrl(path)));
    request.setTransferTimeout(kTimeoutMs);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    QNetworkReply* reply = network()->post(request, QJsonDocument(QJsonObject::fromVariantMap(body)).toJson(QJsonDocument::Compact));
    connect(reply, &QNetworkReply::finished, this, [this, reply, path] {
        const auto body = bodyOf(reply, path);
        if (!body)
            return;
        const auto answer = parseCommandAnswer(*body);
        if (!answer)
            emit serviceError(path, tr("The update service sent an answer that cannot be read."));
        else
            emit commandFinished(path, answer->isEmpty(), *answer);
    });
}

std::optional<QByteArray> LocalUpdaterBackend::bodyOf(QNetworkReply* reply, const QString& path)
{
    reply->deleteLater();
    const QByteArray body = reply->readAll();
    if (reply->error() == QNetworkReply::NoError)
        return body;
    const int httpStatus = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    QString message;
    if (httpStatus >= 400) {
        // A refusal with a readable reason is the service speaking, not the service failing.
        const auto answer = parseCommandAnswer(body);
        message = answer && !answer->isEmpty() ? *answer : tr("The update service refused the request (HTTP %1).").arg(httpStatus);
    } else if (reply->error() == QNetworkReply::OperationCanceledError || reply->error() == QNetworkReply::TimeoutError) {
        message = tr("The update service did not answer in time.");
    } else {
        message = tr("The update service is not running.");
    }
    qInfo().noquote() << "Update service" << path << reply->errorString();
    emit serviceError(path, message);
    return std::nullopt;
}

void LocalUpdaterBackend::requestStatus()
{
    QNetworkReply* reply = get(QStringLiteral("upgrade/status"));
    connect(reply, &QNetworkReply::finished, this, [this, reply] {
        const QString path = QStringLiteral("upgrade/status");
        const auto body = bodyOf(reply, path);
        if (!body)
            return;
        if (const auto status = parseStatus(*body))
            emit statusReady(*status);
        else
            emit serviceError(path, tr("The update service sent an answer that cannot be read."));
    });
}

void LocalUpdaterBackend::requestAvailable()
{
    QNetworkReply* reply = get(QStringLiteral("upgrade/available"));
    connect(reply, &QNetworkReply::finished, this, [this, reply] {
        const QString path = QStringLiteral("upgrade/available");
        const auto body = bodyOf(reply, path);
        if (!body)
            return;
        if (const auto versions = parseAvailable(*body))
            emit availableReady(*versions);
        else
            emit serviceError(path, tr("The update service sent an answer that cannot be read."));
    });
}

void LocalUpdaterBackend::startUpgrade(const QString& type, const QString& version, bool system)
{
    post(QStringLiteral("upgrade/"), {{QStringLiteral("type"), type}, {QStringLiteral("version"), version}, {QStringLiteral("system"), system}});
}

QStringList LocalUpdaterBackend::listPackages() const
{
    QStringList files;
    QDirIterator it(SystemPaths::resolve(QStringLiteral("/media")), {QStringLiteral("*.deb")}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    files.sort();
    return files;
}

void LocalUpdaterBackend::installFromFile(const QString& path)
{
    post(QStringLiteral("upgrade/local/"), {{QStringLiteral("path"), path}});
}

void LocalUpdaterBackend::factoryReset()
{
    qWarning() << "Factory reset requested";
    post(QStringLiteral("factory/reset"), {});
}
