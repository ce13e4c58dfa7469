#pragma once

#include <QStringList>

/// The station's work without windows. Runs one call of wardlockctl; `arguments` are those after
/// the program's name. Gives the exit status: 0 done, 1 failed or only partly done, 2 wrong usage.
/// If it is not 0, standard error says why. Never prompts. Does not throw.
int RunConsole(const QStringList& arguments);
