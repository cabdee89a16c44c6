#include "telephony/frmCallID.h"

#include "customers/CustomerRecords.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Pictures.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/SerialPort.h"
#include "platform/Ui.h"
#include "setup/SetupHooks.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"
#include "telephony/DialerLink.h"
#include "telephony/PortErrors.h"
#include "telephony/TelCallRecord.h"

using namespace platform;
using telephony::kTelCallFile;
using telephony::kTelCallRecord;

namespace {

// The first tick waits this long for the modem's "OK" to caller ID; then the poll.
constexpr int kAnswerWait = 1500;
constexpr int kPollInterval = 1000;
// A block of caller data: what gathers between two polls while a call rings. A "RING" line
// or half a block is shorter and is thrown away.
constexpr int kCallerBlockBytes = 28;
constexpr std::size_t kNumberLength = 10;
constexpr std::size_t kNameLength = 15;
// "NMBR = " and "NAME = ": the value stands 7 characters behind the tag's first one.
constexpr std::size_t kTagToValue = 7;

constexpr const char* const kCountHeadings[4] = {"Call Record", "Customers", "Others",
                                                 "Total Calls (Old and New)"};

// The caller data as the modem's text gives it, positions counted from 1 and a missing tag
// taken as position 0, so that the value is read from position 7 all the same.
std::string ValueBehindTag(const std::string& text, const char* tag, std::size_t length) {
    const std::size_t found = text.find(tag);
    const std::size_t position = found == std::string::npos ? 0 : found + 1;
    const std::size_t start = position + kTagToValue - 1;
    return start < text.size() ? text.substr(start, length) : std::string();
}

// "NNN-NNN-NNNN" from the ten characters taken as the number, whatever they hold.
std::string DisplayNumber(const std::string& number) {
    const std::string middle = number.size() > 3 ? number.substr(3, 3) : std::string();
    const std::string last = number.size() > 4 ? number.substr(number.size() - 4) : number;
    return number.substr(0, 3) + "-" + middle + "-" + last;
}

}  // namespace

frmCallID::frmCallID() : Form(kName) {
    SetCaption("Unattended Call Monitoring");
    SetSize(9720, 6000);

    imgLogo.SetPicture(pictures::kProgram);
    imgLogo.SetToolTipText("Click on the LOGO to Reset this Form");
    imgLogo.Move(240, 120, 960, 960);
    Image1.SetPicture(pictures::kDial);
    Image1.SetToolTipText("Click to Return Calls");
    Image1.Move(1560, 360, 480, 480);

    fraCall.SetCaption("Call Received");
    fraCall.Move(240, 1200, 3960, 1500);
    for (Label* l : {&lblName, &lblNumber, &lblTime}) {
        l->SetContainer("fraCall");
        l->SetBorderStyle(true);
    }
    lblName.Move(120, 300, 3720, 315);
    lblNumber.Move(120, 690, 2520, 315);
    lblTime.Move(120, 1080, 2520, 315);
    updnCalls.SetContainer("fraCall");
    updnCalls.Move(2880, 690, 300, 705);
    updnCalls.SetToolTipText("Step through the Calls");

    for (int i = 0; i < 4; ++i) {
        Label1[i].SetCaption(kCountHeadings[i]);
        Label1[i].Move(240, 2880 + i * 360, 2640, 255);
        lblCount[i].SetCaption("0");
        lblCount[i].SetAlignment(1);
        lblCount[i].Move(3000, 2880 + i * 360, 1200, 255);
    }
    lblCount[0].SetToolTipText("Displays the No of Calls Received");

    fraSummary.SetCaption("Calls List");
    fraSummary.Move(4440, 120, 5040, 4320);
    fgCallSummary.SetContainer("fraSummary");
    fgCallSummary.Move(120, 300, 4800, 3900);
    fgCallSummary.SetCols(3);
    fgCallSummary.SetFixedCols(0);
    fgCallSummary.SetFormatString("<Time        |<Number            |<Name                       ");
    fgCallSummary.SetRows(1);

    cmdDial.SetCaption("&Dial");
    cmdDial.SetToolTipText("Call Selected Number");
    cmdDial.Move(240, 4620, 1320, 435);
    cmdClear.SetCaption("&Clear All Calls");
    cmdClear.SetToolTipText("Deletes all Stored Calls");
    cmdClear.Move(1680, 4620, 1920, 435);
    cmdExit.SetCaption(" &Main Menu");
    cmdExit.Move(3720, 4620, 1560, 435);

    for (ListBox* list : {&lstCustomerTel, &lstCustomerCell}) {
        list->SetVisible(false);
        list->Move(0, 0, 1215, 255);
    }
    mnuSummary.SetCaption("Summary");
    mnuSummary.SetToolTipText("Toggle View");

    On("Form.Load", [this](EventArgs&) { Form_Load(); });
    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.Deactivate", [this](EventArgs&) { Form_Deactivate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("tmrMain.Timer", [this](EventArgs&) { tmrMain_Timer(); });
    On("updnCalls.UpClick", [this](EventArgs&) { updnCalls_UpClick(); });
    On("updnCalls.DownClick", [this](EventArgs&) { updnCalls_DownClick(); });
    On("cmdDial.Click", [this](EventArgs&) { cmdDial_Click(); });
    On("Image1.Click", [this](EventArgs&) { Image1_Click(); });
    On("imgLogo.Click", [this](EventArgs&) { imgLogo_Click(); });
    On("mnuSummary.Click", [this](EventArgs&) { mnuSummary_Click(); });
    On("cmdClear.Click", [this](EventArgs&) { cmdClear_Click(); });
    On("cmdExit.Click", [this](EventArgs&) { cmdExit_Click(); });
}

void frmCallID::Form_Load() {
    LoadCustomerNumbers();
}

// Both lists keep one row a customer record, empty numbers too; they are read once, when
// the screen loads.
void frmCallID::LoadCustomerNumbers() {
    const int records = CountRecords(customers::kCustomerFile,
                                     static_cast<int>(customers::kCustomerRecord.Length()));
    lstCustomerTel.Clear();
    lstCustomerCell.Clear();
    if (records <= 0) return;
    OpenCustomerData();
    const std::string bytes = GetRecords(MainFileNo, 1, records);
    CloseAllFiles();
    const std::size_t length = customers::kCustomerRecord.Length();
    for (int i = 0; i < records; ++i) {
        const std::size_t at = static_cast<std::size_t>(i) * length;
        const Record record(customers::kCustomerRecord,
                            at < bytes.size() ? bytes.substr(at, length) : std::string());
        lstCustomerTel.AddItem(record.Trimmed("Telephone"));
        lstCustomerCell.AddItem(record.Trimmed("CellPhone"));
    }
}

void frmCallID::Form_Activate() {
    ResetDisplay();
    OpenCallerPort();
    StartCallerID();
}

void frmCallID::imgLogo_Click() {
    Form_Activate();
}

void frmCallID::ResetDisplay() {
    cmdExit.SetEnabled(false);
    for (int i = 0; i < 3; ++i) lblCount[i].SetCaption("0");
    CustomerCalls = 0;
    OtherCalls = 0;
    const std::int32_t calls = StoredCalls();
    // An empty file lists no call, as no file does.
    if (calls == 0) {
        lblName.SetCaption("Name");
        lblNumber.SetCaption("Number");
        lblTime.SetCaption("Time Recv'd");
        lblCount[3].SetCaption("0");
        fgCallSummary.SetRows(1);
        updnCalls.SetEnabled(false);
        cmdClear.SetEnabled(false);
        return;
    }
    const std::size_t length = kTelCallRecord.Length();
    OpenRandom(kTelCallFile, static_cast<int>(length));
    const std::string bytes = GetRecords(MainFileNo, 1, calls);
    CloseAllFiles();
    fgCallSummary.SetRows(calls + 1);
    for (std::int32_t i = 1; i <= calls; ++i) {
        const Record record(kTelCallRecord,
                            bytes.substr(static_cast<std::size_t>(i - 1) * length, length));
        fgCallSummary.SetTextMatrix(i, 1, record.Text("Number"));
        fgCallSummary.SetTextMatrix(i, 2, record.Text("Name"));
        fgCallSummary.SetTextMatrix(i, 0, record.Text("Time"));
    }
    lblName.SetCaption(fgCallSummary.TextMatrix(1, 2));
    lblNumber.SetCaption(fgCallSummary.TextMatrix(1, 1));
    lblTime.SetCaption(fgCallSummary.TextMatrix(1, 0));
    lblCount[3].SetCaption(std::to_string(calls));
    CallCount = calls;
    updnCalls.SetEnabled(true);
    updnCalls.SetMax(calls);
    updnCalls.SetValue(1);
    updnCalls.SetMin(1);
    cmdClear.SetEnabled(true);
}

// The records of TelCall.txt, none when there is no file.
std::int32_t frmCallID::StoredCalls() {
    if (!FindFile(kTelCallFile)) return 0;
    const auto length = static_cast<std::int64_t>(kTelCallRecord.Length());
    const std::int64_t size = FileLen(DataPath(kTelCallFile));
    // The monitor writes whole records only: anything else is not a call list.
    if (size % length != 0) platform::Raise(err::BadRecordLength, kTelCallFile);
    return CLng(static_cast<double>(size / length));
}

void frmCallID::OpenCallerPort() {
    SerialPort& port = SharedSerialPort();
    if (!port.PortOpen()) IgnoringPortErrors([&] { port.SetPortOpen(true); });
    IgnoringPortErrors([&] { port.SetInBufferCount(0); });
}

void frmCallID::StartCallerID() {
    IgnoringPortErrors([] { SharedSerialPort().Output("AT#CID=1\r"); });
    tmrMain.SetInterval(kAnswerWait);
    tmrMain.SetEnabled(true);
}

void frmCallID::tmrMain_Timer() {
    SerialPort& port = SharedSerialPort();
    CallerIDEnabled = true;
    if (tmrMain.Interval() == kAnswerWait) {
        tmrMain.SetEnabled(false);
        tmrMain.SetInterval(kPollInterval);
        ModemBuffer.clear();
        IgnoringPortErrors([&] { ModemBuffer = port.Input(); });
        cmdExit.SetEnabled(true);
        if (ModemBuffer.find("OK") != std::string::npos) {
            IgnoringPortErrors([&] { ModemBuffer = port.Input(); });
            tmrMain.SetEnabled(true);
        } else {
            // The modem does not report callers: the screen stays up without monitoring.
            CallerIDEnabled = false;
        }
        return;
    }
    Image1.SetVisible(!Image1.Visible());
    tmrMain.SetEnabled(false);
    if (BytesWaiting(port) < kCallerBlockBytes) {
        FlushModemInput();
        return;
    }
    IgnoringPortErrors([&] { ModemBuffer = port.Input(); });
    Image1.SetVisible(true);
    ProcessCall();
}

void frmCallID::FlushModemInput() {
    SerialPort& port = SharedSerialPort();
    if (port.PortOpen()) IgnoringPortErrors([&] { ModemBuffer = port.Input(); });
    ModemBuffer.clear();
    tmrMain.SetEnabled(true);
}

void frmCallID::ProcessCall() {
    const std::string number = ValueBehindTag(ModemBuffer, "NMBR =", kNumberLength);
    std::string name = ValueBehindTag(ModemBuffer, "NAME =", kNameLength);
    // A name that runs into the number tag keeps the tag's "N" at its end.
    if (const std::size_t q = name.find("NMB"); q != std::string::npos) name.resize(q + 1);
    FlushModemInput();
    if (number.rfind('0', 0) == 0 || name.find("RING") != std::string::npos ||
        number.find("RING") != std::string::npos || number.size() < 7)
        return;
    const std::string display = DisplayNumber(number);

    ++CallCount;
    cmdClear.SetEnabled(true);
    lblName.SetCaption(name);
    lblNumber.SetCaption(display);
    lblTime.SetCaption(ShortTime(Now()));
    fgCallSummary.SetRows(CallCount + 1);
    fgCallSummary.SetTextMatrix(CallCount, 1, display);
    fgCallSummary.SetTextMatrix(CallCount, 2, name);
    fgCallSummary.SetTextMatrix(CallCount, 0, lblTime.Caption());
    updnCalls.SetEnabled(true);
    updnCalls.SetMax(CallCount);
    updnCalls.SetMin(1);
    lblCount[0].SetCaption(std::to_string(CallCount));
    lblCount[3].SetCaption(std::to_string(CallCount));

    WriteCallRecord(CallCount);
    CountCaller(display);
}

void frmCallID::WriteCallRecord(std::int32_t recordNumber) {
    Record call(kTelCallRecord);
    call.SetText("Name", lblName.Caption());
    call.SetText("Number", lblNumber.Caption());
    call.SetText("Time", lblTime.Caption());
    OpenRandom(kTelCallFile, static_cast<int>(kTelCallRecord.Length()));
    PutRecord(MainFileNo, recordNumber, call);
    CloseAllFiles();
}

// Only the counters learn whose call it was; the customer's name is not fetched.
void frmCallID::CountCaller(const std::string& display) {
    const std::string caller = Trim(display);
    for (int i = 0; i < lstCustomerTel.ListCount(); ++i) {
        if (caller == lstCustomerCell.List(i) || caller == lstCustomerTel.List(i)) {
            ++CustomerCalls;
            lblCount[1].SetCaption(std::to_string(CustomerCalls));
            return;
        }
    }
    ++OtherCalls;
    lblCount[2].SetCaption(std::to_string(OtherCalls));
}

void frmCallID::ShowSelectedCall() {
    const int row = updnCalls.Value();
    if (row < 0 || row >= fgCallSummary.Rows()) return;
    lblName.SetCaption(fgCallSummary.TextMatrix(row, 2));
    lblNumber.SetCaption(fgCallSummary.TextMatrix(row, 1));
    lblTime.SetCaption(fgCallSummary.TextMatrix(row, 0));
}

void frmCallID::updnCalls_UpClick() {
    ShowSelectedCall();
}

void frmCallID::updnCalls_DownClick() {
    ShowSelectedCall();
}

void frmCallID::cmdDial_Click() {
    const int row = fgCallSummary.Row();
    ShowDialer(fgCallSummary.TextMatrix(row, 2), fgCallSummary.TextMatrix(row, 1));
}

void frmCallID::Image1_Click() {
    if (lblName.Caption() != "Name") {
        ShowDialer(lblName.Caption(), lblNumber.Caption());
        return;
    }
    Forms::Get("frmDialer").Show(vbModal);
}

void frmCallID::mnuSummary_Click() {
    fraSummary.SetVisible(!fraSummary.Visible());
    mnuSummary.SetCaption(mnuSummary.Caption() != "Summary" ? "Summary" : "List");
}

void frmCallID::cmdClear_Click() {
    if (CallCount == 0) return;
    if (MsgBox("Clear All Entries?", vbYesNo + vbQuestion, "Clear Call List") != vbYes) return;
    CallCount = 0;
    DeleteFile(kTelCallFile);
    ResetDisplay();
    cmdExit.SetEnabled(true);
}

void frmCallID::cmdExit_Click() {
    tmrMain.SetEnabled(false);
    Unload();
    ShowMainMenuFromSetup();
}

// Whenever another screen takes the focus, the modal dialler too, caller ID is switched off
// and the port closed: a call that comes in meanwhile is not seen.
void frmCallID::Form_Deactivate() {
    SerialPort& port = SharedSerialPort();
    if (port.PortOpen()) {
        IgnoringPortErrors([&] { port.Output("AT#CID=0;\r"); });
        IgnoringPortErrors([&] { ModemBuffer = port.Input(); });
        ModemBuffer.clear();
        IgnoringPortErrors([&] { port.SetPortOpen(false); });
    }
    tmrMain.SetEnabled(false);
}

void frmCallID::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode == 0) ExitProgramFromSetup();
}
