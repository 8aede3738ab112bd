#include "ConnectionStore.h"

#include "AtomicFile.h"
#include "JsonText.h"
#include "PasswordCipher.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace ConnectionStore {

QString filePath()
{
    return SystemPaths::dataFile(QStringLiteral("connections.json"));
}

QJsonArray readArray(bool* unreadable)
{
    if (unreadable)
        *unreadable = false;
    QFile file(filePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    const QByteArray bytes = file.readAll();
    if (bytes.trimmed().isEmpty())
        return {};
    QJsonParseError error{};
    const QJsonDocument document = JsonText::parse(bytes, &error);
    if (!document.isArray()) {
        if (unreadable)
            *unreadable = true;
        return {};
    }
    return document.array();
}

void writeArray(const QJsonArray& records)
{
    bool unreadable = false;
    readArray(&unreadable);
    if (unreadable) {
        const QString kept = filePath() + QStringLiteral(".bad");
        QFile::remove(kept);
        if (QFile::copy(filePath(), kept))
            qWarning().noquote() << "Unreadable connection file kept as" << kept;
    }
    AtomicFile::write(filePath(), QJsonDocument(records).toJson(QJsonDocument::Indented));
}

QString encryptPassword(const QString& plain)
{
    return QLatin1String(kPasswordMarker) + QString::fromLatin1(PasswordCipher::encipher(plain));
}

QString decryptPassword(const QString& stored)
{
    if (!stored.startsWith(QLatin1String(kPasswordMarker)))
        return stored;
    return PasswordCipher::decipher(stored.mid(2).toLatin1());
}

QJsonObject forListing(QJsonObject record)
{
    record.insert(QStringLiteral("password"), decryptPassword(record.value(QStringLiteral("password")).toString()));
    if (!record.contains(QStringLiteral("enabled")))
        record.insert(QStringLiteral("enabled"), true);
    return record;
}

QJsonObject forStoring(QJsonObject record)
{
    record.insert(QStringLiteral("password"), encryptPassword(record.value(QStringLiteral("password")).toString()));
    return record;
}

} // namespace ConnectionStore
