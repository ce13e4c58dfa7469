#include "SetupFile.h"

#include "ButtonCapture.h"
#include "Definitions.h"
#include "Format.h"
#include "NameFault.h"
#include "RunTimeError.h"
#include "TourDraft.h"
#include "mTranslations.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

namespace {

using Json = QJsonObject;

struct TypeWord {
    GroupType type;
    const char* word;
};
constexpr TypeWord TypeWords[] = {
    {SiteGroup, "site"}, {EventBookGroup, "event book"}, {UserGroup, "user group"}};

// ---- out

QJsonArray GroupsOut() {
    QJsonArray groups;
    for (const TypeWord& type : TypeWords)
        for (const Group& group : GroupsOf(type.type)) {
            QJsonArray buttons;
            for (const Button& button : ButtonsOf(group.id))
                buttons += Json{{"code", button.code},
                                {"name", button.name},
                                {"description", button.description}};
            groups += Json{{"type", QLatin1String(type.word)},
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

/// One entry of the document and the words by which a fault names it.
class Entry {
public:
    Entry(Json fields, QString name) : m_fields(std::move(fields)), m_name(std::move(name)) {}

    [[noreturn]] void Fail(const QString& fault) const {
        throw RunTimeError(RunTimeErrorNumber::TypeMismatch,
                           m_name.isEmpty() ? fault : m_name + QStringLiteral(": ") + fault);
    }
    void FailIf(const QString& fault) const {
        if (!fault.isEmpty())
            Fail(fault);
    }
    /// A misspelled key would otherwise pass for one left out.
    void AllowOnly(const QStringList& keys) const {
        for (const QString& key : m_fields.keys())
            if (!keys.contains(key))
                Fail(QStringLiteral("\"%1\" is not known here").arg(key));
    }
    QString Text(const char* key) const {
        const QJsonValue value = m_fields[QLatin1String(key)];
        if (!value.isString())
            Fail(QStringLiteral("\"%1\" must be a text").arg(QLatin1String(key)));
        return value.toString();
    }
    QString Description() const {
        const char* key = "description";
        QString text = m_fields.contains(QLatin1String(key)) ? Text(key) : QString();
        FailIf(TextFault(text));
        return text;
    }
    /// A whole number from 0 to `most`.
    int Number(const char* key, int most, const QString& fault) const {
        const QJsonValue value = m_fields[QLatin1String(key)];
        const double number = value.toDouble(-1);
        if (number < 0 || number > most || number != static_cast<int>(number))
            Fail(fault);
        return static_cast<int>(number);
    }
    bool Flag(const char* key) const {
        const QJsonValue value = m_fields[QLatin1String(key)];
        if (!value.isUndefined() && !value.isBool())
            Fail(QStringLiteral("\"%1\" must be true or false").arg(QLatin1String(key)));
        return value.toBool();
    }
    /// The entries of a list, named by `what`, their number from 1, and the text under `nameKey`.
    QList<Entry> List(const char* key, const char* what, const char* nameKey) const {
        const QJsonValue value = m_fields[QLatin1String(key)];
        if (!value.isUndefined() && !value.isArray())
            Fail(QStringLiteral("\"%1\" must be a list").arg(QLatin1String(key)));
        QList<Entry> entries;
        for (const auto& item : value.toArray()) {
            const QString name = QStringLiteral("%1%2 %3").arg(
                m_name.isEmpty() ? QString() : m_name + QStringLiteral(", "), QLatin1String(what),
                QString::number(entries.size() + 1));
            if (!item.isObject())
                Entry({}, name).Fail(QStringLiteral("must be an object"));
            const QString called = item[QLatin1String(nameKey)].toString();
            entries +=
                Entry(item.toObject(),
                      called.isEmpty() ? name : name + QStringLiteral(" \"%1\"").arg(called));
        }
        return entries;
    }

private:
    Json m_fields;
    QString m_name;
};

class Importer {
public:
    explicit Importer(const Entry& root) : m_root(root) {}

    void Run() {
        m_root.AllowOnly({"groups", "readers", "tours"});
        CollectCodesInUse();
        for (const Entry& group : m_root.List("groups", "group", "name"))
            TakeGroup(group);
        for (const Entry& reader : m_root.List("readers", "reader", "id"))
            TakeReader(reader);
        for (const Entry& tour : m_root.List("tours", "tour", "name"))
            TakeTour(tour);
    }

private:
    using Names = QSet<QString>;

    void CollectCodesInUse() {
        for (const TypeWord& type : TypeWords)
            for (const Group& group : GroupsOf(type.type)) {
                m_groupNames[type.type] += group.name;
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

    /// Takes a name as it stands. Only its exact like is refused.
    static QString TakeName(const Entry& entry, const char* key, Named what, Names& taken) {
        QString name = entry.Text(key);
        const QStringList same = taken.contains(name) ? QStringList(name) : QStringList();
        entry.FailIf(NameFault(what, name.trimmed().isEmpty() ? QString() : name, same));
        taken += name;
        return name;
    }

    static GroupType TypeOf(const Entry& entry) {
        const QString word = entry.Text("type");
        for (const TypeWord& type : TypeWords)
            if (word == QLatin1String(type.word))
                return type.type;
        entry.Fail(QStringLiteral("\"type\" must be \"site\", \"event book\" or \"user group\""));
    }

    void TakeGroup(const Entry& entry) {
        entry.AllowOnly({"type", "name", "description", "buttons"});
        const GroupType type = TypeOf(entry);
        const QString name = TakeName(entry, "name", Named::Group, m_groupNames[type]);
        const int id = AddGroup(type, name);
        UpdateGroup({id, name, entry.Description()});
        Names names;
        for (const Entry& button : entry.List("buttons", "button", "name"))
            TakeButton(button, type, id, names);
    }

    void TakeButton(const Entry& entry, GroupType type, int groupId, Names& names) {
        entry.AllowOnly({"code", "name", "description"});
        const QString code = TypedButtonCode(entry.Text("code"));
        if (code.isEmpty())
            entry.Fail(QStringLiteral("\"code\": ") + Translate("Illegal Value"));
        if (m_codes.contains(code))
            entry.Fail(QStringLiteral("\"code\": ") + Translate("That key is already used!"));
        m_codes += code;
        if (type == SiteGroup)
            m_locations += code;
        const QString name = TakeName(entry, "name", Named::Item, names);
        AddButton(groupId, {0, code, name, entry.Description()});
    }

    void TakeReader(const Entry& entry) {
        static const QRegularExpression identifier(QStringLiteral("\\A[0-9A-F]{8}\\z"));
        entry.AllowOnly({"id", "description"});
        const QString id = entry.Text("id").trimmed().toUpper();
        if (!identifier.match(id).hasMatch())
            entry.Fail(QStringLiteral("\"id\": ") + Translate("Illegal Value"));
        if (m_readerIds.contains(id))
            entry.Fail(Translate("This Reader ID already exists!"));
        m_readerIds += id;
        AddReader({id, TakeName(entry, "description", Named::Item, m_readerNames)});
    }

    void TakeTour(const Entry& entry) {
        entry.AllowOnly({"name", "description", "start", "tolerance", "points"});
        Tour tour;
        tour.name = TakeName(entry, "name", Named::Group, m_tourNames);
        tour.description = entry.Description();
        const QTime start = QTime::fromString(entry.Text("start"), QStringLiteral("HH:mm"));
        if (!start.isValid())
            entry.Fail(QStringLiteral("\"start\" must be a time as HH:MM"));
        tour.startTime = DateTime::FromTime(start.hour(), start.minute());
        tour.tolerance = entry.Number("tolerance", MostTolerance, Translate(ToleranceFault));
        TourDraft draft;
        const QList<Entry> points = entry.List("points", "point", "button");
        for (const Entry& point : points)
            draft.Insert(draft.Count(), PointOf(point));
        if (const auto place = draft.EqualNeighbour())
            points[*place].Fail(Translate(NeighbourFault));
        if (!draft.FitsADay(tour.tolerance))
            entry.Fail(Translate(TotalTimeFault));
        tour.id = AddTour(tour.name);
        UpdateTour(tour);
        draft.Write(tour.id);
    }

    TourDraft::Point PointOf(const Entry& entry) const {
        entry.AllowOnly({"minutes", "button", "deleted"});
        const QString code = TypedButtonCode(entry.Text("button"));
        if (code.isEmpty())
            entry.Fail(QStringLiteral("\"button\": ") + Translate("Illegal Value"));
        if (!m_locations.contains(code) && !entry.Flag("deleted"))
            entry.Fail(QStringLiteral("no location has this code"));
        return {entry.Number("minutes", MinutesOfDay - 1, Translate(IntervalFault)), code, {}, {}};
    }

    const Entry& m_root;
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
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(document, &error);
    const Entry root(json.object(), {});
    if (error.error != QJsonParseError::NoError)
        root.Fail(
            QStringLiteral("no JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset));
    if (!json.isObject())
        root.Fail(QStringLiteral("an object with groups, readers and tours is wanted"));
    Transaction transaction(*gConn);
    Importer(root).Run();
    transaction.Commit();
}
