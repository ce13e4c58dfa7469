#include "Reader.h"

#include "TextParsing.h"

#include <chrono>
#include <cstdio>
#include <ctime>

namespace docksim {

namespace {

constexpr size_t kMostRecords = 65535;
constexpr uint8_t kMarker = 0xAA;
constexpr size_t kFirstFrameRecords = 58;
constexpr size_t kFurtherFrameRecords = 60;
constexpr size_t kMemoryPayload = 241;

constexpr std::chrono::sys_days kFirstDay = std::chrono::year{2000} / 1 / 1;

} // namespace

Moment ParseMoment(const std::string& date, const std::string& time) {
    if (date.size() != 10 || date[4] != '-' || date[7] != '-')
        throw ParseError("'" + date + "' is not a date YYYY-MM-DD");
    if (time.size() != 5 || time[2] != ':')
        throw ParseError("'" + time + "' is not a time HH:MM");
    const std::chrono::year_month_day day{
        std::chrono::year{static_cast<int>(ParseNumber(date.substr(0, 4), 2000, 2179))},
        std::chrono::month{static_cast<unsigned>(ParseNumber(date.substr(5, 2), 1, 12))},
        std::chrono::day{static_cast<unsigned>(ParseNumber(date.substr(8, 2), 1, 31))}};
    const long code = day.ok() ? (std::chrono::sys_days{day} - kFirstDay).count() : -1;
    if (code < 0 || code > 0xFFFF)
        throw ParseError("'" + date + "' is not a day from 2000-01-01 to 2179-06-06");
    return {static_cast<unsigned>(code),
            static_cast<unsigned>(ParseNumber(time.substr(0, 2), 0, 23)),
            static_cast<unsigned>(ParseNumber(time.substr(3, 2), 0, 59))};
}

Moment MomentNow() {
    const std::time_t now = std::time(nullptr);
    return ParseMoment(LocalTimeText("%Y-%m-%d", now), LocalTimeText("%H:%M", now));
}

std::string MomentText(const Moment& moment) {
    const std::chrono::year_month_day day{kFirstDay + std::chrono::days{moment.dateCode}};
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02u:%02u", static_cast<int>(day.year()),
                  static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()), moment.hour,
                  moment.minute);
    return text;
}

// The station shows the third wire byte first, then the fourth, the second and the first.
void Reader::SetIdentifier(const std::string& text) {
    const Bytes shown = ParseHexText(text, 4);
    m_identifier = {shown[3], shown[2], shown[0], shown[1]};
}

std::string Reader::Identifier() const {
    std::string text;
    for (const size_t i : {2, 3, 1, 0})
        text += HexText({m_identifier[i]});
    return text;
}

void Reader::AddTouch(const std::string& code, const Moment& moment) {
    const std::array<uint8_t, 3> button = ParseButtonCode(code);
    const Record touch = {button[0], button[1], button[2], static_cast<uint8_t>(moment.minute)};
    if (touch == Record{})
        throw ParseError("a touch of 000000 at minute 0 would be the end mark of the memory");
    const Record marker = {static_cast<uint8_t>(moment.hour), static_cast<uint8_t>(moment.dateCode),
                           static_cast<uint8_t>(moment.dateCode >> 8), kMarker};
    bool markerNeeded = true;
    for (auto it = m_records.rbegin(); it != m_records.rend(); ++it) {
        if ((*it)[3] == kMarker) {
            markerNeeded = *it != marker;
            break;
        }
    }
    if (m_records.size() + (markerNeeded ? 2 : 1) > kMostRecords)
        throw ParseError("the reader's memory is full");
    if (markerNeeded)
        m_records.push_back(marker);
    m_records.push_back(touch);
}

void Reader::AddRecord(const Record& record) {
    if (m_records.size() == kMostRecords)
        throw ParseError("the reader's memory is full");
    m_records.push_back(record);
}

size_t Reader::TouchCount() const {
    size_t count = 0;
    for (const Record& record : m_records) {
        if (record == Record{})
            break;
        if (record[3] != kMarker)
            ++count;
    }
    return count;
}

std::vector<Bytes> Reader::MemoryPayloads(long count, size_t frames) const {
    std::vector<Bytes> payloads;
    size_t next = 0;
    for (size_t k = 1; k <= frames; ++k) {
        Bytes payload = {kReplyMemory};
        if (k == 1) {
            payload.push_back(static_cast<uint8_t>(count));
            payload.push_back(static_cast<uint8_t>(count >> 8));
            payload.insert(payload.end(), m_identifier.begin(), m_identifier.end());
            payload.push_back(firmware);
            payload.push_back(0); // unused
        }
        const size_t room = k == 1 ? kFirstFrameRecords : kFurtherFrameRecords;
        for (size_t i = 0; i < room && next < m_records.size(); ++i, ++next)
            payload.insert(payload.end(), m_records[next].begin(), m_records[next].end());
        payload.resize(kMemoryPayload);
        payloads.push_back(std::move(payload));
    }
    return payloads;
}

size_t FramesForCount(long count) {
    if (count <= static_cast<long>(kFirstFrameRecords))
        return 1;
    const size_t beyondFirst = static_cast<size_t>(count) - kFirstFrameRecords;
    return 1 + (beyondFirst + kFurtherFrameRecords - 1) / kFurtherFrameRecords;
}

std::array<uint8_t, 3> ParseButtonCode(const std::string& code) {
    const Bytes shown = ParseHexText(code, 3);
    return {shown[2], shown[1], shown[0]};
}

} // namespace docksim
