#pragma once

#include "SimulatedTerminal.h"
#include "SystemBus.h"

// The network of the simulated terminal: a wired and a Wi-Fi device, a few networks in range,
// NetworkManager profiles, the radio and the 802.1X section of the first settings connection.
// nmcli, iw, ping and the settings connection's bus methods act on it, so what the screens change
// reads back changed.
namespace SimulatedNetwork {

std::optional<SimulatedTerminal::Answer> answer(const QString& program, const QStringList& arguments);
std::optional<QVariantList> busAnswer(const BusCall& call);

// Back to the terminal as it comes from the image (tests).
void reset();

} // namespace SimulatedNetwork
