#include "telephony/frmDialer.h"

#include <chrono>
#include <thread>

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Pictures.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "setup/SetupHooks.h"
#include "setup/frmSetup.h"
#include "store/BasicDiskRoutines.h"
#include "telephony/PortErrors.h"

using namespace platform;

namespace {

constexpr const char* kSpeedNumbersFile = "\\SpeedNumbers.txt";
// A modem's answer holds at least a line end around its result.
constexpr int kAnswerBytes = 2;
// While the modem dials, the screen keeps answering; between two looks at the port the
// program rests this long rather than spin.
constexpr auto kDialPoll = std::chrono::milliseconds(10);

constexpr const char* kHelpText =
    "Click Dial: the modem dials the number shown. Pick up the receiver when you hear it "
    "ring, then click to talk; the modem lets the line go to your telephone. Click a speed "
    "number to take it as the number to call, or an empty one to add a name and number.";

// A place is two lines of the file: a caller's name as the modem sent it ends with a line
// end, which would push every later line out of its place, so each value is kept up to it.
std::string OneLine(const std::string& value) {
    return value.substr(0, value.find_first_of("\r\n"));
}

}  // namespace

frmDialer::frmDialer() : Form(kName) {
    SetCaption("Call ...............");
    SetSize(9120, 7605);

    // Headings of the dialler's fields; the probe writes only the last.
    const char* const headings[3] = {"Name", "Number", "Status"};
    for (int i = 0; i < 3; ++i) {
        Label2[i].SetCaption(headings[i]);
        Label2[i].Move(240, 270 + i * 480, 1215, 255);
    }
    Label2[3].Move(4320, 5430, 2175, 255);
    for (Label* l : {&lblName, &lblNumber, &lblStatus}) l->SetBorderStyle(true);
    lblName.Move(1560, 240, 3480, 315);
    lblNumber.Move(1560, 720, 3480, 315);
    lblStatus.Move(1560, 1200, 3480, 315);
    ckDial1.SetCaption("Dial a Prefix  1-");
    ckDial1.Move(1560, 1620, 2400, 315);
    Image2.SetPicture(pictures::kDial);
    Image2.Move(4440, 1560, 480, 480);
    Image2.SetVisible(false);

    cmdNewDial.SetCaption("&Dial");
    cmdNewDial.SetDefault(true);
    cmdNewDial.Move(240, 2160, 4800, 495);
    cmdCancel.SetCaption("Pick up the receiver then &Click to Talk");
    cmdCancel.Move(240, 2160, 4800, 495);
    cmdCancel.SetVisible(false);
    cmdHangup.SetCaption("D&isconnect/Cancel");
    cmdHangup.Move(240, 2760, 2340, 495);
    cmdHelp.SetCaption("Show Help");
    cmdHelp.Move(2700, 2760, 2340, 495);

    fraSpeedDial.SetCaption("Add Speed Dial Name and No.");
    fraSpeedDial.Move(240, 3420, 4800, 1860);
    fraSpeedDial.SetVisible(false);
    const char* const entryHeadings[2] = {"Name", "Number"};
    for (int i = 0; i < 2; ++i) {
        Label3[i].SetCaption(entryHeadings[i]);
        Label3[i].SetContainer("fraSpeedDial");
        Label3[i].Move(120, 330 + i * 420, 900, 255);
        txtDialer[i].SetContainer("fraSpeedDial");
        txtDialer[i].Move(1080, 300 + i * 420, 3600, 315);
    }
    txtDialer[0].SetMaxLength(30);
    txtDialer[1].SetMaxLength(20);

    for (int i = 0; i < kSpeedPlaces; ++i) {
        cmdDialer[i].Move(5400, 240 + i * 420, 3480, 375);
        cmdDialer[i].SetToolTipText("Click to take this Speed Dial No, or to add one");
    }
    const char* const speedCaptions[5] = {"&Save", "Ca&ncel", "Delete Selected Speed Dial &No",
                                          "&Restore Original Call Recipient",
                                          "&Load Current Player"};
    for (int i = 0; i < 5; ++i) cmdSpeedDialer[i].SetCaption(speedCaptions[i]);
    for (int i : {0, 1, 4}) cmdSpeedDialer[i].SetContainer("fraSpeedDial");
    cmdSpeedDialer[0].Move(120, 1200, 1200, 435);
    cmdSpeedDialer[1].Move(1440, 1200, 1200, 435);
    cmdSpeedDialer[4].Move(2760, 1200, 1920, 435);
    cmdSpeedDialer[2].Move(5400, 4500, 3480, 375);
    cmdSpeedDialer[3].Move(5400, 4920, 3480, 375);

    Text1.SetLocked(true);
    Text1.Move(240, 5400, 3855, 315);

    fraHelp.SetCaption("Help");
    fraHelp.Move(240, 5880, 8640, 1200);
    fraHelp.SetVisible(false);
    lblHelp.SetContainer("fraHelp");
    lblHelp.SetCaption(kHelpText);
    lblHelp.Move(120, 240, 8400, 855);

    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("cmdDialer.Click", [this](EventArgs& e) { cmdDialer_Click(e.index); });
    On("cmdSpeedDialer.Click", [this](EventArgs& e) { cmdSpeedDialer_Click(e.index); });
    On("ckDial1.Click", [this](EventArgs&) { ckDial1_Click(); });
    On("cmdNewDial.Click", [this](EventArgs&) { cmdNewDial_Click(); });
    On("cmdCancel.Click", [this](EventArgs&) { cmdCancel_Click(); });
    On("cmdHangup.Click", [this](EventArgs&) { cmdHangup_Click(); });
    On("cmdHelp.Click", [this](EventArgs&) { cmdHelp_Click(); });
}

void frmDialer::Form_Activate() {
    Image2.SetVisible(false);
    ResetDialer();
    // The phone page holds the modem's port; a port that will not open leaves the dialler
    // up, and the dialling then waits until the user hangs up.
    if (!MSComm1.PortOpen()) {
        IgnoringPortErrors(
            [&] { MSComm1.SetCommPort(CInt(Val(Screen<frmSetup>().txtModemPort.Text()))); });
        IgnoringPortErrors([&] { MSComm1.SetPortOpen(true); });
    }
    LoadSpeedNumbers();
}

// Closed by its title bar, the dialler lets the line go first, then the program ends as
// it does from every screen.
void frmDialer::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode != 0) return;
    DialCancelled = true;
    if (MSComm1.PortOpen()) IgnoringPortErrors([&] { MSComm1.Output("ATH\r"); });
    ExitProgramFromSetup();
}

void frmDialer::ResetDialer() {
    cmdSpeedDialer[2].SetEnabled(false);
    cmdNewDial.SetVisible(true);
    cmdCancel.SetVisible(false);
    lblStatus.SetCaption("Ready to Dial......");
    DialCancelled = false;
}

void frmDialer::LoadSpeedNumbers() {
    for (int i = 0; i < kSpeedPlaces; ++i) {
        cmdDialer[i].SetCaption("");
        SpeedNames[static_cast<size_t>(i)].clear();
        SpeedNumbers[static_cast<size_t>(i)].clear();
    }
    if (!FindFile(kSpeedNumbersFile)) return;
    OpenForInput(kSpeedNumbersFile);
    const int file = MainFileNo;
    for (int place = 0; !Eof(file); ++place) {
        // The screen has ten places: an eleventh pair is past the end of the arrays.
        if (place >= kSpeedPlaces) {
            CloseAllFiles();
            platform::Raise(err::SubscriptOutOfRange, kSpeedNumbersFile);
        }
        const auto at = static_cast<size_t>(place);
        SpeedNames[at] = LineInput(file);
        SpeedNumbers[at] = LineInput(file);
        cmdDialer[place].SetCaption(SpeedNames[at]);
    }
    CloseAllFiles();
}

void frmDialer::SaveSpeedNumbers() {
    OpenForRewrite(kSpeedNumbersFile);
    const int file = MainFileNo;
    // An empty place is not written, so the places after it move up at the next reading.
    for (size_t i = 0; i < SpeedNames.size(); ++i) {
        if (SpeedNames[i].empty()) continue;
        PrintLine(file, OneLine(SpeedNames[i]));
        PrintLine(file, OneLine(SpeedNumbers[i]));
    }
    CloseAllFiles();
}

void frmDialer::cmdDialer_Click(int index) {
    SpeedIndex = static_cast<std::uint8_t>(index);
    SavedName = lblName.Caption();
    SavedNumber = lblNumber.Caption();
    if (cmdDialer[index].Caption().empty()) {
        fraSpeedDial.SetVisible(true);
        txtDialer[0].SetFocus();
        return;
    }
    lblName.SetCaption(SpeedNames[SpeedIndex]);
    lblNumber.SetCaption(SpeedNumbers[SpeedIndex]);
    cmdSpeedDialer[2].SetEnabled(true);
}

void frmDialer::cmdSpeedDialer_Click(int index) {
    switch (index) {
        case 4:
            txtDialer[0].SetText(lblName.Caption());
            txtDialer[1].SetText(lblNumber.Caption());
            [[fallthrough]];
        case 0:
            cmdDialer[SpeedIndex].SetCaption(txtDialer[0].Text());
            SpeedNames[SpeedIndex] = txtDialer[0].Text();
            SpeedNumbers[SpeedIndex] = txtDialer[1].Text();
            SaveSpeedNumbers();
            [[fallthrough]];
        case 1:
            txtDialer[0].SetText("");
            txtDialer[1].SetText("");
            fraSpeedDial.SetVisible(false);
            break;
        case 2:
            if (MsgBox("This will delete SpeedDial entry  " + cmdDialer[SpeedIndex].Caption() +
                           "\r\nAre you Sure",
                       vbYesNo, "Delete Speed Dial") == vbNo) {
                cmdSpeedDialer[2].SetEnabled(false);
                return;
            }
            SpeedNames[SpeedIndex].clear();
            SpeedNumbers[SpeedIndex].clear();
            SaveSpeedNumbers();
            LoadSpeedNumbers();
            break;
        case 3:
            lblName.SetCaption(SavedName);
            lblNumber.SetCaption(SavedNumber);
            break;
        default:
            break;
    }
}

void frmDialer::ckDial1_Click() {
    const std::string number = lblNumber.Caption();
    if (ckDial1.Value() == 1)
        lblNumber.SetCaption("1-" + number);
    else if (number.rfind("1-", 0) == 0)
        lblNumber.SetCaption(number.substr(2));
}

void frmDialer::cmdNewDial_Click() {
    cmdNewDial.SetVisible(false);
    lblStatus.SetCaption("Dialing..... " + lblNumber.Caption());
    IgnoringPortErrors([&] { MSComm1.SetInBufferCount(0); });
    ModemReply.clear();
    // The number goes out as it stands, hyphens too; ";" keeps the modem in command state.
    IgnoringPortErrors([&] { MSComm1.Output("ATDT" + lblNumber.Caption() + ";\r"); });
    // No time limit: the screen keeps answering, so the user's hang-up ends the wait.
    for (;;) {
        DoEvents();
        // Hung up (or the program ended) while the modem dialled: this screen is gone.
        if (!IsLoaded() || ProgramHasEnded()) return;
        if (BytesWaiting(MSComm1) >= kAnswerBytes) {
            IgnoringPortErrors([&] { ModemReply = MSComm1.Input(); });
            if (ModemReply.find("OK") != std::string::npos) break;
        }
        if (DialCancelled) {
            CancelDial();
            return;
        }
        std::this_thread::sleep_for(kDialPoll);
    }
    lblStatus.SetCaption("Pickup Receiver - Then Click Hangup");
    cmdCancel.SetVisible(true);
    cmdCancel.SetFocus();
}

void frmDialer::cmdCancel_Click() {
    DialCancelled = true;
    CancelDial();
}

void frmDialer::CancelDial() {
    DialCancelled = false;
    cmdHangup_Click();
}

void frmDialer::cmdHangup_Click() {
    IgnoringPortErrors([&] { MSComm1.Output("ATH\r"); });
    IgnoringPortErrors([&] { MSComm1.SetPortOpen(false); });
    Image2.SetVisible(false);
    Unload();
}

void frmDialer::cmdHelp_Click() {
    fraHelp.SetVisible(!fraHelp.Visible());
    cmdHelp.SetCaption(fraHelp.Visible() ? "Hide Help" : "Show Help");
}
