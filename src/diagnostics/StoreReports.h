#pragma once

#include "WorkProgress.h"

#include <QString>

class Connection;
class Recordset;

/// Dumps of the store as text files. An older file is replaced. Everything here throws
/// RunTimeError, and then an older file stays as it was.

/// Writes the rows of an open recordset into a file.
void ReportRecordSet(Recordset& rows, const QString& file, const QString& title);
/// Writes the names of all tables and views into a file.
void ReportSchema(Connection& connection, const QString& file, const QString& title);

/// ReportRecordSet for a statement that reads (StoreDump.h). False if `progress` has cancelled it:
/// then no file is written.
bool ArchiveEvents(const QString& sql, const QString& file, const WorkProgress& progress);
