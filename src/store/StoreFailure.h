#pragma once

#include <QString>

class RunTimeError;

/// Why a store could not be opened, in the operator's language and words.
QString CauseOf(const RunTimeError& error, const QString& storePath);

/// Says that a journal lay beside the store that belonged to another file, and where it is now.
void TellOfForeignJournal(const QString& journalPath);
