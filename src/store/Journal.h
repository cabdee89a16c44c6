#pragma once

#include <string>
#include <vector>

// Changes to several files that belong together (the team names and the team folders, the
// three customer record files) are done as a list of steps written down first, in a journal
// of the program's own that no other program reads. Each step can be done again without
// harm, so a start-up that finds a journal left by a crash simply runs the rest of it.
// Paths are data paths as for the store's routines.

enum class JournalStepKind {
    Replace,       // a complete new file, under a staging name, takes the place of a file
    Delete,        // a file (wild cards allowed) is deleted where present
    RemoveFolder,  // an empty folder is removed where present
    MoveFolder,    // a folder is renamed, where it still stands and its new name is free
    MirrorDays,    // the folder `target` comes to hold exactly the day files of folder `path`
};

struct JournalStep {
    JournalStepKind kind{};
    std::string path;
    std::string target;  // Replace: the file replaced; MoveFolder: the new name
    // The journal is written again without the steps done so far once this one is done: a
    // step after it could make this one's path name something else.
    bool checkpoint = false;
};

// The staging name under which the new bytes of a data file are written for Replace.
std::string StagingName(const std::string& path);

// Writes the journal, does every step, then removes the journal.
void RunJournal(const std::vector<JournalStep>& steps);
// At start-up: finishes what a journal left by an earlier run names, then removes it.
// Returns whether there was one.
bool FinishJournal();
