// tunnel: the terminal's end of a remote-assistance session (see --help and the README).

#include "TunnelOptions.h"
#include "TunnelSession.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

void onStop(int)
{
    static const char message[] = "tunnel: stopped\n";
    (void)!::write(STDERR_FILENO, message, sizeof message - 1);
    ::_exit(tunnel::kRelayEnded);
}

} // namespace

int main(int argc, char** argv)
{
    const tunnel::ParseResult parsed = tunnel::parseArguments(std::vector<std::string>(argv + 1, argv + argc));
    if (!parsed.options) {
        std::fprintf(stderr, "tunnel: %s\n\n%s", parsed.error.c_str(), tunnel::usage().c_str());
        return tunnel::kUsage;
    }
    if (parsed.options->help) {
        std::fputs(tunnel::usage().c_str(), stdout);
        return 0;
    }
    std::signal(SIGPIPE, SIG_IGN);
    // The shell ends assistance with SIGTERM: that is an ordinary end, not a failure.
    std::signal(SIGTERM, onStop);
    std::signal(SIGINT, onStop);
    return tunnel::runTunnel(*parsed.options);
}
