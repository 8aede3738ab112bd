#pragma once

#include <QList>
#include <QString>

// One output as it takes part in an xrandr command line.
struct XrandrOutputSetting {
    QString name;
    QString resolution;
    QString rate;
    int orientation = 0;
    bool primary = false;
};

namespace XrandrCommand {

constexpr int kMaxOutputs = 4; // longer arrangements are saved but not applied

// "xrandr " and one segment per output, from the rightmost output to the leftmost, each followed by
// a blank. Every output but the last is placed relative to the next one ("--left-of", or
// "--same-as" when mirroring). Empty when the arrangement is empty or longer than kMaxOutputs.
QString build(const QList<XrandrOutputSetting>& order, bool mirror);

} // namespace XrandrCommand
