#pragma once

#include <QStringList>

class Connection;

/// The tables and views of a store, without the engine's own. Throws RunTimeError.
QStringList TablesOf(Connection& store);
QStringList ViewsOf(Connection& store);

/// How many rows a table of any name has. Throws RunTimeError.
int CountRows(const QString& table, Connection& store);

/// True if gConn has a table of exactly this name. Throws RunTimeError.
bool TableExists(const QString& name);
