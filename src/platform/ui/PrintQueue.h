#pragma once

#include <QStringList>

class QPrinter;

/// The printing system of the machine. It takes whole files if PrintsFiles says so.

extern const bool PrintsFiles;

/// Hands a printed file over to the queue of a printer, with the settings of that printer. Throws
/// RunTimeError.
void SendToPrinter(const QPrinter& printer, const QString& path);

/// Settings from the print dialog that QPrinter does not hold. Names and values alternate.
QStringList SystemOptions(const QPrinter& printer);

/// Options that are not passed on. The pages are chosen by us, by the page numbers of the report,
/// and must not be chosen again among the sheets of the job.
inline const QString PageRangesOption = QStringLiteral("page-ranges");
inline const QString PageSetOption = QStringLiteral("page-set");

/// Throws the failure of a print job. `reason` may be empty.
[[noreturn]] void PrintingFailed(const QPrinter& printer, const QString& reason = {});
