#pragma once

#include <QString>

/// The engine's journal beside a store: what a transaction that a dying process left half done has
/// overwritten.
QString JournalOf(const QString& storePath);

/// The engine rolls a journal back into whatever file bears the store's name. If somebody has put
/// another file there since then, such as a backup, that would ruin it.
///
/// So a journal is tried on a copy of the store first. If the copy is sound, or there is no
/// journal, this does nothing. If the copy is not sound, though the store without the journal is,
/// the journal belongs to another file: it is renamed, and its new path is the result. Where no
/// copy can be made, nothing is known and nothing is done. The store must be locked by the caller.
QString SetForeignJournalAside(const QString& storePath, const QString& password);
