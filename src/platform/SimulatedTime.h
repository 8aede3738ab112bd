#pragma once

#include "SimulatedTerminal.h"

// The clock of the simulated terminal: timedatectl with a time zone, a network-time switch and a
// set time that stick, and the time-sync file installed with sudo rm / sudo cp.
namespace SimulatedTime {

std::optional<SimulatedTerminal::Answer> answer(const QString& program, const QStringList& arguments);

// Back to Europe/Berlin, network time on, the real clock (tests).
void reset();

} // namespace SimulatedTime
