#pragma once

#include <QByteArray>
#include <QString>

/// The store's SQL dialect, put into the engine's. Every statement passes through here:
///
/// | dialect                    | engine                                             |
/// |----------------------------|----------------------------------------------------|
/// | `DELETE * FROM`            | `DELETE FROM`                                      |
/// | `#2026-11-21 22:05:00#`    | days since 30 December 1899 as a number            |
/// | `"text"`                   | `'text'`                                           |
/// | `autoincrement`            | `INTEGER PRIMARY KEY AUTOINCREMENT`                |
/// | `memo`, `VARCHAR`          | `TEXT`                                             |
/// | `ORDER BY tName`           | not sensitive to case, ties in the order of storing|
/// | a SELECT with no ORDER BY  | the order of storing                               |
struct EngineSql {
    QByteArray text;
    /// The table that a recordset on the statement writes to: the one behind FROM. Empty for a
    /// join and for anything but a SELECT.
    QString table;
    /// The last column of the result is the row's key and not the caller's.
    bool hasRowKey = false;
};

/// The collation of ordered text: as people expect it (a, B, c).
inline constexpr char PeopleCollation[] = "PEOPLE";

/// With `withRowKey` a SELECT from one table also fetches the row's key, so that rows can be
/// written back. Throws RunTimeError (TypeMismatch) for a date literal that is no date.
EngineSql TranslateSql(const QString& statement, bool withRowKey = false);
