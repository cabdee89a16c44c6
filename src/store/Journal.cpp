#include "store/Journal.h"

#include "platform/FileLinks.h"
#include "platform/FileSafety.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "store/BasicDiskRoutines.h"

using namespace platform;

namespace {

constexpr const char* kJournalFile = "\\Unfinished.jnl";

const char* KindName(JournalStepKind kind) {
    switch (kind) {
        case JournalStepKind::Replace:
            return "replace";
        case JournalStepKind::Delete:
            return "delete";
        case JournalStepKind::RemoveFolder:
            return "rmdir";
        case JournalStepKind::MoveFolder:
            return "move";
        case JournalStepKind::MirrorDays:
            return "mirror";
    }
    return "";
}

void WriteJournal(const std::vector<JournalStep>& steps, size_t from) {
    OpenForRewrite(kJournalFile);
    const int file = MainFileNo;
    for (size_t i = from; i < steps.size(); ++i) {
        const JournalStep& step = steps[i];
        PrintLine(file, std::string(KindName(step.kind)) + "\t" + (step.checkpoint ? "1" : "0") +
                            "\t" + step.path + "\t" + step.target);
    }
    CloseAll();
}

std::vector<JournalStep> ReadJournal() {
    std::vector<JournalStep> steps;
    OpenForInput(kJournalFile);
    const int file = MainFileNo;
    while (!Eof(file)) {
        const std::string line = LineInput(file);
        std::vector<std::string> fields;
        size_t start = 0;
        for (;;) {
            const size_t tab = line.find('\t', start);
            fields.push_back(line.substr(start, tab - start));
            if (tab == std::string::npos) break;
            start = tab + 1;
        }
        if (fields.size() != 4) continue;  // a line cut short names nothing to do
        JournalStep step;
        const std::string& kind = fields[0];
        if (kind == "replace")
            step.kind = JournalStepKind::Replace;
        else if (kind == "delete")
            step.kind = JournalStepKind::Delete;
        else if (kind == "rmdir")
            step.kind = JournalStepKind::RemoveFolder;
        else if (kind == "move")
            step.kind = JournalStepKind::MoveFolder;
        else if (kind == "mirror")
            step.kind = JournalStepKind::MirrorDays;
        else
            continue;
        step.checkpoint = fields[1] == "1";
        step.path = fields[2];
        step.target = fields[3];
        steps.push_back(step);
    }
    CloseAll();
    return steps;
}

void DoStep(const JournalStep& step) {
    switch (step.kind) {
        case JournalStepKind::Replace:
            if (FileExists(DataPath(step.path)))
                NameOver(DataPath(step.path), DataPath(step.target));
            break;
        case JournalStepKind::Delete:
            DeleteFile(step.path);
            break;
        case JournalStepKind::RemoveFolder:
            if (FolderExists(DataPath(step.path))) RmDir(DataPath(step.path));
            break;
        case JournalStepKind::MoveFolder:
            if (FolderExists(DataPath(step.path)) && !FolderExists(DataPath(step.target)) &&
                !FileExists(DataPath(step.target)))
                Name(DataPath(step.path), DataPath(step.target));
            break;
        case JournalStepKind::MirrorDays:
            MirrorFolder(DataPath(step.path), DataPath(step.target), "*.txt");
            break;
    }
}

void RemoveJournal() {
    DeleteFile(kJournalFile);
}

}  // namespace

std::string StagingName(const std::string& path) {
    return path + ".~new";
}

void RunJournal(const std::vector<JournalStep>& steps) {
    WriteJournal(steps, 0);
    for (size_t i = 0; i < steps.size(); ++i) {
        DoStep(steps[i]);
        if (steps[i].checkpoint && i + 1 < steps.size()) WriteJournal(steps, i + 1);
    }
    // Links and deletions of the steps are on disk before the journal goes.
    FlushAllFiles();
    RemoveJournal();
}

bool FinishJournal() {
    if (!FileExists(DataPath(kJournalFile))) return false;
    const std::vector<JournalStep> steps = ReadJournal();
    for (size_t i = 0; i < steps.size(); ++i) {
        // A step the disk no longer allows (a folder that gained a file) is left as it is:
        // the rest still runs, and the journal goes.
        try {
            DoStep(steps[i]);
            if (steps[i].checkpoint && i + 1 < steps.size()) WriteJournal(steps, i + 1);
        } catch (const RuntimeError&) {
            CloseAll();
        }
    }
    FlushAllFiles();
    RemoveJournal();
    return true;
}
