#include "platform/headless/SimulatedModem.h"

#include <cctype>
#include <cstdio>

namespace platform {

namespace {

constexpr const char* kOk = "\r\nOK\r\n";
constexpr const char* kError = "\r\nERROR\r\n";
constexpr const char* kNoCarrier = "\r\nNO CARRIER\r\n";
constexpr const char* kRing = "\r\nRING\r\n";

char Upper(char c) {
    return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Reads the digits at `at` as a number; -1 when there are none.
int TakeNumber(const std::string& line, size_t& at) {
    int value = -1;
    while (at < line.size() && IsDigit(line[at]) && value < 1000)
        value = (value < 0 ? 0 : value * 10) + (line[at++] - '0');
    return value;
}

bool StartsWith(const std::string& line, size_t at, const char* word) {
    for (size_t i = 0; word[i]; ++i)
        if (at + i >= line.size() || Upper(line[at + i]) != word[i]) return false;
    return true;
}

}  // namespace

std::string SimulatedModem::Receive(const std::string& bytes) {
    heard_ += bytes;
    std::string answer;
    for (char c : bytes) {
        if (echo_) answer += c;
        if (c == '\r') {
            answer += Execute(pending_);
            pending_.clear();
        } else if (c != '\n') {
            pending_ += c;
        }
    }
    return answer;
}

std::string SimulatedModem::Execute(const std::string& line) {
    // What stands before "AT" is line noise; a line without it is no command.
    size_t at = 0;
    while (at + 1 < line.size() && !(Upper(line[at]) == 'A' && Upper(line[at + 1]) == 'T')) ++at;
    if (at + 1 >= line.size()) return {};
    at += 2;
    std::string extra;
    noCarrier_ = false;
    while (at < line.size()) {
        if (!RunCommand(line, at, extra)) return kError;
    }
    return extra + (noCarrier_ ? kNoCarrier : kOk);
}

bool SimulatedModem::RunCommand(const std::string& line, size_t& at, std::string& extra) {
    const char command = Upper(line[at++]);
    switch (command) {
        case ' ':
        case ';':
            return true;
        case 'E':
            echo_ = TakeNumber(line, at) != 0;
            return true;
        case 'H':
            offHook_ = TakeNumber(line, at) == 1;
            return true;
        case 'Z':
            TakeNumber(line, at);
            ResetSettings();
            return true;
        case 'D': {
            // The rest of the line is the dial string; ";" keeps the modem in command
            // state after dialling, as a voice call needs.
            size_t end = line.find(';', at);
            const bool voice = end != std::string::npos;
            if (!voice) end = line.size();
            size_t first = at;
            if (first < end && (Upper(line[first]) == 'T' || Upper(line[first]) == 'P')) ++first;
            dialled_ = line.substr(first, end - first);
            offHook_ = true;
            at = line.size();
            if (!voice) {
                // No data carrier answers a voice line: the modem gives up and hangs up.
                offHook_ = false;
                noCarrier_ = true;
            }
            return true;
        }
        case '#':
        case '+': {
            const char* name = command == '#' ? "CID=" : "VCID=";
            if (!StartsWith(line, at, name)) return false;
            at += std::char_traits<char>::length(name);
            const int value = TakeNumber(line, at);
            if (!callerIdSupported_ || value < 0 || value > 2) return false;
            callerId_ = value != 0;
            return true;
        }
        case 'I':
            TakeNumber(line, at);
            extra += "\r\nVoice modem (simulated)\r\n";
            return true;
        case 'L':
        case 'M':
        case 'Q':
        case 'V':
        case 'X':
            TakeNumber(line, at);
            return true;
        case '&':
            if (at >= line.size()) return false;
            ++at;
            TakeNumber(line, at);
            return true;
        case 'S':
            if (TakeNumber(line, at) < 0) return false;
            if (at < line.size() && line[at] == '?') {
                ++at;
                extra += "\r\n000\r\n";
                return true;
            }
            if (at >= line.size() || line[at] != '=') return false;
            ++at;
            TakeNumber(line, at);
            return true;
        default:
            return false;
    }
}

void SimulatedModem::ResetSettings() {
    echo_ = true;
    callerId_ = false;
    offHook_ = false;
}

std::string SimulatedModem::CallerBlock(const std::string& number, const std::string& name,
                                        int month, int day, int hour, int minute) {
    char date[8], time[8];
    std::snprintf(date, sizeof date, "%02d%02d", month % 100, day % 100);
    std::snprintf(time, sizeof time, "%02d%02d", hour % 100, minute % 100);
    return std::string("\r\nDATE = ") + date + "\r\nTIME = " + time + "\r\nNMBR = " + number +
           "\r\nNAME = " + name + "\r\n";
}

std::string SimulatedModem::Ring(const std::string& number, const std::string& name, int month,
                                 int day, int hour, int minute) const {
    return RingWithBlock(CallerBlock(number, name, month, day, hour, minute));
}

std::string SimulatedModem::RingWithBlock(const std::string& block) const {
    return callerId_ ? kRing + block : std::string(kRing);
}

std::string SimulatedModem::SecondRing() {
    return kRing;
}

}  // namespace platform
