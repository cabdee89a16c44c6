#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/SerialPort.h"

namespace platform {

class QtSerialLine;

// The machine's serial lines through QSerialPort, numbered as SerialPortNumbers.h tells.
//
// The program polls, and a modem needs a few milliseconds to answer a command: when the
// program lets its event loop run once after sending, each line that was sent to and has
// not answered yet gets up to kAnswerWindow to do so, and an answer that has begun gets
// kQuietGap to end. A machine without serial devices waits for nothing; each silent
// device costs one window per command sent to it.
class QtSerialLines : public SerialBackend {
  public:
    static constexpr std::chrono::milliseconds kAnswerWindow{200};
    static constexpr std::chrono::milliseconds kQuietGap{30};
    // How long a look at the machine's devices serves before the next one.
    static constexpr std::chrono::milliseconds kDeviceListLife{2000};

    // The devices of the machine as QSerialPortInfo lists them, or as findDevices does.
    using DeviceFinder = std::function<std::vector<std::string>()>;
    explicit QtSerialLines(DeviceFinder findDevices = {});
    ~QtSerialLines() override;

    std::unique_ptr<SerialLine> Open(int port) override;
    void Pump() override;

    // The device of each port number, as the pin file and the machine have them now.
    std::map<int, std::string> Devices();

  private:
    DeviceFinder findDevices_;
    std::shared_ptr<std::set<QtSerialLine*>> open_;
    std::map<int, std::string> devices_;
    std::chrono::steady_clock::time_point devicesTaken_{};
    bool devicesKnown_ = false;
};

}  // namespace platform
