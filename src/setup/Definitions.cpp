#include "Definitions.h"

#include "Rows.h"
#include "TourDraft.h"
#include "mTranslations.h"

namespace {

void DeleteWithParts(const QString& deleteOne, const QString& deleteParts, int id) {
    Transaction transaction(*gConn);
    gConn->Execute(deleteOne, {id});
    gConn->Execute(deleteParts, {id});
    transaction.Commit();
}

} // namespace

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

void DeleteGroup(int id) {
    DeleteWithParts(QStringLiteral("DELETE * FROM tblListItems WHERE ID = ? ;"),
                    QStringLiteral("DELETE * FROM tblButtons WHERE lParentID = ? ;"), id);
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

void DeleteTour(int id) {
    DeleteWithParts(QStringLiteral("DELETE * FROM tblTours WHERE ID = ? ;"),
                    QStringLiteral("DELETE * FROM tblTourPoints WHERE lParentID = ? ;"), id);
}

int CopyTour(int from, const QString& name) {
    Transaction transaction(*gConn);
    const int id = AddTour(name);
    NewRows target("tblTourPoints");
    Rows source(QStringLiteral("SELECT * FROM tblTourPoints WHERE lParentID = ? ;"), {from});
    for (; !source.Eof(); source.MoveNext()) {
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
