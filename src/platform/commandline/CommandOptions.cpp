#include "CommandOptions.h"

#include "CommandParser.h"

#include <QRegularExpression>

#include <CLI/CLI.hpp>

namespace {

/// Stores a value. If it is unsuitable, returns what was expected.
using Convert = std::function<std::optional<QString>(const QString& value)>;

CLI::Option* AddValue(CLI::App& options, const char* name, const char* kind, const char* help,
                      Presence presence, const Convert& convert) {
    const auto store = [name, convert](const CLI::results_t& given) {
        for (const std::string& text : given) {
            const QString value = QString::fromStdString(text);
            const QString option = QString::fromUtf8(name);
            if (value.isEmpty())
                throw UsageError(option + QStringLiteral(" is empty"));
            if (const std::optional<QString> expected = convert(value))
                throw UsageError(option + u' ' + value + QStringLiteral(": expected ") + *expected);
        }
        return true;
    };
    return options.add_option(name, store, help)
        ->type_name(kind)
        ->required(presence == Presence::Required);
}

/// A code of `digits` hexadecimal digits, as the store writes it.
struct CodeKind {
    const char* name;
    int digits;
    const char* expected;
};
constexpr CodeKind ReaderId{"ID", 8, "eight hexadecimal digits"};
constexpr CodeKind ButtonCode{"CODE", 6, "six hexadecimal digits"};

CLI::Option* AddHexadecimal(CLI::App& options, const char* name, const CodeKind& kind,
                            const char* help, Presence presence,
                            const std::function<void(const QString& code)>& store) {
    return AddValue(options, name, kind.name, help, presence,
                    [kind, store](const QString& text) -> std::optional<QString> {
                        static const QRegularExpression hexadecimal(
                            QStringLiteral("\\A[0-9A-Fa-f]+\\z"));
                        if (text.size() != kind.digits || !hexadecimal.match(text).hasMatch())
                            return QString::fromUtf8(kind.expected);
                        store(text.toUpper());
                        return {};
                    });
}

void AddHexadecimals(CLI::App& options, const char* name, const CodeKind& kind, QStringList& values,
                     const char* help) {
    AddHexadecimal(options, name, kind, help, Presence::Optional, [&values](const QString& code) {
        if (!values.contains(code))
            values += code;
    })->take_all();
}

/// Nothing if the text is not a minute. Date and time are read apart: the computer's summer time
/// must not matter, so every hour of every day exists.
std::optional<DateTime> MinuteOf(const QString& text, const QDate& first, const QDate& last) {
    const QDate date = QDate::fromString(text.left(10), QStringLiteral("yyyy-MM-dd"));
    const QTime time = QTime::fromString(text.mid(10), QStringLiteral("THH:mm"));
    if (!date.isValid() || !time.isValid() || date < first || date > last)
        return {};
    return DateTime::FromQt(date) + DateTime::FromTime(time.hour(), time.minute());
}

void AddMinute(CLI::App& options, const char* name, const char* help,
               const std::function<void(DateTime minute)>& store) {
    AddValue(options, name, "YYYY-MM-DDTHH:MM", help, Presence::Required,
             [store](const QString& text) -> std::optional<QString> {
                 const std::optional<DateTime> minute =
                     MinuteOf(text, QDate(100, 1, 1), QDate(9999, 12, 31));
                 if (!minute)
                     return QStringLiteral("a time as YYYY-MM-DDTHH:MM, from 0100 to 9999");
                 store(*minute);
                 return {};
             });
}

} // namespace

void StartOptionGroup(CLI::App& options, const char* heading) {
    options.option_defaults()->group(heading);
}

void AddFlag(CLI::App& options, const char* name, bool& value, const char* help) {
    options.add_flag(name, value, help);
}

void AddRequiredFlag(CLI::App& options, const char* name, const char* help) {
    options
        .add_flag_callback(
            name, [] {}, help)
        ->required();
}

void AddYesNo(CLI::App& options, const char* yes, const char* no, std::optional<bool>& value,
              const char* yesHelp, const char* noHelp) {
    CLI::Option* on = options.add_flag_callback(
        yes, [&value] { value = true; }, yesHelp);
    CLI::Option* off = options.add_flag_callback(
        no, [&value] { value = false; }, noHelp);
    on->excludes(off);
    for (CLI::Option* option : {on, off})
        option->option_text(" "); // else the help names the other one on every line
}

void AddPath(CLI::App& options, const char* name, QString& value, const char* help,
             Presence presence) {
    AddValue(options, name, "PATH", help, presence, [&value](const QString& text) {
        value = text;
        return std::nullopt;
    });
}

void AddFile(CLI::App& options, QString& value, const char* help, Presence presence) {
    AddValue(options, "FILE", "", help, presence, [&value](const QString& text) {
        value = text;
        return std::nullopt;
    });
}

void AddNumber(CLI::App& options, const char* name, int& value, const char* help) {
    AddValue(options, name, "NUMBER", help, Presence::Required,
             [&value](const QString& text) -> std::optional<QString> {
                 bool ok = false;
                 value = text.toInt(&ok);
                 if (!ok)
                     return QStringLiteral("a number");
                 return {};
             });
}

void AddCount(CLI::App& options, const char* name, int& value, const char* help) {
    AddValue(options, name, "NUMBER", help, Presence::Optional,
             [&value](const QString& text) -> std::optional<QString> {
                 value = text.toInt();
                 if (value < 1)
                     return QStringLiteral("a number above 0");
                 return {};
             });
}

void AddDate(CLI::App& options, const char* name, DateTime& value, const char* help) {
    AddValue(options, name, "YYYY-MM-DD", help, Presence::Required,
             [&value](const QString& text) -> std::optional<QString> {
                 const QDate date = QDate::fromString(text, Qt::ISODate);
                 if (!date.isValid() || text.size() != 10)
                     return QStringLiteral("a date as YYYY-MM-DD");
                 value = DateTime::FromQt(date);
                 return {};
             });
}

void AddMoment(CLI::App& options, const char* name, std::optional<DateTime>& value,
               const char* help) {
    AddValue(options, name, "YYYY-MM-DDTHH:MM", help, Presence::Optional,
             [&value](const QString& text) -> std::optional<QString> {
                 const std::optional<DateTime> moment =
                     MinuteOf(text, QDate(2000, 1, 1), QDate(2179, 6, 6));
                 if (!moment)
                     return QStringLiteral("a time as YYYY-MM-DDTHH:MM, from 2000 to 2179");
                 value = moment;
                 return {};
             });
}

void AddRange(CLI::App& options, DateTime& from, DateTime& to, LastMinute lastMinute) {
    AddMinute(options, "--from", "the first minute of the range",
              [&from](DateTime minute) { from = minute; });
    AddMinute(options, "--to",
              lastMinute == LastMinute::Whole
                  ? "the last minute of the range"
                  : "the last minute of the range; only its first second belongs to it",
              [&to, lastMinute](DateTime minute) { to = EndOfRange(minute, lastMinute); });
}

void AddReader(CLI::App& options, const char* name, QString& value, const char* help) {
    AddHexadecimal(options, name, ReaderId, help, Presence::Required,
                   [&value](const QString& id) { value = id; });
}

void AddOptionalReader(CLI::App& options, const char* name, QString& value, const char* help) {
    AddHexadecimal(options, name, ReaderId, help, Presence::Optional,
                   [&value](const QString& id) { value = id; });
}

void AddReaders(CLI::App& options, const char* name, QStringList& values, const char* help) {
    AddHexadecimals(options, name, ReaderId, values, help);
}

void AddOptionalCode(CLI::App& options, const char* name, QString& value, const char* help) {
    AddHexadecimal(options, name, ButtonCode, help, Presence::Optional,
                   [&value](const QString& code) { value = code; });
}

void AddCodes(CLI::App& options, const char* name, QStringList& values, const char* help) {
    AddHexadecimals(options, name, ButtonCode, values, help);
}

void AddOptionalText(CLI::App& options, const char* name, QString& value, const char* help) {
    AddValue(options, name, "NAME", help, Presence::Optional, [&value](const QString& text) {
        value = text;
        return std::nullopt;
    });
}

void AddWordOrOption(CLI::App& options, const char* word, QString& wordValue, const char* wordHelp,
                     const char* option, const char* optionKind, QString& optionValue,
                     const char* optionHelp) {
    const auto add = [&](const char* name, const char* kind, QString& value, const char* help) {
        AddValue(options, name, kind, help, Presence::Optional,
                 [&value](const QString& text) -> std::optional<QString> {
                     value = text;
                     return {};
                 });
    };
    add(word, "", wordValue, wordHelp);
    add(option, optionKind, optionValue, optionHelp);
    options.callback([=, &wordValue, &optionValue] {
        if (wordValue.isEmpty() == optionValue.isEmpty())
            throw UsageError(QStringLiteral("either %1 or %2 must be given")
                                 .arg(QString::fromUtf8(word), QString::fromUtf8(option)));
    });
}

void AddWord(CLI::App& options, const char* name, const QStringList& words,
             const std::function<void(qsizetype)>& store, const char* help, Presence presence) {
    AddValue(options, name, words.join(u'|').toUtf8().constData(), help, presence,
             [words, store](const QString& text) -> std::optional<QString> {
                 if (!words.contains(text))
                     return QStringLiteral("one of ") + words.join(QStringLiteral(", "));
                 store(words.indexOf(text));
                 return {};
             });
}

void RequireEither(CLI::App& options, const char* alone, const QStringList& together) {
    options.parse_complete_callback([&options, alone, together] {
        const auto isGiven = [&options](const QString& name) {
            return options.get_option(name.toStdString())->count() > 0;
        };
        const auto given = std::count_if(together.begin(), together.end(), isGiven);
        const bool whole =
            isGiven(QString::fromUtf8(alone)) ? given == 0 : given == together.size();
        if (!whole)
            throw UsageError(
                QStringLiteral("either %1 is needed, or %2")
                    .arg(QLatin1String(alone), together.join(QStringLiteral(" and "))));
    });
}

void AddJson(CLI::App& options, bool& value) {
    AddFlag(options, "--json", value, "prints the result as JSON");
}

void AddOutput(CLI::App& options, QString& value) {
    AddPath(options, "--output", value, "writes to this file instead of standard output");
}
