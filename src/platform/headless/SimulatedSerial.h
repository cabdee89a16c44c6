#pragma once

#include <memory>
#include <string>

#include "platform/SerialPort.h"
#include "platform/headless/SimulatedModem.h"

namespace platform {

// The serial lines of tests and scripts: at most one, with a simulated voice modem on it,
// on a port number of the caller's choice. With no modem placed, no port can be opened,
// so nothing ever answers. Time passes when the program lets its event loop run and when
// a script goes on to its next action; the second ring of a call waits for that.
class SimulatedSerialLines : public SerialBackend {
  public:
    SimulatedSerialLines();
    ~SimulatedSerialLines() override;

    std::unique_ptr<SerialLine> Open(int port) override;
    void Pump() override { PassTime(); }

    // A modem on the port, replacing any other; the program's open line to the old one dies.
    void PlaceModem(int port, bool callerIdSupported = true);
    void RemoveModem();
    // 0 when there is none.
    int ModemPort() const { return modem_ ? port_ : 0; }
    SimulatedModem* Modem() { return modem_.get(); }
    // True while the program holds the modem's line open.
    bool LineOpen() const;

    // A call comes in: the first ring and the caller's data reach the line now, the second
    // ring when time has passed. With the line closed, the call goes unheard. False when
    // there is no modem.
    bool Ring(const std::string& number, const std::string& name, int month, int day, int hour,
              int minute);
    bool RingWithBlock(const std::string& block);
    // Time goes by: what the modem held back reaches the line.
    void PassTime();

    // No modem, nothing pending: as a machine without one.
    void Reset();

  private:
    class Line;
    struct LineState {
        std::string incoming;
    };
    void Deliver(const std::string& bytes);
    std::string Answer(const std::shared_ptr<LineState>& from, const std::string& bytes);

    int port_ = 0;
    std::unique_ptr<SimulatedModem> modem_;
    std::weak_ptr<LineState> open_;
    std::string later_;
};

// The lines that serve when no other backend is installed.
SimulatedSerialLines& SimulatedLines();

}  // namespace platform
