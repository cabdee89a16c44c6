#include "platform/controls/Timer.h"

namespace platform {

void Timer::SetInterval(int ms) {
    interval_ = ms;
    Notify();
}

void Timer::Tick() {
    if (ticking_ || !Enabled() || interval_ <= 0) return;
    ticking_ = true;
    struct Reset {
        bool& flag;
        ~Reset() { flag = false; }
    } reset{ticking_};
    Raise("Timer");
}

std::map<std::string, std::string> Timer::Properties() const {
    auto p = Control::Properties();
    p["Interval"] = std::to_string(interval_);
    return p;
}

}  // namespace platform
