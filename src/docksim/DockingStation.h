#pragma once

#include "MemoryStream.h"
#include "Scenario.h"
#include "SendQueue.h"
#include "WireLog.h"

#include <map>
#include <optional>
#include <string>

namespace docksim {

// The docking station with its reader: obeys the station's commands and says what goes back.
// It neither reads nor writes the line; the answers go into the queue.
class DockingStation {
public:
    // Both must outlive this object.
    DockingStation(SendQueue& queue, WireLog& log) : m_queue(queue), m_log(log) {}

    // Puts another station and reader in place; all counts begin anew. What is on its way goes on.
    void Load(Scenario scenario);

    // Bytes that the PC sent.
    void Receive(const Bytes& bytes) { Obey(m_finder.Take(bytes)); }
    // Whether a frame has begun whose end is still to come.
    bool AwaitsRest() const { return m_finder.Waiting(); }
    void GiveUpRest() { Obey(m_finder.GiveUp()); }

    // To be called for each item that has been written.
    void NoteSent(const SendItem& item);

    // A guard's touch, somewhere on the tour. Throws ParseError.
    void Touch(const Words& line);
    // A button held to the docked reader. Throws ParseError, also when no reader is in.
    void PresentButton(const std::string& code);
    void SetInserted(bool inserted);
    void SetFault(const Words& line) { m_scenario.faults.Set(line); }
    void SendNoise(long count);

    // One line of JSON.
    std::string StateLine() const;

private:
    void Obey(const std::vector<FrameFinder::Found>& found);
    void Obey(Command command, const Bytes& frame);
    // Each puts what answers a command behind the items.
    void AddWrongCode(Command command, std::vector<SendItem>& items);
    void AddReply(Command command, const Bytes& payload, std::vector<SendItem>& items);
    void AddMemory(std::vector<SendItem>& items);
    uint8_t Carry(Command command, const Bytes& frame);
    bool IsSilent(Command command);
    void Deliver(std::vector<SendItem> items);

    SendQueue& m_queue;
    WireLog& m_log;
    Scenario m_scenario;
    NoiseSource m_noise;
    FrameFinder m_finder;
    std::optional<Moment> m_clock;
    std::optional<int> m_options;
    unsigned long m_erased = 0;
    unsigned long m_reads = 0;
    unsigned long m_framesSent = 0;
};

} // namespace docksim
