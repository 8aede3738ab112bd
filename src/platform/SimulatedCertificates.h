#pragma once

#include "SimulatedTerminal.h"

// The certificate tools of the simulated terminal (openssl, cp and rm under sudo,
// update-ca-certificates): they act on the sandbox's files, so imports and removals show up in the
// certificate list as they would on a terminal.
namespace SimulatedCertificates {

std::optional<SimulatedTerminal::Answer> answer(const QString& program, const QStringList& arguments);

// A demo authority in the local CA directory and files to import on the demo USB drive.
void seedSandbox();

} // namespace SimulatedCertificates
