#include "platform/Files.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <memory>
#include <system_error>
#include <unordered_map>

#include <sys/stat.h>

#include <unistd.h>

#include "platform/Records.h"
#include "platform/RuntimeError.h"

namespace fs = std::filesystem;

namespace platform {
namespace {

std::string& AppFolderText() {
    static std::string folder = fs::current_path().string();
    return folder;
}

std::string& ProgramName() {
    static std::string name = "NorvaxConstructionScheduler";
    return name;
}

// One separator, and no blanks at the end of a component: the file system of the data's
// home drops them, so "Team#1 " names the folder Team#1.
std::string Normalise(const std::string& path) {
    std::string out;
    out.reserve(path.size());
    auto dropTrailingBlanks = [&out] {
        size_t start = out.rfind('/');
        start = start == std::string::npos ? 0 : start + 1;
        while (out.size() > start && out.back() == ' ') out.pop_back();
    };
    for (char c : path) {
        if (c == '\\') c = '/';
        if (c == '/') dropTrailingBlanks();
        if (c == '/' && !out.empty() && out.back() == '/') continue;
        out += c;
    }
    dropTrailingBlanks();
    while (out.size() > 1 && out.back() == '/') out.pop_back();
    return out;
}

std::string TrimBlanksRight(std::string_view s) {
    size_t e = s.size();
    while (e > 0 && (s[e - 1] == ' ' || s[e - 1] == '\t')) --e;
    return std::string(s.substr(0, e));
}

struct OpenFile {
    OpenMode mode{};
    fs::path target;
    fs::path temporary;  // sequential output goes here until the close
    std::string buffer;  // whole content for input, pending content for output
    size_t pos = 0;
    int recordLength = 128;
    std::unique_ptr<std::fstream> random;
};

std::map<int, OpenFile>& Table() {
    static std::map<int, OpenFile> table;
    return table;
}

OpenFile& Get(int fileNo, const char* where) {
    auto it = Table().find(fileNo);
    if (it == Table().end()) Raise(err::BadFileNameOrNumber, where);
    return it->second;
}

// Sequential output reaches its name only when complete: written under a temporary
// name in the same folder, then renamed over the old file. A crash leaves the old file.
void Commit(OpenFile& f) {
    if (f.mode != OpenMode::Output && f.mode != OpenMode::Append) return;
    {
        std::ofstream out(f.temporary, std::ios::binary | std::ios::trunc);
        if (!out) Raise(err::PathNotFound, f.target.string());
        out.write(f.buffer.data(), static_cast<std::streamsize>(f.buffer.size()));
        out.flush();
        if (!out) {
            std::error_code ec;
            fs::remove(f.temporary, ec);
            Raise(err::PathFileAccessError, f.target.string());
        }
    }
    std::error_code ec;
    fs::rename(f.temporary, f.target, ec);
    if (ec) {
        fs::remove(f.temporary, ec);
        Raise(err::PermissionDenied, f.target.string());
    }
}

// Reads one value of a delimited line and steps over its delimiter (a comma or a line end).
std::string NextToken(OpenFile& f, bool& quoted) {
    if (f.mode != OpenMode::Input) Raise(err::BadFileMode, f.target.string());
    const std::string& b = f.buffer;
    size_t& p = f.pos;
    while (p < b.size() && (b[p] == ' ' || b[p] == '\t')) ++p;
    if (p >= b.size()) Raise(err::InputPastEnd, f.target.string());
    std::string token;
    quoted = false;
    if (b[p] == '"') {
        quoted = true;
        size_t close = b.find('"', p + 1);
        if (close == std::string::npos) close = b.size();
        token = b.substr(p + 1, close - p - 1);
        p = std::min(close + 1, b.size());
        while (p < b.size() && b[p] != ',' && b[p] != '\r' && b[p] != '\n') ++p;
    } else {
        size_t end = p;
        while (end < b.size() && b[end] != ',' && b[end] != '\r' && b[end] != '\n') ++end;
        token = TrimBlanksRight(std::string_view(b).substr(p, end - p));
        p = end;
    }
    if (p < b.size()) {
        if (b[p] == ',') {
            ++p;
        } else if (b[p] == '\r') {
            ++p;
            if (p < b.size() && b[p] == '\n') ++p;
        } else if (b[p] == '\n') {
            ++p;
        }
    }
    return token;
}

bool ParseNumber(const std::string& token, double& out) {
    if (token.empty()) {
        out = 0;
        return true;
    }
    if (token == "#TRUE#") return out = -1, true;
    if (token == "#FALSE#") return out = 0, true;
    // Decimal digits only: no "nan", "inf", hexadecimal or bytes past a NUL.
    if (token.find_first_not_of("0123456789+-.eE") != std::string::npos) return false;
    char* end = nullptr;
    out = std::strtod(token.c_str(), &end);
    return end && *end == '\0';
}

fs::path Resolved(const std::string& path) {
    return ResolvePath(path);
}

}  // namespace

void SetAppFolder(const std::string& folder) {
    AppFolderText() = Normalise(folder);
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

namespace {

// What a path names on disk: nothing, a file or a folder.
enum class Kind { None, File, Folder };

Kind KindOf(const std::string& path, struct stat* info = nullptr) {
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0) return Kind::None;
    if (info) *info = st;
    return S_ISDIR(st.st_mode) ? Kind::Folder : S_ISREG(st.st_mode) ? Kind::File : Kind::None;
}

// Names of a folder, by their lower-case spelling, kept while the folder does not change.
struct FolderNames {
    struct timespec modified {};
    std::unordered_map<std::string, std::string> byLowerCase;
};

std::string Lower(std::string_view s) {
    std::string out(s);
    for (auto& c : out) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

// The real spelling of `name` in `folder`, when it differs only by case; empty when none.
std::string SpellingIn(const std::string& folder, const std::string& name) {
    static std::unordered_map<std::string, FolderNames> cache;
    struct stat st {};
    if (KindOf(folder, &st) != Kind::Folder) return {};
    FolderNames& names = cache[folder];
    if (names.modified.tv_sec != st.st_mtim.tv_sec ||
        names.modified.tv_nsec != st.st_mtim.tv_nsec || names.byLowerCase.empty()) {
        names.byLowerCase.clear();
        std::error_code ec;
        for (const auto& entry : fs::directory_iterator(folder, ec)) {
            const std::string real = entry.path().filename().string();
            names.byLowerCase.emplace(Lower(real), real);
        }
        names.modified = st.st_mtim;
    }
    auto it = names.byLowerCase.find(Lower(name));
    return it == names.byLowerCase.end() ? std::string() : it->second;
}

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
    fs::path target = Resolved(path);
    std::error_code ec;
    if (fs::exists(target, ec)) Raise(err::PathFileAccessError, target.string());
    if (!fs::is_directory(target.parent_path(), ec)) Raise(err::PathNotFound, target.string());
    if (!fs::create_directory(target, ec) || ec) Raise(err::PathFileAccessError, target.string());
}

void RmDir(const std::string& path) {
    fs::path target = Resolved(path);
    std::error_code ec;
    if (!fs::is_directory(target, ec)) Raise(err::PathNotFound, target.string());
    if (!fs::is_empty(target, ec)) Raise(err::PathFileAccessError, target.string());
    fs::remove(target, ec);
    if (ec) Raise(err::PathFileAccessError, target.string());
}

void Kill(const std::string& pattern) {
    const std::string norm = Normalise(pattern);
    const size_t slash = norm.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : norm.substr(0, slash);
    const std::string mask = slash == std::string::npos ? norm : norm.substr(slash + 1);
    std::error_code ec;
    if (mask.find_first_of("*?") == std::string::npos) {
        fs::path target = Resolved(norm);
        if (!fs::is_regular_file(target, ec)) Raise(err::FileNotFound, target.string());
        if (!fs::remove(target, ec) || ec) Raise(err::PermissionDenied, target.string());
        return;
    }
    fs::path dir = Resolved(folder);
    if (!fs::is_directory(dir, ec)) Raise(err::PathNotFound, dir.string());
    bool any = false;
    for (const auto& entry : fs::directory_iterator(dir, ec)) {
        if (!entry.is_regular_file(ec)) continue;
        if (!WildcardMatch(entry.path().filename().string(), mask)) continue;
        fs::remove(entry.path(), ec);
        any = true;
    }
    if (!any) Raise(err::FileNotFound, norm);
}

void FileCopy(const std::string& source, const std::string& target) {
    fs::path from = Resolved(source);
    fs::path to = Resolved(target);
    std::error_code ec;
    if (!fs::is_regular_file(from, ec)) Raise(err::FileNotFound, from.string());
    if (!fs::is_directory(to.parent_path(), ec)) Raise(err::PathNotFound, to.string());
    for (const auto& [no, f] : Table())
        if (f.mode != OpenMode::Input && f.target == to) Raise(err::PermissionDenied, to.string());
    // Copy beside the target, then rename: the target is never half written.
    fs::path temporary = to;
    temporary += ".~copy";
    fs::copy_file(from, temporary, fs::copy_options::overwrite_existing, ec);
    if (ec) Raise(err::PathFileAccessError, to.string());
    fs::rename(temporary, to, ec);
    if (ec) {
        fs::remove(temporary, ec);
        Raise(err::PermissionDenied, to.string());
    }
}

void Name(const std::string& oldPath, const std::string& newPath) {
    fs::path from = Resolved(oldPath);
    fs::path to = Resolved(newPath);
    std::error_code ec;
    if (!fs::exists(from, ec)) Raise(err::FileNotFound, from.string());
    if (fs::exists(to, ec)) Raise(err::FileAlreadyExists, to.string());
    fs::rename(from, to, ec);
    if (ec) Raise(err::PathFileAccessError, to.string());
}

std::int64_t FileLen(const std::string& path) {
    std::error_code ec;
    auto size = fs::file_size(Resolved(path), ec);
    if (ec) Raise(err::FileNotFound, path);
    return static_cast<std::int64_t>(size);
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
    std::error_code ec;
    if (fs::is_directory(f.target, ec)) Raise(err::PathFileAccessError, f.target.string());
    switch (mode) {
        case OpenMode::Input: {
            std::ifstream in(f.target, std::ios::binary);
            if (!in) Raise(err::FileNotFound, f.target.string());
            f.buffer.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
            break;
        }
        case OpenMode::Output:
        case OpenMode::Append: {
            if (!fs::is_directory(f.target.parent_path(), ec))
                Raise(err::PathNotFound, f.target.string());
            if (mode == OpenMode::Append && fs::is_regular_file(f.target, ec)) {
                std::ifstream in(f.target, std::ios::binary);
                f.buffer.assign(std::istreambuf_iterator<char>(in),
                                std::istreambuf_iterator<char>());
            }
            f.temporary = f.target;
            f.temporary += ".~" + std::to_string(::getpid());
            break;
        }
        case OpenMode::Random: {
            if (recordLength <= 0) Raise(err::BadRecordLength, f.target.string());
            if (!fs::is_directory(f.target.parent_path(), ec))
                Raise(err::PathNotFound, f.target.string());
            if (!fs::exists(f.target, ec)) std::ofstream(f.target, std::ios::binary);
            f.random = std::make_unique<std::fstream>(
                f.target, std::ios::binary | std::ios::in | std::ios::out);
            if (!*f.random) Raise(err::PermissionDenied, f.target.string());
            break;
        }
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

std::string FormatNumber(double value) {
    if (value == std::floor(value) && std::fabs(value) < 1e15) {
        return std::to_string(static_cast<long long>(value));
    }
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, value);
    return std::string(buf, res.ptr);
}

void WriteFields(int fileNo, const std::vector<Field>& fields) {
    OpenFile& f = Get(fileNo, "Write");
    if (f.mode != OpenMode::Output && f.mode != OpenMode::Append)
        Raise(err::BadFileMode, f.target.string());
    bool first = true;
    for (const auto& field : fields) {
        if (!first) f.buffer += ',';
        first = false;
        if (auto s = std::get_if<std::string>(&field)) {
            f.buffer += '"';
            f.buffer += *s;
            f.buffer += '"';
        } else if (auto d = std::get_if<double>(&field)) {
            f.buffer += FormatNumber(*d);
        } else if (auto b = std::get_if<bool>(&field)) {
            f.buffer += *b ? "#TRUE#" : "#FALSE#";
        } else if (auto t = std::get_if<DateTime>(&field)) {
            f.buffer += '#';
            if (t->DayNumber() != 0 || t->Serial() == t->DateOnly().Serial())
                f.buffer += FormatDate(*t, "yyyy-mm-dd");
            if (t->Serial() != t->DateOnly().Serial()) {
                if (t->DayNumber() != 0) f.buffer += ' ';
                f.buffer += FormatDate(*t, "hh:nn:ss");
            }
            f.buffer += '#';
        }
    }
    f.buffer += "\r\n";
}

void WriteFields(int fileNo, std::initializer_list<Field> fields) {
    WriteFields(fileNo, std::vector<Field>(fields));
}

void PrintLine(int fileNo, std::string_view text) {
    OpenFile& f = Get(fileNo, "Print");
    if (f.mode != OpenMode::Output && f.mode != OpenMode::Append)
        Raise(err::BadFileMode, f.target.string());
    f.buffer += text;
    f.buffer += "\r\n";
}

std::string InputString(int fileNo) {
    bool quoted;
    return NextToken(Get(fileNo, "Input"), quoted);
}

double InputNumber(int fileNo) {
    OpenFile& f = Get(fileNo, "Input");
    bool quoted;
    std::string token = NextToken(f, quoted);
    double value;
    if (!ParseNumber(token, value)) Raise(err::TypeMismatch, f.target.string());
    return value;
}

namespace {
double InputInRange(int fileNo, double low, double high) {
    const double rounded = std::nearbyint(InputNumber(fileNo));
    if (rounded < low || rounded > high)
        Raise(6, Get(fileNo, "Input").target.string());  // Overflow
    return rounded;
}
}  // namespace

std::int32_t InputInt32(int fileNo) {
    return static_cast<std::int32_t>(InputInRange(fileNo, -2147483648.0, 2147483647.0));
}

std::int16_t InputInt16(int fileNo) {
    return static_cast<std::int16_t>(InputInRange(fileNo, -32768, 32767));
}

std::uint8_t InputByte(int fileNo) {
    return static_cast<std::uint8_t>(InputInRange(fileNo, 0, 255));
}

bool InputBool(int fileNo) {
    OpenFile& f = Get(fileNo, "Input");
    bool quoted;
    std::string token = NextToken(f, quoted);
    const std::string upper = UCase(token);
    if (upper == "#TRUE#" || upper == "TRUE") return true;
    if (upper == "#FALSE#" || upper == "FALSE") return false;
    double value;
    if (!quoted && !token.empty() && ParseNumber(token, value)) return value != 0;
    Raise(err::TypeMismatch, f.target.string());
}

DateTime InputDate(int fileNo) {
    OpenFile& f = Get(fileNo, "Input");
    bool quoted;
    std::string token = NextToken(f, quoted);
    if (token.size() >= 2 && token.front() == '#' && token.back() == '#')
        token = token.substr(1, token.size() - 2);
    DateTime value;
    if (!ParseDate(token, value)) Raise(err::TypeMismatch, f.target.string());
    return value;
}

std::string LineInput(int fileNo) {
    OpenFile& f = Get(fileNo, "Line Input");
    if (f.mode != OpenMode::Input) Raise(err::BadFileMode, f.target.string());
    if (f.pos >= f.buffer.size()) Raise(err::InputPastEnd, f.target.string());
    size_t end = f.pos;
    while (end < f.buffer.size() && f.buffer[end] != '\r' && f.buffer[end] != '\n') ++end;
    std::string line = f.buffer.substr(f.pos, end - f.pos);
    f.pos = end;
    if (f.pos < f.buffer.size() && f.buffer[f.pos] == '\r') ++f.pos;
    if (f.pos < f.buffer.size() && f.buffer[f.pos] == '\n') ++f.pos;
    return line;
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
    if (recordNo < 1) Raise(err::BadRecordNumber, f.target.string());
    if (static_cast<int>(bytes.size()) > f.recordLength)
        Raise(err::BadRecordLength, f.target.string());
    std::string record(bytes);
    record.resize(static_cast<size_t>(f.recordLength), '\0');
    f.random->clear();
    // Writing past the end fills the gap with zero bytes, as the platform does.
    f.random->seekp(0, std::ios::end);
    const std::streamoff size = f.random->tellp();
    const std::streamoff at = static_cast<std::streamoff>(recordNo - 1) * f.recordLength;
    if (at > size) {
        std::string gap(static_cast<size_t>(at - size), '\0');
        f.random->write(gap.data(), static_cast<std::streamsize>(gap.size()));
    }
    f.random->seekp(at);
    f.random->write(record.data(), f.recordLength);
    f.random->flush();
    if (!*f.random) Raise(err::PathFileAccessError, f.target.string());
}

}  // namespace platform
