#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

// What plain `xrandr` prints about the connected outputs, as plain values.
struct XrandrOutput {
    QString name;
    bool primary = false;
    QStringList offsets;         // X and Y of the geometry; empty when the output shows nothing
    int orientation = 0;         // 0 normal, 1 inverted, 2 left, 3 right
    QString currentResolution;   // empty when no mode is active
    QString currentRate;
    QStringList resolutions;     // in the order xrandr lists them
    QMap<QString, QStringList> rates; // resolution -> rates as printed, marks removed
};

namespace XrandrParser {

// Connected outputs in xrandr's order. Disconnected outputs and their modes are left out.
QList<XrandrOutput> parse(const QByteArray& output);

// Orientation number <-> the word of "--rotate" (0 normal, 1 inverted, 2 left, 3 right); -1 / empty
// for anything else.
int orientationFromWord(const QString& word);
QString orientationWord(int orientation);

// Resolutions by pixel count (width x height), smallest first; equal counts keep their order.
QStringList sortedByPixels(QStringList resolutions);
// Width and height of "1920x1080" (also "1920x1080i", "1920x1080_60.00"); 0x0 when unreadable.
QPair<int, int> resolutionSize(const QString& resolution);

} // namespace XrandrParser
