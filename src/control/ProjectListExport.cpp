#include "control/ProjectListExport.h"

#include "control/ProjectListRoutines.h"
#include "control/ProjectTables.h"
#include "control/frmProjectControl.h"
#include "platform/Ui.h"
#include "store/CsvFile.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

constexpr CsvList kList = {"Save Project List", "Projects.csv", "project list", "project",
                           "projects"};
constexpr const char* kNoProposal = "Proposal Number";

// Dates as spreadsheets read them everywhere.
std::string IsoDate(DateTime date) {
    return FormatDate(date, "yyyy") + "-" + FormatDate(date, "mm") + "-" + FormatDate(date, "dd");
}

CsvRow ProjectRow(int project) {
    const ProjectHeader& h = HeaderOf(project);
    CsvRow row = {h.projectNo,
                  h.title,
                  h.account,
                  h.proposalNo == kNoProposal ? std::string() : h.proposalNo,
                  h.billingName,
                  h.billingAddress1,
                  h.billingAddress2,
                  h.billingCity,
                  h.billingState,
                  h.billingZip,
                  h.billingTelephone,
                  h.siteName,
                  h.siteAddress1,
                  h.siteAddress2,
                  h.siteCity,
                  h.siteState,
                  h.siteZip,
                  h.siteTelephone,
                  std::to_string(h.milestoneCount)};
    DateTime first, last;
    bool any = false;
    for (int m = 1; m <= h.milestoneCount; ++m) {
        const DateTime date = MilestoneOf(project, m).date;
        if (!any || date < first) first = date;
        if (!any || date > last) last = date;
        any = true;
    }
    row.push_back(any ? IsoDate(first) : std::string());
    row.push_back(any ? IsoDate(last) : std::string());
    return row;
}

}  // namespace

void SaveProjectList(frmProjectControl& form) {
    if (!ProjectsLoaded) LoadProjects(form);
    const CsvRow header = {"Project No",        "Title",
                           "Account",           "Proposal No",
                           "Billing Name",      "Billing Address 1",
                           "Billing Address 2", "Billing City",
                           "Billing State",     "Billing Zip",
                           "Billing Telephone", "Site Name",
                           "Site Address 1",    "Site Address 2",
                           "Site City",         "Site State",
                           "Site Zip",          "Site Telephone",
                           "Milestones",        "First Date",
                           "Last Date"};
    SaveCsvList(kList, header, [] {
        std::vector<CsvRow> rows;
        if (ProjectsLoaded)
            for (int p = 1; p <= ProjectCount; ++p) rows.push_back(ProjectRow(p));
        return rows;
    });
}
