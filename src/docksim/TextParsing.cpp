#include "TextParsing.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <sstream>

namespace docksim {

Words SplitWords(const std::string& line) {
    std::istringstream stream(line.substr(0, line.find('#')));
    Words words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

long ParseNumber(const std::string& word, long least, long most) {
    long value = 0;
    const char* end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || value < least || value > most)
        throw ParseError("'" + word + "' is not a number from " + std::to_string(least) + " to " +
                         std::to_string(most));
    return value;
}

uint8_t ParseHexByte(const std::string& word) {
    unsigned value = 0;
    const char* end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, value, 16);
    if (result.ec != std::errc() || result.ptr != end || word.size() > 2)
        throw ParseError("'" + word + "' is not a hexadecimal byte");
    return static_cast<uint8_t>(value);
}

std::vector<uint8_t> ParseHexText(const std::string& word, size_t count) {
    const bool allHex =
        std::all_of(word.begin(), word.end(), [](unsigned char c) { return std::isxdigit(c); });
    if (!allHex || word.size() != 2 * count)
        throw ParseError("'" + word + "' must be " + std::to_string(2 * count) +
                         " hexadecimal digits");
    std::vector<uint8_t> bytes;
    for (size_t i = 0; i < count; ++i)
        bytes.push_back(ParseHexByte(word.substr(2 * i, 2)));
    return bytes;
}

std::string HexText(const std::vector<uint8_t>& bytes) {
    static const char digits[] = "0123456789ABCDEF";
    std::string text;
    for (const uint8_t byte : bytes) {
        if (!text.empty())
            text += ' ';
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

std::string LocalTimeText(const char* format, std::time_t time) {
    std::tm local{};
    localtime_r(&time, &local);
    char text[64];
    return {text, std::strftime(text, sizeof text, format, &local)};
}

void NeedWords(const Words& words, size_t least, size_t most) {
    if (words.size() < least)
        throw ParseError("'" + words.front() + "' needs more arguments");
    if (words.size() > most)
        throw ParseError("'" + words.front() + "' has too many arguments");
}

} // namespace docksim
