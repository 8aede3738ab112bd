#pragma once

#include <QByteArray>

// AES with the shell's block modes and padding rules. The block cipher itself is OpenSSL's; modes
// other than ECB are offered for completeness, the shell's stored secrets use AES_256/ECB/ISO.
class QAESEncryption {
public:
    enum Aes { AES_128, AES_192, AES_256 };
    enum Mode { ECB, CBC, CFB, OFB };
    enum Padding { ZERO, PKCS7, ISO };

    QAESEncryption(Aes level, Mode mode, Padding padding = ISO);

    // Pads and enciphers. The key must have the level's length (16, 24 or 32 bytes) and the IV,
    // for the modes that use one, 16 bytes; otherwise the result is empty.
    QByteArray encode(const QByteArray& plain, const QByteArray& key, const QByteArray& iv = QByteArray()) const;
    // Deciphers without removing the padding (see removePadding).
    QByteArray decode(const QByteArray& cipher, const QByteArray& key, const QByteArray& iv = QByteArray()) const;
    QByteArray removePadding(const QByteArray& bytes) const;

    // The padding as applied before enciphering; ISO and ZERO add nothing to aligned input.
    QByteArray addPadding(const QByteArray& bytes) const;

    static constexpr int kBlockLength = 16;

private:
    QByteArray crypt(const QByteArray& input, const QByteArray& key, const QByteArray& iv, bool encrypt) const;

    Aes m_level;
    Mode m_mode;
    Padding m_padding;
};
