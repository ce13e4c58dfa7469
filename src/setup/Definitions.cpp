#include "Definitions.h"

#include "Recordset.h"
#include "TourDraft.h"
#include "mTranslations.h"

namespace {

/// A statement's rows, to be read, added to and changed.
class Rows : public Recordset {
public:
    explicit Rows(const QString& statement, const Values& values = {}) {
        CursorLocation = adUseClient;
        Open(statement, values, *gConn);
    }
    bool Any() { return RecordCount() > 0; }
    int Id() { return static_cast<int>(Number(u"ID")); }
};

/// For adding alone. It fetches no row, so adding many takes no longer where there are many.
class NewRows : public Rows {
public:
    explicit NewRows(const char* table)
        : Rows(QStringLiteral("SELECT * FROM %1 WHERE 1 = 0 ;").arg(QLatin1String(table))) {}
};

void DeleteWithParts(const QString& deleteOne, const QString& deleteParts, int id) {
    Transaction transaction(*gConn);
    gConn->Execute(deleteOne, {id});
    gConn->Execute(deleteParts, {id});
    transaction.Commit();
}

const QString AllGroups = QStringLiteral("SELECT * FROM tblListItems ;");
const QString AllReaders = QStringLiteral("SELECT * FROM tblReaders ;");
const QString AllTours = QStringLiteral("SELECT * FROM tblTours ;");
const QString ButtonsOfGroup = QStringLiteral("SELECT * FROM tblButtons WHERE lParentID = ? ;");
const QString PointsOfTour = QStringLiteral("SELECT * FROM tblTourPoints WHERE lParentID = ? ;");

} // namespace

QList<Group> GroupsOf(GroupType type) {
    QList<Group> groups;
    for (Rows rows(AllGroups); !rows.Eof(); rows.MoveNext())
        if (rows.Number(u"wType") == type)
            groups += Group{rows.Id(), rows.Text(u"tName"), rows.Text(u"tDesc")};
    return groups;
}

int AddGroup(GroupType type, const QString& name) {
    NewRows rows("tblListItems");
    rows.AddNew();
    rows.Set(u"tName", name);
    rows.Set(u"tDesc", QString());
    rows.Set(u"wType", int{type});
    rows.Update();
    return rows.Id();
}

void UpdateGroup(const Group& group) {
    Rows rows(QStringLiteral("SELECT * FROM tblListItems WHERE ID = ? ;"), {group.id});
    if (!rows.Any())
        return;
    rows.Set(u"tName", group.name);
    rows.Set(u"tDesc", group.description);
    rows.Update();
}

bool GroupHasButtons(int id) { return Rows(ButtonsOfGroup, {id}).Any(); }

void DeleteGroup(int id) {
    DeleteWithParts(QStringLiteral("DELETE * FROM tblListItems WHERE ID = ? ;"),
                    QStringLiteral("DELETE * FROM tblButtons WHERE lParentID = ? ;"), id);
}

QList<Button> ButtonsOf(int groupId) {
    QList<Button> buttons;
    for (Rows rows(ButtonsOfGroup, {groupId}); !rows.Eof(); rows.MoveNext())
        buttons += Button{rows.Id(), rows.Text(u"tButtonCode"), rows.Text(u"tButtonName"),
                          rows.Text(u"tButtonDesc")};
    return buttons;
}

void AddButton(int groupId, const Button& button) {
    NewRows rows("tblButtons");
    rows.AddNew();
    rows.Set(u"lParentID", groupId);
    rows.Set(u"tButtonName", button.name);
    rows.Set(u"tButtonDesc", button.description);
    rows.Set(u"tButtonCode", button.code);
    rows.Update();
}

void UpdateButton(const Button& button) {
    Rows rows(QStringLiteral("SELECT * FROM tblButtons WHERE ID = ? ;"), {button.id});
    if (!rows.Any())
        return;
    rows.Set(u"tButtonName", button.name);
    rows.Set(u"tButtonDesc", button.description);
    rows.Update();
}

void DeleteButton(int id) {
    gConn->Execute(QStringLiteral("DELETE * FROM tblButtons WHERE ID = ? ;"), {id});
}

bool HasLocations() {
    return Rows(QStringLiteral("SELECT tblButtons.tButtonName, tblListItems.wType FROM tblButtons "
                               "LEFT JOIN tblListItems ON tblButtons.lParentID = tblListItems.ID "
                               "WHERE (((tblListItems.wType)=1)); "))
        .Any();
}

QList<Reader> Readers() {
    QList<Reader> readers;
    for (Rows rows(AllReaders); !rows.Eof(); rows.MoveNext())
        readers += Reader{rows.Text(u"tReaderId"), rows.Text(u"tDescription")};
    return readers;
}

void AddReader(const Reader& reader) {
    NewRows rows("tblReaders");
    rows.AddNew();
    rows.Set(u"tReaderId", reader.id);
    rows.Set(u"tDescription", reader.description);
    rows.Update();
}

void UpdateReader(const Reader& reader) {
    Rows rows(QStringLiteral("SELECT * FROM tblReaders WHERE tReaderId = ? ;"), {reader.id});
    if (!rows.Any())
        return;
    rows.Set(u"tDescription", reader.description);
    rows.Update();
}

void DeleteReader(const QString& id) {
    gConn->Execute(QStringLiteral("DELETE * FROM tblReaders WHERE tReaderId = ? ;"), {id});
}

QList<Tour> Tours() {
    QList<Tour> tours;
    for (Rows rows(AllTours); !rows.Eof(); rows.MoveNext())
        tours += Tour{rows.Id(), rows.Text(u"tName"), rows.Text(u"tDesc"),
                      static_cast<int>(rows.Number(u"iTolerance")), rows.Date(u"dtStartTime")};
    return tours;
}

int AddTour(const QString& name) {
    NewRows rows("tblTours");
    rows.AddNew();
    rows.Set(u"tName", name);
    rows.Set(u"tDesc", QStringLiteral(" "));
    rows.Set(u"iTolerance", Tour().tolerance);
    rows.Set(u"dtStartTime", DateTime());
    rows.Update();
    return rows.Id();
}

void UpdateTour(const Tour& tour) {
    Rows rows(QStringLiteral("SELECT * FROM tblTours WHERE ID = ? ;"), {tour.id});
    if (!rows.Any())
        return;
    rows.Set(u"iTolerance", tour.tolerance);
    rows.Set(u"dtStartTime", tour.startTime);
    rows.Set(u"tName", tour.name);
    rows.Set(u"tDesc", tour.description);
    rows.Update();
}

void SaveTour(const Tour& tour, const TourDraft& points) {
    Transaction transaction(*gConn);
    UpdateTour(tour);
    points.Write(tour.id);
    transaction.Commit();
}

bool TourHasPoints(int id) { return Rows(PointsOfTour, {id}).Any(); }

void DeleteTour(int id) {
    DeleteWithParts(QStringLiteral("DELETE * FROM tblTours WHERE ID = ? ;"),
                    QStringLiteral("DELETE * FROM tblTourPoints WHERE lParentID = ? ;"), id);
}

int CopyTour(int from, const QString& name) {
    Transaction transaction(*gConn);
    const int id = AddTour(name);
    NewRows target("tblTourPoints");
    for (Rows source(PointsOfTour, {from}); !source.Eof(); source.MoveNext()) {
        target.AddNew();
        target.Set(u"lParentID", id);
        for (const QStringView column : {u"lIndex", u"dtTime", u"tButtonCode"})
            target.Set(column, source.Fields(column));
        target.Update();
    }
    target.Close();
    transaction.Commit();
    return id;
}

namespace {

QString FirstNotTaken(const QString& base, int digits, const QStringList& taken) {
    for (int number = 1; number <= 999; ++number) {
        QString name = base + u' ' + QStringLiteral("%1").arg(number, digits, 10, QLatin1Char('0'));
        if (!taken.contains(name))
            return name;
    }
    return {};
}

} // namespace

QString FreshName(const QString& base, const QStringList& taken) {
    return FirstNotTaken(base, 3, taken);
}

QString FreshReaderName(const QStringList& taken) {
    return FirstNotTaken(Translate("Reader"), 1, taken);
}
