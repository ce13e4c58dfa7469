#include "Application.h"
#include "Clock.h"
#include "CommPort.h"
#include "Connection.h"
#include "DemoStore.h"
#include "Dock.h"
#include "InstanceLock.h"
#include "LookUps.h"
#include "RecordingViewer.h"
#include "Recordset.h"
#include "RunTimeError.h"
#include "Schema.h"
#include "Script.h"
#include "Settings.h"
#include "StationApplication.h"
#include "TableExists.h"
#include "TourReportBuilder.h"
#include "frmMain.h"
#include "frmUserMaintenance.h"
#include "mMain.h"
#include "mOperators.h"
#include "mStore.h"
#include "mTranslations.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QSettings>
#include <QTabBar>
#include <QTimeEdit>

namespace {

const QByteArray Night = "reader 4B5831A7\n"
                         "touch 2026-11-21 23:14 1A40C2\n"
                         "touch 2026-11-22 00:41 ABCDEF\n";

/// Pauses and timers take a thirtieth of their time.
constexpr double Speed = 30;

QString LogText() {
    QFile log(AppFile("error.log"));
    return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()) : QString();
}

QString Saved(const QString& section, const char* key) {
    return GetSetting(SettingsApplication, section, QString::fromLatin1(key));
}

void Save(const QString& section, const char* key, const QString& value) {
    SaveSetting(SettingsApplication, section, QString::fromLatin1(key), value);
}

frmMain* MainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* main = qobject_cast<frmMain*>(window))
            return main;
    return nullptr;
}

void LogIn(Script& script, const QString& password, const char* operatorButton = "optUser_0") {
    script.Click("frmLogin", QString::fromLatin1(operatorButton));
    script.Then([password] {
        auto* field = Script::Find<QLineEdit>("frmLogin", "txtEnteredPassword");
        if (!field)
            return false;
        field->setText(password);
        return true;
    });
    script.Click("frmLogin", "cmdOK");
}

} // namespace

class StationTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<TestClock> m_clock;

    /// Starts the station without a dock and logs in.
    bool StartOffline(const char* operatorButton, const QString& password) {
        OverrideDevice("/dev/no-such-dock");
        Script script;
        LogIn(script, password, operatorButton);
        script.Answer("OK");
        script.Start();
        return Main({}) == StartOutcome::Running && script.Finish();
    }
    /// Starts the station at a dock and logs the master in.
    static bool StartAt(const Dock& dock) {
        OverrideDevice(dock.Device());
        Script script;
        LogIn(script, "keeper");
        script.Start();
        return Main({}) == StartOutcome::Running && script.Finish();
    }

private slots:
    void init() {
        m_home = std::make_unique<QTemporaryDir>();
        m_clock = std::make_unique<TestClock>(Speed);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           m_home->filePath("settings"));
        SetAppPath(m_home->path());
        for (const char* name : {"WK3.MLD", "login.bmp", "contact.bmp", "WK3_ENG.HLP"})
            QFile::copy(QStringLiteral(BESIDE "/") + QString::fromLatin1(name),
                        m_home->filePath(QString::fromLatin1(name)));
        CreateStoreFile(m_home->filePath("main.mdb"), StorePassword);
        Connection store;
        store.Open(ConnectionText(m_home->filePath("main.mdb"), StorePassword));
        CreateTables(store);
        DemoStore::Fill(store);
        Save(SettingsSection::Properties, "Language", "0");
    }
    void cleanup() {
        if (frmMain* main = MainWindow())
            main->close();
        ReleaseMainWindow();
        gConn.reset();
        OverrideDevice({});
        gDockingDetected = false;
        QVERIFY(!QFile::exists(m_home->filePath("main.ldb")));
        m_clock.reset();
        m_home.reset();
    }

    void RunsTheMainJobThroughItsWindows() {
        Dock dock(Night);
        QVERIFY(StartAt(dock));
        QVERIFY(gDockingDetected);
        QCOMPARE(MainWindow()->findChild<QLabel*>("panel1")->text(), "Docking Station : OK");

        MainWindow()->findChild<QAction*>("download")->trigger();
        auto* list = Script::Find<QAbstractItemView>("frmMdiDownload", "lvwDownload");
        QVERIFY(list);
        Script::Find<QAbstractButton>("frmMdiDownload", "cmdOnline_0")->click();
        QCOMPARE(Script::Find<QLabel>("frmMdiDownload", "lblMsg")->text(),
                 "Download Successful\nData Readings = 2\nReader Memory erased");
        QCOMPARE(list->model()->rowCount(), 2);
        QCOMPARE(list->currentIndex().row(), 1);
        QCOMPARE(list->model()->index(1, 4).data().toString(), "Unknown");

        MainWindow()->findChild<QAction*>("reports")->trigger();
        Script report;
        const QString dialog = QStringLiteral("frmRptTour");
        report.Then([&] {
            auto* date = Script::Find<QDateEdit>(dialog, "dtpStartDate");
            if (!date)
                return false;
            date->setDate(QDate(2026, 11, 21));
            auto* tours = Script::Find<QComboBox>(dialog, "imgcboTour");
            tours->setCurrentIndex(tours->findText("Night", Qt::MatchStartsWith));
            Script::Find<QRadioButton>(dialog, "optShowAll_1")->setChecked(true);
            return true;
        });
        report.Click(dialog, "cmdPrintPreview");
        QString caption;
        report.Then([&] {
            QWidget* preview = QApplication::activeModalWidget();
            if (!preview || preview->objectName() != u"frmPreview")
                return false;
            caption = preview->windowTitle();
            QTimer::singleShot(0, preview, &QWidget::close);
            return true;
        });
        report.Click(dialog, "cmdCancel");
        auto* reports = Script::Find<QAbstractItemView>("frmMdiReports", "lvwReports");
        DoEvents();                               // lays the page out
        QTest::keyClick(reports, Qt::Key_Return); // opens nothing
        const QPoint row = reports->visualRect(reports->model()->index(0, 0)).center();
        bool looked = false, opened = false;
        QTimer::singleShot(100, [&] {
            looked = true;
            if (QWidget* window = QApplication::activeModalWidget())
                opened = window->close();
        });
        QTest::mouseClick(reports->viewport(), Qt::LeftButton, Qt::ControlModifier, row);
        reports->actions().first()->trigger(); // Ctrl+O; the row is no longer selected
        QTRY_VERIFY(looked);
        QVERIFY(!opened);
        report.Start();
        QTest::mouseClick(reports->viewport(), Qt::LeftButton, {}, row);
        QTest::mouseDClick(reports->viewport(), Qt::LeftButton, {}, row);
        QVERIFY(report.Finish());
        QVERIFY2(caption.contains("Tour Report"), qPrintable(caption));
        QCOMPARE(Saved(SettingsSection::Settings, "ShowAllStatus"), "True");
        QVERIFY(!TableExists("tblXXXException"));
        QVERIFY(LogText().contains("Logged in as user type = 1"));
    }

    // From the delivered store to a report, through the windows alone.
    void SetsUpANewInstallation() {
        gConn.reset();
        QFile::remove(m_home->filePath("main.mdb"));
        CreateStoreFile(m_home->filePath("main.mdb"), StorePassword);
        {
            Connection store;
            store.Open(ConnectionText(m_home->filePath("main.mdb"), StorePassword));
            CreateTables(store);
        }
        Dock dock("reader 0A0B0C0D\n"
                  "touch 2026-11-21 23:14 00000A\n"
                  "touch 2026-11-21 23:36 00000B\n"
                  "touch 2026-11-21 23:37 7E0001\n");
        OverrideDevice(dock.Device());
        Script login; // the first try makes the operator known
        LogIn(login, "keeper");
        login.Answer("OK");
        LogIn(login, "keeper");
        login.Start();
        QCOMPARE(Main({}), StartOutcome::Running);
        const QString page = QStringLiteral("frmMDISetup"), list = QStringLiteral("frmListEdit"),
                      capture = QStringLiteral("frmAddButton"),
                      tour = QStringLiteral("frmEditTour");
        Script script;
        const auto type = [&](const QString& window, const char* field, const char* text) {
            script.Then([=] {
                auto* edit = Script::Find<QLineEdit>(window, QString::fromLatin1(field));
                if (edit)
                    edit->setText(QString::fromLatin1(text));
                return edit != nullptr;
            });
        };
        const auto addButton = [&](const char* code, const char* name) {
            script.Click(list, "cmdSetup_1");
            type(capture, "txtName", name);
            script.Then([=, &dock] {
                dock.Say(QByteArray("button ") + code);
                return true;
            });
            script.Click(capture, "cmdOK"); // once the code has come
            script.Then([=] { return !Script::Find<QLabel>(capture, "lblID"); });
        };
        const auto showTab = [&](int tab) {
            script.Then([=] {
                Script::Find<QTabBar>(page, "tabSetup")->setCurrentIndex(tab);
                return true;
            });
        };
        script.Click(page, "cmdSetup_1");
        script.Click(page, "cmdSetup_0");
        type(list, "txtName", "Quay");
        addButton("00000A", "Bollard");
        addButton("00000B", "Crane");
        script.Click(list, "cmdOK");
        showTab(1);
        script.Click(page, "cmdSetup_1");
        script.Click(page, "cmdSetup_0");
        addButton("7E0001", "Light on");
        script.Click(list, "cmdOK");
        showTab(3);
        script.Click(page, "cmdSetup_1");
        script.Click("frmAddReader", "cmdRead");
        script.Click("frmAddReader", "cmdOK");
        script.Then([] { return CountReaders() == 1; });
        showTab(2);
        script.Click(page, "cmdSetup_1");
        script.Click(page, "cmdSetup_0");
        type(tour, "txtName", "Night");
        script.Then([=] {
            Script::Find<QTimeEdit>(tour, "dtpStartTime")->setTime(QTime(23, 5));
            return true;
        });
        for (int i = 0; i < 2; ++i)
            script.Click(tour, "cmdMove_0");
        script.Click(tour, "cmdEditTime"); // of the crane, that came last
        type("frmEditTime", "txtTime", "20");
        script.Click("frmEditTime", "cmdOK");
        script.Click(tour, "cmdOK");
        script.Then([] { return CountTours() == 1; });
        script.Start();
        MainWindow()->GoSetup();
        QVERIFY(script.Finish());

        MainWindow()->GoOnline();
        Script::Find<QAbstractButton>("frmMdiDownload", "cmdOnline_0")->click();
        RecordingViewer viewer;
        BuildTourReport(
            {1, DateTime::FromQt(QDate(2026, 11, 21)), "0A0B0C0D", "Reader 1", true, true}, viewer);
        QStringList rows;
        for (const QString& row : viewer.Rows)
            if (!row.contains(u"____"))
                rows += row;
        QCOMPARE(rows, (QStringList{"1|23:15|23:10 to 23:20|||Quay - Bollard|ON TIME||||",
                                    "||||||||23:14|ON TIME|Quay - Bollard",
                                    "2|23:35|23:30 to 23:40|||Quay - Crane|ON TIME||||",
                                    "||||||||23:36|ON TIME|Quay - Crane",
                                    "||||||||23:37|EVENT|Event Book 001 - Light on"}));
    }

    void FourWrongPasswordsEndTheProgram() {
        Script script;
        for (int i = 0; i < 4; ++i) {
            LogIn(script, "wrong", "optUser_1");
            script.Answer("OK");
        }
        script.Start();
        QCOMPARE(Main({}), StartOutcome::Failed);
        const QString retry = "The User Name / Password are incorrect. Please try again.";
        QCOMPARE(script.Texts(),
                 (QStringList{retry, retry, retry,
                              QStringLiteral("You could not be logged in.  Closing the program "
                                             "now.")}));
        QCOMPARE(Saved(SettingsSection::Info, "LastLogin"), "2");
        QVERIFY(!MainWindow());
        QCOMPARE(LogText().count("\tWrong password for user type = 2\n"), 4);
        QVERIFY(!LogText().contains("wrong"));
    }

    void RightsFollowTheOperator_data() {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QString>("password");
        QTest::addColumn<bool>("tools");
        QTest::newRow("master") << QByteArray("optUser_0") << "KEEPER" << true;
        QTest::newRow("user") << QByteArray("optUser_1") << "crew" << false;
    }
    void RightsFollowTheOperator() {
        QFETCH(QByteArray, button);
        QFETCH(QString, password);
        QFETCH(bool, tools);
        QVERIFY(StartOffline(button.constData(), password));
        frmMain* main = MainWindow();
        const auto action = [main](const char* name) {
            return main->findChild<QAction*>(QString::fromLatin1(name));
        };
        QCOMPARE(main->findChild<QMenu*>("mnuTools")->menuAction()->isVisible(), tools);
        QVERIFY(action("mnuFileExit")->isEnabled());
        QCOMPARE(action("setup")->isVisible(), tools);
        for (const char* unbuilt : {"mnuFileArchive", "mnuFileBackup", "mnuFileRestore",
                                    "mnuToolCompany", "mnuHelpAbout"})
            QVERIFY2(!action(unbuilt)->isVisible(), unbuilt);
        for (const char* noDock : {"mnuToolsPipeOptions", "mnuToolsClearPipe", "mnuToolsReaderFW"})
            QVERIFY2(!action(noDock)->isEnabled(), noDock);
        main->GoReports();
        QVERIFY(!action("download")->isEnabled()); // no dock
        QVERIFY(action("home")->isEnabled() && !action("reports")->isEnabled());
        QVERIFY_THROWS_EXCEPTION(RunTimeError, main->NavigateToolbarButtons("111"));
        QVERIFY(action("home")->isEnabled() && !action("reports")->isEnabled());
    }

    void OfflineAndPortChoice() {
        QVERIFY(StartOffline("optUser_0", "keeper"));
        auto* panel = MainWindow()->findChild<QLabel*>("panel1");
        QCOMPARE(panel->text(), "Docking Station : Not Detected");

        Dock dock(Night);
        OverrideDevice({});
        Script choose;
        choose.Then([&] {
            auto* device = Script::Find<QComboBox>("frmPrpComms", "cboDevice");
            if (!device)
                return false;
            Script::Find<QComboBox>("frmPrpComms", "cboLocalPort")->setCurrentIndex(2);
            device->setEditText(dock.Device());
            return true;
        });
        choose.Click("frmPrpComms", "cmdSetupOK");
        choose.Start();
        MainWindow()->GoOptions();
        QCOMPARE(panel->text(), "Docking Station : OK");
        QCOMPARE(Saved(SettingsSection::ComPort, "ComPort"), "3");
        QCOMPARE(DeviceOfPort(3), dock.Device());
        QCOMPARE(Saved(SettingsSection::ComPort, "Device0") +
                     Saved(SettingsSection::ComPort, "Device1"),
                 "");
    }

    // Whatever page is open, all that talks to the dock is closed with the port, and nothing else.
    void ClosedPortClosesWhatNeedsIt() {
        Dock dock(Night);
        QVERIFY(StartAt(dock));
        frmMain* main = MainWindow();
        const auto open = [main] {
            QStringList names;
            for (const QString name :
                 {"home", "download", "reports", "setup", "mnuToolsPipeOptions",
                  "mnuToolsClearPipe", "mnuToolsReaderFW", "mnuViewOptions"})
                if (main->findChild<QAction*>(name)->isEnabled())
                    names += name;
            for (const QString name : {"cmdSetup_1", "cmdOnline_0", "cmdOnline_1"})
                if (auto* button = main->findChild<QAbstractButton*>(name);
                    button && button->isVisible() && button->isEnabled())
                    names += name;
            return names.join(u' ');
        };
        const auto choosePort = [&](const char* button, bool docked) {
            OverrideDevice(docked ? dock.Device() : QStringLiteral("/dev/no-such-dock"));
            Script script;
            script.Click("frmPrpComms", QString::fromLatin1(button));
            if (!docked)
                script.Answer("OK");
            script.Start();
            main->GoOptions();
            return open();
        };
        const QString tools = "mnuToolsPipeOptions mnuToolsClearPipe mnuToolsReaderFW ",
                      options = "mnuViewOptions",
                      download =
                          "home reports setup " + tools + options + " cmdOnline_0 cmdOnline_1",
                      setup = "home download reports " + tools + options + " cmdSetup_1";
        main->GoOnline();
        QCOMPARE(open(), download);
        QCOMPARE(choosePort("cmdSetupCancel", true), "home reports setup " + options);
        QCOMPARE(main->findChild<QLabel*>("panel1")->text(), "Status: Offline");
        QCOMPARE(choosePort("cmdSetupOK", true), download);
        main->GoSetup();
        Script::Find<QTabBar>("frmMDISetup", "tabSetup")->setCurrentIndex(3);
        QCOMPARE(open(), setup);
        QCOMPARE(choosePort("cmdSetupOK", false), "home reports " + options);
        QCOMPARE(choosePort("cmdSetupOK", true), setup);
    }

    // Everything that the Tools menu does to the docked reader; the conversation is usable behind
    // it.
    void ToolsActOnTheDockedReader() {
        Dock dock(Night);
        QVERIFY(StartAt(dock));
        const auto trigger = [](const char* name) {
            auto* action = MainWindow()->findChild<QAction*>(QString::fromLatin1(name));
            QVERIFY(action->isVisible() && action->isEnabled());
            action->trigger();
        };
        Script configure;
        configure.Click("frmSetTime", "cmdSendRealTime");
        configure.Answer("OK");
        configure.Start();
        MainWindow()->GoReports();
        trigger("mnuToolsPipeOptions");
        QVERIFY(configure.Finish());
        QVERIFY(configure.Texts().value(0).startsWith("Reader update successful\n"));
        QCOMPARE(dock.State()[u"options"].toInt(), 7);
        QVERIFY(gDockingDetected); // it went home, and connected
        QVERIFY(Script::Find<QLabel>("frmMdiMenu", "lblMainTitle"));

        Script erase;
        erase.Answer("No");
        erase.Start();
        trigger("mnuToolsClearPipe");
        QCOMPARE(dock.Erasures(), 0);
        Script eraseNow;
        eraseNow.Answer("Yes");
        eraseNow.Answer("OK");
        eraseNow.Start();
        trigger("mnuToolsClearPipe");
        QVERIFY(eraseNow.Finish());
        QCOMPARE(eraseNow.Texts().value(1), "Reader Erased");
        QCOMPARE(dock.Erasures(), 1);
        QVERIFY(Script::Find<QAbstractItemView>("frmMdiDownload", "lvwDownload"));
    }

    void FirmwareVersion_data() {
        QTest::addColumn<QByteArray>("scenario");
        QTest::addColumn<QStringList>("shown");
        const QByteArray three =
            Night + QByteArray("touch 2026-11-22 01:00 1A40C2\n").repeated(150);
        QTest::newRow("06") << Night + "firmware 06" << QStringList{"Firmware Version is V06"};
        QTest::newRow("07") << Night + "firmware 07" << QStringList{"Firmware Version is V07"};
        QTest::newRow("08") << Night + "firmware 08" << QStringList{"Firmware Version is V06"};
        QTest::newRow("not told") << Night + "firmware FF" << QStringList();
        QTest::newRow("no reader")
            << Night + "remove" << QStringList{"Reader not detected. Check reader and try again."};
        QTest::newRow("failed behind the first frame")
            << three + "firmware 08\ntransfer-fault 1"
            << QStringList{"Download Error (002)", "Firmware Version is V06"};
    }
    void FirmwareVersion() {
        QFETCH(QByteArray, scenario);
        QFETCH(QStringList, shown);
        Dock dock(scenario);
        QVERIFY(StartAt(dock));
        Script script;
        QStringList texts;
        const QString window = QStringLiteral("frmFirmwareVersion");
        for (const QString& text : shown) {
            if (!text.startsWith(u"Firmware")) {
                script.Answer("OK");
                continue;
            }
            script.Then([&] {
                auto* label = Script::Find<QLabel>(window, "Label1");
                if (label)
                    texts += label->text();
                return label != nullptr;
            });
            script.Click(window, "cmdClose");
        }
        script.Start();
        MainWindow()->findChild<QAction*>("mnuToolsReaderFW")->trigger();
        QVERIFY(script.Finish());
        QCOMPARE(script.Texts() + texts, shown);
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(dock.Erasures(), 0);
    }

    void BadPortSettingsBecomeOne_data() {
        QTest::addColumn<QString>("saved");
        for (const char* saved : {"9", "0", "-1", "none", "99999999999"})
            QTest::newRow(saved) << QString::fromLatin1(saved);
    }
    void BadPortSettingsBecomeOne() {
        QFETCH(QString, saved);
        Save(SettingsSection::ComPort, "ComPort", saved);
        QVERIFY(StartOffline("optUser_0", "keeper"));
        QCOMPARE(Saved(SettingsSection::ComPort, "ComPort"), "1");
    }

    void PasswordsChange() {
        QVERIFY(StartOffline("optUser_0", "keeper"));
        frmUserMaintenance dialog(MainWindow());
        dialog.FormStart(UserOperator);
        dialog.show();
        auto* first = dialog.findChild<QLineEdit*>("txtPassword");
        auto* second = dialog.findChild<QLineEdit*>("txtRetypePassword");
        auto* ok = dialog.findChild<QPushButton*>("cmdOK");
        first->setText("Lantern");
        second->setText("lantern");
        Script script;
        script.Answer("OK");
        script.Start();
        ok->click();
        QCOMPARE(script.Texts(), QStringList{"The passwords do not match, please re-enter"});
        QVERIFY(dialog.isVisible());
        second->setText("Lantern");
        ok->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(CheckOperator(UserOperator, " LANTERN "), UserOperator);
        QCOMPARE(CheckOperator(UserOperator, "crew"), NoOperator);
    }

    void WindowKeepsItsPlace() {
        QVERIFY(StartOffline("optUser_0", "keeper"));
        MainWindow()->move(40, 30);
        MainWindow()->resize(700, 500);
        MainWindow()->close();
        QCOMPARE(Saved(SettingsSection::Settings, "MainLeft"), "600");
        QCOMPARE(Saved(SettingsSection::Settings, "MainWidth"), "10500");
        QCOMPARE(Saved(SettingsSection::Settings, "Maximized"), "False");
        ReleaseMainWindow();
        QVERIFY(StartOffline("optUser_0", "keeper"));
        QCOMPARE(MainWindow()->size(), QSize(700, 500));
    }

    // Each costs itself alone, and the log names it.
    void UnreadableOptions() {
        for (const char* key : {"Language", "AutoSetTime"})
            Save(SettingsSection::Properties, key, "abc");
        for (const char* key : {"Maximized", "MainLeft", "LastTourInterval"})
            Save(SettingsSection::Settings, key, "abc");
        Save(SettingsSection::Settings, "MainWidth", "10500");
        Save(SettingsSection::Info, "LastLogin", "99999");
        QVERIFY(StartOffline("optUser_0", "keeper"));
        QCOMPARE(MainWindow()->width(), 700);
        QVERIFY(gAutoSetTime);
        for (const char* key :
             {"Language = \"abc\"", "AutoSetTime = \"abc\"", "Maximized = \"abc\"",
              "MainLeft = \"abc\"", "LastLogin = \"99999\""})
            QCOMPARE(LogText().count(QStringLiteral("(setting ") + QString::fromLatin1(key)), 1);
    }

    void SpeaksGerman() {
        Save(SettingsSection::Properties, "Language", "2");
        OverrideDevice("/dev/no-such-dock");
        Script script;
        LogIn(script, "keeper");
        script.Answer("OK");
        script.Start();
        QCOMPARE(Main({}), StartOutcome::Running);
        QCOMPARE(MainWindow()->findChild<QMenu*>("mnuFile")->title(), "&Datei");
        QCOMPARE(MainWindow()->findChild<QAction*>("reports")->text(), "Berichte");
        // And changes its language while it runs.
        gDictionary->InstallChooser([](Dictionary&, int& number) {
            number = 0;
            return true;
        });
        Script offline;
        offline.Answer("OK");
        offline.Start();
        MainWindow()->findChild<QAction*>("mnuToolsLanguage")->trigger();
        QCOMPARE(MainWindow()->findChild<QMenu*>("mnuFile")->title(), "&File");
        QCOMPARE(Saved(SettingsSection::Properties, "Language"), "0");
        QVERIFY(!MainWindow()->findChild<QAction*>("download")->isEnabled());
    }

    void NothingElseIsBegunDuringAnErase() {
        Dock dock(Night + "fault silent erase\n");
        QVERIFY(StartAt(dock));
        MainWindow()->GoOnline();
        auto* erase = Script::Find<QAbstractButton>("frmMdiDownload", "cmdOnline_1");
        bool refused = false;
        Script script;
        script.Answer("Yes");
        script.Then([&] {
            if (erase->isEnabled())
                return false;
            MainWindow()->GoHome();
            MainWindow()->close();
            refused = MainWindow()->isVisible() && erase->isVisible();
            return true;
        });
        script.Answer("No");
        script.Start();
        erase->click();
        QVERIFY(script.Finish());
        QVERIFY(refused);
        QVERIFY(erase->isEnabled());
    }

    void BadStartsEndAsTheyShould_data() {
        QTest::addColumn<QString>("what");
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("log");
        QTest::newRow("missing store") << "store"
                                       << "*** System Error: Cannot Open the database at "
                                       << "ADOTest Failed. Exiting...";
        QTest::newRow("second instance") << "instance"
                                         << "The program is already running!" << QString();
    }
    void BadStartsEndAsTheyShould() {
        QFETCH(QString, what);
        QFETCH(QString, box);
        QFETCH(QString, log);
        std::unique_ptr<InstanceLock> other;
        if (what == u"store")
            QFile::remove(m_home->filePath("main.mdb"));
        else
            other = TakeInstanceLock();
        Script script;
        script.Answer("OK");
        script.Start();
        QCOMPARE(Main({}), StartOutcome::Failed);
        QCOMPARE(script.Texts().join(u'|').left(box.size()), box);
        QVERIFY(LogText().contains(log));
        QVERIFY(!MainWindow());
    }

    void UnknownLanguageFallsBack() {
        Save(SettingsSection::Properties, "Language", "77");
        Script script;
        script.Answer("OK");
        script.Click("frmLogin", "cmdCancel");
        script.Start();
        QCOMPARE(Main("x-debugging"), StartOutcome::Cancelled);
        QVERIFY(script.Texts().value(0).endsWith(
            "could not be displayed\nResetting to default system language..."));
        QCOMPARE(Saved(SettingsSection::Properties, "Language"), "1");
        QVERIFY(Saved(SettingsSection::Settings, "MainLeft").isEmpty());
        QVERIFY(LogText().contains(" Started at "));
        QVERIFY(!LogText().contains("Database path = "));
    }
};

int main(int argc, char* argv[]) {
    StationApplication app(argc, argv);
    StationTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "StationTest.moc"
