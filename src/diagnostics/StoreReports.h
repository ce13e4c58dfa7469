#pragma once

#include <QString>

class Connection;
class Recordset;

/// Dumps of the store as text files that are opened for reading. Failures are shown in a box.

/// What a dump needs from outside.
class DumpView {
public:
    virtual ~DumpView() = default;
    /// Called now and then while a dump is made. False cancels it: then there is no file.
    virtual bool GoOn() = 0;
    /// The file is written, or will not be. May be called again.
    virtual void End() = 0;
    /// Opens a text file. False if the desktop has no program for it.
    virtual bool OpenText(const QString& path) = 0;
};

/// Writes the rows of an open recordset into a file, in place of an older one, and opens it. If it
/// cannot be opened, a box says where it is.
void ReportRecordSet(Recordset& rows, const QString& file, const QString& title, DumpView& view);
/// The same for the names of all tables and views.
void ReportSchema(Connection& connection, const QString& file, const QString& title,
                  DumpView& view);

/// ReportRecordSet for a statement that reads (StoreDump.h).
void ArchiveEvents(const QString& sql, const QString& file, DumpView& view);
