#include "CrashHandler.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <execinfo.h>
#include <unistd.h>

void handler(int signal)
{
    void* frames[10];
    const int count = backtrace(frames, 10);
    std::fprintf(stderr, "Error: signal %d:\n", signal);
    std::fflush(stderr);
    backtrace_symbols_fd(frames, count, STDERR_FILENO);
    _exit(1);
}

void installCrashHandler()
{
    std::signal(SIGSEGV, handler);
}
