#pragma once

#include <map>
#include <string>
#include <vector>

// How the program's port numbers 1 to 16 name the machine's serial devices.
//
// The devices found are numbered in a stable order: /dev/ttyS*, then /dev/ttyUSB*, then
// /dev/ttyACM*, then any other, each group by the number in the name, so that /dev/ttyS0
// is port 1 on a machine whose first device it is. A device named COMn keeps n.
//
// The plain file CommPorts.txt beside the program can tie a number to any device below
// /dev, a pseudo-terminal of the modem simulator included, one line each:
//     3 /dev/pts/4
// Lines starting with # are comments; a line of any other form is passed over. Pinned
// numbers are taken first, and the devices found fill the numbers left, in order; a
// device pinned to a number is not given a second one.
namespace platform {

constexpr const char* kSerialPinFile = "CommPorts.txt";

// The pins that the text of a pin file holds, by port number.
std::map<int, std::string> ParseSerialPins(const std::string& text);
// The pins of the file beside the program; none when it is missing or unreadable.
std::map<int, std::string> ReadSerialPins();
// The device of each port number.
std::map<int, std::string> NumberSerialDevices(std::vector<std::string> found,
                                               const std::map<int, std::string>& pins);

}  // namespace platform
