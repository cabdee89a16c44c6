#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "platform/DateTime.h"
#include "platform/headless/HeadlessBackend.h"

namespace testing_support {

// A fresh program folder for one test, with the headless backend and a set clock.
// Everything is undone at the end of the test.
class TestFolder {
  public:
    explicit TestFolder(platform::DateTime now = platform::DateTime::FromYmdHms(2026, 6, 15, 9, 0,
                                                                                0));
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    platform::HeadlessBackend& Ui() { return backend_; }
    void SetNow(platform::DateTime now) { backend_.SetNow(now); }

    // Files below the folder, by a relative path with `/`.
    void Write(const std::string& relative, const std::string& bytes) const;
    std::string Read(const std::string& relative) const;
    bool Exists(const std::string& relative) const;
    void MakeDirs(const std::string& relative) const;
    // A file of tests/data.
    static std::string Golden(const std::string& name);

  private:
    std::filesystem::path path_;
    platform::HeadlessBackend backend_;
};

// Twelve quoted lines, as the program writes a day.
std::string DayFileBytes(const std::string (&slots)[12]);
std::string FreeDayBytes();

// The number of the run-time error `action` stops with; 0 when it comes through.
int ErrorOf(const std::function<void()>& action);

}  // namespace testing_support
