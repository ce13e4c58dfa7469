#pragma once

#include "Wire.h"

#include <string>

namespace docksim {

// The pseudo-terminal that stands for the serial cable. The station opens the device named by
// Path(). This object holds the device open too, so a station may close and reopen it without the
// line going down.
//
// As on a real port, what arrives while nobody has the device open is lost, so a station never
// finds an answer to somebody else's question.
class PseudoTerminal {
public:
    PseudoTerminal() = default;
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    // Opens the line in raw mode. Throws std::system_error.
    void Open();

    // Makes a symbolic link to the device, in place of an older link; it goes when this object
    // goes. Throws std::system_error, also when something other than a link stands at that path.
    void Link(const std::string& path);

    const std::string& Path() const { return m_path; }
    int Descriptor() const { return m_master; }

    // Readable when a station has opened or closed the device; -1 where that cannot be watched.
    int WatchDescriptor() const { return m_watch; }

    // Takes notice of stations that have come and gone; `heard` tells that one has just sent
    // something. Returns whether a station has come to a device that nobody held.
    bool NoticeStations(bool heard);

    // To be called after each writing: drops what has been sent to nobody.
    void DropUnread();

    // The bytes that the station has written, or none.
    Bytes Read();

    // Takes the device away, as if the cable's adapter had been pulled out, once the station has
    // read what was sent to it, or half a second has passed.
    void Vanish();

private:
    void Close();
    // Whether a station has the device open; true where that cannot be watched.
    bool Held() const { return m_watch < 0 || m_holders > 0; }

    int m_master = -1;
    int m_slave = -1;
    int m_watch = -1;
    int m_holders = 0;
    std::string m_path;
    std::string m_link;
};

} // namespace docksim
