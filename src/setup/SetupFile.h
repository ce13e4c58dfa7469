#pragma once

#include <QByteArray>

/// All definitions as one JSON document, for setting up in bulk and for moving a set-up to another
/// store:
///
///     { "groups":  [ { "type": "site", "name": "Quay", "description": "",
///                      "buttons": [ { "code": "1A40C2", "name": "Crane", "description": "" } ] }
///                      ],
///       "readers": [ { "id": "4B5831A7", "description": "Night reader" } ],
///       "tours":   [ { "name": "Night", "description": "", "start": "22:30", "tolerance": 5,
///                      "points": [ { "minutes": 0, "button": "1A40C2" } ] } ] }
///
/// A group's type is "site", "event book" or "user group". Every list may be left out, and every
/// description but a reader's, which is its name; nothing else may stand in it. A point whose
/// button has been deleted carries "deleted": true.

/// What the store holds. Throws RunTimeError.
QByteArray ExportSetup();

/// Adds what the document holds to what the store holds, in one transaction, under the rules that
/// the editors keep: names, codes, neighbours, tolerance, total time. On the first fault nothing is
/// changed, and RunTimeError tells the entry and the fault.
void ImportSetup(const QByteArray& document);
