#include "Simulator.h"

#include "Directives.h"
#include "DockingStation.h"
#include "PseudoTerminal.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <iostream>
#include <poll.h>
#include <system_error>
#include <unistd.h>

namespace docksim {

namespace {

constexpr char kUsage[] = "usage: docksim [--scenario FILE] [--log FILE|-] [--link PATH]";
constexpr char kHelp[] =
    "\n"
    "       docksim --help | --version\n"
    "\n"
    "A docking station with a reader, on a pseudo-terminal: for demonstrations, for training, and "
    "for\n"
    "tests. When it is ready, it prints the path of its device. It runs until it reads \"quit\" "
    "from\n"
    "standard input or is interrupted.\n"
    "\n"
    "Options:\n"
    "  --scenario FILE   the reader, its memory and its faults (default: an empty reader "
    "00000001)\n"
    "  --log FILE        writes every frame to this file; \"-\" is standard error\n"
    "  --link PATH       makes this symbolic link to the device while docksim runs\n"
    "  --help            shows this text\n"
    "  --version         shows the version\n"
    "\n"
    "exit status: 0 ended, 1 the pseudo-terminal failed, 2 wrong usage or a wrong scenario\n";

// A station's frame takes 20 ms at 9600 bits per second. After half a second the station has given
// up.
constexpr Micros kPatienceForRest = 500'000;
// How often a full line is tried again, even if the system does not report that it has room.
constexpr Micros kFullLineRetry = 100'000;

volatile std::sig_atomic_t gStopSignal = 0;

struct Arguments {
    std::string scenario;
    std::string log;
    std::string link;
    bool help = false;
    bool version = false;
};

// Throws ParseError.
Arguments ParseArguments(const std::vector<std::string>& words) {
    Arguments arguments;
    for (size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--help" || words[i] == "--version") {
            (words[i] == "--help" ? arguments.help : arguments.version) = true;
            continue;
        }
        std::string* place = words[i] == "--scenario" ? &arguments.scenario
                             : words[i] == "--log"    ? &arguments.log
                             : words[i] == "--link"   ? &arguments.link
                                                      : nullptr;
        if (place == nullptr)
            throw ParseError("unknown argument '" + words[i] + "'; " + kUsage);
        if (++i == words.size() || words[i].empty())
            throw ParseError(words[i - 1] + " needs a value; " + kUsage);
        *place = words[i];
    }
    return arguments;
}

// Catches the signals that end the program, and blocks them except while the program waits. Returns
// the signal mask to wait with.
sigset_t CatchStopSignals() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGTTIN, SIG_IGN); // in the background, standard input just ends
    struct sigaction action {};
    action.sa_handler = [](int) { gStopSignal = 1; };
    sigset_t stop;
    sigemptyset(&stop);
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction before {};
        sigaction(number, nullptr, &before);
        if (number == SIGHUP && before.sa_handler == SIG_IGN)
            continue; // started with nohup
        sigaction(number, &action, nullptr);
        sigaddset(&stop, number);
    }
    sigset_t waiting;
    sigprocmask(SIG_BLOCK, &stop, &waiting);
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        sigdelset(&waiting, number);
    return waiting;
}

class Simulator {
public:
    // Throws ParseError for a mistake of the caller, std::system_error if there is no line.
    explicit Simulator(const Arguments& arguments) {
        m_station.Load(arguments.scenario.empty() ? Scenario() : LoadScenario(arguments.scenario));
        if (!m_log.Open(arguments.log))
            throw ParseError(arguments.log + ": cannot be written");
        m_line.Open();
        if (arguments.link.empty())
            return;
        try {
            m_line.Link(arguments.link);
        } catch (const std::system_error& error) {
            throw ParseError(error.what());
        }
    }

    void Run() {
        const sigset_t waiting = CatchStopSignals();
        std::cout << m_line.Path() << std::endl;
        m_log.Remark("serving on " + m_line.Path());
        while (!m_quit && gStopSignal == 0) {
            Wait(waiting);
            // The line is read first and obeyed last. So what was typed before the station sent its
            // command has taken effect when the command is carried out.
            const Bytes arrived = m_line.Read();
            if (m_line.NoticeStations(!arrived.empty()))
                m_station.GiveUpRest();
            ReadStandardInput();
            Receive(arrived);
            if (!Transmit())
                return;
        }
        m_log.Remark("ended");
    }

private:
    // Waits until something arrives or is due, or the line has room again.
    void Wait(const sigset_t& mask) {
        const short lineEvents = static_cast<short>(m_queue.Full() ? POLLIN | POLLOUT : POLLIN);
        std::array<pollfd, 3> fds = {{{m_line.Descriptor(), lineEvents, 0},
                                      {m_line.WatchDescriptor(), POLLIN, 0},
                                      {m_inputOpen ? STDIN_FILENO : -1, POLLIN, 0}}};
        const Micros now = MicrosNow();
        std::optional<Micros> wake = m_queue.DueAt();
        if (m_queue.Full())
            wake = now + kFullLineRetry;
        if (m_station.AwaitsRest())
            wake = std::min(wake.value_or(RestDeadline()), RestDeadline());
        timespec timeout{};
        if (wake) {
            const Micros left = std::max<Micros>(0, *wake - now);
            timeout = {left / 1'000'000, left % 1'000'000 * 1000};
        }
        if (ppoll(fds.data(), fds.size(), wake ? &timeout : nullptr, &mask) < 0 && errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "waiting");
    }

    // When an unfinished frame is given up.
    Micros RestDeadline() const { return m_lastArrival + kPatienceForRest; }

    void Receive(const Bytes& arrived) {
        if (!arrived.empty()) {
            m_lastArrival = MicrosNow();
            m_station.Receive(arrived);
        } else if (m_station.AwaitsRest() && MicrosNow() >= RestDeadline()) {
            m_station.GiveUpRest();
        }
    }

    // Returns false if the device has vanished.
    bool Transmit() {
        for (const SendItem& item : m_queue.Transmit(MicrosNow(), m_line.Descriptor())) {
            m_station.NoteSent(item);
            if (item.vanishAfter) {
                m_line.Vanish();
                m_log.Remark("device vanished");
                return false;
            }
        }
        m_line.DropUnread();
        return true;
    }

    void ReadStandardInput() {
        pollfd input = {STDIN_FILENO, POLLIN, 0};
        while (m_inputOpen && poll(&input, 1, 0) > 0) {
            std::array<char, 4096> buffer{};
            const ssize_t length = read(STDIN_FILENO, buffer.data(), buffer.size());
            if (length < 0 && errno == EINTR)
                continue;
            m_inputOpen = length > 0;
            m_input.append(length > 0 ? std::string(buffer.data(), static_cast<size_t>(length))
                                      : "\n");
            for (size_t end = 0; (end = m_input.find('\n')) != std::string::npos;) {
                ObeyLine(m_input.substr(0, end));
                m_input.erase(0, end + 1);
            }
        }
    }

    void ObeyLine(const std::string& line) {
        const Words words = SplitWords(line);
        if (words.empty())
            return;
        try {
            if (!ObeyDirective(LineDirectives(), *this, words))
                throw ParseError("unknown line '" + words.front() + "'");
        } catch (const ParseError& error) {
            std::cerr << "docksim: " << error.what() << std::endl;
        }
    }

    static const Directives<Simulator>& LineDirectives() {
        using S = Simulator;
        using W = Words;
        static const Directives<Simulator> directives = {
            {"insert", {1, 1, [](S& s, const W&) { s.m_station.SetInserted(true); }}},
            {"remove", {1, 1, [](S& s, const W&) { s.m_station.SetInserted(false); }}},
            {"touch", {2, 4, [](S& s, const W& w) { s.m_station.Touch(w); }}},
            {"button", {2, 2, [](S& s, const W& w) { s.m_station.PresentButton(w[1]); }}},
            {"load", {2, 2, [](S& s, const W& w) { s.m_station.Load(LoadScenario(w[1])); }}},
            {"fault",
             {1, kAnyWords,
              [](S& s, const W& w) {
                  s.m_station.SetFault({w.begin() + 1, w.end()});
              }}},
            {"noise",
             {2, 2,
              [](S& s, const W& w) { s.m_station.SendNoise(ParseNumber(w[1], 1, 1'000'000)); }}},
            {"state",
             {1, 1, [](S& s, const W&) { std::cout << s.m_station.StateLine() << std::endl; }}},
            {"log", {2, 2, [](S& s, const W& w) { s.SwitchLog(w[1]); }}},
            {"quit", {1, 1, [](S& s, const W&) { s.m_quit = true; }}},
        };
        return directives;
    }

    void SwitchLog(const std::string& word) {
        if (word != "on" && word != "off")
            throw ParseError("'" + word + "' is not on or off");
        m_log.SwitchOn(word == "on");
    }

    WireLog m_log;
    SendQueue m_queue;
    DockingStation m_station{m_queue, m_log};
    PseudoTerminal m_line;
    std::string m_input; // an unfinished line
    bool m_inputOpen = true;
    bool m_quit = false;
    Micros m_lastArrival = 0;
};

} // namespace

int RunDocksim(const std::vector<std::string>& arguments) {
    try {
        const Arguments parsed = ParseArguments(arguments);
        if (parsed.help) {
            std::cout << kUsage << kHelp << std::flush;
            return 0;
        }
        if (parsed.version) {
            std::cout << "docksim " << WARDLOCK_VERSION << std::endl;
            return 0;
        }
        Simulator(parsed).Run();
        return 0;
    } catch (const ParseError& error) {
        std::cerr << "docksim: " << error.what() << std::endl;
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "docksim: " << error.what() << std::endl;
        return 1;
    }
}

} // namespace docksim
