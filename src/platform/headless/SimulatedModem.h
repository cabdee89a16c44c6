#pragma once

#include <string>

namespace platform {

// A voice modem as it behaves on its serial line, without the line: it takes the bytes
// the program sends and gives back the bytes the modem would answer, and it makes the
// text that an incoming call produces. Hayes commands end with CR; the answers are the
// verbose result codes ("OK", "ERROR", "NO CARRIER") between CR LF, after the echo of
// the command while echo is on. Serves the headless backend and the modem-sim program.
class SimulatedModem {
  public:
    // A modem without caller-ID support answers "#CID" with ERROR and never reports callers.
    explicit SimulatedModem(bool callerIdSupported = true)
        : callerIdSupported_(callerIdSupported) {}

    // Takes what the program sent; returns the echo and the answers to every command
    // that ended with CR.
    std::string Receive(const std::string& bytes);

    // The first ring and, with caller ID reporting on, the caller's data after it.
    // The second ring comes a few seconds later: see SecondRing.
    std::string Ring(const std::string& number, const std::string& name, int month, int day,
                     int hour, int minute) const;
    // The first ring and, with caller ID reporting on, the given text as caller data.
    std::string RingWithBlock(const std::string& block) const;
    static std::string SecondRing();
    // The caller data of one call, as the modem formats it.
    static std::string CallerBlock(const std::string& number, const std::string& name, int month,
                                   int day, int hour, int minute);

    bool CallerIdSupported() const { return callerIdSupported_; }
    bool CallerIdOn() const { return callerId_; }
    bool EchoOn() const { return echo_; }
    bool OffHook() const { return offHook_; }
    // The number last dialled, as sent.
    const std::string& Dialled() const { return dialled_; }
    // Every byte the program sent, in order.
    const std::string& Heard() const { return heard_; }
    void ForgetHeard() { heard_.clear(); }

  private:
    std::string Execute(const std::string& line);
    // One command of a line; false when the modem does not know it.
    bool RunCommand(const std::string& line, size_t& at, std::string& extra);
    void ResetSettings();

    bool callerIdSupported_;
    bool callerId_ = false;
    bool echo_ = true;
    bool offHook_ = false;
    bool noCarrier_ = false;  // the line being run ends without a connection
    std::string dialled_;
    std::string pending_;  // a command not yet ended by CR
    std::string heard_;
};

}  // namespace platform
