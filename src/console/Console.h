#pragma once

#include <QStringList>

/// The station's work without windows. Runs one call of the command line and gives its exit status:
/// 0 all done, 1 not or not all done (with a line on standard error), 2 wrong usage. Asks for
/// nothing. Throws nothing.
int RunConsole(const QStringList& arguments);
