#include "VncFlow.h"

#include <QtEndian>

namespace VncFlow {

namespace {

void append16(QByteArray& out, int value)
{
    const quint16 wire = qToBigEndian(static_cast<quint16>(qBound(0, value, 0xffff)));
    out.append(reinterpret_cast<const char*>(&wire), sizeof wire);
}

void append32(QByteArray& out, uint32_t value)
{
    const quint32 wire = qToBigEndian(static_cast<quint32>(value));
    out.append(reinterpret_cast<const char*>(&wire), sizeof wire);
}

} // namespace

QByteArray enableContinuousUpdates(bool enable, const QRect& area)
{
    QByteArray message;
    message.append(static_cast<char>(kContinuousUpdatesMessage));
    message.append(static_cast<char>(enable ? 1 : 0));
    append16(message, area.x());
    append16(message, area.y());
    append16(message, area.width());
    append16(message, area.height());
    return message;
}

std::optional<FenceHeader> parseFenceHeader(const QByteArray& header)
{
    if (header.size() < kFenceHeaderSize)
        return std::nullopt;
    FenceHeader fence;
    fence.flags = qFromBigEndian<quint32>(header.constData() + 3);
    fence.payloadLength = static_cast<uchar>(header.at(7));
    if (fence.payloadLength > kMaxFencePayload)
        return std::nullopt;
    return fence;
}

QByteArray fenceAnswer(uint32_t flags, const QByteArray& payload)
{
    QByteArray message;
    message.append(static_cast<char>(kFenceMessage));
    message.append(3, '\0');
    append32(message, flags & (kFenceBlockBefore | kFenceBlockAfter | kFenceSyncNext));
    const QByteArray echoed = payload.left(kMaxFencePayload);
    message.append(static_cast<char>(echoed.size()));
    message.append(echoed);
    return message;
}

} // namespace VncFlow
