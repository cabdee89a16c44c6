#pragma once

#include <memory>
#include <string>

// The serial port through which the program talks to the office's voice modem. One port
// object serves the whole program and outlives every screen; the screens only set the port
// number, open and close it, send text and poll what came back.
namespace platform {

// Errors of the port object, numbered as the platform's communications control numbers them.
namespace commerr {
constexpr int InvalidPropertyValue = 380;  // "Invalid property value"
constexpr int InvalidPortNumber = 8002;    // "Invalid port number"
constexpr int PortAlreadyOpen = 8005;      // "Port already open"
constexpr int PortNotOpen = 8018;          // "Operation valid only when the port is open"
constexpr int ReadError = 8020;            // "Error reading comm device"
constexpr int WriteError = 8022;           // "Error writing comm device"
}  // namespace commerr

// Raises the port error of that number with the platform's description.
[[noreturn]] void RaiseCommError(int number, const std::string& where = {});

// Port numbers the program can name.
constexpr int kFirstCommPort = 1;
constexpr int kLastCommPort = 16;

// One serial line of the machine, opened: 9600 bit/s, no parity, 8 data bits, 1 stop bit,
// no handshaking. A failure is a platform RuntimeError with a number of commerr.
class SerialLine {
  public:
    virtual ~SerialLine() = default;
    virtual void Write(const std::string& bytes) = 0;
    // Everything that arrived since the last call, at once; nothing waits.
    virtual std::string Read() = 0;
    // Drops what the driver holds but the program has not read.
    virtual void DiscardInput() = 0;
};

// The machine's serial lines, by port number.
class SerialBackend {
  public:
    virtual ~SerialBackend() = default;
    // Opens the line of that number, or raises InvalidPortNumber (no such line) or
    // PortAlreadyOpen (another program holds it).
    virtual std::unique_ptr<SerialLine> Open(int port) = 0;
    // The program let its event loop run once: what the open lines were just sent gets
    // a moment to be answered.
    virtual void Pump() {}
};

// The active backend: the simulated lines unless the desktop program installs its own.
SerialBackend& SerialDevices();
// Installs a backend (not owned); nullptr goes back to the simulated lines.
void SetSerialBackend(SerialBackend* backend);

// The port object, with the properties the system touches and the settings it was
// designed with. Reception is by polling only: nothing is raised when data arrive.
class SerialPort {
  public:
    static constexpr int kInBufferSize = 1024;
    static constexpr int kOutBufferSize = 512;
    static constexpr const char* kSettings = "9600,n,8,1";
    static constexpr char kParityReplace = '?';

    SerialPort() = default;
    SerialPort(const SerialPort&) = delete;
    SerialPort& operator=(const SerialPort&) = delete;
    ~SerialPort();

    int CommPort() const { return commPort_; }
    // Raises InvalidPropertyValue outside 1 to 16 and PortAlreadyOpen while the port is open.
    void SetCommPort(int port);
    bool PortOpen() const { return static_cast<bool>(line_); }
    // Opening raises as the backend does; closing drops what was received.
    void SetPortOpen(bool open);
    // What waits in the receive buffer; 0 while the port is closed.
    int InBufferCount();
    // Only 0 is meaningful: drops what was received. Raises PortNotOpen while closed.
    void SetInBufferCount(int count);
    // Sends the text as it stands. Raises PortNotOpen while closed.
    void Output(const std::string& text);
    // Takes everything in the receive buffer and empties it. Raises PortNotOpen while closed.
    std::string Input();

    // As at the start of a process: closed, on port 1.
    void Reset();

  private:
    void Receive();

    int commPort_ = 1;
    std::unique_ptr<SerialLine> line_;
    std::string buffer_;
};

// The one port object of the program.
SerialPort& SharedSerialPort();

// Let the lines of the active backend advance; DoEvents calls it.
void PumpSerialLines();

}  // namespace platform
