#include "InputParsers.h"

#include <QRegularExpression>

#include <cmath>

namespace InputParsers {

QList<XinputDevice> parseDeviceList(const QByteArray& output)
{
    static const QRegularExpression idField(QStringLiteral("^id=(\\d+)$"));
    QList<XinputDevice> devices;
    for (const QString& line : QString::fromUtf8(output).split(QLatin1Char('\n'))) {
        const QStringList fields = line.split(QLatin1Char('\t'));
        if (fields.size() < 2)
            continue;
        const QRegularExpressionMatch id = idField.match(fields.at(1).trimmed());
        if (!id.hasMatch())
            continue;
        // Everything up to the first letter or digit is tree decoration ("⎜   ↳ ").
        QString name = fields.at(0);
        int start = 0;
        while (start < name.size() && !name.at(start).isLetterOrNumber())
            ++start;
        name = name.mid(start).trimmed();
        if (name.isEmpty())
            continue;
        devices.append({name, id.captured(1)});
    }
    return devices;
}

std::optional<double> parseAccelSpeed(const QByteArray& properties)
{
    static const QRegularExpression speed(QStringLiteral("^\\s*libinput Accel Speed \\(\\d+\\):\\s*(\\S+)\\s*$"),
                                          QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = speed.match(QString::fromUtf8(properties));
    if (!match.hasMatch())
        return std::nullopt;
    bool ok = false;
    const double value = match.captured(1).toDouble(&ok);
    if (!ok || !std::isfinite(value))
        return std::nullopt;
    return value;
}

int parsePrimaryButton(const QByteArray& buttonMap)
{
    const QString first = QString::fromUtf8(buttonMap).simplified().section(QLatin1Char(' '), 0, 0);
    return first == QLatin1String("3") ? 1 : 0;
}

std::optional<int> parseDoubleClickTime(const QByteArray& output)
{
    bool ok = false;
    const int value = QString::fromUtf8(output).section(QLatin1Char('\n'), 0, 0).trimmed().toInt(&ok);
    if (!ok || value < 0)
        return std::nullopt;
    return value;
}

bool isLayoutCode(const QString& code)
{
    static const QRegularExpression valid(QStringLiteral("^[A-Za-z0-9_-]{1,32}$"));
    return valid.match(code).hasMatch();
}

QStringList splitLayouts(const QString& stored)
{
    QStringList codes;
    for (const QString& part : stored.split(QLatin1Char(','))) {
        const QString code = part.trimmed();
        if (!code.isEmpty() && !codes.contains(code))
            codes << code;
    }
    return codes;
}

QStringList orderLayouts(const QStringList& enabled, const QString& preferred)
{
    QStringList ordered;
    if (enabled.contains(preferred))
        ordered << preferred;
    for (const QString& code : enabled) {
        if (!ordered.contains(code))
            ordered << code;
    }
    return ordered;
}

LayoutRemoval removeLayout(const QStringList& enabled, int index, const QString& preferred, const QString& current)
{
    LayoutRemoval result{enabled, preferred, current};
    if (index < 0 || index >= enabled.size())
        return result;
    const QString removed = result.layouts.takeAt(index);
    const QString successor = result.layouts.value(0);
    if (result.preferred == removed)
        result.preferred = successor;
    if (result.current == removed)
        result.current = successor;
    return result;
}

QStringList appendLayouts(const QStringList& enabled, const QStringList& added)
{
    QStringList result = enabled;
    for (const QString& code : added) {
        if (!result.contains(code))
            result << code;
    }
    return result;
}

std::optional<double> parseSensitivity(const QString& text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value) || value < -1.0 || value > 1.0)
        return std::nullopt;
    return value;
}

} // namespace InputParsers
