#include "CommandLine.h"

#include <QMap>
#include <QRegularExpression>

namespace {

struct Option {
    const char* name;
    bool takesValue;
    const char* commands; ///< the commands that know it; empty for all
};

constexpr Option Options[] = {
    {"home", true, ""},
    {"operator", true, ""},
    {"device", true,
     "detect,download,reader identify,reader firmware,reader set-clock,reader set-options,"
     "reader erase"},
    {"keep", false, "download"},
    {"json", false,
     "download,reader identify,reader firmware,reader set-clock,reader set-options,reader erase"},
    {"time", true, "reader set-clock"},
    {"buzzer", false, "reader set-options"},
    {"no-buzzer", false, "reader set-options"},
    {"led", false, "reader set-options"},
    {"no-led", false, "reader set-options"},
    {"vibration", false, "reader set-options"},
    {"no-vibration", false, "reader set-options"},
    {"long", false, "reader set-options"},
    {"short", false, "reader set-options"},
    {"yes", false, "reader erase"},
    {"tour", true, "report tour"},
    {"reader", true, "report tour"},
    {"date", true, "report tour"},
    {"all", false, "report tour"},
    {"events", false, "report tour"},
    {"format", true, "report tour"},
    {"output", true, "report tour"},
};

const Option& OptionNamed(const QString& name) {
    for (const Option& option : Options)
        if (name == QLatin1String(option.name))
            return option;
    throw UsageError(QStringLiteral("unknown option --") + name);
}

/// The words in their order, and the options by name.
struct RawArguments {
    QStringList words;
    QMap<QString, QString> options;

    bool Has(const char* name) const { return options.contains(QLatin1String(name)); }
    QString Value(const char* name) const { return options.value(QLatin1String(name)); }
    QString Required(const char* name) const {
        if (Value(name).isEmpty())
            throw UsageError(QStringLiteral("--%1 is missing").arg(QLatin1String(name)));
        return Value(name);
    }
    /// Nothing where neither is given.
    std::optional<bool> Either(const char* yes, const char* no) const {
        if (Has(yes) && Has(no))
            throw UsageError(QStringLiteral("--%1 and --%2 exclude each other")
                                 .arg(QLatin1String(yes), QLatin1String(no)));
        return Has(yes) || Has(no) ? std::optional(Has(yes)) : std::nullopt;
    }
    template <typename T>
    T Choice(const char* name, const QMap<QString, T>& choices) const {
        const QString value = Required(name);
        if (!choices.contains(value))
            throw UsageError(QStringLiteral("--%1 %2: one of %3 is wanted")
                                 .arg(QLatin1String(name), value,
                                      QStringList(choices.keys()).join(QStringLiteral(", "))));
        return choices[value];
    }
};

RawArguments Split(const QStringList& arguments) {
    RawArguments raw;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (!arguments[i].startsWith(u"--")) {
            raw.words += arguments[i];
            continue;
        }
        const qsizetype equals = arguments[i].indexOf(u'=');
        const QString name = arguments[i].mid(2, equals < 0 ? -1 : equals - 2);
        const Option& option = OptionNamed(name);
        if (raw.options.contains(name))
            throw UsageError(QStringLiteral("--%1 stands twice").arg(name));
        if (!option.takesValue && equals >= 0)
            throw UsageError(QStringLiteral("--%1 takes no value").arg(name));
        if (option.takesValue && equals < 0 && ++i >= arguments.size())
            throw UsageError(QStringLiteral("--%1 wants a value").arg(name));
        raw.options[name] = !option.takesValue ? QString()
                            : equals < 0       ? arguments[i]
                                               : arguments[i].mid(equals + 1);
    }
    return raw;
}

void CheckOptionsOf(const RawArguments& raw, const QString& command) {
    for (auto given = raw.options.cbegin(); given != raw.options.cend(); ++given) {
        const QString commands = QLatin1String(OptionNamed(given.key()).commands);
        if (!commands.isEmpty() && !commands.split(u',').contains(command))
            throw UsageError(
                QStringLiteral("--%1 does not go with \"%2\"").arg(given.key(), command));
    }
}

DateTime ParseDate(const QString& text) {
    const QDate date = QDate::fromString(text, Qt::ISODate);
    if (!date.isValid() || text.size() != 10)
        throw UsageError(QStringLiteral("--date %1: a date as YYYY-MM-DD is wanted").arg(text));
    return DateTime::FromQt(date);
}

/// To the minute, on a day that a reader's clock can be set to.
DateTime ParseMoment(const QString& text) {
    // Apart: a reader's clock knows no summer time, in whose first hour a local time may not lie.
    const QDate date = QDate::fromString(text.left(10), QStringLiteral("yyyy-MM-dd"));
    const QTime time = QTime::fromString(text.mid(10), QStringLiteral("THH:mm"));
    if (!date.isValid() || !time.isValid() || date < QDate(2000, 1, 1) || date > QDate(2179, 6, 6))
        throw UsageError(QStringLiteral("--time %1: a time as YYYY-MM-DDTHH:MM, from 2000 to "
                                        "2179, is wanted")
                             .arg(text));
    return DateTime::FromQt(date) + DateTime::FromTime(time.hour(), time.minute());
}

int ParseKey(const QString& text) {
    bool ok = false;
    const int key = text.toInt(&ok);
    if (!ok)
        throw UsageError(QStringLiteral("--tour %1: a number is wanted").arg(text));
    return key;
}

QString ParseReader(const QString& text) {
    static const QRegularExpression identifier(QStringLiteral("\\A[0-9A-Fa-f]{8}\\z"));
    if (!identifier.match(text).hasMatch())
        throw UsageError(
            QStringLiteral("--reader %1: eight hexadecimal digits are wanted").arg(text));
    return text.toUpper();
}

} // namespace

CommandLine ParseCommandLine(const QStringList& arguments) {
    const RawArguments raw = Split(arguments);
    QString words = raw.words.join(u' ');
    QString file;
    if (raw.words.value(0) == u"setup" && raw.words.size() == 3) {
        words = raw.words.mid(0, 2).join(u' ');
        file = raw.words[2];
    }
    const QMap<QString, ConsoleCommand> commands = {
        {QStringLiteral("detect"), ConsoleCommand::Detect},
        {QStringLiteral("download"), ConsoleCommand::Download},
        {QStringLiteral("report tour"), ConsoleCommand::ReportTour},
        {QStringLiteral("reader identify"), ConsoleCommand::ReaderIdentify},
        {QStringLiteral("reader firmware"), ConsoleCommand::ReaderFirmware},
        {QStringLiteral("reader set-clock"), ConsoleCommand::ReaderSetClock},
        {QStringLiteral("reader set-options"), ConsoleCommand::ReaderSetOptions},
        {QStringLiteral("reader erase"), ConsoleCommand::ReaderErase},
        {QStringLiteral("setup export"), ConsoleCommand::SetupExport},
        {QStringLiteral("setup import"), ConsoleCommand::SetupImport}};
    if (!commands.contains(words))
        throw UsageError(words.isEmpty() ? QStringLiteral("a command is missing")
                                         : QStringLiteral("unknown command \"%1\"").arg(words));
    CheckOptionsOf(raw, words);

    CommandLine line;
    line.command = commands[words];
    line.home = raw.Value("home");
    if (raw.Has("operator"))
        line.login =
            raw.Choice<OperatorType>("operator", {{QStringLiteral("master"), MasterOperator},
                                                  {QStringLiteral("user"), UserOperator}});
    line.keep = raw.Has("keep");
    line.json = raw.Has("json");
    line.all = raw.Has("all");
    line.events = raw.Has("events");
    line.output = raw.Value("output");
    line.file = file;
    if (raw.Has("time"))
        line.time = ParseMoment(raw.Value("time"));
    line.buzzer = raw.Either("buzzer", "no-buzzer");
    line.led = raw.Either("led", "no-led");
    line.vibration = raw.Either("vibration", "no-vibration");
    line.longBuzzer = raw.Either("long", "short");
    if (line.command == ConsoleCommand::ReaderErase && !raw.Has("yes"))
        throw UsageError(QStringLiteral("--yes is missing: what the reader holds will be lost"));
    if (line.command == ConsoleCommand::ReportTour) {
        line.tour = ParseKey(raw.Required("tour"));
        line.reader = ParseReader(raw.Required("reader"));
        line.date = ParseDate(raw.Required("date"));
        line.format =
            raw.Choice<ReportFormat>("format", {{QStringLiteral("text"), ReportFormat::Text},
                                                {QStringLiteral("json"), ReportFormat::Json},
                                                {QStringLiteral("csv"), ReportFormat::Csv},
                                                {QStringLiteral("pdf"), ReportFormat::Pdf}});
    } else if (line.command == ConsoleCommand::SetupExport ||
               line.command == ConsoleCommand::SetupImport) {
        if (file.isEmpty())
            throw UsageError(QStringLiteral("the file is missing"));
    } else {
        line.device = raw.Required("device");
    }
    return line;
}

QString UsageText() {
    return QStringLiteral(
        "usage: wardlockctl [--home DIR] [--operator master|user] COMMAND\n"
        "\n"
        "  detect --device PATH\n"
        "      asks whether a docking station answers\n"
        "  download --device PATH [--keep] [--json]\n"
        "      reads the docked reader, stores its touches, erases it unless --keep is given, and\n"
        "      sets its clock unless that is switched off\n"
        "  report tour --tour ID --reader ID --date YYYY-MM-DD [--all] [--events]\n"
        "              --format text|json|csv|pdf [--output FILE]\n"
        "      the tour report of that day; without --output to standard output\n"
        "  reader identify --device PATH [--json]\n"
        "  reader firmware --device PATH [--json]\n"
        "      what the docked reader tells of itself\n"
        "  reader set-clock --device PATH [--time YYYY-MM-DDTHH:MM] [--json]\n"
        "      to that time, or to this machine's\n"
        "  reader set-options --device PATH [--buzzer|--no-buzzer] [--led|--no-led]\n"
        "              [--vibration|--no-vibration] [--long|--short] [--json]\n"
        "      how the reader answers a touch; what is not given stays as it was chosen last\n"
        "  reader erase --device PATH --yes [--json]\n"
        "      erases the reader, whether its touches have been read or not\n"
        "  setup export FILE\n"
        "  setup import FILE\n"
        "      writes all definitions (sites, event books, readers, tours) as JSON; adds those of\n"
        "      a file to the store: all of them, or none where one is at fault\n"
        "\n"
        "--device takes the path of a serial device, or COM1 to COM8. --home is the folder of the\n"
        "store; else the environment variable WARDLOCK_HOME or the program's own folder. The\n"
        "operator's password is taken from the environment variable WARDLOCK_PASSWORD. The reader\n"
        "and setup commands are the master's.\n"
        "Options may stand before or after the command.\n"
        "\n"
        "A docking station that does not answer is given up after 3 seconds; one that falls "
        "silent\n"
        "later, after at most 15.\n"
        "\n"
        "exit status: 0 all done, 1 not or not all done, 2 wrong usage\n");
}
