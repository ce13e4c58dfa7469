#pragma once

#include "MemoryStream.h"
#include "Scenario.h"
#include "SendQueue.h"
#include "WireLog.h"

#include <optional>
#include <string>

namespace docksim {

// The docking station with its reader. It carries out the station's commands and puts the answers
// into the queue. It does not touch the line itself.
class DockingStation {
public:
    // Both must outlive this object.
    DockingStation(SendQueue& queue, WireLog& log) : m_queue(queue), m_log(log) {}

    // Replaces the docking station and its reader. All counts start again; what is being sent
    // continues.
    void Load(Scenario scenario);

    // Takes bytes that the station sent.
    void Receive(const Bytes& bytes) { Obey(m_finder.Take(bytes)); }
    // Whether a frame from the station is unfinished.
    bool AwaitsRest() const { return m_finder.Waiting(); }
    void GiveUpRest() { Obey(m_finder.GiveUp()); }

    // Call it for each item that has been written.
    void NoteSent(const SendItem& item);

    // A guard's touch. Throws ParseError.
    void Touch(const Words& line);
    // A button held to the docked reader. Throws ParseError, also if there is no reader.
    void PresentButton(const std::string& code);
    void SetInserted(bool inserted);
    void SetFault(const Words& line) { m_scenario.faults.Set(line); }
    void SendNoise(long count);

    // One line of JSON.
    std::string StateLine() const;

private:
    void Obey(const std::vector<FrameFinder::Found>& found);
    void Obey(Command command, const Bytes& frame);
    // True if a fault keeps the command from being carried out and answered. Counts the fault down.
    bool IsSilent(Command command);
    // Carries out a command that has a status, and returns the status.
    uint8_t CarryOut(Command command, const Bytes& frame);
    // Each appends a part of the answer to the items.
    void AddWrongCode(Command command, std::vector<SendItem>& items);
    void AddReply(Command command, const Bytes& payload, std::vector<SendItem>& items);
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
