#pragma once

#include "cRawButton.h"

#include <QString>

/// Writes one row of tblEvents for each touch, in one transaction. They are committed, and so on
/// disk, when this returns.
///
/// Throws RunTimeError if a row cannot be written. Those before it stay, unless the engine had to
/// take them back, as on a full disk. `stored` becomes the number of touches that the store holds,
/// in any case. A part that stays is noted in tblTempDownload; the next download of that reader, if
/// it begins with exactly these touches, takes its place, so that none is there twice.
void StoreTouches(const colRawButtons& touches, const QString& readerId, int& stored);
