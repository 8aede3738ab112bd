#pragma once

#include <QByteArray>

#include <optional>

// The CPU and memory figures the "status" request reports.
namespace SystemLoad {

struct CpuTimes {
    unsigned long long user = 0;
    unsigned long long nice = 0;
    unsigned long long system = 0;
    unsigned long long idle = 0;
};

// The first line of /proc/stat ("cpu  user nice system idle ..."); nothing when it does not fit.
std::optional<CpuTimes> parseCpuLine(const QByteArray& line);
// Busy share between two readings in whole percent; -1 when a counter went backwards (wrapped).
int cpuPercent(const CpuTimes& previous, const CpuTimes& current);
// Used share of RAM in whole percent, computed in single precision as the kernel figures come.
int memoryPercent(unsigned long totalRam, unsigned long freeRam, unsigned int memUnit);

// Live figures. The CPU figure is measured against the previous call (the first reading is taken
// when the program starts).
int cpuLoad();
int memoryLoad();

} // namespace SystemLoad
