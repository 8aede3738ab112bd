#pragma once

#include <QString>

// The two things the settings import and export need from the management-server client's file
// (/data/norbix/api.ini): the terminal's name and clearing it.
namespace AgentSettings {

inline constexpr const char* kFile = "api.ini";
inline constexpr const char* kIdKey = "Id";

// The terminal's name, made by the management-server client when none is stored.
QString terminalId();
// An imported api.ini must not give this terminal another terminal's name: the client makes a
// new one from this terminal's own hardware when it next needs it.
void clearTerminalId();

} // namespace AgentSettings
