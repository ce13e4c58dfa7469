#include "frmMain.h"

#include "Clock.h"
#include "DebugMenu.h"
#include "ReportProposal.h"
#include "RunTimeError.h"
#include "WindowPlace.h"
#include "WindowTools.h"
#include "cReaderOptions.h"
#include "deMain.h"
#include "frmAbout.h"
#include "frmCompany.h"
#include "frmMDISetup.h"
#include "frmMdiDownload.h"
#include "frmMdiMenu.h"
#include "frmMdiReports.h"
#include "frmPreview.h"
#include "frmRptTour.h"
#include "frmUserMaintenance.h"
#include "mErrorHandler.h"
#include "mHelp.h"
#include "mSettings.h"
#include "mTranslations.h"
#include "ui_frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QToolButton>

#include <array>

namespace {

struct ToolbarRow {
    const char* key; ///< and the name of the icon
    const char* caption;
    void (frmMain::*action)();
    Qt::Key shortcut; ///< with Ctrl
};

/// The page buttons, in the order of frmMain::Page.
constexpr auto Toolbar = std::to_array<ToolbarRow>({
    {"home", QT_TR_NOOP("Home"), &frmMain::GoHome, Qt::Key_1},
    {"download", QT_TR_NOOP("Download"), &frmMain::GoOnline, Qt::Key_2},
    {"reports", QT_TR_NOOP("Reports"), &frmMain::GoReports, Qt::Key_3},
    {"setup", QT_TR_NOOP("Setup"), &frmMain::GoSetup, Qt::Key_4},
});

// Twips.
constexpr int LeastWidth = 8000, LeastHeight = 6585;
constexpr int StripHeight = 1125, ToolbarHeight = 825;
constexpr int LeastButtonWidth = 700;

const QSize MostFirstSize(1100, 800); ///< pixels

} // namespace

frmMain::frmMain()
    : m_ui(std::make_unique<Ui::frmMain>()), m_panelPicture(new QLabel(this)),
      m_panel1(new QLabel(this)), m_panelGone(new QLabel(this)), m_panel2(new QLabel(this)) {
    m_ui->setupUi(this);
    m_viewer = std::make_unique<PreviewViewer>(this, Translated);
    m_panelPicture->setMaximumSize(16, 16);
    m_panel1->setObjectName(QStringLiteral("panel1"));
    m_panelGone->setObjectName(QStringLiteral("panelGone"));
    m_panel2->setObjectName(QStringLiteral("panel2"));
    m_ui->sbStatusBar->addWidget(m_panelPicture);
    m_ui->sbStatusBar->addWidget(m_panel1, 1);
    m_ui->sbStatusBar->addPermanentWidget(m_panelGone);
    m_ui->sbStatusBar->addPermanentWidget(m_panel2);
    setWindowIcon(ProgramIcon(QStringLiteral("wardlock")));
    connect(&m_state, &LinkState::Changed, this, &frmMain::MarkPage);
    connect(&m_state, &LinkState::Changed, this, &frmMain::ShowGoneDevice);
    connect(&m_state, &LinkState::StationGone, this, &frmMain::ShowStationGone);
    connect(&m_state, &LinkState::StationFound, this, &frmMain::ShowStationFound);
    MDIForm_Load();
}

frmMain::~frmMain() {
    delete takeCentralWidget(); // the pages refer to the link and the viewer
}

void frmMain::MDIForm_Load() {
    Guarded("MDIForm_Load of Form frmMain", [this] {
        TranslateFrame();
        InitToolbar();
        ConnectMenu();
        setWindowTitle(TitleWithVersion());
        UpdateLanguage();
        gReaderOptions = std::make_unique<cReaderOptions>();
        m_ui->mnuDebug->menuAction()->setVisible(false);
        if (IsDevelopmentRun())
            FillDebugMenu(*m_ui->mnuDebug, *this, [this] {
                if (m_shown != HomePage)
                    (this->*Toolbar[m_shown].action)();
            });
        m_ui->lblTitle->setMinimumHeight(PixelsOf(StripHeight - ToolbarHeight));
        m_ui->tbrMain->setMinimumHeight(PixelsOf(ToolbarHeight));
        m_ui->pctMenu->setMinimumHeight(PixelsOf(StripHeight));
        const QRect least({}, QSize(PixelsOf(LeastWidth), PixelsOf(LeastHeight)));
        setMinimumSize(OnScreen(least, *this).size()); // large texts make a small screen
        RestoreSavedPosition();
    });
}

void frmMain::ConnectMenu() {
    connect(m_ui->mnuFileArchive, &QAction::triggered, this, &frmMain::GoArchive);
    connect(m_ui->mnuFileBackup, &QAction::triggered, this, &frmMain::GoBackup);
    connect(m_ui->mnuFileRestore, &QAction::triggered, this, &frmMain::GoRestore);
    connect(m_ui->mnuFileExit, &QAction::triggered, this, &QWidget::close);
    connect(m_ui->mnuToolsPipeOptions, &QAction::triggered, this,
            &frmMain::mnuToolsPipeOptions_Click);
    connect(m_ui->mnuToolsClearPipe, &QAction::triggered, this, &frmMain::mnuToolsClearPipe_Click);
    connect(m_ui->mnuToolsReaderFW, &QAction::triggered, this, &frmMain::mnuToolsReaderFW_Click);
    connect(m_ui->mnuViewOptions, &QAction::triggered, this, &frmMain::GoOptions);
    connect(m_ui->mnuUMAdmin, &QAction::triggered, this, [this] { EditOperator(MasterOperator); });
    connect(m_ui->mnuUMUser, &QAction::triggered, this, [this] { EditOperator(UserOperator); });
    connect(m_ui->mnuToolsLanguage, &QAction::triggered, this, [this] {
        ChangeLanguage();
        GoHome();
    });
    connect(m_ui->mnuToolCompany, &QAction::triggered, this, [this] { frmCompany(this).exec(); });
    connect(m_ui->mnuHelpContents, &QAction::triggered, this, &ShowHelpContents);
    connect(m_ui->mnuHelpPage, &QAction::triggered, this, [this] { ShowHelpOn(this); });
    connect(m_ui->mnuHelp, &QMenu::aboutToShow, this,
            [this] { m_ui->mnuHelpLanguage->setVisible(HelpIsForeign()); });
    connect(m_ui->mnuHelpAbout, &QAction::triggered, this, [this] {
        frmAbout dialog(this);
        dialog.Populate();
        dialog.exec();
    });
}

void frmMain::InitToolbar() {
    qDeleteAll(m_ui->tbrMain->actions());
    for (const ToolbarRow& row : Toolbar) {
        const QString key = QString::fromUtf8(row.key);
        QAction* action = m_ui->tbrMain->addAction(ProgramIcon(key), Translate(row.caption));
        action->setObjectName(key);
        action->setShortcut(QKeySequence(Qt::CTRL | row.shortcut));
        action->setToolTip(Translate(row.caption) + QStringLiteral(" (") +
                           action->shortcut().toString(QKeySequence::NativeText) + u')');
        connect(action, &QAction::triggered, this, [this, row] { (this->*row.action)(); });
        action->setCheckable(true);
        auto* button = static_cast<QToolButton*>(m_ui->tbrMain->widgetForAction(action));
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleName(Translate(row.caption));
    }
    QAction* first = m_ui->tbrMain->actions().first();
    if (TwipsOf(m_ui->tbrMain->widgetForAction(first)->sizeHint().width()) < LeastButtonWidth)
        first->setText(QStringLiteral("   ") + first->text() + QStringLiteral("   "));
}

QAction* frmMain::ToolbarButton(const QString& key) const {
    return m_ui->tbrMain->findChild<QAction*>(key);
}

void frmMain::NavigateToolbarButtons(const QString& state) {
    const QString marks = state.trimmed();
    const QList<QAction*> buttons = m_ui->tbrMain->actions();
    if (marks.size() != buttons.size())
        throw RunTimeError(RunTimeErrorNumber::WrongLength,
                           QStringLiteral("NavigateToolbarButtons: %1 marks for %2 buttons")
                               .arg(marks.size())
                               .arg(buttons.size()));
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        buttons[i]->setEnabled(marks[i] == u'1');
        ShowChosen(*buttons[i], i == m_shown);
    }
    const bool master = m_userType == MasterOperator;
    ToolbarButton(QStringLiteral("setup"))->setVisible(master);
    m_ui->mnuTools->menuAction()->setVisible(master);
    m_ui->mnuDebug->menuAction()->setVisible(master && IsDevelopmentRun());
    for (QAction* action : {m_ui->mnuFileArchive, m_ui->mnuFileBackup, m_ui->mnuFileRestore})
        action->setEnabled(master);
    for (QAction* action :
         {m_ui->mnuToolsPipeOptions, m_ui->mnuToolsClearPipe, m_ui->mnuToolsReaderFW})
        action->setEnabled(master && gDockingDetected);
    if (!gDockingDetected)
        ToolbarButton(QStringLiteral("download"))->setEnabled(false);
}

/// The button of the present page is disabled, but must look chosen and not forbidden: it keeps the
/// colours of an enabled one, and is checked, which screen readers say.
void frmMain::ShowChosen(QAction& action, bool chosen) {
    action.setChecked(chosen);
    const QString key = action.objectName();
    QIcon icon = ProgramIcon(key);
    QWidget* button = m_ui->tbrMain->widgetForAction(&action);
    QPalette colours; // everything else comes from the window
    QFont letters = font();
    if (chosen) {
        const QPixmap picture = icon.pixmap(m_ui->tbrMain->iconSize(), devicePixelRatioF());
        icon = QIcon(picture);
        icon.addPixmap(picture, QIcon::Disabled, QIcon::On);
        for (const auto role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
            colours.setColor(QPalette::Disabled, role, palette().color(QPalette::Active, role));
    }
    letters.setBold(chosen);
    action.setIcon(icon);
    button->setPalette(colours);
    button->setFont(letters);
}

/// Dialogs do so by themselves.
void frmMain::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QAbstractButton*>(focusWidget());
    if (button && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        button->click();
    else
        QMainWindow::keyPressEvent(event);
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_open && m_page)
        MarkPage();
}

/// Disables the button of the page that is shown.
void frmMain::MarkPage() {
    QString state(Toolbar.size(), u'1');
    state[m_shown] = u'0';
    NavigateToolbarButtons(state);
}

void frmMain::SetTitle(const QString& text) {
    m_ui->lblTitle->setText(QStringLiteral("  ") + text);
}

bool frmMain::UnloadPage() {
    if (!m_page)
        return true;
    if (!m_page->close())
        return false;
    m_ui->layPage->removeWidget(m_page);
    m_panel2->clear();
    m_page->deleteLater(); // not at once: it may be handling an event
    m_page = nullptr;
    m_downloadPage = nullptr;
    return true;
}

void frmMain::ShowPage(Page kind, QWidget* page) {
    m_shown = kind;
    m_page = page;
    m_ui->layPage->addWidget(page);
    page->show();
    page->setFocus();
}

void frmMain::GoHome() {
    if (!UnloadPage())
        return;
    auto* page = new frmMdiMenu(m_ui->pageArea);
    page->SetUserType(m_userType);
    connect(page, &frmMdiMenu::RetryWanted, this,
            [this] { Guarded("cmdRetry_Click of Form frmMdiMenu", [this] { GoConnect(); }); });
    connect(page, &frmMdiMenu::ReportWanted, this, &frmMain::OpenTourReport);
    connect(page, &frmMdiMenu::SetupWanted, this, &frmMain::GoSetupTab);
    connect(&m_state, &LinkState::Changed, page, [this, page] { ShowHomeStation(*page); });
    ShowPage(HomePage, page);
    page->Translate();
    SetTitle(Translate("Home"));
    IgnoringErrors([this] { MarkPage(); });
    m_state.Port = SavedPortNumber();
    ShowHomeStation(*page);
    if (!m_state.Online())
        IgnoringErrors([this] { GoConnect(); });
}

void frmMain::ShowHomeStation(frmMdiMenu& page) {
    page.ShowStation(gDockingDetected, m_state.Port, DeviceOfPort(m_state.Port));
}

void frmMain::OpenTourReport(const ReportProposal& proposal) {
    Guarded("OpenTourReport of Form frmMain", [&] {
        frmRptTour dialog(*m_viewer, this, &proposal);
        dialog.Title(Translate("Tour / Exception Report"));
        dialog.exec();
    });
}

void frmMain::GoSetupTab(int tab) {
    GoSetup();
    if (auto* page = qobject_cast<frmMDISetup*>(m_page))
        page->ShowTab(tab);
}

void frmMain::GoOnline() {
    Guarded("GoOnline of Form frmMain", [this] {
        if (!UnloadPage())
            return;
        SetTitle(Translate("Download"));
        m_downloadPage = new frmMdiDownload(m_state.Link(), m_ui->pageArea);
        connect(m_downloadPage, &frmMdiDownload::BusyChanged, this, &frmMain::ShowBusy);
        connect(m_downloadPage, &frmMdiDownload::ReportWanted, this, &frmMain::OpenTourReport);
        connect(m_downloadPage, &frmMdiDownload::StatusChanged, m_panel2, &QLabel::setText);
        connect(&m_state, &LinkState::Changed, m_downloadPage, &frmMdiDownload::ShowLink);
        ShowPage(DownloadPage, m_downloadPage);
        MarkPage();
    });
}

void frmMain::GoReports() {
    Guarded("GoReports of Form frmMain", [this] {
        if (!UnloadPage())
            return;
        ShowPage(ReportsPage, new frmMdiReports(*m_viewer, m_ui->pageArea));
        SetTitle(Translate("Reports"));
        MarkPage();
    });
}

void frmMain::GoSetup() {
    Guarded("GoSetup of Form frmMain", [this] {
        if (!UnloadPage())
            return;
        auto* page = new frmMDISetup(m_state.Link(), m_ui->pageArea);
        connect(page, &frmMDISetup::TitleChanged, this, &frmMain::SetTitle);
        connect(&m_state, &LinkState::Changed, page, &frmMDISetup::ShowLink);
        ShowPage(SetupPage, page);
        page->Start();
        MarkPage();
    });
}

void frmMain::ShowBusy(bool busy) {
    m_ui->tbrMain->setEnabled(!busy);
    m_ui->mnuBar->setEnabled(!busy);
}

void frmMain::RestoreSavedPosition() {
    const auto saved = [](const char* key, int fallback) {
        return PixelsOf(
            SavedNumber(SettingsSection::Settings, QString::fromLatin1(key), fallback, ToLong));
    };
    if (SavedBoolean(SettingsSection::Settings, QStringLiteral("Maximized"), false)) {
        setWindowState(Qt::WindowMaximized);
        return;
    }
    setWindowState(Qt::WindowNoState);
    QRect place(saved("MainLeft", 0), saved("MainTop", 0), saved("MainWidth", 9615),
                saved("MainHeight", 6690));
    const bool first =
        GetSetting(SettingsApplication, SettingsSection::Settings, QStringLiteral("MainWidth"))
            .isEmpty();
    if (first) {
        const QRect screen = this->screen()->availableGeometry();
        place.setSize(place.size().expandedTo((screen.size() * 2 / 3).boundedTo(MostFirstSize)));
        place.moveCenter(screen.center());
    }
    place = OnScreen(place, *this);
    resize(place.size());
    move(place.topLeft());
}

void frmMain::MDIForm_Unload() {
    const auto save = [](const char* key, const QString& value) {
        SaveSetting(SettingsApplication, SettingsSection::Settings, QString::fromLatin1(key),
                    value);
    };
    const auto savePlace = [&](int left, int top, int width, int height) {
        save("MainLeft", QString::number(left));
        save("MainTop", QString::number(top));
        save("MainWidth", QString::number(width));
        save("MainHeight", QString::number(height));
    };
    gReaderOptions.reset();
    if (isMinimized()) {
        save("Maximized", BooleanText(false));
    } else if (isMaximized()) {
        savePlace(0, 0, 9615, 6690);
        save("Maximized", BooleanText(true));
    } else {
        savePlace(TwipsOf(x()), TwipsOf(y()), TwipsOf(width()), TwipsOf(height()));
        save("Maximized", BooleanText(false));
    }
    ExitApp();
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!UnloadPage()) {
        event->ignore();
        return;
    }
    if (m_open)
        MDIForm_Unload();
    event->accept();
}

void frmMain::ExitApp() {
    if (!std::exchange(m_open, false))
        return;
    IgnoringErrors([this] {
        m_state.Link().ClosePort();
        deMain.Close();
        gConn.reset();
    });
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window != this)
            window->close();
    hide();
    QApplication::quit();
}

void frmMain::EditOperator(OperatorType type) {
    frmUserMaintenance dialog(this);
    dialog.FormStart(type);
    dialog.exec();
}

void frmMain::TranslateFrame() { TranslateWindow(*this, Translated); }

void frmMain::ChangeLanguage() {
    const auto change = [this] {
        if (gDictionary->SelectLanguage(gLanguage)) {
            gDictionary->language = gLanguage;
            OpenChosenLanguage();
            SaveSetting(SettingsApplication, SettingsSection::Properties,
                        QStringLiteral("Language"), QString::number(gLanguage));
            UpdateLanguage();
        }
        ShowLanguage();
    };
    Trapped(change, [this](const RunTimeError& error) {
        ReportError(QStringLiteral("ChangeLanguage of Form frmMain"), error, ErrorShow::LogOnly);
        ResetLanguage();
        ShowLanguage();
    });
}

/// Everything of the main window that shows the language. Windows that are opened later take it by
/// themselves.
void frmMain::ShowLanguage() {
    unsetLocale(); // the pages take theirs from this window
    TranslateFrame();
    setWindowTitle(TitleWithVersion());
    InitToolbar();
    ShowGoneDevice();
    if (m_state.Online()) // otherwise the home page connects, and the state is shown after that
        ShowDockingDetect(gDockingDetected);
    if (auto* home = qobject_cast<frmMdiMenu*>(m_page))
        home->Translate();
}

void frmMain::ResetLanguage() {
    IvMessageBox(gDictionary->Languages(gLanguage).englishName +
                     QStringLiteral(" could not be displayed\nResetting to default language..."),
                 MessageKind::Information);
    gLanguage = 0;
    gDictionary->language = gLanguage;
    SaveSetting(SettingsApplication, SettingsSection::Properties, QStringLiteral("Language"),
                QString::number(gLanguage));
    IgnoringErrors(OpenChosenLanguage);
}
