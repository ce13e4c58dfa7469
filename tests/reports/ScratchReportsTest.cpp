// The reports that are made in scratch tables: both incident reports, the patrol schedule and the
// hardware list. What is shown instead of them, full disks, cancelled work, and their dialogs.

#include "Controls.h"
#include "HardwareListBuilder.h"
#include "IncidentReportBuilder.h"
#include "IncidentSitesBuilder.h"
#include "PatrolScheduleBuilder.h"
#include "ResourceLimit.h"
#include "ScriptedBoxes.h"
#include "TableExists.h"
#include "TestHome.h"
#include "TextViewer.h"
#include "frmRptHardwareListParam.h"
#include "frmRptIncidentNew.h"
#include "frmRptIncidentParam.h"
#include "frmRptPatrolSchedule.h"

#include <QComboBox>
#include <QDateEdit>
#include <QTreeWidget>

namespace {

const DateTime Day = DateTime::FromQt(QDate(2026, 3, 29));
const DateTime LastSecond = Day + DateTime::FromTime(23, 59, 59);
const QString NoReader = "There must be at least one reader selected to create a report";
const QString NoEvent = "There must be at least one event selected to create a report";
const QString NoRecords = "No records for the given parameters";

/// A viewer whose operator cancels.
class Impatient : public TextViewer {
    WorkProgress Progress() override {
        return [](int, int) { return false; };
    }
};

void Touch(int hour, const char* reader, int button) {
    gConn->Execute("INSERT INTO tblEvents (tPipeID, dtDateTime, tButtonCode, tButtonName, "
                   "wGroupType, tGroupName) SELECT ?, ?, tButtonCode, tButtonName, wType, tName "
                   "FROM tblButtons, tblListItems WHERE tblListItems.ID = lParentID AND "
                   "tblButtons.ID = ?",
                   {QString::fromUtf8(reader), Day + DateTime::FromTime(hour, 0), button});
}

} // namespace

class ScratchReportsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> m_home;
    ScriptedBoxes m_boxes;
    TextViewer m_viewer;

    /// The rows that `build` shows, or the messages.
    QStringList After(const std::function<void()>& build) {
        const int shown = m_viewer.Shown;
        build();
        return m_viewer.Shown == shown + 1 ? m_viewer.Rows : m_boxes.TakeTexts();
    }
    QStringList Incidents(const QList<int>& events, int strangers = 0) {
        const IncidentReportRequest request{Day, LastSecond, Readers() + QList<Reader>(strangers),
                                            events};
        return After([&] { BuildIncidentReport(request, m_viewer); });
    }
    QStringList Sites() {
        return After([&] {
            BuildIncidentSitesReport({Day, LastSecond, -1, "E", -1, "S", {}, "R"}, m_viewer);
        });
    }
    QStringList Schedule(int tour) {
        return After([&] { BuildPatrolSchedule(tour, m_viewer); });
    }
    QStringList HardwareList(bool readers = true) {
        return After([&] {
                   BuildHardwareListReport({true, true, readers}, m_viewer);
               })
            .replaceInStrings(QRegularExpression("^\\d+"), "ID");
    }

private slots:
    void init() {
        QLocale::setDefault(QLocale::c());
        m_viewer = {};
        m_home = std::make_unique<TestHome>(TestHome::EmptyStore);
        for (const char* rows :
             {"tblListItems VALUES (1, 2, 'Book', ''), (2, 1, 'Pier', ''), (3, 0, 'Guards', ''), "
              "(4, 1, 'Tower %0:s', '')",
              "tblButtons VALUES (1, 2, 'AAAAAA', 'Gate', ''), (2, 1, 'EEEEE1', 'Fire', 'Hot'), "
              "(3, 1, 'EEEEE2', 'Leak', ''), (4, 1, 'EEEEE1', 'Smoke', ''), "
              "(5, 4, 'BBBBBB', 'Roof & %1:s', ''), (6, 3, 'CCCCCC', 'Ann', ''), "
              "(7, 9, 'DDDDDD', 'Lost', '')",
              "tblReaders VALUES ('00000002', ''), ('00000001', 'Night')",
              "tblTours VALUES (1, 'Zulu', 'Midnight', 5, 0.003), (2, 'Alpha', NULL, 0, NULL), "
              "(3, 'Hour', '', 60, 0.5)",
              "tblTourPoints VALUES (1, 1, 2, 0.99722, 'GONE'), (2, 1, 1, 0, 'BBBBBB'), "
              "(3, 1, 3, 0.0027, 'DDDDDD'), (4, 1, 3, NULL, 'EEEEE1'), (5, 3, 1, 0, 'AAAAAA')"})
            gConn->Execute(QStringLiteral("INSERT INTO ") + QString::fromLatin1(rows));
    }
    void cleanup() { m_home.reset(); }

    void NoIncidentReport() {
        QVERIFY(!BuildIncidentReport({Day, LastSecond, {}, {2}}, m_viewer));
        QCOMPARE(Incidents({2}), QStringList(NoRecords));
        QVERIFY(!TableExists("tblReportTemp"));
        Touch(8, "00000001", 1);
        m_viewer.OnShow = [] { QCOMPARE(RowsOf("SELECT * FROM tblReportTemp").size(), 6); };
        QCOMPARE(Incidents({2, 3}, 900).size(), 6);
        QCOMPARE(RowsOf("SELECT * FROM tblReportTemp"), QStringList());
        gConn->Execute("DELETE * FROM tblButtons WHERE ID = 3");
        QCOMPARE(Incidents({2, 3, 4}), QStringList("Error Looking up Incident"));
        QCOMPARE(m_boxes.Messages.size(), 0);
        QCOMPARE(RowsOf("SELECT Field0 FROM tblReportTemp"),
                 (QStringList{"", "Fire [EEEEE1] -- Book", ""}));
        QCOMPARE(m_home->TakeLog(), "");
        gConn->Execute("ALTER TABLE tblListItems RENAME TO tblGone");
        QCOMPARE(Incidents({2}), QStringList("Error Looking up Incident"));
        gConn->Execute("DROP TABLE tblEvents");
        QCOMPARE(Incidents({2}), QStringList("Error 10001 in procedure BuildIncidentReport: no "
                                             "such table: tblEvents"));
        const QStringList log = m_home->TakeLog().split(u'\n');
        QCOMPARE(log.size(), 2);
        QVERIFY(log[0].startsWith("Error 10001 in GetIncidentHeader of Form frmRptIncidentNew"));
        QVERIFY(log[1].startsWith("Error 10001 in BuildIncidentReport of Form frmRptIncidentNew"));
    }

    // Two buttons share the last point's code, so it is two lines.
    void PlanOfATour() {
        m_viewer.OnShow = [] { QVERIFY(TableExists("tblXXXPatrol")); };
        for (int run = 0; run < 2; ++run) {
            QCOMPARE(Schedule(1),
                     (QStringList{"1|00:04     (23:59 ~ 00:09)|Tower %0:s |Roof & %1:s ",
                                  "2|00:00     (23:55 ~ 00:05)| | ",
                                  "3|00:04     (23:59 ~ 00:09)| |Lost ",
                                  "4|00:04     (23:59 ~ 00:09)|Book |Fire ",
                                  "5|00:04     (23:59 ~ 00:09)|Book |Smoke "}));
            QVERIFY(!TableExists("tblXXXPatrol"));
        }
        m_viewer.OnShow = {};
        QVERIFY(m_viewer.Text.contains("1 00:04 (23:59 ~ 00:09) Tower %0:s Roof & %1:s"));
        QCOMPARE(m_viewer.Caption, "Patrol Schedule Report");
        QCOMPARE(m_viewer.Labels["lblTourDesc"], "Midnight");
        QCOMPARE(m_viewer.Labels["lblTolerance"], "5  Minutes");
        QCOMPARE(Schedule(2), QStringList());
        QCOMPARE(m_boxes.TakeTexts(), QStringList());
        QCOMPARE(Schedule(9), QStringList("Error in creating new Tour"));
        QCOMPARE(m_home->TakeLog(), "");
        const QString label("Error 13 in BuildPatrolSchedule of Form frmRptPatrolSchedule");
        for (const int tolerance : {60, -1, 59}) {
            gConn->Execute("UPDATE tblTours SET iTolerance = ? WHERE ID = 3", {tolerance});
            QCOMPARE(Schedule(3).value(0).startsWith(label), tolerance != 59);
            QCOMPARE(m_home->TakeLog(), tolerance == 59 ? "" : label + "\t(Type mismatch)");
        }
    }

    void MissingTables() {
        gConn->Execute("DROP TABLE tblReaders");
        QVERIFY(Sites().value(0).startsWith("Error 10001 in cmdPrintPreview_Click of Form "
                                            "frmRptIncidentParam"));
        gConn->Execute("DROP TABLE tblButtons");
        QCOMPARE(HardwareList(), QStringList("Error 10001 in procedure BuildHardwareListReport: "
                                             "no such table: tblButtons"));
    }

    // Not a byte can be written. Then the operator cancels, which leaves the lines of the last
    // report.
    void OnAFullDiskAndCancelled() {
        Touch(9, "00000001", 1);
        Touch(10, "00000001", 3);
        for (int doubling = 0; doubling < 9; ++doubling)
            gConn->Execute("INSERT INTO tblEvents (tPipeID, dtDateTime, tButtonCode, wGroupType) "
                           "SELECT tPipeID, dtDateTime, tButtonCode, wGroupType FROM tblEvents");
        const auto all = [this] {
            return QList<QStringList>{Incidents({3}), Sites(), Schedule(1), HardwareList()};
        };
        const QList<QStringList> reports = all();
        const QStringList before = ContentOfStore();
        {
            const ResourceLimit limit(RLIMIT_FSIZE, 0);
            for (int run = 0; run < 2; ++run)
                QCOMPARE(all(), reports);
        }
        TestHome::Close();
        QVERIFY(m_home->Open());
        QCOMPARE(ContentOfStore(), before);
        QVERIFY(HardwareList(false).size() < reports[3].size());
        gConn->Execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < "
                       "600) INSERT INTO tblReaders SELECT i, '' FROM n");
        const QStringList last = ContentOfStore();
        Impatient viewer;
        BuildIncidentReport({Day, LastSecond, Readers(), {3}}, viewer);
        BuildIncidentSitesReport({Day, LastSecond, -1, {}, -1, {}, {}, {}}, viewer);
        BuildHardwareListReport({}, viewer);
        QCOMPARE(ContentOfStore(), last);
        QVERIFY(viewer.Shown == 0 && reports[1].size() == 1024 && m_boxes.Messages.isEmpty());
        QCOMPARE(m_home->TakeLog(), "");
    }

    void DialogOfIncidents() {
        Touch(9, "00000001", 1);
        frmRptIncidentNew dialog(m_viewer, nullptr);
        auto& readers = *Control<QTreeWidget>(dialog, "lvwReaders");
        auto& events = *Control<QTreeWidget>(dialog, "lvwEvents");
        QCOMPARE(RowsIn(readers), (QStringList{"00000001Night", "00000002"}));
        QCOMPARE(RowsIn(events), (QStringList{"Fire [EEEEE1] -- Book", "Leak [EEEEE2] -- Book",
                                              "Smoke [EEEEE1] -- Book"}));
        QCOMPARE(events.topLevelItem(0)->toolTip(0), "Hot");
        QCOMPARE(events.headerItem()->text(0), "Select Incident/s");
        Control<QDateEdit>(dialog, "dtpStartDate")->setDate(Day.ToQDate());
        for (const char* button : {"cmdReaders_1", "cmdEvents_1", "cmdPrintPreview", "cmdReaders_0",
                                   "cmdPrintPreview", "cmdEvents_0"})
            Press(dialog, button);
        QCOMPARE(m_boxes.TakeTexts(), (QStringList{NoReader, NoEvent}));
        readers.topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        for (const char* button : {"cmdPrintPreview", "cmdReaders_0", "cmdPrintPreview"})
            Press(dialog, button);
        QCOMPARE(m_boxes.TakeTexts(), QStringList(NoRecords));
        QVERIFY(m_viewer.Shown == 1 && m_viewer.Rows.size() == 9);
        CreateTempIncident();
        Press(dialog, "cmdCancel");
        QVERIFY(!TableExists("tblTempIncident"));
        // Each message names the other list.
        for (const char* table : {"tblListItems", "tblReaders"})
            gConn->Execute(QStringLiteral("DELETE * FROM ") + table);
        frmRptIncidentNew empty(m_viewer, nullptr);
        QCOMPARE(m_boxes.TakeTexts(), (QStringList{NoReader, NoEvent}));
        QVERIFY(!Control<QPushButton>(empty, "cmdPrintPreview")->isEnabled());
    }

    void DialogWithSites() {
        Touch(9, "00000002", 1);
        Touch(10, "00000002", 3);
        frmRptIncidentParam dialog(m_viewer, nullptr);
        Control<QDateEdit>(dialog, "dtpStartDate")->setDate(Day.ToQDate());
        for (const auto& [list, rows, chosen] :
             {std::tuple("cboEvent", QStringList{"All", "Fire", "Leak", "Smoke"}, 2),
              {"cboSite", {"All", "Pier", "Tower %0:s"}, 1},
              {"cboReader", {"All", "Reader 1", "Night"}, 1}}) {
            auto* combo = Control<QComboBox>(dialog, list);
            for (int row = 0; row < rows.size(); ++row)
                QCOMPARE(combo->itemText(row), rows[row]);
            Press(dialog, "cmdPrintPreview");
            combo->setCurrentIndex(chosen);
        }
        QCOMPARE(m_viewer.Shown, 3);
        Press(dialog, "cmdPrintPreview");
        QCOMPARE(m_viewer.Rows, QStringList("29 Mar 2026|10:00||Pier|Gate|Leak"));
        QCOMPARE(m_viewer.Labels["Label15"], "Reader 1");
        QVERIFY(TableExists("tblTempIncident"));
        Press(dialog, "cmdCancel");
        QVERIFY(!TableExists("tblTempIncident"));
    }

    void DialogOfThePlan() {
        frmRptPatrolSchedule dialog(m_viewer, nullptr);
        dialog.resize(600, 300);
        dialog.show();
        const auto* list = Control<QTreeView>(dialog, "lvwMain");
        QCOMPARE(RowsIn(*list),
                 (QStringList{"Alpha||00:00", "Hour||12:00", "Zulu|Midnight|00:04"}));
        const int hundredth = (list->width() * 15 - 240) / 100;
        for (const auto& [column, share] : {std::pair(0, 30), std::pair(1, 50), std::pair(2, 30)})
            QVERIFY(std::abs(list->columnWidth(column) - hundredth * share / 15) <= 1);
        Press(dialog, "cmdPrintPreview");
        QCOMPARE(m_viewer.Labels["lblTourName"], "Alpha");
        const QPoint last = list->visualRect(list->model()->index(2, 0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, last);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, last);
        QCOMPARE(m_viewer.Labels["lblTourName"], "Zulu");
        QCOMPARE(dialog.ID, 1);
    }

    // Only the first box changes the button.
    void DialogOfTheList() {
        frmRptHardwareListParam dialog(m_viewer, nullptr);
        const auto* preview = Control<QPushButton>(dialog, "cmdPrintPreview");
        for (const char* box : {"chkLocation", "chkEvent"})
            Press(dialog, box);
        Press(dialog, "cmdPrintPreview");
        QCOMPARE(m_viewer.Rows.size(), 7); // users and readers
        Press(dialog, "chkReader");
        QVERIFY(preview->isEnabled() && !dialog.PrintReader());
        for (int click = 0; click < 2; ++click)
            Press(dialog, "chkLocation");
        QVERIFY(!preview->isEnabled());
        Press(dialog, "chkEvent");
        QVERIFY(!preview->isEnabled() && dialog.PrintEvent() && !dialog.PrintLocation());
    }
};

QTEST_MAIN(ScratchReportsTest)
#include "ScratchReportsTest.moc"
