// Definitions without their windows: the rules of a tour, and the document with all definitions.

#include "Definitions.h"
#include "MemoryImage.h"
#include "ScriptedBoxes.h"
#include "SetupFile.h"
#include "TestHome.h"
#include "TestTable.h"
#include "TourDraft.h"
#include "cTourReport.h"
#include "mOperators.h"

#include <QElapsedTimer>

namespace {

/// What an import of this document says; empty if it succeeds.
QString FaultOf(const QByteArray& document) {
    return DescriptionOf([&] { ImportSetup(document); });
}

QByteArray Groups(const QByteArray& groups) { return "{\"groups\":[" + groups + "]}"; }

QByteArray SiteNamed(const QByteArray& name, const QByteArray& more = {}) {
    return "{\"type\":\"site\",\"name\":" + name + more + "}";
}

QByteArray Site(const QByteArray& buttons) {
    return Groups(SiteNamed("\"Quay\"", ",\"buttons\":[" + buttons + "]"));
}

QByteArray ReaderList(const QByteArray& readers) { return "{\"readers\":[" + readers + "]}"; }

/// A tour through locations of the demonstration site.
QByteArray TourWith(const QByteArray& tolerance, const QByteArray& points = {}) {
    return R"({"tours":[{"name":"Round","start":"22:30","tolerance":)" + tolerance +
           ",\"points\":[" + points + "]}]}";
}

} // namespace

class SetupTest : public QObject {
    Q_OBJECT

private slots:
    void TypedMinutes() {
        constexpr int none = -1;
        QList<std::tuple<QString, int, int>> rows{
            {"0", 0, 0},        {" 59 ", 59, 59},       {"59.4", 59, none},
            {"60", 60, none},   {"5.5", 6, 6},          {"4.5", 4, 4},
            {"0.5", 0, 0},      {"1439.4", 1439, none}, {"1439.5", none, none},
            {"-1", none, none}, {"-0.4", none, none},   {"1e1", 10, 10}};
        for (const char* text : {"", " ", "abc", "5 5", "5m", "0x10", "nan", "inf", "5,5"})
            rows += {QString::fromLatin1(text), none, none};
        for (const auto& [text, interval, tolerance] : rows) {
            QVERIFY2(IntervalFromText(text).value_or(none) == interval, qPrintable(text));
            QVERIFY2(ToleranceFromText(text).value_or(none) == tolerance, qPrintable(text));
        }
        QLocale::setDefault(QLocale(QLocale::German)); // the user's own decimal sign
        QCOMPARE(ToleranceFromText("5,5"), 6);
        QLocale::setDefault(QLocale::c());
    }

    // Every interval reads back as it was entered, and the editor shows the times that the
    // evaluation uses, whatever the start.
    void TimesAreThoseOfTheEvaluation() {
        const TestHome home(TestHome::EmptyStore);
        Tour tour{AddTour("All"), "All", {}, 5, {}};
        TourDraft draft;
        for (int minutes = 0; minutes < MinutesOfDay; ++minutes)
            draft.Insert(minutes, {minutes, "A00001", {}, {}});
        SaveTour(tour, draft);
        TourDraft loaded;
        loaded.Load(tour.id);
        for (int minutes = 0; minutes < MinutesOfDay; ++minutes)
            QCOMPARE(loaded.Points()[std::size_t(minutes)].minutes, minutes);

        QCOMPARE(loaded.TimesFrom({}).back(), DateTime::FromTime(0, 1439 * 1440 / 2));

        const DateTime day = DateTime::FromQt(QDate(2026, 3, 29));
        for (int start = 0; start < MinutesOfDay; start += 7) {
            cTourReport report;
            report.TourID = tour.id;
            report.StartDate = day;
            report.StartTime = DateTime::FromTime(start / 60, start % 60);
            QVERIFY(report.LoadTourPoints());
            const std::vector<DateTime> times = loaded.TimesFrom(report.StartTime);
            for (std::size_t i = 0; i < times.size(); ++i)
                if (report.TourPoints()[i].PointDateTime != day + times[i])
                    QFAIL(qPrintable(QStringLiteral("start %1, point %2").arg(start).arg(i)));
        }
    }

    void FreshNames() {
        QCOMPARE(FreshName("Site", {"Site 001", "Site 003"}), "Site 002");
        QStringList all;
        for (int i = 1; i <= 999; ++i)
            all += QStringLiteral("Tour %1").arg(i, 3, 10, QLatin1Char('0'));
        QCOMPARE(FreshName("Tour", all), "");
        all.removeLast();
        QCOMPARE(FreshName("Tour", all), "Tour 999");
    }

    // Deleting a group or a tour deletes its parts, but not the points that visit its locations.
    void Deleting() {
        const TestHome home(TestHome::DemoSite);
        const QStringList points = RowsOf("SELECT * FROM tblTourPoints");
        DeleteGroup(GroupsOf(SiteGroup).first().id);
        QCOMPARE(GroupsOf(SiteGroup).size(), 1);
        QCOMPARE(RowsOf("SELECT * FROM tblButtons WHERE lParentID = 1"), QStringList());
        QCOMPARE(RowsOf("SELECT * FROM tblTourPoints"), points);
        DeleteTour(2);
        QVERIFY(!TourHasPoints(2) && TourHasPoints(1));
    }

    void ExportAndImport() {
        QByteArray document;
        QStringList tours;
        const QString allPoints = "SELECT lIndex, dtTime, tButtonCode FROM tblTourPoints";
        {
            const TestHome home(TestHome::DemoSite);
            UpdateGroup({AddGroup(UserGroup, "Guards \"A\""), "Guards \"A\"", "a \"line\", ü"});
            AddButton(4, {0, "00FF00", "'quoted' \\", {}});
            AddReader({"00000001", " blank "});
            DeleteButton(ButtonsOf(1).first().id); // the night tour visits it twice
            document = ExportSetup();
            tours = RowsOf(allPoints);
        }
        const TestHome home(TestHome::EmptyStore);
        QCOMPARE(FaultOf(document), "");
        QCOMPARE(ExportSetup(), document);
        QCOMPARE(RowsOf(allPoints), tours);
        QVERIFY(FaultOf(document).contains("That name is already used"));
        QCOMPARE(ExportSetup(), document);
    }

    void ImportFaults_data() {
        // A part of the fault; empty: the import succeeds.
        const TestTable<QByteArray, QString> row("document", "fault");
        const auto point = [](const char* minutes, const QByteArray& code, const char* more = "") {
            return "{\"minutes\":" + QByteArray(minutes) + ",\"button\":\"" + code + '"' + more +
                   '}';
        };
        const QByteArray a = R"({"code":"A00001","name":"A"})",
                         b = R"({"code":"A00002","name":"A"})";
        row("good tour",
            TourWith("59", point("1439", "1a40c2") + ',' + point("1321", "1A40C7") + ',' +
                               point("0", "1A40C2")),
            "");
        row("no JSON", "{\"groups\": [}", "not valid JSON");
        row("no object", "[]", "an object");
        row("unknown list", R"({"Groups":[]})", "\"Groups\" is not known here");
        row("no list", R"({"groups":{}})", "\"groups\" must be a list");
        row("no entry", Groups("1"), "group 1: must be an object");
        row("bad type", Groups(R"({"type":"Site","name":"x"})"), "group 1 \"x\": \"type\"");
        row("no name", Groups(SiteNamed(R"("  ")")), "You must enter a name for this group");
        row("line in a name", ReaderList(R"({"id":"00000001","description":"a\nb"})"),
            "control char");
        row("tab", Groups(SiteNamed(R"("x")", R"(,"description":"\t")")), "control characters");
        row("separator", Groups(SiteNamed(R"("x\u2028y")")), "control characters");
        row("reversed", Groups(SiteNamed(R"("x\u202ey")")), "control characters");
        row("too long", Groups(SiteNamed('"' + QByteArray(101, 'x') + '"')), "at most 100");
        row("name is a number", Groups(SiteNamed("7")), "\"name\" must be");
        row("same name", Groups(SiteNamed("\"A\"") + ',' + SiteNamed("\"A\"")),
            "group 2 \"A\": That name is already used.");
        row("same name, other type",
            Groups(SiteNamed("\"A\"") + R"(,{"type":"event book","name":"A"})"), "");
        row("short code", Site(R"({"code":"A0001","name":"A"})"),
            "group 1 \"Quay\", button 1 \"A\": \"code\": Illegal Value");
        row("code twice", Site(a + R"(,{"code":"a00001","name":"B"})"),
            "button 2 \"B\": \"code\": That key is already used!");
        row("code in the store", Site(R"({"code":"1A40C2","name":"A"})"), "already used!");
        row("button named twice", Site(a + ',' + b), "button 2 \"A\": That name is already used.");
        row("misspelt", Site(R"({"code":"A00001","name":"A","desc":""})"), "\"desc\" is not known");
        row("reader", ReaderList(R"({"id":"4b5831a8","description":"R"})"), "");
        row("bad reader", ReaderList(R"({"id":"4B5831A","description":"R"})"), "Illegal Value");
        row("reader in the store", ReaderList(R"({"id":"4B5831A7","description":"x"})"),
            "reader 1 \"4B5831A7\": This Reader ID already exists!");
        row("reader twice",
            ReaderList(
                R"({"id":"00000001","description":"R"},{"id":"00000001","description":"S"})"),
            "reader 2 \"00000001\": This Reader ID already exists!");
        row("reader without a name", ReaderList(R"({"id":"00000001","description":""})"),
            "You must enter a name for this item");
        row("start", R"({"tours":[{"name":"T","start":"24:00","tolerance":5}]})", "\"start\"");
        row("tolerance", TourWith("60"), "tour 1 \"Round\": The tolerance value");
        row("half a minute", TourWith("5.5"), "The tolerance value");
        row("tolerance as text", TourWith("\"5\""), "The tolerance value");
        row("interval", TourWith("5", point("1440", "1A40C2")),
            "tour 1 \"Round\", point 1 \"1A40C2\": Only valid numbers");
        row("neighbours", TourWith("5", point("0", "1A40C2") + ',' + point("5", "1A40C2")),
            "point 2 \"1A40C2\": Cannot assign two sequential tour points");
        row("total", TourWith("59", point("0", "1A40C2") + ',' + point("1322", "1A40C7")),
            "The total tour time");
        row("unknown location", TourWith("5", point("0", "A00003")),
            "point 1 \"A00003\": no location has this code");
        row("deleted location", TourWith("5", point("0", "A00003", ",\"deleted\":true")), "");
    }
    void ImportFaults() {
        QFETCH(QByteArray, document);
        QFETCH(QString, fault);
        const TestHome home(TestHome::DemoSite);
        const QStringList before = ContentOfStore();
        const QString said = FaultOf(document);
        QVERIFY2(fault.isEmpty() ? said.isEmpty() : said.contains(fault), qPrintable(said));
        QCOMPARE(ContentOfStore() == before, !fault.isEmpty());
    }

    // What an operator, a file or a caller passes in is a value, never part of a statement.
    void HostileText() {
        for (const QString& hostile :
             {QString("'; DELETE FROM tblOperators; --"), QString("' OR '1'='1"),
              QString("\"\x23?;"),
              QString("x') UNION SELECT 1, 2, Password, 4, 5, 6, 7, 1 FROM tblOperators --")}) {
            const TestHome home(TestHome::DemoSite);
            const QStringList before = ContentOfStore();
            const int site = AddGroup(SiteGroup, hostile);
            UpdateGroup({site, hostile, hostile});
            AddButton(site, {0, hostile, hostile, hostile});
            QCOMPARE(ButtonsOf(site).value(0).code, hostile);
            DeleteGroup(site);
            AddReader({hostile, hostile});
            UpdateReader({hostile, hostile + '2'});
            QCOMPARE(Readers().last().description, hostile + '2');
            QVERIFY(FindReader(hostile));
            DeleteReader(hostile);
            const int tour = AddTour(hostile);
            UpdateTour({tour, hostile, hostile, 5, {}});
            QCOMPARE(Tours().last().name, hostile);
            DeleteTour(tour);
            QCOMPARE(CheckOperator(MasterOperator, hostile, RememberLogin::No), NoOperator);
            ButtonDirectory directory;
            QCOMPARE(directory.LookUpButtonData(hostile).Name, "Unknown");
            ScriptedBoxes boxes;
            cTourReport report;
            report.TourID = 2;
            report.ReaderId = hostile;
            QVERIFY(report.LoadTourHeader() && report.LoadTourPoints());
            QVERIFY(!report.LoadReaderEvents() && report.Buttons().empty());
            QCOMPARE(home.TakeLog(), "Wrong password for user type = 1");
            const QByteArray quoted = QString(hostile).replace('"', "\\\"").toUtf8();
            QCOMPARE(FaultOf(Groups(SiteNamed('"' + quoted + '"'))), "");
            QCOMPARE(GroupsOf(SiteGroup).last().name, hostile);
            DeleteGroup(GroupsOf(SiteGroup).last().id);
            const auto rows = [](const QStringList& content) { // without the IDs given last
                return content.mid(0, content.indexOf("sqlite_sequence"));
            };
            QCOMPARE(rows(ContentOfStore()), rows(before));
        }
    }

    // Four times as many entries must not take ten times as long.
    void ImportTakesTimeInProportion() {
        const auto seconds = [](int count) {
            const TestHome home(TestHome::EmptyStore);
            QByteArray groups, tours;
            for (int i = 0; i < count; ++i) {
                const QByteArray comma = i == 0 ? "" : ",", name = QByteArray::number(i);
                groups += comma + "{\"type\":\"site\",\"name\":\"" + name + "\"}";
                tours += comma + "{\"name\":\"" + name + "\",\"start\":\"06:00\",\"tolerance\":0}";
            }
            QElapsedTimer timer;
            timer.start();
            ImportSetup("{\"groups\":[" + groups + "],\"tours\":[" + tours + "]}");
            return static_cast<double>(timer.nsecsElapsed()) / 1e9;
        };
        seconds(500);
        const double once = seconds(1500), fourTimes = seconds(6000);
        QVERIFY2(fourTimes < 10 * once, qPrintable(QString("%1 %2").arg(once).arg(fourTimes)));
    }
};

QTEST_GUILESS_MAIN(SetupTest)
#include "SetupTest.moc"
