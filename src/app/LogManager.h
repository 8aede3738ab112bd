#pragma once

#include <QObject>
#include <QStringList>

// The logs screen: the current run's log, the debug switch, export to a removable drive.
class LogManager : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    Q_INVOKABLE QString loadLogs();
    Q_INVOKABLE QString saveLog(const QString& folder, bool all);
    Q_INVOKABLE bool isDebug();
    Q_INVOKABLE void setDebugEnabled(bool enabled);
    Q_INVOKABLE QStringList listFolders();

    // The part of a day's log from the last start on (the whole text when no start is in it).
    static QString currentRun(const QString& dayLog);

signals:
    void logReady(QString data);
};
