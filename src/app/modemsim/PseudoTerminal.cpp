#include "app/modemsim/PseudoTerminal.h"

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

PseudoTerminal::~PseudoTerminal() {
    if (master_ >= 0) close(master_);
}

bool PseudoTerminal::Open(std::string& failure) {
    master_ = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0) {
        failure = std::string("no pseudo-terminal: ") + std::strerror(errno);
        return false;
    }
    const char* name = ptsname(master_);
    if (!name) {
        failure = std::string("no pseudo-terminal name: ") + std::strerror(errno);
        return false;
    }
    path_ = name;
    // A terminal never opened reports no hang-up; opened and closed once, it reports the
    // closed state as it will whenever the program lets go of it.
    const int slave = open(name, O_RDWR | O_NOCTTY);
    if (slave >= 0) close(slave);
    // Raw: the bytes pass as they are, and nothing is echoed back by the terminal itself.
    termios settings{};
    if (tcgetattr(master_, &settings) == 0) {
        cfmakeraw(&settings);
        cfsetspeed(&settings, B9600);
        tcsetattr(master_, TCSANOW, &settings);
    }
    return true;
}

std::string PseudoTerminal::Read() {
    std::string bytes;
    char chunk[512];
    for (;;) {
        const ssize_t got = read(master_, chunk, sizeof chunk);
        if (got <= 0) break;
        bytes.append(chunk, static_cast<size_t>(got));
    }
    return bytes;
}

void PseudoTerminal::Write(const std::string& bytes) {
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t put = write(master_, bytes.data() + done, bytes.size() - done);
        if (put < 0 && errno == EINTR) continue;
        if (put <= 0) break;
        done += static_cast<size_t>(put);
    }
}
