#include "VncInput.h"

#include <QHash>
#include <QStringList>

namespace VncInput {

quint32 keysymForQtKey(int qtKey)
{
    static const QHash<int, quint32> table = {
        {0x20, 0x20},             {0x2B, 0xFFAB},           {0x2D, 0xFFAD},           {0x3D, 0xFFBD},
        {0xD7, 0xFFAA},           {0xF7, 0xFFAF},           {0x01000000, 0xFF1B},     {0x01000001, 0xFF09},
        {0x01000003, 0xFF08},     {0x01000004, 0xFF0D},     {0x01000005, 0xFF8D},     {0x01000006, 0xFF63},
        {0x01000007, 0xFFFF},     {0x01000008, 0xFF13},     {0x01000009, 0xFF61},     {0x0100000B, 0xFF0B},
        {0x01000010, 0xFF50},     {0x01000011, 0xFF57},     {0x01000012, 0xFF51},     {0x01000013, 0xFF52},
        {0x01000014, 0xFF53},     {0x01000015, 0xFF54},     {0x01000016, 0xFF55},     {0x01000017, 0xFF56},
        {0x01000020, 0xFFE1},     {0x01000021, 0xFFE3},     {0x01000022, 0xFFE7},     {0x01000023, 0xFFEA},
        {0x01000024, 0xFFE5},     {0x01000025, 0xFF7F},     {0x01000026, 0xFF14},     {0x01000058, 0xFF6A},
        {0x01001103, 0xFFE9},     {0x0100117E, 0xFF7E},
    };
    if (qtKey >= 0x30 && qtKey <= 0x39)
        return 0xFFB0 + quint32(qtKey - 0x30);
    if (qtKey >= 0x41 && qtKey <= 0x5A)
        return 0x61 + quint32(qtKey - 0x41);
    if (qtKey >= 0x01000030 && qtKey <= 0x0100003E)
        return 0xFFBE + quint32(qtKey - 0x01000030);
    const auto it = table.constFind(qtKey);
    if (it != table.constEnd())
        return *it;
    return qtKey >= 0 && qtKey <= 0xFF ? quint32(qtKey) : 0;
}

QPoint remotePosition(const QPointF& itemPos, const QSize& originalSize, const QSize& viewSize, const QSizeF& sceneSize)
{
    if (viewSize.width() <= 0 || viewSize.height() <= 0)
        return {};
    const double x = (double(originalSize.width()) / viewSize.width()) * itemPos.x() - (sceneSize.width() - viewSize.width()) / 2;
    const double y = (double(originalSize.height()) / viewSize.height()) * itemPos.y() - (sceneSize.height() - viewSize.height()) / 2;
    return QPoint(int(x), int(y));
}

HostPort splitAddress(const QString& address)
{
    const QStringList parts = address.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return {QString(), QStringLiteral("5900")};
    if (parts.size() == 1)
        return {parts.at(0), QStringLiteral("5900")};
    return {parts.at(0), parts.at(1)};
}

QString reachabilityCommand(const HostPort& target)
{
    return QStringLiteral("nmap -sV -sC %1 -p %2 | grep open").arg(target.host, target.port);
}

QRect windowGeometry(const QSize& screen, int percentage)
{
    const float share = float(percentage) / 100.0f;
    return QRect(0, 0, int(float(screen.width()) * share), int(float(screen.height()) * share));
}

PixelFormat pixelFormatFor(int imageDepth)
{
    if (imageDepth == 8)
        return {8, 8, 0, 3, 6, 7, 7, 3};
    if (imageDepth == 16)
        return {16, 16, 11, 5, 0, 31, 63, 31};
    return {imageDepth, 32, 16, 8, 0, 255, 255, 255};
}

} // namespace VncInput
