// helppictures LANGUAGE FOLDER: plays a morning at the demonstration site and takes the pictures of
// the help from the windows. LANGUAGE is the number of a language in the dictionary.

#include "Clock.h"
#include "CommPort.h"
#include "Controls.h"
#include "Dock.h"
#include "Settings.h"
#include "StationApplication.h"
#include "TestHome.h"
#include "frmMain.h"
#include "mMain.h"

#include <QComboBox>
#include <QDateEdit>
#include <QImageWriter>
#include <QTabBar>

#include <algorithm>

namespace {

const QByteArray Night = "reader 4B5831A7\n"
                         "firmware 06\n"
                         "touch 2026-11-21 23:14 1A40C2\n"
                         "touch 2026-11-21 23:37 1A40C7\n"
                         "touch 2026-11-21 23:38 7E0002\n"
                         "touch 2026-11-22 00:07 1A41D0\n"
                         "touch 2026-11-22 00:09 2C0918\n"
                         "touch 2026-11-22 00:41 1A40C2\n";

QString g_folder;

/// The image with the 256 colours that it has most of: a picture of windows has few others.
QImage WithFewColours(const QImage& image) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    QList<QRgb> colours = counts.keys();
    std::sort(colours.begin(), colours.end(),
              [&](QRgb one, QRgb other) { return counts[one] > counts[other]; });
    return image.convertToFormat(QImage::Format_Indexed8, colours.mid(0, 256),
                                 Qt::AvoidDither | Qt::ThresholdDither);
}

void Take(QWidget& widget, const char* name) {
    QCoreApplication::processEvents();
    QImageWriter writer(g_folder + u'/' + QString::fromLatin1(name) + QStringLiteral(".png"));
    writer.setCompression(100);
    if (!writer.write(
            WithFewColours(widget.grab().toImage().convertToFormat(QImage::Format_RGB32))))
        qFatal("%s: %s", name, qPrintable(writer.errorString()));
}

/// Takes the window with that name once it is shown, and then presses one of its buttons.
void TakeThen(Script& script, const char* window, const char* picture, const char* button) {
    const QString form = QString::fromLatin1(window);
    script.Then([=] {
        QWidget* top = QApplication::activeModalWidget();
        if (!top || top->objectName() != form)
            return false;
        Take(*top, picture);
        return true;
    });
    script.Click(form, QString::fromLatin1(button));
}

void Run(const char* what, Script& script, const std::function<void()>& start) {
    script.Start();
    start();
    if (!script.Finish())
        qFatal("stuck: %s", what);
}

QWidget& Frame() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == u"frmMain")
            return *window;
    qFatal("no main window");
}

QAction* Action(const char* name) { return Control<QAction>(Frame(), name); }

void TakeReport() {
    Action("reports")->trigger();
    auto* reports = Script::Find<QAbstractItemView>("frmMdiReports", "lvwReports");
    reports->setCurrentIndex(reports->model()->index(0, 0));
    Take(Frame(), "reports");
    Script script;
    const QString dialog = QStringLiteral("frmRptTour");
    script.With<QDateEdit>(dialog, "dtpStartDate",
                           [](QDateEdit& date) { date.setDate(QDate(2026, 11, 21)); });
    script.With<QComboBox>(dialog, "imgcboTour", [](QComboBox& tours) {
        tours.setCurrentIndex(tours.findText("Night", Qt::MatchStartsWith));
    });
    script.With<QAbstractButton>(dialog, "chkIncludeEvents",
                                 [](QAbstractButton& events) { events.setChecked(true); });
    script.With<QAbstractButton>(dialog, "optShowAll_1",
                                 [](QAbstractButton& all) { all.setChecked(true); });
    TakeThen(script, "frmRptTour", "tour-dialog", "cmdPrintPreview");
    script.Then([] {
        QWidget* preview = QApplication::activeModalWidget();
        if (!preview || preview->objectName() != u"frmPreview")
            return false;
        preview->resize(640, 520);
        Control<QAction>(*preview, "fit-page")->trigger();
        Take(*preview, "preview");
        preview->resize(600, 500);
        Control<QAction>(*preview, "fit-width")->trigger();
        Take(*preview, "tour-report");
        QTimer::singleShot(0, preview, &QWidget::close);
        return true;
    });
    script.Click(dialog, "cmdCancel");
    Run("report", script, [&] { reports->actions().first()->trigger(); });
}

void TakeSetup() {
    Action("setup")->trigger();
    Take(Frame(), "setup");
    const QString page = QStringLiteral("frmMDISetup");
    Script site;
    TakeThen(site, "frmListEdit", "site", "cmdOK");
    Run("site", site, [&] { Script::Find<QAbstractButton>(page, "cmdSetup_0")->click(); });
    Script::Find<QTabBar>(page, "tabSetup")->setCurrentIndex(2);
    auto* list = Script::Find<QAbstractItemView>(page, "lvwProgram");
    list->setCurrentIndex(list->model()->index(1, 0));
    Script tour;
    TakeThen(tour, "frmEditTour", "tour", "cmdCancel");
    Run("tour", tour, [&] { Script::Find<QAbstractButton>(page, "cmdSetup_0")->click(); });
}

} // namespace

int main(int argc, char** argv) {
    StationApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    if (argc != 3)
        qFatal("usage: helppictures LANGUAGE FOLDER");
    g_folder = QString::fromLocal8Bit(argv[2]);
    TestHome home(TestHome::DemoSite);
    TestHome::Close();
    home.CopyProgramFiles(QStringLiteral(BESIDE));
    SaveSetting(SettingsApplication, SettingsSection::Properties, QStringLiteral("Language"),
                QString::fromLatin1(argv[1]));
    const TestClock clock(DateTime::FromDays(46348) + DateTime::FromTime(7, 30), 30);
    const Dock dock(Night);
    OverrideDevice(dock.Device());

    Script login;
    Type(login, "frmLogin", "txtEnteredPassword", "KEEPER");
    TakeThen(login, "frmLogin", "login", "cmdOK");
    Run("login", login, [] { Main({}); });
    Frame().resize(641, 446);
    Action("download")->trigger();
    Script::Find<QAbstractButton>("frmMdiDownload", "cmdOnline_0")->click();
    Take(Frame(), "download");
    Frame().resize(780, 560);
    Action("home")->trigger();
    QTest::qWait(500); // the page fills in
    Take(Frame(), "home");
    Frame().resize(641, 446);
    TakeSetup();
    TakeReport();
    Script archive, options;
    TakeThen(archive, "frmArchive", "archive", "cmdCancel");
    Run("archive", archive, [] { Action("mnuFileArchive")->trigger(); });
    TakeThen(options, "frmSetTime", "reader-options", "cmdCancel");
    Run("options", options, [] { Action("mnuToolsPipeOptions")->trigger(); });
    Frame().close();
    ReleaseMainWindow();
}
