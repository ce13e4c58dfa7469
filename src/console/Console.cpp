#include "Console.h"

#include "Application.h"
#include "CommandLine.h"
#include "ConsoleDownload.h"
#include "ConsoleReader.h"
#include "ConsoleReport.h"
#include "ConsoleTools.h"
#include "DockingLink.h"
#include "InstanceLock.h"
#include "LookUps.h"
#include "SetupFile.h"
#include "StoreUpkeep.h"
#include "TourReportBuilder.h"
#include "mErrorHandler.h"
#include "mOperators.h"
#include "mSettings.h"
#include "mStore.h"
#include "mTranslations.h"

#include <QFile>

namespace {

constexpr int Done = 0, NotDone = 1, WrongUsage = 2;

/// Closes the store whatever happens, so that its lock file goes.
struct StoreCloser {
    ~StoreCloser() { gConn.reset(); }
};

/// Opens dictionary and store and checks the login; false once it has said why not.
bool OpenStation(const CommandLine& line) {
    ReportLostSettings();
    ReadLanguageSetting();
    // A missing dictionary is the station's matter; here the English texts do as well.
    gDictionary = std::make_unique<Dictionary>();
    gDictionary->FileName = AppFile(QStringLiteral("WK3.MLD"));
    gDictionary->language = gLanguage;
    IgnoringErrors([] { gDictionary->Open(); });
    ReadRemainingSettings();
    gDatabasePath = AppFile(QStringLiteral("main.mdb"));
    gConnectionString = ConnectionText(gDatabasePath, StorePassword);
    if (!ADOTest(gDatabasePath, StorePassword) || !ADOInit(gDatabasePath, StorePassword))
        return false;
    RemoveLeftoverCopy(AppFile(QStringLiteral("temp.mdb")));
    if (CheckOperator(line.login, qEnvironmentVariable("WARDLOCK_PASSWORD"), RememberLogin::No) ==
        NoOperator) {
        const bool given = qEnvironmentVariableIsSet("WARDLOCK_PASSWORD");
        Complain(Translate("The User Name / Password are incorrect. Please try again.") +
                 (given ? QString() : QStringLiteral(" (WARDLOCK_PASSWORD is not set)")));
        return false;
    }
    return true;
}

bool Download(DockingLink& link, const CommandLine& line, const ConsoleBoxes& boxes) {
    ConsoleDownload view(link);
    MemoryDownload download(link, view);
    download.EraseAfterwards = !line.keep;
    download.Run();
    const MemoryDownload::Outcome& outcome = download.LastOutcome();
    if (!outcome.read) {
        if (boxes.Last().isEmpty()) // else the transfer has said what went wrong
            Complain(view.MessageText());
        return false;
    }
    if (line.json)
        WriteOut(DownloadJson(outcome));
    else if (outcome.stored)
        WriteOut(DownloadText(outcome, view.MessageText()));
    if (!outcome.stored)
        return false;
    if (!line.keep && !outcome.erased && !download.HasSaidWhyNotErased())
        Complain(Translate("Reader Memory NOT erased!"));
    return (line.keep || outcome.erased) && outcome.clockSet;
}

/// The reader as the report's header names it; its identifier alone where it was never taught.
QString ReaderText(const QString& readerId) {
    const std::optional<Reader> reader = FindReader(readerId);
    return reader ? readerId + QStringLiteral(" - ") + reader->description : readerId;
}

bool ReportTour(const CommandLine& line, const ConsoleBoxes& boxes) {
    ConsoleReport report(line.format);
    BuildTourReport(
        {line.tour, line.date, line.reader, ReaderText(line.reader), line.events, line.all},
        report);
    if (report.HasReport())
        WriteOut(report.Bytes(), line.output);
    else if (line.format == ReportFormat::Json)
        WriteOut(JsonMessage(boxes.Last()), line.output);
    if (!report.HasReport() && boxes.Last().isEmpty())
        Complain(Translate("The report could not be made. The file error.log says why."));
    return report.HasReport();
}

bool ExportSetupTo(const QString& path) {
    WriteOut(ExportSetup(), path);
    return true;
}

bool ImportSetupFrom(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                           path + QStringLiteral(": ") + file.errorString());
    ImportSetup(file.readAll());
    return true;
}

/// As in the station, where the user has neither the Tools menu nor the setup page.
bool IsMastersOnly(ConsoleCommand command) {
    return command != ConsoleCommand::Detect && command != ConsoleCommand::Download &&
           command != ConsoleCommand::ReportTour;
}

/// A store that is damaged must be known before a reader is erased on the strength of it.
bool ErasesReader(const CommandLine& line) {
    return (line.command == ConsoleCommand::Download && !line.keep) ||
           line.command == ConsoleCommand::ReaderErase;
}

/// The commands that speak with the docking station, once that has answered.
bool RunAtDock(DockingLink& link, const CommandLine& line, const ConsoleBoxes& boxes) {
    switch (line.command) {
    case ConsoleCommand::Detect:
        WriteLine(Translate("Docking Station : OK"));
        return true;
    case ConsoleCommand::Download:
        return Download(link, line, boxes);
    case ConsoleCommand::ReaderIdentify:
        return IdentifyReader(link, line, boxes);
    case ConsoleCommand::ReaderFirmware:
        return TellFirmware(link, line, boxes);
    case ConsoleCommand::ReaderSetClock:
        return SetReaderClock(link, line);
    case ConsoleCommand::ReaderSetOptions:
        return SetReaderOptions(link, line);
    case ConsoleCommand::ReaderErase:
        return EraseReader(link, line);
    default:
        return false;
    }
}

bool RunCommand(const CommandLine& line) {
    SetAppPath(line.home);
    const auto instance = TakeInstanceLock();
    if (!instance) {
        Complain(QStringLiteral("The program is already running!"));
        return false;
    }
    const ConsoleBoxes boxes;
    const StoreCloser closer;
    if (!OpenStation(line))
        return false;
    if (line.login != MasterOperator && IsMastersOnly(line.command)) {
        Complain(Translate("Only the master may do this."));
        return false;
    }
    if (ErasesReader(line)) {
        CheckStore();
        TellOfDamage();
    }
    switch (line.command) {
    case ConsoleCommand::ReportTour:
        return ReportTour(line, boxes);
    case ConsoleCommand::SetupExport:
        return ExportSetupTo(line.file);
    case ConsoleCommand::SetupImport:
        return ImportSetupFrom(line.file);
    default:
        break;
    }
    DockingLink link;
    link.GivesUpInTime = true;
    return Connect(link, line.device) && RunAtDock(link, line, boxes);
}

} // namespace

int RunConsole(const QStringList& arguments) {
    try {
        if (arguments.contains(QStringLiteral("--help"))) {
            WriteOut(UsageText().toUtf8());
            return Done;
        }
        return RunCommand(ParseCommandLine(arguments)) ? Done : NotDone;
    } catch (const UsageError& error) {
        Complain(QStringLiteral("wardlockctl: ") + QString::fromStdString(error.what()));
        Complain(UsageText().section(u'\n', 0, 0));
        Complain(QStringLiteral("\"wardlockctl --help\" tells the commands and their options"));
        return WrongUsage;
    } catch (const std::exception& error) {
        Complain(QString::fromUtf8(error.what()));
        return NotDone;
    }
}
