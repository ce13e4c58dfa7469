#pragma once

#include <QString>

/// The application folder before the store in it is opened.

/// True if nobody has worked in the folder yet, so that a store may be made in it: it is the user's
/// data folder, and it does not exist or holds nothing but what the user may have put there before
/// the first start. If anything else is there, a missing store has been lost, and that must be
/// said. A folder that the user named is never new: it may be a disk that is not mounted.
bool IsNewStoreFolder();

/// Makes the user's data folder, for the user alone. Does nothing if it exists or cannot be made.
void MakeUserDataFolder();

/// Why the programs cannot work in the application folder, and what to do, translated; empty if
/// they can.
QString FaultOfStoreFolder();
