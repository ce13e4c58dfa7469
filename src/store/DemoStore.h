#pragma once

#include "DateTime.h"

#include <QString>

class Connection;

/// The demonstration installation: two sites with their location buttons, an event book, a reader,
/// two tours, one of them over midnight, and the two operators.
namespace DemoStore {

inline const QString ReaderId = QStringLiteral("4B5831A7");
/// The keys of the two tours.
inline constexpr int DayTour = 1;
inline constexpr int NightTour = 2;

void Fill(Connection& connection);

} // namespace DemoStore
