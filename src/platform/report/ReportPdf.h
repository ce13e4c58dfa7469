#pragma once

#include "DataReport.h"

class QIODevice;

/// Writes all pages of a report as PDF; `title` goes into the document's properties. The same
/// report at the same time (Clock.h) gives the same bytes. False if `progress` ended it. Throws
/// RunTimeError where it fails.

/// To a device that is open for writing. Of a job that did not end well it holds a part.
bool ExportPdf(const DataReport& report, QIODevice& device, const QString& title,
               const PageProgress& progress = {});

/// To a file, which is replaced if it exists; but only by a complete one.
bool ExportPdf(const DataReport& report, const QString& path, const QString& title,
               const PageProgress& progress = {});
