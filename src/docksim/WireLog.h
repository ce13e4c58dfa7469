#pragma once

#include "Wire.h"

#include <fstream>
#include <string>

namespace docksim {

// Tells every frame of both directions, one line each:
//
//   2024-03-01 08:30:00.123 RX FF FF FF 55 03 01 03 51 00 01 11 6A  CmdDetect
//   2024-03-01 08:30:00.124 TX FF FF FF 55 03 01 03 51 00 01 80 D9  reply 80
//   2024-03-01 08:30:05.000 -- reader removed
//
// RX came from the station, TX went to it when its last byte had been written, and -- is a remark.
class WireLog {
public:
    // "" keeps no log, "-" is standard error; a file is written anew. Returns whether it opened.
    bool Open(const std::string& file);

    // Without a file, switching the log on makes it go to standard error.
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
