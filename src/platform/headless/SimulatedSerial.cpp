#include "platform/headless/SimulatedSerial.h"

namespace platform {

// The program's end of the modem's line. It keeps what arrived for the program; what the
// program sends goes to the modem while the line is still the modem's open one.
class SimulatedSerialLines::Line : public SerialLine {
  public:
    Line(SimulatedSerialLines& lines, std::shared_ptr<LineState> state)
        : lines_(lines), state_(std::move(state)) {}
    void Write(const std::string& bytes) override {
        state_->incoming += lines_.Answer(state_, bytes);
    }
    std::string Read() override {
        std::string taken;
        taken.swap(state_->incoming);
        return taken;
    }
    void DiscardInput() override { state_->incoming.clear(); }

  private:
    SimulatedSerialLines& lines_;
    std::shared_ptr<LineState> state_;
};

SimulatedSerialLines::SimulatedSerialLines() = default;
SimulatedSerialLines::~SimulatedSerialLines() = default;

std::unique_ptr<SerialLine> SimulatedSerialLines::Open(int port) {
    if (!modem_ || port != port_) RaiseCommError(commerr::InvalidPortNumber, "PortOpen");
    if (LineOpen()) RaiseCommError(commerr::PortAlreadyOpen, "PortOpen");
    auto state = std::make_shared<LineState>();
    open_ = state;
    return std::make_unique<Line>(*this, state);
}

std::string SimulatedSerialLines::Answer(const std::shared_ptr<LineState>& from,
                                         const std::string& bytes) {
    // A line whose modem was taken away leads nowhere.
    if (!modem_ || open_.lock() != from) return {};
    return modem_->Receive(bytes);
}

void SimulatedSerialLines::PlaceModem(int port, bool callerIdSupported) {
    RemoveModem();
    port_ = port;
    modem_ = std::make_unique<SimulatedModem>(callerIdSupported);
}

void SimulatedSerialLines::RemoveModem() {
    modem_.reset();
    port_ = 0;
    open_.reset();
    later_.clear();
}

bool SimulatedSerialLines::LineOpen() const {
    return !open_.expired();
}

void SimulatedSerialLines::Deliver(const std::string& bytes) {
    if (auto state = open_.lock()) state->incoming += bytes;
}

bool SimulatedSerialLines::Ring(const std::string& number, const std::string& name, int month,
                                int day, int hour, int minute) {
    if (!modem_) return false;
    return RingWithBlock(SimulatedModem::CallerBlock(number, name, month, day, hour, minute));
}

bool SimulatedSerialLines::RingWithBlock(const std::string& block) {
    if (!modem_) return false;
    // A new call: the second ring of one before it is no more.
    Deliver(modem_->RingWithBlock(block));
    later_ = SimulatedModem::SecondRing();
    return true;
}

void SimulatedSerialLines::PassTime() {
    if (later_.empty()) return;
    Deliver(later_);
    later_.clear();
}

void SimulatedSerialLines::Reset() {
    RemoveModem();
}

SimulatedSerialLines& SimulatedLines() {
    static SimulatedSerialLines lines;
    return lines;
}

}  // namespace platform
