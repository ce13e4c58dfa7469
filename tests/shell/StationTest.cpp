#include "Clock.h"
#include "CommPort.h"
#include "Controls.h"
#include "Dock.h"
#include "Files.h"
#include "ForkedChild.h"
#include "HomeBlocks.h"
#include "InstanceLock.h"
#include "LockFile.h"
#include "LookUps.h"
#include "ResourceLimit.h"
#include "Settings.h"
#include "StationApplication.h"
#include "TableExists.h"
#include "TestHome.h"
#include "TestTable.h"
#include "cReaderOptions.h"
#include "frmAbout.h"
#include "frmMain.h"
#include "frmMdiMenu.h"
#include "frmUserMaintenance.h"
#include "mMain.h"
#include "mOperators.h"
#include "mSettings.h"
#include "mTranslations.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFileDialog>
#include <QMenu>
#include <QScrollBar>
#include <QTabBar>
#include <QToolBar>
#include <QTreeWidget>

#include <unistd.h>

namespace {

const QByteArray Night = "reader 4B5831A7\n"
                         "touch 2026-11-21 23:14 1A40C2\n"
                         "touch 2026-11-22 00:41 ABCDEF\n";

/// Pauses and timers run thirty times as fast.
constexpr double Speed = 30;

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
    Type(script, "frmLogin", "txtEnteredPassword", password);
    script.Click("frmLogin", "cmdOK");
}

/// Waits for a file dialog, keeps the name that it proposes, and types this path. Without a path it
/// cancels.
void ChooseFile(Script& script, const QString& path, QStringList& proposed) {
    script.Then([&proposed, path] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return false;
        proposed += QFileInfo(dialog->selectedFiles().value(0)).fileName();
        auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        name->setText(path);
        const Qt::Key key = path.isEmpty() ? Qt::Key_Escape : Qt::Key_Return;
        QTimer::singleShot(0, name, [name, key] { QTest::keyClick(name, key); });
        return true;
    });
}

QAction* Action(const char* name) { return Control<QAction>(*MainWindow(), name); }

} // namespace

class StationTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<TestClock> m_clock;

    void MakeHome(TestHome::Content content) {
        m_home.reset();
        m_home = std::make_unique<TestHome>(content);
        TestHome::Close();
        m_home->CopyProgramFiles(QStringLiteral(BESIDE));
        Save(SettingsSection::Properties, "Language", "0");
    }
    void SetClock(int day, int hour) {
        m_clock.reset();
        m_clock = std::make_unique<TestClock>(
            DateTime::FromQt(QDate(2026, 11, day)) + DateTime::FromTime(hour, 0), Speed);
    }
    /// Starts the station and logs in.
    static bool Start(const Dock* dock, const QString& password = QStringLiteral("keeper"),
                      const char* operatorButton = "optUser_0") {
        OverrideDevice(dock ? dock->Device() : QStringLiteral("/dev/no-such-dock"));
        Script script;
        LogIn(script, password, operatorButton);
        if (!dock)
            script.Answer("OK");
        script.Start();
        return Main({}) == StartOutcome::Running && script.Finish();
    }

private slots:
    void init() {
        MakeHome(TestHome::DemoSite);
        m_clock = std::make_unique<TestClock>(Speed);
    }
    void cleanup() {
        if (frmMain* main = MainWindow())
            main->close();
        ReleaseMainWindow();
        TestHome::Close();
        OverrideDevice({});
        gDockingDetected = false;
        QVERIFY(!QFile::exists(m_home->File("main.ldb")));
        m_clock.reset();
        m_home.reset();
    }

    // The operator's device is a link, as udev makes them: the station comes back under its name.
    void FindsAStationThatComesBack() {
        const QString link = m_home->File("dock");
        auto dock = std::make_unique<Dock>(Night);
        QVERIFY(QFile::link(dock->Device(), link));
        Save(SettingsSection::ComPort, "Device1", link);
        Script script;
        LogIn(script, "keeper");
        script.Start();
        QVERIFY(Main({}) == StartOutcome::Running && script.Finish() && gDockingDetected);
        const auto* state = Control<QLabel>(*MainWindow(), "panel1");
        for (const bool underAModalWindow : {false, true}) {
            m_home->TakeLog();
            dock.reset();
            QTRY_COMPARE(state->text(), "Docking Station : Not Detected");
            QVERIFY(!Action("download")->isEnabled());
            QVERIFY(Control(*MainWindow(), "panelGone")->text().startsWith(link));
            QVERIFY(m_home->TakeLog().contains("The docking station at " + link + " is gone"));
            QFile::remove(link);
            Dock other(Night); // a device that was not chosen
            dock = std::make_unique<Dock>(Night);
            QVERIFY(QFile::link(dock->Device(), link));
            if (underAModalWindow) {
                QDialog conversation(MainWindow());
                conversation.setModal(true);
                conversation.show();
                QTest::qWait(500); // fifteen looks at the device
                QCOMPARE(dock->Logged("CmdDetect") + dock->Logged("0D 0A"), 0);
            }
            QTRY_COMPARE(state->text(), "Docking Station : OK");
            QVERIFY(Action("download")->isEnabled());
            QCOMPARE(dock->Logged("CmdDetect"), 1);
            QCOMPARE(other.Logged("CmdDetect") + other.Logged("0D 0A"), 0);
        }
        QFile::remove(link);
    }

    // The operator does not wait until the station is found, or closes the port.
    void ConnectsBeforeTheStationIsFound() {
        const QString link = m_home->File("dock");
        std::unique_ptr<Dock> dock;
        const auto plugIn = [&](const QByteArray& scenario) {
            dock = std::make_unique<Dock>(scenario);
            return QFile::link(dock->Device(), link);
        };
        QVERIFY(plugIn(Night));
        Save(SettingsSection::ComPort, "Device1", link);
        Script login;
        LogIn(login, "keeper");
        login.Start();
        QVERIFY(Main({}) == StartOutcome::Running && login.Finish() && gDockingDetected);
        const auto* state = Control<QLabel>(*MainWindow(), "panel1");
        const auto* gone = Control<QLabel>(*MainWindow(), "panelGone");
        const auto unplug = [&] {
            dock.reset();
            return QTest::qWaitFor([&] { return gone->text().startsWith(link); }) &&
                   QFile::remove(link) && !gDockingDetected;
        };
        const std::function<void()> ways[] = {
            [] { Script::Find<QPushButton>("frmMdiMenu", "cmdRetry")->click(); },
            [] { MainWindow()->GoHome(); }};
        for (const auto& connect : ways) {
            QVERIFY(unplug() && plugIn(Night));
            m_home->TakeLog();
            connect();
            QVERIFY(gDockingDetected && gone->text().isEmpty());
            QCOMPARE(m_home->TakeLog(), "The docking station at " + link + " is back");
        }
        // It still boots when the operator tries. Nobody is asked to plug in what is plugged in.
        QVERIFY(unplug() && plugIn(Night + "fault silent detect\n"));
        QTRY_VERIFY(gone->text().isEmpty() && !gDockingDetected);
        Script ignore({"Ignore"});
        ignore.Start();
        MainWindow()->GoHome();
        QVERIFY(ignore.Finish() && !gDockingDetected);
        dock->Say("fault none");
        QTRY_COMPARE(state->text(), "Docking Station : OK");

        QVERIFY(unplug());
        gDictionary->InstallChooser([](Dictionary&, int& number) {
            number = 2;
            return true;
        });
        Script german({"OK"});
        german.Start();
        Action("mnuToolsLanguage")->trigger();
        QVERIFY(german.Finish() && gone->text().contains(" ist nicht mehr "));
        Script port; // without a choice, the port stays closed
        port.Click("frmPrpComms", "cmdSetupCancel");
        port.Start();
        MainWindow()->GoOptions();
        QVERIFY(port.Finish() && gone->text().isEmpty());
        QVERIFY(plugIn(Night));
        QTest::qWait(300); // nine looks at the device
        QCOMPARE(dock->Logged("CmdDetect") + dock->Logged("0D 0A"), 0);
        QFile::remove(link);
    }

    /// What the dialog of the tour report proposes: tour, reader and date.
    static QString Proposed(const std::function<void()>& open) {
        QString proposed;
        Script script;
        script.Then([&] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (!dialog)
                return false;
            const QString reader = Control<QComboBox>(*dialog, "imgcboReader")->currentText();
            proposed = Control<QComboBox>(*dialog, "imgcboTour")->currentText() + u'|' + reader +
                       u'|' +
                       Control<QDateEdit>(*dialog, "dtpStartDate")->date().toString(Qt::ISODate);
            // A report of another reader would be wrong without a word.
            if (Control<QPushButton>(*dialog, "cmdPrintPreview")->isEnabled() == reader.isEmpty())
                proposed += "|wrong button";
            dialog->close();
            return true;
        });
        script.Start();
        open();
        return script.Finish() ? proposed : QString();
    }

    void OffersReportsAfterADownload() {
        SetClock(22, 12);
        QVERIFY(m_home->Open());
        for (int tour = 11; tour < 18; ++tour) {
            gConn->Execute(
                QStringLiteral("INSERT INTO tblTours (ID, tName, iTolerance, dtStartTime) "
                               "VALUES (%1, 'Gate', 5, #1899-12-30 23:14:00#)")
                    .arg(tour));
            gConn->Execute(QStringLiteral("INSERT INTO tblTourPoints (lParentID, lIndex, dtTime, "
                                          "tButtonCode) VALUES (%1, 1, 0, '1A40C2')")
                               .arg(tour));
        }
        TestHome::Close();
        Dock dock(Night);
        QVERIFY(Start(&dock));
        MainWindow()->GoOnline();
        Script::Find<QAbstractButton>("frmMdiDownload", "cmdOnline_0")->click();
        auto* reports = Script::Find<QWidget>("frmMdiDownload", "fraReports");
        QVERIFY(reports && reports->isVisible());
        const auto offers = reports->findChildren<QPushButton*>();
        QCOMPARE(offers.size(), 5);
        QVERIFY2(offers[0]->text().startsWith("Night round - 21 Nov 2026 - 5 points: 1 on time"),
                 qPrintable(offers[0]->text()));
        QCOMPARE(Control(*reports, "lblMoreReports")->text(), "More on the Reports page: 3");
        const QString reader = "|4B5831A7 - Night reader|2026-11-21";
        QCOMPARE(Proposed([&] { offers[1]->click(); }), "Gate - " + reader);
        QCOMPARE(Proposed([] {
                     MainWindow()->GoReports();
                     auto* list = Script::Find<QTreeWidget>("frmMdiReports", "lvwReports");
                     list->setCurrentItem(list->topLevelItem(0));
                     list->actions().first()->trigger();
                 }),
                 "Night round - Harbour Warehouse, over midnight" + reader);
    }

    // At noon after a night: one tour was walked, one by a reader that was never taught, and one by
    // nobody. A click or Enter opens the report dialog for that tour and day.
    void HomeShowsTheNightAndOpensItsReports() {
        SetClock(22, 12);
        QVERIFY(m_home->Open());
        gConn->Execute("INSERT INTO tblTours (ID, tName, iTolerance, dtStartTime) VALUES "
                       "(9, 'Roof', 5, #1899-12-30 10:00:00#)");
        gConn->Execute("INSERT INTO tblTourPoints (lParentID, lIndex, dtTime, tButtonCode) VALUES "
                       "(9, 1, 0, '2C0B5E')");
        for (const auto& [reader, time, code] : {std::tuple("0A0B0C0D", "21 14:00", "2C0918"),
                                                 {"4B5831A7", "21 23:15", "1A40C2"},
                                                 {"4B5831A7", "21 23:25", "1A40C7"},
                                                 {"4B5831A7", "22 00:02", "1A41D0"}})
            gConn->Execute(
                QStringLiteral("INSERT INTO tblEvents (tPipeID, dtDLDateTime, dtDateTime, "
                               "tButtonCode, wGroupType) VALUES ('%1', #2026-11-22 "
                               "06:00:00#, #2026-11-%2:00#, '%3', 1)")
                    .arg(QString::fromLatin1(reader), QString::fromLatin1(time),
                         QString::fromLatin1(code)));
        TestHome::Close();
        Save(SettingsSection::Settings, "frmRptTourReader", "4B5831A7"); // the last choice
        QVERIFY(Start(nullptr));
        QWidget* page = MainWindow()->findChild<QWidget*>("frmMdiMenu");
        QCOMPARE(Control(*page, "lblLastDownload")->text(),
                 "4B5831A7 - Night reader\n22 Nov 2026 06:00\nData Readings = 4");
        auto* tours = Control<QTreeWidget>(*page, "lvwTours");
        QCOMPARE(RowsIn(*tours),
                 (QStringList{"Roof|not downloaded or not walked|22 Nov 2026 10:00||||✗ 1 missing",
                              "Night round|4B5831A7 - Night reader|21 Nov 2026 23:15|✓ 1 on time|◀ "
                              "1 early|▶ 1 late|✗ 2 missing",
                              "Day round|0A0B0C0D|21 Nov 2026 14:00|✓ 1 on time|||✗ 3 missing"}));
        MainWindow()->resize(641, 446); // the size of an ordinary start
        DoEvents();
        for (const char* part : {"lblMainTitle", "imgContact", "lblVersionMsg", "lvwTours"}) {
            const auto* widget = Control<QWidget>(*page, part);
            QVERIFY2(widget->visibleRegion().boundingRect() == widget->rect() &&
                         widget->width() > 40,
                     part);
        }
        QStringList opened;
        for (const int row : {0, 1, 2})
            opened += Proposed([&] {
                QTest::mouseClick(tours->viewport(), Qt::LeftButton, {},
                                  tours->visualItemRect(tours->topLevelItem(row)).center());
            });
        // A tour that becomes due does not move what the operator looks at.
        tours->setCurrentItem(tours->topLevelItem(1));
        const auto refresh = [&](int first, int last) {
            for (int tour = first; tour <= last; ++tour) {
                gConn->Execute(QStringLiteral("INSERT INTO tblTours (ID, tName, iTolerance, "
                                              "dtStartTime) VALUES (%1, 'New', 5, #1899-12-30 "
                                              "10:30:00#)")
                                   .arg(tour));
                gConn->Execute(QStringLiteral("INSERT INTO tblTourPoints (lParentID, lIndex, "
                                              "dtTime, tButtonCode) VALUES (%1, 1, 0, '2C0B5E')")
                                   .arg(tour));
            }
            page->findChild<HomeBlocks*>()->Fill();
        };
        refresh(20, 59);
        QCOMPARE(tours->currentItem()->text(0), "Night round");
        DoEvents();
        tours->verticalScrollBar()->setValue(20);
        refresh(60, 60);
        DoEvents();
        QCOMPARE(tours->verticalScrollBar()->value(), 20);
        opened += Proposed([&] { QTest::keyClick(tours, Qt::Key_Return); });
        const QString night = "Night round - Harbour Warehouse, over midnight|4B5831A7 - Night "
                              "reader|2026-11-21";
        QCOMPARE(opened, (QStringList{"Roof - ||2026-11-22", night,
                                      "Day round - Office Tower, once a day||2026-11-21", night}));
    }

    void RunsTheMainJobThroughItsWindows() {
        Dock dock(Night);
        QVERIFY(Start(&dock));
        QVERIFY(gDockingDetected);
        QCOMPARE(Control(*MainWindow(), "panel1")->text(), "Docking Station : OK");

        Action("download")->trigger();
        Script::Find<QAbstractButton>("frmMdiDownload", "cmdOnline_0")->click();
        QCOMPARE(Script::Find<QLabel>("frmMdiDownload", "lblMsg")->text(),
                 "Download Successful\nData Readings = 2\nReader Memory erased");

        Action("reports")->trigger();
        Script report;
        const QString dialog = QStringLiteral("frmRptTour");
        report.With<QDateEdit>(dialog, "dtpStartDate",
                               [](QDateEdit& date) { date.setDate(QDate(2026, 11, 21)); });
        report.With<QComboBox>(dialog, "imgcboTour", [](QComboBox& tours) {
            tours.setCurrentIndex(tours.findText("Night", Qt::MatchStartsWith));
        });
        report.Click(dialog, "optShowAll_1");
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
        QCOMPARE(m_home->TakeLog(), "Logged in as user type = 1");
    }

    // From the delivered store to a report, through the windows alone.
    void SetsUpANewInstallation() {
        MakeHome(TestHome::EmptyStore);
        Dock dock("reader 0A0B0C0D\n"
                  "touch 2026-11-21 23:14 00000A\n"
                  "touch 2026-11-21 23:36 00000B\n");
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
        const auto addButton = [&](const QByteArray& code, const char* name) {
            script.Click(list, "cmdSetup_1");
            Type(script, capture, "txtName", name);
            script.Then([=, &dock] {
                dock.Say("button " + code);
                return true;
            });
            script.Click(capture, "cmdOK"); // enabled when the code has arrived
            script.Then([=] { return !Script::Find<QLabel>(capture, "lblID"); });
        };
        const auto showTab = [&](int tab) {
            script.With<QTabBar>(page, "tabSetup",
                                 [=](QTabBar& tabs) { tabs.setCurrentIndex(tab); });
        };
        script.Click(page, "cmdSetup_1");
        script.Click(page, "cmdSetup_0");
        Type(script, list, "txtName", "Quay");
        addButton("00000A", "Bollard");
        addButton("00000B", "Crane");
        script.Click(list, "cmdOK");
        showTab(3);
        script.Click(page, "cmdSetup_1");
        script.Click("frmAddReader", "cmdRead");
        script.Click("frmAddReader", "cmdOK");
        script.Then([] { return CountReaders() == 1; });
        showTab(2);
        script.Click(page, "cmdSetup_1");
        script.Click(page, "cmdSetup_0");
        Type(script, tour, "txtName", "Night");
        script.With<QDateTimeEdit>(tour, "dtpStartTime",
                                   [](QDateTimeEdit& start) { start.setTime(QTime(23, 5)); });
        for (int i = 0; i < 2; ++i)
            script.Click(tour, "cmdMove_0");
        script.Click(tour, "cmdEditTime"); // of the crane, the last one
        Type(script, "frmEditTime", "txtTime", "20");
        script.Click("frmEditTime", "cmdOK");
        script.Click(tour, "cmdOK");
        script.Then([] { return CountTours() == 1; });
        script.Start();
        MainWindow()->GoSetup();
        QVERIFY(script.Finish());

        QCOMPARE(RowsOf("SELECT * FROM tblReaders"), QStringList("0A0B0C0D|Reader 1"));
        QCOMPARE(RowsOf("SELECT tName, dtStartTime * 1440 AS minutes FROM tblTours"),
                 QStringList("Night|1385"));
        QCOMPARE(RowsOf("SELECT tButtonName, dtTime * 1440 AS minutes FROM tblTourPoints INNER "
                        "JOIN tblButtons ON tblTourPoints.tButtonCode = tblButtons.tButtonCode"),
                 (QStringList{"Bollard|10", "Crane|20"}));
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
        const QString end = "You could not be logged in.  Closing the program now.";
        QCOMPARE(script.Texts(), (QStringList{retry, retry, retry, end}));
        QCOMPARE(Saved(SettingsSection::Info, "LastLogin"), "2");
        QVERIFY(!MainWindow());
        QCOMPARE(m_home->TakeLog().split(u'\n'), // without what was entered
                 QStringList(4, "Wrong password for user type = 2"));
    }

    void RightsFollowTheOperator_data() {
        const TestTable<bool> row("tools");
        row("master", true);
        row("user", false);
    }
    void RightsFollowTheOperator() {
        QFETCH(bool, tools);
        QVERIFY(tools ? Start(nullptr, "KEEPER") : Start(nullptr, "crew", "optUser_1"));
        QCOMPARE(Control<QMenu>(*MainWindow(), "mnuTools")->menuAction()->isVisible(), tools);
        QVERIFY(Action("mnuFileExit")->isEnabled());
        QCOMPARE(Action("setup")->isVisible(), tools);
        QVERIFY(Action("mnuHelpAbout")->isVisible() && Action("mnuHelpAbout")->isEnabled());
        for (const char* masterOnly : {"mnuFileArchive", "mnuFileBackup", "mnuFileRestore"})
            QCOMPARE(Action(masterOnly)->isEnabled(), tools);
        for (const char* noDock : {"mnuToolsPipeOptions", "mnuToolsClearPipe", "mnuToolsReaderFW"})
            QVERIFY2(!Action(noDock)->isEnabled(), noDock);
        MainWindow()->GoReports();
        QVERIFY(!Action("download")->isEnabled()); // no dock
        QVERIFY(Action("home")->isEnabled() && !Action("reports")->isEnabled());
        QVERIFY_THROWS_EXCEPTION(RunTimeError, MainWindow()->NavigateToolbarButtons("111"));
        QVERIFY(Action("home")->isEnabled() && !Action("reports")->isEnabled());

        gConn->Execute("DELETE FROM tblTours");
        const auto press = [](QWidget* button, Qt::Key key) {
            button->setFocus();
            QTest::keyClick(button, key);
        };
        Script offline({"OK"});
        offline.Start();
        auto* bar = Control<QToolBar>(*MainWindow(), "tbrMain");
        press(bar->widgetForAction(Action("home")), Qt::Key_Return);
        QVERIFY(offline.Finish());
        auto* nothing = Script::Find<QLabel>("frmMdiMenu", "lblNoTours");
        QVERIFY(nothing && nothing->isVisible() == !tools);
        QVERIFY(tools || nothing->text().startsWith("Readers and tours are not set up yet."));
        auto* home =
            static_cast<frmMdiMenu*>(Script::Find<QLabel>("frmMdiMenu", "lblMainTitle")->parent());
        home->ShowStation(false, 1, {});
        QCOMPARE(Control(*home, "lblDevice")->text(), "COM1: no device");
        Script retry({"OK"});
        retry.Start();
        press(Control<QPushButton>(*home, "cmdRetry"), Qt::Key_Enter);
        QVERIFY(retry.Finish());
        QStringList ticks;
        for (int step = 0; step < 4; ++step)
            ticks += Control(*home, qPrintable(QStringLiteral("lblStep_%1").arg(step)))->text();
        QCOMPARE(ticks.join(QString()), tools ? "✓✓✓○" : "");
        if (!tools)
            return;
        press(Control<QPushButton>(*home, "cmdStep_3"), Qt::Key_Return);
        QCOMPARE(Control<QTabBar>(*MainWindow(), "tabSetup")->currentIndex(), 2);
    }

    void BacksUpFromTheMenu() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QVERIFY(Start(nullptr));
        Script script;
        QStringList proposed;
        ChooseFile(script, m_home->File("WK3.MLD"), proposed);
        script.Answer("OK");
        ChooseFile(script, m_home->File("copy"), proposed); // gets the usual ending
        script.Answer("OK");
        script.Start();
        Action("mnuFileBackup")->trigger();
        QVERIFY(script.Finish());
        const QString name = "WK_Backup_" + QDate::currentDate().toString(Qt::ISODate) + ".mdb";
        QCOMPARE(proposed, QStringList({name, name}));
        QCOMPARE(
            script.Texts(),
            (QStringList{"That filename is already in use. Please choose another filename",
                         "Successfully copied the database to :\n" + m_home->File("copy.mdb")}));
        QVERIFY(BytesOf(m_home->File("copy.mdb")) == BytesOf(m_home->Store()));
    }

    void ArchivesFromTheMenu() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QVERIFY(Start(nullptr));
        gConn->Execute("INSERT INTO tblEvents (dtDateTime) VALUES (#2026-11-21 23:59:59#)");
        const QString question = "Warning: This action will permanently delete the events from the "
                                 "database.\nAre you sure you want to continue?";
        QStringList proposed;
        const auto setDays = [](Script& script, const QDate& first, const QDate& last) {
            for (const auto& [field, day] :
                 {std::pair("dtpStartDate", first), std::pair("dtpEndDate", last)})
                script.With<QDateEdit>("frmArchive", field,
                                       [day = day](QDateEdit& edit) { edit.setDate(day); });
            script.Click("frmArchive", "cmdOK");
        };
        const QDate day(2026, 11, 21);
        Script script;
        QDate first, last;
        script.With<QDateEdit>("frmArchive", "dtpStartDate",
                               [&](QDateEdit& edit) { first = edit.date(); });
        script.With<QDateEdit>("frmArchive", "dtpEndDate",
                               [&](QDateEdit& edit) { last = edit.date(); });
        setDays(script, day, day);
        script.Answer("No"); // the window stays open
        setDays(script, day.addDays(1), day);
        script.Answer("Yes");
        script.Answer("OK"); // none; it stays open
        setDays(script, day, day);
        script.Answer("Yes");
        ChooseFile(script, {}, proposed); // it closes
        script.Start();
        Action("mnuFileArchive")->trigger();
        QVERIFY(script.Finish());
        QCOMPARE(first, QDate(2000, 1, 1));
        QCOMPARE(last, QDate::currentDate());
        QCOMPARE(
            script.Texts(),
            (QStringList{question, question,
                         "There are no stored events within the dates you entered.", question}));
        QCOMPARE(RowsOf("SELECT COUNT(*) FROM tblEvents"), QStringList("1"));

        Script again;
        setDays(again, day, day);
        again.Answer("Yes");
        ChooseFile(again, m_home->File("old"), proposed); // gets the usual ending
        again.Answer("OK");
        again.Start();
        Action("mnuFileArchive")->trigger();
        QVERIFY(again.Finish());
        const QString name = "Archive2026-11-21_to_2026-11-21.csv";
        QCOMPARE(proposed, QStringList({name, name}));
        QCOMPARE(again.Texts().value(1), "Events Archived Successfully\nNumber of Events = 1\n"
                                         "FileName =  " +
                                             m_home->File("old.Csv"));
        QVERIFY(BytesOf(m_home->File("old.Csv"))
                    .endsWith("\"2026-11-21\",\"23:59\",\"\",\"\","
                              "\"\",\"\",\"\"\r\n"));
        QCOMPARE(RowsOf("SELECT COUNT(*) FROM tblEvents"), QStringList("0"));
    }

    // On every page, what talks to the dock is disabled while the port is closed, and nothing else.
    void ClosedPortDisablesWhatNeedsIt() {
        Dock dock(Night);
        QVERIFY(Start(&dock));
        frmMain* main = MainWindow();
        const auto open = [main] {
            QStringList names;
            for (const QString name :
                 {"home", "download", "reports", "setup", "mnuToolsPipeOptions",
                  "mnuToolsClearPipe", "mnuToolsReaderFW", "mnuViewOptions"})
                if (Control<QAction>(*main, qPrintable(name))->isEnabled())
                    names += name;
            for (const QString name : {"cmdSetup_1", "cmdOnline_0", "cmdOnline_1"})
                if (auto* button = main->findChild<QAbstractButton*>(name);
                    button && button->isVisible() && button->isEnabled())
                    names += name;
            return names.join(u' ');
        };
        const auto choosePort = [&](const char* button, bool docked) {
            OverrideDevice(docked ? QString() : QStringLiteral("/dev/no-such-dock"));
            Script script;
            script.With<QComboBox>("frmPrpComms", "cboLocalPort",
                                   [](QComboBox& ports) { ports.setCurrentIndex(2); });
            script.With<QComboBox>("frmPrpComms", "cboDevice",
                                   [&](QComboBox& device) { device.setEditText(dock.Device()); });
            script.Click("frmPrpComms", button);
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
        QCOMPARE(Control(*main, "panel1")->text(), "Status: Offline");
        QCOMPARE(choosePort("cmdSetupOK", true), download);
        main->GoSetup();
        Script::Find<QTabBar>("frmMDISetup", "tabSetup")->setCurrentIndex(3);
        QCOMPARE(open(), setup);
        QCOMPARE(choosePort("cmdSetupOK", false), "home reports " + options);
        QCOMPARE(Control(*main, "panel1")->text(), "Docking Station : Not Detected");
        QCOMPARE(choosePort("cmdSetupOK", true), setup);
        QCOMPARE(Saved(SettingsSection::ComPort, "ComPort"), "3");
    }

    // The Tools menu, on a docked reader. Each command leaves the link usable.
    void ToolsActOnTheDockedReader() {
        Dock dock(Night);
        QVERIFY(Start(&dock));
        const auto trigger = [](const char* name) {
            QVERIFY(Action(name)->isVisible() && Action(name)->isEnabled());
            Action(name)->trigger();
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
        QVERIFY(gDockingDetected); // the home page has connected again
        QVERIFY(Script::Find<QLabel>("frmMdiMenu", "lblMainTitle"));

        Script erase({"No", "Yes", "OK"});
        erase.Start();
        trigger("mnuToolsClearPipe");
        QCOMPARE(dock.Erasures(), 0);
        trigger("mnuToolsClearPipe");
        QVERIFY(erase.Finish());
        QCOMPARE(erase.Texts().value(2), "Reader Erased");
        QCOMPARE(dock.Erasures(), 1);
        QVERIFY(Script::Find<QAbstractItemView>("frmMdiDownload", "lvwDownload"));
    }

    void FirmwareVersion() {
        Dock dock(Night);
        QVERIFY(Start(&dock));
        const QString version = "Firmware Version is V06";
        const QByteArray many = Night + QByteArray("touch 2026-11-22 01:00 1A40C2\n").repeated(150);
        const std::pair<QByteArray, QStringList> cases[] = {
            {Night + "firmware FF", {}}, // it does not say
            {many + "firmware 08\ntransfer-fault 1", {"Download Error (002)", version}}};
        for (const auto& [scenario, shown] : cases) {
            dock.Load(scenario);
            Script script;
            QStringList texts;
            for (const QString& text : shown) {
                if (text != version) {
                    script.Answer("OK");
                    continue;
                }
                script.With<QLabel>("frmFirmwareVersion", "Label1",
                                    [&](QLabel& label) { texts += label.text(); });
                script.Click("frmFirmwareVersion", "cmdClose");
            }
            script.Start();
            Action("mnuToolsReaderFW")->trigger();
            QVERIFY(script.Finish());
            QCOMPARE(script.Texts() + texts, shown);
            QVERIFY(!QApplication::overrideCursor());
            QCOMPARE(dock.Erasures(), 0);
        }
    }

    void PasswordsChange() {
        QVERIFY(Start(nullptr));
        frmUserMaintenance dialog(MainWindow());
        dialog.FormStart(UserOperator);
        dialog.show();
        auto* second = Control<QLineEdit>(dialog, "txtRetypePassword");
        auto* ok = Control<QPushButton>(dialog, "cmdOK");
        Control<QLineEdit>(dialog, "txtPassword")->setText("Lantern");
        second->setText("lantern");
        Script script({"OK"});
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

    void CompanyLinesAreKeptAsTyped() {
        QVERIFY(Start(nullptr));
        QStringList boxes;
        const auto edit = [&boxes](const QString& text, const QStringList& buttons) {
            Script script;
            Type(script, "frmCompany", "txtLine_3", text);
            for (const QString& button : buttons)
                button == "OK" ? script.Answer(button) : script.Click("frmCompany", button);
            script.Start();
            Action("mnuToolCompany")->trigger();
            QVERIFY(script.Finish());
            boxes = script.Texts();
        };
        const QString first = "Old, \"@x ", second(60, u'W');
        edit(first, {"cmdOK"});
        edit("lost", {"cmdCancel"});
        {
            const ResourceLimit limit(RLIMIT_FSIZE, 0);       // nor can the log be written
            edit("lost", {"cmdOK", "OK", "OK", "cmdCancel"}); // two boxes, and the dialog stays
        }
        QVERIFY(boxes.value(0).contains("cmdOK_Click of Form frmCompany"));
        QCOMPARE(gCompanyInfo[3], first);
        Save(SettingsSection::Info, "LastLogin", "1"); // does not save the cancelled line too
        QCOMPARE(Saved(SettingsSection::Properties, "CompanyInfo4"), first);
        edit(second, {"cmdOK"});
        QCOMPARE(gCompanyInfo[3], second);
        ReadRemainingSettings();
        QCOMPARE(gCompanyInfo[3], second.left(50));
        QCOMPARE(Saved(SettingsSection::Properties, "CompanyInfo4"), second);
    }

    void AboutShowsTheInstallersText() {
        QVERIFY(Start(nullptr, "crew", "optUser_1"));
        QString shown;
        const auto about = [&shown] {
            Script script;
            script.With<QLabel>("frmAbout", "lblCustom", [&](QLabel& contact) {
                shown = Control(*contact.window(), "lblBuild")->text() + u'|' + contact.text();
            });
            script.Click("frmAbout", "cmdOK");
            script.Start();
            Action("mnuHelpAbout")->trigger();
            return script.Finish() ? shown : QString();
        };
        QVERIFY(about().startsWith("Build 0000|For a description"));
        const QString path = m_home->File("contact.txt");
        const std::pair<QByteArray, QString> files[] = {
            {QByteArray(4097, 'x'), {}},
            {QByteArray(4096, 'x'), QString(2048, u'x')},
            {"B\xC3\xBCro", "Büro"},
            {"B\xFCro <b>", "Büro <b>"}};
        for (const auto& [bytes, text] : files) {
            WriteBytes(path, bytes);
            QCOMPARE(frmAbout::TextFromFile(path), text);
        }
        QCOMPARE(about(), "Build 0000|Büro <b>");
        m_home->TakeLog();
        QCOMPARE(frmAbout::TextFromFile(m_home->File("config")), ""); // a folder
        QVERIFY(m_home->TakeLog().contains("TextFromFile of Form frmAbout"));
    }

    void WindowKeepsItsPlace() {
        QVERIFY(Start(nullptr));
        MainWindow()->move(40, 30);
        MainWindow()->resize(700, 500);
        MainWindow()->close();
        QCOMPARE(Saved(SettingsSection::Settings, "MainLeft"), "600");
        QCOMPARE(Saved(SettingsSection::Settings, "MainWidth"), "10500");
        QCOMPARE(Saved(SettingsSection::Settings, "Maximized"), "False");
        ReleaseMainWindow();
        QVERIFY(Start(nullptr));
        QCOMPARE(MainWindow()->size(), QSize(700, 500));
        MainWindow()->close();
        ReleaseMainWindow();
        Save(SettingsSection::Settings, "MainLeft", "-90000"); // a screen that is gone
        Save(SettingsSection::Settings, "MainHeight", "90000");
        QVERIFY(Start(nullptr));
        QVERIFY(MainWindow()->screen()->availableGeometry().contains(MainWindow()->geometry()));
    }

    // Only the option that cannot be read falls back to its default, and the log names it.
    void UnreadableOptions() {
        for (const char* key : {"Language", "AutoSetTime"})
            Save(SettingsSection::Properties, key, "abc");
        for (const char* key : {"Maximized", "MainLeft"})
            Save(SettingsSection::Settings, key, "abc");
        Save(SettingsSection::Settings, "MainWidth", "10500");
        Save(SettingsSection::Info, "LastLogin", "99999");
        QVERIFY(Start(nullptr));
        QCOMPARE(MainWindow()->width(), 700);
        QVERIFY(gAutoSetTime);
        const QString log = m_home->TakeLog();
        for (const QString key : {"Language = \"abc", "AutoSetTime = \"abc", "Maximized = \"abc",
                                  "MainLeft = \"abc", "LastLogin = \"99999"})
            QCOMPARE(log.count("(setting " + key), 1);
    }

    void SpeaksGerman() {
        Save(SettingsSection::Properties, "Language", "2");
        QVERIFY(Start(nullptr));
        const QMenu* file = Control<QMenu>(*MainWindow(), "mnuFile");
        QCOMPARE(file->title(), "&Datei");
        QCOMPARE(Action("reports")->text(), "Berichte");
        // The language changes while the station runs.
        gDictionary->InstallChooser([](Dictionary&, int& number) {
            number = 0;
            return true;
        });
        Script offline({"OK"});
        offline.Start();
        Action("mnuToolsLanguage")->trigger();
        QCOMPARE(file->title(), "&File");
        QCOMPARE(Saved(SettingsSection::Properties, "Language"), "0");
        QVERIFY(!Action("download")->isEnabled());
    }

    void NothingElseBeginsDuringAnErase() {
        Dock dock(Night + "fault silent erase\n");
        QVERIFY(Start(&dock));
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

    void BadStarts() {
        const auto box = [] {
            Script script({"OK"});
            script.Start();
            const StartOutcome outcome = Main({});
            return outcome == StartOutcome::Failed ? script.Texts().join(u'|') : QString();
        };
        {
            const auto other = TakeInstanceLock();
            QCOMPARE(box(), "The program is already running!");
        }
        QFile::remove(m_home->Store());
        for (const bool development : {false, true}) {
            qputenv("WARDLOCK_DEVELOPMENT", development ? "1" : "0");
            QVERIFY(box().startsWith("*** System Error: Cannot Open the database at "));
            const QString log = m_home->TakeLog();
            QVERIFY(log.endsWith("ADOTest Failed. Exiting..."));
            QCOMPARE(log.contains(" Started at "), development);
            QCOMPARE(gDemoMode, development);
            ReleaseMainWindow();
        }
        qunsetenv("WARDLOCK_DEVELOPMENT");
        QVERIFY(!MainWindow());
    }

    // From the setup page, whose recordsets keep the store open. Another program takes the store
    // while it is closed: the first time the operator gives up, the second time it ends.
    void RestoresABackup_data() {
        const TestTable<bool> row("givesUp");
        row("waits", false);
        row("gives up", true);
    }
    void RestoresABackup() {
        QFETCH(bool, givesUp);
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        const QString backup = m_home->File("backup.mdb"), lock = m_home->File("main.ldb");
        QVERIFY(QFile::copy(m_home->Store(), backup));
        ForkedChild other([&](int) {
            LockFile file(lock);
            while (!QFile::exists(m_home->File("go")) || file.Take() != LockFile::Outcome::Taken)
                ::usleep(200);
            while (!QFile::exists(m_home->File("end")))
                ::usleep(200);
        });
        QVERIFY(Start(nullptr));
        m_clock.reset();
        m_clock = std::make_unique<TestClock>(3); // the other takes the store within a pause
        gConn->Execute("DELETE * FROM tblReaders");
        MainWindow()->GoSetup();
        Script script;
        const auto choose = [&](const QString& path) {
            script.Then([path] {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                if (!dialog)
                    return false;
                dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
                QTimer::singleShot(0, dialog, &QDialog::accept);
                return true;
            });
        };
        choose(backup);
        script.Answer("No");
        script.Then([] { return Script::Find<QTabBar>("frmMDISetup", "tabSetup") && gConn; });
        script.Then([this] {
            QTimer::singleShot(0, MainWindow(), &frmMain::GoRestore);
            return true;
        });
        for (const QString& path : {m_home->File("none.mdb"), m_home->Store()}) {
            choose(path);
            script.Answer("OK");
        }
        choose(backup);
        script.Then([this] {
            WriteBytes(m_home->File("go"), {});
            return true;
        });
        script.Answer("Yes");
        script.Then([&] {
            const auto* label = Script::Find<QLabel>("frmWaitStore", "");
            // The other takes the lock first and writes its name afterwards.
            if (!label || !label->text().contains("It is in use by StationTest (process "))
                return false;
            if (!givesUp)
                WriteBytes(m_home->File("end"), {});
            return true;
        });
        if (givesUp)
            script.Click("frmWaitStore", "");
        script.Answer("OK");
        script.Start();
        MainWindow()->GoRestore();
        QVERIFY(script.Finish());
        const QString close = "\nWarning : The program will now close.\nPlease restart the program "
                              "to continue.";
        QCOMPARE(script.Texts().last(),
                 givesUp ? "The database was not restored. It is as it was before." + close
                         : "Successfully copied the database\nFrom: " + backup +
                               "\nTo: " + m_home->Store() + close);
        QVERIFY(!gConn && !gReaderOptions && !MainWindow()->isVisible());
        other.Kill();
        ReleaseMainWindow();
        QVERIFY(m_home->Open());
        QCOMPARE(CountReaders(), givesUp ? 0 : 1);
        TestHome::Close();
        QVERIFY(!QFile::exists(m_home->Store() + ".restore"));
    }

    void UnknownLanguageFallsBack() {
        Save(SettingsSection::Properties, "Language", "77");
        Script script({"OK"});
        script.Click("frmLogin", "cmdCancel");
        script.Start();
        QCOMPARE(Main("x-debugging"), StartOutcome::Cancelled);
        QVERIFY(script.Texts().value(0).endsWith(
            "could not be displayed\nResetting to default system language..."));
        QCOMPARE(Saved(SettingsSection::Properties, "Language"), "1");
        QVERIFY(Saved(SettingsSection::Settings, "MainLeft").isEmpty());
        const QString log = m_home->TakeLog();
        QVERIFY(log.contains(" Started at ") && !log.contains("Database path = "));
    }
};

int main(int argc, char* argv[]) {
    StationApplication app(argc, argv);
    StationTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "StationTest.moc"
