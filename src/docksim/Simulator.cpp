#include "Simulator.h"

#include "DockingStation.h"
#include "PseudoTerminal.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <iostream>
#include <poll.h>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

namespace docksim {

namespace {

constexpr char kUsage[] = "usage: docksim [--scenario FILE] [--log FILE|-] [--link PATH]";

// A station's frame takes 20 ms at 9600 bits per second; half a second is a station that gave up.
constexpr Micros kPatienceForRest = 500'000;
// A full line is looked at again this often even if nobody tells that it has room.
constexpr Micros kFullLineRetry = 100'000;

volatile std::sig_atomic_t gStopSignal = 0;

struct Arguments {
    std::string scenario;
    std::string log;
    std::string link;
    bool help = false;
};

// Throws ParseError.
Arguments ParseArguments(const std::vector<std::string>& words) {
    Arguments arguments;
    for (size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--help") {
            arguments.help = true;
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

// Catches the signals that end the program, and keeps them back except while the program waits.
// Returns the mask to wait with.
sigset_t CatchStopSignals() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGTTIN, SIG_IGN); // in the background of a terminal, standard input just ends
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
    // Throws ParseError for what the caller got wrong, std::system_error when no line can be had.
    explicit Simulator(const Arguments& arguments) {
        if (!arguments.scenario.empty())
            m_station.Load(LoadScenario(arguments.scenario));
        else
            m_station.Load({});
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
            // The line is read first and obeyed last, so that whatever was typed before the
            // station sent its command is in force when the command is obeyed.
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
    // Waits until something arrives, something is due, or the line has room again.
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
            wake = std::min(wake.value_or(m_lastArrival + kPatienceForRest),
                            m_lastArrival + kPatienceForRest);
        timespec timeout{};
        if (wake) {
            const Micros left = std::max<Micros>(0, *wake - now);
            timeout = {left / 1'000'000, left % 1'000'000 * 1000};
        }
        if (ppoll(fds.data(), fds.size(), wake ? &timeout : nullptr, &mask) < 0 && errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "waiting");
    }

    void Receive(const Bytes& arrived) {
        if (!arrived.empty()) {
            m_lastArrival = MicrosNow();
            m_station.Receive(arrived);
        } else if (m_station.AwaitsRest() && MicrosNow() >= m_lastArrival + kPatienceForRest) {
            m_station.GiveUpRest();
        }
    }

    // Returns false when the device has vanished.
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
            ObeyWords(words);
        } catch (const ParseError& error) {
            std::cerr << "docksim: " << error.what() << std::endl;
        }
    }

    void ObeyWords(const Words& words) {
        const std::string& verb = words.front();
        const bool takesValue =
            verb == "button" || verb == "load" || verb == "noise" || verb == "log";
        if (takesValue)
            NeedWords(words, 2, 2);
        else if (verb != "touch" && verb != "fault")
            NeedWords(words, 1, 1);

        if (verb == "insert" || verb == "remove")
            m_station.SetInserted(verb == "insert");
        else if (verb == "touch")
            m_station.Touch(words);
        else if (verb == "button")
            m_station.PresentButton(words[1]);
        else if (verb == "load")
            m_station.Load(LoadScenario(words[1]));
        else if (verb == "fault")
            m_station.SetFault({words.begin() + 1, words.end()});
        else if (verb == "noise")
            m_station.SendNoise(ParseNumber(words[1], 1, 1'000'000));
        else if (verb == "state")
            std::cout << m_station.StateLine() << std::endl;
        else if (verb == "log" && (words[1] == "on" || words[1] == "off"))
            m_log.SwitchOn(words[1] == "on");
        else if (verb == "quit")
            m_quit = true;
        else
            throw ParseError("unknown line '" + verb + (takesValue ? " " + words[1] : "") + "'");
    }

    WireLog m_log;
    SendQueue m_queue;
    DockingStation m_station{m_queue, m_log};
    PseudoTerminal m_line;
    std::string m_input; // the beginning of a line
    bool m_inputOpen = true;
    bool m_quit = false;
    Micros m_lastArrival = 0;
};

} // namespace

int RunDocksim(const std::vector<std::string>& arguments) {
    try {
        const Arguments parsed = ParseArguments(arguments);
        if (parsed.help) {
            std::cout << kUsage << std::endl;
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
