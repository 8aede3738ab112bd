#pragma once

#include <QObject>
#include <QStringList>

// Behind the system-information screen: hands the facts to support, on the system clipboard or as
// a text file on a removable drive.
class InfoBackend : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    Q_INVOKABLE void copyToClipboard(const QString& text);
    // The drives: directories directly inside /media.
    Q_INVOKABLE QStringList listDrives() const;
    // Writes the text as system-info-<yyyyMMdd-HHmmss>.txt on the drive; answers the file's path,
    // empty when it could not be written.
    Q_INVOKABLE QString saveToDrive(const QString& text, const QString& drive);
    Q_INVOKABLE QString driveLabel(const QString& drive) const;
};
