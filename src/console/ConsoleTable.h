#pragma once

#include <QJsonValue>
#include <QList>
#include <QStringList>

/// A list that a command prints, for people and for scripts.
struct ConsoleTable {
    QStringList columns; ///< their JSON names; as headings they are in capitals
    QList<QList<QJsonValue>> rows;
};

/// Writes the list to standard output: aligned columns under their headings, or a JSON array with
/// an object for each row.
void WriteTable(const ConsoleTable& table, bool json);
