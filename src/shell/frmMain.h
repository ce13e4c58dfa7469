#pragma once

#include "DockingLink.h"
#include "mDeclareGlobals.h"

#include <QMainWindow>

#include <memory>

class QLabel;
class frmMdiDownload;
class ReportViewer;
namespace Ui {
class frmMain;
}

/// The one frame window: menu, toolbar, title, status bar, and one page at a time. It owns the
/// docking station link and hands it to pages and dialogs.
class frmMain : public QMainWindow {
    Q_OBJECT
public:
    frmMain();
    ~frmMain() override;

    /// Closes the store and every window.
    void ExitApp();
    void GoHome();
    void GoOptions();
    void GoOnline();
    void GoReports();
    void GoSetup();
    /// Marks the present page: one character a toolbar button, "1" for enabled. Then takes back
    /// what the operator, or the lack of a docking station, does not allow. Throws RunTimeError
    /// for a text of another length, and changes nothing.
    void NavigateToolbarButtons(const QString& state);
    void SetTitle(const QString& text);
    void ShowDockingDetect(bool detected);
    void ShowOnlineMode(bool online);
    OperatorType UserType() const { return m_userType; }
    void SetUserType(OperatorType type) { m_userType = type; }

signals:
    /// Whether there is a docking station to talk to.
    void LinkChanged(bool detected);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void MDIForm_Load();
    void MDIForm_Unload();
    void HideUnbuilt();
    void ConnectMenu();
    void InitToolbar();
    void RestoreSavedPosition();

    enum Page { HomePage, DownloadPage, ReportsPage, SetupPage };
    bool UnloadPage();
    void ShowPage(Page kind, QWidget* page);
    void MarkPage();
    void ShowBusy(bool busy);
    void ShowStatus(const QString& text, const QString& icon);

    /// The one place that changes the state of the link. What needs a docking station is open or
    /// closed afterwards, on whatever page.
    void SetLink(bool online, bool detected);
    void GoConnect();
    void GoOffline();
    void mnuToolsPipeOptions_Click();
    void mnuToolsClearPipe_Click();
    void mnuToolsReaderFW_Click();
    QAction* ToolbarButton(const QString& key) const;

    void ChangeLanguage();
    void ResetLanguage();
    void TranslateFrame();
    void mnuHelpContents_Click();
    void EditOperator(OperatorType type);

    std::unique_ptr<Ui::frmMain> m_ui;
    std::unique_ptr<ReportViewer> m_viewer;
    DockingLink m_link;
    QLabel* m_panelPicture;
    QLabel* m_panel1;
    QLabel* m_panel2;
    Page m_shown = HomePage;
    QWidget* m_page = nullptr;
    frmMdiDownload* m_downloadPage = nullptr;
    OperatorType m_userType = NoOperator;
    int m_portNumber = 1;
    bool m_open = true; ///< ExitApp has not run yet
    bool m_online = false;
};
