#include "DebugMenu.h"

#include "Application.h"
#include "Clock.h"
#include "EventDeletion.h"
#include "MessageBox.h"
#include "ProgressWindow.h"
#include "SampleData.h"
#include "StoreDump.h"
#include "StoreReports.h"
#include "frmDebugData.h"
#include "mErrorHandler.h"

#include <QAction>
#include <QDesktopServices>
#include <QInputDialog>
#include <QMenu>
#include <QUrl>

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

#define BUTTON_DETAILS                                                                             \
    "tButtonName, tButtonDesc, tName AS tGroupName, tDesc AS tGroupDesc FROM tblButtons "          \
    "INNER JOIN tblListItems ON tblButtons.lParentID = tblListItems.ID"

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

/// Shows the progress of a dump and opens its file.
class DumpWindow : public DumpView {
public:
    explicit DumpWindow(QWidget& window)
        : m_progress(
              std::in_place, "Report", [](const QString& text) { return text; }, &window,
              "The report is being written.") {}

    bool GoOn() override {
        constexpr int Pause = 50; // milliseconds
        if (MillisecondsRunning() < m_next)
            return true;
        m_next = MillisecondsRunning() + Pause;
        return (*m_progress)(m_step++, 0);
    }
    void End() override { m_progress.reset(); }
    bool OpenText(const QString& path) override {
        return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    }

private:
    std::optional<ProgressWindow> m_progress;
    std::int64_t m_next = 0;
    int m_step = 0;
};

void Dump(const QString& sql, const QString& file, QWidget& window) {
    DumpWindow view(window);
    ArchiveEvents(sql, file, view);
}

void DumpSchema(const QString& file, QWidget& window) {
    DumpWindow view(window);
    GuardedWithBox("ReportSchema",
                   [&] { ReportSchema(*OpenForReading(), file, SchemaTitle, view); });
}

void ExecuteQuery(const QString& file, QWidget& window) {
    QInputDialog box(&window);
    box.setObjectName(QStringLiteral("EnterQuery"));
    box.setWindowTitle(QStringLiteral("Enter Query"));
    box.setLabelText(QStringLiteral("Enter a query:"));
    box.setTextValue(QString::fromLatin1(AllEvents));
    box.resize(box.fontMetrics().averageCharWidth() * 80, box.height());
    if (box.exec() == QDialog::Accepted)
        Dump(box.textValue(), file, window);
}

void CreateSampleData(QWidget& window) {
    frmDebugData dialog(&window);
    dialog.exec();
    if (dialog.OK())
        MakeFakeData(dialog.DateTime(), DateTime::FromTime(0, dialog.Interval()));
}

void AddDebugMenu(QMenu& menu, int index, const QString& caption, QWidget& window) {
    const bool separator = caption == u"-"; // its text would be shown
    QAction* item = separator ? menu.addSeparator() : menu.addAction(caption);
    item->setObjectName(QStringLiteral("mnuDebugItem_%1").arg(index));
    QObject::connect(item, &QAction::triggered, &window,
                     [index, &window] { mnuDebugItem_Click(index, window); });
}

} // namespace

void FillDebugMenu(QMenu& mnuDebug, QWidget& window) {
    int index = 0;
    for (const DebugItem& item : Items)
        AddDebugMenu(mnuDebug, ++index, QString::fromLatin1(item.caption), window);
}

void mnuDebugItem_Click(int index, QWidget& window) {
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
        return CreateSampleData(window);
    case DeleteToday:
        return DeleteTodaysEvents();
    case DeleteAll:
        return DeleteAllEvents();
    case Query:
        return ExecuteQuery(file, window);
    default:
        if (item.sql)
            Dump(QString::fromLatin1(item.sql), file, window);
    }
}
