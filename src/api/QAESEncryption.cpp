#include "QAESEncryption.h"

#include <QDebug>

#include <openssl/evp.h>

#include <memory>

namespace {

int keyLength(QAESEncryption::Aes level)
{
    switch (level) {
    case QAESEncryption::AES_128: return 16;
    case QAESEncryption::AES_192: return 24;
    case QAESEncryption::AES_256: return 32;
    }
    return 0;
}

const EVP_CIPHER* cipherFor(QAESEncryption::Aes level, QAESEncryption::Mode mode)
{
    static const EVP_CIPHER* const table[3][4] = {
        {EVP_aes_128_ecb(), EVP_aes_128_cbc(), EVP_aes_128_cfb128(), EVP_aes_128_ofb()},
        {EVP_aes_192_ecb(), EVP_aes_192_cbc(), EVP_aes_192_cfb128(), EVP_aes_192_ofb()},
        {EVP_aes_256_ecb(), EVP_aes_256_cbc(), EVP_aes_256_cfb128(), EVP_aes_256_ofb()},
    };
    return table[level][mode];
}

} // namespace

QAESEncryption::QAESEncryption(Aes level, Mode mode, Padding padding)
    : m_level(level), m_mode(mode), m_padding(padding)
{
}

QByteArray QAESEncryption::addPadding(const QByteArray& bytes) const
{
    const int remainder = bytes.size() % kBlockLength;
    QByteArray padded = bytes;
    switch (m_padding) {
    case ZERO:
        if (remainder)
            padded.append(kBlockLength - remainder, '\0');
        break;
    case PKCS7: {
        const int count = kBlockLength - remainder;
        padded.append(count, char(count));
        break;
    }
    case ISO:
        // Aligned input gets no marker at all: removing then cannot tell data from padding.
        if (remainder) {
            padded.append(char(0x80));
            padded.append(kBlockLength - remainder - 1, '\0');
        }
        break;
    }
    return padded;
}

QByteArray QAESEncryption::removePadding(const QByteArray& bytes) const
{
    if (bytes.isEmpty())
        return bytes;
    switch (m_padding) {
    case ZERO: {
        int end = bytes.size();
        while (end > 0 && bytes.at(end - 1) == '\0')
            --end;
        return bytes.left(end);
    }
    case PKCS7: {
        const int count = static_cast<unsigned char>(bytes.back());
        if (count < 1 || count > kBlockLength || count > bytes.size())
            return bytes;
        for (int i = bytes.size() - count; i < bytes.size(); ++i) {
            if (static_cast<unsigned char>(bytes.at(i)) != count)
                return bytes;
        }
        return bytes.left(bytes.size() - count);
    }
    case ISO:
        for (int i = bytes.size() - 1; i >= 0; --i) {
            const unsigned char byte = static_cast<unsigned char>(bytes.at(i));
            if (byte == 0)
                continue;
            return byte == 0x80 ? bytes.left(i) : bytes;
        }
        return bytes;
    }
    return bytes;
}

QByteArray QAESEncryption::encode(const QByteArray& plain, const QByteArray& key, const QByteArray& iv) const
{
    return crypt(addPadding(plain), key, iv, true);
}

QByteArray QAESEncryption::decode(const QByteArray& cipher, const QByteArray& key, const QByteArray& iv) const
{
    return crypt(cipher, key, iv, false);
}

QByteArray QAESEncryption::crypt(const QByteArray& input, const QByteArray& key, const QByteArray& iv, bool encrypt) const
{
    if (key.size() != keyLength(m_level)) {
        qWarning() << "AES key of" << key.size() << "bytes, expected" << keyLength(m_level);
        return {};
    }
    if (m_mode != ECB && iv.size() != kBlockLength) {
        qWarning() << "AES initialisation vector of" << iv.size() << "bytes, expected" << kBlockLength;
        return {};
    }
    // Block modes only take whole blocks; a damaged stored value deciphers as far as it goes.
    QByteArray data = input;
    if ((m_mode == ECB || m_mode == CBC) && data.size() % kBlockLength)
        data.chop(data.size() % kBlockLength);
    if (data.isEmpty())
        return {};

    std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> ctx(EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free);
    const auto* keyBytes = reinterpret_cast<const unsigned char*>(key.constData());
    const auto* ivBytes = m_mode == ECB ? nullptr : reinterpret_cast<const unsigned char*>(iv.constData());
    if (!ctx || EVP_CipherInit_ex(ctx.get(), cipherFor(m_level, m_mode), nullptr, keyBytes, ivBytes, encrypt ? 1 : 0) != 1)
        return {};
    EVP_CIPHER_CTX_set_padding(ctx.get(), 0);

    QByteArray output(data.size() + kBlockLength, Qt::Uninitialized);
    int written = 0;
    int tail = 0;
    auto* out = reinterpret_cast<unsigned char*>(output.data());
    if (EVP_CipherUpdate(ctx.get(), out, &written, reinterpret_cast<const unsigned char*>(data.constData()), data.size()) != 1
        || EVP_CipherFinal_ex(ctx.get(), out + written, &tail) != 1)
        return {};
    output.truncate(written + tail);
    return output;
}
