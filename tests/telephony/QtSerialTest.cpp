// The desktop's serial lines against pseudo-terminals: the modem simulator program that a
// person would run, and a terminal on which nobody answers.
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <cstdlib>
#include <string>

#include "platform/SerialPort.h"
#include "platform/SerialPortNumbers.h"
#include "platform/qtdevices/QtSerialPort.h"
#include "setup/SetupFixture.h"
#include "store/SharedState.h"
#include "telephony/ModemRoutines.h"

using namespace platform;

namespace {

// modem-sim, started on the test's program folder with its terminal pinned to a port.
class ModemSimulator {
  public:
    ModemSimulator(const std::string& folder, int port) {
        process_.start(QStringLiteral(MODEM_SIM), {QStringLiteral("--pin"), QString::number(port),
                                                   QString::fromStdString(folder)});
        path_ = WaitForLine("/dev/");
        pinned_ = !WaitForLine("pinned in").empty();
    }
    ~ModemSimulator() {
        process_.write("quit\n");
        if (!process_.waitForFinished(3000)) process_.kill();
        process_.waitForFinished(1000);
    }

    const std::string& Path() const { return path_; }
    bool Pinned() const { return pinned_; }
    void Type(const std::string& line) {
        process_.write((line + "\n").c_str());
        process_.waitForBytesWritten(1000);
    }
    // Everything it printed so far.
    const std::string& Said() {
        said_ += process_.readAllStandardOutput().toStdString();
        return said_;
    }
    // Waits for a line holding the text; returns it, or nothing after two seconds.
    std::string WaitForLine(const std::string& text) {
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < 2000) {
            const std::string& all = Said();
            const auto at = all.find(text, seen_);
            const auto end = at == std::string::npos ? at : all.find('\n', at);
            if (end != std::string::npos) {
                const auto start = all.rfind('\n', at);
                seen_ = end + 1;
                return all.substr(start == std::string::npos ? 0 : start + 1,
                                  end - (start == std::string::npos ? 0 : start + 1));
            }
            process_.waitForReadyRead(50);
        }
        return {};
    }

  private:
    QProcess process_;
    std::string path_;
    std::string said_;
    size_t seen_ = 0;
    bool pinned_ = false;
};

// A pseudo-terminal with nobody on the other side: a port that opens and never answers.
class SilentTerminal {
  public:
    SilentTerminal() {
        master_ = posix_openpt(O_RDWR | O_NOCTTY);
        if (master_ >= 0 && grantpt(master_) == 0 && unlockpt(master_) == 0)
            path_ = ptsname(master_);
    }
    ~SilentTerminal() {
        if (master_ >= 0) close(master_);
    }
    const std::string& Path() const { return path_; }

  private:
    int master_ = -1;
    std::string path_;
};

class QtSerialTest : public SetupTest {
  protected:
    QtSerialTest() {
        ResetSharedState();
        ProbeModemHook = [] { StartModem(); };
        SetSerialBackend(&lines);
    }
    ~QtSerialTest() override { SetSerialBackend(nullptr); }

    frmSetup& Start() {
        LoadAssignments();
        frmSetup& form = Screen<frmSetup>();
        form.Load();
        return form;
    }
    // The machine itself has no serial device: only what the pin file names.
    QtSerialLines lines{[] { return std::vector<std::string>{}; }};
};

double MillisecondsOf(const std::function<void()>& work) {
    QElapsedTimer clock;
    clock.start();
    work();
    return double(clock.nsecsElapsed()) / 1e6;
}

}  // namespace

TEST_F(QtSerialTest, TheProbeFindsTheModemSimulatorOnItsPinnedPort) {
    ModemSimulator simulator(folder.Path().string(), 3);
    ASSERT_FALSE(simulator.Path().empty());
    ASSERT_TRUE(simulator.Pinned());
    EXPECT_EQ(lines.Devices(), (std::map<int, std::string>{{3, simulator.Path()}}));

    frmSetup& form = Start();
    EXPECT_EQ(ModemPort, 3);
    EXPECT_EQ(form.txtModemPort.Text(), "3");
    SerialPort& port = SharedSerialPort();
    EXPECT_TRUE(port.PortOpen());
    EXPECT_EQ(port.CommPort(), 3);
    EXPECT_FALSE(simulator.WaitForLine("<- AT\\r").empty());
    EXPECT_FALSE(simulator.WaitForLine("<- AT#CID=1\\r").empty());
    // The answer to the caller-ID command came within the probe's pass of the event loop.
    EXPECT_EQ(Read("CallID.txt"), "#TRUE#\r\n");

    // A call typed at the simulator's prompt reaches the open port.
    simulator.Type("ring 2175550100 SMITH JOHN");
    QElapsedTimer clock;
    clock.start();
    while (port.InBufferCount() < 28 && clock.elapsed() < 3000) DoEvents();
    const std::string call = port.Input();
    EXPECT_NE(call.find("\r\nRING\r\n"), std::string::npos) << call;
    EXPECT_NE(call.find("\r\nNMBR = 2175550100\r\nNAME = SMITH JOHN\r\n"), std::string::npos)
        << call;
}

TEST_F(QtSerialTest, WithNoSerialDeviceTheProbeCostsNoWait) {
    const double ms = MillisecondsOf([&] { Start(); });
    EXPECT_EQ(ModemPort, 0);
    EXPECT_FALSE(SharedSerialPort().PortOpen());
    EXPECT_LT(ms, 100.0);
}

TEST_F(QtSerialTest, ASilentPortCostsOneAnswerWindowAndIsNotTakenForAModem) {
    SilentTerminal silent;
    ASSERT_FALSE(silent.Path().empty());
    folder.Write(kSerialPinFile, "1 " + silent.Path() + "\n");
    const double ms = MillisecondsOf([&] { Start(); });
    EXPECT_EQ(ModemPort, 0);
    EXPECT_EQ(Screen<frmSetup>().txtModemPort.Text(), "17");
    EXPECT_GE(ms, double(QtSerialLines::kAnswerWindow.count()) * 0.9);
    EXPECT_LT(ms, double(QtSerialLines::kAnswerWindow.count()) + 300.0);
}

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
