#include "Console.h"

#include "Application.h"
#include "CommandLine.h"
#include "ConsoleDownload.h"
#include "ConsoleReport.h"
#include "DockingLink.h"
#include "OutputFile.h"
#include "Recordset.h"
#include "TourReportBuilder.h"
#include "mErrorHandler.h"
#include "mOperators.h"
#include "mSettings.h"
#include "mStore.h"
#include "mTranslations.h"

#include <QFileDevice>
#include <QRegularExpression>

#include <cstdio>

namespace {

constexpr int Done = 0, NotDone = 1, WrongUsage = 2;

/// One line on standard error, whatever line breaks the text has.
void Complain(const QString& text) {
    const QByteArray line = (text.simplified() + u'\n').toUtf8();
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

/// Notices go to standard error, a line each. Questions are answered so that nothing is done, and
/// what then was not done is told by the command itself.
class ConsoleBoxes : public MessageBoxes {
public:
    ConsoleBoxes() { InstallMessageBoxes(this); }
    ~ConsoleBoxes() override { InstallMessageBoxes(nullptr); }

    MessageAnswer Show(const Message& message) override {
        if (message.buttons != MessageButtons::YesNo) {
            Complain(message.text);
            m_last = message.text;
        }
        return HarmlessAnswer(message.buttons);
    }
    const QString& Last() const { return m_last; }

private:
    QString m_last;
};

/// Closes the store whatever happens, so that its lock file goes.
struct StoreCloser {
    ~StoreCloser() { gConn.reset(); }
};

void WriteOut(const QByteArray& bytes, const QString& path) {
    if (path.isEmpty()) {
        if (std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout) !=
                static_cast<std::size_t>(bytes.size()) ||
            std::fflush(stdout) != 0)
            throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                               QStringLiteral("standard output cannot be written"));
        return;
    }
    OutputFile file(path);
    file.Device().write(bytes);
    file.Commit();
}

/// Opens dictionary and store and checks the login; false once it has said why not.
bool OpenStation(const CommandLine& line) {
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
    if (CheckOperator(line.login, qEnvironmentVariable("WARDLOCK_PASSWORD"), RememberLogin::No) ==
        NoOperator) {
        Complain(Translate("The User Name / Password are incorrect. Please try again."));
        return false;
    }
    return true;
}

/// Opens the port and asks for the station; false once it has said why not.
bool Connect(DockingLink& link, const QString& device) {
    static const QRegularExpression portName(QStringLiteral("^COM([1-8]):?$"),
                                             QRegularExpression::CaseInsensitiveOption);
    const auto match = portName.match(device);
    if (!match.hasMatch())
        OverrideDevice(device);
    if (!link.OpenPort(match.hasMatch() ? match.captured(1).toInt() : 1)) {
        Complain(Translate("Could not open the com port.") + u' ' +
                 Translate("Check settings and try again."));
        return false;
    }
    gDockingDetected = link.DetectStation();
    if (!gDockingDetected)
        Complain(Translate("Could not connect to the docking station.") + u' ' +
                 Translate("Check hardware and settings and try again."));
    return gDockingDetected;
}

int Detect(const CommandLine& line) {
    DockingLink link;
    if (!Connect(link, line.device))
        return NotDone;
    WriteOut(Translate("Docking Station : OK").toUtf8() + '\n', {});
    return Done;
}

int Download(const CommandLine& line, const ConsoleBoxes& boxes) {
    DockingLink link;
    if (!Connect(link, line.device))
        return NotDone;
    ConsoleDownload view(link);
    MemoryDownload download(link, view);
    download.EraseAfterwards = !line.keep;
    download.Run();
    const MemoryDownload::Outcome& outcome = download.LastOutcome();
    if (!outcome.read) {
        if (boxes.Last().isEmpty()) // else the transfer has said what went wrong
            Complain(view.MessageText());
        return NotDone;
    }
    if (line.json)
        WriteOut(DownloadJson(outcome), {});
    else if (outcome.stored)
        WriteOut(DownloadText(outcome, view.MessageText()), {});
    if (!outcome.stored) {
        Complain(Translate("The touches could not be stored. The reader was not erased."));
        return NotDone;
    }
    if (!line.keep && !outcome.erased)
        Complain(Translate("Reader Memory NOT erased!"));
    return (line.keep || outcome.erased) && outcome.clockSet ? Done : NotDone;
}

/// The reader as the report's header names it; its identifier alone where it was never taught.
QString ReaderText(const QString& readerId) {
    Recordset readers;
    readers.CursorLocation = adUseClient;
    readers.Open(QStringLiteral("SELECT * FROM tblReaders ;"), *gConn);
    for (; !readers.Eof(); readers.MoveNext())
        if (readers.Text(u"tReaderId") == readerId)
            return readerId + QStringLiteral(" - ") + readers.Text(u"tDescription");
    return readerId;
}

int ReportTour(const CommandLine& line, const ConsoleBoxes& boxes) {
    ConsoleReport report(line.format);
    BuildTourReport(
        {line.tour, line.date, line.reader, ReaderText(line.reader), line.events, line.all},
        report);
    if (report.HasReport())
        WriteOut(report.Bytes(), line.output);
    else if (line.format == ReportFormat::Json)
        WriteOut(JsonMessage(boxes.Last()), line.output);
    return report.HasReport() ? Done : NotDone;
}

int RunCommand(const CommandLine& line) {
    SetAppPath(line.home);
    const auto instance = TakeInstanceLock();
    if (!instance) {
        Complain(QStringLiteral("The program is already running!"));
        return NotDone;
    }
    const ConsoleBoxes boxes;
    const StoreCloser closer;
    if (!OpenStation(line))
        return NotDone;
    switch (line.command) {
    case ConsoleCommand::Detect:
        return Detect(line);
    case ConsoleCommand::Download:
        return Download(line, boxes);
    case ConsoleCommand::ReportTour:
        return ReportTour(line, boxes);
    }
    return NotDone;
}

} // namespace

int RunConsole(const QStringList& arguments) {
    try {
        if (arguments.contains(QStringLiteral("--help"))) {
            WriteOut(UsageText().toUtf8(), {});
            return Done;
        }
        return RunCommand(ParseCommandLine(arguments));
    } catch (const UsageError& error) {
        Complain(QStringLiteral("wardlockctl: ") + QString::fromStdString(error.what()));
        const QByteArray usage = UsageText().toUtf8();
        std::fwrite(usage.constData(), 1, static_cast<std::size_t>(usage.size()), stderr);
        return WrongUsage;
    } catch (const std::exception& error) {
        Complain(QString::fromUtf8(error.what()));
        return NotDone;
    }
}
