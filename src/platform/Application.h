#pragma once

#include <QString>

/// The program's name and its folders.

/// The application folder, without a separator at its end. It is the folder of the executable,
/// unless SetAppPath or the environment variable WARDLOCK_HOME names another.
QString AppPath();
void SetAppPath(const QString& folder);
/// The path of a file in the application folder, with the platform's own separators.
QString AppFile(const QString& name);
/// The user's documents folder, in which file dialogs start.
QString GetMyDocumentsPath();
/// The executable's name without its extension.
QString AppExeName();
