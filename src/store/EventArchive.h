#pragma once

#include "DateTime.h"
#include "StoreFailure.h"
#include "WorkProgress.h"

#include <QString>

#include <optional>

/// The archive of old events: a file of comma-separated text, to which the events of some days are
/// moved. It cannot be read back. These routines use gConn and throw RunTimeError.

/// The first and the last day. The first begins a second after midnight: a touch at midnight itself
/// stays in the store. The last ends at 23:59:59. No event is in a range that ends before it
/// starts.
struct ArchiveRange {
    DateTime StartDate;
    DateTime EndDate;
};

/// How many events there are to archive.
int CountArchived(const ArchiveRange& range);

/// "Archive2026-11-01_to_2026-11-21.csv".
QString ArchiveFileName(const ArchiveRange& range);

/// The file could not be written; the store did not fail.
class ArchiveNotSaved : public ExplainedError {
public:
    using ExplainedError::ExplainedError;
};

/// Writes the events to a new file and deletes them from the store, in one transaction. The events
/// are deleted only after the file is complete and on the disk, and the file gets its name only
/// after that. A killed program leaves all events in the store, in the file, or in both.
///
/// Gives the number of events, or nothing if `progress` has cancelled it. Throws ArchiveNotSaved if
/// the file cannot be written. If it is cancelled or throws, nothing is deleted and no file is
/// left, with one exception: if the store's commit fails, the file is left, and the text of the
/// failure says so.
std::optional<int> ArchiveEventsOf(const ArchiveRange& range, const QString& path,
                                   const WorkProgress& progress);

/// What is said after that, translated.
QString ArchivedText(int events, const QString& path);
