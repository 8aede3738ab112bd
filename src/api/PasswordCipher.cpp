#include "PasswordCipher.h"

#include "QAESEncryption.h"

namespace {
const QByteArray kKey = QByteArrayLiteral("vostrelKandaPlumeStoreRecord2817");
}

namespace PasswordCipher {

QByteArray encipher(const QString& plain)
{
    const QAESEncryption aes(QAESEncryption::AES_256, QAESEncryption::ECB, QAESEncryption::ISO);
    return aes.encode(plain.toLocal8Bit(), kKey, QByteArray()).toBase64();
}

QString decipher(const QByteArray& base64)
{
    const QAESEncryption aes(QAESEncryption::AES_256, QAESEncryption::ECB, QAESEncryption::ISO);
    const QByteArray plain = aes.removePadding(aes.decode(QByteArray::fromBase64(base64), kKey, QByteArray()));
    return QString::fromLocal8Bit(plain);
}

} // namespace PasswordCipher
