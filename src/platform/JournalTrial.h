#pragma once

#include <QString>

/// The engine's journal beside a store: what a transaction that a dying process left half done has
/// overwritten.
QString JournalOf(const QString& storePath);

/// The engine rolls a journal back into whatever file bears the store's name. If somebody has put
/// another file there since then, such as a backup, that would ruin it.
///
/// So a journal is tried on a copy of the store first. It belongs to another file if the copy is
/// not sound after that, or if the store has fewer pages than the journal says it had, while the
/// store is sound without it. It is then renamed, and its new path is the result.
///
/// A journal of a later state of the same file can pass unseen if its rollback leaves every table
/// and index sound. Where no copy can be made, nothing is known and nothing is done. The store must
/// be locked by the caller.
QString SetForeignJournalAside(const QString& storePath, const QString& password);
