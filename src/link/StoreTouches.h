#pragma once

#include "cRawButton.h"

#include <QString>

/// Writes one row of tblEvents for each touch, in one transaction. When it returns, the rows are
/// committed and on the disk.
///
/// Throws RunTimeError if a row cannot be written. The rows before it stay, unless the engine
/// itself has rolled them back, for example on a full disk. In any case `stored` becomes the number
/// of touches in the store. Rows that stay are noted in tblTempDownload: if the next download of
/// that reader begins with exactly these touches, it replaces them, so that no touch is stored
/// twice.
void StoreTouches(const colRawButtons& touches, const QString& readerId, int& stored);
