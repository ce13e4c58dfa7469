// A restore replaces the store by a checked copy, or leaves it as it was.

#include "Connection.h"
#include "Files.h"
#include "ForkedChild.h"
#include "ResourceLimit.h"
#include "ScriptedBoxes.h"
#include "StoreRestore.h"
#include "TestHome.h"
#include "TestTable.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {

bool GoOn(int, int) { return true; }

/// A demonstration store, closed, and a backup of it with one reader more.
class Office : public TestHome {
public:
    Office() : TestHome(DemoSite) {
        Close();
        QFile::copy(Store(), File("old"));
        Open();
        gConn->Execute("INSERT INTO tblReaders VALUES ('0A0B0C0D', 'restored')");
        Close();
        QFile::rename(Store(), Backup());
        QFile::rename(File("old"), Store());
    }
    QString Backup() const { return File("backup.mdb"); }

    void Restore(const QString& source) const {
        StoreRestore restore(Store(), source);
        if (!restore.LockStore() || !restore.MakeCopy(GoOn))
            qFatal("nobody else uses the store or cancels");
        restore.Replace();
    }
    QString Readers() const {
        Open();
        QString readers = RowsOf("SELECT tDescription FROM tblReaders").join(u' ');
        Close();
        return readers;
    }
    QStringList Files() const {
        return QDir(File({})).entryList({"*mdb*", "*ldb*"}, QDir::AllEntries | QDir::System);
    }
    /// Kills a process within a transaction on the store, so that its journal is left.
    void KillWithin(const QString& statement) const {
        ForkedChild child([&](int out) {
            Open();
            gConn->Execute("PRAGMA cache_size = 5"); // so that pages are written
            gConn->BeginTrans();
            gConn->Execute(statement);
            (void)::write(out, "o", 1);
            ::pause();
        });
        child.Read(1);
        child.Kill();
    }
};

const QString Restored = QStringLiteral("Night reader restored");
const QString HalfDone =
    QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
                   "INSERT INTO tblReaders SELECT i, 'half done' FROM n");

} // namespace

class RestoreTest : public QObject {
    Q_OBJECT

private slots:
    void Refuses_data() {
        using Make = std::function<QString(const Office&)>;
        const TestTable<Make, QString> row("make", "cause");
        const QString other = "The chosen file is not a database of this program";
        const auto spoilt = [](auto spoil) {
            return [=](const Office& office) {
                spoil(office.Backup());
                return office.Backup();
            };
        };
        const auto named = [](const char* name) {
            return [=](const Office& office) { return office.File(name); };
        };
        row("missing", named("gone"), "The file does not exist.");
        row("a folder", named(""), other + '.');
        row("the store", named("main.mdb"), "This file is the database itself.");
        row("a link to it", spoilt([](const QString& path) {
                QFile::remove(path);
                (void)::link(qUtf8Printable(QFileInfo(path).dir().filePath("main.mdb")),
                             qUtf8Printable(path));
            }),
            "This file is the database itself.");
        row("a pipe", spoilt([](const QString& path) {
                QFile::remove(path);
                ::mkfifo(qUtf8Printable(path), 0600);
            }),
            other + '.');
        row(
            "a device", [](auto&) { return "/dev/zero"; }, other + '.');
        row(
            "a file of the system", [](auto&) { return "/proc/self/maps"; }, other + ", its");
        row("empty", spoilt([](const QString& path) { QFile::resize(path, 0); }), other + ", its");
        row("text", spoilt([](const QString& path) { WriteBytes(path, QByteArray(9999, 't')); }),
            other + ", its");
        row("another password", spoilt([](const QString& path) {
                QFile::remove(path);
                CreateStoreFile(path, "Kelp7734");
            }),
            other + ", its");
        row("damaged", spoilt([](const QString& path) {
                QByteArray bytes = BytesOf(path);
                bytes[bytes.size() / 2] = static_cast<char>(~bytes[bytes.size() / 2]);
                WriteBytes(path, bytes);
            }),
            "damaged");
        row("no events", spoilt([](const QString& path) {
                Connection store;
                store.Open(ConnectionText(path, StorePassword));
                store.Execute("DROP TABLE tblEvents");
            }),
            "It lacks tblEvents");
    }
    void Refuses() {
        QFETCH(std::function<QString(const Office&)>, make);
        QFETCH(QString, cause);
        const Office office;
        const QString source = make(office);
        const QByteArray before = BytesOf(office.Store());
        const QStringList files = office.Files();
        const QString said = DescriptionOf([&] { office.Restore(source); });
        QVERIFY2(said.startsWith("The database was not restored. It is as it was before.\n") &&
                     said.contains(cause),
                 qPrintable(said));
        QVERIFY(BytesOf(office.Store()) == before);
        QCOMPARE(office.Files(), files);
    }

    void RefusesAFileInUseAndAFullDisk() {
        const Office office;
        {
            ForkedChild other([&](int out) {
                Connection store;
                store.Open(ConnectionText(office.Backup(), StorePassword));
                (void)::write(out, "o", 1);
                ::pause();
            });
            QCOMPARE(other.Read(1), "o");
            QVERIFY(DescriptionOf([&] {
                        office.Restore(office.Backup());
                    }).contains("It is in use by RestoreTest (process "));
        }
        {
            const ResourceLimit limit(RLIMIT_FSIZE, 8000);
            QVERIFY(ErrorOf([&] { office.Restore(office.Backup()); }) != 0);
        }
        StoreRestore restore(office.Store(), office.Backup());
        QVERIFY(restore.LockStore());
        QVERIFY(!restore.MakeCopy([](int, int) { return false; })); // cancelled
        QVERIFY(!QFile::exists(restore.CopyPath()));
    }

    // From read-only media, over a store that is a link, not writable, and damaged or missing.
    void RestoresOverAnyStore_data() {
        const TestTable<QByteArray> row("content");
        row("a sound store", "sound");
        row("garbage", QByteArray(5000, 'g'));
        row("nothing", "");
    }
    void RestoresOverAnyStore() {
        QFETCH(QByteArray, content);
        const Office office;
        const QString target = office.File("real/night.mdb");
        QVERIFY(QDir(office.File({})).mkdir("real") && QFile::rename(office.Store(), target) &&
                QFile::link(target, office.Store()));
        if (content != "sound")
            WriteBytes(target, content);
        WriteBytes(target + "-journal", "of the old store");
        QCOMPARE(::chmod(qUtf8Printable(target), 0440), 0);
        QCOMPARE(::chmod(qUtf8Printable(office.Backup()), 0444), 0);
        if (content.isEmpty())
            QFile::remove(target);
        ScriptedBoxes boxes;
        office.Restore(office.Backup());
        QCOMPARE(boxes.TakeTexts().join(u'|').startsWith("Error : "), content.startsWith('g'));
        QVERIFY(QFileInfo(office.Store()).isSymLink());
        QVERIFY(BytesOf(target) == BytesOf(office.Backup()));
        QCOMPARE(QDir(office.File("real")).entryList(QDir::Files), QStringList("night.mdb"));
        const auto mode = QFile::permissions(target);
        QVERIFY(mode & QFile::WriteOwner);
        QVERIFY(content.isEmpty() || !(mode & QFile::ReadOther));
        QCOMPARE(office.Readers(), Restored);
    }

    // The unfinished transaction of the source is undone in the copy; that of the old store is
    // undone if it stays.
    void KilledPrograms() {
        const Office office;
        const QString journal = office.Store() + "-journal", source = office.File("main.bak");
        office.KillWithin(HalfDone);
        QVERIFY(QFile::copy(office.Store(), source) && QFile::copy(journal, source + "-journal"));
        const QByteArray bytes = BytesOf(source), journalBytes = BytesOf(source + "-journal");
        QVERIFY(journalBytes.size() > 0);
        WriteBytes(office.Store() + ".ldb", "of a killed restore");
        office.Restore(office.Backup());
        QVERIFY(!QFile::exists(journal) && !QFile::exists(office.Store() + ".ldb"));
        QCOMPARE(office.Readers(), Restored);
        const QStringList files = office.Files();
        office.Restore(source);
        QCOMPARE(office.Readers(), "Night reader");
        QVERIFY(BytesOf(source) == bytes && BytesOf(source + "-journal") == journalBytes);

        office.Open();
        gConn->Execute(HalfDone); // so the store has more pages than the backup
        office.Close();
        office.KillWithin("UPDATE tblReaders SET tDescription = 'not done'");
        QFile::remove(source + "-journal");
        QVERIFY(QFile::copy(journal, source + "-journal"));
        QVERIFY(QFile::remove(source) && QFile::copy(office.Backup(), source));
        office.Restore(source); // the journal belongs to another file
        QCOMPARE(office.Readers(), Restored);
        QVERIFY(office.TakeLog().contains("was not used: " + source));
        QCOMPARE(office.Files(), files);
    }

    // A store that cannot be opened keeps its journal if it stays: here a folder has its name.
    void KeepsTheJournalIfNothingIsReplaced() {
        const Office office;
        QVERIFY(QFile::remove(office.Store()) && QDir(office.File({})).mkdir("main.mdb"));
        WriteBytes(office.Store() + "-journal", "of the old store");
        const QStringList files = office.Files();
        const ScriptedBoxes boxes;
        QVERIFY(DescriptionOf([&] { office.Restore(office.Backup()); }).contains("main.mdb: "));
        QCOMPARE(office.Files(), files);
    }

    // While the store is closed, before it is locked, another program may take it.
    void AnotherProgramInThePause() {
        const Office office;
        office.Open();
        StoreRestore restore(office.Store(), office.Backup());
        QVERIFY(restore.MakeCopy(GoOn));
        QVERIFY(!restore.LockStore()); // still open
        office.Close();
        {
            ForkedChild other([&](int out) {
                office.Open();
                gDatabasePath = office.Store();
                RemoveLeftoverCopies(office.Temp());
                (void)::write(out, "o", 1);
                ::pause();
            });
            QCOMPARE(other.Read(1), "o");
            QVERIFY(!restore.LockStore());
            QVERIFY(restore.Holder().startsWith("It is in use by RestoreTest (process "));
        }
        QVERIFY(restore.LockStore());
        const QByteArray before = BytesOf(office.Store());
        QVERIFY(DescriptionOf([&] { restore.Replace(); }).contains("has used the database"));
        WriteBytes(restore.CopyPath(), "of another restore");
        QVERIFY(ErrorOf([&] { restore.Replace(); }) != 0);
        QVERIFY(BytesOf(office.Store()) == before);
    }
};

QTEST_GUILESS_MAIN(RestoreTest)
#include "RestoreTest.moc"
