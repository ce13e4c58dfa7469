// The main road by keyboard alone: from the login to a report as PDF, a site with a button, and a
// tour. The place of the focus can be seen wherever Tab stops.

#include "Clock.h"
#include "CommPort.h"
#include "Dock.h"
#include "Files.h"
#include "Script.h"
#include "Settings.h"
#include "StationApplication.h"
#include "TestHome.h"
#include "frmMain.h"
#include "mMain.h"
#include "mSettings.h"

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeView>

namespace {

bool IsInside(const QWidget* widget, const QString& window) {
    for (; widget; widget = widget->parentWidget())
        if (widget->objectName() == window)
            return true;
    return false;
}

frmMain* MainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* main = qobject_cast<frmMain*>(window))
            return main;
    return nullptr;
}

/// The part that a key goes to, if it is in the window or page of that name.
QWidget* FocusIn(const QString& window) {
    // A window manager does this after a dialog has closed.
    if (!QApplication::activeWindow() && !QApplication::activePopupWidget()) {
        QWidget* next = QApplication::activeModalWidget();
        if (QWidget* top = next ? next : MainWindow())
            top->activateWindow();
    }
    QWidget* focus = QApplication::focusWidget();
    return focus && focus->isVisible() && focus->window() == QApplication::activeWindow() &&
                   IsInside(focus, window)
               ? focus
               : nullptr;
}

/// A tool's name is that of its action.
QString NameOf(const QWidget& part) {
    const auto* tool = qobject_cast<const QToolButton*>(&part);
    return tool && tool->defaultAction() ? tool->defaultAction()->text().remove(u'&')
                                         : part.objectName();
}

/// Plays an operator without a mouse.
class Keyboard : public Script {
public:
    void Key(const QString& window, int key, Qt::KeyboardModifiers modifiers = {}) {
        Then([=] {
            QWidget* focus = FocusIn(window);
            if (focus) // later: it may run a dialog
                QTimer::singleShot(0, focus, [=] {
                    QTest::keyClick(focus, static_cast<Qt::Key>(key), modifiers);
                });
            return focus != nullptr;
        });
    }
    void Type(const QString& window, const QString& text) {
        Then([=] {
            QWidget* focus = FocusIn(window);
            if (focus)
                QTest::keyClicks(focus, text);
            return focus != nullptr;
        });
    }
    /// Presses Tab until the part with that name has the focus.
    void TabTo(const QString& window, const QString& name) {
        Then([=, this] {
            QWidget* focus = FocusIn(window);
            if (!focus)
                return false;
            NoteUnseen(*focus);
            if (NameOf(*focus) == name)
                return true;
            QTest::keyClick(focus, Qt::Key_Tab);
            return false;
        });
    }
    /// Ends the naming of a row in a list of the setup page.
    void Name(const QString& text) {
        Type("frmMDISetup", text);
        Key("frmMDISetup", Qt::Key_Return);
        Then([] {
            const auto* list = Find<QTreeView>("frmMDISetup", "lvwProgram");
            return list && list->hasFocus() && !list->viewport()->findChild<QLineEdit*>();
        });
    }
    const QStringList& Unseen() const { return m_unseen; }

private:
    /// Notes a part that looks the same with and without the focus.
    void NoteUnseen(QWidget& part) {
        const QString name = NameOf(part);
        if (m_looked.contains(name))
            return;
        m_looked += name;
        const QImage with = part.window()->grab().toImage();
        part.clearFocus();
        const QImage without = part.window()->grab().toImage();
        part.setFocus(Qt::TabFocusReason);
        if (with == without)
            m_unseen += name;
    }

    QStringList m_looked, m_unseen;
};

} // namespace

class KeyboardTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() {
        if (frmMain* main = MainWindow())
            main->close();
        ReleaseMainWindow();
        TestHome::Close();
        OverrideDevice({});
    }

    void MainRoad() {
        const TestHome home(TestHome::DemoSite);
        TestHome::Close();
        home.CopyProgramFiles(QStringLiteral(BESIDE));
        SaveSetting(SettingsApplication, SettingsSection::Properties, "Language", "0");
        const TestClock clock(DateTime::FromQt(QDate(2026, 11, 22)) + DateTime::FromTime(12, 0),
                              30);
        Dock dock("reader 4B5831A7\n"
                  "touch 2026-11-21 23:14 1A40C2\n");
        OverrideDevice(dock.Device());

        Keyboard login;
        login.Key("frmLogin", Qt::Key_M, Qt::AltModifier);
        login.TabTo("frmLogin", "txtEnteredPassword");
        login.Type("frmLogin", "keeper");
        login.Key("frmLogin", Qt::Key_Return);
        login.Start();
        QVERIFY(Main({}) == StartOutcome::Running && login.Finish());

        Keyboard work;
        work.TabTo("frmMain", "Download");
        work.Key("frmMain", Qt::Key_Return);
        work.TabTo("frmMdiDownload", "cmdOnline_0");
        work.Key("frmMdiDownload", Qt::Key_Space);
        work.Then([] {
            const auto* reports = Script::Find<QWidget>("frmMdiDownload", "fraReports");
            return reports && reports->isVisible();
        });

        work.TabTo("frmMain", "Reports");
        work.Key("frmMain", Qt::Key_Return);
        work.TabTo("frmMdiReports", "lvwReports");
        work.Key("frmMdiReports", Qt::Key_Home);
        work.TabTo("frmMdiReports", "cmdOpen");
        work.Key("frmMdiReports", Qt::Key_Return);
        work.TabTo("frmRptTour", "chkIncludeEvents");
        work.Key("frmRptTour", Qt::Key_Return);
        work.Key("frmPreview", Qt::Key_S, Qt::ControlModifier);
        const QTemporaryDir folder; // with a name that can be typed
        const QString pdf = folder.filePath("night.pdf");
        work.Then([&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QWidget* focus = dialog ? QApplication::focusWidget() : nullptr;
            if (!focus || focus->window() != dialog)
                return false;
            QTest::keyClick(focus, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(focus, pdf);
            QTimer::singleShot(0, focus, [focus] { QTest::keyClick(focus, Qt::Key_Return); });
            return true;
        });
        work.Then([&] { return QFile::exists(pdf); });
        work.Key("frmPreview", Qt::Key_Escape);
        work.Key("frmRptTour", Qt::Key_Escape);

        work.TabTo("frmMain", "Setup");
        work.Key("frmMain", Qt::Key_Return);
        work.TabTo("frmMDISetup", "cmdSetup_1");
        work.Key("frmMDISetup", Qt::Key_Space);
        work.Name("Mill Lane");
        work.Key("frmMDISetup", Qt::Key_Return);
        work.TabTo("frmListEdit", "cmdSetup_1");
        work.Key("frmListEdit", Qt::Key_Space);
        work.Key("frmAddButton", Qt::Key_M, Qt::AltModifier);
        work.Type("frmManualID", "C0FFEE");
        work.Key("frmManualID", Qt::Key_Return);
        work.TabTo("frmAddButton", "txtName");
        work.Type("frmAddButton", "Weir gate");
        work.Key("frmAddButton", Qt::Key_Return);
        work.TabTo("frmListEdit", "cmdOK");
        work.Key("frmListEdit", Qt::Key_Return);

        for (int tab = 0; tab < 2; ++tab)
            work.Key("frmMDISetup", Qt::Key_Tab, Qt::ControlModifier);
        work.TabTo("frmMDISetup", "cmdSetup_1");
        work.Key("frmMDISetup", Qt::Key_Space);
        work.Name("Weir round");
        work.Key("frmMDISetup", Qt::Key_Return);
        work.TabTo("frmEditTour", "lvwLocations");
        work.Key("frmEditTour", Qt::Key_Home);
        work.Key("frmEditTour", Qt::Key_A, Qt::AltModifier);
        work.Key("frmEditTour", Qt::Key_S, Qt::AltModifier);
        work.Then([] { return FocusIn("frmMDISetup") != nullptr; });
        work.Start();
        QVERIFY(work.Finish());

        QCOMPARE(login.Unseen() + work.Unseen(), QStringList());
        QCOMPARE(work.Texts(), QStringList());
        QCOMPARE(RowsOf("SELECT tButtonCode FROM tblEvents WHERE dtDateTime >= "
                        "#2026-11-21 23:14:00#"),
                 {"1A40C2"});
        QVERIFY(BytesOf(pdf).startsWith("%PDF-"));
        QCOMPARE(RowsOf("SELECT tblListItems.tName, tButtonCode, tButtonName FROM tblButtons INNER "
                        "JOIN tblListItems ON tblButtons.lParentID = tblListItems.ID WHERE "
                        "tblListItems.tName = 'Mill Lane'"),
                 {"Mill Lane|C0FFEE|Weir gate"});
        QCOMPARE(RowsOf("SELECT tblTours.tName, lIndex FROM tblTourPoints INNER JOIN tblTours ON "
                        "tblTourPoints.lParentID = tblTours.ID WHERE tblTours.tName = "
                        "'Weir round'"),
                 {"Weir round|1"});
    }
};

int main(int argc, char* argv[]) {
    StationApplication app(argc, argv);
    KeyboardTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "KeyboardTest.moc"
