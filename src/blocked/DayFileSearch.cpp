#include "blocked/DayFileSearch.h"

#include <cctype>

#include "platform/Files.h"
#include "store/BasicDiskRoutines.h"

using namespace platform;

namespace {

std::string Lower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

std::string FolderOf(DateTime date, int team) {
    return "\\" + std::to_string(date.Year()) + "\\Team#" + std::to_string(team) + "\\";
}

}  // namespace

std::string DayFileSearch::PathOf(DateTime date, int team) {
    return FolderOf(date, team) + std::to_string(date.DayOfYear()) + ".txt";
}

bool DayFileSearch::Find(DateTime date, int team) {
    const std::string folder = FolderOf(date, team);
    if (!Listed(folder, std::to_string(date.DayOfYear()) + ".txt")) return false;
    return FindFile(PathOf(date, team));
}

bool DayFileSearch::Listed(const std::string& folder, const std::string& name) {
    auto it = names_.find(folder);
    if (it == names_.end()) {
        std::set<std::string>& names = names_[folder];
        for (const std::string& root : {std::string(), std::string("\\Backup")}) {
            const std::string path = DataPath(root + folder);
            if (!FolderExists(path)) continue;
            for (std::string file : Dir(path + "*.txt")) names.insert(Lower(std::move(file)));
        }
        it = names_.find(folder);
    }
    return it->second.count(Lower(name)) > 0;
}
