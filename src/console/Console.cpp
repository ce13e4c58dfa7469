#include "Console.h"

#include "AppVersion.h"
#include "Application.h"
#include "Command.h"
#include "CommandOptions.h"
#include "CommandParser.h"
#include "ConsoleTools.h"
#include "FileReplacement.h"
#include "InstanceLock.h"
#include "StoreFolder.h"
#include "StoreUpkeep.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mOperators.h"
#include "mSettings.h"
#include "mStore.h"
#include "mTranslations.h"

namespace {

constexpr int Done = 0, NotDone = 1, WrongUsage = 2;
const QString Program = QStringLiteral("wardlockctl");

/// A wrong value may be long; only its beginning is repeated.
constexpr int LongestUsageError = 300;

/// The options of every command.
struct StationOptions {
    QString home;
    OperatorType login = MasterOperator;
};

void AddStationOptions(CLI::App& options, StationOptions& station) {
    StartOptionGroup(options, "Options of every command");
    AddPath(options, "--home", station.home, "the folder of the store");
    AddChoice<OperatorType>(options, "--operator",
                            {{"master", MasterOperator}, {"user", UserOperator}}, station.login,
                            "the operator who logs in (default: master)");
    StartOptionGroup(options, "Options");
}

/// Always closes the store, so that its lock file is removed.
struct StoreCloser {
    ~StoreCloser() { gConn.reset(); }
};

void OpenSettings() {
    ReportLostSettings();
    ReadLanguageSetting();
    // Only the station needs a dictionary; without one the texts are English.
    gDictionary = std::make_unique<Dictionary>();
    gDictionary->FileName = ProgramFile(QStringLiteral("WK3.MLD"));
    gDictionary->language = gLanguage;
    IgnoringErrors(OpenChosenLanguage);
    ReadRemainingSettings();
    gDatabasePath = AppFile(QStringLiteral("main.mdb"));
    gConnectionString = ConnectionText(gDatabasePath, StorePassword);
}

/// Opens the store and checks the login. If that fails, says why and returns false.
bool OpenStation(OperatorType login) {
    if (IsNewStoreFolder()) {
        TellOfUnopenedStore(gDatabasePath, Translate("There is no database yet. Please start the "
                                                     "station once to create it."));
        return false;
    }
    if (const QString fault = FaultOfStoreFolder(); !fault.isEmpty()) {
        TellOfUnopenedStore(gDatabasePath, fault);
        return false;
    }
    if (!ADOTest(gDatabasePath, StorePassword) || !ADOInit(gDatabasePath, StorePassword))
        return false;
    RemoveLeftoverCopies(AppFile(QStringLiteral("temp.mdb")));
    if (CheckOperator(login, GivenPassword(), RememberLogin::No) == NoOperator) {
        ComplainOfLogin();
        return false;
    }
    return true;
}

bool RunCommand(const Command& command, const StationOptions& station, const CommandRun& run) {
    SetAppPath(station.home);
    const auto instance = TakeInstanceLock();
    if (!instance) {
        Complain(QStringLiteral("The program is already running!"));
        return false;
    }
    const ConsoleBoxes boxes;
    const StoreCloser closer;
    OpenSettings();
    if (command.needs == Needs::OpenStore && !OpenStation(station.login))
        return false;
    if (command.access == Access::MasterOnly && station.login != MasterOperator) {
        Complain(Translate("Only the master may do this."));
        return false;
    }
    return run(boxes);
}

QString Overview() {
    QString text = QStringLiteral(
        "usage: wardlockctl [--home DIR] [--operator master|user] COMMAND [OPTIONS]\n"
        "       wardlockctl COMMAND --help\n"
        "       wardlockctl --help | --version\n"
        "\n"
        "Does the work of the station without windows: for a shell or a scheduler.\n"
        "\n");
    const std::vector<Command> commands = Commands();
    qsizetype width = 0;
    for (const Command& command : commands)
        width = std::max(width, command.words.size() + 2);
    for (const Command& command : commands)
        text += QLatin1String(command.access == Access::MasterOnly ? "* " : "  ") +
                command.words.leftJustified(width) + command.description + u'\n';
    return text +
           QStringLiteral(
               "\n"
               "\"wardlockctl COMMAND --help\" lists the options of a command. "
               "They may come before\n"
               "or after the command's words.\n"
               "\n"
               "--home is the folder of the store. Without it, the folder is that "
               "of the environment\n"
               "variable WARDLOCK_HOME, or that of the station: see \"wardlock --help\". The\n"
               "environment variable WARDLOCK_PASSWORD holds the operator's password.\n"
               "Only the master may use a command with a \"*\".\n"
               "\n"
               "wardlockctl gives up after 3 seconds if the docking station does not "
               "answer, and\n"
               "after at most 15 if it stops answering later.\n"
               "\n"
               "exit status: 0 done, 1 failed or only partly done, 2 wrong usage\n");
}

QString VersionText() { return Program + u' ' + QString::fromLatin1(AppVersionText()) + u'\n'; }

/// What can follow the first word of a command.
QStringList SecondWordsOf(const QString& first) {
    QStringList words;
    for (const Command& command : Commands())
        if (command.words.startsWith(first + u' '))
            words += command.words.section(u' ', 1);
    return words;
}

/// A call that names no command.
int RunWithoutCommand(const QStringList& arguments) {
    if (CommandParser::AsksForHelp(arguments)) {
        WriteOut(Overview().toUtf8());
        return Done;
    }
    if (arguments.contains(QStringLiteral("--version"))) {
        WriteOut(VersionText().toUtf8());
        return Done;
    }
    CommandParser parser(Program, {});
    StationOptions station;
    AddStationOptions(parser.Options(), station);
    const QStringList words = parser.WordsOf(arguments);
    // An unknown option in front makes its value look like the command.
    const QString fault = parser.FaultOf(arguments);
    if (!fault.isEmpty() && words.value(0) != arguments[0])
        throw UsageError(fault);
    const QStringList next = SecondWordsOf(words.value(0));
    if (words.size() == 1 && !next.isEmpty())
        throw UsageError(words[0] + QStringLiteral(" needs one of ") +
                         next.join(QStringLiteral(", ")));
    throw UsageError(
        words.isEmpty() ? QStringLiteral("a command is missing")
                        : QStringLiteral("unknown command \"%1\"").arg(words.mid(0, 2).join(u' ')));
}

int RunCall(const QStringList& arguments, QString& helpCall) {
    for (const QString& argument : arguments)
        if (argument.contains(QChar::ReplacementCharacter))
            throw UsageError(QStringLiteral("an argument is not UTF-8 text: ") + argument);
    for (const Command& command : Commands()) {
        CommandParser parser(Program, command.words);
        StationOptions station;
        AddStationOptions(parser.Options(), station);
        const CommandRun run = command.prepare(parser.Options());
        if (!parser.IsCalledBy(arguments))
            continue;
        if (CommandParser::AsksForHelp(arguments)) {
            WriteOut(parser.Help(command.description, command.example).toUtf8());
            return Done;
        }
        helpCall = Program + u' ' + command.words + QStringLiteral(" --help");
        parser.Parse(arguments);
        return RunCommand(command, station, run) ? Done : NotDone;
    }
    return RunWithoutCommand(arguments);
}

} // namespace

int RunConsole(const QStringList& arguments) {
    QString helpCall = Program + QStringLiteral(" --help");
    try {
        return RunCall(arguments, helpCall);
    } catch (const UsageError& error) {
        QString reason = QString::fromUtf8(error.what());
        if (reason.size() > LongestUsageError)
            reason = reason.left(LongestUsageError) + QStringLiteral("...");
        Complain(Program + QStringLiteral(": ") + reason +
                 QStringLiteral(" (see \"%1\")").arg(helpCall));
        return WrongUsage;
    } catch (const FileError& error) {
        Complain(error.Cause(Translated));
        return NotDone;
    } catch (const std::exception& error) {
        Complain(QString::fromUtf8(error.what()));
        return NotDone;
    }
}
