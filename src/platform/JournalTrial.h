#pragma once

#include <QString>

/// The path of the engine's journal beside a store. If a process was killed during a transaction,
/// the journal holds what the transaction had overwritten.
QString JournalOf(const QString& storePath);

/// Renames a journal that does not belong to the store, and gives its new path.
///
/// The engine rolls a journal back into any file that has the store's name. If somebody has put
/// another file there, such as a backup, that would ruin it. So the journal is first tried on a
/// copy of the store. It belongs to another file if the store is sound without it, and either the
/// copy is damaged by it or the store has fewer pages than the journal says.
///
/// A journal of a later state of the same file is not noticed if its rollback leaves every table
/// and index sound. If no copy can be made, nothing is done. The caller must have locked the store.
QString SetForeignJournalAside(const QString& storePath, const QString& password);
