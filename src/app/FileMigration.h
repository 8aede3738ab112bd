#pragma once

// Creates the data directory, moves legacy configuration files out of the working directory into
// it and rewrites the suspend script. Runs before the application object exists.
void migrateFiles();

// Removes what a write cut short by a power loss leaves in the data directory (and its wallpaper
// and 802.1X folders): the lock files of the INI writers and the temporary copies "<file>.XXXXXX" that a whole-
// file write renames into place. The shell is the only writer, so at start-up all of them are
// stale; a lock left alone whose recorded process number a new shell happens to get again would
// stall the first write for half a minute, and the copies would pile up.
void removeWriteLeftovers();
