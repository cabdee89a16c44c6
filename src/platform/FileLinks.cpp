#include "platform/FileLinks.h"

#include <cerrno>
#include <map>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/FileSafety.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

namespace platform {
namespace {

struct FileId {
    dev_t device = 0;
    ino_t inode = 0;
    bool operator==(const FileId&) const = default;
};

struct FolderCloser {
    void operator()(DIR* dir) const { closedir(dir); }
};
using Folder = std::unique_ptr<DIR, FolderCloser>;

// The regular files of an open folder, by name.
std::map<std::string, FileId> FilesOf(DIR* dir) {
    std::map<std::string, FileId> files;
    const int fd = dirfd(dir);
    while (const dirent* entry = readdir(dir)) {
        const std::string name = entry->d_name;
        if (name == "." || name == "..") continue;
        struct stat st {};
        if (fstatat(fd, entry->d_name, &st, AT_SYMLINK_NOFOLLOW) != 0) continue;
        if (S_ISREG(st.st_mode)) files.emplace(name, FileId{st.st_dev, st.st_ino});
    }
    return files;
}

bool NoLinksHere(int error) {
    return error == EXDEV || error == EPERM || error == EMLINK || error == ENOTSUP ||
           error == EOPNOTSUPP || error == ENOSYS;
}

}  // namespace

int MirrorFolder(const std::string& source, const std::string& target, std::string_view pattern) {
    const std::string from = ResolvePath(source).string();
    const std::string to = ResolvePath(target).string();
    std::map<std::string, FileId> wanted;
    if (Folder dir{opendir(from.c_str())}) {
        for (const auto& [name, id] : FilesOf(dir.get()))
            if (WildcardMatch(name, pattern)) wanted.emplace(name, id);
    }
    Folder targetDir{opendir(to.c_str())};
    if (!targetDir) {
        if (wanted.empty()) return 0;
        Raise(err::PathNotFound, to);
    }
    const int fd = dirfd(targetDir.get());
    for (const auto& [name, id] : FilesOf(targetDir.get())) {
        auto it = wanted.find(name);
        if (it != wanted.end() && it->second == id) {
            wanted.erase(it);  // already shared
            continue;
        }
        BeforeChange(to + "/" + name);
        WriteStep();
        if (unlinkat(fd, name.c_str(), 0) != 0) Raise(err::PermissionDenied, to + "/" + name);
        NoteFolderChanged(to + "/" + name);
    }
    for (const auto& [name, id] : wanted) {
        const std::string file = from + "/" + name;
        BeforeChange(to + "/" + name);
        WriteStep();
        if (linkat(AT_FDCWD, file.c_str(), fd, name.c_str(), 0) == 0) {
            NoteFolderChanged(to + "/" + name);
            continue;
        }
        if (!NoLinksHere(errno)) Raise(err::PathFileAccessError, to + "/" + name);
        FileCopy(file, to + "/" + name);
    }
    return static_cast<int>(wanted.size());
}

void KeepOldBytes(const std::string& source, const std::string& keep, bool inPlace) {
    const std::string from = ResolvePath(source).string();
    const std::string to = ResolvePath(keep).string();
    if (FileExists(to)) Kill(to);
    if (!inPlace) {
        WriteStep();
        if (::link(from.c_str(), to.c_str()) == 0) {
            NoteFolderChanged(to);
            return;
        }
        if (!NoLinksHere(errno)) Raise(err::PathFileAccessError, to);
    }
    FileCopy(from, to);
}

}  // namespace platform
