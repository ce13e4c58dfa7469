#pragma once

#include "Connection.h"
#include "Recordset.h"

/// The tables of the store as text: what a dump holds. Everything here throws RunTimeError.

/// Takes the text piece by piece, in UTF-8.
using TakeText = std::function<void(const QByteArray& text)>;

/// The open store a second time, only for reading. Every password in it is a row of dots, however
/// it is asked for.
std::unique_ptr<Connection> OpenForReading();

/// Opens the rows of one statement that only reads. They are fetched one by one, so a dump of any
/// size takes little memory. Throws if it is empty, several statements, holds comments, or names
/// the schema "main".
void OpenReading(Recordset& rows, const QString& statement, Connection& store);

/// What the dump of a table is made from. Throws if the store has no such table or view. The name
/// may be in capitals or not.
QString StatementForTable(const QString& table, Connection& store);

inline const QString SchemaTitle = QStringLiteral("Report Schema");
/// "Report for query '...'"
QString TitleForQuery(const QString& statement);

/// Writes the title, an empty line, and the rows under the names and types of their columns
/// (FieldTypes.h). A null is blank. A date is in the user's locale. A line break or control
/// character in a value becomes a blank, so each row is one line. Long values are not cut.
void WriteRecordSet(Recordset& rows, const QString& title, const TakeText& take);

/// Writes the title, an empty line, and the names of all tables and views but the engine's own.
void WriteSchema(Connection& store, const QString& title, const TakeText& take);
