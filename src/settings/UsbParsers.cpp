#include "UsbParsers.h"

#include <QRegularExpression>

namespace UsbParsers {

QList<UsbDevice> parseLsusb(const QByteArray& output)
{
    static const QRegularExpression line(QStringLiteral("^Bus \\d+ Device \\d+: ID ([0-9A-Fa-f]{4}:[0-9A-Fa-f]{4})(?: (.*))?$"));
    QList<UsbDevice> devices;
    for (const QString& text : QString::fromUtf8(output).split(QLatin1Char('\n'))) {
        const QRegularExpressionMatch match = line.match(text.trimmed());
        if (match.hasMatch())
            devices.append({match.captured(1).toLower(), match.captured(2).trimmed()});
    }
    return devices;
}

} // namespace UsbParsers
