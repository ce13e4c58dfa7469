// The whole download, against the simulated dock and a real store: read, store, erase, set clock.

#include "LinkTestTools.h"

namespace {

constexpr double Speed = 25;

using Answers = QList<MessageAnswer>;

/// A marker and touches, one a minute, of a known button and a few unknown ones.
QByteArray Touches(int count) {
    QByteArray scenario;
    for (int i = 0; i < count; ++i)
        scenario += "touch 2026-03-01 08:" + QByteArray::number(i % 60).rightJustified(2, '0') +
                    ' ' + (i % 7 == 0 ? "1A40C2" : "7E00A" + QByteArray::number(i % 7)) + '\n';
    return scenario;
}

const QByteArray Known = "reader 4B5831A7\n";
const QByteArray Unknown = "reader 0BADCAFE\n";
const QString Error = QStringLiteral("Download Error");
const QString EraseFailed = QStringLiteral("Reader Erase Failed.  Try again?");
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
        const DateTime now = DateTime::FromQt(QDateTime(QDate(2026, 3, 2), QTime(7, 15)));
        const TestClock clock(now, Speed);
        Dock dock(m_home, Known + "touch 2026-02-28 23:59 1A40C2\ntouch 2026-03-01 00:00 7E0003\n"
                                    "record EF CD AB 3C\n");
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        RecordingView view(link);
        MemoryDownload download(link, view);
        download.Run();
        QCOMPARE(view.MessageText, Successful(3));
        QCOMPARE(view.ReaderId, "4B5831A7");
        QCOMPARE(view.Busy, (QList<bool>{true, false}));
        QCOMPARE(view.Listed, 3U);
        QVERIFY(view.ProgressInRange);
        QCOMPARE(view.Progress.last(), "100%");
        QVERIFY(!download.Busy() && !gCommActive && m_boxes.TakeTexts().isEmpty());
        QCOMPARE(dock.Erasures(), 1);
        QCOMPARE(dock.Clock(), "2026-03-02T07:15");

        QStringList rows;
        QSet<qint64> stamps;
        Recordset events;
        events.CursorLocation = adUseClient;
        events.Open(QStringLiteral("SELECT * FROM tblEvents ORDER BY ID"), *gConn);
        for (; !events.Eof(); events.MoveNext()) {
            QStringList columns{TouchText(events.Text(u"tButtonCode"),
                                                  events.Date(u"dtDateTime"))};
            for (const QStringView name : {u"tButtonName", u"tButtonDesc", u"wGroupType",
                                           u"tGroupName", u"tGroupDesc", u"tPipeID"}) {
                QVERIFY(!events.Fields(name).IsNull());
                columns += events.Text(name);
            }
            rows += columns.join(u'|');
            stamps += events.Date(u"dtDLDateTime").Milliseconds();
        }
        QCOMPARE(rows, (QStringList{
                           "1A40C2 28.2.2026 23:59|Main gate|Left post, knee height|1|"
                           "Harbour Warehouse|Pier 4, north side|4B5831A7",
                           "7E0003 1.3.2026 0:00|Water leak||2|Incidents|Carried by every guard|"
                           "4B5831A7",
                           "ABCDEF 1.3.2026 0:59|Unknown||0|||4B5831A7"}));
        QCOMPARE(stamps.size(), 1);
        const auto age = *stamps.begin() - now.Milliseconds();
        QVERIFY2(age > 2'000 && age < 60'000, qPrintable(QString::number(age)));
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
        const auto error = [&](const char* name, const QByteArray& scenario) {
            row(name, scenario, 0, 0, Failed, {Error});
        };
        const QByteArray three = Known + Touches(150); // frames

        row("empty reader", Unknown, 0, 1,
            QStringLiteral("The Reader was empty\nReader Memory erased"));
        row("unknown buttons", Unknown + "touch 2026-03-01 08:30 ABCDEF", 1, 1, Successful(1));
        row("three frames", three, 150, 1, Successful(150));
        row("full frame", Unknown + Touches(57), 57, 1, Successful(57));
        row("end mark in frame 1", Unknown + Touches(20) + "record 00 00 00 00\n" + Touches(130),
            20, 1, Successful(20));
        row("count of 0", Unknown + Touches(30) + "count 0", 30, 1, Successful(30));
        row("count beyond the records", three + "count 300", 150, 1, Successful(150));
        row("in single bytes", Known + Touches(57) + "single-byte", 57, 1, Successful(57));
        row("in single bytes, three frames", three + "single-byte\ngap 40", 150, 1,
            Successful(150));
        row("in two pieces", three + "cut 10", 150, 1, Successful(150));

        const QString notErased = Successful(150, "\nReader Memory NOT erased!");
        row("erase refused, No", three + "refuse erase 1", 150, 0, notErased, {EraseFailed},
            {MessageAnswer::No});
        row("erase refused, Yes", three + "refuse erase 2 FF", 150, 1, Successful(150),
            {EraseFailed, EraseFailed}, {MessageAnswer::Yes, MessageAnswer::Yes});
        row("erase unanswered", three + "silent erase", 150, 0, notErased, {EraseFailed},
            {MessageAnswer::No});
        row("clock refused", three + "refuse clock 1", 150, 1, Successful(150),
            {QStringLiteral("Reader Clock update failed.  Please try again.")});

        const QStringList noReader{
            QStringLiteral("Reader not detected. Check reader and try again.")};
        const QStringList fault{Error + QStringLiteral(" (002)")};
        row("no reader", three + "remove", 0, 0, Failed, noReader);
        row("reader taken out", three + "no-reader 2", 0, 0, Failed, noReader);
        row("transfer fault", three + "transfer-fault", 0, 0, Failed, fault);
        row("transfer fault later", three + "transfer-fault 1", 0, 0, Failed, fault);
        row("no answer", three + "silent read", 0, 0, Failed);

        for (const char* damage : {"checksum 1", "checksum 2", "checksum 3", "stop-after 1",
                                   "stop-after 2", "count -1", "count 40000", "frames 2\ncount 300",
                                   "frames 3\ncount 60", "frames 2", "frames 4", "drop-bytes 0 252",
                                   "drop-bytes 252 252", "drop-bytes 4 500", "frames 4\nnoise 40 3",
                                   "vanish-after-frame 0", "vanish-after-frame 1",
                                   "vanish-after-bytes 400", "vanish-after-bytes 1"})
            error(damage, three + damage);
        error("checksum of the only frame", Known + Touches(20) + "checksum 1");
        row("noise before frame 2", three + "noise 40 2", 150, 1, Successful(150));
        row("noise, taught reader", three + "noise 40", 150, 1, Successful(150));
        error("noise, untaught reader", Unknown + Touches(150) + "noise 40");
    }
    void Outcomes() {
        QFETCH(QByteArray, scenario);
        QFETCH(Answers, answers);
        QFETCH(int, rows);
        const TestClock clock(DateTime::FromQt(QDate(2026, 3, 2)), Speed);
        Dock dock(m_home, scenario);
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        RecordingView view(link);
        MemoryDownload download(link, view);
        m_boxes.Answers = answers;
        download.Run();
        QTEST(view.MessageText, "text");
        QTEST(m_boxes.TakeTexts(), "messages");
        QCOMPARE(StoredTouches().size(), rows);
        QVERIFY(view.ProgressInRange && !gCommActive);
        QCOMPARE(view.WasCancelled, scenario.endsWith("silent read"));
        QVERIFY(!view.Answered);
        if (scenario.contains("vanish")) {
            QVERIFY(dock.HasEnded());
            QTRY_VERIFY(!link.comPort().PortOpen());
            return;
        }
        const QJsonObject state = dock.State();
        QTEST(state["erased"].toInt(), "erased");
        QCOMPARE(state["reads"].toInt(), 1);
        QCOMPARE(state["clock"].isString(),
                 view.MessageText != Failed && !scenario.contains("refuse clock"));
        QVERIFY(link.comPort().PortOpen());
    }

    void WithoutClockOrErase() {
        const TestClock clock(Speed);
        Dock dock(m_home, Known + Touches(3));
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        RecordingView view(link);
        MemoryDownload download(link, view);
        gAutoSetTime = false;
        download.EraseAfterwards = false;
        for (const int rows : {3, 6}) { // nothing tells the second download from the first
            download.Run();
            QCOMPARE(view.MessageText, Successful(3, ""));
            QCOMPARE(StoredTouches().size(), rows);
        }
        QCOMPARE(dock.Logged("CmdSetClock") + dock.Logged("CmdEraseMemory"), 0);
    }

    // What was written before the failing row stays, and so does the reader's memory.
    void RowThatCannotBeWritten() {
        const TestClock clock(Speed);
        gConn->Execute(QStringLiteral(
            "CREATE TRIGGER refuse BEFORE INSERT ON tblEvents WHEN NEW.tButtonCode = '7E0002' "
            "BEGIN SELECT RAISE(ABORT, 'no room'); END"));
        Dock dock(m_home, Known + "touch 2026-03-01 08:01 7E0001\ntouch 2026-03-01 08:02 7E0002\n"
                                    "touch 2026-03-01 08:03 7E0003");
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        RecordingView view(link);
        MemoryDownload download(link, view);
        download.Run();
        gConn->Execute(QStringLiteral("DROP TRIGGER refuse"));
        QCOMPARE(StoredTouches(), {"7E0001 1.3.2026 8:01"});
        QCOMPARE(view.MessageText, Successful(3, ""));
        QVERIFY(m_boxes.TakeTexts().isEmpty() && !download.Busy() && !download.LastOutcome().stored);
        QCOMPARE(dock.Logged("CmdSetClock") + dock.Logged("CmdEraseMemory"), 0);
        gConn.reset(); // committed, not just seen
        QVERIFY(ADOInit(m_home.File("main.mdb"), StorePassword));
        QCOMPARE(StoredTouches().size(), 1);
        download.Run();
        QCOMPARE(StoredTouches().size(), 4);
        QCOMPARE(dock.Erasures(), 1);
    }

    void EraseOnRequest() {
        const TestClock clock(Speed);
        Dock dock(m_home, Known + Touches(3) + "refuse erase 1");
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        RecordingView view(link);
        MemoryDownload download(link, view);
        const QString sure = QStringLiteral("Are you sure you want to clear the reader? ");
        bool succeeded = true;
        m_boxes.Answers = {MessageAnswer::No};
        download.EraseReader(false, succeeded);
        QVERIFY(!succeeded);
        QCOMPARE(m_boxes.TakeTexts(), {sure});
        QCOMPARE(dock.Logged("CmdEraseMemory"), 0);
        m_boxes.Answers = {MessageAnswer::Yes, MessageAnswer::Yes};
        download.EraseReader(false, succeeded);
        QVERIFY(succeeded);
        QCOMPARE(m_boxes.TakeTexts(), (QStringList{sure, EraseFailed, "Reader Erased"}));
        QCOMPARE(view.Status, "Reader Erased");
        QCOMPARE(dock.Erasures(), 1);
    }

    // The dock goes on sending after a Cancel, so the next transfer begins in the middle of the
    // old stream. A frame of it must not be taken for the first of the new one.
    void BegunAgainWhileTheOldStreamRuns_data() {
        QTest::addColumn<QByteArray>("reader");
        QTest::addColumn<bool>("breaksOff");
        QTest::addColumn<QString>("text");
        QTest::newRow("taught") << Known << false << Failed;
        QTest::newRow("untaught") << Unknown << false << Failed;
        QTest::newRow("taught, old stream broken off") << Known << true << Successful(1000);
        QTest::newRow("untaught, old stream broken off") << Unknown << true << Failed;
    }
    void BegunAgainWhileTheOldStreamRuns() {
        QFETCH(QByteArray, reader);
        QFETCH(bool, breaksOff);
        const TestClock clock(Speed);
        // The records read as small counts, wherever a frame of them begins.
        QByteArray scenario = reader + "touch 2026-03-01 08:00 1A40C2\n";
        for (int i = 1; i < 1000; ++i)
            scenario += "record 05 00 00 01\n";
        Dock dock(m_home, scenario + (breaksOff ? "abort-on-command\n" : "") +
                                "pace 240000\ngap 20\n");
        DockingLink link;
        QVERIFY(link.OpenPort(1));
        RecordingView view(link);
        MemoryDownload download(link, view);
        view.Watch = [&](MemoryTransfer& transfer) {
            if (!view.ReaderId.isEmpty())
                transfer.Cancel();
        };
        download.Run();
        QCOMPARE(view.MessageText, Failed);
        QVERIFY(m_boxes.TakeTexts().isEmpty() && !gCommActive);

        view.Watch = nullptr;
        download.Run();
        QVERIFY(!view.WasCancelled);
        QTEST(view.MessageText, "text");
        const bool failed = view.MessageText == Failed;
        QCOMPARE(m_boxes.TakeTexts(), failed ? QStringList{Error} : QStringList());
        QCOMPARE(StoredTouches().size(), failed ? 0 : 1000);
        QCOMPARE(dock.Erasures(), failed ? 0 : 1);
        if (failed) { // once the line is quiet, it is as if nothing had been
            for (auto seen = link.BytesSeen() - 1; seen != link.BytesSeen(); QTest::qWait(100))
                seen = link.BytesSeen();
            download.Run();
            QCOMPARE(view.MessageText, Successful(1000));
            QCOMPARE(dock.Erasures(), 1);
        }
    }
};

QTEST_GUILESS_MAIN(DownloadTest)
#include "DownloadTest.moc"
