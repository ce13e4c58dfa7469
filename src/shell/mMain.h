#pragma once

#include <QString>

/// How a start ended. Unless the station is running, the program must end now; the operator has
/// been told why.
enum class StartOutcome {
    Running,   ///< the main window is shown; the event loop comes next
    Cancelled, ///< the operator cancelled the login
    Failed
};

/// The station's only entry: reads the command line and the settings, opens the dictionary and the
/// store, asks for a login and shows the main window. Once it has begun to open the store, an
/// unexpected failure is thrown as RunTimeError.
StartOutcome Main(const QString& commandLine);

/// Deletes the main window after the event loop has ended.
void ReleaseMainWindow();
