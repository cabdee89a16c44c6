#include "projects/MilestonePlacement.h"

#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "projects/CreationWizard.h"
#include "projects/TeamSchedule.h"
#include "projects/frmMain.h"
#include "schedule/SchedulerRoutines.h"
#include "schedule/Workdays.h"
#include "setup/CharacteristicsRoutines.h"
#include "store/SharedState.h"

using namespace platform;

std::vector<std::string> MsName;
std::vector<std::int16_t> MsType;
std::vector<DateTime> MsDate;
std::vector<std::int16_t> MsPhase;
std::vector<std::int16_t> MsDependency;
std::vector<std::int16_t> MsLead;
std::vector<std::string> MsTeam;
std::vector<std::string> MsLocation;
std::vector<std::string> MsStartSlot;
std::vector<std::string> MsTime;
std::vector<std::string> MsMode;
std::vector<std::string> MsStatus;
std::vector<std::string> MsCompletion;

namespace {

constexpr int kMostHours = 12;
constexpr int kMostDays = 90;

template <typename T>
T TemplateValue(const std::vector<T>& array, int index) {
    return index >= 0 && index < static_cast<int>(array.size()) ? array[static_cast<size_t>(index)]
                                                                : T{};
}

// The text of the duration box as the whole number it holds.
int WholeTime(const frmMain& form) {
    return static_cast<int>(Val(form.txtTime.Text()));
}

}  // namespace

void RaiseSubscriptOutOfRange() {
    Raise(err::SubscriptOutOfRange, "milestone arrays");
}

void SizeMilestoneArrays(int count) {
    const size_t size = static_cast<size_t>(count < 0 ? 0 : count) + 1;
    MsName.assign(size, "");
    MsType.assign(size, 0);
    MsDate.assign(size, DateTime());
    MsPhase.assign(size, 0);
    MsDependency.assign(size, 0);
    MsLead.assign(size, 0);
    MsTeam.assign(size, "");
    MsLocation.assign(size, "");
    MsStartSlot.assign(size, "");
    MsTime.assign(size, "");
    MsMode.assign(size, "");
    MsStatus.assign(size, "");
    MsCompletion.assign(size, "");
}

void BuildMilestoneArrays(frmMain& form) {
    const ListBox& list = form.lstMilestoneSelection;
    SizeMilestoneArrays(list.SelCount());
    MilestoneCount = 0;
    int skipped = 0;
    int k = 0;
    for (int i = 1; i <= list.ListCount(); ++i) {
        if (!list.Selected(i - 1)) {
            ++skipped;
            continue;
        }
        ++MilestoneCount;
        ++k;
        MsAt(MsName, k) = TemplateValue(CharName, i);
        MsAt(MsType, k) = TemplateValue(CharType, i);
        MsAt(MsPhase, k) = TemplateValue(CharPhase, i);
        const int dependency = TemplateValue(CharDependency, i);
        if (dependency < 1 || dependency > list.ListCount() || !list.Selected(dependency - 1)) {
            MsAt(MsDependency, k) = 0;
            MsAt(MsLead, k) = 0;
        } else {
            // Counts back by every template left out before this one, as it always has.
            MsAt(MsDependency, k) = static_cast<std::int16_t>(dependency - skipped);
            MsAt(MsLead, k) = TemplateValue(CharLead, i);
        }
    }
}

void SetHoursEntry(frmMain& form) {
    form.UpDnTime.SetMax(kMostHours);
    form.UpDnTime.SetValue(1);
    form.txtTime.SetText("1");
    form.lblMode.SetCaption("Hours");
    form.UpDnTime.SetToolTipText("Add or Subtract Hours needed");
    form.cmdHourly.SetEnabled(true);
}

void SetDaysEntry(frmMain& form) {
    form.UpDnTime.SetValue(1);
    form.txtTime.SetText("1");
    form.UpDnTime.SetMax(kMostDays);
    form.UpDnTime.SetToolTipText("Add or Subtract Days needed");
    form.lblMode.SetCaption("Days");
    form.cmdHourly.SetEnabled(false);
}

void Milestones(frmMain& form) {
    const long current = form.CurrentMilestone;
    if (form.optSelect[1].Value())
        SetDaysEntry(form);
    else
        SetHoursEntry(form);
    if (MsAt(MsType, current) == 2) form.lstTeam_Click();
    form.txtConEvents.SetText(MsAt(MsName, current));
    const int dependency = MsAt(MsDependency, current);
    if (dependency > 0) {
        form.fraDependent.SetVisible(true);
        form.txtConEventsDays.SetText(std::to_string(MsAt(MsLead, current)));
        form.txtDependentEvent.SetText(MsAt(MsName, dependency) + " ( " +
                                       ShortDate(MsAt(MsDate, dependency)) + ")");
    } else {
        form.fraDependent.SetVisible(false);
    }
}

void ShowMilestoneControls(frmMain& form) {
    const long current = form.CurrentMilestone;
    if (MsAt(MsType, current) == 2) {
        form.mnuWindows.SetEnabled(true);
        form.mnuTeamCal.SetEnabled(true);
        form.fraTime.SetVisible(true);
        form.fraTeam.SetVisible(true);
        form.fraLocation.SetVisible(true);
        form.lblConstructionInstructions[1].SetVisible(false);
        if (MsAt(MsPhase, current) == 2)
            form.optSite.SetValue(true);
        else
            form.optOffice.SetValue(true);
    } else {
        form.mnuWindows.SetEnabled(false);
        form.fraTeamCal.SetVisible(false);
        form.fraTime.SetVisible(false);
        form.fraTeam.SetVisible(false);
        form.fraLocation.SetVisible(false);
        ShowCalendarFrame(form);
        form.lblConstructionInstructions[1].SetVisible(true);
    }
}

void PlaceMilestone(frmMain& form) {
    const long current = form.CurrentMilestone;
    const DateTime calendarDate = form.MonthView1.Value();
    MsAt(MsDate, current) = calendarDate;
    if (MsAt(MsType, current) == 1) {
        MsAt(MsLocation, current) = "Office";
        ShowMilestoneControls(form);
    } else {
        MsAt(MsMode, current) = form.lblMode.Caption();
        MsAt(MsTime, current) = form.txtTime.Text();
        MsAt(MsLocation, current) = form.optSite.Value() ? "On Site" : "Office/Shop";
        if (form.lblMode.Caption() == "Hours") {
            if (form.fraCalendar.Visible()) {
                // First press: the user now picks the starting hour on the grid.
                form.lblDateTime.SetCaption("Click a Starting Hour");
                form.fraTime.SetEnabled(false);
                form.fraLocation.SetEnabled(false);
                form.fraCalendar.SetVisible(false);
                form.fraHours.SetVisible(true);
                form.fraTeam.SetVisible(true);
                form.cmdClear.SetEnabled(true);
                return;
            }
            form.fraTime.SetEnabled(true);
            form.fraLocation.SetEnabled(true);
            form.tgTime.SetEnabled(true);
            if (form.SlotSelection == kNoSlotSelected) {
                MsgBox("A Time Must be Selected", vbOKOnly, "Select a Time");
                return;
            }
            form.fraConEvents.SetVisible(true);
            form.fraCalendar.SetVisible(true);
            form.fraHours.SetVisible(false);
            form.cmdClear.SetEnabled(false);
            WriteDay(CurrentDate, CurrentTeam);
        } else {
            const int days = WholeTime(form);
            std::int16_t conflict = 0;
            CheckConsecutiveDays(MsAt(MsDate, current), days, conflict);
            if (conflict == -1) {
                AlarmBeep();
                MsgBox("    60 Workdays have been scanned\r\n   " + form.txtTime.Text() +
                           " Consecutive Workdays are not Available\r\n"
                           "Review the Team Schedules to find ample Days",
                       vbOKOnly, "Not enough Consecutive Days");
                EnterScheduling(form);
                return;
            }
            if (ShowPrompts)
                MsgBox(ShortDate(calendarDate) + " is the 1st day scheduled\r\n" +
                           form.txtTime.Text() + " days will be scheduled",
                       vbInformation);
            // The block starts on the calendar's date, wherever the search ended.
            DateTime start = calendarDate;
            WriteDays(start, days, form.lblProjectNo.Caption() + "-" + MsAt(MsName, current));
            MsAt(MsDate, current) = calendarDate;
            MsAt(MsStartSlot, current) = "3";
        }
    }

    WriteMilestoneLine(MilestoneLineOf(current));
    ++form.CurrentMilestone;
    if (form.CurrentMilestone > MilestoneCount) {
        MsAt(MsDate, MilestoneCount) = form.MonthView1.Value();
        ShowProjectSummary(form);
        return;
    }
    const int days = form.lblMode.Caption() == "Hours" ? 0 : WholeTime(form);
    ProposeDate(form, form.MonthView1.Value(), days);
    ShowMilestoneControls(form);
    const int phase = MsAt(MsPhase, form.CurrentMilestone);
    if (phase == 2 || phase == 3) form.CreationMode = static_cast<std::int16_t>(phase);
    Milestones(form);
}

DateTime ProposedDate(DateTime dependencyDate, int days, int lead) {
    const DateTime base = dependencyDate.AddDays(days);
    const DateTime a = NextWorkday(base, 0);
    const DateTime b = NextWorkday(base.AddDays(-1), 0);
    const DateTime c = NextWorkday(b.AddDays(lead), 0);
    return c > a ? c : a;
}

void ProposeDate(frmMain& form, DateTime previousDate, int days) {
    (void)previousDate;  // the calendar stays on it when nothing is proposed
    const long current = form.CurrentMilestone;
    const int dependency = MsAt(MsDependency, current);
    const int lead = MsAt(MsLead, current);
    if (dependency == 0 || lead == 0) return;
    ShowCalendarDate(form, ProposedDate(MsAt(MsDate, dependency), days, lead));
}

Milestone MilestoneLineOf(long index) {
    return Milestone{MsAt(MsName, index),  MsAt(MsType, index),       MsAt(MsDate, index),
                     MsAt(MsPhase, index), MsAt(MsDependency, index), MsAt(MsLead, index),
                     MsAt(MsTeam, index),  MsAt(MsLocation, index),   MsAt(MsStartSlot, index),
                     MsAt(MsTime, index),  MsAt(MsMode, index),       kScheduledStatus,
                     kNotCompleted};
}

void LoadMilestoneArrays(const std::vector<Milestone>& lines) {
    SizeMilestoneArrays(static_cast<int>(lines.size()));
    for (size_t i = 0; i < lines.size(); ++i) {
        const Milestone& m = lines[i];
        MsName[i + 1] = m.name;
        MsType[i + 1] = m.type;
        MsDate[i + 1] = m.date;
        MsPhase[i + 1] = m.phase;
        MsDependency[i + 1] = m.dependency;
        MsLead[i + 1] = m.lead;
        MsTeam[i + 1] = m.team;
        MsLocation[i + 1] = m.location;
        MsStartSlot[i + 1] = m.startSlot;
        MsTime[i + 1] = m.time;
        MsMode[i + 1] = m.mode;
        MsStatus[i + 1] = m.status;
        MsCompletion[i + 1] = m.completion;
    }
}
