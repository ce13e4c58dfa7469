#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A second evaluation of a tour, as plain as possible and with no code of the program: whole
/// seconds, lists, and the rules one after the other.
namespace PlainTour {

struct Point {
    qint64 time; ///< seconds
    QString code, place;
    int index;
};

struct Touch {
    qint64 time; ///< seconds
    int type;    ///< 1 location, 2 event, others take no part
    QString code, details;
};

struct Options {
    int tolerance; ///< minutes
    bool showAll, includeEvents;
};

/// All rows of the report, with "|" between the eleven columns; empty if there is no report.
/// The touches stand in the order of time, those of one instant in the order of storing.
QStringList Report(const QList<Point>& points, const QList<Touch>& touches, Options options);

} // namespace PlainTour
