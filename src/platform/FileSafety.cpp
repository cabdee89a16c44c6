#include "platform/FileSafety.h"

#include <cctype>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>

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

void SyncEntry(const fs::path& entry, bool folder) {
    const int fd = ::open(entry.c_str(), (folder ? O_DIRECTORY : 0) | O_RDONLY | O_CLOEXEC);
    if (fd < 0) return;
    if (folder)
        ::fsync(fd);
    else
        ::fdatasync(fd);
    ::close(fd);
}

fs::path FolderOf(const fs::path& entry) {
    return entry.has_parent_path() ? entry.parent_path() : fs::path(".");
}

// The waits for the disk happen beside the program, not in it: a save returns once its files
// are in place, and the disk confirms them a moment later. Files first, then their folders.
class Flusher {
  public:
    void Add(const fs::path& entry, bool folder) {
        std::lock_guard<std::mutex> lock(mutex_);
        if (!worker_.joinable()) worker_ = std::thread([this] { Run(); });
        queue_.push_back({entry, folder});
        wake_.notify_one();
    }

    ~Flusher() {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            stop_ = true;
            wake_.notify_one();
        }
        if (worker_.joinable()) worker_.join();
    }

  private:
    void Run() {
        std::unique_lock<std::mutex> lock(mutex_);
        for (;;) {
            wake_.wait(lock, [this] { return stop_ || !queue_.empty(); });
            if (queue_.empty()) return;
            const auto [entry, folder] = queue_.front();
            queue_.pop_front();
            lock.unlock();
            SyncEntry(entry, folder);
            lock.lock();
        }
    }

    std::mutex mutex_;
    std::condition_variable wake_;
    std::deque<std::pair<fs::path, bool>> queue_;
    bool stop_ = false;
    std::thread worker_;
};

Flusher& Disk() {
    static Flusher flusher;
    return flusher;
}

#ifdef SCHEDULER_WRITE_STEP_HOOK
void (*writeStepHook)() = nullptr;
#endif

ChangeWatcher changeWatcher = nullptr;

}  // namespace

void SetChangeWatcher(ChangeWatcher watcher) {
    changeWatcher = watcher;
}

void BeforeChange(const fs::path& entry, EntryChange change) {
    if (changeWatcher) changeWatcher(entry, change);
}

void SetFlushToDisk(bool on) {
    flushToDisk = on;
}

bool FlushToDisk() {
    return flushToDisk;
}

void FlushFolderOf(const fs::path& entry) {
    if (!flushToDisk) return;
    Disk().Add(entry, false);
    Disk().Add(FolderOf(entry), true);
}

void NoteFolderChanged(const fs::path& entry) {
    if (flushToDisk) ChangedFolders().insert(FolderOf(entry));
}

void FlushAllFiles() {
    for (const fs::path& folder : ChangedFolders()) Disk().Add(folder, true);
    ChangedFolders().clear();
}

bool IsLeftoverTemporary(const std::string& name) {
    const size_t mark = name.rfind(".~");
    if (mark == std::string::npos || mark == 0) return false;
    const std::string tail = name.substr(mark + 2);
    if (tail == "copy" || tail == "new" || tail == "old") return true;
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
