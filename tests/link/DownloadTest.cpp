// The whole download, against the simulated dock and a real store: read, store, erase, set clock.

#include "LinkTestTools.h"
#include "TableExists.h"

namespace {

using Answers = QList<MessageAnswer>;

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
        QTest::addColumn<QByteArray>("scenario");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("erased");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<Answers>("answers");
        const auto row = [](const char* name, const QByteArray& scenario, int rows, int erased,
                            const QString& text, const QStringList& messages = {},
                            const Answers& answers = {}) {
            QTest::newRow(name) << scenario << rows << erased << text << messages << answers;
        };
        const auto good = [&](const char* name, const QByteArray& scenario, int rows) {
            row(name, scenario, rows, 1, Successful(rows));
        };
        const auto bad = [&](const char* name, const QByteArray& scenario) {
            row(name, scenario, 0, 0, Failed, {Error});
        };
        const QByteArray three = Taught + Touches(150); // frames
        const QByteArray end = "record 00 00 00 00\n";

        row("empty reader", Untaught, 0, 1, "The Reader was empty\nReader Memory erased");
        good("one unknown button", Untaught + "touch 2026-03-01 08:30 ABCDEF", 1);
        good("three frames", three, 150);
        good("full frame", Untaught + Touches(57), 57);
        const auto kept = [&](const char* name, const QByteArray& scenario, int rows,
                              const QString& why) {
            row(name, scenario, rows, 0, Successful(rows, "\nReader Memory NOT erased!"),
                {why + " What was read is stored, but the reader was not erased."});
        };
        const QString goesOn = QStringLiteral("The reader's memory goes on after its end mark.");
        const QString disagrees =
            QStringLiteral("The reader holds another number of records than it says.");
        kept("end mark in frame 1", Taught + Touches(20) + end + Touches(130), 20, goesOn);
        kept("end mark, untaught", Untaught + Touches(20) + end + Touches(130), 20, goesOn);
        kept("end mark in front of the last record", three + end + Touches(1), 150, goesOn);
        kept("count beyond the records", three + "count 300", 150, disagrees);
        kept("count by one too high", three + "count 152", 150, disagrees);
        kept("count below the records", three + "count 60", 117, disagrees);
        good("count of 0", Taught + Touches(30) + "count 0", 30);
        bad("count of 0, untaught", Untaught + Touches(30) + "count 0");
        bad("count beyond the records, untaught", Untaught + Touches(150) + "count 160");
        bad("no marker in front, untaught", Untaught + "record EF CD AB 3C");
        // The rest reads as an image of 11 records, but not all that its count says.
        bad("second frame like a first one", Untaught + Touches(57) +
                                                 "record 05 00 00 01\nrecord 01 02 03 04\n"
                                                 "record 09 01 00 AA\n" +
                                                 Touches(9) + "drop-bytes 0 252");
        good("in single bytes", Taught + Touches(57) + "single-byte", 57);
        good("in single bytes, three frames", three + "single-byte\ngap 40", 150);
        good("in two pieces", three + "cut 10", 150);
        good("noise before frame 2", three + "noise 40 2", 150);
        good("noise, taught reader", three + "noise 40", 150);
        good("noise, untaught reader", Untaught + Touches(150) + "noise 40", 150);
        bad("as much noise as a frame", Untaught + Touches(150) + "noise 252");
        bad("checksum of the only frame", Taught + Touches(20) + "checksum 1");
        // The empty end of a memory is no empty memory.
        bad("empty second frame alone", Taught + Touches(57) + "count 100\ndrop-bytes 0 252");
        for (const char* damage :
             {"checksum 1", "checksum 2", "checksum 3", "stop-after 1", "stop-after 2", "count -1",
              "count 40000", "frames 2\ncount 300", "frames 3\ncount 60", "frames 2", "frames 4",
              "frames 4\nnoise 40 3", "drop-bytes 0 252", "drop-bytes 252 252", "drop-bytes 4 500",
              "vanish-after-frame 0", "vanish-after-frame 1", "vanish-after-bytes 400",
              "vanish-after-bytes 1"})
            bad(damage, three + damage);

        const QString notErased = Successful(150, "\nReader Memory NOT erased!");
        row("erase refused, No", three + "refuse erase 1", 150, 0, notErased, {EraseFailed},
            {MessageAnswer::No});
        row("erase refused, Yes", three + "refuse erase 2 FF", 150, 1, Successful(150),
            {EraseFailed, EraseFailed}, {MessageAnswer::Yes, MessageAnswer::Yes});
        row("erase unanswered", three + "silent erase", 150, 0, notErased, {EraseFailed},
            {MessageAnswer::No});
        row("clock refused", three + "refuse clock 1", 150, 1, Successful(150), {ClockFailed});
        row("reader taken out after the stream", three + "no-reader 3", 150, 0, notErased,
            {Removed, EraseFailed}, {MessageAnswer::No});
        row("reader taken out before the erase", three + "no-reader 3\ngap 130", 150, 0, notErased,
            {Removed, EraseFailed}, {MessageAnswer::No});
        const QStringList noReader{"Reader not detected. Check reader and try again."};
        const QStringList fault{Error + QStringLiteral(" (002)")};
        row("no reader", three + "remove", 0, 0, Failed, noReader);
        row("reader taken out", three + "no-reader 2", 0, 0, Failed, noReader);
        row("transfer fault", three + "transfer-fault", 0, 0, Failed, fault);
        row("transfer fault later", three + "transfer-fault 1", 0, 0, Failed, fault);
        row("no answer", three + "silent read", 0, 0, Failed);
    }
    void Outcomes() {
        QFETCH(QByteArray, scenario);
        QFETCH(Answers, answers);
        QFETCH(int, rows);
        Station station(scenario);
        m_boxes.Answers = answers;
        station.download.Run();
        const QString text = station.view.MessageText;
        QTEST(text, "text");
        QTEST(m_boxes.TakeTexts(), "messages");
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
        QTEST(state["erased"].toInt(), "erased");
        QCOMPARE(state["reads"].toInt(), 1 + answers.count(MessageAnswer::Yes));
        QCOMPARE(state["clock"].isString(), text != Failed && !scenario.contains("refuse clock"));
    }

    void WithoutClockOrErase() {
        Station station(Taught + Touches(3));
        gAutoSetTime = false;
        station.download.EraseAfterwards = false;
        for (const int rows : {3, 6}) { // nothing tells the second download from the first
            station.download.Run();
            QCOMPARE(station.view.MessageText, Successful(3, ""));
            QCOMPARE(StoredTouches().size(), rows);
        }
        QCOMPARE(station.dock.Logged("CmdSetClock") + station.dock.Logged("CmdEraseMemory"), 0);
    }

    // Where the first frame must do, and is of an untaught reader.
    void FirstFrameAlone_data() {
        QTest::addColumn<QByteArray>("scenario");
        QTest::addColumn<bool>("believed");
        const QByteArray many = Touches(150);
        QTest::newRow("three frames") << many << true;
        QTest::newRow("noise") << Touches(20) + "noise 5" << true;
        QTest::newRow("three frames, noise") << many + "noise 5" << false;
        QTest::newRow("no marker") << QByteArray("record EF CD AB 3C\n") << true;
        QTest::newRow("no marker, noise") << QByteArray("record EF CD AB 3C\nnoise 5") << false;
        QTest::newRow("first frame lost") << many + "drop-bytes 0 252" << false;
        QTest::newRow("invalid memory, noise") << many + "count -1\nnoise 5" << false;
    }
    void FirstFrameAlone() {
        QFETCH(QByteArray, scenario);
        QFETCH(bool, believed);
        Station station(Untaught + scenario);
        for (const auto purpose : {TransferPurpose::Identifier, TransferPurpose::Firmware}) {
            const TransferResult result = station.view.RunTransfer(purpose);
            QCOMPARE(result.OK, believed);
            QCOMPARE(result.PipeID + result.tFirmware, believed ? "0BADCAFEV06" : "");
            QCOMPARE(m_boxes.TakeTexts(), believed ? QStringList() : QStringList{Error});
            station.link.AwaitQuietLine();
        }
    }

    // While the operator is asked whether to try again, the reader may go its own ways.
    void ReaderExchanged_data() {
        QTest::addColumn<QByteArray>("reader"); // a scenario, or a line to the dock
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<int>("touchesLeft");
        const QByteArray others = "reader 0A0B0C0D\n" + Touches(150);
        QTest::newRow("another one") << others
                                     << QStringList{"Another reader is in the station. It was not "
                                                    "erased.",
                                                    EraseFailed}
                                     << 150;
        const QStringList used{"The reader has been used since it was read. It was not erased.",
                               EraseFailed};
        QTest::newRow("used again") << QByteArray("touch 1A40C2 2026-03-01 09:00") << used << 151;
        QTest::newRow("emptied and used as often")
            << Taught + "touch 2026-03-02 09:00 1A40C2\n" + Touches(148) << used << 149;
        QTest::newRow("taken out")
            << QByteArray("remove")
            << QStringList{"Reader not detected. Check reader and try again.", EraseFailed,
                           ClockFailed}
            << 150;
        QTest::newRow("erased, but nobody heard") << QByteArray("fault none") << QStringList{} << 0;
        QTest::newRow("put in again") << Taught + Touches(150) << QStringList{} << 0;
    }
    void ReaderExchanged() {
        QFETCH(QByteArray, reader);
        const QByteArray fault = reader == "fault none" ? "checksum erase\n" : "refuse erase 1\n";
        Station station(Taught + Touches(150) + fault + "pace 28800");
        m_boxes.Answers = {MessageAnswer::Yes};
        m_boxes.Meanwhile = [&] {
            if (reader.contains('\n'))
                station.dock.Load(reader + "pace 28800");
            else
                station.dock.Say(reader);
        };
        station.download.Run();
        QFETCH(QStringList, messages);
        QCOMPARE(m_boxes.TakeTexts(), QStringList{EraseFailed} + messages);
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

    void ClockBeyondItsDates() {
        for (const QDate date : {QDate(1999, 12, 31), QDate(2179, 6, 7)}) {
            Station station(Taught + Touches(3), Station::Speed, DateTime::FromQt(date));
            station.download.Run();
            QCOMPARE(m_boxes.TakeTexts(), {"The reader's clock can only be set to a date from 1 "
                                           "January 2000 to 6 June 2179. It was not set."});
            QVERIFY(!station.link.SetClockToNow());
            QCOMPARE(station.dock.Logged("CmdSetClock"), 0);
            QCOMPARE(station.dock.Erasures(), 1);
        }
    }

    // The message is still true after a restart, and in the end nothing is stored twice.
    void StoringFails_data() {
        QTest::addColumn<QString>("trouble");
        QTest::addColumn<QString>("remedy");
        QTest::addColumn<int>("rows"); // that stay, of 900
        QTest::addColumn<QString>("cause");
        QTest::addColumn<bool>("sameAgain");
        const QString trigger =
            QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON tblEvents WHEN %1 "
                           "BEGIN SELECT RAISE(ABORT, 'no room'); END");
        const QString row20 = trigger.arg("(SELECT count(*) FROM tblEvents) = 20");
        const QString remedy = QStringLiteral("DROP TRIGGER refuse");
        QTest::newRow("a row") << row20 << remedy << 20 << "no room" << true;
        QTest::newRow("a row, other touches next") << row20 << remedy << 20 << "no room" << false;
        QTest::newRow("the first row") << trigger.arg("1") << remedy << 0 << "no room" << true;
        QTest::newRow("disk full") << "PRAGMA max_page_count = 1"
                                   << "PRAGMA max_page_count = 1000000" << 0 << "full" << true;
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

    // The dock goes on sending after a Cancel, so the next transfer begins in the middle of the
    // old stream. A frame of it must not be taken for the first of the new one.
    void BegunAgainWhileTheOldStreamRuns_data() {
        QTest::addColumn<QByteArray>("scenario");
        QTest::addColumn<QString>("text");
        const QByteArray off = "abort-on-command\n";
        QTest::newRow("taught") << Taught << Failed;
        QTest::newRow("untaught") << Untaught << Failed;
        QTest::newRow("taught, old stream broken off") << Taught + off << Successful(1000);
        QTest::newRow("untaught, old stream broken off") << Untaught + off << Failed;
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
        QTEST(station.view.MessageText, "text");
        const bool failed = station.view.MessageText == Failed;
        QCOMPARE(m_boxes.TakeTexts(), failed ? QStringList{Error} : QStringList());
        QCOMPARE(StoredTouches().size(), failed ? 0 : 1000);
        QCOMPARE(station.dock.Erasures(), failed ? 0 : 1);
        if (failed) { // once the line is quiet, it is as if nothing had been
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
