// The windows of the reader link, driven by their controls' names.

#include "Controls.h"
#include "Format.h"
#include "LinkTestTools.h"
#include "frmDownload.h"
#include "frmGoOnline.h"
#include "frmMdiDownload.h"
#include "frmPrpComms.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTreeView>

namespace {

const QByteArray TwoTouches =
    "reader 4B5831A7\ntouch 2026-02-28 23:59 1A40C2\ntouch 2026-03-01 00:05 ABCDEF\n";

/// 131 records, three frames.
const QByteArray ManyTouches =
    "reader 4B5831A7\n" + QByteArray("touch 2026-03-01 08:10 1A40C2\n").repeated(130);

QString TextOf(QWidget& window, const char* label) { return Control(window, label)->text(); }

/// Looks every millisecond, modal windows or not, until `look` has seen what it waits for.
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

/// When a label that shows a text was painted first.
class Painted : public QObject {
public:
    Painted(QLabel& label, const char* text) : m_label(label), m_text(QString::fromLatin1(text)) {
        label.installEventFilter(this);
    }
    std::optional<DateTime> At;

private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && !At && m_label.text().contains(m_text))
            At = Now();
        return false;
    }

    QLabel& m_label;
    QString m_text;
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
        QStringList texts, percents;
        bool inRange = true, warned = false;
        const Watcher watcher([&] {
            texts += TextOf(dialog, "lblMsgs");
            percents += TextOf(dialog, "lblProgress");
            inRange = inRange && bar->value() <= bar->maximum();
            warned = warned || Control(dialog, "lblWarning")->isVisible();
            return false;
        });
        const TransferResult result = dialog.Run(TransferPurpose::Touches);
        QVERIFY(result.OK && inRange && warned && !dialog.isVisible());
        QCOMPARE(result.Buttons.size(), 130U);
        texts.removeDuplicates();
        percents.removeDuplicates();
        QCOMPARE(texts, (QStringList{"", "Downloading data from reader", "Download Completed",
                                     "Processing Data"}));
        QCOMPARE(percents, (QStringList{"", "33%", "67%", "100%"}));
        QCOMPARE(TextOf(dialog, "lblPipeID"), "4B5831A7");
        QCOMPARE(bar->value(), 131);
        QCOMPARE(bar->maximum(), 131);
        QVERIFY(Control(dialog, "lblWarning")->isHidden());
    }

    // Two callers want less than the touches.
    void IdentifierAndFirmware() {
        Station station(ManyTouches + "firmware 08");
        {
            frmDownload dialog(station.link, nullptr);
            const TransferResult result = dialog.Run(TransferPurpose::Identifier);
            QVERIFY(result.OK && result.Buttons.empty());
            QCOMPARE(result.PipeID, "4B5831A7");
        }
        frmDownload dialog(station.link, nullptr);
        const Watcher wrongText(
            [&] { return TextOf(dialog, "lblMsgs") == u"Downloading data from reader"; });
        const TransferResult result = dialog.Run(TransferPurpose::Firmware);
        QVERIFY(result.OK && result.Buttons.empty() && !wrongText.Seen());
        QCOMPARE(result.tFirmware, "V06"); // what 08 is shown as
        QCOMPARE(station.dock.Logged("CmdEraseMemory"), 0);
    }

    void Cancel_data() {
        QTest::addColumn<QByteArray>("scenario");
        QTest::addColumn<QString>("stage"); // the text of lblMsgs, "request" or "reader"
        QTest::addColumn<int>("reads");     // that were sent
        QTest::addColumn<int>("means");
        const char* const means[] = {"Cancel", "Escape", "close button"};
        for (int i = 0; i < 3; ++i) {
            const auto row = [&](const char* name, const char* scenario, const char* stage,
                                 int reads = 1) {
                QTest::addRow("%s, %s", name, means[i])
                    << TwoTouches + scenario << QString::fromLatin1(stage) << reads << i;
            };
            row("at once", "", "", 0);
            row("before the request", "", "Downloading data from reader", 0);
            row("no answer", "silent read", "request");
            row("in the transfer", "count 200\nstop-after 1", "reader");
            row("read", "", "Download Completed");
            row("decoding", "", "Processing Data");
        }
    }
    void Cancel() {
        QFETCH(QByteArray, scenario);
        QFETCH(QString, stage);
        QFETCH(int, means);
        Station station(scenario);
        frmDownload dialog(station.link, nullptr);
        const Watcher watcher([&] {
            const bool reached = stage == u"reader"    ? !TextOf(dialog, "lblPipeID").isEmpty()
                                 : stage == u"request" ? gCommActive
                                                       : TextOf(dialog, "lblMsgs") == stage;
            if (!dialog.isVisible() || !reached)
                return false;
            if (means == 0)
                Control<QPushButton>(dialog, "cmdCancel")->click();
            else if (means == 1)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                dialog.close();
            return true;
        });
        const TransferResult result = dialog.Run(TransferPurpose::Touches);
        QVERIFY(watcher.Seen() && !result.OK && !dialog.isVisible() && !gCommActive);
        QVERIFY(m_boxes.Messages.isEmpty());
        QTRY_VERIFY(station.link.DetectStation()); // the line is in order, and all has arrived
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

        // The result is painted before the pause, and what the operator must not do is said.
        gAutoSetTime = false;
        const Painted painted(*Control(page, "lblMsg"), "Data Readings = 2");
        bool warned = false;
        const Watcher afterTransfer([&] {
            warned = Control(page, "lblWarning")->isVisible() && !QApplication::activeModalWidget();
            return warned;
        });

        bool guarded = false;
        const Watcher whileBusy([&] {
            if (!QApplication::activeModalWidget())
                return false;
            guarded = !page.close() && page.isVisible() && page.Busy() && !download->isEnabled() &&
                      !erase->isEnabled() && QApplication::overrideCursor() != nullptr;
            return true;
        });
        QTest::mouseClick(download, Qt::LeftButton);
        QVERIFY(whileBusy.Seen() && guarded && !page.Busy());
        QVERIFY(painted.At && Now() - *painted.At >= DateTime::FromMilliseconds(3500));
        QVERIFY(warned && !Control(page, "lblWarning")->isVisible());
        QCOMPARE(busy, (QList<QVariantList>{{true}, {false}}));
        QVERIFY(download->isEnabled() && erase->isEnabled() && !QApplication::overrideCursor());
        QCOMPARE(TextOf(page, "lblMsg"),
                 "Download Successful\nData Readings = 2\nReader Memory erased");
        QVERIFY(Control(page, "lblMsg")->isVisible());

        const QAbstractItemModel& model = *list->model();
        const auto cells = [&](int row) {
            QStringList texts;
            for (int column = 0; column < model.columnCount(); ++column)
                texts += (row < 0 ? model.headerData(column, Qt::Horizontal)
                                  : model.index(row, column).data())
                             .toString();
            return texts.join(u'|');
        };
        QCOMPARE(cells(-1), "Number|Date|Time|ID|Button Name|Group Name");
        const auto date = [](int month, int day) {
            return Format(DateTime::FromQt(QDate(2026, month, day)), "Short Date");
        };
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(cells(0), "1|" + date(2, 28) + "|23:59|1A40C2|Main gate|Harbour Warehouse");
        QCOMPARE(cells(1), "2|" + date(3, 1) + "|00:05|ABCDEF|Unknown|");
        QCOMPARE(list->currentIndex().row(), 1);
        QVERIFY(list->selectionModel()->isRowSelected(1));
        const int shares[] = {10, 15, 10, 10, 20, 35};
        for (int column = 0; column < 6; ++column) // of the width, less a margin of 16 pixels
            QVERIFY(std::abs(list->columnWidth(column) - shares[column] * (list->width() - 16) /
                                                             100) <= shares[column] / 15 + 1);

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
        // Nobody knows which reader it was at first, so the second try asks for this one.
        QCOMPARE(m_boxes.TakeTexts(), (QStringList{sure, "Reader Erase Failed.  Try again?",
                                                   sure + "4B5831A7", "Reader Erased"}));
        QCOMPARE(status, (QList<QVariantList>{{""}, {"Reader Erased"}}));
        QCOMPARE(station.dock.Erasures(), 1);
    }

    // A wait that would last for ever does not keep its window open.
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

    void Connecting_data() {
        QTest::addColumn<QByteArray>("scenario"); // none: there is no device
        QTest::addColumn<bool>("ok");
        QTest::addColumn<bool>("detected");
        QTest::addColumn<QString>("text");
        const QString checking = QStringLiteral("Checking Docking Station...\n\n ");
        QTest::newRow("detected") << QByteArray("remove") << true << true << checking + "OK";
        QTest::newRow("not detected")
            << QByteArray("silent") << true << false << checking + "Failed";
        QTest::newRow("no device") << QByteArray() << false << false
                                   << "Opening COM port...\n\n Could Not Open Com 3\nPlease try "
                                      "another COM port or check that the COM port is not in use "
                                      "by another program.";
    }
    void Connecting() {
        QFETCH(QByteArray, scenario);
        QFETCH(bool, ok);
        const TestClock clock(Station::Speed);
        std::unique_ptr<Dock> dock;
        OverrideDevice(m_home.File("nothing"));
        if (!scenario.isEmpty()) {
            dock = std::make_unique<Dock>(scenario);
            OverrideDevice(dock->Device());
        }
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
        QCOMPARE(dialog.OK(), ok);
        QCOMPARE(link.comPort().PortOpen(), ok);
        QCOMPARE(dialog.Online, ok); // handed back, or cleared
        QTEST(dialog.DockingDetected, "detected");
        QTEST(TextOf(dialog, "lblMsgs"), "text");
    }

    void PortChoice() {
        OverrideDevice({});
        const QMap<int, int> selected{{0, 2}, {1, 1}, {8, 8}, {9, 2}};
        for (auto port = selected.cbegin(); port != selected.cend(); ++port) {
            frmPrpComms dialog(nullptr);
            dialog.comPort = port.key();
            dialog.Populate();
            auto* ports = Control<QComboBox>(dialog, "cboLocalPort");
            QCOMPARE(ports->count(), 8);
            QCOMPARE(ports->currentText(), QStringLiteral("COM%1:").arg(port.value()));
            Control<QPushButton>(dialog, "cmdSetupOK")->click();
            QVERIFY(dialog.OK());
            QCOMPARE(dialog.comPort, port.value());
        }
        QVERIFY(ChosenDevice(3).isEmpty());

        // Cancel, then OK: only OK keeps what was entered, each device for its own port.
        for (const char* button : {"cmdSetupCancel", "cmdSetupOK"}) {
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
            QCOMPARE(device->currentText(), "/dev/three");
            QCOMPARE(ChosenDevice(3), "");
            const bool ok = qstrcmp(button, "cmdSetupOK") == 0;
            Control<QPushButton>(dialog, button)->click();
            QCOMPARE(dialog.OK(), ok);
            QCOMPARE(dialog.comPort, ok ? 3 : 1);
            QCOMPARE(ChosenDevice(3), ok ? "/dev/three" : "");
            QCOMPARE(ChosenDevice(4), ok ? "/dev/four" : "");
            QCOMPARE(ChosenDevice(1), "");
        }
        QCOMPARE(DeviceOfPort(3), "/dev/three");
        frmPrpComms dialog(nullptr);
        dialog.comPort = 3;
        dialog.Populate();
        QCOMPARE(Control<QComboBox>(dialog, "cboDevice")->currentText(), "/dev/three");
        Control<QComboBox>(dialog, "cboDevice")->setEditText({});
        Control<QPushButton>(dialog, "cmdSetupOK")->click();
        QCOMPARE(DeviceOfPort(3), AutomaticDevice(3));
    }
};

QTEST_MAIN(LinkWindowsTest)
#include "LinkWindowsTest.moc"
