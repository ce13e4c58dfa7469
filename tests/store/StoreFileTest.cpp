// The store as a file: what opens and what does not, who may open it, and what compaction and
// killed programs leave.

#include "Application.h"
#include "Connection.h"
#include "DeliveredStore.h"
#include "FileReplacement.h"
#include "Files.h"
#include "ForkedChild.h"
#include "InstanceLock.h"
#include "OutputFile.h"
#include "Rows.h"
#include "ScriptedBoxes.h"
#include "TestHome.h"
#include "TestTable.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>

#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Rows as a download writes them, in one statement.
void AddEvents(int count) {
    gConn->Execute(
        QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE "
                       "i < %1) INSERT INTO tblEvents (dtDLDateTime, tPipeID, dtDateTime, "
                       "tButtonCode, tButtonName, wGroupType) SELECT 46000, '4B5831A7', "
                       "45000 + i / 1440.0, '1A40C2', i, 1 FROM n")
            .arg(count));
}

/// Changes one bit of a file.
void Damage(const QString& path, qsizetype at) {
    QByteArray bytes = BytesOf(path);
    bytes[at] = static_cast<char>(bytes[at] ^ 1);
    WriteBytes(path, bytes);
}

ino_t FileNumber(const QString& path) {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : 0;
}

} // namespace

class StoreFileTest : public QObject {
    Q_OBJECT

    std::mt19937 m_random{20261121};

private slots:
    void cleanup() { qunsetenv("XDG_CACHE_HOME"); }

    void DoesNotOpen_data() {
        const TestTable<int, std::function<void(const QString&)>> row("error", "spoil");
        row("missing", 53, [](auto& path) { QFile::remove(path); });
        row("a folder", 10026, [](auto& path) { QFile::remove(path) && QDir().mkdir(path); });
        row("empty", 10026, [](auto& path) { QFile::resize(path, 0); });
        row("garbage", 10026, [](auto& path) { WriteBytes(path, QByteArray(20'000, 'g')); });
        row("cut in half", 10011,
            [](auto& path) { QFile::resize(path, QFileInfo(path).size() / 2); });
        row("cut to its first bytes", 10026, [](auto& path) { QFile::resize(path, 100); });
        row("damaged first page", 10026, [](auto& path) { Damage(path, 500); });
        row("another password on it", 10026, [](auto& path) {
            QFile::remove(path);
            CreateStoreFile(path, "Kelp7734");
        });
    }
    void DoesNotOpen() {
        QFETCH(std::function<void(const QString&)>, spoil);
        QFETCH(int, error);
        const TestHome home(TestHome::DemoSite);
        TestHome::Close();
        spoil(home.Store());
        const QByteArray before = BytesOf(home.Store());
        const QString cause = error == 53      ? "The file does not exist."
                              : error == 10026 ? "Its password is different, or it is damaged. If "
                                                 "it is damaged, please restore a backup."
                                               : "It is damaged. Please restore a backup.";
        const QString number = QStringLiteral(" Failed. Exiting...\nError #%1\n").arg(error);
        ScriptedBoxes boxes;
        QVERIFY(!ADOTest(home.Store(), StorePassword));
        QVERIFY(home.TakeLog().startsWith("ADOTest" + number));
        QVERIFY(!ADOInit(home.Store(), StorePassword));
        QVERIFY(home.TakeLog().startsWith("ADOInit" + number));
        QCOMPARE(boxes.Messages.value(0).caption, QString());
        QCOMPARE(boxes.Messages.value(1).caption, "Wardlock Lite");
        QCOMPARE(boxes.Messages.value(1).kind, MessageKind::Critical);
        QCOMPARE(boxes.TakeTexts(),
                 (QStringList{"*** System Error: Cannot Open the database at " + home.Store() +
                                  "\n\n" + cause,
                              "Cannot Open the database, please check that the database file is "
                              "available.\n\n" +
                                  cause}));
        home.Compact();
        QVERIFY(!QFile::exists(home.Temp()) && !QFile::exists(home.File("main.ldb")));
        QCOMPARE(boxes.TakeTexts(), QStringList()); // compaction shows nothing
        QVERIFY(BytesOf(home.Store()) == before);
    }

    void StockShellOpensIt() {
        if (QStandardPaths::findExecutable("sqlcipher").isEmpty())
            QSKIP("no sqlcipher shell");
        const TestHome home(TestHome::DemoSite);
        TestHome::Close();
        for (int pass = 0; pass < 2; ++pass, home.Compact()) {
            QProcess shell;
            shell.start("sqlcipher", {home.Store()});
            shell.write("PRAGMA key = 'kelp7734';\nSELECT ID, tButtonName FROM tblButtons WHERE "
                        "tButtonCode = '7E0003';\nPRAGMA integrity_check;\n");
            shell.closeWriteChannel();
            QVERIFY(shell.waitForFinished());
            const QByteArray out = shell.readAllStandardOutput();
            QVERIFY2(out.endsWith("11|Water leak\nok\n"), out.constData());
        }
    }

    void OneProcessAtATime() {
        const TestHome home(TestHome::DemoSite);
        const QString lock = home.File("main.ldb");
        QVERIFY(QFile::exists(lock));
        {
            Connection second; // of the same process
            second.Open(ConnectionText(home.Store(), StorePassword));
            TestHome::Close();
            QVERIFY(QFile::exists(lock));
        }
        QVERIFY(!QFile::exists(lock));

        ForkedChild other([&](int out) {
            home.Open();
            (void)::write(out, "o", 1);
            ::pause();
        });
        QCOMPARE(other.Read(1), "o");
        ScriptedBoxes boxes;
        QVERIFY(!ADOTest(home.Store(), StorePassword));
        QVERIFY(home.TakeLog().contains("Error #3045\nCould not use '"));
        QVERIFY(boxes.TakeTexts().value(0).contains("It is in use by StoreFileTest (process "));
        const ino_t before = FileNumber(home.Store());
        home.Compact();
        QCOMPARE(FileNumber(home.Store()), before); // not while the other works on it
        other.Kill();
        QVERIFY(QFile::exists(lock));
        boxes.TakeTexts();
        QVERIFY(home.Open());
        QCOMPARE(boxes.TakeTexts(), QStringList());
    }

    void OneInstanceAtATime() {
        const TestHome home(TestHome::NoStore);
        qputenv("XDG_CACHE_HOME", home.File({}).toUtf8());
        ForkedChild other([](int out) {
            const auto lock = TakeInstanceLock();
            (void)::write(out, lock ? "o" : "-", 1);
            ::pause();
        });
        QCOMPARE(other.Read(1), "o");
        QVERIFY(!TakeInstanceLock());
        QVERIFY(QDir().mkdir(home.File("other home")));
        SetAppPath(home.File("other home"));
        QVERIFY(TakeInstanceLock());
        SetAppPath(home.File({}));
        other.Kill();
        QCOMPARE(QDir(home.File("wardlock")).entryList({"*.lock"}).size(), 1);
        QVERIFY(TakeInstanceLock());
    }

    // Only a lock of the operating system keeps others out, whatever the file says.
    void LockFileOfNobody() {
        const TestHome home(TestHome::DemoSite);
        for (const QByteArray& content :
             {QByteArray(), QByteArray(64, '\0'),
              QByteArray::number(::getpid()) + "\nwardlock\n", // in a container numbers recur
              QByteArray("1\nwardlock\nelse\n")}) {            // on another machine
            TestHome::Close();
            WriteBytes(home.File("main.ldb"), content);
            QVERIFY2(home.Open(), qPrintable(home.TakeLog()));
        }
    }

    // The store is a link to a file in a folder with ";" in its name.
    void CompactsTheTargetOfALink() {
        const TestHome home(TestHome::DemoSite);
        TestHome::Close();
        const QString folder = home.File("a; b = \"c\" \"");
        QVERIFY(QDir().mkdir(folder));
        const QString target = folder + "/night.mdb";
        QVERIFY(QFile::rename(home.Store(), target) && QFile::link(target, home.Store()));
        const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        QVERIFY(QFile::setPermissions(target, permissions));
        if (::geteuid() == 0)
            QCOMPARE(::chown(QFile::encodeName(target).constData(), 12345, 54321), 0);
        const ino_t before = FileNumber(target);
        home.Compact();
        QVERIFY(QFileInfo(home.Store()).isSymLink() && FileNumber(target) != before);
        const QFileInfo compacted(target);
        QVERIFY(compacted.permission(permissions) && !compacted.permission(QFile::ReadOther));
        if (::geteuid() == 0)
            QCOMPARE(std::pair(compacted.ownerId(), compacted.groupId()),
                     std::pair(12345U, 54321U));
        QVERIFY(home.Open());
        QVERIFY(QFile::exists(folder + "/night.ldb") && !QFile::exists(home.File("main.ldb")));
        for (const QString& open : {home.Store(), target, folder + "/night.ldb"})
            QCOMPARE(ErrorOf([&] { OutputFile file(open); }), 55); // must not be overwritten
        const OutputFile allowed(folder + "/night.pdf");
        Connection byText;
        byText.Open(ConnectionText(target, StorePassword));
        WriteBytes(folder + "/temp.mdb", "left over");
        gDatabasePath = home.Store();
        RemoveLeftoverCopies(home.Temp());
        QVERIFY(!QFile::exists(folder + "/temp.mdb"));
    }

    void ANewFileReplacesNone() {
        const TestHome home(TestHome::NoStore);
        const QString path = home.Store();
        MakeDeliveredStore(path, StoreContent::Demo);
        QVERIFY(ErrorOf([&] { MakeDeliveredStore(path, StoreContent::Empty); }) != 0);
        const QByteArray whole = BytesOf(path);
        WriteBytes(home.File("other"), "other");
        QVERIFY(ErrorOf([&] { PlaceNewFile(home.File("other"), path); }) != 0);
        QVERIFY(BytesOf(path) == whole && BytesOf(home.File("other")) == "other");
        QCOMPARE(QDir(home.File({})).entryList(QDir::Files).size(), 2);
    }

    // A program is killed within a transaction, and then the store is replaced by a backup: an
    // older one, when the journal holds all pages, or one of the same session, when it holds some.
    void JournalOfAnotherFile_data() {
        const TestTable<bool, QString> row("sameSession", "halfDone");
        row("older", false, "UPDATE tblEvents SET tButtonDesc = 'half done'");
        row("same session", true, "DELETE FROM tblEvents WHERE ID > 1000 AND ID < 1800");
    }
    void JournalOfAnotherFile() {
        QFETCH(QString, halfDone);
        QFETCH(bool, sameSession);
        const TestHome home(TestHome::DemoSite);
        AddEvents(3000);
        TestHome::Close();
        const QString journal = home.Store() + "-journal";
        QVERIFY(QFile::copy(home.Store(), home.File("backup")));
        if (!sameSession)
            home.Compact();
        home.Open();
        gConn->Execute("UPDATE tblEvents SET tButtonDesc = 'moved to other pages, all of them'");
        TestHome::Close();
        ForkedChild child([&](int out) {
            home.Open();
            gConn->Execute("PRAGMA cache_size = 5"); // so that pages are written
            gConn->BeginTrans();
            gConn->Execute(halfDone);
            (void)::write(out, "o", 1);
            ::pause();
        });
        QCOMPARE(child.Read(1), "o");
        child.Kill();
        QVERIFY(QFileInfo(journal).size() > 0);
        ScriptedBoxes boxes;
        QVERIFY(QFile::copy(home.Store(), home.File("own")) &&
                QFile::copy(journal, home.File("own-journal")));
        const QString moved = "moved to other pages, all of them|3000";
        const QString descriptions =
            "SELECT tButtonDesc, COUNT(*) AS n FROM tblEvents GROUP BY tButtonDesc";
        QVERIFY(home.Open()); // its own journal: the half transaction is undone
        QCOMPARE(RowsOf(descriptions), QStringList(moved));
        TestHome::Close();
        QCOMPARE(boxes.TakeTexts(), QStringList());

        QFile::remove(home.Store());
        QVERIFY(QFile::copy(home.File("backup"), home.Store()) &&
                QFile::copy(home.File("own-journal"), journal));
        QVERIFY(home.Open());
        QCOMPARE(RowsOf(descriptions), QStringList("NULL|3000"));
        QCOMPARE(gConn->QuickCheck(), QString());
        QVERIFY(!QFile::exists(journal) && !QFile::exists(home.Store() + ".trial"));
        QCOMPARE(QDir(home.File({})).entryList({"main.mdb-journal.*"}).size(), 1);
        QVERIFY(boxes.TakeTexts().value(0).startsWith("A journal next to the database"));
    }

    void CompactionKeepsAllButTheWaste() {
        const TestHome home(TestHome::DemoSite);
        AddEvents(20'000);
        gConn->Execute("DELETE * FROM tblEvents WHERE ID > 10000 OR tButtonName = '5'");
        gConn->Execute("INSERT INTO tblReaders VALUES ('99', 'z'), ('11', 'a'), ('55', 'm')");
        gConn->Execute("DELETE * FROM tblReaders WHERE tReaderId = '99'");
        const QStringList schema = RowsOf("SELECT sql FROM sqlite_master ORDER BY name");
        const QStringList before = ContentOfStore();
        TestHome::Close();
        const qint64 size = QFileInfo(home.Store()).size();
        WriteBytes(home.Temp(), "left over");
        WriteBytes(home.Temp() + "-journal", "left over");
        home.Compact();
        QVERIFY(!QFile::exists(home.Temp()) && !QFile::exists(home.Temp() + "-journal"));
        QVERIFY(QFileInfo(home.Store()).size() < size * 3 / 4);
        QVERIFY(home.Open());
        QCOMPARE(ContentOfStore(), before);
        QCOMPARE(RowsOf("SELECT sql FROM sqlite_master ORDER BY name"), schema);
        AddEvents(1);
        QCOMPARE(RowsOf("SELECT MAX(ID) AS n FROM tblEvents"), QStringList("20001"));
        QCOMPARE(home.TakeLog(), QString());
    }

    void FailedCompactionLeavesTheStore() {
        const TestHome home(TestHome::DemoSite);
        AddEvents(2000);
        TestHome::Close();
        const QByteArray whole = BytesOf(home.Store());
        Damage(home.Store(), whole.size() / 2); // a page in the middle: the store still opens
        const QByteArray damaged = BytesOf(home.Store());
        home.Compact();
        QVERIFY(BytesOf(home.Store()) == damaged && !QFile::exists(home.Temp()));
        QVERIFY(gStoreDamaged);
        QVERIFY(home.TakeLog().startsWith("The database was not compacted. Error #10011: "));
        ScriptedBoxes boxes;
        TellOfDamage();
        QVERIFY(boxes.TakeTexts().value(0).contains("restore a backup"));
        QVERIFY(home.Open());
        gStoreDamaged = false;
        CheckStore(); // as the command line does instead of compacting
        QVERIFY(gStoreDamaged);
        TestHome::Close();
        QVERIFY(QDir().mkdir(home.Temp())); // no room for the copy
        home.Compact();
        QVERIFY(gStoreDamaged);
        WriteBytes(home.Store(), whole);
        home.Compact();
        QVERIFY(BytesOf(home.Store()) == whole && !gStoreDamaged);
        QVERIFY(home.Open());
    }

    // Downloads and compactions are killed. There is a store at every moment, and it opens. A batch
    // that was reported is whole; one that was not is whole or not there.
    void MayBeKilled() {
        const TestHome home(TestHome::DemoSite);
        QCOMPARE(RowsOf("PRAGMA synchronous"), QStringList("3")); // the folder, too
        TestHome::Close();
        gDatabasePath = home.Store();
        constexpr int rowsEach = 500;
        int stored = 0, halfDone = 0, replaced = 0;
        for (int round = 0; round < 24; ++round) {
            const bool compacts = round % 2;
            const ino_t before = FileNumber(home.Store());
            ForkedChild child([&](int out) {
                while (compacts)
                    home.Compact();
                home.Open();
                (void)::write(out, "o", 1);
                for (int batch = stored + 1;; ++batch) {
                    Transaction transaction(*gConn);
                    NewRows events("tblEvents");
                    for (int row = 0; row < rowsEach; ++row) {
                        events.AddNew();
                        events.Set(u"wGroupType", batch);
                        events.Set(u"tButtonName", QString(60, u'x'));
                        events.Update();
                    }
                    transaction.Commit();
                    (void)::write(out, "d", 1);
                }
            });
            QElapsedTimer timer;
            timer.start();
            if (!compacts)
                QCOMPARE(child.Read(1), "o");
            // Most of a compaction's time goes into the password's key; the copy is what matters.
            while (compacts && QFileInfo(home.Temp()).size() == 0 && timer.elapsed() < 5000)
                ::usleep(200);
            timer.start();
            for (const qint64 end = m_random() % 60; timer.elapsed() < end;)
                QVERIFY(FileNumber(home.Store()) != 0);
            child.Kill();
            const int reported = stored + static_cast<int>(child.Read(100'000).size());
            halfDone += QFile::exists(home.Store() + "-journal");
            replaced += FileNumber(home.Store()) != before;
            if (round % 4 >= 2) // the start compacts before it opens
                home.Compact();
            QVERIFY2(home.Open(), qPrintable(home.TakeLog()));
            const QStringList batches =
                RowsOf("SELECT wGroupType, COUNT(*) AS n FROM tblEvents GROUP BY wGroupType");
            stored = static_cast<int>(batches.size());
            QVERIFY(stored == reported || (!compacts && stored == reported + 1));
            for (int batch = 1; batch <= stored; ++batch)
                QCOMPARE(batches[batch - 1], QStringLiteral("%1|%2").arg(batch).arg(rowsEach));
            RemoveLeftoverCopies(home.Temp());
            QVERIFY(!QFile::exists(home.Temp()));
            TestHome::Close();
        }
        QVERIFY(stored > 0 && halfDone > 0);
        // How many kills came after the change of files depends on the machine's pace.
        qInfo("killed after the change of files: %d of 12", replaced);
    }
};

QTEST_GUILESS_MAIN(StoreFileTest)
#include "StoreFileTest.moc"
