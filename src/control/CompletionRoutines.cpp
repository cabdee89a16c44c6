#include "control/CompletionRoutines.h"

#include "control/ProjectTables.h"
#include "control/frmProjectControl.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "projects/ProjectRecord.h"
#include "schedule/SchedulerRoutines.h"
#include "schedule/Workdays.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;
using projects::kProjectRecord;
using projects::kProjectRecordsFile;

void ClearjDayEvents(frmProjectControl& f, int project, int milestone) {
    const Milestone ms = MilestoneOf(project, milestone);
    if (ms.date < Today() || ms.type == 1) return;
    int count = 1;
    if (ms.mode == "Days") count = TextToInteger(ms.time);
    const std::string projectNo = HeaderOf(project).projectNo;
    CurrentDate = ms.date;
    for (int day = 1; day <= count; ++day) {
        ReadDay(CurrentDate, CurrentTeam);
        for (int slot = 1; slot <= 12; ++slot) {
            std::string& text = DaySlots[static_cast<size_t>(slot)];
            // Both as parts of the text: "Frame" also takes "Frame Inspection".
            if (text.find(projectNo) == std::string::npos ||
                text.find(ms.name) == std::string::npos)
                continue;
            text = kFreeSlot;
            // The hour grid has a row for each slot, not for every milestone number.
            if (milestone < f.fgPJHours.Rows()) f.fgPJHours.SetTextMatrix(milestone, 1, kFreeSlot);
        }
        WriteDay(CurrentDate, CurrentTeam);
        CurrentDate = CurrentDate.AddDays(1);
        NextWorkday(CurrentDate);
    }
}

void CompleteMilestone(frmProjectControl& f, int project, int milestone) {
    if (MilestoneOf(project, milestone).type == 2) {
        CurrentTeam = MilestoneOf(project, milestone).team + " ";
        ClearjDayEvents(f, project, milestone);
    }
    const DateTime date = f.MSCal.Value();
    const int row = f.fgMilestones.Row();
    f.fgMilestones.SetTextMatrix(row, 4, ShortDate(date));
    f.fgMilestones.SetTextMatrix(row, 2, "Completed");
    Milestone& ms = MilestoneOf(project, milestone);
    ms.date = date;
    ms.status = "Completed";
    ms.completion = ShortDate(date);
    ProjectChanged.at(static_cast<size_t>(project)) = true;
}

void CompleteAllPastDue() {
    const DateTime today = Today();
    for (int p = 1; p <= ProjectCount; ++p) {
        for (int m = 1; m <= HeaderOf(p).milestoneCount; ++m) {
            Milestone& ms = MilestoneOf(p, m);
            if (!(ms.date < today) || ms.status == "Completed") continue;
            // A past date: the clearing of its slots finds nothing to do.
            ms.completion = ShortDate(today);
            ms.status = "Completed";
            ProjectChanged.at(static_cast<size_t>(p)) = true;
        }
    }
}

void DeleteProject(frmProjectControl& f, int project, const std::string& projectNo) {
    for (int n = 1; n <= HeaderOf(project).milestoneCount; ++n) CompleteMilestone(f, project, n);
    DeleteFile(ProjectFilePath(projectNo));
    if (!FindFile(kProjectRecordsFile)) return;

    const int count = CountRecords(kProjectRecordsFile, static_cast<int>(kProjectRecord.Length()));
    OpenRandom(kProjectRecordsFile, static_cast<int>(kProjectRecord.Length()));
    const int source = MainFileNo;
    OpenTemporaryFile(static_cast<int>(kProjectRecord.Length()));
    // The records are meant to be dropped when their project number is the project's, but
    // the test compares the project's row number with the text of that field, and the two
    // never count as equal: every record is kept, as it was.
    long kept = 0;
    for (long record = 1; record <= count; ++record)
        PutRecord(TempFileNo, ++kept, GetRecord(source, record));
    CloseAll();
    ReplaceWithTemporary(kProjectRecordsFile);
    if (CountRecords(kProjectRecordsFile, static_cast<int>(kProjectRecord.Length())) < 1)
        DeleteEverywhere(kProjectRecordsFile);
}
