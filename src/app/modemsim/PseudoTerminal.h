#pragma once

#include <string>

// The master side of a pseudo-terminal in raw mode; the slave side, named by Path, is the
// serial device that the program opens.
class PseudoTerminal {
  public:
    PseudoTerminal() = default;
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;
    ~PseudoTerminal();

    // False, with the reason, when no terminal could be had.
    bool Open(std::string& failure);
    const std::string& Path() const { return path_; }
    int Fd() const { return master_; }
    // What is waiting; nothing when the other side is closed.
    std::string Read();
    void Write(const std::string& bytes);

  private:
    int master_ = -1;
    std::string path_;
};
