// modem-sim: a voice modem on a pseudo-terminal, for trying the telephony of the desktop
// program without hardware. It prints the terminal's path on its first line, answers the
// program's commands as the modem does, and rings when told at its prompt or on a timer.
//
//   modem-sim [--pin PORT FOLDER] [--ring-every SECONDS] [--without-caller-id]
//
// --pin writes "PORT <path>" into FOLDER/CommPorts.txt, so that the program finds the
// modem on that port number; the line is taken out again when modem-sim ends.
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <string>

#include "app/modemsim/PinFile.h"
#include "app/modemsim/PseudoTerminal.h"
#include "platform/headless/SimulatedModem.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* kDefaultNumber = "2175550123";
constexpr const char* kDefaultName = "SMITH JOHN";
// A telephone line rings about every six seconds; the caller data come after the first ring.
constexpr auto kSecondRingAfter = std::chrono::seconds(4);
constexpr auto kRecheckClosedPort = std::chrono::milliseconds(100);

volatile std::sig_atomic_t stopRequested = 0;

void OnSignal(int) {
    stopRequested = 1;
}

void Say(const std::string& text) {
    std::fputs(text.c_str(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

std::string Shown(const std::string& bytes) {
    std::string out;
    for (char c : bytes) {
        if (c == '\r')
            out += "\\r";
        else if (c == '\n')
            out += "\\n";
        else if (static_cast<unsigned char>(c) < ' ')
            out += '?';
        else
            out += c;
    }
    return out;
}

std::string Unescaped(const std::string& text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size() && (text[i + 1] == 'r' || text[i + 1] == 'n')) {
            out += text[++i] == 'r' ? '\r' : '\n';
        } else {
            out += text[i];
        }
    }
    return out;
}

struct Options {
    int pinPort = 0;
    std::string pinFolder;
    int ringEvery = 0;
    bool callerId = true;
};

bool ParseOptions(int argc, char** argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--pin" && i + 2 < argc) {
            options.pinPort = std::atoi(argv[++i]);
            options.pinFolder = argv[++i];
            if (options.pinPort < 1 || options.pinPort > 16) return false;
        } else if (word == "--ring-every" && i + 1 < argc) {
            options.ringEvery = std::atoi(argv[++i]);
            if (options.ringEvery < 1) return false;
        } else if (word == "--without-caller-id") {
            options.callerId = false;
        } else {
            return false;
        }
    }
    return true;
}

class ModemOnTerminal {
  public:
    ModemOnTerminal(PseudoTerminal& terminal, bool callerId)
        : terminal_(terminal), modem_(callerId) {}

    // Whether the program has the port open: a closed terminal reports a hang-up.
    bool PortOpen() const { return portOpen_; }
    void SetPortOpen(bool open) {
        if (open != portOpen_)
            Say(open ? "   the program opened the port" : "   the program closed the port");
        portOpen_ = open;
    }

    // What the program sent, answered.
    void Serve() {
        const std::string sent = terminal_.Read();
        if (sent.empty()) return;
        Say("<- " + Shown(sent));
        Send(modem_.Receive(sent));
    }

    void Ring(const std::string& number, const std::string& name) {
        const std::time_t now = std::time(nullptr);
        std::tm local{};
        localtime_r(&now, &local);
        RingWith(modem_.Ring(number, name, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                             local.tm_min));
    }
    void RingWithBlock(const std::string& block) { RingWith(modem_.RingWithBlock(block)); }

    // The second ring of the last call, when it is due.
    void Tick() {
        if (secondRingDue_ && Clock::now() >= secondRingAt_) {
            secondRingDue_ = false;
            Send(platform::SimulatedModem::SecondRing());
        }
    }
    bool SecondRingDue() const { return secondRingDue_; }
    Clock::time_point SecondRingAt() const { return secondRingAt_; }

    std::string Status() const {
        return std::string("port ") + (portOpen_ ? "in use by the program" : "not in use") +
               ", caller ID " + (modem_.CallerIdOn() ? "on" : "off") +
               (modem_.CallerIdSupported() ? "" : " (not supported)") + ", " +
               (modem_.OffHook() ? "off hook, dialled " + modem_.Dialled() : "on hook");
    }

  private:
    void RingWith(const std::string& bytes) {
        if (!portOpen_) {
            Say("   nobody has the port open: the ring goes unheard");
            return;
        }
        Send(bytes);
        secondRingDue_ = true;
        secondRingAt_ = Clock::now() + kSecondRingAfter;
    }
    void Send(const std::string& bytes) {
        if (bytes.empty() || !portOpen_) return;
        terminal_.Write(bytes);
        Say("-> " + Shown(bytes));
    }

    PseudoTerminal& terminal_;
    platform::SimulatedModem modem_;
    bool portOpen_ = false;
    bool secondRingDue_ = false;
    Clock::time_point secondRingAt_{};
};

void Help() {
    Say("commands: ring [NUMBER [NAME]] | block TEXT (\\r \\n allowed) | every SECONDS (0 stops)"
        " | status | quit");
}

// One line typed at the prompt; false to end.
bool Command(const std::string& line, ModemOnTerminal& modem, int& ringEvery) {
    const auto blank = line.find(' ');
    const std::string word = line.substr(0, blank);
    const std::string rest = blank == std::string::npos ? "" : line.substr(blank + 1);
    if (word == "quit" || word == "exit") return false;
    if (word == "ring") {
        const auto gap = rest.find(' ');
        const std::string number = rest.empty() ? kDefaultNumber : rest.substr(0, gap);
        const std::string name = rest.empty()               ? kDefaultName
                                 : gap == std::string::npos ? ""
                                                            : rest.substr(gap + 1);
        modem.Ring(number, name);
    } else if (word == "block") {
        modem.RingWithBlock(Unescaped(rest));
    } else if (word == "every") {
        ringEvery = std::max(0, std::atoi(rest.c_str()));
        Say(ringEvery ? "   ringing every " + std::to_string(ringEvery) + " s" : "   timer off");
    } else if (word == "status") {
        Say("   " + modem.Status());
    } else if (!word.empty()) {
        Help();
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    if (!ParseOptions(argc, argv, options)) {
        std::fprintf(stderr,
                     "usage: modem-sim [--pin PORT FOLDER] [--ring-every SECONDS] "
                     "[--without-caller-id]\n");
        return 2;
    }
    PseudoTerminal terminal;
    std::string failure;
    if (!terminal.Open(failure)) {
        std::fprintf(stderr, "modem-sim: %s\n", failure.c_str());
        return 1;
    }
    Say(terminal.Path());
    std::unique_ptr<PinFile> pin;
    if (options.pinPort) {
        pin = std::make_unique<PinFile>(options.pinFolder, options.pinPort, terminal.Path());
        if (!pin->Written(failure)) {
            std::fprintf(stderr, "modem-sim: %s\n", failure.c_str());
            return 1;
        }
        Say("   port " + std::to_string(options.pinPort) + " pinned in " + pin->Path());
    }
    Help();
    std::signal(SIGINT, OnSignal);
    std::signal(SIGTERM, OnSignal);
    std::signal(SIGHUP, OnSignal);

    ModemOnTerminal modem(terminal, options.callerId);
    int ringEvery = options.ringEvery;
    auto nextTimedRing = Clock::now() + std::chrono::seconds(ringEvery);
    bool input = true;
    std::string typed;
    while (!stopRequested) {
        // Until something is due: the second ring, a timed ring, or a look at a closed port,
        // which reports its hang-up at once and so is not waited on.
        auto wake = Clock::now() + std::chrono::seconds(1);
        if (modem.SecondRingDue()) wake = std::min(wake, modem.SecondRingAt());
        if (ringEvery) wake = std::min(wake, nextTimedRing);
        if (!modem.PortOpen()) wake = std::min(wake, Clock::now() + kRecheckClosedPort);
        const auto timeout = std::chrono::duration_cast<std::chrono::milliseconds>(
            std::max(wake - Clock::now(), Clock::duration::zero()));
        pollfd fds[2] = {{modem.PortOpen() ? terminal.Fd() : -1, POLLIN, 0},
                         {input ? STDIN_FILENO : -1, POLLIN, 0}};
        if (poll(fds, 2, static_cast<int>(timeout.count())) < 0 && errno != EINTR) break;
        if (!modem.PortOpen()) {
            fds[0] = {terminal.Fd(), POLLIN, 0};
            poll(fds, 1, 0);
        }
        if (fds[0].revents & POLLIN) {
            modem.SetPortOpen(true);
            modem.Serve();
        }
        modem.SetPortOpen(!(fds[0].revents & POLLHUP));
        if (fds[1].revents & (POLLIN | POLLHUP)) {
            char chunk[256];
            const ssize_t got = read(STDIN_FILENO, chunk, sizeof chunk);
            if (got <= 0) input = false;
            if (got > 0) typed.append(chunk, static_cast<size_t>(got));
            for (auto end = typed.find('\n'); end != std::string::npos; end = typed.find('\n')) {
                std::string line = typed.substr(0, end);
                typed.erase(0, end + 1);
                if (!line.empty() && line.back() == '\r') line.pop_back();
                if (!Command(line, modem, ringEvery)) stopRequested = 1;
                nextTimedRing = Clock::now() + std::chrono::seconds(ringEvery);
            }
        }
        modem.Tick();
        if (ringEvery && Clock::now() >= nextTimedRing) {
            modem.Ring(kDefaultNumber, kDefaultName);
            nextTimedRing = Clock::now() + std::chrono::seconds(ringEvery);
        }
    }
    return 0;
}
