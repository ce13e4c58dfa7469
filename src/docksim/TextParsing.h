#pragma once

#include <cstdint>
#include <ctime>
#include <stdexcept>
#include <string>
#include <vector>

// Reads scenario lines and the lines typed at run time, and writes bytes and times.
namespace docksim {

// A line that cannot be carried out. The text says what is wrong, without file or line number.
struct ParseError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Words = std::vector<std::string>;

// The words of a line up to a '#', which begins a comment.
Words SplitWords(const std::string& line);

// A decimal number from `least` to `most`, both included. Throws ParseError.
long ParseNumber(const std::string& word, long least, long most);

// One byte, as one or two hexadecimal digits. Throws ParseError.
uint8_t ParseHexByte(const std::string& word);

// Exactly `count` bytes, as pairs of hexadecimal digits without blanks. Throws ParseError.
std::vector<uint8_t> ParseHexText(const std::string& word, size_t count);

// Such as "0A FF": two upper-case digits for each byte, one blank between bytes.
std::string HexText(const std::vector<uint8_t>& bytes);

// The local time, in the format of strftime.
std::string LocalTimeText(const char* format, std::time_t time);

// Throws ParseError unless the line has from `least` to `most` words, including its directive.
void NeedWords(const Words& words, size_t least, size_t most);

} // namespace docksim
