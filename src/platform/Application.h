#pragma once

#include <QString>

/// The program's name and its folders.

/// The application folder, without a separator at its end: the store, its lock and the log are in
/// it. SetAppPath or the environment variable WARDLOCK_HOME names it. Otherwise it is the folder of
/// the executable, or the user's data folder if the program is installed or the user may not write
/// to the folder of the executable.
QString AppPath();
void SetAppPath(const QString& folder);
/// The path of a file in the application folder, with the platform's own separators.
QString AppFile(const QString& name);
/// The user's data folder for this program. It need not exist.
QString UserDataPath();
/// The path of a file that comes with the program, such as the dictionary. It is looked for in the
/// application folder, beside the executable, and in the folder of the installed files, which is
/// found from that of the executable. If it is nowhere, the path in the application folder.
QString ProgramFile(const QString& name);
/// The user's documents folder, in which file dialogs start.
QString GetMyDocumentsPath();
/// The executable's name without its extension.
QString AppExeName();
