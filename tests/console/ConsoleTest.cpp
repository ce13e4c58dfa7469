// The command line as scripts use it: the built programs, a store file and a simulated dock.

#include "Dock.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString Reader = QStringLiteral("4B5831A7");

struct Outcome {
    int status;
    QByteArray out;
    QByteArray err;

    QJsonObject Json() const { return QJsonDocument::fromJson(out).object(); }
};

/// A home with the demonstration store, and settings of its own.
class Office {
public:
    Office() {
        m_environment.insert("XDG_CONFIG_HOME", m_dir.filePath("config"));
        m_environment.insert("WARDLOCK_PASSWORD", "keeper");
        m_environment.insert("LC_ALL", "C");
        QDir(m_dir.path()).mkdir("home");
        Run(MKSTORE, {"--demo", Store()});
    }

    QString Home() const { return m_dir.filePath("home"); }
    QString Store() const { return Home() + QStringLiteral("/main.mdb"); }
    QString Path(const QString& name) const { return m_dir.filePath(name); }
    void SetPassword(const QString& password) {
        m_environment.insert("WARDLOCK_PASSWORD", password);
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
        return Run(WARDLOCKCTL, (QStringLiteral("--home ") + Home() + u' ' + words).split(u' '));
    }

private:
    QTemporaryDir m_dir;
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
            {"detect --dev x", "unknown option --dev"},
            {"detect --device \xff", "not UTF-8"},
            {"detect --device x \x1b]0;x\x07\n", "unexpected argument \"?]0;x?"},
            {"frobnicate --device /dev/null", "unknown command \"frobnicate"},
            {longWord, "unknown command \"9999"},
            {"-platform frob detect", "unknown command \"-platform frob\""},
            {"download --device x --tour 1", "unknown option --tour"},
            {"download --device x --keep=yes", "--keep takes no value"},
            {report + "--format text", "--date is required"},
            {report + "--date 21.11.2026", "--date 21.11.2026: expected a date"},
            {report + "--date 2026-02-30", "--date 2026-02-30: expected a date"},
            {report + "--date 2026-11-21 --format html", "--format html: expected one of"},
            {"report tour --tour " + longWord, "--tour 9999"},
            {"report tour --tour 1 --reader x')UNION/**/SELECT", "eight hexadecimal digits"},
            {"reader erase --device x", "--yes is required"},
            {"reader set-clock --device x --time 2026-02-29T10:00", "expected a time"},
            {"reader set-clock --device x --time 1999-12-31T23:59", "expected a time"},
            {"reader set-options --device x --led --no-led", "--led excludes --no-led"},
            {"setup export", "FILE is required"},
            {"setup export ", "FILE is empty"},
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

    // An example that is wrong usage would end with 2; without a store it ends with 1.
    void DescribesEachCommandWithAnExampleThatWorks() {
        const Office office;
        QFile::remove(office.Store());
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
            QVERIFY2(office.Ctl(example).status == 1, qPrintable(example));
            ++commands;
        }
        QVERIFY(commands > 1);
    }

    void NeedsALogin_data() {
        QTest::addColumn<QString>("login");
        QTest::addColumn<QString>("password");
        QTest::addColumn<int>("status");
        QTest::newRow("master") << "master"
                                << "Keeper" << 0;
        QTest::newRow("user") << "user"
                              << " crew " << 0;
        QTest::newRow("wrong") << "master"
                               << "crew" << 1;
        QTest::newRow("empty") << "user"
                               << "" << 1;
    }
    void NeedsALogin() {
        QFETCH(QString, login);
        QFETCH(QString, password);
        QFETCH(int, status);
        Office office;
        office.SetPassword(password);
        Dock dock(Night);
        const Outcome outcome = office.Ctl(QStringLiteral("detect --device ") + dock.Device() +
                                           QStringLiteral(" --operator ") + login);
        QCOMPARE(outcome.status, status);
        QCOMPARE(outcome.err.count('\n'), status);
    }

    void FreshStoreMakesItsOperators() {
        Office office;
        QFile::remove(office.Store());
        QCOMPARE(office.Run(MKSTORE, {office.Store()}).status, 0);
        const QString words = ReportWords("--format json");
        const Outcome first = office.Ctl(words);
        QCOMPARE(first.status, 1);
        QVERIFY(first.err.contains("The User Name / Password are incorrect."));
        const Outcome second = office.Ctl(words);
        QCOMPARE(second.Json()[u"message"].toString(),
                 "Error in creating new Tour\r\n<ERROR #0001>");
    }

    void DownloadsReportsAndErases() {
        Office office;
        Dock dock(Night);
        const Outcome download =
            office.Ctl(QStringLiteral("download --json --device ") + dock.Device());
        QCOMPARE(download.status, 0);
        const QJsonObject json = download.Json();
        QCOMPARE(json[u"reader"].toString(), Reader);
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

        const Outcome text = office.Ctl(ReportWords("--format text"));
        QVERIFY(text.out.contains("Exception Report") && text.out.contains("NO EXCEPTIONS"));
        const Outcome csv = office.Ctl(ReportWords("--format csv"));
        QVERIFY(csv.out.startsWith("\"tItem\",\"tTourTime\""));
        QVERIFY(office.Ctl(ReportWords("--format pdf")).out.startsWith("%PDF"));
        const QString unwritable = office.Path("nowhere/report.pdf");
        const Outcome failed = office.Ctl(ReportWords("--format pdf --output ") + unwritable);
        QCOMPARE(failed.status, 1);
        QCOMPARE(failed.err.count('\n'), 1);
    }

    void KeepsTheMemoryOfTheReaderIfAsked() {
        Office office;
        Dock dock(Night);
        const Outcome outcome =
            office.Ctl(QStringLiteral("--keep --device=%1 download --json").arg(dock.Device()));
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.Json()[u"erased"].toBool(), false);
        QCOMPARE(dock.State()[u"touches"].toInt(), 3);
    }

    void SaysWhatWasNotDone_data() {
        QTest::addColumn<QByteArray>("scenario");
        QTest::addColumn<QByteArray>("words");
        QTest::addColumn<int>("touchesKept");
        QTest::newRow("erase refused") << Night + "fault refuse erase 1\n"
                                       << QByteArray("Reader Memory NOT erased!") << 3;
        QTest::newRow("end mark in mid-memory")
            << Night + "record 00 00 00 00\ntouch 2026-11-22 00:50 1A40C2"
            << QByteArray(
                   "memory continues after its end mark. The touches that were read are stored")
            << 3;
        QTest::newRow("no reader") << Night + "remove\n" << QByteArray("Reader not detected.") << 3;
        QTest::newRow("silent dock")
            << Night + "fault silent\n"
            << QByteArray("Could not connect to the docking station.") << 3;
        QTest::newRow("silent to the read") << Night + "fault silent read\n"
                                            << QByteArray("Download Failed") << 3;
    }
    void SaysWhatWasNotDone() {
        QFETCH(QByteArray, scenario);
        QFETCH(QByteArray, words);
        QFETCH(int, touchesKept);
        Office office;
        Dock dock(scenario);
        const Outcome outcome = office.Ctl(QStringLiteral("download --device ") + dock.Device());
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.err.contains(words), outcome.err.constData());
        QCOMPARE(outcome.err.count('\n'), 1);
        QCOMPARE(dock.State()[u"touches"].toInt(), touchesKept);
    }

    void ReaderCommands_data() {
        QTest::addColumn<QByteArray>("scenario");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QByteArray>("output"); // its beginning; "!": on standard error
        QTest::addColumn<QJsonObject>("state"); // of the dock afterwards: these values
        const auto row = [](const char* name, const QByteArray& scenario, const char* words,
                            const char* output, const QJsonObject& state = {}) {
            QTest::newRow(name) << scenario << QString::fromLatin1(words) << QByteArray(output)
                                << state;
        };
        row("identify", Night, "identify", "4B5831A7 - ");
        row("identify, untaught", "reader 00FF00FF", "identify --json",
            R"({"description":"","known":false,"reader":"00FF00FF"})");
        row("identify, no reader", Night + "remove", "identify", "!Reader not detected.");
        row("identify, silent", Night + "silent read", "identify", "!Reader ID Download Failed");
        row("firmware", Night + "firmware 08", "firmware", "Firmware Version is V06");
        row("firmware as JSON", Night, "firmware --json", R"({"firmware":"V06"})",
            {{"touches", 3}});
        row("firmware, not reported", Night + "firmware FF", "firmware",
            "!The reader did not report");
        row("clock", Night, "set-clock --json --time 2024-02-29T23:59",
            R"({"clock":"2024-02-29T23:59"})", {{"clock", "2024-02-29T23:59"}});
        row("clock refused", Night + "refuse clock 1", "set-clock", "!Reader Clock update failed.",
            {{"clock", QJsonValue()}});
        row("options", Night, "set-options --no-buzzer --long", "Reader update successful",
            {{"options", 14}});
        row("options as JSON", Night, "set-options --json --no-led --no-vibration --short",
            R"({"buzzer":true,"led":false,"long":false,"vibration":false})", {{"options", 1}});
        row("no option left", Night, "set-options --no-buzzer --no-led --no-vibration",
            "!You must select at least one of the reader options", {{"options", QJsonValue()}});
        row("options refused", Night + "refuse options 1 02", "set-options --no-led",
            "!Reader update failed.  Please try again.", {{"options", QJsonValue()}});
        row("erase", Night, "erase --yes", "Reader Erased", {{"touches", 0}, {"erased", 1}});
        row("erase as JSON", Night, "erase --yes --json", R"({"erased":true})");
        row("erase refused", Night + "refuse erase 1", "erase --yes", "!Reader Memory NOT erased!",
            {{"touches", 3}});
        row("silent dock", Night + "silent", "erase --yes",
            "!Could not connect to the docking station.", {{"touches", 3}});
        row("not the user's", Night, "erase --yes --operator user", "!Only the master may do this.",
            {{"touches", 3}});
    }
    void ReaderCommands() {
        QFETCH(QByteArray, scenario);
        QFETCH(QString, words);
        QFETCH(QByteArray, output);
        QFETCH(QJsonObject, state);
        Office office;
        if (words.contains(u"user"))
            office.SetPassword("crew");
        Dock dock(scenario);
        const Outcome outcome = office.Ctl(QStringLiteral("reader ") + words +
                                           QStringLiteral(" --device ") + dock.Device());
        const bool fails = output.startsWith('!');
        QCOMPARE(outcome.status, fails ? 1 : 0);
        QCOMPARE(outcome.err.count('\n'), fails ? 1 : 0);
        QVERIFY(outcome.out.isEmpty() == fails);
        const QByteArray result = words.contains(u"--json")
                                      ? QJsonDocument(outcome.Json()).toJson(QJsonDocument::Compact)
                                  : fails ? '!' + outcome.err
                                          : outcome.out;
        // Complain joins blanks into one.
        QVERIFY2(result.startsWith(output.simplified()), result.constData());
        const QJsonObject after = dock.State();
        for (auto value = state.begin(); value != state.end(); ++value)
            QVERIFY2(after[value.key()] == value.value(), qPrintable(value.key()));
    }

    // An option that is not given keeps its value from the last call.
    void OptionsAddUp() {
        const Office office;
        Dock dock(Night);
        const QString call = QStringLiteral("reader set-options --device ") + dock.Device();
        for (const auto& [words, options] :
             {std::pair(" --no-led", 5), std::pair(" --long", 13), std::pair(" --no-buzzer", 12)}) {
            QCOMPARE(office.Ctl(call + QString::fromLatin1(words)).status, 0);
            QCOMPARE(dock.State()[u"options"].toInt(), options);
        }
    }

    void MissingThingsEndWithOneLine_data() {
        QTest::addColumn<QString>("words");
        QTest::addColumn<bool>("store");
        QTest::newRow("no device") << "detect --device /dev/does-not-exist" << true;
        QTest::newRow("no store") << "detect --device /dev/null" << false;
    }
    void MissingThingsEndWithOneLine() {
        QFETCH(QString, words);
        QFETCH(bool, store);
        const Office office;
        if (!store)
            QFile::remove(office.Store());
        const Outcome outcome = office.Ctl(words);
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.err.count('\n'), 1);
        QVERIFY(outcome.out.isEmpty());
    }
};

QTEST_GUILESS_MAIN(ConsoleTest)
#include "ConsoleTest.moc"
