#include "SoundParsers.h"

#include <QRegularExpression>

namespace SoundParsers {

SinkList parseSinks(const QByteArray& output)
{
    static const QRegularExpression index(QStringLiteral("^\\s*(\\*\\s*)?index:\\s*\\d+\\s*$"));
    static const QRegularExpression description(QStringLiteral("^\\s*device\\.description\\s*=\\s*\"(.*)\"\\s*$"));
    SinkList sinks;
    bool inSink = false;      // between an "index:" line and its description
    bool markedActive = false;
    for (const QString& line : QString::fromUtf8(output).split(QLatin1Char('\n'))) {
        const QRegularExpressionMatch header = index.match(line);
        if (header.hasMatch()) {
            inSink = true;
            markedActive = !header.captured(1).isEmpty();
            continue;
        }
        if (!inSink)
            continue;
        const QRegularExpressionMatch name = description.match(line);
        if (!name.hasMatch())
            continue;
        if (markedActive)
            sinks.active = sinks.names.size();
        sinks.names << name.captured(1);
        inSink = false;
    }
    return sinks;
}

int parseVolume(const QByteArray& output)
{
    static const QRegularExpression percent(QStringLiteral("^\\s*(\\d{1,3})%?\\s*$"));
    const QString first = QString::fromUtf8(output).section(QLatin1Char('\n'), 0, 0);
    const QRegularExpressionMatch match = percent.match(first);
    return match.hasMatch() ? qBound(0, match.captured(1).toInt(), 100) : 0;
}

QStringList parseLines(const QByteArray& output)
{
    QStringList lines;
    for (const QString& line : QString::fromUtf8(output).split(QLatin1Char('\n'))) {
        if (!line.trimmed().isEmpty())
            lines << line.trimmed();
    }
    return lines;
}

} // namespace SoundParsers
