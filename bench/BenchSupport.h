#pragma once

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "platform/Ui.h"

// What every benchmark needs: files put in place as they stand, and the time an action takes.
namespace bench {

inline void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

// Milliseconds `action` takes when called directly.
template <typename F>
double MillisecondsOf(F&& action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

// Milliseconds `action` takes when run as one event of the program, as a user's action is.
inline double Time(const std::function<void()>& action) {
    return MillisecondsOf([&] { platform::Dispatch(action); });
}

// Prints the line "<action>: <n> ms"; true when the action kept within its limit.
inline bool Report(const char* action, double ms, double limit = 100) {
    std::printf("%s: %.0f ms\n", action, ms);
    return ms < limit;
}

// The files a set-up office holds: `teams` crews, the settings, the business and one milestone.
inline void WriteSetUpOffice(const std::filesystem::path& root, int teams) {
    std::string names;
    for (int t = 1; t <= teams; ++t) names += "\"Crew " + std::to_string(t) + "\"\r\n";
    WriteFile(root / "Assignto.txt", names);
    WriteFile(root / "NorvaxConstructionSchedulerSettings.txt",
              "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n");
    WriteFile(root / "MyBusinessData.txt",
              "\"Acme\",\"1 Main St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0100\","
              "\"\",\"\"\r\n");
    WriteFile(root / "Characteristics.txt", "\"Framing\",2,2,0,0\r\n");
}

}  // namespace bench
