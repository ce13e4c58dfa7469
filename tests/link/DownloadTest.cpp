// The whole download, with the simulated dock and a real store: read, store, erase, set the clock.
// What a bad line does to the frames is in DamageTest.

#include "LinkTestTools.h"
#include "TableExists.h"

namespace {

/// A marker and touches, one a minute, of a known button and a few unknown ones.
QByteArray Touches(int count) {
    QByteArray scenario;
    for (int i = 0; i < count; ++i)
        scenario += "touch 2026-03-01 08:" + QByteArray::number(i % 60).rightJustified(2, '0') +
                    ' ' + (i % 7 == 0 ? "1A40C2" : "7E00A" + QByteArray::number(i % 7)) + '\n';
    return scenario;
}

const QByteArray Taught = "reader 4B5831A7\n";
const QByteArray Untaught = "reader 0BADCAFE\n";
const QString Error = QStringLiteral("Download Error");
const QString EraseFailed = QStringLiteral("Reader Erase Failed.  Try again?");
const QString Removed =
    QStringLiteral("The reader was taken out of the station. It was not erased.");
const QString ClockFailed = QStringLiteral("Reader Clock update failed.  Please try again.");
const QString Failed = QStringLiteral("Download Failed");

const QByteArray Pace = "pace 144000"; ///< 9600 baud at the speed of the tests

QString Successful(int touches, const char* more = "\nReader Memory erased") {
    return QStringLiteral("Download Successful\nData Readings = %1").arg(touches) +
           QString::fromLatin1(more);
}

} // namespace

class DownloadTest : public QObject {
    Q_OBJECT

    TestHome m_home{TestHome::DemoSite};
    ScriptedBoxes m_boxes;

private slots:
    void init() {
        gAutoSetTime = true;
        ForgetTouches();
    }

    void StoresEveryColumn() {
        Station station(Taught + "touch 2026-02-28 23:59 1A40C2\n"
                                 "touch 2026-03-01 00:00 7E0003\nrecord EF CD AB 3C\n");
        station.download.Run();
        QCOMPARE(station.view.MessageText, Successful(3));
        QCOMPARE(station.view.Busy, (QList<bool>{true, false}));
        QCOMPARE(station.view.Listed, 3U);
        QVERIFY(!station.download.Busy() && m_boxes.TakeTexts().isEmpty());
        QCOMPARE(station.view.Warned, (QList<bool>{true, false, true, false}));
        QCOMPARE(station.dock.Erasures(), 1);
        QCOMPARE(station.dock.Clock(), "2026-03-02T07:15");
        QCOMPARE(RowsOf("SELECT tButtonCode, tButtonName, tButtonDesc, wGroupType, tGroupName, "
                        "tGroupDesc, tPipeID FROM tblEvents ORDER BY ID"),
                 (QStringList{"1A40C2|Main gate|Left post, knee height|1|Harbour Warehouse|"
                              "Pier 4, north side|4B5831A7",
                              "7E0003|Water leak||2|Incidents|Carried by every guard|4B5831A7",
                              "ABCDEF|Unknown||0|||4B5831A7"}));
        QCOMPARE(StoredTouches(), (QStringList{"1A40C2 28.2.2026 23:59", "7E0003 1.3.2026 0:00",
                                               "ABCDEF 1.3.2026 0:59"}));
        const QStringList stamps = RowsOf("SELECT DISTINCT dtDLDateTime FROM tblEvents");
        QCOMPARE(stamps.size(), 1);
        const double age = stamps.first().toDouble() - Station::Start().ToStore();
        QVERIFY2(age > 2.0 / 86400 && age < 60.0 / 86400, qPrintable(stamps.first()));
    }

    void Outcomes_data() {
        const TestTable<QByteArray, int, int, QString, QStringList> row(
            "scenario", "rows", "erased", "text", "messages");
        const auto good = [&](const char* name, const QByteArray& scenario, int rows) {
            row(name, scenario, rows, 1, Successful(rows), {});
        };
        const auto bad = [&](const char* name, const QByteArray& scenario,
                             const QStringList& messages = {Error}) {
            row(name, scenario, 0, 0, Failed, messages);
        };
        const QByteArray three = Taught + Touches(150); // frames
        const QByteArray end = "record 00 00 00 00\n";

        row("empty reader", Untaught, 0, 1, "The Reader was empty\nReader Memory erased", {});
        const auto kept = [&](const char* name, const QByteArray& scenario, int rows,
                              const QString& why) {
            row(name, scenario, rows, 0, Successful(rows, "\nReader Memory NOT erased!"),
                {why + " The touches that were read are stored, but the reader was not erased."});
        };
        const QString goesOn = QStringLiteral("The reader's memory continues after its end mark.");
        const QString disagrees =
            QStringLiteral("The reader holds a different number of records than it reports.");
        kept("end mark in frame 1", Taught + Touches(20) + end + Touches(130), 20, goesOn);
        kept("end mark, untaught", Untaught + Touches(20) + end + Touches(130), 20, goesOn);
        kept("end mark before the last record", three + end + Touches(1), 150, goesOn);
        kept("count beyond the records", three + "count 300", 150, disagrees);
        kept("count below the records", three + "count 60", 117, disagrees);
        good("count of 0", Taught + Touches(30) + "count 0", 30);
        bad("count of 0, untaught", Untaught + Touches(30) + "count 0");
        bad("count beyond the records, untaught", Untaught + Touches(150) + "count 160");
        bad("no marker in front, untaught", Untaught + "record EF CD AB 3C");
        good("in single bytes, three frames", three + "single-byte\ngap 40", 150);
        good("in two pieces", three + "cut 10", 150);
        for (const char* loss : {"vanish-after-frame 0", "vanish-after-frame 1",
                                 "vanish-after-bytes 400", "vanish-after-bytes 1"})
            bad(loss, three + loss);
        bad("no answer", three + "silent read", {});

        // The operator answers No, unless the reader is erased in the end.
        const QString notErased = Successful(150, "\nReader Memory NOT erased!");
        row("erase refused, No", three + "refuse erase 1", 150, 0, notErased, {EraseFailed});
        row("erase refused, Yes", three + "refuse erase 2 FF", 150, 1, Successful(150),
            {EraseFailed, EraseFailed});
        row("erase unanswered", three + "silent erase", 150, 0, notErased, {EraseFailed});
        row("clock refused", three + "refuse clock 1", 150, 1, Successful(150), {ClockFailed});
        for (const char* gap : {"", "\ngap 130"}) // after the stream, and just before the erase
            row("taken out" + QString(gap), three + "no-reader 3" + gap, 150, 0, notErased,
                {Removed, EraseFailed});
        bad("no reader", three + "remove", {"Reader not detected. Check reader and try again."});
    }
    void Outcomes() {
        QFETCH(QByteArray, scenario);
        QFETCH(QStringList, messages);
        QFETCH(int, rows);
        QFETCH(int, erased);
        Station station(scenario);
        const auto yes = erased ? messages.count(EraseFailed) : 0;
        m_boxes.Answers = QList<MessageAnswer>(yes, MessageAnswer::Yes);
        station.download.Run();
        const QString text = station.view.MessageText;
        QTEST(text, "text");
        for (const Message& box : m_boxes.Messages)
            QVERIFY(rows > 0 || box.text == ClockFailed ||
                    box.advice.endsWith("All touches are still in the reader."));
        QCOMPARE(m_boxes.TakeTexts(), messages);
        QCOMPARE(StoredTouches().size(), rows);
        QVERIFY(station.view.ProgressInRange && !gCommActive);
        QCOMPARE(station.view.WasCancelled, scenario.endsWith("silent read"));
        QVERIFY(station.view.HasAnswered || scenario.endsWith("silent read") ||
                scenario.endsWith("vanish-after-frame 0"));
        if (scenario.contains("vanish")) {
            QVERIFY(station.dock.HasEnded());
            QTRY_VERIFY(!station.link.comPort().PortOpen());
            return;
        }
        const QJsonObject state = station.dock.State();
        QCOMPARE(state["erased"].toInt(), erased);
        QCOMPARE(state["reads"].toInt(), 1 + yes);
        QCOMPARE(state["clock"].isString(), text != Failed && !scenario.contains("refuse clock"));
    }

    void WithoutClockOrErase() {
        Station station(Taught + Touches(3));
        gAutoSetTime = false;
        station.download.EraseAfterwards = false;
        for (const int rows : {3, 6}) { // the second download looks like the first
            station.download.Run();
            QCOMPARE(station.view.MessageText, Successful(3, ""));
            QCOMPARE(StoredTouches().size(), rows);
        }
        QCOMPARE(station.dock.Logged("CmdSetClock") + station.dock.Logged("CmdEraseMemory"), 0);
    }

    // Only the first frame is read, of a reader that is not taught, and no touches are decoded.
    void FirstFrameAlone() {
        const QByteArray many = Touches(150), noMarker = "record EF CD AB 3C\n";
        for (const auto& [scenario, believed] :
             {std::pair(many, true), std::pair(Touches(20) + "noise 5", true),
              std::pair(many + "noise 5", false), std::pair(noMarker, true),
              std::pair(noMarker + "noise 5", false), std::pair(many + "drop-bytes 0 252", false),
              std::pair(many + "count -1\nnoise 5", false)}) {
            Station station(Untaught + scenario);
            for (const auto purpose : {TransferPurpose::Identifier, TransferPurpose::Firmware}) {
                const TransferResult result = station.view.RunTransfer(purpose);
                QVERIFY2(result.OK == believed && result.Buttons.empty(),
                         scenario.right(20).constData());
                QCOMPARE(result.PipeID + result.tFirmware, believed ? "0BADCAFEV06" : "");
                QCOMPARE(m_boxes.TakeTexts(), believed ? QStringList() : QStringList{Error});
                QCOMPARE(station.view.Texts.contains("Downloading data from reader"),
                         purpose == TransferPurpose::Identifier);
                station.link.AwaitQuietLine();
            }
        }
    }

    // What happens to the reader while the operator is asked whether to try again.
    void ReaderExchanged_data() {
        // A scenario, or a line to the dock; then the messages that follow.
        const TestTable<QByteArray, QStringList, int> row("reader", "messages", "touchesLeft");
        const QString another = "Another reader is in the station. It was not erased.";
        const QString used = "The reader has been used since it was read. It was not erased.";
        row("another one", "reader 0A0B0C0D\n" + Touches(150), {another, EraseFailed}, 150);
        row("used again", "touch 1A40C2 2026-03-01 09:00", {used, EraseFailed}, 151);
        row("emptied and used as often", Taught + "touch 2026-03-02 09:00 1A40C2\n" + Touches(148),
            {used, EraseFailed}, 149);
        row("taken out", "remove",
            {"Reader not detected. Check reader and try again.", EraseFailed, ClockFailed}, 150);
        row("erased, but the reply was lost", "fault none", {}, 0);
        row("put in again", Taught + Touches(150), {}, 0);
    }
    void ReaderExchanged() {
        QFETCH(QByteArray, reader);
        const QByteArray fault = reader == "fault none" ? "checksum erase\n" : "refuse erase 1\n";
        Station station(Taught + Touches(150) + fault + Pace);
        m_boxes.Answers = {MessageAnswer::Yes};
        m_boxes.Meanwhile = [&] {
            if (reader.contains('\n'))
                station.dock.Load(reader + Pace);
            else
                station.dock.Say(reader);
        };
        station.download.Run();
        QFETCH(QStringList, messages);
        QCOMPARE(m_boxes.TakeTexts().join(u'|'), (QStringList{EraseFailed} + messages).join(u'|'));
        QTEST(station.dock.State()["touches"].toInt(), "touchesLeft");
        QCOMPARE(station.download.LastOutcome().erased, messages.isEmpty());
        QCOMPARE(StoredTouches().size(), 150);
    }

    void ErasesNothingOverADamagedStore() {
        gStoreDamaged = true;
        Station station(Taught + Touches(3));
        station.download.Run();
        bool erased = true;
        station.download.EraseReader(false, erased);
        gStoreDamaged = false;
        QVERIFY(!erased && station.download.HasSaidWhyNotErased());
        const QStringList messages = m_boxes.TakeTexts();
        const QString said = "The database is damaged. The reader was not erased.";
        QCOMPARE(messages, (QStringList{said, said}));
        QCOMPARE(station.view.MessageText, Successful(3, "\nReader Memory NOT erased!"));
        QCOMPARE(StoredTouches().size(), 3);
        QCOMPARE(station.dock.Logged("CmdEraseMemory"), 0);
    }

    // The message is still true after a restart, and finally no touch is stored twice.
    void StoringFails_data() {
        const TestTable<QString, QString, int, QString, bool> row( // rows that stay, of 900
            "trouble", "remedy", "rows", "cause", "sameAgain");
        const QString trigger =
            QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON tblEvents WHEN %1 "
                           "BEGIN SELECT RAISE(ABORT, 'no room'); END");
        const QString row20 = trigger.arg("(SELECT count(*) FROM tblEvents) = 20");
        const QString remedy = QStringLiteral("DROP TRIGGER refuse");
        row("a row", row20, remedy, 20, "no room", true);
        row("a row, other touches next", row20, remedy, 20, "no room", false);
        row("the first row", trigger.arg("1"), remedy, 0, "no room", true);
        row("disk full", "PRAGMA max_page_count = 1", "PRAGMA max_page_count = 1000000", 0, "full",
            true);
    }
    void StoringFails() {
        QFETCH(QString, trouble);
        QFETCH(int, rows);
        QFETCH(QString, cause);
        QFETCH(bool, sameAgain);
        gConn->Execute("VACUUM"); // no page is free
        m_home.TakeLog();
        Station station(Taught + Touches(900));
        const QString text = QStringLiteral("The touches could not be stored. The reader was not "
                                            "erased.\nTouches stored: %1 / 900")
                                 .arg(rows);
        for (int again = 0; again < 2; ++again) { // the second failure takes over from the first
            gConn->Execute(trouble);
            station.download.Run();
            QFETCH(QString, remedy);
            gConn->Execute(remedy);
            QCOMPARE(station.view.MessageText, text);
            const QString said = cause == "full" ? "The disk is full." : cause;
            QCOMPARE(m_boxes.TakeTexts(), {text + '\n' + said});
            const QString log = m_home.TakeLog();
            QVERIFY2(log.count('\n') <= 1 && log.contains(cause), qPrintable(log));
            TestHome::Close(); // committed, not just seen
            QVERIFY(m_home.Open());
            QCOMPARE(StoredTouches().size(), rows);
        }
        QVERIFY(!station.download.Busy() && !station.download.LastOutcome().stored);
        QCOMPARE(station.dock.Logged("CmdSetClock") + station.dock.Logged("CmdEraseMemory"), 0);
        if (!sameAgain)
            station.dock.Load(Taught + Touches(30).replace("2026", "2025"));
        station.download.Run();
        QCOMPARE(StoredTouches().size(), sameAgain ? 900 : rows + 30);
        QCOMPARE(station.dock.Erasures(), 1);
        QVERIFY(!TableExists("tblTempDownload"));
    }

    // The dock goes on sending after a Cancel, so the next transfer begins in the middle of the old
    // stream. No frame of the old stream may be taken for the first of the new one.
    void BegunAgainWhileTheOldStreamRuns_data() {
        const TestTable<QByteArray, bool> row("scenario", "stored");
        row("taught", Taught, false);
        row("untaught", Untaught, false);
        row("taught, old stream stopped", Taught + "abort-on-command\n", true);
    }
    void BegunAgainWhileTheOldStreamRuns() {
        QFETCH(QByteArray, scenario);
        scenario += "pace 240000\ngap 30\ntouch 2026-03-01 08:00 1A40C2\n";
        for (int i = 1; i < 1000; ++i)
            scenario += "record 05 00 00 01\n"; // a frame of these reads as a count of 5
        Station station(scenario);
        station.view.CancelAtFirstFrame = true;
        station.download.Run();
        QCOMPARE(station.view.MessageText, Failed);
        QVERIFY(m_boxes.TakeTexts().isEmpty() && !gCommActive);

        station.download.Run();
        QVERIFY(!station.view.WasCancelled);
        QFETCH(bool, stored);
        const bool failed = !stored;
        QCOMPARE(station.view.MessageText, failed ? Failed : Successful(1000));
        QCOMPARE(m_boxes.TakeTexts(), failed ? QStringList{Error} : QStringList());
        QCOMPARE(StoredTouches().size(), failed ? 0 : 1000);
        QCOMPARE(station.dock.Erasures(), failed ? 0 : 1);
        if (failed) { // once the line is quiet, the next download succeeds
            const DockingLink& link = station.link;
            for (auto seen = link.BytesSeen() - 1; seen != link.BytesSeen(); QTest::qWait(100))
                seen = link.BytesSeen();
            station.download.Run();
            QCOMPARE(station.view.MessageText, Successful(1000));
            QCOMPARE(station.dock.Erasures(), 1);
        }
    }
};

QTEST_GUILESS_MAIN(DownloadTest)
#include "DownloadTest.moc"
