#pragma once

#include <QString>

class Connection;

/// The demonstration installation: two sites with their location buttons, an event book, a reader,
/// two tours, one of which passes midnight, and the two operators.
namespace DemoStore {

inline const QString ReaderId = QStringLiteral("4B5831A7");
void Fill(Connection& connection);

} // namespace DemoStore
