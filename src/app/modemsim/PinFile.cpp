#include "app/modemsim/PinFile.h"

#include <fstream>
#include <sstream>

namespace {

// The port number a pin line begins with, or 0.
int PinnedPort(const std::string& line) {
    std::istringstream words(line);
    int port = 0;
    return words >> port ? port : 0;
}

}  // namespace

PinFile::PinFile(const std::string& folder, int port, const std::string& device)
    : path_(folder + "/CommPorts.txt"), port_(port), line_(std::to_string(port) + " " + device) {
    written_ = Rewrite(line_);
}

PinFile::~PinFile() {
    if (written_) Rewrite({});
}

bool PinFile::Written(std::string& failure) const {
    if (!written_) failure = "cannot write " + path_;
    return written_;
}

bool PinFile::Rewrite(const std::string& pin) const {
    std::string kept;
    {
        std::ifstream in(path_, std::ios::binary);
        for (std::string line; std::getline(in, line);) {
            if (!line.empty() && line.back() == '\r') line.pop_back();
            if (line.empty() || (line[0] != '#' && PinnedPort(line) == port_)) continue;
            kept += line + "\n";
        }
    }
    if (!pin.empty()) kept += pin + "\n";
    std::ofstream out(path_, std::ios::binary | std::ios::trunc);
    out << kept;
    return static_cast<bool>(out);
}
