#pragma once

#include "Wire.h"

#include <string>

namespace docksim {

// The pseudo-terminal that takes the place of the serial cable. The station opens the device named
// by Path(). This object keeps the device open too, so the line stays up when a station closes and
// reopens it.
//
// As on a real port, what is sent while nobody has the device open is lost. So a station never
// reads an answer to another station's question.
class PseudoTerminal {
public:
    PseudoTerminal() = default;
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    // Opens the line in raw mode. Throws std::system_error.
    void Open();

    // Makes a symbolic link to the device, replacing an older link. This object removes it when it
    // is destroyed. Throws std::system_error, also if the path is something other than a link.
    void Link(const std::string& path);

    const std::string& Path() const { return m_path; }
    int Descriptor() const { return m_master; }

    // Readable when a station has opened or closed the device; -1 if that cannot be watched.
    int WatchDescriptor() const { return m_watch; }

    // Updates which stations have the device open; `heard` says that one has just sent something.
    // Returns whether a station has opened a device that no other had open.
    bool NoticeStations(bool heard);

    // Drops what was sent while nobody had the device open. Call it after each write.
    void DropUnread();

    // The bytes that the station has written; empty if there are none.
    Bytes Read();

    // Removes the device, as if the cable's adapter had been pulled out, after the station has read
    // what was sent to it, or after half a second.
    void Vanish();

private:
    void Close();
    // Whether a station has the device open; true if that cannot be watched.
    bool Held() const { return m_watch < 0 || m_holders > 0; }

    int m_master = -1;
    int m_slave = -1;
    int m_watch = -1;
    int m_holders = 0;
    std::string m_path;
    std::string m_link;
};

} // namespace docksim
