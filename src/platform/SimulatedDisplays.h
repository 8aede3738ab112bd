#pragma once

#include "SimulatedTerminal.h"

// The monitors of the simulated terminal: two monitors as recorded from a real terminal's xrandr,
// which follow the xrandr commands the shell runs (mode, rate, rotation, primary, placement, and
// "-s 0"), so a changed layout reads back changed.
namespace SimulatedDisplays {

std::optional<SimulatedTerminal::Answer> answer(const QString& program, const QStringList& arguments);

// Back to the recorded layout (tests).
void reset();

} // namespace SimulatedDisplays
