#pragma once

#include <QString>

class RunTimeError;

/// Why a store could not be opened, for the operator: translated, and without numbers.
QString CauseOf(const RunTimeError& error, const QString& storePath);

/// Why a copy of the store could not be made, likewise.
QString CauseOfCopyFailure(const RunTimeError& error, const QString& copyPath);

/// Tells the operator that a journal beside the store belonged to another file, and where it is
/// now.
void TellOfForeignJournal(const QString& journalPath);
