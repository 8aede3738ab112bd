#pragma once

#include <QByteArray>
#include <QStringList>

// What pacmd, pactl and amixer print, turned into values.
namespace SoundParsers {

struct SinkList {
    QStringList names; // the "device.description" of each sink, in listing order
    int active = -1;   // the sink listed under "* index: N", -1 when none is marked
};

// `pacmd list-sinks`.
SinkList parseSinks(const QByteArray& output);

// The percentage the amixer pipeline prints ("75%"); 0 when it prints nothing usable.
int parseVolume(const QByteArray& output);

// One sink name per line (`pactl list sinks short | awk '{print $2}'`).
QStringList parseLines(const QByteArray& output);

} // namespace SoundParsers
