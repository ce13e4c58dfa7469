#include "Command.h"

// Each command is in the file of its name.
Command DetectCommand();
Command DownloadCommand();
std::vector<Command> ReportCommands();
Command IdentifyCommand();
Command FirmwareCommand();
Command SetClockCommand();
Command SetOptionsCommand();
Command EraseCommand();
Command ExportCommand();
Command ImportCommand();

std::vector<Command> Commands() {
    std::vector<Command> commands = {DetectCommand(), DownloadCommand()};
    for (Command& report : ReportCommands())
        commands.push_back(std::move(report));
    for (Command (*make)() : {IdentifyCommand, FirmwareCommand, SetClockCommand, SetOptionsCommand,
                              EraseCommand, ExportCommand, ImportCommand})
        commands.push_back(make());
    return commands;
}
