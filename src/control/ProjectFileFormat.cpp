#include "control/ProjectFileFormat.h"

#include "platform/Files.h"
#include "platform/RuntimeError.h"

using namespace platform;

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

std::string ProjectFilePath(const std::string& projectNo) {
    if (projectNo.find_first_of("/\\") != std::string::npos || projectNo == "." ||
        projectNo == "..")
        Raise(err::PathFileAccessError, projectNo);
    return kProjectFolder + projectNo + ".txt";
}
