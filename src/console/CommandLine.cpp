#include "CommandLine.h"

#include <QMap>

namespace {

struct Option {
    const char* name;
    bool takesValue;
    const char* commands; ///< the commands that know it; empty for all
};

constexpr Option Options[] = {
    {"home", true, ""},
    {"operator", true, ""},
    {"device", true, "detect,download"},
    {"keep", false, "download"},
    {"json", false, "download"},
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

int ParseKey(const QString& text) {
    bool ok = false;
    const int key = text.toInt(&ok);
    if (!ok)
        throw UsageError(QStringLiteral("--tour %1: a number is wanted").arg(text));
    return key;
}

} // namespace

CommandLine ParseCommandLine(const QStringList& arguments) {
    const RawArguments raw = Split(arguments);
    const QString words = raw.words.join(u' ');
    const QMap<QString, ConsoleCommand> commands = {
        {QStringLiteral("detect"), ConsoleCommand::Detect},
        {QStringLiteral("download"), ConsoleCommand::Download},
        {QStringLiteral("report tour"), ConsoleCommand::ReportTour}};
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
    if (line.command == ConsoleCommand::ReportTour) {
        line.tour = ParseKey(raw.Required("tour"));
        line.reader = raw.Required("reader");
        line.date = ParseDate(raw.Required("date"));
        line.format =
            raw.Choice<ReportFormat>("format", {{QStringLiteral("text"), ReportFormat::Text},
                                                {QStringLiteral("json"), ReportFormat::Json},
                                                {QStringLiteral("csv"), ReportFormat::Csv},
                                                {QStringLiteral("pdf"), ReportFormat::Pdf}});
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
        "\n"
        "--device takes the path of a serial device, or COM1 to COM8. --home is the folder of the\n"
        "store; else the environment variable WARDLOCK_HOME or the program's own folder. The\n"
        "operator's password is taken from the environment variable WARDLOCK_PASSWORD.\n"
        "Options may stand before or behind the command.\n"
        "\n"
        "exit status: 0 all done, 1 not or not all done, 2 wrong usage\n");
}
