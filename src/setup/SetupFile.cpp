#include "SetupFile.h"

#include "ButtonCapture.h"
#include "CheckedJson.h"
#include "Definitions.h"
#include "Format.h"
#include "NameFault.h"
#include "TourDraft.h"
#include "mTranslations.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

namespace {

using Json = QJsonObject;

constexpr std::initializer_list<std::pair<const char*, GroupType>> TypeWords = {
    {"site", SiteGroup}, {"event book", EventBookGroup}, {"user group", UserGroup}};

// ---- out

QJsonArray GroupsOut() {
    QJsonArray groups;
    for (const auto& [word, type] : TypeWords)
        for (const Group& group : GroupsOf(type)) {
            QJsonArray buttons;
            for (const Button& button : ButtonsOf(group.id))
                buttons += Json{{"code", button.code},
                                {"name", button.name},
                                {"description", button.description}};
            groups += Json{{"type", QLatin1String(word)},
                           {"name", group.name},
                           {"description", group.description},
                           {"buttons", buttons}};
        }
    return groups;
}

QJsonArray ReadersOut() {
    QJsonArray readers;
    for (const Reader& reader : Readers())
        readers += Json{{"id", reader.id}, {"description", reader.description}};
    return readers;
}

QJsonArray PointsOut(int tourId, const QSet<QString>& locations) {
    TourDraft draft;
    draft.Load(tourId);
    QJsonArray points;
    for (const TourDraft::Point& point : draft.Points()) {
        Json entry{{"minutes", point.minutes}, {"button", point.buttonCode}};
        if (!locations.contains(point.buttonCode))
            entry.insert(QStringLiteral("deleted"), true);
        points += entry;
    }
    return points;
}

QSet<QString> LocationCodes() {
    QSet<QString> codes;
    for (const Group& site : GroupsOf(SiteGroup))
        for (const Button& button : ButtonsOf(site.id))
            codes += button.code;
    return codes;
}

QJsonArray ToursOut() {
    const QSet<QString> locations = LocationCodes();
    QJsonArray tours;
    for (const Tour& tour : Tours())
        tours += Json{{"name", tour.name},
                      {"description", tour.description},
                      {"start", Format(tour.startTime, QStringLiteral("hh:nn"))},
                      {"tolerance", tour.tolerance},
                      {"points", PointsOut(tour.id, locations)}};
    return tours;
}

// ---- in

void RejectIf(const CheckedJson& entry, const QString& fault) {
    if (!fault.isEmpty())
        entry.Reject(fault);
}

QString DescriptionOf(CheckedJson& entry) {
    QString text = entry.Text("description", QString());
    RejectIf(entry, TextFault(text));
    return text;
}

/// A whole number from 0 to `most`.
int WholeNumber(CheckedJson& entry, const char* key, int most, const char* fault) {
    const double number = entry.Value(key).toDouble(-1);
    if (number < 0 || number > most || number != static_cast<int>(number))
        entry.Reject(Translate(fault));
    return static_cast<int>(number);
}

QString CodeOf(CheckedJson& entry, const char* key) {
    QString code = TypedButtonCode(entry.Text(key));
    if (code.isEmpty())
        entry.Reject(QStringLiteral("\"%1\": ").arg(QLatin1String(key)) +
                     Translate("Illegal Value"));
    return code;
}

class Importer {
public:
    Importer() { CollectWhatIsInUse(); }

    void Run(CheckedJson& root) {
        for (CheckedJson& group : root.List("groups", "group", "name"))
            TakeGroup(group);
        for (CheckedJson& reader : root.List("readers", "reader", "id"))
            TakeReader(reader);
        for (CheckedJson& tour : root.List("tours", "tour", "name"))
            TakeTour(tour);
        root.RejectLeftOvers();
    }

private:
    using Names = QSet<QString>;

    void CollectWhatIsInUse() {
        for (const auto& [word, type] : TypeWords)
            for (const Group& group : GroupsOf(type)) {
                m_groupNames[type] += group.name;
                for (const Button& button : ButtonsOf(group.id))
                    m_codes += button.code;
            }
        m_locations = LocationCodes();
        for (const Reader& reader : Readers()) {
            m_readerIds += reader.id;
            m_readerNames += reader.description;
        }
        for (const Tour& tour : Tours())
            m_tourNames += tour.name;
    }

    /// The name is kept as it is. Only one that is exactly equal is refused.
    static QString TakeName(CheckedJson& entry, const char* key, Named what, Names& taken) {
        QString name = entry.Text(key);
        const QStringList same = taken.contains(name) ? QStringList(name) : QStringList();
        RejectIf(entry, NameFault(what, name.trimmed().isEmpty() ? QString() : name, same));
        taken += name;
        return name;
    }

    void TakeGroup(CheckedJson& entry) {
        const GroupType type = entry.Choice("type", TypeWords);
        const QString name = TakeName(entry, "name", Named::Group, m_groupNames[type]);
        const int id = AddGroup(type, name);
        UpdateGroup({id, name, DescriptionOf(entry)});
        Names names;
        for (CheckedJson& button : entry.List("buttons", "button", "name"))
            TakeButton(button, type, id, names);
        entry.RejectLeftOvers();
    }

    void TakeButton(CheckedJson& entry, GroupType type, int groupId, Names& names) {
        const QString code = CodeOf(entry, "code");
        if (m_codes.contains(code))
            entry.Reject(QStringLiteral("\"code\": ") + Translate("That key is already used!"));
        m_codes += code;
        if (type == SiteGroup)
            m_locations += code;
        const QString name = TakeName(entry, "name", Named::Item, names);
        AddButton(groupId, {0, code, name, DescriptionOf(entry)});
        entry.RejectLeftOvers();
    }

    void TakeReader(CheckedJson& entry) {
        static const QRegularExpression identifier(QStringLiteral("\\A[0-9A-F]{8}\\z"));
        const QString id = entry.Text("id").trimmed().toUpper();
        if (!identifier.match(id).hasMatch())
            entry.Reject(QStringLiteral("\"id\": ") + Translate("Illegal Value"));
        if (m_readerIds.contains(id))
            entry.Reject(Translate("This Reader ID already exists!"));
        m_readerIds += id;
        AddReader({id, TakeName(entry, "description", Named::Item, m_readerNames)});
        entry.RejectLeftOvers();
    }

    void TakeTour(CheckedJson& entry) {
        Tour tour;
        tour.name = TakeName(entry, "name", Named::Group, m_tourNames);
        tour.description = DescriptionOf(entry);
        const QTime start = QTime::fromString(entry.Text("start"), QStringLiteral("HH:mm"));
        if (!start.isValid())
            entry.Reject(QStringLiteral("\"start\" must be a time as HH:MM"));
        tour.startTime = DateTime::FromTime(start.hour(), start.minute());
        tour.tolerance = WholeNumber(entry, "tolerance", MostTolerance, ToleranceFault);
        TourDraft draft;
        auto points = entry.List("points", "point", "button");
        for (CheckedJson& point : points)
            draft.Insert(draft.Count(), PointOf(point));
        entry.RejectLeftOvers();
        if (const auto place = draft.EqualNeighbour())
            points[static_cast<std::size_t>(*place)].Reject(Translate(NeighbourFault));
        if (!draft.FitsADay(tour.tolerance))
            entry.Reject(Translate(TotalTimeFault));
        tour.id = AddTour(tour.name);
        UpdateTour(tour);
        draft.Write(tour.id);
    }

    TourDraft::Point PointOf(CheckedJson& entry) const {
        const QString code = CodeOf(entry, "button");
        const bool deleted = entry.Flag("deleted");
        if (!m_locations.contains(code) && !deleted)
            entry.Reject(QStringLiteral("no location has this code"));
        const int minutes = WholeNumber(entry, "minutes", MinutesOfDay - 1, IntervalFault);
        entry.RejectLeftOvers();
        return {minutes, code, {}, {}};
    }

    QMap<GroupType, Names> m_groupNames;
    Names m_readerNames, m_tourNames, m_codes, m_locations, m_readerIds;
};

} // namespace

QByteArray ExportSetup() {
    return QJsonDocument(
               Json{{"groups", GroupsOut()}, {"readers", ReadersOut()}, {"tours", ToursOut()}})
        .toJson();
}

void ImportSetup(const QByteArray& document) {
    CheckedJson root = CheckedJson::Parse(document);
    Transaction transaction(*gConn);
    Importer().Run(root);
    transaction.Commit();
}
