#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

// Reading of scenario lines and of commands typed at run time.
namespace docksim {

// A line that cannot be obeyed. The text says what is wrong with it, without file or line number.
struct ParseError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Words = std::vector<std::string>;

// The words of a line; from a '#' on, the line is a comment.
Words SplitWords(const std::string& line);

// A decimal number from least to most, both allowed. Throws ParseError.
long ParseNumber(const std::string& word, long least, long most);

// One byte in one or two hexadecimal digits. Throws ParseError.
uint8_t ParseHexByte(const std::string& word);

// Bytes written as pairs of hexadecimal digits without blanks, exactly `count` of them, in the
// order of the text. Throws ParseError.
std::vector<uint8_t> ParseHexText(const std::string& word, size_t count);

// "0A FF": two upper-case digits a byte, one blank between bytes.
std::string HexText(const std::vector<uint8_t>& bytes);

// Throws ParseError unless the line has from `least` to `most` words, its directive counted.
void NeedWords(const Words& words, size_t least, size_t most);

} // namespace docksim
