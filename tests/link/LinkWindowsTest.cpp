// The windows of the reader link, operated by the names of their controls.

#include "Controls.h"
#include "Format.h"
#include "LinkTestTools.h"
#include "frmDownload.h"
#include "frmGoOnline.h"
#include "frmMdiDownload.h"
#include "frmPrpComms.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QProgressBar>
#include <QSignalSpy>

namespace {

const QByteArray TwoTouches =
    "reader 4B5831A7\ntouch 2026-02-28 23:59 1A40C2\ntouch 2026-03-01 00:05 ABCDEF\n";

/// 131 records, three frames.
const QByteArray ManyTouches =
    "reader 4B5831A7\n" + QByteArray("touch 2026-03-01 08:10 1A40C2\n").repeated(130);

QString TextOf(QWidget& window, const char* label) { return Control(window, label)->text(); }

/// Calls `look` every millisecond, in modal windows too, until it gives true.
class Watcher {
public:
    explicit Watcher(std::function<bool()> look) {
        m_timer.callOnTimeout([this, look = std::move(look)] {
            if (!m_seen && look())
                m_seen = true;
        });
        m_timer.start(1);
    }
    bool Seen() const { return m_seen; }

private:
    QTimer m_timer;
    bool m_seen = false;
};

/// So late that a wait of the dialogs and pages lasts beyond midnight.
const DateTime BeforeMidnight =
    DateTime::FromQt(QDateTime(QDate(2026, 3, 1), QTime(23, 59, 58, 100)));

} // namespace

class LinkWindowsTest : public QObject {
    Q_OBJECT

    TestHome m_home{TestHome::DemoSite};
    ScriptedBoxes m_boxes;

private slots:
    void init() {
        ForgetTouches();
        m_boxes.TakeTexts();
    }

    void Transfer() {
        Station station(ManyTouches);
        frmDownload dialog(station.link, nullptr);
        auto* bar = Control<QProgressBar>(dialog, "prgOnline");
        QStringList texts;
        bool warned = false;
        const Watcher watcher([&] {
            texts += TextOf(dialog, "lblMsgs") + TextOf(dialog, "lblProgress");
            warned = warned || Control(dialog, "lblWarning")->isVisible();
            return false;
        });
        const TransferResult result = dialog.Run(TransferPurpose::Touches);
        QVERIFY(result.OK && warned && !dialog.isVisible());
        QCOMPARE(result.Buttons.size(), 130U);
        texts.removeDuplicates();
        const QString reading = "Downloading data from reader";
        QCOMPARE(texts, (QStringList{"", reading, reading + "33%", reading + "67%",
                                     "Download Completed100%", "Processing Data100%"}));
        QCOMPARE(TextOf(dialog, "lblPipeID"), "4B5831A7");
        QCOMPARE(bar->value(), 131);
        QCOMPARE(bar->maximum(), 131);
        QVERIFY(Control(dialog, "lblWarning")->isHidden());
    }

    void Cancel_data() {
        // `stage`: a text of lblMsgs, "request" or "reader". `reads`: the requests sent.
        const TestTable<QByteArray, QString, int, QString> row("scenario", "stage", "reads",
                                                               "means");
        for (const QString means : {"Cancel", "Escape", "close button"}) {
            row("at once, " + means, "", "", 0, means);
            row("before the request, " + means, "", "Downloading data from reader", 0, means);
            row("no answer, " + means, "silent read", "request", 1, means);
            row("in the transfer, " + means, "count 200\nstop-after 1", "reader", 1, means);
            row("read, " + means, "", "Download Completed", 1, means);
            row("decoding, " + means, "", "Processing Data", 1, means);
        }
    }
    void Cancel() {
        QFETCH(QByteArray, scenario);
        QFETCH(QString, stage);
        QFETCH(QString, means);
        Station station(TwoTouches + scenario);
        frmDownload dialog(station.link, nullptr);
        const Watcher watcher([&] {
            const bool reached = stage == u"reader"    ? !TextOf(dialog, "lblPipeID").isEmpty()
                                 : stage == u"request" ? gCommActive
                                                       : TextOf(dialog, "lblMsgs") == stage;
            if (!dialog.isVisible() || !reached)
                return false;
            if (means == u"Cancel")
                Press(dialog, "cmdCancel");
            else if (means == u"Escape")
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                dialog.close();
            return true;
        });
        const TransferResult result = dialog.Run(TransferPurpose::Touches);
        QVERIFY(watcher.Seen() && !result.OK && !dialog.isVisible() && !gCommActive);
        QVERIFY(m_boxes.Messages.isEmpty());
        QTRY_VERIFY(station.link.DetectStation()); // the line still works
        QTEST(station.dock.State()["reads"].toInt(), "reads");
    }

    void Page() {
        Station station(TwoTouches);
        frmMdiDownload page(station.link, nullptr);
        page.resize(900, 400);
        page.show();
        auto* list = Control<QTreeView>(page, "lvwDownload");
        auto* download = Control<QPushButton>(page, "cmdOnline_0");
        auto* erase = Control<QPushButton>(page, "cmdOnline_1");
        QCOMPARE(download->text() + u'|' + erase->text(), "&Download Data|&Erase Reader");
        QVERIFY(Control(page, "lblMsg")->isHidden());
        const QSignalSpy busy(&page, &frmMdiDownload::BusyChanged);

        // The result is painted before the pause, and the warning is shown.
        gAutoSetTime = false;
        const PaintSpy painted(*Control(page, "lblMsg"), [](const QLabel& label) {
            return label.text().contains("Data Readings = 2");
        });
        const Watcher warned([&] {
            return Control(page, "lblWarning")->isVisible() && !QApplication::activeModalWidget();
        });
        const Watcher guarded([&] {
            return QApplication::activeModalWidget() && !page.close() && page.isVisible() &&
                   page.Busy() && !download->isEnabled() && !erase->isEnabled() &&
                   QApplication::overrideCursor();
        });
        QTest::mouseClick(download, Qt::LeftButton);
        QVERIFY(guarded.Seen() && !page.Busy());
        QVERIFY(painted.At && Now() - *painted.At >= DateTime::FromMilliseconds(3500));
        QVERIFY(warned.Seen() && !Control(page, "lblWarning")->isVisible());
        QCOMPARE(busy, (QList<QVariantList>{{true}, {false}}));
        QVERIFY(download->isEnabled() && erase->isEnabled() && !QApplication::overrideCursor());
        QCOMPARE(TextOf(page, "lblMsg"),
                 "Download Successful\nData Readings = 2\nReader Memory erased");

        QAbstractItemModel& model = *list->model();
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QStringList headings;
        for (int column = 0; column < model.columnCount(); ++column)
            headings += model.headerData(column, Qt::Horizontal).toString();
        QCOMPARE(headings.join(u'|'), "Number|Date|Time|ID|Button Name|Group Name");
        const auto date = [](int month, int day) {
            return Format(DateTime::FromQt(QDate(2026, month, day)), "Short Date");
        };
        QCOMPARE(RowsIn(*list),
                 (QStringList{"1|" + date(2, 28) + "|23:59|1A40C2|Main gate|Harbour Warehouse",
                              "2|" + date(3, 1) + "|00:05|ABCDEF|Unknown|"}));
        QCOMPARE(list->currentIndex().row(), 1);
        QVERIFY(list->selectionModel()->isRowSelected(1));

        // A failed download leaves an empty list.
        station.dock.Say("remove");
        QTest::mouseClick(download, Qt::LeftButton);
        QCOMPARE(TextOf(page, "lblMsg"), "Download Failed");
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(m_boxes.TakeTexts(), {"Reader not detected. Check reader and try again."});
        QCOMPARE(StoredTouches().size(), 2);
        QVERIFY(page.close());
    }

    void EraseButton() {
        Station station(TwoTouches + "refuse erase 1");
        frmMdiDownload page(station.link, nullptr);
        page.show();
        const QSignalSpy status(&page, &frmMdiDownload::StatusChanged);
        const QString sure = QStringLiteral("Are you sure you want to clear the reader? ");
        m_boxes.Answers = {MessageAnswer::No, MessageAnswer::Yes, MessageAnswer::Yes,
                           MessageAnswer::Yes};
        QTest::mouseClick(Control<QPushButton>(page, "cmdOnline_1"), Qt::LeftButton);
        QCOMPARE(m_boxes.TakeTexts(), {sure});
        QCOMPARE(station.dock.Logged("CmdEraseMemory"), 0);
        QVERIFY(status.isEmpty());
        QTest::mouseClick(Control<QPushButton>(page, "cmdOnline_1"), Qt::LeftButton);
        // It is not known which reader was docked first, so the second try asks about this one.
        QCOMPARE(m_boxes.TakeTexts(), (QStringList{sure, "Reader Erase Failed.  Try again?",
                                                   sure + "4B5831A7", "Reader Erased"}));
        QCOMPARE(status, (QList<QVariantList>{{""}, {"Reader Erased"}}));
        QCOMPARE(station.dock.Erasures(), 1);
    }

    // A wait that would never end does not keep its window open.
    void ClosesAcrossMidnight() {
        {
            Station station(TwoTouches + "silent erase", 4, BeforeMidnight);
            frmMdiDownload page(station.link, nullptr);
            page.show();
            int refused = 0;
            const Watcher impatient([&] {
                refused += page.Busy() && !page.close();
                return false;
            });
            m_boxes.Answers = {MessageAnswer::Yes};
            QTest::mouseClick(Control<QPushButton>(page, "cmdOnline_1"), Qt::LeftButton);
            QTRY_VERIFY(!page.isVisible());
            QCOMPARE(m_boxes.TakeTexts(), {"Are you sure you want to clear the reader? "});
            QVERIFY(refused > 0 && !gWaitCancelled && !gCommActive);
        }
        Station station("silent", 4, BeforeMidnight);
        frmGoOnline dialog(station.link, nullptr);
        const Watcher impatient([&] {
            dialog.close();
            return false;
        });
        dialog.exec();
        QVERIFY(dialog.OK() && !dialog.DockingDetected && !gWaitCancelled && !gCommActive);
        QVERIFY(Now() > BeforeMidnight + DateTime::FromMilliseconds(1900));
    }

    void Connecting() {
        const QString checking = QStringLiteral("Checking Docking Station...\n\n ");
        const QString closed =
            "Opening COM port...\n\n Could Not Open Com 3\nPlease try another COM "
            "port or check that the COM port is not in use by another program.";
        const TestClock clock(Station::Speed);
        for (const auto& [scenario, detected, text] :
             {std::tuple("remove", true, checking + "OK"),
              std::tuple("silent", false, checking + "Failed"), std::tuple("", false, closed)}) {
            std::optional<Dock> dock;
            if (*scenario) // else there is no device
                dock.emplace(scenario);
            OverrideDevice(dock ? dock->Device() : m_home.File("nothing"));
            DockingLink link;
            frmGoOnline dialog(link, nullptr);
            dialog.MyCommPort = QStringLiteral("3");
            dialog.MyCommSettings = DockingLink::CommSettings;
            dialog.Online = true;
            const Watcher impatient([&] {
                if (dialog.isVisible())
                    QTest::keyClick(&dialog, Qt::Key_Escape); // there is nothing to cancel
                return false;
            });
            dialog.exec();
            QCOMPARE(TextOf(dialog, "lblMsgs"), text);
            QCOMPARE(dialog.DockingDetected, detected);
            const bool ok = dock.has_value();
            QVERIFY(dialog.OK() == ok && link.comPort().PortOpen() == ok);
            QCOMPARE(dialog.Online, ok); // handed back, or cleared
        }
    }

    void PortChoice() {
        OverrideDevice({});
        // A port that cannot be chosen is replaced.
        for (const auto& [port, selected] :
             {std::pair(0, 2), std::pair(1, 1), std::pair(8, 8), std::pair(9, 2)}) {
            frmPrpComms dialog(nullptr);
            dialog.comPort = port;
            dialog.Populate();
            Press(dialog, "cmdSetupOK");
            QCOMPARE(dialog.comPort, selected);
        }

        // Each device is for its own port, and only OK saves them.
        for (const bool ok : {false, true}) {
            frmPrpComms dialog(nullptr);
            dialog.Populate();
            auto* ports = Control<QComboBox>(dialog, "cboLocalPort");
            auto* device = Control<QComboBox>(dialog, "cboDevice");
            ports->setCurrentIndex(2);
            QTest::keyClicks(device->lineEdit(), "/dev/three ");
            ports->setCurrentIndex(3);
            QCOMPARE(device->currentText(), "");
            QTest::keyClicks(device->lineEdit(), "/dev/four");
            ports->setCurrentIndex(2);
            QCOMPARE(device->currentText() + ChosenDevice(3), "/dev/three");
            Press(dialog, ok ? "cmdSetupOK" : "cmdSetupCancel");
            QCOMPARE(dialog.OK(), ok);
            QCOMPARE(dialog.comPort, ok ? 3 : 1);
            QCOMPARE(ChosenDevice(3) + ChosenDevice(4) + ChosenDevice(1),
                     ok ? "/dev/three/dev/four" : "");
        }
        QCOMPARE(DeviceOfPort(3), "/dev/three");
        frmPrpComms dialog(nullptr);
        dialog.comPort = 3;
        dialog.Populate();
        Control<QComboBox>(dialog, "cboDevice")->setEditText({});
        Press(dialog, "cmdSetupOK");
        QCOMPARE(DeviceOfPort(3), AutomaticDevice(3));
    }
};

QTEST_MAIN(LinkWindowsTest)
#include "LinkWindowsTest.moc"
