#include "platform/SerialPortNumbers.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>
#include <tuple>

#include "platform/Files.h"
#include "platform/SerialPort.h"

namespace platform {

namespace {

// A pin file is a few lines; anything larger is not one.
constexpr std::streamsize kLargestPinFile = 64 * 1024;

bool IsDigits(const std::string& text) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// A port number written plainly: 1 to 16, no sign, no exponent, no padding beyond two digits.
int PortNumber(const std::string& text) {
    if (!IsDigits(text) || text.size() > 2) return 0;
    const int number = std::stoi(text);
    return number >= kFirstCommPort && number <= kLastCommPort ? number : 0;
}

// COMn on the machines that name their ports so.
int ComNumber(const std::string& device) {
    if (device.size() < 4 || device.compare(0, 3, "COM") != 0) return 0;
    return PortNumber(device.substr(3));
}

// Only devices may be named: a path below /dev that does not climb out of it.
bool IsDevicePath(const std::string& path) {
    if (ComNumber(path)) return true;
    if (path.size() <= 5 || path.compare(0, 5, "/dev/") != 0) return false;
    for (char c : path)
        if (static_cast<unsigned char>(c) <= ' ' || c == 0x7f) return false;
    std::istringstream parts(path);
    for (std::string part; std::getline(parts, part, '/');)
        if (part == "..") return false;
    return true;
}

// Sort key of a device found: its group, its name without the trailing number, the number.
std::tuple<int, std::string, long long, std::string> OrderOf(const std::string& device) {
    static const char* const groups[] = {"/dev/ttyS", "/dev/ttyUSB", "/dev/ttyACM"};
    size_t digits = device.size();
    while (digits > 0 && device[digits - 1] >= '0' && device[digits - 1] <= '9') --digits;
    const std::string stem = device.substr(0, digits);
    const std::string tail = device.substr(digits, 12);
    const long long number = tail.empty() ? -1 : std::stoll(tail);
    int group = 3;
    for (int g = 0; g < 3; ++g)
        if (stem == groups[g]) group = g;
    return {group, stem, number, device};
}

}  // namespace

std::map<int, std::string> ParseSerialPins(const std::string& text) {
    std::map<int, std::string> pins;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        const auto start = line.find_first_not_of(" \t");
        if (start == std::string::npos || line[start] == '#') continue;
        const auto gap = line.find_first_of(" \t", start);
        if (gap == std::string::npos) continue;
        const auto pathStart = line.find_first_not_of(" \t", gap);
        if (pathStart == std::string::npos) continue;
        const auto pathEnd = line.find_last_not_of(" \t");
        const int number = PortNumber(line.substr(start, gap - start));
        const std::string path = line.substr(pathStart, pathEnd + 1 - pathStart);
        if (number && IsDevicePath(path)) pins[number] = path;
    }
    return pins;
}

std::map<int, std::string> ReadSerialPins() {
    const std::string path = AppFolder() + "/" + kSerialPinFile;
    if (!FileExists(path)) return {};
    std::ifstream in(ResolvePath(path), std::ios::binary);
    std::string text(static_cast<size_t>(kLargestPinFile), '\0');
    in.read(text.data(), kLargestPinFile);
    text.resize(static_cast<size_t>(std::max<std::streamsize>(in.gcount(), 0)));
    return ParseSerialPins(text);
}

std::map<int, std::string> NumberSerialDevices(std::vector<std::string> found,
                                               const std::map<int, std::string>& pins) {
    std::map<int, std::string> numbers = pins;
    std::set<std::string> taken;
    for (const auto& [number, device] : pins) taken.insert(device);
    std::sort(found.begin(), found.end(),
              [](const std::string& a, const std::string& b) { return OrderOf(a) < OrderOf(b); });
    found.erase(std::unique(found.begin(), found.end()), found.end());
    // A COMn device keeps its own number unless that number is pinned to another.
    std::vector<std::string> unnumbered;
    for (const std::string& device : found) {
        if (taken.count(device)) continue;
        const int com = ComNumber(device);
        if (com && !numbers.count(com)) {
            numbers[com] = device;
            taken.insert(device);
        } else {
            unnumbered.push_back(device);
        }
    }
    int next = kFirstCommPort;
    for (const std::string& device : unnumbered) {
        if (!IsDevicePath(device)) continue;
        while (next <= kLastCommPort && numbers.count(next)) ++next;
        if (next > kLastCommPort) break;
        numbers[next] = device;
    }
    return numbers;
}

}  // namespace platform
