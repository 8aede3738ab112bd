#include "CryptoUtils.h"

#include "PasswordCipher.h"

QString CryptoUtils::encrypt(const QString& plain) const
{
    return QString::fromLatin1(PasswordCipher::encipher(plain));
}

QString CryptoUtils::decrypt(const QString& stored) const
{
    return PasswordCipher::decipher(stored.toLatin1());
}
