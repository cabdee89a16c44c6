#include "telephony/frmCallBack.h"

#include <string>

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Pictures.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "projects/ProjectRecord.h"
#include "schedule/SchedulerRoutines.h"
#include "setup/SetupHooks.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"
#include "telephony/DialerLink.h"

using namespace platform;
using projects::kProjectRecord;
using projects::kSlipsFile;

namespace {

constexpr int kColumns = 7;
constexpr int kKeyColumn = 6;  // year and day of the year, not shown
constexpr int kLoadGrid = 3, kNextYear = 5, kNextMonth = 6, kNextQuarter = 7;

// A slip of a service contract has no hour of its own.
constexpr const char* kContractKey = "Contract";

// A number field of a slip used as an index, converted as the platform converts text:
// no number is "Type mismatch", past 16 bits "Overflow".
int FieldNumber(const Record& slip, const char* field) {
    double value = 0;
    const NumberText read = ParseNumber(slip.Trimmed(field), value);
    if (read == NumberText::Overflow) Raise(err::Overflow, kSlipsFile);
    if (read != NumberText::Number) Raise(err::TypeMismatch, kSlipsFile);
    return CInt(value);
}

template <typename Entries>
const std::string& Entry(const Entries& entries, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= entries.size())
        Raise(err::SubscriptOutOfRange, kSlipsFile);
    return entries[static_cast<std::size_t>(index)];
}

}  // namespace

frmCallBack::frmCallBack() : Form(kName) {
    SetCaption("Upcoming Service Calls");
    SetSize(12120, 6600);

    Label1[0].SetCaption("From");
    Label1[0].Move(240, 270, 600, 255);
    DTStarting.Move(840, 240, 1560, 315);
    Label1[1].SetCaption("To");
    Label1[1].Move(2640, 270, 600, 255);
    DTEnding.Move(3240, 240, 1560, 315);

    const char* const captions[8] = {"", "",          "",           "&Load Grid",
                                     "", "Next Year", "Next Month", "Next Qtr"};
    int left = 5040;
    for (int i = 0; i < cmdWeekly.Count(); ++i) {
        cmdWeekly[i].SetCaption(captions[i]);
        if (captions[i][0] == '\0') {
            cmdWeekly[i].SetVisible(false);
            continue;
        }
        cmdWeekly[i].Move(left, 180, 1320, 435);
        left += 1440;
    }

    fgTomorrow.Move(240, 840, 11520, 4440);
    fgTomorrow.SetFixedCols(0);
    fgTomorrow.SetFormatString(
        "<Account Name                  |^Date            |^  Time   |^Telephone No   |Assigned to "
        "               |Service                                     ");
    // The sort key rides behind the six columns of the headings, out of sight.
    fgTomorrow.SetCols(kColumns);
    fgTomorrow.SetColWidth(kKeyColumn, 0);
    fgTomorrow.SetToolTipText("Click an Account, then the Telephone to Call");

    Image2.SetPicture(pictures::kDial);
    Image2.SetToolTipText("Call the selected Account");
    Image2.Move(240, 5400, 480, 480);
    Image2.SetEnabled(false);
    cmdTomorrow.SetCaption("&Menu");
    cmdTomorrow.Move(10200, 5400, 1560, 435);

    On("Form.Activate", [this](EventArgs&) { Form_Activate(); });
    On("Form.QueryUnload", [this](EventArgs& e) { Form_QueryUnload(e); });
    On("cmdWeekly.Click", [this](EventArgs& e) { cmdWeekly_Click(e.index); });
    On("fgTomorrow.Click", [this](EventArgs&) { fgTomorrow_Click(); });
    On("Image2.Click", [this](EventArgs&) { Image2_Click(); });
    On("cmdTomorrow.Click", [this](EventArgs&) { cmdTomorrow_Click(); });
}

// Also after the dialler closes: the range goes back to the next month, the grid is fresh.
void frmCallBack::Form_Activate() {
    DTStarting.SetValue(Today());
    DTEnding.SetValue(DateAdd("m", 1, Today()));
    if (!FindFile(kSlipsFile)) {
        MsgBox("No Service Slips were found");
        cmdTomorrow_Click();
        return;
    }
    LoadGrid();
}

void frmCallBack::ClearGrid() {
    for (int r = 0; r < fgTomorrow.Rows(); ++r)
        for (int c = 0; c < kColumns; ++c)
            if (r >= fgTomorrow.FixedRows()) fgTomorrow.SetTextMatrix(r, c, "");
}

void frmCallBack::LoadGrid() {
    ClearGrid();
    const std::size_t length = kProjectRecord.Length();
    const std::int64_t size = FindFile(kSlipsFile) ? FileLen(DataPath(kSlipsFile)) : 0;
    // The service program writes whole slips only: anything else is not a slip file.
    if (size % static_cast<std::int64_t>(length) != 0)
        platform::Raise(err::BadRecordLength, kSlipsFile);
    n = CInt(static_cast<double>(size / static_cast<std::int64_t>(length)));
    std::string bytes;
    if (n > 0) {
        OpenRandom(kSlipsFile, static_cast<int>(length));
        bytes = GetRecords(MainFileNo, 1, n);
        CloseAllFiles();
    }
    row = 1;
    fgTomorrow.SetRows(n + 1);
    const double first = DTStarting.Value().Serial();
    const double last = DTEnding.Value().Serial();
    for (int i = 0; i < n; ++i) {
        const Record slip(kProjectRecord,
                          bytes.substr(static_cast<std::size_t>(i) * length, length));
        DateTime date;
        if (!ParseDate(slip.Trimmed("Date"), date)) platform::Raise(err::TypeMismatch, kSlipsFile);
        if (date.Serial() < first || date.Serial() > last) {
            fgTomorrow.SetRows(fgTomorrow.Rows() - 1);
            continue;
        }
        const std::string time = slip.Trimmed("ProjectNo") == kContractKey
                                     ? std::string("Cont")
                                     : Entry(HourLabels, FieldNumber(slip, "StartSlot"));
        const std::string team = Entry(TeamNames, 1 + FieldNumber(slip, "Team"));
        fgTomorrow.SetTextMatrix(row, 0, slip.Trimmed("SiteName"));
        fgTomorrow.SetTextMatrix(row, 1, slip.Trimmed("Date"));
        fgTomorrow.SetTextMatrix(row, 2, time);
        fgTomorrow.SetTextMatrix(row, 3, slip.Trimmed("SiteTelephone"));
        fgTomorrow.SetTextMatrix(row, 4, team);
        fgTomorrow.SetTextMatrix(row, 5, slip.Trimmed("Milestone"));
        // Written without padding, so that day 9 of a year ("20269") comes before day 100.
        fgTomorrow.SetTextMatrix(row, kKeyColumn,
                                 std::to_string(date.Year()) + std::to_string(date.DayOfYear()));
        ++row;
    }
    if (row < 2) {
        MsgBox("No Service Slips within the Date Range");
        return;
    }
    fgTomorrow.SetRow(1);
    fgTomorrow.SetCol(kKeyColumn);
    fgTomorrow.SetSort(flexSortGenericAscending);
}

void frmCallBack::cmdWeekly_Click(int index) {
    switch (index) {
        case kNextYear:
            DTEnding.SetValue(DateAdd("yyyy", 1, Today()));
            break;
        case kNextMonth:
            DTEnding.SetValue(DateAdd("m", 1, Today()));
            break;
        case kNextQuarter:
            DTEnding.SetValue(DateAdd("q", 1, Today()));
            break;
        case kLoadGrid:
            LoadGrid();
            return;
        default:
            return;
    }
    DTStarting.SetValue(Today());
    LoadGrid();
}

void frmCallBack::fgTomorrow_Click() {
    if (fgTomorrow.Row() > 0) Image2.SetEnabled(true);
}

void frmCallBack::Image2_Click() {
    const int current = fgTomorrow.Row();
    ShowDialer(fgTomorrow.TextMatrix(current, 0), fgTomorrow.TextMatrix(current, 3));
    Image2.SetEnabled(false);
}

void frmCallBack::cmdTomorrow_Click() {
    Unload();
    ShowMainMenuFromSetup();
}

void frmCallBack::Form_QueryUnload(EventArgs& e) {
    if (e.unloadMode == 0) ExitProgramFromSetup();
}
