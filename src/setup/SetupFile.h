#pragma once

#include <QByteArray>

/// All definitions in one JSON document, for entering many at once and for copying them to another
/// store:
///
///     { "groups":  [ { "type": "site", "name": "Quay", "description": "",
///                      "buttons": [ { "code": "1A40C2", "name": "Crane" } ] } ],
///       "readers": [ { "id": "4B5831A7", "description": "Night reader" } ],
///       "tours":   [ { "name": "Night", "description": "", "start": "22:30", "tolerance": 5,
///                      "points": [ { "minutes": 0, "button": "1A40C2" } ] } ] }
///
/// A group's type is "site", "event book" or "user group". Lists and descriptions may be left out,
/// except a reader's description, which is its name. Nothing else is allowed. A point whose button
/// has been deleted has "deleted": true.

/// The definitions in the store. Throws RunTimeError.
QByteArray ExportSetup();

/// Adds the definitions of the document to the store, in one transaction. The rules are those of
/// the editors: names, codes, neighbours, tolerance, total time. On the first fault nothing is
/// changed, and RunTimeError names the entry and the fault.
void ImportSetup(const QByteArray& document);
