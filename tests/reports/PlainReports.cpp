#include "PlainReports.h"

#include <QDateTime>

#include <algorithm>
#include <map>

namespace {

using namespace PlainReports;

// Texts. "Short Date" is "d MMM yyyy" and "Short Time" is "HH:mm".

QString TextOf(Seconds time, const char* pattern) {
    const QDateTime start(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
    return start.addSecs(time).toString(QString::fromLatin1(pattern));
}

QString DateText(Seconds time) { return TextOf(time, "d MMM yyyy"); }

QString ClockText(Seconds time) { return TextOf(time, "HH:mm"); }

QString ClockWithSeconds(Seconds time) { return TextOf(time, "HH:mm:ss"); }

QString DateAndClock(Seconds time, int blanks) {
    return DateText(time) + QString(blanks, u' ') + ClockText(time);
}

// What the store means by equal and by less.

bool Same(const QString& one, const QString& other) {
    return !one.isNull() && !other.isNull() && one == other;
}

int Compared(const QString& one, const QString& other) {
    if (one.isNull() || other.isNull())
        return int(other.isNull()) - int(one.isNull());
    return one.compare(other, Qt::CaseInsensitive);
}

Outcome Refused(const QString& message) { return {{}, message, {}, {}}; }

using Captions = QHash<QString, QString>;

/// The texts of a row.
using Line = QStringList;

Outcome Shown(const Site& site, const QString& title, const QList<Line>& lines, Captions captions) {
    captions.insert({{"lblReportTitle", title}, {"lblCompanyInfo", site.company}});
    QStringList rows;
    for (const Line& line : lines)
        rows += u'|' + line.join(u'|');
    return {title, {}, rows, captions};
}

Captions IncidentLabels(const Site& site, Range range) {
    return {{"lblReportDate", DateAndClock(site.now, 3)},
            {"Label17", DateAndClock(range.from, 3)},
            {"Label18", DateAndClock(range.to, 3)}};
}

QString RangeText(Range range) {
    return "Date Range:   From " + DateAndClock(range.from, 1) + " to " + DateAndClock(range.to, 1);
}

QList<Event> EventsWithin(const Site& site, Range range) {
    QList<Event> events;
    for (const Event& event : site.events)
        if (event.time && range.from <= *event.time && *event.time <= range.to)
            events += event;
    return events;
}

/// Those of one instant in the order of storing.
QList<Event> EventsByTime(const Site& site, Range range) {
    QList<Event> events = EventsWithin(site, range);
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
    QStringList wanted = readers;
    if (readers.isEmpty())
        for (const Reader& reader : site.readers)
            wanted += reader.id;
    const auto isRead = [&](const QString& id) { return !id.isNull() && wanted.contains(id); };
    QList<Button> chosen;
    for (const Group& group : site.groups)
        for (const Button& button : site.buttons)
            if (group.type == 2 && button.group == group.id &&
                (codes.isEmpty() || (!button.code.isNull() && codes.contains(button.code))))
                chosen += button;
    if (chosen.isEmpty())
        return Refused("There must be at least one event selected to create a report");
    QList<Event> events = EventsWithin(site, range); // not sorted by time
    events.removeIf([&](const Event& event) { return !isRead(event.reader); });
    if (events.isEmpty())
        return Refused("No records for the given parameters");

    QList<Line> lines;
    for (const Button& incident : chosen) {
        lines += Line{"", "", ""};
        lines += Line{
            incident.name + " [" + incident.code + "] -- " + GroupOf(site, incident)->name, "", ""};
        const qsizetype headed = lines.size();
        const Event* location = nullptr;
        for (const Event& event : events) {
            if (event.type == 1)
                location = &event;
            else if (event.type == 2 && location && event.code == incident.code)
                lines += Line{"", DateAndClock(*location->time, 1),
                              location->name + ", " + location->groupName + ",  Reader " +
                                  location->reader};
        }
        if (lines.size() == headed)
            lines += Line{"", "", "No incidents of this type were recorded"};
    }
    return Shown(site, "Incident Report", lines, IncidentLabels(site, range));
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
    for (const Button& button : site.buttons)
        if (const Group* group = GroupOf(site, button);
            eventId < 0 && group && group->type == 2 && Same(button.code, code)) {
            eventId = button.id;
            eventName = button.name;
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
    for (const Event& event : EventsByTime(site, range))
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
            lastSite = group.name;
            lastLocation = button.name;
        }
        if ((eventId > 0 && button.id != eventId) ||
            (!reader.isEmpty() && event.reader != reader) || (siteId >= 1 && lastSiteId != siteId))
            continue;
        const QString incident = group.type == 1 ? "" : button.name;
        lines += Line{DateText(*event.time), ClockText(*event.time),
                      taught.description,    lastSite,
                      lastLocation,          incident};
    }
    if (lines.isEmpty())
        return Refused("No Data on the report");
    Captions labels = IncidentLabels(site, range);
    labels.insert({{"Label14", eventName}, {"Label15", readerName}, {"Label16", siteName}});
    return Shown(site, "Incidents And Locations Report", lines, labels);
}

Outcome PlainReports::Downloads(const Site& site, Range range, const QString& reader) {
    if (range.from > range.to)
        return Refused("The start date cannot be later than the end date");
    std::map<std::optional<Seconds>, QList<Event>> blocks;
    for (const Event& event : EventsByTime(site, range))
        if (Same(event.reader, reader))
            blocks[event.downloaded] += event;
    if (blocks.empty())
        return Refused("There is no data to show for these parameters");
    QList<Line> lines;
    for (const auto& [downloaded, events] : blocks)
        for (const Event& event : events)
            lines += Line{downloaded ? DateText(*downloaded) : "",
                          downloaded ? ClockWithSeconds(*downloaded) : "",
                          DateText(*event.time),
                          ClockText(*event.time),
                          event.code,
                          event.name,
                          event.description,
                          event.groupName};
    QString description;
    for (const Reader& taught : site.readers)
        if (Same(taught.id, reader))
            description = taught.description;
    return Shown(
        site, "Reader Download Report", lines,
        {{"lblReaderID", reader + " (" + description + ")"}, {"lblDateRange", RangeText(range)}});
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
        return name + (description.isEmpty() ? "" : " - " + description);
    };
    QList<Line> lines;
    int lastType = 0, lastGroup = 0;
    for (const auto& [group, button] : buttons) {
        if (group.type.value_or(0) != lastType) {
            for (const char* text :
                 {"", group.type == 1 ? "Locations" : "Incidents", "--------------------"})
                lines += Line{text, "", "", ""};
            lastType = *group.type;
        }
        if (group.id != lastGroup)
            lines += Line{"", described(group.name, group.description), "", ""};
        lastGroup = group.id;
        lines += Line{"", "", described(button.name, button.description), button.code};
    }
    if (readers) {
        for (const char* text : {"", "Readers", "---------------------"})
            lines += Line{text, "", "", ""};
        for (const Reader& reader : site.readers)
            lines += Line{"", "", reader.description, reader.id};
    }
    return Shown(site, "Hardware List Report", lines, {});
}

Outcome PlainReports::Database(const Site& site, Range range) {
    const QList<Event> events = EventsByTime(site, range);
    if (events.isEmpty())
        return Refused("No Data on the report");
    QList<Line> lines;
    for (const Event& event : events)
        lines += Line{DateText(*event.time),
                      ClockText(*event.time),
                      event.code,
                      event.name,
                      event.groupName,
                      event.type == 1   ? "Location"
                      : event.type == 2 ? "Event"
                                        : ""};
    return Shown(site, "Database Report", lines, {{"lblDateRange", RangeText(range)}});
}
