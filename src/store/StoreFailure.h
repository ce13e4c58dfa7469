#pragma once

#include "RunTimeError.h"

/// A failure whose description is for the operator: translated, and without numbers.
class ExplainedError : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

/// Why a store, or a file that is made from it, could not be opened, read or written, for the
/// operator: translated, and without numbers. `storePath`: the store, in case another program uses
/// it.
QString CauseOf(const RunTimeError& error, const QString& storePath);

/// Tells the operator that a report could not be made from the open store, and why. The log has the
/// failure already.
void TellOfReportFailure(const RunTimeError& error);

/// Tells the operator that a journal beside the store belonged to another file, and where it is
/// now.
void TellOfForeignJournal(const QString& journalPath);
