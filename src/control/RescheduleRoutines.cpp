#include "control/RescheduleRoutines.h"

#include <cstdint>

#include "control/CompletionRoutines.h"
#include "control/ProjectListRoutines.h"
#include "control/ProjectTables.h"
#include "control/frmProjectControl.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "schedule/SchedulerRoutines.h"
#include "schedule/Workdays.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

const std::string kFree = kFreeSlot;

Milestone& Selected(frmProjectControl& f) {
    return MilestoneOf(f.SelProject, f.SelMilestone);
}

// The slot of the open day; 13 and beyond lie outside it.
std::string& Slot(int slot) {
    if (slot < 0 || slot > 12) Raise(err::SubscriptOutOfRange, "DaySlots");
    return DaySlots[static_cast<size_t>(slot)];
}

void MarkChanged(int project) {
    ProjectChanged.at(static_cast<size_t>(project)) = true;
}

// An hourly milestone on the calendar's date or the next workday that has room. The start
// slot, and the test of the slots after it, are those the placing has always used.
void PlaceHours(frmProjectControl& f) {
    const std::string eventText = EventText(f.SelProject, f.SelMilestone);
    DateTime day = f.MSCal.Value();
    for (;;) {
        ReadDay(day, CurrentTeam);
        const int need = TextToInteger(Selected(f).time);
        const int start = TextToInteger(Selected(f).startSlot);
        // The start slot is looked at in any case; the search stops after slot 12.
        int v = start;
        while (Slot(v) != kFree) {
            if (++v == 13) break;
        }
        bool nextDay = v == 13;
        if (!nextDay && need != 1) {
            if (v + need > 12) {
                nextDay = true;
            } else {
                bool busy = false;
                // Slots 2 to need of the day, whatever v is.
                for (int n = 1; n <= need - 1; ++n)
                    if (Slot(n + 1) != kFree) busy = true;
                if (busy) {
                    Selected(f).startSlot = std::to_string(start + 1);
                    if (start + 1 < 13) continue;  // the same day again, one slot later
                    nextDay = true;
                }
            }
        }
        if (nextDay) {
            f.MSCal.SetValue(day.AddDays(1));
            f.MSCal.SetValue(NextWorkday(f.MSCal.Value(), 0));
            day = f.MSCal.Value();
            continue;
        }
        for (int n = 0; n <= need - 1; ++n) Slot(v + n) = eventText;
        WriteDay(f.MSCal.Value(), CurrentTeam);
        PostReschedule(f);
        return;
    }
}

}  // namespace

void RescheduleDateClicked(frmProjectControl& f) {
    f.CascadeWanted = true;
    const DateTime date = f.MSCal.Value();
    if (date < Today()) {
        AlarmBeep();
        f.MSCal.SetValue(Today());
        return;
    }
    if (date < Selected(f).date) {
        const int answer = MsgBox(
            "Your Date Selection is prior to the Milestones's Current Scheduled Date\r\n"
            "You may Reschedule all subsequent Milestones or leave them as Scheduled\r\n"
            "   Click Yes to Reschedule subsequent Milestones",
            vbYesNo + vbQuestion, "Rescheduling Option");
        if (answer == vbNo) f.CascadeWanted = false;
    }
    if (Selected(f).type == 1) {
        PostReschedule(f);
        if (f.CascadeWanted) {
            const int answer = MsgBox(
                "                 This Event is an Administrative Function\r\n"
                "You may Reshedule all subsequent Milestones or leave them as Scheduled\r\n"
                "   Click Yes to Reschedule subsequent Milestones",
                vbYesNo + vbQuestion, "Rescheduling Option");
            if (answer == vbNo) {
                f.CascadeWanted = false;
            } else {
                CascadeMilestones(f);
                return;
            }
        }
    }
    if (Selected(f).mode == "Hours") {
        f.lblSelectDate.SetCaption(ShortDate(date));
        ReadDay(date, CurrentTeam);
        f.fraTime.SetVisible(true);
        f.fraProjectSummary.SetVisible(false);
        CopyHoursToPJHours(f);
        return;
    }
    ClearjDayEvents(f, f.SelProject, f.SelMilestone);
    PlaceMilestone(f);
}

void StartHourClicked(frmProjectControl& f) {
    f.SelProject = f.fgProjects.Row();
    f.SelMilestone = f.fgMilestones.Row();
    const int need = TextToInteger(Selected(f).time);
    const int row = f.fgPJHours.Row();
    const std::string eventText = EventText(f.SelProject, f.SelMilestone);
    Grid& hours = f.fgPJHours;
    for (int n = 1; n <= 12; ++n) {
        if (hours.TextMatrix(n, 1) == eventText) hours.SetTextMatrix(n, 1, kFree);
        Slot(n) = kFree;
    }
    if (hours.TextMatrix(row, 1) != kFree) {
        MsgBox("This Time Slot is not Available", vbOKOnly, "Event aready Scheduled Here");
        return;
    }
    if (need != 1) {
        if (row - 1 + need > 12) {
            MsgBox("There is not enough Time left in this day\r\n    for this Event to begin at " +
                       hours.TextMatrix(row, 0) + "\r\n          " + Selected(f).time +
                       " Hours are Required",
                   vbOKOnly, "Not Enough Time");
            return;
        }
        // Only the row right after the chosen one is looked at, once for each further hour.
        for (int n = 1; n <= need - 1; ++n) {
            if (hours.TextMatrix(row + 1, 1) != kFree) {
                MsgBox(
                    "A Previously Scheduled Event occurs at one\r\n"
                    "of the Times Required to Complete this Milestone\r\n"
                    "Select a Different Start Time or Date",
                    vbOKOnly, "Event Conflict");
                return;
            }
        }
    }
    for (int n = 1; n <= need; ++n) {
        hours.SetTextMatrix(row - 1 + n, 1, eventText);
        Slot(row - 1 + n) = eventText;
    }
}

void ConfirmHourlyReschedule(frmProjectControl& f) {
    // Written first and cleared after: on the same date the clearing takes the new entry too.
    WriteDay(f.MSCal.Value(), CurrentTeam);
    ClearjDayEvents(f, f.SelProject, f.SelMilestone);
    PostReschedule(f);
    if (f.CascadeWanted) CascadeMilestones(f);
}

void PlaceMilestone(frmProjectControl& f) {
    if (Selected(f).type == 1) {
        PostReschedule(f);
    } else {
        CurrentTeam = Selected(f).team + " ";
        if (Selected(f).mode == "Hours") {
            PlaceHours(f);
        } else {
            const int days = TextToInteger(Selected(f).time);
            // The scan only counts busy days here; neither its answer nor its date is used.
            DateTime scanned = f.MSCal.Value();
            std::int16_t conflict = 0;
            CheckConsecutiveDays(scanned, days, conflict);
            DateTime first = f.MSCal.Value();
            WriteDays(first, days, EventText(f.SelProject, f.SelMilestone));
            PostReschedule(f);
        }
    }
    if (f.SelMilestone < HeaderOf(f.SelProject).milestoneCount && f.CascadeWanted)
        CascadeMilestones(f);
    f.fraMSCal.SetVisible(false);
    MarkChanged(f.SelProject);
}

void PostReschedule(frmProjectControl& f) {
    const DateTime date = f.MSCal.Value();
    const int row = f.fgMilestones.Row();
    f.fgMilestones.SetTextMatrix(row, 3, ShortDate(date));
    f.fgMilestones.SetTextMatrix(row, 2, "Scheduled");
    f.fgMilestones.SetTextMatrix(row, 4, "Not Completed");
    Milestone& ms = Selected(f);
    ms.date = date;
    ms.status = "Scheduled";
    // Whatever row the hour grid stands on, also for a milestone of days.
    ms.startSlot = std::to_string(f.fgPJHours.Row());
    MarkChanged(f.SelProject);
}

void CascadeMilestones(frmProjectControl& f) {
    f.SelMilestone += 1;
    f.fgMilestones.SetRow(f.fgMilestones.Row() + 1);
    CurrentTeam = Selected(f).team + " ";
    const int dependency = Selected(f).dependency;
    if (dependency == 0) {
        if (f.SelMilestone < HeaderOf(f.SelProject).milestoneCount) CascadeMilestones(f);
        return;
    }
    ClearjDayEvents(f, f.SelProject, f.SelMilestone);
    const DateTime after = MilestoneOf(f.SelProject, dependency).date.AddDays(Selected(f).lead);
    f.MSCal.SetValue(after);
    f.MSCal.SetValue(NextWorkday(f.MSCal.Value(), 0));
    PlaceMilestone(f);
    MarkChanged(f.SelProject);
}
