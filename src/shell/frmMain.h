#pragma once

#include "LinkState.h"
#include "mDeclareGlobals.h"

#include <QMainWindow>

#include <memory>

class QLabel;
class frmMdiDownload;
class frmMdiMenu;
struct ReportProposal;
class ReportViewer;
namespace Ui {
class frmMain;
}

/// The main window: menu, toolbar, title, status bar, and one page at a time. It owns the docking
/// link and passes it to pages and dialogs.
class frmMain : public QMainWindow {
    Q_OBJECT
public:
    frmMain();
    ~frmMain() override;

    /// Closes the store and every window.
    void ExitApp();
    void GoArchive();
    void GoBackup();
    void GoHome();
    void GoOptions();
    void GoOnline();
    void GoReports();
    void GoRestore();
    void GoSetup();
    /// Enables the toolbar buttons: one character per button, "1" for enabled. Then disables or
    /// hides what this operator may not do, and what needs a docking station if there is none. If
    /// the text has another length, throws RunTimeError and changes nothing.
    void NavigateToolbarButtons(const QString& state);
    void SetTitle(const QString& text);
    void ShowDockingDetect(bool detected);
    void ShowOnlineMode(bool online);
    OperatorType UserType() const { return m_userType; }
    void SetUserType(OperatorType type) { m_userType = type; }

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MDIForm_Load();
    void MDIForm_Unload();
    void ConnectMenu();
    void InitToolbar();
    void RestoreSavedPosition();

    enum Page { HomePage, DownloadPage, ReportsPage, SetupPage };
    bool UnloadPage();
    void ShowPage(Page kind, QWidget* page);
    void MarkPage();
    void ShowChosen(QAction& action, bool chosen);
    void ShowBusy(bool busy);
    bool MayBeTalking() const;
    void ShowGoneDevice();
    void ShowStationGone(const QString& device);
    void ShowStationFound(const QString& device);
    void OpenTourReport(const ReportProposal& proposal);
    void GoSetupTab(int tab);
    void ShowHomeStation(frmMdiMenu& page);
    void ShowStatus(const QString& text, const QString& icon);

    void GoConnect();
    void GoOffline();
    void mnuToolsPipeOptions_Click();
    void mnuToolsClearPipe_Click();
    void mnuToolsReaderFW_Click();
    QAction* ToolbarButton(const QString& key) const;

    void ChangeLanguage();
    void ResetLanguage();
    void TranslateFrame();
    void ShowLanguage();
    void EditOperator(OperatorType type);

    std::unique_ptr<Ui::frmMain> m_ui;
    std::unique_ptr<ReportViewer> m_viewer;
    LinkState m_state{[this] { return MayBeTalking(); }};
    QLabel* m_panelPicture;
    QLabel* m_panel1;
    QLabel* m_panelGone; ///< the station that is gone, if any
    QLabel* m_panel2;
    Page m_shown = HomePage;
    QWidget* m_page = nullptr;
    frmMdiDownload* m_downloadPage = nullptr;
    OperatorType m_userType = NoOperator;
    bool m_open = true; ///< ExitApp has not run yet
};
