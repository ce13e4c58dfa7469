#include "WireLog.h"

#include "TextParsing.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <iostream>

namespace docksim {

bool WireLog::Open(const std::string& file) {
    m_on = !file.empty();
    if (file.empty() || file == "-")
        return true;
    m_file.open(file, std::ios::trunc);
    return m_file.is_open();
}

void WireLog::Received(const Bytes& bytes, const std::string& name) {
    WriteLine("RX " + HexText(bytes) + "  " + name);
}

void WireLog::Sent(const Bytes& bytes, const std::string& name) {
    WriteLine("TX " + HexText(bytes) + "  " + name);
}

void WireLog::Remark(const std::string& text) { WriteLine("-- " + text); }

void WireLog::WriteLine(const std::string& text) {
    if (!m_on)
        return;
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    const auto ms =
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() %
        1000;
    char fraction[16];
    std::snprintf(fraction, sizeof fraction, ".%03d ", static_cast<int>(ms));
    std::ostream& out = m_file.is_open() ? m_file : std::cerr;
    out << LocalTimeText("%Y-%m-%d %H:%M:%S", seconds) << fraction << text << '\n' << std::flush;
}

} // namespace docksim
