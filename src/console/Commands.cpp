#include "Command.h"

std::vector<Command> ListCommands();
std::vector<Command> ReportCommands();

std::vector<Command> Commands() {
    std::vector<Command> commands;
// Each command is in the file of its name: DetectCommand() is in DetectCommand.cpp.
#define ADD(Name)                                                                                  \
    extern Command Name##Command();                                                                \
    commands.push_back(Name##Command());
    ADD(Detect)
    ADD(Download)
    for (const std::vector<Command>& more : {ListCommands(), ReportCommands()})
        commands.insert(commands.end(), more.begin(), more.end());
    ADD(Identify)
    ADD(Firmware)
    ADD(SetClock)
    ADD(SetOptions)
    ADD(Erase)
    ADD(Export)
    ADD(Import)
    ADD(Archive)
    ADD(Backup)
    ADD(Restore)
    ADD(Check)
    ADD(Dump)
#undef ADD
    return commands;
}
