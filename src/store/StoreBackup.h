#pragma once

#include "WorkProgress.h"

#include <QString>

/// Copies the open store to a new file. The copy is made beside its place under another name,
/// written to the disk, opened with the store's password, checked, and compared with the store: the
/// same tables with the same numbers of rows. Only then does it get its name. An existing file is
/// never replaced.
///
/// False if `progress` has cancelled it. Throws RunTimeError. In both cases no file is left.
bool BackUpStore(const QString& target, const WorkProgress& progress);
