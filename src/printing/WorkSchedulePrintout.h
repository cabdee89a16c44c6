#pragma once

#include <string>

class frmMain;

// The "Daily Work Schedule" of one team's day, or of every team's, printed from the team
// schedule: the plain list of twelve hours on a portrait page, or the eight working hours
// on landscape response paper with the tear-off "COMPLETION REPORT" strip.

// The print button of the print panel: the printer dialogue, then one document a team (all
// teams from the last to the first when "All Teams" is chosen), then the panel closes. A
// cancelled dialogue or a printing failure says "A Print Error has occurred".
void PrintWorkSchedules(frmMain& form);
// One team's day as the day view holds it, in the layout chosen, ending the document.
void PrintSchedule(frmMain& form, const std::string& teamName);
// The print panel away, the view button and the calendar back.
void ClosePrintPanel(frmMain& form);
