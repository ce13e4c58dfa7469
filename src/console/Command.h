#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace CLI {
class App;
}
class ConsoleBoxes;

/// Runs a command whose options have been read. True if all was done; if not, it has said why.
using CommandRun = std::function<bool(const ConsoleBoxes& boxes)>;

enum class Access { Everybody, MasterOnly };

enum class Needs {
    OpenStore, ///< before the command runs, the store is open in gConn and the operator logged in
    Nothing    ///< the command does both itself
};

/// One command of wardlockctl.
struct Command {
    QString words;       ///< as they are typed, such as "reader set-clock"
    QString description; ///< a few words, in lower case
    QString example;     ///< what follows the words in a call
    Access access;
    /// Adds the command's options (CommandOptions.h) and returns the routine that runs after they
    /// are read.
    std::function<CommandRun(CLI::App& options)> prepare;
    Needs needs = Needs::OpenStore;
};

/// All commands, in the order of the overview.
std::vector<Command> Commands();
