#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class RunTimeError;

/// The tables that a report fills with its lines while it is built and shown. They lie in the
/// store. If its disk is full they lie in memory, so that reports can be read all the same. All of
/// it works on gConn and throws RunTimeError.

/// Drops the table if it is there, and makes it afresh with columns of nullable text.
void MakeScratchTable(const QString& name, const QStringList& columns);
/// If the table is not there, nothing happens.
void DropScratchTable(const QString& name);

/// Runs `build`, which makes and fills scratch tables; if the store cannot take them, runs it once
/// more with tables in memory. So up to its first table `build` must not show anything or change
/// what it works on.
void WithScratchTables(const std::function<void()>& build);
/// For a handler within `build`: throws the failure on if it is one that memory helps against.
void PassOnIfMemoryHelps(const RunTimeError& error);
