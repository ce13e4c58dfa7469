#pragma once

#include <QString>

/// The program's name and its folders.

/// The application folder, without a separator at its end: the folder of the executable, unless
/// the environment variable WARDLOCK_HOME or SetAppPath names another.
QString AppPath();
void SetAppPath(const QString& folder);
/// A file beside the program, in the platform's own separators.
QString AppFile(const QString& name);
/// The user's documents folder, where file dialogs start.
QString GetMyDocumentsPath();
/// The executable's name without its extension.
QString AppExeName();
