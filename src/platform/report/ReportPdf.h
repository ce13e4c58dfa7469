#pragma once

#include <QString>

class DataReport;
class QIODevice;

/// Writes all pages of a report as PDF; `title` goes into the document's properties. The same
/// report at the same time (Clock.h) gives the same bytes. Throws RunTimeError where that fails.

/// To a device that is open for writing. After a failure it holds part of a document.
void ExportPdf(const DataReport& report, QIODevice& device, const QString& title);

/// To a file, which is replaced if it exists. A failure leaves it as it was.
void ExportPdf(const DataReport& report, const QString& path, const QString& title);
