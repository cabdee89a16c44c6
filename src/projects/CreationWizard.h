#pragma once

class frmMain;

// The creation of a project on frmMain, stage by stage: project data, scheduling, summary;
// saving it, and every way of leaving it with the day files as they were.

// Entering the screen, for either routine.
void EnterScreen(frmMain& form);
// The hidden and disabled state every stage starts from, by the controls' tags.
void ResetControls(frmMain& form);
// cmdContinue on the project data.
void ContinueFromProjectData(frmMain& form);
// From the project data, or again after a failed search for days, into the scheduling.
void EnterScheduling(frmMain& form);
void ShowProjectSummary(frmMain& form);
// Copies the billing block to the site, or clears the site, by the button's caption.
void ToggleJobSite(frmMain& form);
void SaveProject(frmMain& form);
// The slots of the milestones placed so far, on the team in use.
void RemoveScheduledSlots(frmMain& form);
void ExitCreation(frmMain& form);
void StartOver(frmMain& form);
void KillProject(frmMain& form);
void UndoSlotChoice(frmMain& form);
// The project under creation as a new process has it: none.
void ResetCreationState();
