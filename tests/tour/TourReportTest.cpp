// The tour report from store to page: loading, matching, the report's rows, and the messages if
// there is no report.

#include "Clock.h"
#include "Connection.h"
#include "DueTours.h"
#include "Engine.h"
#include "Format.h"
#include "ResourceLimit.h"
#include "TableExists.h"
#include "TourReportBuilder.h"
#include "TourSite.h"
#include "TourWords.h"
#include "cTourReport.h"

#include <QTest>

#include <sqlcipher/sqlite3.h>

using namespace TourSite;

namespace {

const QString ReaderId = QStringLiteral("4B5831A7");
const DateTime TourDay = DateTime::FromMilliseconds(Day * 1000);
const QString Round = QStringLiteral("08:00 A, 08:30 B, 09:00 C");
const QString NoData = QStringLiteral("No Data on the report");
const QString Failed = QStringLiteral("Error in creating new Tour\r\n");

} // namespace

class TourReportTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> m_home;
    ScriptedBoxes m_boxes;
    RecordingViewer m_viewer;

    QString Report(int tour, bool showAll = false, bool events = false, DateTime day = TourDay) {
        m_viewer.Shown = 0;
        BuildTourReport({tour, day, ::ReaderId, "4B5831A7 - Night", events, showAll}, m_viewer);
        return m_viewer.Shown == 0 ? m_boxes.TakeTexts().join(u'/') : Shortened(m_viewer.Rows);
    }

    cTourReport Loaded(int tour, DateTime day = TourDay) {
        cTourReport report;
        report.TourID = tour;
        report.StartDate = day;
        report.ReaderId = ::ReaderId;
        if (!report.LoadTourHeader() || !report.LoadTourPoints() || !report.LoadReaderEvents())
            qFatal("tour %d does not load", tour);
        return report;
    }

private slots:
    void initTestCase() {
        QLocale::setDefault(QLocale::c());
        m_home = std::make_unique<TestHome>(TestHome::EmptyStore);
        gConn->Execute("PRAGMA synchronous=OFF"); // syncing a slow disk is not tested here
    }
    void cleanupTestCase() { m_home.reset(); }
    void init() {
        for (const char* table : {"tblListItems", "tblButtons", "tblTours", "tblTourPoints",
                                  "tblEvents", "sqlite_sequence"})
            gConn->Execute(QStringLiteral("DELETE * FROM ") + table);
        Define();
    }

    void ReportInFull() {
        const TestClock clock(TourDay + DateTime::FromTime(9, 5, 7), 1);
        gCompanyInfo = {"Kestrel", "", "Pier 4", "%d"};
        AddTouches("08:40 B, 08:41 e");
        m_viewer.OnShow = [] { QVERIFY(TableExists("tblXXXException")); };
        Report(AddTour(Round, 5), true, true, TourDay + DateTime::FromTime(14, 30));
        m_viewer.OnShow = {};
        const QString rule = "|||||||" + QString(255, u'_') + "|||";
        QCOMPARE(m_viewer.Rows,
                 (QStringList{rule, "10|08:00|07:55 to 08:05|||Site - A|MISSING||||", rule,
                              "20|08:30|08:25 to 08:35|||Site - B|EXCEPTION||||",
                              "||||||||08:40|LATE|Site - B", "||||||||08:41|EVENT|Book - e", rule,
                              "30|09:00|08:55 to 09:05|||Site - C|MISSING||||"}));
        QVERIFY(!TableExists("tblXXXException"));
        QCOMPARE(m_viewer.Caption, "Tour Report");
        const QHash<QString, QString> labels{{"lblReportTitle", "Tour Report"},
                                             {"lblPrintDate", "29 Mar 2026    09:05"},
                                             {"lblDateRange", "29 Mar 2026"},
                                             {"lblTourName", "Round - of tests"},
                                             {"lblReaderID", "4B5831A7 - Night"},
                                             {"lblTolerance", "5"},
                                             {"lblOptions", "Yes"},
                                             {"lblSummary", "3 points: 1 late, 2 missing"},
                                             {"lblCompanyInfo", "Kestrel\r\n\r\nPier 4\r\n%d"},
                                             {"lblEndOfReport", "End Of Report"}};
        for (auto label = labels.begin(); label != labels.end(); ++label)
            QCOMPARE(m_viewer.Labels.value(label.key()), label.value());
        Report(1);
        QCOMPARE(m_viewer.Caption, "Exception Report");
        QCOMPARE(m_viewer.Labels.value("lblOptions"), "No");
        // A button that was touched early and late counts once, one among strangers is missing.
        gConn->Execute("DELETE * FROM tblEvents");
        AddTouches("08:00 A, 08:20 B, 08:40 B, 09:00 D");
        Report(1);
        QCOMPARE(m_viewer.Labels.value("lblSummary"), "3 points: 1 on time, 1 early, 1 missing");
    }

    static QString Due(double fromHour, double toHour) {
        const auto at = [](double hour) { return TourDay + DateTime::FromStore(hour / 24); };
        QStringList lines;
        QHash<QString, qsizetype> ofReader;
        for (const DueTour& due : DueTours(at(fromHour), at(toHour))) {
            if (due.reader)
                ++ofReader[due.reader->id];
            lines += due.tour.name + u' ' + Format(due.start, "dd hh:nn") + u' ' +
                     (due.reader ? due.reader->id : QString(u'-')) + u' ' +
                     PointSummary(due.points);
        }
        for (const QString reader : {"4B5831A7", "22222222", "33333333"})
            if (DueToursOfReader(reader, at(fromHour), at(toHour)).size() != ofReader[reader])
                lines += "not the same of " + reader;
        return lines.join("; ");
    }

    void ToursThatWereDue() {
        AddTour("23:30 A, 24:10 B, 24:40 C", 5); // ends on the next day at 00:45:59
        AddTour({}, 5);
        const QString missing = "Round 28 23:30 - 3 points: 3 missing";
        QCOMPARE(Due(0, 0.76), QString());
        QCOMPARE(Due(0, 0.77), missing);
        QCOMPARE(Due(0.77, 24), QString());
        QCOMPARE(Due(-47, 0.77), missing + "; Round 27 23:30 - 3 points: 3 missing");
        // The second reader walked it late, the third only met the guard at C.
        AddTouches("23:31 A, 24:12 B, 24:50 D", "4B5831A7");
        AddTouches("24:20 A, 24:30 B", "22222222");
        AddTouches("24:40 C", "33333333");
        const QString walked = "Round 29 23:30 4B5831A7 3 points: 2 on time, 1 missing";
        QCOMPARE(Due(24, 48), "Round 29 23:30 33333333 3 points: 1 on time, 2 missing; " + walked);
        AddTouches("24:39 C", "4B5831A7");
        QCOMPARE(Due(24, 48), "Round 29 23:30 4B5831A7 3 points: 3 on time");
    }

    void LoadingATour() {
        AddTouches("23:30 A, 24:40 B, 24:45 C");
        AddTouches("24:41 B", "4b5831a7"); // another reader's
        const int tour = AddTour("23:50 A, 24:10 X, 24:30 B", 0);
        // The seconds of the start are not used, nor is the time of day in the date asked for.
        gConn->Execute("UPDATE tblTours SET dtStartTime = #1955-05-05 23:50:59#");
        const cTourReport report = Loaded(tour, TourDay + DateTime::FromTime(14, 30));
        QCOMPARE(report.GetTourFullName(), "Round - of tests");
        QCOMPARE(report.TourWindow, DateTime::FromTime(0, 15));
        const auto& points = report.TourPoints();
        QCOMPARE(points.size(), std::size_t{3});
        QCOMPARE(points[0].PointDateTime, TourDay + DateTime::FromTime(23, 50));
        QCOMPARE(points[2].PointDateTime, TourDay + DateTime::FromTime(24, 30));
        QCOMPARE(points[1].PointButtonId + points[1].ButtonName + points[1].SiteName, "XXXXXX");
        QCOMPARE(report.Buttons().size(), std::size_t{2}); // both edges of the window
        QCOMPARE(report.Buttons()[0].DateAndTime, TourDay + DateTime::FromTime(24, 40));
    }

    // A tour knows the whole code of a button, a touch only six characters of it.
    void CodesOfOtherLengths() {
        const QString stranger = "_, A EXCEPTION, 08:00 A NOT ON TOUR";
        const int tour = AddTour("08:00 A", 5);
        AddTouches("08:00 A");
        QString before = "AAAAAA";
        for (const auto& [code, report] : {std::pair(QString("12345678"), stranger),
                                           {"1234", stranger},
                                           {"aaaaaA", "NO EXCEPTIONS, _"}}) {
            for (const char* table : {"tblEvents", "tblButtons", "tblTourPoints"})
                gConn->Execute(
                    QStringLiteral("UPDATE %1 SET tButtonCode = '%2' WHERE tButtonCode = '%3'")
                        .arg(table, code, before));
            QCOMPARE(Report(tour), report);
            before = code;
        }
        gConn->Execute("UPDATE tblTourPoints SET tButtonCode = 'AaaaAa'");
        QCOMPARE(Report(tour), "_, - EXCEPTION, 08:00 A NOT ON TOUR");
    }

    void NoReport() {
        const int empty = AddTour({}, 5), round = AddTour(Round, 5);
        QCOMPARE(Report(0), Failed + "<ERROR #0001>");
        QCOMPARE(Report(99), Failed + "<ERROR #0001>");
        QCOMPARE(Report(empty), Failed + "<ERROR #0002>");
        QCOMPARE(Report(round), NoData);
        QCOMPARE(m_home->TakeLog(), QString());
        gConn->Execute("ALTER TABLE tblTourPoints RENAME TO tblGone");
        QCOMPARE(Report(round), Failed + "<ERROR #0002>");
        QVERIFY(m_home->TakeLog().startsWith("Error 10001 in LoadTourPoints of Class Module "
                                             "cTourReport\t(no such table"));
        gConn->Execute("ALTER TABLE tblGone RENAME TO tblTourPoints");
        // A view in the table's place cannot be dropped as one.
        AddTouches("08:00 A");
        gConn->Execute("CREATE VIEW tblXXXException AS SELECT 1 AS a");
        QCOMPARE(Report(round), Failed + "<ERROR #0005>");
        QVERIFY(m_home->TakeLog().startsWith("Error 10001 in ResetTempTourTable of Form "
                                             "frmRptTour\t("));
        gConn->Execute("DROP VIEW tblXXXException");
        m_viewer.OnShow = [] { throw RunTimeError(5, "No paper"); };
        BuildTourReport({round, TourDay, ReaderId, {}, false, false}, m_viewer);
        m_viewer.OnShow = {};
        QCOMPARE(m_boxes.TakeTexts(), QStringList(Failed + "<ERROR #9999>"));
        QCOMPARE(m_home->TakeLog(), "Error 5 in BuildTourReport of Form frmRptTour\t(No paper)");
        QVERIFY(!TableExists("tblXXXException"));
        QCOMPARE(Report(round), "NO EXCEPTIONS, _"); // and the next one comes
    }

    // Not a byte can be written, not even to drop a table that an earlier report has left.
    void AReportOnAFullDisk() {
        const int tour = AddTour(Round, 5);
        AddTouches("08:06 A, 08:07 A, 08:31 B");
        const QString before = Report(tour);
        gConn->Execute("CREATE TABLE tblXXXException (tItem VARCHAR NULL)");
        {
            const ResourceLimit limit(RLIMIT_FSIZE, 0);
            QVERIFY(ErrorOf([] { gConn->Execute("CREATE TABLE tblMore (a TEXT)"); }) != 0);
            QCOMPARE(Report(tour), before);
        }
        QCOMPARE(Report(tour), before);
        QVERIFY(before.contains("LATE") && !TableExists("tblXXXException"));
    }

    // However many touches the store holds, a tour reads only those of its reader and its window.
    void OtherTouchesCostNothing() {
        const int tour = AddTour(Round, 5);
        AddTouches("08:00 A");
        const auto steps = [&] { // of the engine's machine, in tens
            int count = 0;
            sqlite3_progress_handler(
                gConn->OpenEngine()->Handle(), 10,
                [](void* counter) { return ++*static_cast<int*>(counter), 0; }, &count);
            Loaded(tour);
            sqlite3_progress_handler(gConn->OpenEngine()->Handle(), 0, nullptr, nullptr);
            return count;
        };
        const int few = steps();
        for (const char* others : {"4B5831A7', 40000", "99999999', 46000"}) // long ago; another's
            gConn->Execute(QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
                                          "FROM n WHERE i < 5000) INSERT INTO tblEvents (tPipeID, "
                                          "dtDateTime, wGroupType) SELECT '%1 + i / 1440.0, 1 "
                                          "FROM n")
                               .arg(QLatin1String(others)));
        QVERIFY(few > 0 && steps() < 2 * few);
    }
};

QTEST_MAIN(TourReportTest)
#include "TourReportTest.moc"
