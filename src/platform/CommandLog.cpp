#include "CommandLog.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>
#include <QMutexLocker>

namespace CommandLog {

void record(const QString& program, const QStringList& arguments, bool detached)
{
    if (qEnvironmentVariableIsEmpty("NORBIX_COMMAND_LOG"))
        return;
    QJsonObject line;
    line.insert(QStringLiteral("program"), program);
    line.insert(QStringLiteral("args"), QJsonArray::fromStringList(arguments));
    line.insert(QStringLiteral("detached"), detached);
    append(line);
}

void append(const QJsonObject& line)
{
    const QString path = qEnvironmentVariable("NORBIX_COMMAND_LOG");
    if (path.isEmpty())
        return;
    const QByteArray bytes = QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
    // Commands are started from worker threads too (session clients); keep lines whole.
    static QMutex mutex;
    QMutexLocker locker(&mutex);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append))
        file.write(bytes);
}

} // namespace CommandLog
