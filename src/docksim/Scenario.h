#pragma once

#include "Faults.h"
#include "Reader.h"

#include <optional>
#include <string>

namespace docksim {

// A docking station and its reader, as a scenario file describes them.
struct Scenario {
    Reader reader;
    bool inserted = true;
    Faults faults;
    std::optional<long> count;    // stated instead of the true number of records
    std::optional<size_t> frames; // sent instead of as many as the count needs
    Header header = kStationHeader;
    unsigned long seed = 1; // of the noise
    bool abortOnCommand = false;

    // Obeys one line that is not empty. Throws ParseError without having changed anything.
    void Obey(const Words& line);
};

// Reads a scenario file. Throws ParseError; its text begins with the file's name and, if a line is
// at fault, the line's number.
Scenario LoadScenario(const std::string& file);

// Obeys "touch CODE [YYYY-MM-DD HH:MM]", with the arguments in any order. Without date and time,
// the touch happens now. Throws ParseError.
void ObeyTouch(Reader& reader, const Words& line);

} // namespace docksim
