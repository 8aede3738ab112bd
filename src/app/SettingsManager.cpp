#include "SettingsManager.h"

#include "APIManager.h"
#include "AtomicFile.h"
#include "ConnectionManager.h"
#include "LanguageBackend.h"
#include "MouseSettingsBackend.h"
#include "SettingsChange.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QString dataPath(const char* name)
{
    return SystemPaths::dataFile(QLatin1String(name));
}

QStringList directoriesIn(const QString& path)
{
    QStringList folders;
    for (const QFileInfo& entry : QDir(path).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        folders << entry.absoluteFilePath();
    return folders;
}

// Replaces a data file with the set's copy in one step, so a power cut leaves one of the two.
bool replaceFromSet(const QString& source, const QString& target)
{
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly)) {
        QFile::remove(target);
        return false;
    }
    return AtomicFile::write(target, file.readAll());
}

SettingsManager::Clock& clockSource()
{
    static SettingsManager::Clock instance;
    return instance;
}

void reloadAfterImport(const QString& key)
{
    if (key == QLatin1String("keyboardAndMouse")) {
        // The file names another terminal's pointer ids: find this terminal's before applying.
        MouseSettingsBackend mouse;
        MouseSettingsBackend::initLayouts();
        mouse.getMouseNames();
        mouse.applyStartSettings();
        return;
    }
    if (key == QLatin1String("languageSettings")) {
        LanguageBackend* language = LanguageBackend::getInstance();
        language->setCurrentLanguage(language->getCurrentLanguage());
        return;
    }
    if (key == QLatin1String("connections"))
        ConnectionManager::getInstance()->reload();
    else if (key == QLatin1String("apiSettings"))
        APIManager::getInstance()->setId(QString()); // never another terminal's name: this one makes its own
}

} // namespace

const QList<SettingsManager::Item>& SettingsManager::items()
{
    static const QList<Item> list = {
        {"display", "display.ini", false},
        {"keyboardAndMouse", "keyboard.ini", false},
        {"languageSettings", "language.ini", false},
        {"connections", "connections.json", false},
        {"timeSettings", "time.ini", false},
        {"apiSettings", "api.ini", false},
        {"adminPassword", "admin_password", false},
        {"wallpaperSettings", "wallpaper", true},
    };
    return list;
}

QString SettingsManager::setFolderName(const QString& terminalId, const QDateTime& when)
{
    return terminalId + QLatin1Char('-') + when.toString(QStringLiteral("dd-MM-yyyy-hh-mm-ss"));
}

void SettingsManager::setClock(Clock newClock)
{
    clockSource() = std::move(newClock);
}

void SettingsManager::selection(const QString& type, bool selected)
{
    m_selection.insert(type, selected);
}

void SettingsManager::exportConfig(const QString& path)
{
    qInfo() << "Export config";
    const QString set = path + QLatin1Char('/') + setFolderName(APIManager::getInstance()->getId(),
                                                                    clockSource() ? clockSource()() : QDateTime::currentDateTime());
    QDir().mkdir(set); // an export within the same second reuses the folder
    if (!QFileInfo(set).isDir()) {
        qWarning().noquote() << "Cannot create" << set;
        m_selection.clear();
        emit exportFinished(false, set, 0);
        return;
    }
    int copied = 0;
    for (const Item& item : items()) {
        if (!isSelected(item.key))
            continue;
        const QString target = set + QLatin1Char('/') + QLatin1String(item.name);
        if (item.folder) {
            QDir(set).mkdir(QLatin1String(item.name));
            copyPath(dataPath(item.name), target);
            copied += QFileInfo(target).isDir() ? 1 : 0;
        } else if (QFile::copy(dataPath(item.name), target)) {
            ++copied;
        }
    }
    m_selection.clear();
    emit exportFinished(true, set, copied);
}

void SettingsManager::importConfig(const QString& path)
{
    qInfo() << "Import config";
    int copied = 0;
    QStringList missing;
    for (const Item& item : items()) {
        if (!isSelected(item.key))
            continue;
        const QString key = QLatin1String(item.key);
        const QString source = path + QLatin1Char('/') + QLatin1String(item.name);
        const QString target = dataPath(item.name);
        bool found = false;
        if (item.folder) {
            found = QFileInfo(source).isDir();
            if (QFileInfo(target).isDir())
                QDir(target).removeRecursively();
            QDir().mkpath(target);
            copyPath(source, target);
        } else {
            found = replaceFromSet(source, target);
        }
        if (found)
            ++copied;
        else
            missing << key;
        reloadAfterImport(key);
    }
    m_selection.clear();
    SettingsChange::report();
    emit importFinished(copied, missing);
}

QStringList SettingsManager::listFolders()
{
    return directoriesIn(SystemPaths::resolve(QStringLiteral("/media")));
}

QStringList SettingsManager::listFoldersToImport()
{
    QStringList sets;
    for (const QString& drive : listFolders()) {
        for (const QString& folder : directoriesIn(drive)) {
            for (const Item& item : items()) {
                if (QFileInfo::exists(folder + QLatin1Char('/') + QLatin1String(item.name))) {
                    sets << folder;
                    break;
                }
            }
        }
    }
    return sets;
}

QString SettingsManager::folderLabel(const QString& path) const
{
    const QString media = SystemPaths::resolve(QStringLiteral("/media")) + QLatin1Char('/');
    return path.startsWith(media) ? path.mid(media.size()) : path;
}

void copyPath(const QString& source, const QString& destination)
{
    const QDir dir(source);
    if (!dir.exists())
        return;
    for (const QString& name : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks)) {
        const QString target = destination + QDir::separator() + name;
        QDir().mkpath(target);
        copyPath(source + QDir::separator() + name, target);
    }
    for (const QString& name : dir.entryList(QDir::Files))
        QFile::copy(source + QDir::separator() + name, destination + QDir::separator() + name);
}
