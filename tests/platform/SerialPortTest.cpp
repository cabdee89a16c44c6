// The port object, the simulated modem behind it, and the numbering of the machine's devices.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/RuntimeError.h"
#include "platform/SerialPort.h"
#include "platform/SerialPortNumbers.h"
#include "platform/Ui.h"
#include "platform/headless/SimulatedModem.h"
#include "platform/headless/SimulatedSerial.h"
#include "support/TestFolder.h"

using namespace platform;

namespace {

// The number of the run-time failure that the statement raises, or 0.
template <typename Statement>
int FailureOf(Statement statement) {
    try {
        statement();
    } catch (const RuntimeError& e) {
        return e.Number();
    }
    return 0;
}

class SerialPortTest : public ::testing::Test {
  protected:
    SerialPortTest() { Reset(); }
    ~SerialPortTest() override { Reset(); }
    static void Reset() {
        SimulatedLines().Reset();
        SharedSerialPort().Reset();
    }
    SerialPort& port = SharedSerialPort();
    SimulatedSerialLines& lines = SimulatedLines();
};

}  // namespace

TEST(SimulatedModem, AnswersCommandsAsAVoiceModemDoes) {
    struct Case {
        const char* sent;
        const char* answer;
    };
    // One modem through the whole table: each command sees the state the ones above left.
    const Case cases[] = {
        {"AT\r", "AT\r\r\nOK\r\n"},
        {"A", "A"},  // echoed as typed, answered at the CR
        {"T\r", "T\r\r\nOK\r\n"},
        {"\nAT#CID=1\r", "\nAT#CID=1\r\r\nOK\r\n"},
        {"ATE0\r", "ATE0\r\r\nOK\r\n"},
        {"AT\r", "\r\nOK\r\n"},
        {"at#cid=0;\r", "\r\nOK\r\n"},
        {"AT#CID=7\r", "\r\nERROR\r\n"},
        {"ATQ?\r", "\r\nERROR\r\n"},
        {"hello\r", ""},  // no AT, no command
        {"ATDT217-555-0100;\r", "\r\nOK\r\n"},
        {"ATH\r", "\r\nOK\r\n"},
        {"ATDT2175550100\r", "\r\nNO CARRIER\r\n"},  // no data carrier on a voice line
        {"ATZ\r", "\r\nOK\r\n"},
        {"AT\r", "AT\r\r\nOK\r\n"},  // the reset turned echo on again
    };
    SimulatedModem modem;
    for (const Case& c : cases) EXPECT_EQ(modem.Receive(c.sent), c.answer) << c.sent;
    EXPECT_EQ(modem.Dialled(), "2175550100");
    EXPECT_FALSE(modem.OffHook());
    EXPECT_FALSE(modem.CallerIdOn());
}

TEST(SimulatedModem, DialledVoiceCallStaysOffHookUntilHangUp) {
    SimulatedModem modem;
    modem.Receive("ATDT1-217-555-0100;\r");
    EXPECT_TRUE(modem.OffHook());
    EXPECT_EQ(modem.Dialled(), "1-217-555-0100");
    modem.Receive("ATH\r");
    EXPECT_FALSE(modem.OffHook());
}

TEST(SimulatedModem, RingsWithCallerDataOnlyWhileCallerIdIsOn) {
    SimulatedModem modem;
    const std::string block =
        "\r\nDATE = 0615\r\nTIME = 0905\r\nNMBR = 2175550100\r\n"
        "NAME = SMITH JOHN\r\n";
    EXPECT_EQ(SimulatedModem::CallerBlock("2175550100", "SMITH JOHN", 6, 15, 9, 5), block);
    EXPECT_EQ(modem.Ring("2175550100", "SMITH JOHN", 6, 15, 9, 5), "\r\nRING\r\n");
    modem.Receive("AT#CID=1\r");
    EXPECT_EQ(modem.Ring("2175550100", "SMITH JOHN", 6, 15, 9, 5), "\r\nRING\r\n" + block);
    EXPECT_EQ(modem.RingWithBlock("NMBR = 12"), "\r\nRING\r\nNMBR = 12");
    EXPECT_EQ(SimulatedModem::SecondRing(), "\r\nRING\r\n");

    SimulatedModem withoutCallerId(false);
    EXPECT_EQ(withoutCallerId.Receive("AT#CID=1\r"), "AT#CID=1\r\r\nERROR\r\n");
    EXPECT_EQ(withoutCallerId.Ring("2175550100", "SMITH JOHN", 6, 15, 9, 5), "\r\nRING\r\n");
}

TEST_F(SerialPortTest, AClosedPortCountsNothingAndRefusesTheRest) {
    EXPECT_FALSE(port.PortOpen());
    EXPECT_EQ(port.CommPort(), 1);
    EXPECT_EQ(port.InBufferCount(), 0);
    EXPECT_EQ(FailureOf([&] { port.Output("AT\r"); }), commerr::PortNotOpen);
    EXPECT_EQ(FailureOf([&] { port.Input(); }), commerr::PortNotOpen);
    EXPECT_EQ(FailureOf([&] { port.SetInBufferCount(0); }), commerr::PortNotOpen);
    EXPECT_EQ(FailureOf([&] { port.SetCommPort(0); }), commerr::InvalidPropertyValue);
    EXPECT_EQ(FailureOf([&] { port.SetCommPort(17); }), commerr::InvalidPropertyValue);
    EXPECT_EQ(port.CommPort(), 1);
    // No modem anywhere: no port can be opened.
    for (int n = kFirstCommPort; n <= kLastCommPort; ++n) {
        port.SetCommPort(n);
        EXPECT_EQ(FailureOf([&] { port.SetPortOpen(true); }), commerr::InvalidPortNumber) << n;
    }
    EXPECT_FALSE(port.PortOpen());
    port.SetPortOpen(false);  // closing a closed port is no failure
}

TEST_F(SerialPortTest, InputTakesEverythingAndAZeroCountDropsIt) {
    lines.PlaceModem(3);
    port.SetCommPort(3);
    port.SetPortOpen(true);
    EXPECT_EQ(FailureOf([&] { port.SetCommPort(4); }), commerr::PortAlreadyOpen);
    EXPECT_EQ(FailureOf([&] { port.SetPortOpen(true); }), commerr::PortAlreadyOpen);
    port.Output("AT\r");
    EXPECT_EQ(port.InBufferCount(), 9);
    EXPECT_EQ(port.Input(), "AT\r\r\nOK\r\n");
    EXPECT_EQ(port.Input(), "");
    port.Output("AT\r");
    port.SetInBufferCount(0);
    EXPECT_EQ(port.InBufferCount(), 0);
    EXPECT_EQ(FailureOf([&] { port.SetInBufferCount(5); }), commerr::InvalidPropertyValue);
    // What is received while the port is closed is lost, and so is what was not read.
    port.Output("AT\r");
    port.SetPortOpen(false);
    port.SetPortOpen(true);
    EXPECT_EQ(port.InBufferCount(), 0);
    EXPECT_EQ(lines.Modem()->Heard(), "AT\rAT\rAT\r");
}

TEST_F(SerialPortTest, AFullReceiveBufferLosesWhatComesOnTop) {
    lines.PlaceModem(2);
    port.SetCommPort(2);
    port.SetPortOpen(true);
    const std::string block(1000, 'x');
    lines.RingWithBlock(block);  // caller ID off: a ring alone
    port.Output("AT#CID=1\r");
    port.InBufferCount();
    lines.RingWithBlock(block);
    EXPECT_EQ(port.InBufferCount(), SerialPort::kInBufferSize);
    const std::string got = port.Input();
    EXPECT_EQ(got.substr(0, 8), "\r\nRING\r\n");
    EXPECT_EQ(got.back(), 'x');
}

TEST_F(SerialPortTest, TheSecondRingComesWhenTimePassesAndOnlyAnOpenPortHearsACall) {
    lines.PlaceModem(5);
    EXPECT_TRUE(lines.Ring("2175550100", "SMITH JOHN", 6, 15, 9, 5));  // nobody listens
    port.SetCommPort(5);
    port.SetPortOpen(true);
    EXPECT_EQ(port.InBufferCount(), 0);
    port.Output("ATE0#CID=1\r");
    port.SetInBufferCount(0);
    lines.Ring("2175550100", "SMITH JOHN", 6, 15, 9, 5);
    EXPECT_EQ(port.Input(), "\r\nRING\r\n" + SimulatedModem::CallerBlock("2175550100", "SMITH JOHN",
                                                                         6, 15, 9, 5));
    testing_support::TestFolder folder;  // a backend for DoEvents
    DoEvents();
    EXPECT_EQ(port.Input(), "\r\nRING\r\n");
    // The modem taken away: the open line leads nowhere.
    lines.RemoveModem();
    port.Output("AT\r");
    EXPECT_EQ(port.InBufferCount(), 0);
    EXPECT_FALSE(lines.Ring("2175550100", "SMITH JOHN", 6, 15, 9, 5));
}

TEST(SerialPortNumbers, DevicesFoundAreNumberedInAStableOrderAroundThePins) {
    const std::vector<std::string> found = {"/dev/ttyUSB0", "/dev/ttyS10", "/dev/ttyACM0",
                                            "/dev/ttyS2",   "/dev/ttyS0",  "/dev/rfcomm0",
                                            "/dev/ttyS1",   "/dev/ttyS1"};
    const std::map<int, std::string> none;
    const std::map<int, std::string> plain = {
        {1, "/dev/ttyS0"},   {2, "/dev/ttyS1"},   {3, "/dev/ttyS2"},  {4, "/dev/ttyS10"},
        {5, "/dev/ttyUSB0"}, {6, "/dev/ttyACM0"}, {7, "/dev/rfcomm0"}};
    EXPECT_EQ(NumberSerialDevices(found, none), plain);

    const std::map<int, std::string> pins = {{2, "/dev/pts/4"}, {7, "/dev/ttyS2"}};
    const std::map<int, std::string> pinned = {
        {1, "/dev/ttyS0"},   {2, "/dev/pts/4"},   {3, "/dev/ttyS1"}, {4, "/dev/ttyS10"},
        {5, "/dev/ttyUSB0"}, {6, "/dev/ttyACM0"}, {7, "/dev/ttyS2"}, {8, "/dev/rfcomm0"}};
    EXPECT_EQ(NumberSerialDevices(found, pins), pinned);

    // COMn keeps its number; only sixteen numbers are given.
    std::vector<std::string> many = {"COM3", "COM1"};
    for (int i = 0; i < 20; ++i) many.push_back("/dev/ttyUSB" + std::to_string(i));
    const auto numbers = NumberSerialDevices(many, none);
    EXPECT_EQ(numbers.size(), 16u);
    EXPECT_EQ(numbers.at(1), "COM1");
    EXPECT_EQ(numbers.at(2), "/dev/ttyUSB0");
    EXPECT_EQ(numbers.at(3), "COM3");
    EXPECT_EQ(numbers.at(16), "/dev/ttyUSB13");
}

TEST(SerialPortNumbers, MalformedPinFilesPinNothingTheyShouldNot) {
    testing_support::TestFolder folder;
    struct Case {
        const char* name;
        std::string bytes;
        std::map<int, std::string> pins;
    };
    const std::map<int, std::string> none;
    const Case cases[] = {
        {"empty", "", none},
        {"comments and blanks", "# 3 /dev/pts/1\r\n\r\n   \n", none},
        {"good lines",
         "3 /dev/pts/4\r\n 12\t/dev/ttyUSB0 \n",
         {{3, "/dev/pts/4"}, {12, "/dev/ttyUSB0"}}},
        {"cut short", "3 /dev/pts/4\r\n1", {{3, "/dev/pts/4"}}},
        {"number alone", "3\r\n", none},
        {"three fields", "3 /dev/pts/4 extra\r\n", none},
        {"nan", "nan /dev/pts/4\r\n", none},
        {"huge number", "99999999999999999999 /dev/pts/4\r\n", none},
        {"out of range", "0 /dev/pts/4\n17 /dev/pts/5\n-3 /dev/pts/6\n+3 /dev/pts/7\n", none},
        {"not a device", "3 /etc/passwd\n4 ../../x\n5 /dev/../etc/passwd\n", none},
        {"NUL bytes", std::string("3 /dev/pts/4\0\n4 /dev/\0x\n", 25), none},
        {"last one wins", "3 /dev/pts/4\n3 /dev/pts/5\n", {{3, "/dev/pts/5"}}},
    };
    for (const Case& c : cases) {
        folder.Write(kSerialPinFile, c.bytes);
        EXPECT_EQ(ReadSerialPins(), c.pins) << c.name;
    }
    std::filesystem::remove(folder.Path() / kSerialPinFile);
    EXPECT_EQ(ReadSerialPins(), none) << "missing";
    folder.MakeDirs(kSerialPinFile);
    EXPECT_EQ(ReadSerialPins(), none) << "a folder in its place";
}
