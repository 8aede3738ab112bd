#include "Logging.h"

#include "SystemPaths.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QSettings>
#include <QTextStream>

#include <sys/stat.h>

#include <csignal>
#include <cstdio>

namespace {
QMutex g_logMutex;

[[noreturn]] void crashDeliberately()
{
    // A fatal message ends in the crash handler, which prints the stack and exits with status 1.
    volatile int* volatile nowhere = nullptr;
    *nowhere = 0;
    std::raise(SIGSEGV);
    std::_Exit(1);
}
} // namespace

namespace Logging {

QString logDirectory()
{
    return QDir::homePath() + QStringLiteral("/logs");
}

QString logFilePath(const QDate& day)
{
    return QDir::homePath() + QStringLiteral("/logs/log-%1.txt").arg(day.toString(QStringLiteral("dd-MM-yyyy")));
}

bool debugEnabled()
{
    return QSettings(SystemPaths::dataFile(QStringLiteral("api.ini")), QSettings::IniFormat)
        .value(QStringLiteral("DebugLogs"), false)
        .toBool();
}

void deleteOldFiles(int days, const QDate& today)
{
    const QFileInfoList files = QDir(logDirectory() + QLatin1Char('/'))
                                    .entryInfoList({QStringLiteral("*.txt")}, QDir::Files, QDir::Unsorted);
    for (const QFileInfo& info : files) {
        // Birth time where the file system keeps it, the inode change time otherwise.
        const QDateTime created = info.birthTime().isValid() ? info.birthTime() : info.metadataChangeTime();
        if (created.date().daysTo(today) > days && QFile::remove(info.absoluteFilePath()))
            qDebug().noquote() << QStringLiteral("File ") + info.absoluteFilePath() + QStringLiteral(" is deleted!");
    }
}

} // namespace Logging

void deleteoldfiles(int days)
{
    // Called after every message, so a busy session (a VNC frame logs one) must not list and stat
    // the folder each time: which files are too old changes only with the date or when files come
    // or go, and either changes the key below.
    static struct {
        int days = -1;
        QDate today;
        timespec folderChanged{};
    } last;
    const QDate today = QDate::currentDate();
    struct stat folder {};
    const bool known = ::stat(QFile::encodeName(Logging::logDirectory()).constData(), &folder) == 0;
    if (known && last.days == days && last.today == today && last.folderChanged.tv_sec == folder.st_mtim.tv_sec
        && last.folderChanged.tv_nsec == folder.st_mtim.tv_nsec)
        return;
    Logging::deleteOldFiles(days, today);
    // What the pruning itself removed changed the folder again: take the time after it.
    if (known && ::stat(QFile::encodeName(Logging::logDirectory()).constData(), &folder) == 0)
        last = {days, today, folder.st_mtim};
}

namespace {

// The switch as debug messages see it. They can come once a frame (a VNC session logs every
// update): the file is read again only when it is another file or has changed, not per message.
bool debugWanted()
{
    static struct {
        bool known = false;
        bool enabled = false;
        ino_t inode = 0;
        off_t size = 0;
        timespec changed{};
    } last;
    struct stat file {};
    if (::stat(QFile::encodeName(SystemPaths::dataFile(QStringLiteral("api.ini"))).constData(), &file) != 0)
        file = {};
    if (last.known && last.inode == file.st_ino && last.size == file.st_size && last.changed.tv_sec == file.st_mtim.tv_sec
        && last.changed.tv_nsec == file.st_mtim.tv_nsec)
        return last.enabled;
    last = {true, Logging::debugEnabled(), file.st_ino, file.st_size, file.st_mtim};
    return last.enabled;
}

} // namespace

void customMessageOutput(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    QMutexLocker locker(&g_logMutex);
    if (type == QtDebugMsg && !debugWanted())
        return;

    const QDateTime now = QDateTime::currentDateTime();
    const QByteArray stamp = now.toString(QStringLiteral("dd.MM.yy hh:mm:ss.zzz")).toUtf8();
    const QByteArray function = context.function ? QByteArray(context.function) : QByteArray();
    const unsigned line = static_cast<unsigned>(context.line);
    const QByteArray text = message.toUtf8();

    QDir home(QDir::homePath());
    if (!home.exists(QStringLiteral("logs")))
        home.mkdir(QStringLiteral("logs"));

    QFile file(Logging::logFilePath(now.date()));
    // Without a writable log directory the console still gets every line.
    QByteArray unwritable;
    QTextStream out(&unwritable);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text))
        out.setDevice(&file);
    out.setCodec("UTF-8");
    const QString prefix = QLatin1Char('[') + QString::fromUtf8(stamp) + QStringLiteral("] [") + QString::fromUtf8(function)
        + QLatin1Char('@') + QString::number(line) + QStringLiteral("] ");

    auto console = [&](FILE* stream, const char* level) {
        std::fprintf(stream, "[%s] [%s@%u] [%s] %s\r\n", stamp.constData(), function.constData(), line, level, text.constData());
        std::fflush(stream);
    };

    switch (type) {
    case QtDebugMsg:
        std::fprintf(stdout, "[%s] [%s@%u] [DEBUG] %s\n", stamp.constData(), function.constData(), line, text.constData());
        std::fflush(stdout);
        out << prefix << message << Qt::endl;
        break;
    case QtInfoMsg:
        console(stdout, "INFO");
        out << prefix << "[INFO] " << message << Qt::endl;
        break;
    case QtWarningMsg:
        console(stdout, "WARNING");
        out << prefix << "[WARNING] " << message << Qt::endl;
        break;
    case QtCriticalMsg:
        console(stderr, "CRITICAL");
        out << prefix << "[CRITICAL] " << message << Qt::endl;
        break;
    case QtFatalMsg:
        console(stderr, "FATAL");
        out << prefix << "[FATAL] " << message << Qt::endl;
        out.flush();
        file.close();
        crashDeliberately();
    }

    out.flush();
    file.close();
    deleteoldfiles(7);
}
