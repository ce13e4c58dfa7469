#pragma once

#include <QString>

/// Compacts the store and checks whether it is sound.

/// Checks the store and rewrites it without its waste: a copy into the temporary file, which then
/// atomically replaces the store. If the store is a symbolic link, the copy is made beside the
/// link's target. A failure leaves the store as it was and is only logged. Afterwards gStoreDamaged
/// says whether the store's own content was the cause.
void CompactStore(const QString& provider, const QString& path, const QString& tempPath,
                  const QString& password);

/// Removes the copies that a killed compaction or restore has left. The store must be open in
/// gConn: only then is it certain that no other program is working on them.
void RemoveLeftoverCopies(const QString& tempPath);

/// Checks the store that is open in gConn, without compacting it, and sets gStoreDamaged.
void CheckStore();

/// If gStoreDamaged is set, tells the operator so, and what to do.
void TellOfDamage();
