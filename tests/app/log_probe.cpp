// Logs through the shell's handler and then, on request, crashes; the logging tests read what it
// leaves on the console and in the log file.
#include "CrashHandler.h"
#include "Logging.h"

#include <QtGlobal>

#include <cstring>

static void logEveryLevel()
{
    qDebug("debug line");
    qInfo("info line");
    qWarning("warning line ü");
    qCritical("critical line");
}

int main(int argc, char* argv[])
{
    qInstallMessageHandler(customMessageOutput);
    installCrashHandler();
    const char* mode = argc > 1 ? argv[1] : "levels";
    if (!std::strcmp(mode, "levels")) {
        logEveryLevel();
    } else if (!std::strcmp(mode, "segv")) {
        // A write to the unmapped first page (not to null, which the sanitizer build reports first).
        volatile int* volatile unmapped = reinterpret_cast<int*>(64);
        *unmapped = 1;
    } else if (!std::strcmp(mode, "fatal")) {
        qFatal("fatal line");
    }
    return 0;
}
