#pragma once

#include "TunnelOptions.h"

namespace tunnel {

// Connects, presents the token and relays until either side ends; the exit code says how it went.
// Every step is logged on standard error as one line starting with "tunnel: ".
ExitCode runTunnel(const Options& options);

} // namespace tunnel
