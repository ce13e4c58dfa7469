#pragma once

#include <string>
#include <vector>

namespace docksim {

// The whole program. The arguments do not include the program's name. Returns the exit code: 0
// after quit, SIGTERM, SIGINT or a vanished device; 1 if the line fails; 2 for a bad argument or
// scenario. An error gives one line on standard error.
int RunDocksim(const std::vector<std::string>& arguments);

} // namespace docksim
