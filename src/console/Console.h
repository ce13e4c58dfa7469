#pragma once

#include <QStringList>

/// The station's work without windows. Runs one call of wardlockctl; `arguments` are those after
/// the program's name. Gives the exit status: 0 all done, 1 not or not all done, 2 wrong usage. If
/// it is not 0, standard error says why. Asks nothing. Throws nothing.
int RunConsole(const QStringList& arguments);
