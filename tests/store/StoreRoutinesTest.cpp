// Operators and the store's small routines.

#include "LookUps.h"
#include "ScratchTable.h"
#include "Settings.h"
#include "SqlDate.h"
#include "TableExists.h"
#include "TestHome.h"
#include "mOperators.h"

#include <QTest>

class StoreRoutinesTest : public QObject {
    Q_OBJECT

private slots:
    void OperatorsMakeThemselvesKnown() {
        const TestHome home(TestHome::EmptyStore);
        const auto lastLogin = [] { return GetSetting("Wardlock Lite", "Info", "LastLogin", "-"); };
        QCOMPARE(CheckOperator(UserOperator, "CREW"), NoOperator);
        QCOMPARE(lastLogin(), "-");
        QCOMPARE(RowsOf("SELECT * FROM tblOperators"), QStringList("CREW|CREW"));
        QCOMPARE(CheckOperator(UserOperator, "wrong"), NoOperator);
        QCOMPARE(lastLogin(), "2"); // remembered, though the password was wrong
        QCOMPARE(CheckOperator(UserOperator, " crew\t"), UserOperator);
        QCOMPARE(CheckOperator(MasterOperator, "CREW"), NoOperator);
        QCOMPARE(CheckOperator(MasterOperator, "KEEPER", RememberLogin::No), MasterOperator);
        QCOMPARE(lastLogin(), "2");
        QCOMPARE(CheckOperator(MasterOperator, "Keeper"), MasterOperator);
        QCOMPARE(lastLogin(), "1");
        QCOMPARE(RowsOf("SELECT * FROM tblOperators"), (QStringList{"CREW|CREW", "KEEPER|KEEPER"}));
    }

    void Passwords() {
        const std::tuple<const char*, const char*, bool> rows[] = {{"'sEcret1'", "SeCRET1", true},
                                                                   {"'größe'", "GRÖSSE", true},
                                                                   {"'a b'", "  a b ", true},
                                                                   {"'ab '", "ab ", false},
                                                                   {"'secret'", "secre", false},
                                                                   {"''", "  ", true},
                                                                   {"NULL", "", true},
                                                                   {"'x'", "", false}};
        for (const auto& [stored, entered, accepted] : rows) {
            const TestHome home(TestHome::EmptyStore);
            gConn->Execute("INSERT INTO tblOperators VALUES ('keeper', 'other'), ('KEEPER', " +
                           QString::fromUtf8(stored) + "), ('KEEPER', 'second row')");
            QCOMPARE(CheckOperator(MasterOperator, QString::fromUtf8(entered)),
                     accepted ? MasterOperator : NoOperator);
        }
    }

    void ScratchTable() {
        const TestHome home(TestHome::DemoSite);
        QVERIFY(TableExists("tblEvents"));
        QVERIFY(!TableExists("tblReportTemp") && !TableExists("idxEventTime"));
        QVERIFY(InitRptTmp());
        gConn->Execute("INSERT INTO tblReportTemp (Field0, Field9) VALUES ('a', 'b')");
        QVERIFY(InitRptTmp());
        QCOMPARE(RowsOf("SELECT * FROM tblReportTemp"), QStringList());
        gConn->Close();
        QVERIFY(!InitRptTmp());
        QVERIFY(home.TakeLog().startsWith(
            "Error 3704 in InitRptTmp of Form frmRptHardwareListParam\t("));
    }

    void LookUps() {
        const TestHome home(TestHome::DemoSite);
        gConn->Execute("INSERT INTO tblReaders VALUES ('9', 'x'), ('10', 'x')");
        QCOMPARE(CountReaders(), 3);
        QCOMPARE(CountTours(), 2);
        QVERIFY(FindReader("10") && !FindReader("1"));
        QVERIFY(FindButton("1A40C2") && !FindButton("FFFFFF"));
        gConn->Execute("INSERT INTO tblButtons (lParentID, tButtonCode) VALUES (2, '1A40C2')");
        QVERIFY(!FindButton("1A40C2")); // two buttons have this code
    }

    void DatesAsSql() {
        const DateTime date = DateTime::FromDays(36526) + DateTime::FromTime(7, 5, 9);
        QCOMPARE(SqlDateFmt(date), "2000-01-01");
        QCOMPARE(SqlDateTimeFmt(date), "2000-01-01 07:05:09");
        QCOMPARE(ConnectionText("p", "w"), "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=p;"
                                           "Jet OLEDB:Database Password = w");
    }
};

QTEST_GUILESS_MAIN(StoreRoutinesTest)
#include "StoreRoutinesTest.moc"
