#pragma once

#include <string>
#include <vector>

namespace docksim {

// The whole program behind its main function: arguments without the program's name. Returns the
// exit code: 0 after quit, SIGTERM, SIGINT or a vanished device, 1 when the line fails, 2 for bad
// arguments or a bad scenario, after one line on standard error.
int RunDocksim(const std::vector<std::string>& arguments);

} // namespace docksim
