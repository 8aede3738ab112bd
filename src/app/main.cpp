#include "Shell.h"

int main(int argc, char* argv[])
{
    return runShell(argc, argv);
}
