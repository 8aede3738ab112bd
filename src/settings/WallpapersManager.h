#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

// The desktop background: an image copied from removable media into the data directory and shown
// with feh, or the built-in default.
class WallpapersManager : public QObject {
    Q_OBJECT
public:
    explicit WallpapersManager(QObject* parent = nullptr);

    // The stored image as a file URL, empty when none was chosen.
    Q_INVOKABLE static QString getWallpaper();
    // Copies the image into the data directory and shows it; false (lastError() says why) when the
    // file is not a PNG or JPEG image or cannot be copied.
    Q_INVOKABLE bool setWallpaper(const QString& path);
    Q_INVOKABLE static bool isWallpaperActive();
    Q_INVOKABLE static void setWallpaperActive(bool active);
    // PNG and JPEG files anywhere under /media.
    Q_INVOKABLE static QStringList listAvaiableImages();
    Q_INVOKABLE QString lastError() const { return m_lastError; }

    // "png", "jpeg" or empty, from the first bytes of a file.
    static QString imageKind(const QByteArray& head);

signals:
    void wallpaperChanged();

private:
    QString m_lastError;
};
