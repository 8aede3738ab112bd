#pragma once

#include <QString>

// Every absolute path the shell opens, lists or creates goes through here. With NORBIX_ROOT set
// (tests, the simulated terminal) the path is taken under that directory; command arguments are
// never rewritten, only the files the shell touches itself.
namespace SystemPaths {

inline constexpr const char* kDataDir = "/data/norbix";

// The real location of an absolute system path, e.g. resolve("/data/norbix/api.ini").
QString resolve(const QString& absolutePath);

// resolve() of a file inside the data directory, e.g. dataFile("api.ini").
QString dataFile(const QString& name);

// The sandbox root, empty on a real terminal.
QString root();

} // namespace SystemPaths
