#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/Form.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"

// A screen with one of every control, laid out as the system's screens are, whose
// handlers write what they saw into a log.
class frmDemo : public platform::Form {
  public:
    static constexpr const char* kName = "frmDemo";
    std::vector<std::string> log;

    platform::CommandButton cmdOK{*this, "cmdOK"};
    platform::CommandButton cmdCancel{*this, "cmdCancel"};
    platform::CommandButton cmdFail{*this, "cmdFail"};
    platform::Label lblName{*this, "lblName"};
    platform::TextBox txtName{*this, "txtName"};
    platform::TextBox txtNotes{*this, "txtNotes"};
    platform::Frame fraKind{*this, "fraKind"};
    platform::OptionButton optKind0{*this, "optKind", 0};
    platform::OptionButton optKind1{*this, "optKind", 1};
    platform::Frame fraSize{*this, "fraSize"};
    platform::OptionButton optSmall{*this, "optSmall"};
    platform::OptionButton optLarge{*this, "optLarge"};
    platform::CheckBox ckActive{*this, "ckActive"};
    platform::ListBox lstTeam{*this, "lstTeam"};
    platform::ListBox lstDays{*this, "lstDays"};
    platform::ComboBox cboState{*this, "cboState"};
    platform::ComboBox cboCity{*this, "cboCity"};
    platform::Grid fgHours{*this, "fgHours"};
    platform::MonthView MonthView1{*this, "MonthView1"};
    platform::DatePicker DTStart{*this, "DTStart"};
    platform::TextBox txtDays{*this, "txtDays"};
    platform::UpDown UpDn1{*this, "UpDn1"};
    platform::ProgressBar ProgressBar1{*this, "ProgressBar1"};
    platform::Tab SSTab1{*this, "SSTab1"};
    platform::Label lblFirstPage{*this, "lblFirstPage"};
    platform::TextBox txtSecondPage{*this, "txtSecondPage"};
    platform::Image imgLogo{*this, "imgLogo"};
    platform::Menu mnuFile{*this, "mnuFile"};
    platform::Menu mnuExit{*this, "mnuExit"};
    platform::Menu mnuPopup{*this, "mnuPopup"};
    platform::Menu mnuPopupDelete{*this, "mnuPopupDelete"};
    platform::Timer tmrPoll{*this, "tmrPoll"};

    frmDemo() : Form(kName) {
        SetCaption("Demo Screen");
        SetSize(12000, 8400);
        cmdOK.SetCaption("&OK");
        cmdOK.Move(10200, 6960, 1335, 420);
        cmdOK.SetDefault(true);
        cmdCancel.SetCaption("&Cancel");
        cmdCancel.Move(8700, 6960, 1335, 420);
        cmdCancel.SetCancel(true);
        cmdFail.SetCaption("&Fail");
        cmdFail.Move(7200, 6960, 1335, 420);
        lblName.SetCaption("Customer &Name");
        lblName.Move(120, 120, 1500, 255);
        txtName.Move(1680, 90, 2400, 315);
        txtName.SetMaxLength(12);
        txtNotes.SetMultiLine(true);
        txtNotes.Move(120, 480, 3960, 900);
        fraKind.SetCaption("Kind");
        fraKind.Move(120, 1500, 1900, 1000);
        optKind0.SetCaption("Hourly");
        optKind0.SetContainer("fraKind");
        optKind0.Move(120, 300, 1600, 255);
        optKind1.SetCaption("Daily");
        optKind1.SetContainer("fraKind");
        optKind1.Move(120, 620, 1600, 255);
        fraSize.SetCaption("Size");
        fraSize.Move(2180, 1500, 1900, 1000);
        optSmall.SetCaption("Small");
        optSmall.SetContainer("fraSize");
        optSmall.Move(120, 300, 1600, 255);
        optLarge.SetCaption("Large");
        optLarge.SetContainer("fraSize");
        optLarge.Move(120, 620, 1600, 255);
        ckActive.SetCaption("Active");
        ckActive.Move(120, 2600, 1900, 255);
        lstTeam.Move(120, 3000, 1900, 1400);
        lstDays.SetMultiSelect(true);
        lstDays.Move(2180, 3000, 1900, 1400);
        cboState.SetStyle(platform::ComboBox::DropDownList);
        cboState.Move(120, 4560, 1900, 315);
        cboCity.Move(2180, 4560, 1900, 315);
        fgHours.Move(4300, 90, 3600, 3000);
        MonthView1.Move(8100, 90, 3600, 2900);
        DTStart.Move(8100, 3200, 1800, 315);
        txtDays.Move(10100, 3200, 1000, 315);
        UpDn1.Move(11100, 3200, 255, 315);
        ProgressBar1.Move(8100, 3700, 3600, 255);
        SSTab1.Move(4300, 3300, 3600, 2400);
        SSTab1.SetTabs(2);
        SSTab1.SetTabCaption(0, "&First");
        SSTab1.SetTabCaption(1, "&Second");
        lblFirstPage.SetCaption("On the first page");
        lblFirstPage.SetContainer("SSTab1", 0);
        lblFirstPage.Move(200, 600, 2400, 255);
        txtSecondPage.SetContainer("SSTab1", 1);
        txtSecondPage.Move(200, 600, 2400, 315);
        imgLogo.Move(8100, 4200, 1200, 1200);
        imgLogo.SetStretch(true);
        mnuFile.SetCaption("&File");
        mnuExit.SetCaption("E&xit");
        mnuExit.SetContainer("mnuFile");
        mnuPopup.SetCaption("Popup");
        mnuPopup.SetVisible(false);
        mnuPopupDelete.SetCaption("&Delete");
        mnuPopupDelete.SetContainer("mnuPopup");

        On("cmdOK.Click", [this](platform::EventArgs&) { Note("cmdOK.Click"); });
        On("cmdCancel.Click", [this](platform::EventArgs&) { Note("cmdCancel.Click"); });
        On("cmdFail.Click", [this](platform::EventArgs&) {
            Note("cmdFail.Click");
            platform::Raise(platform::err::FileNotFound);
        });
        On("lblName.DblClick", [this](platform::EventArgs&) { Note("lblName.DblClick"); });
        On("txtName.KeyPress", [this](platform::EventArgs& e) {
            if (e.keyAscii >= '0' && e.keyAscii <= '9') e.keyAscii = 0;  // names have no digits
            if (e.keyAscii == '*') e.keyAscii = '-';
        });
        On("txtName.Change",
           [this](platform::EventArgs&) { Note("txtName.Change " + txtName.Text()); });
        On("optKind.Click",
           [this](platform::EventArgs& e) { Note("optKind.Click " + std::to_string(e.index)); });
        On("ckActive.Click", [this](platform::EventArgs&) {
            Note("ckActive.Click " + std::to_string(ckActive.Value()));
        });
        On("lstTeam.Click",
           [this](platform::EventArgs&) { Note("lstTeam.Click " + lstTeam.Text()); });
        On("lstTeam.DblClick", [this](platform::EventArgs&) { Note("lstTeam.DblClick"); });
        On("lstDays.Click", [this](platform::EventArgs&) { Note("lstDays.Click"); });
        On("cboState.Click",
           [this](platform::EventArgs&) { Note("cboState.Click " + cboState.Text()); });
        // Type-ahead: the first entry that starts with what was typed, the rest selected.
        On("cboCity.KeyPress", [this](platform::EventArgs& e) {
            if (e.keyAscii < 32) return;
            std::string typed = cboCity.Text().substr(0, static_cast<size_t>(cboCity.SelStart()));
            typed.push_back(static_cast<char>(e.keyAscii));
            const int found = cboCity.FindString(typed);
            if (found < 0) return;
            e.keyAscii = 0;
            cboCity.SetListIndex(found);
            cboCity.SetSelStart(static_cast<int>(typed.size()));
            cboCity.SetSelLength(static_cast<int>(cboCity.Text().size() - typed.size()));
        });
        On("fgHours.Click", [this](platform::EventArgs&) {
            Note("fgHours.Click " + std::to_string(fgHours.Row()) + "," +
                 std::to_string(fgHours.Col()));
        });
        On("fgHours.MouseDown", [this](platform::EventArgs& e) {
            Note("fgHours.MouseDown " + std::to_string(e.button));
        });
        On("fgHours.DblClick", [this](platform::EventArgs&) { Note("fgHours.DblClick"); });
        On("MonthView1.SelChange", [this](platform::EventArgs&) {
            Note("MonthView1.SelChange " + platform::ShortDate(MonthView1.Value()));
        });
        On("DTStart.Change", [this](platform::EventArgs&) {
            Note("DTStart.Change " + platform::ShortDate(DTStart.Value()));
        });
        On("UpDn1.Change",
           [this](platform::EventArgs&) { txtDays.SetText(std::to_string(UpDn1.Value())); });
        On("SSTab1.Click", [this](platform::EventArgs& e) {
            Note("SSTab1.Click from " + std::to_string(e.previousTab));
        });
        On("txtName.DragDrop", [this](platform::EventArgs& e) {
            Note("txtName.DragDrop from " + (e.source ? e.source->Key() : std::string("nothing")));
        });
        On("mnuExit.Click", [this](platform::EventArgs&) { Note("mnuExit.Click"); });
        On("tmrPoll.Timer", [this](platform::EventArgs&) {
            ++ticksRunning;
            maxTicksRunning = std::max(maxTicksRunning, ticksRunning);
            Note("tmrPoll.Timer");
            platform::DoEvents();  // a slow poll lets the next tick come due
            --ticksRunning;
        });
        On("Form.QueryUnload", [this](platform::EventArgs& e) {
            Note("Form.QueryUnload " + std::to_string(e.unloadMode));
            e.cancel = refuseUnload ? 1 : 0;
        });
    }

    void FillGrid() {
        fgHours.SetFormatString("^Hour|<Event");
        fgHours.SetRows(13);
        fgHours.SetColWidth(0, 900);
        fgHours.SetColWidth(1, 2400);
        for (int r = 1; r < 13; ++r) {
            fgHours.SetTextMatrix(r, 0, std::to_string(6 + r) + ":00");
            fgHours.SetTextMatrix(r, 1, "No Event Scheduled");
        }
    }

    int ticksRunning = 0;
    int maxTicksRunning = 0;
    bool refuseUnload = false;

  private:
    void Note(const std::string& line) { log.push_back(line); }
};

// A small screen shown modally over the demo.
class frmAsk : public platform::Form {
  public:
    static constexpr const char* kName = "frmAsk";
    platform::CommandButton cmdDone{*this, "cmdDone"};
    frmAsk() : Form(kName) {
        SetCaption("Question");
        SetSize(4000, 2000);
        cmdDone.SetCaption("&Done");
        cmdDone.Move(1200, 600, 1335, 420);
        On("cmdDone.Click", [this](platform::EventArgs&) { Hide(); });
    }
};
