#pragma once

#include <QJsonArray>
#include <QString>

// The catalogue file connections.json: a JSON array of records, rewritten whole on every change.
namespace ConnectionStore {

inline constexpr const char* kPasswordMarker = "e:";

QString filePath();

// The stored array as it is (passwords as stored). A missing or empty file is an empty catalogue;
// so is a file that is not a JSON array, which `unreadable` then reports.
QJsonArray readArray(bool* unreadable = nullptr);
// Rewrites the file atomically, indented. A file that could not be read is first kept beside it
// as connections.json.bad, so that an administrator can still recover it.
void writeArray(const QJsonArray& records);

// "e:" + Base64 of the enciphered password.
QString encryptPassword(const QString& plain);
// Marked passwords are deciphered; unmarked (older) ones are plain text already.
QString decryptPassword(const QString& stored);

// A record as listed: password in clear, "enabled" true unless the record says otherwise.
QJsonObject forListing(QJsonObject record);
// A record as stored: its "password" (empty when absent) enciphered.
QJsonObject forStoring(QJsonObject record);

} // namespace ConnectionStore
