// The store's dialect and recordsets, on a real store file.

#include "Recordset.h"

#include "Connection.h"
#include "DateTime.h"
#include "SqlDate.h"
#include "TestHome.h"
#include "TestTable.h"

#include <QDate>

#include <memory>

namespace {

void Run(const QString& statement) { gConn->Execute(statement); }

std::unique_ptr<Recordset> Opened(const QString& source, CommandType command = adCmdText) {
    auto rows = std::make_unique<Recordset>();
    rows->CursorLocation = adUseClient;
    rows->Open(source, *gConn, adOpenStatic, adLockOptimistic, command);
    return rows;
}

const QString Events = QStringLiteral("SELECT ID, tButtonCode FROM tblEvents");

} // namespace

class RecordsetTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> m_home;

private slots:
    void initTestCase() {
        QLocale::setDefault(QLocale("de_DE")); // texts are ordered by the language at opening
        m_home = std::make_unique<TestHome>(TestHome::EmptyStore);
    }
    void cleanupTestCase() { m_home.reset(); }
    void init() { Run("BEGIN"); }
    void cleanup() { Run("ROLLBACK"); }

    // Statements in the dialect, one a line. The last one asks for the result.
    void Dialect_data() {
        const TestTable<QString, QStringList> row("statements", "rows");
        row("delete all",
            "INSERT INTO tblReaders VALUES ('1', 'a')\n"
            "INSERT INTO tblReaders VALUES ('2', 'b')\n"
            "delete * FROM tblReaders WHERE tReaderId = '1' ;\nSELECT * FROM tblReaders ;",
            {"2|b"});
        row("quotes",
            "INSERT INTO tblReaders VALUES (\"Keeper's\", \"a \"\"b\"\" 'c'\")\n"
            "INSERT INTO tblReaders VALUES ('it''s', '#1999-01-01# memo \"x\" ORDER BY ;')\n"
            "SELECT * FROM tblReaders WHERE tReaderId = \"Keeper's\" OR tReaderId = 'it''s'",
            {"Keeper's|a \"b\" 'c'", "it's|#1999-01-01# memo \"x\" ORDER BY ;"});
        row("numbers are not used twice",
            "CREATE TABLE tblT( ID autoincrement, Field0 memo)\n"
            "INSERT INTO tblT (Field0) VALUES ('x')\nDELETE * FROM tblT\n"
            "INSERT INTO tblT (Field0) VALUES ('y')\nSELECT * FROM tblT",
            {"2|y"});
        const QString dates = "INSERT INTO tblTours (tName, dtStartTime) VALUES "
                              "('a', #2026-03-01#), ('b', #2026-3-1 08:30#), "
                              "('c', #2026-03-01 08:30:01#), ('d', #1899-12-29 12:00:00#)\n"
                              "SELECT tName FROM tblTours WHERE dtStartTime ";
        row(">=", dates + ">= #2026-03-01 08:30:00#", {"b", "c"});
        row(">", dates + ">#2026-03-01 08:30:00#", {"c"});
        row("<=", dates + "<=#2026-03-01 00:00:00#", {"a", "d"});
        row("<>", dates + "<> #2026-03-01 08:30:00#", {"a", "c", "d"});
        row("before day zero", dates + "= -0.5", {"d"});
        const QString names = "INSERT INTO tblListItems (wType, tName) VALUES (1, 'c'), (1, 'B'), "
                              "(1, 'Zug'), (2, 'b'), (1, 'Öl'), (1, 'a'), (2, 'B'), (1, 'ob')\n"
                              "SELECT wType, tName FROM tblListItems ";
        const QStringList ordered{"1|a", "1|B", "2|b", "2|B", "1|c", "1|ob", "1|Öl", "1|Zug"};
        row("as people order", names + "ORDER BY tName ;", ordered);
        row("backwards, ties in turn", names + "WHERE wType = 2 ORDER BY tName DESC",
            {"2|b", "2|B"});
        row("two columns", names + "WHERE tName < 'a' ORDER BY wType DESC, tName",
            {"2|B", "1|B", "1|Zug"});
        row("alias and limit", names.chopped(13) + "tblListItems i ORDER BY i.tName LIMIT 2",
            ordered.mid(0, 2));
        row("limit only", names + "AS i WHERE i.wType = 1 LIMIT 2", {"1|c", "1|B"});
        row("query in a query",
            names + "WHERE tName IN (SELECT x FROM (SELECT 'B' AS x)) AND 'x' || tName = 'xB'",
            {"1|B", "2|B"});
        row("name in quotes", names.chopped(13) + "\"tblListItems\" WHERE wType = 1 LIMIT 1",
            {"1|c"});
        row("ties in turn, whatever the index",
            "INSERT INTO tblEvents (dtDateTime) VALUES (2), (1), (2)\n"
            "SELECT ID FROM tblEvents ORDER BY dtDateTime DESC",
            {"1", "3", "2"});
        row("exact equality", names + "WHERE tName = 'B'", {"1|B", "2|B"});
        row("no table", "SELECT 1 AS a, 'b' AS b", {"1|b"});
        row("order of storing, whatever the index",
            "INSERT INTO tblEvents (tPipeID, dtDateTime) VALUES ('R', 30), ('R', 20), "
            "('S', 25), ('R', 10), ('R', 20)\nSELECT dtDateTime FROM tblEvents "
            "WHERE tPipeID = 'R' AND dtDateTime >= 10 AND dtDateTime <= 30",
            {"30", "20", "10", "20"});
    }
    void Dialect() {
        QFETCH(QString, statements);
        QStringList lines = statements.split(u'\n');
        const QString query = lines.takeLast();
        for (const QString& line : lines)
            Run(line);
        QTEST(RowsOf(query), "rows");
    }

    void NoDates() {
        for (const QString text : {"", "2026-02-29", "2026-13-01", "01/02/2026", "2026-01-01 24:00",
                                   "2026-01-01 10:00:60", "tomorrow"})
            QCOMPARE(
                ErrorOf([&] { Run("DELETE * FROM tblEvents WHERE dtDateTime < #" + text + '#'); }),
                RunTimeErrorNumber::TypeMismatch);
    }

    // A literal must be the same double as the stored date, or "=" and ">=" fail.
    void LiteralsEqualStoredDates() {
        // Seconds from two hundred years, then every second of the night when summer time begins.
        const qint64 first = DateTime::FromQt(QDate(1890, 1, 1)).Milliseconds() / 1000,
                     night = DateTime::FromQt(QDate(2026, 3, 29)).Milliseconds() / 1000;
        for (int round = 0; round < 100; ++round) {
            QString sql = "SELECT 0";
            QList<DateTime> dates;
            for (int i = round * 1000; i < (round + 1) * 1000; ++i) {
                const qint64 second = i < 90'000 ? first + i * 70'021LL : night + i - 90'000;
                dates += DateTime::FromMilliseconds(second * 1000);
                sql += ", #" + SqlDateTimeFmt(dates.last()) + '#';
            }
            const auto row = Opened(sql);
            for (int i = 0; i < dates.size(); ++i)
                QCOMPARE(row->FieldAt(i + 1), Value(dates[i]));
        }
    }

    void RowsAreAdded() {
        auto rows = Opened("tblEvents", adCmdTable);
        QVERIFY(rows->Eof());
        rows->AddNew();
        rows->Set(u"tbuttoncode", QString("AA"));
        QCOMPARE(rows->Text(u"tButtonCode"), "AA");
        QCOMPARE(RowsOf(Events), QStringList()); // pending
        rows->AddNew();                          // writes the previous row
        QVERIFY(rows->Fields(u"tButtonCode").IsNull());
        QCOMPARE(RowsOf(Events), QStringList{"1|AA"});
        rows->Set(u"tButtonCode", QString("BB"));
        rows->Update();
        rows->Update(); // nothing is pending
        QCOMPARE(rows->Number(u"ID"), 2);
        rows->AddNew();
        rows->Set(u"tButtonCode", QString("CC"));
        QCOMPARE(rows->RecordCount(), 3); // writes it
        rows->AddNew();
        rows->MoveFirst(); // writes a row of defaults
        QCOMPARE(rows->Text(u"tButtonCode"), "AA");
        rows->AddNew();
        rows->Set(u"tButtonCode", QString("EE"));
        rows->Close(); // drops it
        QCOMPARE(RowsOf(Events), (QStringList{"1|AA", "2|BB", "3|CC", "4|NULL"}));
    }

    void RowsAreChanged() {
        Run("INSERT INTO tblReaders VALUES ('1', 'a'), ('2', 'b'), ('2', 'b')");
        auto rows = Opened("SELECT * FROM tblReaders WHERE tReaderId = '2'");
        rows->Set(u"tDescription", QString("new"));
        QCOMPARE(rows->Text(u"tDescription"), "new");
        QCOMPARE(rows->Text(u"tReaderId"), "2");
        rows->Update();
        QCOMPARE(rows->Text(u"tDescription"), "new");
        rows->MoveNext();
        rows->Set(u"tDescription", Value());
        rows->MoveNext(); // writes it
        QVERIFY(rows->Eof());
        QCOMPARE(rows->RecordCount(), 2);
        QCOMPARE(RowsOf("SELECT * FROM tblReaders"), (QStringList{"1|a", "2|new", "2|NULL"}));
    }

    // Values at the limits of the packed form are read as they were written.
    void ValuesKeep() {
        QList<Value> values{Value(), Value(QString()), Value(0.1), Value(-0.0), Value(1e300)};
        for (const qint64 edge : {qint64{0}, qint64{255}, qint64{1} << 31, qint64{1} << 32})
            for (const qint64 number : {edge - 1, edge, edge + 1, -edge - 1, -edge, -edge + 1})
                values += Value(number);
        for (const int length : {1, 127, 128, 16'383, 16'384, 1'048'570, 3'000'000})
            values += Value(QString(length, u'x') + QStringLiteral("ß€𝄞"));
        Run("CREATE TABLE tblT (ID autoincrement, a)");
        auto rows = Opened("SELECT * FROM tblT");
        for (const Value& value : values) {
            rows->AddNew();
            rows->Set(u"a", value);
        }
        rows->MoveFirst();
        const auto again = Opened("SELECT * FROM tblT");
        QCOMPARE(again->RecordCount(), values.size());
        for (const Value& value : values) {
            QVERIFY(again->FieldAt(1) == value && rows->FieldAt(1) == value);
            QCOMPARE(again->Number(u"ID"), rows->Number(u"ID"));
            again->MoveNext();
            rows->MoveNext();
        }
    }

    void ServerCursor() {
        Run("INSERT INTO tblReaders VALUES ('1', 'a'), ('2', 'b')");
        Recordset rows;
        rows.Open("tblReaders", *gConn, adOpenForwardOnly, adLockOptimistic, adCmdTable);
        QCOMPARE(rows.RecordCount(), -1);
        QStringList ids;
        for (int pass = 0; pass < 2; ++pass, rows.MoveFirst())
            for (; !rows.Eof(); rows.MoveNext())
                ids += rows.Text(u"tReaderId");
        QCOMPARE(ids, (QStringList{"1", "2", "1", "2"}));
        rows.AddNew();
        rows.Set(u"tReaderId", QString("3"));
        rows.Update();
        QCOMPARE(RowsOf("SELECT tReaderId FROM tblReaders"), (QStringList{"1", "2", "3"}));
    }

    void WrongUse_data() {
        using Use = std::function<void(Recordset&)>;
        const TestTable<int, Use> row("error", "use");
        const auto opened = [](const QString& sql, const Use& use) -> Use {
            return [=](Recordset& rows) {
                rows.Open(sql, *gConn);
                use(rows);
            };
        };
        const QString tours = "SELECT * FROM tblTours";
        const Use add = [](Recordset& rows) { rows.AddNew(); };
        row("closed: Eof", 3704, [](auto& r) { r.Eof(); });
        row("closed: RecordCount", 3704, [](auto& r) { r.RecordCount(); });
        row("closed: MoveNext", 3704, [](auto& r) { r.MoveNext(); });
        row("closed: AddNew", 3704, [](auto& r) { r.AddNew(); });
        row("closed: Update", 3704, [](auto& r) { r.Update(); });
        row("closed again", 3704, opened("SELECT 1", [](auto& r) { r.Close(), r.Eof(); }));
        row("open twice", 3705, opened("SELECT 1", [](auto& r) { r.Open("SELECT 1", *gConn); }));
        row("closed connection", 3704, [](auto& r) {
            Connection none;
            r.Open("SELECT 1", none);
        });
        row("closed connection runs nothing", 3704,
            [](auto&) { Connection().Execute("SELECT 1"); });
        row("no such field", 3265, opened("SELECT 1 AS a", [](auto& r) { r.Fields(u"b"); }));
        row("no row", 3021, opened(tours, [](auto& r) { r.Text(u"tName"); }));
        row("after the end", 3021, opened("SELECT 1", [](auto& r) { r.MoveNext(), r.MoveNext(); }));
        row("change without a row", 3021, opened(tours, [](auto& r) { r.Set(u"tName", 1); }));
        row("text for a number", 13, opened("SELECT 'x' AS a", [](auto& r) { r.Number(u"a"); }));
        row("add to a join", 380,
            opened("SELECT tblTours.ID FROM tblTours INNER JOIN tblTourPoints ON tblTours.ID = "
                   "tblTourPoints.lParentID",
                   add));
        row("add to sums", 380, opened("SELECT COUNT(*) AS n FROM tblTours", add));
        row("add to read only", 380, [=](auto& r) {
            r.Open(tours, *gConn, adOpenStatic, adLockReadOnly);
            r.AddNew();
        });
        row("no such table", 10001, opened("SELECT * FROM tblNone", add));
        row("no SQL", 10001, [](auto&) { gConn->Execute("DELETE everything"); });
        row("a second statement", 10001,
            [](auto&) { gConn->Execute("SELECT 1; DELETE FROM tblOperators"); });
        row("a value too few", 10025, [](auto& r) { r.Open("SELECT ?, ?", {1}, *gConn); });
        row("a value too many", 10025, [](auto&) { gConn->Execute("SELECT ?", {1, 2}); });
    }
    void WrongUse() {
        QFETCH(std::function<void(Recordset&)>, use);
        Recordset rows;
        QTEST(ErrorOf([&] { use(rows); }), "error");
    }
};

QTEST_GUILESS_MAIN(RecordsetTest)
#include "RecordsetTest.moc"
