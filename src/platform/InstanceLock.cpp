#include "platform/InstanceLock.h"

#include <cerrno>
#include <map>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Files.h"

namespace platform {
namespace {

using FileId = std::pair<dev_t, ino_t>;

// The lock file holds one byte while a run has the folder: a run that ends in any orderly
// way empties it again, so a byte found at the claim tells of a run that died.
constexpr char kRunning = '1';

void MarkEnded(int fd) {
    if (::ftruncate(fd, 0) != 0) return;  // the next start merely looks for leftovers
}

// The lock file of each folder this process holds, by the file's identity: two paths to one
// folder are one claim.
struct ClaimTable {
    std::map<FileId, int> files;
    std::map<FileId, bool> earlierRunDied;
    pid_t owner = ::getpid();

    ~ClaimTable() {
        // The end of the process: every run it held ended as it should.
        if (owner != ::getpid()) return;
        for (const auto& [id, fd] : files) MarkEnded(fd);
    }
};

ClaimTable& Claims() {
    static ClaimTable claims;
    // A child process inherits the table, but not the locks: it holds nothing.
    if (claims.owner != ::getpid()) {
        claims.files.clear();
        claims.earlierRunDied.clear();
        claims.owner = ::getpid();
    }
    return claims;
}

std::string LockFileOf(const std::string& folder) {
    return folder + "/" + ProgramFileName() + kInstanceLockSuffix;
}

}  // namespace

bool ClaimProgramFolder(const std::string& folder) {
    const std::string path = LockFileOf(folder);
    // The lock is the process's record lock on the file: any descriptor of it that this
    // process closed would drop it, so a file already held is not opened again.
    struct stat st {};
    if (::stat(path.c_str(), &st) == 0 && Claims().files.count({st.st_dev, st.st_ino})) return true;
    const int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (fd < 0 || ::fstat(fd, &st) != 0) {
        if (fd >= 0) ::close(fd);
        return true;
    }
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    if (::fcntl(fd, F_SETLK, &lock) != 0) {
        const int error = errno;
        ::close(fd);
        // Held by another process; a file system without locks guards nothing.
        return error != EACCES && error != EAGAIN;
    }
    const FileId id{st.st_dev, st.st_ino};
    char mark = 0;
    Claims().earlierRunDied[id] = ::pread(fd, &mark, 1, 0) == 1 && mark == kRunning;
    if (::ftruncate(fd, 0) != 0 || ::pwrite(fd, &kRunning, 1, 0) != 1) {
        // Without the mark a death goes unnoticed; the next start then looks anyway.
        Claims().earlierRunDied[id] = true;
    }
    Claims().files.emplace(id, fd);
    return true;
}

bool EarlierRunDied(const std::string& folder) {
    struct stat st {};
    if (::stat(LockFileOf(folder).c_str(), &st) != 0) return true;
    const auto it = Claims().earlierRunDied.find({st.st_dev, st.st_ino});
    // A folder this process could not claim is not known to have ended well.
    return it == Claims().earlierRunDied.end() || it->second;
}

void ReleaseProgramFolders() {
    for (const auto& [id, fd] : Claims().files) {
        MarkEnded(fd);
        ::close(fd);
    }
    Claims().files.clear();
    Claims().earlierRunDied.clear();
}

}  // namespace platform
