#pragma once

// Creates the data directory, moves legacy configuration files out of the working directory into
// it and rewrites the suspend script. Runs before the application object exists.
void migrateFiles();

// Removes the lock files a writer of the INI files leaves when the power is cut mid-write. The
// shell is the only writer, so at start-up every lock is stale; left alone, one whose recorded
// process number a new shell happens to get again would stall the first write for half a minute.
void removeStaleLocks();
