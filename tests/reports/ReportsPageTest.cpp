// The reports page: what a report needs before its dialog opens.

#include "Connection.h"
#include "RecordingViewer.h"
#include "ScriptedBoxes.h"
#include "TestHome.h"
#include "frmMdiReports.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

class ReportsPageTest : public QObject {
    Q_OBJECT

private slots:
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

QTEST_MAIN(ReportsPageTest)
#include "ReportsPageTest.moc"
