#pragma once

// The whole start-up of the shell; returns the event loop's exit code.
int runShell(int argc, char* argv[]);
