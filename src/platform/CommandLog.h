#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

// Appends {"program","args","detached"} as one JSON line to $NORBIX_COMMAND_LOG, if set.
namespace CommandLog {
void record(const QString& program, const QStringList& arguments, bool detached);
// Appends any one line (system-bus calls use their own keys); whole lines from every thread.
void append(const QJsonObject& line);
}
