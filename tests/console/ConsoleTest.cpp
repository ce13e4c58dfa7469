// The command line as scripts use it: the built programs, a store file and a simulated dock.

#include "CommandOptions.h"
#include "CommandParser.h"
#include "Dock.h"
#include "TestHome.h"
#include "TestTable.h"

#include <QJsonArray>

namespace {

struct Outcome {
    int status;
    QByteArray out;
    QByteArray err;

    QJsonObject Json() const { return QJsonDocument::fromJson(out).object(); }
};

/// A home with the demonstration store, and programs that run in it.
class Office : public TestHome {
public:
    explicit Office(const QString& password = QStringLiteral("keeper")) : TestHome(DemoSite) {
        Close();
        m_environment.insert("XDG_CONFIG_HOME", File("config"));
        m_environment.insert("WARDLOCK_PASSWORD", password);
        m_environment.insert("LC_ALL", "C");
    }

    Outcome Run(const QString& program, const QStringList& arguments) const {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(program, arguments);
        process.closeWriteChannel();
        process.waitForFinished(60'000);
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }
    Outcome Ctl(const QString& words) const {
        return Run(WARDLOCKCTL, QStringList{"--home", File({})} + words.split(u' '));
    }
    Outcome CtlAt(const Dock& dock, const QString& words) const {
        return Ctl(words + QStringLiteral(" --device ") + dock.Device());
    }

private:
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

const QByteArray Night = "reader 4B5831A7\n"
                         "touch 2026-11-21 23:14 1A40C2\n"
                         "touch 2026-11-21 23:16 7E0001\n"
                         "touch 2026-11-22 00:41 ABCDEF\n";

QString ReportWords(const char* more) {
    return QStringLiteral("report tour --tour 2 --reader 4B5831A7 --date 2026-11-21 ") +
           QString::fromLatin1(more);
}

/// What is wrong with a report in one of its forms. `words` leave out the form.
QStringList FaultsOfReport(const Office& office, const QString& words) {
    QStringList faults;
    const auto expect = [&](bool right, const QByteArray& fault) {
        if (!right)
            faults += words + u' ' + QString::fromUtf8(fault);
    };
    const auto written = [&](const char* form) {
        const Outcome outcome = office.Ctl(words + " --format " + QString::fromLatin1(form));
        expect(outcome.status == 0 && outcome.err.isEmpty(), outcome.err);
        return outcome.out;
    };
    const QByteArray pdf = written("pdf");
    expect(pdf.startsWith("%PDF") && pdf.contains("/Type /Page\n"), "no page");
    const QJsonObject json = QJsonDocument::fromJson(written("json")).object();
    QJsonObject row = json[u"rows"][0].toObject();
    for (const QJsonValue& value : QJsonObject(row)) // of a group: its first row
        row = value.isArray() ? value[0].toObject() : row;
    expect(!row.isEmpty(), "no row in JSON");
    QStringList columns = QString::fromUtf8(written("csv")).section("\r\n", 0, 0).split(u',');
    columns.replaceInStrings("\"", "").sort();
    expect(columns == row.keys(), "columns of CSV and JSON");
    const QByteArray title = json[u"title"].toString().toUtf8();
    expect(!title.isEmpty() && written("text").startsWith(title + "\n==="), "title of the text");
    return faults;
}

} // namespace

class ConsoleTest : public QObject {
    Q_OBJECT

private slots:
    // Each with one plain line that says why.
    void RefusesWrongUsage() {
        const QString report = QStringLiteral("report tour --tour 1 --reader 4B5831A7 ");
        const QString longWord(100'000, u'9');
        const std::pair<QString, const char*> calls[] = {
            {"", "a command is missing"},
            {"detect", "--device is required"},
            {"detect --device", "--device needs a value"},
            {"detect --device= --operator user", "--device is empty"},
            {"--home  detect --device x", "--home is empty"},
            {"detect --device x --device=y", "--device is given twice"},
            {"detect --device x --operator guest", "--operator guest: expected one of"},
            {"detect --device x -d", "unexpected argument"},
            {"detect --device \xff", "not UTF-8"},
            {"detect --device x \x1b]0;x\x07\n", "unexpected argument \"?]0;x?"},
            {"frobnicate --device /dev/null", "unknown command \"frobnicate"},
            {"list", "needs one of tours, readers"},
            {"-platform frob detect", "unknown command \"-platform frob\""},
            {"download --device x --tour 1", "unknown option --tour"},
            {"download --device x --keep=yes", "--keep takes no value"},
            {report + "--format text", "--date is required"},
            {report + "--date 21.11.2026", "--date 21.11.2026: expected a date"},
            {report + "--date 2026-02-30", "--date 2026-02-30: expected a date"},
            {"report tour --tour " + longWord, "--tour 9999"},
            {"report tour --tour 1 --reader x')UNION/**/SELECT", "eight hexadecimal digits"},
            {"reader erase --device x", "--yes is required"},
            {"reader set-clock --device x --time 2026-02-29T10:00", "expected a time"},
            {"reader set-clock --device x --time 1999-12-31T23:59", "expected a time"},
            {"reader set-options --device x --led --no-led", "--led excludes --no-led"},
            {"restore x", "--yes is required"},
            {"setup export", "FILE is required"},
            {"setup export a b", "unexpected argument \"b\""}};
        const Office office;
        for (const auto& [words, reason] : calls) {
            const Outcome outcome =
                office.Run(WARDLOCKCTL, words.isEmpty() ? QStringList() : words.split(u' '));
            QVERIFY2(outcome.status == 2, qPrintable(words.left(99)));
            QVERIFY2(outcome.err.contains(reason), outcome.err.constData());
            QVERIFY(outcome.err.startsWith("wardlockctl: ") && outcome.out.isEmpty());
            QVERIFY(outcome.err.count('\n') == 1 && outcome.err.size() < 500);
            QVERIFY(!outcome.err.contains('\x1b') && !outcome.err.contains('\x07'));
        }
    }

    void ReadsRepeatedOptionsAndAnyMinute() {
        CommandParser parser("wardlockctl", "do");
        QStringList readers;
        DateTime from, to;
        AddReaders(parser.Options(), "--reader", readers, "");
        AddRange(parser.Options(), from, to, LastMinute::Whole);
        parser.Parse({"--from=0100-01-01T00:00", "--reader", "4b5831a7", "do",
                      "--to=9999-12-31T23:59", "--reader=00000001", "--reader", "4B5831A7"});
        QCOMPARE(readers, (QStringList{"4B5831A7", "00000001"}));
        QCOMPARE(to, DateTime::FromQt(QDate(9999, 12, 31)) + DateTime::FromTime(23, 59, 59));
        QCOMPARE(from, DateTime::FromQt(QDate(100, 1, 1)));
        for (const char* wrong :
             {"--to 0099-12-31T23:59", "--to 10000-01-01T00:00", "--to 2026-11-21T24:00",
              "--to 2026-11-21T10:00:00", "--to 2026-11-21T10:00 --reader 4B5831A7 00000001",
              "--to 2026-11-21T10:00 --reader 4B5831A7 --reader x"})
            QVERIFY_THROWS_EXCEPTION(UsageError,
                                     parser.Parse(QStringList{"do", "--from=2026-11-21T00:00"} +
                                                  QString::fromLatin1(wrong).split(u' ')));
    }

    // An example that is wrong usage would end with 2; without a store it ends with 1. That of a
    // report makes a report of the demonstration's night, in every form.
    void DescribesEachCommandWithAnExampleThatWorks() {
        const Office office, night;
        QFile::remove(office.Store());
        Dock dock(Night);
        QCOMPARE(night.CtlAt(dock, "download").status, 0);
        const Outcome overview = office.Ctl("--help");
        QCOMPARE(overview.status, 0);
        int commands = 0;
        for (const QString& line : QString::fromUtf8(overview.out).split(u'\n')) {
            if (!line.startsWith(u"  ") || line.startsWith(u"   "))
                continue;
            const QString words = line.trimmed().section("  ", 0, 0);
            const Outcome help = office.Ctl(words + QStringLiteral(" --help"));
            QCOMPARE(help.status, 0);
            const QString example =
                QString::fromUtf8(help.out).section("Example: wardlockctl ", 1).trimmed();
            QVERIFY2(example.startsWith(words), help.out.constData());
            const Outcome outcome = office.Ctl(example);
            QVERIFY2(outcome.status == 1 && outcome.err.count('\n') == 1, qPrintable(example));
            if (example.contains("--format"))
                QCOMPARE(FaultsOfReport(night, example.section(" --format", 0, 0)), QStringList());
            ++commands;
        }
        QVERIFY(commands > 1);
    }

    void NeedsALogin() {
        Dock dock(Night);
        for (const auto& [login, password, status] :
             {std::tuple("master", "Keeper", 0), std::tuple("user", " crew ", 0),
              std::tuple("master", "crew", 1), std::tuple("user", "", 1)}) {
            const Outcome outcome =
                Office(password).CtlAt(dock, QStringLiteral("detect --operator ") + login);
            QCOMPARE(outcome.status, status);
            QCOMPARE(outcome.err.count('\n'), status);
        }
    }

    void FreshStoreMakesItsOperators() {
        const Office office;
        QFile::remove(office.Store());
        QCOMPARE(office.Run(MKSTORE, {office.Store()}).status, 0);
        QCOMPARE(office.Run(MKSTORE, {"--demo", office.File("demo.mdb")}).status, 0);
        const QString words = ReportWords("--format json");
        const Outcome first = office.Ctl(words);
        QCOMPARE(first.status, 1);
        QVERIFY(first.err.contains("The User Name / Password are incorrect."));
        const Outcome second = office.Ctl(words);
        QCOMPARE(second.Json()[u"message"].toString(),
                 "Error in creating new Tour\r\n<ERROR #0001>");
    }

    void DownloadsReportsAndErases() {
        const Office office;
        Dock dock(Night);
        const Outcome download = office.CtlAt(dock, "download --json");
        QCOMPARE(download.status, 0);
        const QJsonObject json = download.Json();
        QCOMPARE(json[u"reader"].toString(), "4B5831A7");
        QCOMPARE(json[u"erased"].toBool(), true);
        const QJsonArray touches = json[u"touches"].toArray();
        QCOMPARE(touches.size(), 3);
        QCOMPARE(touches[1].toObject(), (QJsonObject{{"time", "2026-11-21T23:16:00"},
                                                     {"code", "7E0001"},
                                                     {"name", "Door found open"},
                                                     {"group", "Incidents"},
                                                     {"type", 2}}));
        QCOMPARE(touches[2][u"name"].toString(), "Unknown");
        const QJsonObject state = dock.State();
        QCOMPARE(state[u"touches"].toInt(), 0);
        QVERIFY(state[u"clock"].isString());

        const Outcome report = office.Ctl(ReportWords("--events --all --format json"));
        QCOMPARE(report.status, 0);
        QCOMPARE(report.Json()[u"title"].toString(), "Tour Report");
        const QJsonArray rows = report.Json()[u"rows"].toArray();
        QCOMPARE(rows[1].toObject().size(), 11);
        QCOMPARE(rows[1][u"tStatus"].toString(), "ON TIME");
        QVERIFY(rows[1][u"txtEventTime"].isNull());
        QCOMPARE(rows[3][u"txtEventStatus"].toString(), "EVENT");

        const Outcome failed = office.Ctl(ReportWords("--format pdf --output /nowhere/report.pdf"));
        QCOMPARE(failed.status, 1);
        QCOMPARE(failed.err.count('\n'), 1);
    }

    // Standard error has the words of the JSON, and may go on with the advice of the box.
    void SaysWhyThereIsNoReport() {
        const Office office;
        const auto expect = [&](const char* words, const QString& sentence) {
            const Outcome outcome =
                office.Ctl(QLatin1String("report ") + words +
                           " --from 2026-11-21T00:00 --to 2026-11-22T23:59 --format json");
            QCOMPARE(outcome.status, 1);
            QVERIFY2(outcome.err.startsWith(sentence.simplified().toUtf8()), outcome.err.constData());
            QCOMPARE(outcome.err.count('\n'), 1);
            QCOMPARE(outcome.Json()[u"message"].toString(), sentence);
        };
        const auto execute = [&](const char* statement) {
            QVERIFY(office.Open());
            gConn->Execute(QString::fromLatin1(statement));
            TestHome::Close();
        };
        expect("incident --reader 00FF00FF", "No records for the given parameters");
        execute("DELETE * FROM tblReaders");
        expect("incident", "You must add at least one reader before this report can be used");
        expect("incident --reader 00FF00FF", "No records for the given parameters");
        office.TakeLog();
        execute("DROP TABLE tblReaders");
        expect("downloads --reader 00FF00FF",
               "The report could not be created. See error.log for the reason.");
        QCOMPARE(office.TakeLog().count("report of wardlockctl"), 1);
    }

    // What a script needs to make a call: IDs for names.
    void ListsWhatACallCanName() {
        const Office office("crew");
        const auto list = [&office](const char* words) {
            return office.Ctl(QLatin1String(words) + " --operator user").out;
        };
        QCOMPARE(list("list tours"),
                 "ID  NAME         DESCRIPTION                       START  TOLERANCE\n"
                 " 1  Day round    Office Tower, once a day          14:00          5\n"
                 " 2  Night round  Harbour Warehouse, over midnight  23:15          5\n");
        const std::pair<const char*, const char*> firsts[] = {
            {"list readers", R"({"description":"Night reader","id":"4B5831A7"})"},
            {"list sites",
             R"({"description":"Pier 4, north side","id":1,"name":"Harbour Warehouse"})"},
            {"list events",
             R"({"code":"7E0001","group":"Incidents","id":9,"name":"Door found open"})"},
            {"report list", R"({"description":"Exception Report","name":"Tour / Exception Report",)"
                            R"("word":"tour"})"}};
        for (const auto& [words, first] : firsts) {
            const auto json =
                QJsonDocument::fromJson(list(qPrintable(words + QStringLiteral(" --json"))));
            QCOMPARE(QJsonDocument(json[0].toObject()).toJson(QJsonDocument::Compact), first);
        }
        QFile::remove(office.Store());
        QCOMPARE(office.Run(MKSTORE, {office.Store()}).status, 0);
        list("list tours"); // makes the operator known
        QCOMPARE(list("list events"), "ID  CODE  NAME  GROUP\n");
        QCOMPARE(list("list readers --json"), "[]\n");
    }

    void Commands_data() {
        // `output` is its beginning, or "!" and that of the message; `state`, values of the dock.
        const TestTable<QByteArray, QString, QByteArray, QJsonObject> row("scenario", "words",
                                                                          "output", "state");
        const QJsonObject kept{{"touches", 3}};
        row("keep", Night, "--keep download --json", R"({"erased":false,"reader":"4B5831A7")",
            kept);
        row("no device", Night, "--device=/nowhere download", "!/nowhere: Could not open", kept);
        row("download, erase refused", Night + "refuse erase 1", "download",
            "!Reader Memory NOT erased!", kept);
        row("download, end mark in mid-memory",
            Night + "record 00 00 00 00\ntouch 2026-11-22 00:50 1A40C2", "download",
            "!The reader's memory ", kept);
        row("download, no reader", Night + "remove", "download", "!Reader not detected.", kept);
        row("download, silent to the read", Night + "silent read", "download", "!Download Failed",
            kept);
        row("identify", Night, "reader identify", "4B5831A7 - ", {});
        row("identify, untaught", "reader 00FF00FF", "reader identify --json",
            R"({"description":"","known":false,"reader":"00FF00FF"})", {});
        row("identify, no reader", Night + "remove", "reader identify", "!Reader not detected.",
            {});
        row("identify, silent", Night + "silent read", "reader identify",
            "!Reader ID Download Failed", {});
        row("firmware", Night + "firmware 08", "reader firmware", "Firmware Version is V06", {});
        row("firmware as JSON", Night, "reader firmware --json", R"({"firmware":"V06"})", kept);
        row("firmware, not reported", Night + "firmware FF", "reader firmware",
            "!The reader did not report", {});
        row("clock", Night, "reader set-clock --json --time 2024-02-29T23:59",
            R"({"clock":"2024-02-29T23:59"})", {{"clock", "2024-02-29T23:59"}});
        row("clock refused", Night + "refuse clock 1", "reader set-clock",
            "!Reader Clock update failed.", {{"clock", QJsonValue()}});
        row("options", Night, "reader set-options --no-buzzer --long", "Reader update successful",
            {{"options", 14}});
        row("options as JSON", Night, "reader set-options --json --no-led --no-vibration --short",
            R"({"buzzer":true,"led":false,"long":false,"vibration":false})", {{"options", 1}});
        row("no option left", Night, "reader set-options --no-buzzer --no-led --no-vibration",
            "!You must select at least one of the reader options", {{"options", QJsonValue()}});
        row("options refused", Night + "refuse options 1 02", "reader set-options --no-led",
            "!Reader update failed. Please try again.", {{"options", QJsonValue()}});
        row("erase", Night, "reader erase --yes", "Reader Erased", {{"touches", 0}, {"erased", 1}});
        row("erase as JSON", Night, "reader erase --yes --json", R"({"erased":true})", {});
        row("erase refused", Night + "refuse erase 1", "reader erase --yes",
            "!Reader Memory NOT erased!", kept);
        row("silent dock", Night + "silent", "reader erase --yes",
            "!Could not connect to the docking station.", kept);
        row("not the user's", Night, "reader erase --yes --operator user",
            "!Only the master may do this.", kept);
    }
    void Commands() {
        QFETCH(QByteArray, scenario);
        QFETCH(QString, words);
        QFETCH(QByteArray, output);
        QFETCH(QJsonObject, state);
        const Office office(words.contains(u"user") ? "crew" : "keeper");
        Dock dock(scenario);
        const Outcome outcome =
            words.contains(u"--device") ? office.Ctl(words) : office.CtlAt(dock, words);
        const bool fails = output.startsWith('!');
        QCOMPARE(outcome.status, fails ? 1 : 0);
        QCOMPARE(outcome.err.count('\n'), fails ? 1 : 0);
        QVERIFY(outcome.out.isEmpty() == fails || words == u"download"); // which lists the touches
        const QByteArray result = words.contains(u"--json")
                                      ? QJsonDocument(outcome.Json()).toJson(QJsonDocument::Compact)
                                  : fails ? '!' + outcome.err
                                          : outcome.out;
        QVERIFY2(result.startsWith(output), result.constData());
        const QJsonObject after = dock.State();
        for (auto value = state.begin(); value != state.end(); ++value)
            QVERIFY2(after[value.key()] == value.value(), qPrintable(value.key()));
    }

    // An option that is not given keeps its value from the last call.
    // The password is that of the store or, if the store cannot be opened, that of the backup.
    void Restores() {
        const Office office, stranger("wrong");
        const QStringList words{"--home", office.File({}), "restore", office.File("backup.mdb"),
                                "--yes"};
        QVERIFY(QFile::copy(office.Store(), office.File("backup.mdb")));
        const QByteArray backup = BytesOf(office.Store());
        for (const QByteArray& spoilt : {backup + "?", QByteArray(9999, '?'), QByteArray()}) {
            QFile::remove(office.Store());
            if (!spoilt.isEmpty())
                WriteBytes(office.Store(), spoilt);
            QCOMPARE(stranger.Run(WARDLOCKCTL, words).status, 1);
            QVERIFY(BytesOf(office.Store()) == spoilt);
            const Outcome outcome = office.Run(WARDLOCKCTL, words);
            QVERIFY2(outcome.status == 0 && outcome.err.isEmpty(), outcome.err.constData());
            QVERIFY(outcome.out.startsWith("Successfully copied the database\nFrom: "));
            QVERIFY(BytesOf(office.Store()) == backup);
        }
    }

    void OptionsAddUp() {
        const Office office;
        Dock dock(Night);
        for (const auto& [words, options] :
             {std::pair("--no-led", 5), std::pair("--long", 13), std::pair("--no-buzzer", 12)}) {
            QCOMPARE(office.CtlAt(dock, QStringLiteral("reader set-options ") + words).status, 0);
            QCOMPARE(dock.State()[u"options"].toInt(), options);
        }
    }
};

QTEST_GUILESS_MAIN(ConsoleTest)
#include "ConsoleTest.moc"
