#pragma once

#include <QString>

/// How a start ended. Unless the station is running, the program is to end; the operator has been
/// told why.
enum class StartOutcome {
    Running,   ///< the main window is shown, and the event loop is to run
    Cancelled, ///< the operator cancelled the login
    Failed
};

/// The station's only entry: reads the command line and the settings, opens dictionary and store,
/// asks for a login and shows the main window. From the moment the store is touched a failure that
/// nobody expected is thrown, as RunTimeError.
StartOutcome Main(const QString& commandLine);

/// Drops the main window, once the event loop has ended.
void ReleaseMainWindow();
