#include "app/script/ModemActions.h"

#include <sstream>

#include "platform/SerialPort.h"
#include "platform/Ui.h"
#include "platform/headless/SimulatedSerial.h"

using namespace platform;

namespace {

// The action that rang: the second ring waits for the action after it.
bool rangJustNow = false;

std::string Modem(const std::string& rest, std::vector<std::string>& shown) {
    std::istringstream words(rest);
    std::string what;
    words >> what;
    SimulatedSerialLines& lines = SimulatedLines();
    if (what == "on") {
        int port = 0;
        std::string option;
        words >> port >> option;
        if (port < kFirstCommPort || port > kLastCommPort) return "no port " + rest.substr(2);
        if (!option.empty() && option != "without-caller-id") return "unknown option " + option;
        lines.PlaceModem(port, option.empty());
    } else if (what == "off") {
        lines.RemoveModem();
    } else if (what == "heard") {
        if (!lines.Modem()) return "no modem";
        shown.push_back("modem heard: " + lines.Modem()->Heard());
        lines.Modem()->ForgetHeard();
    } else if (what == "port") {
        SerialPort& port = SharedSerialPort();
        shown.push_back("port: CommPort=" + std::to_string(port.CommPort()) +
                        " PortOpen=" + (port.PortOpen() ? "True" : "False") +
                        " InBufferCount=" + std::to_string(port.InBufferCount()));
    } else {
        return "unknown modem action " + what;
    }
    return {};
}

}  // namespace

bool IsModemAction(const std::string& verb) {
    return verb == "modem" || verb == "ring" || verb == "ring-block";
}

std::string RunModemAction(const std::string& verb, const std::string& rest,
                           std::vector<std::string>& shown) {
    // A program that has ended holds no port any more.
    if (ProgramHasEnded()) SharedSerialPort().Reset();
    if (verb == "modem") return Modem(rest, shown);
    SimulatedSerialLines& lines = SimulatedLines();
    bool rang = false;
    if (verb == "ring") {
        const auto blank = rest.find(' ');
        const std::string number = rest.substr(0, blank);
        const std::string name = blank == std::string::npos ? "" : rest.substr(blank + 1);
        const DateTime now = Now();
        rang = lines.Ring(number, name, now.Month(), now.Day(), now.Hour(), now.Minute());
    } else {
        rang = lines.RingWithBlock(rest);
    }
    if (!rang) return "no modem to ring";
    rangJustNow = true;
    return {};
}

void ModemTimePasses() {
    if (!rangJustNow) SimulatedLines().PassTime();
    rangJustNow = false;
}

void ResetModemActions() {
    rangJustNow = false;
    SimulatedLines().Reset();
    SharedSerialPort().Reset();
}
