#include "Command.h"

std::vector<Command> ReportCommands();

std::vector<Command> Commands() {
    std::vector<Command> commands;
// Each command is in the file of its name: DetectCommand() is in DetectCommand.cpp.
#define ADD(Name)                                                                                  \
    extern Command Name##Command();                                                                \
    commands.push_back(Name##Command());
    ADD(Detect)
    ADD(Download)
    for (Command& report : ReportCommands())
        commands.push_back(std::move(report));
    ADD(Identify)
    ADD(Firmware)
    ADD(SetClock)
    ADD(SetOptions)
    ADD(Erase)
    ADD(Export)
    ADD(Import)
#undef ADD
    return commands;
}
