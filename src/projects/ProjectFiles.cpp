#include "projects/ProjectFiles.h"

#include <cmath>

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "projects/ProjectRecord.h"
#include "store/BasicDiskRoutines.h"

using namespace platform;

void WriteHeaderValues(int fileNo, const ProjectHeader& h) {
    WriteFields(fileNo, {Text(h.projectNo), Text(h.title), Text(h.account), Text(h.proposalNo),
                         Text(h.billingName), Text(h.billingAddress1), Text(h.billingAddress2),
                         Text(h.billingCity), Text(h.billingState), Text(h.billingZip),
                         Text(h.billingTelephone), Text(h.siteName), Text(h.siteAddress1),
                         Text(h.siteAddress2), Text(h.siteCity), Text(h.siteState), Text(h.siteZip),
                         Text(h.siteTelephone), Field(static_cast<double>(h.milestoneCount))});
}

void WriteMilestoneValues(int fileNo, const Milestone& m) {
    WriteFields(
        fileNo,
        {Text(m.name), Field(static_cast<double>(m.type)), Field(m.date),
         Field(static_cast<double>(m.phase)), Field(static_cast<double>(m.dependency)),
         Field(static_cast<double>(m.lead)), Text(m.team), Text(m.location), Text(m.startSlot),
         Text(m.time), Text(m.mode), Text(m.status), Text(m.completion)});
}

void InputHeaderValues(int fileNo, ProjectHeader& h) {
    for (std::string* value :
         {&h.projectNo, &h.title, &h.account, &h.proposalNo, &h.billingName, &h.billingAddress1,
          &h.billingAddress2, &h.billingCity, &h.billingState, &h.billingZip, &h.billingTelephone,
          &h.siteName, &h.siteAddress1, &h.siteAddress2, &h.siteCity, &h.siteState, &h.siteZip,
          &h.siteTelephone})
        *value = InputString(fileNo);
    h.milestoneCount = InputInt16(fileNo);
}

void InputMilestoneValues(int fileNo, Milestone& m) {
    m.name = InputString(fileNo);
    m.type = InputInt16(fileNo);
    m.date = InputDate(fileNo);
    m.phase = InputInt16(fileNo);
    m.dependency = InputInt16(fileNo);
    m.lead = InputInt16(fileNo);
    for (std::string* value :
         {&m.team, &m.location, &m.startSlot, &m.time, &m.mode, &m.status, &m.completion})
        *value = InputString(fileNo);
}

ProjectFile LoadProjectFile(const std::string& path) {
    ProjectFile project;
    OpenForInput(path);
    const int file = MainFileNo;
    try {
        InputHeaderValues(file, project.header);
        for (int m = 1; m <= project.header.milestoneCount; ++m)
            InputMilestoneValues(file, project.milestones.emplace_back());
    } catch (const RuntimeError&) {
        CloseAll();
        throw;
    }
    CloseAll();
    return project;
}

std::string ProjectFilePath(const std::string& projectNo) {
    // The number names a file in the project folder and nothing else.
    if (projectNo.empty() || projectNo == "." || projectNo == ".." ||
        projectNo.find_first_of("/\\:") != std::string::npos ||
        projectNo.find('\0') != std::string::npos)
        Raise(err::PathFileAccessError, projectNo);
    return kProjectFolder + projectNo + ".txt";
}

void WriteProjectHeader(const ProjectHeader& header) {
    DeleteFile(kProjectTempFile);
    OpenForAppend(kProjectTempFile);
    WriteHeaderValues(MainFileNo, header);
    CloseAll();
}

void WriteMilestoneLine(const Milestone& milestone) {
    OpenForAppend(kProjectTempFile);
    WriteMilestoneValues(MainFileNo, milestone);
    CloseAll();
}

Record BuildProjectRecord(const ProjectHeader& header, const Milestone& milestone, int sequence) {
    Record record(projects::kProjectRecord);
    record.SetText("ProjectNo", header.projectNo);
    record.SetText("Team", milestone.team);
    record.SetText("Mode", milestone.mode);
    record.SetText("Time", milestone.time);
    record.SetText("Date", ShortDate(milestone.date));
    record.SetText("StartSlot", milestone.startSlot);
    record.SetText("Milestone", Trim(milestone.name));
    record.SetText("Status", milestone.status);
    record.SetText("Sequence", FormatCurrency(sequence));
    record.SetText("Account", header.account);
    // The address block takes the billing data first and then the site data over it, so
    // that only the site reaches the file.
    const std::string* billing[] = {
        &header.billingName,  &header.billingAddress1, &header.billingAddress2, &header.billingCity,
        &header.billingState, &header.billingZip,      &header.billingTelephone};
    const std::string* site[] = {&header.siteName,     &header.siteAddress1, &header.siteAddress2,
                                 &header.siteCity,     &header.siteState,    &header.siteZip,
                                 &header.siteTelephone};
    for (int i = 0; i < 7; ++i) record.SetText(projects::kProjectAddressFields[i], *billing[i]);
    for (int i = 0; i < 7; ++i) record.SetText(projects::kProjectAddressFields[i], *site[i]);
    return record;
}

void AddProjectRecord(const std::string& path, const Record& record) {
    const int length = static_cast<int>(projects::kProjectRecord.Length());
    OpenRandom(path, length);
    const int file = MainFileNo;
    // The count of a file with a partial last record rounds as the division does.
    const long records = std::lround(std::nearbyint(static_cast<double>(Lof(file)) / length));
    PutRecord(file, records + 1, record);
    CloseAll();
}
