#include "control/ProjectListRoutines.h"

#include "control/ProjectTables.h"
#include "control/frmProjectControl.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "schedule/SchedulerRoutines.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

const char* const kPhaseNames[] = {"Pre-Construction", "Construction", "Post Construction"};

std::string PhaseName(int phase) {
    if (phase < 1 || phase > 3) return {};
    return kPhaseNames[phase - 1];
}

std::string HourLabelOf(const std::string& startSlot) {
    const double slot = Val(startSlot);
    if (slot < 0 || slot > 12) Raise(err::SubscriptOutOfRange, "HourLabels");
    return HourLabels[static_cast<size_t>(slot)];
}

}  // namespace

void ClearProjectGrid(frmProjectControl& f) {
    for (int row = 1; row < f.fgProjects.Rows(); ++row)
        for (int col = 0; col < 5; ++col) f.fgProjects.SetTextMatrix(row, col, "");
    f.fgProjects.SetRows(2);
    f.fgProjects.SetRow(1);
}

void LoadProjects(frmProjectControl& f) {
    f.mnuPastDue.SetEnabled(false);
    f.mnuClearAll.SetEnabled(false);
    f.mnuPrintAll.SetEnabled(false);
    ClearProjectGrid(f);
    ProjectCount = FindProjectFiles();
    if (ProjectCount == 0) return;

    f.mnuClearAll.SetEnabled(true);
    f.mnuPrintAll.SetEnabled(true);
    f.fgProjects.SetRows(ProjectCount);
    f.fgProjects.SetRow(1);
    f.fgCompleted.SetRow(1);
    f.fgCompleted.SetRows(2);
    ProjectCount -= 1;
    ProjectHeaders.assign(static_cast<size_t>(ProjectCount) + 1, ProjectHeader{});
    ProjectMilestones.assign(static_cast<size_t>(ProjectCount) + 1, {});
    ProjectChanged.assign(static_cast<size_t>(ProjectCount) + 1, false);

    const DateTime today = Today();
    for (int p = 1; p <= ProjectCount; ++p) {
        ReadProjectFile(p);
        const ProjectHeader& h = HeaderOf(p);
        const std::string columns[5] = {h.projectNo, h.title, h.account, h.billingName,
                                        h.billingTelephone};
        for (int col = 0; col < 5; ++col) f.fgProjects.SetTextMatrix(p, col, columns[col]);
        for (int m = 1; m <= h.milestoneCount; ++m) {
            const Milestone& ms = ProjectMilestones[static_cast<size_t>(p)][static_cast<size_t>(m)];
            if (ms.date < today && ms.status != "Completed") {
                f.mnuPastDue.SetEnabled(true);
                const int row = f.fgCompleted.Row();
                f.fgCompleted.SetTextMatrix(row, 0, h.projectNo);
                f.fgCompleted.SetTextMatrix(row, 1, h.title);
                f.fgCompleted.SetTextMatrix(row, 2, ms.name);
                f.fgCompleted.SetTextMatrix(row, 3, ShortDate(ms.date));
                f.fgCompleted.SetRows(f.fgCompleted.Rows() + 1);
                f.fgCompleted.SetRow(row + 1);
            }
        }
        CloseAll();
    }
    // Every project holds as many milestones as the largest one, as one table did.
    for (auto& row : ProjectMilestones) row.resize(static_cast<size_t>(MaxMilestones) + 1);
    ProjectsLoaded = true;
}

void LoadProjectMilestones(frmProjectControl& f) {
    f.SelProject = f.fgProjects.Row();
    const int count = HeaderOf(f.SelProject).milestoneCount;
    for (int n = 1; n <= count; ++n) {
        const Milestone& ms = MilestoneOf(f.SelProject, n);
        f.fgMilestones.SetRows(n + 1);
        f.fgMilestones.SetTextMatrix(n, 0, std::to_string(n));
        f.fgMilestones.SetTextMatrix(n, 1, ms.name);
        f.fgMilestones.SetTextMatrix(n, 2, ms.status);
        f.fgMilestones.SetTextMatrix(n, 3, ShortDate(ms.date));
        f.fgMilestones.SetTextMatrix(n, 4, ms.completion);
        if (n == 1) f.FirstMilestoneDate = ms.date;
        if (n == count && n != 1) f.LastMilestoneDate = ms.date;
    }
    CloseAll();
}

long ComputeProjectDays(frmProjectControl& f) {
    const int count = HeaderOf(f.SelProject).milestoneCount;
    return DateDiff("d", f.FirstMilestoneDate, f.LastMilestoneDate) +
           MilestoneOf(f.SelProject, std::max(count, 0)).lead;
}

void LoadProjectSummary(frmProjectControl& f) {
    LoadProjectMilestones(f);
    const int row = f.fgProjects.Row();
    f.lblPJSProNo.SetCaption(f.fgProjects.TextMatrix(row, 0));
    f.lblPJSProTitle.SetCaption(f.fgProjects.TextMatrix(row, 1));
    f.lblAcctNo.SetCaption(f.fgProjects.TextMatrix(row, 2));
    f.lblProDays.SetCaption(std::to_string(ComputeProjectDays(f)));
    const ProjectHeader& h = HeaderOf(f.SelProject);
    const std::string& proposal = h.proposalNo;
    if (proposal != "Proposal Number") {
        f.fraProposal.SetVisible(true);
        f.lblProposal.SetCaption("No. " + proposal);
    } else {
        f.fraProposal.SetVisible(false);
    }
    f.lblCustomer.SetCaption(h.billingName + "\r\n" + h.billingAddress1 + "\r\n" + h.billingCity +
                             ", " + h.billingState + " " + h.billingZip + "\r\n" +
                             h.billingTelephone);
}

void ShowMilestoneDetails(frmProjectControl& f) {
    f.SelMilestone = f.fgMilestones.Row();
    f.SelProject = f.fgProjects.Row();
    const Milestone& ms = MilestoneOf(f.SelProject, f.SelMilestone);
    std::string assigned = "Administrative Staff";
    if (ms.type != 1) assigned = TeamListEntry(CInt(Val(ms.team)));
    std::string scheduled = ShortDate(ms.date);
    if (ms.type == 2) scheduled += " at " + HourLabelOf(ms.startSlot);
    std::string allotted = ms.time + " " + ms.mode;
    if (assigned == "Administrative Staff") allotted = "No Time Established";
    std::string dependent = "has no Dependency";
    if (ms.dependency != 0) dependent = f.fgMilestones.TextMatrix(ms.dependency, 1);
    std::string status = ms.status;
    if (status == "Completed") status += " " + ms.completion;

    const std::string values[8] = {ms.name,   assigned, PhaseName(ms.phase), scheduled, allotted,
                                   dependent, status,   ms.location};
    for (int i = 0; i < 8; ++i) f.lblMSInfo[i].SetCaption(values[i]);
    f.fraMSDetails.SetVisible(true);
}

void CopyHoursToPJHours(frmProjectControl& f) {
    // ReadDay has just put the day into DaySlots and the day grid alike.
    for (int row = 1; row <= 12; ++row)
        f.fgPJHours.SetTextMatrix(row, 1, DaySlots[static_cast<size_t>(row)]);
}
