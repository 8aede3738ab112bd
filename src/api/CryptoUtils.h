#pragma once

#include <QObject>
#include <QString>

// The stored-secret cipher for the screens: text in, the stored Base64 form out, and back.
class CryptoUtils : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    Q_INVOKABLE QString encrypt(const QString& plain) const;
    Q_INVOKABLE QString decrypt(const QString& stored) const;
};
