#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The evaluation of a tour written down a second time, as plainly as it can be said and with no
/// code of the program: whole seconds, lists, and the rules one after the other.
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

/// All rows of the report, their eleven columns parted by "|"; nothing where there is no report.
/// The touches stand in the order of time, those of one instant in the order of storing.
QStringList Report(const QList<Point>& points, const QList<Touch>& touches, Options options);

} // namespace PlainTour
