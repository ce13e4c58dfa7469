// The road to the docking station, over a real serial device: the port, and send-and-wait.

#include "LinkTestTools.h"

#include "Settings.h"
#include "mWardlock.h"

#include <QElapsedTimer>

namespace {

constexpr double Fast = 25;

} // namespace

class DockingLinkTest : public QObject {
    Q_OBJECT

    TestHome m_home{TestHome::DemoSite};

private slots:
    void cleanup() {
        gCommActive = false;
        gWaitCancelled = false;
    }

    void Detects() {
        const TestClock clock(Fast);
        Dock dock(m_home, "");
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        QVERIFY(link.OpenPort(1)); // it is open already
        QVERIFY(link.DetectStation());
        QVERIFY(!gCommActive);
        QCOMPARE(link.InBuffer().Count(), 0);
        QTRY_COMPARE(dock.Logged("0D 0A"), 2);
        dock.Say("fault silent detect 1");
        QVERIFY(!link.DetectStation());
        QVERIFY(!gCommActive);
        QVERIFY(link.DetectStation());
        QCOMPARE(dock.Logged("CmdDetect"), 3);
        link.ClosePort();
        QVERIFY(!link.DetectStation());
        QCOMPARE(dock.Logged("CmdDetect"), 3);
    }

    // One try takes the answer pause, the time-out and the pause behind it, by the real clock.
    void SilenceTakesItsTime() {
        Dock dock(m_home, "silent");
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!link.DetectStation());
        QVERIFY2(timer.elapsed() >= 500 + 900 + 900, qPrintable(QString::number(timer.elapsed())));
        QVERIFY2(timer.elapsed() < 500 + 900 + 300 + 900 + 700,
                 qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(dock.Logged("CmdDetect"), 1);
    }

    void SetsTheClock_data() {
        QTest::addColumn<QByteArray>("fault");
        QTest::addColumn<bool>("succeeds");
        QTest::addColumn<int>("sent");
        QTest::addColumn<bool>("obeyed");
        const auto row = [](const char* fault, bool succeeds, int sent, bool obeyed = false) {
            QTest::newRow(fault) << QByteArray(fault) << succeeds << sent << (succeeds || obeyed);
        };
        row("none", true, 1);
        row("wrong-code 80", true, 1); // before the right one
        row("silent clock 2", true, 3);
        row("silent clock", false, 3);
        row("checksum clock", false, 3, true); // obeyed, but nobody hears of it
        row("noise 30 clock", true, 1);
        row("refuse clock 1", false, 1); // an answer, so it is not asked again
        row("refuse clock 1 FF", false, 1);
    }
    void SetsTheClock() {
        QFETCH(QByteArray, fault);
        QFETCH(bool, obeyed);
        const TestClock clock(DateTime::FromQt(QDateTime(QDate(2026, 3, 1), QTime(8, 30, 10))),
                              Fast);
        Dock dock(m_home, "fault " + fault);
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        QTEST(link.SetClockToNow(), "succeeds");
        QCOMPARE(dock.Clock(), obeyed ? "2026-03-01T08:30" : "");
        QTEST(static_cast<int>(dock.Logged("CmdSetClock")), "sent");
    }

    // The first half is there at the first look, the other comes between two looks.
    void ReplyInTwoPieces() {
        const TestClock clock(DateTime::FromQt(QDate(2026, 3, 1)), 5);
        Dock dock(m_home, "cut 140");
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        QVERIFY(link.TxNewDate(23, 59, 0x01, 0x02));
        QCOMPARE(dock.Clock(), "2000-09-15T23:59");
        QCOMPARE(dock.Logged("CmdSetClock"), 1);
    }

    void Replies_data() {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QByteArray>("reply"); // empty: none is received
        QTest::addColumn<QByteArray>("replyOfAnyCode");
        const QByteArray none;
        QTest::newRow("nothing") << none << none << none;
        QTest::newRow("done") << FrameOf(Hex("9300")) << Hex("9300") << Hex("9300");
        QTest::newRow("without status") << FrameOf(Hex("93")) << Hex("93") << Hex("93");
        QTest::newRow("another code") << FrameOf(Hex("8000")) << none << Hex("8000");
        QTest::newRow("another code before it")
            << FrameOf(Hex("2400010203")) + FrameOf(Hex("9305")) << Hex("9305")
            << Hex("2400010203");
        QTest::newRow("wrong checksum before it")
            << FrameOf(Hex("9300")).chopped(1) + "a" + FrameOf(Hex("9301")) << Hex("9301")
            << Hex("9301");
    }
    void Replies() {
        QFETCH(QByteArray, answer);
        const TestClock clock(Fast);
        LineEnd line;
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        const QByteArray command = CmdSetClock(1, 2, 3, 4);
        line.Answers[command] = answer;
        QFETCH(QByteArray, reply);
        QFETCH(QByteArray, replyOfAnyCode);
        for (const bool acceptAny : {false, true}) {
            const QByteArray wanted = acceptAny ? replyOfAnyCode : reply;
            QByteArray got;
            bool received = false;
            link.WaitFor(2, Wire::Header1, command, 1200, 0x93, acceptAny, got, received);
            QCOMPARE(got, wanted);
            QCOMPARE(received, !wanted.isEmpty());
            QVERIFY(!gCommActive);
        }
        QCOMPARE(link.TxNewDate(1, 2, 3, 4), reply == Hex("9300"));
    }

    void Erases() {
        const TestClock clock(Fast);
        Dock dock(m_home, "refuse erase 1 02\ntouch 2026-03-01 08:30 1A40C2");
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        bool succeeded = true;
        link.EraseRequest(succeeded);
        QVERIFY(!succeeded);
        QCOMPARE(dock.Erasures(), 0);
        link.EraseRequest(succeeded);
        QVERIFY(succeeded);
        QCOMPARE(dock.Erasures(), 1);
        dock.Say("fault silent erase");
        link.EraseRequest(succeeded);
        QVERIFY(!succeeded);
        QCOMPARE(dock.Logged("CmdEraseMemory"), 3);
        QVERIFY(!gCommActive);
    }

    void CancelledWaitSendsNothing() {
        const TestClock clock(Fast);
        LineEnd line;
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        gWaitCancelled = true;
        QVERIFY(!link.DetectStation());
        QVERIFY(line.Commands.isEmpty());
    }

    // The wait goes by the time of day, which falls back at midnight.
    void WaitAcrossMidnight() {
        const TestClock clock(DateTime::FromQt(QDateTime(QDate(2026, 3, 1), QTime(23, 59, 58, 700))),
                              10);
        LineEnd line;
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        QTimer::singleShot(600, &link, [&] { line.Send(FrameOf(Hex("80"))); });
        QVERIFY(link.DetectStation());
        QCOMPARE(line.Commands.value(CmdDetect()), 1);
    }

    void BytesBetweenConversationsAreDropped() {
        Dock dock(m_home, "");
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        dock.Say("button 1A40C2");
        QTRY_COMPARE(link.BytesSeen(), 16);
        QVERIFY(link.InBuffer().Buffer().isEmpty());
        gCommActive = true;
        dock.Say("button 1A40C2");
        QTRY_COMPARE(link.InBuffer().Buffer(), FrameOf(Hex("2400C2401A")));
    }

    void PortsThatCannotBeOpened() {
        OverrideDevice(m_home.File("nothing"));
        DockingLink link;
        QVERIFY(!link.OpenPort(1));
        OverrideDevice(m_home.File("main.mdb"));
        QVERIFY(!link.OpenPort(1));
        {
            Dock dock(m_home, "");
            DockingLink other;
            QVERIFY(other.OpenPort(1));
            QVERIFY(!link.OpenPort(1));
            QVERIFY(!link.comPort().PortOpen());
            other.ClosePort();
            QVERIFY(link.OpenPort(1));
        }
        // The dock has gone, and comes back.
        QTRY_VERIFY(!link.comPort().PortOpen());
        const TestClock clock(Fast);
        QVERIFY(!link.DetectStation());
        Dock again(m_home, "");
        QVERIFY(link.OpenPort(1));
        QVERIFY(link.DetectStation());
    }

    void SavedNumbers() {
        const QString section = QStringLiteral("ComPort_Settings");
        const QString key = QStringLiteral("ComPort");
        QCOMPARE(SavedPortNumber(), 1);
        const QMap<QString, int> numbers{{"8", 8}, {"1", 1},  {"9", 1},   {"0", 1},
                                         {"-3", 1}, {"x", 1}, {"99999", 1}};
        for (auto number = numbers.cbegin(); number != numbers.cend(); ++number) {
            SaveSetting(SettingsApplication, section, key, number.key());
            QCOMPARE(SavedPortNumber(), number.value());
            QCOMPARE(GetSetting(SettingsApplication, section, key),
                     QString::number(number.value()));
        }
    }
};

QTEST_GUILESS_MAIN(DockingLinkTest)
#include "DockingLinkTest.moc"
