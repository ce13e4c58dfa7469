#include "mMain.h"

#include "Application.h"
#include "Clock.h"
#include "DeliveredStore.h"
#include "Format.h"
#include "InstanceLock.h"
#include "MessageBox.h"
#include "ReportFont.h"
#include "StoreFailure.h"
#include "StoreFolder.h"
#include "StoreUpkeep.h"
#include "WindowTools.h"
#include "deMain.h"
#include "frmLanguage.h"
#include "frmLogin.h"
#include "frmMain.h"
#include "frmSplash.h"
#include "mErrorHandler.h"
#include "mHelp.h"
#include "mSettings.h"
#include "mStore.h"
#include "mTranslations.h"

#include <QApplication>
#include <QFileInfo>

#include <cstdio>
#include <optional>

namespace {

constexpr int SplashPause = 2000; ///< ms

std::unique_ptr<InstanceLock> g_instance;
std::unique_ptr<frmMain> g_frmMain;

void ReadCommandLine(const QString& commandLine) {
    gDebugMode = commandLine.contains(QStringLiteral("-debug")) || IsDevelopmentRun();
    if (gDebugMode)
        WriteLog(AppExeName() + QStringLiteral(" Started at ") + DefaultDateTimeText(Now()));
    gDemoMode = commandLine.contains(QStringLiteral("-demo")) || IsDevelopmentRun();
    // It is only for that one line. Later tests of the flag find it off.
    gDebugMode = false;
    gEdition = 0;
}

bool OpenLanguage() {
    const auto open = [] {
        ReadLanguageSetting();
        if (gDebugMode)
            WriteLog(QStringLiteral("Setting Dictionary Object, Language = %1").arg(gLanguage));
        OpenDictionary();
        gDictionary->InstallChooser(&frmLanguage::Choose);
        // A box could not be read either.
        if (const QString fault = FontFault(PresentLocale()); !fault.isEmpty()) {
            WriteLog(fault);
            std::fprintf(stderr, "%s\n", qPrintable(fault));
        }
        return true;
    };
    return Trapped(open, [](const RunTimeError& error) {
        WriteLog(QStringLiteral("Error in mMain, error handler and exit."));
        ReportError(QStringLiteral("Main of Module mMain"), error, ErrorShow::LogOnly);
    });
}

/// Makes the empty store of the first start. A failure is not logged: the log would make the next
/// start take the folder for one that has lost its store.
bool MakeFirstStore() {
    return QFileInfo::exists(gDatabasePath) ||
           Trapped(
               [] {
                   MakeDeliveredStore(gDatabasePath, StoreContent::Empty);
                   return true;
               },
               [](const RunTimeError& error) {
                   TellOfUnopenedStore(gDatabasePath, CauseOf(error, gDatabasePath));
               });
}

/// Tests, compacts and opens the store, and connects the report data environment.
bool TestCompactAndOpen(frmSplash& splash, bool isFirstStart) {
    splash.ShowMessage(Translate("Opening Database..."));
    gDatabasePath = AppFile(QStringLiteral("main.mdb"));
    if (const QString fault = FaultOfStoreFolder(); !fault.isEmpty()) {
        TellOfUnopenedStore(gDatabasePath, fault);
        return false;
    }
    if (isFirstStart && !MakeFirstStore())
        return false;
    if (gDebugMode)
        WriteLog(QStringLiteral("Database path = ") + gDatabasePath);
    gConnectionString = ConnectionText(gDatabasePath, StorePassword);
    if (!ADOTest(gDatabasePath, StorePassword)) {
        WriteLog(QStringLiteral("ADOTest Failed. Exiting..."));
        return false;
    }
    splash.ShowMessage(Translate("Compacting Database..."));
    CompactStore(ProviderText, gDatabasePath, AppFile(QStringLiteral("temp.mdb")), StorePassword);
    if (!ADOInit(gDatabasePath, StorePassword)) {
        WriteLog(QStringLiteral("ADOInit Failed. Exiting..."));
        return false;
    }
    RemoveLeftoverCopies(AppFile(QStringLiteral("temp.mdb")));
    deMain.Connect(gConnectionString);
    TellOfDamage();
    return true;
}

bool OpenUnderSplash(bool isFirstStart) {
    frmSplash splash;
    splash.ShowVersion(TitleWithVersion());
    splash.ShowMessage(Translate("Loading Application..."));
    splash.ShowPainted();
    splash.ShowMessage(Translate("Initializing Online Help..."));
    SetHelpFile(ProgramFile(Translate("WK3_ENG.HLP")));
    InstallHelpKey();
    if (!TestCompactAndOpen(splash, isFirstStart))
        return false;
    Sleep(SplashPause);
    splash.repaint();
    return true;
}

void CloseAfterFailedLogin() {
    IgnoringErrors([] {
        deMain.Close();
        gConn.reset();
    });
    for (QWidget* window : QApplication::topLevelWidgets())
        window->close();
}

} // namespace

StartOutcome Main(const QString& commandLine) {
    const bool isFirstStart = IsNewStoreFolder();
    if (isFirstStart)
        MakeUserDataFolder(); // before the instance lock, which is named after the folder
    ReportLostSettings();
    ReadCommandLine(commandLine);
    if (!OpenLanguage())
        return StartOutcome::Failed;
    g_instance = TakeInstanceLock();
    if (!g_instance) {
        MsgBox(QStringLiteral("The program is already running!"), ShortTitle,
               MessageKind::Critical);
        return StartOutcome::Failed;
    }
    std::optional<Hourglass> hourglass(std::in_place);
    if (!OpenUnderSplash(isFirstStart))
        return StartOutcome::Failed;
    OperatorType login;
    bool refused;
    {
        frmLogin window;
        hourglass.reset();
        window.exec();
        login = window.LoginResult();
        refused = window.Refused();
    }
    if (login == NoOperator) {
        CloseAfterFailedLogin();
        return refused ? StartOutcome::Failed : StartOutcome::Cancelled;
    }
    WriteLog(QStringLiteral("Logged in as user type = %1").arg(login));
    g_frmMain = std::make_unique<frmMain>();
    g_frmMain->SetUserType(login);
    g_frmMain->GoHome();
    g_frmMain->show();
    ReadRemainingSettings();
    return StartOutcome::Running;
}

void ReleaseMainWindow() {
    g_frmMain.reset();
    g_instance.reset();
}
