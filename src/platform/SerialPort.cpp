#include "platform/SerialPort.h"

#include "platform/RuntimeError.h"
#include "platform/headless/SimulatedSerial.h"

namespace platform {

namespace {

SerialBackend* installedBackend = nullptr;

std::string CommErrorDescription(int number) {
    switch (number) {
        case commerr::InvalidPropertyValue:
            return "Invalid property value";
        case commerr::InvalidPortNumber:
            return "Invalid port number";
        case commerr::PortAlreadyOpen:
            return "Port already open";
        case commerr::PortNotOpen:
            return "Operation valid only when the port is open";
        case commerr::ReadError:
            return "Error reading comm device";
        case commerr::WriteError:
            return "Error writing comm device";
        default:
            return ErrorDescription(number);
    }
}

}  // namespace

void RaiseCommError(int number, const std::string& where) {
    throw RuntimeError(number, CommErrorDescription(number), where);
}

SerialBackend& SerialDevices() {
    if (installedBackend) return *installedBackend;
    return SimulatedLines();
}

void SetSerialBackend(SerialBackend* backend) {
    SharedSerialPort().Reset();
    installedBackend = backend;
}

SerialPort::~SerialPort() = default;

void SerialPort::SetCommPort(int port) {
    if (port < kFirstCommPort || port > kLastCommPort)
        RaiseCommError(commerr::InvalidPropertyValue, "CommPort");
    if (PortOpen()) RaiseCommError(commerr::PortAlreadyOpen, "CommPort");
    commPort_ = port;
}

void SerialPort::SetPortOpen(bool open) {
    if (!open) {
        line_.reset();
        buffer_.clear();
        return;
    }
    if (PortOpen()) RaiseCommError(commerr::PortAlreadyOpen, "PortOpen");
    line_ = SerialDevices().Open(commPort_);
    buffer_.clear();
}

void SerialPort::Receive() {
    std::string arrived = line_->Read();
    // A full receive buffer loses what comes on top of it.
    const size_t room = kInBufferSize - std::min<size_t>(buffer_.size(), kInBufferSize);
    buffer_.append(arrived, 0, std::min(room, arrived.size()));
}

int SerialPort::InBufferCount() {
    if (!PortOpen()) return 0;
    Receive();
    return static_cast<int>(buffer_.size());
}

void SerialPort::SetInBufferCount(int count) {
    if (!PortOpen()) RaiseCommError(commerr::PortNotOpen, "InBufferCount");
    if (count != 0) RaiseCommError(commerr::InvalidPropertyValue, "InBufferCount");
    line_->DiscardInput();
    line_->Read();
    buffer_.clear();
}

void SerialPort::Output(const std::string& text) {
    if (!PortOpen()) RaiseCommError(commerr::PortNotOpen, "Output");
    line_->Write(text);
}

std::string SerialPort::Input() {
    if (!PortOpen()) RaiseCommError(commerr::PortNotOpen, "Input");
    Receive();
    std::string taken;
    taken.swap(buffer_);
    return taken;
}

void SerialPort::Reset() {
    line_.reset();
    buffer_.clear();
    commPort_ = 1;
}

SerialPort& SharedSerialPort() {
    // The simulated lines are made first, so that they outlive the port's open line.
    SimulatedLines();
    static SerialPort port;
    return port;
}

void PumpSerialLines() {
    SerialDevices().Pump();
}

}  // namespace platform
