#include "SendQueue.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <system_error>
#include <unistd.h>

namespace docksim {

Micros MicrosNow() {
    return std::chrono::duration_cast<std::chrono::microseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

void SendQueue::Push(SendItem item) {
    m_items.push_back(std::move(item));
    if (m_items.size() == 1) {
        m_last = MicrosNow();
        ScheduleNext();
    }
}

bool SendQueue::DropStream() {
    const size_t before = m_items.size();
    const bool frontGoes = before > 0 && m_items.front().ofStream;
    std::erase_if(m_items, [](const SendItem& item) { return item.ofStream; });
    if (frontGoes) {
        m_sent = 0;
        m_last = MicrosNow();
        ScheduleNext();
    }
    return m_items.size() < before;
}

std::optional<Micros> SendQueue::DueAt() const {
    if (m_items.empty())
        return std::nullopt;
    return m_due;
}

void SendQueue::ScheduleNext() {
    if (m_items.empty())
        return;
    const SendItem& item = m_items.front();
    Micros pause = 0;
    if (m_sent == 0)
        pause = item.pauseBefore;
    else if (m_sent == item.cutAt)
        pause = item.cutPause;
    // A pause starts when the previous byte was really written, so it is never too short. The pace
    // counts from when that byte was due, so waking up late does not slow the line down.
    m_due = (pause > 0 ? MicrosNow() + pause : m_last) + item.byteTime;
}

std::vector<SendItem> SendQueue::Transmit(Micros now, int fd) {
    std::vector<SendItem> gone;
    m_full = false;
    while (!m_items.empty() && m_due <= now) {
        SendItem& item = m_items.front();
        size_t end = item.bytes.size();
        if (m_sent < item.cutAt)
            end = std::min(end, item.cutAt);
        if (item.singleByte)
            end = std::min(end, m_sent + 1);
        else if (item.byteTime > 0)
            end = std::min(end, m_sent + 1 + static_cast<size_t>((now - m_due) / item.byteTime));

        size_t written = 0;
        if (end > m_sent) {
            const ssize_t result = write(fd, item.bytes.data() + m_sent, end - m_sent);
            if (result < 0 && errno != EAGAIN && errno != EINTR)
                throw std::system_error(errno, std::generic_category(), "writing to the device");
            if (result <= 0) {
                m_full = true;
                return gone;
            }
            written = static_cast<size_t>(result);
        }
        m_last = m_due + static_cast<Micros>(written > 0 ? written - 1 : 0) * item.byteTime;
        m_sent += written;
        const bool single = item.singleByte;
        if (m_sent == item.bytes.size()) {
            const bool vanish = item.vanishAfter;
            gone.push_back(std::move(item));
            m_items.pop_front();
            m_sent = 0;
            if (vanish)
                return gone;
        }
        ScheduleNext();
        if (single)
            break; // let the station see this byte alone
    }
    return gone;
}

} // namespace docksim
