#pragma once

#include <QByteArray>
#include <QString>

/// A statement of the store's SQL dialect, translated for the engine. Every statement passes
/// through here:
///
/// | dialect                    | engine                                             |
/// |----------------------------|----------------------------------------------------|
/// | `DELETE * FROM`            | `DELETE FROM`                                      |
/// | `#2026-11-21 22:05:00#`    | days since 30 December 1899 as a number            |
/// | `"text"`                   | `'text'`                                           |
/// | `autoincrement`            | `INTEGER PRIMARY KEY AUTOINCREMENT`                |
/// | `memo`, `VARCHAR`          | `TEXT`                                             |
/// | `ORDER BY tName`           | ignoring case, equal texts in the order of storing  |
/// | a SELECT with no ORDER BY  | the order of storing                               |
///
/// The order of storing is, for a join, that of its tables as they are named: the first table's
/// rows in their order, for each of them the second's, and so on. A LIMIT counts the rows in that
/// order. The rows of a query in FROM, and of a table named in quotes, come as the engine gives
/// them. A name in brackets, `[my table]`, stays as it is.
struct EngineSql {
    QByteArray text;
    /// The table that a recordset on the statement writes to: the one after FROM. Empty for a join
    /// and for anything but a SELECT.
    QString table;
    /// The last column of the result is the row's key, which the caller did not ask for.
    bool hasRowKey = false;
};

/// The collation for ordered text. It ignores case (a, B, c).
inline constexpr char PeopleCollation[] = "PEOPLE";

/// With `withRowKey`, a SELECT from one table also fetches the row's key, so that rows can be
/// written back. Throws RunTimeError (TypeMismatch) if a date literal is not a date.
EngineSql TranslateSql(const QString& statement, bool withRowKey = false);
