#pragma once

// Creates the data directory, moves legacy configuration files out of the working directory into
// it and rewrites the suspend script. Runs before the application object exists.
void migrateFiles();
