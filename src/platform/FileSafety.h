#pragma once

#include <filesystem>
#include <string>

// What keeps the data files whole when the process dies or the machine stops half way
// through a change. Every file reaches its name complete, by one rename; the file and then
// its folder are flushed to disk right after it, beside the program, so that a save does not
// wait for the disk.
namespace platform {

// Off only where a benchmark compares the cost of flushing.
void SetFlushToDisk(bool on);
bool FlushToDisk();

// Has a file just renamed into place, and then the folder that holds it, flushed to disk.
void FlushFolderOf(const std::filesystem::path& entry);
// Deleting, linking and making or removing a folder flush nothing by themselves: the folder
// is noted, and bulk tree work (snapshot, restore, purge, year roll) flushes every folder
// noted once, at its end.
void NoteFolderChanged(const std::filesystem::path& entry);
// The flushes run beside the program; the end of the process waits for the last of them.
void FlushAllFiles();

// Temporary files of the file services are named beside their target: `X.~<process id>`
// while sequential output is written, `X.~copy` while a copy is made, `X.~new` while the
// new bytes of a change to several files wait for their journal, `X.~old` while the old
// bytes wait until such a change is over. Only a process that died leaves them behind.
bool IsLeftoverTemporary(const std::string& name);
// Removes such files from the folder and every folder below it; returns how many went.
int RemoveLeftoverTemporaries(const std::string& folder);

// What is about to happen to a file or folder that the program changes.
enum class EntryChange {
    File,         // made, replaced by a rename, deleted or renamed
    FileInPlace,  // records written into the file itself
    Folder,       // made, removed or renamed
};
// While the store keeps the old state of an action's files (a change to several files whose
// writes are not known in advance), the watcher sees each file or folder before every change
// to it, and may keep what it holds first. Off when null.
using ChangeWatcher = void (*)(const std::filesystem::path& entry, EntryChange change);
void SetChangeWatcher(ChangeWatcher watcher);
void BeforeChange(const std::filesystem::path& entry, EntryChange change = EntryChange::File);

// Called before each operation that changes the disk: a write, rename, delete, link, new or
// removed folder.
void WriteStep();
#ifdef SCHEDULER_WRITE_STEP_HOOK
// Test builds: a hook that sees every write step before it is done (and may end the process).
void SetWriteStepHook(void (*hook)());
#endif

}  // namespace platform
