#include "store/Journal.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <set>
#include <stdexcept>

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
        case JournalStepKind::MakeFolder:
            return "mkdir";
        case JournalStepKind::Undo:
            return "undo";
    }
    return "";
}

std::string LineOf(const JournalStep& step) {
    return std::string(KindName(step.kind)) + "\t" + (step.checkpoint ? "1" : "0") + "\t" +
           step.path + "\t" + step.target;
}

void WriteJournal(const std::vector<JournalStep>& steps, size_t from) {
    OpenForRewrite(kJournalFile);
    const int file = MainFileNo;
    for (size_t i = from; i < steps.size(); ++i) PrintLine(file, LineOf(steps[i]));
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
        else if (kind == "mkdir")
            step.kind = JournalStepKind::MakeFolder;
        else if (kind == "undo")
            step.kind = JournalStepKind::Undo;
        else
            continue;
        step.checkpoint = fields[1] == "1";
        step.path = fields[2];
        step.target = fields[3];
        // A line of an undo journal is added in place: one cut short by a power loss may
        // still count four fields, but then it names no copy of its own file.
        const bool undo = !steps.empty() && steps.front().kind == JournalStepKind::Undo;
        if (undo && step.kind == JournalStepKind::Replace && step.path != step.target + ".~old")
            continue;
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
            if (FolderExists(DataPath(step.path))) {
                // A file that a crash left half written in it goes with it.
                const std::string folder = DataPath(step.path) + "/";
                for (const std::string& name : Dir(folder + "*"))
                    if (IsLeftoverTemporary(name)) Kill(folder + name);
                RmDir(DataPath(step.path));
            }
            break;
        case JournalStepKind::MoveFolder:
            if (FolderExists(DataPath(step.path)) && !FolderExists(DataPath(step.target)) &&
                !FileExists(DataPath(step.target)))
                Name(DataPath(step.path), DataPath(step.target));
            break;
        case JournalStepKind::MirrorDays:
            MirrorFolder(DataPath(step.path), DataPath(step.target), "*.txt");
            break;
        case JournalStepKind::MakeFolder:
            if (!FolderExists(DataPath(step.path))) MkDir(DataPath(step.path));
            break;
        case JournalStepKind::Undo:
            break;
    }
}

void RemoveJournal() {
    DeleteFile(kJournalFile);
}

// The old state of the files of the running KeepOldFiles. Each step that puts a file back is
// added to the journal as the file is first changed; they are done the last first, so that
// files made in a new folder go before the folder.
struct OldFiles {
    bool active = false;
    bool keeping = false;  // the journal's own writes are not watched
    bool journalled = false;
    std::set<std::string> seen;
    std::vector<std::string> kept;
};

OldFiles& Old() {
    static OldFiles old;
    return old;
}

// The data path of an entry of the program folder; empty for anything else.
std::string DataPathOf(const std::filesystem::path& entry) {
    const std::string full = entry.string();
    const std::string& app = AppFolder();
    if (full.size() <= app.size() || full.compare(0, app.size(), app) != 0 ||
        full[app.size()] != '/')
        return {};
    return full.substr(app.size());
}

void KeepOldState(const std::filesystem::path& entry, EntryChange change) {
    OldFiles& old = Old();
    if (!old.active || old.keeping) return;
    const std::string path = DataPathOf(entry);
    if (path.empty() || IsLeftoverTemporary(entry.filename().string())) return;
    if (!old.seen.insert(path).second) return;
    struct Keeping {
        explicit Keeping(OldFiles& o) : old(o) { old.keeping = true; }
        ~Keeping() { old.keeping = false; }
        OldFiles& old;
    } keeping(old);
    std::error_code ec;
    const auto status = std::filesystem::symlink_status(entry, ec);
    const bool folder = change == EntryChange::Folder;
    JournalStep step;
    if (!std::filesystem::exists(status)) {
        step = {folder ? JournalStepKind::RemoveFolder : JournalStepKind::Delete, path, ""};
    } else if (folder && std::filesystem::is_directory(status)) {
        // Only a folder removed needs putting back; its files were looked after one by one.
        step = {JournalStepKind::MakeFolder, path, ""};
    } else if (!folder && std::filesystem::is_regular_file(status)) {
        const std::string keep = path + ".~old";
        KeepOldBytes(entry.string(), DataPath(keep), change == EntryChange::FileInPlace);
        old.kept.push_back(keep);
        step = {JournalStepKind::Replace, keep, path};
    } else {
        return;
    }
    if (!old.journalled) {
        // A journal of another action, left by a crash, was finished at the start.
        AppendLine(DataPath(kJournalFile), LineOf({JournalStepKind::Undo, "", ""}));
        old.journalled = true;
    }
    AppendLine(DataPath(kJournalFile), LineOf(step));
}

}  // namespace

std::string StagingName(const std::string& path) {
    return path + ".~new";
}

void RunJournal(const std::vector<JournalStep>& steps, const std::function<void()>& prepare) {
    // One journal at a time: the steps of an action already kept would be lost.
    if (Old().active) throw std::logic_error("a journal inside an action whose files are kept");
    CloseAll();
    WriteJournal(steps, 0);
    if (prepare) {
        prepare();
        CloseAll();
    }
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
    std::vector<JournalStep> steps = ReadJournal();
    if (!steps.empty() && steps.front().kind == JournalStepKind::Undo)
        std::reverse(steps.begin(), steps.end());
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

KeepOldFiles::KeepOldFiles() : exceptionsBefore_(std::uncaught_exceptions()) {
    OldFiles& old = Old();
    if (old.active) return;
    outermost_ = true;
    old = OldFiles{};
    old.active = true;
    SetChangeWatcher(KeepOldState);
}

KeepOldFiles::~KeepOldFiles() {
    if (!outermost_) return;
    SetChangeWatcher(nullptr);
    OldFiles& old = Old();
    old.active = false;
    // Stopped by an error: nothing more is written, and the next start puts the files back.
    if (std::uncaught_exceptions() > exceptionsBefore_ || !old.journalled) return;
    try {
        FlushAllFiles();
        Kill(DataPath(kJournalFile));
        for (const std::string& keep : old.kept)
            if (FileExists(DataPath(keep))) Kill(DataPath(keep));
    } catch (...) {
        // A destructor lets nothing through: what is left is put back or swept away by the
        // next start.
    }
    old = OldFiles{};
}
