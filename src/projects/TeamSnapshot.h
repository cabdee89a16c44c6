#pragma once

#include <functional>
#include <vector>

#include "store/Journal.h"

// The snapshot that makes a project under creation reversible. The day files of every team
// for this year and the next two are kept below Backup when the wizard starts; abandoning
// the project puts them back, saving leaves them as they are. Unchanged day files are
// shared between the two trees by hard links.

// Deletes every file of the team folders of the three years: of the working tree when
// `live`, otherwise of the Backup tree. A missing folder is skipped.
void DeleteTeamFiles(bool live);
// The Backup tree becomes a copy of the working day files.
void SnapshotTeamFiles();
// The working tree becomes a copy of the Backup day files; files made since go. The steps
// `first` (the project's own files going) are done with it, before it; `prepare` runs before
// them, once a crash would be finished by them.
void RestoreTeamFiles(std::vector<JournalStep> first = {},
                      const std::function<void()>& prepare = nullptr);
