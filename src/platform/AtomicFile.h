#pragma once

#include <QByteArray>
#include <QString>

// A terminal is switched off at the wall: whole-file writes go through a temporary file and a
// rename, so a power cut leaves the old file or the new one, never half of one.
namespace AtomicFile {
bool write(const QString& path, const QByteArray& content);
}
