// The call monitor: the modem dialogue of its timer, the caller data taken from the modem's
// text with its quirks, TelCall.txt byte for byte, the customer match and the counters, the
// call list, clearing it, and the dialler called from it.
#include "TelephonyFixture.h"

namespace telephony_tests {
namespace {

using platform::SimulatedLines;

class CallMonitorTest : public TelephonyTest {
  protected:
    CallMonitorTest() {
        folder.Write("CustomerData.txt", CustomerBytes("A100", "217-555-0100", "217-555-0199") +
                                             CustomerBytes("A200", "", "309-555-0142"));
        folder.Write("CallID.txt", "#TRUE#\r\n");
    }

    // A call rings, and the next poll finds its caller data.
    void Call(const std::string& number, const std::string& name, frmCallID& monitor) {
        SimulatedLines().Ring(number, name, 6, 15, 9, 0);
        monitor.tmrMain.Tick();
        // The second ring comes in time and is too short to be taken.
        SimulatedLines().PassTime();
        monitor.tmrMain.Tick();
    }
};

TEST_F(CallMonitorTest, SwitchesCallerIdOnAndPollsOnceTheModemSaysOk) {
    Start();
    frmCallID& monitor = platform::Screen<frmCallID>();
    monitor.Show();
    EXPECT_EQ(Heard(), "AT#CID=1\r");
    EXPECT_EQ(monitor.tmrMain.Interval(), 1500);
    EXPECT_TRUE(monitor.tmrMain.Enabled());
    EXPECT_FALSE(monitor.cmdExit.Enabled());

    monitor.tmrMain.Tick();
    EXPECT_EQ(monitor.tmrMain.Interval(), 1000);
    EXPECT_TRUE(monitor.tmrMain.Enabled());
    EXPECT_TRUE(monitor.cmdExit.Enabled());
    EXPECT_TRUE(CallerIDEnabled);
    // Polls that find nothing blink the picture and keep the timer going.
    const bool shown = monitor.Image1.Visible();
    monitor.tmrMain.Tick();
    EXPECT_NE(monitor.Image1.Visible(), shown);
    EXPECT_TRUE(monitor.tmrMain.Enabled());
}

TEST_F(CallMonitorTest, AModemWithoutCallerIdLeavesTheScreenUpWithoutMonitoring) {
    Start(false);
    frmCallID& monitor = platform::Screen<frmCallID>();
    monitor.Show();
    monitor.tmrMain.Tick();
    EXPECT_FALSE(CallerIDEnabled);
    EXPECT_FALSE(monitor.tmrMain.Enabled());
    EXPECT_TRUE(monitor.cmdExit.Enabled());
    EXPECT_TRUE(monitor.Visible());
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(CallMonitorTest, ACustomersCallIsListedWrittenAndCountedAsTheCustomers) {
    Start();
    frmCallID& monitor = OpenMonitor();
    Call("2175550199", "SMITH JOHN", monitor);

    // The name runs to the end of the modem's line, line end included.
    EXPECT_EQ(monitor.lblName.Caption(), "SMITH JOHN\r\n");
    EXPECT_EQ(monitor.lblNumber.Caption(), "217-555-0199");
    EXPECT_EQ(monitor.lblTime.Caption(), "09:00 am");
    EXPECT_EQ(monitor.fgCallSummary.Rows(), 2);
    EXPECT_EQ(monitor.fgCallSummary.TextMatrix(1, 0), "09:00 am");
    EXPECT_EQ(monitor.fgCallSummary.TextMatrix(1, 1), "217-555-0199");
    EXPECT_EQ(monitor.fgCallSummary.TextMatrix(1, 2), "SMITH JOHN\r\n");
    EXPECT_EQ(Read("TelCall.txt"), "SMITH JOHN\r\n   217-555-019909:00 am");
    EXPECT_EQ(monitor.lblCount[0].Caption(), "1");
    EXPECT_EQ(monitor.lblCount[1].Caption(), "1");
    EXPECT_EQ(monitor.lblCount[2].Caption(), "0");
    EXPECT_EQ(monitor.lblCount[3].Caption(), "1");
    EXPECT_TRUE(monitor.cmdClear.Enabled());
    EXPECT_TRUE(monitor.updnCalls.Enabled());
    EXPECT_EQ(monitor.updnCalls.Max(), 1);

    // A cell number of another customer, then a number of nobody's.
    folder.SetNow(platform::DateTime::FromYmdHms(2026, 6, 15, 14, 5, 0));
    Call("3095550142", "LEE ANN", monitor);
    Call("3125550123", "JONES PAT", monitor);
    EXPECT_EQ(monitor.lblCount[1].Caption(), "2");
    EXPECT_EQ(monitor.lblCount[2].Caption(), "1");
    EXPECT_EQ(monitor.lblCount[3].Caption(), "3");
    EXPECT_EQ(Read("TelCall.txt").substr(70), "JONES PAT\r\n    312-555-012302:05 pm");
    // Only the poll and the answer to caller ID went by: nothing was sent to the modem.
    EXPECT_EQ(Heard(), "AT#CID=1\r");
}

struct CallerText {
    const char* name;
    std::string block;  // what the modem sends after the first ring
    bool taken;
    std::string number;  // as shown
    std::string caller;
};

class CallerTextTest : public CallMonitorTest, public ::testing::WithParamInterface<CallerText> {};

const CallerText kCallerTexts[] = {
    {"TenDigits", "\r\nDATE = 0615\r\nTIME = 0900\r\nNMBR = 2175550100\r\nNAME = SMITH JOHN\r\n",
     true, "217-555-0100", "SMITH JOHN\r\n"},
    // The name runs into the number tag: cut there, with the tag's "N" left at its end.
    {"NameBeforeNumber", "\r\nNAME = ANN\r\nNMBR = 2175550100\r\n", true, "217-555-0100",
     "ANN\r\nN"},
    // Seven digits keep the line end and what follows inside their ten characters.
    {"SevenDigits", "\r\nNMBR = 5550100\r\nNAME = BOB\r\n", true, "555-010-0\r\nN", "BOB\r\n"},
    // Neither tag: the characters from position 7 of the text serve as both.
    {"NoTags", "ABCDEFGHIJKLMNOPQRSTUVWXYZ", true, "\r\nA-BCD-EFGH", "\r\nABCDEFGHIJKLM"},
    {"OutOfArea", "\r\nNMBR = 0114412345\r\nNAME = OVERSEAS\r\n", false, "", ""},
    {"RingInTheName", "\r\nNMBR = 2175550100\r\nNAME = \r\nRING\r\n", false, "", ""},
    {"ShorterThan28", "\r\nNMBR = 217\r\n", false, "", ""},
    {"NumberTooShort", "\r\nNAME = SAM\r\nNMBR = 21\r\n", false, "", ""},
};

TEST_P(CallerTextTest, IsTakenAsTheModemSentItOrDropped) {
    const CallerText& text = GetParam();
    Start();
    frmCallID& monitor = OpenMonitor();
    SimulatedLines().RingWithBlock(text.block);
    monitor.tmrMain.Tick();
    EXPECT_TRUE(monitor.tmrMain.Enabled());
    if (!text.taken) {
        EXPECT_EQ(monitor.CallCount, 0);
        EXPECT_EQ(monitor.lblName.Caption(), "Name");
        EXPECT_EQ(monitor.lblCount[2].Caption(), "0");
        EXPECT_FALSE(Exists("TelCall.txt"));
        return;
    }
    EXPECT_EQ(monitor.CallCount, 1);
    EXPECT_EQ(monitor.lblNumber.Caption(), text.number);
    EXPECT_EQ(monitor.lblName.Caption(), text.caller);
    EXPECT_EQ(Read("TelCall.txt").size(), 35u);
}

INSTANTIATE_TEST_SUITE_P(Blocks, CallerTextTest, ::testing::ValuesIn(kCallerTexts),
                         [](const auto& text) { return std::string(text.param.name); });

TEST_F(CallMonitorTest, OldCallsAreListedFromTheFileWithTheFirstShown) {
    folder.Write("TelCall.txt", std::string("FIRST CALLER   217-555-010008:15 am") +
                                    "SECOND         309-555-014201:30 pm");
    Start();
    frmCallID& monitor = OpenMonitor();
    EXPECT_EQ(monitor.fgCallSummary.Rows(), 3);
    EXPECT_EQ(monitor.lblName.Caption(), "FIRST CALLER   ");
    EXPECT_EQ(monitor.lblNumber.Caption(), "217-555-0100");
    EXPECT_EQ(monitor.lblTime.Caption(), "08:15 am");
    // The calls of this session start at 0; the total holds the old ones.
    EXPECT_EQ(monitor.lblCount[0].Caption(), "0");
    EXPECT_EQ(monitor.lblCount[3].Caption(), "2");

    monitor.updnCalls.UserUp();
    EXPECT_EQ(monitor.lblName.Caption(), "SECOND         ");
    EXPECT_EQ(monitor.lblTime.Caption(), "01:30 pm");
    monitor.updnCalls.UserUp();  // already the last
    EXPECT_EQ(monitor.lblNumber.Caption(), "309-555-0142");
    monitor.updnCalls.UserDown();
    EXPECT_EQ(monitor.lblNumber.Caption(), "217-555-0100");

    // A new call goes behind the old ones, and the session count becomes the whole list.
    Call("2175550100", "SMITH JOHN", monitor);
    EXPECT_EQ(monitor.lblCount[0].Caption(), "3");
    EXPECT_EQ(Read("TelCall.txt").size(), 3u * 35);
}

TEST_F(CallMonitorTest, ClearingAsksFirstAndEmptiesListAndFile) {
    Start();
    frmCallID& monitor = OpenMonitor();
    EXPECT_FALSE(monitor.cmdClear.Enabled());
    EXPECT_FALSE(monitor.updnCalls.Enabled());
    EXPECT_EQ(monitor.lblTime.Caption(), "Time Recv'd");
    // Nothing to clear: not even the question.
    monitor.cmdClear_Click();
    EXPECT_TRUE(Boxes().empty());

    Call("2175550100", "SMITH JOHN", monitor);
    Answer(platform::vbNo);
    monitor.cmdClear.Click();
    ASSERT_EQ(Boxes().size(), 1u);
    EXPECT_EQ(Boxes()[0].title, "Clear Call List");
    EXPECT_EQ(Boxes()[0].prompt, "Clear All Entries?");
    EXPECT_EQ(Boxes()[0].buttons, platform::vbYesNo + platform::vbQuestion);
    EXPECT_TRUE(Exists("TelCall.txt"));

    Answer(platform::vbYes);
    monitor.cmdClear.Click();
    EXPECT_FALSE(Exists("TelCall.txt"));
    EXPECT_EQ(monitor.CallCount, 0);
    EXPECT_EQ(monitor.fgCallSummary.Rows(), 1);
    EXPECT_EQ(monitor.lblName.Caption(), "Name");
    EXPECT_EQ(monitor.lblCount[3].Caption(), "0");
    EXPECT_TRUE(monitor.cmdExit.Enabled());
}

TEST_F(CallMonitorTest, CallingBackStopsTheMonitorAndStartsItAgainAfterwards) {
    Start();
    frmCallID& monitor = OpenMonitor();
    Call("3125550123", "JONES PAT", monitor);
    ForgetHeard();
    // No row clicked: the call below the heading is the current row, not the heading.
    monitor.cmdDial.Click();
    frmDialer& dialer = platform::Screen<frmDialer>();
    ASSERT_TRUE(dialer.Visible());
    // Caller ID off and the port closed, then the dialler opens it again.
    EXPECT_EQ(Heard(), "AT#CID=0;\r");
    EXPECT_FALSE(monitor.tmrMain.Enabled());
    EXPECT_TRUE(port.PortOpen());
    EXPECT_EQ(dialer.lblName.Caption(), "JONES PAT\r\n");
    EXPECT_EQ(dialer.lblNumber.Caption(), "312-555-0123");

    // A call while the dialler is up is not seen.
    dialer.cmdHangup.Click();
    EXPECT_EQ(Heard(), "AT#CID=0;\rATH\rAT#CID=1\r");
    EXPECT_EQ(monitor.tmrMain.Interval(), 1500);
    EXPECT_EQ(monitor.lblCount[2].Caption(), "0");
    EXPECT_EQ(monitor.lblCount[3].Caption(), "1");
}

TEST_F(CallMonitorTest, TheMenuTogglesTheListAndTheMainMenuButtonLeaves) {
    Start();
    frmCallID& monitor = OpenMonitor();
    monitor.mnuSummary_Click();
    EXPECT_FALSE(monitor.fraSummary.Visible());
    EXPECT_EQ(monitor.mnuSummary.Caption(), "List");
    monitor.mnuSummary_Click();
    EXPECT_TRUE(monitor.fraSummary.Visible());
    EXPECT_EQ(monitor.mnuSummary.Caption(), "Summary");

    monitor.cmdExit.Click();
    EXPECT_FALSE(monitor.IsLoaded());
    EXPECT_FALSE(monitor.tmrMain.Enabled());
}

}  // namespace
}  // namespace telephony_tests
