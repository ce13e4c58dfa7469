// The archive of old events, compared with a second computation that reads the store with the stock
// shell; and what is left if something goes wrong on the way.

#include "EventArchive.h"
#include "Files.h"
#include "ResourceLimit.h"
#include "Rows.h"
#include "TestHome.h"
#include "TestTable.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <random>

namespace {

constexpr double DayMilliseconds = 86'400'000;
const QDateTime DayZero(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
const QString NotSaved = "File Save Error: Archive Not Saved.  Please Try again.\n";

/// The days of the random touches.
QDate Day(int number) { return QDate(2026, 2, 26).addDays(number); }

double AsStored(const QDate& day, double milliseconds) {
    return (static_cast<double>(DayZero.date().daysTo(day)) * DayMilliseconds + milliseconds) /
           DayMilliseconds;
}

ArchiveRange Days(const QDate& first, const QDate& last) {
    return {DateTime::FromQt(first), DateTime::FromQt(last)};
}

bool GoOn(int, int) { return true; }

/// The fields of each event, in the order of storing, with the time as the first one.
QList<QList<QByteArray>> EventsByStockShell(const QString& store) {
    QProcess shell;
    shell.start("sqlcipher", {store});
    shell.write("PRAGMA key = 'kelp7734';\nSELECT printf('%!.17g', dtDateTime), hex(tButtonCode), "
                "hex(wGroupType), hex(tGroupName), hex(tButtonName), hex(tPipeID) FROM tblEvents "
                "ORDER BY ID;\n");
    shell.closeWriteChannel();
    if (!shell.waitForFinished())
        qFatal("the shell does not end");
    QList<QList<QByteArray>> events;
    for (const QByteArray& line : shell.readAllStandardOutput().split('\n')) {
        QList<QByteArray> fields = line.split('|');
        for (qsizetype field = 1; field < fields.size(); ++field)
            fields[field] = QByteArray::fromHex(fields[field]);
        if (fields.size() == 6)
            events += fields;
    }
    return events;
}

/// What the archive of the days must hold. Takes those events out of the list.
QByteArray PlainArchive(QList<QList<QByteArray>>& events, const QDate& first, const QDate& last) {
    QByteArray file = "\xEF\xBB\xBF\"Date\",\"Time\",\"Button ID\",\"Type\",\"Group Name\","
                      "\"Button Name\",\"Reader ID\"\r\n";
    QList<QList<QByteArray>> kept;
    for (const QList<QByteArray>& event : events) {
        const double touched = event[0].toDouble();
        if (!(touched >= AsStored(first, 1000) && touched <= AsStored(last, 86'399'000))) {
            kept += event;
            continue;
        }
        const QDateTime moment = DayZero.addMSecs(std::llround(touched * DayMilliseconds));
        const QByteArray type = event[2] == "0"   ? "User"
                                : event[2] == "1" ? "Location"
                                : event[2] == "2" ? "Event"
                                                  : "";
        const QByteArrayList fields = {moment.toString("yyyy-MM-dd").toUtf8(),
                                       moment.toString("HH:mm").toUtf8(),
                                       event[1],
                                       type,
                                       event[3],
                                       event[4],
                                       event[5]};
        file += '"' + fields.join("\",\"") + "\"\r\n";
    }
    events = kept;
    return file;
}

/// One day with this many events, about 70 bytes of the archive each.
void AddEvents(int count) {
    gConn->Execute(
        QStringLiteral(
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
            "WHERE i < %1) INSERT INTO tblEvents (dtDateTime, tPipeID, "
            "tButtonName, tGroupName) SELECT 46000.5, '4B5831A7', i, 'Harbour Warehouse' FROM n")
            .arg(count));
}

const QDate FullDay(2025, 12, 9); // 46000

} // namespace

class ArchiveTest : public QObject {
    Q_OBJECT

    std::mt19937 m_random{20261123};

    template <typename T>
    T OneOf(std::initializer_list<T> values) {
        return values.begin()[m_random() % values.size()];
    }
    Value Text() {
        if (m_random() % 10 == 0)
            return {};
        return OneOf<QString>({"", "a,b", "say \"no\"", "\"", "two\r\nlines", "Tür 7", "𝄞 🚪", "\t",
                               "'; DROP TABLE tblEvents; --", QString(u'\0'), "=1+1"});
    }
    void AddRandomEvents() {
        NewRows events("tblEvents");
        for (int row = 0; row < 300; ++row) {
            events.AddNew();
            const double time = OneOf({0.0, 0.4, 999.0, 999.6, 1000.0, 1000.4, 60'000.0,
                                       86'399'000.0, 86'398'999.6, 86'399'000.4, 86'399'999.7,
                                       3'599'999.6, static_cast<double>(m_random() % 86'400'000)});
            events.Set(u"dtDateTime", m_random() % 50 == 0
                                          ? Value()
                                          : AsStored(Day(static_cast<int>(m_random() % 6)), time));
            for (const auto* column : {u"tButtonCode", u"tGroupName", u"tButtonName", u"tPipeID",
                                       u"tButtonDesc", u"tGroupDesc"})
                events.Set(column, Text());
            events.Set(u"wGroupType", OneOf<Value>({0, 1, 2, 3, -1, Value(), 1.5, QString("x")}));
            events.Update();
        }
    }

private slots:
    void MovesWhatAPlainComputationMoves() {
        if (QStandardPaths::findExecutable("sqlcipher").isEmpty())
            QSKIP("no sqlcipher shell");
        int archives = 0;
        for (int round = 0; round < 12; ++round) {
            const TestHome home(TestHome::EmptyStore);
            AddRandomEvents();
            TestHome::Close();
            auto events = EventsByStockShell(home.Store());
            QVERIFY(events.size() == 300);
            const QDate first = Day(static_cast<int>(m_random() % 6)),
                        last = Day(static_cast<int>(m_random() % 6));
            const QByteArray expected = PlainArchive(events, first, last);
            const qsizetype moved = 300 - events.size();
            home.Open();
            const ArchiveRange range = Days(first, last);
            QCOMPARE(CountArchived(range), moved);
            QVERIFY(first <= last || moved == 0);
            if (moved == 0)
                continue;
            QCOMPARE(ArchiveEventsOf(range, home.File("old.csv"), GoOn), moved);
            QCOMPARE(BytesOf(home.File("old.csv")), expected);
            TestHome::Close();
            QVERIFY(EventsByStockShell(home.Store()) == events);
            ++archives;
        }
        QVERIFY(archives > 3);
    }

    void ChangesNothingIfItFails_data() {
        const TestTable<QString, QString, QString> row("target", "trigger", "message");
        row("the file grows too large", "large.csv", "",
            NotSaved + "The file \"%1\" cannot be written: File too large");
        row("an existing file", "there.csv", "",
            NotSaved + "That filename is already in use. Please choose another filename\n%1");
        row("a folder", "folder", "",
            NotSaved + "That filename is already in use. Please choose another filename\n%1");
        row("a link to nothing", "link", "",
            NotSaved + "That filename is already in use. Please choose another filename\n%1");
        row("no such folder", "none/old.csv", "",
            NotSaved + "The file or its folder does not exist.\n%1");
        row("a name of the program", "temp.mdb", "",
            NotSaved + "The program itself uses this file. Please choose another filename.\n%1");
        row("no deletion", "old.csv", "SELECT RAISE(ABORT, 'not this one')", "not this one");
        row("one row less", "old.csv", "SELECT RAISE(IGNORE)",
            "3000 events were written, but the database deleted 2999. Nothing was archived.");
        row("one row more", "old.csv", "DELETE FROM tblEvents WHERE ID = 3001",
            "3000 events were written, but the database deleted 3001. Nothing was archived.");
    }
    void ChangesNothingIfItFails() {
        QFETCH(QString, target);
        QFETCH(QString, trigger);
        QFETCH(QString, message);
        const TestHome home(TestHome::EmptyStore);
        AddEvents(3000);
        gConn->Execute("INSERT INTO tblEvents (dtDateTime) VALUES (46001)");
        if (!trigger.isEmpty())
            gConn->Execute("CREATE TRIGGER fault BEFORE DELETE ON tblEvents WHEN OLD.ID = 2000 "
                           "BEGIN " +
                           trigger + "; END");
        WriteBytes(home.File("there.csv"), "there");
        QVERIFY(QDir().mkdir(home.File("folder")) && QFile::link("nowhere", home.File("link")));
        const auto files = [&] {
            return QDir(home.File({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
        };
        const QStringList before = ContentOfStore(), filesBefore = files();
        const QString path = home.File(target);
        std::optional<int> moved;
        {
            const ResourceLimit limit(RLIMIT_FSIZE,
                                      target == "large.csv" ? 100'000 : RLIM_INFINITY);
            const QString why =
                DescriptionOf([&] { moved = ArchiveEventsOf(Days(FullDay, FullDay), path, GoOn); });
            QCOMPARE(why, message.contains("%1") ? message.arg(path) : message);
        }
        QVERIFY(!moved);
        QCOMPARE(files(), filesBefore);
        QCOMPARE(BytesOf(home.File("there.csv")), "there");
        QCOMPARE(ContentOfStore(), before);
        gConn->Execute(trigger.isEmpty() ? "DELETE * FROM tblTours" : "DROP TRIGGER fault");
        QCOMPARE(ArchiveEventsOf(Days(FullDay, FullDay), home.File("again.csv"), GoOn), 3000);
    }

    // While it is written and while it is deleted.
    void ChangesNothingIfItIsCancelled() {
        const TestHome home(TestHome::EmptyStore);
        AddEvents(20'000);
        const QStringList before = ContentOfStore();
        QList<bool> deleting; // at each call
        const auto archive = [&](qsizetype calls) {
            deleting.clear();
            return ArchiveEventsOf(Days(FullDay, FullDay), home.File("old.csv"), [&](int, int all) {
                deleting += all == 0;
                return deleting.size() < calls;
            });
        };
        QSet<bool> cancelledWhile;
        for (qsizetype calls = 1; !archive(calls);
             calls += 1 + static_cast<qsizetype>(m_random() % 12)) {
            QCOMPARE(deleting.size(), calls);
            cancelledWhile += deleting.last();
            QVERIFY(!QFile::exists(home.File("old.csv")));
            QCOMPARE(QDir(home.File({})).entryList({"*.part"}, QDir::Files | QDir::Hidden), {});
            QVERIFY(ContentOfStore() == before);
        }
        QCOMPARE(cancelledWhile.size(), 2);
        QCOMPARE(CountOf("FROM tblEvents", {}), 0);
        QCOMPARE(BytesOf(home.File("old.csv")).count('\n'), 20'001);
    }
};

QTEST_GUILESS_MAIN(ArchiveTest)
#include "ArchiveTest.moc"
