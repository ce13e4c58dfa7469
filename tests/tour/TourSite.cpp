#include "TourSite.h"

#include "DateTime.h"
#include "LookUps.h"
#include "Recordset.h"

namespace {

DateTime Seconds(qint64 seconds) { return DateTime::FromMilliseconds(seconds * 1000); }

void Add(const QString& table, const QList<QPair<QString, Value>>& columns) {
    Recordset rows;
    rows.Open(table, *gConn, adOpenForwardOnly, adLockOptimistic, adCmdTable);
    rows.AddNew();
    for (const auto& [name, value] : columns)
        rows.Set(name, value);
    rows.Update();
}

} // namespace

QString TourSite::CodeOf(QChar name) { return QString(6, name); }

int TourSite::TypeOf(QChar name) {
    return name.isUpper() ? 1 : name == u'e' || name == u'f' ? 2 : 0;
}

QList<TourSite::Stop> TourSite::Stops(const QString& text) {
    QList<Stop> stops;
    for (const QString& entry : text.split(", ", Qt::SkipEmptyParts)) {
        const QStringList parts = entry.split(u' ');
        const QStringList clock = parts[0].split(u':');
        stops +=
            {(clock[0].toInt() * 60 + clock[1].toInt()) * 60 + clock.value(2).toInt(), parts[1]};
    }
    return stops;
}

void TourSite::Define() {
    Add("tblListItems", {{"wType", 1}, {"tName", QString("Site")}});
    Add("tblListItems", {{"wType", 2}, {"tName", QString("Book")}});
    for (const QChar name : QString("ABCDef"))
        Add("tblButtons", {{"lParentID", TypeOf(name)},
                           {"tButtonCode", CodeOf(name)},
                           {"tButtonName", QString(name)}});
}

int TourSite::AddTour(const QString& points, int tolerance) {
    const QList<Stop> stops = Stops(points);
    const int tour = CountTours() + 1;
    Add("tblTours", {{"tName", QString("Round")},
                     {"tDesc", QString("of tests")},
                     {"iTolerance", tolerance},
                     {"dtStartTime", Seconds(stops.isEmpty() ? 0 : stops[0].time)}});
    qint64 before = stops.isEmpty() ? 0 : stops[0].time;
    int index = 0;
    for (const Stop& stop : stops) {
        Add("tblTourPoints", {{"lParentID", tour},
                              {"lIndex", ++index * 10},
                              {"dtTime", Seconds(stop.time - before)},
                              {"tButtonCode", CodeOf(stop.name[0])}});
        before = stop.time;
    }
    return tour;
}

void TourSite::AddTouches(const QString& touches, const QString& reader) {
    for (const Stop& stop : Stops(touches)) {
        const QChar name = stop.name[0];
        Add("tblEvents", {{"tPipeID", reader},
                          {"dtDateTime", Seconds(Day + stop.time)},
                          {"tButtonCode", CodeOf(name)},
                          {"tButtonName", QString(name)},
                          {"wGroupType", TypeOf(name)},
                          {"tGroupName", QString(TypeOf(name) == 2 ? "Book" : "Site")}});
    }
}

QString TourSite::Shortened(const QStringList& rows) {
    QStringList lines;
    for (const QString& row : rows) {
        const QStringList columns = row.split(u'|');
        const QString text = columns[7] == QString(255, u'_')
                                 ? QString(u'_')
                                 : columns[8] + u' ' + columns[10] + columns[5] + columns[7] +
                                       u' ' + columns[6] + columns[9];
        lines += QString(text).remove("Site - ").remove("Book - ").simplified();
    }
    return lines.join(", ");
}
