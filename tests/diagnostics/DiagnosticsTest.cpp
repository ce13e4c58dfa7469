// Dumps of the store, what they hide and refuse, sample data, deletion, and the menu.

#include "Clock.h"
#include "DebugMenu.h"
#include "EventDeletion.h"
#include "Files.h"
#include "Format.h"
#include "RecordingViewer.h"
#include "SampleData.h"
#include "ScriptedBoxes.h"
#include "StoreDump.h"
#include "StoreReports.h"
#include "TestHome.h"
#include "TestTable.h"
#include "TourReportBuilder.h"
#include "cReaderOptions.h"
#include "frmMain.h"

#include <QMenu>
#include <QProcess>

namespace {

const DateTime Noon = DateTime::FromQt(QDate(2026, 11, 21)) + DateTime::FromTime(12, 0);

} // namespace

class DiagnosticsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> m_home;
    ScriptedBoxes m_boxes;

    /// The dump of a query, or why there is none.
    QString DumpOf(const QString& sql, int patience = 1000) {
        const QString file = m_home->File("Report_UserQuery.txt");
        QFile::remove(file);
        const QString failure = DescriptionOf([&] {
            if (!ArchiveEvents(sql, file, [&](int, int) { return patience-- > 0; }))
                throw RunTimeError(0, "cancelled");
        });
        return failure.isEmpty() ? QString::fromUtf8(BytesOf(file)) : failure;
    }

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void cleanupTestCase() {
        gReaderOptions.reset();
        m_home.reset();
    }
    void init() {
        m_home.reset();
        m_home = std::make_unique<TestHome>(TestHome::DemoSite);
        gDatabasePath = m_home->Store();
        m_boxes.TakeTexts();
    }

    void WritesRowsByteForByte() {
        gConn->Execute("CREATE TABLE tblSmall (ID autoincrement, tX TEXT, iY INTEGER, dtZ REAL)");
        QCOMPARE(DumpOf("SELECT * FROM tblSmall;"),
                 "Report for query 'SELECT * FROM tblSmall;'\n\nNo records in this table\n");
        const QString hostile = QString("ü|\"'\r\n\t\x1b[2J\u2028") + QChar(0) + u'e';
        for (const Value& text : {Value(hostile), Value(QString(60, u'x')), Value()})
            gConn->Execute("INSERT INTO tblSmall (tX, iY, dtZ) VALUES (?, ?, ?)",
                           {text, text, text.IsNull() ? Value(Noon) : Value(1e300)});
        const QString dashes(52, u'-'), x60(60, u'x');
        const QString ruler = "+-----------+" + dashes + "+------------+----------\n";
        QCOMPARE(DumpOf("SELECT * FROM tblSmall;"),
                 "Report for query 'SELECT * FROM tblSmall;'\n\n" + ruler + "| ID        | " +
                     QString("tX").leftJustified(51) + "| iY         | dtZ      |\n" +
                     "| adInteger | " + QString("adVarWChar").leftJustified(51) +
                     "| adSmallInt | adDate   |\n" + ruler + "| 1         | " +
                     QString("ü|\"'    [2J  e").leftJustified(51) +
                     "| ü|\"'    [2J  e| 1e+300   |\n" + "| 2         | " + x60 + "| " + x60 +
                     "| 1e+300   |\n" + "| 3         | " + QString(51, u' ') +
                     "|            | 21 Nov 2026 12:00:00|\n" + ruler);
    }

    void ListsTablesAndViews() {
        gConn->Execute("CREATE VIEW vwNames AS SELECT tName FROM tblTours");
        const QString file = m_home->File("Report_schema.txt");
        ReportSchema(*OpenForReading(), file, SchemaTitle);
        const QByteArray ruler = QByteArray(41, '-') + '\n';
        QCOMPARE(BytesOf(file), "Report Schema\n\n" + ruler +
                                    "Tables\n\ttblOperators\n\ttblListItems\n\ttblButtons\n"
                                    "\ttblReaders\n\ttblTours\n\ttblTourPoints\n\ttblEvents\n\n" +
                                    ruler + "Views\n\tvwNames\n");
    }

    // The password never decides what a dump looks like: it is the same with another password.
    void HidesPasswords_data() {
        const TestTable<QString> row("sql");
        for (const char* sql :
             {"SELECT * FROM tblOperators", "SELECT Password AS p FROM TBLOPERATORS o",
              "SELECT length(Password) AS n, substr(Password, 1, 1) AS a FROM tblOperators",
              "SELECT LoginName FROM tblOperators WHERE Password LIKE 's%'",
              "SELECT * FROM (SELECT hex(Password) || 'x' AS h FROM tblOperators)",
              "SELECT o.LoginName FROM (SELECT 'secret' AS Password) g NATURAL JOIN tblOperators o",
              "SELECT 1 FROM (SELECT 'secret' AS Password) g JOIN main.tblOperators USING "
              "(Password)",
              "SELECT * FROM vwOperators"})
            row(sql, sql);
        for (const char* main : {"MAIN.", "main .", "main\n.", "\"main\".", "'Main' . ", "[main] .",
                                 "`main`.", "[main].", "main\u2003."}) {
            const QString sql = "SELECT 1 FROM (SELECT 'secret' AS Password) g NATURAL JOIN %1%2";
            for (const char* table : {"tblOperators", "[tblOperators]", "\"tblOperators\""})
                row(QString(main) + table, sql.arg(main, table));
        }
    }
    void HidesPasswords() {
        QFETCH(const QString, sql);
        gConn->Execute("CREATE VIEW vwOperators AS SELECT Password AS p FROM tblOperators");
        QStringList dumps;
        for (const char* password : {"secret", "another"}) {
            gConn->Execute("UPDATE tblOperators SET Password = ?", {QString(password)});
            dumps += DumpOf(sql).remove(WithoutControls(sql, u' '));
        }
        QVERIFY(!dumps[0].contains("secret"));
        QCOMPARE(dumps[0], dumps[1]);
    }

    void RefusesWhatDoesNotRead_data() {
        const TestTable<QString, QString> row("sql", "said");
        const QString onlyReads = "Only statements that read are allowed (not authorized).";
        for (const char* sql :
             {"DELETE FROM tblTours", "UPDATE tblTours SET tName = ''", "DROP TABLE tblTours",
              "WITH w AS (SELECT 1) DELETE FROM tblTours", "ATTACH 'x' AS y", "PRAGMA user_version",
              "BEGIN", "CREATE TEMP TABLE x (y)", "INSERT INTO temp.tblOperators VALUES (1, 2)"})
            row(sql, sql, onlyReads);
        row("export", "SELECT sqlcipher_export('main')", "not authorized");
        row("two", "SELECT 1; DELETE FROM tblTours", "Characters found after end");
        row("comment", "SELECT 1 /* DELETE */", "may not contain comments");
        row("nothing", " ; ", "There is no statement.");
        row("value", "SELECT ?", "different number of values");
    }
    void RefusesWhatDoesNotRead() {
        QFETCH(const QString, sql);
        QFETCH(const QString, said);
        const QStringList before = ContentOfStore();
        const QString why = DumpOf(sql);
        QVERIFY2(why.contains(said), qPrintable(why));
        QCOMPARE(ContentOfStore(), before);
    }

    void DumpsAStoreWithoutOperators() {
        gConn->Execute("DROP TABLE tblOperators");
        QVERIFY(
            DumpOf("SELECT [tName] FROM [tblTours] ORDER BY [tblTours].[ID]").contains("| tName"));
    }

    void EndsAnEndlessQuery() {
        QCOMPARE(
            DumpOf("WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x FROM n) SELECT x FROM n",
                   5),
            "cancelled");
    }

    void SampleDataIsATourOnTime() {
        MakeFakeData(Noon, DateTime::FromTime(0, 20));
        QCOMPARE(m_boxes.TakeTexts(), QStringList("Demo Data Created"));
        RecordingViewer viewer;
        BuildTourReport({3, Noon, "4B5831A7", {}, true, true}, viewer);
        QCOMPARE(viewer.Rows.filter("ON TIME").size(), 16);
        QCOMPARE(RowsOf("SELECT COUNT(*) FROM tblEvents WHERE wGroupType = 2"), QStringList("4"));
        gConn->Execute("DELETE FROM tblReaders");
        const QStringList before = ContentOfStore();
        MakeFakeData(Noon, DateTime::FromTime(0, 20));
        QCOMPARE(m_boxes.TakeTexts(),
                 QStringList("You must teach at least one reader to create sample data"));
        QCOMPARE(ContentOfStore(), before);
    }

    void DeletesOnlyAfterYes() {
        const TestClock clock(Noon, 1);
        const DateTime day = Today(), second = DateTime::FromTime(0, 0, 1);
        for (const DateTime time :
             {day - second, day, day + DateTime::FromTime(23, 59, 59), day + DateTime::FromDays(1)})
            gConn->Execute("INSERT INTO tblEvents (dtDateTime) VALUES (?)", {time});
        const QStringList before = ContentOfStore();
        DeleteTodaysEvents();
        DeleteAllEvents();
        QCOMPARE(ContentOfStore(), before);
        m_boxes.Answers = {MessageAnswer::Yes, MessageAnswer::Ok, MessageAnswer::Yes};
        m_boxes.TakeTexts();
        DeleteTodaysEvents();
        QCOMPARE(RowsOf("SELECT ID FROM tblEvents"), QStringList({"1", "4"}));
        DeleteAllEvents();
        QCOMPARE(m_boxes.TakeTexts(),
                 QStringList({"Are you sure you want to delete these records?", "Deleted! 2",
                              "Are you REALLY sure? This will delete ALL events and Tours!!!!",
                              "Deleted 2  Events from tblEvents\nDeleted all from tblTourPoints\n"
                              "Deleted all from tblTours"}));
        QCOMPARE(RowsOf("SELECT ID FROM tblTours UNION SELECT ID FROM tblTourPoints"),
                 QStringList());
    }

    void SaysWhereADumpIsIfItCannotBeOpened() {
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(m_home->File({})));
        QWidget window;
        for (const char* program : {"", "#!/bin/sh\nexit 3\n", "#!/bin/sh\nexit 0\n"}) {
            if (*program)
                WriteBytes(m_home->File("xdg-open"), program);
            QFile::setPermissions(m_home->File("xdg-open"), QFile::Permissions(0x7000));
            mnuDebugItem_Click(1, window, [] {});
            QTRY_VERIFY(window.findChildren<QProcess*>().isEmpty());
            QCOMPARE(m_boxes.TakeTexts().size(), QByteArray(program).contains('0') ? 0 : 1);
            QVERIFY(QFile::remove(m_home->File("Report_schema.txt")));
        }
        qputenv("PATH", path);
    }

    void OnlyAMasterInADevelopmentRunHasTheMenu() {
        for (const char* variable : {"1", "0", "true", ""})
            for (const OperatorType login : {MasterOperator, UserOperator}) {
                qputenv("WARDLOCK_DEVELOPMENT", variable);
                frmMain window;
                window.SetUserType(login);
                window.NavigateToolbarButtons("1111");
                const auto* menu = window.findChild<QMenu*>("mnuDebug");
                const bool developer = QByteArray(variable) == "1";
                QCOMPARE(menu->menuAction()->isVisible(), developer && login == MasterOperator);
                QCOMPARE(menu->actions().size(), developer ? 19 : 0);
            }
        qunsetenv("WARDLOCK_DEVELOPMENT");
    }
};

QTEST_MAIN(DiagnosticsTest)
#include "DiagnosticsTest.moc"
