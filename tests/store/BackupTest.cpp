// Backups: what is copied, what is refused, which old ones go, and what a check finds.

#include "Connection.h"
#include "DateTime.h"
#include "Files.h"
#include "ResourceLimit.h"
#include "StoreBackup.h"
#include "StoreCheck.h"
#include "StoreCopy.h"
#include "TestHome.h"
#include "TestTable.h"

#include <QFileInfo>
#include <QTest>

namespace {

const WorkProgress GoOn = [](int, int) { return true; };

/// All files of a folder, hidden ones and links included.
QStringList FilesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
}

void AddEvents(int count) {
    gConn->Execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "
                   "INSERT INTO tblEvents (tPipeID, dtDateTime, tButtonName) SELECT '4B5831A7', "
                   "45000 + i / 1440.0, i FROM n",
                   {count});
}

} // namespace

class BackupTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> m_home;
    QString m_folder;

    QString Copy(const QString& name) const { return m_folder + u'/' + name; }

private slots:
    void init() {
        m_home = std::make_unique<TestHome>(TestHome::DemoSite);
        gDatabasePath = m_home->Store();
        AddEvents(5000);
        m_folder = m_home->File("backups");
        QVERIFY(QDir().mkdir(m_folder));
    }
    void cleanup() { m_home.reset(); }

    void CopiesTheOpenStore() {
        constexpr auto Private =
            QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QFile::setPermissions(m_home->Store(), Private);
        const QString name = QString(QChar(0x20ac)).repeated(83) + ".mdb"; // 253 bytes
        QVERIFY(BackUpStore(Copy(name), GoOn));
        QVERIFY(BytesOf(Copy(name)) == BytesOf(m_home->Store()));
        QCOMPARE(QFile::permissions(Copy(name)), Private);
        QCOMPARE(FilesIn(m_folder), QStringList(name));
    }

    void IsRefused_data() {
        const TestTable<QString, QString> row("name", "cause");
        row("existing", "backups/existing", "already in use");
        row("a folder", "backups", "already in use");
        row("a link that leads nowhere", "backups/dangling", "already in use");
        row("the store", "main.mdb", "The program itself uses this file.");
        row("the store by a link", "backups/link", "The program itself uses this file.");
        for (const QString own : {"main.mdb-journal", "temp.mdb", "Temp.MDB", "error.log"})
            row(qPrintable(own), own, "The program itself uses this file.");
        row("no folder", "nowhere/x.mdb", "The file or its folder does not exist.");
    }
    void IsRefused() {
        QFETCH(QString, name);
        QFETCH(QString, cause);
        WriteBytes(Copy("existing"), "x");
        QVERIFY(QFile::link("nowhere", Copy("dangling")));
        QVERIFY(QFile::link(m_home->Store(), Copy("link")));
        const QByteArray store = BytesOf(m_home->Store());
        const QStringList before = FilesIn(m_folder) + FilesIn(m_home->File(""));
        const QString said = DescriptionOf([&] { BackUpStore(m_home->File(name), GoOn); });
        QVERIFY2(said.startsWith("The database was not copied.\n") && said.contains(cause),
                 qPrintable(said));
        QCOMPARE(FilesIn(m_folder) + FilesIn(m_home->File("")), before);
        QVERIFY(BytesOf(m_home->Store()) == store && BytesOf(Copy("existing")) == "x");
    }

    void LeavesNoFileIfItFails() {
        int calls = 0;
        const auto count = [&](int, int) { return ++calls > 0; };
        QVERIFY(BackUpStore(Copy("x"), count));
        QVERIFY(QFile::remove(Copy("x")) && calls > 10);
        for (int last = 0; last < calls; last += calls / 10) {
            int left = last;
            QVERIFY(!BackUpStore(Copy("x"), [&](int, int) { return left-- > 0; }));
            QCOMPARE(FilesIn(m_folder), QStringList());
        }
        {
            const ResourceLimit limit(RLIMIT_FSIZE, 100'000);
            QVERIFY(DescriptionOf([&] { BackUpStore(Copy("x"), GoOn); }).contains("too large"));
        }
        QCOMPARE(FilesIn(m_folder), QStringList());

        TestHome::Close();
        QByteArray bytes = BytesOf(m_home->Store());
        bytes[bytes.size() / 2] = static_cast<char>(bytes[bytes.size() / 2] ^ 1);
        WriteBytes(m_home->Store(), bytes);
        QVERIFY(m_home->Open());
        QCOMPARE(DescriptionOf([&] { BackUpStore(Copy("x"), GoOn); }),
                 "The database was not copied.\nThe database itself is damaged.");
        QCOMPARE(FilesIn(m_folder), QStringList());
        QVERIFY(!ExamineStore(*gConn).damage.isEmpty());
    }

    void RemovesOnlyTheOldestBackups() {
        const QStringList kept = {
            "WK_Backup_2025-01-01.mdb",      "WK_Backup_2025-01-01_0000.mdb.old",
            "WK_Backup_2025-02-30_0000.mdb", "wk_backup_2025-01-01_0000.mdb",
            "WK_Backup_2026-11-22_0215.mdb", "WK_Backup_2999-01-01_0000.mdb"};
        const QStringList old = {"WK_Backup_2025-01-01_0000.mdb", "WK_Backup_2026-10-25_0230.mdb"};
        for (const QString& name : kept + old)
            WriteBytes(Copy(name), QByteArray(LeastStoreBytes, 'x'));
        const QString cutShort = "WK_Backup_2026-11-23_0215.mdb";
        WriteBytes(Copy(cutShort), QByteArray(LeastStoreBytes - 1, 'x'));
        const QString link = "WK_Backup_2024-01-01_0000.mdb";
        QVERIFY(QFile::link(Copy(kept[0]), Copy(link)));
        // The clock was set back: the new backup has the oldest name.
        const QString made =
            ScheduledBackupName(DateTime::FromQt(QDate(2023, 3, 4)) + DateTime::FromTime(2, 15));
        QCOMPARE(made, "WK_Backup_2023-03-04_0215.mdb");
        WriteBytes(Copy(made), "x");
        const OldBackups done = RemoveOldBackups(Copy(made), 3);
        QCOMPARE(done.removed, QStringList({Copy(old[0]), Copy(old[1])}));
        QCOMPARE(done.notRemoved, QStringList());
        QStringList left = kept + QStringList{link, made, cutShort};
        left.sort();
        QCOMPARE(FilesIn(m_folder), left);
    }

    void CheckFindsWhatIsMissingOrLost() {
        QCOMPARE(ExamineStore(*gConn).Faults(), QStringList());
        gConn->Execute("CREATE TABLE \"odd 'name\" (a TEXT)");
        gConn->Execute("DELETE * FROM tblTours WHERE ID = 1");
        gConn->Execute("UPDATE tblButtons SET lParentID = NULL WHERE ID = 1");
        gConn->Execute("UPDATE tblTourPoints SET tButtonCode = 'FFFFFF' WHERE ID = 2");
        const auto points = RowsOf("SELECT COUNT(*) FROM tblTourPoints WHERE lParentID = 1");
        QVERIFY(BackUpStore(Copy("x"), GoOn));
        Connection copy;
        OpenCopy(copy, Copy("x"));
        const StoreFindings found = ExamineStore(copy);
        QCOMPARE(found.rows.value("tblEvents"), 5000);
        QCOMPARE(found.rows.value("odd 'name", -1), 0);
        QCOMPARE(found.Faults(), (QStringList{"Buttons whose group does not exist: 1",
                                              "Tour points whose tour does not exist: " + points[0],
                                              "Tour points whose button does not exist: 1"}));
        gConn->Execute("DROP TABLE tblReaders");
        gConn->Execute("CREATE TABLE tblReaders (tReaderId TEXT)");
        gConn->Execute("DROP TABLE tblEvents");
        QCOMPARE(MissingParts(*gConn), QStringList({"tblReaders.tDescription", "tblEvents"}));
        QCOMPARE(ExamineStore(*gConn).Faults(),
                 QStringList("Missing: tblReaders.tDescription, tblEvents"));
    }
};

QTEST_GUILESS_MAIN(BackupTest)
#include "BackupTest.moc"
