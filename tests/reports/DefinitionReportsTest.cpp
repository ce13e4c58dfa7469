// The reports of what is defined: the patrol schedule and the hardware list, with their dialogs.

#include "Controls.h"
#include "HardwareListBuilder.h"
#include "PatrolScheduleBuilder.h"
#include "RecordingViewer.h"
#include "ResourceLimit.h"
#include "ScriptedBoxes.h"
#include "TableExists.h"
#include "TestHome.h"
#include "frmRptHardwareListParam.h"
#include "frmRptPatrolSchedule.h"

#include <QCheckBox>

class DefinitionReportsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> m_home;
    ScriptedBoxes m_boxes;
    RecordingViewer m_viewer;

    /// The rows of a report, or what was shown instead.
    QStringList RowsAfter(const std::function<void()>& build) {
        const int shown = m_viewer.Shown;
        build();
        return m_viewer.Shown == shown + 1 ? m_viewer.Rows : m_boxes.TakeTexts();
    }
    QStringList Schedule(int tour) {
        return RowsAfter([&] { BuildPatrolSchedule(tour, m_viewer); });
    }
    /// Without the IDs, and with no "|" after the last text.
    QString HardwareList(bool locations, bool events, bool readers) {
        QStringList rows = RowsAfter([&] {
            BuildHardwareListReport({locations, events, readers}, m_viewer);
        });
        for (QString& row : rows)
            row = row.section(u'|', 1, 4);
        return rows.join(u'\n');
    }

private slots:
    void init() {
        QLocale::setDefault(QLocale::c());
        m_home = std::make_unique<TestHome>(TestHome::EmptyStore);
        for (const char* row :
             {"tblListItems VALUES (1, 1, 'Tower', 'High; \"old\" & %p'), (2, 2, 'Book', NULL), "
              "(3, 0, 'Guards', ''), (4, 7, 'Other', ''), (5, 1, 'No buttons', ''), "
              "(6, 1, 'Annex', NULL)",
              "tblButtons VALUES (1, 1, '00000B', 'Roof', 'North - %1:s'), (2, 1, '00000A', "
              "'Door', NULL), (3, 2, '0000E1', 'Water', ''), (4, 3, '0000C1', 'Ann', ''), (5, 4, "
              "NULL, NULL, 'Odd'), (6, 6, '0000AA', 'Gate', ''), (7, 9, '0000DD', 'Lost', '')",
              "tblReaders VALUES ('4B5831A7', 'Night - late'), ('00000001', NULL)",
              "tblTours VALUES (1, 'Zulu', 'Midnight', 5, 0.003), (2, 'Alpha', NULL, 0, NULL), "
              "(3, 'Hour', '', 60, 0.5)",
              "tblTourPoints VALUES (1, 1, 2, 0.99722, 'GONE'), (2, 1, 1, 0, '00000B'), "
              "(3, 1, 3, 0.0027, '0000DD'), (4, 3, 1, 0, '00000A')"})
            gConn->Execute(QStringLiteral("INSERT INTO ") + QString::fromLatin1(row));
    }
    void cleanup() { m_home.reset(); }

    void PlanOfATour() {
        m_viewer.OnShow = [] { QVERIFY(TableExists("tblXXXPatrol")); };
        for (int run = 0; run < 2; ++run) {
            QCOMPARE(Schedule(1), (QStringList{"1|00:04     (23:59 ~ 00:09)|Tower |Roof ",
                                               "2|00:00     (23:55 ~ 00:05)| | ",
                                               "3|00:04     (23:59 ~ 00:09)| |Lost "}));
            QVERIFY(!TableExists("tblXXXPatrol"));
        }
        m_viewer.OnShow = {};
        QCOMPARE(m_viewer.Caption, "Patrol Schedule Report");
        QCOMPARE(m_viewer.Labels["lblTourDesc"], "Midnight");
        QCOMPARE(m_viewer.Labels["lblTolerance"], "5  Minutes");
        QCOMPARE(Schedule(2), QStringList());
        QCOMPARE(m_boxes.TakeTexts(), QStringList());
        QCOMPARE(Schedule(9), QStringList("Error in creating new Tour"));
        QCOMPARE(m_home->TakeLog(), "");
        const QString label("Error 13 in BuildPatrolSchedule of Form frmRptPatrolSchedule");
        QVERIFY(Schedule(3).value(0).startsWith(label));
        QCOMPARE(m_home->TakeLog(), label + "\t(Type mismatch)");
    }

    // Groups of users come first, without a heading; any type that is not a site is an incident.
    void ListOfButtonsAndReaders() {
        const QString users("|Guards||\n||Ann|0000C1"), rule("--------------------");
        const QString sites("|||\nLocations|||\n" + rule + "|||\n|Annex||\n||Gate|0000AA\n" +
                            "|Tower - High; \"old\" & %p||\n||Door|00000A\n" +
                            "||Roof - North - %1:s|00000B");
        const QString heading("|||\nIncidents|||\n" + rule + "|||\n");
        const QString book(heading + "|Book||\n||Water|0000E1");
        const QString other(heading + "|Other||\n|| - Odd|");
        const QString readers("|||\nReaders|||\n" + rule +
                              "-|||\n||Night - late|4B5831A7\n|||00000001");
        const auto lines = [](const QStringList& parts) { return parts.join(u'\n'); };
        QCOMPARE(HardwareList(true, true, true), lines({users, sites, book, other, readers}));
        QCOMPARE(HardwareList(false, true, false), lines({users, book, other}));
        QCOMPARE(HardwareList(true, false, false), lines({users, sites, other}));
        QCOMPARE(HardwareList(false, false, true), lines({users, other, readers}));
        gConn->Execute("DELETE * FROM tblButtons");
        QCOMPARE(HardwareList(true, true, false), "");
        QCOMPARE(m_viewer.Labels["lblReportTitle"], "Hardware List Report");
        gConn->Execute("DROP TABLE tblButtons");
        BuildHardwareListReport({}, m_viewer);
        QCOMPARE(m_boxes.TakeTexts(),
                 QStringList("Error 10001 in procedure "
                             "BuildHardwareListReport: no such table: tblButtons"));
    }

    // Not a byte can be written. The table of the last list stays as it was.
    void OnAFullDisk() {
        const QString list = HardwareList(true, true, true);
        const QStringList plan = Schedule(1), before = ContentOfStore();
        {
            const ResourceLimit limit(RLIMIT_FSIZE, 0);
            for (int run = 0; run < 2; ++run) {
                QCOMPARE(HardwareList(true, true, true), list);
                QCOMPARE(Schedule(1), plan);
            }
        }
        TestHome::Close();
        QVERIFY(m_home->Open());
        QCOMPARE(ContentOfStore(), before);
        QVERIFY(!HardwareList(true, true, false).contains("Readers"));
        QCOMPARE(m_boxes.TakeTexts(), QStringList());
    }

    // A cancelled list leaves the lines of the last one, and says nothing.
    void CancelledList() {
        struct : RecordingViewer {
            WorkProgress Progress() override {
                return [](int, int) { return false; };
            }
        } cancelling;
        HardwareList(true, true, true);
        const QStringList before = RowsOf("SELECT * FROM tblReportTemp");
        gConn->Execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < "
                       "600) INSERT INTO tblReaders SELECT i, '' FROM n");
        BuildHardwareListReport({}, cancelling);
        QCOMPARE(cancelling.Shown, 0);
        QCOMPARE(RowsOf("SELECT * FROM tblReportTemp"), before);
        QVERIFY(m_boxes.TakeTexts().isEmpty() && m_home->TakeLog().isEmpty());
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
            QCOMPARE(list->columnWidth(column), hundredth * share / 15);
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
        QCOMPARE(m_viewer.Rows.size(), 12);
        Press(dialog, "chkReader");
        QVERIFY(preview->isEnabled() && !dialog.PrintReader());
        for (int click = 0; click < 2; ++click)
            Press(dialog, "chkLocation");
        QVERIFY(!preview->isEnabled());
        Press(dialog, "chkEvent");
        QVERIFY(!preview->isEnabled() && dialog.PrintEvent() && !dialog.PrintLocation());
    }
};

QTEST_MAIN(DefinitionReportsTest)
#include "DefinitionReportsTest.moc"
