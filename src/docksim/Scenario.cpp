#include "Scenario.h"

#include "Directives.h"

#include <fstream>

namespace docksim {

namespace {

const Directives<Scenario>& ScenarioDirectives() {
    using S = Scenario;
    using W = Words;
    static const Directives<Scenario> directives = {
        {"reader", {2, 2, [](S& s, const W& w) { s.reader.SetIdentifier(w[1]); }}},
        {"firmware", {2, 2, [](S& s, const W& w) { s.reader.firmware = ParseHexByte(w[1]); }}},
        {"touch", {2, 4, [](S& s, const W& w) { ObeyTouch(s.reader, w); }}},
        {"record",
         {5, 5,
          [](S& s, const W& w) {
              s.reader.AddRecord(
                  {ParseHexByte(w[1]), ParseHexByte(w[2]), ParseHexByte(w[3]), ParseHexByte(w[4])});
          }}},
        {"count", {2, 2, [](S& s, const W& w) { s.count = ParseNumber(w[1], -32768, 65535); }}},
        {"frames",
         {2, 2,
          [](S& s, const W& w) { s.frames = static_cast<size_t>(ParseNumber(w[1], 0, 65535)); }}},
        {"header",
         {6, 6,
          [](S& s, const W& w) {
              s.header = {ParseHexByte(w[1]), ParseHexByte(w[2]), ParseHexByte(w[3]),
                          ParseHexByte(w[4]), ParseHexByte(w[5])};
          }}},
        {"seed",
         {2, 2,
          [](S& s, const W& w) {
              s.seed = static_cast<unsigned long>(ParseNumber(w[1], 0, 2147483647));
          }}},
        {"insert", {1, 1, [](S& s, const W&) { s.inserted = true; }}},
        {"remove", {1, 1, [](S& s, const W&) { s.inserted = false; }}},
        {"abort-on-command", {1, 1, [](S& s, const W&) { s.abortOnCommand = true; }}},
        {"queue", {1, 1, [](S& s, const W&) { s.abortOnCommand = false; }}},
        {"fault",
         {1, kAnyWords,
          [](S& s, const W& w) {
              s.faults.Set({w.begin() + 1, w.end()});
          }}},
    };
    return directives;
}

} // namespace

void Scenario::Obey(const Words& line) {
    if (!ObeyDirective(ScenarioDirectives(), *this, line))
        faults.Set(line);
}

Scenario LoadScenario(const std::string& file) {
    std::ifstream stream(file);
    if (!stream)
        throw ParseError(file + ": cannot be read");
    Scenario scenario;
    long number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        try {
            if (const Words words = SplitWords(line); !words.empty())
                scenario.Obey(words);
        } catch (const ParseError& error) {
            throw ParseError(file + ":" + std::to_string(number) + ": " + error.what());
        }
    }
    if (stream.bad() || !stream.eof())
        throw ParseError(file + ": cannot be read");
    return scenario;
}

void ObeyTouch(Reader& reader, const Words& line) {
    std::string code;
    std::string date;
    std::string time;
    for (size_t i = 1; i < line.size(); ++i) {
        std::string& place = line[i].find('-') != std::string::npos   ? date
                             : line[i].find(':') != std::string::npos ? time
                                                                      : code;
        if (!place.empty())
            throw ParseError("'" + line[i] + "' is one argument too many");
        place = line[i];
    }
    if (date.empty() != time.empty())
        throw ParseError("a touch needs both date and time, or neither");
    reader.AddTouch(code, date.empty() ? MomentNow() : ParseMoment(date, time));
}

} // namespace docksim
