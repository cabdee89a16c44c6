#include "platform/Files.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <system_error>
#include <unordered_map>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/FileSafety.h"
#include "platform/OpenFileTable.h"
#include "platform/RuntimeError.h"

namespace fs = std::filesystem;

namespace platform {

using detail::OpenFile;

namespace {

std::string& AppFolderText() {
    static std::string folder = fs::current_path().string();
    return folder;
}

std::string& ProgramName() {
    static std::string name = "NorvaxConstructionScheduler";
    return name;
}

// Both separators as `/`, no doubled or trailing separator, "." and ".." taken out by the
// text alone, and no blanks at the end of a component: the file system of the data's home
// drops them, so "Team#1 " names the folder Team#1.
std::string Lexical(const std::string& path) {
    if (path.empty()) return path;
    std::vector<std::string> parts;
    size_t start = 0;
    while (start <= path.size()) {
        size_t end = path.find_first_of("/\\", start);
        if (end == std::string::npos) end = path.size();
        std::string part = path.substr(start, end - start);
        while (!part.empty() && part.back() == ' ') part.pop_back();
        if (part == "..") {
            if (!parts.empty() && !parts.back().empty() && parts.back() != "..")
                parts.pop_back();
            else if (parts.empty() || !parts.back().empty())
                parts.push_back(part);  // above a relative start
        } else if (part != "." && !(part.empty() && !parts.empty())) {
            parts.push_back(part);
        }
        start = end + 1;
    }
    std::string out;
    for (size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) out += '/';
        out += parts[i];
    }
    if (out.empty()) return parts.empty() ? std::string(".") : std::string("/");
    return out;
}

// The path as the file services use it. A path that starts in the program folder may not
// leave it: a name built from data that climbs out is refused before anything is made.
std::string Normalise(const std::string& path) {
    if (path.find('\0') != std::string::npos) Raise(err::BadFileNameOrNumber, path);
    const std::string out = Lexical(path);
    const std::string& app = AppFolderText();
    std::string given;
    for (char c : path) given += c == '\\' ? '/' : c;
    const bool inApp = !app.empty() && given.size() > app.size() &&
                       given.compare(0, app.size(), app) == 0 && given[app.size()] == '/';
    if (inApp && out != app &&
        !(out.size() > app.size() && out.compare(0, app.size(), app) == 0 &&
          out[app.size()] == '/'))
        Raise(err::PathFileAccessError, path);
    return out;
}

std::map<int, OpenFile>& Table() {
    static std::map<int, OpenFile> table;
    return table;
}

OpenFile& Get(int fileNo, const char* where) {
    auto it = Table().find(fileNo);
    if (it == Table().end()) Raise(err::BadFileNameOrNumber, where);
    return it->second;
}

bool SequentialOutput(OpenMode mode) {
    return mode == OpenMode::Output || mode == OpenMode::Append;
}

// Whether the file is open under any number; with `forOutput`, only for sequential output.
bool IsOpen(const fs::path& target, bool forOutput = false) {
    for (const auto& [no, f] : Table())
        if (f.target == target && (!forOutput || SequentialOutput(f.mode))) return true;
    return false;
}

// The platform's error for a failed call of the system on a file; `otherwise` where the
// reason has no error of its own.
int ErrorFromSystem(int error, int otherwise) {
    switch (error) {
        case EACCES:
        case EPERM:
        case EROFS:
            return err::PermissionDenied;
        case ENOSPC:
        case EDQUOT:
            return err::DiskFull;
        case EMFILE:
        case ENFILE:
            return err::TooManyFiles;
        case EIO:
            return err::DeviceIOError;
        default:
            return otherwise;
    }
}

// New files open for sequential output. The program sees each as an empty file from the
// open on, as on the platform, but the disk gets it only at the close, complete: a process
// that dies before leaves no empty file behind.
std::set<std::string>& Unwritten() {
    static std::set<std::string> files;
    return files;
}

bool IsUnwritten(const std::string& path) {
    return !Unwritten().empty() && Unwritten().count(path) > 0;
}

// What a path names on disk: nothing, a file, a folder, or something else (a pipe, a
// device) that the data files never are.
enum class Kind { None, File, Folder, Other };

Kind KindOf(const std::string& path, struct stat* info = nullptr) {
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0) {
        if (!IsUnwritten(path)) return Kind::None;
        st.st_mode = S_IFREG | 0666;
        if (info) *info = st;
        return Kind::File;
    }
    if (info) *info = st;
    return S_ISDIR(st.st_mode) ? Kind::Folder : S_ISREG(st.st_mode) ? Kind::File : Kind::Other;
}

// A file without any write permission is read-only, as the attribute of the platform:
// it is never written, replaced or deleted.
bool Writable(const std::string& path, const struct stat& st) {
    if (IsUnwritten(path)) return true;
    if ((st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) return false;
    return ::access(path.c_str(), W_OK) == 0;
}

// A descriptor that is closed when it goes.
struct Descriptor {
    explicit Descriptor(int fd) : fd(fd) {}
    ~Descriptor() {
        if (fd >= 0) ::close(fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int fd;
};

// The whole content of a regular file. Nothing else is read, so that a pipe or a device in
// the place of a data file cannot hold the program.
std::string ReadWhole(const std::string& path) {
    Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (file.fd < 0) Raise(ErrorFromSystem(errno, err::FileNotFound), path);
    struct stat st {};
    if (::fstat(file.fd, &st) != 0 || !S_ISREG(st.st_mode)) Raise(err::PathFileAccessError, path);
    std::string content;
    char block[65536];
    for (;;) {
        const ssize_t n = ::read(file.fd, block, sizeof block);
        if (n == 0) break;
        if (n < 0) {
            if (errno == EINTR) continue;
            Raise(ErrorFromSystem(errno, err::DeviceIOError), path);
        }
        content.append(block, static_cast<size_t>(n));
    }
    return content;
}

// Writes the whole of `bytes` to a new file, or one emptied.
void WriteWhole(const fs::path& path, const std::string& bytes, const fs::path& reported) {
    WriteStep();
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (file.fd < 0) Raise(ErrorFromSystem(errno, err::PathNotFound), reported.string());
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(file.fd, bytes.data() + done, bytes.size() - done);
        if (n < 0) {
            if (errno == EINTR) continue;
            const int error = errno;
            std::error_code ec;
            fs::remove(path, ec);
            Raise(ErrorFromSystem(error, err::DeviceIOError), reported.string());
        }
        done += static_cast<size_t>(n);
    }
}

// Renames a complete file over its target in one step, then has the file and the folder
// that holds the new name flushed to disk. On failure the complete file goes and the target stays
// as it was.
void RenameOver(const fs::path& complete, const fs::path& target) {
    WriteStep();
    if (::rename(complete.c_str(), target.c_str()) != 0) {
        const int error = errno;
        std::error_code ec;
        fs::remove(complete, ec);
        Raise(ErrorFromSystem(error, err::PermissionDenied), target.string());
    }
    FlushFolderOf(target);
}

// Names of a folder, by their lower-case spelling, as they were when the folder was
// last listed or last changed by the program itself.
struct FolderNames {
    struct timespec modified {};
    bool listed = false;
    std::unordered_map<std::string, std::string> byLowerCase;
};

std::unordered_map<std::string, FolderNames>& NameCache() {
    static std::unordered_map<std::string, FolderNames> cache;
    return cache;
}

long folderScans = 0;

bool SameTime(const struct timespec& a, const struct timespec& b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

std::string Lower(std::string_view s) {
    std::string out(s);
    for (auto& c : out) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

// The real spelling of `name` in `folder`, when it differs only by case; empty when none.
std::string SpellingIn(const std::string& folder, const std::string& name) {
    struct stat st {};
    if (KindOf(folder, &st) != Kind::Folder) return {};
    FolderNames& names = NameCache()[folder];
    if (!names.listed || !SameTime(names.modified, st.st_mtim)) {
        ++folderScans;
        names.byLowerCase.clear();
        std::error_code ec;
        for (const auto& entry : fs::directory_iterator(folder, ec)) {
            const std::string real = entry.path().filename().string();
            names.byLowerCase.emplace(Lower(real), real);
        }
        names.modified = st.st_mtim;
        names.listed = true;
    }
    auto it = names.byLowerCase.find(Lower(name));
    if (it != names.byLowerCase.end()) return it->second;
    for (const std::string& file : Unwritten()) {
        const fs::path unwritten(file);
        if (unwritten.parent_path() == folder &&
            Lower(unwritten.filename().string()) == Lower(name))
            return unwritten.filename().string();
    }
    return {};
}

// A name the program itself adds to or removes from a folder. When the names of the folder
// were up to date before, they are kept up to date with the change: the program knows what
// it made without listing the folder again.
class FolderChange {
  public:
    explicit FolderChange(const fs::path& entry)
        : folder_(entry.parent_path().string()), name_(entry.filename().string()) {
        auto it = NameCache().find(folder_);
        struct stat st {};
        upToDate_ = it != NameCache().end() && it->second.listed &&
                    ::stat(folder_.c_str(), &st) == 0 && SameTime(it->second.modified, st.st_mtim);
    }

    void Done(bool present) {
        auto it = NameCache().find(folder_);
        if (it == NameCache().end()) return;
        struct stat st {};
        if (!upToDate_ || ::stat(folder_.c_str(), &st) != 0) {
            NameCache().erase(it);
            return;
        }
        auto& names = it->second.byLowerCase;
        const std::string key = Lower(name_);
        if (present) {
            names.emplace(key, name_);
        } else {
            auto found = names.find(key);
            if (found != names.end() && found->second == name_) names.erase(found);
        }
        it->second.modified = st.st_mtim;
    }

  private:
    std::string folder_;
    std::string name_;
    bool upToDate_ = false;
};

// Forgets the names kept of a folder and of every folder below it, when it goes or moves.
void ForgetFolder(const std::string& folder) {
    const std::string below = folder + "/";
    for (auto it = NameCache().begin(); it != NameCache().end();) {
        if (it->first == folder || it->first.starts_with(below))
            it = NameCache().erase(it);
        else
            ++it;
    }
}

// The names of the new files open for output in `folder` that match `mask`.
std::vector<std::string> UnwrittenIn(const fs::path& folder, std::string_view mask);

// Makes an empty file where there was none.
void MakeEmptyFile(const fs::path& path) {
    FolderChange change(path);
    BeforeChange(path);
    WriteStep();
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (file.fd < 0) Raise(ErrorFromSystem(errno, err::PathFileAccessError), path.string());
    change.Done(true);
}

// Sequential output reaches its name only when complete: written under a temporary
// name in the same folder, then renamed over the old file. A crash leaves the old file.
void Commit(OpenFile& f) {
    if (!SequentialOutput(f.mode)) return;
    Unwritten().erase(f.target.string());
    FolderChange change(f.target);
    BeforeChange(f.target);
    WriteWhole(f.temporary, f.buffer, f.target);
    RenameOver(f.temporary, f.target);
    change.Done(true);
}

}  // namespace

namespace {

std::vector<std::string> UnwrittenIn(const fs::path& folder, std::string_view mask) {
    std::vector<std::string> names;
    for (const std::string& file : Unwritten()) {
        const fs::path unwritten(file);
        if (unwritten.parent_path() == folder && WildcardMatch(unwritten.filename().string(), mask))
            names.push_back(unwritten.filename().string());
    }
    return names;
}

}  // namespace

OpenFile& detail::OpenFileOf(int fileNo, const char* where) {
    return Get(fileNo, where);
}

void SetAppFolder(const std::string& folder) {
    AppFolderText() = Lexical(folder);
}
const std::string& AppFolder() {
    return AppFolderText();
}
std::string ProgramFileName() {
    return ProgramName();
}
void SetProgramFileName(const std::string& name) {
    ProgramName() = name;
}

long FolderScans() {
    return folderScans;
}

namespace {

// The path as it is spelled on disk: exact when it exists, otherwise matched component by
// component without regard to case, from the program folder down when it lies below it.
std::string ResolveText(const std::string& path, Kind* kind = nullptr) {
    const std::string norm = Normalise(path);
    Kind found = KindOf(norm);
    if (found != Kind::None) {
        if (kind) *kind = found;
        return norm;
    }
    if (kind) *kind = Kind::None;
    // Below the program folder the walk starts there: that folder is spelled as given.
    const std::string& app = AppFolderText();
    std::string current = norm.starts_with('/') ? "" : ".";
    size_t start = 0;
    if (!app.empty() && norm.size() > app.size() && norm.compare(0, app.size(), app) == 0 &&
        norm[app.size()] == '/') {
        current = app;
        start = app.size();
    }
    bool matching = true;
    while (start < norm.size()) {
        if (norm[start] == '/') ++start;
        size_t slash = norm.find('/', start);
        if (slash == std::string::npos) slash = norm.size();
        const std::string part = norm.substr(start, slash - start);
        start = slash;
        if (part.empty()) continue;
        const std::string parent = current.empty() ? "/" : current;
        std::string next = current + "/" + part;
        if (matching && KindOf(next) == Kind::None) {
            const std::string real = SpellingIn(parent, part);
            if (real.empty())
                matching = false;
            else
                next = current + "/" + real;
        }
        current = next;
    }
    if (kind && matching) *kind = KindOf(current);
    return current;
}

fs::path Resolved(const std::string& path) {
    return fs::path(ResolveText(path));
}

}  // namespace

fs::path ResolvePath(const std::string& path) {
    return fs::path(ResolveText(path));
}

bool FileExists(const std::string& path) {
    Kind kind;
    ResolveText(path, &kind);
    return kind == Kind::File;
}

bool FolderExists(const std::string& path) {
    Kind kind;
    ResolveText(path, &kind);
    return kind == Kind::Folder;
}

bool WildcardMatch(std::string_view name, std::string_view pattern) {
    if (pattern == "*.*") return true;
    size_t n = 0, p = 0, star = std::string_view::npos, mark = 0;
    while (n < name.size()) {
        if (p < pattern.size() &&
            (pattern[p] == '?' || std::tolower(static_cast<unsigned char>(pattern[p])) ==
                                      std::tolower(static_cast<unsigned char>(name[n])))) {
            ++n, ++p;
        } else if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            mark = n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++mark;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*') ++p;
    return p == pattern.size();
}

void MkDir(const std::string& path) {
    const fs::path target = Resolved(path);
    if (KindOf(target.string()) != Kind::None) Raise(err::PathFileAccessError, target.string());
    if (KindOf(target.parent_path().string()) != Kind::Folder)
        Raise(err::PathNotFound, target.string());
    FolderChange change(target);
    BeforeChange(target, EntryChange::Folder);
    WriteStep();
    if (::mkdir(target.c_str(), 0777) != 0)
        Raise(ErrorFromSystem(errno, err::PathFileAccessError), target.string());
    NoteFolderChanged(target);
    change.Done(true);
}

void RmDir(const std::string& path) {
    const fs::path target = Resolved(path);
    std::error_code ec;
    if (!fs::is_directory(target, ec)) Raise(err::PathNotFound, target.string());
    if (!fs::is_empty(target, ec)) Raise(err::PathFileAccessError, target.string());
    FolderChange change(target);
    BeforeChange(target, EntryChange::Folder);
    WriteStep();
    if (::rmdir(target.c_str()) != 0)
        Raise(ErrorFromSystem(errno, err::PathFileAccessError), target.string());
    NoteFolderChanged(target);
    ForgetFolder(target.string());
    change.Done(false);
}

namespace {

// Deletes one regular file, refusing an open or read-only one.
void DeleteOneFile(const fs::path& target) {
    struct stat st {};
    if (KindOf(target.string(), &st) != Kind::File) Raise(err::FileNotFound, target.string());
    if (IsOpen(target)) Raise(err::PathFileAccessError, target.string());
    if (!Writable(target.string(), st)) Raise(err::PermissionDenied, target.string());
    FolderChange change(target);
    BeforeChange(target);
    WriteStep();
    if (::unlink(target.c_str()) != 0)
        Raise(ErrorFromSystem(errno, err::PathFileAccessError), target.string());
    NoteFolderChanged(target);
    change.Done(false);
}

}  // namespace

void Kill(const std::string& pattern) {
    const std::string norm = Normalise(pattern);
    const size_t slash = norm.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : norm.substr(0, slash);
    const std::string mask = slash == std::string::npos ? norm : norm.substr(slash + 1);
    std::error_code ec;
    if (mask.find_first_of("*?") == std::string::npos) {
        DeleteOneFile(Resolved(norm));
        return;
    }
    const fs::path dir = Resolved(folder);
    if (!fs::is_directory(dir, ec)) Raise(err::PathNotFound, dir.string());
    std::vector<fs::path> matches;
    for (const auto& entry : fs::directory_iterator(dir, ec)) {
        if (!entry.is_regular_file(ec)) continue;
        if (WildcardMatch(entry.path().filename().string(), mask)) matches.push_back(entry.path());
    }
    for (const std::string& name : UnwrittenIn(dir, mask)) matches.push_back(dir / name);
    if (matches.empty()) Raise(err::FileNotFound, norm);
    std::sort(matches.begin(), matches.end());
    for (const auto& match : matches) DeleteOneFile(match);
}

namespace {

// A file may take the place of `to` only where that is no folder or device, and not read-only.
void RefuseToReplace(const fs::path& to) {
    struct stat st {};
    const Kind existing = KindOf(to.string(), &st);
    if (existing == Kind::Folder || existing == Kind::Other)
        Raise(err::PathFileAccessError, to.string());
    if (existing == Kind::File && !Writable(to.string(), st))
        Raise(err::PermissionDenied, to.string());
}

// Renames a file or folder; the folder that holds the new name is flushed after.
void MoveEntry(const fs::path& from, const fs::path& to, bool folder) {
    FolderChange removed(from);
    FolderChange added(to);
    const EntryChange change = folder ? EntryChange::Folder : EntryChange::File;
    BeforeChange(from, change);
    BeforeChange(to, change);
    WriteStep();
    if (::rename(from.c_str(), to.c_str()) != 0)
        Raise(ErrorFromSystem(errno, err::PathFileAccessError), to.string());
    FlushFolderOf(to);
    if (folder) {
        ForgetFolder(from.string());
        ForgetFolder(to.string());
    }
    removed.Done(false);
    added.Done(true);
}

}  // namespace

void FileCopy(const std::string& source, const std::string& target) {
    const fs::path from = Resolved(source);
    const fs::path to = Resolved(target);
    if (KindOf(from.string()) != Kind::File) Raise(err::FileNotFound, from.string());
    if (KindOf(to.parent_path().string()) != Kind::Folder) Raise(err::PathNotFound, to.string());
    for (const auto& [no, f] : Table())
        if ((f.target == to && f.mode != OpenMode::Input) ||
            (f.target == from && SequentialOutput(f.mode)))
            Raise(err::PermissionDenied, to.string());
    RefuseToReplace(to);
    // Copy beside the target, then rename: the target is never half written.
    fs::path temporary = to;
    temporary += ".~copy";
    FolderChange change(to);
    BeforeChange(to);
    WriteWhole(temporary, ReadWhole(from.string()), to);
    RenameOver(temporary, to);
    change.Done(true);
}

void Name(const std::string& oldPath, const std::string& newPath) {
    const fs::path from = Resolved(oldPath);
    const fs::path to = Resolved(newPath);
    const Kind kind = KindOf(from.string());
    if (kind == Kind::None) Raise(err::FileNotFound, from.string());
    if (KindOf(to.string()) != Kind::None) Raise(err::FileAlreadyExists, to.string());
    if (IsOpen(from)) Raise(err::PathFileAccessError, from.string());
    MoveEntry(from, to, kind == Kind::Folder);
}

void NameOver(const std::string& oldPath, const std::string& newPath) {
    const fs::path from = Resolved(oldPath);
    const fs::path to = Resolved(newPath);
    if (KindOf(from.string()) != Kind::File) Raise(err::FileNotFound, from.string());
    RefuseToReplace(to);
    if (IsOpen(from) || IsOpen(to)) Raise(err::PathFileAccessError, to.string());
    MoveEntry(from, to, false);
}

std::int64_t FileLen(const std::string& path) {
    std::error_code ec;
    const fs::path file = Resolved(path);
    auto size = fs::file_size(file, ec);
    if (ec && IsUnwritten(file.string())) return 0;
    if (ec) Raise(err::FileNotFound, path);
    return static_cast<std::int64_t>(size);
}

void AppendLine(const std::string& path, std::string_view line) {
    const fs::path target = Resolved(path);
    const Kind kind = KindOf(target.string());
    if (kind == Kind::Folder || kind == Kind::Other) Raise(err::PathFileAccessError, path);
    if (IsOpen(target)) Raise(err::PathFileAccessError, path);
    FolderChange change(target);
    BeforeChange(target);
    WriteStep();
    Descriptor file(::open(target.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666));
    if (file.fd < 0) Raise(ErrorFromSystem(errno, err::PathNotFound), path);
    const std::string bytes = std::string(line) + "\r\n";
    const ssize_t n = ::write(file.fd, bytes.data(), bytes.size());
    if (n != static_cast<ssize_t>(bytes.size()))
        Raise(ErrorFromSystem(n < 0 ? errno : ENOSPC, err::DeviceIOError), path);
    if (kind == Kind::None) NoteFolderChanged(target);
    change.Done(true);
}

std::vector<std::string> Dir(const std::string& pattern, bool folders) {
    const std::string norm = Normalise(pattern);
    const size_t slash = norm.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : norm.substr(0, slash);
    const std::string mask = slash == std::string::npos ? norm : norm.substr(slash + 1);
    std::vector<std::string> names;
    std::error_code ec;
    fs::path dir = Resolved(folder);
    if (!fs::is_directory(dir, ec)) return names;
    for (const auto& entry : fs::directory_iterator(dir, ec)) {
        const bool isDir = entry.is_directory(ec);
        if (isDir != folders) continue;
        const std::string name = entry.path().filename().string();
        if (WildcardMatch(name, mask.empty() ? "*" : mask)) names.push_back(name);
    }
    if (!folders)
        for (const std::string& name : UnwrittenIn(dir, mask.empty() ? "*" : mask))
            names.push_back(name);
    std::sort(names.begin(), names.end());
    return names;
}

int FreeFile() {
    int n = 1;
    for (const auto& [no, f] : Table()) {
        if (no != n) break;
        ++n;
    }
    return n;
}

void Open(int fileNo, const std::string& path, OpenMode mode, int recordLength) {
    if (Table().count(fileNo)) Raise(err::FileAlreadyOpen, path);
    OpenFile f;
    f.mode = mode;
    f.target = Resolved(path);
    f.recordLength = recordLength;
    const std::string target = f.target.string();
    // A file open for sequential output is open for nothing else, and the other way round.
    if (IsOpen(f.target, !SequentialOutput(mode))) Raise(err::FileAlreadyOpen, target);
    struct stat st {};
    const Kind kind = KindOf(target, &st);
    if (kind == Kind::Folder || kind == Kind::Other) Raise(err::PathFileAccessError, target);
    if (mode != OpenMode::Input) {
        if (mode == OpenMode::Random && recordLength <= 0) Raise(err::BadRecordLength, target);
        if (KindOf(f.target.parent_path().string()) != Kind::Folder)
            Raise(err::PathNotFound, target);
        if (kind == Kind::File && !Writable(target, st)) Raise(err::PermissionDenied, target);
    }
    switch (mode) {
        case OpenMode::Input:
            if (kind == Kind::None) Raise(err::FileNotFound, target);
            f.buffer = ReadWhole(target);
            break;
        case OpenMode::Output:
        case OpenMode::Append:
            if (mode == OpenMode::Append && kind == Kind::File) f.buffer = ReadWhole(target);
            f.temporary = f.target;
            f.temporary += ".~" + std::to_string(::getpid());
            // The file is there from the open on, as on the platform; it reaches the disk
            // with its content, at the close. A folder that takes no new file says so now.
            if (kind == Kind::None) {
                if (::access(f.target.parent_path().c_str(), W_OK | X_OK) != 0)
                    Raise(ErrorFromSystem(errno, err::PathFileAccessError), target);
                Unwritten().insert(target);
            }
            break;
        case OpenMode::Random:
            if (kind == Kind::None) MakeEmptyFile(f.target);
            f.random = std::make_unique<std::fstream>(
                f.target, std::ios::binary | std::ios::in | std::ios::out);
            if (!*f.random) Raise(err::PermissionDenied, target);
            break;
    }
    Table().emplace(fileNo, std::move(f));
}

void Close(int fileNo) {
    auto it = Table().find(fileNo);
    if (it == Table().end()) return;
    OpenFile f = std::move(it->second);
    Table().erase(it);
    Commit(f);
}

void CloseAll() {
    while (!Table().empty()) Close(Table().begin()->first);
}

void AbandonAll() {
    // A new file goes again, never having reached the disk: nothing of the failed run stays.
    Unwritten().clear();
    Table().clear();
}

int OpenFileCount() {
    return static_cast<int>(Table().size());
}

bool Eof(int fileNo) {
    OpenFile& f = Get(fileNo, "EOF");
    if (f.mode == OpenMode::Input) return f.pos >= f.buffer.size();
    if (f.mode == OpenMode::Random) {
        auto here = f.random->tellg();
        f.random->seekg(0, std::ios::end);
        bool end = here >= f.random->tellg();
        f.random->seekg(here);
        return end;
    }
    return true;
}

std::int64_t Lof(int fileNo) {
    OpenFile& f = Get(fileNo, "LOF");
    if (f.mode == OpenMode::Random) {
        f.random->seekg(0, std::ios::end);
        return static_cast<std::int64_t>(f.random->tellg());
    }
    return static_cast<std::int64_t>(f.buffer.size());
}

std::string GetRecords(int fileNo, long firstRecordNo, long count) {
    OpenFile& f = Get(fileNo, "Get");
    if (f.mode != OpenMode::Random) Raise(err::BadFileMode, f.target.string());
    if (firstRecordNo < 1 || count < 0) Raise(err::BadRecordNumber, f.target.string());
    f.random->clear();
    f.random->seekg(0, std::ios::end);
    const std::streamoff size = f.random->tellg();
    const std::streamoff from = static_cast<std::streamoff>(firstRecordNo - 1) * f.recordLength;
    const std::streamoff wanted = static_cast<std::streamoff>(count) * f.recordLength;
    const std::streamoff length = std::max<std::streamoff>(0, std::min(wanted, size - from));
    std::string bytes(static_cast<size_t>(length), '\0');
    f.random->seekg(from);
    f.random->read(bytes.data(), static_cast<std::streamsize>(length));
    f.random->clear();
    return bytes;
}

void PutRecords(int fileNo, long firstRecordNo, std::string_view bytes) {
    OpenFile& f = Get(fileNo, "Put");
    if (f.mode != OpenMode::Random) Raise(err::BadFileMode, f.target.string());
    if (firstRecordNo < 1) Raise(err::BadRecordNumber, f.target.string());
    if (bytes.size() % static_cast<size_t>(f.recordLength) != 0)
        Raise(err::BadRecordLength, f.target.string());
    BeforeChange(f.target, EntryChange::FileInPlace);
    WriteStep();
    f.random->clear();
    // Writing past the end fills the gap with zero bytes, as the platform does.
    f.random->seekp(0, std::ios::end);
    const std::streamoff size = f.random->tellp();
    const std::streamoff at = static_cast<std::streamoff>(firstRecordNo - 1) * f.recordLength;
    if (at > size) {
        std::string gap(static_cast<size_t>(at - size), '\0');
        f.random->write(gap.data(), static_cast<std::streamsize>(gap.size()));
    }
    f.random->seekp(at);
    f.random->write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    f.random->flush();
    if (!*f.random) Raise(err::PathFileAccessError, f.target.string());
}

std::string GetRecord(int fileNo, long recordNo) {
    OpenFile& f = Get(fileNo, "Get");
    if (f.mode != OpenMode::Random) Raise(err::BadFileMode, f.target.string());
    if (recordNo < 1) Raise(err::BadRecordNumber, f.target.string());
    std::string bytes(static_cast<size_t>(f.recordLength), '\0');
    f.random->clear();
    f.random->seekg(static_cast<std::streamoff>(recordNo - 1) * f.recordLength);
    f.random->read(bytes.data(), f.recordLength);
    f.random->clear();
    return bytes;
}

void PutRecord(int fileNo, long recordNo, std::string_view bytes) {
    OpenFile& f = Get(fileNo, "Put");
    if (f.mode != OpenMode::Random) Raise(err::BadFileMode, f.target.string());
    if (static_cast<int>(bytes.size()) > f.recordLength)
        Raise(err::BadRecordLength, f.target.string());
    std::string record(bytes);
    record.resize(static_cast<size_t>(f.recordLength), '\0');
    PutRecords(fileNo, recordNo, record);
}

}  // namespace platform
