#include "StationApplication.h"

#include "RunTimeError.h"
#include "mErrorHandler.h"

namespace {

void ShowRunTimeError(const RunTimeError& error) {
    MsgBox(QStringLiteral("Run-time error '%1':\n\n").arg(error.Number()) + error.Description(), {},
           MessageKind::Critical);
}

} // namespace

StationApplication::StationApplication(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Wardlock")); // the title of a box without a caption
    // Closing the login must not end the program. Closing the main window does.
    setQuitOnLastWindowClosed(false);
    InstallMessageBoxes(&m_boxes);
}

StationApplication::~StationApplication() { InstallMessageBoxes(nullptr); }

QString StationApplication::CommandLine() { return arguments().mid(1).join(u' '); }

int StationApplication::RunGuarded(const std::function<int()>& program) {
    return Trapped(program, [](const RunTimeError& error) {
        ShowRunTimeError(error);
        EndProgram();
    });
}

bool StationApplication::notify(QObject* receiver, QEvent* event) {
    // An exception must not cross the event loop.
    return Trapped([&] { return QApplication::notify(receiver, event); },
                   [](const RunTimeError& error) {
                       ShowRunTimeError(error);
                       EndProgram();
                   });
}
