#pragma once

#include "SimulatedTerminal.h"

// The input and peripheral devices of the simulated terminal: two pointers with acceleration, the
// keyboard layouts, two sound sinks and a microphone, CUPS queues, the USB bus, the wallpaper. The
// commands change this model, so what a screen sets reads back changed.
namespace SimulatedDevices {

std::optional<SimulatedTerminal::Answer> answer(const QString& program, const QStringList& arguments);

// Back to the terminal as it left the factory (tests).
void reset();

} // namespace SimulatedDevices
