#include "platform/InstanceLock.h"

#include <cerrno>
#include <map>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Files.h"

namespace platform {
namespace {

// The lock file of each folder this process holds, by the file's identity: two paths to one
// folder are one claim.
std::map<std::pair<dev_t, ino_t>, int>& Claims() {
    static std::map<std::pair<dev_t, ino_t>, int> claims;
    // A child process inherits the table, but not the locks: it holds nothing.
    static pid_t owner = ::getpid();
    if (owner != ::getpid()) {
        claims.clear();
        owner = ::getpid();
    }
    return claims;
}

}  // namespace

bool ClaimProgramFolder(const std::string& folder) {
    const std::string path = folder + "/" + ProgramFileName() + kInstanceLockSuffix;
    // The lock is the process's record lock on the file: any descriptor of it that this
    // process closed would drop it, so a file already held is not opened again.
    struct stat st {};
    if (::stat(path.c_str(), &st) == 0 && Claims().count({st.st_dev, st.st_ino})) return true;
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
    Claims().emplace(std::make_pair(st.st_dev, st.st_ino), fd);
    return true;
}

void ReleaseProgramFolders() {
    for (const auto& [id, fd] : Claims()) ::close(fd);
    Claims().clear();
}

}  // namespace platform
