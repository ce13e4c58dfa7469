// What the dialogs of the reports share: the range of time, the list with check boxes, the buttons;
// and what a report needs before its dialog opens.

#include "CheckList.h"
#include "Clock.h"
#include "DateTimeRange.h"
#include "RecordingViewer.h"
#include "ReportButtons.h"
#include "ScriptedBoxes.h"
#include "TestHome.h"
#include "frmMdiReports.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTest>
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
            list.Add(QString("Reader %1").arg(row), row);
        const auto press = [&](const char* button) {
            list.findChild<QPushButton*>(button)->click();
            return list.CheckedTags();
        };
        QCOMPARE(list.CheckedTags(), (QVariantList{0, 1, 2}));
        QCOMPARE(press("cmdReaders_1"), QVariantList());
        auto* rows = list.findChild<QTreeWidget*>("lvwReaders");
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

    // A report needs a reader, then a tour, before its dialog opens.
    void AsksForAReaderThenATour() {
        const TestHome home(TestHome::EmptyStore);
        ScriptedBoxes boxes;
        RecordingViewer viewer;
        frmMdiReports page(viewer, nullptr);
        const auto* list = page.findChild<QTreeWidget*>("lvwReports");
        const QTreeWidgetItem* row = list->topLevelItem(0);
        const auto open = [&] {
            page.ReportParamShow("NewException", row->text(0));
            return boxes.TakeTexts().join(u'/');
        };
        QCOMPARE(open(), "You must add at least one reader before this report can be used");
        gConn->Execute("INSERT INTO tblReaders (tReaderId) VALUES ('4B5831A7')");
        QCOMPARE(open(), "You must add at least one tour before this report can be used");
        gConn->Execute("INSERT INTO tblTours (tName) VALUES ('Night')");
        QString title;
        QTimer::singleShot(100, [&] {
            if (QWidget* dialog = QApplication::activeModalWidget()) {
                title = dialog->windowTitle();
                dialog->close();
            }
        });
        QCOMPARE(open(), "");
        QCOMPARE(title, "Tour / Exception Report");
    }
};

QTEST_MAIN(ReportDialogTest)
#include "ReportDialogTest.moc"
