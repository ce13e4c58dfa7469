#pragma once

#include "WorkProgress.h"

#include <QMap>
#include <QString>

#include <optional>

class Connection;

/// Copies of a store, and whether they are complete. Everything here throws RunTimeError.

/// How many rows each table of a store has, by the table's name.
QMap<QString, int> RowsPerTable(Connection& store);

/// Reads a file and passes its bytes to `write`. It counts in units of 64 KiB. False if `progress`
/// has cancelled it. A file that changes while it is copied is a failure.
bool CopyBytes(const QString& from, const std::function<void(const QByteArray&)>& write,
               const WorkProgress& progress);

/// Opens a copy of a store without changing it. Throws if it is no store with this password.
void OpenCopy(Connection& copy, const QString& path);

/// Checks a store from its first page to its last. Gives the first fault, an empty text if there is
/// none, and nothing if `progress` has cancelled it.
std::optional<QString> FaultOf(Connection& store, const WorkProgress& progress);

/// Checks a copy from its first page to its last. Throws if it is damaged, or if it does not have
/// the same tables with the same numbers of rows as `original`. False if `progress` has cancelled.
bool ProveCopy(const QString& path, const QMap<QString, int>& original,
               const WorkProgress& progress);
