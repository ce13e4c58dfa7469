#include "DebugMenu.h"

#include "Application.h"
#include "ButtonDetails.h"
#include "DiagnosticError.h"
#include "EventDeletion.h"
#include "ProgressWindow.h"
#include "SampleData.h"
#include "StoreDump.h"
#include "StoreReports.h"
#include "frmDebugData.h"
#include "mErrorHandler.h"

#include <QAction>
#include <QDir>
#include <QInputDialog>
#include <QMenu>
#include <QProcess>

#include <array>

namespace {

enum Item {
    Schema = 1,
    SampleData = 14,
    DeleteToday = 16,
    DeleteAll = 17,
    Query = 19,
};

constexpr char AllEvents[] = "SELECT *  FROM tblEvents;";

struct DebugItem {
    const char* caption;
    const char* file = nullptr; ///< of a dump
    const char* sql = nullptr;
};
/// From index 1 on.
constexpr auto Items = std::to_array<DebugItem>({
    {"Report Schema", "Report_schema.txt"},
    {"Show tblButtons", "Report_tblButtons.txt", "SELECT *  FROM tblButtons;"},
    {"Show tblEvents", "Report_tblEvents.txt", AllEvents},
    {"Show tblListItems", "Report_tblListItems.txt", "SELECT *  FROM tblListItems;"},
    {"Show tblOperators", "Report_tblOperators.txt", "SELECT *  FROM tblOperators;"},
    {"TODO"},
    {"Show tblReaders", "Report_tblReaders.txt", "SELECT *  FROM tblReaders;"},
    {"Show tblTourPoints", "Report_tblTourPoints.txt", "SELECT *  FROM tblTourPoints;"},
    {"Show tblTours", "Report_tblTours.txt", "SELECT *  FROM tblTours;"},
    {"Show Buttons and Details", "Report_ButtonDetails.txt",
     "SELECT tButtonCode, wType, " BUTTON_DETAILS ";"},
    {"Show Only Location Buttons", "Report_LocationButtonDetails.txt",
     "SELECT tButtonCode, " BUTTON_DETAILS " WHERE wType = 1;"},
    {"Show Only Event Buttons", "Report_EventButtonDetails.txt",
     "SELECT tButtonCode, " BUTTON_DETAILS " WHERE wType = 2;"},
    {"-"},
    {"Create Sample Data"},
    {"-"},
    {"Delete today's Events and Tours"},
    {"Delete ALL Events and Tours"},
    {"-"},
    {"Execute Query", "Report_UserQuery.txt"},
});

/// Opens a text file with the desktop's program for it. If there is none, a box says where the file
/// is.
void OpenText(const QString& path, QWidget& window) {
    auto* opener = new QProcess(&window);
    const auto end = [opener, path](bool opened) {
        opener->deleteLater();
        if (!opened)
            MsgBox(QStringLiteral("The report is in this file:\n") + QDir::toNativeSeparators(path),
                   {}, MessageKind::Information);
    };
    QObject::connect(opener, &QProcess::errorOccurred, &window,
                     [end](QProcess::ProcessError error) {
                         if (error == QProcess::FailedToStart)
                             end(false);
                     });
    QObject::connect(opener, &QProcess::finished, &window, [end](int code) { end(code == 0); });
    opener->start(QStringLiteral("xdg-open"), {path});
}

/// Makes a dump and opens it. A failure is shown when the progress window has gone.
void Dump(const char* failure, const QString& file, QWidget& window,
          const std::function<bool(const WorkProgress&)>& write) {
    const auto body = [&] {
        ProgressWindow progress(
            "Report", [](const QString& text) { return text; }, &window,
            "The report is being written.");
        return write(std::ref(progress));
    };
    const bool written =
        Trapped(body, [&](const RunTimeError& error) { ShowDiagnosticError(failure, error); });
    if (written)
        OpenText(file, window);
}

void DumpQuery(const QString& sql, const QString& file, QWidget& window) {
    Dump("Error in Sub ReportRecordSet", file, window,
         [&](const WorkProgress& progress) { return ArchiveEvents(sql, file, progress); });
}

void DumpSchema(const QString& file, QWidget& window) {
    Dump("Error in Sub ReportSchema", file, window, [&](const WorkProgress&) {
        ReportSchema(*OpenForReading(), file, SchemaTitle);
        return true;
    });
}

void ExecuteQuery(const QString& file, QWidget& window) {
    QInputDialog box(&window);
    box.setObjectName(QStringLiteral("EnterQuery"));
    box.setWindowTitle(QStringLiteral("Enter Query"));
    box.setLabelText(QStringLiteral("Enter a query:"));
    box.setTextValue(QString::fromLatin1(AllEvents));
    box.resize(box.fontMetrics().averageCharWidth() * 80, box.height());
    if (box.exec() == QDialog::Accepted)
        DumpQuery(box.textValue(), file, window);
}

void CreateSampleData(QWidget& window) {
    frmDebugData dialog(&window);
    dialog.exec();
    if (dialog.OK())
        MakeFakeData(dialog.DateTime(), DateTime::FromTime(0, dialog.Interval()));
}

void AddDebugMenu(QMenu& menu, int index, const QString& caption, QWidget& window,
                  const std::function<void()>& changed) {
    const bool separator = caption == u"-"; // its text would be shown
    QAction* item = separator ? menu.addSeparator() : menu.addAction(caption);
    item->setObjectName(QStringLiteral("mnuDebugItem_%1").arg(index));
    QObject::connect(item, &QAction::triggered, &window,
                     [=, &window] { mnuDebugItem_Click(index, window, changed); });
}

} // namespace

void FillDebugMenu(QMenu& mnuDebug, QWidget& window, const std::function<void()>& changed) {
    int index = 0;
    for (const DebugItem& item : Items)
        AddDebugMenu(mnuDebug, ++index, QString::fromLatin1(item.caption), window, changed);
}

void mnuDebugItem_Click(int index, QWidget& window, const std::function<void()>& changed) {
    if (index < 1 || index > static_cast<int>(Items.size())) {
        MsgBox(QStringLiteral("Unknown Debug Cmd (%1)").arg(index), {}, MessageKind::Warning);
        return;
    }
    const DebugItem& item = Items[static_cast<std::size_t>(index - 1)];
    const QString file = AppFile(QString::fromLatin1(item.file));
    switch (index) {
    case Schema:
        return DumpSchema(file, window);
    case SampleData:
        CreateSampleData(window);
        return changed();
    case DeleteToday:
        DeleteTodaysEvents();
        return changed();
    case DeleteAll:
        DeleteAllEvents();
        return changed();
    case Query:
        return ExecuteQuery(file, window);
    default:
        if (item.sql)
            DumpQuery(QString::fromLatin1(item.sql), file, window);
    }
}
