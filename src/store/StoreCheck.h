#pragma once

#include <QMap>
#include <QStringList>

class Connection;

/// The permanent tables and columns that a store lacks: "tblEvents" for a table,
/// "tblEvents.tPipeID" for a column. Empty if it has them all. Throws RunTimeError.
QStringList MissingParts(Connection& store);

/// What a check of a store found.
struct StoreFindings {
    bool opened = true;
    /// The first fault in the file itself; empty if none. If it was not opened, why.
    QString damage;
    QStringList missing;     ///< MissingParts
    QMap<QString, int> rows; ///< by the table's name
    /// How many references of a kind lead nowhere, by the kind's name in JSON. Events refer to
    /// nothing: they are copies.
    QMap<QString, int> lost;

    /// What is wrong, translated. Empty if nothing is.
    QStringList Faults() const;
};

/// Checks a store from its first page to its last. It goes on after a fault as far as it can, so
/// it throws nothing.
StoreFindings ExamineStore(Connection& store);
