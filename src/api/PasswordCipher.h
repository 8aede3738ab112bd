#pragma once

#include <QByteArray>
#include <QString>

// The one scheme every stored secret of the shell uses: AES-256/ECB with the ISO padding rules and
// the built-in key, kept as Base64 text.
namespace PasswordCipher {

// Base64 of the enciphered local 8-bit form of the text.
QByteArray encipher(const QString& plain);
// Base64 in, text out; damaged input gives whatever the deciphering yields, never an error.
QString decipher(const QByteArray& base64);

} // namespace PasswordCipher
