// Drives the built docksim over its pseudo-terminal as a station would, with frames made by the
// few lines below and not by docksim's own code.

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <string>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <vector>

namespace {

using Bytes = std::vector<uint8_t>;

int gFailures = 0;
std::string gProgram;
std::string gFolder;

#define CHECK(condition, what)                                                                     \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            ++gFailures;                                                                           \
            std::fprintf(stderr, "line %d: %s: %s\n", __LINE__, std::string(what).c_str(),         \
                         #condition);                                                              \
        }                                                                                          \
    } while (false)

std::string Hex(const Bytes& bytes) {
    std::string text;
    char digits[4];
    for (size_t i = 0; i < bytes.size() && i < 40; ++i) {
        std::snprintf(digits, sizeof digits, "%02X ", bytes[i]);
        text += digits;
    }
    return text + "(" + std::to_string(bytes.size()) + ")";
}

void CheckBytes(int line, const Bytes& got, const Bytes& wanted, const std::string& what) {
    if (got == wanted)
        return;
    ++gFailures;
    std::fprintf(stderr, "line %d: %s: got %s wanted %s\n", line, what.c_str(), Hex(got).c_str(),
                 Hex(wanted).c_str());
}

#define CHECK_BYTES(got, wanted, what) CheckBytes(__LINE__, got, wanted, what)

Bytes Frame(const Bytes& payload) {
    Bytes frame = {0xFF, 0xFF, 0xFF, 'U', 3, 1, 3, 0x51, 0, static_cast<uint8_t>(payload.size())};
    frame.insert(frame.end(), payload.begin(), payload.end());
    unsigned sum = 0;
    for (size_t i = 4; i < frame.size(); ++i)
        sum += frame[i];
    frame.push_back(static_cast<uint8_t>(sum & 0xFF));
    return frame;
}

Bytes operator+(Bytes left, const Bytes& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

const Bytes kDetect = {0xFF, 0xFF, 0xFF, 0x55, 0x03, 0x01, 0x03, 0x51, 0x00, 0x01, 0x11, 0x6A};
const Bytes kDetected = Frame({0x80});
const Bytes kRead = Frame({0x72, 0x88, 0x88, 0, 0, 0});
const Bytes kErase = Frame({0x72, 0x88, 0x88, 0xFF});
const Bytes kErased = Frame({0xF3, 0});
const Bytes kOptions = Frame({0x13, 0x88, 0x88, 0x0B});
const Bytes kClock = Frame({0x12, 0x88, 0x88, 23, 59, 0x22, 0x7A}); // 2024-03-01
const Bytes kNoReader = Frame({0xF3, 255, 255, 255, 255, 255, 255, 255, 255});
const Bytes kTransferFault = Frame({0xF3, 1, 1, 1, 1, 1, 1, 1, 1});

// The stream of a reader 33442211 with firmware 06 that holds the records.
Bytes MemoryStream(const Bytes& records, size_t frames, unsigned count) {
    Bytes stream;
    size_t next = 0;
    for (size_t k = 0; k < frames; ++k) {
        Bytes payload = {0xF3};
        if (k == 0)
            payload = {0xF3,
                       static_cast<uint8_t>(count),
                       static_cast<uint8_t>(count >> 8),
                       0x11,
                       0x22,
                       0x33,
                       0x44,
                       0x06,
                       0x00};
        while (payload.size() < 241)
            payload.push_back(next < records.size() ? records[next++] : uint8_t{0});
        stream = stream + Frame(payload);
    }
    return stream;
}

long NowMs() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

// A running docksim and the station's end of its line.
class Sim {
public:
    explicit Sim(const std::string& scenario, const std::vector<std::string>& more = {}) {
        const std::string file = gFolder + "/scenario";
        std::ofstream(file) << scenario;
        std::vector<std::string> arguments = {gProgram, "--scenario", file};
        arguments.insert(arguments.end(), more.begin(), more.end());
        int input[2];
        int output[2];
        int error[2];
        if (pipe(input) != 0 || pipe(output) != 0 || pipe(error) != 0)
            std::abort();
        m_pid = fork();
        if (m_pid == 0) {
            dup2(input[0], 0);
            dup2(output[1], 1);
            dup2(error[1], 2);
            for (int fd = 3; fd < 64; ++fd)
                close(fd);
            std::vector<char*> argv;
            argv.reserve(arguments.size() + 1);
            for (std::string& argument : arguments)
                argv.push_back(argument.data());
            argv.push_back(nullptr);
            execv(gProgram.c_str(), argv.data());
            _exit(127);
        }
        close(input[0]);
        close(output[1]);
        close(error[1]);
        m_input = input[1];
        m_output = output[0];
        m_error = error[0];
        m_path = ReadLine(m_output);
        OpenLine();
    }
    ~Sim() {
        if (m_pid > 0) {
            kill(m_pid, SIGKILL);
            waitpid(m_pid, nullptr, 0);
        }
        for (const int fd : {m_input, m_output, m_error, m_line})
            if (fd >= 0)
                close(fd);
    }
    Sim(const Sim&) = delete;
    Sim& operator=(const Sim&) = delete;

    void OpenLine() {
        m_line = open(m_path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
        termios settings{};
        if (m_line >= 0 && tcgetattr(m_line, &settings) == 0) {
            cfmakeraw(&settings);
            tcsetattr(m_line, TCSANOW, &settings);
        }
    }
    void CloseLine() {
        close(m_line);
        m_line = -1;
    }
    void CloseInput() {
        close(m_input);
        m_input = -1;
    }
    void Send(const Bytes& bytes) {
        if (write(m_line, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
            CHECK(false, "sending to " + m_path);
    }
    // What one read takes; nothing when the time is over or the device is gone.
    Bytes ReadOnce(int timeoutMs) {
        pollfd fd = {m_line, POLLIN, 0};
        Bytes bytes(4096);
        ssize_t length = 0;
        if (poll(&fd, 1, timeoutMs) > 0)
            length = read(m_line, bytes.data(), bytes.size());
        bytes.resize(length > 0 ? static_cast<size_t>(length) : 0);
        return bytes;
    }
    // Reads as many bytes as are wanted, and what may come too many within 60 ms.
    Bytes Receive(size_t wanted) {
        Bytes all;
        const long end = NowMs() + 5000;
        for (;;) {
            const Bytes some = ReadOnce(all.size() < wanted ? 1000 : 60);
            all = std::move(all) + some;
            if (some.empty() && (all.size() >= wanted || NowMs() > end || Gone()))
                return all;
        }
    }
    Bytes Ask(const Bytes& command, size_t wanted) {
        Send(command);
        return Receive(wanted);
    }
    bool Gone() const {
        pollfd fd = {m_line, POLLIN, 0};
        return poll(&fd, 1, 0) > 0 && (fd.revents & POLLHUP) != 0;
    }
    // Lines are in force when this returns, for the state is told behind them.
    std::string Type(const std::string& lines) {
        const std::string text = lines + "\nstate\n";
        if (write(m_input, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
            CHECK(false, "typing " + lines);
        return ReadLine(m_output);
    }
    std::string State() { return Type(""); }
    std::string ErrorLine() { return ReadLine(m_error); }
    const std::string& Path() const { return m_path; }
    void Signal(int number) const { kill(m_pid, number); }
    // -1 when it did not end by itself.
    int ExitCode() {
        int status = 0;
        pid_t ended = 0;
        for (int i = 0; i < 500 && ended == 0; ++i, usleep(ended == 0 ? 10'000 : 0))
            ended = waitpid(m_pid, &status, WNOHANG);
        if (ended != m_pid)
            return -1;
        m_pid = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    static std::string ReadLine(int fd) {
        std::string line;
        pollfd ready = {fd, POLLIN, 0};
        for (char c = 0; poll(&ready, 1, 5000) > 0 && read(fd, &c, 1) == 1 && c != '\n';)
            line += c;
        return line;
    }

    pid_t m_pid = -1;
    int m_input = -1;
    int m_output = -1;
    int m_error = -1;
    int m_line = -1;
    std::string m_path;
};

const std::string kReader = "reader 33442211\n";

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

std::string RecordLines(size_t count) {
    std::string lines;
    for (size_t i = 0; i < count; ++i)
        lines += "record 0" + std::to_string(i % 10) + " 22 33 1" + std::to_string(i % 7) + "\n";
    return lines;
}

Bytes RecordBytes(size_t count) {
    Bytes bytes;
    for (size_t i = 0; i < count; ++i)
        bytes = std::move(bytes) +
                Bytes{static_cast<uint8_t>(i % 10), 0x22, 0x33, static_cast<uint8_t>(0x10 + i % 7)};
    return bytes;
}

void TestCommands() {
    const Bytes crlf = {13, 10};
    const struct {
        const char* what;
        Bytes sent;
        Bytes wanted;
    } cases[] = {
        {"detect", kDetect, {0xFF, 0xFF, 0xFF, 0x55, 3, 1, 3, 0x51, 0, 1, 0x80, 0xD9}},
        {"CR LF around", crlf + kDetect + crlf + kDetect, kDetected + kDetected},
        {"FF before the preamble", Bytes{0xFF, 0xFF} + kDetect, kDetected},
        {"clock", kClock, Frame({0x93, 0})},
        {"clock at 24:00", Frame({0x12, 0x88, 0x88, 24, 0, 0, 0}), Frame({0x93, 2})},
        {"options", kOptions, Frame({0x80, 0})},
        {"option of no meaning", Frame({0x13, 0x88, 0x88, 0x10}), Frame({0x80, 2})},
        {"wrong PC code", Frame({0x13, 0x88, 0x87, 0x01}), {}},
        {"no such command", Frame({0x99}), {}},
        {"wrong checksum", {255, 255, 255, 0x55, 3, 1, 3, 0x51, 0, 1, 0x11, 0x6B}, {}},
        {"wrong header, right sum", {255, 255, 255, 0x55, 1, 3, 3, 0x51, 0, 1, 0x11, 0x6A}, {}},
        {"a good frame inside a bad one",
         Bytes{255, 255, 255, 0x55, 3, 1, 3, 0x51, 0, 7, 0x12} + kDetect, kDetected},
        {"a frame too long for a command",
         Bytes{255, 255, 255, 0x55, 3, 1, 3, 0x51, 0, 200} + kDetect, kDetected},
    };
    Sim sim(kReader);
    for (const auto& c : cases)
        CHECK_BYTES(sim.Ask(c.sent, c.wanted.size()), c.wanted, c.what);
    CHECK(Has(sim.State(), "\"clock\":\"2024-03-01T23:59\",\"options\":11,\"reads\":0"),
          sim.State());

    // A frame may come in pieces, but not with half a second between them.
    const Bytes head(kDetect.begin(), kDetect.begin() + 9);
    const Bytes tail(kDetect.begin() + 9, kDetect.end());
    sim.Send(head);
    usleep(100'000);
    CHECK_BYTES(sim.Ask(tail, 12), kDetected, "two pieces");
    sim.Send(head);
    usleep(700'000);
    CHECK_BYTES(sim.Ask(tail, 0), Bytes{}, "a piece that came too late");
    sim.Ask(Frame({0x12, 0x88, 0x88, 0, 0, 0, 1}), 13);
    CHECK(Has(sim.State(), "\"clock\":\"2000-01-02T00:00\""), sim.State());
}

void TestRecords() {
    const struct {
        const char* what;
        std::string lines;
        Bytes records;
        int touchCount;
    } cases[] = {
        {"marker example",
         "touch 2000-01-02 15:42 001234",
         {0x0F, 0x01, 0x00, 0xAA, 0x34, 0x12, 0x00, 0x2A},
         1},
        {"same hour, next hour, next day",
         "touch abcdef 2024-03-01 08:00\ntouch 2024-03-01 08:58 000001\n"
         "touch 2024-03-01 08:59 000001\n"
         "touch 2024-03-01 09:00 000001\ntouch 2024-03-02 09:00 000001",
         {8, 0x7A, 0x22, 0xAA, 0xEF, 0xCD, 0xAB, 0, 1, 0,    0,    58,   1, 0, 0, 59,
          9, 0x7A, 0x22, 0xAA, 1,    0,    0,    0, 9, 0x7B, 0x22, 0xAA, 1, 0, 0, 0},
         5},
        {"last day of the calendar",
         "touch 2179-06-06 23:01 000000",
         {23, 0xFF, 0xFF, 0xAA, 0, 0, 0, 1},
         1},
        {"raw records",
         "record 1e FF 00 AA\nrecord 1 2 3 3C\nrecord 0 0 0 0\nrecord 5 5 5 5",
         {0x1E, 0xFF, 0, 0xAA, 1, 2, 3, 60, 0, 0, 0, 0, 5, 5, 5, 5},
         1},
        {"a raw marker counts",
         "record 08 7A 22 AA\ntouch 2024-03-01 08:07 010203",
         {8, 0x7A, 0x22, 0xAA, 3, 2, 1, 7},
         1},
    };
    for (const auto& c : cases) {
        Sim sim(kReader + c.lines);
        const unsigned count = static_cast<unsigned>(c.records.size() / 4);
        CHECK_BYTES(sim.Ask(kRead, 252), MemoryStream(c.records, 1, count), c.what);
        CHECK(Has(sim.State(), "\"touches\":" + std::to_string(c.touchCount) +
                                   ",\"records\":" + std::to_string(count)),
              sim.State());
    }

    Sim other("reader A1B2C3D4\nfirmware 1F\nheader 01 02 03 04 FE");
    const Bytes got = other.Ask(kRead, 252);
    CHECK_BYTES(Bytes(got.begin(), got.begin() + std::min<long>(19, static_cast<long>(got.size()))),
                (Bytes{255, 255, 255, 0x55, 1, 2, 3, 4, 0xFE, 241, 0xF3, 0, 0, 0xD4, 0xC3, 0xA1,
                       0xB2, 0x1F, 0}),
                "identifier, firmware and header");
    const unsigned sum = 0xFE + 10 + 241 + 0xF3 + 0xD4 + 0xC3 + 0xA1 + 0xB2 + 0x1F;
    CHECK(!got.empty() && got.back() == (sum & 0xFF), Hex(got));
}

void TestFrameCounts() {
    const struct {
        size_t records;
        std::string lines;
        unsigned count;
        size_t frames;
    } cases[] = {
        {0, "", 0, 1},
        {58, "", 58, 1},
        {59, "", 59, 2},
        {118, "", 118, 2},
        {119, "", 119, 3},
        {65535, "", 65535, 1093},
        {3, "count -1", 0xFFFF, 1},
        {3, "count 119", 119, 3},
        {119, "count 58", 58, 1},
        {119, "count 58\nframes 3", 58, 3},
        {3, "frames 0", 3, 0},
    };
    for (const auto& c : cases) {
        Sim sim(kReader + RecordLines(c.records) + c.lines);
        const Bytes wanted = MemoryStream(RecordBytes(c.records), c.frames, c.count);
        CHECK_BYTES(sim.Ask(kRead, wanted.size()), wanted, std::to_string(c.records) + c.lines);
    }
}

void TestFaults() {
    const Bytes good = MemoryStream(RecordBytes(119), 3, 119);
    const auto first = [&good](size_t n) {
        return Bytes(good.begin(), good.begin() + static_cast<long>(n));
    };
    const auto rest = [&good](size_t n) {
        return Bytes(good.begin() + static_cast<long>(n), good.end());
    };
    const auto flipped = [&good](size_t at, uint8_t mask) {
        Bytes bytes = good;
        bytes[at] ^= mask;
        return bytes;
    };
    const struct {
        std::string fault;
        Bytes command;
        Bytes wanted;
    } cases[] = {
        {"silent", kDetect + kRead, {}},
        {"silent read", kRead + kDetect, kDetected},
        {"silent erase 1", kErase + kErase, kErased},
        {"refuse erase 2", kErase + kErase + kErase, Frame({0xF3, 1}) + Frame({0xF3, 1}) + kErased},
        {"refuse clock 1 7F", kClock + kClock, Frame({0x93, 0x7F}) + Frame({0x93, 0})},
        {"refuse options 1", kOptions + kOptions, Frame({0x80, 1}) + Frame({0x80, 0})},
        {"no-reader", kRead, kNoReader},
        {"no-reader 2", kRead, first(504) + kNoReader},
        {"transfer-fault", kRead, kTransferFault},
        {"transfer-fault 3", kRead, good + kTransferFault},
        {"stop-after 0", kRead + kDetect, kDetected},
        {"stop-after 2", kRead, first(504)},
        {"drop-byte 0", kRead, rest(1)},
        {"drop-byte 252", kRead, first(252) + rest(253)},
        {"drop-bytes 250 4", kRead, first(250) + rest(254)},
        {"damage-byte 503", kRead, flipped(503, 0xFF)},
        {"damage-byte 13 01", kRead, flipped(13, 1)},
        {"wrong-code 42", kDetect, Frame({0x42, 0}) + kDetected},
        {"wrong-code 42 erase", kDetect + kErase, kDetected + Frame({0x42, 0}) + kErased},
        {"single-byte", kRead, good},
        {"cut 30", kRead, good},
        {"gap 20", kRead, good},
        {"pace 115200", kRead, good},
    };
    for (const auto& c : cases) {
        Sim sim(kReader + RecordLines(119) + c.fault); // without the word "fault" ...
        CHECK_BYTES(sim.Ask(c.command, c.wanted.size()), c.wanted, c.fault);
        sim.Type("load " + gFolder + "/scenario\nfault none");
        CHECK_BYTES(sim.Ask(kRead, good.size()), good, "none after " + c.fault);
        sim.Type("fault " + c.fault); // ... and with it
        CHECK_BYTES(sim.Ask(c.command, c.wanted.size()), c.wanted, "typed " + c.fault);
    }

    // A wrong checksum is a wrong last byte, whatever it is, of that frame alone.
    Sim sim(kReader + RecordLines(119) + "checksum 2\nchecksum detect");
    Bytes got = sim.Ask(kRead, good.size());
    CHECK(got.size() == good.size() && got[503] != good[503], Hex(got));
    if (got.size() == good.size())
        got[503] = good[503];
    CHECK_BYTES(got, good, "checksum 2");
    got = sim.Ask(kDetect, 12);
    CHECK(got.size() == 12 && got.back() != 0xD9, Hex(got));

    // Noise stands before its frame, and is the same for the same seed only.
    const auto noisy = [](const std::string& seed) {
        Sim other(kReader + RecordLines(119) + "noise 40 2\nnoise 5 erase\nseed " + seed);
        const Bytes memory = other.Ask(kRead, 3 * 252 + 40);
        return memory + other.Ask(kErase, 18);
    };
    const Bytes noise = noisy("7");
    CHECK(noise.size() == 3 * 252 + 40 + 18, Hex(noise));
    if (noise.size() == 3 * 252 + 40 + 18) {
        CHECK_BYTES(Bytes(noise.begin(), noise.begin() + 252), first(252), "before the noise");
        CHECK_BYTES(Bytes(noise.begin() + 292, noise.end() - 18), rest(252), "after the noise");
        CHECK_BYTES(Bytes(noise.end() - 13, noise.end()), kErased, "after the erase noise");
    }
    CHECK(noise == noisy("7") && noise != noisy("8"), "noise by seed");
}

void TestReader() {
    const std::string link = gFolder + "/link";
    const std::string log = gFolder + "/log";
    CHECK(symlink("/nowhere", link.c_str()) == 0, "old link");
    Sim sim(kReader + "touch 2024-03-01 08:00 000001\ncount 59", {"--link", link, "--log", log});
    char target[256] = {};
    CHECK(readlink(link.c_str(), target, sizeof target - 1) > 0 && target == sim.Path(), target);

    CHECK_BYTES(sim.Ask(kErase, 13), kErased, "erase"); // and with it the count
    CHECK_BYTES(sim.Ask(kRead, 252), MemoryStream({}, 1, 0), "erased");
    CHECK(sim.State() == "{\"reader\":\"33442211\",\"inserted\":true,\"touches\":0,\"records\":0,"
                         "\"erased\":1,\"clock\":null,\"options\":null,\"reads\":1,"
                         "\"frames_sent\":2}",
          sim.State());
    sim.Type("touch 0A0B0C 2024-03-01 08:05");
    CHECK_BYTES(sim.Ask(kRead, 252), MemoryStream({8, 0x7A, 0x22, 0xAA, 0x0C, 0x0B, 0x0A, 5}, 1, 2),
                "touched again");
    CHECK(Has(sim.Type("touch 0A0B0C"), "\"touches\":2,\"records\":4"), "touched now");

    sim.Type("button 0a0b0c");
    CHECK_BYTES(sim.Receive(16), Frame({0x24, 0, 0x0C, 0x0B, 0x0A}), "button");
    CHECK(Has(sim.Type("remove"), "\"inserted\":false"), "removed");
    CHECK_BYTES(sim.Ask(kRead, kNoReader.size()), kNoReader, "removed");
    CHECK_BYTES(sim.Ask(kErase, 13), Frame({0xF3, 0xFF}), "removed");
    CHECK_BYTES(sim.Ask(kDetect, 12), kDetected, "the station is there without a reader");
    const char* const errors[][2] = {
        {"button 0A0B0C", "no reader"},
        {"frobnicate", "frobnicate"},
        {"button xyz", "xyz"},
        {"touch 1", "'1'"},
        {"fault frob", "frob"},
        {"fault", "missing"},
        {"log maybe", "maybe"},
        {"load /nowhere", "/nowhere"},
        {"noise 0", "'0'"},
    };
    for (const auto& [line, part] : errors) {
        sim.Type(line);
        CHECK(Has(sim.ErrorLine(), part), line);
    }
    CHECK(Has(sim.Type("insert"), "\"inserted\":true,\"touches\":2,\"records\":4,\"erased\":1"),
          sim.State());
    sim.Type("noise 33");
    CHECK(sim.Receive(33).size() == 33, "noise");

    // What is sent while the device is closed is not found by the station that opens it next.
    sim.CloseLine();
    usleep(50'000);
    sim.Type("button 0A0B0C");
    usleep(50'000);
    sim.OpenLine();
    CHECK_BYTES(sim.Ask(kDetect, 12), kDetected, "reopened");

    sim.CloseInput();
    CHECK_BYTES(sim.Ask(kDetect, 12), kDetected, "standard input closed");
    sim.Signal(SIGTERM);
    CHECK(sim.ExitCode() == 0, "SIGTERM");
    CHECK(readlink(link.c_str(), target, sizeof target) < 0 && errno == ENOENT, "link removed");

    std::ifstream stream(log);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    for (const char* part : {" RX FF FF FF 55 03 01 03 51 00 01 11 6A  CmdDetect\n",
                             " RX FF FF FF 55 03 01 03 51 00 "
                             "04 72 88 88 FF DD  CmdEraseMemory\n",
                             " TX FF FF FF 55 03 01 03 51 00 02 F3 00 4D  "
                             "reply F3 status 00\n",
                             "memory frame 1 of 1", "button", "no reader in the station"})
        CHECK(Has(text, part), part);
}

void TestVanish() {
    const Bytes good = MemoryStream(RecordBytes(119), 3, 119);
    const struct {
        const char* fault;
        size_t sent;
    } cases[] = {{"vanish-after-frame 0", 0},
                 {"vanish-after-frame 2", 504},
                 {"vanish-after-bytes 0", 0},
                 {"vanish-after-bytes 300", 300},
                 {"vanish-after-bytes 504", 504}};
    for (const auto& c : cases) {
        Sim sim(kReader + RecordLines(119) + c.fault);
        const Bytes wanted(good.begin(), good.begin() + static_cast<long>(c.sent));
        sim.Send(kRead);
        usleep(50'000); // a slow station still finds what was sent before
        CHECK_BYTES(sim.Receive(wanted.size()), wanted, c.fault);
        CHECK(sim.ExitCode() == 0, c.fault);
        CHECK(sim.Gone(), c.fault);
    }
}

void TestMistakes() {
    const struct {
        const char* scenario;
        const char* part;
    } cases[] = {
        {"reader 33442211\n\nfrob", ":3: unknown directive 'frob'"},
        {"reader 3344221", ":1: "},
        {"touch 2023-02-29 08:00 000001", ":1: '2023-02-29'"},
        {"touch 1999-12-31 08:00 000001", ":1: "},
        {"touch 2179-06-07 08:00 000001", ":1: "},
        {"touch 2024-03-01 24:00 000001", ":1: "},
        {"touch 2024-03-01 000001", "needs both"},
        {"touch 2024-03-01 08:00 000000", "end mark"},
        {"# remark\nrecord 1 2 3", ":2: "},
        {"record 1 2 3 4 5", "too many"},
        {"count 65536", "65536"},
        {"fault refuse read 1", "refused"},
        {"refuse erase 1 00", "status 00"},
        {"drop-byte", "needs more"},
        {"damage-byte 3 00", "XOR"},
    };
    for (const auto& c : cases) {
        Sim sim(c.scenario);
        const std::string line = sim.ErrorLine();
        CHECK(sim.ExitCode() == 2 && Has(line, c.part) && Has(line, "/scenario:"),
              std::string(c.scenario) + ": " + line);
        CHECK(sim.Path().empty(), sim.Path());
    }
    const std::vector<std::string> arguments[] = {
        {"--frob"}, {"--link"}, {"--log", "/nowhere/log"}, {"--link", gFolder + "/scenario"}};
    for (const auto& words : arguments) {
        Sim sim("", words);
        CHECK(sim.ExitCode() == 2 && Has(sim.ErrorLine(), words.back()), words.front());
    }
    Sim full(RecordLines(65535));
    full.Type("touch 000001 2024-03-01 08:00");
    CHECK(Has(full.ErrorLine(), "full"), "memory full");
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    std::signal(SIGPIPE, SIG_IGN);
    gProgram = argv[1];
    char folder[] = "/tmp/docksim-test-XXXXXX";
    if (mkdtemp(folder) == nullptr)
        return 2;
    gFolder = folder;
    TestCommands();
    TestRecords();
    TestFrameCounts();
    TestFaults();
    TestReader();
    TestVanish();
    TestMistakes();
    for (const char* name : {"/scenario", "/log", "/link"})
        unlink((gFolder + name).c_str());
    rmdir(folder);
    std::printf("%d failures\n", gFailures);
    return gFailures == 0 ? 0 : 1;
}
