#include "PseudoTerminal.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <system_error>
#include <termios.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/inotify.h>
#endif

namespace docksim {

namespace {

[[noreturn]] void Fail(const std::string& what) {
    throw std::system_error(errno, std::generic_category(), what);
}

bool IsLinkTo(const std::string& path, const std::string& target) {
    std::error_code error;
    return std::filesystem::read_symlink(path, error) == target;
}

} // namespace

PseudoTerminal::~PseudoTerminal() { Close(); }

void PseudoTerminal::Open() {
    m_master = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0)
        Fail("pseudo-terminal");
    const char* name = ptsname(m_master);
    if (name == nullptr)
        Fail("pseudo-terminal");
    m_path = name;
    m_slave = open(name, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    termios settings{};
    if (m_slave < 0 || tcgetattr(m_slave, &settings) != 0)
        Fail(m_path);
    cfmakeraw(&settings);
    if (tcsetattr(m_slave, TCSANOW, &settings) != 0)
        Fail(m_path);
#ifdef __linux__
    m_watch = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (m_watch >= 0 && inotify_add_watch(m_watch, name, IN_OPEN | IN_CLOSE) < 0) {
        close(m_watch);
        m_watch = -1;
    }
#endif
}

void PseudoTerminal::Link(const std::string& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) == 0 && !S_ISLNK(status.st_mode)) {
        errno = EEXIST;
        Fail(path);
    }
    // Renamed into place, so that the link is valid at every moment.
    const std::string fresh = path + "." + std::to_string(getpid());
    if (symlink(m_path.c_str(), fresh.c_str()) != 0)
        Fail(path);
    if (rename(fresh.c_str(), path.c_str()) != 0) {
        const int error = errno;
        unlink(fresh.c_str());
        errno = error;
        Fail(path);
    }
    m_link = path;
}

bool PseudoTerminal::NoticeStations(bool heard) {
    bool came = false;
#ifdef __linux__
    bool noticed = false;
    alignas(inotify_event) std::array<char, 4096> buffer{};
    ssize_t length = 0;
    while (m_watch >= 0 && (length = read(m_watch, buffer.data(), buffer.size())) > 0) {
        noticed = true;
        for (ssize_t at = 0; at < length;) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            at += static_cast<ssize_t>(sizeof event + event.len);
            if ((event.mask & IN_OPEN) != 0)
                came = m_holders++ == 0 || came;
            else if ((event.mask & IN_CLOSE) != 0 && m_holders > 0 && --m_holders == 0)
                ioctl(m_slave, TIOCNXCL); // a killed station may have left the device locked
        }
    }
    // Two stations that open the device at the same moment may be reported as one. A station that
    // sends something has it open.
    if (heard && !noticed && m_holders == 0)
        m_holders = 1;
#endif
    DropUnread();
    return came;
}

void PseudoTerminal::DropUnread() {
    if (Held())
        return;
    // First what is still on its way, then what has arrived.
    tcflush(m_master, TCOFLUSH);
    tcflush(m_slave, TCIFLUSH);
    std::array<char, 4096> buffer{};
    while (read(m_slave, buffer.data(), buffer.size()) > 0) {
    }
}

Bytes PseudoTerminal::Read() {
    Bytes bytes(4096);
    const ssize_t length = read(m_master, bytes.data(), bytes.size());
    bytes.resize(length > 0 ? static_cast<size_t>(length) : 0);
    return bytes;
}

void PseudoTerminal::Vanish() {
    // Closing the line discards what the station has not read yet. The queue must be empty several
    // times, because it does not count the bytes that are still on their way into it.
    int timesEmpty = 0;
    for (int i = 0; Held() && i < 100 && timesEmpty < 4; ++i) {
        usleep(5000);
        int unread = 0;
        timesEmpty = ioctl(m_slave, FIONREAD, &unread) == 0 && unread == 0 ? timesEmpty + 1 : 0;
    }
    Close();
}

void PseudoTerminal::Close() {
    if (!m_link.empty() && IsLinkTo(m_link, m_path))
        unlink(m_link.c_str());
    m_link.clear();
    for (int* descriptor : {&m_watch, &m_slave, &m_master}) {
        if (*descriptor >= 0)
            close(*descriptor);
        *descriptor = -1;
    }
}

} // namespace docksim
