#pragma once

#include "Faults.h"
#include "Reader.h"

#include <optional>
#include <string>

namespace docksim {

// A docking station as a scenario file describes it.
struct Scenario {
    Reader reader;
    bool inserted = true;
    Faults faults;
    std::optional<long> count;    // said instead of the true number of records
    std::optional<size_t> frames; // sent instead of as many as the count asks for
    Header header = kStationHeader;
    unsigned long seed = 1; // of the noise
    bool abortOnCommand = false;

    // Obeys one line that is not empty. Throws ParseError and then has changed nothing.
    void Obey(const Words& line);
};

// Reads a scenario file. Throws ParseError whose text begins with the file's name and, where there
// is one, the number of the line.
Scenario LoadScenario(const std::string& file);

// Obeys "touch CODE [YYYY-MM-DD HH:MM]"; the arguments may stand in any order, and date and time
// are those of the moment when both are missing. Throws ParseError.
void ObeyTouch(Reader& reader, const Words& line);

} // namespace docksim
