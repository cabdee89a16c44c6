#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/DateTime.h"

// Looking through many teams' day files over a range of dates: each team folder, and its copy
// below Backup, is listed once, and only the days found there are opened.
class DayFileSearch {
  public:
    // `\<yyyy>\Team#<team>\<day>.txt`, relative to the program folder.
    static std::string PathOf(platform::DateTime date, int team);
    // True when the day's file exists, restoring it from Backup if only that copy does.
    bool Find(platform::DateTime date, int team);

  private:
    bool Listed(const std::string& folder, const std::string& name);
    std::map<std::string, std::set<std::string>> names_;
};
