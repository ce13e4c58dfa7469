#include "MemoryStream.h"

namespace docksim {

namespace {

// A frame that reports something other than memory.
SendItem StatusFrame(const Scenario& scenario, uint8_t filler, const char* name) {
    Bytes payload(9, filler);
    payload[0] = kReplyMemory;
    return {.bytes = BuildFrame(scenario.header, payload), .name = name, .ofStream = true};
}

SendItem TransferFaultFrame(const Scenario& scenario) {
    return StatusFrame(scenario, 0x01, "status: transfer fault");
}

SendItem NoReaderFrame(const Scenario& scenario) {
    return StatusFrame(scenario, 0xFF, "status: no reader in the station");
}

// The bytes of the frame that are sent, with drops and damage. `streamByte` is the number of its
// first byte in the stream.
Bytes Damaged(const Bytes& frame, const Faults& faults, size_t streamByte) {
    Bytes sent;
    for (size_t i = 0; i < frame.size(); ++i) {
        const auto damage = faults.damagedBytes.find(streamByte + i);
        if (!faults.Dropped(streamByte + i))
            sent.push_back(damage == faults.damagedBytes.end()
                               ? frame[i]
                               : static_cast<uint8_t>(frame[i] ^ damage->second));
    }
    return sent;
}

} // namespace

SendItem NoiseItem(NoiseSource& noise, long count) {
    SendItem item{.name = "noise", .isFrame = false};
    for (long i = 0; i < count; ++i)
        item.bytes.push_back(static_cast<uint8_t>(noise()));
    return item;
}

std::vector<SendItem> BuildMemoryStream(const Scenario& scenario, NoiseSource& noise) {
    if (!scenario.inserted)
        return {NoReaderFrame(scenario)};
    const Faults& faults = scenario.faults;
    const long count = scenario.count.value_or(static_cast<long>(scenario.reader.Records().size()));
    const std::vector<Bytes> payloads =
        scenario.reader.MemoryPayloads(count, scenario.frames.value_or(FramesForCount(count)));

    std::vector<SendItem> stream;
    size_t streamByte = 0; // in the undamaged stream
    size_t sentBytes = 0;
    for (size_t k = 0;; ++k) { // k frames are done
        const long gone = static_cast<long>(k);
        if (faults.vanishAfterFrame == gone || faults.vanishAfterBytes == sentBytes) {
            if (stream.empty())
                stream.push_back({.isFrame = false});
            stream.back().vanishAfter = true;
            break;
        }
        if (faults.transferFaultAfter == gone) {
            stream.push_back(TransferFaultFrame(scenario));
            break;
        }
        if (faults.noReaderAfter == gone) {
            stream.push_back(NoReaderFrame(scenario));
            break;
        }
        if (faults.stopAfter == gone || k == payloads.size())
            break;

        const long number = gone + 1;
        if (const auto it = faults.noise.frames.find(number); it != faults.noise.frames.end())
            stream.push_back(NoiseItem(noise, it->second));
        SendItem item;
        item.name =
            "memory frame " + std::to_string(number) + " of " + std::to_string(payloads.size());
        if (k == 0)
            item.name +=
                ", reader " + scenario.reader.Identifier() + ", count " + std::to_string(count);
        const Bytes good = BuildFrame(scenario.header, payloads[k]);
        item.bytes = good;
        if (faults.badChecksum.frames.contains(number))
            item.bytes.back() ^= 0x5A;
        item.bytes = Damaged(item.bytes, faults, streamByte);
        streamByte += good.size();
        if (faults.vanishAfterBytes && *faults.vanishAfterBytes < sentBytes + item.bytes.size())
            item.bytes.resize(*faults.vanishAfterBytes - sentBytes);
        sentBytes += item.bytes.size();
        if (item.bytes != good)
            item.name += ", damaged";
        stream.push_back(std::move(item));
    }
    for (SendItem& item : stream)
        item.ofStream = true;
    return stream;
}

} // namespace docksim
