// The two incident reports: their rows, what is shown instead of them, and their dialogs.

#include "CommandParser.h"
#include "Connection.h"
#include "Controls.h"
#include "IncidentReportBuilder.h"
#include "IncidentReportRow.h"
#include "IncidentSitesBuilder.h"
#include "IncidentSitesRow.h"
#include "RecordingViewer.h"
#include "ResourceLimit.h"
#include "ScriptedBoxes.h"
#include "TableExists.h"
#include "TestHome.h"
#include "frmRptIncidentNew.h"
#include "frmRptIncidentParam.h"

#include <QComboBox>
#include <QDateEdit>
#include <QRegularExpression>
#include <QTreeWidget>

namespace {

const DateTime Day = DateTime::FromQt(QDate(2026, 3, 29));
const DateTime LastSecond = Day + DateTime::FromTime(23, 59, 59);
const QString NoReader = "There must be at least one reader selected to create a report";
const QString NoEvent = "There must be at least one event selected to create a report";
const QString NoRecords = "No records for the given parameters";
const QString NoData = "No Data on the report";

/// A viewer whose operator cancels.
class Impatient : public RecordingViewer {
    WorkProgress Progress() override {
        return [](int, int) { return false; };
    }
};

void Touch(const QString& time, const QString& reader, int button) {
    gConn->Execute(
        "INSERT INTO tblEvents (tPipeID, dtDateTime, tButtonCode, tButtonName, "
        "wGroupType, tGroupName) SELECT ?, ?, tButtonCode, tButtonName, wType, tName "
        "FROM tblButtons, tblListItems WHERE tblListItems.ID = lParentID AND "
        "tblButtons.ID = ?",
        {reader, Day + DateTime::FromMilliseconds(QTime::fromString(time).msecsSinceStartOfDay()),
         button});
}

} // namespace

class IncidentReportsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> m_home;
    ScriptedBoxes m_boxes;
    RecordingViewer m_viewer;

    /// The rows that `build` shows, or the messages.
    QStringList After(const std::function<void()>& build) {
        const int shown = m_viewer.Shown;
        build();
        return m_viewer.Shown == shown + 1 ? m_viewer.Rows : m_boxes.TakeTexts();
    }
    /// The first three texts of each row.
    QStringList Incidents(const QList<int>& events, int strangers = 0) {
        const IncidentReportRequest request{Day, LastSecond, Readers() + QList<Reader>(strangers),
                                            events};
        return After([&] { BuildIncidentReport(request, m_viewer); })
            .replaceInStrings(QRegularExpression("^\\d+\\|(.*)\\|{7}$"), "\\1");
    }
    QStringList Sites(int event = -1, int site = -1, const QString& reader = {}) {
        return After([&] {
            BuildIncidentSitesReport({Day, LastSecond, event, "E", site, "S", reader, "R"},
                                     m_viewer);
        });
    }
    QStringList Call(const ReportRow& row, const QString& options) {
        CommandParser parser("wardlockctl", "report");
        const auto run = row.addOptions(parser.Options());
        parser.Parse(("report --from 2026-03-29T00:00 --to 2026-03-29T23:59" + options).split(' '));
        return After([&] { run(m_viewer); });
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
              "(5, 4, 'BBBBBB', 'Roof & %1:s', ''), (6, 3, 'CCCCCC', 'Ann', '')",
              "tblReaders VALUES ('00000002', ''), ('00000001', 'Night')"})
            gConn->Execute(QStringLiteral("INSERT INTO ") + QString::fromLatin1(rows));
    }
    void cleanup() { m_home.reset(); }

    // The location is the last one stored before the incident, of whichever reader and time.
    void PlaceOfEachIncident() {
        Touch("09:00:59", "00000001", 1);
        Touch("07:00:00", "00000002", 2);
        Touch("08:30:00", "00000002", 5);
        Touch("23:59:59", "00000001", 2);
        const QStringList smoke{"||", "Smoke [EEEEE1] -- Book||",
                                "|29 Mar 2026 09:00|Gate, Pier,  Reader 00000001",
                                "|29 Mar 2026 08:30|Roof & %1:s, Tower %0:s,  Reader 00000002"};
        const QStringList leak{"||", "Leak [EEEEE2] -- Book||",
                               "||No incidents of this type were recorded"};
        m_viewer.OnShow = [] { QVERIFY(RowsOf("SELECT * FROM tblReportTemp").size() > 2); };
        QCOMPARE(Incidents({3, 4}), leak + smoke);
        QCOMPARE(RowsOf("SELECT * FROM tblReportTemp"), QStringList());
        QCOMPARE(m_viewer.Caption, "Incident Report");
        QCOMPARE(m_viewer.Labels["Label17"], "29 Mar 2026   00:00");
        QCOMPARE(m_viewer.Labels["Label18"], "29 Mar 2026   23:59");
        // Both events of the code, and no location of the other reader.
        QCOMPARE(Call(IncidentReportRow(), " --event eeeee1 --reader 00000002").size(), 6);
        QCOMPARE(Call(IncidentReportRow(), " --reader 0000000A"), QStringList(NoRecords));
    }

    void NoIncidentReport() {
        QVERIFY(!BuildIncidentReport({Day, LastSecond, {}, {2}}, m_viewer));
        QCOMPARE(Incidents({2}), QStringList(NoRecords));
        QVERIFY(!TableExists("tblReportTemp"));
        Touch("08:00:00", "00000001", 1);
        QCOMPARE(Incidents({2, 3}, 900).size(), 6);
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

    // Two buttons share a code, so each of its touches is two lines.
    void LinesWithSites() {
        Touch("12:00:30", "00000002", 2);
        Touch("09:00:00", "00000002", 1);
        Touch("11:00:00", "00000001", 5);
        Touch("08:00:00", "0000000A", 5); // of a reader that is not taught
        const QString gate = "29 Mar 2026|09:00||Pier|Gate|",
                      roof = "29 Mar 2026|11:00|Night|Tower %0:s|Roof & %1:s|",
                      fire = "29 Mar 2026|12:00||Tower %0:s|Roof & %1:s|Fire";
        QCOMPARE(Sites(), (QStringList{gate, roof, fire, QString(fire).replace("Fire", "Smoke")}));
        QCOMPARE(m_viewer.Caption, "Incidents And Locations Report");
        QCOMPARE(m_viewer.Labels["lblSiteFilter"], "Site : ");
        QCOMPARE(Sites(-1, 2), QStringList(gate));
        QCOMPARE(Sites(3, 4), QStringList(NoData));
        QCOMPARE(RowsOf("SELECT * FROM tblTempIncident"), QStringList());
        QCOMPARE(Call(IncidentSitesRow(), " --event eeeee1 --reader 00000002"), QStringList(fire));
        QVERIFY(!TableExists("tblTempIncident"));
        QStringList filters;
        for (const char* label : {"Label14", "Label15", "Label16"})
            filters += m_viewer.Labels[label];
        QCOMPARE(filters, (QStringList{"Fire", "Reader 1", "All"}));
        QCOMPARE(Call(IncidentSitesRow(), " --reader 0000000A"), QStringList(NoData));
        QCOMPARE(Call(IncidentSitesRow(), " --site Pie"),
                 QStringList("There is no site named Pie."));
        for (const ReportRow& row : {IncidentSitesRow(), IncidentReportRow()})
            QCOMPARE(Call(row, " --event AAAAAA"), QStringList("No event has the code AAAAAA."));
        gConn->Execute("DROP TABLE tblReaders");
        QVERIFY(Sites().value(0).startsWith("Error 10001 in cmdPrintPreview_Click of Form "
                                            "frmRptIncidentParam"));
    }

    // Not a byte can be written; then the operator cancels.
    void OnAFullDiskAndCancelled() {
        Touch("09:00:00", "00000001", 1);
        Touch("10:00:00", "00000001", 3);
        for (int doubling = 0; doubling < 9; ++doubling)
            gConn->Execute("INSERT INTO tblEvents (tPipeID, dtDateTime, tButtonCode, wGroupType) "
                           "SELECT tPipeID, dtDateTime, tButtonCode, wGroupType FROM tblEvents");
        const QStringList incidents = Incidents({3}), sites = Sites(), before = ContentOfStore();
        {
            const ResourceLimit limit(RLIMIT_FSIZE, 0);
            for (int run = 0; run < 2; ++run) {
                QCOMPARE(Incidents({3}), incidents);
                QCOMPARE(Sites(), sites);
            }
        }
        TestHome::Close();
        QVERIFY(m_home->Open());
        Impatient viewer;
        BuildIncidentReport({Day, LastSecond, Readers(), {3}}, viewer);
        BuildIncidentSitesReport({Day, LastSecond, -1, {}, -1, {}, {}, {}}, viewer);
        QCOMPARE(ContentOfStore(), before);
        QVERIFY(viewer.Shown == 0 && sites.size() == 1024 && m_boxes.Messages.isEmpty());
        QCOMPARE(m_home->TakeLog(), "");
    }

    void DialogOfIncidents() {
        Touch("09:00:00", "00000001", 1);
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
        Touch("09:00:00", "00000002", 1);
        Touch("10:00:00", "00000002", 3);
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
};

QTEST_MAIN(IncidentReportsTest)
#include "IncidentReportsTest.moc"
