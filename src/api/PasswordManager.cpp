#include "PasswordManager.h"

#include "AtomicFile.h"
#include "PasswordCipher.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QFile>

QString PasswordManager::passwordFile()
{
    return SystemPaths::dataFile(QStringLiteral("admin_password"));
}

QString PasswordManager::getPassword()
{
    QFile file(passwordFile());
    if (!file.open(QIODevice::ReadOnly))
        return QString::fromLatin1(kDefaultPassword);
    return PasswordCipher::decipher(file.readAll());
}

void PasswordManager::setPassword(const QString& password)
{
    qInfo() << "Admin password changed";
    AtomicFile::write(passwordFile(), PasswordCipher::encipher(password));
}
