#pragma once

#include "Wire.h"

#include <fstream>
#include <string>

namespace docksim {

// Writes one line for every frame in both directions:
//
//   2024-03-01 08:30:00.123 RX FF FF FF 55 03 01 03 51 00 01 11 6A  CmdDetect
//   2024-03-01 08:30:00.124 TX FF FF FF 55 03 01 03 51 00 01 80 D9  reply 80
//   2024-03-01 08:30:05.000 -- reader removed
//
// RX came from the station. TX went to the station, at the time when its last byte was written.
// -- is a remark.
class WireLog {
public:
    // "" keeps no log, "-" is standard error; an existing file is replaced. Returns whether it
    // opened.
    bool Open(const std::string& file);

    // Without a file the log goes to standard error.
    void SwitchOn(bool on) { m_on = on; }

    void Received(const Bytes& bytes, const std::string& name);
    void Sent(const Bytes& bytes, const std::string& name);
    void Remark(const std::string& text);

private:
    void WriteLine(const std::string& text);

    std::ofstream m_file;
    bool m_on = false;
};

} // namespace docksim
