// The platform without a store: dates, text forms, settings, the dictionary, output files.

#include "DateTime.h"
#include "Files.h"
#include "Format.h"
#include "OutputFile.h"
#include "ResourceLimit.h"
#include "ScriptedBoxes.h"
#include "TestHome.h"
#include "TestTable.h"
#include "UserLocale.h"
#include "mSettings.h"
#include "mTranslations.h"

#include <QRegularExpression>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const DateTime Evening = DateTime::FromQt(QDate(2026, 11, 5)) + DateTime::FromTime(22, 7, 58);

/// The text with the digits 0 to 9 instead of the locale's own.
QString LatinDigits(const QString& text) {
    QString latin;
    for (const char32_t letter : text.toUcs4())
        latin += QChar::isDigit(letter) ? QString::number(QChar::digitValue(letter))
                                        : QString::fromUcs4(&letter, 1);
    return latin;
}

void WriteOutput(const QString& path, const QByteArray& bytes) {
    OutputFile file(path);
    file.Write(bytes);
    file.Commit();
}

} // namespace

class PlatformTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void EveryMinuteComesBackFromTheStore() {
        const qint64 first = DateTime::FromQt(QDate(1880, 1, 1)).WholeDays() * 1440;
        const qint64 last = DateTime::FromQt(QDate(2100, 1, 1)).WholeDays() * 1440;
        for (qint64 minute = first; minute < last; ++minute) {
            const DateTime time = DateTime::FromMilliseconds(minute * 60'000);
            if (DateTime::FromStore(time.ToStore()) != time)
                QFAIL(qPrintable(QString::number(minute)));
        }
    }

    void DatesBeforeDayZero() {
        const std::tuple<double, QString, qint64> dates[] = {
            {0, "1899-12-30 00:00:00", 0},
            {-0.25, "1899-12-29 18:00:00", -1},
            {-1, "1899-12-29 00:00:00", -1},
            {-109205.5, "1600-12-31 12:00:00", -109206},
            {36525.999999, "1999-12-31 23:59:59", 36525}, // half a second up
            {36526, "2000-01-01 00:00:00", 36526}};
        for (const auto& [stored, text, days] : dates) {
            const DateTime date = DateTime::FromStore(stored);
            QCOMPARE(Format(date, "YYYY-MM-DD Hh:Nn:Ss"), text);
            QCOMPARE(qint64{date.WholeDays()}, days);
            QCOMPARE(date.DatePart() + date.TimePart(), date);
            QCOMPARE(DateTime::FromQt(date.ToQDate()), date.DatePart());
        }
    }

    void Formats() {
        const std::tuple<const char*, QString, QString> formats[] = {
            {"en_US", "Short Date", "11/5/2026"},
            {"en_US", "short time", "10:07 PM"},
            {"de_DE", "Short Date", "05.11.2026"},
            {"de_DE", "Medium Date", "05-Nov.-2026"},
            {"en_GB", "SHORT DATE", "05/11/2026"},
            {"en_GB", "Medium Date", "05-Nov-2026"},
            {"C", "h:m:s", "22:7:58"},
            {"C", "h mmm", "22 Nov"},
            {"C", "mm/yyyy hh:mm mm", "11/2026 22:07 11"},
            {"C", "dd mmm yyyy", "05 Nov 2026"},
            {"en_US", "dd/mmm/yyyy", "05/Nov/2026"},
            {"C", "d-m-yy", "5-11-26"},
            // Texts for the store and the times in the log are the same everywhere.
            {"ar", "YYYY-MM-DD Hh:Nn:Ss", "2026-11-05 22:07:58"},
            {"fa", "hh:nn", "22:07"}};
        for (const auto& [locale, pattern, text] : formats) {
            QLocale::setDefault(QLocale(locale));
            QCOMPARE(Format(Evening, pattern), text);
        }
    }

    // At a time that local clocks leave out.
    void NamedFormatsInEveryLocale() {
        const DateTime night = DateTime::FromQt(QDate(2026, 3, 29)) + DateTime::FromTime(2, 7, 58);
        for (const QLocale& locale : QLocale::matchingLocales(
                 QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
            QLocale::setDefault(locale);
            const QString time = LatinDigits(Format(night, "Short Time"));
            static const QRegularExpression clock("0?2\\D+0?7");
            QVERIFY2(time.contains(clock) && !time.contains("58"),
                     qPrintable(locale.name() + u' ' + time));
            const QString date = LatinDigits(Format(night, "Short Date"));
            QVERIFY2(date.count("2026") == 1 && date.contains("29"),
                     qPrintable(locale.name() + u' ' + date));
            QVERIFY(LatinDigits(DefaultDateTimeText(night)).contains("02:07:58"));
            for (const DateTime moment : {night, night.DatePart(), night.TimePart()}) {
                QCOMPARE(DateTimeFromText(DefaultDateTimeText(moment)), moment);
                QCOMPARE(Format(moment, GetShortDateFormat()), Format(moment, "Short Date"));
            }
        }
    }

    void WholeNumbers() {
        QCOMPARE(Format(7, "000"), "007");
        QCOMPARE(Format(1234, "000"), "1234");
        QCOMPARE(Format(7, "#0"), "7");
        QCOMPARE(Format(0, "00"), "00");
    }

    void Conversions_data() {
        const TestTable<QString, QString, QString> row("integer", "whole", "boolean");
        const QString mismatch = "error 13", overflow = "error 6";
        row("2.5", "2", "2", "True"); // half to even
        row("3.5", "4", "4", "True");
        row("-0.5", "0", "0", "True");
        row(" 42 ", "42", "42", "True");
        row("0", "0", "0", "False");
        row("32767.4", "32767", "32767", "True");
        row("32767.5", overflow, "32768", "True");
        row("-32769", overflow, "-32769", "True");
        row("2147483648", overflow, overflow, "True");
        row("1e3", "1000", "1000", "True");
        row("tRUE", mismatch, mismatch, "True");
        row(" False", mismatch, mismatch, "False");
        for (const char* text : {"", "12 apples", "nan"})
            row(text, mismatch, mismatch, mismatch);
    }
    void Conversions() {
        const QString text = QTest::currentDataTag();
        const auto outcome = [&](auto&& convert) {
            QString result;
            const int error = ErrorOf([&] { result = convert(text); });
            return error ? QStringLiteral("error %1").arg(error) : result;
        };
        QTEST(outcome([](auto& t) { return QString::number(ToInteger(t)); }), "integer");
        QTEST(outcome([](auto& t) { return QString::number(ToLong(t)); }), "whole");
        QTEST(outcome([](auto& t) { return BooleanText(ToBoolean(t)); }), "boolean");
    }

    void SettingsKeepText() {
        const TestHome home(TestHome::NoStore);
        QCOMPARE(GetSetting("Wardlock Lite", "Info", "Line", "1, 2"), "1, 2");
        for (const QString& text :
             {QString("Größe; a=b, \"c\"\n%1"), QString(), QString("007"), QString("@Invalid()")}) {
            SaveSetting("Wardlock Lite", "Info", "Line", text);
            QCOMPARE(GetSetting("Wardlock Lite", "Info", "Line", "fallback"), text);
        }
        QCOMPARE(GetSetting("Wardlock Lite", "Settings", "Line", "fallback"), "fallback");
        QCOMPARE(GetSetting("Other", "Info", "Line", "fallback"), "fallback");
    }

    // A disk that fills up in the middle of the file.
    void SettingsThatAreCut() {
        const TestHome home(TestHome::NoStore);
        const QString before(500, u'b');
        SaveSetting("Wardlock Lite", "Info", "Line", before);
        const QString file = home.File("config/Wardlock/Wardlock Lite.conf");
        const QByteArray whole = BytesOf(file);
        QVERIFY(whole.contains(before.toUtf8()));
        for (const rlim_t most : {0, 100, 700}) {
            {
                const ResourceLimit limit(RLIMIT_FSIZE, most);
                SaveSetting("Wardlock Lite", "Info", "Other", QString(600, u'o'));
            }
            QCOMPARE(BytesOf(file), whole);
        }
        QCOMPARE(QDir(home.File("config/Wardlock")).entryList(QDir::Files).size(), 1);
    }

    // One message, not one for each write. There is another one after a write has succeeded.
    void SettingsThatCannotBeWritten() {
        const TestHome home(TestHome::NoStore);
        ScriptedBoxes boxes;
        ReportLostSettings();
        QFile inTheWay(home.File("config"));
        QStringList told;
        for (int round = 0; round < 2; ++round) {
            QVERIFY(inTheWay.open(QIODevice::WriteOnly));
            for (int write = 0; write < 3; ++write)
                SaveSetting("Wardlock Lite", "Info", "Line", QString::number(write));
            told += boxes.TakeTexts();
            QVERIFY(inTheWay.remove());
            SaveSetting("Wardlock Lite", "Info", "Line", "x");
            QCOMPARE(boxes.TakeTexts(), QStringList());
            QVERIFY(QDir(home.File("config")).removeRecursively());
        }
        InstallSettingsLost(nullptr);
        QCOMPARE(told.size(), 2);
        QVERIFY(told[1].startsWith("The settings cannot be saved. "));
        QCOMPARE(home.TakeLog().count("The settings cannot be saved: "), 2);
    }

    void Patterns() {
        QCOMPARE(FormatStr("%0:s - Version %1:s", {"A", "1.00"}), "A - Version 1.00");
        QCOMPARE(FormatStr("%1:s%0:s%1:s 100%", {"%1:s", "x"}), "x%1:sx 100%");
        QCOMPARE(FormatStr("%2:s|%0:d", {"only one"}), "|%0:d");
    }

    void DictionaryThatCannotBeRead() {
        const QByteArray whole = BytesOf(BESIDE + "/WK3.MLD");
        for (const QByteArray& content : // missing, no dictionary, cut off
             {QByteArray(), QByteArray(5000, 'x'), whole.left(whole.size() / 2)}) {
            const TestHome home(TestHome::NoStore);
            if (!content.isEmpty())
                WriteBytes(home.File("WK3.MLD"), content);
            ScriptedBoxes boxes;
            gLanguage = 99;
            OpenDictionary();
            QCOMPARE(boxes.TakeTexts(), QStringList{"Language 99 could not be displayed\n"
                                                    "Resetting to default system language..."});
            QCOMPARE(gLanguage, 1);
            QCOMPARE(GetSetting(SettingsApplication, "Properties", "Language"), "1");
            QCOMPARE(Translate("MISSING"), "MISSING");
            QCOMPARE(IvMessageBox("x", MessageKind::Question, MessageButtons::YesNo),
                     MessageAnswer::No);
            QCOMPARE(boxes.Messages.value(0).buttonTexts, (QStringList{"Yes", "No"}));
        }
    }

    // A device or a pipe is written to and never replaced.
    void OutputGoesIntoAPipe() {
        const TestHome home(TestHome::NoStore);
        const QString path = home.File("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        const int end = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK);
        WriteOutput(path, "report");
        char bytes[8] = {};
        QCOMPARE(::read(end, bytes, sizeof bytes), 6);
        ::close(end);
        QVERIFY(!QFileInfo(path).isFile());
        QVERIFY(ErrorOf([&] { OutputFile(home.File("none/report")); }) != 0);
        QVERIFY(ErrorOf([&] { OutputFile(home.File("")); }) != 0); // a folder
    }

    // The disk takes only a thousand bytes, or the folder takes no new file.
    void OutputIsWholeOrNotThere() {
        const TestHome home(TestHome::NoStore);
        const QString older = home.File("older"), link = home.File("link");
        WriteOutput(older, "old");
        QVERIFY(QFile::setPermissions(older, QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(QFile::link(older, link));
        for (const qsizetype size : {1001, 100'000}) {
            QStringList causes;
            for (const QString& path : {link, home.File("new")})
                causes += DescriptionOf([&] {
                    const ResourceLimit limit(RLIMIT_FSIZE, 1000);
                    WriteOutput(path, QByteArray(size, 'x'));
                });
            for (const QString& cause : causes)
                QVERIFY2(cause.endsWith(": File too large"), qPrintable(cause));
            QCOMPARE(BytesOf(older), "old");
            QCOMPARE(
                QDir(home.File({})).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot),
                (QStringList{"link", "older"}));
        }
        // No file can be made, but for another reason.
        QVERIFY(ErrorOf([&] {
                    const ResourceLimit limit(RLIMIT_NOFILE, 0);
                    WriteOutput(link, "new");
                }) != 0);
        QCOMPARE(BytesOf(older), "old");
        WriteOutput(link, "new");
        QCOMPARE(BytesOf(older), "new");
        QVERIFY(QFileInfo(link).isSymLink());
        QVERIFY(!QFileInfo(older).permission(QFile::ReadGroup));
        // Root may write everywhere.
        QVERIFY(QDir().mkdir(home.File("closed")));
        WriteOutput(home.File("closed/file"), "old");
        QFile::setPermissions(home.File("closed"), QFile::ReadOwner | QFile::ExeOwner);
        QCOMPARE(ErrorOf([&] { WriteOutput(home.File("closed/file"), "new"); }), 0);
        QCOMPARE(BytesOf(home.File("closed/file")), "new");
        QFile::setPermissions(home.File("closed"),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void German() {
        const TestHome home(TestHome::NoStore);
        QVERIFY(QFile::copy(BESIDE + "/WK3.MLD", home.File("WK3.MLD")));
        ScriptedBoxes boxes;
        gLanguage = 2;
        OpenDictionary();
        QCOMPARE(boxes.TakeTexts(), QStringList());
        QCOMPARE(gDictionary->Languages(2).nativeName, "Deutsch");
        const auto ofQt = [] { return QCoreApplication::translate("QWidgetTextControl", "&Copy"); };
        QCOMPARE(ofQt(), "&Kopieren");
        QVERIFY(Translate("MISSING") != "MISSING");
        QCOMPARE(Translate("no such entry %0:s"), "no such entry %0:s");
        IvMessageBox("x", MessageKind::Question, MessageButtons::YesNo);
        QCOMPARE(boxes.Messages.value(0).buttonTexts, (QStringList{"Ja", "Nein"}));
        gLanguage = 99;
        OpenDictionary();
        QCOMPARE(boxes.Messages.size(), 2);
        QCOMPARE(Translate("MISSING") + ofQt(), "MISSING&Copy");
        gDictionary.reset();
        gLanguage = -1;
    }

    void DatesFollowTheLanguage() {
        const TestHome home(TestHome::NoStore);
        QVERIFY(QFile::copy(BESIDE + "/WK3.MLD", home.File("WK3.MLD")));
        const std::tuple<const char*, int, const char*> locales[] = {
            {"de_AT", 2, "de_AT"}, {"en_US", 2, "de_DE"}, {"C", 2, "de_DE"},
            {"de_DE", 0, "en_DE"}, {"it_IT", 0, "en_GB"}, {"it_IT", 1, "en_US"},
            {"en_US", 0, "en_US"}, {"C", 0, "C"},         {"de_CH", -1, "de_CH"}};
        for (const auto& [machine, language, shown] : locales) {
            QLocale::setDefault(QLocale(machine));
            gLanguage = language;
            OpenDictionary();
            OpenChosenLanguage(); // again, as the station does when the language is changed
            QCOMPARE(QLocale().name(), shown);
            QCOMPARE(MachineLocale().name(), machine);
            gDictionary.reset();
            QCOMPARE(QLocale().name(), machine);
        }
        gLanguage = -1;
    }
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "PlatformTest.moc"
