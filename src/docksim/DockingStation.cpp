#include "DockingStation.h"

#include <algorithm>
#include <iterator>

namespace docksim {

namespace {

constexpr uint8_t kStatusDone = 0x00;
constexpr uint8_t kStatusOutOfRange = 0x02; // not a time of day, or not an option
constexpr uint8_t kStatusNoReader = 0xFF;

// In a command frame, the arguments come after the command code and the PC code.
constexpr size_t kArgumentsAt = 13;

} // namespace

void DockingStation::Load(Scenario scenario) {
    m_scenario = std::move(scenario);
    m_noise.seed(static_cast<NoiseSource::result_type>(m_scenario.seed));
    m_clock.reset();
    m_options.reset();
    m_erased = m_reads = m_framesSent = 0;
}

void DockingStation::Obey(const std::vector<FrameFinder::Found>& found) {
    for (const FrameFinder::Found& item : found) {
        if (item.kind == FrameFinder::Kind::Junk) {
            m_log.Received(item.bytes, "between frames");
        } else if (item.kind == FrameFinder::Kind::Bad) {
            m_log.Received(item.bytes, "ignored: " + item.reason);
        } else if (const auto command = DecodeCommand(item.bytes)) {
            m_log.Received(item.bytes, CommandName(*command));
            Obey(*command, item.bytes);
        } else {
            m_log.Received(item.bytes, "ignored: unknown command");
        }
    }
}

void DockingStation::Obey(Command command, const Bytes& frame) {
    if (m_scenario.abortOnCommand && m_queue.DropStream())
        m_log.Remark("memory stream broken off");
    if (command == Command::Read)
        ++m_reads;
    if (IsSilent(command)) {
        m_log.Remark("silent");
        return;
    }
    std::vector<SendItem> items;
    AddWrongCode(command, items);
    if (command == Command::Read)
        std::ranges::move(BuildMemoryStream(m_scenario, m_noise), std::back_inserter(items));
    else if (command == Command::Detect)
        AddReply(command, {ReplyCode(command)}, items);
    else
        AddReply(command, {ReplyCode(command), CarryOut(command, frame)}, items);
    Deliver(std::move(items));
}

bool DockingStation::IsSilent(Command command) {
    auto& silent = m_scenario.faults.silent;
    const auto it = silent.find(command);
    if (it == silent.end())
        return false;
    if (it->second > 0 && --it->second == 0)
        silent.erase(it);
    return true;
}

uint8_t DockingStation::CarryOut(Command command, const Bytes& frame) {
    auto& refusals = m_scenario.faults.refusals;
    if (const auto it = refusals.find(command); it != refusals.end()) {
        const uint8_t status = it->second.status;
        if (--it->second.times == 0)
            refusals.erase(it);
        return status;
    }
    if (!m_scenario.inserted)
        return kStatusNoReader;
    if (command == Command::Erase) {
        m_scenario.reader.Erase();
        m_scenario.count.reset();
        m_scenario.frames.reset();
        ++m_erased;
    } else if (command == Command::Clock) {
        const uint8_t* args = frame.data() + kArgumentsAt;
        const Moment moment = {args[2] * 256U + args[3], args[0], args[1]};
        if (moment.hour > 23 || moment.minute > 59)
            return kStatusOutOfRange;
        m_clock = moment;
    } else if (command == Command::Options) {
        const uint8_t options = frame[kArgumentsAt];
        if (options > 0x0F) // buzzer, LED, vibration, long buzzer
            return kStatusOutOfRange;
        m_options = options;
    }
    return kStatusDone;
}

void DockingStation::AddWrongCode(Command command, std::vector<SendItem>& items) {
    const Faults& faults = m_scenario.faults;
    if (!faults.wrongCode || faults.wrongCodeOnlyFor.value_or(command) != command)
        return;
    items.push_back({.bytes = BuildFrame(m_scenario.header, {*faults.wrongCode, kStatusDone}),
                     .name = "wrong code " + HexText({*faults.wrongCode}),
                     .ofStream = command == Command::Read});
}

void DockingStation::AddReply(Command command, const Bytes& payload, std::vector<SendItem>& items) {
    const Faults& faults = m_scenario.faults;
    if (const auto it = faults.noise.replies.find(command); it != faults.noise.replies.end())
        items.push_back(NoiseItem(m_noise, it->second));
    SendItem item{.bytes = BuildFrame(m_scenario.header, payload),
                  .name = "reply " + HexText({payload[0]})};
    if (payload.size() > 1)
        item.name += " status " + HexText({payload[1]});
    if (faults.badChecksum.replies.contains(command)) {
        item.bytes.back() ^= 0x5A;
        item.name += ", damaged";
    }
    items.push_back(std::move(item));
}

void DockingStation::Deliver(std::vector<SendItem> items) {
    const Faults& faults = m_scenario.faults;
    bool frameBefore = false;
    bool noiseBefore = false;
    for (SendItem& item : items) {
        item.singleByte = faults.singleByte;
        if (faults.bitsPerSecond) // start bit, eight bits, stop bit
            item.byteTime = 10 * Micros{1'000'000} / *faults.bitsPerSecond;
        if (faults.singleByte)
            item.byteTime += faults.singleByteGapUs;
        // Noise belongs to the frame after it: the gap comes before both.
        if (frameBefore && !noiseBefore)
            item.pauseBefore = faults.gapMs * 1000;
        if (faults.cut && item.isFrame && item.bytes.size() > 1) {
            item.cutAt =
                std::min(faults.cut->at.value_or(item.bytes.size() / 2), item.bytes.size() - 1);
            item.cutPause = faults.cut->pauseMs * 1000;
        }
        frameBefore = frameBefore || item.isFrame;
        noiseBefore = !item.isFrame;
        m_queue.Push(std::move(item));
    }
}

void DockingStation::NoteSent(const SendItem& item) {
    if (item.isFrame)
        ++m_framesSent;
    if (!item.bytes.empty())
        m_log.Sent(item.bytes, item.name);
}

void DockingStation::Touch(const Words& line) {
    ObeyTouch(m_scenario.reader, line);
    m_log.Remark("touch recorded, " + std::to_string(m_scenario.reader.Records().size()) +
                 " records");
}

void DockingStation::PresentButton(const std::string& code) {
    const auto button = ParseButtonCode(code);
    if (!m_scenario.inserted)
        throw ParseError("no reader is in the station");
    Deliver({{.bytes = BuildFrame(m_scenario.header,
                                  {kCodeButton, 0x00, button[0], button[1], button[2]}),
              .name = "button " + code}});
}

void DockingStation::SetInserted(bool inserted) {
    m_scenario.inserted = inserted;
    m_log.Remark(inserted ? "reader inserted" : "reader removed");
}

void DockingStation::SendNoise(long count) { Deliver({NoiseItem(m_noise, count)}); }

std::string DockingStation::StateLine() const {
    const Reader& reader = m_scenario.reader;
    return "{\"reader\":\"" + reader.Identifier() +
           "\",\"inserted\":" + (m_scenario.inserted ? "true" : "false") +
           ",\"touches\":" + std::to_string(reader.TouchCount()) +
           ",\"records\":" + std::to_string(reader.Records().size()) +
           ",\"erased\":" + std::to_string(m_erased) +
           ",\"clock\":" + (m_clock ? "\"" + MomentText(*m_clock) + "\"" : "null") +
           ",\"options\":" + (m_options ? std::to_string(*m_options) : "null") +
           ",\"reads\":" + std::to_string(m_reads) +
           ",\"frames_sent\":" + std::to_string(m_framesSent) + "}";
}

} // namespace docksim
