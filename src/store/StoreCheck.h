#pragma once

#include <QStringList>

class Connection;

/// The permanent tables and columns that a store lacks: "tblEvents" for a table,
/// "tblEvents.tPipeID" for a column. Empty if it has them all. Throws RunTimeError.
QStringList MissingParts(Connection& store);
