#include "LookUps.h"

#include "Rows.h"
#include "mErrorHandler.h"

namespace {

template <typename Entry>
QList<Entry> All(Rows rows, Entry (*entryOf)(Rows&)) {
    QList<Entry> entries;
    for (; !rows.Eof(); rows.MoveNext())
        entries += entryOf(rows);
    return entries;
}

template <typename Entry>
std::optional<Entry> First(Rows rows, Entry (*entryOf)(Rows&)) {
    return rows.Any() ? std::optional(entryOf(rows)) : std::nullopt;
}

Group GroupOf(Rows& rows) { return {rows.Id(), rows.Text(u"tName"), rows.Text(u"tDesc")}; }

Button ButtonOf(Rows& rows) {
    return {rows.Id(), rows.Text(u"tButtonCode"), rows.Text(u"tButtonName"),
            rows.Text(u"tButtonDesc")};
}

Reader ReaderOf(Rows& rows) { return {rows.Text(u"tReaderId"), rows.Text(u"tDescription")}; }

Tour TourOf(Rows& rows) {
    return {rows.Id(), rows.Text(u"tName"), rows.Text(u"tDesc"),
            static_cast<int>(rows.Number(u"iTolerance")), rows.Date(u"dtStartTime")};
}

Rows ButtonsOfGroup(int id) {
    return Rows(QStringLiteral("SELECT * FROM tblButtons WHERE lParentID = ? ;"), {id});
}

int CountRows(const char* table) {
    Recordset rows;
    rows.CursorLocation = adUseClient;
    rows.Open(QString::fromLatin1(table), *gConn, adOpenStatic, adLockOptimistic, adCmdTable);
    return rows.RecordCount();
}

} // namespace

QList<Group> GroupsOf(GroupType type) {
    QList<Group> groups;
    for (Rows rows(QStringLiteral("SELECT * FROM tblListItems ;")); !rows.Eof(); rows.MoveNext())
        if (rows.Number(u"wType") == type)
            groups += GroupOf(rows);
    return groups;
}

QList<Group> SitesByName() {
    return All(Rows(QStringLiteral("SELECT tblListItems.ID, tblListItems.tName, tblListItems.tDesc "
                                   "FROM tblListItems WHERE (((tblListItems.wType) = 1)) "
                                   "ORDER BY tblListItems.tName; ")),
               GroupOf);
}

bool GroupHasButtons(int id) { return ButtonsOfGroup(id).Any(); }

QList<Button> ButtonsOf(int groupId) { return All(ButtonsOfGroup(groupId), ButtonOf); }

QList<EventButton> EventButtons() {
    QList<EventButton> events;
    for (Rows rows(QStringLiteral(
             "SELECT tblListItems.tName, tblButtons.ID, tblButtons.tButtonCode, "
             "tblButtons.tButtonName, tblButtons.tButtonDesc FROM tblListItems INNER JOIN "
             "tblButtons ON tblListItems.ID = tblButtons.lParentID "
             "WHERE (((tblListItems.wType)=2));"));
         !rows.Eof(); rows.MoveNext())
        events += {ButtonOf(rows), rows.Text(u"tName")};
    return events;
}

QSet<QString> ButtonCodes() {
    QSet<QString> codes;
    for (Rows rows(QStringLiteral("SELECT tButtonCode FROM tblButtons ;")); !rows.Eof();
         rows.MoveNext())
        codes += rows.Text(u"tButtonCode");
    return codes;
}

bool HasLocations() {
    return Rows(QStringLiteral("SELECT tblButtons.tButtonName, tblListItems.wType FROM tblButtons "
                               "LEFT JOIN tblListItems ON tblButtons.lParentID = tblListItems.ID "
                               "WHERE (((tblListItems.wType)=1)); "))
        .Any();
}

std::optional<ButtonData> FindButton(const QString& code) {
    Rows rows(QStringLiteral("SELECT tblButtons.tButtonCode, tblListItems.wType, "
                             "tblButtons.tButtonName, tblButtons.tButtonDesc, "
                             "tblListItems.tName AS tGroupName, tblListItems.tDesc AS tGroupDesc "
                             "FROM tblButtons INNER JOIN tblListItems ON "
                             "tblButtons.lParentID = tblListItems.ID "
                             "WHERE (((tblButtons.tButtonCode)=?));"),
              {code});
    if (rows.RecordCount() != 1)
        return {};
    return ButtonData{static_cast<int>(rows.Number(u"wType")), rows.Text(u"tButtonName"),
                      rows.Text(u"tButtonDesc"), rows.Text(u"tGroupName"),
                      rows.Text(u"tGroupDesc")};
}

QList<Reader> Readers() {
    return All(Rows(QStringLiteral("SELECT * FROM tblReaders ;")), ReaderOf);
}

QList<Reader> ReadersById() {
    return All(Rows(QStringLiteral("SELECT tblReaders.tReaderId, tblReaders.tDescription FROM "
                                   "tblReaders ORDER BY tblReaders.tReaderId;")),
               ReaderOf);
}

QList<Reader> ReadersByDescription() {
    return All(Rows(QStringLiteral("SELECT * FROM tblReaders ORDER BY tblReaders.tDescription ;")),
               ReaderOf);
}

std::optional<Reader> FindReader(const QString& id) {
    return First(Rows(QStringLiteral("SELECT * FROM tblReaders WHERE tReaderId = ? ; "), {id}),
                 ReaderOf);
}

QString ReaderTextOf(const QString& id) {
    std::optional<Reader> reader;
    IgnoringErrors([&] { reader = FindReader(id); });
    return reader ? ReaderText(*reader) : id;
}

int CountReaders() { return CountRows("tblReaders"); }

QList<Tour> Tours() { return All(Rows(QStringLiteral("SELECT * FROM tblTours ;")), TourOf); }

QList<Tour> ToursByName() {
    return All(Rows(QStringLiteral("SELECT ID, tName, dtStartTime, iTolerance,tDesc FROM tblTours "
                                   "ORDER BY tName ;")),
               TourOf);
}

std::optional<Tour> FindTour(int id) {
    return First(Rows(QStringLiteral("SELECT tblTours.ID, tblTours.tName, tblTours.tDesc, "
                                     "tblTours.iTolerance, tblTours.dtStartTime FROM tblTours "
                                     "WHERE tblTours.ID=? ; "),
                      {id}),
                 TourOf);
}

bool TourHasPoints(int id) {
    return Rows(QStringLiteral("SELECT * FROM tblTourPoints WHERE lParentID = ? ;"), {id}).Any();
}

int CountTours() { return CountRows("tblTours"); }
