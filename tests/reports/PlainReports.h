#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// A second computation of the reports, as plain as possible and with no code of the reports: whole
/// seconds, lists, and the rules one after the other. It reads these structs, never the store.
///
/// A null QString is a null of the store. Seconds count from 30 December 1899.
namespace PlainReports {

using Seconds = qint64;

struct Group {
    int id;
    std::optional<int> type;
    QString name, description;
};

struct Button {
    int id;
    std::optional<int> group;
    QString code, name, description;
};

struct Reader {
    QString id, description;
};

struct Point {
    std::optional<int> index;
    std::optional<Seconds> interval;
    QString code;
};

struct Tour {
    int id;
    QString name, description;
    std::optional<int> tolerance;
    std::optional<Seconds> start;
    QList<Point> points; ///< in the order of storing
};

struct Event {
    std::optional<Seconds> downloaded, time;
    QString reader, code, name, description;
    std::optional<int> type;
    QString groupName, groupDescription;
};

/// All lists are in the order of storing.
struct Site {
    Seconds now = 0;
    QString company; ///< all lines
    QList<Group> groups;
    QList<Button> buttons;
    QList<Reader> readers;
    QList<Tour> tours;
    QList<Event> events;
};

/// From the first second to the last one, both included.
struct Range {
    Seconds from, to;
};

struct Outcome {
    QByteArray json; ///< empty if there is no report. Without the ID of a row.
    QString message;
    /// What is printed by the controls of these names; in the detail, for the last row.
    QHash<QString, QString> printed;
};

QStringList EventCodes(const Site& site);
QStringList SiteNames(const Site& site);

/// Without a name in `readers` or `codes`, all of them are meant.
Outcome Incident(const Site& site, Range range, const QStringList& readers,
                 const QStringList& codes);
/// A null text stands for "All".
Outcome IncidentSites(const Site& site, Range range, const QString& code, const QString& place,
                      const QString& reader);
Outcome Schedule(const Site& site, int tour);
Outcome Downloads(const Site& site, Range range, const QString& reader);
Outcome Hardware(const Site& site, bool locations, bool events, bool readers);
Outcome Database(const Site& site, Range range);

} // namespace PlainReports
