#pragma once

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "platform/Ui.h"

// Timing of screen actions for the benchmarks: each action runs as one event of the program
// and is reported as "<action>: <n> ms".
namespace bench {

inline void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

inline double Time(const std::function<void()>& action) {
    const auto start = std::chrono::steady_clock::now();
    platform::Dispatch(action);
    const auto end = std::chrono::steady_clock::now();
    return std::chrono::duration<double, std::milli>(end - start).count();
}

// Prints the line; true when the action kept within its limit.
inline bool Report(const char* action, double ms, double limit = 100) {
    std::printf("%s: %.0f ms\n", action, ms);
    return ms < limit;
}

}  // namespace bench
