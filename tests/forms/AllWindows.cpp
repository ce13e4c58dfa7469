#include "AllWindows.h"

#include "Application.h"
#include "DockingLink.h"
#include "HelpBook.h"
#include "Recordset.h"
#include "ReportViewer.h"
#include "frmAbout.h"
#include "frmAddButton.h"
#include "frmAddReader.h"
#include "frmArchive.h"
#include "frmCompany.h"
#include "frmCopyTour.h"
#include "frmDebugData.h"
#include "frmDownload.h"
#include "frmEditButton.h"
#include "frmEditReader.h"
#include "frmEditTime.h"
#include "frmEditTour.h"
#include "frmFirmwareVersion.h"
#include "frmGoOnline.h"
#include "frmHelp.h"
#include "frmLanguage.h"
#include "frmListEdit.h"
#include "frmLogin.h"
#include "frmMDISetup.h"
#include "frmMain.h"
#include "frmManualID.h"
#include "frmMdiDownload.h"
#include "frmMdiMenu.h"
#include "frmMdiReports.h"
#include "frmPreview.h"
#include "frmPrpComms.h"
#include "frmRptCustomParam.h"
#include "frmRptHardwareListParam.h"
#include "frmRptIncidentNew.h"
#include "frmRptIncidentParam.h"
#include "frmRptPatrolSchedule.h"
#include "frmRptReaderReport.h"
#include "frmRptTour.h"
#include "frmSetTime.h"
#include "frmSplash.h"
#include "frmUserMaintenance.h"
#include "frmWaitReport.h"
#include "mDeclareGlobals.h"
#include "mTranslations.h"

namespace {

/// Made as the program makes it: with the link, with the viewer, or with a parent alone.
template <typename Form>
std::unique_ptr<QWidget> Make(DockingLink& link, ReportViewer& viewer) {
    if constexpr (std::is_constructible_v<Form, DockingLink&, QWidget*>)
        return std::make_unique<Form>(link, nullptr);
    else if constexpr (std::is_constructible_v<Form, ReportViewer&, QWidget*>)
        return std::make_unique<Form>(viewer, nullptr);
    else if constexpr (std::is_constructible_v<Form, QWidget*>)
        return std::make_unique<Form>(nullptr);
    else
        return std::make_unique<Form>();
}
template <typename... Forms>
std::map<QString, WindowMaker> MakersOf() {
    return {{Forms::staticMetaObject.className(), &Make<Forms>}...};
}

std::map<QString, WindowMaker> MakeAll() {
    auto makers =
        MakersOf<frmAddButton, frmAddReader, frmArchive, frmCompany, frmCopyTour, frmDebugData,
                 frmDownload, frmEditButton, frmEditReader, frmEditTime, frmGoOnline, frmLogin,
                 frmMDISetup, frmMain, frmManualID, frmMdiDownload, frmMdiReports, frmPrpComms,
                 frmRptHardwareListParam, frmRptPatrolSchedule, frmRptCustomParam,
                 frmRptReaderReport, frmRptIncidentNew, frmRptIncidentParam, frmRptTour, frmSetTime,
                 frmSplash, frmUserMaintenance>();
    makers["frmAbout"] = [](auto&, auto&) {
        auto form = std::make_unique<frmAbout>(nullptr);
        form->Populate();
        return form;
    };
    makers["frmEditTour"] = [](auto&, auto&) {
        auto form = std::make_unique<frmEditTour>(nullptr);
        form->GroupID = 1;
        form->Populate();
        return form;
    };
    makers["frmFirmwareVersion"] = [](auto&, auto&) {
        return std::make_unique<frmFirmwareVersion>("3.04", nullptr);
    };
    makers["frmHelp"] = [](auto&, auto&) {
        auto form = std::make_unique<frmHelp>(AppFile(Translate("WK3_ENG.HLP")));
        form->ShowTopic(HelpBook::Contents);
        return form;
    };
    makers["frmLanguage"] = [](auto&, auto&) {
        return std::make_unique<frmLanguage>(*gDictionary, gLanguage, nullptr);
    };
    makers["frmListEdit"] = [](auto& link, auto&) {
        auto form = std::make_unique<frmListEdit>(link, nullptr);
        form->ItemType = SiteGroup;
        form->Update();
        return form;
    };
    makers["frmMdiMenu"] = [](auto&, auto&) {
        auto page = std::make_unique<frmMdiMenu>(nullptr);
        page->SetUserType(MasterOperator);
        page->ShowStation(false, 1, QStringLiteral("/dev/ttyUSB0"));
        page->Translate();
        return page;
    };
    makers["frmWaitReport"] = [](auto&, auto&) {
        static Recordset rows;
        return std::make_unique<frmWaitReport>(rows, nullptr);
    };
    return makers;
}

} // namespace

const std::map<QString, WindowMaker>& AllWindows() {
    static const std::map<QString, WindowMaker> makers = MakeAll();
    return makers;
}

bool IsPage(const QWidget& window) {
    return !qobject_cast<const QDialog*>(&window) && !qobject_cast<const QMainWindow*>(&window) &&
           !qobject_cast<const frmSplash*>(&window);
}
