#include "platform/controls/UpDown.h"

namespace platform {

void UpDown::SetValue(int value) {
    value_ = value;
    Notify();
}

void UpDown::UserUp() {
    if (value_ + increment_ <= max_) value_ += increment_;
    Notify();
    Raise("UpClick");
    Raise("Change");
}

void UpDown::UserDown() {
    if (value_ - increment_ >= min_) value_ -= increment_;
    Notify();
    Raise("DownClick");
    Raise("Change");
}

std::map<std::string, std::string> UpDown::Properties() const {
    auto p = Control::Properties();
    p["Value"] = std::to_string(value_);
    return p;
}

}  // namespace platform
