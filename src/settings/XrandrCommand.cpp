#include "XrandrCommand.h"

#include "XrandrParser.h"

#include <QStringList>

QString XrandrCommand::build(const QList<XrandrOutputSetting>& order, bool mirror)
{
    if (order.isEmpty() || order.size() > kMaxOutputs)
        return {};
    QStringList segments;
    for (int i = 0; i < order.size(); ++i) {
        const XrandrOutputSetting& output = order.at(i);
        const QString primary = output.primary ? QStringLiteral("--primary") : QString();
        const QString rotation = XrandrParser::orientationWord(output.orientation);
        if (i + 1 < order.size()) {
            segments << QStringLiteral("--output %1 --%2 %3 --mode %4 --rotate %5 --rate %6 %7")
                            .arg(output.name, mirror ? QStringLiteral("same-as") : QStringLiteral("left-of"),
                                 order.at(i + 1).name, output.resolution, rotation, output.rate, primary);
        } else {
            segments << QStringLiteral("--output %1 --mode %2 --rotate %3 --rate %4 %5")
                            .arg(output.name, output.resolution, rotation, output.rate, primary);
        }
    }
    QString command = QStringLiteral("xrandr ");
    for (int i = segments.size() - 1; i >= 0; --i)
        command += segments.at(i) + QLatin1Char(' ');
    return command;
}
