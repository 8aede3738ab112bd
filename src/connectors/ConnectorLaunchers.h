#pragma once

#include "ConnectionManager.h"

// The launcher of every ConnectionType: which connector starts a record of that kind. Start-up
// hands the table to the catalogue, which knows no connector itself.
namespace ConnectorLaunchers {

QHash<int, ConnectionManager::Launcher> table();
// ConnectionManager::setLaunchers(table()).
void install();

} // namespace ConnectorLaunchers
