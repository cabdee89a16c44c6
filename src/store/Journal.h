#pragma once

#include <functional>
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
    RemoveFolder,  // a folder, empty but for temporaries left by a crash, is removed where present
    MoveFolder,    // a folder is renamed, where it still stands and its new name is free
    MirrorDays,    // the folder `target` comes to hold exactly the day files of folder `path`
    MakeFolder,    // a folder is made where none stands
    Undo,          // the steps after it put back the old state of an action, the last first
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

// Writes the journal, runs `prepare` (work whose every change the steps overwrite, so that
// a crash inside it is made good by the steps), does every step, then removes the journal.
void RunJournal(const std::vector<JournalStep>& steps,
                const std::function<void()>& prepare = nullptr);
// At start-up: finishes what a journal left by an earlier run names, then removes it.
// Returns whether there was one.
bool FinishJournal();

// For an action whose writes are not known before it runs (a rescheduling cascade, blocking
// days, deleting a project): while one of these lives, every file and folder the action
// changes first has its old state kept (`X.~old`), and the journal names how to put it
// back before the change is made. When the action ends, its changes stay and the journal
// goes; when the process dies or the platform's error stops the action, the next start-up
// puts every file back as it was before the action. An inner one inside another does nothing.
class KeepOldFiles {
  public:
    KeepOldFiles();
    ~KeepOldFiles();
    KeepOldFiles(const KeepOldFiles&) = delete;
    KeepOldFiles& operator=(const KeepOldFiles&) = delete;

  private:
    bool outermost_ = false;
    int exceptionsBefore_ = 0;
};
