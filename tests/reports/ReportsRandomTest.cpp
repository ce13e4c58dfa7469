// Many random reports from many random stores, made as the command line makes them, compared with a
// second computation that shares no code with the reports.

#include "Clock.h"
#include "CommandParser.h"
#include "DataReport.h"
#include "PagePainter.h"
#include "PlainReports.h"
#include "ReportCatalogue.h"
#include "ReportExport.h"
#include "ReportNeeds.h"
#include "ReportViewer.h"
#include "RowSource.h"
#include "Schema.h"
#include "ScriptedBoxes.h"
#include "TestHome.h"

#include <QElapsedTimer>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <random>

using namespace PlainReports;

namespace {

constexpr Seconds Day = 86'400;

/// Keeps a report as JSON, and what its controls print.
class Keeper : public ReportViewer {
public:
    void Show(DataReport& report) override {
        Json += ReportJson(report);
        const RowSource& rows = *report.DataSource();
        const PageWords words{"page", "pages", "date", "time"};
        for (const ReportSection& section : report.Layout().sections)
            for (const ReportControl& control : section.AllControls())
                if (control.Kind() == ControlKind::TextBox && rows.RowCount() > 0)
                    Printed[control.Name()] = control.TextOf(
                        rows.ValueAt(rows.RowCount() - 1, rows.Column(control.DataField())));
                else if (control.Kind() == ControlKind::Label)
                    Printed[control.Name()] = control.KindOfCaption() == CaptionKind::Pattern
                                                  ? words.Expanded(control.Caption())
                                                  : control.Caption();
    }

    QByteArray Json;
    QHash<QString, QString> Printed;
};

Value Of(std::optional<int> number) { return number ? Value(*number) : Value(); }
Value Of(std::optional<Seconds> time) {
    return time ? Value(static_cast<double>(*time) / static_cast<double>(Day)) : Value();
}
Value Of(const QString& text) { return text.isNull() ? Value() : Value(text); }

void Insert(const QString& table, const QString& columns, const Values& values) {
    const QString marks = QStringList(static_cast<qsizetype>(values.size()), "?").join(", ");
    gConn->Execute("INSERT INTO " + table + " (" + columns + ") VALUES (" + marks + ")", values);
}

void Store(const Site& site) {
    Transaction transaction(*gConn);
    for (const char* table :
         {"tblListItems", "tblButtons", "tblReaders", "tblTours", "tblTourPoints", "tblEvents"})
        gConn->Execute(QStringLiteral("DELETE FROM ") + table);
    for (const Group& group : site.groups)
        Insert("tblListItems", "ID, wType, tName, tDesc",
               {group.id, Of(group.type), Of(group.name), Of(group.description)});
    for (const Button& button : site.buttons)
        Insert("tblButtons", "ID, lParentID, tButtonCode, tButtonName, tButtonDesc",
               {button.id, Of(button.group), Of(button.code), Of(button.name),
                Of(button.description)});
    for (const Reader& reader : site.readers)
        Insert("tblReaders", "tReaderId, tDescription", {Of(reader.id), Of(reader.description)});
    for (const Tour& tour : site.tours) {
        Insert("tblTours", "ID, tName, tDesc, iTolerance, dtStartTime",
               {tour.id, Of(tour.name), Of(tour.description), Of(tour.tolerance), Of(tour.start)});
        for (const Point& point : tour.points)
            Insert("tblTourPoints", "lParentID, lIndex, dtTime, tButtonCode",
                   {tour.id, Of(point.index), Of(point.interval), Of(point.code)});
    }
    for (const Event& event : site.events)
        Insert("tblEvents",
               "dtDLDateTime, tPipeID, dtDateTime, tButtonCode, tButtonName, tButtonDesc, "
               "wGroupType, tGroupName, tGroupDesc",
               {Of(event.downloaded), Of(event.reader), Of(event.time), Of(event.code),
                Of(event.name), Of(event.description), Of(event.type), Of(event.groupName),
                Of(event.groupDescription)});
    transaction.Commit();
}

QString Moment(Seconds time) {
    const QDate date = QDate(1899, 12, 30).addDays(time / Day);
    return date.toString(Qt::ISODate) +
           QTime::fromMSecsSinceStartOfDay(static_cast<int>(time % Day) * 1000)
               .toString("'T'HH:mm");
}

} // namespace

class ReportsRandomTest : public QObject {
    Q_OBJECT

    std::mt19937 m_random{815};
    Seconds m_day = 0; ///< about which everything happens
    const QStringList m_codes{"1A4001", "1A4002", "1A4003", "7E0001", "7E0002", "7E0003", "ABCDEF"};
    const QStringList m_readerIds{"4B5831A7", "00FF00FF", "ABCDEF01", "4B5831A8"};

    int Upto(int most) { return static_cast<int>(m_random() % static_cast<unsigned>(most + 1)); }
    bool OneIn(int chances) { return Upto(chances - 1) == 0; }
    template <typename List>
    auto OneOf(const List& list) {
        return list[Upto(static_cast<int>(list.size()) - 1)];
    }
    template <typename T>
    std::optional<T> Maybe(T value) {
        return OneIn(15) ? std::nullopt : std::optional<T>(value);
    }
    QString MaybeText(const QString& value) { return OneIn(25) ? QString() : value; }

    QString Name() {
        static const QStringList names = {"Gate",
                                          "gate",
                                          "GATE",
                                          "Gate 2",
                                          "Tower",
                                          "tower",
                                          "a",
                                          "B",
                                          "Zaun",
                                          "Äußeres Tor",
                                          "äußeres tor",
                                          "%1:s",
                                          "%0:s [%1:s] -- %2:s",
                                          "%d %t %p",
                                          "100 %",
                                          "O'Neil",
                                          "\"quoted\"",
                                          "x'); DROP TABLE tblEvents;--",
                                          "a;b",
                                          "?",
                                          "#2026-11-23#",
                                          "🔦🚪",
                                          "بوابة الشمال",
                                          "N - S",
                                          " - ",
                                          "two\r\nlines",
                                          "tab\there",
                                          "<b>bold</b>",
                                          "C:\\gate",
                                          " ",
                                          "null",
                                          QString(255, 'W'),
                                          QString(),
                                          QString(""),
                                          QString("")};
        return OneOf(names);
    }

    Seconds RandomTime() {
        const Seconds clock =
            OneOf(QList<Seconds>{0, 1, 59, 60, 43'200, 43'201, 43'259, 43'260, 86'339, 86'340,
                                 86'370, 86'399, Upto(86'399), Upto(1439) * 60});
        return m_day + Upto(2) * Day + clock;
    }

    /// Mostly wide, but also of one minute, reversed, or all of time.
    Range RandomRange() {
        const auto minute = [this] { return RandomTime() / 60 * 60; };
        const int kind = Upto(9);
        if (kind < 5)
            return {m_day - Upto(1) * Day, m_day + (2 + Upto(2)) * Day + 86'340};
        if (kind == 5)
            return {Seconds{-657'434} * Day, Seconds{2'958'466} * Day - 60}; // years 100 to 9999
        const Seconds from = minute();
        return {from, kind == 6 ? from : minute()};
    }

    Site RandomSite(Seconds now) {
        Site site;
        site.now = now;
        // Summer time begins and ends, leap day, end of a year, the first day of a reader's clock.
        m_day = OneOf(QList<Seconds>{46'109, 46'319, 45'350, 46'022, 36'526}) * Day;
        int id = 0;
        for (int count = OneIn(12) ? 0 : 3 + Upto(3); count > 0; --count)
            site.groups += {id += 1 + Upto(1),
                            Maybe(OneIn(4) ? OneOf(QList<int>{0, 1, 2, 7})
                                           : static_cast<int>(site.groups.size() % 2) + 1),
                            Name(), Name()};
        QStringList codes = m_codes;
        std::shuffle(codes.begin(), codes.end(), m_random);
        id = 0;
        for (int count = OneIn(15) ? 0 : 5 + Upto(5); count > 0; --count) {
            const QString code = OneIn(8) ? OneOf(m_codes) : codes[count % codes.size()];
            const int group = site.groups.isEmpty() || OneIn(12) ? 99 : OneOf(site.groups).id;
            site.buttons += {id += 1 + Upto(1), Maybe(group), MaybeText(code), Name(), Name()};
        }
        for (const QString& reader : m_readerIds)
            if (!OneIn(4))
                site.readers += {MaybeText(reader), Name()};
        if (OneIn(10))
            site.readers.clear();
        std::shuffle(site.readers.begin(), site.readers.end(), m_random);
        id = 0;
        for (int count = Upto(4); count > 0; --count)
            site.tours += RandomTour(id += 1 + Upto(1));
        if (!OneIn(12))
            for (int count = 5 + Upto(35); count > 0; --count)
                site.events += RandomEvent(site);
        return site;
    }

    Tour RandomTour(int id) {
        Tour tour{id,
                  Name(),
                  Name(),
                  Maybe(OneOf(QList<int>{0, 1, 5, 30, 59, 59, Upto(59), 60, 99, -1})),
                  Maybe(OneIn(3) ? RandomTime() : RandomTime() % Day),
                  {}};
        for (int count = Upto(7); count > 0; --count)
            tour.points += {Maybe(Upto(9) * 10),
                            Maybe(OneOf(QList<Seconds>{0, 60, 300, Upto(7200), Upto(100'000)})),
                            MaybeText(OneOf(m_codes))};
        return tour;
    }

    Event RandomEvent(const Site& site) {
        Event event;
        event.downloaded = Maybe(m_day + OneOf(QList<Seconds>{3 * Day, 3 * Day + 61, Day, 0}));
        event.time = Maybe(RandomTime());
        event.reader = MaybeText(OneOf(m_readerIds));
        event.code = MaybeText(OneOf(m_codes));
        event.type = OneOf(QList<std::optional<int>>{0, 1, 1, 2, 2, 7, std::nullopt});
        if (!site.buttons.isEmpty() && !OneIn(4)) {
            const Button button = OneOf(site.buttons);
            event.code = button.code;
            for (const Group& group : site.groups)
                if (button.group == group.id)
                    event.type = group.type;
        }
        event.name = Name();
        event.description = Name();
        event.groupName = Name();
        event.groupDescription = Name();
        return event;
    }

    /// One call of a report: what is typed, and what must come of it.
    struct Call {
        QString word;
        QStringList options;
        Outcome expected;
    };

    /// Some of the list in any order, each as a value of the option.
    QStringList SomeOf(QStringList list, const QString& option, QStringList& options) {
        std::shuffle(list.begin(), list.end(), m_random);
        list.resize(Upto(static_cast<int>(list.size())));
        for (const QString& value : list)
            options += {option, value};
        return list;
    }

    Call RandomCall(const Site& site, const QString& word) {
        Call call{word, {}, {}};
        QStringList& options = call.options;
        const Range range = RandomRange();
        if (word != u"schedule" && word != u"hardware")
            options = {"--from", Moment(range.from), "--to", Moment(range.to)};
        const Range wholeMinute{range.from, range.to + 59};
        if (word == u"incident") {
            const QStringList readers = SomeOf(m_readerIds, "--reader", options);
            const QStringList codes =
                SomeOf(OneIn(8) ? m_codes : EventCodes(site), "--event", options);
            call.expected = Incident(site, wholeMinute, readers, codes);
        } else if (word == u"incident-sites") {
            QString code, place, reader;
            if (const QStringList codes = EventCodes(site); !codes.isEmpty() && OneIn(4))
                options += {"--event", code = OneIn(8) ? OneOf(m_codes) : OneOf(codes)};
            if (const QStringList sites = SiteNames(site); !sites.isEmpty() && OneIn(4))
                options += "--site=" + (place = OneIn(8) ? OneOf(sites).toUpper() : OneOf(sites));
            if (OneIn(4))
                options += {"--reader", reader = OneOf(m_readerIds)};
            call.expected = IncidentSites(site, wholeMinute, code, place, reader);
        } else if (word == u"schedule") {
            const int tour = site.tours.isEmpty() || OneIn(10) ? Upto(5) : OneOf(site.tours).id;
            options = {"--tour", QString::number(tour)};
            call.expected = Schedule(site, tour);
        } else if (word == u"downloads") {
            const QString reader = OneOf(m_readerIds);
            options += {"--reader", reader};
            call.expected = Downloads(site, range, reader);
        } else if (word == u"hardware") {
            const bool locations = !OneIn(3), events = !OneIn(3), readers = !OneIn(3);
            for (const auto& [wanted, flag] : {std::pair(locations, "--no-locations"),
                                               {events, "--no-events"},
                                               {readers, "--no-readers"}})
                if (!wanted)
                    options += flag;
            call.expected = Hardware(site, locations, events, readers);
        } else {
            call.expected = Database(site, range);
        }
        return call;
    }

    /// What a call really gives. Empty if it is as expected, else the difference.
    static QString DifferenceOf(const Call& call, const TestHome& home, ScriptedBoxes& boxes) {
        const auto row = std::find_if(
            ReportCatalogue().begin(), ReportCatalogue().end(),
            [&](const ReportRow& each) { return call.word == QLatin1String(each.word); });
        if (row == ReportCatalogue().end())
            return "there is no such report";
        Keeper keeper;
        const RunTimeError error = ThrownBy([&] {
            CommandParser parser("wardlockctl", "report " + call.word);
            const auto build = row->addOptions(parser.Options());
            parser.Parse(QStringList{"report", call.word} + call.options);
            if (ReportNeedsAreMet(row->commandNeeds))
                build(keeper);
        });
        if (error.Number() != 0)
            return "thrown: " + error.Description();
        // Of the one failure, only its number.
        static const QRegularExpression mismatch("(Error 13) in [^$]*");
        const QString messages = boxes.TakeTexts().join(u'|').replace(mismatch, "\\1");
        const QString log = home.TakeLog().replace(mismatch, "\\1");
        static const QRegularExpression rowId("(?<=\\{)\"ID\": \"\\d+\", ");
        const QString json = QString::fromUtf8(keeper.Json).remove(rowId);
        const Outcome& expected = call.expected;
        QString difference;
        const auto compare = [&](const QString& what, const QString& right, const QString& given) {
            if (right != given)
                difference +=
                    QStringLiteral("\n%1: expected\n%2\n  got\n%3").arg(what, right, given);
        };
        compare("rows", expected.json, json);
        compare("messages", expected.message, messages);
        compare("log", expected.message.startsWith("Error 13") ? expected.message : "", log);
        for (auto text = expected.printed.begin(); text != expected.printed.end(); ++text)
            compare(text.key(), text.value(),
                    keeper.Printed.value(text.key(), "(no such control)"));
        return difference;
    }

private slots:
    void RandomReportsAgree() {
        QLocale::setDefault(QLocale::c());
        const TestHome home(TestHome::NoStore);
        // One report opens the store once more each time. A key needs no derivation, which would
        // take most of the time.
        const QString key = "x'" + QString(64, '5') + '\'';
        CreateStoreFile(home.Store(), key);
        QVERIFY(ADOInit(home.Store(), key));
        gConnectionString = ConnectionText(home.Store(), key);
        CreateTables(*gConn);
        gConn->Execute("PRAGMA synchronous=OFF");
        gCompanyInfo = {"Wächter & \"Söhne\" %d", "", "100 % %p", "شركة"};
        const Seconds now = Seconds{46'349} * Day + 33'060;
        ScriptedBoxes boxes;
        QMap<QString, int> documents, withRows, messages, differences;
        QElapsedTimer elapsed;
        for (elapsed.start(); elapsed.elapsed() < 15'000 || documents["database"] < 500;) {
            const TestClock clock(DateTime::FromMilliseconds(now * 1000), 1);
            Site site = RandomSite(now);
            site.company = gCompanyInfo[0] + "\r\n" + gCompanyInfo[1] + "\r\n" + gCompanyInfo[2] +
                           "\r\n" + gCompanyInfo[3];
            Store(site);
            for (int round = 0; round < 5; ++round)
                for (const char* word : {"incident", "incident-sites", "schedule", "downloads",
                                         "hardware", "database"}) {
                    const Call call = RandomCall(site, word);
                    const QString difference = DifferenceOf(call, home, boxes);
                    ++documents[word];
                    withRows[word] += call.expected.json.contains("\n{");
                    static const QRegularExpression name("(code|named) [^$]*");
                    if (QString text = call.expected.message; !text.isEmpty())
                        ++messages[word + (": " + text.remove(name))];
                    if (!difference.isEmpty() && ++differences[word] == 1)
                        qWarning("%s %s%s", word, qPrintable(call.options.join(u' ')),
                                 qPrintable(difference));
                }
        }
        int all = 0, filled = 0;
        for (auto count = documents.begin(); count != documents.end(); ++count) {
            qInfo("%-14s %5d documents, %5d with rows, %5d different", qPrintable(count.key()),
                  count.value(), withRows.value(count.key()), differences.value(count.key()));
            all += count.value();
            filled += withRows[count.key()];
        }
        for (auto count = messages.begin(); count != messages.end(); ++count)
            qInfo("%5d \"%s\"", count.value(), qPrintable(count.key()));
        QVERIFY(all >= 3000 && filled >= all / 2);
        QCOMPARE(messages.size(), 13);
        QVERIFY(differences.isEmpty());
    }
};

QTEST_MAIN(ReportsRandomTest)
#include "ReportsRandomTest.moc"
