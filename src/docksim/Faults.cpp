#include "Faults.h"

#include "Directives.h"

namespace docksim {

namespace {

constexpr long kMostFrames = 65535;
constexpr long kMostBytes = 100'000'000;
constexpr long kMostMs = 3'600'000;

Command ParseCommand(const std::string& word) {
    if (const auto command = CommandFromWord(word))
        return *command;
    throw ParseError("'" + word + "' is not detect, read, erase, clock or options");
}

// An optional number, as in "no-reader 2".
long NumberOr(const Words& line, size_t at, long otherwise, long least, long most) {
    return line.size() > at ? ParseNumber(line[at], least, most) : otherwise;
}

template <typename Value>
void SetPlace(Faults::Places<Value>& places, const std::string& word, Value value) {
    const auto command = CommandFromWord(word);
    if (command && *command != Command::Read)
        places.replies[*command] = value;
    else
        places.frames[ParseNumber(word, 1, kMostFrames)] = value;
}

void SetSilent(Faults& faults, const Words& line) {
    const long times = NumberOr(line, 2, -1, 1, kMostFrames);
    if (line.size() > 1) {
        faults.silent[ParseCommand(line[1])] = times;
        return;
    }
    for (const Command command : kCommands)
        faults.silent[command] = times;
}

void SetRefusal(Faults& faults, const Words& line) {
    const Command command = ParseCommand(line[1]);
    if (command == Command::Detect || command == Command::Read)
        throw ParseError("only erase, clock and options can be refused");
    Faults::Refusal refusal;
    refusal.times = ParseNumber(line[2], 1, kMostFrames);
    if (line.size() > 3)
        refusal.status = ParseHexByte(line[3]);
    if (refusal.status == 0)
        throw ParseError("status 00 is not a refusal");
    faults.refusals[command] = refusal;
}

void SetDamage(Faults& faults, const Words& line) {
    const uint8_t mask = line.size() > 2 ? ParseHexByte(line[2]) : 0xFF;
    if (mask == 0)
        throw ParseError("XOR with 00 would change nothing");
    faults.damagedBytes[static_cast<size_t>(ParseNumber(line[1], 0, kMostBytes))] = mask;
}

void SetDrop(Faults& faults, const Words& line) {
    const auto first = static_cast<size_t>(ParseNumber(line[1], 0, kMostBytes));
    faults.droppedBytes.emplace_back(first,
                                     static_cast<size_t>(NumberOr(line, 2, 1, 1, kMostBytes)));
}

void SetWrongCode(Faults& faults, const Words& line) {
    const auto only =
        line.size() > 2 ? std::optional<Command>(ParseCommand(line[2])) : std::nullopt;
    faults.wrongCode = line.size() > 1 ? ParseHexByte(line[1]) : 0x81;
    faults.wrongCodeOnlyFor = only;
}

void SetCut(Faults& faults, const Words& line) {
    Faults::Cut cut;
    cut.pauseMs = ParseNumber(line[1], 1, kMostMs);
    if (line.size() > 2)
        cut.at = static_cast<size_t>(ParseNumber(line[2], 1, 255));
    faults.cut = cut;
}

const Directives<Faults>& FaultDirectives() {
    using F = Faults;
    using W = Words;
    static const Directives<Faults> directives = {
        {"none", {1, 1, [](F& f, const W&) { f = {}; }}},
        {"silent", {1, 3, SetSilent}},
        {"refuse", {3, 4, SetRefusal}},
        {"checksum", {2, 2, [](F& f, const W& w) { SetPlace(f.badChecksum, w[1], true); }}},
        {"noise",
         {2, 3,
          [](F& f, const W& w) {
              SetPlace(f.noise, w.size() > 2 ? w[2] : "1", ParseNumber(w[1], 1, 1'000'000));
          }}},
        {"no-reader",
         {1, 2, [](F& f, const W& w) { f.noReaderAfter = NumberOr(w, 1, 0, 0, kMostFrames); }}},
        {"transfer-fault",
         {1, 2,
          [](F& f, const W& w) { f.transferFaultAfter = NumberOr(w, 1, 0, 0, kMostFrames); }}},
        {"stop-after",
         {2, 2, [](F& f, const W& w) { f.stopAfter = ParseNumber(w[1], 0, kMostFrames); }}},
        {"vanish-after-frame",
         {2, 2, [](F& f, const W& w) { f.vanishAfterFrame = ParseNumber(w[1], 0, kMostFrames); }}},
        {"vanish-after-bytes",
         {2, 2,
          [](F& f, const W& w) {
              f.vanishAfterBytes = static_cast<size_t>(ParseNumber(w[1], 0, kMostBytes));
          }}},
        {"drop-byte", {2, 2, SetDrop}},
        {"drop-bytes", {3, 3, SetDrop}},
        {"damage-byte", {2, 3, SetDamage}},
        {"wrong-code", {1, 3, SetWrongCode}},
        {"single-byte",
         {1, 2,
          [](F& f, const W& w) {
              f.singleByteGapUs = NumberOr(w, 1, 0, 0, 1'000'000);
              f.singleByte = true;
          }}},
        {"pace",
         {1, 2, [](F& f, const W& w) { f.bitsPerSecond = NumberOr(w, 1, 9600, 50, 4'000'000); }}},
        {"gap", {2, 2, [](F& f, const W& w) { f.gapMs = ParseNumber(w[1], 0, kMostMs); }}},
        {"cut", {2, 3, SetCut}},
    };
    return directives;
}

} // namespace

void Faults::Set(const Words& line) {
    if (line.empty())
        throw ParseError("the name of the fault is missing");
    if (!ObeyDirective(FaultDirectives(), *this, line))
        throw ParseError("unknown directive '" + line.front() + "'");
}

bool Faults::Dropped(size_t streamByte) const {
    for (const auto& [first, count] : droppedBytes)
        if (streamByte >= first && streamByte - first < count)
            return true;
    return false;
}

} // namespace docksim
