// The dialogs that act on a docked reader, operated by the names of their controls, with the
// simulated dock.

#include "Controls.h"
#include "LinkTestTools.h"
#include "Settings.h"
#include "cReaderOptions.h"
#include "frmAddButton.h"
#include "frmAddReader.h"
#include "frmSetTime.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QRadioButton>
#include <QTimeEdit>

namespace {

const QByteArray Untaught = "reader 0A0B0C0D\n";

/// An operator at one open dialog.
class Operator : public Script {
public:
    explicit Operator(QString window) : m_window(std::move(window)) {}

    template <typename T>
    T* Control(const char* name) const {
        return Find<T>(m_window, QString::fromLatin1(name));
    }
    void Do(std::function<void()> action) {
        With<QPushButton>(m_window, "cmdCancel", [=](QPushButton&) { action(); });
    }
    void WaitForText(const char* label, const QString& text) {
        Then([this, label, text] {
            auto* found = Control<QLabel>(label);
            return found && found->isVisible() && found->text() == text;
        });
    }
    void Type(const char* field, const QString& text) { ::Type(*this, m_window, field, text); }
    void Click(const char* button) { Script::Click(m_window, QString::fromLatin1(button)); }

    /// Runs the dialog until it closes; true if all steps were done by then.
    bool Run(QDialog& dialog) {
        Start();
        dialog.exec();
        return Finish();
    }

private:
    QString m_window;
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
    static inline const QString ReadFailed = QStringLiteral("Reader ID Download Failed");

private slots:
    void init() {
        SaveReaderSignals({});
        gAutoSetTime = true;
        m_boxes.TakeTexts();
    }
    void cleanup() { QVERIFY(!gCommActive && !gWaitCancelled); }

    // The options are sent even if the clock failed.
    void Sending_data() {
        // `clock` and `options`: the reader took them.
        const TestTable<QByteArray, QStringList, bool, bool> row("fault", "messages", "clock",
                                                                 "options");
        const QStringList good{Successful + "07:15  02 Mar 2026"}, failed{Failed};
        row("silent to two tries", "silent clock 2\nsilent options 2", good, true, true);
        row("clock refused", "refuse clock 1", failed, false, true);
        row("options refused", "refuse options 1 FF", failed, true, false);
        row("silent", "silent clock\nsilent options", failed, false, false);
        row("date that no reader can take", "fault none",
            {"The reader's clock can only be set to a date from 1 January 2000 to 6 June 2179. It "
             "was not set.",
             Failed},
            false, true);
    }
    void Sending() {
        QFETCH(QByteArray, fault);
        QFETCH(QStringList, messages);
        const DateTime start =
            messages.size() == 2 ? DateTime::FromQt(QDate(1999, 12, 31)) : Station::Start();
        Station station("reader 4B5831A7\n" + fault, Station::Speed, start);
        frmSetTime dialog(station.link, nullptr);
        Operator guard("frmSetTime");
        guard.Click("cmdSendRealTime");
        bool open = false;
        guard.Then([&] { return m_boxes.Messages.size() == messages.size(); });
        guard.Then([&] {
            open = dialog.isVisible();
            dialog.close();
            return true;
        });
        QVERIFY(guard.Run(dialog));
        QCOMPARE(m_boxes.TakeTexts(), messages);
        QCOMPARE(open, messages.last() == Failed);
        const QJsonObject state = station.dock.State();
        QTEST(state["clock"].toString() == u"2026-03-02T07:15", "clock");
        QTEST(state["options"].toInt() == 7, "options");
        if (fault.startsWith("silent clock\n")) // three tries each
            QCOMPARE(station.dock.Logged("CmdSetClock") + station.dock.Logged("CmdSetOptions"), 6);
    }

    // Without a signal nothing is sent. Then 12 88 88 hour minute date, and the signals as bits.
    void CustomTimeAndSignals() {
        Station station("reader 4B5831A7");
        SaveSetting(SettingsApplication, SettingsSection::ReaderSetting, "BuzzerDuration", "0");
        frmSetTime dialog(station.link, nullptr);
        Operator guard("frmSetTime");
        bool longAtFirst = false, customByItself = false, autoAtOnce = false;
        guard.Do([&] {
            longAtFirst = guard.Control<QRadioButton>("optTime_1")->isChecked();
            for (const char* box : {"chkSound", "chkLED", "chkVibration"})
                guard.Control<QCheckBox>(box)->click();
        });
        guard.Click("cmdSendRealTime");
        guard.Then([&] { return !m_boxes.Messages.isEmpty() && dialog.isVisible(); });
        guard.Do([&] {
            QCOMPARE(station.dock.Logged("RX FF FF FF 55"), 0);
            guard.Control<QTimeEdit>("DTPicker1")->setTime(QTime(23, 59));
            customByItself = guard.Control<QRadioButton>("optSetTime_1")->isChecked();
            guard.Control<QDateEdit>("dtpPanelDate")->setDate(QDate(2000, 1, 1));
            for (const char* box : {"chkVibration", "chkSendTimeOnUpload"})
                guard.Control<QCheckBox>(box)->click();
            autoAtOnce = !gAutoSetTime;
        });
        guard.Click("cmdSendRealTime");
        QVERIFY(guard.Run(dialog) && longAtFirst && customByItself && autoAtOnce);
        QCOMPARE(m_boxes.TakeTexts(),
                 (QStringList{"You must select at least one of the reader options (Led, Buzzer or "
                              "Vibration)",
                              Successful + "23:59  01 Jan 2000"}));
        QCOMPARE(station.dock.Logged("12 88 88 17 3B 00 00 "), 1);
        QCOMPARE(station.dock.Logged("13 88 88 0C "), 1);
        QCOMPARE(Saved("Buzzer") + Saved("Led") + Saved("Vibration") + Saved("BuzzerDuration"),
                 "0012");
        QCOMPARE(Saved("AutoSetTime", SettingsSection::Properties), "False");
    }

    // The choices are saved even if nothing is sent.
    void Cancel() {
        DockingLink link;
        frmSetTime dialog(link, nullptr);
        dialog.findChild<QCheckBox*>("chkLED")->click();
        dialog.findChild<QPushButton*>("cmdCancel")->click();
        QCOMPARE(Saved("Buzzer") + Saved("Led") + Saved("BuzzerDuration"), "101");
    }

    // A cancelled sending ends without a message.
    void CancelWhileSending() {
        Station station("reader 4B5831A7\nsilent clock\nsilent options");
        frmSetTime dialog(station.link, nullptr);
        Operator guard("frmSetTime");
        guard.Click("cmdSendRealTime");
        guard.Then([&] { return station.dock.Logged("CmdSetClock") == 1; });
        guard.Click("cmdCancel");
        QVERIFY(guard.Run(dialog) && !dialog.isVisible());
        QCOMPARE(m_boxes.TakeTexts(), QStringList());
        QVERIFY(station.dock.Logged("CmdSetClock") < 3);
        QCOMPARE(station.dock.Logged("CmdSetOptions"), 0);
        station.dock.Say("fault none");
        QVERIFY(station.link.DetectStation());
    }

    void SavedOptions() {
        for (const auto& [key, text] :
             {std::pair("EnableLED", "False"), std::pair("EnableLongDuration", "True"),
              std::pair("PcCodeMSB", "7"), std::pair("PcCodeLSB", "256")}) // too large for a byte
            SaveSetting(SettingsApplication, SettingsSection::Reader, key, text);
        {
            const TestClock clock(DateTime::FromQt(QDate(2026, 3, 2)), 1);
            cReaderOptions options;
            QCOMPARE(options.OptionByte(), 13);
            QCOMPARE(options.PcCodeMSB + options.PcCodeLSB, 7 + 136);
            QCOMPARE(options.DateCodeMSB() * 256 + options.DateCodeLSB(),
                     QDate(2000, 1, 1).daysTo(QDate(2026, 3, 1)));
            options.DallasOption = 255;
        }
        const QString section = SettingsSection::Reader;
        QCOMPARE(Saved("DallasOption", section) + Saved("PcCodeLSB", section), "255136");
        QCOMPARE(Saved("EnableLED", section), "False");
    }

    // A read that fails clears the identifier, so OK has nothing to save.
    void AddReader() {
        Station station(Untaught + "touch 2026-03-01 08:10 1A40C2");
        frmAddReader dialog(station.link, nullptr);
        dialog.ExistingNames = {"Night reader"};
        dialog.Desc = QStringLiteral("Reader 1");
        Operator guard("frmAddReader");
        const auto messages = [&](int count) {
            guard.Then([this, count] { return m_boxes.Messages.size() == count; });
        };
        guard.Do([&] { QVERIFY(!guard.Control<QPushButton>("cmdOK")->isEnabled()); });
        guard.Click("cmdRead");
        guard.WaitForText("lblID", "0A0B0C0D");
        guard.Do([&] { station.dock.Say("remove"); });
        guard.Click("cmdRead");
        messages(2);
        guard.Click("cmdOK");
        messages(3);
        guard.Do([&] { station.dock.Load("reader 4B5831A7"); });
        guard.Click("cmdRead");
        guard.WaitForText("lblMsg", "This Reader ID already exists!");
        guard.Do([&] {
            QVERIFY(!guard.Control<QPushButton>("cmdOK")->isEnabled());
            QCOMPARE(guard.Control<QLabel>("img1")->accessibleName(),
                     "This Reader ID already exists!");
            station.dock.Load(Untaught);
        });
        guard.Click("cmdRead");
        guard.WaitForText("lblID", "0A0B0C0D");
        guard.Then([&] { return dialog.focusWidget() == guard.Control<QLineEdit>("txtDesc"); });
        guard.Do([&] { QVERIFY(guard.Control<QLabel>("lblMsg")->isHidden()); });
        guard.Type("txtDesc", " Night reader ");
        guard.Click("cmdOK");
        guard.Then([&] {
            return guard.Control<QLineEdit>("txtDesc")->selectedText() == u" Night reader ";
        });
        guard.Type("txtDesc", " Day reader ");
        guard.Click("cmdOK");
        QVERIFY(guard.Run(dialog) && dialog.OK());
        QCOMPARE(
            m_boxes.TakeTexts(),
            (QStringList{"Reader not detected. Check reader and try again.", ReadFailed, ReadFailed,
                         "That name is already used.  Please enter another name"}));
        QCOMPARE(dialog.ReaderId + dialog.Desc, "0A0B0C0D Day reader ");
        QCOMPARE(station.dock.Logged("CmdEraseMemory"), 0);
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
        guard.Then([&] {
            auto* name = guard.Control<QLineEdit>("txtName");
            return name && dialog.focusWidget() == name && name->selectedText() == u"Location 001";
        });
        guard.Do([&] { station.dock.Say("button abcdef"); });
        guard.WaitForText("lblID", "ABCDEF");
        guard.Do([&] { QCOMPARE(verdict(), "Not in use yet|ABCDEF|OK"); });
        // This one is in use, so the free one no longer counts.
        guard.Do([&] { station.dock.Say("button 1A40C2"); });
        guard.WaitForText("lblID", "1A40C2");
        guard.Do([&] { QCOMPARE(verdict(), "That key is already used!||no"); });
        guard.Do([&] { station.dock.Say("fault cut 25\nbutton 00000A"); });
        guard.WaitForText("lblID", "00000A");
        guard.Do([&] { QCOMPARE(verdict(), "Not in use yet|00000A|OK"); });
        // The same one again: the picture goes and comes back.
        std::optional<PaintSpy> flash;
        guard.Do([&] {
            flash.emplace(*guard.Control<QLabel>("img1"),
                          [](const QLabel& picture) { return picture.pixmap().isNull(); });
            station.dock.Say("fault none\nbutton 00000A");
        });
        guard.Then([&] { return flash->At && dialog.DallasID() == u"00000A"; });
        guard.Do([&] { QVERIFY(!guard.Control<QLabel>("img1")->pixmap().isNull()); });
        guard.Type("txtName", "Main gate");
        guard.Click("cmdOK");
        guard.Then([&] { return m_boxes.Messages.size() == 1 && dialog.isVisible(); });
        guard.Type("txtName", "Yard ");
        guard.Type("txtDesc", "behind the fence");
        guard.Click("cmdOK");
        QVERIFY(guard.Run(dialog) && dialog.OK());
        QCOMPARE(dialog.DallasID() + u'|' + dialog.ButtonName + u'|' + dialog.Desc,
                 "00000A|Yard |behind the fence");
    }

    void ManualEntry() {
        Station station(Untaught);
        frmAddButton dialog(station.link, nullptr);
        dialog.ButtonName = QStringLiteral("Yard");
        Operator guard("frmAddButton");
        const QString manual = QStringLiteral("frmManualID");
        const auto type = [&](const char* code) {
            Type(guard, manual, "txtID", code);
            guard.Script::Click(manual, "cmdOK");
        };
        guard.Click("cmdManual");
        int refused = 0;
        for (const char* code : {"AB12C", "AB12CG", "AB12CD0", "", "AB 2CD"}) {
            type(code);
            ++refused;
            guard.Then([&, refused] { return m_boxes.Messages.size() == refused; });
        }
        // A button that is presented now is shown in the dialog below.
        guard.Do([&] { station.dock.Say("button 00000A"); });
        guard.WaitForText("lblID", "00000A");
        guard.Script::Click(manual, "cmdCancel");
        guard.Then([&] { return !Script::Find<QLineEdit>(manual, "txtID"); });
        guard.Click("cmdManual");
        type(" 1a40c2 "); // in use
        guard.WaitForText("lblMsg", "That key is already used!");
        guard.Click("cmdManual");
        type(" ab12cd ");
        guard.WaitForText("lblID", "AB12CD");
        guard.Do([&] { station.dock.Say("quit"); }); // unplugged
        guard.Then([&] { return !station.link.comPort().PortOpen(); });
        guard.Click("cmdOK");
        QVERIFY(guard.Run(dialog) && dialog.OK());
        QCOMPARE(m_boxes.TakeTexts(), QStringList(5, "Illegal Value"));
        QCOMPARE(dialog.DallasID(), "AB12CD");
    }

    // Nothing on the line prevents the next complete button frame from being taken.
    void CapturesFromABadLine() {
        LineEnd line;
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        ButtonCapture capture(link);
        const QByteArray button = FrameOf(Hex("2400CDAB12"));
        const std::tuple<QByteArray, int, const char*> pieces[] = {
            {button, 2, "12ABCD"},
            {FrameOf(Hex("2400CDAB")), 2, ""},   // too short to hold a code
            {FrameOf(Hex("8000CDAB12")), 2, ""}, // another reply
            {button.left(9) + '\xF0', 5, ""},    // never complete
            {button.left(13), 1, ""},
            {button.mid(13), 2, "12ABCD"},
            {button.chopped(1) + '\0' + button, 4, "12ABCD"}, // wrong sum, then a good one
        };
        for (const auto& [bytes, calls, expected] : pieces) {
            line.Send(bytes);
            QString codes;
            for (int call = 0; call < calls; ++call) {
                QTest::qWait(20);
                codes += capture.TakeCode();
            }
            QCOMPARE(codes, expected);
        }
    }
};

QTEST_MAIN(ReaderWindowsTest)
#include "ReaderWindowsTest.moc"
