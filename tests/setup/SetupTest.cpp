// What is defined, apart from its windows: the rules of a tour, and the document that carries all
// definitions.

#include "Definitions.h"
#include "MemoryImage.h"
#include "ScriptedBoxes.h"
#include "SetupFile.h"
#include "TestHome.h"
#include "TourDraft.h"
#include "cTourReport.h"
#include "mOperators.h"

#include <QElapsedTimer>
#include <QTest>

namespace {

const QString Points = "SELECT lIndex, tButtonCode FROM tblTourPoints WHERE lParentID = 1";

TourDraft DraftOf(const QList<std::pair<int, const char*>>& points) {
    TourDraft draft;
    for (const auto& [minutes, code] : points)
        draft.Insert(draft.Count(), {minutes, QString::fromLatin1(code), {}, {}});
    return draft;
}

QString Codes(const TourDraft& draft) {
    QString codes;
    for (const TourDraft::Point& point : draft.Points())
        codes += point.buttonCode;
    return codes;
}

/// What an import of this document says; empty where it is taken.
QString FaultOf(const QByteArray& document) {
    try {
        ImportSetup(document);
    } catch (const RunTimeError& error) {
        return error.Description();
    }
    return {};
}

QByteArray Site(const QByteArray& buttons) {
    return R"({"groups":[{"type":"site","name":"Quay","buttons":[)" + buttons + "]}]";
}

QByteArray TourWith(const QByteArray& fields) {
    return Site(R"({"code":"A00001","name":"A"},{"code":"A00002","name":"B"})") +
           R"(,"tours":[{"name":"Round","start":"22:30",)" + fields + "}]}";
}

} // namespace

class SetupTest : public QObject {
    Q_OBJECT

private slots:
    void TypedMinutes_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("interval"); // -1: refused
        QTest::addColumn<int>("tolerance");
        const auto row = [](const char* text, int interval, int tolerance) {
            QTest::newRow(text) << QString::fromUtf8(text) << interval << tolerance;
        };
        row("0", 0, 0);
        row(" 59 ", 59, 59);
        row("59.4", 59, -1);
        row("60", 60, -1);
        row("5.5", 6, 6);
        row("4.5", 4, 4);
        row("12.5", 12, 12);
        row("0.5", 0, 0);
        row("1439", 1439, -1);
        row("1439.4", 1439, -1);
        row("1439.5", -1, -1); // would round to a whole day
        row("1440", -1, -1);
        row("-1", -1, -1);
        row("-0.4", -1, -1);
        row("1e1", 10, 10);
        for (const char* text : {"", " ", "abc", "5 5", "5m", "0x10", "nan", "inf", "5,5"})
            row(text, -1, -1);
    }
    void TypedMinutes() {
        QFETCH(QString, text);
        QTEST(IntervalFromText(text).value_or(-1), "interval");
        QTEST(ToleranceFromText(text).value_or(-1), "tolerance");
        if (text == u"5,5") { // by the user's own decimal sign
            QLocale::setDefault(QLocale(QLocale::German));
            QCOMPARE(ToleranceFromText(text), 6);
            QLocale::setDefault(QLocale::c());
        }
    }

    // Every interval reads back as it was entered, and from every start the times shown are those
    // that the evaluation plans.
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

    void MovingPoints() {
        TourDraft draft = DraftOf({{0, "A"}, {1, "B"}, {2, "C"}, {3, "D"}});
        QCOMPARE(draft.Move(0, 4), 3); // to the end
        QCOMPARE(Codes(draft), "BCDA");
        QCOMPARE(draft.Move(3, 0), 0);
        QCOMPARE(Codes(draft), "ABCD");
        QCOMPARE(draft.Move(1, 3), 2);
        QCOMPARE(Codes(draft), "ACBD");
        QCOMPARE(draft.Move(2, 2) + draft.Move(2, 3), 4); // where it is
        QCOMPARE(Codes(draft), "ACBD");
        QCOMPARE(draft.Points()[2].minutes, 1); // the minutes go along
    }

    void RulesOfATour() {
        QVERIFY(!DraftOf({}).EqualNeighbour());
        QVERIFY(!DraftOf({{0, "A"}, {5, "B"}, {5, "A"}}).EqualNeighbour());
        QCOMPARE(DraftOf({{0, "A"}, {5, "B"}, {5, "B"}}).EqualNeighbour(), 2);
        const auto fits = [](const QList<std::pair<int, const char*>>& points, int tolerance) {
            return DraftOf(points).FitsADay(tolerance);
        };
        QVERIFY(fits({}, 59));
        QVERIFY(fits({{720, "A"}, {1439, "B"}}, 0)); // the first interval lies before the tour
        QVERIFY(!fits({{0, "A"}, {1439, "B"}, {1, "C"}}, 0));
        QVERIFY(fits({{0, "A"}, {1429, "B"}}, 5));
        QVERIFY(!fits({{0, "A"}, {1430, "B"}}, 5));
        QList<std::pair<int, const char*>> many;
        for (int i = 0; i < 100; ++i)
            many += {1439, i % 2 ? "A" : "B"};
        QVERIFY(!fits(many, 0));
    }

    // A tour is all old or all new, its points and its row alike, whichever of them fails.
    void SavingIsAllOrNothing() {
        const TestHome home(TestHome::EmptyStore);
        const Tour tour{AddTour("Round"), "Round", "old", 5, {}}, renamed{1, "Walk", "new", 9, {}};
        SaveTour(tour, DraftOf({{0, "A00001"}, {5, "A00002"}, {5, "A00003"}}));
        const QStringList before = ContentOfStore();
        const TourDraft other = DraftOf({{0, "B00001"}, {5, "B00002"}, {5, "B00003"}});
        for (const char* refused : {"INSERT ON tblTourPoints WHEN NEW.tButtonCode = 'B00002'",
                                    "UPDATE ON tblTours WHEN NEW.tName = 'Walk'"}) {
            gConn->Execute(QStringLiteral("CREATE TRIGGER refuse BEFORE ") +
                           QString::fromLatin1(refused) +
                           QStringLiteral(" BEGIN SELECT RAISE(ABORT, 'no room'); END"));
            QVERIFY(ErrorOf([&] { SaveTour(renamed, other); }) != 0);
            gConn->Execute("DROP TRIGGER refuse");
            QCOMPARE(ContentOfStore(), before);
        }
        SaveTour(renamed, other);
        QCOMPARE(RowsOf(Points), (QStringList{"1|B00001", "2|B00002", "3|B00003"}));
        QCOMPARE(Tours().first().name, "Walk");
        SaveTour(renamed, {});
        QVERIFY(!TourHasPoints(1));
    }

    void FreshNames() {
        QCOMPARE(FreshName("Site", {}), "Site 001");
        QCOMPARE(FreshName("Site", {"Site 001", "Site 003"}), "Site 002");
        QCOMPARE(FreshReaderName({"Reader 1", "reader 2"}), "Reader 2");
        QStringList all;
        for (int i = 1; i <= 999; ++i)
            all += QStringLiteral("Tour %1").arg(i, 3, 10, QLatin1Char('0'));
        QCOMPARE(FreshName("Tour", all), "");
        all.removeLast();
        QCOMPARE(FreshName("Tour", all), "Tour 999");
    }

    // Deleting takes the parts along and leaves events, and tours that visit a location, alone.
    void Deleting() {
        const TestHome home(TestHome::DemoSite);
        const QStringList points = RowsOf("SELECT * FROM tblTourPoints");
        DeleteGroup(GroupsOf(SiteGroup).first().id);
        QCOMPARE(GroupsOf(SiteGroup).size(), 1);
        QCOMPARE(RowsOf("SELECT * FROM tblButtons WHERE lParentID = 1"), QStringList());
        QCOMPARE(RowsOf("SELECT * FROM tblTourPoints"), points);
        const int copy = CopyTour(2, "Copy");
        DeleteTour(2);
        QVERIFY(!TourHasPoints(2) && TourHasPoints(1));
        QCOMPARE(RowsOf("SELECT lIndex, dtTime, tButtonCode FROM tblTourPoints WHERE lParentID = " +
                        QString::number(copy))
                     .size(),
                 5);
        QCOMPARE(RowsOf("SELECT tDesc, iTolerance, dtStartTime FROM tblTours WHERE tName = 'Copy'"),
                 QStringList(" |5|0"));
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
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("fault"); // in part; empty: it is taken
        const auto row = [](const char* name, const QByteArray& document, const char* fault) {
            QTest::newRow(name) << document << QString::fromUtf8(fault);
        };
        row("good tour",
            TourWith(R"("tolerance":59,"points":[{"minutes":1439,"button":"a00001"},)"
                     R"({"minutes":1321,"button":"A00002"},{"minutes":0,"button":"A00001"}])"),
            "");
        row("no JSON", "{\"groups\": [}", "not valid JSON");
        row("no object", "[]", "an object");
        row("unknown list", R"({"Groups":[]})", "\"Groups\" is not known here");
        row("no list", R"({"groups":{}})", "\"groups\" must be a list");
        row("no entry", R"({"groups":[1]})", "group 1: must be an object");
        row("bad type", R"({"groups":[{"type":"Site","name":"x"}]})", "group 1 \"x\": \"type\"");
        row("no name", R"({"groups":[{"type":"site","name":"  "}]})",
            "You must enter a name for this group");
        row("line in a name", R"({"readers":[{"id":"00000001","description":"a\nb"}]})",
            "control characters");
        row("tab in a description", R"({"groups":[{"type":"site","name":"x","description":"\t"}]})",
            "control characters");
        row("separator", R"({"groups":[{"type":"site","name":"x\u2028y"}]})", "control characters");
        row("turning mark", "{\"groups\":[{\"type\":\"site\",\"name\":\"x\\u202ey\"}]}",
            "control characters");
        row("too long",
            "{\"groups\":[{\"type\":\"site\",\"name\":\"" + QByteArray(101, 'x') + "\"}]}",
            "at most 100");
        row("name is a number", R"({"groups":[{"type":"site","name":7}]})", "\"name\" must be");
        row("same name", R"({"groups":[{"type":"site","name":"A"},{"type":"site","name":"A"}]})",
            "group 2 \"A\": That name is already used.");
        row("same name, other type",
            R"({"groups":[{"type":"site","name":"A"},{"type":"event book","name":"A"}]})", "");
        row("short code", Site(R"({"code":"A0001","name":"A"})") + "}",
            "group 1 \"Quay\", button 1 \"A\": \"code\": Illegal Value");
        row("code twice",
            Site(R"({"code":"a00001","name":"A"},{"code":"A00001","name":"B"})") + "}",
            "button 2 \"B\": \"code\": That key is already used!");
        row("button named twice",
            Site(R"({"code":"A00001","name":"A"},{"code":"A00002","name":"A"})") + "}",
            "button 2 \"A\": That name is already used.");
        row("misspelt", Site(R"({"code":"A00001","name":"A","desc":""})") + "}",
            "\"desc\" is not known here");
        row("reader", R"({"readers":[{"id":"4b5831a7","description":"R"}]})", "");
        row("bad reader", R"({"readers":[{"id":"4B5831A","description":"R"}]})", "Illegal Value");
        row("reader twice",
            R"({"readers":[{"id":"00000001","description":"R"},{"id":"00000001","description":"S"}]})",
            "reader 2 \"00000001\": This Reader ID already exists!");
        row("reader without a name", R"({"readers":[{"id":"00000001","description":""}]})",
            "You must enter a name for this item");
        row("start", R"({"tours":[{"name":"T","start":"24:00","tolerance":5}]})", "\"start\"");
        row("tolerance", TourWith(R"("tolerance":60)"), "tour 1 \"Round\": The tolerance value");
        row("half a minute", TourWith(R"("tolerance":5.5)"), "The tolerance value");
        row("tolerance as text", TourWith(R"("tolerance":"5")"), "The tolerance value");
        row("interval", TourWith(R"("tolerance":5,"points":[{"minutes":1440,"button":"A00001"}])"),
            "tour 1 \"Round\", point 1 \"A00001\": Only valid numbers");
        row("neighbours",
            TourWith(R"("tolerance":5,"points":[{"minutes":0,"button":"A00001"},)"
                     R"({"minutes":5,"button":"A00001"}])"),
            "point 2 \"A00001\": Cannot assign two sequential tour points");
        row("total",
            TourWith(R"("tolerance":59,"points":[{"minutes":0,"button":"A00001"},)"
                     R"({"minutes":1322,"button":"A00002"}])"),
            "The total tour time");
        row("unknown location",
            TourWith(R"("tolerance":5,"points":[{"minutes":0,"button":"A00003"}])"),
            "point 1 \"A00003\": no location has this code");
        row("deleted location",
            TourWith(R"("tolerance":5,"points":[{"minutes":0,"button":"A00003","deleted":true}])"),
            "");
    }
    void ImportFaults() {
        QFETCH(QByteArray, document);
        QFETCH(QString, fault);
        const TestHome home(TestHome::EmptyStore);
        const QStringList before = ContentOfStore();
        const QString told = FaultOf(document);
        QVERIFY2(fault.isEmpty() ? told.isEmpty() : told.contains(fault), qPrintable(told));
        QCOMPARE(ContentOfStore() == before, !fault.isEmpty());
    }

    // Whatever an operator, a file or a caller hands over is a value and never a statement.
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
            QVERIFY(IsKnownReader(hostile));
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
            const QByteArray button = "{\"code\":\"00FFAA\",\"name\":\"" + quoted + "\"}";
            const QByteArray group = "{\"type\":\"site\",\"name\":\"" + quoted + "\",\"buttons\":[";
            QCOMPARE(FaultOf("{\"groups\":[" + group + button + "]}]}"), "");
            QCOMPARE(GroupsOf(SiteGroup).last().name, hostile);
            DeleteGroup(GroupsOf(SiteGroup).last().id);
            const auto rows = [](const QStringList& content) { // without the last IDs given
                return content.mid(0, content.indexOf("sqlite_sequence"));
            };
            QCOMPARE(rows(ContentOfStore()), rows(before));
        }
    }

    // Twice as many may take somewhat more than twice as long, but not four times.
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

    // What the store holds already counts too.
    void ImportIntoAFullStore() {
        const TestHome home(TestHome::DemoSite);
        QVERIFY(FaultOf(Site(R"({"code":"1A40C2","name":"A"})") + "}").contains("already used!"));
        QVERIFY(FaultOf(R"({"readers":[{"id":"4B5831A7","description":"x"}]})").contains("exists"));
        QCOMPARE(FaultOf(R"({"tours":[{"name":"Third","start":"06:00","tolerance":0,)"
                         R"("points":[{"minutes":3,"button":"1A40C2"}]}]})"),
                 "");
        QCOMPARE(Tours().size(), 3);
    }
};

QTEST_GUILESS_MAIN(SetupTest)
#include "SetupTest.moc"
