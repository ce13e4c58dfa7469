#pragma once

#include "TextParsing.h"

#include <functional>
#include <limits>
#include <map>
#include <string>

namespace docksim {

// What the lines that begin with one word do to the target.
template <typename Target>
struct Directive {
    // How many words the line may have, including the first.
    size_t leastWords;
    size_t mostWords;
    std::function<void(Target&, const Words&)> obey;
};

inline constexpr size_t kAnyWords = std::numeric_limits<size_t>::max();

template <typename Target>
using Directives = std::map<std::string, Directive<Target>>;

// Obeys a line that is not empty. Returns false if no directive has its first word. Throws
// ParseError.
template <typename Target>
bool ObeyDirective(const Directives<Target>& directives, Target& target, const Words& line) {
    const auto it = directives.find(line.front());
    if (it == directives.end())
        return false;
    NeedWords(line, it->second.leastWords, it->second.mostWords);
    it->second.obey(target, line);
    return true;
}

} // namespace docksim
