#pragma once

#include "PlainTour.h"
#include "RecordingViewer.h"
#include "ScriptedBoxes.h"
#include "TestHome.h"

/// The place of the tour tests: location buttons A to D of the site "Site" and event buttons e and
/// f of the book "Book". A button named X has the code XXXXXX. Button X is on tours but not
/// defined.
namespace TourSite {

/// 29 March 2026, a day on which local clocks leave out an hour, in seconds of the store's count.
inline constexpr qint64 Day = qint64{46110} * 86'400;

QString CodeOf(QChar name);
/// 1 for capitals, 2 for e and f, 0 for anything else.
int TypeOf(QChar name);

/// "08:00 A, 08:30:30 B": times and buttons, of a tour or of touches. Hours may go beyond 24.
struct Stop {
    qint64 time; ///< seconds since midnight
    QString name;
};
QList<Stop> Stops(const QString& text);

void Define();
/// Adds a tour that starts with its first point; gives its number.
int AddTour(const QString& points, int tolerance);
void AddTouches(const QString& touches, const QString& reader = QStringLiteral("4B5831A7"));

/// The rows of a report, shortened: rules as "_", tour lines as the button and its status, the
/// others as time, button and word, with commas between.
QString Shortened(const QStringList& rows);

} // namespace TourSite
