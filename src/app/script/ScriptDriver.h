#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "platform/headless/HeadlessBackend.h"

// Runs the program headless on a folder of data and a script of user actions, one a line,
// and writes a transcript of what the user would see: message boxes with the answer
// taken, beeps, screens shown and hidden, pages printed, and what the script asks to show.
class ScriptDriver {
  public:
    ScriptDriver(std::string appFolder, std::ostream& out);
    ~ScriptDriver();
    // Runs every line; returns the number of lines that could not be carried out.
    int Run(const std::vector<std::string>& lines);
    int RunFile(const std::string& path);
    platform::HeadlessBackend& Backend() { return backend_; }

  private:
    void Next();  // runs the next line of the script
    void Execute(const std::string& line);
    void Flush();
    void DriveModal(platform::Form& form);

    std::string appFolder_;
    std::ostream& out_;
    platform::HeadlessBackend backend_;
    std::vector<std::string> lines_;
    size_t next_ = 0;
    size_t logged_ = 0;
    int failures_ = 0;
};
