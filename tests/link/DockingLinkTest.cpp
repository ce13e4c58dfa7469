// The connection to the docking station, over a real serial device: the port, sending and waiting.

#include "LinkTestTools.h"
#include "Settings.h"
#include "mWardlock.h"

#include <QElapsedTimer>

class DockingLinkTest : public QObject {
    Q_OBJECT

    TestHome m_home{TestHome::DemoSite};

private slots:
    void cleanup() {
        gCommActive = false;
        gWaitCancelled = false;
    }

    void Detects() {
        Station station("");
        DockingLink& link = station.link;
        QVERIFY(link.OpenPort(1)); // it is open already
        QVERIFY(link.DetectStation());
        QVERIFY(!gCommActive);
        QCOMPARE(link.InBuffer().Count(), 0);
        QTRY_COMPARE(station.dock.Logged("0D 0A"), 2);
        station.dock.Say("fault silent detect 1");
        QVERIFY(!link.DetectStation());
        QVERIFY(!gCommActive);
        QVERIFY(link.DetectStation());
        gWaitCancelled = true;
        QVERIFY(!link.DetectStation());
        gWaitCancelled = false;
        link.ClosePort();
        QVERIFY(!link.DetectStation());
        QCOMPARE(station.dock.Logged("CmdDetect"), 3);
    }

    // One try takes the answer pause, the time-out and the pause after it, by the real clock.
    void SilenceTakesItsTime() {
        Station station("silent", 1);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!station.link.DetectStation());
        const auto elapsed = timer.elapsed();
        QVERIFY2(elapsed >= 500 + 900 + 900 && elapsed < 500 + 900 + 300 + 900 + 700,
                 qPrintable(QString::number(elapsed)));
        QCOMPARE(station.dock.Logged("CmdDetect"), 1);
    }

    // The first half is there at the first look; the other half comes between two looks.
    void ReplyInTwoPieces() {
        Station station("cut 140", 5);
        QVERIFY(station.link.SetClockToNow());
        QCOMPARE(station.dock.Clock(), "2026-03-02T07:15");
        QCOMPARE(station.dock.Logged("CmdSetClock"), 1);
    }

    void Replies_data() {
        const TestTable<QByteArray, QByteArray, QByteArray> row( // empty: none is received
            "answer", "reply", "replyOfAnyCode");
        const QByteArray none, done = FrameOf(Hex("9300"));
        const QByteArray other = FrameOf(Hex("8000")), button = FrameOf(Hex("2400010203"));
        const QByteArray memory = ImageFrames(0, {}, 1).first();
        row("nothing", none, none, none);
        row("done", done, Hex("9300"), Hex("9300"));
        row("without status", FrameOf(Hex("93")), Hex("93"), Hex("93"));
        row("another code", other, none, Hex("8000"));
        row("another code before it", button + done, Hex("9300"), Hex("2400010203"));
        row("late memory frame before it", memory + done, Hex("9300"), Hex("9300"));
        row("wrong checksum before it", done.chopped(1) + "a" + FrameOf(Hex("9301")), Hex("9301"),
            Hex("9301"));
    }
    void Replies() {
        QFETCH(QByteArray, answer);
        QFETCH(QByteArray, reply);
        QFETCH(QByteArray, replyOfAnyCode);
        const TestClock clock(Station::Speed);
        LineEnd line;
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        const QByteArray command = CmdSetClock(1, 2, 3, 4);
        line.Answers[command] = answer;
        for (const bool acceptAny : {false, true}) {
            const QByteArray wanted = acceptAny ? replyOfAnyCode : reply;
            QByteArray got;
            bool received = false;
            link.WaitFor(2, Wire::Header1, command, 1200, 0x93, acceptAny, got, received);
            QCOMPARE(got, wanted);
            QCOMPARE(received, !wanted.isEmpty());
            QVERIFY(!gCommActive);
            QCOMPARE(line.Commands.take(command), wanted.isEmpty() ? 2 : 1);
        }
        QCOMPARE(link.TxNewDate(1, 2, 3, 4), reply == Hex("9300"));
    }

    // A wait is measured by the time of day, which starts again at midnight, unless it is to give
    // up in time or is ended because it lasts too long.
    void WaitAcrossMidnight() {
        for (const auto& [answered, givesUp] :
             {std::pair(true, false), std::pair(false, true), std::pair(false, false)}) {
            gWaitCancelled = false;
            const TestClock clock(
                DateTime::FromQt(QDateTime(QDate(2026, 3, 1), QTime(23, 59, 58, 700))), 10);
            LineEnd line;
            DockingLink link;
            QVERIFY(link.OpenPort(1));
            link.GivesUpInTime = givesUp;
            bool endedEarly = false, ended = false;
            QTimer::singleShot(60, &link, [&] { endedEarly = link.EndOverdueWait(); });
            QTimer::singleShot(600, &link, [&, answered = answered] {
                if (answered)
                    line.Send(FrameOf(Hex("80")));
                else
                    ended = link.EndOverdueWait();
            });
            QElapsedTimer timer;
            timer.start();
            QCOMPARE(link.DetectStation(), answered);
            QVERIFY(!endedEarly && gWaitCancelled == ended && ended == (!answered && !givesUp));
            QVERIFY2(givesUp ? timer.elapsed() < 600 : timer.elapsed() >= 600,
                     qPrintable(QString::number(timer.elapsed())));
            QCOMPARE(line.Commands.value(CmdDetect()), 1);
        }
    }

    // A late memory frame has the same code as the reply, but is not a reply.
    void ErasesOnAReplyOnly() {
        const TestClock clock(Station::Speed);
        LineEnd line;
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        for (const bool answered : {false, true}) {
            line.Answers[CmdEraseMemory()] =
                ImageFrames(0, {}, 1).first() + (answered ? FrameOf(Hex("F300")) : QByteArray());
            bool succeeded = !answered;
            link.EraseRequest(succeeded);
            QCOMPARE(succeeded, answered);
        }
    }

    void BytesBetweenConversationsAreDropped() {
        Station station("");
        station.dock.Say("button 1A40C2");
        QTRY_COMPARE(station.link.BytesSeen(), 16);
        QVERIFY(station.link.InBuffer().Buffer().isEmpty());
        gCommActive = true;
        station.dock.Say("button 1A40C2");
        QTRY_COMPARE(station.link.InBuffer().Buffer(), FrameOf(Hex("2400C2401A")));
    }

    void PortsThatCannotBeOpened() {
        DockingLink link;
        for (const char* device : {"nothing", "main.mdb"}) {
            OverrideDevice(m_home.File(device));
            QVERIFY(!link.OpenPort(1));
        }
        {
            Station other("");
            QVERIFY(!link.OpenPort(1)); // in use
            QVERIFY(!link.comPort().PortOpen());
            other.link.ClosePort();
            QVERIFY(link.OpenPort(1));
        }
        QTRY_VERIFY(!link.comPort().PortOpen()); // the dock is disconnected, then comes back
        QVERIFY(!link.DetectStation());
        const TestClock clock(Station::Speed);
        const Dock again("");
        OverrideDevice(again.Device());
        QVERIFY(link.OpenPort(1));
        QVERIFY(link.DetectStation());
    }

    void SavedNumbers() {
        QCOMPARE(SavedPortNumber(), 1);
        const QMap<QString, int> numbers{{"8", 8},  {"1", 1}, {"9", 1},    {"0", 1},
                                         {"-3", 1}, {"x", 1}, {"99999", 1}};
        for (auto number = numbers.cbegin(); number != numbers.cend(); ++number) {
            SaveSetting(SettingsApplication, "ComPort_Settings", "ComPort", number.key());
            QCOMPARE(SavedPortNumber(), number.value());
            QCOMPARE(GetSetting(SettingsApplication, "ComPort_Settings", "ComPort"),
                     QString::number(number.value()));
        }
    }
};

QTEST_GUILESS_MAIN(DockingLinkTest)
#include "DockingLinkTest.moc"
