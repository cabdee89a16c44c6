#include "platform/controls/CheckBox.h"

namespace platform {

void CheckBox::SetValue(int value) {
    if (value_ == value) return;
    value_ = value;
    Notify();
    Raise("Click");
}

std::map<std::string, std::string> CheckBox::Properties() const {
    auto p = Control::Properties();
    p["Value"] = std::to_string(value_);
    return p;
}

}  // namespace platform
