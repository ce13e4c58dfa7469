// Drives the built docksim over its pseudo-terminal as a station would, with frames made by the
// few lines below and not by docksim's own code.

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

using Bytes = std::vector<uint8_t>;

int gFailures = 0;
std::string gProgram;
std::string gFolder;

void Check(bool good, const std::string& what) {
    gFailures += good ? 0 : 1;
    if (!good)
        std::fprintf(stderr, "%s\n", what.c_str());
}

std::string Hex(const Bytes& bytes) {
    std::string text;
    char digits[4];
    for (size_t i = 0; i < bytes.size() && i < 40; ++i) {
        std::snprintf(digits, sizeof digits, "%02X ", bytes[i]);
        text += digits;
    }
    return text + "(" + std::to_string(bytes.size()) + ")";
}

void CheckBytes(const Bytes& got, const Bytes& wanted, const std::string& what) {
    Check(got == wanted, what + ": got " + Hex(got) + " wanted " + Hex(wanted));
}

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

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
const Bytes kClock = Frame({0x12, 0x88, 0x88, 23, 59, 0x22, 0x7A}); // 2024-03-01
const Bytes kNoReader = Frame({0xF3, 255, 255, 255, 255, 255, 255, 255, 255});
const std::string kReader = "reader 33442211\n";

// The stream of that reader, with firmware 06, when it holds the records.
Bytes MemoryStream(const Bytes& records, size_t frames, unsigned count) {
    const Bytes sized = {static_cast<uint8_t>(count), static_cast<uint8_t>(count >> 8)};
    Bytes stream;
    size_t next = 0;
    for (size_t k = 0; k < frames; ++k) {
        Bytes payload = {0xF3};
        if (k == 0)
            payload = payload + sized + Bytes{0x11, 0x22, 0x33, 0x44, 0x06, 0x00};
        while (payload.size() < 241)
            payload.push_back(next < records.size() ? records[next++] : uint8_t{0});
        stream = stream + Frame(payload);
    }
    return stream;
}

// A running docksim and the station's end of its line.
class Sim {
public:
    explicit Sim(const std::string& scenario, const char* option = nullptr,
                 const char* value = nullptr) {
        const std::string file = gFolder + "/scenario";
        std::ofstream(file) << scenario;
        int ends[2];
        if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
            std::abort();
        m_pid = fork();
        if (m_pid == 0) {
            for (int fd = 0; fd < 3; ++fd)
                dup2(ends[1], fd);
            execl(gProgram.c_str(), gProgram.c_str(), "--scenario", file.c_str(), option, value,
                  nullptr);
            _exit(127);
        }
        close(ends[1]);
        m_talk = ends[0];
        m_greeting = ReadLine();
        m_line = open(m_greeting.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        termios settings{};
        tcgetattr(m_line, &settings);
        cfmakeraw(&settings);
        tcsetattr(m_line, TCSANOW, &settings);
    }
    ~Sim() {
        if (m_pid > 0) {
            kill(m_pid, SIGKILL);
            waitpid(m_pid, nullptr, 0);
        }
        close(m_talk);
        close(m_line);
    }
    Sim(const Sim&) = delete;

    void Send(const Bytes& bytes) {
        Check(write(m_line, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()),
              "sending to " + m_greeting);
    }
    // Reads as many bytes as are wanted, and what may come too many within 60 ms.
    Bytes Receive(size_t wanted) {
        Bytes all;
        for (;;) {
            pollfd fd = {m_line, POLLIN, 0};
            Bytes some(4096);
            ssize_t length = 0;
            if (poll(&fd, 1, all.size() < wanted ? 5000 : 60) > 0)
                length = read(m_line, some.data(), some.size());
            if (length <= 0) // the time is over or the device is gone
                return all;
            all.insert(all.end(), some.begin(), some.begin() + length);
        }
    }
    Bytes Ask(const Bytes& command, size_t wanted) {
        Send(command);
        return Receive(wanted);
    }
    // Lines are in force when this returns what is said to them and, behind that, the state.
    std::string Type(const std::string& lines) {
        const std::string text = lines + "\nstate\n";
        Check(write(m_talk, text.data(), text.size()) == static_cast<ssize_t>(text.size()), lines);
        std::string said;
        std::string line;
        do {
            line = ReadLine();
            said += line;
        } while (!line.empty() && line.front() != '{');
        return said;
    }
    // The path of the device, or why there is none.
    const std::string& Greeting() const { return m_greeting; }
    // Waits for the end, after a signal when there is one.
    int ExitCode(int signal = 0) {
        kill(m_pid, signal);
        int status = 0;
        waitpid(std::exchange(m_pid, -1), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    std::string ReadLine() {
        std::string line;
        pollfd ready = {m_talk, POLLIN, 0};
        for (char c = 0; poll(&ready, 1, 5000) > 0 && read(m_talk, &c, 1) == 1 && c != '\n';)
            line += c;
        return line;
    }

    pid_t m_pid = -1;
    int m_talk = -1; // its standard input, output and error
    int m_line = -1;
    std::string m_greeting;
};

std::string RecordLines(size_t count) {
    std::string lines;
    for (size_t i = 0; i < count; ++i)
        lines += "record 0" + std::to_string(i % 10) + " 22 33 44\n";
    return lines;
}

Bytes RecordBytes(size_t count) {
    Bytes bytes;
    for (size_t i = 0; i < count; ++i)
        bytes.insert(bytes.end(), {static_cast<uint8_t>(i % 10), 0x22, 0x33, 0x44});
    return bytes;
}

void TestCommands() {
    const struct {
        const char* what;
        Bytes sent;
        Bytes wanted;
    } cases[] = {
        {"detect", kDetect, {0xFF, 0xFF, 0xFF, 0x55, 3, 1, 3, 0x51, 0, 1, 0x80, 0xD9}},
        {"CR LF and FF before", Bytes{13, 10, 0xFF} + kDetect, kDetected},
        {"clock", kClock, Frame({0x93, 0})},
        {"options", Frame({0x13, 0x88, 0x88, 0x0B}), Frame({0x80, 0})},
        {"wrong PC code", Frame({0x13, 0x88, 0x87, 0x01}), {}},
        {"wrong checksum", {255, 255, 255, 0x55, 3, 1, 3, 0x51, 0, 1, 0x11, 0x6B}, {}},
        {"wrong header, right sum", {255, 255, 255, 0x55, 1, 3, 3, 0x51, 0, 1, 0x11, 0x6A}, {}},
        {"a good frame inside a bad one",
         Bytes{255, 255, 255, 0x55, 3, 1, 3, 0x51, 0, 7, 0x12} + kDetect, kDetected},
    };
    Sim sim(kReader);
    for (const auto& c : cases)
        CheckBytes(sim.Ask(c.sent, c.wanted.size()), c.wanted, c.what);
    const std::string state = sim.Type("");
    Check(Has(state, "\"clock\":\"2024-03-01T23:59\",\"options\":11,\"reads\":0"), state);

    // A frame may come in pieces, but not with half a second between them.
    for (const auto& [pauseMs, wanted] : {std::pair(100, kDetected), std::pair(700, Bytes{})}) {
        sim.Send(Bytes(kDetect.begin(), kDetect.begin() + 9));
        usleep(static_cast<useconds_t>(pauseMs) * 1000);
        CheckBytes(sim.Ask(Bytes(kDetect.begin() + 9, kDetect.end()), wanted.size()), wanted,
                   "two pieces");
    }
}

void TestMemory() {
    const struct {
        unsigned count;
        size_t frames;
        std::string lines;
        Bytes records;
    } cases[] = {
        {2, 1, "touch 2000-01-02 15:42 001234", {0x0F, 0x01, 0x00, 0xAA, 0x34, 0x12, 0x00, 0x2A}},
        // One marker for the touches of an hour, a new one for the next hour or day.
        {7,
         1,
         "touch abcdef 2024-03-01 08:00\ntouch 2024-03-01 08:59 000001\n"
         "touch 2024-03-01 09:00 000001\ntouch 2024-03-02 09:00 000001",
         {8,    0x7A, 0x22, 0xAA, 0xEF, 0xCD, 0xAB, 0,    1,    0,    0, 59, 9, 0x7A,
          0x22, 0xAA, 1,    0,    0,    0,    9,    0x7B, 0x22, 0xAA, 1, 0,  0, 0}},
        {0, 1, "", {}},
        {58, 1, RecordLines(58), RecordBytes(58)},
        {59, 2, RecordLines(59), RecordBytes(59)},
        {119, 3, RecordLines(119), RecordBytes(119)},
        {65535, 1093, RecordLines(65535), RecordBytes(65535)},
        {0xFFFF, 1, RecordLines(3) + "count -1", RecordBytes(3)},
        {58, 3, RecordLines(119) + "count 58\nframes 3", RecordBytes(119)},
    };
    for (const auto& c : cases) {
        Sim sim(kReader + c.lines);
        const Bytes wanted = MemoryStream(c.records, c.frames, c.count);
        CheckBytes(sim.Ask(kRead, wanted.size()), wanted, c.lines.substr(0, 80));
    }
}

void TestFaults() {
    const Bytes good = MemoryStream(RecordBytes(119), 3, 119);
    const auto part = [&good](size_t from, size_t to) {
        return Bytes(good.begin() + static_cast<long>(from), good.begin() + static_cast<long>(to));
    };
    const Bytes flipped = part(0, 503) + Bytes{static_cast<uint8_t>(~good[503])} + part(504, 756);
    const struct {
        std::string fault;
        Bytes command;
        Bytes wanted;
    } cases[] = {
        {"silent read", kRead + kDetect, kDetected},
        {"refuse erase 2", kErase + kErase + kErase, Frame({0xF3, 1}) + Frame({0xF3, 1}) + kErased},
        {"refuse clock 1 7F", kClock + kClock, Frame({0x93, 0x7F}) + Frame({0x93, 0})},
        {"no-reader 2", kRead, part(0, 504) + kNoReader},
        {"drop-bytes 250 4", kRead, part(0, 250) + part(254, 756)},
        {"damage-byte 503", kRead, flipped},
        {"single-byte", kRead, good},
        {"pace 115200", kRead, good},
    };
    for (const auto& c : cases) {
        Sim sim(kReader + RecordLines(119) + c.fault); // without the word "fault" ...
        CheckBytes(sim.Ask(c.command, c.wanted.size()), c.wanted, c.fault);
        sim.Type("load " + gFolder + "/scenario\nfault none");
        CheckBytes(sim.Ask(kRead, good.size()), good, "none after " + c.fault);
        sim.Type("fault " + c.fault); // ... and with it
        CheckBytes(sim.Ask(c.command, c.wanted.size()), c.wanted, "typed " + c.fault);
    }
}

void TestReader() {
    Sim sim(kReader + "touch 2024-03-01 08:00 000001\ncount 59");
    CheckBytes(sim.Ask(kErase, 13), kErased, "erase"); // and with it the count
    CheckBytes(sim.Ask(kRead, 252), MemoryStream({}, 1, 0), "erased");
    const std::string state = sim.Type("");
    Check(state == "{\"reader\":\"33442211\",\"inserted\":true,\"touches\":0,\"records\":0,"
                   "\"erased\":1,\"clock\":null,\"options\":null,\"reads\":1,\"frames_sent\":2}",
          state);
    Check(Has(sim.Type("touch 0A0B0C"), "\"touches\":1,\"records\":2"), "touched now");
    sim.Type("button 0a0b0c");
    CheckBytes(sim.Receive(16), Frame({0x24, 0, 0x0C, 0x0B, 0x0A}), "button");

    Check(Has(sim.Type("remove"), "\"inserted\":false"), "removed");
    CheckBytes(sim.Ask(kRead, kNoReader.size()), kNoReader, "reading no reader");
    CheckBytes(sim.Ask(kErase, 13), Frame({0xF3, 0xFF}), "erasing no reader");
    CheckBytes(sim.Ask(kDetect, 12), kDetected, "the station is there without a reader");
    const char* const errors[][2] = {
        {"button 0A0B0C", "no reader"}, {"frobnicate", "'frobnicate'"}, {"touch 1", "'1'"},
        {"fault", "missing"},           {"load /nowhere", "/nowhere"},  {"noise 0", "'0'"}};
    for (const auto& [line, part] : errors)
        Check(Has(sim.Type(line), part), line);
    Check(Has(sim.Type("insert"), "\"inserted\":true,\"touches\":1,\"records\":2,\"erased\":1"),
          "inserted again");
    Check(sim.ExitCode(SIGTERM) == 0, "SIGTERM");
}

void TestMistakes() {
    const std::string taken = gFolder + "/scenario"; // a file, not an old link
    const struct {
        const char* scenario;
        const char* part;
        const char* option = nullptr;
        const char* value = nullptr;
    } cases[] = {
        {"reader 33442211\n\nfrob", "/scenario:3: unknown directive 'frob'"},
        {"touch 2023-02-29 08:00 000001", "/scenario:1: '2023-02-29'"},
        {"touch 2024-03-01 08:00 000000", "end mark"},
        {"# remark\nrecord 1 2 3", "/scenario:2: "},
        {"count 65536", "65536"},
        {"fault refuse read 1", "refused"},
        {"", "--frob", "--frob"},
        {"", "/nowhere/log", "--log", "/nowhere/log"},
        {"", "/scenario", "--link", taken.c_str()},
    };
    for (const auto& c : cases) {
        Sim sim(c.scenario, c.option, c.value);
        Check(Has(sim.Greeting(), c.part) && sim.ExitCode() == 2, c.scenario + sim.Greeting());
    }
}

} // namespace

int main(int argc, char** argv) {
    char folder[] = "/tmp/docksim-test-XXXXXX";
    if (argc != 2 || mkdtemp(folder) == nullptr)
        return 2;
    std::signal(SIGPIPE, SIG_IGN);
    gProgram = argv[1];
    gFolder = folder;
    TestCommands();
    TestMemory();
    TestFaults();
    TestReader();
    TestMistakes();
    unlink((gFolder + "/scenario").c_str());
    rmdir(folder);
    std::printf("%d failures\n", gFailures);
    return gFailures == 0 ? 0 : 1;
}
