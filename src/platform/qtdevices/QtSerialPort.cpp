#include "platform/qtdevices/QtSerialPort.h"

#include <QSerialPort>
#include <QSerialPortInfo>
#include <vector>

#include "platform/SerialPortNumbers.h"

namespace platform {

using Clock = std::chrono::steady_clock;

// One opened device. What arrives is taken from the driver only when the program looks,
// or while it lets its event loop run after sending.
class QtSerialLine : public SerialLine {
  public:
    QtSerialLine(std::shared_ptr<std::set<QtSerialLine*>> open, const std::string& device)
        : open_(std::move(open)) {
        port_.setPortName(QString::fromLocal8Bit(device.data(), qsizetype(device.size())));
    }
    ~QtSerialLine() override {
        open_->erase(this);
        if (port_.isOpen()) port_.close();
    }

    // Opens at 9600 8N1 without handshaking, or raises as the port object would.
    void Open() {
        if (!port_.open(QIODevice::ReadWrite)) {
            const bool held = port_.error() == QSerialPort::PermissionError;
            RaiseCommError(held ? commerr::PortAlreadyOpen : commerr::InvalidPortNumber,
                           "PortOpen");
        }
        port_.setBaudRate(QSerialPort::Baud9600);
        port_.setDataBits(QSerialPort::Data8);
        port_.setParity(QSerialPort::NoParity);
        port_.setStopBits(QSerialPort::OneStop);
        port_.setFlowControl(QSerialPort::NoFlowControl);
        // A modem listens only while the terminal is ready; a pseudo-terminal has no such line.
        port_.setDataTerminalReady(true);
        port_.clearError();
        // What came before the port was opened was meant for nobody.
        port_.clear(QSerialPort::Input);
        open_->insert(this);
    }

    void Write(const std::string& bytes) override {
        if (port_.write(bytes.data(), qint64(bytes.size())) != qint64(bytes.size()))
            RaiseCommError(commerr::WriteError, "Output");
        port_.flush();
        sentAt_ = Clock::now();
        awaitingAnswer_ = true;
    }

    std::string Read() override {
        Take(std::chrono::milliseconds(0));
        std::string taken;
        taken.swap(received_);
        return taken;
    }

    void DiscardInput() override {
        Take(std::chrono::milliseconds(0));
        port_.clear(QSerialPort::Input);
        received_.clear();
    }

    // Gives the device its moment to answer what it was last sent.
    void AwaitAnswer() {
        if (!awaitingAnswer_) return;
        awaitingAnswer_ = false;
        const auto deadline = sentAt_ + QtSerialLines::kAnswerWindow;
        const size_t before = received_.size();
        Take(std::chrono::milliseconds(0));
        while (received_.size() == before && Clock::now() < deadline)
            Take(std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()));
        if (received_.size() == before) return;
        while (Clock::now() < deadline && Take(QtSerialLines::kQuietGap)) {
        }
    }

  private:
    // Moves what the driver holds into received_, waiting up to `wait` for the first byte.
    bool Take(std::chrono::milliseconds wait) {
        bool any = false;
        while (port_.waitForReadyRead(any ? 0 : int(wait.count()))) any = true;
        if (port_.error() == QSerialPort::ResourceError ||
            port_.error() == QSerialPort::ReadError) {
            port_.clearError();
            RaiseCommError(commerr::ReadError, "Input");
        }
        port_.clearError();
        const QByteArray data = port_.readAll();
        received_.append(data.constData(), size_t(data.size()));
        return any || !data.isEmpty();
    }

    std::shared_ptr<std::set<QtSerialLine*>> open_;
    QSerialPort port_;
    std::string received_;
    Clock::time_point sentAt_{};
    bool awaitingAnswer_ = false;
};

namespace {

std::vector<std::string> AvailableDevices() {
    std::vector<std::string> found;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
#ifdef Q_OS_WIN
        found.push_back(info.portName().toStdString());
#else
        found.push_back(info.systemLocation().toStdString());
#endif
    }
    return found;
}

}  // namespace

QtSerialLines::QtSerialLines(DeviceFinder findDevices)
    : findDevices_(findDevices ? std::move(findDevices) : AvailableDevices),
      open_(std::make_shared<std::set<QtSerialLine*>>()) {}

QtSerialLines::~QtSerialLines() = default;

std::map<int, std::string> QtSerialLines::Devices() {
    const auto now = Clock::now();
    if (devicesKnown_ && now - devicesTaken_ < kDeviceListLife) return devices_;
    devices_ = NumberSerialDevices(findDevices_(), ReadSerialPins());
    devicesTaken_ = now;
    devicesKnown_ = true;
    return devices_;
}

std::unique_ptr<SerialLine> QtSerialLines::Open(int port) {
    const auto devices = Devices();
    const auto device = devices.find(port);
    if (device == devices.end()) RaiseCommError(commerr::InvalidPortNumber, "PortOpen");
    auto line = std::make_unique<QtSerialLine>(open_, device->second);
    line->Open();
    return line;
}

void QtSerialLines::Pump() {
    // A copy: an answer that fails may close nothing, but stays safe if it did.
    const std::set<QtSerialLine*> lines = *open_;
    for (QtSerialLine* line : lines) line->AwaitAnswer();
}

}  // namespace platform
