#pragma once

#include "DataReport.h"

class QIODevice;

/// Writes all pages of a report as PDF. The document's properties are the report's title, author
/// and language. The same report at the same time (Clock.h) gives the same bytes. False if
/// `progress` cancelled it. Throws RunTimeError if it fails.

/// To a device that is open for writing. After a failure it holds part of the document.
bool ExportPdf(const DataReport& report, QIODevice& device, const WorkProgress& progress = {});

/// To a file. An existing file is replaced, but only by a complete document.
bool ExportPdf(const DataReport& report, const QString& path, const WorkProgress& progress = {});
