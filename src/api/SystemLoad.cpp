#include "SystemLoad.h"

#include "SystemPaths.h"

#include <QFile>

#include <cstdio>
#include <sys/sysinfo.h>

namespace {

SystemLoad::CpuTimes readCpuTimes()
{
    // The kernel's own file; a sandbox may hold a recorded one.
    QString path = SystemPaths::resolve(QStringLiteral("/proc/stat"));
    if (!QFile::exists(path))
        path = QStringLiteral("/proc/stat");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return SystemLoad::parseCpuLine(file.readLine()).value_or(SystemLoad::CpuTimes{});
}

SystemLoad::CpuTimes& previousReading()
{
    static SystemLoad::CpuTimes times = readCpuTimes();
    return times;
}

// Take the first reading when the program starts, not at the first request.
const bool g_firstReading = (previousReading(), true);

} // namespace

std::optional<SystemLoad::CpuTimes> SystemLoad::parseCpuLine(const QByteArray& line)
{
    CpuTimes times;
    const QByteArray text = line + '\0';
    if (std::sscanf(text.constData(), "cpu %llu %llu %llu %llu", &times.user, &times.nice, &times.system, &times.idle) != 4)
        return std::nullopt;
    return times;
}

int SystemLoad::cpuPercent(const CpuTimes& previous, const CpuTimes& current)
{
    if (current.user < previous.user || current.nice < previous.nice || current.system < previous.system
        || current.idle < previous.idle)
        return -1;
    const unsigned long long busy = (current.user - previous.user) + (current.nice - previous.nice)
        + (current.system - previous.system);
    const unsigned long long total = busy + (current.idle - previous.idle);
    if (total == 0)
        return 0; // two readings within one tick
    return int(double(busy) / double(total) * 100.0);
}

int SystemLoad::memoryPercent(unsigned long totalRam, unsigned long freeRam, unsigned int memUnit)
{
    const float total = float(totalRam) * float(memUnit);
    if (total <= 0.0f)
        return 0;
    const float used = (float(totalRam) - float(freeRam)) * float(memUnit);
    return int(used / total * 100.0f);
}

int SystemLoad::cpuLoad()
{
    (void)g_firstReading;
    const CpuTimes current = readCpuTimes();
    const int percent = cpuPercent(previousReading(), current);
    previousReading() = current;
    return percent;
}

int SystemLoad::memoryLoad()
{
    struct sysinfo info {};
    if (sysinfo(&info) != 0)
        return 0;
    return memoryPercent(info.totalram, info.freeram, info.mem_unit);
}
