#pragma once

#include "SimulatedTerminal.h"

// The input and peripheral devices of the simulated terminal: two pointers with acceleration, the
// keyboard layouts, two sound sinks and a microphone, CUPS queues, the USB bus, the wallpaper. The
// commands change this model, so what a screen sets reads back changed.
namespace SimulatedDevices {

std::optional<SimulatedTerminal::Answer> answer(const QString& program, const QStringList& arguments);

// Pictures on the demo drive and USB storage switched on, as a terminal image ships.
void seedSandbox();

// Back to the terminal as it left the factory (tests).
void reset();

} // namespace SimulatedDevices
