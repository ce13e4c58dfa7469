#pragma once

#include <QString>

/// True for a file that the program itself makes or replaces in the folder of a store that is open
/// here: the store, its lock file, its journal, copies of the store, the log. Nothing else may be
/// written there: a result under such a name would be lost, or would ruin the store. The file need
/// not exist.
bool IsOwnFile(const QString& path);
