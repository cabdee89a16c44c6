#include "platform/FileSafety.h"

#include <cctype>
#include <set>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace platform {
namespace {

bool flushToDisk = true;
std::set<fs::path>& ChangedFolders() {
    static std::set<fs::path> folders;
    return folders;
}

void FlushFolder(const fs::path& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

fs::path FolderOf(const fs::path& entry) {
    return entry.has_parent_path() ? entry.parent_path() : fs::path(".");
}
#ifdef SCHEDULER_WRITE_STEP_HOOK
void (*writeStepHook)() = nullptr;
#endif

}  // namespace

void SetFlushToDisk(bool on) {
    flushToDisk = on;
}

bool FlushToDisk() {
    return flushToDisk;
}

void FlushFile(int descriptor) {
    if (flushToDisk) ::fdatasync(descriptor);
}

void FlushFolderOf(const fs::path& entry) {
    if (flushToDisk) FlushFolder(FolderOf(entry));
}

void NoteFolderChanged(const fs::path& entry) {
    if (flushToDisk) ChangedFolders().insert(FolderOf(entry));
}

void FlushAllFiles() {
    for (const fs::path& folder : ChangedFolders()) FlushFolder(folder);
    ChangedFolders().clear();
}

bool IsLeftoverTemporary(const std::string& name) {
    const size_t mark = name.rfind(".~");
    if (mark == std::string::npos || mark == 0) return false;
    const std::string tail = name.substr(mark + 2);
    if (tail == "copy" || tail == "new") return true;
    if (tail.empty()) return false;
    for (char c : tail)
        if (!std::isdigit(static_cast<unsigned char>(c))) return false;
    return true;
}

int RemoveLeftoverTemporaries(const std::string& folder) {
    int removed = 0;
    std::error_code ec;
    // Links to folders elsewhere are not followed: only the program's own tree is cleaned.
    fs::recursive_directory_iterator it(folder, fs::directory_options::skip_permission_denied, ec);
    for (; !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
        if (!it->is_regular_file(ec) || it->is_symlink(ec)) continue;
        if (!IsLeftoverTemporary(it->path().filename().string())) continue;
        WriteStep();
        if (fs::remove(it->path(), ec)) ++removed;
    }
    return removed;
}

void WriteStep() {
#ifdef SCHEDULER_WRITE_STEP_HOOK
    if (writeStepHook) writeStepHook();
#endif
}

#ifdef SCHEDULER_WRITE_STEP_HOOK
void SetWriteStepHook(void (*hook)()) {
    writeStepHook = hook;
}
#endif

}  // namespace platform
