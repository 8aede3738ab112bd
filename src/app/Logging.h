#pragma once

#include <QDate>
#include <QString>
#include <QtGlobal>

// The process-wide message handler: console line, one append to the day's log file, then pruning.
void customMessageOutput(QtMsgType type, const QMessageLogContext& context, const QString& message);
// Removes log files created more than `days` days ago.
void deleteoldfiles(int days);

namespace Logging {
QString logDirectory();                  // $HOME/logs
QString logFilePath(const QDate& day);   // $HOME/logs/log-dd-MM-yyyy.txt
bool debugEnabled();                     // "DebugLogs" in api.ini, read afresh
void deleteOldFiles(int days, const QDate& today);
}
