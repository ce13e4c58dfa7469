// The dialogs of the reader download report and of the database report, and the window that copies
// the events of the latter.

#include "Clock.h"
#include "Controls.h"
#include "Format.h"
#include "ResourceLimit.h"
#include "ScriptedBoxes.h"
#include "TestHome.h"
#include "TextViewer.h"
#include "frmRptCustomParam.h"
#include "frmRptReaderReport.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFileInfo>
#include <QProgressBar>

namespace {

const QDate Monday(2026, 11, 23);

DateTime At(int daysAgo, int hour, int minute, int second = 0) {
    return DateTime::FromQt(Monday.addDays(-daysAgo)) + DateTime::FromTime(hour, minute, second);
}

void AddTouch(const Value& downloaded, DateTime touched, const char* name, const Value& type = 1,
              const char* reader = "4B5831A7") {
    gConn->Execute("INSERT INTO tblEvents (dtDLDateTime, dtDateTime, tButtonName, wGroupType, "
                   "tPipeID, tButtonCode, tButtonDesc, tGroupName, tGroupDesc) VALUES (?, ?, ?, ?, "
                   "?, 'C0DE', 'Hook', 'Pier', 'East')",
                   {downloaded, touched, QString::fromUtf8(name), type, QString::fromUtf8(reader)});
}

} // namespace

class RangeReportsTest : public QObject {
    Q_OBJECT

    const TestClock m_clock{At(0, 9, 30, 12), 20};
    std::unique_ptr<TestHome> m_home;
    TextViewer m_viewer;

    /// Presses a button of the database report. Meanwhile the operator acts on the wait window once
    /// it is as `wanted` says; gives the result that it shows then.
    QString Wait(frmRptCustomParam& dialog, const char* button,
                 const std::function<bool(QWidget&)>& wanted,
                 const std::function<void(QWidget&)>& act) {
        Script script;
        QString result;
        script.Then([&] {
            QWidget* window = QApplication::activeModalWidget();
            if (!window || window->objectName() != "frmWaitReport" || !wanted(*window))
                return false;
            result = Control(*window, "lblResult")->text();
            if (QApplication::overrideCursor()->shape() != Qt::ArrowCursor)
                result += "not the arrow";
            act(*window);
            return true;
        });
        script.Start();
        Press(dialog, button);
        if (!script.Finish() || QApplication::overrideCursor())
            result += "stuck, or the hourglass is left";
        return result;
    }
    QString WaitForResult(frmRptCustomParam& dialog, const char* button) {
        return Wait(
            dialog, button,
            [](QWidget& window) { return !Control(window, "lblResult")->text().isEmpty(); },
            [](QWidget& window) { Press(window, "cmdCancel"); });
    }

private slots:
    void init() {
        m_home = std::make_unique<TestHome>(TestHome::EmptyStore);
        m_viewer.Shown = 0;
    }
    void cleanup() {
        QLocale::setDefault(QLocale::c());
        m_home.reset();
    }

    void ReaderReport() {
        gConn->Execute("INSERT INTO tblReaders VALUES ('00FF00FF', 'Zulu')");
        gConn->Execute("INSERT INTO tblReaders VALUES ('4B5831A7', 'Night - B')");
        AddTouch(At(0, 8, 0), At(0, 7, 0), "second block");
        AddTouch(At(0, 6, 0), At(0, 23, 59), "first block, last");
        AddTouch(At(0, 6, 0), At(0, 0, 0), "first block");
        AddTouch(At(0, 6, 0), At(0, 23, 59, 1), "too late");
        AddTouch(At(0, 6, 0), At(0, 7, 0), "other reader", 1, "00FF00FF");
        ScriptedBoxes boxes;
        frmRptReaderReport dialog(m_viewer, nullptr);
        Press(dialog, "cmdPrintPreview");
        QStringList names;
        for (const QString& row : m_viewer.Rows)
            names += row.section(u'|', 4, 4);
        QCOMPARE(m_viewer.Rows[0].section(u'|', 2), "C0DE|Hook|first block|East|Pier|4B5831A7");
        QCOMPARE(names, (QStringList{"first block", "first block, last", "second block"}));
        QCOMPARE(m_viewer.Labels["lblReaderID"], "4B5831A7 (Night - B)");
        QVERIFY(m_viewer.Labels["lblDateRange"].endsWith("From 23 Nov 2026 00:00 to 23 Nov 2026 "
                                                         "23:59"));

        auto* start = Control<QDateEdit>(dialog, "dtpStartDate");
        start->setDate(QDate(9999, 12, 31));
        Press(dialog, "cmdPrintPreview");
        QCOMPARE(boxes.TakeTexts(), {"The start date cannot be later than the end date"});
        Control<QDateEdit>(dialog, "dtpEndDate")->setDate(QDate(9999, 12, 31));
        Press(dialog, "cmdPrintPreview");
        QCOMPARE(boxes.TakeTexts(), {"There is no data to show for these parameters"});
        QCOMPARE(Format(dialog.EndDate, "yyyy-mm-dd hh:nn:ss"), "9999-12-31 23:59:00");

        Control<QComboBox>(dialog, "imgcboReader")->setCurrentIndex(1);
        Press(dialog, "cmdReset");
        QCOMPARE(start->date(), Monday);
        Press(dialog, "cmdPrintPreview");
        QCOMPARE(m_viewer.Shown, 2);
        QCOMPARE(m_viewer.Labels["lblReaderID"], "00FF00FF (Zulu)");
        QCOMPARE(m_home->TakeLog(), "");
    }

    void DatesInLocales() {
        gConn->Execute("INSERT INTO tblReaders VALUES ('4B5831A7', NULL)");
        AddTouch(At(0, 8, 0, 5), At(0, 0, 0), "midnight");
        for (const char* locale : {"de_DE", "bg_BG", "ar_EG"}) {
            QLocale::setDefault(QLocale(locale));
            const QString date = Format(At(0, 0, 0), "Short Date");
            frmRptReaderReport downloads(m_viewer, nullptr);
            Press(downloads, "cmdPrintPreview");
            QVERIFY2(m_viewer.Text.contains(date + " 08:00:05\n") &&
                         m_viewer.Text.contains(date + " 00:00 C0DE midnight Hook Pier\n"),
                     qPrintable(m_viewer.Text));
            frmRptCustomParam database(m_viewer, nullptr);
            Press(database, "cmdPrintPreview");
            QVERIFY2(m_viewer.Text.contains(date + " 00:00 C0DE midnight Pier Location\n"),
                     qPrintable(m_viewer.Text));
        }
    }

    void DatabasePresets() {
        for (const auto& [days, name, type] :
             {std::tuple(30, "a month", 0), std::tuple(31, "older", 1), std::tuple(7, "a week", 2),
              std::tuple(0, "today", 1)})
            AddTouch({}, At(days, 23, 59), name, type);
        AddTouch({}, At(0, 23, 59, 1), "too late");
        frmRptCustomParam dialog(m_viewer, nullptr);
        const auto rowsOf = [&](const char* preset) {
            Press(dialog, preset);
            if (m_viewer.Rows != RowsOf("SELECT * FROM tblCustom"))
                return QString("not in the store");
            return m_viewer.Rows.join(u'/');
        };
        const QString today = "23 Nov 2026 23:59:00|C0DE|today|Hook|Pier|Location";
        const QString week = "16 Nov 2026 23:59:00|C0DE|a week|Hook|Pier|Event/" + today;
        QCOMPARE(rowsOf("cmdPreset_2"), "24 Oct 2026 23:59:00|C0DE|a month|Hook|Pier|/" + week);
        QCOMPARE(rowsOf("cmdPreset_1"), week);
        QCOMPARE(rowsOf("cmdPreset_0"), today);
        QCOMPARE(rowsOf("cmdPrintPreview"), today);

        const QStringList before = RowsOf("SELECT * FROM tblCustom");
        AddTouch({}, At(0, 12, 0), "unreadable", QString("x"));
        QCOMPARE(WaitForResult(dialog, "cmdPreset_0"),
                 "The report could not be created. See error.log for the reason.");
        QCOMPARE(m_home->TakeLog(),
                 "Error 13 in GoProcessData of Form frmWaitReport\t(Type mismatch)");
        QCOMPARE(RowsOf("SELECT * FROM tblCustom"), before);

        gConn->Execute("DELETE * FROM tblEvents");
        for (int twice = 0; twice < 2; ++twice)
            QCOMPARE(WaitForResult(dialog, "cmdPreset_0"), "No Data on the report");
        QCOMPARE(RowsOf("SELECT * FROM tblCustom"), QStringList());
        QCOMPARE(m_viewer.Shown, 4);
    }

    void DatabaseCopyEnds() {
        AddTouch({}, At(0, 1, 0), "first");
        frmRptCustomParam dialog(m_viewer, nullptr);
        Press(dialog, "cmdPreset_0");
        gConn->Execute("INSERT INTO tblEvents (dtDateTime, tButtonName) WITH RECURSIVE numbers (n) "
                       "AS (SELECT 1 UNION SELECT n + 1 FROM numbers WHERE n < 60000) SELECT ?, "
                       "'Loading bay' FROM numbers",
                       {At(0, 2, 0)});
        const auto copying = [](QWidget& window) {
            const auto* bar = Control<QProgressBar>(window, "prgRows");
            return bar->value() > 0 && bar->value() < bar->maximum() &&
                   Control(window, "lblCount")->text().endsWith(" of 60001");
        };
        for (const std::function<void(QWidget&)>& cancel :
             {std::function([](QWidget& window) { Press(window, "cmdCancel"); }),
              std::function([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }),
              std::function([](QWidget& window) { window.close(); })}) {
            QCOMPARE(Wait(dialog, "cmdPrintPreview", copying, cancel), "");
            QCOMPARE(m_viewer.Shown, 1);
            QCOMPARE(RowsOf("SELECT * FROM tblCustom").size(), 1);
        }
        {
            const ResourceLimit full(
                RLIMIT_FSIZE, static_cast<rlim_t>(QFileInfo(m_home->Store()).size() + 100'000));
            Press(dialog, "cmdPrintPreview");
        }
        QCOMPARE(m_viewer.Shown, 2);
        QCOMPARE(m_viewer.Rows.size(), 60'001);
        QCOMPARE(m_home->TakeLog(), "");
        QCOMPARE(RowsOf("SELECT * FROM tblCustom").size(), 1);
    }
};

QTEST_MAIN(RangeReportsTest)
#include "RangeReportsTest.moc"
