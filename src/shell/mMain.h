#pragma once

#include <QString>

/// The station's only entry: reads the command line and the settings, opens dictionary and store,
/// asks for a login and shows the main window. True if the event loop is to run; false if the
/// program ends. From the moment the store is touched a failure that nobody expected is thrown, as
/// RunTimeError.
bool Main(const QString& commandLine);

/// Drops the main window, once the event loop has ended.
void ReleaseMainWindow();
