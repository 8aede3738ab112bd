#include "XrandrParser.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

const char* const kRotations[] = {"normal", "inverted", "left", "right"};

bool isGeometry(const QString& word)
{
    static const QRegularExpression geometry(QStringLiteral("^\\d+x\\d+[+-]\\d+[+-]\\d+$"));
    return geometry.match(word).hasMatch();
}

} // namespace

int XrandrParser::orientationFromWord(const QString& word)
{
    for (int i = 0; i < 4; ++i) {
        if (word == QLatin1String(kRotations[i]))
            return i;
    }
    return -1;
}

QString XrandrParser::orientationWord(int orientation)
{
    if (orientation < 0 || orientation > 3)
        return {};
    return QString::fromLatin1(kRotations[orientation]);
}

QPair<int, int> XrandrParser::resolutionSize(const QString& resolution)
{
    static const QRegularExpression size(QStringLiteral("^(\\d+)x(\\d+)"));
    const QRegularExpressionMatch match = size.match(resolution);
    if (!match.hasMatch())
        return {0, 0};
    return {match.captured(1).toInt(), match.captured(2).toInt()};
}

QStringList XrandrParser::sortedByPixels(QStringList resolutions)
{
    std::stable_sort(resolutions.begin(), resolutions.end(), [](const QString& a, const QString& b) {
        const auto sa = resolutionSize(a);
        const auto sb = resolutionSize(b);
        return qint64(sa.first) * sa.second < qint64(sb.first) * sb.second;
    });
    return resolutions;
}

QList<XrandrOutput> XrandrParser::parse(const QByteArray& output)
{
    QList<XrandrOutput> outputs;
    XrandrOutput* current = nullptr;
    for (const QByteArray& rawLine : output.split('\n')) {
        const QStringList words = QString::fromLocal8Bit(rawLine).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (words.isEmpty())
            continue;
        if (words.first() == QLatin1String("Screen"))
            continue;
        if (words.first().at(0).isDigit()) {
            if (!current)
                continue; // a mode of a disconnected output
            const QString resolution = words.first();
            if (!current->rates.contains(resolution))
                current->resolutions << resolution;
            QStringList& rates = current->rates[resolution];
            for (int i = 1; i < words.size(); ++i) {
                QString rate = words.at(i);
                const bool active = rate.contains(QLatin1Char('*'));
                rate.remove(QLatin1Char('*')).remove(QLatin1Char('+')).remove(QLatin1Char('\n')).remove(QLatin1Char('\r'));
                if (rate.isEmpty())
                    continue; // a lone "+" after a rate that is not active
                if (active) {
                    current->currentResolution = resolution;
                    current->currentRate = rate;
                }
                if (!rates.contains(rate))
                    rates << rate;
            }
            continue;
        }
        current = nullptr;
        if (words.size() < 2 || words.at(1) != QLatin1String("connected"))
            continue;
        outputs.append(XrandrOutput());
        current = &outputs.last();
        current->name = words.first();
        int geometryAt = 2;
        if (words.size() > 2 && words.at(2) == QLatin1String("primary")) {
            current->primary = true;
            geometryAt = 3;
        }
        if (geometryAt < words.size() && isGeometry(words.at(geometryAt))) {
            const QString geometry = words.at(geometryAt);
            current->offsets = geometry.mid(geometry.indexOf(QLatin1Char('+')) + 1).split(QLatin1Char('+'));
            if (geometryAt + 1 < words.size()) {
                const int orientation = orientationFromWord(words.at(geometryAt + 1));
                if (orientation >= 0)
                    current->orientation = orientation;
            }
        }
    }
    return outputs;
}
