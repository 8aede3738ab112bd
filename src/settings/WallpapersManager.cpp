#include "WallpapersManager.h"

#include "AtomicFile.h"
#include "CommandRunner.h"
#include "SettingsChange.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QUrl>

static void initWallpaperResources()
{
    Q_INIT_RESOURCE(wallpaper);
}

namespace {

const QString kWallpaperDir = QStringLiteral("/data/norbix/wallpaper");

QString displayIni()
{
    return SystemPaths::dataFile(QStringLiteral("display.ini"));
}

void showImage(const QString& terminalPath)
{
    CommandRunner::instance().run(QStringLiteral("feh"), {QStringLiteral("--bg-fill"), terminalPath});
}

// A path handed over by a screen: a file URL or a plain path. Files under /media are listed
// already resolved; terminal paths are resolved here.
QString localPath(const QString& path)
{
    const QString plain = path.startsWith(QLatin1String("file:")) ? QUrl(path).toLocalFile() : path;
    const QString root = SystemPaths::root();
    if (!root.isEmpty() && (plain == root || plain.startsWith(root + QLatin1Char('/'))))
        return plain;
    return SystemPaths::resolve(plain);
}

} // namespace

WallpapersManager::WallpapersManager(QObject* parent)
    : QObject(parent)
{
    initWallpaperResources(); // the built-in background the screen shows
}

QString WallpapersManager::imageKind(const QByteArray& head)
{
    if (head.startsWith("\x89PNG\r\n\x1a\n"))
        return QStringLiteral("png");
    if (head.startsWith("\xff\xd8\xff"))
        return QStringLiteral("jpeg");
    return {};
}

QString WallpapersManager::getWallpaper()
{
    const QString stored = QSettings(displayIni(), QSettings::IniFormat).value(QStringLiteral("Wallpaper")).toString();
    if (stored.isEmpty())
        return {};
    return QUrl::fromLocalFile(SystemPaths::resolve(stored)).toString();
}

bool WallpapersManager::setWallpaper(const QString& path)
{
    qInfo().nospace().noquote() << "Set wallpaper " << path;
    m_lastError.clear();
    const QString source = localPath(path);
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly)) {
        m_lastError = tr("The file %1 cannot be read.").arg(QFileInfo(source).fileName());
        qWarning() << "Wallpaper:" << source << file.errorString();
        return false;
    }
    const QByteArray content = file.readAll();
    if (imageKind(content).isEmpty()) {
        m_lastError = tr("%1 is not a PNG or JPEG image.").arg(QFileInfo(source).fileName());
        qWarning() << "Wallpaper: not an image:" << source;
        return false;
    }
    QDir().mkpath(SystemPaths::resolve(kWallpaperDir));
    const QString target = kWallpaperDir + QLatin1Char('/') + QFileInfo(source).fileName();
    if (!AtomicFile::write(SystemPaths::resolve(target), content)) {
        m_lastError = tr("The image could not be copied to the terminal.");
        qWarning() << "Wallpaper: cannot write" << target;
        return false;
    }
    QSettings(displayIni(), QSettings::IniFormat).setValue(QStringLiteral("Wallpaper"), target);
    showImage(target);
    emit wallpaperChanged();
    SettingsChange::report();
    return true;
}

bool WallpapersManager::isWallpaperActive()
{
    return QSettings(displayIni(), QSettings::IniFormat).value(QStringLiteral("WallpaperActive"), false).toBool();
}

void WallpapersManager::setWallpaperActive(bool active)
{
    qInfo().nospace().noquote() << "Set wallpaper active " << active;
    QSettings settings(displayIni(), QSettings::IniFormat);
    settings.setValue(QStringLiteral("WallpaperActive"), active);
    const QString stored = settings.value(QStringLiteral("Wallpaper")).toString();
    settings.sync();
    if (active && !stored.isEmpty()) {
        showImage(stored);
        return;
    }
    if (active)
        qWarning() << "No wallpaper chosen yet; showing the default";
    initWallpaperResources();
    QFile resource(QStringLiteral(":/images/default_background.png"));
    const QString target = kWallpaperDir + QStringLiteral("/default.png");
    QDir().mkpath(SystemPaths::resolve(kWallpaperDir));
    if (!resource.open(QIODevice::ReadOnly) || !AtomicFile::write(SystemPaths::resolve(target), resource.readAll())) {
        qWarning() << "Cannot install the default background at" << target;
        return;
    }
    showImage(target);
}

QStringList WallpapersManager::listAvaiableImages()
{
    QStringList images;
    QDirIterator it(SystemPaths::resolve(QStringLiteral("/media")),
                    {QStringLiteral("*.png"), QStringLiteral("*.jpeg"), QStringLiteral("*.jpg")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        images << it.next();
    images.sort();
    return images;
}
