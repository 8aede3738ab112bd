#pragma once

#include <QDateTime>
#include <QMap>
#include <QObject>
#include <QStringList>

#include <functional>

// Copies chosen groups of the terminal's configuration to a folder on removable media and back.
// An exported set is a folder "<terminal name>-dd-MM-yyyy-hh-mm-ss" holding plain copies of the
// data directory's files.
class SettingsManager : public QObject {
    Q_OBJECT
public:
    struct Item {
        const char* key;  // selection key the screens use
        const char* name; // file or folder in the data directory and in the set
        bool folder;
    };
    // The eight groups, in the order they are copied.
    static const QList<Item>& items();

    using QObject::QObject;

    Q_INVOKABLE void selection(const QString& type, bool selected);
    Q_INVOKABLE void exportConfig(const QString& path);
    Q_INVOKABLE void importConfig(const QString& path);
    // The drives: directories directly inside /media.
    Q_INVOKABLE QStringList listFolders();
    // The exported sets: directories directly inside a drive that hold at least one group.
    Q_INVOKABLE QStringList listFoldersToImport();
    // What the screens show for one of those folders: its path below the removable-media folder.
    Q_INVOKABLE QString folderLabel(const QString& path) const;

    static QString setFolderName(const QString& terminalId, const QDateTime& when);

    // Where the time in a set's name comes from (tests pin it; empty restores the system clock).
    using Clock = std::function<QDateTime()>;
    static void setClock(Clock clock);

signals:
    // folder is the set folder; copied counts the groups written into it.
    void exportFinished(bool ok, QString folder, int copied);
    // copied counts the groups taken from the set; missing ones were reset.
    void importFinished(int copied, QStringList missing);

private:
    bool isSelected(const char* key) const { return m_selection.value(QLatin1String(key), false); }

    QMap<QString, bool> m_selection;
    QString m_path;
};

// Copies the tree under source into destination; existing files are kept.
void copyPath(const QString& source, const QString& destination);
