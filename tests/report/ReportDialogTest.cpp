// What the dialogs of the reports share: the range of time, the list with check boxes, the buttons;
// and what a report needs before its dialog opens.

#include "CheckList.h"
#include "Clock.h"
#include "DateTimeRange.h"
#include "RecordingViewer.h"
#include "ReportButtons.h"
#include "ReportCatalogue.h"
#include "ScriptedBoxes.h"
#include "TestHome.h"
#include "frmMdiReports.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QTextDocument>
#include <QTimeEdit>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

DateTime At(const QDate& date, int hour, int minute, int second = 0) {
    return DateTime::FromQt(date) + DateTime::FromTime(hour, minute, second);
}

} // namespace

class ReportDialogTest : public QObject {
    Q_OBJECT

private slots:
    void RangeOfTime() {
        const QDate today(2026, 11, 23);
        const TestClock clock(At(today, 9, 30, 12), 1);
        DateTimeRange range;
        QCOMPARE(range.Start(), At(today, 0, 0));
        QCOMPARE(range.End(LastMinute::Whole), At(today, 23, 59, 59));
        QCOMPARE(range.End(LastMinute::FirstSecond), At(today, 23, 59));

        range.SetDays(today.addDays(-30), today);
        range.show();
        QVERIFY(QTest::qWaitForWindowActive(&range));
        auto* start = range.findChild<QTimeEdit*>("dtpStartTime");
        start->setFocus();
        QApplication::processEvents(); // selects the hours
        QTest::keyClicks(start, "0715");
        QCOMPARE(start->text(), "07:15");
        QCOMPARE(range.Start(), At(today.addDays(-30), 7, 15));
    }

    void RowsChecked() {
        CheckList list;
        list.setObjectName("Readers");
        for (int row = 0; row < 3; ++row)
            list.Add(QString("Reader %1").arg(row), row, "<b> & so");
        const auto press = [&](const char* button) {
            list.findChild<QPushButton*>(button)->click();
            return list.CheckedTags();
        };
        QCOMPARE(list.CheckedTags(), (QVariantList{0, 1, 2}));
        QCOMPARE(press("cmdReaders_1"), QVariantList());
        auto* rows = list.findChild<QTreeWidget*>("lvwReaders");
        QTextDocument toolTip; // as it is shown
        toolTip.setHtml(rows->topLevelItem(0)->toolTip(0));
        QCOMPARE(toolTip.toPlainText(), "<b> & so");
        rows->setCurrentItem(rows->topLevelItem(1));
        QTest::keyClick(rows, Qt::Key_Space);
        QCOMPARE(list.CheckedTags(), QVariantList{1});
        QCOMPARE(press("cmdReaders_0"), (QVariantList{0, 1, 2}));
    }

    void ButtonsOfADialog() {
        QDialog dialog;
        QVBoxLayout layout(&dialog);
        QPushButton preview("&Print Preview"), cancel("&Cancel");
        layout.addWidget(&preview);
        layout.addWidget(&cancel);
        int reports = 0;
        JoinReportButtons(dialog, preview, cancel, [&] {
            ++reports;
            QVERIFY(!preview.isEnabled() && !cancel.isEnabled());
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        });
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        preview.setFocus();
        QTest::keyClick(&preview, Qt::Key_Space);
        QTest::keyClick(&preview, Qt::Key_Space);
        QCOMPARE(reports, 2);
        QVERIFY(preview.isEnabled() && preview.hasFocus() && cancel.isEnabled());
        QVERIFY(!QApplication::overrideCursor() && dialog.isVisible());
        dialog.setResult(QDialog::Accepted);
        QTest::mouseClick(&cancel, Qt::LeftButton);
        QVERIFY(!dialog.isVisible() && dialog.result() == QDialog::Rejected);
    }

    // What each report asks for before its dialog opens: a reader (r), then a tour (t).
    void AsksForAReaderThenATour() {
        const QHash<QString, QString> needs{{"NewException", "rt"},     {"IncidentReport", "r"},
                                            {"IncidentReportOld", "r"}, {"ReaderReport", "r"},
                                            {"HardwareListReport", ""}, {"PatrolSchedule", "t"},
                                            {"CustomReport", ""}};
        const TestHome home(TestHome::EmptyStore);
        gConn->Execute("INSERT INTO tblListItems (ID, wType) VALUES (1, 2)");
        gConn->Execute("INSERT INTO tblButtons (lParentID) VALUES (1)");
        ScriptedBoxes boxes;
        RecordingViewer viewer;
        frmMdiReports page(viewer, nullptr);
        auto* list = page.findChild<QTreeWidget*>("lvwReports");
        for (const QString defined : {"", "t", "rt", "r"}) {
            gConn->Execute("DELETE FROM tblReaders");
            gConn->Execute("DELETE FROM tblTours");
            if (defined.contains(u'r'))
                gConn->Execute("INSERT INTO tblReaders (tReaderId) VALUES ('4B5831A7')");
            if (defined.contains(u't'))
                gConn->Execute("INSERT INTO tblTours (tName) VALUES ('Night')");
            int place = 0;
            for (const ReportRow& report : ReportCatalogue()) {
                QString missing = needs[report.key];
                for (const QChar thing : defined)
                    missing.remove(thing);
                const QString message =
                    "You must add at least one %1 before this report can be used";
                const QString thing = missing.startsWith(u'r') ? "reader" : "tour";
                QVERIFY(needs.contains(report.key));
                QString title;
                QTimer closer;
                closer.callOnTimeout([&] {
                    if (QWidget* dialog = QApplication::activeModalWidget()) {
                        title = dialog->windowTitle();
                        dialog->close();
                    }
                });
                closer.start(20);
                list->setCurrentItem(list->topLevelItem(place++));
                page.ReportParamShow(report.key, report.name);
                QVERIFY(missing.isEmpty() || boxes.Messages[0].advice.contains("Setup"));
                QCOMPARE(boxes.TakeTexts(),
                         missing.isEmpty() ? QStringList() : QStringList(message.arg(thing)));
                QCOMPARE(title, missing.isEmpty() ? report.name : "");
            }
        }
    }
};

QTEST_MAIN(ReportDialogTest)
#include "ReportDialogTest.moc"
