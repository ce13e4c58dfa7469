#pragma once

#include "LastMinute.h"

#include <QStringList>

#include <functional>
#include <initializer_list>
#include <optional>
#include <utility>

namespace CLI {
class App;
}

/// The kinds of options that a command is made of. Each routine adds one to a command and says
/// where its value goes; that place must outlive CommandParser::Parse. It is left as it is if the
/// option is not given. A value that is empty or of the wrong kind is a UsageError. `help` is a few
/// words for the command's description.

enum class Presence { Optional, Required };

/// A heading for the options that are added next.
void StartOptionGroup(CLI::App& options, const char* heading);

/// True if it is given. It takes no value.
void AddFlag(CLI::App& options, const char* name, bool& value, const char* help);
/// A flag that must be given.
void AddRequiredFlag(CLI::App& options, const char* name, const char* help);
/// Two flags that exclude each other.
void AddYesNo(CLI::App& options, const char* yes, const char* no, std::optional<bool>& value,
              const char* yesHelp, const char* noHelp);

/// The path of a file, folder or device.
void AddPath(CLI::App& options, const char* name, QString& value, const char* help,
             Presence presence = Presence::Optional);
/// A word of the call, without a "--": the path of a file.
void AddFile(CLI::App& options, QString& value, const char* help,
             Presence presence = Presence::Required);
/// A required number, such as the ID of a tour.
void AddNumber(CLI::App& options, const char* name, int& value, const char* help);
/// How many: a number above zero.
void AddCount(CLI::App& options, const char* name, int& value, const char* help);
/// A required day, as YYYY-MM-DD.
void AddDate(CLI::App& options, const char* name, DateTime& value, const char* help);
/// A minute, as YYYY-MM-DDTHH:MM, from 2000 to 2179: the range of a reader's clock.
void AddMoment(CLI::App& options, const char* name, std::optional<DateTime>& value,
               const char* help);
/// A range, as the required options "--from" and "--to": two minutes, as YYYY-MM-DDTHH:MM, of the
/// years 100 to 9999. `to` becomes the last instant of the range.
void AddRange(CLI::App& options, DateTime& from, DateTime& to, LastMinute lastMinute);
/// A required reader: its identifier of eight hexadecimal digits, stored in upper case.
void AddReader(CLI::App& options, const char* name, QString& value, const char* help);
void AddOptionalReader(CLI::App& options, const char* name, QString& value, const char* help);
/// Readers: the option may be given any number of times. Each reader is stored once, in the order
/// of the call.
void AddReaders(CLI::App& options, const char* name, QStringList& values, const char* help);
/// A button's code of six hexadecimal digits, stored in upper case.
void AddOptionalCode(CLI::App& options, const char* name, QString& value, const char* help);
/// Codes, any number of times, as AddReaders does.
void AddCodes(CLI::App& options, const char* name, QStringList& values, const char* help);
/// A name, such as that of a site.
void AddOptionalText(CLI::App& options, const char* name, QString& value, const char* help);

/// What a command works on: a word of the call, or instead of it the option, whose value the help
/// calls `optionKind`. One of them must be given.
void AddWordOrOption(CLI::App& options, const char* word, QString& wordValue, const char* wordHelp,
                     const char* option, const char* optionKind, QString& optionValue,
                     const char* optionHelp);

/// One of several words; `store` takes the number of the chosen one.
void AddWord(CLI::App& options, const char* name, const QStringList& words,
             const std::function<void(qsizetype)>& store, const char* help, Presence presence);
/// One of several words, each of which means a value.
template <typename T>
void AddChoice(CLI::App& options, const char* name,
               std::initializer_list<std::pair<const char*, T>> choices, T& value, const char* help,
               Presence presence = Presence::Optional) {
    QStringList words;
    QList<T> values;
    for (const auto& [word, meaning] : choices) {
        words += QString::fromUtf8(word);
        values += meaning;
    }
    AddWord(
        options, name, words, [values, &value](qsizetype chosen) { value = values[chosen]; }, help,
        presence);
}

/// Every call needs either the option `alone` or all those of `together`, but not both. They must
/// have been added as optional ones.
void RequireEither(CLI::App& options, const char* alone, const QStringList& together);

/// Result as JSON.
void AddJson(CLI::App& options, bool& value);
/// The file that takes the result; standard output if it is not given.
void AddOutput(CLI::App& options, QString& value);
