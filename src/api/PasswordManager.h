#pragma once

#include <QObject>
#include <QString>

// The administrator password that guards the advanced settings.
class PasswordManager : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    static constexpr const char* kDefaultPassword = "kelvra";

    Q_INVOKABLE QString getPassword();
    Q_INVOKABLE void setPassword(const QString& password);

    static QString passwordFile();
};
