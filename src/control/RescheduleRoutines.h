#pragma once

class frmProjectControl;

// Moving a placed milestone to the date of the calendar MSCal, and the milestones after it
// that depend on one. More forgiving than creation: a place is always found, and a milestone
// of days is written over whatever stands in the working block of its days.

// A date clicked on the calendar in reschedule mode.
void RescheduleDateClicked(frmProjectControl& form);
// A start hour clicked in the hour grid of an hourly milestone.
void StartHourClicked(frmProjectControl& form);
// "Reschedule": writes the edited day, frees the old one and moves the followers.
void ConfirmHourlyReschedule(frmProjectControl& form);

// Places milestone SelMilestone of SelProject on the calendar's date, then carries the cascade
// on while it is wanted.
void PlaceMilestone(frmProjectControl& form);
// The new date and status into the milestone grid and the tables.
void PostReschedule(frmProjectControl& form);
// Moves the next milestone after its dependency, and so on to the end of the project.
void CascadeMilestones(frmProjectControl& form);
