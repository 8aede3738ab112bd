#pragma once

// Prints the call stack (at most 10 frames) to standard error and exits with status 1.
[[noreturn]] void handler(int signal);
void installCrashHandler();
