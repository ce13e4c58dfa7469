// The dialogs that act on a docked reader, driven by their controls' names against the simulated
// dock.

#include "LinkTestTools.h"
#include "Script.h"
#include "Settings.h"
#include "cReaderOptions.h"
#include "frmAddButton.h"
#include "frmAddReader.h"
#include "frmFirmwareVersion.h"
#include "frmSetTime.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimeEdit>

namespace {

const QByteArray Untaught = "reader 0A0B0C0D\n";

/// An operator at one open dialog.
class Operator {
public:
    explicit Operator(QString window) : m_window(std::move(window)) {}

    template <typename T>
    T* Control(const char* name) const {
        return Script::Find<T>(m_window, QString::fromLatin1(name));
    }
    void Do(std::function<void()> action) {
        m_script.Then([this, action = std::move(action)] {
            if (!Control<QPushButton>("cmdCancel"))
                return false;
            action();
            return true;
        });
    }
    void Wait(std::function<bool()> condition) { m_script.Then(std::move(condition)); }
    void WaitForText(const char* label, const QString& text) {
        Wait([this, label, text] {
            auto* found = Control<QLabel>(label);
            return found && found->isVisible() && found->text() == text;
        });
    }
    void Type(const char* field, const QString& text) {
        Do([this, field, text] {
            auto* edit = Control<QLineEdit>(field);
            edit->selectAll();
            QTest::keyClick(edit, Qt::Key_Delete);
            QTest::keyClicks(edit, text);
        });
    }
    void Click(const char* button) { ClickIn(m_window, button); }
    void ClickIn(const QString& window, const char* button) {
        m_script.Click(window, QString::fromLatin1(button));
    }

    /// Runs the dialog until it closes; true if all steps were done by then.
    bool Run(QDialog& dialog) {
        m_script.Start();
        dialog.exec();
        return m_script.Finish();
    }

private:
    QString m_window;
    Script m_script;
};

QString Saved(const char* key, const QString& section = SettingsSection::ReaderSetting) {
    return GetSetting(SettingsApplication, section, QString::fromLatin1(key));
}

} // namespace

class ReaderWindowsTest : public QObject {
    Q_OBJECT

    TestHome m_home{TestHome::DemoSite};
    ScriptedBoxes m_boxes;

    static inline const QString Successful = QStringLiteral("Reader update successful\n");
    static inline const QString Failed = QStringLiteral("Reader update failed.  Please try again.");

    static void SaveSignals(bool buzzer, bool led, bool vibration, bool longBuzzer) {
        SaveReaderSignals({buzzer, led, vibration, longBuzzer});
    }

private slots:
    void init() {
        SaveSignals(true, true, true, false);
        gAutoSetTime = true;
        m_boxes.TakeTexts();
    }
    void cleanup() { QVERIFY(!gCommActive && !gWaitCancelled); }

    void Sending_data() {
        QTest::addColumn<QByteArray>("fault");
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("clock"); // the reader took it
        QTest::addColumn<bool>("options");
        const QString good = Successful + QStringLiteral("07:15  02 Mar 2026");
        QTest::newRow("good") << QByteArray() << good << true << true;
        QTest::newRow("clock refused") << QByteArray("refuse clock 1") << Failed << false << true;
        QTest::newRow("options refused")
            << QByteArray("refuse options 1 FF") << Failed << true << false;
        QTest::newRow("no reader") << QByteArray("remove") << Failed << false << false;
        QTest::newRow("silent to the clock")
            << QByteArray("silent clock") << Failed << false << true;
        QTest::newRow("silent to the options")
            << QByteArray("silent options") << Failed << true << false;
        QTest::newRow("silent to two tries")
            << QByteArray("silent clock 2\nsilent options 2") << good << true << true;
        QTest::newRow("cut in two") << QByteArray("cut 30 6") << good << true << true;
        QTest::newRow("another code before the clock's")
            << QByteArray("wrong-code 81 clock") << good << true << true;
        QTest::newRow("damaged") << QByteArray("checksum clock") << Failed << true << true;
    }
    void Sending() {
        QFETCH(QByteArray, fault);
        QFETCH(QString, message);
        Station station("reader 4B5831A7\n" + fault);
        frmSetTime dialog(station.link, nullptr);
        Operator guard("frmSetTime");
        guard.Click("cmdSendRealTime");
        guard.Wait([&] { return !m_boxes.Messages.isEmpty(); });
        bool open = false;
        guard.Wait([&] {
            open = dialog.isVisible();
            dialog.close();
            return true;
        });
        QVERIFY(guard.Run(dialog));
        QCOMPARE(m_boxes.TakeTexts(), {message});
        QCOMPARE(open, message == Failed);
        const QJsonObject state = station.dock.State();
        QTEST(state["clock"].toString() == u"2026-03-02T07:15", "clock");
        QTEST(state["options"].toInt() == 7, "options");
        station.dock.Say("fault none");
        QVERIFY(station.link.DetectStation());
    }

    // 12 88 88 hour minute date, and the signals as bits.
    void CustomTimeAndSignals() {
        Station station("reader 4B5831A7");
        frmSetTime dialog(station.link, nullptr);
        Operator guard("frmSetTime");
        bool customByItself = false, autoAtOnce = true;
        guard.Do([&] {
            guard.Control<QTimeEdit>("DTPicker1")->setTime(QTime(23, 59));
            customByItself = guard.Control<QRadioButton>("optSetTime_1")->isChecked();
            guard.Control<QDateEdit>("dtpPanelDate")->setDate(QDate(2000, 1, 1));
            for (const char* box : {"chkSound", "chkLED", "chkSendTimeOnUpload"})
                guard.Control<QCheckBox>(box)->click();
            autoAtOnce = !gAutoSetTime;
            guard.Control<QRadioButton>("optTime_1")->click();
        });
        guard.Click("cmdSendRealTime");
        QVERIFY(guard.Run(dialog) && customByItself && autoAtOnce);
        QCOMPARE(m_boxes.TakeTexts(), {Successful + "23:59  01 Jan 2000"});
        QCOMPARE(station.dock.Logged("12 88 88 17 3B 00 00 "), 1);
        QCOMPARE(station.dock.Logged("13 88 88 0C "), 1);
        QCOMPARE(Saved("Buzzer") + Saved("Led") + Saved("Vibration") + Saved("BuzzerDuration"),
                 "0012");
        QCOMPARE(Saved("AutoSetTime", SettingsSection::Properties), "False");
    }

    // What is chosen is kept, though nothing can be sent.
    void NoSignalAndCancel() {
        Station station("reader 4B5831A7");
        SaveSetting(SettingsApplication, SettingsSection::ReaderSetting, "BuzzerDuration", "0");
        {
            frmSetTime dialog(station.link, nullptr);
            Operator guard("frmSetTime");
            bool longAtFirst = false;
            guard.Do([&] {
                longAtFirst = guard.Control<QRadioButton>("optTime_1")->isChecked();
                for (const char* box : {"chkSound", "chkLED", "chkVibration"})
                    guard.Control<QCheckBox>(box)->click();
            });
            guard.Click("cmdSendRealTime");
            guard.Wait([&] { return !m_boxes.Messages.isEmpty() && dialog.isVisible(); });
            guard.Click("cmdCancel");
            QVERIFY(guard.Run(dialog) && longAtFirst);
        }
        QCOMPARE(m_boxes.TakeTexts(),
                 {"You must select at least one of the reader options (Led, Buzzer or Vibration)"});
        QCOMPARE(station.dock.Logged("RX FF FF FF 55"), 0);
        const ReaderSignals saved = SavedReaderSignals();
        QVERIFY(!saved.buzzer && !saved.led && !saved.vibration && saved.longBuzzer);
    }

    // The dialog shows the date of the machine, and refuses to send one that no reader can take.
    // The options are sent all the same.
    void ClockBeyondItsDates() {
        Station station("reader 4B5831A7", Station::Speed, DateTime::FromQt(QDate(1999, 12, 31)));
        frmSetTime dialog(station.link, nullptr);
        Operator guard("frmSetTime");
        guard.Click("cmdSendRealTime");
        guard.Wait([&] { return m_boxes.Messages.size() == 2 && dialog.isVisible(); });
        guard.Click("cmdCancel");
        QVERIFY(guard.Run(dialog));
        QVERIFY(m_boxes.TakeTexts().join(u'|').startsWith("The reader's clock can only be set to"));
        QCOMPARE(station.dock.Logged("CmdSetClock"), 0);
        QCOMPARE(station.dock.Logged("RX FF FF FF 55"), 1);
    }

    // A cancelled sending ends, and says nothing.
    void CancelWhileSending() {
        Station station("reader 4B5831A7\nsilent clock\nsilent options");
        frmSetTime dialog(station.link, nullptr);
        Operator guard("frmSetTime");
        guard.Click("cmdSendRealTime");
        guard.Wait([&] { return station.dock.Logged("CmdSetClock") == 1; });
        guard.Click("cmdCancel");
        QVERIFY(guard.Run(dialog) && !dialog.isVisible());
        QCOMPARE(m_boxes.TakeTexts(), QStringList());
        QVERIFY(station.dock.Logged("CmdSetClock") < 3);
        QCOMPARE(station.dock.Logged("CmdSetOptions"), 0);
        station.dock.Say("fault none");
        QVERIFY(station.link.DetectStation());
    }

    void SavedOptions() {
        const auto save = [](const char* key, const char* text) {
            SaveSetting(SettingsApplication, SettingsSection::Reader, QString::fromLatin1(key),
                        QString::fromLatin1(text));
        };
        save("EnableLED", "False");
        save("EnableLongDuration", "True");
        save("PcCodeMSB", "7");
        save("PcCodeLSB", "256"); // no byte
        {
            const TestClock clock(DateTime::FromQt(QDate(2026, 3, 2)), 1);
            cReaderOptions options;
            QCOMPARE(options.OptionByte(), 13);
            QCOMPARE(options.PcCodeMSB, 7);
            QCOMPARE(options.PcCodeLSB, 136);
            QCOMPARE(options.DateCodeMSB() * 256 + options.DateCodeLSB(),
                     QDate(2000, 1, 1).daysTo(QDate(2026, 3, 1)));
            options.DallasOption = 255;
        }
        const auto saved = [](const char* key) { return Saved(key, SettingsSection::Reader); };
        QCOMPARE(saved("DallasOption") + u'|' + saved("PcCodeLSB") + u'|' + saved("EnableLED"),
                 "255|136|False");
    }

    void AddReader() {
        Station station(Untaught + "touch 2026-03-01 08:10 1A40C2");
        frmAddReader dialog(station.link, nullptr);
        dialog.ExistingNames = {"Night reader"};
        dialog.Desc = QStringLiteral("Reader 1");
        Operator guard("frmAddReader");
        guard.Do([&] { QVERIFY(!guard.Control<QPushButton>("cmdOK")->isEnabled()); });
        guard.Click("cmdRead");
        guard.WaitForText("lblID", "0A0B0C0D");
        guard.Wait([&] { return dialog.focusWidget() == guard.Control<QLineEdit>("txtDesc"); });
        guard.Do([&] { QVERIFY(guard.Control<QLabel>("lblMsg")->isHidden()); });
        for (const char* name : {" Night reader ", "   "}) {
            guard.Type("txtDesc", QString::fromLatin1(name));
            guard.Click("cmdOK");
            guard.Wait([&guard, name] {
                return guard.Control<QLineEdit>("txtDesc")->selectedText() == QLatin1String(name);
            });
        }
        guard.Type("txtDesc", " Day reader ");
        guard.Click("cmdOK");
        QVERIFY(guard.Run(dialog) && dialog.OK());
        QCOMPARE(m_boxes.TakeTexts(),
                 (QStringList{"That name is already used.  Please enter another name",
                              "You must enter a name for this item"}));
        QCOMPARE(dialog.ReaderId, "0A0B0C0D");
        QCOMPARE(dialog.Desc, " Day reader ");
        QCOMPARE(station.dock.Logged("CmdEraseMemory"), 0);
    }

    void AddReaderThatCannotBe_data() {
        QTest::addColumn<QByteArray>("scenario");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<QString>("readerId");
        const QString failed = QStringLiteral("Reader ID Download Failed");
        QTest::newRow("known already")
            << QByteArray("reader 4B5831A7") << QStringList() << "4B5831A7";
        QTest::newRow("no reader")
            << Untaught + "remove"
            << QStringList{"Reader not detected. Check reader and try again.", failed} << "";
        QTest::newRow("damaged") << Untaught + "checksum 1" << QStringList{"Download Error", failed}
                                 << "";
        QTest::newRow("first of three frames lost")
            << Untaught + QByteArray("touch 2026-03-01 08:10 1A40C2\n").repeated(130) +
                   "drop-bytes 0 252"
            << QStringList{"Download Error", failed} << "";
        QTest::newRow("first frame lost") << Untaught + "frames 2\ndrop-bytes 0 252"
                                          << QStringList{"Download Error", failed} << "";
        QTest::newRow("vanished") << Untaught + "vanish-after-bytes 100"
                                  << QStringList{"Download Error", failed} << "";
        QTest::newRow("no answer, cancelled")
            << Untaught + "silent read" << QStringList{failed} << "";
    }
    void AddReaderThatCannotBe() {
        QFETCH(QByteArray, scenario);
        QFETCH(QStringList, messages);
        QFETCH(QString, readerId);
        Station station(scenario);
        frmAddReader dialog(station.link, nullptr);
        dialog.Desc = QStringLiteral("Reader 1");
        Operator guard("frmAddReader");
        guard.Click("cmdRead");
        if (scenario.contains("silent"))
            guard.ClickIn("frmDownload", "cmdCancel");
        guard.Wait([&] {
            return m_boxes.Messages.size() == messages.size() &&
                   !Script::Find<QPushButton>("frmDownload", "cmdCancel") &&
                   guard.Control<QLabel>("lblID")->text() == readerId;
        });
        guard.Do([&] {
            QVERIFY(!guard.Control<QPushButton>("cmdOK")->isEnabled());
            QCOMPARE(guard.Control<QLabel>("lblMsg")->isVisible(), !readerId.isEmpty());
            QCOMPARE(guard.Control<QLabel>("img1")->accessibleName(),
                     readerId.isEmpty() ? "" : "This Reader ID already exists!");
        });
        guard.Click("cmdCancel");
        QVERIFY(guard.Run(dialog) && !dialog.OK());
        QCOMPARE(m_boxes.TakeTexts(), messages);
    }

    // A later failure takes the identifier away, and with it what OK could keep.
    void AddReaderReadAgain() {
        Station station(Untaught);
        frmAddReader dialog(station.link, nullptr);
        dialog.Desc = QStringLiteral("Reader 1");
        Operator guard("frmAddReader");
        guard.Click("cmdRead");
        guard.WaitForText("lblID", "0A0B0C0D");
        guard.Do([&] { station.dock.Say("remove"); });
        guard.Click("cmdRead");
        guard.Wait([&] { return m_boxes.Messages.size() == 2; });
        guard.Click("cmdOK");
        guard.Wait([&] { return m_boxes.Messages.size() == 3 && dialog.isVisible(); });
        guard.Click("cmdCancel");
        QVERIFY(guard.Run(dialog) && !dialog.OK());
    }

    void AddButton() {
        Station station(Untaught);
        frmAddButton dialog(station.link, nullptr);
        dialog.ExistingNames = {"Main gate"};
        dialog.ButtonName = QStringLiteral("Location 001");
        Operator guard("frmAddButton");
        const auto verdict = [&] {
            const bool ok = guard.Control<QPushButton>("cmdOK")->isEnabled();
            return QStringList{guard.Control<QLabel>("img1")->accessibleName(), dialog.DallasID(),
                               ok ? "OK" : "no"}
                .join(u'|');
        };
        guard.Wait([&] {
            auto* name = guard.Control<QLineEdit>("txtName");
            return name && dialog.focusWidget() == name && name->selectedText() == u"Location 001";
        });
        guard.Do([&] { station.dock.Say("button abcdef"); });
        guard.WaitForText("lblID", "ABCDEF");
        guard.Do([&] { QCOMPARE(verdict(), "Not in use yet|ABCDEF|OK"); });
        // One that the demonstration site has takes the free one away.
        guard.Do([&] { station.dock.Say("button 1A40C2"); });
        guard.WaitForText("lblID", "1A40C2");
        guard.Do([&] { QCOMPARE(verdict(), "That key is already used!||no"); });
        guard.Do([&] { station.dock.Say("fault cut 25\nbutton 00000A"); });
        guard.WaitForText("lblID", "00000A");
        guard.Do([&] { QCOMPARE(verdict(), "Not in use yet|00000A|OK"); });
        guard.Type("txtName", "Main gate");
        guard.Click("cmdOK");
        guard.Wait([&] { return m_boxes.Messages.size() == 1 && dialog.isVisible(); });
        guard.Type("txtName", "Yard ");
        guard.Type("txtDesc", "behind the fence");
        guard.Click("cmdOK");
        QVERIFY(guard.Run(dialog) && dialog.OK());
        QCOMPARE(dialog.DallasID() + u'|' + dialog.ButtonName + u'|' + dialog.Desc,
                 "00000A|Yard |behind the fence");
    }

    // The picture goes and comes back, so that a second touch is seen.
    void RepeatedTouchFlashes() {
        Station station(Untaught);
        frmAddButton dialog(station.link, nullptr);
        dialog.show();
        auto* picture = dialog.findChild<QLabel*>("img1");
        station.dock.Say("button 00000A");
        QTRY_VERIFY(!picture->pixmap().isNull());
        struct Paints : QObject {
            QLabel* picture;
            bool seenEmpty = false;
            bool eventFilter(QObject*, QEvent* event) override {
                if (event->type() == QEvent::Paint && picture->pixmap().isNull())
                    seenEmpty = true;
                return false;
            }
        } paints;
        paints.picture = picture;
        picture->installEventFilter(&paints);
        station.dock.Say("button 00000A");
        QTRY_VERIFY(paints.seenEmpty);
        QTRY_VERIFY(!picture->pixmap().isNull());
        QCOMPARE(dialog.DallasID(), "00000A");
    }

    void ManualEntry() {
        Station station(Untaught);
        frmAddButton dialog(station.link, nullptr);
        dialog.ButtonName = QStringLiteral("Yard");
        Operator guard("frmAddButton");
        const QString manual = QStringLiteral("frmManualID");
        const auto type = [&](const char* code) {
            guard.Wait([&, code] {
                auto* field = Script::Find<QLineEdit>(manual, "txtID");
                if (!field)
                    return false;
                field->setText(QString::fromLatin1(code));
                return true;
            });
            guard.ClickIn(manual, "cmdOK");
        };
        guard.Click("cmdManual");
        int refused = 0;
        for (const char* code : {"AB12C", "AB12CG", "AB12CD0", "", "AB 2CD"}) {
            type(code);
            ++refused;
            guard.Wait([&, refused] { return m_boxes.Messages.size() == refused; });
        }
        // A button that is presented meanwhile shows behind it.
        guard.Wait([&] {
            station.dock.Say("button 00000A");
            return true;
        });
        guard.WaitForText("lblID", "00000A");
        guard.ClickIn(manual, "cmdCancel");
        guard.Wait([&] { return !Script::Find<QLineEdit>(manual, "txtID"); });
        guard.WaitForText("lblID", "00000A");
        guard.Click("cmdManual");
        type(" 1a40c2 "); // one that the demonstration site has
        guard.WaitForText("lblMsg", "That key is already used!");
        guard.Click("cmdManual");
        type(" ab12cd ");
        guard.WaitForText("lblID", "AB12CD");
        guard.Do([&] { station.dock.Say("quit"); }); // unplugged
        guard.Wait([&] { return !station.link.comPort().PortOpen(); });
        guard.Click("cmdOK");
        QVERIFY(guard.Run(dialog) && dialog.OK());
        QCOMPARE(m_boxes.TakeTexts(), QStringList(5, "Illegal Value"));
        QCOMPARE(dialog.DallasID(), "AB12CD");
    }

    // Whatever the line brings, the next whole button frame is taken.
    void CapturesFromABadLine() {
        LineEnd line;
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        ButtonCapture capture(link);
        const QByteArray button = FrameOf(Hex("2400CDAB12"));
        const auto calls = [&](int count) {
            QStringList codes;
            for (int i = 0; i < count; ++i) {
                DoEvents();
                QTest::qWait(20);
                codes += capture.TakeCode();
            }
            codes.removeAll(QString());
            return codes.join(u'|');
        };
        line.Send(button);
        QCOMPARE(calls(2), "12ABCD");
        line.Send(FrameOf(Hex("2400CDAB"))); // too short to hold a code
        QCOMPARE(calls(2), "");
        line.Send(FrameOf(Hex("8000CDAB12"))); // another reply
        QCOMPARE(calls(2), "");
        line.Send(button.left(9) + '\xF0'); // a frame that will never be complete
        QCOMPARE(calls(5), "");
        line.Send(button.left(13));
        QCOMPARE(calls(1), "");
        line.Send(button.mid(13));
        QCOMPARE(calls(2), "12ABCD");
        line.Send(button.chopped(1) + '\0' + button); // wrong sum, then a good one
        QCOMPARE(calls(4), "12ABCD");
    }

    void Firmware() {
        frmFirmwareVersion dialog("V06", nullptr);
        dialog.show();
        QCOMPARE(dialog.findChild<QLabel*>("Label1")->text(), "Firmware Version is V06");
        dialog.findChild<QPushButton*>("cmdClose")->click();
        QVERIFY(!dialog.isVisible());
    }
};

QTEST_MAIN(ReaderWindowsTest)
#include "ReaderWindowsTest.moc"
