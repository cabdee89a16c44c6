#include "projects/WorkSchedule.h"

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/RecordLayout.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "projects/ProjectRecord.h"
#include "projects/frmMain.h"
#include "schedule/SchedulerRoutines.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

std::array<ScheduleRow, 12> PrintRows;
std::function<bool(const ProjectVisitor&)> VisitProjectsHook;
std::function<void(frmMain&)> PrintWorkSchedulesHook;

namespace {

constexpr std::int32_t kFreeRowColor = 0xFFFFFF;
constexpr std::int32_t kBusyRowColor = 65280;  // green
const std::string kFreeRowText = "\r\n\r\n         No Event Scheduled";

// What one row of the day view is made of.
struct RowSource {
    std::string siteName, address1, address2, city, state, zip, telephone;
    std::string milestone, startSlot, time, mode, reference;
};

void FillScheduleRow(frmMain& form, const RowSource& s, int& rowsDone) {
    const int r = CInt(Val(s.startSlot)) - 1;
    // A slot that names no row of the day has nowhere to go.
    if (r < 0 || r > 11) return;
    TextBox& slot = form.txtHourSlot[r];
    slot.SetForeColor(kBusyRowColor);
    slot.SetTag(Trim(s.siteName));
    slot.SetText(Trim(s.siteName) + "\r\n" + Trim(s.address1) + "\r\n" + Trim(s.city) + "," +
                 Trim(s.state) + "\r\n" + Trim(s.telephone) + "\r\n" + Trim(s.milestone));
    form.Label2[r].SetTag(s.telephone);
    ScheduleRow& print = PrintRows[static_cast<size_t>(r)];
    print = ScheduleRow{Trim(s.telephone), Trim(s.siteName),
                        Trim(s.address1),  Trim(s.city) + ", " + Trim(s.state) + " " + Trim(s.zip),
                        Trim(s.reference), Trim(s.address2),
                        Trim(s.milestone)};
    ++rowsDone;
    const int count = Trim(s.mode) == "Hours" ? CInt(Val(s.time)) : 8;
    for (int k = 1; k <= count - 1; ++k) {
        ++rowsDone;
        if (r + k > 11) continue;
        TextBox& next = form.txtHourSlot[r + k];
        next.SetForeColor(slot.ForeColor());
        next.SetText(slot.Text());
        next.SetTag(slot.Tag());
        form.Label2[r + k].SetTag(form.Label2[r].Tag());
        PrintRows[static_cast<size_t>(r + k)] = print;
    }
}

RowSource SourceOf(const Record& record) {
    return RowSource{
        record.Text("SiteName"),      record.Text("SiteAddress1"), record.Text("SiteAddress2"),
        record.Text("SiteCity"),      record.Text("SiteState"),    record.Text("SiteZip"),
        record.Text("SiteTelephone"), record.Text("Milestone"),    record.Text("StartSlot"),
        record.Text("Time"),          record.Text("Mode"),         record.Text("ProjectNo")};
}

RowSource SourceOf(const ProjectHeader& h, const Milestone& m) {
    return RowSource{h.siteName,  h.siteAddress1, h.siteAddress2,  h.siteCity,
                     h.siteState, h.siteZip,      h.siteTelephone, m.name,
                     m.startSlot, m.time,         m.mode,          h.projectNo};
}

// The project files themselves, for a program without the project control screen.
bool VisitProjectFiles(const ProjectVisitor& visit) {
    const std::vector<std::string> names = Dir(DataPath(std::string(kProjectFolder) + "*.txt"));
    if (names.empty()) return false;
    for (const std::string& name : names) {
        const ProjectFile project = LoadProjectFile(kProjectFolder + name);
        for (const Milestone& m : project.milestones)
            if (!visit(project.header, m)) return true;
    }
    return true;
}

}  // namespace

bool CheckLeadDays(DateTime calendarDate, DateTime date, int lead) {
    for (int k = 1; k <= lead; ++k)
        if (calendarDate.AddDays(-k) == date) return true;
    return false;
}

void BuildWorkSchedule(frmMain& form) {
    const DateTime shown = form.MonthView1.Value();
    int rowsDone = 0;
    for (int i = 0; i < 12; ++i) {
        form.txtHourSlot[i].SetText(kFreeRowText);
        form.txtHourSlot[i].SetForeColor(kFreeRowColor);
        form.txtHourSlot[i].SetTag("");
        form.Label2[i].SetTag("");
        PrintRows[static_cast<size_t>(i)] = ScheduleRow{};
        if (form.fgHours.TextMatrix(i + 1, 1) == kFreeSlot) ++rowsDone;
    }

    const char* const files[] = {projects::kSlipsFile, projects::kMeetingsFile,
                                 projects::kProjectRecordsFile};
    const int length = static_cast<int>(projects::kProjectRecord.Length());
    for (const char* path : files) {
        if (!FindFile(path)) continue;
        const long records = static_cast<long>(FileLen(DataPath(path)) / length);
        OpenRandom(path, length);
        // The whole file in one read: the printouts build the day of every team in turn.
        std::string bytes;
        try {
            if (records > 0) bytes = GetRecords(MainFileNo, 1, records);
        } catch (const RuntimeError&) {
            CloseAll();
            throw;
        }
        CloseAll();
        for (long n = 1; n <= records; ++n) {
            if (rowsDone > 12) return;
            const Record record(
                projects::kProjectRecord,
                bytes.substr(static_cast<size_t>((n - 1) * length), static_cast<size_t>(length)));
            DateTime date;
            if (!ParseDate(record.Trimmed("Date"), date)) Raise(err::TypeMismatch, path);
            if (date.DayOfYear() == shown.DayOfYear() && date.Year() == shown.Year() &&
                record.Trimmed("Team") == Trim(CurrentTeam))
                FillScheduleRow(form, SourceOf(record), rowsDone);
        }
    }
    if (rowsDone >= 12) return;

    const double team = Val(CurrentTeam);
    const ProjectVisitor visit = [&](const ProjectHeader& header, const Milestone& m) {
        if (Val(m.team) != team || m.type != 2) return true;
        if (m.date != shown && Val(m.time) > 0 && !CheckLeadDays(shown, m.date, m.lead))
            return true;
        FillScheduleRow(form, SourceOf(header, m), rowsDone);
        return rowsDone != 12;
    };
    if (VisitProjectsHook)
        VisitProjectsHook(visit);
    else
        VisitProjectFiles(visit);
}
