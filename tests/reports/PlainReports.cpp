#include "PlainReports.h"

#include "ReportExport.h"

#include <QDate>

#include <algorithm>
#include <map>

namespace {

using namespace PlainReports;

// Texts. "Short Date" is "d MMM yyyy" and "Short Time" is "HH:mm".

constexpr Seconds Day = 86'400;

Seconds TimeOfDay(Seconds time) { return (time % Day + Day) % Day; }

QString Two(Seconds number) { return QString::number(number).rightJustified(2, u'0'); }

QString DateText(Seconds time) {
    static const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const QDate date = QDate(1899, 12, 30).addDays((time - TimeOfDay(time)) / Day);
    return QString::number(date.day()) + u' ' + months[date.month() - 1] + u' ' +
           QString::number(date.year()).rightJustified(4, u'0');
}

QString ClockText(Seconds time) {
    return Two(TimeOfDay(time) / 3600) + u':' + Two(TimeOfDay(time) / 60 % 60);
}

QString ClockWithSeconds(Seconds time) { return ClockText(time) + u':' + Two(time % 60); }

QString DateAndClock(Seconds time, int blanks) {
    return DateText(time) + QString(blanks, u' ') + ClockText(time);
}

/// As other programs read it; null for none.
QString MachineText(std::optional<Seconds> time) {
    if (!time)
        return {};
    const QDate date = QDate(1899, 12, 30).addDays((*time - TimeOfDay(*time)) / Day);
    return date.toString(Qt::ISODate) + u'T' + ClockWithSeconds(*time);
}

QString Filled(const QString& text) { return text.isNull() ? QString("") : text; }

// What the store means by equal and by less.

bool Same(const QString& one, const QString& other) {
    return !one.isNull() && !other.isNull() && one == other;
}

int Compared(const QString& one, const QString& other) {
    if (one.isNull() || other.isNull())
        return int(other.isNull()) - int(one.isNull());
    return one.compare(other, Qt::CaseInsensitive);
}

// Rows as JSON.

using Rows = QList<QByteArray>;

/// Columns without a value are null.
QByteArray Row(const QStringList& columns, const QStringList& values) {
    QByteArray row;
    for (int i = 0; i < columns.size(); ++i)
        row += (i ? ", " : "") + JsonText(columns[i]) + ": " +
               (values.value(i).isNull() ? QByteArray("null") : JsonText(values[i]));
    return '{' + row + '}';
}

QByteArray List(const Rows& rows) {
    return rows.isEmpty() ? "[\n]" : "[\n" + rows.join(",\n") + "\n]";
}

Outcome Refused(const QString& message) { return {{}, message, {}}; }

Outcome Shown(const Site& site, const QString& title, const Rows& rows,
              QHash<QString, QString> printed) {
    printed["lblReportTitle"] = title;
    printed["lblCompanyInfo"] = site.company;
    return {"{\"title\": " + JsonText(title) + ", \"rows\": " + List(rows) + "}\n", {}, printed};
}

/// The values of a row, those at its end left out if they are null.
using Line = QStringList;

/// `controls` print the first columns.
Outcome Shown(const Site& site, const QString& title, const QStringList& columns,
              const QStringList& controls, const QList<Line>& lines,
              QHash<QString, QString> printed) {
    Rows rows;
    for (const Line& line : lines)
        rows += Row(columns, line);
    for (int i = 0; i < controls.size() && !lines.isEmpty(); ++i)
        printed[controls[i]] = lines.last().value(i);
    return Shown(site, title, rows, printed);
}

QHash<QString, QString> IncidentLabels(const Site& site, Range range) {
    return {{"lblReportDate", DateAndClock(site.now, 3)},
            {"Label17", DateAndClock(range.from, 3)},
            {"Label18", DateAndClock(range.to, 3)}};
}

QString RangeText(Range range) {
    return "Date Range:   From " + DateAndClock(range.from, 1) + " to " + DateAndClock(range.to, 1);
}

const QStringList ScratchColumns = {"Field0", "Field1", "Field2", "Field3", "Field4",
                                    "Field5", "Field6", "Field7", "Field8", "Field9"};

/// Sorted by time; those of one instant in the order of storing.
template <typename Wanted>
QList<Event> EventsByTime(const Site& site, Range range, Wanted wanted) {
    QList<Event> events;
    for (const Event& event : site.events)
        if (event.time && range.from <= *event.time && *event.time <= range.to && wanted(event))
            events += event;
    std::stable_sort(events.begin(), events.end(),
                     [](const Event& a, const Event& b) { return *a.time < *b.time; });
    return events;
}

const Group* GroupOf(const Site& site, const Button& button) {
    for (const Group& group : site.groups)
        if (group.id == button.group)
            return &group;
    return nullptr;
}

} // namespace

QStringList PlainReports::EventCodes(const Site& site) {
    QStringList codes;
    for (const Button& button : site.buttons)
        if (const Group* group = GroupOf(site, button))
            if (group->type == 2 && !button.code.isNull() && !codes.contains(button.code))
                codes += button.code;
    return codes;
}

QStringList PlainReports::SiteNames(const Site& site) {
    QStringList names;
    for (const Group& group : site.groups)
        if (group.type == 1 && !group.name.isEmpty())
            names += group.name;
    return names;
}

Outcome PlainReports::Incident(const Site& site, Range range, const QStringList& readers,
                               const QStringList& codes) {
    if (readers.isEmpty() && site.readers.isEmpty())
        return Refused("You must add at least one reader before this report can be used");
    for (const QString& code : codes)
        if (!EventCodes(site).contains(code))
            return Refused("No event has the code " + code + ".");
    const auto isRead = [&](const QString& id) {
        for (const Reader& reader : site.readers)
            if (readers.isEmpty() && Same(id, reader.id))
                return true;
        return !id.isNull() && readers.contains(id);
    };
    QList<Button> chosen;
    for (const Group& group : site.groups)
        for (const Button& button : site.buttons)
            if (group.type == 2 && button.group == group.id &&
                (codes.isEmpty() || (!button.code.isNull() && codes.contains(button.code))))
                chosen += button;
    if (chosen.isEmpty())
        return Refused("There must be at least one event selected to create a report");
    QList<Event> events;
    for (const Event& event : site.events) // not sorted by time
        if (event.time && range.from <= *event.time && *event.time <= range.to &&
            isRead(event.reader))
            events += event;
    if (events.isEmpty())
        return Refused("No records for the given parameters");

    QList<Line> lines;
    for (const Button& incident : chosen) {
        lines += Line{"", "", ""};
        lines += Line{Filled(incident.name) + " [" + incident.code + "] -- " +
                          GroupOf(site, incident)->name,
                      "", ""};
        bool found = false;
        const Event* location = nullptr;
        for (const Event& event : events) {
            if (event.type == 1)
                location = &event;
            else if (event.type == 2 && location && event.code == incident.code) {
                lines += Line{"", DateAndClock(*location->time, 1),
                              Filled(location->name) + ", " + location->groupName + ",  Reader " +
                                  location->reader};
                found = true;
            }
        }
        if (!found)
            lines += Line{"", "", "No incidents of this type were recorded"};
    }
    return Shown(site, "Incident Report", ScratchColumns, {"txtEvent", "Text1", "Text3"}, lines,
                 IncidentLabels(site, range));
}

Outcome PlainReports::IncidentSites(const Site& site, Range range, const QString& code,
                                    const QString& place, const QString& reader) {
    if (site.readers.isEmpty())
        return Refused("You must add at least one reader before this report can be used");
    if (!code.isNull() && !EventCodes(site).contains(code))
        return Refused("No event has the code " + code + ".");
    if (!place.isNull() && !SiteNames(site).contains(place))
        return Refused("There is no site named " + place + ".");
    QString eventName = "All", siteName = "All", readerName = "All";
    int eventId = -1, siteId = -1;
    for (const Button& button : site.buttons) {
        const Group* group = GroupOf(site, button);
        if (eventId < 0 && group && group->type == 2 && Same(button.code, code)) {
            eventId = button.id;
            eventName = Filled(button.name);
        }
    }
    for (const Group& group : site.groups)
        if (siteId < 0 && group.type == 1 && Same(group.name, place)) {
            siteId = group.id;
            siteName = group.name;
        }
    for (int i = 0; i < site.readers.size(); ++i)
        if (Same(site.readers[i].id, reader))
            readerName = site.readers[i].description.isEmpty() ? "Reader " + QString::number(i + 1)
                                                               : site.readers[i].description;

    struct Touch {
        Event event;
        Button button;
        Group group;
        Reader reader;
    };
    QList<Touch> touches;
    for (const Event& event : EventsByTime(site, range, [](const Event&) { return true; }))
        for (const Button& button : site.buttons)
            for (const Reader& taught : site.readers)
                if (const Group* group = GroupOf(site, button);
                    group && Same(event.code, button.code) && Same(event.reader, taught.id))
                    touches += {event, button, *group, taught};
    std::stable_sort(touches.begin(), touches.end(), [](const Touch& a, const Touch& b) {
        return *a.event.time != *b.event.time ? *a.event.time < *b.event.time
                                              : Compared(a.reader.id, b.reader.id) < 0;
    });

    QList<Line> lines;
    QString lastSite = "", lastLocation = "";
    int lastSiteId = 0;
    for (const auto& [event, button, group, taught] : touches) {
        if (group.type == 1) {
            lastSiteId = group.id;
            lastSite = Filled(group.name);
            lastLocation = Filled(button.name);
        }
        if ((eventId > 0 && button.id != eventId) ||
            (!reader.isEmpty() && event.reader != reader) || (siteId >= 1 && lastSiteId != siteId))
            continue;
        lines += Line{DateText(*event.time),
                      ClockText(*event.time),
                      Filled(taught.description),
                      lastSite,
                      lastLocation,
                      group.type == 1 ? "" : Filled(button.name)};
    }
    if (lines.isEmpty())
        return Refused("No Data on the report");
    QHash<QString, QString> labels = IncidentLabels(site, range);
    labels.insert({{"Label14", eventName}, {"Label15", readerName}, {"Label16", siteName}});
    return Shown(site, "Incidents And Locations Report",
                 {"tDate", "tTime", "tReaderName", "tSite", "tLocation", "tIncident"},
                 {"Text1", "txtTime", "Text2", "Text5", "Text3", "Text4"}, lines, labels);
}

Outcome PlainReports::Schedule(const Site& site, int id) {
    const auto tour = std::find_if(site.tours.begin(), site.tours.end(),
                                   [&](const Tour& each) { return each.id == id; });
    if (id < 1 || tour == site.tours.end())
        return Refused("Error in creating new Tour");
    if (tour->tolerance > 59 || tour->tolerance.value_or(0) < 0)
        return Refused("Error 13");
    const Seconds tolerance = tour->tolerance.value_or(0) * 60;
    QList<Point> points = tour->points;
    std::stable_sort(points.begin(), points.end(),
                     [](const Point& a, const Point& b) { return a.index < b.index; });
    Seconds now = tour->start.value_or(0);
    QList<Line> lines;
    for (const Point& point : points) {
        const auto line = [&](const QString& place, const QString& location) {
            now += point.interval.value_or(0);
            lines += Line{QString::number(lines.size() + 1),
                          ClockText(now) + "     (" + ClockText(now - tolerance) + " ~ " +
                              ClockText(now + tolerance) + ")",
                          place + " ", location + " "};
        };
        bool defined = false;
        for (const Button& button : site.buttons)
            if (Same(button.code, point.code)) {
                const Group* group = GroupOf(site, button);
                line(group ? group->name : QString(), button.name);
                defined = true;
            }
        if (!defined)
            line({}, {});
    }
    return Shown(site, "Patrol Schedule Report", {"tNumber", "tTime", "tSite", "tLocName"},
                 {"txttLocDesc", "txttTime", "txttSite", "txttLocName"}, lines,
                 {{"lblTourName", tour->name},
                  {"lblTourDesc", tour->description},
                  {"lblTolerance", QString::number(tolerance / 60) + "  Minutes"}});
}

Outcome PlainReports::Downloads(const Site& site, Range range, const QString& reader) {
    if (range.from > range.to)
        return Refused("The start date cannot be later than the end date");
    std::map<std::optional<Seconds>, QList<Event>> blocks;
    for (const Event& event :
         EventsByTime(site, range, [&](const Event& each) { return Same(each.reader, reader); }))
        blocks[event.downloaded] += event;
    if (blocks.empty())
        return Refused("There is no data to show for these parameters");
    Rows list;
    for (const auto& [downloaded, events] : blocks) {
        Rows rows;
        for (const Event& event : events)
            rows += Row({"dtDLDateTime", "dtDateTime", "tButtonCode", "tButtonDesc", "tButtonName",
                         "tGroupDesc", "tGroupName", "tPipeId"},
                        {MachineText(downloaded), MachineText(event.time), event.code,
                         event.description, event.name, event.groupDescription, event.groupName,
                         event.reader});
        QByteArray head = Row({"dtDLDateTime"}, {MachineText(downloaded)});
        head.chop(1);
        list += head + ", \"ReaderEvents\": " + List(rows) + '}';
    }
    QString description;
    for (const Reader& taught : site.readers)
        if (Same(taught.id, reader))
            description = taught.description;
    const auto& [downloaded, events] = *blocks.rbegin();
    const Event& last = events.last();
    return Shown(site, "Reader Download Report", list,
                 {{"lblReaderID", reader + " (" + description + ")"},
                  {"lblDateRange", RangeText(range)},
                  {"txtDtDate", downloaded ? DateText(*downloaded) : QString()},
                  {"txtDtTime", downloaded ? ClockWithSeconds(*downloaded) : QString()},
                  {"txtDate", DateText(*last.time)},
                  {"txtTime", ClockText(*last.time)},
                  {"txttButtonCode", last.code},
                  {"txttButtonName", last.name},
                  {"txttButtonDesc", last.description},
                  {"txttGroupName", last.groupName}});
}

Outcome PlainReports::Hardware(const Site& site, bool locations, bool events, bool readers) {
    struct Defined {
        Group group;
        Button button;
    };
    QList<Defined> buttons;
    for (const Button& button : site.buttons)
        if (const Group* group = GroupOf(site, button))
            if ((locations || (group->type && group->type != 1)) &&
                (events || (group->type && group->type != 2)))
                buttons += {*group, button};
    std::stable_sort(buttons.begin(), buttons.end(), [](const Defined& a, const Defined& b) {
        if (a.group.type != b.group.type)
            return a.group.type < b.group.type;
        const int byGroup = Compared(a.group.name, b.group.name);
        return byGroup ? byGroup < 0 : Compared(a.button.name, b.button.name) < 0;
    });

    const auto described = [](const QString& name, const QString& description) {
        return Filled(name) + (description.isEmpty() ? "" : " - " + description);
    };
    QList<Line> lines;
    const QString none;
    int lastType = 0, lastGroup = 0;
    for (const auto& [group, button] : buttons) {
        if (group.type.value_or(0) != lastType) {
            lines += {Line{""}, Line{group.type == 1 ? "Locations" : "Incidents"},
                      Line{"--------------------"}};
            lastType = *group.type;
        }
        if (group.id != lastGroup)
            lines += Line{none, described(group.name, group.description)};
        lastGroup = group.id;
        lines += Line{none, none, described(button.name, button.description), Filled(button.code)};
    }
    if (readers) {
        lines += {Line{""}, Line{"Readers"}, Line{"---------------------"}};
        for (const Reader& reader : site.readers)
            lines += Line{none, none, Filled(reader.description), Filled(reader.id)};
    }
    return Shown(site, "Hardware List Report", ScratchColumns,
                 {"txtDate", "Text2", "Text4", "Text3"}, lines, {});
}

Outcome PlainReports::Database(const Site& site, Range range) {
    const QList<Event> events = EventsByTime(site, range, [](const Event&) { return true; });
    if (events.isEmpty())
        return Refused("No Data on the report");
    QList<Line> lines;
    for (const Event& event : events)
        lines += Line{DateText(*event.time) + ' ' + ClockWithSeconds(*event.time),
                      Filled(event.code),
                      Filled(event.name),
                      Filled(event.description),
                      Filled(event.groupName),
                      event.type == 1   ? "Location"
                      : event.type == 2 ? "Event"
                                        : ""};
    const Line& last = lines.last();
    return Shown(
        site, "Database Report",
        {"tDateTime", "tButtonCode", "tButtonName", "tLocationDesc", "tGroupName", "tType"}, {},
        lines,
        {{"lblDateRange", RangeText(range)},
         {"txtDate", DateText(*events.last().time)},
         {"txtTime", ClockText(*events.last().time)},
         {"Text2", last[1]},
         {"Text4", last[2]},
         {"Text3", last[4]},
         {"Text5", last[5]}});
}
