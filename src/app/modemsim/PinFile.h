#pragma once

#include <string>

// The line of the program's CommPorts.txt that ties a port number to the simulator's
// terminal, for as long as the simulator runs: written at the start, taken out at the end.
class PinFile {
  public:
    PinFile(const std::string& folder, int port, const std::string& device);
    ~PinFile();
    PinFile(const PinFile&) = delete;
    PinFile& operator=(const PinFile&) = delete;

    // False, with the reason, when the line could not be written.
    bool Written(std::string& failure) const;
    const std::string& Path() const { return path_; }

  private:
    // The file's lines, without any line for this port, then `pin` when it is not empty.
    bool Rewrite(const std::string& pin) const;

    std::string path_;
    int port_;
    std::string line_;
    bool written_ = false;
};
