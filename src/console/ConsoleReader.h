#pragma once

#include "CommandLine.h"

class ConsoleBoxes;
class DockingLink;

/// The commands that act on a docked reader. Each gives true if it was done, and has said why not
/// if it was not.

bool IdentifyReader(DockingLink& link, const CommandLine& line, const ConsoleBoxes& boxes);
bool TellFirmware(DockingLink& link, const CommandLine& line, const ConsoleBoxes& boxes);
bool SetReaderClock(DockingLink& link, const CommandLine& line);
bool SetReaderOptions(DockingLink& link, const CommandLine& line);
bool EraseReader(DockingLink& link, const CommandLine& line);
