#include "Application.h"
#include "Clock.h"
#include "CommPort.h"
#include "Connection.h"
#include "DemoStore.h"
#include "Dock.h"
#include "RecordingViewer.h"
#include "Recordset.h"
#include "RunTimeError.h"
#include "Schema.h"
#include "Script.h"
#include "Settings.h"
#include "StationApplication.h"
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
    QFile log(AppFile(QStringLiteral("error.log")));
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
    script.Click(QStringLiteral("frmLogin"), QString::fromLatin1(operatorButton));
    script.Then([password] {
        auto* field = Script::Find<QLineEdit>(QStringLiteral("frmLogin"),
                                              QStringLiteral("txtEnteredPassword"));
        if (!field)
            return false;
        field->setText(password);
        return true;
    });
    script.Click(QStringLiteral("frmLogin"), QStringLiteral("cmdOK"));
}

} // namespace

class StationTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<TestClock> m_clock;

    /// Starts the station without a dock and logs in.
    bool StartOffline(const char* operatorButton, const QString& password) {
        OverrideDevice(QStringLiteral("/dev/no-such-dock"));
        Script script;
        LogIn(script, password, operatorButton);
        script.Answer(QStringLiteral("OK"));
        script.Start();
        return Main({}) && script.Finish();
    }

private slots:
    void init() {
        m_home = std::make_unique<QTemporaryDir>();
        m_clock = std::make_unique<TestClock>(Speed);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           m_home->filePath(QStringLiteral("settings")));
        SetAppPath(m_home->path());
        for (const char* name : {"WK3.MLD", "login.bmp", "contact.bmp", "WK3_ENG.HLP"})
            QFile::copy(QStringLiteral(BESIDE "/") + QString::fromLatin1(name),
                        m_home->filePath(QString::fromLatin1(name)));
        CreateStoreFile(m_home->filePath(QStringLiteral("main.mdb")), StorePassword);
        Connection store;
        store.Open(ConnectionText(m_home->filePath(QStringLiteral("main.mdb")), StorePassword));
        CreateTables(store);
        DemoStore::Fill(store);
        Save(SettingsSection::Properties, "Language", QStringLiteral("0"));
    }
    void cleanup() {
        if (frmMain* main = MainWindow())
            main->close();
        ReleaseMainWindow();
        gConn.reset();
        OverrideDevice({});
        gDockingDetected = false;
        QVERIFY(!QFile::exists(m_home->filePath(QStringLiteral("main.ldb"))));
        m_clock.reset();
        m_home.reset();
    }

    void RunsTheMainJobThroughItsWindows() {
        Dock dock(Night);
        OverrideDevice(dock.Device());
        Script login;
        LogIn(login, QStringLiteral("keeper"));
        login.Start();
        QVERIFY(Main({}));
        QVERIFY(gDockingDetected);
        QCOMPARE(MainWindow()->findChild<QLabel*>(QStringLiteral("panel1"))->text(),
                 QStringLiteral("Docking Station : OK"));

        MainWindow()->findChild<QAction*>(QStringLiteral("download"))->trigger();
        auto* list = Script::Find<QAbstractItemView>(QStringLiteral("frmMdiDownload"),
                                                     QStringLiteral("lvwDownload"));
        QVERIFY(list);
        Script::Find<QAbstractButton>(QStringLiteral("frmMdiDownload"),
                                      QStringLiteral("cmdOnline_0"))
            ->click();
        QCOMPARE(Script::Find<QLabel>(QStringLiteral("frmMdiDownload"), QStringLiteral("lblMsg"))
                     ->text(),
                 QStringLiteral("Download Successful\nData Readings = 2\nReader Memory erased"));
        QCOMPARE(list->model()->rowCount(), 2);
        QCOMPARE(list->currentIndex().row(), 1);
        QCOMPARE(list->model()->index(1, 4).data().toString(), QStringLiteral("Unknown"));

        MainWindow()->findChild<QAction*>(QStringLiteral("reports"))->trigger();
        Script report;
        const QString dialog = QStringLiteral("frmRptTour");
        report.Then([&] {
            auto* date = Script::Find<QDateEdit>(dialog, QStringLiteral("dtpStartDate"));
            if (!date)
                return false;
            date->setDate(QDate(2026, 11, 21));
            auto* tours = Script::Find<QComboBox>(dialog, QStringLiteral("imgcboTour"));
            tours->setCurrentIndex(tours->findText(QStringLiteral("Night"), Qt::MatchStartsWith));
            Script::Find<QRadioButton>(dialog, QStringLiteral("optShowAll_1"))->setChecked(true);
            return true;
        });
        report.Click(dialog, QStringLiteral("cmdPrintPreview"));
        QString caption;
        report.Then([&] {
            QWidget* preview = QApplication::activeModalWidget();
            if (!preview || preview->objectName() != u"frmPreview")
                return false;
            caption = preview->windowTitle();
            QTimer::singleShot(0, preview, &QWidget::close);
            return true;
        });
        report.Click(dialog, QStringLiteral("cmdCancel"));
        report.Start();
        auto* reports = Script::Find<QAbstractItemView>(QStringLiteral("frmMdiReports"),
                                                        QStringLiteral("lvwReports"));
        DoEvents();                               // lays the page out
        QTest::keyClick(reports, Qt::Key_Return); // opens nothing
        QVERIFY(!QApplication::activeModalWidget());
        const QPoint row = reports->visualRect(reports->model()->index(0, 0)).center();
        QTest::mouseClick(reports->viewport(), Qt::LeftButton, {}, row);
        QTest::mouseDClick(reports->viewport(), Qt::LeftButton, {}, row);
        QVERIFY(report.Finish());
        QVERIFY2(caption.contains(QStringLiteral("Tour Report")), qPrintable(caption));
        QCOMPARE(Saved(SettingsSection::Settings, "ShowAllStatus"), QStringLiteral("True"));
        QVERIFY(!TableExists(QStringLiteral("tblXXXException")));
        QVERIFY(LogText().contains(QStringLiteral("Logged in as user type = 1")));
    }

    // From the delivered store to a report, through the windows alone.
    void SetsUpANewInstallation() {
        gConn.reset();
        QFile::remove(m_home->filePath(QStringLiteral("main.mdb")));
        CreateStoreFile(m_home->filePath(QStringLiteral("main.mdb")), StorePassword);
        {
            Connection store;
            store.Open(ConnectionText(m_home->filePath(QStringLiteral("main.mdb")), StorePassword));
            CreateTables(store);
        }
        Dock dock("reader 0A0B0C0D\n"
                  "touch 2026-11-21 23:14 00000A\n"
                  "touch 2026-11-21 23:36 00000B\n"
                  "touch 2026-11-21 23:37 7E0001\n");
        OverrideDevice(dock.Device());
        Script login; // the first try makes the operator known
        LogIn(login, QStringLiteral("keeper"));
        login.Answer(QStringLiteral("OK"));
        LogIn(login, QStringLiteral("keeper"));
        login.Start();
        QVERIFY(Main({}));
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
            script.Click(list, QStringLiteral("cmdSetup_1"));
            type(capture, "txtName", name);
            script.Then([=, &dock] {
                dock.Say(QByteArray("button ") + code);
                return true;
            });
            script.Click(capture, QStringLiteral("cmdOK")); // once the code has come
            script.Then([=] { return !Script::Find<QLabel>(capture, QStringLiteral("lblID")); });
        };
        const auto showTab = [&](int tab) {
            script.Then([=] {
                Script::Find<QTabBar>(page, QStringLiteral("tabSetup"))->setCurrentIndex(tab);
                return true;
            });
        };
        script.Click(page, QStringLiteral("cmdSetup_1"));
        script.Click(page, QStringLiteral("cmdSetup_0"));
        type(list, "txtName", "Quay");
        addButton("00000A", "Bollard");
        addButton("00000B", "Crane");
        script.Click(list, QStringLiteral("cmdOK"));
        showTab(1);
        script.Click(page, QStringLiteral("cmdSetup_1"));
        script.Click(page, QStringLiteral("cmdSetup_0"));
        addButton("7E0001", "Light on");
        script.Click(list, QStringLiteral("cmdOK"));
        showTab(3);
        script.Click(page, QStringLiteral("cmdSetup_1"));
        script.Click(QStringLiteral("frmAddReader"), QStringLiteral("cmdRead"));
        script.Click(QStringLiteral("frmAddReader"), QStringLiteral("cmdOK"));
        script.Then([] { return CountReaders() == 1; });
        showTab(2);
        script.Click(page, QStringLiteral("cmdSetup_1"));
        script.Click(page, QStringLiteral("cmdSetup_0"));
        type(tour, "txtName", "Night");
        script.Then([=] {
            Script::Find<QTimeEdit>(tour, QStringLiteral("dtpStartTime"))->setTime(QTime(23, 5));
            return true;
        });
        for (int i = 0; i < 2; ++i)
            script.Click(tour, QStringLiteral("cmdMove_0"));
        script.Click(tour, QStringLiteral("cmdEditTime")); // of the crane, that came last
        type(QStringLiteral("frmEditTime"), "txtTime", "20");
        script.Click(QStringLiteral("frmEditTime"), QStringLiteral("cmdOK"));
        script.Click(tour, QStringLiteral("cmdOK"));
        script.Then([] { return CountTours() == 1; });
        script.Start();
        MainWindow()->GoSetup();
        QVERIFY(script.Finish());

        MainWindow()->GoOnline();
        Script::Find<QAbstractButton>(QStringLiteral("frmMdiDownload"),
                                      QStringLiteral("cmdOnline_0"))
            ->click();
        RecordingViewer viewer;
        BuildTourReport({1, DateTime::FromQt(QDate(2026, 11, 21)), QStringLiteral("0A0B0C0D"),
                         QStringLiteral("Reader 1"), true, true},
                        viewer);
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
            LogIn(script, QStringLiteral("wrong"), "optUser_1");
            script.Answer(QStringLiteral("OK"));
        }
        script.Start();
        QVERIFY(!Main({}));
        const QString retry =
            QStringLiteral("The User Name / Password are incorrect. Please try again.");
        QCOMPARE(script.Texts(),
                 (QStringList{retry, retry, retry,
                              QStringLiteral("You could not be logged in.  Closing the program "
                                             "now.")}));
        QCOMPARE(Saved(SettingsSection::Info, "LastLogin"), QStringLiteral("2"));
        QVERIFY(!MainWindow());
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
        QCOMPARE(main->findChild<QMenu*>(QStringLiteral("mnuTools"))->menuAction()->isVisible(),
                 tools);
        QVERIFY(action("mnuFileExit")->isEnabled());
        QCOMPARE(action("setup")->isVisible(), tools);
        for (const char* unbuilt : {"mnuFileArchive", "mnuFileBackup", "mnuFileRestore",
                                    "mnuToolCompany", "mnuHelpAbout"})
            QVERIFY2(!action(unbuilt)->isVisible(), unbuilt);
        for (const char* noDock : {"mnuToolsPipeOptions", "mnuToolsClearPipe"})
            QVERIFY2(!action(noDock)->isEnabled(), noDock);
        main->GoReports();
        QVERIFY(!action("download")->isEnabled()); // no dock
        QVERIFY(action("home")->isEnabled() && !action("reports")->isEnabled());
        QVERIFY_THROWS_EXCEPTION(RunTimeError, main->NavigateToolbarButtons(QStringLiteral("111")));
        QVERIFY(action("home")->isEnabled() && !action("reports")->isEnabled());
    }

    void OfflineAndPortChoice() {
        QVERIFY(StartOffline("optUser_0", QStringLiteral("keeper")));
        auto* panel = MainWindow()->findChild<QLabel*>(QStringLiteral("panel1"));
        QCOMPARE(panel->text(), QStringLiteral("Docking Station : Not Detected"));
        Script cancel;
        cancel.Click(QStringLiteral("frmPrpComms"), QStringLiteral("cmdSetupCancel"));
        cancel.Start();
        MainWindow()->GoOptions();
        QCOMPARE(panel->text(), QStringLiteral("Status: Offline"));

        Dock dock(Night);
        OverrideDevice({});
        Script choose;
        choose.Then([&] {
            auto* device =
                Script::Find<QComboBox>(QStringLiteral("frmPrpComms"), QStringLiteral("cboDevice"));
            if (!device)
                return false;
            Script::Find<QComboBox>(QStringLiteral("frmPrpComms"), QStringLiteral("cboLocalPort"))
                ->setCurrentIndex(2);
            device->setEditText(dock.Device());
            return true;
        });
        choose.Click(QStringLiteral("frmPrpComms"), QStringLiteral("cmdSetupOK"));
        choose.Start();
        MainWindow()->GoOptions();
        QCOMPARE(panel->text(), QStringLiteral("Docking Station : OK"));
        QCOMPARE(Saved(SettingsSection::ComPort, "ComPort"), QStringLiteral("3"));
        QCOMPARE(DeviceOfPort(3), dock.Device());
    }

    // Everything that the Tools menu does to the docked reader; the conversation is usable behind
    // it.
    void ToolsActOnTheDockedReader() {
        Dock dock(Night);
        OverrideDevice(dock.Device());
        Script login;
        LogIn(login, QStringLiteral("keeper"));
        login.Start();
        QVERIFY(Main({}));
        const auto trigger = [](const char* name) {
            auto* action = MainWindow()->findChild<QAction*>(QString::fromLatin1(name));
            QVERIFY(action->isVisible() && action->isEnabled());
            action->trigger();
        };
        Script configure;
        configure.Click(QStringLiteral("frmSetTime"), QStringLiteral("cmdSendRealTime"));
        configure.Answer(QStringLiteral("OK"));
        configure.Start();
        trigger("mnuToolsPipeOptions");
        QVERIFY(configure.Finish());
        QVERIFY(
            configure.Texts().value(0).startsWith(QStringLiteral("Reader update successful\n")));
        QCOMPARE(dock.State()[u"options"].toInt(), 7);
        QVERIFY(gDockingDetected); // it went home, and connected

        Script erase;
        erase.Answer(QStringLiteral("No"));
        erase.Start();
        trigger("mnuToolsClearPipe");
        QCOMPARE(dock.Erasures(), 0);
        Script eraseNow;
        eraseNow.Answer(QStringLiteral("Yes"));
        eraseNow.Answer(QStringLiteral("OK"));
        eraseNow.Start();
        trigger("mnuToolsClearPipe");
        QVERIFY(eraseNow.Finish());
        QCOMPARE(eraseNow.Texts().value(1), QStringLiteral("Reader Erased"));
        QCOMPARE(dock.Erasures(), 1);
        QVERIFY(Script::Find<QAbstractItemView>(QStringLiteral("frmMdiDownload"),
                                                QStringLiteral("lvwDownload")));
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
        OverrideDevice(dock.Device());
        Script login;
        LogIn(login, QStringLiteral("keeper"));
        login.Start();
        QVERIFY(Main({}));
        Script script;
        QStringList texts;
        const QString window = QStringLiteral("frmFirmwareVersion");
        for (const QString& text : shown) {
            if (!text.startsWith(u"Firmware")) {
                script.Answer(QStringLiteral("OK"));
                continue;
            }
            script.Then([&] {
                auto* label = Script::Find<QLabel>(window, QStringLiteral("Label1"));
                if (label)
                    texts += label->text();
                return label != nullptr;
            });
            script.Click(window, QStringLiteral("cmdClose"));
        }
        script.Start();
        MainWindow()->findChild<QAction*>(QStringLiteral("mnuToolsReaderFW"))->trigger();
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
        QVERIFY(StartOffline("optUser_0", QStringLiteral("keeper")));
        QCOMPARE(Saved(SettingsSection::ComPort, "ComPort"), QStringLiteral("1"));
    }

    void PasswordsChange() {
        QVERIFY(StartOffline("optUser_0", QStringLiteral("keeper")));
        frmUserMaintenance dialog(MainWindow());
        dialog.FormStart(UserOperator);
        dialog.show();
        auto* first = dialog.findChild<QLineEdit*>(QStringLiteral("txtPassword"));
        auto* second = dialog.findChild<QLineEdit*>(QStringLiteral("txtRetypePassword"));
        auto* ok = dialog.findChild<QPushButton*>(QStringLiteral("cmdOK"));
        first->setText(QStringLiteral("Lantern"));
        second->setText(QStringLiteral("lantern"));
        Script script;
        script.Answer(QStringLiteral("OK"));
        script.Start();
        ok->click();
        QCOMPARE(script.Texts(),
                 QStringList{QStringLiteral("The passwords do not match, please re-enter")});
        QVERIFY(dialog.isVisible());
        second->setText(QStringLiteral("Lantern"));
        ok->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(CheckOperator(UserOperator, QStringLiteral(" LANTERN ")), UserOperator);
        QCOMPARE(CheckOperator(UserOperator, QStringLiteral("crew")), NoOperator);
    }

    void WindowKeepsItsPlace() {
        QVERIFY(StartOffline("optUser_0", QStringLiteral("keeper")));
        MainWindow()->move(40, 30);
        MainWindow()->resize(700, 500);
        MainWindow()->close();
        QCOMPARE(Saved(SettingsSection::Settings, "MainLeft"), QStringLiteral("600"));
        QCOMPARE(Saved(SettingsSection::Settings, "MainWidth"), QStringLiteral("10500"));
        QCOMPARE(Saved(SettingsSection::Settings, "Maximized"), QStringLiteral("False"));
        ReleaseMainWindow();
        QVERIFY(StartOffline("optUser_0", QStringLiteral("keeper")));
        QCOMPARE(MainWindow()->size(), QSize(700, 500));
    }

    void SpeaksGerman() {
        Save(SettingsSection::Properties, "Language", QStringLiteral("2"));
        OverrideDevice(QStringLiteral("/dev/no-such-dock"));
        Script script;
        LogIn(script, QStringLiteral("keeper"));
        script.Answer(QStringLiteral("OK"));
        script.Start();
        QVERIFY(Main({}));
        QCOMPARE(MainWindow()->findChild<QMenu*>(QStringLiteral("mnuFile"))->title(),
                 QStringLiteral("&Datei"));
        QCOMPARE(MainWindow()->findChild<QAction*>(QStringLiteral("reports"))->text(),
                 QStringLiteral("Berichte"));
        // And changes its language while it runs.
        gDictionary->InstallChooser([](Dictionary&, int& number) {
            number = 0;
            return true;
        });
        Script offline;
        offline.Answer(QStringLiteral("OK"));
        offline.Start();
        MainWindow()->findChild<QAction*>(QStringLiteral("mnuToolsLanguage"))->trigger();
        QCOMPARE(MainWindow()->findChild<QMenu*>(QStringLiteral("mnuFile"))->title(),
                 QStringLiteral("&File"));
        QCOMPARE(Saved(SettingsSection::Properties, "Language"), QStringLiteral("0"));
        QVERIFY(!MainWindow()->findChild<QAction*>(QStringLiteral("download"))->isEnabled());
    }

    void NothingElseIsBegunDuringAnErase() {
        Dock dock(Night + "fault silent erase\n");
        OverrideDevice(dock.Device());
        Script login;
        LogIn(login, QStringLiteral("keeper"));
        login.Start();
        QVERIFY(Main({}));
        MainWindow()->GoOnline();
        auto* erase = Script::Find<QAbstractButton>(QStringLiteral("frmMdiDownload"),
                                                    QStringLiteral("cmdOnline_1"));
        bool refused = false;
        Script script;
        script.Answer(QStringLiteral("Yes"));
        script.Then([&] {
            if (erase->isEnabled())
                return false;
            MainWindow()->GoHome();
            MainWindow()->close();
            refused = MainWindow()->isVisible() && erase->isVisible();
            return true;
        });
        script.Answer(QStringLiteral("No"));
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
        QTest::newRow("language is no number")
            << "language" << QString() << "Error 13 in Main of Module mMain";
        QTest::newRow("second instance") << "instance"
                                         << "The program is already running!" << QString();
    }
    void BadStartsEndAsTheyShould() {
        QFETCH(QString, what);
        QFETCH(QString, box);
        QFETCH(QString, log);
        std::unique_ptr<InstanceLock> other;
        if (what == u"store")
            QFile::remove(m_home->filePath(QStringLiteral("main.mdb")));
        else if (what == u"language")
            Save(SettingsSection::Properties, "Language", QStringLiteral("abc"));
        else
            other = TakeInstanceLock();
        Script script;
        if (!box.isEmpty())
            script.Answer(QStringLiteral("OK"));
        script.Start();
        QVERIFY(!Main({}));
        QCOMPARE(script.Texts().join(u'|').left(box.size()), box);
        QVERIFY(LogText().contains(log));
        QVERIFY(!MainWindow());
    }

    void UnknownLanguageFallsBack() {
        Save(SettingsSection::Properties, "Language", QStringLiteral("77"));
        Script script;
        script.Answer(QStringLiteral("OK"));
        script.Click(QStringLiteral("frmLogin"), QStringLiteral("cmdCancel"));
        script.Start();
        QVERIFY(!Main(QStringLiteral("x-debugging")));
        QVERIFY(script.Texts().value(0).endsWith(
            QStringLiteral("could not be displayed\nResetting to default system language...")));
        QCOMPARE(Saved(SettingsSection::Properties, "Language"), QStringLiteral("1"));
        QVERIFY(Saved(SettingsSection::Settings, "MainLeft").isEmpty());
        QVERIFY(LogText().contains(QStringLiteral(" Started at ")));
        QVERIFY(!LogText().contains(QStringLiteral("Database path = ")));
    }
};

int main(int argc, char* argv[]) {
    StationApplication app(argc, argv);
    StationTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "StationTest.moc"
