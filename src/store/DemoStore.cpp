#include "DemoStore.h"

#include "Connection.h"
#include "DateTime.h"
#include "Recordset.h"

namespace {

struct Button {
    const char* code;
    const char* name;
    const char* description;
};

struct Group {
    int type;
    const char* name;
    const char* description;
    QList<Button> buttons;
};

struct Point {
    int minutes; ///< since the previous point
    const char* code;
};

struct Tour {
    const char* name;
    const char* description;
    int tolerance;
    DateTime start;
    QList<Point> points;
};

const QList<Group>& Groups() {
    static const QList<Group> groups = {
        {1,
         "Harbour Warehouse",
         "Pier 4, north side",
         {{"1A40C2", "Main gate", "Left post, knee height"},
          {"1A40C7", "Loading bay 2", "Beside the roller door"},
          {"1A41D0", "Cold store", "Compressor room door"},
          {"1A422B", "Quay stairs", "Top step rail"}}},
        {1,
         "Office Tower",
         "Kestrel Street 12",
         {{"2C0918", "Reception", "Behind the desk"},
          {"2C0A31", "Server room", "Door frame, right"},
          {"2C0B5E", "Roof door", "Inside, by the switch"},
          {"2C0C77", "Garage level 1", "Pillar C4"}}},
        {2,
         "Incidents",
         "Carried by every guard",
         {{"7E0001", "Door found open", ""},
          {"7E0002", "Light left on", ""},
          {"7E0003", "Water leak", ""},
          {"7E0004", "Fire extinguisher missing", ""}}},
    };
    return groups;
}

const QList<Tour>& Tours() {
    static const QList<Tour> tours = {
        {"Day round",
         "Office Tower, once a day",
         5,
         DateTime::FromTime(14, 0),
         {{0, "2C0918"}, {15, "2C0A31"}, {20, "2C0B5E"}, {25, "2C0C77"}}},
        {"Night round",
         "Harbour Warehouse, over midnight",
         5,
         DateTime::FromTime(23, 15),
         {{0, "1A40C2"}, {20, "1A40C7"}, {20, "1A41D0"}, {20, "1A422B"}, {25, "1A40C2"}}},
    };
    return tours;
}

void FillGroups(Connection& connection) {
    Recordset groups;
    groups.CursorLocation = adUseClient;
    groups.Open(QStringLiteral("SELECT * FROM tblListItems ;"), connection);
    Recordset buttons;
    buttons.CursorLocation = adUseClient;
    buttons.Open(QStringLiteral("SELECT * FROM tblButtons ;"), connection);
    for (const Group& group : Groups()) {
        groups.AddNew();
        groups.Set(u"wType", group.type);
        groups.Set(u"tName", QString::fromUtf8(group.name));
        groups.Set(u"tDesc", QString::fromUtf8(group.description));
        groups.Update();
        for (const Button& button : group.buttons) {
            buttons.AddNew();
            buttons.Set(u"lParentID", groups.Fields(u"ID"));
            buttons.Set(u"tButtonCode", QString::fromUtf8(button.code));
            buttons.Set(u"tButtonName", QString::fromUtf8(button.name));
            buttons.Set(u"tButtonDesc", QString::fromUtf8(button.description));
            buttons.Update();
        }
    }
}

void FillTours(Connection& connection) {
    Recordset tours;
    tours.CursorLocation = adUseClient;
    tours.Open(QStringLiteral("SELECT * FROM tblTours ;"), connection);
    Recordset points;
    points.CursorLocation = adUseClient;
    points.Open(QStringLiteral("SELECT * FROM tblTourPoints ;"), connection);
    for (const Tour& tour : Tours()) {
        tours.AddNew();
        tours.Set(u"tName", QString::fromUtf8(tour.name));
        tours.Set(u"tDesc", QString::fromUtf8(tour.description));
        tours.Set(u"iTolerance", tour.tolerance);
        tours.Set(u"dtStartTime", tour.start);
        tours.Update();
        int index = 0;
        for (const Point& point : tour.points) {
            points.AddNew();
            points.Set(u"lParentID", tours.Fields(u"ID"));
            points.Set(u"lIndex", ++index);
            points.Set(u"dtTime", DateTime::FromTime(0, point.minutes));
            points.Set(u"tButtonCode", QString::fromUtf8(point.code));
            points.Update();
        }
    }
}

} // namespace

void DemoStore::Fill(Connection& connection) {
    Transaction transaction(connection);
    connection.Execute(QStringLiteral("INSERT INTO tblOperators VALUES ('KEEPER', 'KEEPER')"));
    connection.Execute(QStringLiteral("INSERT INTO tblOperators VALUES ('CREW', 'CREW')"));
    connection.Execute(QStringLiteral("INSERT INTO tblReaders VALUES (?, 'Night reader')"),
                       {ReaderId});
    FillGroups(connection);
    FillTours(connection);
    transaction.Commit();
}
